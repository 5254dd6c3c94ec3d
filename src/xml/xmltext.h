#pragma once

#include <QtCore/QAnyStringView>
#include <QtCore/QString>
#include <pugixml.hpp>

namespace vorn {

/// A value of the tree as text, with U+FFFD in place of each ill-formed sequence.
QString toQString(const char *utf8);

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
