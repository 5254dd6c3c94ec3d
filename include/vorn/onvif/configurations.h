#pragma once

/// \file
/// The configurations of which a media profile is made, and the lists of them that a device answers with.
///
/// Each record is read from one element. A field is the text of a child element, unless its comment names another
/// source. Names are compared case-sensitively, other children are ignored, and of several children with one name the
/// last counts. Where a field stands in a group, such as "RateControl", each group is read: what a later one lacks
/// stays as it was. Texts are kept verbatim, null if the element is missing. A number is 0 and a boolean false if the
/// element is missing or holds anything but a number of the field's type, or the text "true".

#include <vorn/onvif/analytics.h>
#include <vorn/onvif/bases.h>
#include <vorn/onvif/export.h>

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtCore/QString>

namespace vorn {

/// A video source configuration: which video source a profile shows, and which part of its picture.
struct VORNSDK_ONVIF_EXPORT OnvifVideoSourceConfiguration : OnvifDataStructure
{
    QString name;        ///< Display name, from "Name".
    QString token;       ///< Identity, from the attribute "token".
    int useCount = 0;    ///< Number of profiles that use the configuration, from "UseCount".
    QString sourceToken; ///< Token of the video source, from "SourceToken".

    /// The part of the picture that is in use, in pixels: the attributes "x", "y", "width" and "height" of "Bounds". An
    /// attribute that is missing or no number counts as 0; edges beyond the range of int wrap around. Null by default.
    QRect bounds;

    /// A null record.
    OnvifVideoSourceConfiguration();

    /// Reads the element of \a node. The record is null only if the node is a missing one.
    explicit OnvifVideoSourceConfiguration(const XmlResponseNode &node);

    OnvifVideoSourceConfiguration(const OnvifVideoSourceConfiguration &other);
    OnvifVideoSourceConfiguration &operator=(const OnvifVideoSourceConfiguration &other);
    ~OnvifVideoSourceConfiguration() override;

    /// Whether the tokens are equal. Nothing else is compared.
    bool operator==(const OnvifVideoSourceConfiguration &other) const;
    bool operator!=(const OnvifVideoSourceConfiguration &other) const; ///< The opposite of ==.
};

/// A video encoder configuration: how a profile's pictures are encoded.
///
/// The options of the codecs and the multicast settings are not kept.
struct VORNSDK_ONVIF_EXPORT OnvifVideoEncoderConfiguration : OnvifDataStructure
{
    QString name;     ///< Display name, from "Name".
    QString token;    ///< Identity, from the attribute "token".
    QString encoding; ///< Name of the codec, such as "H264", from "Encoding".
    int useCount = 0; ///< Number of profiles that use the configuration, from "UseCount".

    /// Size of the picture in pixels, from "Width" and "Height" of "Resolution". Invalid, -1 by -1, if there is no
    /// "Resolution"; a side that it lacks is 0.
    QSize resolution;

    double quality = 0.0;     ///< Quality of the picture, higher is better, from "Quality".
    int frameRateLimit = 0;   ///< The most frames in a second, from "FrameRateLimit" of "RateControl".
    int encodingInterval = 0; ///< One in so many frames is encoded, from "EncodingInterval" of "RateControl".
    int bitrateLimit = 0;     ///< The most kilobits in a second, from "BitrateLimit" of "RateControl".
    QString sessionTimeout; ///< When an RTSP session ends unless it is renewed, such as "PT60S", from "SessionTimeout".

    /// A null record.
    OnvifVideoEncoderConfiguration();

    /// Reads the element of \a node. The record is null only if the node is a missing one.
    explicit OnvifVideoEncoderConfiguration(const XmlResponseNode &node);

    OnvifVideoEncoderConfiguration(const OnvifVideoEncoderConfiguration &other);
    OnvifVideoEncoderConfiguration &operator=(const OnvifVideoEncoderConfiguration &other);
    ~OnvifVideoEncoderConfiguration() override;

    /// Whether the tokens are equal. Nothing else is compared.
    bool operator==(const OnvifVideoEncoderConfiguration &other) const;
    bool operator!=(const OnvifVideoEncoderConfiguration &other) const; ///< The opposite of ==.
};

/// An audio source configuration: which audio input a profile takes its sound from.
struct VORNSDK_ONVIF_EXPORT OnvifAudioSourceConfiguration : OnvifDataStructure
{
    QString name;        ///< Display name, from "Name".
    QString token;       ///< Identity, from the attribute "token".
    int useCount = 0;    ///< Number of profiles that use the configuration, from "UseCount".
    QString sourceToken; ///< Token of the audio source, from "SourceToken".

    /// A null record.
    OnvifAudioSourceConfiguration();

    /// Reads the element of \a node. The record is null only if the node is a missing one.
    explicit OnvifAudioSourceConfiguration(const XmlResponseNode &node);

    OnvifAudioSourceConfiguration(const OnvifAudioSourceConfiguration &other);
    OnvifAudioSourceConfiguration &operator=(const OnvifAudioSourceConfiguration &other);
    ~OnvifAudioSourceConfiguration() override;

    /// Whether the tokens are equal. Nothing else is compared.
    bool operator==(const OnvifAudioSourceConfiguration &other) const;
    bool operator!=(const OnvifAudioSourceConfiguration &other) const; ///< The opposite of ==.
};

/// An audio output configuration: which audio output a profile plays to, and how loud.
struct VORNSDK_ONVIF_EXPORT OnvifAudioOutputConfiguration : OnvifDataStructure
{
    QString name;                 ///< Display name, from "Name".
    QString token;                ///< Identity, from the attribute "token".
    unsigned int useCount = 0;    ///< Number of profiles that use the configuration, from "UseCount".
    QString outputToken;          ///< Token of the audio output, from "OutputToken".
    unsigned int outputLevel = 0; ///< Volume, in a range of the device's own, from "OutputLevel".
    QString sendPrimacy;          ///< URI of who may speak when, from "SendPrimacy".

    /// A null record.
    OnvifAudioOutputConfiguration();

    /// Reads the element of \a node. The record is null only if the node is a missing one.
    explicit OnvifAudioOutputConfiguration(const XmlResponseNode &node);

    OnvifAudioOutputConfiguration(const OnvifAudioOutputConfiguration &other);
    OnvifAudioOutputConfiguration &operator=(const OnvifAudioOutputConfiguration &other);
    ~OnvifAudioOutputConfiguration() override;

    /// Whether the tokens are equal. Nothing else is compared.
    bool operator==(const OnvifAudioOutputConfiguration &other) const;
    bool operator!=(const OnvifAudioOutputConfiguration &other) const; ///< The opposite of ==.
};

/// An audio encoder configuration: how a profile's sound is encoded.
///
/// The multicast settings are not kept.
struct VORNSDK_ONVIF_EXPORT OnvifAudioEncoderConfiguration : OnvifDataStructure
{
    QString name;           ///< Display name, from "Name".
    QString token;          ///< Identity, from the attribute "token".
    QString encoding;       ///< Name of the codec, such as "AAC", from "Encoding".
    int useCount = 0;       ///< Number of profiles that use the configuration, from "UseCount".
    int bitrate = 0;        ///< Kilobits in a second, from "Bitrate".
    int sampleRate = 0;     ///< Thousands of samples in a second, from "SampleRate".
    QString sessionTimeout; ///< When an RTSP session ends unless it is renewed, such as "PT60S", from "SessionTimeout".

    /// A null record.
    OnvifAudioEncoderConfiguration();

    /// Reads the element of \a node. The record is null only if the node is a missing one.
    explicit OnvifAudioEncoderConfiguration(const XmlResponseNode &node);

    OnvifAudioEncoderConfiguration(const OnvifAudioEncoderConfiguration &other);
    OnvifAudioEncoderConfiguration &operator=(const OnvifAudioEncoderConfiguration &other);
    ~OnvifAudioEncoderConfiguration() override;

    /// Whether the tokens are equal. Nothing else is compared.
    bool operator==(const OnvifAudioEncoderConfiguration &other) const;
    bool operator!=(const OnvifAudioEncoderConfiguration &other) const; ///< The opposite of ==.
};

/// An audio decoder configuration: how sound that is sent to the device is decoded.
///
/// Copy construction does not copy: the new record is a null one, whatever it is made from. Only assignment takes the
/// values over. So the elements of a list are null unless they have been assigned to, and are null again when the list
/// grows or is detached; a record that holds one loses it when it is copied or moved by construction. To keep a record,
/// assign it to one that exists.
struct VORNSDK_ONVIF_EXPORT OnvifAudioDecoderConfiguration : OnvifDataStructure
{
    QString name;     ///< Display name, from "Name".
    QString token;    ///< Identity, from the attribute "token".
    int useCount = 0; ///< Number of profiles that use the configuration. It is not read from the reply.

    /// A null record.
    OnvifAudioDecoderConfiguration();

    /// Reads the element of \a node. The record is null only if the node is a missing one.
    explicit OnvifAudioDecoderConfiguration(const XmlResponseNode &node);

    /// A null record: nothing is copied.
    OnvifAudioDecoderConfiguration(const OnvifAudioDecoderConfiguration &other);

    /// Copies everything.
    OnvifAudioDecoderConfiguration &operator=(const OnvifAudioDecoderConfiguration &other);
    ~OnvifAudioDecoderConfiguration() override;

    /// Whether the tokens are equal. Nothing else is compared.
    bool operator==(const OnvifAudioDecoderConfiguration &other) const;
    bool operator!=(const OnvifAudioDecoderConfiguration &other) const; ///< The opposite of ==.
};

/// A metadata configuration: what the metadata stream of a profile carries.
///
/// As assignment leaves out the modules, a list in which records are moved about, by erasing, inserting, swapping or
/// sorting, leaves the modules where they are.
struct VORNSDK_ONVIF_EXPORT OnvifMetadataConfiguration : OnvifDataStructure
{
    QString name;              ///< Display name, from "Name".
    QString token;             ///< Identity, from the attribute "token".
    unsigned int useCount = 0; ///< Number of profiles that use the configuration, from "UseCount".
    bool analytics = false;    ///< The stream carries what the analytics see, from "Analytics".

    /// When an RTSP session ends unless it is renewed, from "SessionTimeout" if that is a plain number. A duration such
    /// as "PT60S" gives 0.
    unsigned int sessionTimeout = 0;

    bool ptzStatus = false;           ///< The stream carries the PTZ status, from "Status" of "PTZStatus".
    bool ptzPosition = false;         ///< The stream carries the PTZ position, from "Position" of "PTZStatus".
    QString eventsFilter;             ///< Text of the filter of the events, from "Filter" of "Events".
    QString eventsSubscriptionPolicy; ///< Text from "SubscriptionPolicy" of "Events".

    /// The analytics modules, from "AnalyticsEngineConfiguration". Copied by copy construction, but not by assignment.
    OnvifAnalyticsEngineConfigurationVector analyticsEngineConfiguration;

    /// A null record.
    OnvifMetadataConfiguration();

    /// Reads the element of \a node. The record is null only if the node is a missing one.
    explicit OnvifMetadataConfiguration(const XmlResponseNode &node);

    OnvifMetadataConfiguration(const OnvifMetadataConfiguration &other);

    /// Copies everything but `analyticsEngineConfiguration`, which stays as it is.
    OnvifMetadataConfiguration &operator=(const OnvifMetadataConfiguration &other);
    ~OnvifMetadataConfiguration() override;

    /// Whether the tokens are equal. Nothing else is compared.
    bool operator==(const OnvifMetadataConfiguration &other) const;
    bool operator!=(const OnvifMetadataConfiguration &other) const; ///< The opposite of ==.
};

/// From where to where an axis can be moved, in the units of the device's coordinate space.
struct OnvifPtzRange
{
    double min =
        0.0; ///< From "Min"; 0 if that is missing or no number. May be infinite or "NaN" if the device says so.
    double max = 0.0; ///< From "Max", likewise.
};

/// A PTZ configuration: which PTZ node moves the camera of a profile, and how far.
///
/// The default speeds and spaces are not kept.
struct VORNSDK_ONVIF_EXPORT OnvifPtzConfiguration : OnvifDataStructure
{
    QString name;              ///< Display name, from "Name".
    QString token;             ///< Identity, from the attribute "token".
    QString defaultPtzTimeout; ///< When a continuous move ends by itself, such as "PT5S", from "DefaultPTZTimeout".
    int useCount = 0;          ///< Number of profiles that use the configuration, from "UseCount".
    QString nodeToken;         ///< Token of the PTZ node, from "NodeToken".

    OnvifPtzRange panTiltXRange; ///< Limits of panning, from "XRange" of any child of "PanTiltLimits".
    OnvifPtzRange panTiltYRange; ///< Limits of tilting, from "YRange" of any child of "PanTiltLimits".
    OnvifPtzRange zoomXRange;    ///< Limits of zooming, from "XRange" of any child of "ZoomLimits".

    /// A null record.
    OnvifPtzConfiguration();

    /// Reads the element of \a node. The record is null only if the node is a missing one.
    explicit OnvifPtzConfiguration(const XmlResponseNode &node);

    OnvifPtzConfiguration(const OnvifPtzConfiguration &other);
    OnvifPtzConfiguration &operator=(const OnvifPtzConfiguration &other);
    ~OnvifPtzConfiguration() override;

    /// Whether the tokens are equal. Nothing else is compared.
    bool operator==(const OnvifPtzConfiguration &other) const;
    bool operator!=(const OnvifPtzConfiguration &other) const; ///< The opposite of ==.
};

/// A video analytics configuration: the analytics modules and rules that work on a profile's pictures.
struct VORNSDK_ONVIF_EXPORT OnvifVideoAnalyticsConfiguration : OnvifDataStructure
{
    QString name;              ///< Display name, from "Name".
    QString token;             ///< Identity, from the attribute "token".
    unsigned int useCount = 0; ///< Number of profiles that use the configuration, from "UseCount".

    OnvifAnalyticsEngineConfigurationVector analyticsEngineConfiguration; ///< From "AnalyticsEngineConfiguration".
    OnvifRuleEngineConfigurationVector ruleEngineConfiguration;           ///< From "RuleEngineConfiguration".

    /// A null record.
    OnvifVideoAnalyticsConfiguration();

    /// Reads the element of \a node. The record is null only if the node is a missing one.
    explicit OnvifVideoAnalyticsConfiguration(const XmlResponseNode &node);

    OnvifVideoAnalyticsConfiguration(const OnvifVideoAnalyticsConfiguration &other);
    OnvifVideoAnalyticsConfiguration &operator=(const OnvifVideoAnalyticsConfiguration &other);
    ~OnvifVideoAnalyticsConfiguration() override;

    /// Whether the tokens are equal. Nothing else is compared.
    bool operator==(const OnvifVideoAnalyticsConfiguration &other) const;
    bool operator!=(const OnvifVideoAnalyticsConfiguration &other) const; ///< The opposite of ==.
};

} // namespace vorn

VORNSDK_ONVIF_DECLARE_LIST(vorn::OnvifVideoSourceConfiguration)
VORNSDK_ONVIF_DECLARE_LIST(vorn::OnvifVideoEncoderConfiguration)
VORNSDK_ONVIF_DECLARE_LIST(vorn::OnvifAudioSourceConfiguration)
VORNSDK_ONVIF_DECLARE_LIST(vorn::OnvifAudioOutputConfiguration)
VORNSDK_ONVIF_DECLARE_LIST(vorn::OnvifAudioEncoderConfiguration)
VORNSDK_ONVIF_DECLARE_LIST(vorn::OnvifAudioDecoderConfiguration)
VORNSDK_ONVIF_DECLARE_LIST(vorn::OnvifPtzConfiguration)
VORNSDK_ONVIF_DECLARE_LIST(vorn::OnvifVideoAnalyticsConfiguration)

namespace vorn {

/// The video source configurations of a device.
struct VORNSDK_ONVIF_EXPORT OnvifVideoSourceConfigurationVector : QList<OnvifVideoSourceConfiguration>,
                                                                  OnvifResponseStructure
{
    /// An empty list.
    OnvifVideoSourceConfigurationVector();

    /// Reads each "/Configurations" of the reply \a bytes below the path \a root of its response element, such as
    /// "/Envelope/Body/GetVideoSourceConfigurationsResponse".
    OnvifVideoSourceConfigurationVector(const QByteArray &bytes, const QString &root);

    OnvifVideoSourceConfigurationVector(const OnvifVideoSourceConfigurationVector &other);
    OnvifVideoSourceConfigurationVector(OnvifVideoSourceConfigurationVector &&other) noexcept;
    OnvifVideoSourceConfigurationVector &operator=(const OnvifVideoSourceConfigurationVector &other);
    OnvifVideoSourceConfigurationVector &operator=(OnvifVideoSourceConfigurationVector &&other) noexcept;
    ~OnvifVideoSourceConfigurationVector();
};

/// The video source configurations that can be added to a profile: the answer to
/// GetCompatibleVideoSourceConfigurations.
struct VORNSDK_ONVIF_EXPORT OnvifCompatibleVideoSourceConfigurationVector : OnvifVideoSourceConfigurationVector
{
    /// An empty list.
    OnvifCompatibleVideoSourceConfigurationVector();

    /// Reads \a bytes below the root path "/Envelope/Body/GetCompatibleVideoSourceConfigurationsResponse".
    explicit OnvifCompatibleVideoSourceConfigurationVector(const QByteArray &bytes);

    OnvifCompatibleVideoSourceConfigurationVector(const OnvifCompatibleVideoSourceConfigurationVector &other);
    OnvifCompatibleVideoSourceConfigurationVector(OnvifCompatibleVideoSourceConfigurationVector &&other) noexcept;
    OnvifCompatibleVideoSourceConfigurationVector &
    operator=(const OnvifCompatibleVideoSourceConfigurationVector &other);
    OnvifCompatibleVideoSourceConfigurationVector &
    operator=(OnvifCompatibleVideoSourceConfigurationVector &&other) noexcept;
    ~OnvifCompatibleVideoSourceConfigurationVector();
};

/// The video encoder configurations of a device.
struct VORNSDK_ONVIF_EXPORT OnvifVideoEncoderConfigurationVector : QList<OnvifVideoEncoderConfiguration>,
                                                                   OnvifResponseStructure
{
    /// An empty list.
    OnvifVideoEncoderConfigurationVector();

    /// Reads each "/Configurations" of the reply \a bytes below the path \a root of its response element, such as
    /// "/Envelope/Body/GetVideoEncoderConfigurationsResponse".
    OnvifVideoEncoderConfigurationVector(const QByteArray &bytes, const QString &root);

    OnvifVideoEncoderConfigurationVector(const OnvifVideoEncoderConfigurationVector &other);
    OnvifVideoEncoderConfigurationVector(OnvifVideoEncoderConfigurationVector &&other) noexcept;
    OnvifVideoEncoderConfigurationVector &operator=(const OnvifVideoEncoderConfigurationVector &other);
    OnvifVideoEncoderConfigurationVector &operator=(OnvifVideoEncoderConfigurationVector &&other) noexcept;
    ~OnvifVideoEncoderConfigurationVector();
};

/// The video encoder configurations that can be added to a profile: the answer to
/// GetCompatibleVideoEncoderConfigurations.
struct VORNSDK_ONVIF_EXPORT OnvifCompatibleVideoEncoderConfigurationVector : OnvifVideoEncoderConfigurationVector
{
    /// An empty list.
    OnvifCompatibleVideoEncoderConfigurationVector();

    /// Reads \a bytes below the root path "/Envelope/Body/GetCompatibleVideoEncoderConfigurationsResponse".
    explicit OnvifCompatibleVideoEncoderConfigurationVector(const QByteArray &bytes);

    OnvifCompatibleVideoEncoderConfigurationVector(const OnvifCompatibleVideoEncoderConfigurationVector &other);
    OnvifCompatibleVideoEncoderConfigurationVector(OnvifCompatibleVideoEncoderConfigurationVector &&other) noexcept;
    OnvifCompatibleVideoEncoderConfigurationVector &
    operator=(const OnvifCompatibleVideoEncoderConfigurationVector &other);
    OnvifCompatibleVideoEncoderConfigurationVector &
    operator=(OnvifCompatibleVideoEncoderConfigurationVector &&other) noexcept;
    ~OnvifCompatibleVideoEncoderConfigurationVector();
};

/// The audio source configurations of a device.
struct VORNSDK_ONVIF_EXPORT OnvifAudioSourceConfigurationVector : QList<OnvifAudioSourceConfiguration>,
                                                                  OnvifResponseStructure
{
    /// An empty list.
    OnvifAudioSourceConfigurationVector();

    /// Reads each "/Configurations" of the reply \a bytes below the path \a root of its response element, such as
    /// "/Envelope/Body/GetAudioSourceConfigurationsResponse".
    OnvifAudioSourceConfigurationVector(const QByteArray &bytes, const QString &root);

    OnvifAudioSourceConfigurationVector(const OnvifAudioSourceConfigurationVector &other);
    OnvifAudioSourceConfigurationVector(OnvifAudioSourceConfigurationVector &&other) noexcept;
    OnvifAudioSourceConfigurationVector &operator=(const OnvifAudioSourceConfigurationVector &other);
    OnvifAudioSourceConfigurationVector &operator=(OnvifAudioSourceConfigurationVector &&other) noexcept;
    ~OnvifAudioSourceConfigurationVector();
};

/// The audio source configurations that can be added to a profile: the answer to
/// GetCompatibleAudioSourceConfigurations.
struct VORNSDK_ONVIF_EXPORT OnvifCompatibleAudioSourceConfigurationVector : OnvifAudioSourceConfigurationVector
{
    /// An empty list.
    OnvifCompatibleAudioSourceConfigurationVector();

    /// Reads \a bytes below the root path "/Envelope/Body/GetCompatibleAudioSourceConfigurationsResponse".
    explicit OnvifCompatibleAudioSourceConfigurationVector(const QByteArray &bytes);

    OnvifCompatibleAudioSourceConfigurationVector(const OnvifCompatibleAudioSourceConfigurationVector &other);
    OnvifCompatibleAudioSourceConfigurationVector(OnvifCompatibleAudioSourceConfigurationVector &&other) noexcept;
    OnvifCompatibleAudioSourceConfigurationVector &
    operator=(const OnvifCompatibleAudioSourceConfigurationVector &other);
    OnvifCompatibleAudioSourceConfigurationVector &
    operator=(OnvifCompatibleAudioSourceConfigurationVector &&other) noexcept;
    ~OnvifCompatibleAudioSourceConfigurationVector();
};

/// The audio output configurations of a device.
///
/// An "Options" element is read as if it were a configuration, and stands behind the configurations.
struct VORNSDK_ONVIF_EXPORT OnvifAudioOutputConfigurationVector : QList<OnvifAudioOutputConfiguration>,
                                                                  OnvifResponseStructure
{
    /// An empty list.
    OnvifAudioOutputConfigurationVector();

    /// Reads each "/Configurations", then each "/Options" of the reply \a bytes below the path \a root of its response
    /// element, such as "/Envelope/Body/GetAudioOutputConfigurationsResponse".
    OnvifAudioOutputConfigurationVector(const QByteArray &bytes, const QString &root);

    OnvifAudioOutputConfigurationVector(const OnvifAudioOutputConfigurationVector &other);
    OnvifAudioOutputConfigurationVector(OnvifAudioOutputConfigurationVector &&other) noexcept;
    OnvifAudioOutputConfigurationVector &operator=(const OnvifAudioOutputConfigurationVector &other);
    OnvifAudioOutputConfigurationVector &operator=(OnvifAudioOutputConfigurationVector &&other) noexcept;
    ~OnvifAudioOutputConfigurationVector();
};

/// The audio output configurations that can be added to a profile: the answer to
/// GetCompatibleAudioOutputConfigurations.
struct VORNSDK_ONVIF_EXPORT OnvifCompatibleAudioOutputConfigurationVector : OnvifAudioOutputConfigurationVector
{
    /// An empty list.
    OnvifCompatibleAudioOutputConfigurationVector();

    /// Reads \a bytes below the root path "/Envelope/Body/GetCompatibleAudioOutputConfigurationsResponse".
    explicit OnvifCompatibleAudioOutputConfigurationVector(const QByteArray &bytes);

    OnvifCompatibleAudioOutputConfigurationVector(const OnvifCompatibleAudioOutputConfigurationVector &other);
    OnvifCompatibleAudioOutputConfigurationVector(OnvifCompatibleAudioOutputConfigurationVector &&other) noexcept;
    OnvifCompatibleAudioOutputConfigurationVector &
    operator=(const OnvifCompatibleAudioOutputConfigurationVector &other);
    OnvifCompatibleAudioOutputConfigurationVector &
    operator=(OnvifCompatibleAudioOutputConfigurationVector &&other) noexcept;
    ~OnvifCompatibleAudioOutputConfigurationVector();
};

/// The audio encoder configurations of a device.
struct VORNSDK_ONVIF_EXPORT OnvifAudioEncoderConfigurationVector : QList<OnvifAudioEncoderConfiguration>,
                                                                   OnvifResponseStructure
{
    /// An empty list.
    OnvifAudioEncoderConfigurationVector();

    /// Reads each "/Configurations" of the reply \a bytes below the path \a root of its response element, such as
    /// "/Envelope/Body/GetAudioEncoderConfigurationsResponse".
    OnvifAudioEncoderConfigurationVector(const QByteArray &bytes, const QString &root);

    OnvifAudioEncoderConfigurationVector(const OnvifAudioEncoderConfigurationVector &other);
    OnvifAudioEncoderConfigurationVector(OnvifAudioEncoderConfigurationVector &&other) noexcept;
    OnvifAudioEncoderConfigurationVector &operator=(const OnvifAudioEncoderConfigurationVector &other);
    OnvifAudioEncoderConfigurationVector &operator=(OnvifAudioEncoderConfigurationVector &&other) noexcept;
    ~OnvifAudioEncoderConfigurationVector();
};

/// The audio encoder configurations that can be added to a profile: the answer to
/// GetCompatibleAudioEncoderConfigurations.
struct VORNSDK_ONVIF_EXPORT OnvifCompatibleAudioEncoderConfigurationVector : OnvifAudioEncoderConfigurationVector
{
    /// An empty list.
    OnvifCompatibleAudioEncoderConfigurationVector();

    /// Reads \a bytes below the root path "/Envelope/Body/GetCompatibleAudioEncoderConfigurationsResponse".
    explicit OnvifCompatibleAudioEncoderConfigurationVector(const QByteArray &bytes);

    OnvifCompatibleAudioEncoderConfigurationVector(const OnvifCompatibleAudioEncoderConfigurationVector &other);
    OnvifCompatibleAudioEncoderConfigurationVector(OnvifCompatibleAudioEncoderConfigurationVector &&other) noexcept;
    OnvifCompatibleAudioEncoderConfigurationVector &
    operator=(const OnvifCompatibleAudioEncoderConfigurationVector &other);
    OnvifCompatibleAudioEncoderConfigurationVector &
    operator=(OnvifCompatibleAudioEncoderConfigurationVector &&other) noexcept;
    ~OnvifCompatibleAudioEncoderConfigurationVector();
};

/// The audio decoder configurations of a device. Each element is a null record: only their number is kept.
struct VORNSDK_ONVIF_EXPORT OnvifAudioDecoderConfigurationVector : QList<OnvifAudioDecoderConfiguration>,
                                                                   OnvifResponseStructure
{
    /// An empty list.
    OnvifAudioDecoderConfigurationVector();

    /// Reads each "/Configurations" of the reply \a bytes below the path \a root of its response element, such as
    /// "/Envelope/Body/GetAudioDecoderConfigurationsResponse".
    OnvifAudioDecoderConfigurationVector(const QByteArray &bytes, const QString &root);

    OnvifAudioDecoderConfigurationVector(const OnvifAudioDecoderConfigurationVector &other);
    OnvifAudioDecoderConfigurationVector(OnvifAudioDecoderConfigurationVector &&other) noexcept;
    OnvifAudioDecoderConfigurationVector &operator=(const OnvifAudioDecoderConfigurationVector &other);
    OnvifAudioDecoderConfigurationVector &operator=(OnvifAudioDecoderConfigurationVector &&other) noexcept;
    ~OnvifAudioDecoderConfigurationVector();
};

/// The audio decoder configurations that can be added to a profile: the answer to
/// GetCompatibleAudioDecoderConfigurations. Each element is a null record: only their number is kept.
struct VORNSDK_ONVIF_EXPORT OnvifCompatibleAudioDecoderConfigurationVector : OnvifAudioDecoderConfigurationVector
{
    /// An empty list.
    OnvifCompatibleAudioDecoderConfigurationVector();

    /// Reads \a bytes below the root path "/Envelope/Body/GetCompatibleAudioDecoderConfigurationsResponse".
    explicit OnvifCompatibleAudioDecoderConfigurationVector(const QByteArray &bytes);

    OnvifCompatibleAudioDecoderConfigurationVector(const OnvifCompatibleAudioDecoderConfigurationVector &other);
    OnvifCompatibleAudioDecoderConfigurationVector(OnvifCompatibleAudioDecoderConfigurationVector &&other) noexcept;
    OnvifCompatibleAudioDecoderConfigurationVector &
    operator=(const OnvifCompatibleAudioDecoderConfigurationVector &other);
    OnvifCompatibleAudioDecoderConfigurationVector &
    operator=(OnvifCompatibleAudioDecoderConfigurationVector &&other) noexcept;
    ~OnvifCompatibleAudioDecoderConfigurationVector();
};

/// The base of the list of compatible metadata configurations. Not for use by programs: the library does not export it.
struct OnvifMetadataConfigurationVector : QList<OnvifMetadataConfiguration>, OnvifResponseStructure
{
    /// An empty list.
    OnvifMetadataConfigurationVector();

    /// Reads each "/Configurations" of the reply \a bytes below the path \a root of its response element, such as
    /// "/Envelope/Body/GetMetadataConfigurationsResponse".
    OnvifMetadataConfigurationVector(const QByteArray &bytes, const QString &root);

    OnvifMetadataConfigurationVector(const OnvifMetadataConfigurationVector &other);
    OnvifMetadataConfigurationVector(OnvifMetadataConfigurationVector &&other) noexcept;
    OnvifMetadataConfigurationVector &operator=(const OnvifMetadataConfigurationVector &other);
    OnvifMetadataConfigurationVector &operator=(OnvifMetadataConfigurationVector &&other) noexcept;
    ~OnvifMetadataConfigurationVector();
};

/// The metadata configurations that can be added to a profile: the answer to GetCompatibleMetadataConfigurations.
struct VORNSDK_ONVIF_EXPORT OnvifCompatibleMetadataConfigurationVector : OnvifMetadataConfigurationVector
{
    /// An empty list.
    OnvifCompatibleMetadataConfigurationVector();

    /// Reads \a bytes below the root path "/Envelope/Body/GetCompatibleMetadataConfigurationsResponse".
    explicit OnvifCompatibleMetadataConfigurationVector(const QByteArray &bytes);

    OnvifCompatibleMetadataConfigurationVector(const OnvifCompatibleMetadataConfigurationVector &other);
    OnvifCompatibleMetadataConfigurationVector(OnvifCompatibleMetadataConfigurationVector &&other) noexcept;
    OnvifCompatibleMetadataConfigurationVector &operator=(const OnvifCompatibleMetadataConfigurationVector &other);
    OnvifCompatibleMetadataConfigurationVector &operator=(OnvifCompatibleMetadataConfigurationVector &&other) noexcept;
    ~OnvifCompatibleMetadataConfigurationVector();
};

/// The PTZ configurations of a device.
struct VORNSDK_ONVIF_EXPORT OnvifPtzConfigurationVector : QList<OnvifPtzConfiguration>, OnvifResponseStructure
{
    /// An empty list.
    OnvifPtzConfigurationVector();

    /// Reads each "/PTZConfiguration" of the reply \a bytes below the path \a root of its response element, such as
    /// "/Envelope/Body/GetConfigurationsResponse".
    OnvifPtzConfigurationVector(const QByteArray &bytes, const QString &root);

    OnvifPtzConfigurationVector(const OnvifPtzConfigurationVector &other);
    OnvifPtzConfigurationVector(OnvifPtzConfigurationVector &&other) noexcept;
    OnvifPtzConfigurationVector &operator=(const OnvifPtzConfigurationVector &other);
    OnvifPtzConfigurationVector &operator=(OnvifPtzConfigurationVector &&other) noexcept;
    ~OnvifPtzConfigurationVector();
};

/// The PTZ configurations that can be added to a profile: the answer to GetCompatibleConfigurations of the PTZ service.
struct VORNSDK_ONVIF_EXPORT OnvifCompatiblePtzConfigurationVector : OnvifPtzConfigurationVector
{
    /// An empty list.
    OnvifCompatiblePtzConfigurationVector();

    /// Reads \a bytes below the root path "/Envelope/Body/GetCompatibleConfigurationsResponse".
    explicit OnvifCompatiblePtzConfigurationVector(const QByteArray &bytes);

    OnvifCompatiblePtzConfigurationVector(const OnvifCompatiblePtzConfigurationVector &other);
    OnvifCompatiblePtzConfigurationVector(OnvifCompatiblePtzConfigurationVector &&other) noexcept;
    OnvifCompatiblePtzConfigurationVector &operator=(const OnvifCompatiblePtzConfigurationVector &other);
    OnvifCompatiblePtzConfigurationVector &operator=(OnvifCompatiblePtzConfigurationVector &&other) noexcept;
    ~OnvifCompatiblePtzConfigurationVector();
};

/// The video analytics configurations of a device.
struct VORNSDK_ONVIF_EXPORT OnvifVideoAnalyticsConfigurationVector : QList<OnvifVideoAnalyticsConfiguration>,
                                                                     OnvifResponseStructure
{
    /// An empty list.
    OnvifVideoAnalyticsConfigurationVector();

    /// Reads each "/Configurations" of the reply \a bytes below the path \a root of its response element, such as
    /// "/Envelope/Body/GetVideoAnalyticsConfigurationsResponse".
    OnvifVideoAnalyticsConfigurationVector(const QByteArray &bytes, const QString &root);

    OnvifVideoAnalyticsConfigurationVector(const OnvifVideoAnalyticsConfigurationVector &other);
    OnvifVideoAnalyticsConfigurationVector(OnvifVideoAnalyticsConfigurationVector &&other) noexcept;
    OnvifVideoAnalyticsConfigurationVector &operator=(const OnvifVideoAnalyticsConfigurationVector &other);
    OnvifVideoAnalyticsConfigurationVector &operator=(OnvifVideoAnalyticsConfigurationVector &&other) noexcept;
    ~OnvifVideoAnalyticsConfigurationVector();
};

/// The video analytics configurations that can be added to a profile: the answer to
/// GetCompatibleVideoAnalyticsConfigurations.
struct VORNSDK_ONVIF_EXPORT OnvifCompatibleVideoAnalyticsConfigurationVector : OnvifVideoAnalyticsConfigurationVector
{
    /// An empty list.
    OnvifCompatibleVideoAnalyticsConfigurationVector();

    /// Reads \a bytes below the root path "/Envelope/Body/GetCompatibleVideoAnalyticsConfigurationsResponse".
    explicit OnvifCompatibleVideoAnalyticsConfigurationVector(const QByteArray &bytes);

    OnvifCompatibleVideoAnalyticsConfigurationVector(const OnvifCompatibleVideoAnalyticsConfigurationVector &other);
    OnvifCompatibleVideoAnalyticsConfigurationVector(OnvifCompatibleVideoAnalyticsConfigurationVector &&other) noexcept;
    OnvifCompatibleVideoAnalyticsConfigurationVector &
    operator=(const OnvifCompatibleVideoAnalyticsConfigurationVector &other);
    OnvifCompatibleVideoAnalyticsConfigurationVector &
    operator=(OnvifCompatibleVideoAnalyticsConfigurationVector &&other) noexcept;
    ~OnvifCompatibleVideoAnalyticsConfigurationVector();
};

} // namespace vorn
