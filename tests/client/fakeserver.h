#pragma once

// A server over HTTP that answers whatever a test wants.

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

#include <atomic>
#include <functional>
#include <future>
#include <thread>

namespace test {

/// Listens on loopback in a thread of its own for as long as it lives, and answers one request on each connection.
class FakeServer
{
public:
    /// Gives all bytes of the reply to the request that all bytes are given of.
    using Answer = std::function<QByteArray(const QByteArray &request)>;

    explicit FakeServer(Answer answer)
        : m_answer(std::move(answer))
    {
        std::promise<quint16> port;
        std::future<quint16> listening = port.get_future();
        m_thread = std::thread([this, &port] { serve(port); });
        m_port = listening.get();
    }

    FakeServer(const FakeServer &) = delete;
    FakeServer &operator=(const FakeServer &) = delete;

    ~FakeServer() { stop(); }

    QString address() const { return QString("127.0.0.1:%1").arg(m_port); }

    /// All requests so far. The server ends with this.
    QList<QByteArray> requests()
    {
        stop();
        return m_requests;
    }

private:
    static constexpr int turn = 20; // ms; after each it is looked whether this is the end

    void stop()
    {
        m_isStopped = true;
        if (m_thread.joinable())
            m_thread.join();
    }

    void serve(std::promise<quint16> &port)
    {
        QTcpServer server;
        server.listen(QHostAddress::LocalHost);
        port.set_value(server.serverPort());
        while (!m_isStopped) {
            if (!server.hasPendingConnections() && !server.waitForNewConnection(turn))
                continue;
            const std::unique_ptr<QTcpSocket> socket(server.nextPendingConnection());
            QByteArray request;
            while (!isWhole(request) && !m_isStopped && socket->state() == QAbstractSocket::ConnectedState) {
                socket->waitForReadyRead(turn);
                request += socket->readAll();
            }
            m_requests.append(request);
            socket->write(m_answer(request));
            socket->disconnectFromHost();
            while (socket->state() != QAbstractSocket::UnconnectedState && !m_isStopped)
                socket->waitForDisconnected(turn);
        }
    }

    static bool isWhole(const QByteArray &request)
    {
        const qsizetype head = request.indexOf("\r\n\r\n");
        const qsizetype length = request.toLower().indexOf("content-length:");
        const qsizetype lineEnd = request.indexOf('\r', length);
        return head >= 0
               && request.size() - head - 4 >= request.mid(length + 15, lineEnd - length - 15).trimmed().toInt();
    }

    Answer m_answer;
    QList<QByteArray> m_requests;
    std::atomic<bool> m_isStopped = false;
    quint16 m_port = 0;
    std::thread m_thread;
};

/// A reply over HTTP. \a headerLines end with a line end each.
inline QByteArray httpReply(const QByteArray &status, const QByteArray &body, const QByteArray &headerLines = {})
{
    return "HTTP/1.1 " + status + "\r\nContent-Type: application/soap+xml\r\nContent-Length: "
           + QByteArray::number(body.size()) + "\r\nConnection: close\r\n" + headerLines + "\r\n" + body;
}

} // namespace test
