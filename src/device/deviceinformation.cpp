#include "core/queries.h"

#include <vorn/onvif/device.h>

namespace vorn {

using namespace Qt::StringLiterals;

OnvifDeviceInformation::OnvifDeviceInformation() = default;

OnvifDeviceInformation::OnvifDeviceInformation(const QByteArray &bytes)
    : OnvifResponseStructure(bytes, u"/Envelope/Body/GetDeviceInformationResponse"_s)
{
    readQueries(response, {
                              query(u"/Manufacturer", manufacturer),
                              query(u"/Model", model),
                              query(u"/FirmwareVersion", firmwareVersion),
                              query(u"/SerialNumber", serialNumber),
                              query(u"/HardwareId", hardwareId),
                          });
}

OnvifDeviceInformation::OnvifDeviceInformation(const OnvifDeviceInformation &other) = default;
OnvifDeviceInformation::OnvifDeviceInformation(OnvifDeviceInformation &&other) noexcept = default;
OnvifDeviceInformation &OnvifDeviceInformation::operator=(const OnvifDeviceInformation &other) = default;
OnvifDeviceInformation &OnvifDeviceInformation::operator=(OnvifDeviceInformation &&other) noexcept = default;
OnvifDeviceInformation::~OnvifDeviceInformation() = default;

} // namespace vorn
