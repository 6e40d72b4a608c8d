#include "elementary/vector_sums.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/special_values.h"
#include "support/tables.h"

using namespace vecmat::test;

namespace {

// ---- V_Sum ----------------------------------------------------------------------------------------------------------

TEST(VSum, AddsWeightedCellsThatAreKeptAndPresent)
{
    short mask[] = {0, -1, 0, 0, 0};
    EXPECT_THAT(V_Sum(column({1, 2, M, 4, 5}), 5, mask, column({10, 10, 10, M, 0.5})), SameBits(10 + 2.5));
}

TEST(VSum, AnyNonZeroMaskEntryDrops)
{
    short mask[] = {1, 2, -1, 0};
    EXPECT_THAT(V_Sum(column({1, 2, 4, 8}), 4, mask, nullptr), SameBits(8.0));
}

TEST(VSum, MaskAndWeightsMayBeNull)
{
    EXPECT_THAT(V_Sum(column({1, M, 4}), 3, nullptr, nullptr), SameBits(5.0));
    EXPECT_THAT(V_Sum(column({1, M, 4}), 3, nullptr, column({2, 2, 3})), SameBits(14.0));
}

TEST(VSum, ZeroAndNegativeWeightsCount)
{
    EXPECT_THAT(V_Sum(column({1, 2, 3}), 3, nullptr, column({0, -2, 1})), SameBits(-1.0));
    EXPECT_THAT(V_Sum(column({infinity, 1}), 2, nullptr, column({0, 1})), SameBits(notANumber));
}

TEST(VSum, CellsAndWeightsOutsideReadMinusOne)
{
    EXPECT_THAT(V_Sum(column({1, 2}), 4, nullptr, nullptr), SameBits(1.0));
    EXPECT_THAT(V_Sum(column({1, 2, 4}), 3, nullptr, column({3})), SameBits(-3.0));
    EXPECT_THAT(V_Sum(column({1}), 3, nullptr, column({1})), SameBits(3.0));
}

TEST(VSum, OnlyTheExactPatternIsMissing)
{
    EXPECT_THAT(V_Sum(column({1, notANumber}), 2, nullptr, nullptr), SameBits(notANumber));
    EXPECT_THAT(V_Sum(column({1, belowMissing}), 2, nullptr, nullptr), SameBits(belowMissing));
    EXPECT_THAT(V_Sum(column({1, -infinity}), 2, nullptr, nullptr), SameBits(-infinity));
    EXPECT_THAT(V_Sum(column({1, 2}), 2, nullptr, column({1, notANumber})), SameBits(notANumber));
}

TEST(VSum, NothingToAddIsPositiveZero)
{
    short mask[] = {1};
    EXPECT_THAT(V_Sum(column({7}), 0, nullptr, nullptr), SameBits(0.0));
    EXPECT_THAT(V_Sum(column({7}), -3, nullptr, nullptr), SameBits(0.0));
    EXPECT_THAT(V_Sum(column({7}), 1, mask, nullptr), SameBits(0.0));
    EXPECT_THAT(V_Sum(column({-0.0}), 1, nullptr, nullptr), SameBits(0.0));
    EXPECT_THAT(V_Sum(column({M}), 1, nullptr, nullptr), SameBits(0.0));
}

// ---- V_Sum2 ---------------------------------------------------------------------------------------------------------

TEST(VSum2, SkipsMissingCells)
{
    EXPECT_THAT(V_Sum2(column({1, M, 3}), 3), SameBits(4.0));
    EXPECT_THAT(V_Sum2(column({M, M}), 2), SameBits(0.0));
}

TEST(VSum2, CellBeyondTheTableAddsMinusOne)
{
    EXPECT_THAT(V_Sum2(column({1.5, 2}), 3), SameBits(2.5));
    EXPECT_THAT(V_Sum2(intColumn({5, 2}), 4), SameBits(5.0));
}

TEST(VSum2, WalksATableInLinearOrder)
{
    EXPECT_THAT(V_Sum2(byColumns({{1, 2}, {4, 8}}), 3), SameBits(7.0));
    EXPECT_THAT(V_Sum2(intsByColumns({{1, 2}, {4, 8}}), 3), SameBits(7.0));
}

TEST(VSum2, EmptyInputIsZero)
{
    EXPECT_THAT(V_Sum2(column({3}), 0), SameBits(0.0));
    EXPECT_THAT(V_Sum2(column({3}), -1), SameBits(0.0));
    EXPECT_THAT(V_Sum2(intColumn({3}), 0), SameBits(0.0));
    EXPECT_THAT(V_Sum2(intColumn({3}), lowestInt), SameBits(0.0));
}

TEST(VSum2, AddsIntsAsDoubles)
{
    EXPECT_THAT(V_Sum2(intColumn({highestInt, highestInt, highestInt}), 3), SameBits(3.0 * highestInt));
    EXPECT_THAT(V_Sum2(intColumn({lowestInt, lowestInt}), 2), SameBits(2.0 * lowestInt));
}

TEST(VSum2, FlatIntFormIsOneElementLate)
{
    Guarded<int> x({100, 2, 3, 4}); // three elements and the one after them
    EXPECT_THAT(V_Sum2(x, 3), SameBits(9.0));
    EXPECT_THAT(V_Sum2(x, 0), SameBits(0.0));
    EXPECT_THAT(V_Sum2(x, -2), SameBits(0.0));
    Guarded<int> large({0, highestInt, highestInt});
    EXPECT_THAT(V_Sum2(large, 2), SameBits(2.0 * highestInt));
}

// ---- squares --------------------------------------------------------------------------------------------------------

TEST(VSq, MakesNoTest)
{
    EXPECT_THAT(V_Sq(column({1, 2, 3}), 3), SameBits(14.0));
    EXPECT_THAT(V_Sq(column({1, M}), 2), SameBits(infinity));
    EXPECT_THAT(V_Sq(column({2}), 3), SameBits(6.0));
    EXPECT_THAT(V_Sq(column({2}), 0), SameBits(0.0));
}

TEST(VSumSq, SkipsMissingCells)
{
    EXPECT_THAT(V_SumSq(column({1, M, 3}), 3), SameBits(10.0));
    EXPECT_THAT(V_SumSq(column({1, belowMissing}), 2), SameBits(infinity));
    EXPECT_THAT(V_SumSq(column({1, notANumber}), 2), SameBits(notANumber));
    EXPECT_THAT(V_SumSq(column({2}), 3), SameBits(6.0));
    EXPECT_THAT(V_SumSq(column({M}), 1), SameBits(0.0));
    EXPECT_THAT(V_SumSq(column({2}), -1), SameBits(0.0));
}

TEST(VSumSqW, TakesTheWeightOnePlaceBefore)
{
    EXPECT_THAT(V_SumSqW(column({1, 2}), 2, column({5, 7})), SameBits(19.0));
    EXPECT_THAT(V_SumSqW(column({3}), 1, column({5})), SameBits(-9.0));
}

TEST(VSumSqW, SkipsMissingCellsButNotTheirWeights)
{
    EXPECT_THAT(V_SumSqW(column({M, 2, M, 1}), 4, column({5, 7, 11, 13})), SameBits(20.0 + 11.0));
    EXPECT_THAT(V_SumSqW(column({0, 0.5}), 2, column({M, 1})), SameBits(M * 0.5 * 0.5));
}

TEST(VSumSqW, MultipliesTheWeightFirst)
{
    // (w x) x overflows where w (x x) does not, and the other way round.
    EXPECT_THAT(V_SumSqW(column({0, 1e-200}), 2, column({1e300, 0})), SameBits(1e300 * 1e-200 * 1e-200));
    EXPECT_THAT(V_SumSqW(column({0, 1e200}), 2, column({1e-300, 0})), SameBits(1e-300 * 1e200 * 1e200));
}

TEST(VSumSqW, ReadsOutsideGiveMinusOne)
{
    EXPECT_THAT(V_SumSqW(column({1, 2, 3}), 3, column({5})), SameBits(-1.0 + 20 - 9));
    EXPECT_THAT(V_SumSqW(column({1}), 3, column({5, 7, 9})), SameBits(-1.0 + 5 + 7));
    EXPECT_THAT(V_SumSqW(column({}), 1, column({})), SameBits(-1.0));
    EXPECT_THAT(V_SumSqW(column({1}), 0, column({5})), SameBits(0.0));
    EXPECT_THAT(V_SumSqW(column({1}), lowestInt, column({5})), SameBits(0.0));
}

// ---- squared differences --------------------------------------------------------------------------------------------

TEST(VDiffSq, AddsSquaredDifferencesWithNoTest)
{
    EXPECT_THAT(V_DiffSq(column({1, 5, 2}), 3, column({3, 2, 2})), SameBits(13.0));
    EXPECT_THAT(V_DiffSq(column({1, M}), 2, column({1, M})), SameBits(0.0));
    EXPECT_THAT(V_DiffSq(column({1, M}), 2, column({1, 0})), SameBits(infinity));
    EXPECT_THAT(V_DiffSq(column({1}), 0, column({3})), SameBits(0.0));
}

TEST(VDiffSq, ReadsOutsideGiveMinusOne)
{
    EXPECT_THAT(V_DiffSq(column({1}), 2, column({1, 3})), SameBits(16.0));
    EXPECT_THAT(V_DiffSq(column({1, 4}), 3, column({1})), SameBits(25.0));
}

TEST(VDiffSqW, AlignsItsWeights)
{
    EXPECT_THAT(V_DiffSqW(column({1, 5}), 2, column({3, 2}), column({10, 100})), SameBits(940.0));
    EXPECT_THAT(V_DiffSqW(column({1, 5}), 2, column({3, 2}), column({10})), SameBits(31.0));
    EXPECT_THAT(V_DiffSqW(column({1, 5}), 2, column({3, 2}), column({0, -1})), SameBits(-9.0));
    EXPECT_THAT(V_DiffSqW(column({1}), 1, column({1}), column({M})), SameBits(0.0));
    EXPECT_THAT(V_DiffSqW(column({1}), 0, column({3}), column({1})), SameBits(0.0));
}

TEST(VDiffSqW, SquaresBeforeItWeights)
{
    EXPECT_THAT(V_DiffSqW(column({1e-200}), 1, column({0}), column({1e300})), SameBits(0.0));
}

TEST(VDiffSqStart, BeginsAtA1BasedCell)
{
    auto a = column({1, 5, 2, 9});
    auto b = column({0, 0, 0, 0});
    EXPECT_THAT(V_DiffSqStart(a, 4, b, 1), SameBits(111.0));
    EXPECT_THAT(V_DiffSqStart(a, 4, b, 3), SameBits(85.0));
    EXPECT_THAT(V_DiffSqStart(a, 4, b, 4), SameBits(81.0));
    EXPECT_THAT(V_DiffSqStart(a, 4, b, 5), SameBits(0.0));
    EXPECT_THAT(V_DiffSqStart(a, 4, b, highestInt), SameBits(0.0));
    EXPECT_THAT(V_DiffSqStart(a, 0, b, 1), SameBits(0.0));
}

TEST(VDiffSqStart, StartBelowOneIsTheFirstCell)
{
    auto a = column({1, 5});
    auto b = column({3, 3});
    EXPECT_THAT(V_DiffSqStart(a, 2, b, 0), SameBits(8.0));
    EXPECT_THAT(V_DiffSqStart(a, 2, b, lowestInt), SameBits(8.0));
}

// ---- flat forms -----------------------------------------------------------------------------------------------------

TEST(VectorSumsFlat, SameResultsAndUntouchedArrays)
{
    RandomData data(2201);
    SCOPED_TRACE(data);
    for (int n : {0, 1, 2, 17, 64}) {
        const auto size = static_cast<std::size_t>(n);
        Guarded<double> x(data.withMissing(data.normals(size), 0.3));
        Guarded<double> b(data.normals(size));
        Guarded<double> w(data.weights(size, 0.2));
        Guarded<short> mask(data.mask(size, 0.3));
        auto tx = column(x.values());
        auto tb = column(b.values());
        auto tw = column(w.values());
        EXPECT_THAT(VB_V_Sum(x, n, mask, w), SameBits(V_Sum(tx, n, mask, tw)));
        EXPECT_THAT(VB_V_Sum(x, n, nullptr, nullptr), SameBits(V_Sum2(tx, n)));
        EXPECT_THAT(VB_V_SumSq(x, n), SameBits(V_SumSq(tx, n)));
        EXPECT_THAT(VB_V_SumSqW(x, n, w), SameBits(V_SumSqW(tx, n, tw)));
        EXPECT_THAT(VB_V_DiffSq(b, n, w), SameBits(V_DiffSq(tb, n, tw)));
        EXPECT_THAT(VB_V_DiffSqW(b, n, x, w), SameBits(V_DiffSqW(tb, n, tx, tw)));
        EXPECT_THAT(Cpp_V_DiffSqStart(b, n, w, 2), SameBits(V_DiffSqStart(tb, n, tw, 2)));
        EXPECT_THAT(VB_V_Sum2Dbl(x, n), SameBits(V_Sum2(tx, n)));
        EXPECT_TRUE(x.untouched() && b.untouched() && w.untouched() && mask.untouched());
    }
}

TEST(VectorSumsFlat, KnownValues)
{
    double x[] = {1, M, 3};
    double b[] = {2, 2, 5};
    double w[] = {2, 3, 4};
    short mask[] = {0, 0, 1};
    EXPECT_THAT(VB_V_Sum(x, 3, mask, w), SameBits(2.0));
    EXPECT_THAT(VB_V_SumSq(x, 3), SameBits(10.0));
    EXPECT_THAT(VB_V_SumSqW(x, 3, w), SameBits(-1.0 + 27));
    EXPECT_THAT(VB_V_DiffSq(b, 3, w), SameBits(2.0));
    EXPECT_THAT(VB_V_DiffSqW(b, 3, w, w), SameBits(3.0 + 4));
    EXPECT_THAT(Cpp_V_DiffSqStart(b, 3, w, 3), SameBits(1.0));
    EXPECT_THAT(VB_V_Sum2Dbl(x, 3), SameBits(4.0));
}

TEST(VectorSumsFlat, ArraysOfANegativeCountAreNotRead)
{
    EXPECT_THAT(VB_V_Sum(nullptr, -1, nullptr, nullptr), SameBits(0.0));
    EXPECT_THAT(VB_V_Sum2Dbl(nullptr, -1), SameBits(0.0));
    EXPECT_EQ(VB_V_Sum2Lng(nullptr, 0), 0);
}

TEST(VBVSum2Lng, StartsAtTheFirstElementAndWraps)
{
    Guarded<int> x({100, 2, 3});
    EXPECT_EQ(VB_V_Sum2Lng(x, 3), 105); // its namesake on a flat array leaves the first out
    EXPECT_EQ(VB_V_Sum2Lng(x, 0), 0);
    Guarded<int> large({highestInt, 1});
    EXPECT_EQ(VB_V_Sum2Lng(large, 2), lowestInt);
}

TEST(VBVSumFromTo, AddsARangeWithNoTest)
{
    Guarded<double> x({1, 2, 4, 8});
    EXPECT_THAT(VB_V_SumFromTo(x, 4, 2, 3), SameBits(6.0));
    EXPECT_THAT(VB_V_SumFromTo(x, 4, 4, 4), SameBits(8.0));
    EXPECT_THAT(VB_V_SumFromTo(x, 4, 3, 2), SameBits(0.0));
    EXPECT_THAT(VB_V_SumFromTo(x, 4, 1, 0), SameBits(0.0));
    EXPECT_THAT(VB_V_SumFromTo(x, 0, 1, 4), SameBits(15.0)) << "the count is not used";
    Guarded<double> withMissing({M, 1});
    EXPECT_THAT(VB_V_SumFromTo(withMissing, 2, 1, 2), SameBits(M));
}

TEST(VBVSumFromTo, RangeFromBelowOneStartsAtTheFirstElement)
{
    Guarded<double> x({1, 2});
    Guarded<int> ints({1, 2});
    EXPECT_THAT(VB_V_SumFromTo(x, 2, lowestInt, 2), SameBits(3.0));
    EXPECT_EQ(VB_V_SumFromToLng(ints, 2, 0, 1), 1);
}

TEST(VBVSumFromToLng, AddsARangeIn32Bits)
{
    Guarded<int> x({1, 2, highestInt, 8});
    EXPECT_EQ(VB_V_SumFromToLng(x, 4, 1, 2), 3);
    EXPECT_EQ(VB_V_SumFromToLng(x, 4, 2, 3), lowestInt + 1);
    EXPECT_EQ(VB_V_SumFromToLng(x, 4, 3, 2), 0);
    EXPECT_EQ(VB_V_SumFromToLng(x, 0, 4, 4), 8) << "the count is not used";
}

// ---- both ways of reaching a cell -----------------------------------------------------------------------------------

TEST(VectorSums, OrderOfAdditionIsThatOfThePlainLoop)
{
    RandomData data(2202);
    SCOPED_TRACE(data);
    const int n = 200;
    const auto x = data.withMissing(data.normals(n), 0.2);
    const auto w = data.weights(n, 0.1);
    double sum = 0.0;
    double squares = 0.0;
    for (int i = 0; i < n; ++i) {
        const auto k = static_cast<std::size_t>(i);
        if (x[k] == M)
            continue;
        sum += w[k] * x[k];
        squares += (i == 0 ? -1.0 : w[k - 1]) * x[k] * x[k];
    }
    EXPECT_THAT(V_Sum(column(x), n, nullptr, column(w)), SameBits(sum));
    EXPECT_THAT(V_SumSqW(column(x), n, column(w)), SameBits(squares));
    // One visit beyond the table makes all accesses checked ones.
    EXPECT_THAT(V_Sum(column(x), n + 1, nullptr, column(w)), SameBits(sum + 1.0));
    EXPECT_THAT(V_SumSqW(column(x), n + 1, column(w)), SameBits(squares + w.back()));
}

} // namespace
