#pragma once

/// \file
/// The scopes by which a device says what it is.

#include <vorn/onvif/bases.h>
#include <vorn/onvif/export.h>

#include <QtCore/QByteArray>
#include <QtCore/QMultiMap>
#include <QtCore/QString>

namespace vorn {

/// A scope: a URI such as "onvif://www.onvif.org/location/country/china", taken apart into a category and a value.
///
/// The parts of the URI are counted at its slashes; its scheme and authority are not looked at. A URI with too few
/// parts gives empty ones.
struct VORNSDK_ONVIF_EXPORT OnvifScope : OnvifDataStructure
{
    /// How the device declares a scope.
    enum Type : qint32 {
        Unknown = 0,      ///< In no way that is known, or the scope is null.
        Fixed = 1,        ///< It cannot be changed.
        Configurable = 2, ///< It can be changed.
        Custom = 3,       ///< Made from a URI, without a device.
    };

    Type type = Unknown; ///< How the device declares the scope.
    QString uri;         ///< The whole URI, as it was given or built.
    QString key;         ///< The category, such as "location", percent-decoded.
    QString value;       ///< All that stands behind the category, such as "country/china", percent-decoded.

    /// A null scope of type Unknown.
    OnvifScope();

    /// Takes \a scopeUri apart. The type is Custom.
    explicit OnvifScope(const QString &scopeUri);

    /// Takes \a scopeUri apart.
    OnvifScope(Type scopeType, const QString &scopeUri);

    /// Builds the URI from \a scopeKey and \a scopeValue. Neither is percent-encoded.
    OnvifScope(Type scopeType, const QString &scopeKey, const QString &scopeValue);

    OnvifScope(const OnvifScope &other);
    OnvifScope(OnvifScope &&other) noexcept;
    OnvifScope &operator=(const OnvifScope &other);
    OnvifScope &operator=(OnvifScope &&other) noexcept;
    ~OnvifScope() override;

    /// The value.
    operator QString() const;
};

/// The scopes of a device by category: the answer to GetScopes.
///
/// The keys are the categories as they stand in the URIs, not percent-decoded. Of several scopes with one key, the last
/// in the reply comes first in `values(key)`. A scope without URI has the empty key. Empty if the reply is of another
/// kind or cannot be parsed.
struct VORNSDK_ONVIF_EXPORT OnvifScopeMap : QMultiMap<QString, OnvifScope>, OnvifResponseStructure
{
    /// No scopes.
    OnvifScopeMap();

    /// Reads each "/Scopes" of the reply \a bytes below the root path "/Envelope/Body/GetScopesResponse": the URI from
    /// "ScopeItem", the type from "ScopeDef".
    explicit OnvifScopeMap(const QByteArray &bytes);

    OnvifScopeMap(const OnvifScopeMap &other);
    OnvifScopeMap(OnvifScopeMap &&other) noexcept;
    OnvifScopeMap &operator=(const OnvifScopeMap &other);
    OnvifScopeMap &operator=(OnvifScopeMap &&other) noexcept;
    ~OnvifScopeMap();

    /// The scope to show for a category: of the scopes with this \a categoryKey the last in the reply that is Fixed or,
    /// if none is, the last.
    ///
    /// The map must hold the key: ask `contains(categoryKey)` first. Asserts that it does; where assertions are off, it
    /// returns a null scope for a missing key.
    OnvifScope fixedValue(const QString &categoryKey) const;
};

} // namespace vorn
