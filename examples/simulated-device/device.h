#pragma once

#include "guard.h"
#include "options.h"
#include "replies.h"

#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

namespace simulator {

/// One simulated device: a web server that speaks SOAP.
class Device : public QTcpServer
{
public:
    explicit Device(const Options &options);

    /// Listens at \a port. Returns one sentence if that fails.
    QString start(quint16 port);

    /// Where the device is reached: a host and a port.
    QByteArray address() const;

private:
    void serve(QTcpSocket *socket);
    void answer(QTcpSocket *socket, const HttpRequest &request);
    void record(const HttpRequest &request, const QString &action);
    QDateTime now() const;

    Options m_options;
    Guard m_guard;
    int m_requests = 0;
};

} // namespace simulator
