#pragma once

#include "path.h"

#include <QtCore/QAnyStringView>
#include <QtCore/QByteArrayView>
#include <QtCore/QString>
#include <pugixml.hpp>

#include <type_traits>

namespace vorn {

/// A value of the tree as text, with U+FFFD in place of each ill-formed sequence.
QString toQString(QByteArrayView utf8);

/// What a caller gives, as text. A U+FEFF at the start of UTF-8 is a character here too, which toString() drops.
template <typename View>
QString toText(View view)
{
    if constexpr (std::is_same_v<View, QUtf8StringView>)
        return toQString(QByteArrayView(unitsOf(view), view.size()));
    else
        return view.toString();
}

/// Whether a child of an element counts as text or CDATA. Text of nothing but white space does not, even if it was
/// written with character references: QDomDocument leaves it out too.
bool isCharacterData(pugi::xml_node_type type, const char *utf8);

/// What `QDomElement::text()` gives for \a element: null if it is missing, empty if it has no text.
QString textOf(pugi::xml_node element);

// The same as what is said of textOf(element), without a QString.
bool hasText(pugi::xml_node element, QAnyStringView text); ///< not null and equal to \a text
unsigned int uintOf(pugi::xml_node element);               ///< toUInt()
int intOf(pugi::xml_node element);                         ///< toInt()
double doubleOf(pugi::xml_node element);                   ///< toDouble()
bool boolOf(pugi::xml_node element);                       ///< trimmed, one of the words for true

} // namespace vorn
