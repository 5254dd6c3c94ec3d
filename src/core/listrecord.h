#pragma once

#include <vorn/util/xmlresponse.h>

namespace vorn {

/// Appends to the list record \a list what \a make makes of each node that its reply holds at \a childPath, in document
/// order.
///
/// An element is made first and then appended, not built in its place: what an element loses when it is copied or
/// moved, it loses on its way into a list too.
template <typename List, typename Make>
void appendElements(List &list, const QString &childPath, const Make &make)
{
    const QList<XmlResponseNode> nodes = list.response.getAll(childPath);
    list.reserve(list.size() + nodes.size());
    for (const XmlResponseNode &node : nodes)
        list.append(make(node));
}

/// Appends to the list record \a list one element for each node that its reply holds at \a childPath.
template <typename List>
void appendElements(List &list, const QString &childPath)
{
    using Element = typename List::value_type;
    appendElements(list, childPath, [](const XmlResponseNode &node) { return Element(node); });
}

} // namespace vorn
