// The three rank rules, and what sets them apart.
#include "sorting/ranks.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

using namespace vecmat::test;

namespace {

const double nan = std::numeric_limits<double>::quiet_NaN();

std::vector<double> denseRanks(const std::vector<double>& x)
{
    Owned<matrix> ranks;
    V_GetRanks(column(x), static_cast<int>(x.size()), ranks.reference());
    return cellsOf(ranks);
}

struct TiedRanks
{
    std::vector<double> ranks;
    int nTies;
    std::vector<double> tieSizes;
};

TiedRanks meanRanks(const std::vector<double>& x, std::vector<double> weights = {})
{
    weights.resize(x.size(), 1.0);
    const int n = static_cast<int>(x.size());
    auto ranks = filled(n, 1, 0.5);
    int nTies = -7;
    Owned<matrix> sizes;
    V_GetRanksTies(column(x), n, column(weights), ranks.reference(), &nTies, sizes.reference());
    return {cellsOf(ranks), nTies, cellsOf(sizes)};
}

TiedRanks lowestRanks(const std::vector<double>& x, std::vector<double> weights = {})
{
    weights.resize(x.size(), 1.0);
    const int n = static_cast<int>(x.size());
    auto ranks = filled(n, 1, 0.5);
    int nTies = -7;
    auto sizes = filled(n, 1, 0.5);
    V_GetRanksTiesInt(column(x), n, column(weights), ranks.reference(), &nTies, sizes);
    return {cellsOf(ranks), nTies, cellsOf(sizes)};
}

TEST(Ranks, theThreeRulesOnOneSample)
{
    const std::vector<double> x{20, 10, 30, 20};
    EXPECT_THAT(denseRanks(x), SameBits({2, 1, 3, 2}));
    EXPECT_THAT(meanRanks(x).ranks, SameBits({2.5, 1, 4, 2.5}));
    EXPECT_THAT(lowestRanks(x).ranks, SameBits({2, 1, 4, 2}));
}

TEST(Ranks, zerosOfBothSignsTieUnderEachRule)
{
    const std::vector<double> x{0.0, 1, -0.0};
    EXPECT_THAT(denseRanks(x), SameBits({1, 2, 1}));
    EXPECT_THAT(meanRanks(x).ranks, SameBits({1.5, 3, 1.5}));
    EXPECT_THAT(lowestRanks(x).ranks, SameBits({1, 3, 1}));
}

// ---- V_GetRanks -----------------------------------------------------------------------------------------------------

TEST(GetRanks, tiesShareARankAndTheNextIsOneHigher)
{
    EXPECT_THAT(denseRanks({3, 1, 3}), SameBits({2, 1, 2}));
    EXPECT_THAT(denseRanks({5}), SameBits({1}));
    EXPECT_THAT(denseRanks({}), SameBits(std::vector<double>{}));
}

TEST(GetRanks, aMissingValueIsTheSmallestValue)
{
    EXPECT_THAT(denseRanks({3, M, 1, M}), SameBits({3, 1, 2, 1}));
}

TEST(GetRanks, hasNoTolerance)
{
    EXPECT_THAT(denseRanks({1, std::nextafter(1.0, 2.0)}), SameBits({1, 2}));
}

TEST(GetRanks, aNanDiffersFromEverything)
{
    EXPECT_THAT(denseRanks({nan, nan, nan}), SameBits({1, 2, 3}));
}

TEST(GetRanks, asInts)
{
    Owned<matrixInt> ranks;
    V_GetRanks(column({3, M, 3, 1}), 4, ranks.reference());
    EXPECT_EQ(cellsOf(ranks), (std::vector<int>{3, 1, 3, 2}));
}

TEST(GetRanks, preparesItsResultAndLeavesItsInput)
{
    auto x = column({2, 1});
    auto large = filled(3, 2, 0.5);
    V_GetRanks(x.get(), 2, large.reference());
    EXPECT_THAT(cellsOf(large), SameBits({2, 1, 0.5, 0.5, 0.5, 0.5}));
    auto small = filled(1, 1, 0.5);
    V_GetRanks(x.get(), 2, small.reference());
    EXPECT_THAT(cellsOf(small), SameBits({2, 1}));
    EXPECT_THAT(cellsOf(x), SameBits({2, 1}));
}

TEST(GetRanks, elementsBeyondTheTableTakePartAsMinusOne)
{
    Owned<matrix> ranks;
    V_GetRanks(column({0, -2}), 4, ranks.reference());
    EXPECT_THAT(cellsOf(ranks), SameBits({3, 1, 2, 2}));
}

// ---- V_GetRanksTies -------------------------------------------------------------------------------------------------

TEST(GetRanksTies, missingElementsStayMissingAndTakeNoPlace)
{
    const TiedRanks some = meanRanks({3, M, 1});
    EXPECT_THAT(some.ranks, SameBits({2, M, 1}));
    EXPECT_EQ(some.nTies, 0);
    const TiedRanks all = meanRanks({M, M});
    EXPECT_THAT(all.ranks, SameBits({M, M}));
    EXPECT_EQ(all.nTies, 0);
    EXPECT_THAT(all.tieSizes, SameBits({0, 0}));
}

TEST(GetRanksTies, noElements)
{
    const TiedRanks none = meanRanks({});
    EXPECT_EQ(none.nTies, 0);
}

TEST(GetRanksTies, onlyMissingElementsThatLeadAreRecognised)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const TiedRanks ranks = meanRanks({M, -infinity, 1});
    EXPECT_THAT(ranks.ranks, SameBits({2, 1, 3}));
    EXPECT_THAT(lowestRanks({M, -infinity, 1}).ranks, SameBits({2, 1, 3}));
}

TEST(GetRanksTies, tiesShareTheWeightedMeanOfTheirPlaces)
{
    const TiedRanks ranks = meanRanks({1, 2, 2}, {1, 1, 3});
    EXPECT_THAT(ranks.ranks, SameBits({1, 2.75, 2.75}));
    EXPECT_EQ(ranks.nTies, 1);
    EXPECT_THAT(ranks.tieSizes, SameBits({2, 0, 0}));
}

TEST(GetRanksTies, theFirstOfARunBorrowsTheWeightOfTheFirstOfAll)
{
    EXPECT_THAT(meanRanks({1, 2, 2}, {5, 1, 1}).ranks, SameBits({1, 13.0 / 6.0, 13.0 / 6.0}));
    // Its own weight, 100, enters into nothing.
    EXPECT_THAT(meanRanks({1, 2, 2}, {5, 100, 1}).ranks, SameBits({1, 13.0 / 6.0, 13.0 / 6.0}));
}

TEST(GetRanksTies, aMissingElementLendsItsWeightToo)
{
    EXPECT_THAT(meanRanks({2, M, 2}, {100, 7, 3}).ranks,
                SameBits({(1.0 * 7 + 2.0 * 3) / 10, M, (1.0 * 7 + 2.0 * 3) / 10}));
}

TEST(GetRanksTies, everyRunBorrowsTheSameWeight)
{
    const TiedRanks ranks = meanRanks({4, 4, 1, 1, 9}, {2, 3, 5, 7, 11});
    const double low = (1.0 * 5 + 2.0 * 7) / 12;
    const double high = (3.0 * 5 + 4.0 * 3) / 8;
    EXPECT_THAT(ranks.ranks, SameBits({high, high, low, low, 5}));
}

TEST(GetRanksTies, aRunWithoutWeightDividesByZero)
{
    const TiedRanks ranks = meanRanks({1, 2, 2}, {0, 1, 0});
    EXPECT_THAT(ranks.ranks, SameBits({1, nan, nan}));
    EXPECT_EQ(ranks.nTies, 1);
}

TEST(GetRanksTies, sizesAreCountedFromTheLowestValueUp)
{
    const TiedRanks ranks = meanRanks({7, 5, 7, 6, 5, 7});
    EXPECT_THAT(ranks.ranks, SameBits({5, 1.5, 5, 3, 1.5, 5}));
    EXPECT_EQ(ranks.nTies, 2);
    EXPECT_THAT(ranks.tieSizes, SameBits({2, 3, 0, 0, 0, 0}));
}

TEST(GetRanksTies, differencesBelowTheToleranceTieUnlikeUnderTheOtherRules)
{
    const double above = std::nextafter(1.0, 2.0);
    EXPECT_THAT(meanRanks({1, above}).ranks, SameBits({1.5, 1.5}));
    EXPECT_THAT(lowestRanks({1, above}).ranks, SameBits({1, 2}));
    EXPECT_EQ(lowestRanks({1, above}).nTies, 0);
    // Exactly the tolerance is no tie.
    EXPECT_THAT(meanRanks({0, 1e-15}).ranks, SameBits({1, 2}));
    EXPECT_THAT(meanRanks({0, std::nextafter(1e-15, 0.0)}).ranks, SameBits({1.5, 1.5}));
    EXPECT_THAT(meanRanks({-0.5e-15, 0.4e-15}).ranks, SameBits({1.5, 1.5}));
}

TEST(GetRanksTies, aRunEndsAtTheToleranceFromItsFirstAndTheNextStartsWithItsLast)
{
    // The third differs from the first by too much, but from the second by little: they begin a run of their own, from
    // the rank 1.5 that the second has by then.
    const TiedRanks ranks = meanRanks({0, 0.9e-15, 1.8e-15});
    EXPECT_THAT(ranks.ranks, SameBits({1.5, 2.25, 2.25}));
    EXPECT_EQ(ranks.nTies, 2);
    EXPECT_THAT(ranks.tieSizes, SameBits({2, 2, 0}));
}

TEST(GetRanksTies, sizesArePreparedAndRanksAreNot)
{
    auto ranks = filled(3, 2, 0.5);
    auto sizes = filled(4, 1, 0.5);
    matrix* const before = sizes.get();
    int nTies = 0;
    V_GetRanksTies(column({1, 1}), 2, column({1, 1}), ranks.reference(), &nTies, sizes.reference());
    EXPECT_THAT(cellsOf(ranks), SameBits({1.5, 1.5, 0.5, 0.5, 0.5, 0.5}));
    EXPECT_EQ(sizes.get(), before);
    EXPECT_THAT(cellsOf(sizes), SameBits({2, 0, 0.5, 0.5}));
}

TEST(GetRanksTies, inputsStay)
{
    auto x = column({2, 1, 2});
    auto weights = column({3, 2, 1});
    auto ranks = filled(3, 1, 0.0);
    Owned<matrix> sizes;
    int nTies = 0;
    V_GetRanksTies(x.get(), 3, weights.get(), ranks.reference(), &nTies, sizes.reference());
    EXPECT_THAT(cellsOf(x), SameBits({2, 1, 2}));
    EXPECT_THAT(cellsOf(weights), SameBits({3, 2, 1}));
}

/// Ranks by the definition: the mean of the places of all equal values.
TEST(GetRanksTies, withEqualWeightsEqualTheMeanOfPlaces)
{
    RandomData random(31);
    SCOPED_TRACE(random);
    for (const std::size_t n : {1u, 2u, 10u, 101u}) {
        const std::vector<double> x = random.withMissing(random.wholes(n, 0, 6), 0.2);
        std::vector<double> mean;
        std::vector<double> lowest;
        for (const double value : x) {
            const auto below = std::count_if(x.begin(), x.end(), [&](double y) { return y != M && y < value; });
            const auto equal = std::count(x.begin(), x.end(), value);
            mean.push_back(value == M ? M : static_cast<double>(below) + static_cast<double>(equal + 1) / 2);
            lowest.push_back(value == M ? M : static_cast<double>(below + 1));
        }
        EXPECT_THAT(meanRanks(x).ranks, SameBits(mean));
        EXPECT_THAT(lowestRanks(x).ranks, SameBits(lowest));
        EXPECT_EQ(meanRanks(x).nTies, lowestRanks(x).nTies);
    }
}

// ---- V_GetRanksTiesInt ----------------------------------------------------------------------------------------------

TEST(GetRanksTiesInt, tiesTakeTheLowestOfTheirPlaces)
{
    const TiedRanks ranks = lowestRanks({5, 5, 7});
    EXPECT_THAT(ranks.ranks, SameBits({1, 1, 3}));
    EXPECT_EQ(ranks.nTies, 1);
    EXPECT_EQ(ranks.tieSizes[0], 2);
}

TEST(GetRanksTiesInt, sizesAreNotPrepared)
{
    EXPECT_THAT(lowestRanks({5, 5, 7, 8, 8, 8}).tieSizes, SameBits({2, 3, 0.5, 0.5, 0.5, 0.5}));
}

TEST(GetRanksTiesInt, missingElementsStayMissing)
{
    const TiedRanks some = lowestRanks({3, M, 1, M, 3});
    EXPECT_THAT(some.ranks, SameBits({2, M, 1, M, 2}));
    EXPECT_EQ(some.nTies, 1);
    const TiedRanks all = lowestRanks({M, M});
    EXPECT_THAT(all.ranks, SameBits({M, M}));
    EXPECT_EQ(all.nTies, 0);
    EXPECT_THAT(all.tieSizes, SameBits({0.5, 0.5}));
}

TEST(GetRanksTiesInt, weightsEnterIntoNothing)
{
    EXPECT_THAT(lowestRanks({5, 5, 7}, {0, nan, -3}).ranks, SameBits({1, 1, 3}));
}

// ---- M_GetRanksTies -------------------------------------------------------------------------------------------------

TEST(MatrixRanksTies, ranksOneColumnAndLeavesTheOthers)
{
    auto table = byColumns({{9, 9, 9}, {2, M, 2}});
    auto weights = column({1, 1, 1});
    auto out = filled(4, 3, 0.5);
    matrix* const before = out.get();
    Owned<matrix> sizes;
    int nTies = -7;
    M_GetRanksTies(table.get(), 3, 2, weights.get(), out.reference(), &nTies, sizes.reference());
    EXPECT_EQ(out.get(), before);
    EXPECT_THAT(cellsOf(out), SameBits({0.5, 0.5, 0.5, 0.5, 1.5, M, 1.5, 0.5, 0.5, 0.5, 0.5, 0.5}));
    EXPECT_EQ(nTies, 1);
    EXPECT_THAT(cellsOf(sizes), SameBits({2, 0, 0}));
    EXPECT_THAT(cellsOf(table), SameBits({9, 9, 9, 2, M, 2}));
}

// ---- flat forms -----------------------------------------------------------------------------------------------------

TEST(VBGetRanks, writeTheRanksAndLeaveTheValues)
{
    Guarded<double> x({3, M, 3, 1});
    Guarded<double> ranks(4, 0.5);
    VB_V_GetRanksDbl(x, 4, ranks);
    EXPECT_THAT(ranks.values(), SameBits({3, 1, 3, 2}));
    Guarded<int> intRanks(4, 9);
    VB_V_GetRanksLng(x, 4, intRanks);
    EXPECT_EQ(intRanks.values(), (std::vector<int>{3, 1, 3, 2}));
    EXPECT_TRUE(x.untouched());
}

TEST(VBGetRanksTies, eachCallsItsRuleAndOnlyTheMeansClearTheSizes)
{
    Guarded<double> x({2, 1, 2});
    Guarded<double> weights({1, 5, 1});
    Guarded<double> ranks(3, 0.5);
    Guarded<double> sizes(3, 0.5);
    int nTies = -7;
    VB_V_GetRanksTiesDbl(x, 3, weights, ranks, &nTies, sizes);
    EXPECT_THAT(ranks.values(), SameBits({13.0 / 6.0, 1, 13.0 / 6.0}));
    EXPECT_EQ(nTies, 1);
    EXPECT_THAT(sizes.values(), SameBits({2, 0, 0}));
    Guarded<double> lowest(3, 0.5);
    Guarded<double> sizesOfLowest(3, 0.5);
    nTies = -7;
    VB_V_GetRanksTiesIntDbl(x, 3, weights, lowest, &nTies, sizesOfLowest);
    EXPECT_THAT(lowest.values(), SameBits({2, 1, 2}));
    EXPECT_EQ(nTies, 1);
    EXPECT_THAT(sizesOfLowest.values(), SameBits({2, 0.5, 0.5}));
    EXPECT_TRUE(x.untouched() && weights.untouched());
}

} // namespace
