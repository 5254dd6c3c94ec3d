#include "probe.h"

#include <vorn/onvif/placeholderstring.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QUuid>
#include <QtCore/QVariant>
#include <QtNetwork/QNetworkDatagram>

namespace client {
namespace {

const char *const probeTemplate =
    R"(<?xml version="1.0" encoding="UTF-8"?><s:Envelope xmlns:s="http://www.w3.org/2003/05/soap-envelope")"
    R"( xmlns:a="http://schemas.xmlsoap.org/ws/2004/08/addressing")"
    R"( xmlns:d="http://schemas.xmlsoap.org/ws/2005/04/discovery")"
    R"( xmlns:dn="http://www.onvif.org/ver10/network/wsdl"><s:Header>)"
    R"(<a:Action>http://schemas.xmlsoap.org/ws/2005/04/discovery/Probe</a:Action>)"
    R"(<a:MessageID>urn:uuid:$@</a:MessageID>)"
    R"(<a:To>urn:schemas-xmlsoap-org:ws:2005:04:discovery</a:To></s:Header>)"
    R"(<s:Body><d:Probe><d:Types>dn:NetworkVideoTransmitter</d:Types></d:Probe>)"
    R"(</s:Body></s:Envelope>)";

/// Many devices answer at once. The system may grant less.
constexpr int receiveBuffer = 4 * 1024 * 1024;

/// So many answers are read in one turn of the event loop. Whoever sends more than can be read must not keep the end of
/// the search, or Ctrl-C, from its turn.
constexpr int answersAtOnce = 32;

/// At the end, what has come already is still read, within a bound.
constexpr int lastTurns = 128;

/// The address of \a interface that answers are to come back to.
QHostAddress ownIPv4Address(const QNetworkInterface &interface)
{
    for (const QNetworkAddressEntry &entry : interface.addressEntries()) {
        if (entry.ip().protocol() == QHostAddress::IPv4Protocol)
            return entry.ip();
    }
    return QHostAddress(QHostAddress::AnyIPv4);
}

} // namespace

Probe::Probe(const ProbeTarget &target, std::chrono::milliseconds duration, Found found, Done done)
    : m_target(target)
    , m_duration(duration)
    , m_foundOne(std::move(found))
    , m_done(std::move(done))
    , m_message(vorn::PlaceHolderString(probeTemplate, "$@")
                    .arg(QUuid::createUuid().toString(QUuid::WithoutBraces))
                    .qStr()
                    .toUtf8())
{
}

QString Probe::start()
{
    if (!m_socket.bind(ownIPv4Address(m_target.interface), 0))
        return QString("The socket for the search cannot be opened: %1.").arg(m_socket.errorString());
    m_socket.setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption, QVariant(receiveBuffer));
    if (m_target.interface.isValid() && m_target.address.isMulticast())
        m_socket.setMulticastInterface(m_target.interface);
    connect(&m_socket, &QUdpSocket::readyRead, this, [this] { receive(); });

    QString complaint = send();
    if (!complaint.isEmpty())
        return complaint;
    // Datagrams get lost, so it is asked again; who has answered is known by then.
    connect(&m_again, &QTimer::timeout, this, [this] { send(); });
    m_again.start(m_duration / 4);
    connect(&m_end, &QTimer::timeout, this, [this] {
        m_again.stop();
        for (int turn = 0; turn < lastTurns && m_socket.hasPendingDatagrams(); ++turn)
            receive();
        m_done(m_result);
    });
    m_end.setSingleShot(true);
    m_end.start(m_duration);
    return {};
}

QString Probe::send()
{
    if (m_socket.writeDatagram(m_message, m_target.address, m_target.port) == m_message.size())
        return {};
    return QString("The probe cannot be sent: %1.").arg(m_socket.errorString());
}

void Probe::receive()
{
    for (int count = 0; count < answersAtOnce && m_socket.hasPendingDatagrams(); ++count) {
        const QNetworkDatagram datagram = m_socket.receiveDatagram(maximumAnswerSize + 1);
        if (datagram.data().size() <= maximumAnswerSize)
            take(datagram.data(), datagram.senderAddress());
    }
}

void Probe::take(const QByteArray &bytes, const QHostAddress &sender)
{
    const std::optional<FoundCamera> found = foundCamera(bytes, sender);
    if (!found)
        return;
    // A camera answers each probe, and may do so on several ways. Its identity alone does not tell: some makers give
    // all their devices the same.
    const QString identity = found->endpoint + ' ' + found->addresses.join(' ');
    const QByteArray key = QCryptographicHash::hash(identity.toUtf8(), QCryptographicHash::Sha256);
    if (m_known.contains(key))
        return;
    if (m_result.isFull)
        return;
    m_result.isFull = m_result.found == maximumCameras || m_foundSize + found->size() > maximumFoundSize;
    if (m_result.isFull)
        return m_end.start(0); // there is nothing to wait for any more
    m_known.insert(key);
    m_foundSize += found->size();
    ++m_result.found;
    m_foundOne(*found);
}

} // namespace client
