#pragma once

#include <vorn/util/xmlresponse.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace test {

/// The document element of \a xml, which has to be called "Element".
inline vorn::XmlResponseNode nodeOf(const QByteArray &xml)
{
    return vorn::XmlResponse(xml, QString()).get(QStringLiteral("/Element"));
}

/// An element \a name that holds \a content, or nothing.
inline QByteArray element(const QByteArray &name, const QByteArray &content = QByteArray())
{
    return '<' + name + '>' + content + "</" + name + '>';
}

/// The elements of \a path, nested, with \a content in the innermost.
inline QByteArray elementAt(const QByteArray &path, const QByteArray &content)
{
    QByteArray nested = content;
    const QList<QByteArray> names = path.mid(1).split('/');
    for (auto name = names.rbegin(); name != names.rend(); ++name)
        nested = element(*name, nested);
    return nested;
}

} // namespace test
