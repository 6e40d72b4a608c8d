// Means and sums of the columns of a table.
#include "descriptive/means.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

using namespace vecmat::test;

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// One column after the other, as the contracts put it.
std::vector<double> plainMeans(const std::vector<double>& cells, int n, int p, const std::vector<double>& w)
{
    std::vector<double> means;
    for (int j = 0; j < p; ++j) {
        double W = 0.0, mean = 0.0;
        for (int i = 0; i < n; ++i) {
            const double x = cells[static_cast<std::size_t>(i + n * j)];
            const double weight = w[static_cast<std::size_t>(i)];
            if (x == M)
                continue;
            W += weight;
            if (weight != 0.0)
                mean += (x - mean) * weight / W;
        }
        means.push_back(mean);
    }
    return means;
}

std::vector<double> meansOf(Owned<matrix> X, int n, int p, const std::vector<double>& w)
{
    Owned<matrix> mean;
    EXPECT_EQ(M_Mean(X, n, p, mean, column(w)), 0);
    EXPECT_EQ(mean->nRows, p);
    EXPECT_EQ(mean->nCols, 1);
    return cellsOf(mean);
}

std::vector<double> means2Of(Owned<matrix> X, int n, int p, const std::vector<double>& w)
{
    Owned<matrix> mean = filled(p, 1, 77.0);
    EXPECT_EQ(M_Mean2(X, n, p, column(w), mean), 0);
    return cellsOf(mean);
}

std::vector<double> means3Of(Owned<matrix> X, int n, int p)
{
    Owned<matrix> mean = filled(p, 1, 77.0);
    EXPECT_EQ(M_Mean3(X, n, p, mean), 0);
    return cellsOf(mean);
}

} // namespace

TEST(MMean, IsTheRunningWeightedMeanOfEachColumn)
{
    RandomData data(62);
    SCOPED_TRACE(data);
    for (const int p : {1, 3, 4, 5, 11}) {
        const int n = 17;
        const auto cells = data.withMissing(data.normals(static_cast<std::size_t>(n * p)), 0.2);
        const auto w = data.weights(n, 0.3);
        const auto expected = plainMeans(cells, n, p, w);
        EXPECT_THAT(meansOf(table(n, p, cells), n, p, w), SameBits(expected));
        Columns<matrix> columns(n, p, cells);
        Owned<matrix> mean;
        EXPECT_EQ(M_MeanSPV(columns, n, p, mean, column(w)), 0);
        EXPECT_THAT(cellsOf(mean), SameBits(expected));
    }
}

TEST(MMean, IsZeroForAColumnWithoutRowsWhereTheOthersAreMissing)
{
    EXPECT_THAT(meansOf(byColumns({{M, M}, {1, 3}}), 2, 2, {1, 1}), SameBits({0.0, 2.0}));
    EXPECT_THAT(means2Of(byColumns({{M, M}, {1, 3}}), 2, 2, {1, 1}), SameBits({M, 2.0}));
    EXPECT_THAT(means3Of(byColumns({{M, M}, {1, 3}}), 2, 2), SameBits({M, 2.0}));
    EXPECT_THAT(meansOf(byColumns({{5}}), 0, 1, {1}), SameBits({0.0}));
    EXPECT_THAT(means2Of(byColumns({{5}}), 0, 1, {1}), SameBits({M}));
    EXPECT_THAT(means3Of(byColumns({{5}}), 0, 1), SameBits({M}));
}

TEST(MMean, PassesOverAZeroWeightWhereMean2DividesZeroByZero)
{
    EXPECT_THAT(meansOf(byColumns({{9, 1, 3}}), 3, 1, {0, 1, 1}), SameBits({2.0}));
    EXPECT_THAT(meansOf(byColumns({{inf, 1, 3}}), 3, 1, {0, 1, 1}), SameBits({2.0}));
    EXPECT_TRUE(std::isnan(means2Of(byColumns({{9, 1, 3}}), 3, 1, {0, 1, 1})[0]));
    // After another weight a zero adds nothing; ahead of all others, on a missing cell, it is not reached.
    EXPECT_THAT(means2Of(byColumns({{1, 9, 3}}), 3, 1, {1, 0, 1}), SameBits({2.0}));
    EXPECT_THAT(means2Of(byColumns({{M, 1, 3}}), 3, 1, {0, 1, 1}), SameBits({2.0}));
}

TEST(MMean, TellsMissingByEqualityAndMean2AndMean3ByOrder)
{
    EXPECT_TRUE(std::isnan(meansOf(byColumns({{1, notANumber, 3}}), 3, 1, {1, 1, 1})[0]));
    EXPECT_THAT(means2Of(byColumns({{1, notANumber, 3}}), 3, 1, {1, 1, 1}), SameBits({2.0}));
    EXPECT_THAT(means3Of(byColumns({{1, notANumber, 3}}), 3, 1), SameBits({2.0}));
    const double below = std::nextafter(M, -inf);
    EXPECT_THAT(meansOf(byColumns({{below}}), 1, 1, {1}), SameBits({below}));
    EXPECT_THAT(means2Of(byColumns({{below, -inf, 4}}), 3, 1, {1, 1, 1}), SameBits({4.0}));
    EXPECT_THAT(means3Of(byColumns({{below, -inf, 4}}), 3, 1), SameBits({4.0}));
}

TEST(MMean, WritesNoMoreThanItsColumns)
{
    RandomData data(63);
    SCOPED_TRACE(data);
    for (const int p : {3, 4, 7, 8, 9, 16}) {
        const int n = 20;
        const auto cells = data.normals(static_cast<std::size_t>(n * p));
        Owned<matrix> mean = filled(p + 1, 1, 77.0);
        M_Mean(table(n, p, cells), n, p, mean, column(std::vector<double>(n, 1.0)));
        EXPECT_THAT(mean->X[p], SameBits(77.0)) << p;
    }
}

TEST(MMean, PreparesItsResultAndTheOthersDoNot)
{
    Owned<matrix> larger = filled(5, 5, 7.0);
    matrix* const kept = larger.get();
    M_Mean(byColumns({{1, 3}, {5, 7}}), 2, 2, larger, column({1, 1}));
    EXPECT_EQ(larger.get(), kept);
    EXPECT_EQ(larger->nRows, 5);
    EXPECT_THAT(cornerOf(larger, 3, 1), SameBits({2.0, 6.0, 7.0}));

    Owned<matrix> smaller = filled(1, 1, 7.0);
    M_Mean(byColumns({{1, 3}, {5, 7}}), 2, 2, smaller, column({1, 1}));
    EXPECT_THAT(cellsOf(smaller), SameBits({2.0, 6.0}));

    Owned<matrix> tooSmall = filled(1, 1, 7.0);
    M_Mean2(byColumns({{1, 3}, {5, 7}}), 2, 2, column({1, 1}), tooSmall);
    EXPECT_THAT(cellsOf(tooSmall), SameBits({2.0}));
    M_Mean3(byColumns({{2, 4}, {5, 7}}), 2, 2, tooSmall);
    EXPECT_THAT(cellsOf(tooSmall), SameBits({3.0}));
}

TEST(MMean2, IsTheRunningMeanOverTheOrderOfTheRows)
{
    double W = 0.0, mean = 0.0;
    const std::vector<double> x{0.3, 1.9, 0.7}, w{0.1, 0.7, 0.9};
    for (std::size_t i = 0; i < 3; ++i) {
        W += w[i];
        mean += (x[i] - mean) * w[i] / W;
    }
    EXPECT_THAT(means2Of(column(x), 3, 1, w), SameBits({mean}));
}

TEST(MMean3, IsTheRunningMeanByTheCount)
{
    double mean = 0.0;
    mean += (0.3 - mean) / 1;
    mean += (1.9 - mean) / 2;
    mean += (0.7 - mean) / 3;
    EXPECT_THAT(means3Of(column({0.3, M, 1.9, 0.7}), 4, 1), SameBits({mean}));
}

TEST(MMeans, TheDimensionsPassedDriveTheLoops)
{
    // Two of three rows and columns; the stride stays that of the table.
    const auto X = byColumns({{1, 3, 90}, {5, 9, 90}, {90, 90, 90}});
    Owned<matrix> mean;
    M_Mean(X.get(), 2, 2, mean, column({1, 1}));
    EXPECT_THAT(cellsOf(mean), SameBits({2.0, 7.0}));
    // One row more than the table has: it reads from the next column, and -1.0 after the last one. An array of
    // columns does not slide.
    const auto small = byColumns({{1, 3}, {5, 9}});
    Owned<matrix> slid;
    M_Mean(small.get(), 3, 2, slid, column({1, 1, 1}));
    EXPECT_THAT(cellsOf(slid), SameBits({3.0, 7.0 + (-1.0 - 7.0) / 3.0}));
    Columns<matrix> columns(2, 2, {1, 3, 5, 9});
    Owned<matrix> apart;
    M_MeanSPV(columns, 3, 2, apart, column({1, 1, 1}));
    EXPECT_THAT(cellsOf(apart), SameBits({1.0, 7.0 + (-1.0 - 7.0) / 3.0}));
}

TEST(MColSum2, SumsThePresentCellsOfAColumn)
{
    const auto X = byColumns({{1, 2, 3}, {4, M, 6}});
    EXPECT_THAT(M_ColSum2(X.get(), 3, 2), SameBits(10.0));
    EXPECT_THAT(M_ColSum2(X.get(), 2, 1), SameBits(3.0));
    EXPECT_THAT(M_ColSum2(X.get(), 0, 1), SameBits(0.0));
    EXPECT_THAT(M_ColSum2(X.get(), -1, 1), SameBits(0.0));
    EXPECT_THAT(M_ColSum2(X.get(), 2, 3), SameBits(-2.0));
    EXPECT_TRUE(std::isnan(M_ColSum2(column({1, notANumber}), 2, 1)));
}

TEST(MeanExports, WriteTheColumnMeansIntoTheCallersArray)
{
    RandomData data(63);
    SCOPED_TRACE(data);
    const int n = 9, p = 6;
    Guarded<double> X(data.withMissing(data.normals(n * p), 0.2));
    Guarded<double> w(data.weights(n));
    Guarded<double> mean(data.leftovers(p));

    EXPECT_EQ(VB_M_Mean(X, n, p, mean, 12345, w), 0);
    EXPECT_THAT(mean.values(), SameBits(meansOf(table(n, p, X.values()), n, p, w.values())));
    EXPECT_EQ(Cpp_M_Mean2(X, n, p, w, mean), 0);
    EXPECT_THAT(mean.values(), SameBits(means2Of(table(n, p, X.values()), n, p, w.values())));
    EXPECT_EQ(Cpp_M_Mean3(X, n, p, mean), 0);
    EXPECT_THAT(mean.values(), SameBits(means3Of(table(n, p, X.values()), n, p)));
    EXPECT_TRUE(X.untouched() && w.untouched());
}
