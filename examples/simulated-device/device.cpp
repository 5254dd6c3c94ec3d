#include "device.h"

#include "delivery.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QFile>

namespace simulator {
namespace {

constexpr qint64 longestRequest = qint64(1024) * 1024;

/// The name of the first element in the Body of a request. Only letters and digits: it becomes the name of a file.
QString actionOf(const QByteArray &message)
{
    vorn::XmlResponse request(message, "/Envelope/Body");
    QString action;
    for (const vorn::XmlResponseNode &element : request.get("").children) {
        for (const QChar character : element.name) {
            if (character.isLetterOrNumber())
                action += character;
        }
        break;
    }
    return action;
}

} // namespace

Device::Device(const Options &options)
    : m_options(options)
    , m_guard(options)
{
    connect(this, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *socket = nextPendingConnection())
            serve(socket);
    });
}

QString Device::start(quint16 port)
{
    if (listen(m_options.listen, port))
        return {};
    return QString("No device can listen at %1:%2: %3.").arg(m_options.listen.toString()).arg(port).arg(errorString());
}

QByteArray Device::address() const
{
    return QString("%1:%2").arg(serverAddress().toString()).arg(serverPort()).toLatin1();
}

void Device::serve(QTcpSocket *socket)
{
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
        if (socket->bytesAvailable() > longestRequest)
            return socket->abort();
        const auto request = httpRequestIn(socket->peek(longestRequest));
        if (!request)
            return;
        socket->disconnect(this); // one request for each connection
        answer(socket, *request);
    });
}

void Device::answer(QTcpSocket *socket, const HttpRequest &request)
{
    const QString action = actionOf(request.body);
    record(request, action);
    const bool isOpen = action == "GetSystemDateAndTime"; // ONVIF wants it without authentication
    const Guard::Verdict verdict = isOpen ? Guard::Verdict::Allowed : m_guard.judge(request, now());
    if (verdict != Guard::Verdict::Allowed) {
        const QByteArray challenge = m_guard.challenge(verdict);
        const Reply fault = notAuthorized();
        const int status = challenge.isEmpty() ? fault.status : 401;
        return deliver(socket, httpReply(status, "application/soap+xml", fault.body, challenge));
    }
    const Reply reply = replyTo(action, m_options, address(), now());
    deliver(socket, reply, troubleFor(m_options.troubles, action));
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
