// What a translator finds: lupdate over the sources.

#include "expectations.h"
#include "support/printing.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtXml/QDomDocument>
#include <gtest/gtest.h>

namespace {

/// The sources of all messages in the catalogue that lupdate makes, by context.
QMap<QString, QStringList> messagesByContext()
{
    const QTemporaryDir folder;
    const QString catalogue = folder.filePath("catalogue.ts");
    QProcess lupdate;
    lupdate.start(QStringLiteral(LUPDATE_PROGRAM),
                  {"-silent", "-extensions", "cpp,h", "-I", QStringLiteral(INCLUDE_FOLDER),
                   QStringLiteral(SOURCE_FOLDER), "-ts", catalogue});
    EXPECT_TRUE(lupdate.waitForFinished()) << "lupdate does not run";
    EXPECT_EQ(lupdate.exitCode(), 0);
    EXPECT_EQ(lupdate.readAllStandardError(), QByteArray()) << "lupdate warns";

    QFile file(catalogue);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QDomDocument document;
    EXPECT_TRUE(document.setContent(&file));

    QMap<QString, QStringList> messages;
    const QDomNodeList contexts = document.elementsByTagName("context");
    for (int i = 0; i < contexts.count(); ++i) {
        const QDomElement context = contexts.at(i).toElement();
        const QDomNodeList sources = context.elementsByTagName("source");
        for (int j = 0; j < sources.count(); ++j)
            messages[context.firstChildElement("name").text()].append(sources.at(j).toElement().text());
    }
    return messages;
}

QStringList allFaultSentences()
{
    QSet<QString> sentences{"Unknown Error.", "Client trying to remove fixed user."};
    for (const test::FaultSentence &row : test::faultSentences)
        sentences.insert(row.sentence);
    for (const test::SubcodeSentence &row : test::subcodeSentences)
        sentences.insert(row.sentence);
    for (const test::SpecificSentence &row : test::specificSentences)
        sentences.insert(row.sentence);
    QStringList sorted = sentences.values();
    sorted.sort();
    return sorted;
}

TEST(FaultCatalogue, holdsEachSentenceOnceAndNoOther)
{
    QStringList found = messagesByContext().value("vorn::OnvifFault");
    found.sort();
    EXPECT_EQ(found, allFaultSentences());
}

} // namespace
