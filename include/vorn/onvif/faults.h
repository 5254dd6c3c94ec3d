#pragma once

/// \file
/// One verdict and one sentence for any reply.

#include <vorn/onvif/bases.h>
#include <vorn/onvif/export.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

namespace vorn {

/// What every error can be asked.
class VORNSDK_ONVIF_EXPORT ErrorInterface
{
public:
    ErrorInterface();
    ErrorInterface(const ErrorInterface &other);
    ErrorInterface &operator=(const ErrorInterface &other);
    virtual ~ErrorInterface();

    /// A sentence for the user.
    virtual QString toString() const = 0;

    /// The kind of error as a number; 0 for none.
    virtual int errorId() const = 0;

    /// Makes this no error.
    virtual void reset() = 0;

    /// Whether there is an error.
    virtual bool hasError() const = 0;
};

/// The verdict on a reply: no fault, a SOAP fault with up to three levels of code, an HTTP failure or a transport
/// failure.
///
/// A client makes one of every reply it gets, tests hasError(), branches with is() on the faults that it treats
/// specially, and shows toString() to the user.
///
/// \code
/// const vorn::OnvifFault fault(bytes, "DeleteUsers", 0);
/// if (fault.hasError())
///     showToUser(fault.toString());
/// \endcode
///
/// These are faults:
/// - a SOAP 1.2 fault: a document with "/Envelope/Body/Fault/Code/Value". The codes are told by what stands behind the
///   prefix; namespaces play no part. A Sender fault whose reason mentions HTTP is an HTTP failure.
/// - an HTML error page: a document with "/html/head/title". The status is looked for as digits anywhere in the title;
/// - a bare fault, by which a transport tells that it failed: a document with "/Fault/Reason/Text".
///
/// Everything else is none: a good reply, but also a SOAP 1.1 fault, which has no Code, and bytes that cannot be
/// parsed.
struct VORNSDK_ONVIF_EXPORT OnvifFault : ErrorInterface, OnvifResponseStructure
{
    /// The class of a fault.
    enum FaultType : qint32 {
        NoFault = 0,                ///< the reply is no fault
        VersionMismatch = 1,        ///< SOAP code VersionMismatch
        MustUnderstand = 2,         ///< SOAP code MustUnderstand
        DataEncodingUnknown = 3,    ///< SOAP code DataEncodingUnknown
        Sender = 4,                 ///< SOAP code Sender: the request was wrong
        Receiver = 5,               ///< SOAP code Receiver: the device failed
        HttpBadRequest = 6,         ///< HTTP status 400
        HttpUnauthorised = 7,       ///< HTTP status 401
        HttpNotFound = 8,           ///< HTTP status 404
        HttpMethodNotAllowed = 9,   ///< HTTP status 405
        HttpUnsupportedMedia = 10,  ///< HTTP status 415
        BadUrl = 11,                ///< transport: the URL is missing or malformed
        ReceiveFailure = 12,        ///< transport: receiving failed
        EmptyReply = 13,            ///< transport: the reply was empty
        PartialFile = 14,           ///< transport: the reply was cut short
        HostNotResolved = 15,       ///< transport: the host name is unknown
        UnsupportedProtocol = 16,   ///< transport: the protocol is not supported
        UnknownSoapCode = 17,       ///< a SOAP fault with another code
        UnknownHttpError = 18,      ///< an HTTP failure with another status
        UnknownTransportError = 19, ///< a transport failure with another text
    };

    /// The first subcode of a SOAP fault, named as in the reply: "ter:InvalidArgVal" gives InvalidArgVal.
    enum SubcodeType : qint32 {
        NoSubcode = 0,
        WellFormed = 1,
        TagMismatch = 2,
        Tag = 3,
        Namespace = 4,
        MissingAttr = 5,
        ProhibAttr = 6,
        InvalidArgs = 7,
        InvalidArgVal = 8,
        UnknownAction = 9,
        OperationProhibited = 10,
        NotAuthorized = 11,
        ActionNotSupported = 12,
        Action = 13,
        OutofMemory = 14,
        CriticalError = 15,
    };

    /// The second subcode of a SOAP fault, named as in the reply: "ter:NoProfile" gives NoProfile. Each is known below
    /// certain codes and subcodes only.
    enum SpecificType : qint32 {
        NoSpecific = 0,
        AccesslogUnavailable = 1,
        CertificateFormat = 2,
        CertificateID = 3,
        CACertificateID = 4,
        InvalidBackupFile = 5,
        InvalidDateTime = 6,
        NtpServerUndefined = 7,
        InvalidDnsName = 8,
        TimeSyncedToNtp = 9,
        InvalidFirmware = 10,
        InvalidGatewayAddress = 11,
        InvalidHostname = 12,
        InvalidInterfaceSpeed = 13,
        InvalidInterfaceType = 14,
        InvalidIPv4Address = 15,
        NoIPv4Address = 16,
        InvalidIPv6Address = 17,
        NoIPv6Address = 18,
        InvalidMtuValue = 19,
        InvalidNetworkInterface = 20,
        InvalidTimeZone = 21,
        IPFilterListIsFull = 22,
        ModeError = 23,
        PolicyFormat = 24,
        RelayToken = 25,
        ServiceNotSupported = 26,
        SupportInformationUnavailable = 27,
        SystemlogUnavailable = 28,
        UsernameMissing = 29,
        FixedScope = 30,
        NoScope = 31,
        Password = 32,
        PasswordTooLong = 33,
        UsernameTooShort = 34,
        ScopeOverwrite = 35,
        UsernameClash = 36,
        UsernameTooLong = 37,
        InvalidSecurityMode = 38,
        InvalidStationMode = 39,
        MissingDot11 = 40,
        MissingPSK = 41,
        MissingDot1X = 42,
        IncompatibleDot1X = 43,
        NotDot11 = 44,
        InvalidDot1X = 45,
        ReferenceToken = 46,
        InvalidCertificate = 47,
        PasswordTooWeak = 48,
        AuxiliaryDataNotSupported = 49,
        InvalidTimeOutValue = 50,
        FixedUser = 51,
        AnonymousNotAllowed = 52,
        KeysNotMatching = 53,
        PortAlreadyInUse = 54,
        ProfileExists = 55,
        NoConfig = 56,
        NoProfile = 57,
        DeletionOfFixedProfile = 58,
        ConfigModify = 59,
        VideoAnalyticsNotSupported = 60,
        InvalidStreamSetup = 61,
        StreamConflict = 62,
        InvalidMulticastSettings = 63,
        NoVideoSourceMode = 64,
        PresetExist = 65,
        NoPTZConfiguration = 66,
        NoEntity = 67,
        InvalidPosition = 68,
        InvalidTranslation = 69,
        InvalidSpeed = 70,
        InvalidVelocity = 71,
        InvalidPresetName = 72,
        NoPTZProfile = 73,
        TimeoutNotSupported = 74,
        NoToken = 75,
        SpaceNotSupported = 76,
        InvalidPresetTour = 77,
        EmptyPolicy = 78,
        EmptyScope = 79,
        FirmwareUpgradeFailed = 80,
        KeyGeneration = 81,
        Signature = 82,
        ClientAuth = 83,
        TooManyUsers = 84,
        TooManyScopes = 85,
        NoSuchService = 86,
        InvalidDot11 = 87,
        NotConnectedDot11 = 88,
        NotScanAvailable = 89,
        NotRemoteUser = 90,
        EAPMethodNotSupported = 91,
        MaxDot1X = 92,
        MaxCertificates = 93,
        InvalidMode = 94,
        EnablingTlsFailed = 95,
        InvalidDHCPv6 = 96,
        AudioNotSupported = 97,
        MaxNVTProfiles = 98,
        AudioOutputNotSupported = 99,
        AudioDecodingNotSupported = 100,
        IncompleteConfiguration = 101,
        ConfigurationConflict = 102,
        MaxOSDs = 103,
        MovingPTZ = 104,
        TooManyPresets = 105,
        PTZNotSupported = 106,
        NoStatus = 107,
        CannotOverwriteHome = 108,
        NoHomePosition = 109,
        OptionalActionNotSupported = 110,
    };

    /// The class of the fault. NoFault by default.
    FaultType faultType = NoFault;

    /// The first subcode. After classification NoSubcode if there is none, it is unknown or the fault is neither Sender
    /// nor Receiver.
    SubcodeType subcodeType = NoSubcode;

    /// The second subcode. After classification NoSpecific if there is none or it is unknown below this subcode.
    SpecificType specificType = NoSpecific;

    /// The name of the request that the reply answers, such as "DeleteUsers"; one sentence depends on it. The text is
    /// not copied: it must live as long as this object and its copies. May be null. Empty by default.
    const char *action = "";

    /// No fault.
    OnvifFault();

    /// Classifies the reply \a bytes to the request \a requestName, which becomes `action` and must live as long as
    /// this object and its copies. \a id is any number of the caller's, handed back by responseId().
    OnvifFault(const QByteArray &bytes, const char *requestName, unsigned int id);

    /// A fault that the caller states. \a bytes are kept, but not classified, and the codes need not fit each other.
    OnvifFault(const QByteArray &bytes, FaultType fault, SubcodeType subcode, SpecificType specific, unsigned int id);

    OnvifFault(const OnvifFault &other);
    OnvifFault(OnvifFault &&other) noexcept;
    OnvifFault &operator=(const OnvifFault &other);
    OnvifFault &operator=(OnvifFault &&other) noexcept;
    ~OnvifFault() override;

    /// The sentence for the user, translated by the catalogues that the application has installed for the context
    /// "vorn::OnvifFault". The device's own words are never part of it. A code without a sentence gives that of its
    /// parent code. HttpNotFound, UnknownSoapCode, UnknownTransportError and values outside the enumeration share
    /// "Unknown Error."; errorId() tells them apart.
    QString toString() const override;

    /// faultType as a number. The subcodes play no part.
    int errorId() const override;

    /// Makes this no fault: empties `xml` and `response` and sets faultType to NoFault. All else stays as it is, the
    /// subcodes too.
    void reset() override;

    /// Whether faultType is another than NoFault.
    bool hasError() const override;

    /// Whether faultType is \a fault, whatever the subcodes.
    bool is(FaultType fault) const;

    /// Whether faultType and subcodeType are these, whatever specificType.
    bool is(FaultType fault, SubcodeType subcode) const;

    /// Whether all three codes are these.
    bool is(FaultType fault, SubcodeType subcode, SpecificType specific) const;

    /// The number that the caller gave to the constructor. 0 by default.
    unsigned int responseId() const;

    /// Translates \a sourceText in the context "vorn::OnvifFault".
    static QString tr(const char *sourceText, const char *disambiguation = nullptr, int n = -1);

private:
    void classify();
    void classifySoapFault(const QString &value);
    QString getSpecificCode();

    unsigned int m_responseId = 0;
};

} // namespace vorn
