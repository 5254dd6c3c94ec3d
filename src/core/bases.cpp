#include <vorn/onvif/bases.h>

#include <utility>

namespace vorn {

OnvifDataStructure::OnvifDataStructure() = default;

OnvifDataStructure::OnvifDataStructure(bool null)
    : m_null(null)
{
}

OnvifDataStructure::OnvifDataStructure(const OnvifDataStructure &other) = default;

OnvifDataStructure &OnvifDataStructure::operator=(OnvifDataStructure other)
{
    std::swap(m_null, other.m_null);
    return *this;
}

OnvifDataStructure::~OnvifDataStructure() = default;

QString OnvifDataStructure::toString() const
{
    return {};
}

bool OnvifDataStructure::isNull() const
{
    return m_null;
}

void OnvifDataStructure::setNull(bool null)
{
    m_null = null;
}

OnvifResponseStructure::OnvifResponseStructure()
    : OnvifResponseStructure(QByteArray(), QString())
{
}

OnvifResponseStructure::OnvifResponseStructure(const QByteArray &bytes, const QString &root)
    : response(bytes, root)
    , xml(response.xml())
{
}

OnvifResponseStructure::OnvifResponseStructure(const OnvifResponseStructure &other) = default;
OnvifResponseStructure::OnvifResponseStructure(OnvifResponseStructure &&other) noexcept = default;
OnvifResponseStructure &OnvifResponseStructure::operator=(const OnvifResponseStructure &other) = default;
OnvifResponseStructure &OnvifResponseStructure::operator=(OnvifResponseStructure &&other) noexcept = default;
OnvifResponseStructure::~OnvifResponseStructure() = default;

} // namespace vorn
