// Means, standard deviations and variances of the columns of a table.
#include "descriptive/moments.h"

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

struct Options
{
    short sample = -1;
    short freqWeights = 0;
    short ignoreMask = 0;
};

struct Data
{
    int n, p;
    std::vector<double> cells;
    std::vector<short> mask;
    std::vector<double> w;
};

Data columnData(const std::vector<double>& x, const std::vector<double>& w)
{
    return {static_cast<int>(x.size()), 1, x, std::vector<short>(x.size(), 0), w};
}

/// Means, then standard deviations.
std::vector<double> joined(const std::vector<double>& first, const std::vector<double>& second)
{
    std::vector<double> both = first;
    both.insert(both.end(), second.begin(), second.end());
    return both;
}

std::vector<double> meanStDev(Data d, Options o)
{
    Owned<matrix> mean, stdev = filled(1, 1, 0.0);
    EXPECT_EQ(M_MeanStDev(table(d.n, d.p, d.cells), d.n, d.p, mean, stdev, d.mask.data(), column(d.w), o.sample,
                          o.freqWeights, o.ignoreMask),
              0);
    EXPECT_EQ(mean->nRows, d.p);
    return joined(cellsOf(mean), cellsOf(stdev));
}

std::vector<double> meanStDevColumns(Data d, Options o)
{
    Columns<matrix> X(d.n, d.p, d.cells);
    Owned<matrix> mean, stdev = filled(1, 1, 0.0);
    EXPECT_EQ(
        M_MeanStDevSPV(X, d.n, d.p, mean, stdev, d.mask.data(), column(d.w), o.sample, o.freqWeights, o.ignoreMask), 0);
    return joined(cellsOf(mean), cellsOf(stdev));
}

/// Means, then standard deviations, then variances.
std::vector<double> meanStDevVar(Data d, Options o)
{
    Owned<matrix> mean, stdev = filled(1, 1, 0.0), var;
    EXPECT_EQ(M_MeanStDevVar(table(d.n, d.p, d.cells), d.n, d.p, mean, stdev, var, d.mask.data(), column(d.w), o.sample,
                             o.freqWeights),
              0);
    return joined(joined(cellsOf(mean), cellsOf(stdev)), cellsOf(var));
}

std::vector<double> meanStDevVarColumns(Data d, Options o)
{
    Columns<matrix> X(d.n, d.p, d.cells);
    Owned<matrix> mean, stdev = filled(1, 1, 0.0), var;
    EXPECT_EQ(M_MeanStDevVarSPV(X, d.n, d.p, mean, stdev, var, d.mask.data(), column(d.w), o.sample, o.freqWeights), 0);
    return joined(joined(cellsOf(mean), cellsOf(stdev)), cellsOf(var));
}

/// One column after the other, as the contracts put it. `zeroCounts` sets the two families apart.
std::vector<double> plainLoop(const Data& d, Options o, bool zeroCounts)
{
    std::vector<double> means, stdevs, vars;
    for (int j = 0; j < d.p; ++j) {
        double W = 0.0, mean = 0.0, Q = 0.0;
        int m = 0;
        for (int i = 0; i < d.n; ++i) {
            const double x = d.cells[static_cast<std::size_t>(i + d.n * j)];
            const double w = d.w[static_cast<std::size_t>(i)];
            if (d.mask[static_cast<std::size_t>(i)] != 0 || x == M || (w == 0.0 && !zeroCounts))
                continue;
            W += w;
            ++m;
            if (w == 0.0)
                continue;
            const double step = x - mean;
            Q += (step * step) * (w - (w * w) / W);
            mean += (step * w) / W;
        }
        const double divisor = o.sample != -1 ? W : W - (o.freqWeights == -1 ? 1.0 : W / m);
        const double var = divisor > 0.0 ? Q / divisor : M;
        means.push_back(m == 0 && !zeroCounts ? M : mean);
        vars.push_back(var);
        stdevs.push_back(var == M ? M : std::sqrt(var));
    }
    const auto both = joined(means, stdevs);
    return zeroCounts ? joined(both, vars) : both;
}

} // namespace

TEST(ColumnMoments, FollowTheRunningUpdateToTheLastBitInEveryStorage)
{
    RandomData data(71);
    SCOPED_TRACE(data);
    for (const int p : {1, 2, 4, 5, 9})
        for (const short sample : {short{-1}, short{0}, short{1}})
            for (const short freqWeights : {short{-1}, short{0}}) {
                const int n = 19;
                const Data d{n, p, data.withMissing(data.normals(static_cast<std::size_t>(n * p)), 0.2),
                             data.mask(n, 0.2), data.weights(n, 0.2)};
                const Options o{sample, freqWeights, 0};
                EXPECT_THAT(meanStDev(d, o), SameBits(plainLoop(d, o, false)));
                EXPECT_THAT(meanStDevColumns(d, o), SameBits(plainLoop(d, o, false)));
                EXPECT_THAT(meanStDevVar(d, o), SameBits(plainLoop(d, o, true)));
                EXPECT_THAT(meanStDevVarColumns(d, o), SameBits(plainLoop(d, o, true)));
            }
}

TEST(ColumnMoments, ARowOfNoWeightIsLeftOutByOneFamilyAndCountedByTheOther)
{
    // Q = 4, W = 4. M_MeanStDev: m = 2, c = 2. M_MeanStDevVar: m = 3, c = 4/3.
    const Data d = columnData({1, 7, 3}, {2, 0, 2});
    EXPECT_THAT(meanStDev(d, {-1, 0, 0}), SameBits({2.0, std::sqrt(4.0 / 2.0)}));
    EXPECT_THAT(meanStDevVar(d, {-1, 0, 0}), SameBits({2.0, std::sqrt(4.0 / (4.0 - 4.0 / 3)), 4.0 / (4.0 - 4.0 / 3)}));
    // The weight is read before the cell is used.
    EXPECT_THAT(meanStDev(columnData({1, inf, 3}, {2, 0, 2}), {0, 0, 0}), SameBits({2.0, 1.0}));
    EXPECT_THAT(meanStDevVar(columnData({1, inf, 3}, {2, 0, 2}), {0, 0, 0}), SameBits({2.0, 1.0, 1.0}));
}

TEST(ColumnMoments, AColumnWithoutRowsHasAMissingMeanInOneFamilyAndZeroInTheOther)
{
    for (const short sample : {short{-1}, short{0}})
        for (const short freqWeights : {short{-1}, short{0}}) {
            const Options o{sample, freqWeights, 0};
            EXPECT_THAT(meanStDev(columnData({M, M}, {1, 1}), o), SameBits({M, M}));
            EXPECT_THAT(meanStDev(columnData({1, 2}, {0, 0}), o), SameBits({M, M}));
            EXPECT_THAT(meanStDevVar(columnData({M, M}, {1, 1}), o), SameBits({0.0, M, M}));
            EXPECT_THAT(meanStDevVar(columnData({1, 2}, {0, 0}), o), SameBits({0.0, M, M}));
            EXPECT_THAT(meanStDev(columnData({}, {}), o), SameBits({M, M}));
            EXPECT_THAT(meanStDevVar(columnData({}, {}), o), SameBits({0.0, M, M}));
        }
}

TEST(ColumnMoments, TheVarianceIsMissingWhereTheDivisorIsNotAboveZero)
{
    EXPECT_THAT(meanStDev(columnData({5}, {1}), {-1, 0, 0}), SameBits({5.0, M}));
    EXPECT_THAT(meanStDev(columnData({5}, {1}), {-1, -1, 0}), SameBits({5.0, M}));
    EXPECT_THAT(meanStDev(columnData({5}, {1}), {0, 0, 0}), SameBits({5.0, 0.0}));
    EXPECT_THAT(meanStDev(columnData({1, 3}, {0.25, 0.25}), {-1, -1, 0}), SameBits({2.0, M}));
    EXPECT_THAT(meanStDevVar(columnData({5}, {1}), {-1, 0, 0}), SameBits({5.0, M, M}));
    EXPECT_THAT(meanStDevVar(columnData({1, 3}, {0.25, 0.25}), {-1, -1, 0}), SameBits({2.0, M, M}));
    // A NaN is not above 0 either.
    const auto results = meanStDevVar(columnData({5, 6}, {1, notANumber}), {0, 0, 0});
    EXPECT_THAT((std::vector{results[1], results[2]}), SameBits({M, M}));
}

TEST(ColumnMoments, TellMissingByEquality)
{
    EXPECT_TRUE(std::isnan(meanStDev(columnData({1, notANumber}, {1, 1}), {0, 0, 0})[0]));
    EXPECT_TRUE(std::isnan(meanStDevVar(columnData({1, notANumber}, {1, 1}), {0, 0, 0})[0]));
    EXPECT_THAT(meanStDev(columnData({-inf}, {1}), {0, 0, 0})[0], SameBits(-inf));
}

TEST(MMeanStDev, TheMaskIsAppliedIgnoredOrDropsEveryRow)
{
    Data d = columnData({1, 3, 50}, {1, 1, 1});
    d.mask = {0, 0, 1};
    EXPECT_THAT(meanStDev(d, {0, 0, 0}), SameBits({2.0, 1.0}));
    EXPECT_THAT(meanStDev(d, {0, 0, -1}), SameBits(meanStDev(columnData({1, 3, 50}, {1, 1, 1}), {0, 0, 0})));
    EXPECT_THAT(meanStDev(d, {0, 0, 1}), SameBits({M, M}));
    EXPECT_THAT(meanStDevColumns(d, {0, 0, 1}), SameBits({M, M}));
    EXPECT_THAT(meanStDevColumns(d, {0, 0, -1}), SameBits(meanStDev(d, {0, 0, -1})));
    // A null one keeps every row where it is applied.
    Owned<matrix> mean, stdev = filled(1, 1, 0.0);
    for (const short ignoreMask : {short{0}, short{-1}}) {
        M_MeanStDev(column({1, 3}), 2, 1, mean, stdev, nullptr, column({1, 1}), 0, 0, ignoreMask);
        EXPECT_THAT(joined(cellsOf(mean), cellsOf(stdev)), SameBits({2.0, 1.0}));
    }
    M_MeanStDev(column({1, 3}), 2, 1, mean, stdev, nullptr, column({1, 1}), 0, 0, 2);
    EXPECT_THAT(joined(cellsOf(mean), cellsOf(stdev)), SameBits({M, M}));
}

TEST(MMeanStDev, ANullWeightIsOneForEachRow)
{
    std::vector<short> mask(3, 0);
    Owned<matrix> mean, stdev = filled(1, 1, 0.0);
    M_MeanStDev(column({1, 3, 8}), 3, 1, mean, stdev, mask.data(), nullptr, -1, 0, 0);
    EXPECT_THAT(joined(cellsOf(mean), cellsOf(stdev)),
                SameBits(meanStDev(columnData({1, 3, 8}, {1, 1, 1}), {-1, 0, 0})));
    Columns<matrix> X(3, 1, {1, 3, 8});
    M_MeanStDevSPV(X, 3, 1, mean, stdev, mask.data(), nullptr, -1, 0, 0);
    EXPECT_THAT(joined(cellsOf(mean), cellsOf(stdev)),
                SameBits(meanStDev(columnData({1, 3, 8}, {1, 1, 1}), {-1, 0, 0})));
}

TEST(MMeanStDevVar, ANullMaskKeepsEveryRow)
{
    Owned<matrix> mean, stdev = filled(1, 1, 0.0), var;
    M_MeanStDevVar(column({1, 3}), 2, 1, mean, stdev, var, nullptr, column({1, 1}), 0, 0);
    EXPECT_THAT(cellsOf(var), SameBits({1.0}));
    Columns<matrix> X(2, 1, {1, 5});
    M_MeanStDevVarSPV(X, 2, 1, mean, stdev, var, nullptr, column({1, 1}), 0, 0);
    EXPECT_THAT(cellsOf(var), SameBits({4.0}));
}

TEST(ColumnMoments, ANullStandardDeviationStaysNull)
{
    std::vector<short> mask(2, 0);
    Owned<matrix> mean, var;
    matrix* none = nullptr;
    M_MeanStDev(column({1, 3}), 2, 1, mean, none, mask.data(), column({1, 1}), 0, 0, 0);
    EXPECT_EQ(none, nullptr);
    EXPECT_THAT(cellsOf(mean), SameBits({2.0}));
    M_MeanStDevVar(column({1, 5}), 2, 1, mean, none, var, mask.data(), column({1, 1}), 0, 0);
    EXPECT_EQ(none, nullptr);
    EXPECT_THAT(joined(cellsOf(mean), cellsOf(var)), SameBits({3.0, 4.0}));
    M_MeanStDevByRow(byRows({{1, 3}}), 1, 2, mean, none, column({1, 1}), 0, 0);
    EXPECT_EQ(none, nullptr);
    EXPECT_THAT(cellsOf(mean), SameBits({2.0}));
}

TEST(ColumnMoments, PrepareTheirResults)
{
    std::vector<short> mask(2, 0);
    Owned<matrix> mean = filled(3, 2, 7.0), stdev = filled(1, 1, 7.0), var = filled(4, 1, 7.0);
    matrix* const kept = mean.get();
    M_MeanStDevVar(byColumns({{1, 3}, {5, 9}}), 2, 2, mean, stdev, var, mask.data(), column({1, 1}), 0, 0);
    EXPECT_EQ(mean.get(), kept);
    EXPECT_THAT(cellsOf(mean), SameBits({2.0, 7.0, 7.0, 7.0, 7.0, 7.0}));
    EXPECT_THAT(cellsOf(stdev), SameBits({1.0, 2.0}));
    EXPECT_THAT(cellsOf(var), SameBits({1.0, 4.0, 7.0, 7.0}));
    M_MeanStDev(byColumns({{1, 3}, {5, 9}}), 2, 2, mean, var.reference(), mask.data(), column({1, 1}), 0, 0, 0);
    EXPECT_THAT(cellsOf(var), SameBits({1.0, 2.0, 7.0, 7.0}));
}

TEST(ColumnMoments, TheDimensionsPassedDriveTheLoops)
{
    std::vector<short> mask(3, 0);
    Owned<matrix> mean, stdev = filled(2, 1, 0.0);
    M_MeanStDev(byColumns({{1, 3, 90}, {5, 9, 90}, {90, 90, 90}}), 2, 2, mean, stdev, mask.data(), column({1, 1}), 0, 0,
                0);
    EXPECT_THAT(joined(cellsOf(mean), cellsOf(stdev)), SameBits({2.0, 7.0, 1.0, 2.0}));
    // A row too many is read from the next column of a table, and as -1.0 past the end.
    M_MeanStDev(byColumns({{1, 3}, {5, 9}}), 3, 2, mean, stdev, mask.data(), column({1, 1, 1}), 0, 0, 0);
    EXPECT_THAT(cellsOf(mean), SameBits({3.0, 7.0 + (-8.0 * 1.0) / 3.0}));
    Columns<matrix> X(2, 2, {1, 3, 5, 9});
    M_MeanStDevSPV(X, 3, 2, mean, stdev, mask.data(), column({1, 1, 1}), 0, 0, 0);
    EXPECT_THAT(cellsOf(mean), SameBits({1.0, 7.0 + (-8.0 * 1.0) / 3.0}));
    // A short table of weights reads -1.0 as well.
    M_MeanStDev(column({1, 3, 5}), 3, 1, mean, stdev, mask.data(), column({1, 2}), 0, 0, 0);
    EXPECT_THAT(cornerOf(mean, 1, 1), SameBits({(1.0 + (2.0 * 2.0) / 3.0) + (5.0 - (1.0 + 4.0 / 3.0)) * -1.0 / 2.0}));
    // Nothing requested.
    EXPECT_EQ(M_MeanStDev(column({1}), 1, 0, mean, stdev, mask.data(), column({1}), 0, 0, 0), 0);
    EXPECT_EQ(M_MeanStDev(column({1}), -1, -1, mean, stdev, mask.data(), nullptr, 0, 0, 0), 0);
}

TEST(ColumnMomentExports, WriteIntoTheCallersArrays)
{
    RandomData data(72);
    SCOPED_TRACE(data);
    const int n = 11, p = 5;
    Guarded<double> X(data.withMissing(data.normals(n * p), 0.2));
    Guarded<double> w(data.weights(n, 0.2));
    Guarded<short> mask(data.mask(n, 0.2));
    Guarded<double> mean(data.leftovers(p)), stdev(data.leftovers(p)), var(data.leftovers(p));
    const Data d{n, p, X.values(), mask.values(), w.values()};

    EXPECT_EQ(VB_M_MeanStDev(X, n, p, mean, stdev, mask, w, -1, 0, 0), 0);
    EXPECT_THAT(joined(mean.values(), stdev.values()), SameBits(meanStDev(d, {-1, 0, 0})));
    EXPECT_EQ(VB_M_MeanStDev(X, n, p, mean, stdev, nullptr, nullptr, -1, -1, -1), 0);
    const Data all{n, p, X.values(), std::vector<short>(n, 0), std::vector<double>(n, 1.0)};
    EXPECT_THAT(joined(mean.values(), stdev.values()), SameBits(meanStDev(all, {-1, -1, 0})));
    EXPECT_EQ(VB_M_MeanStDev(X, n, p, mean, nullptr, mask, w, -1, 0, 0), 0);

    EXPECT_EQ(VB_M_MeanStDevVar(X, n, p, mean, stdev, var, mask, w, -1, -1), 0);
    EXPECT_THAT(joined(joined(mean.values(), stdev.values()), var.values()), SameBits(meanStDevVar(d, {-1, -1, 0})));
    EXPECT_TRUE(X.untouched() && w.untouched() && mask.untouched());
}
