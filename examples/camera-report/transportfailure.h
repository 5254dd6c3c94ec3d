#pragma once

#include <QtCore/QByteArray>
#include <QtNetwork/QNetworkReply>

namespace client {

/// How an exchange over HTTP can fail.
enum class TransportFailure {
    None,
    BadUrl,
    HostNotResolved,
    UnsupportedProtocol,
    NotConnected, ///< refused, no way there, or no connection in time
    NoTls,        ///< the two ends could not agree on TLS
    NotTrusted,   ///< the certificate does not prove who answers
    EmptyReply,
    PartialReply,
    ReceiveFailure,
    Other,
};

/// The class of \a error. HTTP statuses are no failures of the transport. \a replyBegan tells whether anything came.
TransportFailure transportFailureOf(QNetworkReply::NetworkError error, bool replyBegan);

/// Whether after \a failure there is no use in asking the same port again.
bool isFinal(TransportFailure failure);

/// The document by which vorn::OnvifFault is told of \a failure, which must not be None.
QByteArray bareFault(TransportFailure failure);

/// The document by which vorn::OnvifFault is told of the HTTP \a status of a reply that says nothing readable itself.
QByteArray statusPage(int status);

} // namespace client
