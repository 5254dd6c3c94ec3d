#include "transportfailure.h"

namespace client {
namespace {

/// The texts by which the library knows the failures. It looks for the number of an HTTP status in a text that it does
/// not know, so the text for the failures that it does not tell apart must hold no number, such as that of a port.
const char *reasonOf(TransportFailure failure)
{
    switch (failure) {
    case TransportFailure::BadUrl:
        return "URL using bad/illegal format or missing URL";
    case TransportFailure::HostNotResolved:
        return "Couldn't resolve host name";
    case TransportFailure::UnsupportedProtocol:
        return "Unsupported protocol";
    case TransportFailure::EmptyReply:
        return "Empty reply from Camera";
    case TransportFailure::PartialReply:
        return "Transferred a partial file";
    case TransportFailure::ReceiveFailure:
        return "Failure when receiving data from the peer";
    case TransportFailure::None:
    case TransportFailure::NotConnected:
    case TransportFailure::NoTls:
    case TransportFailure::NotTrusted:
    case TransportFailure::Other:
        break;
    }
    return "The device could not be reached";
}

bool isHttpStatus(QNetworkReply::NetworkError error)
{
    return error == QNetworkReply::ProtocolInvalidOperationError // 400
           || (error >= QNetworkReply::ContentAccessDenied && error <= QNetworkReply::UnknownContentError)
           || error >= QNetworkReply::InternalServerError;
}

} // namespace

TransportFailure transportFailureOf(QNetworkReply::NetworkError error, bool replyBegan)
{
    switch (error) {
    case QNetworkReply::NoError:
        return TransportFailure::None;
    case QNetworkReply::HostNotFoundError:
        return TransportFailure::HostNotResolved;
    case QNetworkReply::ProtocolUnknownError:
        return TransportFailure::UnsupportedProtocol;
    case QNetworkReply::ConnectionRefusedError:
    case QNetworkReply::TimeoutError:
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::NetworkSessionFailedError:
        return TransportFailure::NotConnected;
    case QNetworkReply::SslHandshakeFailedError:
        return TransportFailure::NoTls;
    case QNetworkReply::RemoteHostClosedError:
        return replyBegan ? TransportFailure::PartialReply : TransportFailure::EmptyReply;
    case QNetworkReply::ProtocolFailure:
        return TransportFailure::ReceiveFailure;
    default:
        return isHttpStatus(error) && replyBegan ? TransportFailure::None : TransportFailure::Other;
    }
}

bool isFinal(TransportFailure failure)
{
    switch (failure) {
    case TransportFailure::BadUrl:
    case TransportFailure::HostNotResolved:
    case TransportFailure::UnsupportedProtocol:
    case TransportFailure::NotConnected:
    case TransportFailure::NoTls:
    case TransportFailure::NotTrusted:
        return true;
    default:
        return false;
    }
}

QByteArray bareFault(TransportFailure failure)
{
    return QByteArray("<Fault><Reason><Text>") + reasonOf(failure) + "</Text></Reason></Fault>";
}

QByteArray statusPage(int status)
{
    return "<html><head><title>" + QByteArray::number(status) + "</title></head></html>";
}

} // namespace client
