// SortQ and SortQByCol: ties, missing keys, the options, the range, and what lies beyond a table.
#include "sorting/sort.h"

#include "support/bits.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace vecmat::test;

namespace {

using Texts = std::vector<std::wstring>;

/// Rows 1, 2, ... sorted by the keys; returns the source rows, and the keys as the sort leaves them.
struct Sorted
{
    std::vector<double> rows;
    std::vector<double> keys;
};

Sorted sortedRows(const std::vector<double>& keys, int first, int last, short descending, short writeKeys = -1)
{
    const int n = static_cast<int>(keys.size());
    auto data = filled(n, 1, 0.0);
    for (int i = 1; i <= n; ++i)
        data->vbset(i, 1, i);
    auto key = column(keys);
    auto companion = filled(n, 1, 0.0);
    SortQ(data.reference(), n, 1, first, last, key.reference(), companion.reference(), 1, descending, writeKeys);
    return {cellsOf(data), cellsOf(key)};
}

TEST(SortQ, equalKeysKeepTheOrderOfTheInput)
{
    EXPECT_THAT(sortedRows({2, 1, 2}, 1, 3, 0).rows, SameBits({2, 1, 3}));
    EXPECT_THAT(sortedRows({2, 1, 2}, 1, 3, -1).rows, SameBits({1, 3, 2}));
}

TEST(SortQ, zerosOfBothSignsTieAndKeepTheirSigns)
{
    const Sorted up = sortedRows({0.0, 1, -0.0, -1, 0.0}, 1, 5, 0);
    EXPECT_THAT(up.rows, SameBits({4, 1, 3, 5, 2}));
    EXPECT_THAT(up.keys, SameBits({-1, 0.0, -0.0, 0.0, 1}));
    const Sorted down = sortedRows({0.0, 1, -0.0, -1, 0.0}, 1, 5, -1);
    EXPECT_THAT(down.rows, SameBits({2, 1, 3, 5, 4}));
    EXPECT_THAT(down.keys, SameBits({1, 0.0, -0.0, 0.0, -1}));
}

TEST(SortQ, missingKeysComeFirstAscendingAndLastDescending)
{
    EXPECT_THAT(sortedRows({3, M, -1e308, M}, 1, 4, 0).rows, SameBits({2, 4, 3, 1}));
    EXPECT_THAT(sortedRows({3, M, -1e308, M}, 1, 4, -1).rows, SameBits({1, 3, 2, 4}));
}

TEST(SortQ, keysAreNumbersAlsoBeyondTheMissingValue)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_THAT(sortedRows({infinity, M, std::numeric_limits<double>::lowest(), -infinity}, 1, 4, 0).rows,
                SameBits({4, 3, 2, 1}));
}

TEST(SortQ, onlyMinusOneWritesTheKeys)
{
    for (const short writeKeys : {short{0}, short{1}, short{-2}}) {
        const Sorted sorted = sortedRows({3, 1, 2}, 1, 3, 0, writeKeys);
        EXPECT_THAT(sorted.rows, SameBits({2, 3, 1})) << writeKeys;
        EXPECT_THAT(sorted.keys, SameBits({3, 1, 2})) << writeKeys;
    }
    EXPECT_THAT(sortedRows({3, 1, 2}, 1, 3, 0, -1).keys, SameBits({1, 2, 3}));
}

TEST(SortQ, rowsOutsideTheRangeStay)
{
    auto data = byColumns({{10, 20, 30, 40, 50}, {11, 21, 31, 41, 51}});
    auto key = column({9, 3, 2, 1, 0});
    auto companion = column({1, 2, 3, 4, 5});
    SortQ(data.reference(), 5, 2, 2, 4, key.reference(), companion.reference(), 1, 0, -1);
    EXPECT_THAT(cellsOf(data), SameBits({10, 40, 30, 20, 50, 11, 41, 31, 21, 51}));
    EXPECT_THAT(cellsOf(key), SameBits({9, 1, 2, 3, 0}));
    EXPECT_THAT(cellsOf(companion), SameBits({1, 4, 3, 2, 5}));
}

TEST(SortQ, anEmptyRangeChangesNothing)
{
    for (const int last : {2, 1, 0, -5, std::numeric_limits<int>::min()}) {
        const Sorted sorted = sortedRows({3, 2, 1}, 3, last, 0);
        EXPECT_THAT(sorted.rows, SameBits({1, 2, 3})) << last;
        EXPECT_THAT(sorted.keys, SameBits({3, 2, 1})) << last;
    }
}

TEST(SortQ, oneRowStaysAndNoRowIsNoWork)
{
    EXPECT_THAT(sortedRows({7}, 1, 1, -1).rows, SameBits({1}));
    EXPECT_THAT(sortedRows({}, 1, 0, 0).rows, SameBits(std::vector<double>{}));
}

TEST(SortQ, columnsBeyondTheCountStayAndTheStrideIsTheTablesOwn)
{
    auto data = byColumns({{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}});
    auto key = column({2, 1});
    auto companion = byColumns({{1, 2, 3}, {4, 5, 6}});
    SortQ(data.reference(), 2, 2, 1, 2, key.reference(), companion.reference(), 1, 0, -1);
    EXPECT_THAT(cellsOf(data), SameBits({2, 1, 3, 4, 6, 5, 7, 8, 9, 10, 11, 12}));
    EXPECT_THAT(cellsOf(companion), SameBits({2, 1, 3, 4, 5, 6}));
}

TEST(SortQ, noColumnsMovesOnlyTheKeys)
{
    auto data = column({1, 2});
    auto key = column({2, 1});
    auto companion = column({3, 4});
    SortQ(data.reference(), 2, 0, 1, 2, key.reference(), companion.reference(), 0, 0, -1);
    EXPECT_THAT(cellsOf(data), SameBits({1, 2}));
    EXPECT_THAT(cellsOf(companion), SameBits({3, 4}));
    EXPECT_THAT(cellsOf(key), SameBits({1, 2}));
}

TEST(SortQ, aKeyThatIsTooShortReadsMinusOne)
{
    auto data = column({1, 2, 3, 4});
    auto key = column({-2, 0});
    auto companion = filled(4, 1, 0.0);
    SortQ(data.reference(), 4, 1, 1, 4, key.reference(), companion.reference(), 1, 0, -1);
    EXPECT_THAT(cellsOf(data), SameBits({1, 3, 4, 2}));
    EXPECT_THAT(cellsOf(key), SameBits({-2, -1}));
    auto ints = column({1, 2, 3, 4});
    auto intKey = intColumn({-2, 0});
    SortQ(ints.reference(), 4, 1, 1, 4, intKey.reference(), companion.reference(), 1, -1, -1);
    EXPECT_THAT(cellsOf(ints), SameBits({2, 3, 4, 1}));
    EXPECT_EQ(cellsOf(intKey), (std::vector<int>{0, -1}));
}

TEST(SortQ, rowsBeyondTheTableReadMinusOneAndAreNotWritten)
{
    auto data = column({5, 6});
    auto key = column({3, 2, 1});
    auto companion = column({7, 8, 9});
    SortQ(data.reference(), 3, 1, 1, 3, key.reference(), companion.reference(), 1, 0, 0);
    EXPECT_THAT(cellsOf(data), SameBits({-1, 6}));
    EXPECT_THAT(cellsOf(companion), SameBits({9, 8, 7}));
}

TEST(SortQ, rowsBeforeTheTableReadMinusOneAndAreNotWritten)
{
    auto data = column({5, 6});
    auto key = column({-2, -3});
    auto companion = filled(2, 1, 0.0);
    // Row 0 has key -1.0, the largest.
    SortQ(data.reference(), 2, 1, 0, 2, key.reference(), companion.reference(), 1, 0, -1);
    EXPECT_THAT(cellsOf(data), SameBits({5, -1}));
    EXPECT_THAT(cellsOf(key), SameBits({-2, -1}));
}

TEST(SortQ, rowsThatRunOverIntoTheNextColumnAreWrittenRecordByRecord)
{
    // Row 3 of a table of 2 rows is row 1 of the next column: first row 1 is written over both columns, then row 2,
    // then row 3, whose first cell is the one that row 1 wrote in column 2.
    auto data = byColumns({{1, 2}, {3, 4}});
    auto key = column({3, 2, 1});
    auto companion = filled(3, 1, 0.0);
    SortQ(data.reference(), 3, 2, 1, 3, key.reference(), companion.reference(), 1, 0, 0);
    EXPECT_THAT(cellsOf(data), SameBits({3, 2, 1, 4}));
}

TEST(SortQ, theKeyMayBeAColumnOfTheDataAsAView)
{
    auto data = byColumns({{30, 10, 20}, {3, 1, 2}});
    Owned<matrix> key(new matrix(3, 1, data->X, true));
    auto companion = filled(3, 1, 0.0);
    SortQ(data.reference(), 3, 2, 1, 3, key.reference(), companion.reference(), 1, 0, -1);
    EXPECT_THAT(cellsOf(data), SameBits({10, 20, 30, 1, 2, 3}));
}

TEST(SortQ, nanKeysLoseNoRowAndTouchNothingOutside)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    std::vector<double> keys;
    for (int k = 0; k < 200; ++k)
        keys.push_back(k % 3 == 1 ? nan : (k * 37) % 50);
    for (const short descending : {short{0}, short{-1}}) {
        const Sorted sorted = sortedRows(keys, 2, 199, descending);
        EXPECT_EQ(sorted.rows.front(), 1.0);
        EXPECT_EQ(sorted.rows.back(), 200.0);
        std::vector<double> rows = sorted.rows;
        std::sort(rows.begin(), rows.end());
        for (std::size_t k = 0; k < rows.size(); ++k)
            EXPECT_EQ(rows[k], static_cast<double>(k + 1));
    }
}

// ---- descending is exactly -1 in every member -----------------------------------------------------------------------

class OtherThanMinusOne : public testing::TestWithParam<short>
{
protected:
    short descending = GetParam();
    Owned<matrix> key = column({2, 1, 3});
    Owned<matrixInt> intKey = intColumn({2, 1, 3});
    Owned<matrix> companion = column({1, 2, 3});
    Owned<matrixInt> intCompanion = intColumn({1, 2, 3});
    Owned<matrix> data = column({1, 2, 3});
    Owned<matrixInt> intData = intColumn({1, 2, 3});
    Owned<Smatrix> texts = stringColumn({L"b", L"a", L"c"});
};

TEST_P(OtherThanMinusOne, isAscendingInDoublesByDoubles)
{
    SortQ(data.reference(), 3, 1, 1, 3, key.reference(), companion.reference(), 1, descending, 0);
    EXPECT_THAT(cellsOf(data), SameBits({2, 1, 3}));
}

TEST_P(OtherThanMinusOne, isAscendingInIntsByInts)
{
    SortQ(intData.reference(), 3, 1, 1, 3, intKey.reference(), intCompanion.reference(), 1, descending, 0);
    EXPECT_EQ(cellsOf(intData), (std::vector<int>{2, 1, 3}));
}

TEST_P(OtherThanMinusOne, isAscendingInDoublesByInts)
{
    SortQ(data.reference(), 3, 1, 1, 3, intKey.reference(), companion.reference(), 1, descending, 0);
    EXPECT_THAT(cellsOf(data), SameBits({2, 1, 3}));
}

TEST_P(OtherThanMinusOne, isAscendingInIntsByDoubles)
{
    SortQ(intData.reference(), 3, 1, 1, 3, key.reference(), companion.reference(), 1, descending, 0);
    EXPECT_EQ(cellsOf(intData), (std::vector<int>{2, 1, 3}));
}

TEST_P(OtherThanMinusOne, isAscendingInColumnsOfDoubles)
{
    Columns<matrix> columns({{1, 2, 3}});
    SortQ(columns.get(), 3, 1, 1, 3, key.reference(), companion.reference(), 1, descending, 0);
    EXPECT_THAT(columns.cells(), SameBits({2, 1, 3}));
}

TEST_P(OtherThanMinusOne, isAscendingInStrings)
{
    SortQ(texts.reference(), 3, 1, 1, 3, key.reference(), companion.reference(), 1, descending, 0);
    EXPECT_EQ(cellsOf(texts), (Texts{L"a", L"b", L"c"}));
}

TEST_P(OtherThanMinusOne, isAscendingInColumnsOfStrings)
{
    Columns<Smatrix> columns({{L"b", L"a", L"c"}});
    SortQ(columns.get(), 3, 1, 1, 3, key.reference(), companion.reference(), 1, descending, 0);
    EXPECT_EQ(columns.cells(), (Texts{L"a", L"b", L"c"}));
}

TEST_P(OtherThanMinusOne, isAscendingInColumnsByAKey)
{
    auto wide = byRows({{1, 2, 3}});
    auto wideCompanion = byRows({{4, 5, 6}});
    SortQByCol(wide, 1, 3, 1, 3, key, wideCompanion, 1, descending, 0);
    EXPECT_THAT(cellsOf(wide), SameBits({2, 1, 3}));
}

TEST_P(OtherThanMinusOne, isAscendingByAColumnOfTheTable)
{
    SortQMatrixCol(key.reference(), 3, 1, 1, 1, 3, descending);
    EXPECT_THAT(cellsOf(key), SameBits({1, 2, 3}));
    SortQMatrixCol(intKey.reference(), 3, 1, 1, 1, 3, descending);
    EXPECT_EQ(cellsOf(intKey), (std::vector<int>{1, 2, 3}));
    SortQMatrixCol(texts.reference(), 3, 1, 1, 1, 3, descending);
    EXPECT_EQ(cellsOf(texts), (Texts{L"a", L"b", L"c"}));
}

TEST_P(OtherThanMinusOne, isAscendingInVectorsOfNumbers)
{
    SortQVector(key.reference(), 3, 1, 3, descending);
    EXPECT_THAT(cellsOf(key), SameBits({1, 2, 3}));
    SortQVector(intKey.reference(), 3, 1, 3, descending);
    EXPECT_EQ(cellsOf(intKey), (std::vector<int>{1, 2, 3}));
    std::vector<double> flat{2, 1, 3};
    double* start = flat.data();
    SortQVector(start, 3, 1, 3, descending);
    EXPECT_THAT(flat, SameBits({1, 2, 3}));
    std::vector<int> ints{2, 1, 3};
    int* intStart = ints.data();
    SortQVector(intStart, 3, 1, 3, descending);
    EXPECT_EQ(ints, (std::vector<int>{1, 2, 3}));
}

TEST_P(OtherThanMinusOne, isDescendingInVectorsOfStringsUnlessItIsZero)
{
    SortQVector(texts.get(), 1, 3, descending);
    EXPECT_EQ(cellsOf(texts), descending == 0 ? (Texts{L"a", L"b", L"c"}) : (Texts{L"c", L"b", L"a"}));
}

INSTANTIATE_TEST_SUITE_P(Options, OtherThanMinusOne, testing::Values(short{0}, short{1}, short{2}, short{-2}));

// ---- string data ----------------------------------------------------------------------------------------------------

TEST(SortQStrings, needNoCompanionWhereItHasNoColumns)
{
    matrix* none = nullptr;
    auto texts = stringsByColumns({{L"x", L"y", L"z"}, {L"u", L"v", L"w"}});
    auto key = column({3, 1, 2});
    SortQ(texts.reference(), 3, 2, 1, 3, key.reference(), none, 0, 0, -1);
    EXPECT_EQ(cellsOf(texts), (Texts{L"y", L"z", L"x", L"v", L"w", L"u"}));
    EXPECT_THAT(cellsOf(key), SameBits({1, 2, 3}));
    Columns<Smatrix> columns({{L"x", L"y", L"z"}, {L"u", L"v", L"w"}});
    SortQ(columns.get(), 3, 2, 1, 3, key.reference(), none, 0, -1, -1);
    EXPECT_EQ(columns.cells(), (Texts{L"z", L"y", L"x", L"w", L"v", L"u"}));
}

TEST(SortQStrings, noColumnsIsOneColumn)
{
    matrix* none = nullptr;
    auto key = column({3, 1, 2});
    auto texts = stringsByColumns({{L"x", L"y", L"z"}, {L"u", L"v", L"w"}});
    SortQ(texts.reference(), 3, 0, 1, 3, key.reference(), none, 0, 0, 0);
    EXPECT_EQ(cellsOf(texts), (Texts{L"y", L"z", L"x", L"u", L"v", L"w"}));
    Columns<Smatrix> columns({{L"x", L"y", L"z"}, {L"u", L"v", L"w"}});
    SortQ(columns.get(), 3, 0, 1, 3, key.reference(), none, 0, 0, 0);
    EXPECT_EQ(columns.cells(), (Texts{L"y", L"z", L"x", L"u", L"v", L"w"}));
}

TEST(SortQStrings, rowsBeyondTheTableAreEmptyAndNotWritten)
{
    matrix* none = nullptr;
    auto key = column({3, 2, 1});
    auto texts = stringColumn({L"x", L"y"});
    SortQ(texts.reference(), 3, 1, 1, 3, key.reference(), none, 0, 0, 0);
    EXPECT_EQ(cellsOf(texts), (Texts{L"", L"y"}));
}

TEST(SortQStrings, onlyMinusOneWritesTheKeys)
{
    for (const short writeKeys : {short{0}, short{1}, short{-1}}) {
        auto texts = stringColumn({L"x", L"y"});
        auto key = column({2, 1});
        auto companion = column({8, 9});
        SortQ(texts.reference(), 2, 1, 1, 2, key.reference(), companion.reference(), 1, 0, writeKeys);
        EXPECT_EQ(cellsOf(texts), (Texts{L"y", L"x"}));
        EXPECT_THAT(cellsOf(companion), SameBits({9, 8}));
        EXPECT_THAT(cellsOf(key), writeKeys == -1 ? SameBits({1, 2}) : SameBits({2, 1}));
    }
}

// ---- columns by a key -----------------------------------------------------------------------------------------------

TEST(SortQByCol, movesTheGivenNumberOfRowsAndOnlyColumnsOfTheRange)
{
    auto data = byRows({{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}});
    auto key = column({0, 3, 2, 2});
    auto companion = byRows({{1, 2, 3, 4}, {5, 6, 7, 8}});
    EXPECT_EQ(SortQByCol(data, 2, 4, 2, 4, key, companion, 1, 0, -1), 0);
    EXPECT_THAT(cellsOf(data), SameBits(cellsOf(byRows({{1, 3, 4, 2}, {5, 7, 8, 6}, {9, 10, 11, 12}}))));
    EXPECT_THAT(cellsOf(companion), SameBits(cellsOf(byRows({{1, 3, 4, 2}, {5, 6, 7, 8}}))));
    EXPECT_THAT(cellsOf(key), SameBits({0, 2, 2, 3}));
}

TEST(SortQByCol, onlyMinusOneWritesTheKeysAndTheCountOfColumnsIsNotUsed)
{
    for (const short writeKeys : {short{0}, short{1}}) {
        auto data = byRows({{1, 2}});
        auto key = column({2, 1});
        auto companion = byRows({{3, 4}});
        SortQByCol(data, 1, -7, 1, 2, key, companion, 1, 0, writeKeys);
        EXPECT_THAT(cellsOf(data), SameBits({2, 1}));
        EXPECT_THAT(cellsOf(key), SameBits({2, 1}));
    }
}

} // namespace
