#pragma once

#include "outline.h"

#include <vorn/onvif/device.h>
#include <vorn/onvif/faults.h>

/// The outline of each record: its public fields by their names.
namespace inspect {

Outline outline(const vorn::OnvifDeviceInformation &record);

/// The three codes by name, the number of the first, and the sentence.
Outline outline(const vorn::OnvifFault &fault);

} // namespace inspect
