#pragma once

/// \file
/// The names of the enumerators, as they stand in the headers.

#include <vorn/onvif/faults.h>
#include <vorn/onvif/network.h>
#include <vorn/onvif/relays.h>
#include <vorn/onvif/scopes.h>

#include <QtCore/QString>

namespace vorn {

/// A value of an enumeration and its name.
template <typename Enumeration>
struct Enumerator
{
    Enumeration value;
    QLatin1StringView name; ///< Such as "Monostable", without what it is declared in. Never translated.
};

} // namespace vorn

/// \cond
namespace vorn::detail {

using namespace Qt::StringLiterals;

/// What stands in the declaration of an enumeration, in the same order.
template <typename Enumeration>
struct Enumerators;

template <>
struct Enumerators<OnvifScope::Type>
{
    static constexpr Enumerator<OnvifScope::Type> all[] = {
        {OnvifScope::Unknown, "Unknown"_L1},
        {OnvifScope::Fixed, "Fixed"_L1},
        {OnvifScope::Configurable, "Configurable"_L1},
        {OnvifScope::Custom, "Custom"_L1},
    };
};

template <>
struct Enumerators<OnvifFault::FaultType>
{
    static constexpr Enumerator<OnvifFault::FaultType> all[] = {
        {OnvifFault::NoFault, "NoFault"_L1},
        {OnvifFault::VersionMismatch, "VersionMismatch"_L1},
        {OnvifFault::MustUnderstand, "MustUnderstand"_L1},
        {OnvifFault::DataEncodingUnknown, "DataEncodingUnknown"_L1},
        {OnvifFault::Sender, "Sender"_L1},
        {OnvifFault::Receiver, "Receiver"_L1},
        {OnvifFault::HttpBadRequest, "HttpBadRequest"_L1},
        {OnvifFault::HttpUnauthorised, "HttpUnauthorised"_L1},
        {OnvifFault::HttpNotFound, "HttpNotFound"_L1},
        {OnvifFault::HttpMethodNotAllowed, "HttpMethodNotAllowed"_L1},
        {OnvifFault::HttpUnsupportedMedia, "HttpUnsupportedMedia"_L1},
        {OnvifFault::BadUrl, "BadUrl"_L1},
        {OnvifFault::ReceiveFailure, "ReceiveFailure"_L1},
        {OnvifFault::EmptyReply, "EmptyReply"_L1},
        {OnvifFault::PartialFile, "PartialFile"_L1},
        {OnvifFault::HostNotResolved, "HostNotResolved"_L1},
        {OnvifFault::UnsupportedProtocol, "UnsupportedProtocol"_L1},
        {OnvifFault::UnknownSoapCode, "UnknownSoapCode"_L1},
        {OnvifFault::UnknownHttpError, "UnknownHttpError"_L1},
        {OnvifFault::UnknownTransportError, "UnknownTransportError"_L1},
    };
};

template <>
struct Enumerators<OnvifFault::SubcodeType>
{
    static constexpr Enumerator<OnvifFault::SubcodeType> all[] = {
        {OnvifFault::NoSubcode, "NoSubcode"_L1},
        {OnvifFault::WellFormed, "WellFormed"_L1},
        {OnvifFault::TagMismatch, "TagMismatch"_L1},
        {OnvifFault::Tag, "Tag"_L1},
        {OnvifFault::Namespace, "Namespace"_L1},
        {OnvifFault::MissingAttr, "MissingAttr"_L1},
        {OnvifFault::ProhibAttr, "ProhibAttr"_L1},
        {OnvifFault::InvalidArgs, "InvalidArgs"_L1},
        {OnvifFault::InvalidArgVal, "InvalidArgVal"_L1},
        {OnvifFault::UnknownAction, "UnknownAction"_L1},
        {OnvifFault::OperationProhibited, "OperationProhibited"_L1},
        {OnvifFault::NotAuthorized, "NotAuthorized"_L1},
        {OnvifFault::ActionNotSupported, "ActionNotSupported"_L1},
        {OnvifFault::Action, "Action"_L1},
        {OnvifFault::OutofMemory, "OutofMemory"_L1},
        {OnvifFault::CriticalError, "CriticalError"_L1},
    };
};

template <>
struct Enumerators<OnvifFault::SpecificType>
{
    static constexpr Enumerator<OnvifFault::SpecificType> all[] = {
        {OnvifFault::NoSpecific, "NoSpecific"_L1},
        {OnvifFault::AccesslogUnavailable, "AccesslogUnavailable"_L1},
        {OnvifFault::CertificateFormat, "CertificateFormat"_L1},
        {OnvifFault::CertificateID, "CertificateID"_L1},
        {OnvifFault::CACertificateID, "CACertificateID"_L1},
        {OnvifFault::InvalidBackupFile, "InvalidBackupFile"_L1},
        {OnvifFault::InvalidDateTime, "InvalidDateTime"_L1},
        {OnvifFault::NtpServerUndefined, "NtpServerUndefined"_L1},
        {OnvifFault::InvalidDnsName, "InvalidDnsName"_L1},
        {OnvifFault::TimeSyncedToNtp, "TimeSyncedToNtp"_L1},
        {OnvifFault::InvalidFirmware, "InvalidFirmware"_L1},
        {OnvifFault::InvalidGatewayAddress, "InvalidGatewayAddress"_L1},
        {OnvifFault::InvalidHostname, "InvalidHostname"_L1},
        {OnvifFault::InvalidInterfaceSpeed, "InvalidInterfaceSpeed"_L1},
        {OnvifFault::InvalidInterfaceType, "InvalidInterfaceType"_L1},
        {OnvifFault::InvalidIPv4Address, "InvalidIPv4Address"_L1},
        {OnvifFault::NoIPv4Address, "NoIPv4Address"_L1},
        {OnvifFault::InvalidIPv6Address, "InvalidIPv6Address"_L1},
        {OnvifFault::NoIPv6Address, "NoIPv6Address"_L1},
        {OnvifFault::InvalidMtuValue, "InvalidMtuValue"_L1},
        {OnvifFault::InvalidNetworkInterface, "InvalidNetworkInterface"_L1},
        {OnvifFault::InvalidTimeZone, "InvalidTimeZone"_L1},
        {OnvifFault::IPFilterListIsFull, "IPFilterListIsFull"_L1},
        {OnvifFault::ModeError, "ModeError"_L1},
        {OnvifFault::PolicyFormat, "PolicyFormat"_L1},
        {OnvifFault::RelayToken, "RelayToken"_L1},
        {OnvifFault::ServiceNotSupported, "ServiceNotSupported"_L1},
        {OnvifFault::SupportInformationUnavailable, "SupportInformationUnavailable"_L1},
        {OnvifFault::SystemlogUnavailable, "SystemlogUnavailable"_L1},
        {OnvifFault::UsernameMissing, "UsernameMissing"_L1},
        {OnvifFault::FixedScope, "FixedScope"_L1},
        {OnvifFault::NoScope, "NoScope"_L1},
        {OnvifFault::Password, "Password"_L1},
        {OnvifFault::PasswordTooLong, "PasswordTooLong"_L1},
        {OnvifFault::UsernameTooShort, "UsernameTooShort"_L1},
        {OnvifFault::ScopeOverwrite, "ScopeOverwrite"_L1},
        {OnvifFault::UsernameClash, "UsernameClash"_L1},
        {OnvifFault::UsernameTooLong, "UsernameTooLong"_L1},
        {OnvifFault::InvalidSecurityMode, "InvalidSecurityMode"_L1},
        {OnvifFault::InvalidStationMode, "InvalidStationMode"_L1},
        {OnvifFault::MissingDot11, "MissingDot11"_L1},
        {OnvifFault::MissingPSK, "MissingPSK"_L1},
        {OnvifFault::MissingDot1X, "MissingDot1X"_L1},
        {OnvifFault::IncompatibleDot1X, "IncompatibleDot1X"_L1},
        {OnvifFault::NotDot11, "NotDot11"_L1},
        {OnvifFault::InvalidDot1X, "InvalidDot1X"_L1},
        {OnvifFault::ReferenceToken, "ReferenceToken"_L1},
        {OnvifFault::InvalidCertificate, "InvalidCertificate"_L1},
        {OnvifFault::PasswordTooWeak, "PasswordTooWeak"_L1},
        {OnvifFault::AuxiliaryDataNotSupported, "AuxiliaryDataNotSupported"_L1},
        {OnvifFault::InvalidTimeOutValue, "InvalidTimeOutValue"_L1},
        {OnvifFault::FixedUser, "FixedUser"_L1},
        {OnvifFault::AnonymousNotAllowed, "AnonymousNotAllowed"_L1},
        {OnvifFault::KeysNotMatching, "KeysNotMatching"_L1},
        {OnvifFault::PortAlreadyInUse, "PortAlreadyInUse"_L1},
        {OnvifFault::ProfileExists, "ProfileExists"_L1},
        {OnvifFault::NoConfig, "NoConfig"_L1},
        {OnvifFault::NoProfile, "NoProfile"_L1},
        {OnvifFault::DeletionOfFixedProfile, "DeletionOfFixedProfile"_L1},
        {OnvifFault::ConfigModify, "ConfigModify"_L1},
        {OnvifFault::VideoAnalyticsNotSupported, "VideoAnalyticsNotSupported"_L1},
        {OnvifFault::InvalidStreamSetup, "InvalidStreamSetup"_L1},
        {OnvifFault::StreamConflict, "StreamConflict"_L1},
        {OnvifFault::InvalidMulticastSettings, "InvalidMulticastSettings"_L1},
        {OnvifFault::NoVideoSourceMode, "NoVideoSourceMode"_L1},
        {OnvifFault::PresetExist, "PresetExist"_L1},
        {OnvifFault::NoPTZConfiguration, "NoPTZConfiguration"_L1},
        {OnvifFault::NoEntity, "NoEntity"_L1},
        {OnvifFault::InvalidPosition, "InvalidPosition"_L1},
        {OnvifFault::InvalidTranslation, "InvalidTranslation"_L1},
        {OnvifFault::InvalidSpeed, "InvalidSpeed"_L1},
        {OnvifFault::InvalidVelocity, "InvalidVelocity"_L1},
        {OnvifFault::InvalidPresetName, "InvalidPresetName"_L1},
        {OnvifFault::NoPTZProfile, "NoPTZProfile"_L1},
        {OnvifFault::TimeoutNotSupported, "TimeoutNotSupported"_L1},
        {OnvifFault::NoToken, "NoToken"_L1},
        {OnvifFault::SpaceNotSupported, "SpaceNotSupported"_L1},
        {OnvifFault::InvalidPresetTour, "InvalidPresetTour"_L1},
        {OnvifFault::EmptyPolicy, "EmptyPolicy"_L1},
        {OnvifFault::EmptyScope, "EmptyScope"_L1},
        {OnvifFault::FirmwareUpgradeFailed, "FirmwareUpgradeFailed"_L1},
        {OnvifFault::KeyGeneration, "KeyGeneration"_L1},
        {OnvifFault::Signature, "Signature"_L1},
        {OnvifFault::ClientAuth, "ClientAuth"_L1},
        {OnvifFault::TooManyUsers, "TooManyUsers"_L1},
        {OnvifFault::TooManyScopes, "TooManyScopes"_L1},
        {OnvifFault::NoSuchService, "NoSuchService"_L1},
        {OnvifFault::InvalidDot11, "InvalidDot11"_L1},
        {OnvifFault::NotConnectedDot11, "NotConnectedDot11"_L1},
        {OnvifFault::NotScanAvailable, "NotScanAvailable"_L1},
        {OnvifFault::NotRemoteUser, "NotRemoteUser"_L1},
        {OnvifFault::EAPMethodNotSupported, "EAPMethodNotSupported"_L1},
        {OnvifFault::MaxDot1X, "MaxDot1X"_L1},
        {OnvifFault::MaxCertificates, "MaxCertificates"_L1},
        {OnvifFault::InvalidMode, "InvalidMode"_L1},
        {OnvifFault::EnablingTlsFailed, "EnablingTlsFailed"_L1},
        {OnvifFault::InvalidDHCPv6, "InvalidDHCPv6"_L1},
        {OnvifFault::AudioNotSupported, "AudioNotSupported"_L1},
        {OnvifFault::MaxNVTProfiles, "MaxNVTProfiles"_L1},
        {OnvifFault::AudioOutputNotSupported, "AudioOutputNotSupported"_L1},
        {OnvifFault::AudioDecodingNotSupported, "AudioDecodingNotSupported"_L1},
        {OnvifFault::IncompleteConfiguration, "IncompleteConfiguration"_L1},
        {OnvifFault::ConfigurationConflict, "ConfigurationConflict"_L1},
        {OnvifFault::MaxOSDs, "MaxOSDs"_L1},
        {OnvifFault::MovingPTZ, "MovingPTZ"_L1},
        {OnvifFault::TooManyPresets, "TooManyPresets"_L1},
        {OnvifFault::PTZNotSupported, "PTZNotSupported"_L1},
        {OnvifFault::NoStatus, "NoStatus"_L1},
        {OnvifFault::CannotOverwriteHome, "CannotOverwriteHome"_L1},
        {OnvifFault::NoHomePosition, "NoHomePosition"_L1},
        {OnvifFault::OptionalActionNotSupported, "OptionalActionNotSupported"_L1},
    };
};

template <>
struct Enumerators<OnvifNetworkInterface::LinkSettings::Duplex>
{
    static constexpr Enumerator<OnvifNetworkInterface::LinkSettings::Duplex> all[] = {
        {OnvifNetworkInterface::LinkSettings::Full, "Full"_L1},
        {OnvifNetworkInterface::LinkSettings::Half, "Half"_L1},
    };
};

template <>
struct Enumerators<OnvifNetworkInterface::IPv6::Configuration::DHCP>
{
    static constexpr Enumerator<OnvifNetworkInterface::IPv6::Configuration::DHCP> all[] = {
        {OnvifNetworkInterface::IPv6::Configuration::Auto, "Auto"_L1},
        {OnvifNetworkInterface::IPv6::Configuration::Stateful, "Stateful"_L1},
        {OnvifNetworkInterface::IPv6::Configuration::Stateless, "Stateless"_L1},
        {OnvifNetworkInterface::IPv6::Configuration::Off, "Off"_L1},
    };
};

template <>
struct Enumerators<OnvifRelayOutput::RelayMode>
{
    static constexpr Enumerator<OnvifRelayOutput::RelayMode> all[] = {
        {OnvifRelayOutput::Monostable, "Monostable"_L1},
        {OnvifRelayOutput::Bistable, "Bistable"_L1},
    };
};

template <>
struct Enumerators<OnvifRelayOutput::IdleState>
{
    static constexpr Enumerator<OnvifRelayOutput::IdleState> all[] = {
        {OnvifRelayOutput::Open, "Open"_L1},
        {OnvifRelayOutput::Closed, "Closed"_L1},
    };
};

template <typename Type, typename = void>
inline constexpr bool hasEnumerators = false;

template <typename Type>
inline constexpr bool hasEnumerators<Type, decltype(void(Enumerators<Type>::all))> = true;

} // namespace vorn::detail

/// \endcond

namespace vorn {

/// Whether \a Type is an enumeration of the records or of OnvifFault.
template <typename Type>
inline constexpr bool hasEnumerators = detail::hasEnumerators<Type>;

/// The enumerators of \a Enumeration in the order of their declaration: an array.
///
/// \code
/// for (const auto &[value, name] : vorn::enumerators<vorn::OnvifRelayOutput::RelayMode>)
///     comboBox->addItem(name, value);
/// \endcode
template <typename Enumeration>
inline constexpr const auto &enumerators = detail::Enumerators<Enumeration>::all;

/// The name of \a value. Null if it is none of the enumerators. For the user rather vPrintable(), which translates.
template <typename Enumeration>
constexpr QLatin1StringView enumeratorName(Enumeration value)
{
    for (const Enumerator<Enumeration> &enumerator : enumerators<Enumeration>) {
        if (enumerator.value == value)
            return enumerator.name;
    }
    return {};
}

} // namespace vorn
