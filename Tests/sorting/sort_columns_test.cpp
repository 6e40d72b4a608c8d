// Sorts by a column of the table, by several columns in turn, and of vectors.
#include "sorting/sort.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <limits>

using namespace vecmat::test;

namespace {

using Texts = std::vector<std::wstring>;

TEST(SortQMatrixCol, tiesKeepTheOrderOfTheInputInBothDirections)
{
    auto up = byColumns({{2, 1, 2}, {1, 2, 3}});
    SortQMatrixCol(up.reference(), 3, 2, 1, 1, 3, 0);
    EXPECT_THAT(cellsOf(up), SameBits({1, 2, 2, 2, 1, 3}));
    auto down = byColumns({{2, 1, 2}, {1, 2, 3}});
    SortQMatrixCol(down.reference(), 3, 2, 1, 1, 3, -1);
    EXPECT_THAT(cellsOf(down), SameBits({2, 2, 1, 1, 3, 2}));
}

TEST(SortQMatrixCol, missingCellsComeFirstAscendingAndLastDescending)
{
    auto up = byColumns({{1, 2, 3}, {0, M, -5}});
    SortQMatrixCol(up.reference(), 3, 2, 2, 1, 3, 0);
    EXPECT_THAT(cellsOf(up), SameBits({2, 3, 1, M, -5, 0}));
    auto down = byColumns({{1, 2, 3}, {0, M, -5}});
    SortQMatrixCol(down.reference(), 3, 2, 2, 1, 3, -1);
    EXPECT_THAT(cellsOf(down), SameBits({1, 3, 2, 0, -5, M}));
}

TEST(SortQMatrixCol, theEmptyStringSortsBeforeAnyOtherAndStringsByTheirCharacters)
{
    auto table = stringColumn({L"b", L"a", L"", L"B", L"ab", L"10", L"9", L"\u00e9"});
    SortQMatrixCol(table.reference(), 8, 1, 1, 1, 8, 0);
    EXPECT_EQ(cellsOf(table), (Texts{L"", L"10", L"9", L"B", L"a", L"ab", L"b", L"\u00e9"}));
}

TEST(SortQMatrixCol, intsAreExactAtTheEndsOfTheRange)
{
    const int lowest = std::numeric_limits<int>::min();
    const int highest = std::numeric_limits<int>::max();
    auto table = intsByColumns({{highest, 0, lowest, highest - 1}, {1, 2, 3, 4}});
    SortQMatrixCol(table.reference(), 4, 2, 1, 1, 4, 0);
    EXPECT_EQ(cellsOf(table), (std::vector<int>{lowest, 0, highest - 1, highest, 3, 2, 4, 1}));
}

TEST(SortQMatrixCol, aKeyColumnAfterTheColumnsThatMoveIsSortedToo)
{
    auto table = byColumns({{1, 2, 3}, {4, 5, 6}, {3, 2, 1}});
    SortQMatrixCol(table.reference(), 3, 1, 3, 1, 3, 0);
    EXPECT_THAT(cellsOf(table), SameBits({3, 2, 1, 4, 5, 6, 1, 2, 3}));
}

TEST(SortQMatrixCol, aColumnBeyondTheTableHasOnlyTies)
{
    for (const int col : {0, 3, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        auto table = byColumns({{3, 2, 1}, {4, 5, 6}});
        SortQMatrixCol(table.reference(), 3, 2, col, 1, 3, -1);
        EXPECT_THAT(cellsOf(table), SameBits({3, 2, 1, 4, 5, 6})) << col;
    }
}

TEST(SortQMatrixCol, rowsOutsideTheRangeStay)
{
    auto table = byColumns({{9, 3, 2, 0}, {1, 2, 3, 4}});
    SortQMatrixCol(table.reference(), 4, 2, 1, 2, 3, 0);
    EXPECT_THAT(cellsOf(table), SameBits({9, 2, 3, 0, 1, 3, 2, 4}));
    SortQMatrixCol(table.reference(), 4, 2, 1, 4, 3, 0);
    EXPECT_THAT(cellsOf(table), SameBits({9, 2, 3, 0, 1, 3, 2, 4}));
}

// Rows (1, 2), (1, 1), (0, 3).
TEST(SortMatrixSeqQ, fromTheLastColumnToTheFirstIsLexicographic)
{
    auto table = byRows({{1, 2}, {1, 1}, {0, 3}});
    EXPECT_EQ(SortMatrixSeqQ(table.reference(), 3, 2, -1), 0);
    EXPECT_THAT(cellsOf(table), SameBits(cellsOf(byRows({{0, 3}, {1, 1}, {1, 2}}))));
}

TEST(SortMatrixSeqQ, anyOtherFlagMakesTheLastColumnTheMajorKey)
{
    for (const short flag : {short{0}, short{1}}) {
        auto table = byRows({{1, 2}, {1, 1}, {0, 3}});
        SortMatrixSeqQ(table.reference(), 3, 2, flag);
        EXPECT_THAT(cellsOf(table), SameBits(cellsOf(byRows({{1, 1}, {1, 2}, {0, 3}})))) << flag;
        auto ints = intsByRows({{1, 2}, {1, 1}, {0, 3}});
        SortMatrixSeqQ(ints.reference(), 3, 2, flag);
        EXPECT_EQ(cellsOf(ints), cellsOf(intsByRows({{1, 1}, {1, 2}, {0, 3}}))) << flag;
    }
}

TEST(SortMatrixSeqQ, rowsBeyondTheCountStay)
{
    auto table = byRows({{2, 1}, {1, 1}, {0, 0}});
    SortMatrixSeqQ(table.reference(), 2, 2, -1);
    EXPECT_THAT(cellsOf(table), SameBits(cellsOf(byRows({{1, 1}, {2, 1}, {0, 0}}))));
}

TEST(SortMatrixSeqQP1toP2, sortsBySomeColumnsAndMovesAll)
{
    auto table = byRows({{9, 1, 2}, {8, 1, 1}, {7, 0, 3}});
    EXPECT_EQ(SortMatrixSeqQP1toP2(table.get(), 3, 3, 2, 3, -1), 0);
    EXPECT_THAT(cellsOf(table), SameBits(cellsOf(byRows({{7, 0, 3}, {8, 1, 1}, {9, 1, 2}}))));
    EXPECT_EQ(SortMatrixSeqQP1toP2(table.get(), 3, 3, 2, 3, 0), 0);
    EXPECT_THAT(cellsOf(table), SameBits(cellsOf(byRows({{8, 1, 1}, {9, 1, 2}, {7, 0, 3}}))));
    auto ints = intsByRows({{9, 1, 2}, {8, 1, 1}, {7, 0, 3}});
    EXPECT_EQ(SortMatrixSeqQP1toP2(ints.get(), 3, 3, 2, 2, -1), 0);
    EXPECT_EQ(cellsOf(ints), cellsOf(intsByRows({{7, 0, 3}, {9, 1, 2}, {8, 1, 1}})));
}

TEST(SortMatrixSeqQP1toP2, rowsBeyondTheTableAreSortedColumnByColumn)
{
    RandomData data(3316);
    SCOPED_TRACE(data);
    // Fewer rows than sorted: they run on into the next column, and out of the table behind the last.
    for (int round = 0; round < 60; ++round) {
        const int rows = data.integer(1, 4), cols = data.integer(2, 5), nRows = data.integer(2, 6), nCols = 2;
        auto sorted = table(rows, cols, data.wholes(static_cast<std::size_t>(rows * cols), 0, 2));
        auto expected = tableOf<matrix>(rows, cols, cellsOf(sorted));
        SortMatrixSeqQP1toP2(sorted.get(), nRows, nCols, 1, 2, -1);
        for (const int col : {2, 1})
            SortQMatrixCol(expected.reference(), nRows, nCols, col, 1, nRows, 0);
        EXPECT_THAT(cellsOf(sorted), SameBits(cellsOf(expected))) << rows << " " << cols << " " << nRows;
    }
}

TEST(SortMatrixSeqQP1toP2, noColumnsIsNoWork)
{
    auto table = byRows({{2, 1}, {1, 2}});
    SortMatrixSeqQP1toP2(table.get(), 2, 2, 2, 1, -1);
    SortMatrixSeqQP1toP2(table.get(), 2, 2, 2, 1, 0);
    EXPECT_THAT(cellsOf(table), SameBits(cellsOf(byRows({{2, 1}, {1, 2}}))));
}

TEST(SortQVector, sortsARangeInPlace)
{
    Guarded<double> x({5, 4, M, 2, 1});
    double* start = x;
    EXPECT_EQ(SortQVector(start, 5, 2, 4, 0), 0);
    EXPECT_EQ(start, x.data());
    EXPECT_THAT(x.values(), SameBits({5, M, 2, 4, 1}));
    EXPECT_EQ(SortQVector(start, 5, 2, 4, -1), 0);
    EXPECT_THAT(x.values(), SameBits({5, 4, 2, M, 1}));
    Guarded<int> k({5, 4, 3, 2, 1});
    int* intStart = k;
    EXPECT_EQ(SortQVector(intStart, 5, 2, 4, 0), 0);
    EXPECT_EQ(k.values(), (std::vector<int>{5, 2, 3, 4, 1}));
}

TEST(SortQVector, elementsPastTheVectorTakePartAsMinusOne)
{
    Guarded<double> x({-3, 2, -2});
    double* start = x;
    SortQVector(start, 3, 1, 5, 0);
    EXPECT_THAT(x.values(), SameBits({-3, -2, -1}));
    auto table = column({-3, 2, -2});
    SortQVector(table.reference(), 5, 1, 5, 0);
    EXPECT_THAT(cellsOf(table), SameBits({-3, -2, -1}));
}

TEST(SortQVector, takesATableInLinearOrder)
{
    auto table = byColumns({{4, 3}, {2, 1}});
    SortQVector(table.reference(), 4, 1, 4, 0);
    EXPECT_THAT(cellsOf(table), SameBits({1, 2, 3, 4}));
}

TEST(SortQVector, oneElementStaysAndNoneIsNoWork)
{
    Guarded<double> x({7});
    double* start = x;
    SortQVector(start, 1, 1, 1, -1);
    EXPECT_TRUE(x.untouched());
    SortQVector(start, 0, 1, 0, 0);
    EXPECT_TRUE(x.untouched());
    double* none = nullptr;
    EXPECT_EQ(SortQVector(none, 0, 1, 0, 0), 0);
    auto empty = stringColumn({});
    EXPECT_EQ(SortQVector(empty.get(), 1, 0, 0), 0);
}

TEST(SortQVector, stringsGoInTheirNaturalOrderEmptyFirst)
{
    auto table = stringColumn({L"b", L"", L"a", L"B", L"aa"});
    EXPECT_EQ(SortQVector(table.get(), 1, 5, 0), 0);
    EXPECT_EQ(cellsOf(table), (Texts{L"", L"B", L"a", L"aa", L"b"}));
    EXPECT_EQ(SortQVector(table.get(), 1, 4, -1), 0);
    EXPECT_EQ(cellsOf(table), (Texts{L"aa", L"a", L"B", L"", L"b"}));
}

} // namespace
