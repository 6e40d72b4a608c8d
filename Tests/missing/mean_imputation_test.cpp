#include "missing/mean_imputation.h"

#include "descriptive/means.h"
#include "missing/special_numbers.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/tables.h"

namespace vecmat::test {
namespace {

using Cells = std::vector<double>;

/// All forms that take the statistics from the data itself, over a table of one column or more.
Cells filledByMeans(int rows, int cols, const Cells& cells, const std::vector<short>& mask, const Cells& weights)
{
    Flags flags(mask);
    auto a = table(rows, cols, cells);
    EstimateRowsWithMissingMean(a, rows, a, rows, cols, flags, column(weights));
    const Cells result = cellsOf(a);

    TableColumns columns(rows, cols, cells);
    EstimateRowsWithMissingMeanSPV(columns, rows, cols, flags, column(weights));
    EXPECT_THAT(columns.cells(), SameBits(result));
    Guarded<double> w(weights);
    Guarded<double> flat(cells);
    VB_EstimateRowsWithMissingMean(flat, rows, cols, flags, w);
    EXPECT_THAT(flat.values(), SameBits(result));
    ArrayOfColumns arrays = numberColumns(rows, cols, cells);
    VB_EstimateRowsWithMissingMeanSPV(arrays, rows, cols, flags, w);
    EXPECT_THAT(arrays.numbers(), SameBits(result));
    Guarded<double> statistics(cells);
    Guarded<double> target(cells);
    VB_EstimateRowsWithMissingMeanPred(statistics, rows, target, rows, cols, flags, w);
    EXPECT_THAT(target.values(), SameBits(result));
    EXPECT_TRUE(statistics.untouched() && w.untouched() && flags.untouched());
    return result;
}

/// The vector case, and its flat forms.
Cells filledByMean(const Cells& cells, const std::vector<short>& mask, const Cells& weights)
{
    const auto n = static_cast<int>(cells.size());
    Flags flags(mask);
    auto a = column(cells);
    EstimateRowsWithMissingMean(a, n, a, n, 0, flags, column(weights));
    const Cells result = cellsOf(a);
    for (const int cols : {0, -1}) {
        Guarded<double> w(weights);
        Guarded<double> flat(cells);
        VB_EstimateRowsWithMissingMean(flat, n, cols, flags, w);
        EXPECT_THAT(flat.values(), SameBits(result));
        Guarded<double> statistics(cells);
        Guarded<double> target(cells);
        VB_EstimateRowsWithMissingMeanPred(statistics, n, target, n, cols, flags, w);
        EXPECT_THAT(target.values(), SameBits(result));
        EXPECT_TRUE(statistics.untouched() && w.untouched() && flags.untouched());
    }
    return result;
}

TEST(MeanImputation, FillsFlaggedRowsOnly)
{
    // Any flag but 0 marks a row.
    EXPECT_THAT(filledByMeans(5, 2, {1, 3, M, M, M, /**/ 10, M, 30, M, M}, {0, 1, -1, 0, 2}, {1, 1, 1, 1, 1}),
                SameBits({1.0, 3.0, 2.0, M, 2.0, 10.0, 20.0, 30.0, M, 20.0}));
    EXPECT_THAT(filledByMean({1, 3, M, M, M}, {0, 0, -1, 0, 2}, {1, 1, 1, 1, 1}), SameBits({1.0, 3.0, 2.0, M, 2.0}));
}

TEST(MeanImputation, MeansAreWeighted)
{
    EXPECT_THAT(filledByMeans(3, 1, {1, 5, M}, {-1, -1, -1}, {3, 1, 1}), SameBits({1.0, 5.0, 2.0}));
    EXPECT_THAT(filledByMean({1, 5, M}, {-1, -1, -1}, {3, 1, 1}), SameBits({1.0, 5.0, 2.0}));
}

TEST(MeanImputation, ZeroWeightRemovesARowFromTheMeanNotFromTheFilling)
{
    EXPECT_THAT(filledByMeans(4, 1, {1, 100, 3, M}, {0, 0, 0, -1}, {1, 0, 1, 0}), SameBits({1.0, 100.0, 3.0, 2.0}));
    EXPECT_THAT(filledByMean({1, 100, 3, M}, {0, 0, 0, -1}, {1, 0, 1, 0}), SameBits({1.0, 100.0, 3.0, 2.0}));
}

TEST(MeanImputation, WithoutDataAVectorStaysMissingAndAColumnBecomesZero)
{
    EXPECT_THAT(filledByMean({M, M, M}, {-1, 0, -1}, {1, 1, 1}), SameBits({M, M, M}));
    EXPECT_THAT(filledByMeans(3, 1, {M, M, M}, {-1, 0, -1}, {1, 1, 1}), SameBits({0.0, M, 0.0}));
    EXPECT_THAT(filledByMeans(2, 2, {M, M, 4, M}, {-1, -1}, {1, 1}), SameBits({0.0, 0.0, 4.0, 4.0}));
    // Nor is there data where all the weights are 0.
    EXPECT_THAT(filledByMean({7, M}, {-1, -1}, {0, 1}), SameBits({7.0, M}));
    EXPECT_THAT(filledByMeans(2, 1, {7, M}, {-1, -1}, {0, 1}), SameBits({7.0, 0.0}));
}

TEST(MeanImputation, FillsByTheOrderTestAndTakesMeansByTheOther)
{
    // Minus infinity enters the mean, and is then filled with it.
    EXPECT_THAT(filledByMeans(3, 1, {-inf, M, 3}, {-1, -1, -1}, {1, 1, 1}).back(), SameBits(3.0));
    EXPECT_THAT(filledByMean({-inf, M, 3}, {-1, -1, -1}, {1, 1, 1}), SameBits({-inf, -inf, 3.0}));
    // What is below the missing value is filled, though the missing value itself is out of the mean.
    auto target = column({belowMissing, -inf, notANumber, M});
    Flags mask = {-1, -1, -1, -1};
    EstimateRowsWithMissingMean(column({2, 4}), 2, target, 4, 1, mask, column({1, 1}));
    EXPECT_THAT(cellsOf(target), SameBits({3.0, 3.0, notANumber, 3.0}));
    auto vector = column({belowMissing, -inf, notANumber, M});
    EstimateRowsWithMissingMean(column({2, 4}), 2, vector, 4, 0, mask, column({1, 1}));
    EXPECT_THAT(cellsOf(vector), SameBits({3.0, 3.0, notANumber, 3.0}));
}

TEST(MeanImputation, TheTwoPathsRoundAsTheirMeansDo)
{
    // A table's mean is a running one, a vector's is one sum divided once.
    RandomData data(481);
    SCOPED_TRACE(data);
    int differing = 0;
    for (int trial = 0; trial < 20; ++trial) {
        Cells cells = data.uniforms(9);
        const Cells weights = data.weights(9);
        cells[4] = M;
        std::vector<short> mask(9, -1);
        short clear[9] = {};
        Owned<matrix> mean;
        M_Mean(column(cells), 9, 1, mean, column(weights));
        const double ofVector = V_Mean(column(cells), 9, clear, column(weights));
        EXPECT_THAT(filledByMeans(9, 1, cells, mask, weights)[4], SameBits(mean->X[0]));
        EXPECT_THAT(filledByMean(cells, mask, weights)[4], SameBits(ofVector));
        differing += sameBits(ofVector, mean->X[0]) ? 0 : 1;
    }
    EXPECT_GT(differing, 0);
}

TEST(MeanImputation, RandomTablesAgreeWithThePlainFill)
{
    RandomData data(482);
    SCOPED_TRACE(data);
    for (int trial = 0; trial < 30; ++trial) {
        const int rows = data.integer(1, 12);
        const int cols = data.integer(1, 4);
        const auto n = static_cast<std::size_t>(rows);
        Cells cells = data.withMissing(data.normals(n * static_cast<std::size_t>(cols)), 0.4);
        const Cells weights = data.weights(n, 0.3);
        const auto mask = data.mask(n, 0.5);
        const Cells result = filledByMeans(rows, cols, cells, mask, weights);
        Owned<matrix> mean;
        M_Mean(table(rows, cols, cells), rows, cols, mean, column(weights));
        for (std::size_t k = 0; k < cells.size(); ++k)
            if (cells[k] == M && mask[k % n] != 0)
                cells[k] = mean->X[k / n];
        EXPECT_THAT(result, SameBits(cells));
    }
}

TEST(MeanImputation, StatisticsOfAnotherTable)
{
    Flags mask = {-1, 0, -1};
    const Cells statistics = {2, 4, M, 6, /**/ 10, 10, M, M}; // 4 by 2
    const Cells target = {M, M, 7, /**/ 1, M, M};             // 3 by 2
    const Cells expected = {4, M, 7, 1, M, 10};
    auto X = table(3, 2, target);
    EstimateRowsWithMissingMean(table(4, 2, statistics), 4, X, 3, 2, mask, column({1, 1, 1, 1}));
    EXPECT_THAT(cellsOf(X), SameBits(expected));
    Guarded<double> flatStatistics(statistics);
    Guarded<double> flat(target);
    Guarded<double> weights = {1, 1, 1, 1};
    VB_EstimateRowsWithMissingMeanPred(flatStatistics, 4, flat, 3, 2, mask, weights);
    EXPECT_THAT(flat.values(), SameBits(expected));
    EXPECT_TRUE(flatStatistics.untouched());

    auto vector = column({M, M, 7});
    EstimateRowsWithMissingMean(column({2, 4, M, 6}), 4, vector, 3, 0, mask, column({1, 1, 1, 1}));
    EXPECT_THAT(cellsOf(vector), SameBits({4.0, M, 7.0}));
}

TEST(MeanImputation, NoStatistics)
{
    Flags mask = {-1};
    Owned<matrix> none(new matrix(0, 1, 0.0));
    auto asTable = column({M});
    EstimateRowsWithMissingMean(none, 0, asTable, 1, 1, mask, none);
    EXPECT_THAT(cellsOf(asTable), SameBits({0.0}));
    auto asVector = column({M});
    EstimateRowsWithMissingMean(none, 0, asVector, 1, 0, mask, none);
    EstimateRowsWithMissingMean(none, -1, asVector, 1, 0, mask, none);
    EXPECT_THAT(cellsOf(asVector), SameBits({M}));
}

TEST(MeanImputation, NothingToFill)
{
    auto X = column({M});
    Flags mask = {-1};
    EstimateRowsWithMissingMean(column({1}), 1, X, 0, 1, mask, column({1}));
    EstimateRowsWithMissingMean(column({1}), 1, X, 0, 0, mask, column({1}));
    EXPECT_THAT(cellsOf(X), SameBits({M}));
    TableColumns columns(1, 1, {M});
    EstimateRowsWithMissingMeanSPV(columns, 1, 0, mask, column({1})); // no case of a vector here
    EstimateRowsWithMissingMeanSPV(columns, 1, -1, mask, column({1}));
    EstimateRowsWithMissingMeanSPV(columns, 0, 1, mask, column({1}));
    EXPECT_THAT(columns.cells(), SameBits({M}));
}

TEST(MeanImputation, KeepsStridesAndTheTable)
{
    auto X = byRows({{M, 1, M}, {4, M, M}, {M, M, M}});
    const matrix* const before = X.get();
    Flags mask = {-1, -1};
    EstimateRowsWithMissingMean(X, 2, X, 2, 2, mask, column({1, 1}));
    EXPECT_EQ(X.get(), before);
    EXPECT_THAT(cellsOf(X), SameBits({4.0, 4.0, M, 1.0, 1.0, M, M, M, M}));
}

} // namespace
} // namespace vecmat::test
