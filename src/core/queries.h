#pragma once

#include "readchildren.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QString>
#include <QtCore/QStringView>

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <type_traits>

namespace vorn {

/// What the element at a path is read into. For readQueries() only.
struct Query
{
    QStringView path; ///< Below the root path; a literal.
    void *target;
    void (*read)(const RecordElement &element, void *target);
};

/// \a target gets the text of the element at \a path, or the number or boolean that a query makes of it.
template <qsizetype Size, typename Field>
Query query(const char16_t (&path)[Size], Field &target)
{
    return {QStringView(path, Size - 1), &target, [](const RecordElement &element, void *value) {
                if constexpr (std::is_same_v<Field, bool>)
                    *static_cast<bool *>(value) = element.toBool();
                else
                    readValue(element, *static_cast<Field *>(value));
            }};
}

/// Whether \a path goes on with \a name, which is ASCII if so.
inline bool goesOnWith(QStringView path, QByteArrayView name)
{
    const qsizetype size = name.size();
    return path.size() >= size && (path.size() == size || path[size] == u'/')
           && std::equal(name.begin(), name.end(), path.begin(),
                         [](char byte, QChar character) { return QLatin1Char(byte) == character; });
}

/// Reads what the paths from \a begin to \a end lead to, whose first \a length characters have led to \a element. Each
/// element is walked over once.
template <typename View>
void readBelow(const View &element, const Query *begin, const Query *end, qsizetype length)
{
    Q_ASSERT(end - begin <= 64);
    std::uint64_t done = 0;
    for (const auto child : element.children()) {
        const QByteArrayView name = child.utf8Name();
        const auto leadsOn = [name, length](const Query &query) {
            return goesOnWith(query.path.sliced(length + 1), name);
        };
        const Query *first = std::find_if(begin, end, leadsOn);
        if (first == end)
            continue;
        const std::uint64_t bit = std::uint64_t(1) << (first - begin);
        if ((done & bit) != 0) // a path leads to the first child of a name
            continue;
        done |= bit;
        const qsizetype next = length + 1 + name.size();
        if (first->path.size() == next)
            first->read(child, first->target);
        else
            readBelow(child, first, std::find_if_not(first, end, leadsOn), next);
    }
}

/// Reads what \a queries lead to. A field whose element is missing stays as it was made, or gets what a missing element
/// gives: null, 0 or false. Paths that begin with the same names have to stand side by side, and no path ends where
/// another goes on. There are at most 64.
template <typename Response>
void readQueries(Response &response, std::initializer_list<Query> queries)
{
    if constexpr (offersViews<Response>) {
        readBelow(response.view({}), queries.begin(), queries.end(), 0);
    } else {
        for (const Query &query : queries) // the path is not copied, and may be kept, as it is a literal
            query.read(elementAt(response, QString::fromRawData(query.path.data(), query.path.size())), query.target);
    }
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
