#include "proberesponder.h"

#include "replies.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QTimer>
#include <QtNetwork/QNetworkDatagram>
#include <QtNetwork/QNetworkInterface>

namespace simulator {
namespace {

constexpr quint16 discoveryPort = 3702;

/// WS-Discovery wants devices to answer at any time within this one, so that not all answers come at once.
constexpr int longestDelay = 400;

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

ProbeResponder::ProbeResponder(const Options &options, const QList<QByteArray> &deviceAddresses)
    : m_options(options)
    , m_deviceAddresses(deviceAddresses)
{
    for (QUdpSocket *socket : {&m_socket, &m_groupSocket})
        connect(socket, &QUdpSocket::readyRead, this, [this, socket] { receive(*socket); });
}

bool ProbeResponder::start()
{
    if (!m_socket.bind(m_options.listen, m_options.probePort))
        return false;
    m_takesMulticast = joinGroup();
    return true;
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
    while (socket.hasPendingDatagrams()) {
        const QNetworkDatagram datagram = socket.receiveDatagram();
        // Another program may have joined the group at another interface; its probes come here, too.
        if (!m_options.listen.isLoopback() || datagram.senderAddress().isLoopback())
            answer(datagram.data(), datagram.senderAddress(), static_cast<quint16>(datagram.senderPort()));
    }
}

void ProbeResponder::answer(const QByteArray &probe, const QHostAddress &sender, quint16 port)
{
    vorn::XmlResponse message(probe, "/Envelope");
    if (message.getText("/Body/Probe").isNull())
        return;
    const QByteArray messageId = message.getText("/Header/MessageID").toHtmlEscaped().toLatin1();
    for (qsizetype index = 0; index < m_deviceAddresses.size(); ++index) {
        const int delay = static_cast<int>(longestDelay * index / m_deviceAddresses.size());
        QTimer::singleShot(delay, this, [=] {
            m_socket.writeDatagram(probeMatch(m_options, m_deviceAddresses[index], messageId), sender, port);
        });
    }
}

} // namespace simulator
