#include "elementary/conditional_aggregates.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/special_values.h"
#include "support/tables.h"

#include <algorithm>
#include <vector>

using namespace vecmat::test;

namespace {

// ---- counts ---------------------------------------------------------------------------------------------------------

TEST(VNbIf, CountsEqualCells)
{
    EXPECT_THAT(V_NbIf(column({1, 2, 1, 1.0000000000000002}), 4, 1.0), SameBits(2.0));
    EXPECT_THAT(V_NbIf(column({1, 2}), 2, 3.0), SameBits(0.0));
    EXPECT_THAT(V_NbIf(column({0.0, -0.0}), 2, 0.0), SameBits(2.0));
    EXPECT_THAT(V_NbIf(intColumn({1, 2, 1}), 3, 1.0), SameBits(2.0));
    EXPECT_THAT(V_NbIf(intColumn({1, 2, 1}), 3, 1.5), SameBits(0.0));
}

TEST(VNbIf, MissingValueCanBeCounted)
{
    EXPECT_THAT(V_NbIf(column({M, 1, M, belowMissing}), 4, M), SameBits(2.0));
    EXPECT_THAT(V_NbIf(intColumn({lowestInt, 1}), 2, lowestInt), SameBits(1.0));
    EXPECT_THAT(V_NbIf(intColumn({lowestInt, 1}), 2, M), SameBits(0.0));
}

TEST(VNbIf, NaNEqualsNothing)
{
    EXPECT_THAT(V_NbIf(column({notANumber, 1}), 2, notANumber), SameBits(0.0));
}

TEST(VNbIf, CellsBeyondTheTableCountAsMinusOne)
{
    EXPECT_THAT(V_NbIf(column({1, -1}), 5, -1.0), SameBits(4.0));
    EXPECT_THAT(V_NbIf(intColumn({1, -1}), 5, -1.0), SameBits(4.0));
    EXPECT_THAT(V_NbIf(column({1, -1}), 5, 1.0), SameBits(1.0));
    EXPECT_THAT(V_NbIf(column({1}), 0, 1.0), SameBits(0.0));
    EXPECT_THAT(V_NbIf(intColumn({1}), -1, 1.0), SameBits(0.0));
}

TEST(VNbIfW, AddsWeightsAboveZero)
{
    EXPECT_THAT(V_NbIfW(column({1, 1, 1, 2, 1, 1}), 6, column({0.5, 0, -3, 100, M, 2}), 1.0), SameBits(2.5));
    EXPECT_THAT(V_NbIfW(column({1, 1}), 2, column({notANumber, 1}), 1.0), SameBits(1.0));
    EXPECT_THAT(V_NbIfW(column({2}), 1, column({1}), 1.0), SameBits(0.0));
    EXPECT_THAT(V_NbIfW(column({1}), 0, column({1}), 1.0), SameBits(0.0));
}

TEST(VNbIfW, MakesNoMissingTest)
{
    EXPECT_THAT(V_NbIfW(column({M, 1}), 2, column({3, 4}), M), SameBits(3.0));
}

TEST(VNbIfW, BeyondTheTables)
{
    EXPECT_THAT(V_NbIfW(column({1, 1, 1}), 3, column({2}), 1.0), SameBits(2.0)) << "no weight there, nothing to add";
    EXPECT_THAT(V_NbIfW(column({1}), 3, column({2, 3, 4}), -1.0), SameBits(7.0)) << "the cells there are -1.0";
}

// ---- sums -----------------------------------------------------------------------------------------------------------

TEST(VSumIf, AddsSelectedCells)
{
    EXPECT_THAT(V_SumIf(column({1, 2, 4}), 3, column({7, 8, 7}), 7.0), SameBits(5.0));
    EXPECT_THAT(V_SumIf(column({1, 2, 4}), 3, intColumn({7, 8, 7}), 7.0), SameBits(5.0));
}

TEST(VSumIf, SkipsMissingCellsAndMissingKeys)
{
    EXPECT_THAT(V_SumIf(column({1, M, 4}), 3, column({7, 7, 7}), 7.0), SameBits(5.0));
    EXPECT_THAT(V_SumIf(column({1, 2}), 2, column({M, M}), M), SameBits(M));
    EXPECT_THAT(V_SumIf(column({1, 2}), 2, column({belowMissing, 0}), belowMissing), SameBits(1.0));
    EXPECT_THAT(V_SumIf(column({1, M}), 2, intColumn({lowestInt, lowestInt}), lowestInt), SameBits(1.0));
    EXPECT_THAT(V_SumIf(column({1, notANumber}), 2, column({7, 7}), 7.0), SameBits(notANumber));
}

TEST(VSumIf, NothingSelectedGivesTheMissingValue)
{
    EXPECT_THAT(V_SumIf(column({1, 2}), 2, column({7, 7}), 8.0), SameBits(M));
    EXPECT_THAT(V_SumIf(column({M}), 1, column({7}), 7.0), SameBits(M));
    EXPECT_THAT(V_SumIf(column({1}), 0, column({7}), 7.0), SameBits(M));
    EXPECT_THAT(V_SumIf(column({1}), -1, intColumn({7}), 7.0), SameBits(M));
    EXPECT_THAT(V_SumIf(column({1}), 1, column({notANumber}), notANumber), SameBits(M));
    EXPECT_THAT(V_NbIf(column({7, 7}), 2, 8.0), SameBits(0.0)) << "a count has a zero";
}

TEST(VSumIf, SelectedCellsThatAddUpToZeroAreNotNothing)
{
    EXPECT_THAT(V_SumIf(column({0}), 1, column({7}), 7.0), SameBits(0.0));
    EXPECT_THAT(V_SumIf(column({-0.0}), 1, column({7}), 7.0), SameBits(0.0));
}

TEST(VSumIf, ReadsOutsideGiveMinusOne)
{
    EXPECT_THAT(V_SumIf(column({1}), 3, column({7, 7, 7}), 7.0), SameBits(-1.0));
    EXPECT_THAT(V_SumIf(column({1, 2, 4}), 3, column({7}), -1.0), SameBits(6.0));
    EXPECT_THAT(V_SumIf(column({1, 2, 4}), 3, intColumn({7}), -1.0), SameBits(6.0));
}

TEST(VSumIfW, AddsWeightedCellsOfWeightAboveZero)
{
    auto key = column({7, 7, 7, 8, 7, 7});
    EXPECT_THAT(V_SumIfW(column({1, 2, 4, 8, 16, M}), 6, key, column({3, 0, -1, 1, 0.5, 1}), 7.0), SameBits(11.0));
    EXPECT_THAT(V_SumIfW(column({1, 2}), 2, column({M, 7}), column({1, 1}), M), SameBits(M));
    EXPECT_THAT(V_SumIfW(column({1, 2}), 2, column({7, 7}), column({notANumber, 3}), 7.0), SameBits(6.0));
    EXPECT_THAT(V_SumIfW(column({1, 2}), 2, column({7, 7}), column({M, 3}), 7.0), SameBits(6.0));
}

TEST(VSumIfW, NothingSelectedGivesTheMissingValue)
{
    EXPECT_THAT(V_SumIfW(column({1, 2}), 2, column({7, 7}), column({1, 1}), 8.0), SameBits(M));
    EXPECT_THAT(V_SumIfW(column({1, 2}), 2, column({7, 7}), column({0, -1}), 7.0), SameBits(M));
    EXPECT_THAT(V_SumIfW(column({1}), 0, column({7}), column({1}), 7.0), SameBits(M));
}

TEST(VSumIfW, BeyondTheTables)
{
    EXPECT_THAT(V_SumIfW(column({1, 2, 4}), 3, column({7, 7, 7}), column({3}), 7.0), SameBits(3.0));
    EXPECT_THAT(V_SumIfW(column({1}), 3, column({7, 7, 7}), column({1, 2, 3}), 7.0), SameBits(-4.0));
}

// ---- extremes -------------------------------------------------------------------------------------------------------

TEST(VMaxIfVMinIf, ExtremeOfTheSelectedCells)
{
    auto x = column({5, 1, 9, 100, -100});
    auto key = column({7, 7, 7, 8, 8});
    auto intKey = intColumn({7, 7, 7, 8, 8});
    EXPECT_THAT(V_MaxIf(x, 5, key, 7.0), SameBits(9.0));
    EXPECT_THAT(V_MinIf(x, 5, key, 7.0), SameBits(1.0));
    EXPECT_THAT(V_MaxIf(x, 5, intKey, 7.0), SameBits(9.0));
    EXPECT_THAT(V_MinIf(x, 5, intKey, 7.0), SameBits(1.0));
}

TEST(VMaxIfVMinIf, SkipMissingCellsAndMissingKeys)
{
    EXPECT_THAT(V_MinIf(column({5, M}), 2, column({7, 7}), 7.0), SameBits(5.0));
    EXPECT_THAT(V_MinIf(column({5, M}), 2, intColumn({7, 7}), 7.0), SameBits(5.0));
    EXPECT_THAT(V_MaxIf(column({5}), 1, column({M}), M), SameBits(M));
    EXPECT_THAT(V_MinIf(column({5}), 1, column({M}), M), SameBits(M));
}

TEST(VMaxIfVMinIf, NothingSelectedGivesTheMissingValue)
{
    for (int n : {2, 0, -1}) {
        EXPECT_THAT(V_MaxIf(column({5, 6}), n, column({7, 7}), 8.0), SameBits(M));
        EXPECT_THAT(V_MinIf(column({5, 6}), n, column({7, 7}), 8.0), SameBits(M));
        EXPECT_THAT(V_MaxIf(column({5, 6}), n, intColumn({7, 7}), 8.0), SameBits(M));
        EXPECT_THAT(V_MinIf(column({5, 6}), n, intColumn({7, 7}), 8.0), SameBits(M));
    }
}

TEST(VMaxIfVMinIf, NeverFindWhatTheyStartFrom)
{
    auto key = column({7});
    EXPECT_THAT(V_MaxIf(column({-infinity}), 1, key, 7.0), SameBits(M));
    EXPECT_THAT(V_MaxIf(column({belowMissing}), 1, key, 7.0), SameBits(M));
    EXPECT_THAT(V_MinIf(column({infinity}), 1, key, 7.0), SameBits(M));
    EXPECT_THAT(V_MinIf(column({positiveTwin}), 1, key, 7.0), SameBits(M));
    EXPECT_THAT(V_MinIf(column({belowMissing}), 1, key, 7.0), SameBits(belowMissing));
    EXPECT_THAT(V_MinIf(column({notANumber}), 1, key, 7.0), SameBits(M));
    EXPECT_THAT(V_MaxIf(column({notANumber, 3}), 2, column({7, 7}), 7.0), SameBits(3.0));
}

TEST(VMaxIfVMinIf, ReadsOutsideGiveMinusOne)
{
    EXPECT_THAT(V_MinIf(column({5}), 2, column({7, 7}), 7.0), SameBits(-1.0));
    EXPECT_THAT(V_MaxIf(column({5, 6}), 2, column({7}), -1.0), SameBits(6.0));
    EXPECT_THAT(V_MaxIf(column({5, 6}), 2, intColumn({7}), -1.0), SameBits(6.0));
}

// ---- flat forms -----------------------------------------------------------------------------------------------------

TEST(ConditionalAggregatesFlat, KnownValues)
{
    Guarded<double> x({1, M, 4, 7});
    Guarded<double> key({7, 7, 7, 8});
    Guarded<double> w({2, 3, 0.5, 1});
    Guarded<int> ints({7, 7, -7});
    EXPECT_THAT(VB_V_NbIf(key, 4, 7.0), SameBits(3.0));
    EXPECT_THAT(VB_V_NbIf(x, 4, M), SameBits(1.0));
    EXPECT_THAT(VB_V_NbIf(key, 0, 7.0), SameBits(0.0));
    EXPECT_THAT(VB_V_NbIf(key, -1, 7.0), SameBits(0.0));
    EXPECT_EQ(VB_V_NbIfLng(ints, 3, 7), 2);
    EXPECT_EQ(VB_V_NbIfLng(ints, 0, 7), 0);
    EXPECT_THAT(VB_V_NbIfW(key, 4, w, 7.0), SameBits(5.5));
    EXPECT_THAT(VB_V_SumIf(x, 4, key, 7.0), SameBits(5.0));
    EXPECT_THAT(VB_V_SumIf(x, 0, key, 7.0), SameBits(M));
    EXPECT_THAT(VB_V_SumIfW(x, 4, key, w, 7.0), SameBits(4.0));
    EXPECT_THAT(VB_V_MaxIf(x, 4, key, 7.0), SameBits(4.0));
    EXPECT_THAT(VB_V_MinIf(x, 4, key, 7.0), SameBits(1.0));
    EXPECT_TRUE(x.untouched() && key.untouched() && w.untouched() && ints.untouched());
}

TEST(ConditionalAggregates, AgreeWithThePlainLoop)
{
    RandomData data(2204);
    SCOPED_TRACE(data);
    const int n = 150;
    const auto x = data.withMissing(data.normals(n), 0.2);
    const auto key = data.withMissing(data.wholes(n, 1, 3), 0.2);
    const auto w = data.weights(n, 0.3);
    double count = 0.0;
    double weights = 0.0;
    double sum = 0.0;
    double weighted = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (key[i] != 2.0)
            continue;
        count += 1.0;
        if (w[i] > 0.0)
            weights += w[i];
        if (x[i] == M)
            continue;
        sum += x[i];
        if (w[i] > 0.0)
            weighted += w[i] * x[i];
    }
    ASSERT_GT(count, 10.0);
    EXPECT_THAT(V_NbIf(column(key), n, 2.0), SameBits(count));
    EXPECT_THAT(V_NbIfW(column(key), n, column(w), 2.0), SameBits(weights));
    EXPECT_THAT(V_SumIf(column(x), n, column(key), 2.0), SameBits(sum));
    EXPECT_THAT(V_SumIfW(column(x), n, column(key), column(w), 2.0), SameBits(weighted));
    // One visit beyond the tables, whose keys are -1.0 there: the same cells, now through checked accesses.
    EXPECT_THAT(V_SumIf(column(x), n + 1, column(key), 2.0), SameBits(sum));
    EXPECT_THAT(V_SumIfW(column(x), n + 1, column(key), column(w), 2.0), SameBits(weighted));
}

TEST(ConditionalAggregates, ReadMinusOneBeyondTheTables)
{
    constexpr int n = 12, beyond = 3;
    for (std::uint64_t seed = 1; seed <= 100; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const auto endingInMinusOne = [](std::vector<double> cells) {
            std::fill(cells.end() - beyond, cells.end(), -1.0);
            return cells;
        };
        const auto x = endingInMinusOne(data.withMissing(data.wholes(n, -1, 3), 0.3));
        const auto key = endingInMinusOne(data.withMissing(data.wholes(n, -1, 1), 0.2));
        const std::vector<double> shortX(x.begin(), x.end() - beyond), shortKey(key.begin(), key.end() - beyond);
        std::vector<int> codes(n, -1);
        std::transform(key.begin(), key.end() - beyond, codes.begin(),
                       [](double cell) { return cell == M ? lowestInt : static_cast<int>(cell); });
        const std::vector<int> shortCodes(codes.begin(), codes.end() - beyond);
        for (const double val : {-1.0, 0.0, 1.0, M}) {
            const auto expectSame = [val](auto function, const auto& whole, const auto& wholeKey, const auto& cells,
                                          const auto& keys) {
                EXPECT_THAT(function(cells, n, keys, val), SameBits(function(whole, n, wholeKey, val)));
            };
            const auto ofDoubles = [&](auto function) {
                expectSame(function, column(x), column(key), column(shortX), column(shortKey));
                expectSame(function, column(x), column(key), column(x), column(shortKey));
            };
            const auto ofInts = [&](auto function) {
                expectSame(function, column(x), intColumn(codes), column(shortX), intColumn(shortCodes));
                expectSame(function, column(x), intColumn(codes), column(shortX), intColumn(codes));
            };
            ofDoubles([](matrix* v, int m, matrix* k, double value) { return V_SumIf(v, m, k, value); });
            ofDoubles([](matrix* v, int m, matrix* k, double value) { return V_MaxIf(v, m, k, value); });
            ofDoubles([](matrix* v, int m, matrix* k, double value) { return V_MinIf(v, m, k, value); });
            ofDoubles([](matrix* v, int m, matrix* k, double value) { return V_SumIfW(v, m, k, k, value); });
            ofInts([](matrix* v, int m, matrixInt* k, double value) { return V_SumIf(v, m, k, value); });
            ofInts([](matrix* v, int m, matrixInt* k, double value) { return V_MaxIf(v, m, k, value); });
            ofInts([](matrix* v, int m, matrixInt* k, double value) { return V_MinIf(v, m, k, value); });
        }
    }
}

} // namespace
