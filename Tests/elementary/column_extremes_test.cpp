#include "elementary/column_extremes.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/special_values.h"
#include "support/tables.h"

using namespace vecmat::test;

namespace {

std::vector<double> minByColumn(const Owned<matrix>& a, int rows, int cols)
{
    auto out = filled(cols, 1, 55.0);
    M_Min(a.get(), rows, cols, out);
    return cellsOf(out);
}

std::vector<double> maxByColumn(const Owned<matrix>& a, int rows, int cols)
{
    auto out = filled(cols, 1, 55.0);
    M_Max(a.get(), rows, cols, out);
    return cellsOf(out);
}

// ---- M_Min, M_Max ---------------------------------------------------------------------------------------------------

TEST(MMinMMax, MissingCellAfterTheFirstValueWinsTheMinimumOnly)
{
    EXPECT_THAT(minByColumn(column({2, M, 1}), 3, 1), SameBits({M}));
    EXPECT_THAT(maxByColumn(column({2, M, 1}), 3, 1), SameBits({2.0}));
    EXPECT_THAT(minByColumn(column({M, 2, 1}), 3, 1), SameBits({1.0}));
    EXPECT_THAT(maxByColumn(column({M, 2, 1}), 3, 1), SameBits({2.0}));
}

TEST(MMinMMax, FirstUsableCellIsFoundByOrder)
{
    EXPECT_THAT(minByColumn(column({belowMissing, -infinity, notANumber, 3, 2}), 5, 1), SameBits({2.0}));
    EXPECT_THAT(maxByColumn(column({belowMissing, -infinity, notANumber, 3, 4}), 5, 1), SameBits({4.0}));
    EXPECT_THAT(minByColumn(column({3, belowMissing}), 2, 1), SameBits({belowMissing}));
    EXPECT_THAT(minByColumn(column({3, notANumber, 2}), 3, 1), SameBits({2.0}));
    EXPECT_THAT(maxByColumn(column({3, notANumber, 4}), 3, 1), SameBits({4.0}));
}

TEST(MMinMMax, NoUsableCellGivesTheMissingValue)
{
    const auto a = byColumns({{M, M}, {belowMissing, -infinity}, {notANumber, notANumber}});
    EXPECT_THAT(minByColumn(a, 2, 3), SameBits({M, M, M}));
    EXPECT_THAT(maxByColumn(a, 2, 3), SameBits({M, M, M}));
    EXPECT_THAT(minByColumn(a, 0, 3), SameBits({M, M, M}));
    EXPECT_THAT(maxByColumn(a, -1, 3), SameBits({M, M, M}));
}

TEST(MMinMMax, WorkOnTheCorner)
{
    const auto a = byColumns({{5, 4, 0}, {7, 8, 99}, {0, 99, 0}});
    EXPECT_THAT(minByColumn(a, 2, 2), SameBits({4.0, 7.0}));
    EXPECT_THAT(maxByColumn(a, 2, 2), SameBits({5.0, 8.0}));
}

TEST(MMinMMax, RowsSlideIntoTheNextColumnAndBeyondTheTableReadMinusOne)
{
    const auto a = byColumns({{5, 4}, {7, 3}});
    EXPECT_THAT(minByColumn(a, 4, 1), SameBits({3.0}));
    EXPECT_THAT(minByColumn(a, 3, 2), SameBits({4.0, -1.0}));
    EXPECT_THAT(maxByColumn(a, 2, 3), SameBits({5.0, 7.0, -1.0}));
}

TEST(MMinMMax, ResultsThatDoNotFitAreDropped)
{
    auto out = filled(1, 1, 55.0);
    M_Max(byColumns({{1, 2}, {3, 4}}), 2, 2, out);
    EXPECT_THAT(cellsOf(out), SameBits({2.0}));
    auto row = filled(1, 3, 55.0);
    M_Min(byColumns({{1, 2}, {3, 4}}), 2, 2, row);
    EXPECT_THAT(cellsOf(row), SameBits({1.0, 3.0, 55.0}));
    M_Min(byColumns({{1, 2}, {3, 4}}), 2, 0, row);
    EXPECT_THAT(cellsOf(row), SameBits({1.0, 3.0, 55.0}));
}

// ---- M_MinAll -------------------------------------------------------------------------------------------------------

TEST(MMinAll, SmallestOfAllWithNoTest)
{
    EXPECT_THAT(M_MinAll(byColumns({{5, 4}, {7, 3}}), 2, 2), SameBits(3.0));
    EXPECT_THAT(M_MinAll(byColumns({{5, 4}, {7, 3}}), 2, 1), SameBits(4.0));
    EXPECT_THAT(M_MinAll(byColumns({{5, M}, {7, 3}}), 2, 2), SameBits(M));
    EXPECT_THAT(M_MinAll(byColumns({{5, 4}}), 2, 2), SameBits(-1.0));
    EXPECT_THAT(M_MinAll(column({notANumber, 4}), 2, 1), SameBits(4.0));
}

TEST(MMinAll, StartsFromThePositiveTwin)
{
    EXPECT_THAT(M_MinAll(column({1}), 0, 1), SameBits(positiveTwin));
    EXPECT_THAT(M_MinAll(column({1}), -1, 1), SameBits(positiveTwin));
    EXPECT_THAT(M_MinAll(column({1}), 1, 0), SameBits(positiveTwin));
    EXPECT_THAT(M_MinAll(column({infinity}), 1, 1), SameBits(positiveTwin));
}

// ---- M_MaxPosByRow --------------------------------------------------------------------------------------------------

std::vector<int> positionsOf(const Owned<matrix>& a, int rows, int cols)
{
    auto out = intTable(rows, 1, std::vector<int>(static_cast<std::size_t>(rows), 55));
    M_MaxPosByRow(a.get(), rows, cols, out);
    return cellsOf(out);
}

TEST(MMaxPosByRow, FirstOfTheLargestCells)
{
    const auto a = byRows({{1, 3, 2}, {4, 4, 4}, {M, M, -1}, {M, -infinity, M}, {2, 5, 5}});
    EXPECT_EQ(positionsOf(a, 5, 3), (std::vector<int>{2, 1, 3, 1, 2}));
    EXPECT_EQ(positionsOf(a, 2, 1), (std::vector<int>{1, 1}));
}

TEST(MMaxPosByRow, NaNInTheFirstColumnStays)
{
    EXPECT_EQ(positionsOf(byRows({{notANumber, 3}, {1, notANumber}}), 2, 2), (std::vector<int>{1, 1}));
}

TEST(MMaxPosByRow, BeyondTheTables)
{
    EXPECT_EQ(positionsOf(byRows({{-2, -3}}), 1, 4), (std::vector<int>{3}));
    EXPECT_EQ(positionsOf(byRows({{5, 6}}), 1, 0), (std::vector<int>{1}));
    auto out = intColumn({55});
    M_MaxPosByRow(byRows({{1, 2}, {1, 2}}), 2, 2, out);
    EXPECT_EQ(cellsOf(out), (std::vector<int>{2}));
    M_MaxPosByRow(byRows({{2, 1}}), 0, 2, out);
    M_MaxPosByRow(byRows({{2, 1}}), lowestInt, 2, out);
    EXPECT_EQ(cellsOf(out), (std::vector<int>{2}));
}

// ---- flat forms -----------------------------------------------------------------------------------------------------

TEST(ColumnExtremesFlat, KnownValues)
{
    Guarded<double> a({2, M, 1, M, 2, 1});
    Guarded<double> out({55, 55});
    VB_M_Max(a, 3, 2, out);
    EXPECT_THAT(out.values(), SameBits({2.0, 2.0}));
    VB_M_Min(a, 3, 2, out);
    EXPECT_THAT(out.values(), SameBits({M, 1.0}));
    EXPECT_THAT(Cpp_M_MinAll(a, 3, 2), SameBits(M));
    EXPECT_THAT(Cpp_M_MinAll(a, 1, 1), SameBits(2.0));
    Guarded<int> positions({55, 55, 55});
    Cpp_M_MaxPosByRow(a, 3, 2, positions);
    EXPECT_EQ(positions.values(), (std::vector<int>{1, 2, 1}));
    EXPECT_TRUE(a.untouched());
}

TEST(ColumnExtremesFlat, NoRowsOrColumns)
{
    Guarded<double> out({55, 55});
    Guarded<int> positions({55, 55});
    VB_M_Max(nullptr, 2, 0, out);
    VB_M_Min(nullptr, 2, -1, out);
    Cpp_M_MaxPosByRow(nullptr, 0, 2, positions);
    EXPECT_TRUE(out.untouched() && positions.untouched());
    VB_M_Max(nullptr, 0, 2, out);
    EXPECT_THAT(out.values(), SameBits({M, M}));
    EXPECT_THAT(Cpp_M_MinAll(nullptr, 0, 2), SameBits(positiveTwin));
}

TEST(ColumnExtremes, AgreeWithThePlainLoop)
{
    RandomData data(2206);
    SCOPED_TRACE(data);
    for (int round = 0; round < 40; ++round) {
        const int rows = data.integer(1, 8);
        const int cols = data.integer(1, 5);
        const auto values =
            data.withSpecials(data.wholes(static_cast<std::size_t>(rows * cols), -3, 3), data.uniform(0.0, 0.6));
        std::vector<double> min;
        std::vector<double> max;
        for (int j = 0; j < cols; ++j) {
            bool started = false;
            double smallest = M;
            double largest = M;
            for (int i = 0; i < rows; ++i) {
                const double x = values[static_cast<std::size_t>(i + rows * j)];
                if (!started && x > M) {
                    started = true;
                    smallest = largest = x;
                } else if (started) {
                    smallest = x < smallest ? x : smallest;
                    largest = x > largest ? x : largest;
                }
            }
            min.push_back(smallest);
            max.push_back(largest);
        }
        EXPECT_THAT(minByColumn(table(rows, cols, values), rows, cols), SameBits(min));
        EXPECT_THAT(maxByColumn(table(rows, cols, values), rows, cols), SameBits(max));
    }
}

} // namespace
