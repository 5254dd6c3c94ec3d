#pragma once

#include "outline.h"

#include <vorn/onvif/device.h>
#include <vorn/onvif/discovery.h>
#include <vorn/onvif/faults.h>
#include <vorn/onvif/scopes.h>

/// The outline of each record: its public fields by their names.
namespace inspect {

Outline outline(const vorn::OnvifDeviceInformation &record);
Outline outline(const vorn::OnvifCapabilities &record);
Outline outline(const vorn::OnvifCapabilities::SupportedVersion &version);
Outline outline(const vorn::OnvifScope &record);
Outline outline(const vorn::OnvifScopeMap &record);
Outline outline(const vorn::OnvifCamera &record);

/// The three codes by name, the number of the first, and the sentence.
Outline outline(const vorn::OnvifFault &fault);

/// The texts or numbers of \a list in order.
template <typename List>
Outline outlineOfValues(const List &list)
{
    return Outline::List(list.begin(), list.end());
}

/// The records of \a list in order.
template <typename List>
Outline outlineOfRecords(const List &list)
{
    Outline::List entries;
    for (const auto &entry : list)
        entries.push_back(outline(entry));
    return entries;
}

} // namespace inspect
