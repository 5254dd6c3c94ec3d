#pragma once

#include "readchildren.h"

#include <QtCore/QVarLengthArray>

#include <initializer_list>
#include <iterator>
#include <utility>

namespace vorn {

/// Fills the list record \a list, which is empty, with what \a make makes of each element that its reply holds at one
/// of \a childPaths: path for path, in document order.
///
/// A record is made first and then appended, not built in its place: what it loses when it is copied or moved, it loses
/// on its way into a list too.
template <typename List, typename Make>
void readElements(List &list, std::initializer_list<QString> childPaths, const Make &make)
{
    QVarLengthArray<decltype(elementsAt(list.response, QString())), 2> found;
    qsizetype count = 0;
    for (const QString &childPath : childPaths) {
        found.append(elementsAt(list.response, childPath));
        count += std::distance(found.last().begin(), found.last().end());
    }
    list.reserve(count); // of a list that holds something, Qt would not notice that memory has run out
    for (const auto &elements : std::as_const(found)) {
        for (const RecordElement element : elements)
            list.append(make(element));
    }
}

/// Fills the list record \a list, which is empty, with one record for each element that its reply holds at one of
/// \a childPaths.
template <typename List>
void readElements(List &list, std::initializer_list<QString> childPaths)
{
    readElements(list, childPaths, recordFrom<typename List::value_type>);
}

/// Replaces what \a list holds by one record for each child of \a element that is called \a name.
template <typename List>
void readList(const RecordElement &element, const char *name, List &list)
{
    list.clear();
    readChildren(element, {nested(name, [&list](const RecordElement &child) {
                     list.append(recordFrom<typename List::value_type>(child));
                 })});
}

} // namespace vorn
