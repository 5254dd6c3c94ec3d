#pragma once

#include "soapclient.h"

#include <vorn/onvif/network.h>

#include <QtCore/QString>
#include <QtCore/QUrl>

#include <functional>
#include <optional>

namespace client {

/// How a network interface of a device is to get its IPv4 address.
struct InterfaceChange
{
    QString interface;                                                   ///< name or token
    std::optional<vorn::OnvifNetworkInterface::PrefixedAddress> address; ///< by hand; else by DHCP
};

/// The change that "INTERFACE=ADDRESS/PREFIX" stands for; nothing if it is malformed.
std::optional<InterfaceChange> addressChange(const QString &text);

/// The request that makes \a change of the interface \a current.
Request requestFor(const InterfaceChange &change, const vorn::OnvifNetworkInterface &current);

/// Makes one change: asks a device for its interfaces, makes the request out of the one that is meant, and sends it.
class InterfaceChanger
{
public:
    /// What came of it: the message of the request if it came so far, and one sentence if it failed.
    using Done = std::function<void(const QByteArray &message, const QString &complaint)>;

    /// \a address is one that deviceServiceUrl() takes. Sends the request only if \a apply is true.
    InterfaceChanger(const QString &address, const Access &access, const InterfaceChange &change, bool apply,
                     Done done);

    void start();

private:
    void change(const vorn::OnvifNetworkInterfaceVector &interfaces);

    QUrl m_url;
    SoapClient m_client;
    InterfaceChange m_change;
    bool m_apply;
    Done m_done;
};

} // namespace client
