#pragma once

#include <QtCore/QStringView>

namespace vorn {

// The parts of the URI of a scope. All from the value on belong to the value.
inline constexpr int categoryPart = 3;
inline constexpr int valuePart = 4;

/// All of \a uri from its part number \a index on, where slashes separate the parts and empty ones count. Of
/// "onvif://authority/category/some/value", part 3 is the category and all from part 4 on the value. Empty if there are
/// not so many parts.
QStringView partsFrom(QStringView uri, int index);

/// The part of \a uri with the number \a index.
QStringView part(QStringView uri, int index);

/// \a part with its percent-encoding undone.
QString percentDecoded(QStringView part);

} // namespace vorn
