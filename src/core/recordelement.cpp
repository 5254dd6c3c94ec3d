#include "recordelement.h"

#include <QtCore/QVarLengthArray>

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
double doubleOf(const QString &text)
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

QString RecordElement::text() const
{
    return m_node ? textOf(m_node->element) : m_view.text();
}

bool RecordElement::hasText(QLatin1String text) const
{
    return m_node ? textOf(m_node->element) == text : m_view.hasText(text);
}

int RecordElement::toInt() const
{
    return m_node ? textOf(m_node->element).toInt() : m_view.toInt();
}

unsigned int RecordElement::toUInt() const
{
    return m_node ? textOf(m_node->element).toUInt() : m_view.toUInt();
}

double RecordElement::toDouble() const
{
    return m_node ? doubleOf(textOf(m_node->element)) : m_view.toDouble();
}

bool RecordElement::toBool() const
{
    if (!m_node)
        return m_view.toBool();
    const QString text = textOf(m_node->element);
    const QStringView word = QStringView(text).trimmed();
    return word == QLatin1String("true") || word == QLatin1String("1");
}

QString RecordElement::attribute(const QString &name) const
{
    return m_node ? m_node->element.attribute(name) : m_view.attribute(name);
}

} // namespace vorn
