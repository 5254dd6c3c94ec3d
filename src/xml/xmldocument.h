#pragma once

#include <QtCore/QAnyStringView>
#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <pugixml.hpp>

namespace vorn {

/// The element at \a path below \a node, which may be the parent of the document element; \a node itself if the path is
/// empty. Null if there is none.
pugi::xml_node descend(pugi::xml_node node, QAnyStringView path);

/// The text of a reply and its tree, parsed once and never changed, so that copies of a response share it without a
/// lock.
class XmlDocument
{
public:
    XmlDocument(const QByteArray &bytes, const QString &root);

    const QString &text() const { return m_text; }

    /// The element at the root path, the parent of the document element where that path is empty, or null.
    pugi::xml_node root() const { return m_root; }

    /// The element at \a path below the root path; null if it is missing.
    pugi::xml_node find(QAnyStringView path) const;

private:
    QString m_text;
    pugi::xml_document m_tree;
    pugi::xml_node m_root;
};

} // namespace vorn
