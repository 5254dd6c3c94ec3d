#pragma once

// Talks to simulated-device byte by byte, for what no honest client sends.

#include "client/programs.h"

#include <QtCore/QByteArray>
#include <QtNetwork/QTcpSocket>

namespace test {

/// All that comes back from \a address, a host and a port, for \a bytes, until the connection ends.
inline QByteArray replyTo(const QString &address, const QByteArray &bytes)
{
    QTcpSocket socket;
    socket.connectToHost(address.section(':', 0, 0), static_cast<quint16>(address.section(':', 1).toUInt()));
    if (!socket.waitForConnected(patience))
        return {};
    socket.write(bytes);
    while (socket.state() == QAbstractSocket::ConnectedState && socket.waitForReadyRead(patience)) {
    }
    return socket.readAll();
}

/// A request over HTTP with \a message in its body. \a headerLines end with a line end each.
inline QByteArray httpPost(const QByteArray &message, const QByteArray &headerLines = {})
{
    return "POST /onvif/device_service HTTP/1.1\r\nHost: device\r\nContent-Length: "
           + QByteArray::number(message.size()) + "\r\n" + headerLines + "\r\n" + message;
}

/// The status of \a reply.
inline int statusOf(const QByteArray &reply)
{
    return reply.mid(reply.indexOf(' ') + 1, 3).toInt();
}

} // namespace test
