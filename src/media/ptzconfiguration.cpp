#include "core/exportlist.h"
#include "core/listrecord.h"
#include "core/readchildren.h"
#include "readconfigurations.h"

#include <vorn/onvif/configurations.h>

namespace vorn {

using namespace Qt::StringLiterals;

/// A bound that is missing is 0, also where an earlier element had it.
static void readValue(const RecordElement &element, OnvifPtzRange &range)
{
    range = OnvifPtzRange();
    readChildren(element, {field("Min", range.min), field("Max", range.max)});
}

/// The axes stand below a child of \a limits, whatever its name.
static void readAxes(const RecordElement &limits, std::initializer_list<ChildReader> axes)
{
    limits.visitChildren([axes](const auto &, const RecordElement &space) { readChildren(space, axes); });
}

void readValue(const RecordElement &element, OnvifPtzConfiguration &configuration)
{
    configuration.token = element.attribute(u"token"_s);
    readChildren(element, {
                              field("Name", configuration.name),
                              field("DefaultPTZTimeout", configuration.defaultPtzTimeout),
                              field("UseCount", configuration.useCount),
                              field("NodeToken", configuration.nodeToken),
                              nested("PanTiltLimits",
                                     [&configuration](const RecordElement &child) {
                                         readAxes(child, {field("XRange", configuration.panTiltXRange),
                                                          field("YRange", configuration.panTiltYRange)});
                                     }),
                              nested("ZoomLimits",
                                     [&configuration](const RecordElement &child) {
                                         readAxes(child, {field("XRange", configuration.zoomXRange)});
                                     }),
                          });
}

OnvifPtzConfiguration::OnvifPtzConfiguration() = default;

OnvifPtzConfiguration::OnvifPtzConfiguration(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
{
    readValue(node, *this);
}

OnvifPtzConfiguration::OnvifPtzConfiguration(const OnvifPtzConfiguration &other) = default;
OnvifPtzConfiguration &OnvifPtzConfiguration::operator=(const OnvifPtzConfiguration &other) = default;
OnvifPtzConfiguration::~OnvifPtzConfiguration() = default;

bool OnvifPtzConfiguration::operator==(const OnvifPtzConfiguration &other) const
{
    return token == other.token;
}

bool OnvifPtzConfiguration::operator!=(const OnvifPtzConfiguration &other) const
{
    return !(*this == other);
}

OnvifPtzConfigurationVector::OnvifPtzConfigurationVector() = default;

OnvifPtzConfigurationVector::OnvifPtzConfigurationVector(const QByteArray &bytes, const QString &root)
    : OnvifResponseStructure(bytes, root)
{
    readElements(*this, {u"/PTZConfiguration"_s});
}

OnvifPtzConfigurationVector::OnvifPtzConfigurationVector(const OnvifPtzConfigurationVector &other) = default;
OnvifPtzConfigurationVector::OnvifPtzConfigurationVector(OnvifPtzConfigurationVector &&other) noexcept = default;
OnvifPtzConfigurationVector &OnvifPtzConfigurationVector::operator=(const OnvifPtzConfigurationVector &other) = default;
OnvifPtzConfigurationVector &
OnvifPtzConfigurationVector::operator=(OnvifPtzConfigurationVector &&other) noexcept = default;
OnvifPtzConfigurationVector::~OnvifPtzConfigurationVector() = default;

OnvifCompatiblePtzConfigurationVector::OnvifCompatiblePtzConfigurationVector() = default;

OnvifCompatiblePtzConfigurationVector::OnvifCompatiblePtzConfigurationVector(const QByteArray &bytes)
    : OnvifPtzConfigurationVector(bytes, u"/Envelope/Body/GetCompatibleConfigurationsResponse"_s)
{
}

OnvifCompatiblePtzConfigurationVector::OnvifCompatiblePtzConfigurationVector(
    const OnvifCompatiblePtzConfigurationVector &other) = default;
OnvifCompatiblePtzConfigurationVector::OnvifCompatiblePtzConfigurationVector(
    OnvifCompatiblePtzConfigurationVector &&other) noexcept = default;
OnvifCompatiblePtzConfigurationVector &
OnvifCompatiblePtzConfigurationVector::operator=(const OnvifCompatiblePtzConfigurationVector &other) = default;
OnvifCompatiblePtzConfigurationVector &
OnvifCompatiblePtzConfigurationVector::operator=(OnvifCompatiblePtzConfigurationVector &&other) noexcept = default;
OnvifCompatiblePtzConfigurationVector::~OnvifCompatiblePtzConfigurationVector() = default;

} // namespace vorn

VORNSDK_ONVIF_DEFINE_LIST(vorn::OnvifPtzConfiguration)
