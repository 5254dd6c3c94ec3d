#include "httprequest.h"

#include <QtCore/QList>

namespace simulator {

QByteArray HttpRequest::header(const QByteArray &name) const
{
    for (const QByteArray &line : head.split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (line.left(colon).compare(name, Qt::CaseInsensitive) == 0)
            return line.mid(colon + 1).trimmed();
    }
    return {};
}

std::optional<HttpRequest> httpRequestIn(const QByteArray &bytes)
{
    const qsizetype headEnd = bytes.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return std::nullopt;
    HttpRequest request;
    request.head = bytes.left(headEnd);
    request.target = request.head.split(' ').value(1);
    request.body = bytes.mid(headEnd + 4);
    if (request.body.size() < request.header("Content-Length").toLongLong())
        return std::nullopt;
    return request;
}

QByteArray httpReply(int status, const QByteArray &type, const QByteArray &body, const QByteArray &headerLines)
{
    return "HTTP/1.1 " + QByteArray::number(status) + (status == 200 ? " OK" : " Simulated")
           + "\r\nContent-Type: " + type + "\r\nContent-Length: " + QByteArray::number(body.size())
           + "\r\nConnection: close\r\n" + headerLines + "\r\n" + body;
}

} // namespace simulator
