#include "xmlnames.h"

#include "xmltext.h"

#include <cstring>

namespace vorn {

const char *localName(const char *qualifiedName)
{
    const char *colon = std::strchr(qualifiedName, ':');
    return colon ? colon + 1 : qualifiedName;
}

bool equals(const char *utf8, QStringView text)
{
    for (const QChar &character : text) {
        if (character.unicode() >= 0x80)
            return toQString(utf8) == QStringView(&character, text.end());
        if (*utf8 == '\0' || *utf8 != static_cast<char>(character.unicode()))
            return false;
        ++utf8;
    }
    return *utf8 == '\0';
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
