#pragma once

/// \file
/// Devices as discovery finds them.

#include <vorn/onvif/bases.h>
#include <vorn/onvif/export.h>

#include <QtCore/QByteArray>
#include <QtCore/QMultiMap>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace vorn {

class ConfCapture;

/// One device: read from a WS-Discovery ProbeMatch, or made from an address.
///
/// An address is a host with an optional port, such as "192.168.1.20", "192.168.1.20:8080" or "[2001:db8::1]".
struct VORNSDK_ONVIF_EXPORT OnvifCamera : OnvifResponseStructure
{
    /// The addresses that are not link-local, sorted as text. From "/XAddrs".
    QStringList addresses;

    /// The addresses that start with "169.254" or "[fe80::", in document order. From "/XAddrs".
    QStringList linkLocalAddresses;

    /// False if a message was read that lacks "/XAddrs" or "/Scopes"; then nothing else was read either.
    bool valid = true;

    /// What the scopes say, from "/Scopes":
    ///
    /// | Key | Values |
    /// |---|---|
    /// | "type" | "Video" once at the most; "Audio", "PTZ", "Analytics" and "ProfileS" once for each scope that says so
    /// | "name" | one: the name scope, percent-decoded; without one, or if that says "networkcamera", the hardware |
    /// | "location" | the first part of each location scope, not percent-decoded |
    /// | "hardware" | each hardware scope, not percent-decoded |
    QMultiMap<QString, QString> scopes;

    /// What the caller gave to the constructor; never looked into. Null by default.
    QSharedPointer<ConfCapture> capture;

    /// For the caller's use. -1 by default.
    int index = -1;

    /// A valid camera without address.
    OnvifCamera();

    /// Reads the ProbeMatch in \a bytes, below the root path "/Envelope/Body/ProbeMatches/ProbeMatch". Of several, the
    /// first is read.
    ///
    /// "/XAddrs" holds URLs with one blank between them. Those of the scheme "https" are left out. Of the others the
    /// host and port is taken: without the port if that is 80 and, if it is no IPv6 address, without leading zeros as
    /// removeIPv4AddressLeadingZeros() removes them; that operation adds a "." to a host name.
    explicit OnvifCamera(const QByteArray &bytes);

    /// A camera with one address, taken as it stands.
    OnvifCamera(const QString &address, QSharedPointer<ConfCapture> confCapture);

    OnvifCamera(const OnvifCamera &other);
    OnvifCamera(OnvifCamera &&other) noexcept;
    OnvifCamera &operator=(const OnvifCamera &other);
    OnvifCamera &operator=(OnvifCamera &&other) noexcept;
    ~OnvifCamera();

    /// Whether a discovery message could be read; true for a camera that was made in another way.
    bool isValid() const;

    /// Cuts ":80", the default port of HTTP, off \a address.
    void removeIPv4AddressDefaultPort(QString &address) const;

    /// Removes the leading zeros from each part of \a address between dots: "192.168.001.020" becomes "192.168.1.20".
    ///
    /// Made for four numeric parts with an optional port. Other texts change too: a part of two or more zeros becomes
    /// empty; a text with fewer than four parts gets a "." behind each, as long as no ":" came before; from the fifth
    /// part on, the "." before a part is lost.
    void removeIPv4AddressLeadingZeros(QString &address) const;

    /// Cuts ":80", the default port of HTTP, off \a address, whose colons within brackets are none.
    void removeIPv6AddressDefaultPort(QString &address) const;
};

} // namespace vorn
