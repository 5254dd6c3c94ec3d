// Whether the counter of the allocation tests counts at all.

#include "support/allocations.h"

#include <QtCore/QByteArray>
#include <gtest/gtest.h>

#include <memory>

TEST(AllocationCounter, countsNew)
{
    const test::AllocationCounter allocations;
    const auto number = std::make_unique<int>(1);
    EXPECT_EQ(allocations.count(), 1U);
}

TEST(AllocationCounter, countsWhatQtAllocates)
{
    const test::AllocationCounter allocations;
    const QByteArray bytes(100, 'x');
    EXPECT_GE(allocations.count(), 1U);
}

TEST(AllocationCounter, startsAtZero)
{
    const auto number = std::make_unique<int>(1);
    const test::AllocationCounter allocations;
    EXPECT_EQ(allocations.count(), 0U);
}

TEST(AllocationCounter, notesTheMostThatWasHeldAtOneTime)
{
    const test::AllocationCounter allocations;
    for (int i = 0; i < 10; ++i)
        QByteArray(100000, 'x').append('y');
    EXPECT_GE(allocations.peakBytes(), 100000U);
    EXPECT_LE(allocations.peakBytes(), 500000U);
}
