#pragma once

#include <vorn/util/xmlresponse.h>

namespace fuzz {

/// The children of \a parent that are called \a name. No path leads to those without a local name.
inline QList<vorn::XmlResponseNode> childrenNamed(const vorn::XmlResponseNode &parent, QStringView name)
{
    QList<vorn::XmlResponseNode> named;
    for (const vorn::XmlResponseNode &child : parent.children) {
        if (child.name == name && !name.isEmpty())
            named.append(child);
    }
    return named;
}

} // namespace fuzz
