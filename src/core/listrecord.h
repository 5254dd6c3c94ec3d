#pragma once

#include "readchildren.h"

#include <iterator>

namespace vorn {

/// Appends to the list record \a list what \a make makes of each element that its reply holds at \a childPath, in
/// document order.
///
/// A record is made first and then appended, not built in its place: what it loses when it is copied or moved, it loses
/// on its way into a list too.
template <typename List, typename Make>
void appendElements(List &list, const QString &childPath, const Make &make)
{
    const auto elements = elementsAt(list.response, childPath);
    list.reserve(list.size() + std::distance(elements.begin(), elements.end()));
    for (const RecordElement element : elements)
        list.append(make(element));
}

/// Appends to the list record \a list one record for each element that its reply holds at \a childPath.
template <typename List>
void appendElements(List &list, const QString &childPath)
{
    appendElements(list, childPath, recordFrom<typename List::value_type>);
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
