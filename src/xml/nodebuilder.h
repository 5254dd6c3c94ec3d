#pragma once

#include "recentvalues.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QString>
#include <QtXml/QDomDocument>
#include <pugixml.hpp>

namespace vorn {

/// Makes the nodes that one query hands out. Lives no longer than the parsed document: it points into that for the
/// texts that it remembers.
class NodeBuilder
{
public:
    /// The elements belong to \a owner.
    explicit NodeBuilder(QDomDocument &owner);

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

    QDomDocument &m_owner;
    RecentValues<Name> m_names;
    RecentValues<QString> m_values;
};

} // namespace vorn
