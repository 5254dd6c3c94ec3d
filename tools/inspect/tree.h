#pragma once

#include "outline.h"

#include <vorn/util/xmlresponse.h>

namespace inspect {

/// All that is in the element of \a node, for replies that have no record: its attributes by their names behind an "@",
/// its own text by "#text", and its child elements by theirs, in document order. An element that has nothing but text
/// is that text. Namespaces are left out.
Outline treeOf(const vorn::XmlResponseNode &node);

} // namespace inspect
