#pragma once

#include "outline.h"

#include <vorn/onvif/analytics.h>
#include <vorn/onvif/configurations.h>
#include <vorn/onvif/device.h>
#include <vorn/onvif/discovery.h>
#include <vorn/onvif/faults.h>
#include <vorn/onvif/network.h>
#include <vorn/onvif/profiles.h>
#include <vorn/onvif/relays.h>
#include <vorn/onvif/scopes.h>

#include <type_traits>

/// The outline of each record: its public fields by their names.
namespace inspect {

Outline outline(const vorn::OnvifDeviceInformation &record);
Outline outline(const vorn::OnvifCapabilities &record);
Outline outline(const vorn::OnvifScope &record);
Outline outline(const vorn::OnvifScopeMap &record);
Outline outline(const vorn::OnvifCamera &record);
Outline outline(const vorn::OnvifAnalyticsModule &record);
Outline outline(const vorn::OnvifRule &record);
Outline outline(const vorn::OnvifVideoSourceConfiguration &record);
Outline outline(const vorn::OnvifVideoEncoderConfiguration &record);
Outline outline(const vorn::OnvifAudioSourceConfiguration &record);
Outline outline(const vorn::OnvifAudioOutputConfiguration &record);
Outline outline(const vorn::OnvifAudioEncoderConfiguration &record);
Outline outline(const vorn::OnvifAudioDecoderConfiguration &record);
Outline outline(const vorn::OnvifMetadataConfiguration &record);
Outline outline(const vorn::OnvifPtzConfiguration &record);
Outline outline(const vorn::OnvifVideoAnalyticsConfiguration &record);
Outline outline(const vorn::OnvifProfile &record);
Outline outline(const vorn::OnvifNetworkInterface &record);
Outline outline(const vorn::OnvifNetworkInterface::PrefixedAddress &address);
Outline outline(const vorn::OnvifNetworkGateway &record);
Outline outline(const vorn::OnvifRelayOutput &record);

/// The three codes by name, the number of the first, the sentence, and the device's own words.
Outline outline(const vorn::OnvifFault &fault);

/// The texts or numbers of \a list in order.
template <typename List>
Outline outlineOfValues(const List &list)
{
    return Outline::List(list.begin(), list.end());
}

/// The outline of \a record; a null record has none.
template <typename Record>
Outline outlineUnlessNull(const Record &record)
{
    if constexpr (std::is_base_of_v<vorn::OnvifDataStructure, Record>) {
        if (record.isNull())
            return {};
    }
    return outline(record);
}

/// The records of \a list in order.
template <typename List>
Outline outlineOfRecords(const List &list)
{
    Outline::List entries;
    for (const auto &entry : list)
        entries.push_back(outlineUnlessNull(entry));
    return entries;
}

} // namespace inspect
