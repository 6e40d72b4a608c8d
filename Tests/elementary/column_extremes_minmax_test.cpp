#include "elementary/column_extremes.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/special_values.h"
#include "support/tables.h"

#include <cmath>
#include <functional>

using namespace vecmat::test;

namespace {

struct Results
{
    std::vector<double> min;
    std::vector<double> max;
};

using Mask = std::vector<short>;

/// The contract in its plainest form, over columns of any lengths.
Results expectedFrom(const std::vector<std::vector<double>>& columns, const Mask& mask, short mode)
{
    Results expected;
    for (const auto& column : columns) {
        double min = M;
        double max = M;
        for (std::size_t i = 0; i < column.size(); ++i) {
            const double x = column[i];
            const bool taken = mode == -1 ? x != M : mode == 0 && mask[i] == 0;
            if (taken && (x < min || min == M))
                min = x;
            if (taken && x > max)
                max = x;
        }
        expected.min.push_back(min);
        expected.max.push_back(max);
    }
    return expected;
}

/// Every storage and its flat form over a full table given column after column: all must give the same bits.
Results fullResults(int rows, int cols, const std::vector<double>& cells, Mask mask, short mode)
{
    auto min = filled(cols, 1, 55.0);
    auto max = filled(cols, 1, 66.0);
    M_MinMax(table(rows, cols, cells), rows, cols, min, max, mask.data(), mode);
    const Results results{cellsOf(min), cellsOf(max)};

    auto minOfColumns = filled(cols, 1, 55.0);
    auto maxOfColumns = filled(cols, 1, 66.0);
    Columns<matrix> columns(rows, cols, cells);
    M_MinMaxSPV(columns, rows, cols, minOfColumns, maxOfColumns, mask.data(), mode);
    EXPECT_THAT(cellsOf(minOfColumns), SameBits(results.min));
    EXPECT_THAT(cellsOf(maxOfColumns), SameBits(results.max));

    const auto count = static_cast<std::size_t>(cols);
    Guarded<double> flat(cells);
    Guarded<short> flatMask(mask);
    Guarded<double> flatMin(std::vector<double>(count, 55.0));
    Guarded<double> flatMax(std::vector<double>(count, 66.0));
    VB_M_MinMax(flat, rows, cols, flatMin, flatMax, flatMask, mode);
    EXPECT_THAT(flatMin.values(), SameBits(results.min));
    EXPECT_THAT(flatMax.values(), SameBits(results.max));

    Guarded<double> arrayMin(std::vector<double>(count, 55.0));
    Guarded<double> arrayMax(std::vector<double>(count, 66.0));
    ArrayOfColumns array = numberColumns(rows, cols, cells);
    VB_M_MinMaxSPV(array, rows, cols, arrayMin, arrayMax, flatMask, mode);
    EXPECT_THAT(arrayMin.values(), SameBits(results.min));
    EXPECT_THAT(arrayMax.values(), SameBits(results.max));
    EXPECT_TRUE(flat.untouched() && flatMask.untouched() && array.untouched());
    return results;
}

TEST(MMinMax, ModeMinusOneLeavesMissingCellsOutAndReadsNoMask)
{
    const Results both = fullResults(3, 2, {2, M, 1, M, 7, 9}, {1, 1, 1}, -1);
    EXPECT_THAT(both.min, SameBits({1.0, 7.0}));
    EXPECT_THAT(both.max, SameBits({2.0, 9.0}));
    auto min = filled(1, 1, 55.0);
    auto max = filled(1, 1, 66.0);
    M_MinMax(column({4, M}), 2, 1, min, max, nullptr, -1);
    EXPECT_THAT(cellsOf(min), SameBits({4.0}));
}

TEST(MMinMax, ModeMinusOneTestsForEquality)
{
    const Results both = fullResults(3, 3, {2, belowMissing, 1, -infinity, M, M, M, M, M}, {0, 0, 0}, -1);
    EXPECT_THAT(both.min, SameBits({belowMissing, -infinity, M}));
    EXPECT_THAT(both.max, SameBits({2.0, M, M}));
}

TEST(MMinMax, ModeZeroLeavesMaskedRowsOutAndTakesMissingCells)
{
    const Results both = fullResults(3, 2, {2, 9, 1, 5, -9, 7}, {0, 1, 0}, 0);
    EXPECT_THAT(both.min, SameBits({1.0, 5.0}));
    EXPECT_THAT(both.max, SameBits({2.0, 7.0}));
    EXPECT_THAT(fullResults(3, 1, {3, 4, 5}, {-1, 2, 0}, 0).min, SameBits({5.0}));
    EXPECT_THAT(fullResults(2, 1, {3, 4}, {-1, 2}, 0).max, SameBits({M}));
}

TEST(MMinMax, MissingMinimumGivesWayToALaterCell)
{
    const Results both = fullResults(2, 2, {5, M, M, 5}, {0, 0}, 0);
    EXPECT_THAT(both.min, SameBits({M, 5.0}));
    EXPECT_THAT(both.max, SameBits({5.0, 5.0}));
    EXPECT_THAT(fullResults(3, 1, {5, M, 7}, {0, 0, 0}, 0).min, SameBits({7.0}));
    EXPECT_THAT(fullResults(3, 1, {5, belowMissing, 7}, {0, 0, 0}, 0).min, SameBits({belowMissing}));
}

TEST(MMinMax, OtherModesLeaveEverythingOut)
{
    for (short mode : {1, 2, -2, 256}) {
        const Results both = fullResults(2, 2, {1, 2, 3, 4}, {0, 0}, mode);
        EXPECT_THAT(both.min, SameBits({M, M}));
        EXPECT_THAT(both.max, SameBits({M, M}));
    }
}

TEST(MMinMax, NaNTakesTheMinimumFromTheStart)
{
    for (short mode : {-1, 0}) {
        const Results both = fullResults(3, 2, {notANumber, 4, 3, 4, notANumber, 3}, {0, 0, 0}, mode);
        EXPECT_THAT(both.min, SameBits({notANumber, 3.0}));
        EXPECT_THAT(both.max, SameBits({4.0, 4.0}));
    }
}

TEST(MMinMax, WorksOnTheCornerAndReadsMinusOneOutside)
{
    auto min = filled(3, 1, 55.0);
    auto max = filled(3, 1, 66.0);
    M_MinMax(byColumns({{5, 4, -99}, {7, 8, 99}}), 2, 2, min, max, nullptr, -1);
    EXPECT_THAT(cellsOf(min), SameBits({4.0, 7.0, 55.0}));
    EXPECT_THAT(cellsOf(max), SameBits({5.0, 8.0, 66.0}));
    M_MinMax(byColumns({{5, 4}, {7, 8}}), 3, 3, min, max, nullptr, -1);
    EXPECT_THAT(cellsOf(min), SameBits({4.0, -1.0, -1.0}));
    EXPECT_THAT(cellsOf(max), SameBits({7.0, 8.0, -1.0}));
}

TEST(MMinMax, ColumnOfAnArrayDoesNotSlide)
{
    Columns<matrix> columns({{5, 4}, {7, 8}});
    auto min = filled(2, 1, 55.0);
    auto max = filled(2, 1, 66.0);
    M_MinMaxSPV(columns, 3, 2, min, max, nullptr, -1);
    EXPECT_THAT(cellsOf(min), SameBits({-1.0, -1.0}));
    EXPECT_THAT(cellsOf(max), SameBits({5.0, 8.0}));
}

TEST(MMinMax, ResultsThatDoNotFitAreDropped)
{
    auto min = filled(1, 1, 55.0);
    auto max = filled(2, 1, 66.0);
    M_MinMax(byColumns({{5, 4}, {7, 8}}), 2, 2, min, max, nullptr, -1);
    EXPECT_THAT(cellsOf(min), SameBits({4.0}));
    EXPECT_THAT(cellsOf(max), SameBits({5.0, 8.0}));
}

TEST(MMinMax, NoRowsOrColumns)
{
    for (short mode : {-1, 0}) {
        const Results none = fullResults(0, 2, {}, {}, mode);
        EXPECT_THAT(none.min, SameBits({M, M}));
        EXPECT_THAT(none.max, SameBits({M, M}));
    }
    Guarded<double> out({55});
    VB_M_MinMax(nullptr, 2, 0, out, out, nullptr, -1);
    VB_M_MinMax(nullptr, 2, -1, out, out, nullptr, -1);
    EXPECT_TRUE(out.untouched());
}

// ---- triangle -------------------------------------------------------------------------------------------------------

TEST(MMinMaxSPVT, ColumnJHasJCellsLess)
{
    Columns<matrix> triangle({{5, M, 3}, {9, 8}, {7}});
    auto min = filled(3, 1, 55.0);
    auto max = filled(3, 1, 66.0);
    M_MinMaxSPV_T(triangle, 3, 3, min, max, nullptr, -1);
    EXPECT_THAT(cellsOf(min), SameBits({3.0, 8.0, 7.0}));
    EXPECT_THAT(cellsOf(max), SameBits({5.0, 9.0, 7.0}));
}

TEST(MMinMaxSPVT, LooksAtNoCellBeyondItsLength)
{
    // Longer columns than a triangle has: cells after the first rows - j are not read.
    Columns<matrix> columns({{5, 4, 3, -50}, {9, 8, -50, 50}, {7, 50}});
    auto min = filled(3, 1, 55.0);
    auto max = filled(3, 1, 66.0);
    short mask[] = {0, 0, 0};
    for (short mode : {-1, 0}) {
        M_MinMaxSPV_T(columns, 3, 3, min, max, mask, mode);
        EXPECT_THAT(cellsOf(min), SameBits({3.0, 8.0, 7.0}));
        EXPECT_THAT(cellsOf(max), SameBits({5.0, 9.0, 7.0}));
    }
}

TEST(MMinMaxSPVT, MaskGoesWithTheCellsOfEachColumn)
{
    Columns<matrix> triangle({{5, 4, 3}, {9, 8}, {7}});
    auto min = filled(3, 1, 55.0);
    auto max = filled(3, 1, 66.0);
    short mask[] = {1, 0, 0};
    M_MinMaxSPV_T(triangle, 3, 3, min, max, mask, 0);
    EXPECT_THAT(cellsOf(min), SameBits({3.0, 8.0, M}));
    EXPECT_THAT(cellsOf(max), SameBits({4.0, 8.0, M}));
}

TEST(MMinMaxSPVT, MoreColumnsThanRowsHaveNoCells)
{
    Columns<matrix> triangle({{5, 4}, {9}, {100}});
    auto min = filled(3, 1, 55.0);
    auto max = filled(3, 1, 66.0);
    M_MinMaxSPV_T(triangle, 2, 3, min, max, nullptr, -1);
    EXPECT_THAT(cellsOf(min), SameBits({4.0, 9.0, M}));
    EXPECT_THAT(cellsOf(max), SameBits({5.0, 9.0, M}));
    M_MinMaxSPV_T(triangle, lowestInt, 3, min, max, nullptr, -1);
    EXPECT_THAT(cellsOf(min), SameBits({M, M, M}));
}

TEST(MMinMaxSPVT, CellsBeyondAColumnReadMinusOne)
{
    Columns<matrix> triangle({{5, 4}, {9}, {7}});
    auto min = filled(3, 1, 55.0);
    auto max = filled(3, 1, 66.0);
    M_MinMaxSPV_T(triangle, 3, 3, min, max, nullptr, -1);
    EXPECT_THAT(cellsOf(min), SameBits({-1.0, -1.0, 7.0}));
    EXPECT_THAT(cellsOf(max), SameBits({5.0, 9.0, 7.0}));
}

TEST(VBMMinMaxSPVT, LoadsATriangle)
{
    ArrayOfColumns array(std::vector<std::vector<double>>{{5, M, 3}, {9, 8}, {7}});
    Guarded<double> min({55, 55, 55});
    Guarded<double> max({66, 66, 66});
    Guarded<short> mask({0, 0, 1});
    VB_M_MinMaxSPV_T(array, 3, 3, min, max, mask, -1);
    EXPECT_THAT(min.values(), SameBits({3.0, 8.0, 7.0}));
    EXPECT_THAT(max.values(), SameBits({5.0, 9.0, 7.0}));
    VB_M_MinMaxSPV_T(array, 3, 3, min, max, mask, 0);
    EXPECT_THAT(min.values(), SameBits({M, 8.0, 7.0}));
    EXPECT_THAT(max.values(), SameBits({5.0, 9.0, 7.0}));
    VB_M_MinMaxSPV_T(array, 3, 2, min, max, mask, 1);
    EXPECT_THAT(min.values(), SameBits({M, M, 7.0}));
    EXPECT_TRUE(array.untouched() && mask.untouched());
}

// ---- all storages against the plain loop ----------------------------------------------------------------------------

TEST(MMinMax, AgreesWithThePlainLoop)
{
    RandomData data(2207);
    SCOPED_TRACE(data);
    for (int round = 0; round < 40; ++round) {
        const int rows = data.integer(1, 7);
        const int cols = data.integer(1, 5);
        const auto cells =
            data.withSpecials(data.wholes(static_cast<std::size_t>(rows * cols), -3, 3), data.uniform(0.0, 0.5));
        const auto mask = data.mask(static_cast<std::size_t>(rows), 0.3);
        std::vector<std::vector<double>> columns;
        std::vector<std::vector<double>> triangle;
        for (int j = 0; j < cols; ++j) {
            const auto start = cells.begin() + rows * j;
            columns.emplace_back(start, start + rows);
            triangle.emplace_back(start, start + std::max(rows - j, 0));
        }
        for (short mode : {-1, 0, 1}) {
            const Results full = fullResults(rows, cols, cells, mask, mode);
            const Results expected = expectedFrom(columns, mask, mode);
            EXPECT_THAT(full.min, SameBits(expected.min));
            EXPECT_THAT(full.max, SameBits(expected.max));

            const auto count = static_cast<std::size_t>(cols);
            Guarded<double> min(std::vector<double>(count, 55.0));
            Guarded<double> max(std::vector<double>(count, 66.0));
            Guarded<short> entries(mask);
            ArrayOfColumns array(triangle);
            VB_M_MinMaxSPV_T(array, rows, cols, min, max, entries, mode);
            const Results expectedTriangle = expectedFrom(triangle, mask, mode);
            EXPECT_THAT(min.values(), SameBits(expectedTriangle.min));
            EXPECT_THAT(max.values(), SameBits(expectedTriangle.max));
            EXPECT_TRUE(array.untouched());
        }
    }
}

} // namespace
