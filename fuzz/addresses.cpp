// The operations on addresses, and scope URIs.

#include "require.h"

#include <vorn/onvif/discovery.h>
#include <vorn/onvif/scopes.h>

#include <cstddef>
#include <cstdint>

using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const vorn::OnvifCamera camera;

    for (const auto cut :
         {&vorn::OnvifCamera::removeIPv4AddressDefaultPort, &vorn::OnvifCamera::removeIPv6AddressDefaultPort}) {
        QString address = text;
        (camera.*cut)(address);
        require(address.size() <= text.size());
        require(text.startsWith(address));
    }
    QString withoutZeros = text;
    camera.removeIPv4AddressLeadingZeros(withoutZeros);
    require(withoutZeros.size() <= text.size() + 4); // a "." behind each of at most four parts

    const vorn::OnvifScope scope(text);
    require(scope.type == vorn::OnvifScope::Custom && scope.uri == text && !scope.isNull());
    require(QString(scope) == scope.value);
    const vorn::OnvifScope built(vorn::OnvifScope::Fixed, text, text);
    require(built.key == text && built.value == text);
    return 0;
}
