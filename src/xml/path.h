#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>
#include <QtCore/QUtf8StringView>

#include <algorithm>

namespace vorn {

// The code units of each of the three views of a string that a QAnyStringView may be of.
inline const char16_t *unitsOf(QStringView view)
{
    return view.utf16();
}

inline const char *unitsOf(QLatin1String view)
{
    return view.latin1();
}

inline const char *unitsOf(QUtf8StringView view)
{
    return reinterpret_cast<const char *>(view.data()); // char8_t in C++20
}

/// Takes the first component off \a path: of "/a/b" it returns "a" and leaves "/b". What is no path, and the empty
/// component of "//", gives an empty component, which is the name of no element.
template <typename View>
View takeComponent(View &path)
{
    const auto *begin = unitsOf(path);
    const auto *end = begin + path.size();
    if (begin == end || *begin != u'/') {
        path = View();
        return View();
    }
    const auto *slash = std::find(begin + 1, end, u'/');
    const View component = path.sliced(1, slash - begin - 1);
    path = path.sliced(slash - begin);
    return component;
}

} // namespace vorn
