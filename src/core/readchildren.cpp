#include "readchildren.h"

#include "xml/numbers.h"

#include <algorithm>

namespace vorn {
namespace {

QString textOf(const QDomElement &element)
{
    const QDomNode content = element.firstChild();
    const bool isOneText = content.isText() && element.lastChild() == content;
    return isOneText ? content.nodeValue() : element.text(); // the value is shared, the text a copy
}

} // namespace

void readChildren(const XmlResponseNode &node, std::initializer_list<ChildReader> readers)
{
    for (const XmlResponseNode &child : node.children) {
        const auto hasName = [&child](const ChildReader &reader) { return child.name == reader.name; };
        const ChildReader *reader = std::find_if(readers.begin(), readers.end(), hasName);
        if (reader != readers.end())
            reader->read(child, reader->target);
    }
}

void readValue(const XmlResponseNode &element, QString &value)
{
    value = textOf(element.element);
}

void readValue(const XmlResponseNode &element, int &value)
{
    value = toInt(textOf(element.element));
}

void readValue(const XmlResponseNode &element, unsigned int &value)
{
    value = toUInt(textOf(element.element));
}

void readValue(const XmlResponseNode &element, double &value)
{
    value = toDouble(textOf(element.element));
}

void readValue(const XmlResponseNode &element, bool &value)
{
    value = textOf(element.element) == QLatin1StringView("true");
}

} // namespace vorn
