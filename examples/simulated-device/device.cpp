#include "device.h"

#include "delivery.h"

#include <QtCore/QFile>
#include <QtNetwork/QSslServer>

namespace simulator {
namespace {

constexpr qint64 longestRequest = qint64(1024) * 1024;

std::unique_ptr<QTcpServer> serverFor(const std::optional<QSslConfiguration> &tls)
{
    if (!tls)
        return std::make_unique<QTcpServer>();
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(*tls);
    return server;
}

} // namespace

Device::Device(const Options &options, const std::optional<QSslConfiguration> &tls)
    : m_options(options)
    , m_isTls(tls.has_value())
    , m_server(serverFor(tls))
    , m_guard(options)
{
    connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, this, [this] {
        while (QTcpSocket *socket = m_server->nextPendingConnection())
            serve(socket);
    });
}

QString Device::start(quint16 port)
{
    if (m_server->listen(m_options.listen, port))
        return {};
    return QString("No device can listen at %1:%2: %3.")
        .arg(m_options.listen.toString())
        .arg(port)
        .arg(m_server->errorString());
}

QByteArray Device::origin() const
{
    return QString("%1://%2:%3")
        .arg(m_isTls ? "https" : "http", m_server->serverAddress().toString())
        .arg(m_server->serverPort())
        .toLatin1();
}

void Device::serve(QTcpSocket *socket)
{
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
        if (socket->bytesAvailable() > longestRequest)
            return socket->abort();
        const char first = socket->peek(1).at(0);
        const bool isHttp = first >= 'A' && first <= 'Z'; // which the handshake of TLS, for example, is not
        if (!isHttp)
            return socket->disconnectFromHost();
        const QByteArray bytes = socket->peek(longestRequest);
        const auto request = httpRequestIn(bytes);
        if (!request) {
            if (wantsToContinue(bytes))
                socket->write("HTTP/1.1 100 Continue\r\n\r\n");
            return;
        }
        socket->disconnect(this); // one request for each connection
        answer(socket, *request);
    });
}

void Device::answer(QTcpSocket *socket, const HttpRequest &request)
{
    const Asked asked = askedIn(request.body);
    record(request, asked.action);
    const bool isOpen = asked.action == "GetSystemDateAndTime"; // ONVIF wants it without authentication
    const Guard::Verdict verdict = isOpen ? Guard::Verdict::Allowed : m_guard.judge(request, now());
    if (verdict != Guard::Verdict::Allowed) {
        const QByteArray challenge = m_guard.challenge(verdict);
        const Reply fault = notAuthorized();
        const int status = challenge.isEmpty() ? fault.status : 401;
        return deliver(socket, httpReply(status, "application/soap+xml", fault.body, challenge));
    }
    const Reply reply = replyTo(asked, m_options, origin(), now());
    deliver(socket, reply, troubleFor(m_options.troubles, asked.action));
}

void Device::record(const HttpRequest &request, const QString &action)
{
    if (m_options.recordFolder.isEmpty())
        return;
    QFile file(QString("%1/%2-%3.txt").arg(m_options.recordFolder).arg(++m_requests, 4, 10, QChar('0')).arg(action));
    if (file.open(QIODevice::WriteOnly))
        file.write(request.head + "\r\n\r\n" + request.body);
}

QDateTime Device::now() const
{
    return QDateTime::currentDateTimeUtc().addSecs(m_options.clockAhead);
}

} // namespace simulator
