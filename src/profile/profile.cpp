#include "core/exportlist.h"

#include <vorn/onvif/profiles.h>

namespace vorn {

using namespace Qt::StringLiterals;

OnvifProfile::OnvifProfile() = default;

OnvifProfile::OnvifProfile(const QByteArray &bytes, const QString &root)
    : OnvifDataStructure(false)
    , OnvifResponseStructure(bytes, root)
    , name(response.getText(u"/Profile/Name"_s))
    , token(response.getAttribute(u"token"_s, u"/Profile"_s))
    , fixed(response.getAttribute(u"fixed"_s, u"/Profile"_s) == "true"_L1)
{
}

OnvifProfile::OnvifProfile(const QString &profileName, const QString &profileToken, bool isFixed)
    : OnvifDataStructure(false)
    , name(profileName)
    , token(profileToken)
    , fixed(isFixed)
    , m_saved(true)
{
}

OnvifProfile::OnvifProfile(const OnvifProfile &other) = default;
OnvifProfile::OnvifProfile(OnvifProfile &&other) noexcept = default;
OnvifProfile &OnvifProfile::operator=(const OnvifProfile &other) = default;
OnvifProfile &OnvifProfile::operator=(OnvifProfile &&other) noexcept = default;
OnvifProfile::~OnvifProfile() = default;

bool OnvifProfile::operator==(const OnvifProfile &other) const
{
    return token == other.token;
}

bool OnvifProfile::operator!=(const OnvifProfile &other) const
{
    return !(*this == other);
}

bool OnvifProfile::isSaved() const
{
    return m_saved;
}

} // namespace vorn

VORNSDK_ONVIF_DEFINE_LIST(vorn::OnvifProfile)
