#pragma once

#include <QtCore/QStringView>

namespace vorn {

/// All of \a uri from its part number \a index on, where slashes separate the parts and empty ones count. Of
/// "onvif://authority/category/some/value", part 3 is the category and all from part 4 on the value. Empty if there are
/// not so many parts.
QStringView partsFrom(QStringView uri, int index);

/// The part of \a uri with the number \a index.
QStringView part(QStringView uri, int index);

/// \a part with its percent-encoding undone.
QString percentDecoded(QStringView part);

} // namespace vorn
