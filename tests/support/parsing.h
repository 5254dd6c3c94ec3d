#pragma once

#include <QtCore/QString>
#include <QtXml/QDomDocument>

namespace test {

/// Whether \a xml can be parsed into \a document, with its namespaces resolved. Qt 6.5 has a new way to say that, which
/// is the only one in a later Qt.
inline bool parse(QDomDocument &document, const QString &xml)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    return bool(document.setContent(xml, QDomDocument::ParseOption::UseNamespaceProcessing));
#else
    return document.setContent(xml, true);
#endif
}

} // namespace test
