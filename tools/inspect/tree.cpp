#include "tree.h"

#include <QtCore/QMap>
#include <QtXml/QDomNamedNodeMap>

namespace inspect {
namespace {

/// The attributes of \a element by their names, but for declarations of namespaces.
QMap<QString, QString> attributesOf(const QDomElement &element)
{
    QMap<QString, QString> attributes;
    const QDomNamedNodeMap nodes = element.attributes();
    for (int index = 0; index < nodes.count(); ++index) {
        const QString name = nodes.item(index).nodeName();
        if (name != QLatin1String("xmlns") && !name.startsWith(QLatin1String("xmlns:")))
            attributes.insert(name, nodes.item(index).nodeValue());
    }
    return attributes;
}

/// The text of \a element itself, without that of elements in it.
QString ownTextOf(const QDomElement &element)
{
    QString text;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isText())
            text += child.nodeValue();
    }
    return text;
}

} // namespace

Outline treeOf(const vorn::XmlResponseNode &node)
{
    Outline::Fields fields;
    const QMap<QString, QString> attributes = attributesOf(node.element);
    for (auto attribute = attributes.begin(); attribute != attributes.end(); ++attribute)
        fields.emplace_back(QLatin1Char('@') + attribute.key(), attribute.value());
    const QString text = ownTextOf(node.element);
    if (fields.empty() && node.children.isEmpty())
        return text;
    if (!text.trimmed().isEmpty())
        fields.emplace_back(QStringLiteral("#text"), text);
    for (const vorn::XmlResponseNode &child : node.children)
        fields.emplace_back(child.name, treeOf(child));
    return fields;
}

} // namespace inspect
