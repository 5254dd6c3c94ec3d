#include "xmldocument.h"

#include "encoding.h"
#include "path.h"
#include "xmlnames.h"

namespace vorn {
namespace {

constexpr int maximumDepth = 256;

/// Ends the walk over a tree at the first element that is nested too deep.
class DepthLimit : public pugi::xml_tree_walker
{
    bool for_each(pugi::xml_node &node) override { return node.type() != pugi::node_element || depth() < maximumDepth; }
};

/// Whether \a tree, parsed from \a size bytes, keeps within the bound on depth.
bool keepsDepth(pugi::xml_document &tree, std::size_t size)
{
    constexpr std::size_t shortestLevel = sizeof("<a></a>") - 1;
    if (size <= shortestLevel * maximumDepth) // too short to be nested deeper
        return true;
    DepthLimit limit;
    return tree.traverse(limit);
}

/// Whether the document element is all that the parser found; it skips what may stand beside it.
bool hasSoleElement(const pugi::xml_document &tree)
{
    const pugi::xml_node first = tree.first_child();
    return first.type() == pugi::node_element && !first.next_sibling();
}

} // namespace

pugi::xml_node descend(pugi::xml_node node, QAnyStringView path)
{
    return path.visit([node](auto rest) mutable {
        while (node && !rest.isEmpty())
            node = firstNamed(node.first_child(), takeComponent(rest));
        return node;
    });
}

XmlDocument::XmlDocument(const QByteArray &bytes, const QString &root)
{
    DecodedReply reply = decodeReply(bytes);
    m_text = std::move(reply.text);

    // parse_fragment keeps text beside the document element, which would else be skipped. parse_embed_pcdata saves the
    // node for the text of a leaf.
    constexpr unsigned int options = pugi::parse_default | pugi::parse_fragment | pugi::parse_embed_pcdata;
    const auto size = static_cast<std::size_t>(reply.utf8.size());
    const bool parsed = m_tree.load_buffer(reply.utf8.constData(), size, options, pugi::encoding_utf8);

    if (parsed && hasSoleElement(m_tree) && keepsDepth(m_tree, size))
        m_root = descend(m_tree.root(), root);
    else
        m_tree.reset();
}

pugi::xml_node XmlDocument::find(QAnyStringView path) const
{
    const pugi::xml_node node = descend(m_root, path);
    return node.type() == pugi::node_element ? node : pugi::xml_node();
}

} // namespace vorn
