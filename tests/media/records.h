#pragma once

// A sample of each record: an element, and what each field holds that is read from it.

#include "support/nodes.h"
#include "support/printing.h"

#include <vorn/onvif/analytics.h>
#include <vorn/onvif/configurations.h>

#include <gtest/gtest.h>

#include <string>

namespace test {

inline void expectEdges(const QRect &rectangle, int left, int top, int right, int bottom)
{
    EXPECT_EQ(rectangle.left(), left);
    EXPECT_EQ(rectangle.top(), top);
    EXPECT_EQ(rectangle.right(), right);
    EXPECT_EQ(rectangle.bottom(), bottom);
}

inline void expectSize(const QSize &size, int width, int height)
{
    EXPECT_EQ(size.width(), width);
    EXPECT_EQ(size.height(), height);
}

inline void expectRange(const vorn::OnvifPtzRange &range, double min, double max)
{
    EXPECT_EQ(range.min, min);
    EXPECT_EQ(range.max, max);
}

/// What a sample of a configuration has in common with the others: its identity is the attribute "token".
struct ConfigurationSample
{
    static constexpr const char *identityAttribute = "token";
    static constexpr const char *attributes = "";

    template <typename Record>
    static QString &identity(Record &record)
    {
        return record.token;
    }

    template <typename Record>
    static void expectDefaults(const Record &record)
    {
        EXPECT_TRUE(record.name.isEmpty());
        EXPECT_TRUE(record.token.isEmpty());
        EXPECT_EQ(record.useCount, 0);
    }
};

/// The identity of an analytics module or a rule, as far as it has one, is its name.
struct AnalyticsSample
{
    static constexpr const char *identityAttribute = "Name";
    static constexpr const char *attributes = "Type=\"tt:CellMotionEngine\"";
    static constexpr const char *children = "<tt:Parameters><tt:SimpleItem Name=\"Size\" Value=\"3\"/></tt:Parameters>";

    template <typename Record>
    static QString &identity(Record &record)
    {
        return record.name;
    }

    template <typename Record>
    static void expectFields(const Record &r, const QString &identity)
    {
        EXPECT_EQ(r.name, identity);
        EXPECT_EQ(r.type, "tt:CellMotionEngine");
    }

    template <typename Record>
    static void expectDefaults(const Record &r)
    {
        EXPECT_TRUE(r.name.isEmpty());
        EXPECT_TRUE(r.type.isEmpty());
    }
};

template <typename Record>
struct Sample;

template <>
struct Sample<vorn::OnvifAnalyticsModule> : AnalyticsSample
{
    static constexpr const char *title = "AnalyticsModule";
};

template <>
struct Sample<vorn::OnvifRule> : AnalyticsSample
{
    static constexpr const char *title = "Rule";
};

template <>
struct Sample<vorn::OnvifVideoSourceConfiguration> : ConfigurationSample
{
    using Record = vorn::OnvifVideoSourceConfiguration;
    static constexpr const char *title = "VideoSource";
    static constexpr const char *children = R"(<tt:Name>Door</tt:Name><tt:UseCount>2</tt:UseCount>
        <tt:SourceToken>Sensor</tt:SourceToken><tt:Bounds x="8" y="16" width="640" height="360"/>)";

    static void expectFields(const Record &r, const QString &token)
    {
        EXPECT_EQ(r.name, "Door");
        EXPECT_EQ(r.token, token);
        EXPECT_EQ(r.useCount, 2);
        EXPECT_EQ(r.sourceToken, "Sensor");
        expectEdges(r.bounds, 8, 16, 647, 375);
    }

    static void expectDefaults(const Record &r)
    {
        ConfigurationSample::expectDefaults(r);
        EXPECT_TRUE(r.sourceToken.isEmpty());
        expectEdges(r.bounds, 0, 0, -1, -1);
    }
};

template <>
struct Sample<vorn::OnvifVideoEncoderConfiguration> : ConfigurationSample
{
    using Record = vorn::OnvifVideoEncoderConfiguration;
    static constexpr const char *title = "VideoEncoder";
    static constexpr const char *children = R"(<tt:Name>Main</tt:Name><tt:UseCount>3</tt:UseCount>
        <tt:Encoding>H264</tt:Encoding>
        <tt:Resolution><tt:Width>1920</tt:Width><tt:Height>1080</tt:Height></tt:Resolution>
        <tt:Quality>4.5</tt:Quality>
        <tt:RateControl><tt:FrameRateLimit>25</tt:FrameRateLimit><tt:EncodingInterval>4</tt:EncodingInterval>
        <tt:BitrateLimit>4096</tt:BitrateLimit></tt:RateControl>
        <tt:H264><tt:GovLength>50</tt:GovLength><tt:H264Profile>High</tt:H264Profile></tt:H264>
        <tt:Multicast><tt:Port>0</tt:Port></tt:Multicast>
        <tt:SessionTimeout>PT60S</tt:SessionTimeout>)";

    static void expectFields(const Record &r, const QString &token)
    {
        EXPECT_EQ(r.name, "Main");
        EXPECT_EQ(r.token, token);
        EXPECT_EQ(r.encoding, "H264");
        EXPECT_EQ(r.useCount, 3);
        expectSize(r.resolution, 1920, 1080);
        EXPECT_EQ(r.quality, 4.5);
        EXPECT_EQ(r.frameRateLimit, 25);
        EXPECT_EQ(r.encodingInterval, 4);
        EXPECT_EQ(r.bitrateLimit, 4096);
        EXPECT_EQ(r.sessionTimeout, "PT60S");
    }

    static void expectDefaults(const Record &r)
    {
        ConfigurationSample::expectDefaults(r);
        EXPECT_TRUE(r.encoding.isEmpty());
        expectSize(r.resolution, -1, -1);
        EXPECT_EQ(r.quality, 0.0);
        EXPECT_EQ(r.frameRateLimit, 0);
        EXPECT_EQ(r.encodingInterval, 0);
        EXPECT_EQ(r.bitrateLimit, 0);
        EXPECT_TRUE(r.sessionTimeout.isEmpty());
    }
};

template <>
struct Sample<vorn::OnvifAudioSourceConfiguration> : ConfigurationSample
{
    using Record = vorn::OnvifAudioSourceConfiguration;
    static constexpr const char *title = "AudioSource";
    static constexpr const char *children =
        "<tt:Name>Voice</tt:Name><tt:UseCount>4</tt:UseCount><tt:SourceToken>Microphone</tt:SourceToken>";

    static void expectFields(const Record &r, const QString &token)
    {
        EXPECT_EQ(r.name, "Voice");
        EXPECT_EQ(r.token, token);
        EXPECT_EQ(r.useCount, 4);
        EXPECT_EQ(r.sourceToken, "Microphone");
    }

    static void expectDefaults(const Record &r)
    {
        ConfigurationSample::expectDefaults(r);
        EXPECT_TRUE(r.sourceToken.isEmpty());
    }
};

template <>
struct Sample<vorn::OnvifAudioOutputConfiguration> : ConfigurationSample
{
    using Record = vorn::OnvifAudioOutputConfiguration;
    static constexpr const char *title = "AudioOutput";
    static constexpr const char *children = R"(<tt:Name>Horn</tt:Name><tt:UseCount>5</tt:UseCount>
        <tt:OutputToken>Speaker</tt:OutputToken>
        <tt:SendPrimacy>www.onvif.org/ver20/HalfDuplex/Server</tt:SendPrimacy><tt:OutputLevel>70</tt:OutputLevel>)";

    static void expectFields(const Record &r, const QString &token)
    {
        EXPECT_EQ(r.name, "Horn");
        EXPECT_EQ(r.token, token);
        EXPECT_EQ(r.useCount, 5U);
        EXPECT_EQ(r.outputToken, "Speaker");
        EXPECT_EQ(r.outputLevel, 70U);
        EXPECT_EQ(r.sendPrimacy, "www.onvif.org/ver20/HalfDuplex/Server");
    }

    static void expectDefaults(const Record &r)
    {
        ConfigurationSample::expectDefaults(r);
        EXPECT_TRUE(r.outputToken.isEmpty());
        EXPECT_EQ(r.outputLevel, 0U);
        EXPECT_TRUE(r.sendPrimacy.isEmpty());
    }
};

template <>
struct Sample<vorn::OnvifAudioEncoderConfiguration> : ConfigurationSample
{
    using Record = vorn::OnvifAudioEncoderConfiguration;
    static constexpr const char *title = "AudioEncoder";
    static constexpr const char *children = R"(<tt:Name>Sound</tt:Name><tt:UseCount>6</tt:UseCount>
        <tt:Encoding>AAC</tt:Encoding><tt:Bitrate>64</tt:Bitrate><tt:SampleRate>16</tt:SampleRate>
        <tt:Multicast><tt:Port>0</tt:Port></tt:Multicast><tt:SessionTimeout>PT30S</tt:SessionTimeout>)";

    static void expectFields(const Record &r, const QString &token)
    {
        EXPECT_EQ(r.name, "Sound");
        EXPECT_EQ(r.token, token);
        EXPECT_EQ(r.encoding, "AAC");
        EXPECT_EQ(r.useCount, 6);
        EXPECT_EQ(r.bitrate, 64);
        EXPECT_EQ(r.sampleRate, 16);
        EXPECT_EQ(r.sessionTimeout, "PT30S");
    }

    static void expectDefaults(const Record &r)
    {
        ConfigurationSample::expectDefaults(r);
        EXPECT_TRUE(r.encoding.isEmpty());
        EXPECT_EQ(r.bitrate, 0);
        EXPECT_EQ(r.sampleRate, 0);
        EXPECT_TRUE(r.sessionTimeout.isEmpty());
    }
};

/// The use count is never read.
template <>
struct Sample<vorn::OnvifAudioDecoderConfiguration> : ConfigurationSample
{
    using Record = vorn::OnvifAudioDecoderConfiguration;
    static constexpr const char *title = "AudioDecoder";
    static constexpr const char *children = "<tt:Name>Talk</tt:Name><tt:UseCount>7</tt:UseCount>";

    static void expectFields(const Record &r, const QString &token)
    {
        EXPECT_EQ(r.name, "Talk");
        EXPECT_EQ(r.token, token);
        EXPECT_EQ(r.useCount, 0);
    }
};

/// Without the list of modules, which copies take over and assignments do not.
template <>
struct Sample<vorn::OnvifMetadataConfiguration> : ConfigurationSample
{
    using Record = vorn::OnvifMetadataConfiguration;
    static constexpr const char *title = "Metadata";
    static constexpr const char *children = R"(<tt:Name>Events</tt:Name><tt:UseCount>8</tt:UseCount>
        <tt:PTZStatus><tt:Status>true</tt:Status><tt:Position>true</tt:Position></tt:PTZStatus>
        <tt:Events><tt:Filter>tns1:RuleEngine//.</tt:Filter><tt:SubscriptionPolicy>All</tt:SubscriptionPolicy>
        </tt:Events><tt:Analytics>true</tt:Analytics><tt:SessionTimeout>60</tt:SessionTimeout>)";

    static void expectFields(const Record &r, const QString &token)
    {
        EXPECT_EQ(r.name, "Events");
        EXPECT_EQ(r.token, token);
        EXPECT_EQ(r.useCount, 8U);
        EXPECT_TRUE(r.analytics);
        EXPECT_EQ(r.sessionTimeout, 60U);
        EXPECT_TRUE(r.ptzStatus);
        EXPECT_TRUE(r.ptzPosition);
        EXPECT_EQ(r.eventsFilter, "tns1:RuleEngine//.");
        EXPECT_EQ(r.eventsSubscriptionPolicy, "All");
    }

    static void expectDefaults(const Record &r)
    {
        ConfigurationSample::expectDefaults(r);
        EXPECT_FALSE(r.analytics);
        EXPECT_EQ(r.sessionTimeout, 0U);
        EXPECT_FALSE(r.ptzStatus);
        EXPECT_FALSE(r.ptzPosition);
        EXPECT_TRUE(r.eventsFilter.isEmpty());
        EXPECT_TRUE(r.eventsSubscriptionPolicy.isEmpty());
        EXPECT_TRUE(r.analyticsEngineConfiguration.isEmpty());
    }
};

template <>
struct Sample<vorn::OnvifPtzConfiguration> : ConfigurationSample
{
    using Record = vorn::OnvifPtzConfiguration;
    static constexpr const char *title = "Ptz";
    static constexpr const char *children = R"(<tt:Name>Dome</tt:Name><tt:UseCount>9</tt:UseCount>
        <tt:NodeToken>Head</tt:NodeToken><tt:DefaultPTZSpeed><tt:PanTilt x="1" y="1"/></tt:DefaultPTZSpeed>
        <tt:DefaultPTZTimeout>PT5S</tt:DefaultPTZTimeout>
        <tt:PanTiltLimits><tt:Range><tt:URI>http://www.onvif.org/ver10/tptz/PanTiltSpaces/PositionGenericSpace</tt:URI>
        <tt:XRange><tt:Min>-1.0</tt:Min><tt:Max>1.0</tt:Max></tt:XRange>
        <tt:YRange><tt:Min>-0.5</tt:Min><tt:Max>0.25</tt:Max></tt:YRange></tt:Range></tt:PanTiltLimits>
        <tt:ZoomLimits><tt:Range><tt:XRange><tt:Min>0.125</tt:Min><tt:Max>2</tt:Max></tt:XRange></tt:Range>
        </tt:ZoomLimits>)";

    static void expectFields(const Record &r, const QString &token)
    {
        EXPECT_EQ(r.name, "Dome");
        EXPECT_EQ(r.token, token);
        EXPECT_EQ(r.defaultPtzTimeout, "PT5S");
        EXPECT_EQ(r.useCount, 9);
        EXPECT_EQ(r.nodeToken, "Head");
        expectRange(r.panTiltXRange, -1.0, 1.0);
        expectRange(r.panTiltYRange, -0.5, 0.25);
        expectRange(r.zoomXRange, 0.125, 2.0);
    }

    static void expectDefaults(const Record &r)
    {
        ConfigurationSample::expectDefaults(r);
        EXPECT_TRUE(r.defaultPtzTimeout.isEmpty());
        EXPECT_TRUE(r.nodeToken.isEmpty());
        expectRange(r.panTiltXRange, 0.0, 0.0);
        expectRange(r.panTiltYRange, 0.0, 0.0);
        expectRange(r.zoomXRange, 0.0, 0.0);
    }
};

template <>
struct Sample<vorn::OnvifVideoAnalyticsConfiguration> : ConfigurationSample
{
    using Record = vorn::OnvifVideoAnalyticsConfiguration;
    static constexpr const char *title = "VideoAnalytics";
    static constexpr const char *children = R"(<tt:Name>Watch</tt:Name><tt:UseCount>10</tt:UseCount>
        <tt:AnalyticsEngineConfiguration><tt:AnalyticsModule Name="Cells" Type="tt:CellMotionEngine"/>
        </tt:AnalyticsEngineConfiguration>
        <tt:RuleEngineConfiguration><tt:Rule Name="Line" Type="tt:LineDetector"/>
        <tt:Rule Name="Field" Type="tt:FieldDetector"/></tt:RuleEngineConfiguration>)";

    static void expectFields(const Record &r, const QString &token)
    {
        EXPECT_EQ(r.name, "Watch");
        EXPECT_EQ(r.token, token);
        EXPECT_EQ(r.useCount, 10U);
        ASSERT_EQ(r.analyticsEngineConfiguration.size(), 1);
        EXPECT_EQ(r.analyticsEngineConfiguration[0].name, "Cells");
        EXPECT_EQ(r.analyticsEngineConfiguration[0].type, "tt:CellMotionEngine");
        ASSERT_EQ(r.ruleEngineConfiguration.size(), 2);
        EXPECT_EQ(r.ruleEngineConfiguration[0].name, "Line");
        EXPECT_EQ(r.ruleEngineConfiguration[0].type, "tt:LineDetector");
        EXPECT_EQ(r.ruleEngineConfiguration[1].name, "Field");
        EXPECT_EQ(r.ruleEngineConfiguration[1].type, "tt:FieldDetector");
    }

    static void expectDefaults(const Record &r)
    {
        ConfigurationSample::expectDefaults(r);
        EXPECT_TRUE(r.analyticsEngineConfiguration.isEmpty());
        EXPECT_TRUE(r.ruleEngineConfiguration.isEmpty());
    }
};

/// The sample of \a Record as an element \a name.
template <typename Record>
QByteArray sampleElement(const QByteArray &name, const QByteArray &identity)
{
    using S = Sample<Record>;
    return "<tt:" + name + ' ' + S::identityAttribute + "=\"" + identity + "\" " + S::attributes + '>' + S::children
           + "</tt:" + name + '>';
}

/// The sample of \a Record, read.
template <typename Record>
Record sample(const QByteArray &identity = "T1")
{
    return Record(nodeOf(sampleElement<Record>("Element", identity)));
}

/// \a Record from an element that has \a children and no attributes.
template <typename Record>
Record recordFrom(const QByteArray &children)
{
    return Record(nodeOf(element("Element", children)));
}

template <typename Record>
void expectSample(const Record &record, const QString &identity = QStringLiteral("T1"))
{
    EXPECT_FALSE(record.isNull());
    Sample<Record>::expectFields(record, identity);
}

template <typename Record>
void expectDefaults(const Record &record)
{
    Sample<Record>::expectDefaults(record);
}

/// Appends to \a list until it has to move its elements elsewhere, and takes the new ones away again.
template <typename Record>
void growByAppending(QList<Record> &list)
{
    const qsizetype size = list.size();
    const qsizetype capacity = list.capacity();
    while (list.capacity() == capacity)
        list.append(Record());
    list.resize(size);
}

using Configurations = ::testing::Types<
    vorn::OnvifVideoSourceConfiguration, vorn::OnvifVideoEncoderConfiguration, vorn::OnvifAudioSourceConfiguration,
    vorn::OnvifAudioOutputConfiguration, vorn::OnvifAudioEncoderConfiguration, vorn::OnvifAudioDecoderConfiguration,
    vorn::OnvifMetadataConfiguration, vorn::OnvifPtzConfiguration, vorn::OnvifVideoAnalyticsConfiguration>;

using Records = ::testing::Types<vorn::OnvifAnalyticsModule, vorn::OnvifRule, vorn::OnvifVideoSourceConfiguration,
                                 vorn::OnvifVideoEncoderConfiguration, vorn::OnvifAudioSourceConfiguration,
                                 vorn::OnvifAudioOutputConfiguration, vorn::OnvifAudioEncoderConfiguration,
                                 vorn::OnvifAudioDecoderConfiguration, vorn::OnvifMetadataConfiguration,
                                 vorn::OnvifPtzConfiguration, vorn::OnvifVideoAnalyticsConfiguration>;

/// All records but the audio decoder configuration, of which copies are null.
using CopiedRecords = ::testing::Types<vorn::OnvifAnalyticsModule, vorn::OnvifRule, vorn::OnvifVideoSourceConfiguration,
                                       vorn::OnvifVideoEncoderConfiguration, vorn::OnvifAudioSourceConfiguration,
                                       vorn::OnvifAudioOutputConfiguration, vorn::OnvifAudioEncoderConfiguration,
                                       vorn::OnvifMetadataConfiguration, vorn::OnvifPtzConfiguration,
                                       vorn::OnvifVideoAnalyticsConfiguration>;

struct SampleTitles
{
    template <typename Record>
    static std::string GetName(int)
    {
        return Sample<Record>::title;
    }
};

} // namespace test
