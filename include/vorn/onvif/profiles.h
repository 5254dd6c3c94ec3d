#pragma once

/// \file
/// Media profiles.

#include <vorn/onvif/bases.h>
#include <vorn/onvif/configurations.h>
#include <vorn/onvif/export.h>

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

namespace vorn {

/// A media profile: one configuration of each kind that a stream is made of.
///
/// A configuration that the profile does not have is a null record: ask `isNull()`. Only OnvifProfileVector reads
/// configurations from a reply.
///
/// A profile that is copied or moved by construction, as it is on its way into a list and when a list grows or is
/// detached, has a null `audioDecoder`; assignment takes it over. Assignment leaves
/// `metadata.analyticsEngineConfiguration` as it was; copy construction takes it over.
struct VORNSDK_ONVIF_EXPORT OnvifProfile : OnvifDataStructure, OnvifResponseStructure
{
    QString name;       ///< Display name, from the element "Name". Null if that is missing.
    QString token;      ///< Identity, from the attribute "token". Null if that is missing.
    bool fixed = false; ///< The profile cannot be deleted: the attribute "fixed" is "true".

    OnvifVideoSourceConfiguration videoSource;       ///< From "VideoSourceConfiguration".
    OnvifAudioSourceConfiguration audioSource;       ///< From "AudioSourceConfiguration".
    OnvifVideoEncoderConfiguration videoEncoder;     ///< From "VideoEncoderConfiguration".
    OnvifAudioEncoderConfiguration audioEncoder;     ///< From "AudioEncoderConfiguration".
    OnvifVideoAnalyticsConfiguration videoAnalytics; ///< From "VideoAnalyticsConfiguration".
    OnvifPtzConfiguration ptz;                       ///< From "PTZConfiguration".
    OnvifMetadataConfiguration metadata;             ///< From "MetadataConfiguration"; its list of modules stays empty.
    OnvifAudioOutputConfiguration audioOutput;       ///< From "AudioOutputConfiguration" of "Extension".
    OnvifAudioDecoderConfiguration audioDecoder;     ///< Null in every profile that is read: see above.

    /// A null profile.
    OnvifProfile();

    /// Reads the "/Profile" of the reply \a bytes below the path \a root of its response element, such as
    /// "/Envelope/Body/GetProfileResponse": its name, token and `fixed`, but no configuration. Never null; if the reply
    /// holds no profile, the fields keep their defaults.
    OnvifProfile(const QByteArray &bytes, const QString &root);

    /// A profile without configurations, which counts as saved.
    OnvifProfile(const QString &profileName, const QString &profileToken, bool isFixed);

    OnvifProfile(const OnvifProfile &other);
    OnvifProfile(OnvifProfile &&other) noexcept;
    OnvifProfile &operator=(const OnvifProfile &other);
    OnvifProfile &operator=(OnvifProfile &&other) noexcept;
    ~OnvifProfile() override;

    /// Whether the tokens are equal. Nothing else is compared.
    bool operator==(const OnvifProfile &other) const;
    bool operator!=(const OnvifProfile &other) const; ///< The opposite of ==.

    /// Whether the profile was made from a name, a token and `fixed`, as the ones of a list are. Travels with copies.
    bool isSaved() const;

private:
    bool m_saved = false;
};

} // namespace vorn

VORNSDK_ONVIF_DECLARE_LIST(vorn::OnvifProfile)

namespace vorn {

/// The media profiles of a device: the answer to GetProfiles.
///
/// They stand in document order. A reply of another kind, also a fault, gives an empty list.
struct VORNSDK_ONVIF_EXPORT OnvifProfileVector : QList<OnvifProfile>, OnvifResponseStructure
{
    /// An empty list.
    OnvifProfileVector();

    /// Reads each "/Profiles" of the reply \a bytes, with the configurations that it holds, below the path \a root of
    /// its response element, "/Envelope/Body/GetProfilesResponse".
    OnvifProfileVector(const QByteArray &bytes, const QString &root);

    OnvifProfileVector(const OnvifProfileVector &other);
    OnvifProfileVector(OnvifProfileVector &&other) noexcept;
    OnvifProfileVector &operator=(const OnvifProfileVector &other);
    OnvifProfileVector &operator=(OnvifProfileVector &&other) noexcept;
    ~OnvifProfileVector();
};

} // namespace vorn
