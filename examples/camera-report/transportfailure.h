#pragma once

#include <QtCore/QByteArray>
#include <QtNetwork/QNetworkReply>

namespace client {

/// How an exchange over HTTP can fail, in the classes that the library tells apart.
enum class TransportFailure {
    None,
    BadUrl,
    HostNotResolved,
    UnsupportedProtocol,
    EmptyReply,
    PartialReply,
    ReceiveFailure,
    Other,
};

/// The class of \a error. HTTP statuses are no failures of the transport. \a replyBegan tells whether anything came.
TransportFailure transportFailureOf(QNetworkReply::NetworkError error, bool replyBegan);

/// The document by which vorn::OnvifFault is told of \a failure, which must not be None.
QByteArray bareFault(TransportFailure failure);

/// The document by which vorn::OnvifFault is told of the HTTP \a status of a reply that says nothing readable itself.
QByteArray statusPage(int status);

} // namespace client
