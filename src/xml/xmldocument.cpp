#include "xmldocument.h"

#include "encoding.h"
#include "path.h"
#include "references.h"
#include "xmlnames.h"

#include <QtCore/QtGlobal>

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

/// Resolves the references in all values, in place as the parser does it.
class ReferenceResolver : public pugi::xml_tree_walker
{
    bool for_each(pugi::xml_node &node) override
    {
        if (node.type() != pugi::node_cdata)
            resolveReferences(const_cast<char *>(node.value()));
        for (const pugi::xml_attribute attribute : node.attributes())
            resolveReferences(const_cast<char *>(attribute.value()));
        return true;
    }
};

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
    unsigned int options = pugi::parse_default | pugi::parse_fragment | pugi::parse_embed_pcdata;
    // With a reference to 0 the parser would end the value, and take a number that is too high for another.
    const bool holdsBadReferences = holdsReferenceToNoCharacter(reply.utf8);
    if (holdsBadReferences)
        options &= ~static_cast<unsigned int>(pugi::parse_escapes);
    const auto size = static_cast<std::size_t>(reply.utf8.size());
    const pugi::xml_parse_result parsed =
        m_tree.load_buffer(reply.utf8.constData(), size, options, pugi::encoding_utf8);
    if (parsed.status == pugi::status_out_of_memory) // else a fault would read as a reply without one
        qBadAlloc();
    if (holdsBadReferences) {
        ReferenceResolver resolver;
        m_tree.traverse(resolver);
    }

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
