#include "xmlnames.h"

#include "xmltext.h"

#include <cstring>

namespace vorn {
namespace {

/// Not inlined, as names hardly ever get here and would all pay for what it needs of the stack.
Q_NEVER_INLINE bool equalsDecoded(const char *utf8, QStringView text)
{
    return toQString(utf8) == text;
}

} // namespace

const char *localName(const char *qualifiedName)
{
    const char *colon = std::strchr(qualifiedName, ':');
    return colon ? colon + 1 : qualifiedName;
}

bool equals(const char *utf8, QStringView text)
{
    const char16_t *characters = text.utf16();
    const qsizetype size = text.size();
    for (qsizetype i = 0; i < size; ++i) {
        const auto byte = static_cast<signed char>(utf8[i]);
        if (characters[i] != char16_t(byte) || byte <= 0)
            return characters[i] >= 0x80 && equalsDecoded(utf8 + i, text.sliced(i));
    }
    return utf8[size] == '\0';
}

pugi::xml_node firstNamed(pugi::xml_node node, QStringView name)
{
    if (name.isEmpty()) // as the names of text nodes are
        return {};
    while (node && !equals(localName(node.name()), name))
        node = node.next_sibling();
    return node;
}

} // namespace vorn
