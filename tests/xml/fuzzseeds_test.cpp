// The seeds that the fuzz target of the access by path starts from. They are to lead it to what is there: by luck it
// would draw hardly any path that does.

#include "fuzz/question.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <gtest/gtest.h>

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

TEST(FuzzSeeds, areReadAsAQuestionOnlyIfTheyStartWithASlash)
{
    EXPECT_EQ(fuzz::questionFrom("/a\n<a/>").path, QStringLiteral("/a"));
    EXPECT_EQ(fuzz::questionFrom("/a\n<a/>").reply, "<a/>");
    EXPECT_EQ(fuzz::questionFrom("<a>\n</a>").path, QString());
    EXPECT_EQ(fuzz::questionFrom("<a>\n</a>").reply, "<a>\n</a>");
    EXPECT_EQ(fuzz::questionFrom("/a").reply, "/a");
}

} // namespace
