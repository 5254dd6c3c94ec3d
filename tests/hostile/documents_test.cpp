// What is read of hostile replies, at what cost.

#include "cost.h"
#include "documents.h"
#include "readers.h"
#include "support/allocations.h"
#include "support/emulation.h"
#include "support/moves.h"
#include "support/sanitizers.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QThread>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <functional>
#include <iterator>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <sys/resource.h>

namespace hostile {

static void PrintTo(const Document &document, std::ostream *stream)
{
    *stream << document.name;
}

} // namespace hostile

using hostile::Document;

namespace {

/// What is read here is a tenth of the documents' full size; and a tenth of that under a sanitizer, which slows the
/// program down tenfold.
constexpr qsizetype scale = test::sanitized ? 100 : 10;

constexpr rlim_t stackSize = 1024 * 1024;

class Surroundings : public testing::Environment
{
    void SetUp() override
    {
        // All tests run on a small stack, as that of a thread may be.
        rlimit limit = {};
        ASSERT_EQ(getrlimit(RLIMIT_STACK, &limit), 0);
        limit.rlim_cur = stackSize;
        ASSERT_EQ(setrlimit(RLIMIT_STACK, &limit), 0);
    }
};

[[maybe_unused]] const testing::Environment *const surroundings = testing::AddGlobalTestEnvironment(new Surroundings);

void useStack(rlim_t size)
{
    volatile char frame[4096] = {};
    if (size > sizeof frame)
        useStack(size - sizeof frame);
    frame[0] = 1;
}

TEST(HostileStackDeathTest, isAsSmallAsItSays)
{
    if (test::isEmulated())
        GTEST_SKIP() << "The stack of an emulated program is not limited.";
    useStack(stackSize / 2);
    EXPECT_DEATH(useStack(2 * stackSize), "");
}

/// What a task takes that can be counted, so that it is the same on a busy machine.
struct Counts
{
    std::size_t allocations;
    std::size_t takenBytes;
    std::size_t peakBytes;
    std::size_t movedBytes;
};

Counts countsOf(const std::function<void()> &task)
{
    const test::AllocationCounter allocations;
    const test::MoveCounter moves;
    task();
    return {allocations.count(), allocations.takenBytes(), allocations.peakBytes(), moves.bytes()};
}

/// Expects of \a large, which has ten times the size of \a small, ten times the counts: up to sixteen, as a buffer
/// that doubles may be half empty. What grows with the square of the size comes to a hundred.
void expectProportion(const std::function<void()> &small, const std::function<void()> &large)
{
    constexpr std::size_t limit = 16;
    const Counts smallCounts = countsOf(small);
    const Counts largeCounts = countsOf(large);
    EXPECT_LE(largeCounts.allocations, limit * smallCounts.allocations);
    EXPECT_LE(largeCounts.takenBytes, limit * smallCounts.takenBytes);
    EXPECT_LE(largeCounts.peakBytes, limit * smallCounts.peakBytes);
    EXPECT_LE(largeCounts.movedBytes, limit * smallCounts.movedBytes);
}

class HostileDocument : public testing::TestWithParam<Document>
{
};

TEST_P(HostileDocument, isReadRightInProportionToItsSize)
{
    const Document document = GetParam();
    const qsizetype count = document.count / scale;
    const QByteArray large = document.make(count);
    const QByteArray small = document.make(count / 10);
    expectProportion([&] { EXPECT_TRUE(document.isReadRight(small, count / 10)); },
                     [&] { EXPECT_TRUE(document.isReadRight(large, count)); });
}

TEST_P(HostileDocument, isReadByAllRecordsInProportionToItsSize)
{
    const qsizetype count = GetParam().count / scale / 10;
    const QByteArray large = GetParam().make(count);
    const QByteArray small = GetParam().make(count / 10);
    expectProportion([&] { hostile::readAll(small); }, [&] { hostile::readAll(large); });
}

/// What SECURITY.md says that a reader takes for a byte of \a document, at most.
std::size_t boundFor(const hostile::Reader &reader, const Document &document)
{
    if (std::string_view(reader.name) == "XmlResponse") // with nodes for all that the reply holds
        return 300;
    // Here each element makes a record, which is larger than what it is read from.
    constexpr std::string_view ofRecords[] = {"empty profiles", "empty profiles with an attribute",
                                              "answers of one profile"};
    const bool isOfRecords =
        std::find(std::begin(ofRecords), std::end(ofRecords), document.name) != std::end(ofRecords);
    return isOfRecords ? 140 : 30;
}

// What every reply takes, and what is made only once, has a bound of its own.
TEST_P(HostileDocument, takesNoMoreMemoryThanIsSaid)
{
    const QByteArray reply = GetParam().make(GetParam().count / scale / 10);
    for (const hostile::Reader &reader : hostile::readers()) {
        const std::size_t most = boundFor(reader, GetParam()) * static_cast<std::size_t>(reply.size()) + 64 * 1024;
        EXPECT_LE(hostile::costOf([&] { reader.read(reply); }).peakBytes, most) << reader.name;
    }
}

TEST_P(HostileDocument, isReadOnTheStackOfASmallThread)
{
    const qsizetype count = GetParam().count / 1000;
    const QByteArray reply = GetParam().make(count);
    const std::unique_ptr<QThread> thread(QThread::create([&] { hostile::readAll(reply); }));
    thread->setStackSize(test::sanitized ? stackSize : stackSize / 4); // whose checks take stack too
    thread->start();
    EXPECT_TRUE(thread->wait());
}

std::string testName(const testing::TestParamInfo<Document> &document)
{
    std::string name = document.param.name;
    const auto isOther = [](char character) { return std::isalnum(static_cast<unsigned char>(character)) == 0; };
    std::replace_if(name.begin(), name.end(), isOther, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Replies, HostileDocument, testing::ValuesIn(hostile::documents()), testName);

} // namespace
