#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QUrl>

namespace client {

/// The services of a device that are asked here.
enum class Service { Device, Media };

/// A request of ONVIF.
struct Request
{
    Service service = Service::Device;
    const char *action = ""; ///< name of the operation; a literal, as faults keep the pointer
    QString content = {};    ///< what stands inside its element, with the prefixes tds, trt and tt bound
};

/// The SOAP message of \a request. \a header goes into its Header.
QByteArray message(const Request &request, const QString &header);

/// The media type that \a request is sent with.
QByteArray contentType(const Request &request);

/// Where the device service of a device is, which ONVIF fixes. \a address is a host with an optional port.
/// Not valid if it is no such address.
QUrl deviceServiceUrl(const QString &address);

/// Where to send requests that the device wants at \a xAddr, when it was asked at \a asked.
///
/// That is the same host, always: else a device could make this program hand the user's credentials to anyone. Of the
/// address of another host only the path is taken. So a device behind a router is reached, too, that knows itself only
/// by its inner address.
QUrl urlOnSameHost(const QUrl &asked, const QString &xAddr);

} // namespace client
