#pragma once

#include "support/printing.h"
#include "support/run.h"

#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QPair>
#include <QtCore/QTemporaryDir>
#include <QtXml/QDomDocument>
#include <gtest/gtest.h>

namespace test {

/// A source text and the disambiguation that goes with it; empty if there is none.
using Message = QPair<QString, QString>;

/// All messages that a translator finds, by context: in the catalogue that lupdate makes of the library's sources.
inline QMap<QString, QList<Message>> messagesByContext()
{
    const QTemporaryDir folder;
    const QString catalogue = folder.filePath("catalogue.ts");
    const RunResult lupdate = run({QStringLiteral(LUPDATE_PROGRAM), "-silent", "-extensions", "cpp,h", "-I",
                                   QStringLiteral(INCLUDE_FOLDER), QStringLiteral(SOURCE_FOLDER), "-ts", catalogue});
    EXPECT_EQ(lupdate.status, 0);
    EXPECT_EQ(lupdate.output, QByteArray()) << "lupdate warns";

    QFile file(catalogue);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QDomDocument document;
    EXPECT_TRUE(document.setContent(&file));

    QMap<QString, QList<Message>> messages;
    const QDomNodeList contexts = document.elementsByTagName("context");
    for (int i = 0; i < contexts.count(); ++i) {
        const QDomElement context = contexts.at(i).toElement();
        const QString name = context.firstChildElement("name").text();
        const QDomNodeList entries = context.elementsByTagName("message");
        for (int j = 0; j < entries.count(); ++j) {
            const QDomElement entry = entries.at(j).toElement();
            messages[name].append(
                {entry.firstChildElement("source").text(), entry.firstChildElement("comment").text()});
        }
    }
    return messages;
}

} // namespace test
