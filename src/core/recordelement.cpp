#include "recordelement.h"

#include "xml/numbers.h"

namespace vorn {
namespace {

QString textOf(const QDomElement &element)
{
    const QDomNode content = element.firstChild();
    const bool isOneText = content.isText() && element.lastChild() == content;
    return isOneText ? content.nodeValue() : element.text(); // the value is shared, the text a copy
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
    return m_node ? vorn::toInt(textOf(m_node->element)) : m_view.toInt();
}

unsigned int RecordElement::toUInt() const
{
    return m_node ? vorn::toUInt(textOf(m_node->element)) : m_view.toUInt();
}

double RecordElement::toDouble() const
{
    return m_node ? vorn::toDouble(textOf(m_node->element)) : m_view.toDouble();
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
