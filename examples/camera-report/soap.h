#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QUrl>

namespace client {

/// The services of a device that are asked here.
enum class Service { Device, Media, DeviceIO };

/// A request of ONVIF.
struct Request
{
    Service service = Service::Device;
    const char *action = ""; ///< name of the operation; a literal, as faults keep the pointer
    QString content = {};    ///< what stands inside its element, with the prefixes tds, trt, tmd and tt bound
    QString variant = {};    ///< what tells it from other requests with this action, for the name of a file
};

/// The SOAP message of \a request. \a header goes into its Header.
QByteArray message(const Request &request, const QString &header);

/// The media type that \a request is sent with.
QByteArray contentType(const Request &request);

/// The path of the device service, which ONVIF fixes.
extern const char *const usualPath;

/// Where the device service of a device is. \a address is a host with an optional port, or a whole URL of HTTP, whose
/// path is the usual one if it has none. Not valid if it is neither.
QUrl deviceServiceUrl(const QString &address);

/// Where to send requests that the device wants at \a xAddr, when it was asked at \a asked.
///
/// That is the same host, always: else a device could make this program hand the user's credentials to anyone. Of the
/// address of another host only the path is taken. So a device behind a router is reached, too, that knows itself only
/// by its inner address. What was asked over TLS stays there: a proof of who asks must not go out in the clear where
/// the user said https.
QUrl urlOnSameHost(const QUrl &asked, const QString &xAddr);

} // namespace client
