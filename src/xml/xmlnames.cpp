#include "xmlnames.h"

#include "path.h"
#include "xmltext.h"

#include <QtCore/QAnyStringView>

#include <cstring>

namespace vorn {
namespace {

/// Not inlined, as names hardly ever get here and would all pay for what it needs of the stack.
template <typename View>
Q_NEVER_INLINE bool equalsDecoded(const char *utf8, View text)
{
    return toQString(utf8) == toText(text);
}

char16_t unsignedUnit(char unit)
{
    return static_cast<unsigned char>(unit);
}

char16_t unsignedUnit(char16_t unit)
{
    return unit;
}

bool areEqual(const char *name, const char *other)
{
    return std::strcmp(name, other) == 0 || equals(name, QUtf8StringView(other)); // ill-formed in two ways
}

} // namespace

const char *localName(const char *qualifiedName)
{
    const char *colon = std::strchr(qualifiedName, ':');
    return colon ? colon + 1 : qualifiedName;
}

template <typename View>
bool equals(const char *utf8, View text)
{
    const auto *units = unitsOf(text);
    const qsizetype size = text.size();
    for (qsizetype i = 0; i < size; ++i) {
        const char16_t byte = unsignedUnit(utf8[i]);
        const char16_t unit = unsignedUnit(units[i]);
        if (unit != byte || byte == 0 || byte >= 0x80)
            return unit >= 0x80 && equalsDecoded(utf8 + i, text.sliced(i));
    }
    return utf8[size] == '\0';
}

template <typename View>
pugi::xml_node firstNamed(pugi::xml_node node, View name)
{
    if (name.isEmpty()) // as the names of text nodes are
        return {};
    while (node && !equals(localName(node.name()), name))
        node = node.next_sibling();
    return node;
}

template bool equals(const char *, QStringView);
template bool equals(const char *, QLatin1String);
template bool equals(const char *, QUtf8StringView);
template pugi::xml_node firstNamed(pugi::xml_node, QStringView);
template pugi::xml_node firstNamed(pugi::xml_node, QLatin1String);
template pugi::xml_node firstNamed(pugi::xml_node, QUtf8StringView);

pugi::xml_node firstElement(pugi::xml_node node)
{
    while (node && node.type() != pugi::node_element)
        node = node.next_sibling();
    return node;
}

pugi::xml_node nextNamesake(pugi::xml_node element)
{
    const char *name = localName(element.name());
    do
        element = element.next_sibling();
    while (element && (element.type() != pugi::node_element || !areEqual(name, localName(element.name()))));
    return element;
}

} // namespace vorn
