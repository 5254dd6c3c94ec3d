#pragma once

#include "options.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QUdpSocket>

namespace simulator {

/// Answers the probes of WS-Discovery for all devices.
class ProbeResponder : public QObject
{
public:
    /// \a deviceAddresses are hosts with ports.
    ProbeResponder(const Options &options, const QList<QByteArray> &deviceAddresses);

    /// Listens for probes. False if that is not possible; multicast may fail alone.
    bool start();

    bool takesMulticast() const { return m_takesMulticast; }

    /// Where probes are taken without multicast: a host and a port.
    QByteArray address() const;

private:
    bool joinGroup();
    void receive(QUdpSocket &socket);
    void answer(const QByteArray &probe, const QHostAddress &sender, quint16 port);

    Options m_options;
    QList<QByteArray> m_deviceAddresses;
    QUdpSocket m_socket;
    QUdpSocket m_groupSocket;
    bool m_takesMulticast = false;
};

} // namespace simulator
