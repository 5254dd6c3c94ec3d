#pragma once

#include "recentvalues.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QString>
#include <QtXml/QDomDocument>
#include <pugixml.hpp>

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
    struct Name
    {
        QString qualified;
        QString local;
    };

    void fill(XmlResponseNode &node, pugi::xml_node source);
    const Name &name(const char *qualifiedName);
    QString value(const char *utf8);
    void setAttributes(QDomElement &element, pugi::xml_node source);
    void appendContent(XmlResponseNode &node, pugi::xml_node source);

    QDomDocument m_document;
    RecentValues<Name> m_names;
    RecentValues<QString> m_values;
};

} // namespace vorn
