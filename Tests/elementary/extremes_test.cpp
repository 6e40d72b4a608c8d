#include "elementary/extremes.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/special_values.h"
#include "support/tables.h"

using namespace vecmat::test;

namespace {

struct Both
{
    double min = 111.0;
    double max = 222.0;
};

template <class Table>
Both bothOf(const Owned<Table>& x, int n, std::vector<short> mask)
{
    Both both;
    V_MinMax(x.get(), n, &both.min, &both.max, mask.data());
    return both;
}

double minOf(const std::vector<double>& x, std::vector<short> mask)
{
    return V_Min(column(x), static_cast<int>(x.size()), mask.data());
}

double maxOf(const std::vector<double>& x, std::vector<short> mask)
{
    return V_Max(column(x), static_cast<int>(x.size()), mask.data());
}

// ---- V_Min, V_Max over doubles --------------------------------------------------------------------------------------

TEST(VMinVMax, SkipMissingCells)
{
    EXPECT_THAT(minOf({2, M, 1}, {0, 0, 0}), SameBits(1.0));
    EXPECT_THAT(maxOf({2, M, 1}, {0, 0, 0}), SameBits(2.0));
    EXPECT_THAT(minOf({M, M, 7, 9}, {0, 0, 0, 0}), SameBits(7.0));
    EXPECT_THAT(maxOf({M, M, 7, 9}, {0, 0, 0, 0}), SameBits(9.0));
}

TEST(VMinVMax, NothingThatQualifiesGivesTheMissingValue)
{
    EXPECT_THAT(minOf({M, M}, {0, 0}), SameBits(M));
    EXPECT_THAT(maxOf({M, M}, {0, 0}), SameBits(M));
    EXPECT_THAT(minOf({1, 2}, {-1, 1}), SameBits(M));
    EXPECT_THAT(maxOf({1, 2}, {-1, 1}), SameBits(M));
    EXPECT_THAT(maxOf({1, M}, {5, 0}), SameBits(M));
}

TEST(VMinVMax, AnyNonZeroMaskEntryDropsTheCell)
{
    EXPECT_THAT(minOf({1, 2, 3, 4, 5}, {-1, 1, 2, 0, 0}), SameBits(4.0));
    EXPECT_THAT(maxOf({1, 2, 9, 8, 7}, {0, 0, -1, 1, 2}), SameBits(2.0));
}

TEST(VMinVMax, MaximumTakesANullMask)
{
    EXPECT_THAT(V_Max(column({3, M, 5}), 3, nullptr), SameBits(5.0));
    EXPECT_THAT(V_Max(column({M}), 1, nullptr), SameBits(M));
    EXPECT_THAT(V_Max(intColumn({3, 8, 5}), 3, nullptr), SameBits(8.0));
}

TEST(VMinVMax, NothingToVisitGivesMinusOne)
{
    short mask[] = {1};
    for (int n : {0, -1, lowestInt}) {
        EXPECT_THAT(V_Min(column({}), n, mask), SameBits(-1.0));
        EXPECT_THAT(V_Max(column({}), n, mask), SameBits(-1.0));
        EXPECT_THAT(V_Min(column({M}), n, mask), SameBits(-1.0));
        EXPECT_THAT(V_Max(column({8}), n, mask), SameBits(-1.0));
        EXPECT_THAT(V_Min2(column({}), n), SameBits(-1.0));
        EXPECT_THAT(V_Max2(column({}), n), SameBits(-1.0));
        EXPECT_THAT(V_Min(intColumn({}), n, mask), SameBits(-1.0));
        EXPECT_THAT(V_Max(intColumn({}), n, mask), SameBits(-1.0));
        EXPECT_THAT(V_Min2(intColumn({}), n), SameBits(-1.0));
        EXPECT_EQ(V_Max2(intColumn({}), n), -1);
        EXPECT_THAT(V_Min2(column({8}), n), SameBits(-1.0));
        EXPECT_EQ(V_Max2(intColumn({8}), n), -1);
    }
}

TEST(VMinVMax, CellsBeyondTheTableCountAsMinusOne)
{
    short mask[] = {0, 0, 0};
    short dropsTheTable[] = {-1, -1, 0};
    EXPECT_THAT(V_Min(column({5, 3}), 3, mask), SameBits(-1.0));
    EXPECT_THAT(V_Max(column({-5, -3}), 3, mask), SameBits(-1.0));
    EXPECT_THAT(V_Max(column({5, 3}), 3, mask), SameBits(5.0));
    EXPECT_THAT(V_Min(column({-5, -3}), 3, dropsTheTable), SameBits(-1.0));
    EXPECT_THAT(V_Max(column({M, M}), 3, mask), SameBits(-1.0));
    EXPECT_THAT(V_Min(intColumn({5, 3}), 3, mask), SameBits(-1.0));
    EXPECT_THAT(V_Max(intColumn({-5, -3}), 3, mask), SameBits(-1.0));
}

TEST(VMinVMax, OnlyTheExactPatternIsMissing)
{
    EXPECT_THAT(minOf({1, belowMissing}, {0, 0}), SameBits(belowMissing));
    EXPECT_THAT(minOf({1, -infinity}, {0, 0}), SameBits(-infinity));
    EXPECT_THAT(maxOf({-infinity}, {0}), SameBits(-infinity));
    EXPECT_THAT(maxOf({belowMissing, M}, {0, 0}), SameBits(belowMissing));
}

TEST(VMinVMax, NaNStaysWhereItComesFirstAndIsSkippedLater)
{
    EXPECT_THAT(minOf({notANumber, 1}, {0, 0}), SameBits(notANumber));
    EXPECT_THAT(maxOf({notANumber, 1}, {0, 0}), SameBits(notANumber));
    EXPECT_THAT(minOf({2, notANumber, 1}, {0, 0, 0}), SameBits(1.0));
    EXPECT_THAT(maxOf({1, notANumber, 2}, {0, 0, 0}), SameBits(2.0));
}

TEST(VMinVMax, EqualCellsKeepTheFirst)
{
    EXPECT_THAT(minOf({0.0, -0.0}, {0, 0}), SameBits(0.0));
    EXPECT_THAT(maxOf({-0.0, 0.0}, {0, 0}), SameBits(-0.0));
}

TEST(VMinVMax, WalkATableInLinearOrderUpToN)
{
    short mask[] = {0, 0, 0, 0};
    EXPECT_THAT(V_Min(byColumns({{4, 3}, {2, 1}}), 3, mask), SameBits(2.0));
    EXPECT_THAT(V_Max2(byColumns({{1, 2}, {3, 4}}), 3), SameBits(3.0));
}

// ---- V_Min2, V_Max2 over doubles ------------------------------------------------------------------------------------

TEST(VMin2VMax2, SkipMissingCells)
{
    EXPECT_THAT(V_Min2(column({M, 2, M, 1}), 4), SameBits(1.0));
    EXPECT_THAT(V_Max2(column({M, -2, M, -3}), 4), SameBits(-2.0));
    EXPECT_THAT(V_Min2(column({M, M}), 2), SameBits(M));
    EXPECT_THAT(V_Max2(column({M}), 1), SameBits(M));
    EXPECT_THAT(V_Min2(column({4}), 2), SameBits(-1.0));
}

// ---- ints -----------------------------------------------------------------------------------------------------------

TEST(VMinVMaxLng, NoIntIsMissing)
{
    short mask[] = {0, 0, 0};
    EXPECT_THAT(V_Min(intColumn({3, lowestInt, 5}), 3, mask), SameBits(static_cast<double>(lowestInt)));
    EXPECT_THAT(V_Max(intColumn({lowestInt, lowestInt}), 2, mask), SameBits(static_cast<double>(lowestInt)));
    EXPECT_THAT(V_Min2(intColumn({3, lowestInt}), 2), SameBits(static_cast<double>(lowestInt)));
    EXPECT_EQ(V_Max2(intColumn({lowestInt}), 1), lowestInt);
}

TEST(VMinVMaxLng, FullyMaskedGivesTheMissingValue)
{
    short mask[] = {3, -1};
    EXPECT_THAT(V_Min(intColumn({1, 2}), 2, mask), SameBits(M));
    EXPECT_THAT(V_Max(intColumn({1, 2}), 2, mask), SameBits(M));
    short one[] = {7, 0};
    EXPECT_THAT(V_Min(intColumn({1, 2}), 2, one), SameBits(2.0));
}

TEST(VMinVMaxLng, PlainFormsScanFromTheFirstCell)
{
    EXPECT_THAT(V_Min2(intColumn({4, 2, 9}), 3), SameBits(2.0));
    EXPECT_EQ(V_Max2(intColumn({4, 2, 9}), 3), 9);
    EXPECT_THAT(V_Min2(intColumn({4, 2, 9}), 1), SameBits(4.0));
    EXPECT_EQ(V_Max2(intColumn({-4}), 2), -1);
    static_assert(std::is_same_v<decltype(V_Max2(static_cast<matrixInt*>(nullptr), 0)), int>);
    static_assert(std::is_same_v<decltype(V_Min2(static_cast<matrixInt*>(nullptr), 0)), double>);
}

// ---- V_MinMax -------------------------------------------------------------------------------------------------------

TEST(VMinMax, BothExtremesOfTheSameCells)
{
    const Both both = bothOf(column({5, M, 1, 9, 100}), 5, {0, 0, 0, 0, 1});
    EXPECT_THAT(both.min, SameBits(1.0));
    EXPECT_THAT(both.max, SameBits(9.0));
    const Both ints = bothOf(intColumn({5, 1, 9, 100}), 4, {0, 0, 0, 2});
    EXPECT_THAT(ints.min, SameBits(1.0));
    EXPECT_THAT(ints.max, SameBits(9.0));
}

TEST(VMinMax, MissingValueInBothWhereNothingQualifies)
{
    for (const Both& both : {bothOf(column({M, 3}), 2, {0, 1}), bothOf(column({}), 0, {}), bothOf(column({3}), 0, {}),
                             bothOf(column({3}), -1, {}), bothOf(intColumn({3, 4}), 2, {1, -1}),
                             bothOf(intColumn({}), 0, {}), bothOf(intColumn({3}), 0, {})})
    {
        EXPECT_THAT(both.min, SameBits(M));
        EXPECT_THAT(both.max, SameBits(M));
    }
}

TEST(VMinMax, CellsBeyondTheTableCountAsMinusOne)
{
    const Both both = bothOf(column({M}), 3, {0, 0, 0});
    EXPECT_THAT(both.min, SameBits(-1.0));
    EXPECT_THAT(both.max, SameBits(-1.0));
    EXPECT_THAT(bothOf(column({4, 2}), 3, {0, 0, 0}).min, SameBits(-1.0));
    EXPECT_THAT(bothOf(intColumn({-4}), 2, {0, 0}).max, SameBits(-1.0));
}

// ---- positions ------------------------------------------------------------------------------------------------------

TEST(VMinAndMinPos, MissingCellsTakePart)
{
    int pos = 77;
    EXPECT_THAT(V_MinAndMinPos(column({3, M, 1}), 3, &pos), SameBits(M));
    EXPECT_EQ(pos, 2);
    EXPECT_THAT(V_MaxAndMaxPos(column({3, M, 1}), 3, &pos), SameBits(3.0));
    EXPECT_EQ(pos, 1);
    EXPECT_THAT(V_MaxAndMaxPos(column({M, M}), 2, &pos), SameBits(M));
    EXPECT_EQ(pos, 1);
}

TEST(VMinAndMinPos, FirstOfEqualCellsIsKept)
{
    int pos = 77;
    EXPECT_THAT(V_MinAndMinPos(column({2, 1, 1}), 3, &pos), SameBits(1.0));
    EXPECT_EQ(pos, 2);
    EXPECT_THAT(V_MaxAndMaxPos(column({2, 5, 5}), 3, &pos), SameBits(5.0));
    EXPECT_EQ(pos, 2);
    EXPECT_THAT(V_MaxAndMaxPos(intColumn({2, 5, 5}), 3, &pos), SameBits(5.0));
    EXPECT_EQ(pos, 2);
}

TEST(VMinAndMinPos, PositionIsOneForFewerThanTwoCells)
{
    for (int n : {1, 0, -1}) {
        const double expected = n == 1 ? 4.0 : -1.0;
        int pos = 77;
        EXPECT_THAT(V_MinAndMinPos(column({4, 1}), n, &pos), SameBits(expected));
        EXPECT_EQ(pos, 1);
        pos = 77;
        EXPECT_THAT(V_MaxAndMaxPos(column({4, 9}), n, &pos), SameBits(expected));
        EXPECT_EQ(pos, 1);
        pos = 77;
        EXPECT_THAT(V_MaxAndMaxPos(intColumn({4, 9}), n, &pos), SameBits(expected));
        EXPECT_EQ(pos, 1);
    }
    int pos = 77;
    EXPECT_THAT(V_MinAndMinPos(column({}), 0, &pos), SameBits(-1.0));
    EXPECT_EQ(pos, 1);
}

TEST(VMinAndMinPos, CellsBeyondTheTableCountAsMinusOne)
{
    int pos = 77;
    EXPECT_THAT(V_MinAndMinPos(column({4, 1}), 4, &pos), SameBits(-1.0));
    EXPECT_EQ(pos, 3);
    EXPECT_THAT(V_MaxAndMaxPos(column({-4}), 2, &pos), SameBits(-1.0));
    EXPECT_EQ(pos, 2);
    EXPECT_THAT(V_MaxAndMaxPos(intColumn({-4}), 2, &pos), SameBits(-1.0));
    EXPECT_EQ(pos, 2);
}

TEST(VMinAndMinPos, NaNInTheFirstPlaceStays)
{
    int pos = 77;
    EXPECT_THAT(V_MinAndMinPos(column({notANumber, 1}), 2, &pos), SameBits(notANumber));
    EXPECT_EQ(pos, 1);
    EXPECT_THAT(V_MaxAndMaxPos(column({1, notANumber, 2}), 3, &pos), SameBits(2.0));
    EXPECT_EQ(pos, 3);
}

// ---- flat forms -----------------------------------------------------------------------------------------------------

TEST(ExtremesFlat, KnownValues)
{
    Guarded<double> x({3, M, 1, 8});
    Guarded<short> mask({0, 0, 0, 1});
    int pos = 77;
    Both both;
    EXPECT_THAT(VB_V_Min(x, 4, mask), SameBits(1.0));
    EXPECT_THAT(VB_V_Max(x, 4, mask), SameBits(3.0));
    EXPECT_THAT(VB_V_Max(x, 4, nullptr), SameBits(8.0));
    EXPECT_THAT(VB_V_Min2(x, 4), SameBits(1.0));
    EXPECT_THAT(VB_V_Max2(x, 4), SameBits(8.0));
    VB_V_MinMax(x, 4, &both.min, &both.max, mask);
    EXPECT_THAT(both.min, SameBits(1.0));
    EXPECT_THAT(both.max, SameBits(3.0));
    EXPECT_THAT(VB_V_MinAndMinPos(x, 4, &pos), SameBits(M));
    EXPECT_EQ(pos, 2);
    EXPECT_THAT(VB_V_MaxAndMaxPos(x, 4, &pos), SameBits(8.0));
    EXPECT_EQ(pos, 4);
    EXPECT_TRUE(x.untouched() && mask.untouched());
}

TEST(ExtremesFlat, KnownIntValues)
{
    Guarded<int> x({3, lowestInt, 1, 8});
    Guarded<short> mask({0, 1, 0, 1});
    Both both;
    EXPECT_EQ(VB_V_Min2Lng(x, 4), lowestInt);
    EXPECT_EQ(VB_V_Max2Lng(x, 4), 8);
    EXPECT_EQ(VB_V_MaxInt(x, 4, mask), 3);
    EXPECT_EQ(VB_V_MaxInt(x, 4, nullptr), 8);
    VB_V_MinMaxLng(x, 4, &both.min, &both.max, mask);
    EXPECT_THAT(both.min, SameBits(1.0));
    EXPECT_THAT(both.max, SameBits(3.0));
    EXPECT_TRUE(x.untouched() && mask.untouched());
}

TEST(ExtremesFlat, FullyMaskedIntsTruncateTheMissingValue)
{
    Guarded<int> x({3, 8});
    Guarded<short> mask({1, -1});
    EXPECT_EQ(VB_V_MaxInt(x, 2, mask), lowestInt);
}

TEST(ExtremesFlat, EmptyArrays)
{
    Both both;
    int pos = 77;
    for (int n : {0, -1}) {
        EXPECT_THAT(VB_V_Min(nullptr, n, nullptr), SameBits(-1.0));
        EXPECT_THAT(VB_V_Max(nullptr, n, nullptr), SameBits(-1.0));
        EXPECT_THAT(VB_V_Min2(nullptr, n), SameBits(-1.0));
        EXPECT_THAT(VB_V_Max2(nullptr, n), SameBits(-1.0));
        EXPECT_EQ(VB_V_Min2Lng(nullptr, n), -1);
        EXPECT_EQ(VB_V_Max2Lng(nullptr, n), -1);
        EXPECT_EQ(VB_V_MaxInt(nullptr, n, nullptr), -1);
        EXPECT_THAT(VB_V_MinAndMinPos(nullptr, n, &pos), SameBits(-1.0));
        EXPECT_THAT(VB_V_MaxAndMaxPos(nullptr, n, &pos), SameBits(-1.0));
        VB_V_MinMax(nullptr, n, &both.min, &both.max, nullptr);
        EXPECT_THAT(both.min, SameBits(M));
        VB_V_MinMaxLng(nullptr, n, &both.min, &both.max, nullptr);
        EXPECT_THAT(both.max, SameBits(M));
    }
}

TEST(Extremes, AgreeWithThePlainLoopInsideAndBeyondTheTable)
{
    RandomData data(2203);
    SCOPED_TRACE(data);
    for (int round = 0; round < 50; ++round) {
        const int n = data.integer(1, 12);
        const auto size = static_cast<std::size_t>(n);
        const auto mask = data.mask(size + 2, 0.3);
        auto values = data.withSpecials(data.wholes(size, -3, 3), 0.3);
        auto x = column(values);
        for (int visited : {n, n + 2}) {
            values.resize(static_cast<std::size_t>(visited), -1.0);
            bool any = false;
            double min = M;
            double max = M;
            for (std::size_t i = 0; i < values.size(); ++i) {
                if (mask[i] != 0 || values[i] == M)
                    continue;
                if (!any || values[i] < min)
                    min = values[i];
                if (!any || values[i] > max)
                    max = values[i];
                any = true;
            }
            const Both both = bothOf(x, visited, mask);
            EXPECT_THAT(both.min, SameBits(min));
            EXPECT_THAT(both.max, SameBits(max));
            auto entries = mask;
            EXPECT_THAT(V_Min(x, visited, entries.data()), SameBits(min));
            EXPECT_THAT(V_Max(x, visited, entries.data()), SameBits(max));
        }
    }
}

} // namespace
