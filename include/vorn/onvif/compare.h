#pragma once

/// \file
/// Whether two records hold the same.
///
/// The records' own == tells whether two of them stand for the same thing of a camera: most compare the tokens. A
/// change on the camera's side, which leaves the token as it is, is missed by whatever asks ==: QProperty, a property
/// with MEMBER and NOTIFY, QVariant, the comparison of lists. They do not signal it, or do not even take the new value
/// over. Ask sameContent() in the setter instead.

#include <vorn/onvif/fields.h>

#include <QtCore/QList>
#include <QtCore/QMultiMap>

#include <algorithm>
#include <cmath>
#include <functional>
#include <string_view>
#include <type_traits>

/// \cond
namespace vorn::detail {

template <typename Value>
bool isSame(const Value &one, const Value &other)
{
    if constexpr (hasFields<Value>) {
        bool same = true;
        if constexpr (std::is_base_of_v<OnvifDataStructure, Value>)
            same = one.isNull() == other.isNull();
        visitFields([&same](QLatin1StringView, const auto &field,
                            const auto &otherField) { same = same && isSame(field, otherField); },
                    one, other);
        return same;
    } else if constexpr (isList<Value>) {
        using Element = typename Value::value_type;
        return std::equal(one.begin(), one.end(), other.begin(), other.end(), isSame<Element>);
    } else if constexpr (isMap<Value>) {
        using Mapped = typename Value::mapped_type;
        return one.keys() == other.keys()
               && std::equal(one.begin(), one.end(), other.begin(), other.end(), isSame<Mapped>);
    } else if constexpr (std::is_floating_point_v<Value>) {
        // Not ==, of which -Wfloat-equal would warn in the programs of users.
        return std::equal_to<>()(one, other) || (std::isnan(one) && std::isnan(other));
    } else if constexpr (std::is_same_v<Value, const char *>) {
        return std::string_view(one ? one : "") == std::string_view(other ? other : "");
    } else {
        return one == other;
    }
}

} // namespace vorn::detail

/// \endcond

namespace vorn {

/// Whether all fields of \a one and \a other hold the same, and both are null or both are not.
///
/// Records within, and the elements of lists in their order, are compared in the same way. Two "not a number" are the
/// same; a null text is the same as an empty one, as for ==. The replies that the records were read from may differ.
template <typename Record>
std::enable_if_t<hasFields<Record>, bool> sameContent(const Record &one, const Record &other)
{
    return detail::isSame(one, other);
}

/// Whether both lists have as many elements, and each the same content as the other list's in its place. Also for the
/// lists of records, which are derived from QList.
template <typename Element>
bool sameContent(const QList<Element> &one, const QList<Element> &other)
{
    return detail::isSame(one, other);
}

/// Whether both maps have the same keys, and the scopes of each the same content and order. Also for OnvifScopeMap.
template <typename Key, typename Value>
bool sameContent(const QMultiMap<Key, Value> &one, const QMultiMap<Key, Value> &other)
{
    return detail::isSame(one, other);
}

} // namespace vorn
