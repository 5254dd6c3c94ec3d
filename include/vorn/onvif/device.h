#pragma once

/// \file
/// Records that tell what a device is.

#include <vorn/onvif/bases.h>
#include <vorn/onvif/export.h>

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace vorn {

/// Who made a device and what it is: the answer to GetDeviceInformation.
///
/// Each field is the text of one element of the reply, verbatim. A field whose element is missing is null, and so are
/// all of them if the reply is of another kind or cannot be parsed.
struct VORNSDK_ONVIF_EXPORT OnvifDeviceInformation : OnvifResponseStructure
{
    QString manufacturer;    ///< From "/Manufacturer".
    QString model;           ///< From "/Model".
    QString firmwareVersion; ///< From "/FirmwareVersion".
    QString serialNumber;    ///< From "/SerialNumber"; its form is the maker's own.
    QString hardwareId;      ///< From "/HardwareId"; its form is the maker's own.

    /// A record with five null fields.
    OnvifDeviceInformation();

    /// Reads \a bytes below the root path "/Envelope/Body/GetDeviceInformationResponse".
    explicit OnvifDeviceInformation(const QByteArray &bytes);

    OnvifDeviceInformation(const OnvifDeviceInformation &other);
    OnvifDeviceInformation(OnvifDeviceInformation &&other) noexcept;
    OnvifDeviceInformation &operator=(const OnvifDeviceInformation &other);
    OnvifDeviceInformation &operator=(OnvifDeviceInformation &&other) noexcept;
    ~OnvifDeviceInformation();
};

/// What a device offers: the answer to GetCapabilities.
///
/// Each field is read from one element below the root path "/Envelope/Body/GetCapabilitiesResponse/Capabilities"; the
/// paths are not uniform. An element that is missing leaves its field empty, false or 0. Booleans are true for the
/// texts "true" and "1"; numbers are 0 if the text is no unsigned number.
///
/// Each service has its address in `xAddr`: a URL, verbatim. The `has...` queries say whether it is not empty.
struct VORNSDK_ONVIF_EXPORT OnvifCapabilities : OnvifResponseStructure
{
    /// The analytics service, from "/Analytics".
    struct Analytics
    {
        QString xAddr;                       ///< Address of the service.
        bool ruleSupport = false;            ///< Rules are supported.
        bool analyticsModuleSupport = false; ///< Analytics modules are supported.
    };

    /// Network features, from "/Device/Network".
    struct Network
    {
        bool ipFilter = false;           ///< IP filtering.
        bool zeroConfiguration = false;  ///< Zero configuration addresses.
        bool ipVersion6 = false;         ///< IPv6.
        bool dynDns = false;             ///< Dynamic DNS.
        bool dot11Configuration = false; ///< IEEE 802.11 configuration, from "/Device/Network/Extension".
    };

    /// A version of ONVIF that the device supports: 2.40 has the major number 2 and the minor number 40.
    struct SupportedVersion
    {
        unsigned int major = 0; ///< From "Major".
        unsigned int minor = 0; ///< From "Minor".
    };

    /// System features, from "/Device/System".
    struct System
    {
        bool discoveryResolve = false;             ///< WS-Discovery Resolve requests.
        bool discoveryBye = false;                 ///< WS-Discovery Bye messages.
        bool remoteDiscovery = false;              ///< Discovery through a proxy.
        QList<SupportedVersion> supportedVersions; ///< One for each "SupportedVersions", in document order.
        bool systemBackup = false;                 ///< Backup and restore.
        bool firmwareUpgrade = false;              ///< Firmware upgrade.
        bool systemLogging = false;                ///< System logs.
        bool httpSystemBackup = false;             ///< Backup over HTTP, from "/Device/System/Extension".
        bool httpFirmwareUpgrade = false;          ///< Upgrade over HTTP, from "/Device/System/Extension".
        bool httpSystemLogging = false;            ///< Logs over HTTP, from "/Device/System/Extension".
        bool httpSupportInformation = false;       ///< Support information over HTTP, from "/Device/System/Extension".
    };

    /// Inputs and outputs, in part from "/Device/IO" and in part from the device I/O service, "/Extension/DeviceIO".
    struct IO
    {
        QString xAddr;                 ///< Address of the service, from "/Extension/DeviceIO".
        unsigned int videoSources = 0; ///< Number of video inputs, from "/Extension/DeviceIO".
        unsigned int videoOutputs = 0; ///< Number of video outputs, from "/Extension/DeviceIO".
        unsigned int audioSources = 0; ///< Number of audio inputs, from "/Extension/DeviceIO".
        unsigned int audioOutputs = 0; ///< Always 0: it is not read from the reply.
        unsigned int relayOutputs = 0; ///< Number of relays, from "/Device/IO" or, if that is 0, "/Extension/DeviceIO".
        unsigned int inputConnectors = 0; ///< Number of digital inputs, from "/Device/IO".
        bool auxiliary = false;           ///< Auxiliary commands are supported, from "/Device/IO/Extension".

        /// The auxiliary commands in document order, each the text of one "/Device/IO/Extension/AuxiliaryCommands".
        /// Empty unless `auxiliary` is true.
        QStringList auxiliaryCommands;
    };

    /// Security features, from "/Device/Security".
    struct Security
    {
        bool tls10 = false;                ///< TLS 1.0, from "/Device/Security/Extension".
        bool tls11 = false;                ///< TLS 1.1.
        bool tls12 = false;                ///< TLS 1.2.
        bool onboardKeyGeneration = false; ///< Keys can be made on the device.
        bool accessPolicyConfig = false;   ///< Access policies can be configured.
        bool x509Token = false;            ///< WS-Security X.509 tokens.
        bool samlToken = false;            ///< WS-Security SAML tokens.
        bool kerberosToken = false;        ///< WS-Security Kerberos tokens.
        bool relToken = false;             ///< WS-Security REL tokens.
        bool dot1x = false;                ///< IEEE 802.1X, from "/Device/Security/Extension/Extension".

        /// The numbers of the EAP methods as IANA assigns them, in document order, each from one
        /// "/Device/Security/Extension/Extension/SupportedEAPMethod"; 0 for a text that is no number.
        QList<unsigned int> supportedEapMethods;

        bool remoteUserHandling = false; ///< Remote users, from "/Device/Security/Extension/Extension".
    };

    /// The device service, from "/Device".
    struct Device
    {
        QString xAddr;     ///< Address of the service.
        Network network;   ///< Network features.
        System system;     ///< System features.
        IO io;             ///< Inputs and outputs.
        Security security; ///< Security features.
    };

    /// The event service, from "/Events".
    struct Events
    {
        QString xAddr;                                              ///< Address of the service.
        bool wsSubscriptionPolicySupport = false;                   ///< WS-Notification subscription policies.
        bool wsPullPointSupport = false;                            ///< WS-Notification pull points.
        bool wsPausableSubscriptionManagerInterfaceSupport = false; ///< WS-Notification pausable subscriptions.
    };

    /// The imaging service, from "/Imaging".
    struct Imaging
    {
        QString xAddr; ///< Address of the service.
    };

    /// The media service, from "/Media".
    struct Media
    {
        QString xAddr;             ///< Address of the service.
        bool rtpMulticast = false; ///< RTP multicast, from "/Media/StreamingCapabilities".
        bool rtpTcp = false;       ///< RTP over TCP, from "/Media/StreamingCapabilities".
        bool rtpRtspTcp = false;   ///< RTP over RTSP over TCP, from "/Media/StreamingCapabilities".

        /// The most profiles that the device can hold, from "/Media/Extension/ProfileCapabilities".
        unsigned int maximumNumberOfProfiles = 0;
    };

    /// The PTZ service, from "/PTZ".
    struct PTZ
    {
        QString xAddr; ///< Address of the service.
    };

    /// The recording service, from "/Extension/Recording".
    struct Recording
    {
        QString xAddr;                    ///< Address of the service.
        bool dynamicRecordings = false;   ///< Recordings can be made and deleted.
        bool dynamicTracks = false;       ///< Tracks can be made and deleted.
        bool deleteData = false;          ///< Recorded data can be deleted.
        bool receiverSource = false;      ///< Receivers can be recorded.
        bool mediaProfileSource = false;  ///< Media profiles can be recorded.
        unsigned int maxStringLength = 0; ///< The most characters in the informative texts of a recording.
    };

    /// The search service, from "/Extension/Search".
    struct Search
    {
        QString xAddr;               ///< Address of the service.
        bool metadataSearch = false; ///< Metadata can be searched.
    };

    /// The replay service, from "/Extension/Replay".
    struct Replay
    {
        QString xAddr; ///< Address of the service.
    };

    /// The service of an analytics device, from "/Extension/AnalyticsDevice".
    struct AnalyticsDevice
    {
        QString xAddr;            ///< Address of the service.
        bool ruleSupport = false; ///< Rules are supported.
    };

    /// The display service, from "/Extension/Display".
    struct Display
    {
        QString xAddr;            ///< Address of the service.
        bool fixedLayout = false; ///< The layouts are fixed.
    };

    Analytics analytics;             ///< The analytics service.
    Device device;                   ///< The device service and the device's features.
    Events events;                   ///< The event service.
    Imaging imaging;                 ///< The imaging service.
    Media media;                     ///< The media service.
    PTZ ptz;                         ///< The PTZ service.
    Recording recording;             ///< The recording service.
    Search search;                   ///< The search service.
    Replay replay;                   ///< The replay service.
    AnalyticsDevice analyticsDevice; ///< The service of an analytics device.
    Display display;                 ///< The display service.

    /// No capabilities.
    OnvifCapabilities();

    /// Reads the reply \a bytes.
    explicit OnvifCapabilities(const QByteArray &bytes);

    OnvifCapabilities(const OnvifCapabilities &other);
    OnvifCapabilities(OnvifCapabilities &&other) noexcept;
    OnvifCapabilities &operator=(const OnvifCapabilities &other);
    OnvifCapabilities &operator=(OnvifCapabilities &&other) noexcept;
    ~OnvifCapabilities();

    bool hasAnalytics() const;       ///< Whether `analytics.xAddr` is not empty.
    bool hasAnalyticsDevice() const; ///< Whether `analyticsDevice.xAddr` is not empty.
    bool hasDevice() const;          ///< Whether `device.xAddr` is not empty.
    bool hasDisplay() const;         ///< Whether `display.xAddr` is not empty.
    bool hasEvents() const;          ///< Whether `events.xAddr` is not empty.
    bool hasIO() const;              ///< Whether `device.io.xAddr` is not empty.
    bool hasImaging() const;         ///< Whether `imaging.xAddr` is not empty.
    bool hasMedia() const;           ///< Whether `media.xAddr` is not empty.
    bool hasPTZ() const;             ///< Whether `ptz.xAddr` is not empty.
    bool hasRecording() const;       ///< Whether `recording.xAddr` is not empty.
    bool hasReplay() const;          ///< Whether `replay.xAddr` is not empty.
    bool hasSearch() const;          ///< Whether `search.xAddr` is not empty.
};

} // namespace vorn
