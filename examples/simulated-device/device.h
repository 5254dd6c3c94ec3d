#pragma once

#include "guard.h"
#include "options.h"
#include "replies.h"

#include <QtCore/QObject>
#include <QtNetwork/QSslConfiguration>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

#include <memory>
#include <optional>

namespace simulator {

/// One simulated device: a web server that speaks SOAP.
class Device : public QObject
{
public:
    /// With \a tls, over that alone.
    Device(const Options &options, const std::optional<QSslConfiguration> &tls);

    /// Listens at \a port. Returns one sentence if that fails.
    QString start(quint16 port);

    /// Where the device is reached, such as "http://127.0.0.1:8080".
    QByteArray origin() const;

private:
    void serve(QTcpSocket *socket);
    void answer(QTcpSocket *socket, const HttpRequest &request);
    void record(const HttpRequest &request, const QString &action);
    QDateTime now() const;

    Options m_options;
    bool m_isTls;
    std::unique_ptr<QTcpServer> m_server;
    Guard m_guard;
    int m_requests = 0;
};

} // namespace simulator
