// The accessors over every storage, plain and checked, and the exclusion mask.
#include "access/cells.h"
#include "base/detail/masks.h"
#include "support/bits.h"
#include "support/tables.h"

#include <limits>
#include <string>
#include <type_traits>
#include <vector>

namespace vecmat::test {
namespace {

using testing::ElementsAre;

constexpr int lowestInt = std::numeric_limits<int>::min();
constexpr int highestInt = std::numeric_limits<int>::max();

/// Whether a loop over these blocks is given the plain cells.
template <class... Checked>
bool runsOnPlainCells(Block<Checked>... blocks)
{
    return onBlocks(
        [](auto... given) {
            return (std::is_same_v<decltype(given), decltype(std::declval<Checked>().plain())> && ...);
        },
        blocks...);
}

/// The sum over a block as a loop would form it.
template <class Checked>
double sumOver(Checked checked, int rows, int cols)
{
    return onBlocks(
        [&](auto x) {
            double sum = 0.0;
            for (int j = 0; j < cols; ++j)
                for (int i = 0; i < rows; ++i)
                    sum += x.get(i, j);
            return sum;
        },
        block(checked, rows, cols));
}

// ---- one table ------------------------------------------------------------------------------------------------------

TEST(TableCells, ReadAndWriteAsTheTableDoes)
{
    auto t = byRows({{1, 2, 3}, {4, 5, 6}});
    const auto x = cells(t.get());
    for (int i = -3; i < 6; ++i)
        for (int j = -3; j < 6; ++j)
            EXPECT_THAT(x.get(i, j), SameBits(t->vbget(i + 1, j + 1))) << i << ", " << j;
    x.set(2, 0, 9); // slides into the next column
    x.set(0, 3, 9);
    x.set(-1, 0, 9);
    x.set(lowestInt, highestInt, 9);
    EXPECT_THAT(cellsOf(t), SameBits({1, 4, 9, 5, 3, 6}));
}

TEST(TableCells, OfIntsAndStringsHaveTheirOwnOutside)
{
    auto ints = intColumn({1, 2});
    EXPECT_EQ(cells(ints.get()).get(1, 0), 2);
    EXPECT_EQ(cells(ints.get()).get(2, 0), -1);
    auto strings = stringColumn({L"a", L"b"});
    const auto x = cells(strings.get());
    EXPECT_EQ(x.get(1, 0), L"b");
    EXPECT_EQ(x.get(0, 1), L"");
    EXPECT_EQ(&x.get(1, 0), &strings->X[1]) << "strings are read without a copy";
    x.set(0, 0, L"c");
    x.set(5, 0, L"d");
    EXPECT_THAT(cellsOf(strings), ElementsAre(L"c", L"b"));
}

TEST(TableCells, CoverBlocksThatEndWithinTheTable)
{
    auto t = filled(2, 3, 0);
    const auto x = cells(t.get());
    EXPECT_TRUE(x.covers(2, 3));
    EXPECT_TRUE(x.covers(1, 3));
    EXPECT_TRUE(x.covers(4, 2)) << "rows run over, but not out of the block";
    EXPECT_TRUE(x.covers(6, 1));
    EXPECT_FALSE(x.covers(3, 3));
    EXPECT_FALSE(x.covers(7, 1));
    EXPECT_FALSE(x.covers(1, 4));
    EXPECT_FALSE(x.covers(highestInt, highestInt));
    EXPECT_TRUE(x.covers(0, 100));
    EXPECT_TRUE(x.covers(100, 0));
    EXPECT_TRUE(x.covers(-1, -1));
    EXPECT_FALSE(cells(filled(-2, 3, 0).get()).covers(1, 1));
    EXPECT_FALSE(cells(filled(0, 3, 0).get()).covers(1, 3));
}

TEST(TableCells, PlainCellsKeepTheStrideOfTheTable)
{
    auto t = byRows({{1, 2}, {3, 4}, {5, 6}});
    const auto plain = cells(t.get()).plain();
    EXPECT_EQ(plain.column(1), t->X + 3);
    EXPECT_THAT(plain.get(1, 1), SameBits(4));
    plain.set(4, 0, 9.0);
    EXPECT_THAT(cellsOf(t), SameBits({1, 3, 5, 2, 9, 6}));
}

TEST(TableCells, NullTableIsPassedOverWhereNoCellIsVisited)
{
    matrix* const none = nullptr;
    EXPECT_TRUE(runsOnPlainCells(block(cells(none), 0, 3), block(linear(none), 0)));
    EXPECT_THAT(sumOver(cells(none), 0, 3), SameBits(0));
}

// ---- a vector -------------------------------------------------------------------------------------------------------

TEST(VectorCells, WalkATableOfAnyShapeInLinearOrder)
{
    auto t = byRows({{1, 3}, {2, 4}});
    const auto x = linear(t.get());
    EXPECT_THAT(x.get(3), SameBits(4));
    EXPECT_THAT(x.get(4), SameBits(-1));
    EXPECT_THAT(x.get(-1), SameBits(-1));
    x.set(2, M);
    x.set(4, 9);
    x.set(-1, 9);
    EXPECT_THAT(cellsOf(t), SameBits({1, 2, M, 4}));
    EXPECT_TRUE(x.covers(4));
    EXPECT_TRUE(x.covers(-1));
    EXPECT_FALSE(x.covers(5));
    EXPECT_EQ(x.plain().data(), t->X);
    x.plain().set(0, 7.0);
    EXPECT_THAT(x.plain().get(0), SameBits(7));
}

// ---- an array of columns --------------------------------------------------------------------------------------------

TEST(ColumnCells, NeverSlideIntoTheNextColumn)
{
    TableColumns t(2, 2, {1, 2, 3, 4});
    const auto x = cells(t.get());
    EXPECT_THAT(x.get(1, 1), SameBits(4));
    EXPECT_THAT(x.get(2, 0), SameBits(-1)) << "a flat table would give 3";
    EXPECT_THAT(x.get(-1, 1), SameBits(-1)) << "a flat table would give 2";
    EXPECT_THAT(x.get(0, -1), SameBits(-1));
    x.set(1, 0, M);
    x.set(2, 0, 9);
    x.set(0, -1, 9);
    EXPECT_THAT(t.cells(), SameBits({1, M, 3, 4}));
}

TEST(ColumnCells, TakeEachTableInLinearOrder)
{
    auto wide = byRows({{1, 3}, {2, 4}});
    matrix* columns[] = {wide.get()};
    EXPECT_THAT(cells(columns).get(3, 0), SameBits(4));
}

TEST(ColumnCells, CoverBlocksThatEveryColumnHolds)
{
    TableColumns t(std::vector<std::vector<double>>{{1, 2, 3}, {4, 5}});
    const auto x = cells(t.get());
    EXPECT_TRUE(x.covers(2, 2));
    EXPECT_TRUE(x.covers(3, 1));
    EXPECT_FALSE(x.covers(3, 2));
    EXPECT_TRUE(x.covers(0, 2));
    EXPECT_TRUE(x.covers(2, 0));
    EXPECT_TRUE(x.covers(-1, 5));
    EXPECT_EQ(x.plain().column(1), t.get()[1]->X);
    x.plain().set(1, 1, 9.0);
    EXPECT_THAT(t.cells(), SameBits({1, 2, 3, 4, 9}));
    matrix* withNull[] = {t.get()[0], nullptr};
    EXPECT_FALSE(cells(withNull).covers(1, 2));
    EXPECT_TRUE(cells(withNull).covers(1, 1));
}

TEST(ColumnCells, OfStrings)
{
    StringColumns t(2, 2, {L"a", L"b", L"c", L"d"});
    const auto x = cells(t.get());
    EXPECT_EQ(x.get(1, 1), L"d");
    EXPECT_EQ(x.get(2, 0), L"");
    EXPECT_EQ(x.get(0, -1), L"");
    x.set(0, 1, std::wstring(L"e"));
    EXPECT_THAT(t.cells(), ElementsAre(L"a", L"b", L"e", L"d"));
}

// ---- a triangle -----------------------------------------------------------------------------------------------------

const std::vector<double> symmetric = {1, 2, 3, 2, 4, 5, 3, 5, 6};

TEST(TriangleCells, HoldASymmetricTable)
{
    TableColumns t = test::triangle(3, symmetric);
    const auto x = vecmat::triangle(t.get());
    const auto plain = x.plain();
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j) {
            const double expected = symmetric[static_cast<std::size_t>(i + 3 * j)];
            EXPECT_THAT(x.get(i, j), SameBits(expected)) << i << ", " << j;
            EXPECT_THAT(plain.get(i, j), SameBits(expected)) << i << ", " << j;
        }
    x.set(0, 2, 7);
    plain.set(1, 2, 8.0);
    EXPECT_THAT(x.get(2, 0), SameBits(7));
    EXPECT_THAT(t.column(0), SameBits({1, 2, 7}));
    EXPECT_THAT(t.column(1), SameBits({4, 8}));
}

TEST(TriangleCells, OutsideReadMinusOne)
{
    TableColumns t = test::triangle(3, symmetric);
    const auto x = vecmat::triangle(t.get());
    for (const auto& [i, j] : std::vector<std::pair<int, int>>{{3, 0}, {0, 3}, {-1, 0}, {0, -1}, {-1, highestInt}}) {
        EXPECT_THAT(x.get(i, j), SameBits(-1)) << i << ", " << j;
        x.set(i, j, 9);
    }
    EXPECT_THAT(t.cells(), SameBits({1, 2, 3, 4, 5, 6}));
}

TEST(TriangleCells, CoverBlocksOfEitherOrientation)
{
    TableColumns t = test::triangle(3, symmetric);
    const auto x = vecmat::triangle(t.get());
    EXPECT_TRUE(x.covers(3, 3));
    EXPECT_TRUE(x.covers(3, 1));
    EXPECT_TRUE(x.covers(1, 3));
    EXPECT_FALSE(x.covers(4, 1));
    EXPECT_FALSE(x.covers(1, 4));
    EXPECT_FALSE(x.covers(4, 3));
    EXPECT_TRUE(x.covers(0, 9));
    matrix* withNull[] = {t.get()[0], nullptr, t.get()[2]};
    EXPECT_FALSE(vecmat::triangle(withNull).covers(2, 2));
    EXPECT_TRUE(vecmat::triangle(withNull).covers(3, 1));
}

// ---- one question before the loop -----------------------------------------------------------------------------------

TEST(OnBlocks, RunsOnPlainCellsWhereEveryBlockIsInside)
{
    auto t = byRows({{1, 2}, {3, 4}});
    auto v = column({1, 2});
    TableColumns c(2, 2, {1, 2, 3, 4});
    EXPECT_TRUE(runsOnPlainCells(block(cells(t.get()), 2, 2), block(linear(v.get()), 2), block(cells(c.get()), 2, 2)));
    EXPECT_FALSE(runsOnPlainCells(block(cells(t.get()), 2, 3), block(linear(v.get()), 2), block(cells(c.get()), 2, 2)));
    EXPECT_FALSE(runsOnPlainCells(block(cells(t.get()), 2, 2), block(linear(v.get()), 3), block(cells(c.get()), 2, 2)));
    EXPECT_FALSE(runsOnPlainCells(block(cells(t.get()), 2, 2), block(linear(v.get()), 2), block(cells(c.get()), 3, 2)));
}

TEST(OnBlocks, BothKindsGiveTheSameResult)
{
    auto t = byRows({{1, 2, 3}, {4, 5, 6}});
    EXPECT_THAT(sumOver(cells(t.get()), 2, 3), SameBits(21));
    EXPECT_THAT(sumOver(cells(t.get()), 1, 3), SameBits(6));
    EXPECT_THAT(sumOver(cells(t.get()), 3, 2), SameBits(1 + 4 + 2 + 2 + 5 + 3)); // slides, still inside
    EXPECT_THAT(sumOver(cells(t.get()), 2, 4), SameBits(21 - 2));                // the fourth column reads -1.0
    EXPECT_THAT(sumOver(cells(t.get()), 3, 3), SameBits(1 + 4 + 2 + 2 + 5 + 3 + 3 + 6 - 1));
    TableColumns c(2, 2, {1, 2, 3, 4});
    EXPECT_THAT(sumOver(cells(c.get()), 3, 2), SameBits(10 - 2));
    TableColumns s = test::triangle(3, symmetric);
    EXPECT_THAT(sumOver(vecmat::triangle(s.get()), 3, 3), SameBits(31));
    EXPECT_THAT(sumOver(vecmat::triangle(s.get()), 4, 3), SameBits(31 - 3));
}

// ---- masks ----------------------------------------------------------------------------------------------------------

TEST(Mask, KeepsZeroAndDropsAnythingElse)
{
    const short entries[] = {0, -1, 1, 5, -32768, 0};
    const Mask mask(entries);
    const std::vector<bool> kept = {mask.keeps(0), mask.keeps(1), mask.keeps(2),
                                    mask.keeps(3), mask.keeps(4), mask.keeps(5)};
    EXPECT_THAT(kept, ElementsAre(true, false, false, false, false, true));
    EXPECT_TRUE(Mask(nullptr).keeps(3));
}

} // namespace
} // namespace vecmat::test
