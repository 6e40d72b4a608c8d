#include "randomisation/contingency_tables.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/tables.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>

namespace vecmat::test {
namespace {

using testing::ElementsAre;

/// The results of a call over tables: R starts with cells of 9, the flags with 7.
struct Cleaned
{
    Owned<matrix> r;
    int rowsLeft = -5;
    int colsLeft = -5;
    Owned<matrixInt> zeroRows;
    Owned<matrixInt> zeroCols;

    Cleaned(const Owned<matrix>& t, int n, int p)
        : r(filled(n, p, 9.0)), zeroRows(new matrixInt(n, 1, 7)), zeroCols(new matrixInt(p, 1, 7))
    {
        CheckForMarginalSums(*t.get(), n, p, *r.get(), rowsLeft, colsLeft, *zeroRows.get(), *zeroCols.get());
    }
};

TEST(CheckForMarginalSums, ClosesUpTheNeighboursOfAnEmptyColumn)
{
    const Cleaned c(byRows({{1, 0, 2}, {3, 0, 4}}), 2, 3);
    EXPECT_EQ(c.colsLeft, 2);
    EXPECT_EQ(c.rowsLeft, 2);
    EXPECT_THAT(cornerOf(c.r, 2, 2), SameBits({1, 3, 2, 4}));
    EXPECT_THAT(cellsOf(c.zeroCols), ElementsAre(7, 1, 7)) << "kept columns keep the caller's flags";
    EXPECT_THAT(cellsOf(c.zeroRows), ElementsAre(7, 7));
}

TEST(CheckForMarginalSums, ClosesUpTheNeighboursOfAnEmptyRow)
{
    const Cleaned c(byRows({{0, 0}, {1, 2}, {0, 0}, {3, 4}}), 4, 2);
    EXPECT_EQ(c.rowsLeft, 2);
    EXPECT_EQ(c.colsLeft, 2);
    EXPECT_THAT(cornerOf(c.r, 2, 2), SameBits({1, 3, 2, 4}));
    EXPECT_THAT(cellsOf(c.zeroRows), ElementsAre(1, 7, 1, 7));
}

TEST(CheckForMarginalSums, LeavesTheCellsAfterTheLinesKept)
{
    // The second column of R is never written; the rows move up as copies.
    const Cleaned c(byRows({{0, 0}, {5, 0}}), 2, 2);
    EXPECT_EQ(c.rowsLeft, 1);
    EXPECT_EQ(c.colsLeft, 1);
    EXPECT_THAT(cellsOf(c.r), SameBits({5, 5, 9, 9}));
}

TEST(CheckForMarginalSums, TakesBothMarginsOnceFromTheInput)
{
    // The first row has a sum of 2 only with its dropped column, whose own sum is below zero.
    const Cleaned c(byRows({{2, 0}, {-3, 1}}), 2, 2);
    EXPECT_THAT(cellsOf(c.zeroCols), ElementsAre(1, 7));
    EXPECT_THAT(cellsOf(c.zeroRows), ElementsAre(7, 1));
    EXPECT_EQ(c.rowsLeft, 1);
    EXPECT_THAT(cornerOf(c.r, 1, 1), SameBits({0}));
}

TEST(CheckForMarginalSums, DropsASumAtTheToleranceAndKeepsOneAbove)
{
    const double above = std::nextafter(1e-12, 1.0);
    const Cleaned c(byRows({{1e-12, above}}), 1, 2);
    EXPECT_THAT(cellsOf(c.zeroCols), ElementsAre(1, 7));
    EXPECT_THAT(cornerOf(c.r, 1, 1), SameBits({above}));
    EXPECT_EQ(c.rowsLeft, 1);
}

TEST(CheckForMarginalSums, SumsWithoutMissingCellsAndDropsALineOfThem)
{
    const Cleaned c(byRows({{M, 1}, {M, M}, {M, 2}}), 3, 2);
    EXPECT_THAT(cellsOf(c.zeroCols), ElementsAre(1, 7));
    EXPECT_THAT(cellsOf(c.zeroRows), ElementsAre(7, 1, 7));
    EXPECT_THAT(cornerOf(c.r, 2, 1), SameBits({1, 2}));
}

TEST(CheckForMarginalSums, KeepsALineWhoseSumIsNaN)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Cleaned c(byRows({{nan, 0}, {1, 0}}), 2, 2);
    EXPECT_EQ(c.colsLeft, 1);
    EXPECT_EQ(c.rowsLeft, 2);
    EXPECT_THAT(cornerOf(c.r, 2, 1), SameBits({nan, 1}));
}

TEST(CheckForMarginalSums, OfAnEmptyTableDropsEveryLine)
{
    const Cleaned allZero(byRows({{0, 0}, {0, 0}}), 2, 2);
    EXPECT_EQ(allZero.colsLeft, 0);
    EXPECT_EQ(allZero.rowsLeft, 0);
    EXPECT_THAT(cellsOf(allZero.r), SameBits({9, 9, 9, 9}));
    const Cleaned noColumns(filled(2, 0, 0.0), 2, 0);
    EXPECT_EQ(noColumns.colsLeft, 0);
    EXPECT_EQ(noColumns.rowsLeft, 0);
    const Cleaned noRows(filled(0, 2, 0.0), 0, 2);
    EXPECT_EQ(noRows.colsLeft, 0);
    EXPECT_EQ(noRows.rowsLeft, 0);
}

TEST(CheckForMarginalSums, WorksOnTheCornerAndInPlace)
{
    auto t = byRows({{1, 0, 2, 8}, {0, 0, 0, 8}, {3, 0, 4, 8}, {8, 8, 8, 8}});
    auto rows = intColumn({0, 0, 0});
    auto cols = intColumn({0, 0, 0});
    int rowsLeft = 0;
    int colsLeft = 0;
    CheckForMarginalSums(*t.get(), 3, 3, *t.get(), rowsLeft, colsLeft, *rows.get(), *cols.get());
    EXPECT_EQ(rowsLeft, 2);
    EXPECT_EQ(colsLeft, 2);
    EXPECT_THAT(cornerOf(t, 2, 2), SameBits({1, 3, 2, 4}));
    EXPECT_EQ(t->vbget(4, 1), 8.0);
    EXPECT_EQ(t->vbget(1, 4), 8.0);
}

TEST(CheckForMarginalSums, DropsWritesOutsideSmallerResults)
{
    auto t = byRows({{1, 2}, {3, 4}});
    auto r = filled(1, 1, 9.0);
    auto none = intTable(0, 1, {});
    int rowsLeft = 0;
    int colsLeft = 0;
    CheckForMarginalSums(*t.get(), 2, 2, *r.get(), rowsLeft, colsLeft, *none.get(), *none.get());
    EXPECT_EQ(rowsLeft, 2);
    EXPECT_EQ(colsLeft, 2);
    EXPECT_THAT(cellsOf(r), SameBits({1}));
}

TEST(CheckForMarginalSums, OverArraysWritesInPlace)
{
    Guarded<double> t = {0, 1, 3, 0, 0, 0, 0, 2, 4}; // rows (0, 0, 0), (1, 0, 2), (3, 0, 4)
    Guarded<double> r(9, 9.0);
    Guarded<int> zeroRows = {7, 7, 7};
    Guarded<int> zeroCols = {7, 7, 7};
    Guarded<int> counts = {-5, -5};
    Cpp_CheckForMarginalSums(t, 3, 3, r, counts.data(), counts.data() + 1, zeroRows, zeroCols);
    EXPECT_TRUE(t.untouched());
    EXPECT_THAT(counts.values(), ElementsAre(2, 2));
    EXPECT_THAT(zeroRows.values(), ElementsAre(1, 7, 7));
    EXPECT_THAT(zeroCols.values(), ElementsAre(7, 1, 7));
    // Three rows each: the two moved up, followed by the third as it was copied.
    EXPECT_THAT(r.values(), SameBits({1, 3, 3, 2, 4, 4, 9, 9, 9}));
}

} // namespace
} // namespace vecmat::test
