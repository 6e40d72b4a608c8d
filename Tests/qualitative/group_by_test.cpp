#include "qualitative/group_by.h"

#include "descriptive/quantiles.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/tables.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vecmat::test {
namespace {

using Doubles = std::vector<double>;
using Ints = std::vector<int>;

const double NaN = std::numeric_limits<double>::quiet_NaN();
const double infinity = std::numeric_limits<double>::infinity();

struct Groups
{
    int count = -7;
    Doubles cells; // of the whole table, column after column
};

/// The groups of a table whose columns are all quantities unless `colTypes` says otherwise.
Groups grouped(const Owned<matrix>& data, int keyCol, int aggregate, Ints colTypes = {})
{
    colTypes.resize(static_cast<std::size_t>(data->nCols), 0);
    const Doubles before = cellsOf(data);
    auto out = filled(data->nRows, data->nCols, 99.0);
    Groups result;
    M_GroupBy(data, data->nRows, data->nCols, intColumn(colTypes), keyCol, aggregate, &result.count, out);
    result.cells = cellsOf(out);
    EXPECT_THAT(cellsOf(data), SameBits(before)) << "the data is not written";

    Guarded<double> flatData(before);
    Guarded<int> flatTypes(colTypes);
    Guarded<double> flat(before.size(), 99.0);
    int count = -7;
    VB_M_GroupBy(flatData, data->nRows, data->nCols, flatTypes, keyCol, aggregate, &count, flat);
    EXPECT_EQ(count, result.count);
    EXPECT_THAT(flat.values(), SameBits(result.cells));
    EXPECT_TRUE(flatData.untouched() && flatTypes.untouched());
    return result;
}

/// The aggregate of one group of cells.
double aggregateOf(const Doubles& cells, int aggregate, int colType = 0)
{
    Doubles both(cells.size(), 1.0);
    both.insert(both.end(), cells.begin(), cells.end());
    const Groups groups = grouped(table(static_cast<int>(cells.size()), 2, both), 1, aggregate, {0, colType});
    EXPECT_EQ(groups.count, 1);
    return groups.cells.at(cells.size());
}

TEST(GroupBy, GroupsComeByAscendingKeyAndRowsStayInOrderWithin)
{
    const auto data = byRows({{10, 3}, {20, 1}, {30, 2}, {40, 1}, {50, 3}});
    const Groups sums = grouped(data, 2, 0);
    EXPECT_EQ(sums.count, 3);
    // Below the groups remain the rows that the sort left there: 10 and 50 of key 3.
    EXPECT_THAT(sums.cells, SameBits({60, 30, 60, 10, 50, 1, 2, 3, 3, 3}));
    const Groups firsts = grouped(data, 2, 3);
    EXPECT_THAT(firsts.cells, SameBits({20, 30, 10, 10, 50, 1, 2, 3, 3, 3}));
}

TEST(GroupBy, EveryAggregate)
{
    const Doubles cells = {3, 8, M, 1, 8};
    EXPECT_THAT(aggregateOf(cells, 0), SameBits(20));
    EXPECT_THAT(aggregateOf(cells, 1), SameBits(5));
    EXPECT_THAT(aggregateOf(cells, 2), SameBits(3)) << "the missing cell is the lowest of five";
    EXPECT_THAT(aggregateOf(cells, 3), SameBits(3));
    EXPECT_THAT(aggregateOf(cells, 4), SameBits(-1.0));
    EXPECT_THAT(aggregateOf(cells, 5), SameBits(1));
    EXPECT_THAT(aggregateOf(cells, 6), SameBits(8));
    EXPECT_THAT(aggregateOf(cells, 7), SameBits(7));
    EXPECT_THAT(aggregateOf({M, 3}, 3), SameBits(M)) << "missing or not";
}

TEST(GroupBy, MedianIsTheQuantile)
{
    for (const Doubles& cells : {Doubles{1, 4}, Doubles{4, 1}, Doubles{0.1, 0.3}, Doubles{5, 5}, Doubles{M, 4}}) {
        const double expected = V_Quantile(column(cells), static_cast<int>(cells.size()), 0.5);
        EXPECT_THAT(aggregateOf(cells, 2), SameBits(expected));
    }
    EXPECT_THAT(aggregateOf({1, 4}, 2), SameBits(2.5));
    EXPECT_THAT(aggregateOf({M, 4}, 2), SameBits(0.5 * M + 0.5 * 4)) << "counted, where the mean leaves it out";
    EXPECT_THAT(aggregateOf({M, 4}, 1), SameBits(4));
}

TEST(GroupBy, NothingButMissingCells)
{
    const Doubles cells = {M, M, M};
    EXPECT_THAT(aggregateOf(cells, 0), SameBits(0.0));
    for (const int aggregate : {1, 2, 3, 5, 6, 7})
        EXPECT_THAT(aggregateOf(cells, aggregate), SameBits(M)) << aggregate;
}

TEST(GroupBy, RangeNeedsAMaximumAboveTheMissingValue)
{
    const double below = std::nextafter(M, -infinity);
    EXPECT_THAT(aggregateOf({below, below}, 6), SameBits(below)) << "not the missing value: a maximum";
    EXPECT_THAT(aggregateOf({below, below}, 7), SameBits(M));
    EXPECT_THAT(aggregateOf({-infinity, -infinity}, 7), SameBits(M)) << "not the NaN of the difference";
    EXPECT_THAT(aggregateOf({NaN, 2, 5}, 7), SameBits(M)) << "a NaN that comes first stays the maximum";
    EXPECT_THAT(aggregateOf({2, NaN, 5}, 7), SameBits(3));
    EXPECT_THAT(aggregateOf({4, 4}, 7), SameBits(0.0));
    EXPECT_THAT(aggregateOf({1, infinity}, 7), SameBits(infinity));
}

// ---- the row after the group ----------------------------------------------------------------------------------------

TEST(GroupBy, RowAfterIsTheFirstOfTheNextGroup)
{
    const Groups groups = grouped(byRows({{1, 10}, {1, 11}, {2, 20}, {2, 21}, {3, 30}}), 1, 4);
    EXPECT_EQ(groups.count, 3);
    EXPECT_THAT(groups.cells, SameBits({1, 2, 3, 2, 3, 20, 30, -1, 21, 30}));
}

TEST(GroupBy, RowAfterTheOnlyGroupIsTheTopOfTheNextColumn)
{
    const Groups groups = grouped(byRows({{10, 20, 30, 7}, {11, 21, 31, 7}}), 4, 4);
    EXPECT_EQ(groups.count, 1);
    EXPECT_THAT(groups.cells, SameBits({20, 11, 30, 21, 7, 31, 7, 7})) << "the key lies after the third column";
    EXPECT_THAT(grouped(byRows({{7, 10}, {7, 11}}), 1, 4).cells, SameBits({7, 7, -1, 11})) << "after the table";
}

TEST(GroupBy, RowAfterTheLastGroupReadsTheNextColumnAsItIsThen)
{
    // The top of the third column is 30 after the sort, and 31 once the first group is written.
    const Groups groups = grouped(byRows({{1, 20, 30}, {2, 21, 31}}), 1, 4);
    EXPECT_EQ(groups.count, 2);
    EXPECT_THAT(groups.cells, SameBits({1, 2, 21, 31, 31, -1}));
}

TEST(GroupBy, RowAfterTheLastGroupInATallerTableIsTheCellBelow)
{
    auto out = byColumns({{0, 0, 77}, {0, 0, 88}});
    int count = -7;
    M_GroupBy(byRows({{1, 10}, {1, 11}}), 2, 2, intColumn({0, 0}), 1, 4, &count, out);
    EXPECT_EQ(count, 1);
    EXPECT_THAT(cellsOf(out), SameBits({1, 1, 77, 88, 11, 88}));
}

// ---- keys -----------------------------------------------------------------------------------------------------------

TEST(GroupBy, MissingKeysAreOneGroupAndComeFirst)
{
    const Groups groups = grouped(byRows({{2, 1}, {M, 2}, {-5, 4}, {M, 8}}), 1, 0);
    EXPECT_EQ(groups.count, 3);
    EXPECT_THAT(groups.cells, SameBits({M, -5, 2, 2, 10, 4, 1, 1}));
    const double below = std::nextafter(M, -infinity);
    EXPECT_EQ(grouped(byRows({{M, 1}, {below, 2}}), 1, 0).count, 2) << "keys are compared, not tested for missing";
}

TEST(GroupBy, ZerosOfBothSignsAreOneKey)
{
    const Groups groups = grouped(byRows({{0.0, 1}, {-0.0, 2}, {0.0, 4}}), 1, 0);
    EXPECT_EQ(groups.count, 1);
    EXPECT_THAT(groups.cells, SameBits({0.0, -0.0, 0.0, 7, 2, 4}));
    EXPECT_THAT(grouped(byRows({{-0.0, 1}, {0.0, 2}}), 1, 0).cells, SameBits({-0.0, 0.0, 3, 2}));
}

TEST(GroupBy, ANaNKeyIsAGroupOfItsOwn)
{
    const Groups groups = grouped(byRows({{NaN, 1}, {NaN, 2}, {NaN, 4}}), 1, 0);
    EXPECT_EQ(groups.count, 3);
    Doubles values(groups.cells.begin() + 3, groups.cells.end());
    std::sort(values.begin(), values.end());
    EXPECT_THAT(values, SameBits({1, 2, 4}));
}

TEST(GroupBy, AKeyColumnOutsideTheTableMakesOneGroup)
{
    const auto data = byRows({{1, 10}, {2, 20}});
    for (const int keyCol : {0, 3, -4}) {
        const Groups groups = grouped(data, keyCol, 0);
        EXPECT_EQ(groups.count, 1) << "every key reads -1";
        EXPECT_THAT(groups.cells, SameBits({3, 2, 30, 20})) << "every column is aggregated";
    }
}

// ---- qualitative columns --------------------------------------------------------------------------------------------

TEST(GroupBy, AQualitativeColumnGetsItsModeWhateverTheAggregate)
{
    for (int aggregate = -1; aggregate <= 9; ++aggregate)
        for (const int type : {1, -1, 7}) {
            EXPECT_THAT(aggregateOf({2, 1, 2, M, 0}, aggregate, type), SameBits(2));
            EXPECT_THAT(aggregateOf({2, 1, 2, 1}, aggregate, type), SameBits(1)) << "the lowest of equals";
        }
}

TEST(GroupBy, ModesCountCodesBelowTheSizeOfTheGroup)
{
    EXPECT_THAT(aggregateOf({5, 5, 1}, 0, 1), SameBits(1)) << "5 is no code among three rows";
    EXPECT_THAT(aggregateOf({5, 5}, 0, 1), SameBits(0));
    EXPECT_THAT(aggregateOf({3}, 0, 1), SameBits(0)) << "one row has no mode of its own";
}

TEST(GroupBy, ColumnsBeyondTheTypesAreQualitative)
{
    auto out = filled(3, 3, 0.0);
    int count = -7;
    M_GroupBy(byRows({{1, 2, 2}, {1, 2, 2}, {1, 1, 1}}), 3, 3, intColumn({0, 0}), 1, 0, &count, out);
    EXPECT_EQ(count, 1);
    EXPECT_THAT(cellsOf(out), SameBits({1, 1, 1, 5, 2, 1, 2, 2, 1})) << "a sum, and a mode";
}

TEST(GroupBy, TheKeyColumnIsNeverAggregated)
{
    EXPECT_THAT(grouped(byRows({{4, 1}, {4, 2}}), 1, 0, {1, 0}).cells, SameBits({4, 4, 3, 2}));
}

TEST(GroupBy, OtherCodesWriteNothing)
{
    for (const int aggregate : {8, 9, 1000000, -1}) {
        const Groups groups = grouped(byRows({{2, 10}, {1, 20}, {2, 30}, {1, 40}}), 1, aggregate);
        EXPECT_EQ(groups.count, 2);
        EXPECT_THAT(groups.cells, SameBits({1, 2, 2, 2, 20, 40, 10, 30})) << "keys move up, the rest is as sorted";
    }
}

// ---- dimensions -----------------------------------------------------------------------------------------------------

TEST(GroupBy, OneRow)
{
    EXPECT_EQ(grouped(byRows({{3, 5, M}}), 1, 3).count, 1);
    EXPECT_THAT(grouped(byRows({{3, 5, M}}), 1, 3).cells, SameBits({3, 5, M}));
    EXPECT_THAT(grouped(byRows({{3, 5, M}}), 1, 0).cells, SameBits({3, 5, 0}));
    EXPECT_THAT(grouped(byRows({{3, 5, M}}), 1, 7).cells, SameBits({3, 0, M}));
    EXPECT_THAT(grouped(byRows({{3, 5, M}}), 1, 4).cells, SameBits({3, M, -1}));
}

TEST(GroupBy, NoRows)
{
    for (const int nRows : {0, -1}) {
        auto out = byRows({{8, 9}});
        int count = -7;
        M_GroupBy(byRows({{1, 2}}), nRows, 2, intColumn({0, 0}), 1, 0, &count, out);
        EXPECT_EQ(count, 0);
        EXPECT_THAT(cellsOf(out), SameBits({8, 9}));
        Guarded<double> nothing(Doubles{});
        Guarded<int> types = {0, 0};
        count = -7;
        VB_M_GroupBy(nothing, nRows, 2, types, 1, 0, &count, nothing);
        EXPECT_EQ(count, 0);
    }
}

TEST(GroupBy, NoArraysWhereThereAreNoRows)
{
    int count = -7;
    VB_M_GroupBy(nullptr, 0, 2, nullptr, 1, 0, &count, nullptr);
    EXPECT_EQ(count, 0);
    count = -7;
    VB_M_GroupByW(nullptr, 0, 2, nullptr, 1, 0, &count, nullptr, nullptr);
    EXPECT_EQ(count, 0);
}

TEST(GroupBy, OnlyTheKeyColumn)
{
    const Groups groups = grouped(column({2, 1, 2}), 1, 0);
    EXPECT_EQ(groups.count, 2);
    EXPECT_THAT(groups.cells, SameBits({1, 2, 2}));
}

TEST(GroupBy, SmallerDimensionsWorkOnTheCorner)
{
    const auto data = byRows({{2, 10, 5}, {1, 20, 5}, {2, 30, 5}, {1, 40, 5}});
    auto out = filled(5, 3, 99.0);
    matrix* const before = out;
    int count = -7;
    M_GroupBy(data, 3, 2, intColumn({0, 0}), 1, 0, &count, out);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(out.get(), before);
    EXPECT_EQ(out->nRows, 5);
    EXPECT_THAT(cellsOf(out), SameBits({1, 2, 2, 99, 99, 20, 40, 30, 99, 99, 99, 99, 99, 99, 99}));
}

TEST(GroupBy, AColumnBeyondTheResultIsNotWritten)
{
    const auto data = byRows({{2, 30}, {1, 10}, {1, 20}});
    auto out = filled(3, 2, 99.0);
    int count = -7;
    M_GroupBy(data, 3, 3, intColumn({0, 0, 0}), 1, 0, &count, out);
    EXPECT_EQ(count, 2);
    EXPECT_THAT(cellsOf(out), SameBits({1, 2, 2, 30, 30, 30}));
}

TEST(GroupBy, ATableMayBeItsOwnResult)
{
    auto data = byRows({{2, 10}, {1, 20}, {2, 30}});
    int count = -7;
    M_GroupBy(data, 3, 2, intColumn({0, 0}), 1, 0, &count, data);
    EXPECT_EQ(count, 2);
    EXPECT_THAT(cellsOf(data), SameBits({1, 2, 2, 20, 40, 30}));
}

} // namespace
} // namespace vecmat::test
