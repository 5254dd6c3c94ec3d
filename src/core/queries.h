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

/// Reads the first child of each name below the element at the path \a parent. A field whose element is missing stays
/// as it is, which is as it was made.
template <typename Response>
void readQueries(Response &response, const QString &parent, std::initializer_list<ChildReader> queries)
{
    if constexpr (offersViews<Response>) {
        readFirstChildren(elementAt(response, parent), queries);
    } else {
        QString path;
        for (const ChildReader &query : queries) {
            path = parent + QLatin1Char('/') + query.name;
            query.read(elementAt(response, path), query.target);
        }
    }
}

/// The text of the element at \a path; nothing if there is no such element.
inline std::optional<QString> foundText(XmlResponse &response, const QString &path)
{
    const RecordElement element = elementAt(response, path);
    QString text = element.text();
    if (text.isEmpty() && element.isNull()) // an element that has text is there
        return std::nullopt;
    return text;
}

} // namespace vorn
