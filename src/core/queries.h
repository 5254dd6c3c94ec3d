#pragma once

#include "readchildren.h"

#include <QtCore/QString>

#include <initializer_list>
#include <optional>
#include <type_traits>

namespace vorn {

/// What the element at \a path is read into: \a target gets its text, or the number or boolean that a query makes of
/// it. For readQueries() only.
template <typename Field>
ChildReader query(const char *name, Field &target)
{
    return {QLatin1String(name), &target, [](const RecordElement &element, void *value) {
                if constexpr (std::is_same_v<Field, bool>)
                    *static_cast<bool *>(value) = element.toBool();
                else
                    readValue(element, *static_cast<Field *>(value));
            }};
}

/// Reads the first child of each name below \a element, which elementAt() gave, and so on in queriesBelow(). A field
/// whose element is missing stays as it was made: null, 0 or false.
inline void readQueries(const RecordElement &element, std::initializer_list<ChildReader> queries)
{
    if constexpr (offersViews<XmlResponse>) {
        readFirstChildren(element, queries);
    } else {
        for (const ChildReader &query : queries)
            query.read(element.at(QLatin1Char('/') % query.name), query.target);
    }
}

/// The same below the first child called \a name.
inline ChildReader queriesBelow(const char *name, std::initializer_list<ChildReader> &&queries)
{
    return {QLatin1String(name), &queries, [](const RecordElement &child, void *group) {
                readQueries(child, *static_cast<std::initializer_list<ChildReader> *>(group));
            }};
}

/// The text of \a element, which elementAt() gave; nothing if it is missing.
inline std::optional<QString> foundText(const RecordElement &element)
{
    QString text = element.text();
    if (text.isEmpty() && element.isNull()) // an element that has text is there
        return std::nullopt;
    return text;
}

} // namespace vorn
