#include "nodebuilder.h"

#include "xmlnames.h"
#include "xmltext.h"

#include <cstddef>
#include <new>

namespace vorn {
namespace {

// QDomDocument looks at names, texts and CDATA sections when it makes a node: by
// QDomImplementation::invalidDataPolicy(), which any part of the program may set, it takes them as they are, leaves out
// what XML forbids, or makes no node at all. What a reply is read as must not depend on that. So nodes are made with
// what no policy objects to, and are given afterwards what they hold, which nobody looks at.

QDomElement newElement(QDomDocument &owner, const QString &name)
{
    QDomElement element = owner.createElement(QStringLiteral("e"));
    element.setTagName(name);
    return element;
}

/// Sees to it that an element is never destroyed if an exception passes by: when memory runs out while QDom takes in an
/// attribute, that is all that is left to do with it. Its map has a place then that nothing stands in, and to destroy
/// it would crash. It holds its attributes only: no child element has been appended yet.
class AttributesGuard
{
public:
    explicit AttributesGuard(const QDomElement &element)
        : m_element(element)
    {
    }

    AttributesGuard(const AttributesGuard &) = delete;
    AttributesGuard &operator=(const AttributesGuard &) = delete;

    ~AttributesGuard()
    {
        if (m_isComplete)
            return;
        alignas(QDomElement) std::byte memory[sizeof(QDomElement)];
        new (memory) QDomElement(m_element); // never gives back its share of the element
    }

    void complete() { m_isComplete = true; }

private:
    const QDomElement &m_element;
    bool m_isComplete = false;
};

void append(QDomElement &element, QDomCharacterData &&node, const QString &data)
{
    node.setData(data);
    element.appendChild(node);
}

} // namespace

NodeBuilder::NodeBuilder(QDomDocument &owner)
    : m_owner(owner)
{
}

// QDom walks from an element up to its document whenever an attribute is set on it or a child appended. So an element
// is completed before it is given a parent: then the walk ends at once.
XmlResponseNode NodeBuilder::node(pugi::xml_node element)
{
    XmlResponseNode node;
    fill(node, element);
    return node;
}

void NodeBuilder::fill(XmlResponseNode &node, pugi::xml_node source)
{
    const Name &elementName = name(source.name());
    node.valid = true;
    node.name = elementName.local;
    node.element = newElement(m_owner, elementName.qualified);
    setAttributes(node.element, source);
    appendContent(node, source);
}

const NodeBuilder::Name &NodeBuilder::name(const char *qualifiedName)
{
    return m_names.of(qualifiedName, [](std::string_view text) -> Name {
        const char *local = localName(text.data());
        const QString qualified = toQString(text.data());
        return {qualified, local == text.data() ? qualified : toQString(local)};
    });
}

QString NodeBuilder::value(const char *utf8)
{
    const std::string_view value(utf8);
    if (value.size() > 128) // hardly comes up again, and is too much to hold on to
        return toQString(utf8);
    return m_values.of(value, [](std::string_view text) { return toQString(text.data()); });
}

void NodeBuilder::setAttributes(QDomElement &element, pugi::xml_node source)
{
    AttributesGuard guard(element);
    // Backwards, so that of a repeated attribute the first is set last and stays.
    for (pugi::xml_attribute attribute = source.last_attribute(); attribute; attribute = attribute.previous_attribute())
        element.setAttribute(name(attribute.name()).qualified, value(attribute.value()));
    guard.complete();
}

void NodeBuilder::appendContent(XmlResponseNode &node, pugi::xml_node source)
{
    const char *ownText = source.value();
    if (isCharacterData(pugi::node_pcdata, ownText))
        append(node.element, m_owner.createTextNode({}), value(ownText));

    qsizetype elementCount = 0;
    for (pugi::xml_node child = source.first_child(); child; child = child.next_sibling())
        elementCount += child.type() == pugi::node_element ? 1 : 0;
    if (elementCount > 0)
        node.children.reserve(elementCount);
    for (pugi::xml_node child = source.first_child(); child; child = child.next_sibling()) {
        if (child.type() == pugi::node_element) {
            XmlResponseNode &childNode = node.children.emplaceBack();
            fill(childNode, child);
            node.element.appendChild(childNode.element);
        } else if (child.type() == pugi::node_cdata) {
            append(node.element, m_owner.createCDATASection({}), value(child.value()));
        } else if (isCharacterData(child.type(), child.value())) {
            append(node.element, m_owner.createTextNode({}), value(child.value()));
        }
    }
}

} // namespace vorn
