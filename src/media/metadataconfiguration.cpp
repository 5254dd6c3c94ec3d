#include "core/listrecord.h"
#include "core/readchildren.h"
#include "readconfigurations.h"

#include <vorn/onvif/configurations.h>

namespace vorn {

using namespace Qt::StringLiterals;

void readValue(const RecordElement &element, OnvifMetadataConfiguration &configuration)
{
    configuration.token = element.attribute(u"token"_s);
    readChildren(element, {
                              field("Name", configuration.name),
                              field("UseCount", configuration.useCount),
                              field("Analytics", configuration.analytics),
                              field("SessionTimeout", configuration.sessionTimeout),
                              group("PTZStatus", {field("Status", configuration.ptzStatus),
                                                  field("Position", configuration.ptzPosition)}),
                              group("Events",
                                    {
                                        field("Filter", configuration.eventsFilter),
                                        field("SubscriptionPolicy", configuration.eventsSubscriptionPolicy),
                                    }),
                              field("AnalyticsEngineConfiguration", configuration.analyticsEngineConfiguration),
                          });
}

OnvifMetadataConfiguration::OnvifMetadataConfiguration() = default;

OnvifMetadataConfiguration::OnvifMetadataConfiguration(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
{
    readValue(node, *this);
}

OnvifMetadataConfiguration::OnvifMetadataConfiguration(const OnvifMetadataConfiguration &other) = default;

// The modules are not taken over: to a caller, an assigned record keeps the list that it had. Copies do take it.
// NOLINTNEXTLINE(cert-oop54-cpp): a field may be assigned to itself
OnvifMetadataConfiguration &OnvifMetadataConfiguration::operator=(const OnvifMetadataConfiguration &other)
{
    OnvifDataStructure::operator=(other);
    name = other.name;
    token = other.token;
    useCount = other.useCount;
    analytics = other.analytics;
    sessionTimeout = other.sessionTimeout;
    ptzStatus = other.ptzStatus;
    ptzPosition = other.ptzPosition;
    eventsFilter = other.eventsFilter;
    eventsSubscriptionPolicy = other.eventsSubscriptionPolicy;
    return *this;
}

OnvifMetadataConfiguration::~OnvifMetadataConfiguration() = default;

bool OnvifMetadataConfiguration::operator==(const OnvifMetadataConfiguration &other) const
{
    return token == other.token;
}

bool OnvifMetadataConfiguration::operator!=(const OnvifMetadataConfiguration &other) const
{
    return !(*this == other);
}

OnvifMetadataConfigurationVector::OnvifMetadataConfigurationVector() = default;

OnvifMetadataConfigurationVector::OnvifMetadataConfigurationVector(const QByteArray &bytes, const QString &root)
    : OnvifResponseStructure(bytes, root)
{
    readElements(*this, {u"/Configurations"_s});
}

OnvifMetadataConfigurationVector::OnvifMetadataConfigurationVector(const OnvifMetadataConfigurationVector &other) =
    default;
OnvifMetadataConfigurationVector::OnvifMetadataConfigurationVector(OnvifMetadataConfigurationVector &&other) noexcept =
    default;
OnvifMetadataConfigurationVector &
OnvifMetadataConfigurationVector::operator=(const OnvifMetadataConfigurationVector &other) = default;
OnvifMetadataConfigurationVector &
OnvifMetadataConfigurationVector::operator=(OnvifMetadataConfigurationVector &&other) noexcept = default;
OnvifMetadataConfigurationVector::~OnvifMetadataConfigurationVector() = default;

OnvifCompatibleMetadataConfigurationVector::OnvifCompatibleMetadataConfigurationVector() = default;

OnvifCompatibleMetadataConfigurationVector::OnvifCompatibleMetadataConfigurationVector(const QByteArray &bytes)
    : OnvifMetadataConfigurationVector(bytes, u"/Envelope/Body/GetCompatibleMetadataConfigurationsResponse"_s)
{
}

OnvifCompatibleMetadataConfigurationVector::OnvifCompatibleMetadataConfigurationVector(
    const OnvifCompatibleMetadataConfigurationVector &other) = default;
OnvifCompatibleMetadataConfigurationVector::OnvifCompatibleMetadataConfigurationVector(
    OnvifCompatibleMetadataConfigurationVector &&other) noexcept = default;
OnvifCompatibleMetadataConfigurationVector &OnvifCompatibleMetadataConfigurationVector::operator=(
    const OnvifCompatibleMetadataConfigurationVector &other) = default;
OnvifCompatibleMetadataConfigurationVector &OnvifCompatibleMetadataConfigurationVector::operator=(
    OnvifCompatibleMetadataConfigurationVector &&other) noexcept = default;
OnvifCompatibleMetadataConfigurationVector::~OnvifCompatibleMetadataConfigurationVector() = default;

} // namespace vorn
