#include <vorn/onvif/device.h>

namespace vorn {

using namespace Qt::StringLiterals;

OnvifDeviceInformation::OnvifDeviceInformation() = default;

OnvifDeviceInformation::OnvifDeviceInformation(const QByteArray &bytes)
    : OnvifResponseStructure(bytes, u"/Envelope/Body/GetDeviceInformationResponse"_s)
    , manufacturer(response.getText(u"/Manufacturer"_s))
    , model(response.getText(u"/Model"_s))
    , firmwareVersion(response.getText(u"/FirmwareVersion"_s))
    , serialNumber(response.getText(u"/SerialNumber"_s))
    , hardwareId(response.getText(u"/HardwareId"_s))
{
}

OnvifDeviceInformation::OnvifDeviceInformation(const OnvifDeviceInformation &other) = default;
OnvifDeviceInformation::OnvifDeviceInformation(OnvifDeviceInformation &&other) noexcept = default;
OnvifDeviceInformation &OnvifDeviceInformation::operator=(const OnvifDeviceInformation &other) = default;
OnvifDeviceInformation &OnvifDeviceInformation::operator=(OnvifDeviceInformation &&other) noexcept = default;
OnvifDeviceInformation::~OnvifDeviceInformation() = default;

} // namespace vorn
