#pragma once

#include <QtCore/QStringView>

#include <algorithm>

namespace vorn {

/// Takes the first component off \a path: of "/a/b" it returns "a" and leaves "/b". What is no path, and the empty
/// component of "//", gives an empty component, which is the name of no element.
inline QStringView takeComponent(QStringView &path)
{
    if (!path.startsWith(u'/')) {
        path = {};
        return {};
    }
    const QStringView rest = path.sliced(1);
    const auto slash = std::find(rest.begin(), rest.end(), u'/');
    path = QStringView(slash, rest.end());
    return QStringView(rest.begin(), slash);
}

} // namespace vorn
