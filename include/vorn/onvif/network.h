#pragma once

/// \file
/// The network interfaces and the default gateway of a device.

#include <vorn/onvif/bases.h>
#include <vorn/onvif/export.h>

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

namespace vorn {

/// A network interface of a device: what it is, its link, and its IPv4 and IPv6 configuration.
///
/// Each field is read from one element below that of the interface. Names and texts are compared case-sensitively, and
/// elements of other names are ignored. An element that occurs several times is read each time: its values replace
/// those read before, and entries are added to a list; an address entry replaces a whole one. An element that is
/// missing leaves the default.
///
/// A boolean is true for the text "true" alone, so not for "1"; any other text makes it false. A number is 0 if the
/// text is no decimal number that an int can hold. A text that an enumeration does not know leaves it as it was.
struct VORNSDK_ONVIF_EXPORT OnvifNetworkInterface : OnvifDataStructure
{
    /// The settings of the link, as configured or as in operation.
    ///
    /// Trivially copyable.
    struct LinkSettings
    {
        /// Whether the two ends of the link can send at the same time.
        enum Duplex : qint32 {
            Full = 0, ///< They can: "Full".
            Half = 1, ///< They cannot: "Half".
        };

        bool present = false;         ///< Whether there is an element with these settings, whatever it holds.
        bool autoNegotiation = false; ///< Whether the ends agree on the settings, from "AutoNegotiation".
        int speed = 0;                ///< Speed as the device sends it; ONVIF means Mbit/s. From "Speed".
        Duplex duplex = Full;         ///< From "Duplex".

        /// Settings that are not present.
        VORNSDK_ONVIF_EXPORT LinkSettings();

        LinkSettings(const LinkSettings &other) = default;
        LinkSettings(LinkSettings &&other) noexcept = default;
        VORNSDK_ONVIF_EXPORT LinkSettings &operator=(const LinkSettings &other) = default;
        VORNSDK_ONVIF_EXPORT LinkSettings &operator=(LinkSettings &&other) noexcept = default;
        ~LinkSettings() = default;

        /// Whether all four fields are equal.
        VORNSDK_ONVIF_EXPORT bool operator==(const LinkSettings &other) const;
        VORNSDK_ONVIF_EXPORT bool operator!=(const LinkSettings &other) const; ///< The opposite of ==.
    };

    /// An address with the length of its network's prefix.
    struct VORNSDK_ONVIF_EXPORT PrefixedAddress
    {
        QString address;      ///< The address, verbatim, from "Address".
        int prefixLength = 0; ///< Number of bits, from "PrefixLength"; its range is not checked.

        /// An empty address with prefix length 0.
        PrefixedAddress();

        PrefixedAddress(const PrefixedAddress &other);
        PrefixedAddress(PrefixedAddress &&other) noexcept;
        PrefixedAddress &operator=(const PrefixedAddress &other);
        PrefixedAddress &operator=(PrefixedAddress &&other) noexcept;
        ~PrefixedAddress();

        /// Whether both fields are equal.
        bool operator==(const PrefixedAddress &other) const;
        bool operator!=(const PrefixedAddress &other) const; ///< The opposite of ==.
    };

    /// The IPv4 side of the interface, from "IPv4".
    struct VORNSDK_ONVIF_EXPORT IPv4
    {
        /// The IPv4 addresses, from "Config" of "IPv4".
        struct VORNSDK_ONVIF_EXPORT Configuration
        {
            QList<PrefixedAddress> manual; ///< Addresses given by hand, one for each "Manual", in document order.
            PrefixedAddress linkLocal;     ///< Link-local address, from the last "LinkLocal".
            PrefixedAddress fromDHCP;      ///< Address given by DHCP, from the last "FromDHCP".
            bool dhcp = false;             ///< Whether DHCP is on, from "DHCP".

            /// No addresses, and DHCP off.
            Configuration();

            Configuration(const Configuration &other);
            Configuration(Configuration &&other) noexcept;
            Configuration &operator=(const Configuration &other);
            Configuration &operator=(Configuration &&other) noexcept;
            ~Configuration();

            /// Whether all four fields are equal, the addresses of the list in the same order.
            bool operator==(const Configuration &other) const;
            bool operator!=(const Configuration &other) const; ///< The opposite of ==.
        };

        bool enabled = false; ///< Whether IPv4 is on, from "Enabled" of "IPv4".
        Configuration config; ///< The addresses.

        /// IPv4 that is off.
        IPv4();

        IPv4(const IPv4 &other);
        IPv4(IPv4 &&other) noexcept;
        IPv4 &operator=(const IPv4 &other);
        IPv4 &operator=(IPv4 &&other) noexcept;
        ~IPv4();

        /// Whether both fields are equal.
        bool operator==(const IPv4 &other) const;
        bool operator!=(const IPv4 &other) const; ///< The opposite of ==.
    };

    /// The IPv6 side of the interface, from "IPv6".
    struct VORNSDK_ONVIF_EXPORT IPv6
    {
        /// The IPv6 addresses, from "Config" of "IPv6".
        struct VORNSDK_ONVIF_EXPORT Configuration
        {
            /// How DHCPv6 is used.
            enum DHCP : qint32 {
                Auto = 0,      ///< As the routers advertise: "Auto".
                Stateful = 1,  ///< For addresses and other settings: "Stateful".
                Stateless = 2, ///< For other settings only: "Stateless".
                Off = 3,       ///< Not at all: "Off".
            };

            bool acceptRouterAdvert = false;  ///< Whether router advertisements count, from "AcceptRouterAdvert".
            DHCP dhcp = Auto;                 ///< From "DHCP".
            QList<PrefixedAddress> manual;    ///< Addresses given by hand, one for each "Manual", in document order.
            QList<PrefixedAddress> linkLocal; ///< Link-local addresses, one for each "LinkLocal", in document order.
            QList<PrefixedAddress> fromDHCP;  ///< Addresses given by DHCP, one for each "FromDHCP", in document order.
            QList<PrefixedAddress> fromRA;    ///< Addresses advertised by routers, one for each "FromRA", in order.

            /// No addresses, and DHCP Auto.
            Configuration();

            Configuration(const Configuration &other);
            Configuration(Configuration &&other) noexcept;
            Configuration &operator=(const Configuration &other);
            Configuration &operator=(Configuration &&other) noexcept;
            ~Configuration();

            /// Whether all six fields are equal, the addresses of each list in the same order.
            bool operator==(const Configuration &other) const;
            bool operator!=(const Configuration &other) const; ///< The opposite of ==.
        };

        bool enabled = false; ///< Whether IPv6 is on, from "Enabled" of "IPv6".
        Configuration config; ///< The addresses.

        /// IPv6 that is off.
        IPv6();

        IPv6(const IPv6 &other);
        IPv6(IPv6 &&other) noexcept;
        IPv6 &operator=(const IPv6 &other);
        IPv6 &operator=(IPv6 &&other) noexcept;
        ~IPv6();

        /// Whether both fields are equal.
        bool operator==(const IPv6 &other) const;
        bool operator!=(const IPv6 &other) const; ///< The opposite of ==.
    };

    QString name;         ///< Name, such as "eth0", from "Name" of "Info".
    QString token;        ///< Identity, from the attribute "token".
    bool enabled = false; ///< Whether the interface is on, from "Enabled".
    QString hwAddress;    ///< Hardware address, verbatim, from "HwAddress" of "Info".
    int mtu = 1500;       ///< The most bytes in a packet, from "MTU" of "Info".
    int interfaceType =
        0; ///< Type as the device sends it; ONVIF means the IANA number. From "InterfaceType" of "Link".
    LinkSettings adminSettings; ///< The link as configured, from "AdminSettings" of "Link".
    LinkSettings operSettings;  ///< The link as in operation, from "OperSettings" of "Link".
    IPv4 ipv4;                  ///< The IPv4 side.
    IPv6 ipv6;                  ///< The IPv6 side.

    /// A null record.
    OnvifNetworkInterface();

    /// Reads the element of \a node. The record is null only if the node is a missing one.
    explicit OnvifNetworkInterface(const XmlResponseNode &node);

    OnvifNetworkInterface(const OnvifNetworkInterface &other);
    OnvifNetworkInterface(OnvifNetworkInterface &&other) noexcept;
    OnvifNetworkInterface &operator=(const OnvifNetworkInterface &other);
    OnvifNetworkInterface &operator=(OnvifNetworkInterface &&other) noexcept;
    ~OnvifNetworkInterface() override;

    /// What stands inside a SetNetworkInterfaces request: the elements InterfaceToken, which holds the `name`, and
    /// NetworkInterface with `enabled`, `ipv4.enabled`, `ipv4.config.manual` and `ipv4.config.dhcp`. Nothing else of
    /// the record is written, and neither Config nor IPv6 stand there.
    ///
    /// The request has to bind the prefixes tds and tt. Nothing is escaped: a value with markup goes in as it stands.
    QString toString() const override;

    /// Whether the tokens are equal. Nothing else is compared.
    bool operator==(const OnvifNetworkInterface &other) const;
    bool operator!=(const OnvifNetworkInterface &other) const; ///< The opposite of ==.
};

// The hash of each record follows its content. It is the same in every process; through Qt's hash of texts it depends
// on the version of Qt and on the platform.

/// A hash over `address` and `prefixLength`.
VORNSDK_ONVIF_EXPORT unsigned int qHash(const OnvifNetworkInterface::PrefixedAddress &address);

/// A hash over `autoNegotiation`, `speed` and `duplex`, so not over `present`.
VORNSDK_ONVIF_EXPORT unsigned int qHash(const OnvifNetworkInterface::LinkSettings &settings);

/// A hash over all fields.
VORNSDK_ONVIF_EXPORT unsigned int qHash(const OnvifNetworkInterface::IPv4::Configuration &configuration);

/// A hash over `acceptRouterAdvert`, `dhcp` and the addresses of all four lists one after the other. In which of the
/// lists an address stands is not part of it.
VORNSDK_ONVIF_EXPORT unsigned int qHash(const OnvifNetworkInterface::IPv6::Configuration &configuration);

/// A hash over `enabled` and `config`.
VORNSDK_ONVIF_EXPORT unsigned int qHash(const OnvifNetworkInterface::IPv4 &ipv4);

/// A hash over `enabled` and `config`.
VORNSDK_ONVIF_EXPORT unsigned int qHash(const OnvifNetworkInterface::IPv6 &ipv6);

/// A hash over all fields but `interfaceType`.
///
/// Interfaces that are equal, as their tokens are, have in general different hashes. Whether a QSet or QHash takes two
/// of them for one is a matter of chance: use one only for interfaces of different tokens.
VORNSDK_ONVIF_EXPORT unsigned int qHash(const OnvifNetworkInterface &networkInterface);

/// The name of \a dhcp for the user, translated by the catalogues that the application has installed for the context
/// "vorn::OnvifNetworkInterface". Empty for a value outside the enumeration.
VORNSDK_ONVIF_EXPORT QString vPrintable(OnvifNetworkInterface::IPv6::Configuration::DHCP dhcp);

/// The name of \a duplex for the user, translated by the catalogues that the application has installed for the context
/// "vorn::OnvifNetworkInterface". Empty for a value outside the enumeration.
VORNSDK_ONVIF_EXPORT QString vPrintable(OnvifNetworkInterface::LinkSettings::Duplex duplex);

} // namespace vorn

VORNSDK_ONVIF_DECLARE_LIST(vorn::OnvifNetworkInterface)

namespace vorn {

/// The network interfaces of a device: the answer to GetNetworkInterfaces.
///
/// Empty if the reply is of another kind or cannot be parsed.
struct VORNSDK_ONVIF_EXPORT OnvifNetworkInterfaceVector : QList<OnvifNetworkInterface>, OnvifResponseStructure
{
    /// An empty list.
    OnvifNetworkInterfaceVector();

    /// Reads each "/NetworkInterfaces" of the reply \a bytes below the path \a root of its response element, which is
    /// "/Envelope/Body/GetNetworkInterfacesResponse".
    OnvifNetworkInterfaceVector(const QByteArray &bytes, const QString &root);

    OnvifNetworkInterfaceVector(const OnvifNetworkInterfaceVector &other);
    OnvifNetworkInterfaceVector(OnvifNetworkInterfaceVector &&other) noexcept;
    OnvifNetworkInterfaceVector &operator=(const OnvifNetworkInterfaceVector &other);
    OnvifNetworkInterfaceVector &operator=(OnvifNetworkInterfaceVector &&other) noexcept;
    ~OnvifNetworkInterfaceVector();
};

/// The default gateway of a device: the answer to GetNetworkDefaultGateway.
///
/// A gateway is always null: whether one was reported is told by its addresses.
struct VORNSDK_ONVIF_EXPORT OnvifNetworkGateway : OnvifDataStructure
{
    QString ipv4Address; ///< IPv4 address, verbatim, from "/IPv4Address". Of several the first.
    QString ipv6Address; ///< IPv6 address, verbatim, from "/IPv6Address". Of several the first.

    /// A record with two empty addresses.
    OnvifNetworkGateway();

    /// Reads \a bytes below the root path "/Envelope/Body/GetNetworkDefaultGatewayResponse/NetworkGateway". The reply
    /// itself is not kept. Both addresses are empty if it is of another kind or cannot be parsed.
    explicit OnvifNetworkGateway(const QByteArray &bytes);

    OnvifNetworkGateway(const OnvifNetworkGateway &other);
    OnvifNetworkGateway(OnvifNetworkGateway &&other) noexcept;
    OnvifNetworkGateway &operator=(const OnvifNetworkGateway &other);
    OnvifNetworkGateway &operator=(OnvifNetworkGateway &&other) noexcept;
    ~OnvifNetworkGateway() override;

    /// What stands inside a SetNetworkDefaultGateway request: an element for each address that is not empty, IPv4
    /// first.
    ///
    /// The request has to bind the prefix tt. Nothing is escaped: a value with markup goes in as it stands.
    QString toString() const override;
};

} // namespace vorn
