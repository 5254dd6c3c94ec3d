#pragma once

/// \file
/// Records that tell what a device is.

#include <vorn/onvif/bases.h>
#include <vorn/onvif/export.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace vorn {

/// Who made a device and what it is: the answer to GetDeviceInformation.
///
/// Each field is the text of one element of the reply, verbatim. A field whose element is missing is null, and so are
/// all of them if the reply is of another kind or cannot be parsed.
struct VORNSDK_ONVIF_EXPORT OnvifDeviceInformation : OnvifResponseStructure
{
    QString manufacturer;    ///< From "/Manufacturer".
    QString model;           ///< From "/Model".
    QString firmwareVersion; ///< From "/FirmwareVersion".
    QString serialNumber;    ///< From "/SerialNumber"; its form is the maker's own.
    QString hardwareId;      ///< From "/HardwareId"; its form is the maker's own.

    /// A record with five null fields.
    OnvifDeviceInformation();

    /// Reads \a bytes below the root path "/Envelope/Body/GetDeviceInformationResponse".
    explicit OnvifDeviceInformation(const QByteArray &bytes);

    OnvifDeviceInformation(const OnvifDeviceInformation &other);
    OnvifDeviceInformation(OnvifDeviceInformation &&other) noexcept;
    OnvifDeviceInformation &operator=(const OnvifDeviceInformation &other);
    OnvifDeviceInformation &operator=(OnvifDeviceInformation &&other) noexcept;
    ~OnvifDeviceInformation();
};

} // namespace vorn
