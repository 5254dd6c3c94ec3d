#pragma once

#include <QtCore/QByteArray>

#include <optional>

namespace simulator {

/// A request over HTTP.
struct HttpRequest
{
    QByteArray head;   ///< the request line and the header lines
    QByteArray target; ///< path and query
    QByteArray body;

    /// The value of the header line \a name; empty if there is none.
    QByteArray header(const QByteArray &name) const;
};

/// The request at the start of \a bytes, once it has come as a whole.
std::optional<HttpRequest> httpRequestIn(const QByteArray &bytes);

/// Whether \a bytes are the head of a request whose body comes only when it is asked for.
bool wantsToContinue(const QByteArray &bytes);

/// A reply over HTTP, for which the connection is closed. \a headerLines, if any, end with a line end each.
QByteArray httpReply(int status, const QByteArray &type, const QByteArray &body, const QByteArray &headerLines = {});

} // namespace simulator
