#pragma once

#include <vorn/onvif/device.h>
#include <vorn/onvif/network.h>
#include <vorn/onvif/profiles.h>
#include <vorn/onvif/relays.h>
#include <vorn/onvif/scopes.h>

#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

namespace client {

/// A request that failed.
struct Failure
{
    QString request;
    QString sentence;
};

/// What a device has told: a record for each request that it answered.
struct Report
{
    QString address;
    std::optional<vorn::OnvifDeviceInformation> information;
    std::optional<vorn::OnvifCapabilities> capabilities;
    std::optional<vorn::OnvifScopeMap> scopes;
    std::optional<vorn::OnvifProfileVector> profiles;
    std::optional<vorn::OnvifNetworkInterfaceVector> interfaces;
    std::optional<vorn::OnvifNetworkGateway> gateway;
    std::optional<vorn::OnvifRelayOutputVector> relays;
    QList<Failure> failures;
    bool refused = false; ///< whether a request failed for want of a valid user and password

    /// Whether the device has answered nothing at all.
    bool isEmpty() const
    {
        return !(information || capabilities || scopes || profiles || interfaces || gateway || relays);
    }
};

/// The report for a person to read. Ends with a line end.
QString textOf(const Report &report);

/// The report for programs: the fields by the names that they have in the records.
QJsonObject jsonOf(const Report &report);

} // namespace client
