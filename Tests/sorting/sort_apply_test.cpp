#include "sorting/sort_apply.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/strings.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

using namespace vecmat::test;

namespace {

using Texts = std::vector<std::wstring>;
using Ints = std::vector<int>;
constexpr int lowest = std::numeric_limits<int>::min();

TEST(SortApply, takesRowsByTheirNumbersAlsoMoreThanOnce)
{
    auto source = byRows({{1, 4}, {2, M}, {3, 6}});
    Owned<matrix> out;
    SortApply(source.get(), 3, 2, column({2, 2, 1}), out.reference());
    EXPECT_THAT(cellsOf(out), SameBits({2, 2, 1, M, M, 4}));
    EXPECT_THAT(cellsOf(source), SameBits({1, 2, 3, 4, M, 6}));
}

TEST(SortApply, widensIntsAndTruncatesDoubles)
{
    auto ints = intColumn({1, lowest});
    Owned<matrix> widened;
    SortApply(ints.get(), 2, 1, column({2, 1}), widened.reference());
    EXPECT_THAT(cellsOf(widened), SameBits({-2147483648.0, 1}));
    auto doubles = column({2.9, -2.9, M});
    Owned<matrixInt> truncatedCells;
    SortApply(doubles.get(), 3, 1, column({3, 2, 1}), truncatedCells.reference());
    EXPECT_EQ(cellsOf(truncatedCells), (Ints{lowest, -2, 2}));
    Owned<matrixInt> moved;
    SortApply(ints.get(), 2, 1, column({2, 1}), moved.reference());
    EXPECT_EQ(cellsOf(moved), (Ints{lowest, 1}));
}

TEST(SortApply, subtractsOneAndThenTruncates)
{
    auto source = column({1, 2, 3});
    Owned<matrix> out;
    // 0.5 and 0.1 are row 1 too: -0.5 and -0.9 are truncated to 0.
    SortApply(source.get(), 5, 1, column({2.9, 3.999, 0.5, 0.1, 1.5}), out.reference());
    EXPECT_THAT(cellsOf(out), SameBits({2, 3, 1, 1, 1}));
}

TEST(SortApply, widensAResultOfTheSameHeight)
{
    auto out = column({7, 8, 9});
    SortApply(byRows({{1, 4}, {2, 5}, {3, 6}}).get(), 3, 2, column({3, 1, 2}), out.reference());
    EXPECT_THAT(cellsOf(out), SameBits({3, 1, 2, 6, 4, 5}));
}

TEST(SortApply, readsMinusOneBeyondTheTable)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Owned<matrix> out;
    SortApply(column({1, 2}), 6, 1, column({0, 3, -7, M, nan, 1e300}), out.reference());
    EXPECT_THAT(cellsOf(out), SameBits({-1, -1, -1, -1, -1, -1}));
    Owned<matrixInt> ints;
    SortApply(intColumn({1, 2}), 2, 1, column({3, 0}), ints.reference());
    EXPECT_EQ(cellsOf(ints), (Ints{-1, -1}));
    Owned<matrix> widened;
    SortApply(intColumn({1, 2}), 2, 1, column({3, 2}), widened.reference());
    EXPECT_THAT(cellsOf(widened), SameBits({-1, 2}));
}

TEST(SortApply, checksOnlyTheLinearPosition)
{
    // Row 3 of two is row 1 of the next column, row 0 the last of the column before.
    Owned<matrix> out;
    SortApply(byRows({{1, 3}, {2, 4}}), 2, 2, column({3, 0}), out.reference());
    EXPECT_THAT(cellsOf(out), SameBits({3, -1, -1, 2}));
}

TEST(SortApply, anOrderThatIsTooShortReadsMinusOne)
{
    // -1 less 1 is two rows before the first.
    Owned<matrix> out;
    SortApply(byRows({{1, 3}, {2, 4}}), 2, 2, column({2}), out.reference());
    EXPECT_THAT(cellsOf(out), SameBits({2, -1, 4, 1}));
}

TEST(SortApply, preparesItsResultAndKeepsALargerOne)
{
    auto out = filled(3, 2, 0.5);
    matrix* const before = out.get();
    SortApply(column({1, 2}), 2, 1, column({2, 1}), out.reference());
    EXPECT_EQ(out.get(), before);
    EXPECT_THAT(cellsOf(out), SameBits({2, 1, 0.5, 0.5, 0.5, 0.5}));
    auto small = filled(1, 1, 0.5);
    SortApply(column({1, 2}), 2, 1, column({2, 1}), small.reference());
    EXPECT_THAT(cellsOf(small), SameBits({2, 1}));
}

TEST(SortApply2, takesRowsBeyondTheHeightFromTheNextColumn)
{
    constexpr int height = 20, rows = 40;
    std::vector<double> cells(2 * rows), order(rows);
    for (std::size_t k = 0; k < cells.size(); ++k)
        cells[k] = static_cast<double>(k + 1);
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = static_cast<double>(rows - i);
    auto expected = cells;
    std::reverse(expected.begin(), expected.begin() + rows);
    auto x = table(height, 4, cells);
    SortApply2(x.get(), rows, 1, column(order));
    EXPECT_THAT(cellsOf(x), SameBits(expected));
    SortApply2(x.get(), rows, 0, column(order));
    EXPECT_THAT(cellsOf(x), SameBits(expected));
}

TEST(SortApply2, worksInPlaceOnTheGivenCorner)
{
    auto doubles = byRows({{1, 4, 7}, {2, M, 8}, {3, 6, 9}});
    SortApply2(doubles.get(), 2, 2, column({2, 2}));
    EXPECT_THAT(cellsOf(doubles), SameBits({2, 2, 3, M, M, 6, 7, 8, 9}));
    auto ints = intsByRows({{1, lowest}, {2, 5}, {3, 6}});
    SortApply2(ints.get(), 3, 2, column({3, 1, 9}));
    EXPECT_EQ(cellsOf(ints), cellsOf(intsByRows({{3, 6}, {1, lowest}, {-1, -1}})));
}

TEST(SortApplyStr, movesStringsAndReadsAnEmptyOneBeyondTheTable)
{
    auto source = stringsByColumns({{L"a", L"b"}, {L"c", L"d"}});
    auto out = stringTable(2, 2, {L"x", L"x", L"x", L"x"});
    SortApplyStr(source.get(), 2, 2, column({2, 2.9}), out.get());
    EXPECT_EQ(cellsOf(out), (Texts{L"b", L"b", L"d", L"d"}));
    SortApplyStr(source.get(), 2, 1, column({3, 5}), out.get());
    EXPECT_EQ(cellsOf(out), (Texts{L"c", L"", L"d", L"d"}));
}

TEST(VBSortApply, givesTheRowsInAnotherArray)
{
    Guarded<double> source({1, 2, 3, 4, M, 6});
    Guarded<double> order({2, 2, 1});
    Guarded<double> out(6, 0.5);
    VB_SortApply(source, 3, 2, order, out);
    EXPECT_THAT(out.values(), SameBits({2, 2, 1, M, M, 4}));
    Guarded<int> ints({1, 2, 3});
    Guarded<int> intOut(3, 9);
    VB_SortApplyLng(ints, 3, 1, order, intOut);
    EXPECT_EQ(intOut.values(), (Ints{2, 2, 1}));
    BstrArray texts({L"a", L"b", L""});
    BstrArray textOut(3);
    VB_SortApplyStr(texts, 3, 1, order, textOut);
    EXPECT_EQ(textOut.texts(), (Texts{L"b", L"b", L"a"}));
    EXPECT_EQ(textOut.countNew(), 3u);
    EXPECT_EQ(texts.countNew(), 0u);
    EXPECT_TRUE(source.untouched() && order.untouched() && ints.untouched());
}

TEST(VBSortApply, theResultMayBeTheOrderOrTheSource)
{
    Guarded<double> source({10, 20, 30});
    Guarded<double> order({3, 1, 2});
    VB_SortApply(source, 3, 1, order, order);
    EXPECT_THAT(order.values(), SameBits({30, 10, 20}));
    EXPECT_TRUE(source.untouched());
    Guarded<double> again({3, 1, 2});
    VB_SortApply(source, 3, 1, again, source);
    EXPECT_THAT(source.values(), SameBits({30, 10, 20}));
    EXPECT_TRUE(again.untouched());
}

TEST(VBSortApply2, worksInPlace)
{
    Guarded<double> table({1, 2, 3, 4, M, 6});
    Guarded<double> order({3, 1, 1});
    VB_SortApply2(table, 3, 2, order);
    EXPECT_THAT(table.values(), SameBits({3, 1, 1, 6, 4, 4}));
    Guarded<int> ints({1, 2, 3});
    VB_SortApply2Lng(ints, 3, 1, order);
    EXPECT_EQ(ints.values(), (Ints{3, 1, 1}));
    BstrArray texts({L"a", L"b", L"c"});
    VB_SortApply2Str(texts, 3, 1, order);
    EXPECT_EQ(texts.texts(), (Texts{L"c", L"a", L"a"}));
    EXPECT_TRUE(order.untouched());
}

TEST(VBSortApply, noRowsIsNoWork)
{
    Guarded<double> cell({5});
    VB_SortApply(cell, 0, 1, cell, cell);
    VB_SortApply2(cell, 0, 1, cell);
    EXPECT_TRUE(cell.untouched());
}

TEST(SortApply, noCellsNeedNoTable)
{
    const auto order = column({1, 2});
    matrix* none = nullptr;
    SortApply2(none, 0, 3, order);
    SortApply2(none, 2, 0, order);
}

} // namespace
