// What a translator finds: lupdate over the sources.

#include "expectations.h"
#include "support/catalogue.h"

#include <QtCore/QSet>
#include <gtest/gtest.h>

namespace {

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

TEST(Catalogue, holdsThreeContexts)
{
    EXPECT_EQ(test::messagesByContext().keys(),
              QStringList({"vorn::OnvifFault", "vorn::OnvifNetworkInterface", "vorn::OnvifRelayOutput"}));
}

TEST(FaultCatalogue, holdsEachSentenceOnceAndNoOther)
{
    QStringList found;
    for (const auto &[sentence, disambiguation] : test::messagesByContext().value("vorn::OnvifFault")) {
        found.append(sentence);
        EXPECT_EQ(disambiguation, QString()) << sentence.toStdString();
    }
    found.sort();
    EXPECT_EQ(found, allFaultSentences());
}

} // namespace
