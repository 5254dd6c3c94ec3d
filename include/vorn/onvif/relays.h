#pragma once

/// \file
/// The relay outputs of a device.

#include <vorn/onvif/bases.h>
#include <vorn/onvif/export.h>

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

namespace vorn {

/// A relay output of a device and how it behaves.
///
/// All fields but the token are read from "Properties". Names and texts are compared case-sensitively, other elements
/// are ignored. Each "Properties" is read, and of several elements with one name in them the last counts. An element
/// that is missing leaves the default.
struct VORNSDK_ONVIF_EXPORT OnvifRelayOutput : OnvifDataStructure
{
    /// What happens after the relay has been switched.
    enum RelayMode : qint32 {
        Monostable = 0, ///< It goes back to its idle state after the delay time: "Monostable".
        Bistable = 1,   ///< It stays: "Bistable".
    };

    /// The state of the relay while it is not active.
    enum IdleState : qint32 {
        Open = 0,   ///< Open: "open".
        Closed = 1, ///< Closed: any other text.
    };

    QString token;                ///< Identity, from the attribute "token".
    RelayMode mode = Monostable;  ///< From "Mode"; a text that is unknown leaves it as it was.
    QString delayTime;            ///< Time after which a monostable relay goes back, such as "PT5S", from "DelayTime".
    IdleState idleState = Closed; ///< From "IdleState". A text other than "open" gives Closed, so "Open" does too.

    /// A null record.
    OnvifRelayOutput();

    /// Reads the element of \a node. The record is null only if the node is a missing one.
    explicit OnvifRelayOutput(const XmlResponseNode &node);

    OnvifRelayOutput(const OnvifRelayOutput &other);
    OnvifRelayOutput(OnvifRelayOutput &&other) noexcept;
    OnvifRelayOutput &operator=(const OnvifRelayOutput &other);
    OnvifRelayOutput &operator=(OnvifRelayOutput &&other) noexcept;
    ~OnvifRelayOutput() override;

    /// Whether the tokens are equal. Nothing else is compared.
    bool operator==(const OnvifRelayOutput &other) const;
    bool operator!=(const OnvifRelayOutput &other) const; ///< The opposite of ==.
};

/// The name of \a mode for the user, translated by the catalogues that the application has installed for the context
/// "vorn::OnvifRelayOutput". Empty for a value outside the enumeration.
VORNSDK_ONVIF_EXPORT QString vPrintable(OnvifRelayOutput::RelayMode mode);

/// The name of \a state for the user, translated by the catalogues that the application has installed for the context
/// "vorn::OnvifRelayOutput". Empty for a value outside the enumeration.
VORNSDK_ONVIF_EXPORT QString vPrintable(OnvifRelayOutput::IdleState state);

} // namespace vorn

VORNSDK_ONVIF_DECLARE_LIST(vorn::OnvifRelayOutput)

namespace vorn {

/// The relay outputs of a device: the answer to GetRelayOutputs.
///
/// Empty if the reply is of another kind or cannot be parsed.
struct VORNSDK_ONVIF_EXPORT OnvifRelayOutputVector : QList<OnvifRelayOutput>, OnvifResponseStructure
{
    /// An empty list.
    OnvifRelayOutputVector();

    /// Reads each "/RelayOutputs" of the reply \a bytes below the path \a root of its response element, which is
    /// "/Envelope/Body/GetRelayOutputsResponse".
    OnvifRelayOutputVector(const QByteArray &bytes, const QString &root);

    OnvifRelayOutputVector(const OnvifRelayOutputVector &other);
    OnvifRelayOutputVector(OnvifRelayOutputVector &&other) noexcept;
    OnvifRelayOutputVector &operator=(const OnvifRelayOutputVector &other);
    OnvifRelayOutputVector &operator=(OnvifRelayOutputVector &&other) noexcept;
    ~OnvifRelayOutputVector();
};

} // namespace vorn
