// Is a series sorted, and are its steps even?
#include "sorting/ranks.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <limits>

using namespace vecmat::test;

namespace {

const double nan = std::numeric_limits<double>::quiet_NaN();

short isSorted(const std::vector<double>& x, short strict)
{
    return V_IsSorted(column(x), static_cast<int>(x.size()), strict);
}

double step(const std::vector<double>& times, short sorted = 0)
{
    return V_TimeIntervalSize(column(times), static_cast<int>(times.size()), sorted);
}

TEST(IsSorted, onlyAscendingIsSorted)
{
    EXPECT_EQ(isSorted({M, -1, 0, 3}, 0), -1);
    EXPECT_EQ(isSorted({M, -1, 0, 3}, -1), -1);
    EXPECT_EQ(isSorted({3, 2, 1}, 0), 0);
    EXPECT_EQ(isSorted({1, 3, 2}, 0), 0);
    EXPECT_EQ(isSorted({1, M}, 0), 0);
}

TEST(IsSorted, onlyMinusOneForbidsEqualNeighbours)
{
    EXPECT_EQ(isSorted({1, 1, 2}, 0), -1);
    EXPECT_EQ(isSorted({1, 1, 2}, 1), -1);
    EXPECT_EQ(isSorted({1, 1, 2}, -1), 0);
    EXPECT_EQ(isSorted({-0.0, 0.0}, -1), 0);
    EXPECT_EQ(isSorted({0.0, -0.0}, 0), -1);
}

TEST(IsSorted, oneElementAndNoneAreSorted)
{
    for (const short strict : {short{0}, short{-1}}) {
        EXPECT_EQ(isSorted({5}, strict), -1);
        EXPECT_EQ(isSorted({}, strict), -1);
    }
}

TEST(IsSorted, aNanPassesEitherTest)
{
    EXPECT_EQ(isSorted({2, nan, 1}, 0), -1);
    EXPECT_EQ(isSorted({2, nan, 1}, -1), -1);
}

TEST(IsSorted, elementsBeyondTheTableAreMinusOne)
{
    EXPECT_EQ(V_IsSorted(column({-2}), 2, -1), -1);
    EXPECT_EQ(V_IsSorted(column({0}), 2, 0), 0);
}

TEST(TimeIntervalSize, isTheFirstStepOfAnEvenSeries)
{
    EXPECT_THAT(step({1, 2, 3.0000005}), SameBits(1.0));
    EXPECT_THAT(step({1, 2, 3.1}), SameBits(M));
    EXPECT_THAT(step({5, 3, 1, -1}), SameBits(-2.0));
    EXPECT_THAT(step({4, 4, 4}), SameBits(0.0));
}

TEST(TimeIntervalSize, everyStepIsComparedWithTheFirst)
{
    // Each step is longer than the one before by less than the tolerance, but the last two differ from the first by
    // more.
    const double d = 0.6e-6;
    EXPECT_THAT(step({0, 1, 2 + d}), SameBits(1.0));
    EXPECT_THAT(step({0, 1, 2 + d, 3 + 3 * d}), SameBits(M));
}

TEST(TimeIntervalSize, theStepIsTakenOffTheDifference)
{
    // At these times neighbouring doubles are further apart than the tolerance, and the difference of two is exact.
    EXPECT_THAT(step({52.6, 9885881127.6, 19771762202.6}), SameBits(M));
    EXPECT_THAT(step({57.3, 7818557579.2, 15637115101.1}), SameBits(7818557579.2 - 57.3));
}

TEST(TimeIntervalSize, onlyMinusOneSortsFirst)
{
    EXPECT_THAT(step({3, 1, 2}, -1), SameBits(1.0));
    EXPECT_THAT(step({3, 1, 2}, 0), SameBits(M));
    EXPECT_THAT(step({3, 1, 2}, 1), SameBits(M));
    auto times = column({3, 1, 2});
    V_TimeIntervalSize(times.get(), 3, -1);
    EXPECT_THAT(cellsOf(times), SameBits({3, 1, 2}));
}

TEST(TimeIntervalSize, cellsThatLackAreMinusOne)
{
    EXPECT_THAT(step({5}), SameBits(-6.0));
    EXPECT_THAT(step({}), SameBits(0.0));
    EXPECT_THAT(step({5, 7}), SameBits(2.0));
}

TEST(TimeIntervalSize, aMissingTimeIsANumberLikeAnyOther)
{
    EXPECT_THAT(step({0, M, 0}), SameBits(M));
    EXPECT_THAT(step({1, M}), SameBits(M));
    EXPECT_THAT(step({M, M}), SameBits(0.0));
}

TEST(VBSeries, flatFormsAnswerAndLeaveTheSeries)
{
    Guarded<double> x({3, 1, 2});
    EXPECT_EQ(VB_V_IsSorted(x, 3, 0), 0);
    EXPECT_EQ(VB_V_IsSorted(x, 1, -1), -1);
    EXPECT_EQ(VB_V_IsSorted(x, 0, -1), -1);
    EXPECT_THAT(VB_V_TimeIntervalSize(x, 3, -1), SameBits(1.0));
    EXPECT_THAT(VB_V_TimeIntervalSize(x, 3, 0), SameBits(M));
    EXPECT_TRUE(x.untouched());
    Guarded<double> ties({1, 1, 2});
    EXPECT_EQ(VB_V_IsSorted(ties, 3, 0), -1);
    EXPECT_EQ(VB_V_IsSorted(ties, 3, -1), 0);
}

} // namespace
