#include "elementary/removal.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/strings.h"
#include "support/tables.h"

#include <climits>

using namespace vecmat::test;

namespace {

using Texts = std::vector<std::wstring>;

// ---- one row or column ----------------------------------------------------------------------------------------------

TEST(MRemoveCol, LeavesOutOneColumn)
{
    const auto a = byRows({{1, 2, 3}, {4, M, 6}});
    for (const auto& [col, expected] :
         {std::pair{1, std::vector<double>{2, M, 3, 6}}, {2, {1, 4, 3, 6}}, {3, {1, 4, 2, M}}})
    {
        auto out = filled(2, 2, 7.0);
        M_RemoveCol(a, 2, 3, col, out);
        EXPECT_THAT(cellsOf(out), SameBits(expected)) << col;
    }
}

TEST(MRemoveCol, WithoutSuchAColumnEverythingIsCopied)
{
    const auto a = byRows({{1, 2}, {3, 4}});
    for (const int col : {0, 3, -1, INT_MIN, INT_MAX}) {
        auto out = filled(2, 3, 7.0);
        M_RemoveCol(a, 2, 2, col, out);
        EXPECT_THAT(cellsOf(out), SameBits({1, 3, 2, 4, 7, 7})) << col;
    }
}

TEST(MRemoveCol, WorksOnACornerWithEachTablesStride)
{
    auto out = filled(3, 2, 7.0);
    M_RemoveCol(byRows({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}), 2, 2, 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({2, 5, 7, 7, 7, 7}));
    M_RemoveCol(byRows({{1, 2}, {3, 4}}), 2, 3, 1, out); // a third column reads -1.0
    EXPECT_THAT(cellsOf(out), SameBits({2, 4, 7, -1, -1, 7}));
    auto narrow = filled(2, 1, 7.0);
    M_RemoveCol(byRows({{1, 2, 3}, {4, 5, 6}}), 2, 3, 1, narrow);
    EXPECT_THAT(cellsOf(narrow), SameBits({2, 5}));
}

TEST(MRemoveRow, LeavesOutOneRow)
{
    const auto a = byRows({{1, 2}, {3, M}, {5, 6}});
    for (const auto& [row, expected] :
         {std::pair{1, std::vector<double>{3, 5, M, 6}}, {2, {1, 5, 2, 6}}, {3, {1, 3, 2, M}}})
    {
        auto out = filled(2, 2, 7.0);
        M_RemoveRow(a, 3, 2, row, out);
        EXPECT_THAT(cellsOf(out), SameBits(expected)) << row;
    }
    auto all = filled(4, 2, 7.0);
    M_RemoveRow(a, 3, 2, 0, all);
    EXPECT_THAT(cellsOf(all), SameBits({1, 3, 5, 7, 2, M, 6, 7}));
    auto shorter = filled(2, 2, 7.0);
    M_RemoveRow(a, 3, 2, 9, shorter); // row 3 runs over to (1, 2) and is written last
    EXPECT_THAT(cellsOf(shorter), SameBits({1, 3, 5, M}));
}

TEST(MMoveRow, ExchangesTheRows)
{
    auto a = byRows({{1, 2}, {3, M}, {5, 6}});
    M_MoveRow(a, 2, 1, 3);
    EXPECT_THAT(cellsOf(a), SameBits(cellsOf(byRows({{5, 6}, {3, M}, {1, 2}}))));
    M_MoveRow(a, 1, 1, 2); // over one column only
    EXPECT_THAT(cellsOf(a), SameBits(cellsOf(byRows({{3, 6}, {5, M}, {1, 2}}))));
    M_MoveRow(a, 2, 2, 2);
    EXPECT_THAT(cellsOf(a), SameBits(cellsOf(byRows({{3, 6}, {5, M}, {1, 2}}))));
}

TEST(MMoveRow, ARowOutsideReadsMinusOneAndIsDropped)
{
    auto a = column({1, 2});
    M_MoveRow(a, 1, 1, 5);
    EXPECT_THAT(cellsOf(a), SameBits({-1, 2}));
    M_MoveRow(a, 1, 0, 2);
    EXPECT_THAT(cellsOf(a), SameBits({-1, -1}));
}

TEST(MRemoveCols2, MovesTheRestLeftAndKeepsTheShape)
{
    auto a = byRows({{1, 2, 3, 4}, {5, 6, 7, M}});
    M_RemoveCols2(a, 2, 4, 2, 3);
    EXPECT_EQ(a->nCols, 4);
    EXPECT_THAT(cellsOf(a), SameBits(cellsOf(byRows({{1, 4, 3, 4}, {5, M, 7, M}}))));
    M_RemoveCols2(a, 1, 4, 1, 1); // over one row only
    EXPECT_THAT(cellsOf(a), SameBits(cellsOf(byRows({{4, 3, 4, 4}, {5, M, 7, M}}))));
    M_RemoveCols2(a, 2, 4, 3, 4); // nothing follows
    M_RemoveCols2(a, 2, 4, 1, INT_MAX);
    EXPECT_THAT(cellsOf(a), SameBits(cellsOf(byRows({{4, 3, 4, 4}, {5, M, 7, M}}))));
}

TEST(MRemoveRows2, MovesTheRestUpAndKeepsTheShape)
{
    auto a = byRows({{1, 2}, {3, 4}, {5, M}, {7, 8}});
    M_RemoveRows2(a.reference(), 4, 2, 2, 2);
    EXPECT_EQ(a->nRows, 4);
    EXPECT_THAT(cellsOf(a), SameBits(cellsOf(byRows({{1, 2}, {5, M}, {7, 8}, {7, 8}}))));
    M_RemoveRows2(a.reference(), 3, 1, 1, 2); // a corner
    EXPECT_THAT(cellsOf(a), SameBits(cellsOf(byRows({{7, 2}, {5, M}, {7, 8}, {7, 8}}))));

    auto strings = stringsByRows({{L"a", L"b"}, {L"c", L"d"}, {L"", L"f"}});
    M_RemoveRows2(strings.reference(), 3, 2, 1, 1);
    EXPECT_EQ(cellsOf(strings), (Texts{L"c", L"", L"", L"d", L"f", L"f"}));
    M_RemoveRows2(strings.reference(), 4, 1, 2, 2); // a fourth row of column 1 is the first of column 2
    EXPECT_EQ(cellsOf(strings), (Texts{L"c", L"", L"d", L"d", L"f", L"f"}));
}

TEST(MRemove2, IsTheCheckedLoopRowByRowForAnyNumbers)
{
    RandomData data(2470);
    SCOPED_TRACE(data);
    for (int round = 0; round < 2000; ++round) {
        const auto cells = data.uniforms(20);
        const int rows = data.integer(0, 6);
        const int cols = data.integer(0, 7);
        const int from = data.integer(-1, 6);
        const int to = data.integer(-1, 6);
        auto byRow = table(4, 5, cells);
        const auto byRowExpected = table(4, 5, cells);
        M_RemoveRows2(byRow.reference(), rows, cols, from, to);
        for (int i = to + 1; i <= rows; ++i)
            for (int j = 1; j <= cols; ++j)
                byRowExpected->vbset(from + i - to - 1, j, byRowExpected->vbget(i, j));
        ASSERT_THAT(cellsOf(byRow), SameBits(cellsOf(byRowExpected))) << from << " to " << to;
        auto byCol = table(4, 5, cells);
        const auto byColExpected = table(4, 5, cells);
        M_RemoveCols2(byCol, rows, cols, from, to);
        for (int i = 1; i <= rows; ++i)
            for (int j = to + 1; j <= cols; ++j)
                byColExpected->vbset(i, from + j - to - 1, byColExpected->vbget(i, j));
        ASSERT_THAT(cellsOf(byCol), SameBits(cellsOf(byColExpected))) << from << " to " << to;
    }
}

// ---- by flags -------------------------------------------------------------------------------------------------------

TEST(MRemoveRowsInList, KeepsTheOrderOfTheOthers)
{
    const auto a = byRows({{1, 10}, {2, 20}, {3, M}, {4, 40}, {5, 50}});
    auto out = filled(4, 3, 7.0);
    EXPECT_EQ(M_RemoveRowsInList(a, 5, 2, intColumn({0, 1, 0, 1, 0}), out), 2);
    EXPECT_THAT(cellsOf(out), SameBits(cellsOf(byRows({{1, 10, 7}, {3, M, 7}, {5, 50, 7}, {7, 7, 7}}))));
    auto twin = filled(4, 3, 7.0);
    EXPECT_EQ(M_RemoveRowsInList(a, 5, 2, column({0, 1, 0, 1, 0}), twin), 2);
    EXPECT_THAT(cellsOf(twin), SameBits(cellsOf(out)));
    EXPECT_THAT(cellsOf(a), SameBits({1, 2, 3, 4, 5, 10, 20, M, 40, 50}));
}

TEST(MRemoveRowsInList, WithEverythingFlaggedOrNothing)
{
    const auto a = byRows({{1, 2}, {3, 4}});
    auto out = filled(2, 2, 7.0);
    EXPECT_EQ(M_RemoveRowsInList(a, 2, 2, intColumn({1, 1}), out), 2);
    EXPECT_THAT(cellsOf(out), SameBits({7, 7, 7, 7}));
    EXPECT_EQ(M_RemoveRowsInList(a, 0, 2, intColumn({1, 1}), out), 0);
    EXPECT_THAT(cellsOf(out), SameBits({7, 7, 7, 7}));
    EXPECT_EQ(M_RemoveRowsInList(a, 2, 2, intColumn({0, 0}), out), 0);
    EXPECT_THAT(cellsOf(out), SameBits({1, 3, 2, 4}));
}

TEST(MRemoveRowsInList, TheCountIsTheTruncatedSumOfTheFlags)
{
    const auto a = column({1, 2, 3});
    auto out = filled(3, 1, 7.0);
    EXPECT_EQ(M_RemoveRowsInList(a, 3, 1, column({0.9, 0, 0.9}), out), 1); // sorted 2, 1, 3: the last goes
    EXPECT_THAT(cellsOf(out), SameBits({2, 1, 7}));
    EXPECT_EQ(M_RemoveRowsInList(a, 3, 1, column({0, M, 1}), out), 1); // a missing flag sorts first and adds nothing
    EXPECT_THAT(cellsOf(out), SameBits({2, 1, 7}));
    EXPECT_EQ(M_RemoveRowsInList(a, 3, 1, intColumn({2, 0, 0}), out), 2); // a flag of 2 takes a neighbour along
    EXPECT_THAT(cellsOf(out), SameBits({2, 1, 7}));
    EXPECT_EQ(M_RemoveRowsInList(a, 3, 1, intColumn({INT_MIN, 0, 0}), out), INT_MIN);
}

TEST(MRemoveRowsInList, AFlagOutsideItsTableIsMinusOne)
{
    auto out = filled(4, 1, 7.0);
    // The flags read (1, 0, -1): they sum to 0, and the third row sorts first.
    EXPECT_EQ(M_RemoveRowsInList(column({1, 2, 3}), 3, 1, intColumn({1, 0}), out), 0);
    EXPECT_THAT(cellsOf(out), SameBits({3, 2, 1, 7}));
}

TEST(MRemoveRowsInList, ATableSmallerThanGivenReadsMinusOne)
{
    auto out = filled(2, 2, 7.0);
    EXPECT_EQ(M_RemoveRowsInList(column({1, 2}), 2, 2, intColumn({1, 0}), out), 1);
    EXPECT_THAT(cellsOf(out), SameBits({2, 7, -1, 7}));
}

TEST(MRemoveColsInList, IsTheSameForColumns)
{
    const auto a = byRows({{1, 2, 3, 4}, {5, M, 7, 8}});
    auto out = filled(3, 3, 7.0);
    EXPECT_EQ(M_RemoveColsInList(a, 2, 4, intColumn({1, 0, 1, 0}), out), 2);
    EXPECT_THAT(cellsOf(out), SameBits(cellsOf(byRows({{2, 4, 7}, {M, 8, 7}, {7, 7, 7}}))));
    auto twin = filled(3, 3, 7.0);
    EXPECT_EQ(M_RemoveColsInList(a, 2, 4, column({1, 0, 1, 0}), twin), 2);
    EXPECT_THAT(cellsOf(twin), SameBits(cellsOf(out)));
    auto untouched = filled(2, 2, 7.0);
    EXPECT_EQ(M_RemoveColsInList(a, 2, 4, column({1, 1, 1, 1}), untouched), 4);
    EXPECT_THAT(cellsOf(untouched), SameBits({7, 7, 7, 7}));
}

TEST(MRemoveInList, RandomFlagsAgainstThePlainSelection)
{
    RandomData data(2471);
    SCOPED_TRACE(data);
    for (int round = 0; round < 100; ++round) {
        const int rows = data.integer(1, 8);
        const int cols = data.integer(1, 8);
        const auto cells = data.withSpecials(data.uniforms(static_cast<std::size_t>(rows * cols)), 0.3);
        const auto a = table(rows, cols, cells);
        const auto rowFlags = data.integers(static_cast<std::size_t>(rows), 0, 1);
        const auto colFlags = data.integers(static_cast<std::size_t>(cols), 0, 1);
        std::vector<double> withoutRows;
        std::vector<double> withoutCols;
        for (int j = 1; j <= cols; ++j)
            for (int i = 1; i <= rows; ++i) {
                if (rowFlags[static_cast<std::size_t>(i - 1)] == 0)
                    withoutRows.push_back(a->vbget(i, j));
                if (colFlags[static_cast<std::size_t>(j - 1)] == 0)
                    withoutCols.push_back(a->vbget(i, j));
            }
        Guarded<double> flat(cells);
        Guarded<int> flatRowFlags(rowFlags);
        Guarded<int> flatColFlags(colFlags);
        const int keptRows = static_cast<int>(withoutRows.size()) / cols;
        const int keptCols = static_cast<int>(withoutCols.size()) / rows;
        Guarded<double> byRow(withoutRows.size(), 7.0);
        Guarded<double> byCol(withoutCols.size(), 7.0);
        ASSERT_EQ(VB_M_RemoveRowsInList(flat, rows, cols, flatRowFlags, keptRows, byRow), rows - keptRows);
        ASSERT_EQ(VB_M_RemoveColsInList(flat, rows, cols, flatColFlags, keptCols, byCol), cols - keptCols);
        ASSERT_THAT(byRow.values(), SameBits(withoutRows));
        ASSERT_THAT(byCol.values(), SameBits(withoutCols));
        ASSERT_TRUE(flat.untouched() && flatRowFlags.untouched() && flatColFlags.untouched());
    }
}

// ---- flat forms -----------------------------------------------------------------------------------------------------

TEST(VBMRemove, WritesATableWithOneLess)
{
    Guarded<double> a{1, 2, 3, M, 5, 6};
    Guarded<double> out(4, 7.0);
    VB_M_RemoveCol(a, 2, 3, 2, out);
    EXPECT_THAT(out.values(), SameBits({1, 2, 5, 6}));
    VB_M_RemoveRow(a, 3, 2, 1, out);
    EXPECT_THAT(out.values(), SameBits({2, 3, 5, 6}));
    VB_M_RemoveCol(a, 2, 3, 9, out); // no such column: the last has no room
    EXPECT_THAT(out.values(), SameBits({1, 2, 3, M}));
    EXPECT_TRUE(a.untouched());
    VB_M_RemoveRow(a, 3, 2, 2, a); // over its own array
    EXPECT_THAT(a.values(), SameBits({1, 3, M, 6, 5, 6}));
}

TEST(VBMRemove, NothingIsLeftOfOneRowOrColumn)
{
    Guarded<double> a{1, 2};
    Guarded<double> none({});
    VB_M_RemoveCol(a, 2, 1, 1, none);
    VB_M_RemoveRow(a, 1, 2, 1, none);
    VB_M_RemoveRow(a, 0, 2, 1, none);
    VB_M_RemoveCol(a, 2, INT_MIN, 1, none);
    VB_M_RemoveRow(a, INT_MIN, 2, 1, none);
}

TEST(VBMRemove2, ChangesTheArrayInPlace)
{
    Guarded<double> a{1, 2, 3, 4, 5, M};
    VB_M_RemoveCols2(a, 2, 3, 1, 1);
    EXPECT_THAT(a.values(), SameBits({3, 4, 5, M, 5, M}));
    VB_M_RemoveRows2(a, 3, 2, 1, 2);
    EXPECT_THAT(a.values(), SameBits({5, 4, 5, M, 5, M}));
    VB_M_MoveRow(a, 3, 2, 1, 2);
    EXPECT_THAT(a.values(), SameBits({4, 5, 5, 5, M, M}));

    BstrArray strings({L"a", L"b", L"c", L"d"});
    Cpp_M_RemoveRowsStr2(strings, 2, 2, 1, 1);
    EXPECT_EQ(strings.texts(), (Texts{L"b", L"b", L"d", L"d"}));
    EXPECT_EQ(strings.countNew(), 4u);
}

TEST(VBMRemoveInList, TakesWhatFits)
{
    Guarded<double> a{1, 2, 3, 4, 5, 6};
    Guarded<int> flags{0, 1, 0};
    Guarded<double> larger(6, 7.0);
    EXPECT_EQ(VB_M_RemoveRowsInList(a, 3, 2, flags, 3, larger), 1); // opened with a row too many: it stays
    EXPECT_THAT(larger.values(), SameBits({1, 3, 7, 4, 6, 7}));
    Guarded<double> smaller(2, 7.0);
    EXPECT_EQ(VB_M_RemoveColsInList(a, 2, 3, flags, 1, smaller), 1);
    EXPECT_THAT(smaller.values(), SameBits({1, 2}));
}

} // namespace
