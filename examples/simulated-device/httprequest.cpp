#include "httprequest.h"

#include <QtCore/QList>

namespace simulator {
namespace {

/// The body that \a bytes are in chunks, once the last one has come.
std::optional<QByteArray> unchunked(const QByteArray &bytes)
{
    QByteArray body;
    qsizetype at = 0;
    while (true) {
        const qsizetype lineEnd = bytes.indexOf("\r\n", at);
        if (lineEnd < 0)
            return std::nullopt;
        const QByteArray line = bytes.mid(at, lineEnd - at);
        bool isNumber = false;
        const auto size = static_cast<qsizetype>(line.split(';').constFirst().trimmed().toUInt(&isNumber, 16));
        if (!isNumber || size <= 0)
            return body; // the end, or nothing that is understood
        if (bytes.size() - lineEnd - 4 < size)
            return std::nullopt;
        body += bytes.mid(lineEnd + 2, size);
        at = lineEnd + 2 + size + 2;
    }
}

} // namespace

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
    if (request.header("Transfer-Encoding").toLower().contains("chunked")) {
        const std::optional<QByteArray> body = unchunked(request.body);
        if (!body)
            return std::nullopt;
        request.body = *body;
        return request;
    }
    if (request.body.size() < request.header("Content-Length").toLongLong())
        return std::nullopt;
    return request;
}

bool wantsToContinue(const QByteArray &bytes)
{
    HttpRequest request;
    request.head = bytes.left(bytes.indexOf("\r\n\r\n"));
    return bytes.endsWith("\r\n\r\n") && request.header("Expect").toLower() == "100-continue";
}

QByteArray httpReply(int status, const QByteArray &type, const QByteArray &body, const QByteArray &headerLines)
{
    return "HTTP/1.1 " + QByteArray::number(status) + (status == 200 ? " OK" : " Simulated")
           + "\r\nContent-Type: " + type + "\r\nContent-Length: " + QByteArray::number(body.size())
           + "\r\nConnection: close\r\n" + headerLines + "\r\n" + body;
}

} // namespace simulator
