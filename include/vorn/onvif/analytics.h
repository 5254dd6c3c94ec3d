#pragma once

/// \file
/// Analytics modules and rules: what a video analytics configuration consists of.

#include <vorn/onvif/bases.h>
#include <vorn/onvif/export.h>

#include <QtCore/QList>
#include <QtCore/QString>

namespace vorn {

/// An analytics module: a step of analysis, such as motion detection. Its parameters are not kept.
struct VORNSDK_ONVIF_EXPORT OnvifAnalyticsModule : OnvifDataStructure
{
    QString name; ///< Name within the configuration, from the attribute "Name". Null if that is missing.
    QString type; ///< Qualified name of the type, from the attribute "Type". Null if that is missing.

    /// A null record.
    OnvifAnalyticsModule();

    /// Reads the element of \a node. The record is null only if the node is a missing one.
    explicit OnvifAnalyticsModule(const XmlResponseNode &node);

    OnvifAnalyticsModule(const OnvifAnalyticsModule &other);
    OnvifAnalyticsModule(OnvifAnalyticsModule &&other) noexcept;
    OnvifAnalyticsModule &operator=(const OnvifAnalyticsModule &other);
    OnvifAnalyticsModule &operator=(OnvifAnalyticsModule &&other) noexcept;
    ~OnvifAnalyticsModule() override;

    /// Whether both are null or both are not, and name and type are equal.
    bool operator==(const OnvifAnalyticsModule &other) const;
};

/// A rule: what an analytics module reports as an event, such as a crossed line. Its parameters are not kept.
struct VORNSDK_ONVIF_EXPORT OnvifRule : OnvifDataStructure
{
    QString name; ///< Name within the configuration, from the attribute "Name". Null if that is missing.
    QString type; ///< Qualified name of the type, from the attribute "Type". Null if that is missing.

    /// A null record.
    OnvifRule();

    /// Reads the element of \a node. The record is null only if the node is a missing one.
    explicit OnvifRule(const XmlResponseNode &node);

    OnvifRule(const OnvifRule &other);
    OnvifRule(OnvifRule &&other) noexcept;
    OnvifRule &operator=(const OnvifRule &other);
    OnvifRule &operator=(OnvifRule &&other) noexcept;
    ~OnvifRule() override;

    /// Whether both are null or both are not, and name and type are equal.
    bool operator==(const OnvifRule &other) const;
};

} // namespace vorn

VORNSDK_ONVIF_DECLARE_LIST(vorn::OnvifAnalyticsModule)
VORNSDK_ONVIF_DECLARE_LIST(vorn::OnvifRule)

namespace vorn {

/// The analytics modules of a configuration.
struct VORNSDK_ONVIF_EXPORT OnvifAnalyticsEngineConfigurationVector : QList<OnvifAnalyticsModule>
{
    /// An empty list.
    OnvifAnalyticsEngineConfigurationVector();

    /// Reads each child of \a node that is called "AnalyticsModule", in document order.
    explicit OnvifAnalyticsEngineConfigurationVector(const XmlResponseNode &node);

    OnvifAnalyticsEngineConfigurationVector(const OnvifAnalyticsEngineConfigurationVector &other);
    OnvifAnalyticsEngineConfigurationVector(OnvifAnalyticsEngineConfigurationVector &&other) noexcept;
    OnvifAnalyticsEngineConfigurationVector &operator=(const OnvifAnalyticsEngineConfigurationVector &other);
    OnvifAnalyticsEngineConfigurationVector &operator=(OnvifAnalyticsEngineConfigurationVector &&other) noexcept;
    ~OnvifAnalyticsEngineConfigurationVector();
};

/// The rules of a configuration.
struct VORNSDK_ONVIF_EXPORT OnvifRuleEngineConfigurationVector : QList<OnvifRule>
{
    /// An empty list.
    OnvifRuleEngineConfigurationVector();

    /// Reads each child of \a node that is called "Rule", in document order.
    explicit OnvifRuleEngineConfigurationVector(const XmlResponseNode &node);

    OnvifRuleEngineConfigurationVector(const OnvifRuleEngineConfigurationVector &other);
    OnvifRuleEngineConfigurationVector(OnvifRuleEngineConfigurationVector &&other) noexcept;
    OnvifRuleEngineConfigurationVector &operator=(const OnvifRuleEngineConfigurationVector &other);
    OnvifRuleEngineConfigurationVector &operator=(OnvifRuleEngineConfigurationVector &&other) noexcept;
    ~OnvifRuleEngineConfigurationVector();
};

} // namespace vorn
