// Whether the counter of what is moved counts at all.

#include "support/moves.h"
#include "support/sanitizers.h"

#include <QtCore/QByteArray>
#include <gtest/gtest.h>

namespace {

class MoveCounter : public testing::Test
{
    void SetUp() override
    {
        if (test::sanitized)
            GTEST_SKIP() << "The sanitizers bring their own memcpy() and memmove().";
    }
};

TEST_F(MoveCounter, countsWhatQtMoves)
{
    QByteArray bytes(100000, 'x');
    const test::MoveCounter moves;
    bytes.insert(1, "y");
    EXPECT_GE(moves.bytes(), 99999U);
    EXPECT_LE(moves.bytes(), 300000U);
}

TEST_F(MoveCounter, countsWhatIsCopied)
{
    const QByteArray bytes(100000, 'x');
    const test::MoveCounter moves;
    const QByteArray copy(bytes.constData(), bytes.size());
    EXPECT_GE(moves.bytes(), 100000U);
    EXPECT_LE(moves.bytes(), 101000U);
}

TEST_F(MoveCounter, startsAtZero)
{
    const QByteArray bytes(QByteArray(100, 'x').constData(), 100);
    const test::MoveCounter moves;
    EXPECT_EQ(moves.bytes(), 0U);
}

} // namespace
