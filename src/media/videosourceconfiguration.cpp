#include "core/exportlist.h"
#include "core/listrecord.h"
#include "core/readchildren.h"
#include "readconfigurations.h"
#include "xml/numbers.h"

#include <vorn/onvif/configurations.h>

namespace vorn {

using namespace Qt::StringLiterals;

/// As QRect(x, y, width, height), but an edge beyond the range of int wraps around.
static void readValue(const RecordElement &element, QRect &bounds)
{
    const auto number = [&element](const QString &attribute) { return toInt(element.attribute(attribute)); };
    const auto lastOf = [](int first, int count) {
        return static_cast<int>(static_cast<unsigned int>(first) + static_cast<unsigned int>(count) - 1U);
    };
    const int x = number(u"x"_s);
    const int y = number(u"y"_s);
    bounds.setCoords(x, y, lastOf(x, number(u"width"_s)), lastOf(y, number(u"height"_s)));
}

void readValue(const RecordElement &element, OnvifVideoSourceConfiguration &configuration)
{
    configuration.token = element.attribute(u"token"_s);
    readChildren(element, {
                              field("Name", configuration.name),
                              field("UseCount", configuration.useCount),
                              field("SourceToken", configuration.sourceToken),
                              field("Bounds", configuration.bounds),
                          });
}

OnvifVideoSourceConfiguration::OnvifVideoSourceConfiguration() = default;

OnvifVideoSourceConfiguration::OnvifVideoSourceConfiguration(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
{
    readValue(node, *this);
}

OnvifVideoSourceConfiguration::OnvifVideoSourceConfiguration(const OnvifVideoSourceConfiguration &other) = default;
OnvifVideoSourceConfiguration &
OnvifVideoSourceConfiguration::operator=(const OnvifVideoSourceConfiguration &other) = default;
OnvifVideoSourceConfiguration::~OnvifVideoSourceConfiguration() = default;

bool OnvifVideoSourceConfiguration::operator==(const OnvifVideoSourceConfiguration &other) const
{
    return token == other.token;
}

bool OnvifVideoSourceConfiguration::operator!=(const OnvifVideoSourceConfiguration &other) const
{
    return !(*this == other);
}

OnvifVideoSourceConfigurationVector::OnvifVideoSourceConfigurationVector() = default;

OnvifVideoSourceConfigurationVector::OnvifVideoSourceConfigurationVector(const QByteArray &bytes, const QString &root)
    : OnvifResponseStructure(bytes, root)
{
    readElements(*this, {u"/Configurations"_s});
}

OnvifVideoSourceConfigurationVector::OnvifVideoSourceConfigurationVector(
    const OnvifVideoSourceConfigurationVector &other) = default;
OnvifVideoSourceConfigurationVector::OnvifVideoSourceConfigurationVector(
    OnvifVideoSourceConfigurationVector &&other) noexcept = default;
OnvifVideoSourceConfigurationVector &
OnvifVideoSourceConfigurationVector::operator=(const OnvifVideoSourceConfigurationVector &other) = default;
OnvifVideoSourceConfigurationVector &
OnvifVideoSourceConfigurationVector::operator=(OnvifVideoSourceConfigurationVector &&other) noexcept = default;
OnvifVideoSourceConfigurationVector::~OnvifVideoSourceConfigurationVector() = default;

OnvifCompatibleVideoSourceConfigurationVector::OnvifCompatibleVideoSourceConfigurationVector() = default;

OnvifCompatibleVideoSourceConfigurationVector::OnvifCompatibleVideoSourceConfigurationVector(const QByteArray &bytes)
    : OnvifVideoSourceConfigurationVector(bytes, u"/Envelope/Body/GetCompatibleVideoSourceConfigurationsResponse"_s)
{
}

OnvifCompatibleVideoSourceConfigurationVector::OnvifCompatibleVideoSourceConfigurationVector(
    const OnvifCompatibleVideoSourceConfigurationVector &other) = default;
OnvifCompatibleVideoSourceConfigurationVector::OnvifCompatibleVideoSourceConfigurationVector(
    OnvifCompatibleVideoSourceConfigurationVector &&other) noexcept = default;
OnvifCompatibleVideoSourceConfigurationVector &OnvifCompatibleVideoSourceConfigurationVector::operator=(
    const OnvifCompatibleVideoSourceConfigurationVector &other) = default;
OnvifCompatibleVideoSourceConfigurationVector &OnvifCompatibleVideoSourceConfigurationVector::operator=(
    OnvifCompatibleVideoSourceConfigurationVector &&other) noexcept = default;
OnvifCompatibleVideoSourceConfigurationVector::~OnvifCompatibleVideoSourceConfigurationVector() = default;

} // namespace vorn

VORNSDK_ONVIF_DEFINE_LIST(vorn::OnvifVideoSourceConfiguration)
