#include "proberesponder.h"

#include "replies.h"

#include <vorn/util/xmlresponse.h>

#include <QtNetwork/QNetworkDatagram>
#include <QtNetwork/QNetworkInterface>

#include <chrono>

namespace simulator {
namespace {

constexpr quint16 discoveryPort = 3702;

/// Not all answers are to come at once: WS-Discovery has devices wait for a random time.
constexpr std::chrono::milliseconds pauseBetweenAnswers(1);

/// So many probes are read in one turn of the event loop, and so many answers are kept for later: a flood must not keep
/// anything else from its turn, or take all memory.
constexpr int probesAtOnce = 32;
constexpr qsizetype mostAnswers = 100000;

QHostAddress discoveryGroup()
{
    return QHostAddress("239.255.255.250");
}

QNetworkInterface interfaceOf(const QHostAddress &address)
{
    for (const QNetworkInterface &interface : QNetworkInterface::allInterfaces()) {
        for (const QNetworkAddressEntry &entry : interface.addressEntries()) {
            if (entry.ip() == address)
                return interface;
        }
    }
    return {};
}

} // namespace

ProbeResponder::ProbeResponder(const Options &options, const QList<QByteArray> &origins)
    : m_options(options)
    , m_origins(origins)
{
    for (QUdpSocket *socket : {&m_socket, &m_groupSocket})
        connect(socket, &QUdpSocket::readyRead, this, [this, socket] { receive(*socket); });
    connect(&m_pause, &QTimer::timeout, this, [this] { sendNextAnswer(); });
}

QString ProbeResponder::start()
{
    if (!m_socket.bind(m_options.listen, m_options.probePort)) {
        return QString("Probes cannot be taken at %1:%2: %3.")
            .arg(m_options.listen.toString())
            .arg(m_options.probePort)
            .arg(m_socket.errorString());
    }
    m_takesMulticast = joinGroup();
    return {};
}

QByteArray ProbeResponder::address() const
{
    return QString("%1:%2").arg(m_socket.localAddress().toString()).arg(m_socket.localPort()).toLatin1();
}

bool ProbeResponder::joinGroup()
{
    return m_groupSocket.bind(discoveryGroup(), discoveryPort,
                              QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint)
           && m_groupSocket.joinMulticastGroup(discoveryGroup(), interfaceOf(m_options.listen));
}

void ProbeResponder::receive(QUdpSocket &socket)
{
    for (int count = 0; count < probesAtOnce && socket.hasPendingDatagrams(); ++count) {
        const QNetworkDatagram datagram = socket.receiveDatagram();
        // Another program may have joined the group at another interface; its probes come here, too.
        if (!m_options.listen.isLoopback() || datagram.senderAddress().isLoopback())
            prepareAnswers(datagram.data(), datagram.senderAddress(), static_cast<quint16>(datagram.senderPort()));
    }
}

void ProbeResponder::prepareAnswers(const QByteArray &probe, const QHostAddress &sender, quint16 port)
{
    vorn::XmlResponse message(probe, "/Envelope");
    if (message.getText("/Body/Probe").isNull())
        return;
    const QString messageId = message.getText("/Header/MessageID");
    for (const QByteArray &origin : m_origins) {
        if (m_answers.size() < mostAnswers)
            m_answers.append({origin, messageId, sender, port});
    }
    m_pause.start(pauseBetweenAnswers);
}

void ProbeResponder::sendNextAnswer()
{
    if (m_answers.isEmpty())
        return m_pause.stop();
    const Answer answer = m_answers.takeFirst();
    m_socket.writeDatagram(probeMatch(m_options, answer.origin, answer.messageId), answer.receiver, answer.port);
}

} // namespace simulator
