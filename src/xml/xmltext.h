#pragma once

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

/// What `textOf(element).toUInt()` and a comparison with the words for true give, without a QString.
unsigned int uintOf(pugi::xml_node element);
bool boolOf(pugi::xml_node element);

} // namespace vorn
