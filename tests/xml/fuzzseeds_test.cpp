// The seeds that the fuzz target of the access by path starts from. They are to lead it to what is there: by luck it
// would draw hardly any path that does.

#include "fuzz/question.h"
#include "support/printing.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <gtest/gtest.h>

#include <iterator>
#include <utility>

namespace {

TEST(FuzzSeeds, askForElementsThatAreThere)
{
    int count = 0;
    for (QDirIterator seeds(QStringLiteral(SEEDS_FOLDER), QDir::Files); seeds.hasNext(); ++count) {
        QFile file(seeds.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const fuzz::Question question = fuzz::questionFrom(file.readAll());
        vorn::XmlResponse response(question.reply, QString());
        EXPECT_TRUE(response.get(question.path).valid) << file.fileName().toStdString();
    }
    EXPECT_GT(count, 0);
}

TEST(FuzzSeeds, haveTheAnswersThatAreWrittenDown)
{
    const std::pair<QString, QString> answers[] = {
        {"DocumentElement", "1"}, {"IllFormedNames", "1"}, {"Leaf", "front <door>"},
        {"Number", "\n 42 "},     {"Repeated", " true "},  {"Utf16", "true"},
    };
    EXPECT_EQ(QDir(QStringLiteral(SEEDS_FOLDER)).entryList(QDir::Files).size(), qsizetype(std::size(answers)));
    for (const auto &[name, text] : answers) {
        QFile file(QStringLiteral(SEEDS_FOLDER "/") + name);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        const fuzz::Question question = fuzz::questionFrom(file.readAll());
        vorn::XmlResponse response(question.reply, QString());
        EXPECT_EQ(response.getText(question.path), text) << name.toStdString();
    }
}

TEST(FuzzSeeds, areReadAsAQuestionOnlyIfTheyStartWithASlash)
{
    EXPECT_EQ(fuzz::questionFrom("/a\n<a/>").path, QStringLiteral("/a"));
    EXPECT_EQ(fuzz::questionFrom("/a\n<a/>").reply, "<a/>");
    EXPECT_EQ(fuzz::questionFrom("<a>\n</a>").path, QString());
    EXPECT_EQ(fuzz::questionFrom("<a>\n</a>").reply, "<a>\n</a>");
    EXPECT_EQ(fuzz::questionFrom("/a").reply, "/a");
}

} // namespace
