// Means and standard deviations of the rows of a table.
#include "descriptive/moments.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

using namespace vecmat::test;

namespace {

struct RowMoments
{
    std::vector<double> mean, stdev;
};

/// With a result table that holds every row.
RowMoments byRow(Owned<matrix> X, int n, int p, const std::vector<double>& w, short sample, short freqWeights)
{
    const int longer = std::max(n, p);
    Owned<matrix> mean, stdev = filled(longer, 1, 77.0);
    EXPECT_EQ(M_MeanStDevByRow(X, n, p, mean, stdev, column(w), sample, freqWeights), 0);
    EXPECT_EQ(mean->nRows, n);
    return {cellsOf(mean), cornerOf(stdev, n, 1)};
}

} // namespace

TEST(MMeanStDevByRow, FollowsTheRunningUpdateToTheLastBit)
{
    RandomData data(73);
    SCOPED_TRACE(data);
    for (const short sample : {short{-1}, short{0}})
        for (const short freqWeights : {short{-1}, short{0}}) {
            const int n = 7, p = 9;
            const auto cells = data.withMissing(data.normals(n * p), 0.2);
            const auto w = data.weights(p);
            RowMoments expected;
            for (int i = 0; i < n; ++i) {
                double W = 0.0, mean = 0.0, Q = 0.0;
                int m = 0;
                for (int j = 0; j < p; ++j) {
                    const double x = cells[static_cast<std::size_t>(i + n * j)];
                    const double weight = w[static_cast<std::size_t>(j)];
                    if (x == M)
                        continue;
                    W += weight;
                    ++m;
                    const double d = x - mean;
                    Q += (d * d) * (weight - (weight * weight) / W);
                    mean += (d * weight) / W;
                }
                const double divisor = sample != -1 ? W : W - (freqWeights == -1 ? 1.0 : W / m);
                expected.mean.push_back(m == 0 ? M : mean);
                expected.stdev.push_back(divisor > 0.0 ? std::sqrt(Q / divisor) : M);
            }
            const RowMoments results = byRow(table(n, p, cells), n, p, w, sample, freqWeights);
            EXPECT_THAT(results.mean, SameBits(expected.mean));
            EXPECT_THAT(results.stdev, SameBits(expected.stdev));
        }
}

TEST(MMeanStDevByRow, ARowWhoseOwnNumberHasNoWeightLosesAllItsColumns)
{
    const RowMoments results = byRow(byRows({{1, 3, 5}, {2, 4, 9}, {1, 2, 3}}), 3, 3, {1, 0, 1}, 0, 0);
    // Row 2 is gone; in the others the weight 0 of column 2 adds nothing.
    EXPECT_THAT(results.mean, SameBits({3.0, M, 2.0}));
    EXPECT_THAT(results.stdev, SameBits({2.0, M, 1.0}));
}

TEST(MMeanStDevByRow, RowsBeyondTheWeightsPassTheTest)
{
    const RowMoments results = byRow(byRows({{1, 3}, {2, 4}, {5, 9}}), 3, 2, {1, 1}, 0, 0);
    EXPECT_THAT(results.mean, SameBits({2.0, 3.0, 7.0}));
    EXPECT_THAT(results.stdev, SameBits({1.0, 1.0, 2.0}));
}

TEST(MMeanStDevByRow, AColumnOfNoWeightAheadOfAllOthersDividesZeroByZero)
{
    const RowMoments results = byRow(byRows({{1, 3}, {M, 4}, {5, 9}}), 3, 2, {0, 1}, 0, 0);
    EXPECT_THAT(results.mean[0], SameBits(M)); // lost by its own number
    EXPECT_THAT(results.mean[1], SameBits(4.0));
    EXPECT_TRUE(std::isnan(results.mean[2]));
    EXPECT_TRUE(std::isnan(results.stdev[2]));
    // Where nothing but such columns is present the row is not empty: the divisor decides.
    const RowMoments only = byRow(byRows({{1, M}, {6, M}}), 2, 2, {0, 1}, 0, 0);
    EXPECT_TRUE(std::isnan(only.mean[1]));
    EXPECT_THAT(only.stdev[1], SameBits(M));
}

TEST(MMeanStDevByRow, CountsAColumnOfNoWeight)
{
    // W = 2, m = 3, Q = 8: the divisor is 2 - 2/3.
    const RowMoments results = byRow(byRows({{1, 100, 5}}), 1, 3, {1, 0, 1}, -1, 0);
    EXPECT_THAT(results.stdev, SameBits({std::sqrt(8.0 / (2.0 - 2.0 / 3))}));
}

TEST(MMeanStDevByRow, IsMissingForARowWithoutColumnsAndForADivisorNotAboveZero)
{
    const RowMoments results = byRow(byRows({{M, M}, {M, 5}}), 2, 2, {1, 1}, -1, 0);
    EXPECT_THAT(results.mean, SameBits({M, 5.0}));
    EXPECT_THAT(results.stdev, SameBits({M, M}));
    const RowMoments none = byRow(byRows({{1}, {2}}), 2, 0, {}, 0, 0);
    EXPECT_THAT(none.mean, SameBits({M, M}));
    EXPECT_THAT(none.stdev, SameBits({M, M}));
}

TEST(MMeanStDevByRow, ANullWeightIsOneForEachColumn)
{
    Owned<matrix> mean, stdev = filled(3, 1, 0.0);
    M_MeanStDevByRow(byRows({{1, 3}, {2, 4}, {5, 9}}), 3, 2, mean, stdev, nullptr, 0, 0);
    EXPECT_THAT(cellsOf(mean), SameBits({2.0, 3.0, 7.0}));
    EXPECT_THAT(cellsOf(stdev), SameBits({1.0, 1.0, 2.0}));
}

TEST(MMeanStDevByRow, TheDeviationsAreSizedByTheColumns)
{
    // More rows than columns: what does not fit is dropped, unless the table was larger already.
    Owned<matrix> mean, stdev = filled(1, 1, 77.0);
    M_MeanStDevByRow(byRows({{1, 3}, {2, 6}, {5, 9}}), 3, 2, mean, stdev, column({1, 1}), 0, 0);
    EXPECT_EQ(stdev->nRows, 2);
    EXPECT_THAT(cellsOf(stdev), SameBits({1.0, 2.0}));
    EXPECT_THAT(cellsOf(mean), SameBits({2.0, 4.0, 7.0}));
    Owned<matrix> larger = filled(4, 1, 77.0);
    M_MeanStDevByRow(byRows({{1, 3}, {2, 6}, {5, 9}}), 3, 2, mean, larger, column({1, 1}), 0, 0);
    EXPECT_THAT(cellsOf(larger), SameBits({1.0, 2.0, 2.0, 77.0}));

    // More columns than rows: a table with a cell for each row is too small, and its replacement has zeros at the end.
    Owned<matrix> replaced = filled(1, 1, 77.0);
    M_MeanStDevByRow(byRows({{1, 3, 5}}), 1, 3, mean, replaced, column({1, 0, 1}), 0, 0);
    EXPECT_EQ(replaced->nRows, 3);
    EXPECT_THAT(cellsOf(replaced), SameBits({2.0, 0.0, 0.0}));
}

TEST(MMeanStDevByRow, TheFlatFormLeavesTheDeviationsAloneWhereThereAreMoreColumnsThanRows)
{
    Guarded<double> wide{1, 2, 3, 6, 5, 10}; // two rows, three columns
    Guarded<double> w{1, 1, 1};
    Guarded<double> mean{77, 77}, stdev{77, 78};
    EXPECT_EQ(VB_M_MeanStDevByRow(wide, 2, 3, mean, stdev, w, 0, 0), 0);
    EXPECT_THAT(mean.values(), SameBits({3.0, 6.0}));
    EXPECT_TRUE(stdev.untouched());
    EXPECT_TRUE(wide.untouched() && w.untouched());
}

TEST(MMeanStDevByRow, TheFlatFormWritesEveryRowWhereThereAreAtLeastAsMany)
{
    Guarded<double> tall{1, 2, 5, 3, 6, 9}; // three rows, two columns
    Guarded<double> w{1, 1};
    Guarded<double> mean{77, 77, 77}, stdev{77, 77, 77};
    EXPECT_EQ(VB_M_MeanStDevByRow(tall, 3, 2, mean, stdev, w, 0, 0), 0);
    EXPECT_THAT(mean.values(), SameBits({2.0, 4.0, 7.0}));
    EXPECT_THAT(stdev.values(), SameBits({1.0, 2.0, 2.0}));
    EXPECT_EQ(VB_M_MeanStDevByRow(tall, 3, 2, mean, nullptr, nullptr, 0, 0), 0);
    EXPECT_THAT(mean.values(), SameBits({2.0, 4.0, 7.0}));
}
