#pragma once

#include <QtCore/QByteArrayView>

namespace vorn {

/// Whether \a utf8 holds, anywhere, a reference to a number that is no character: 0, a surrogate, or one beyond
/// Unicode.
bool holdsReferenceToNoCharacter(QByteArrayView utf8);

/// Puts in \a value, which gets no longer by it, the character in place of each reference to one, and U+FFFD in place
/// of one to no character. References to entities that XML does not know stay as written.
void resolveReferences(char *value);

} // namespace vorn
