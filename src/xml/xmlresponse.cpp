#include "nodebuilder.h"
#include "numbers.h"
#include "path.h"
#include "xmldocument.h"
#include "xmlnames.h"
#include "xmltext.h"

#include <vorn/util/xmlresponse.h>

#include <algorithm>

namespace vorn {
namespace {

/// The node at \a path, whose first component names \a node itself; null if it is missing.
const XmlResponseNode *find(const XmlResponseNode &node, QStringView path)
{
    const XmlResponseNode *begin = &node;
    const XmlResponseNode *end = begin + 1;
    const XmlResponseNode *found = nullptr;
    do {
        const QStringView name = takeComponent(path);
        const auto hasName = [name](const XmlResponseNode &candidate) { return candidate.name == name; };
        found = name.isEmpty() ? end : std::find_if(begin, end, hasName);
        if (found == end)
            return nullptr;
        begin = found->children.constData();
        end = begin + found->children.size();
    } while (!path.isEmpty());
    return found;
}

} // namespace

XmlResponseNode::XmlResponseNode() = default;
XmlResponseNode::XmlResponseNode(const XmlResponseNode &other) = default;
XmlResponseNode::XmlResponseNode(XmlResponseNode &&other) noexcept = default;
XmlResponseNode &XmlResponseNode::operator=(const XmlResponseNode &other) = default;
XmlResponseNode &XmlResponseNode::operator=(XmlResponseNode &&other) noexcept = default;
XmlResponseNode::~XmlResponseNode() = default;

XmlResponse::XmlResponse() = default;

XmlResponse::XmlResponse(const QByteArray &bytes, const QString &root)
{
    if (!bytes.isEmpty())
        m_document = std::make_shared<const XmlDocument>(bytes, root);
}

XmlResponse::XmlResponse(const XmlResponse &other)
    : m_document(other.m_document)
{
    // The nodes of each object have a QDomDocument of their own: only the parsed document may be used on several
    // threads at once.
}

XmlResponse::XmlResponse(XmlResponse &&other) noexcept = default;

XmlResponse &XmlResponse::operator=(const XmlResponse &other)
{
    if (m_document != other.m_document)
        *this = XmlResponse(other);
    return *this;
}

XmlResponse &XmlResponse::operator=(XmlResponse &&other) noexcept = default;
XmlResponse::~XmlResponse() = default;

QString XmlResponse::xml() const
{
    return m_document ? m_document->text() : QString();
}

XmlResponseNode XmlResponse::get(const QString &path)
{
    const pugi::xml_node element = pugi::xml_node(find(path));
    return element ? NodeBuilder(m_nodeOwner).node(element) : XmlResponseNode();
}

XmlResponseNode XmlResponse::get(const XmlResponseNode &node, const QString &path)
{
    const XmlResponseNode *found = vorn::find(node, path);
    return found ? *found : XmlResponseNode();
}

QList<XmlResponseNode> XmlResponse::getAll(const QString &path)
{
    QList<XmlResponseNode> nodes;
    NodeBuilder builder(m_nodeOwner);
    auto element = pugi::xml_node(find(path));
    while (element) {
        nodes.append(builder.node(element));
        element = nextNamesake(element);
    }
    return nodes;
}

QString XmlResponse::getText(const QString &path)
{
    return textOf(pugi::xml_node(find(path)));
}

QString XmlResponse::getText(const XmlResponseNode &node, const QString &path)
{
    const XmlResponseNode *found = vorn::find(node, path);
    if (!found)
        return {};
    const QDomNode content = found->element.firstChild();
    const bool isOneText = content.isText() && found->element.lastChild() == content;
    return isOneText ? content.nodeValue() : found->element.text(); // the value is shared, the text a copy
}

unsigned int XmlResponse::getUInt(const QString &path)
{
    return uintOf(pugi::xml_node(find(path)));
}

unsigned int XmlResponse::getUInt(const XmlResponseNode &node, const QString &path)
{
    return toUInt(getText(node, path));
}

bool XmlResponse::getBool(const QString &path)
{
    return boolOf(pugi::xml_node(find(path)));
}

QString XmlResponse::getAttribute(const QString &attribute, const QString &path)
{
    return XmlElementView(find(path)).attribute(attribute);
}

XmlElementView XmlResponse::view(QAnyStringView path) const
{
    return XmlElementView(m_document ? m_document->find(path).internal_object() : nullptr);
}

XmlElementViews XmlResponse::viewAll(QAnyStringView path) const
{
    return {view(path), true};
}

pugi::xml_node_struct *XmlResponse::find(const QString &path)
{
    if (!m_document)
        return nullptr;
    const QStringView view(path);
    const auto slash = std::find(view.rbegin(), view.rend(), u'/');
    if (slash == view.rend()) // the empty path, or none
        return m_document->find(view).internal_object();

    const QStringView name(slash.base(), view.end());
    const QStringView parentPath = view.chopped(name.size() + 1);
    pugi::xml_node parent = m_document->root();
    if (!parentPath.isEmpty()) {
        if (parentPath != QStringView(m_parentPath.data(), m_parentPathSize)) {
            m_parent = m_document->find(parentPath).internal_object();
            const bool fits = parentPath.size() <= qsizetype(m_parentPath.size());
            m_parentPathSize = fits ? parentPath.size() : 0;
            std::copy_n(parentPath.utf16(), m_parentPathSize, m_parentPath.begin());
        }
        parent = pugi::xml_node(m_parent);
    }
    return firstNamed(parent.first_child(), name).internal_object();
}

} // namespace vorn
