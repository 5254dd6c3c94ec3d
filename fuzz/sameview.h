#pragma once

#include "children.h"

#include <vorn/util/xmlresponse.h>

#include <algorithm>
#include <iterator>

namespace fuzz {

/// Whether \a view shows what \a node holds: name, text, attributes and children, and so on below.
inline bool isSame(vorn::XmlElementView view, const vorn::XmlResponseNode &node)
{
    const QString text = node.element.text();
    const QString word = text.trimmed();
    if (view.isNull() == node.valid || view.name() != node.name || view.hasName(node.name) != node.valid)
        return false;
    if (view.text() != text || view.text().isNull() != text.isNull() || view.hasText(text) != node.valid)
        return false;
    if (view.toInt() != text.toInt() || view.toUInt() != text.toUInt()
        || view.toBool() != (word == QLatin1String("true") || word == QLatin1String("1")))
        return false;

    const QDomNamedNodeMap attributes = node.element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QString name = attributes.item(i).nodeName();
        const QString value = view.attribute(name);
        if (value != node.element.attribute(name) || value.isNull())
            return false;
    }

    const vorn::XmlElementViews children = view.children();
    if (!std::equal(children.begin(), children.end(), node.children.begin(), node.children.end(), isSame))
        return false;
    if (node.children.isEmpty())
        return true;
    const QString first = node.children.constFirst().name;
    const QList<vorn::XmlResponseNode> named = childrenNamed(node, first);
    const vorn::XmlElementViews namedViews = view.children(first);
    return view.at('/' + first) == *namedViews.begin()
           && std::distance(namedViews.begin(), namedViews.end()) == named.size()
           && std::equal(namedViews.begin(), namedViews.end(), named.begin(),
                         [](vorn::XmlElementView child, const vorn::XmlResponseNode &other) {
                             return child.name() == other.name && child.text() == other.element.text();
                         });
}

} // namespace fuzz
