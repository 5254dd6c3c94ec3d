#pragma once

#include <vorn/util/xmlresponse.h>

namespace vorn {

/// Appends to the list record \a list one element for each node that its reply holds at \a childPath, in document
/// order.
///
/// An element is built first and then appended, not built in its place: what an element loses when it is copied or
/// moved, it loses on its way into a list too.
template <typename List>
void appendElements(List &list, const QString &childPath)
{
    using Element = typename List::value_type;
    const QList<XmlResponseNode> nodes = list.response.getAll(childPath);
    for (const XmlResponseNode &node : nodes)
        list.append(Element(node));
}

} // namespace vorn
