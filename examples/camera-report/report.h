#pragma once

#include "clock.h"
#include "httpexchange.h"

#include <vorn/onvif/device.h>
#include <vorn/onvif/network.h>
#include <vorn/onvif/profiles.h>
#include <vorn/onvif/relays.h>
#include <vorn/onvif/scopes.h>

#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>
#include <vector>

namespace client {

/// A request that failed.
struct Failure
{
    QString request;
    QString sentence;
};

/// A part of a report: what the device answered or, in one sentence, why there is no answer.
template <typename Record>
struct Section
{
    std::optional<Record> record;
    QString notAnswered;
};

/// Where a profile is seen.
struct ProfileUris
{
    Section<QString> streamOverUdp;
    Section<QString> streamOverTcp;
    Section<QString> snapshot;
};

/// What a device has told.
struct Report
{
    QString address;
    Tls tls;
    Section<ClockReading> clock;
    Section<vorn::OnvifDeviceInformation> information;
    Section<vorn::OnvifCapabilities> capabilities;
    Section<vorn::OnvifScopeMap> scopes;
    Section<vorn::OnvifProfileVector> profiles;
    std::vector<ProfileUris> uris; ///< one for each profile
    Section<vorn::OnvifNetworkInterfaceVector> interfaces;
    Section<vorn::OnvifNetworkGateway> gateway;
    Section<vorn::OnvifRelayOutputVector> relays;
    QList<Failure> failures;

    /// Whether the device has answered nothing at all.
    bool isEmpty() const
    {
        return !(clock.record || information.record || capabilities.record || scopes.record || profiles.record
                 || interfaces.record || gateway.record || relays.record);
    }
};

/// The failures, with a line for each sentence: the requests that it is said of, and the sentence.
QStringList linesOf(const QList<Failure> &failures);

/// The report for a person to read. Ends with a line end.
QString textOf(const Report &report);

/// One line for a table, and that above it.
QString tableLineOf(const Report &report);
QString tableHeading();

/// The report for programs: the fields by the names that they have in the records.
QJsonObject jsonOf(const Report &report);

} // namespace client
