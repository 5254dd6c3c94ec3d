#include "readchildren.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QVarLengthArray>

#include <algorithm>

namespace vorn {
namespace {

QString textOf(const QDomElement &element)
{
    const QDomNode content = element.firstChild();
    const bool isOneText = content.isText() && element.lastChild() == content;
    return isOneText ? content.nodeValue() : element.text(); // the value is shared, the text a copy
}

/// As QString::toDouble(), which first brings the text into the form of the C locale. That takes ten times as long as
/// the conversion and is for nothing where the text is plain digits, as nearly all are.
double toDouble(const QString &text)
{
    QVarLengthArray<char, 32> digits;
    bool isPlain = !text.isEmpty() && text.size() <= 32;
    for (qsizetype i = 0; isPlain && i < text.size(); ++i) {
        const char16_t character = text[i].unicode();
        const bool isDigit = character >= u'0' && character <= u'9';
        isPlain = isDigit || (character == u'-' && i == 0) || character == u'.';
        digits.append(static_cast<char>(character));
    }
    return isPlain ? QByteArrayView(digits).toDouble() : text.toDouble();
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
    value = textOf(element.element).toInt();
}

void readValue(const XmlResponseNode &element, unsigned int &value)
{
    value = textOf(element.element).toUInt();
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
