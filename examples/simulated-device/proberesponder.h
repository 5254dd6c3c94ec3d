#pragma once

#include "options.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QUdpSocket>

namespace simulator {

/// Answers the probes of WS-Discovery for all devices.
class ProbeResponder : public QObject
{
public:
    /// \a origins are those of the devices.
    ProbeResponder(const Options &options, const QList<QByteArray> &origins);

    /// Listens for probes. Returns one sentence if that fails; but multicast may fail alone.
    QString start();

    bool takesMulticast() const { return m_takesMulticast; }

    /// Where probes are taken without multicast: a host and a port.
    QByteArray address() const;

private:
    /// What one device has to answer, and to whom.
    struct Answer
    {
        QByteArray origin;
        QString messageId;
        QHostAddress receiver;
        quint16 port = 0;
    };

    bool joinGroup();
    void receive(QUdpSocket &socket);
    void prepareAnswers(const QByteArray &probe, const QHostAddress &sender, quint16 port);
    void sendNextAnswer();

    Options m_options;
    QList<QByteArray> m_origins;
    QUdpSocket m_socket;
    QUdpSocket m_groupSocket;
    bool m_takesMulticast = false;
    QList<Answer> m_answers; ///< that are still to be sent
    QTimer m_pause;          ///< between two answers
};

} // namespace simulator
