#pragma once

#include <vorn/onvif/faults.h>

#include <cstddef>
#include <string_view>

/// What is known of faults: which texts of a reply stand for which code, and the sentence for each code. The
/// classification and the sentences read the same rows.
namespace vorn::faultcodes {

/// A table.
template <typename Row>
class Rows
{
public:
    constexpr Rows() = default;

    template <std::size_t size>
    constexpr Rows(const Row (&rows)[size])
        : m_begin(rows)
        , m_end(rows + size)
    {
    }

    constexpr const Row *begin() const { return m_begin; }

    constexpr const Row *end() const { return m_end; }

    constexpr bool isEmpty() const { return m_begin == m_end; }

private:
    const Row *m_begin = nullptr;
    const Row *m_end = nullptr;
};

/// The second subcode of a SOAP fault.
struct SpecificCode
{
    std::string_view literal; ///< what the value in the reply ends with; empty if no reply leads to this row
    OnvifFault::SpecificType type;
    const char *sentence; ///< null: that of the subcode
};

/// The first subcode of a SOAP fault.
struct Subcode
{
    std::string_view literal; ///< what the value in the reply ends with
    OnvifFault::SubcodeType type;
    const char *sentence; ///< null: that of the code
    Rows<SpecificCode> specificCodes;
};

/// The code of a SOAP fault.
struct SoapCode
{
    std::string_view literal; ///< what the value in the reply ends with
    OnvifFault::FaultType type;
    const char *sentence;
    Rows<Subcode> subcodes;
};

/// A failure that a sentence tells.
struct TextCode
{
    std::string_view text; ///< what the sentence contains
    OnvifFault::FaultType type;
    const char *sentence; ///< null: unknownError
};

/// Under Sender, InvalidArgs.
inline constexpr SpecificCode senderInvalidArgsCodes[] = {
    {":AccesslogUnavailable", OnvifFault::AccesslogUnavailable,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "There is no access log information available.")},
    {":InvalidFirmware", OnvifFault::InvalidFirmware,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The firmware was invalid i.e. not supported by this device.")},
    {":PolicyFormat", OnvifFault::PolicyFormat,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested policy cannot be set due to unknown policy format.")},
    {":SystemlogUnavailable", OnvifFault::SystemlogUnavailable,
     nullptr}, // its sentence stands under InvalidArgVal; the two are not to be matched up
};

/// Under Sender, InvalidArgVal.
inline constexpr SpecificCode senderInvalidArgValCodes[] = {
    {":CertificateFormat", OnvifFault::CertificateFormat,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Bad certificate format or the format is not supported by the device.")},
    {":CertificateID", OnvifFault::CertificateID,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Unknown certificate reference or the certificate ID already exists.")},
    {":CACertificateID", OnvifFault::CACertificateID,
     QT_TRANSLATE_NOOP("vorn::OnvifFault",
                       "Unknown CA certificate reference or the CA certificate ID already exists.")},
    {":InvalidBackupFile", OnvifFault::InvalidBackupFile,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The backup file(s) are invalid.")},
    {":InvalidDateTime", OnvifFault::InvalidDateTime,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "An invalid date or time was specified.")},
    {":NtpServerUndefined", OnvifFault::NtpServerUndefined,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Cannot switch DateTimeType to NTP because no NTP server is defined.")},
    {":InvalidDnsName", OnvifFault::InvalidDnsName,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The suggested NTP server name is invalid.")},
    {":TimeSyncedToNtp", OnvifFault::TimeSyncedToNtp,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Current DateTimeType requires an NTP server.")},
    {":InvalidGatewayAddress", OnvifFault::InvalidGatewayAddress,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The supplied gateway address was invalid.")},
    {":InvalidHostname", OnvifFault::InvalidHostname,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested hostname cannot be accepted by the device.")},
    {":InvalidInterfaceSpeed", OnvifFault::InvalidInterfaceSpeed,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The suggested speed is not supported.")},
    {":InvalidInterfaceType", OnvifFault::InvalidInterfaceType,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The suggested network interface type is not supported.")},
    {":InvalidIPv4Address", OnvifFault::InvalidIPv4Address,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The suggested IPv4 address is invalid.")},
    {":NoIPv4Address", OnvifFault::NoIPv4Address,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The IPv4 address to be removed does not exist.")},
    {":InvalidIPv6Address", OnvifFault::InvalidIPv6Address,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The suggested IPv6 address is invalid.")},
    {":NoIPv6Address", OnvifFault::NoIPv6Address,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The IPv6 address to be removed does not exist.")},
    {":InvalidMtuValue", OnvifFault::InvalidMtuValue,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The MTU value is invalid.")},
    {":InvalidNetworkInterface", OnvifFault::InvalidNetworkInterface,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The supplied network interface token does not exists.")},
    {":InvalidTimeZone", OnvifFault::InvalidTimeZone,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "An invalid time zone was specified.")},
    {":IPFilterListIsFull", OnvifFault::IPFilterListIsFull,
     QT_TRANSLATE_NOOP("vorn::OnvifFault",
                       "It is not possible to add more IP filters since the IP filter list is full.")},
    {":ModeError", OnvifFault::ModeError, QT_TRANSLATE_NOOP("vorn::OnvifFault", "Monostable delay time not valid.")},
    {":RelayToken", OnvifFault::RelayToken, QT_TRANSLATE_NOOP("vorn::OnvifFault", "The token reference is unknown.")},
    {":ServiceNotSupported", OnvifFault::ServiceNotSupported,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The supplied network service is not supported.")},
    {":SupportInformationUnavailable", OnvifFault::SupportInformationUnavailable,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "There is no support information available.")},
    {":UsernameMissing", OnvifFault::UsernameMissing,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Username not recognised.")},
    {":NoScope", OnvifFault::NoScope,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Trying to remove scope which does not exist.")},
    {":InvalidSecurityMode", OnvifFault::InvalidSecurityMode,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The selected security mode is not supported.")},
    {":InvalidStationMode", OnvifFault::InvalidStationMode,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The selected station mode is not supported.")},
    {":MissingDot11", OnvifFault::MissingDot11,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "IEEE 802.11 value is missing in the security configuration.")},
    {":MissingPSK", OnvifFault::MissingPSK,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "PSK value is missing in security configuration.")},
    {":MissingDot1X", OnvifFault::MissingDot1X,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "IEEE 802.1X value in security configuration is missing or none existing.")},
    {":IncompatibleDot1X", OnvifFault::IncompatibleDot1X,
     QT_TRANSLATE_NOOP("vorn::OnvifFault",
                       "IEEE 802.1X value in security configuration is incompatible with the network interface.")},
    {":NotDot11", OnvifFault::NotDot11,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The interface is not an IEEE 802.11 interface.")},
    {":InvalidDot1X", OnvifFault::InvalidDot1X,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Specified IEEE 802.1X configuration is not valid.")},
    {":ReferenceToken", OnvifFault::ReferenceToken,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Specified Dot1XConfigurationToken already exists in the device.")},
    {":InvalidCertificate", OnvifFault::InvalidCertificate,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Specified certificate is invalid.")},
    {":AuxiliaryDataNotSupported", OnvifFault::AuxiliaryDataNotSupported,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested AuxiliaryCommand is not supported.")},
    {":InvalidTimeOutValue", OnvifFault::InvalidTimeOutValue,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Specified TimeOut value is invalid.")},
    // The sentence for every other request than the one that deletes users: see deletionOfFixedUser.
    {":FixedUser", OnvifFault::FixedUser,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Password or user level may not be changed.")},
    {":KeysNotMatching", OnvifFault::KeysNotMatching,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The public and private key is not matching.")},
    {":PortAlreadyInUse", OnvifFault::PortAlreadyInUse,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The selected port is already in use.")},
    {":ProfileExists", OnvifFault::ProfileExists,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "A profile with this token already exists.")},
    {":NoConfig", OnvifFault::NoConfig,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested configuration does not exist.")},
    {":NoProfile", OnvifFault::NoProfile,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested profile does not exist.")},
    {":ConfigModify", OnvifFault::ConfigModify,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The configuration parameters are not possible to set.")},
    {":InvalidStreamSetup", OnvifFault::InvalidStreamSetup,
     QT_TRANSLATE_NOOP("vorn::OnvifFault",
                       "Specification of StreamType or Transport part in StreamSetup is not supported.")},
    {":InvalidMulticastSettings", OnvifFault::InvalidMulticastSettings,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Not all configurations are configured for multicast.")},
    {":NoVideoSourceMode", OnvifFault::NoVideoSourceMode,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested video source mode does not exist.")},
    {":PresetExist", OnvifFault::PresetExist,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested name or token already exist for another preset.")},
    {":NoPTZConfiguration", OnvifFault::NoPTZConfiguration,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested profile does not reference a PTZ configuration.")},
    {":NoEntity", OnvifFault::NoEntity, QT_TRANSLATE_NOOP("vorn::OnvifFault", "No such PTZ node on the device.")},
    {":InvalidPosition", OnvifFault::InvalidPosition,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested destination is out of bounds.")},
    {":InvalidTranslation", OnvifFault::InvalidTranslation,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested translation is out of bounds.")},
    {":InvalidSpeed", OnvifFault::InvalidSpeed,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested speed is out of bounds.")},
    {":InvalidVelocity", OnvifFault::InvalidVelocity,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested velocity is out of bounds.")},
    {":InvalidPresetName", OnvifFault::InvalidPresetName,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The preset name is either too long or contains invalid characters.")},
    {":NoPTZProfile", OnvifFault::NoPTZProfile,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested profile token does not reference a PTZ configuration.")},
    {":TimeoutNotSupported", OnvifFault::TimeoutNotSupported,
     QT_TRANSLATE_NOOP("vorn::OnvifFault",
                       "The specified timeout argument is not within the supported timeout range.")},
    {":NoToken", OnvifFault::NoToken,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested preset token does not exist.")},
    {":SpaceNotSupported", OnvifFault::SpaceNotSupported,
     QT_TRANSLATE_NOOP("vorn::OnvifFault",
                       "A space is referenced in an argument which is not supported by the PTZ node.")},
    {":InvalidPresetTour", OnvifFault::InvalidPresetTour,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested preset tour includes invalid parameter(s).")},
    {"", OnvifFault::SystemlogUnavailable,
     QT_TRANSLATE_NOOP("vorn::OnvifFault",
                       "There is no system log information available.")}, // its literal stands under InvalidArgs
};

/// Under Sender, OperationProhibited.
inline constexpr SpecificCode senderOperationProhibitedCodes[] = {
    {":FixedScope", OnvifFault::FixedScope,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Trying to delete fixed scope parameter, command rejected.")},
    {":Password", OnvifFault::Password, QT_TRANSLATE_NOOP("vorn::OnvifFault", "Too weak password.")},
    {":PasswordTooLong", OnvifFault::PasswordTooLong,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The password is too long.")},
    {":UsernameTooShort", OnvifFault::UsernameTooShort,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The username is too short.")},
    {":ScopeOverwrite", OnvifFault::ScopeOverwrite,
     QT_TRANSLATE_NOOP("vorn::OnvifFault",
                       "Scope parameter overwrites permanent device scope setting, command rejected.")},
    {":UsernameClash", OnvifFault::UsernameClash, QT_TRANSLATE_NOOP("vorn::OnvifFault", "Username already exists.")},
    {":UsernameTooLong", OnvifFault::UsernameTooLong,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The username is too long.")},
    {":ReferenceToken", OnvifFault::ReferenceToken,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Specified IEEE 802.1X configuration is invalid.")},
    {":CertificateID", OnvifFault::CertificateID,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Specified certificate ID is invalid.")},
    {":PasswordTooWeak", OnvifFault::PasswordTooWeak, QT_TRANSLATE_NOOP("vorn::OnvifFault", "Too weak password.")},
    {":AnonymousNotAllowed", OnvifFault::AnonymousNotAllowed,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "User level anonymous is not allowed.")},
    {":StreamConflict", OnvifFault::StreamConflict,
     QT_TRANSLATE_NOOP(
         "vorn::OnvifFault",
         "Specification of StreamType or Transport part in StreamSetup causes conflict with other streams.")},
};

/// Under Sender, Action.
inline constexpr SpecificCode senderActionCodes[] = {
    {":DeletionOfFixedProfile", OnvifFault::DeletionOfFixedProfile,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The fixed profile cannot be deleted.")},
};

/// Under Sender, ActionNotSupported.
inline constexpr SpecificCode senderActionNotSupportedCodes[] = {
    {":VideoAnalyticsNotSupported", OnvifFault::VideoAnalyticsNotSupported,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The device does not support video analytics.")},
};

/// Under Receiver, ActionNotSupported.
inline constexpr SpecificCode receiverActionNotSupportedCodes[] = {
    {":NoSuchService", OnvifFault::NoSuchService,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested WSDL service category is not supported by the device.")},
    {":InvalidDot11", OnvifFault::InvalidDot11,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "IEEE 802.11 configuration is not supported.")},
    {":NotScanAvailable", OnvifFault::NotScanAvailable,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "ScanAvailableIEEE802.11Networks is not supported.")},
    {":NotRemoteUser", OnvifFault::NotRemoteUser,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Remote user handling is not supported.")},
    {":EAPMethodNotSupported", OnvifFault::EAPMethodNotSupported,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The suggested EAP method is not supported.")},
    {":EnablingTlsFailed", OnvifFault::EnablingTlsFailed,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The device doesn't support TLS or TLS is not configured appropriately.")},
    {":InvalidDHCPv6", OnvifFault::InvalidDHCPv6,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested stateful DHCPv6 mode is not supported.")},
    {":AudioNotSupported", OnvifFault::AudioNotSupported,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The device does not support audio.")},
    {":AudioOutputNotSupported", OnvifFault::AudioOutputNotSupported,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Audio or audio outputs are not supported by this device.")},
    {":AudioDecodingNotSupported", OnvifFault::AudioDecodingNotSupported,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Audio or audio decoding is not supported by this device.")},
    {":PTZNotSupported", OnvifFault::PTZNotSupported,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "PTZ is not supported by the device.")},
    {":OptionalActionNotSupported", OnvifFault::OptionalActionNotSupported,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Optional command is not supported or not implemented by the device.")},
};

/// Under Receiver, Action.
inline constexpr SpecificCode receiverActionCodes[] = {
    {":EmptyPolicy", OnvifFault::EmptyPolicy,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The device policy file does not exist or is empty.")},
    {":EmptyScope", OnvifFault::EmptyScope, QT_TRANSLATE_NOOP("vorn::OnvifFault", "Scope list is empty.")},
    {":FirmwareUpgradeFailed", OnvifFault::FirmwareUpgradeFailed,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The firmware upgrade failed.")},
    {":KeyGeneration", OnvifFault::KeyGeneration,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The private/public key generation failed.")},
    {":Signature", OnvifFault::Signature, QT_TRANSLATE_NOOP("vorn::OnvifFault", "PKCS#10 signature creation failed.")},
    {":TooManyUsers", OnvifFault::TooManyUsers,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Maximum number of supported users exceeded.")},
    {":TooManyScopes", OnvifFault::TooManyScopes,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The scope list exceeds the supported number of scopes.")},
    {":NotConnectedDot11", OnvifFault::NotConnectedDot11,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "IEEE 802.11 network is not connected.")},
    {":MaxDot1X", OnvifFault::MaxDot1X,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Device reached maximum number of IEEE 802.1X configurations.")},
    {":MaxNVTProfiles", OnvifFault::MaxNVTProfiles,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The maximum number of supported profiles has been reached.")},
    {":IncompleteConfiguration", OnvifFault::IncompleteConfiguration,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Entities required by this action are missing in the specified profile.")},
    {":ConfigurationConflict", OnvifFault::ConfigurationConflict,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The new settings conflicts with other uses of the configuration.")},
    {":MaxOSDs", OnvifFault::MaxOSDs,
     QT_TRANSLATE_NOOP(
         "vorn::OnvifFault",
         "The maximum number of the OSD supported by the specified VideoSourceConfiguration has been reached.")},
    {":MovingPTZ", OnvifFault::MovingPTZ,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Preset cannot be set while the PTZ unit is moving.")},
    {":TooManyPresets", OnvifFault::TooManyPresets,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Maximum number of presets is reached.")},
    {":NoStatus", OnvifFault::NoStatus,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "No PTZ status is available in the requested media profile.")},
    {":CannotOverwriteHome", OnvifFault::CannotOverwriteHome,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The home position is fixed and cannot be overwritten.")},
    {":NoHomePosition", OnvifFault::NoHomePosition,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "No home position has been defined for this profile.")},
};

/// Under Receiver, InvalidArgVal.
inline constexpr SpecificCode receiverInvalidArgValCodes[] = {
    {":ClientAuth", OnvifFault::ClientAuth,
     QT_TRANSLATE_NOOP(
         "vorn::OnvifFault",
         "Trying to enable client authentication, but client authentication is not supported or not configured.")},
};

/// Under Receiver, OperationProhibited.
inline constexpr SpecificCode receiverOperationProhibitedCodes[] = {
    {":ReferenceToken", OnvifFault::ReferenceToken,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "It is not possible to delete specified IEEE 802.1X configuration.")},
    {":CertificateID", OnvifFault::CertificateID,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "It is not possible to delete specified certificate(s).")},
    {":MaxCertificates", OnvifFault::MaxCertificates,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Device reached maximum number of loaded certificates.")},
    {":InvalidMode", OnvifFault::InvalidMode,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Device is not ready to operate in command mode.")},
};

/// Under Sender. Without a sentence of its own, a subcode has that of Sender.
inline constexpr Subcode senderSubcodes[] = {
    {":WellFormed",
     OnvifFault::WellFormed,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "XML Well-formed violation occurred."),
     {}},
    {":TagMismatch",
     OnvifFault::TagMismatch,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "There was a tag name or namespace mismatch."),
     {}},
    {":Tag", OnvifFault::Tag, QT_TRANSLATE_NOOP("vorn::OnvifFault", "XML element tag was missing."), {}},
    {":Namespace", OnvifFault::Namespace, QT_TRANSLATE_NOOP("vorn::OnvifFault", "SOAP Namespace error occurred."), {}},
    {":MissingAttr",
     OnvifFault::MissingAttr,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "There was a missing required attribute."),
     {}},
    {":ProhibAttr",
     OnvifFault::ProhibAttr,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "A prohibited attribute was present."),
     {}},
    {":InvalidArgs", OnvifFault::InvalidArgs,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "An error due to any of the following: missing argument, too many arguments "
                                           "or arguments are of the wrong data type."),
     senderInvalidArgsCodes},
    {":InvalidArgVal", OnvifFault::InvalidArgVal,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The argument value is invalid."), senderInvalidArgValCodes},
    {":UnknownAction",
     OnvifFault::UnknownAction,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "An unknown action is specified."),
     {}},
    {":OperationProhibited", OnvifFault::OperationProhibited,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested operation is not permitted by the device."),
     senderOperationProhibitedCodes},
    {":NotAuthorized",
     OnvifFault::NotAuthorized,
     QT_TRANSLATE_NOOP("vorn::OnvifFault",
                       "The action requested requires authorisation and the sender is not authorised."),
     {}},
    {":Action", OnvifFault::Action, QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested action failed."),
     senderActionCodes},
    {":ActionNotSupported", OnvifFault::ActionNotSupported, nullptr, senderActionNotSupportedCodes},
};

/// Under Receiver. Without a sentence of its own, a subcode has that of Receiver.
inline constexpr Subcode receiverSubcodes[] = {
    {":ActionNotSupported", OnvifFault::ActionNotSupported,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested action is optional and is not implemented by the device."),
     receiverActionNotSupportedCodes},
    {":Action", OnvifFault::Action, QT_TRANSLATE_NOOP("vorn::OnvifFault", "The requested SOAP action failed."),
     receiverActionCodes},
    {":OutofMemory",
     OnvifFault::OutofMemory,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The device does not have sufficient memory to complete the action."),
     {}},
    {":CriticalError",
     OnvifFault::CriticalError,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The device has encountered an error condition which it cannot recover by "
                                           "itself and needs reset or power cycle."),
     {}},
    {":InvalidArgVal", OnvifFault::InvalidArgVal, nullptr, receiverInvalidArgValCodes},
    {":OperationProhibited", OnvifFault::OperationProhibited, nullptr, receiverOperationProhibitedCodes},
};

/// All codes of a SOAP 1.2 fault that are known.
inline constexpr SoapCode soapCodes[] = {
    {":Sender", OnvifFault::Sender, QT_TRANSLATE_NOOP("vorn::OnvifFault", "Unknown SOAP sender error."),
     senderSubcodes},
    {":Receiver", OnvifFault::Receiver, QT_TRANSLATE_NOOP("vorn::OnvifFault", "Unknown SOAP receiver error."),
     receiverSubcodes},
    {":VersionMismatch",
     OnvifFault::VersionMismatch,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "The device found an invalid element information item instead of the "
                                           "expected Envelope element information item. "),
     {}},
    {":MustUnderstand",
     OnvifFault::MustUnderstand,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "One of more mandatory SOAP header blocks were not understood."),
     {}},
    {":DataEncodingUnknown",
     OnvifFault::DataEncodingUnknown,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "SOAP header block or SOAP body child element information item is scoped "
                                           "with data encoding that is not supported by the device."),
     {}},
};

/// HTTP failures, told by a page's title, a reason or a transport. The first text that is contained counts.
inline constexpr TextCode httpCodes[] = {
    {"400", OnvifFault::HttpBadRequest, QT_TRANSLATE_NOOP("vorn::OnvifFault", "HTTP Error 400: Bad Request.")},
    {"401", OnvifFault::HttpUnauthorised, QT_TRANSLATE_NOOP("vorn::OnvifFault", "HTTP Error 401: Unauthorised.")},
    {"404", OnvifFault::HttpNotFound, nullptr},
    {"405", OnvifFault::HttpMethodNotAllowed,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "HTTP Error 405: Method Not Allowed.")},
    {"415", OnvifFault::HttpUnsupportedMedia,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "HTTP Error 415: Unsupported Media.")},
};

/// Transport failures. The first text that is contained counts, and each of them before any HTTP failure.
inline constexpr TextCode transportCodes[] = {
    {"URL using bad/illegal format or missing URL", OnvifFault::BadUrl,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "URL using bad/illegal format or missing URL.")},
    {"Failure when receiving data from the peer", OnvifFault::ReceiveFailure,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Failure when receiving data from the peer.")},
    {"Empty reply from Camera", OnvifFault::EmptyReply,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Empty reply from Camera")},
    {"Transferred a partial file", OnvifFault::PartialFile,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Transferred a partial file.")},
    {"Couldn't resolve host name", OnvifFault::HostNotResolved,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Couldn't resolve host name.")},
    {"Unsupported protocol", OnvifFault::UnsupportedProtocol,
     QT_TRANSLATE_NOOP("vorn::OnvifFault", "Unsupported protocol.")},
};

/// What is told by no text of its own.
inline constexpr TextCode otherCodes[] = {
    {"", OnvifFault::NoFault, QT_TRANSLATE_NOOP("vorn::OnvifFault", "No error.")},
    {"", OnvifFault::UnknownSoapCode, nullptr},
    {"", OnvifFault::UnknownHttpError, QT_TRANSLATE_NOOP("vorn::OnvifFault", "Unknown HTTP Error.")},
    {"", OnvifFault::UnknownTransportError, nullptr},
};

/// The sentence of OnvifFault::FixedUser where the request was to delete users.
inline constexpr const char *deletionOfFixedUser =
    QT_TRANSLATE_NOOP("vorn::OnvifFault", "Client trying to remove fixed user.");

/// The sentence where there is no other.
inline constexpr const char *unknownError = QT_TRANSLATE_NOOP("vorn::OnvifFault", "Unknown Error.");

/// The row for \a type; null if there is none.
template <typename Row, typename Type>
constexpr const Row *find(Rows<Row> rows, Type type)
{
    for (const Row &row : rows) {
        if (row.type == type)
            return &row;
    }
    return nullptr;
}

} // namespace vorn::faultcodes
