#include "outlines.h"

namespace inspect {

Outline outline(const vorn::OnvifDeviceInformation &record)
{
    return Outline::Fields{
        {"manufacturer", record.manufacturer},       {"model", record.model},
        {"firmwareVersion", record.firmwareVersion}, {"serialNumber", record.serialNumber},
        {"hardwareId", record.hardwareId},
    };
}

} // namespace inspect
