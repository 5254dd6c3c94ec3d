#include "delivery.h"

#include "httprequest.h"

#include <QtCore/QTimer>

#include <chrono>

namespace simulator {
namespace {

constexpr std::chrono::milliseconds pauseBetweenBytes(100);

const char *const soapType = "application/soap+xml; charset=utf-8";

/// A page such as web servers write: with a line break element that is never closed.
QByteArray htmlPage(const char *title)
{
    return QByteArray("<html><head><title>") + title + "</title></head><body>" + title + "<br></body></html>";
}

void deliverSlowly(QTcpSocket *socket, const QByteArray &bytes)
{
    auto *const timer = new QTimer(socket);
    QObject::connect(timer, &QTimer::timeout, socket, [socket, timer, bytes, sent = qsizetype(0)]() mutable {
        socket->write(bytes.mid(sent++, 1));
        if (sent == bytes.size()) {
            timer->stop();
            socket->disconnectFromHost();
        }
    });
    timer->start(pauseBetweenBytes);
}

/// Writes \a start, and then blanks without end.
void deliverForEver(QTcpSocket *socket, const QByteArray &start)
{
    const auto writeMore = [socket] { socket->write(QByteArray(qsizetype(64) * 1024, ' ')); };
    QObject::connect(socket, &QTcpSocket::bytesWritten, socket, [socket, writeMore] {
        if (socket->bytesToWrite() == 0)
            writeMore();
    });
    socket->write(start);
    writeMore();
}

} // namespace

void deliver(QTcpSocket *socket, const QByteArray &bytes)
{
    socket->write(bytes);
    socket->disconnectFromHost();
}

void deliver(QTcpSocket *socket, const Reply &reply, Trouble trouble)
{
    const QByteArray whole = httpReply(reply.status, soapType, reply.body);
    switch (trouble) {
    case Trouble::None:
        return deliver(socket, whole);
    case Trouble::Silent:
        return;
    case Trouble::Slow:
        return deliverSlowly(socket, whole);
    case Trouble::Dropped:
        return socket->disconnectFromHost();
    case Trouble::Truncated:
        return deliver(socket, whole.left(whole.size() - reply.body.size() / 2));
    case Trouble::Endless:
        return deliverForEver(socket, "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n");
    case Trouble::EndlessHead:
        return deliverForEver(socket, "HTTP/1.1 200 OK\r\nServer: ");
    case Trouble::Garbage:
        return deliver(socket, "SSH-2.0-Simulated\r\n");
    case Trouble::Empty:
        return deliver(socket, httpReply(200, soapType, {}));
    case Trouble::Json:
        return deliver(socket, httpReply(200, "application/json", R"({"error": "what is SOAP?"})"));
    case Trouble::Redirect:
        return deliver(socket, httpReply(302, "text/html", {}, "Location: http://192.0.2.1/elsewhere\r\n"));
    case Trouble::NotFound:
        return deliver(socket, httpReply(404, "text/html", htmlPage("404 Not Found")));
    case Trouble::Unavailable:
        return deliver(socket, httpReply(503, "text/html", htmlPage("Busy")));
    case Trouble::NotSupported: {
        const Reply fault = actionNotSupported();
        return deliver(socket, httpReply(fault.status, soapType, fault.body));
    }
    }
}

} // namespace simulator
