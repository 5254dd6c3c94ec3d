#include "path.h"
#include "xmldocument.h"
#include "xmlnames.h"
#include "xmltext.h"

#include <vorn/util/xmlresponse.h>

namespace vorn {

QString XmlElementView::name() const
{
    return m_element ? toQString(localName(pugi::xml_node(m_element).name())) : QString();
}

QByteArrayView XmlElementView::utf8Name() const noexcept
{
    return localName(pugi::xml_node(m_element).name());
}

bool XmlElementView::hasName(QAnyStringView name) const
{
    const char *own = localName(pugi::xml_node(m_element).name());
    return m_element && name.visit([own](auto text) { return equals(own, text); });
}

QString XmlElementView::text() const
{
    return textOf(pugi::xml_node(m_element));
}

bool XmlElementView::hasText(QAnyStringView text) const
{
    return vorn::hasText(pugi::xml_node(m_element), text);
}

unsigned int XmlElementView::toUInt() const
{
    return uintOf(pugi::xml_node(m_element));
}

int XmlElementView::toInt() const
{
    return intOf(pugi::xml_node(m_element));
}

double XmlElementView::toDouble() const
{
    return doubleOf(pugi::xml_node(m_element));
}

bool XmlElementView::toBool() const
{
    return boolOf(pugi::xml_node(m_element));
}

QString XmlElementView::attribute(QAnyStringView name) const
{
    return name.visit([this](auto written) {
        for (const pugi::xml_attribute candidate : pugi::xml_node(m_element).attributes()) {
            if (equals(candidate.name(), written))
                return toQString(candidate.value());
        }
        return QString();
    });
}

XmlElementView XmlElementView::at(QAnyStringView path) const
{
    return XmlElementView(descend(pugi::xml_node(m_element), path).internal_object());
}

XmlElementViews XmlElementView::children() const
{
    return {XmlElementView(firstElement(pugi::xml_node(m_element).first_child()).internal_object()), false};
}

XmlElementViews XmlElementView::children(QAnyStringView name) const
{
    const pugi::xml_node first = pugi::xml_node(m_element).first_child();
    return {XmlElementView(name.visit([first](auto text) { return firstNamed(first, text); }).internal_object()), true};
}

XmlElementViews::Iterator &XmlElementViews::Iterator::operator++()
{
    const pugi::xml_node element(m_view.m_element);
    const pugi::xml_node next = m_ofOneName ? nextNamesake(element) : firstElement(element.next_sibling());
    m_view = XmlElementView(next.internal_object());
    return *this;
}

} // namespace vorn
