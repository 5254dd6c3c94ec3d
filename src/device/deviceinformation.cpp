#include <vorn/onvif/device.h>

namespace vorn {

OnvifDeviceInformation::OnvifDeviceInformation() = default;

OnvifDeviceInformation::OnvifDeviceInformation(const QByteArray &bytes)
    : OnvifResponseStructure(bytes, QStringLiteral("/Envelope/Body/GetDeviceInformationResponse"))
    , manufacturer(response.getText(QStringLiteral("/Manufacturer")))
    , model(response.getText(QStringLiteral("/Model")))
    , firmwareVersion(response.getText(QStringLiteral("/FirmwareVersion")))
    , serialNumber(response.getText(QStringLiteral("/SerialNumber")))
    , hardwareId(response.getText(QStringLiteral("/HardwareId")))
{
}

OnvifDeviceInformation::OnvifDeviceInformation(const OnvifDeviceInformation &other) = default;
OnvifDeviceInformation::OnvifDeviceInformation(OnvifDeviceInformation &&other) noexcept = default;
OnvifDeviceInformation &OnvifDeviceInformation::operator=(const OnvifDeviceInformation &other) = default;
OnvifDeviceInformation &OnvifDeviceInformation::operator=(OnvifDeviceInformation &&other) noexcept = default;
OnvifDeviceInformation::~OnvifDeviceInformation() = default;

} // namespace vorn
