#pragma once

#include <pugixml.hpp>

namespace vorn {

/// The part of a qualified name behind its prefix: "Name" of "tt:Name".
const char *localName(const char *qualifiedName);

// View is each of the three views of a string that a QAnyStringView may be of.

/// Whether \a utf8 is the text \a text.
template <typename View>
bool equals(const char *utf8, View text);

/// The first element with the local name \a name among \a node and its following siblings; null if there is none.
template <typename View>
pugi::xml_node firstNamed(pugi::xml_node node, View name);

/// The first element among \a node and its following siblings; null if there is none.
pugi::xml_node firstElement(pugi::xml_node node);

/// The next sibling of \a element that has its local name; null if there is none.
pugi::xml_node nextNamesake(pugi::xml_node element);

} // namespace vorn
