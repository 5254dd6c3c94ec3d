#pragma once

#include "outline.h"

#include <vorn/onvif/fields.h>

#include <QtCore/QMultiMap>
#include <QtCore/QSharedPointer>
#include <QtCore/QSize>
#include <QtCore/QString>

#include <type_traits>

class QRect;

/// The outline of each record: its public fields by their names.
namespace inspect {

/// The outline of \a value: a record, a list, an enumerator or a plain value.
template <typename Value>
Outline outline(const Value &value);

/// As the attributes of the reply are, also where an edge has wrapped around.
Outline outline(const QRect &rectangle);

Outline outline(const QSize &size);

/// The scopes of a camera: the values of each of the four keys.
Outline outline(const QMultiMap<QString, QString> &scopes);

/// Also whether the profile is saved.
Outline outline(const vorn::OnvifProfile &profile);

/// The three codes by name, the number of the first, the sentence, and the device's own words.
Outline outline(const vorn::OnvifFault &fault);

/// The outline of \a value; a null record has none.
template <typename Value>
Outline outlineUnlessNull(const Value &value)
{
    if constexpr (std::is_base_of_v<vorn::OnvifDataStructure, Value>) {
        if (value.isNull())
            return {};
    }
    return outline(value);
}

/// Whether a field points to something of the program's own, which no reply tells.
template <typename Field>
inline constexpr bool isOfProgram = std::is_pointer_v<Field>;

template <typename Type>
inline constexpr bool isOfProgram<QSharedPointer<Type>> = true;

/// The fields of \a record that a reply can tell.
template <typename Record>
Outline::Fields fieldsOf(const Record &record)
{
    Outline::Fields fields;
    vorn::visitFields(
        [&fields](QLatin1StringView name, const auto &field) {
            if constexpr (!isOfProgram<std::decay_t<decltype(field)>>)
                fields.emplace_back(name, outlineUnlessNull(field));
        },
        record);
    return fields;
}

template <typename Value>
Outline outline(const Value &value)
{
    if constexpr (vorn::hasFields<Value>) {
        return fieldsOf(value);
    } else if constexpr (vorn::isList<Value> || vorn::isMap<Value>) {
        Outline::List entries;
        for (const auto &entry : value)
            entries.push_back(outlineUnlessNull(entry));
        return entries;
    } else if constexpr (vorn::hasEnumerators<Value>) {
        return QString(vorn::enumeratorName(value));
    } else {
        return value;
    }
}

} // namespace inspect
