#pragma once

#include <QtCore/QStringView>
#include <pugixml.hpp>

namespace vorn {

/// The part of a qualified name behind its prefix: "Name" of "tt:Name".
const char *localName(const char *qualifiedName);

/// Whether \a utf8 is the text \a text.
bool equals(const char *utf8, QStringView text);

/// The first element with the local name \a name among \a node and its following siblings; null if there is none.
pugi::xml_node firstNamed(pugi::xml_node node, QStringView name);

} // namespace vorn
