#pragma once

#include <vorn/util/xmlresponse.h>

#include <QtCore/QString>
#include <QtXml/QDomDocument>
#include <pugixml.hpp>

#include <string_view>
#include <unordered_map>

namespace vorn {

/// Makes the nodes that a response hands out.
///
/// Only an owner that also keeps the parsed document alive may hold one: the names are kept by their place in it.
class NodeBuilder
{
public:
    /// The node for \a element, which must not be null.
    XmlResponseNode node(pugi::xml_node element);

private:
    /// A document has few different names, so that each is converted only once and then shared.
    struct Name
    {
        QString qualified;
        QString local;
    };

    void fill(XmlResponseNode &node, pugi::xml_node source);
    const Name &name(const char *qualifiedName);
    void setAttributes(QDomElement &element, pugi::xml_node source);
    void appendContent(XmlResponseNode &node, pugi::xml_node source);

    QDomDocument m_document;
    std::unordered_map<std::string_view, Name> m_names;
};

} // namespace vorn
