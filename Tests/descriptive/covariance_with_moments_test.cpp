// Covariances or correlations with the moments of the columns, square and packed; the standardised columns.
#include "descriptive/covariance_with_moments.h"

#include "descriptive/covariance.h"
#include "descriptive/pair_reference.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <vector>

namespace vecmat::test {
namespace {

struct Options
{
    short corr = 0;
    Divisor divisor = {};
    short center = 0;
    short reduce = 0;
    short zeroForMissing = 0;
};

struct Results
{
    std::vector<double> C, mean, stdev, var, X;
};

using Function = decltype(M_CovCorrAndMeanStDevVar);

Results compute(Function function, Observations d, Options o)
{
    Owned<matrix> X = table(d.n, d.p, d.cells), C, mean, stdev, var;
    EXPECT_EQ(function(X, d.n, d.p, C, mean, stdev, var, o.corr, d.mask.data(), column(d.w), o.divisor.sample,
                       o.divisor.freqWeights, o.center, o.reduce, o.zeroForMissing),
              0);
    return {cellsOf(C), cellsOf(mean), cellsOf(stdev), cellsOf(var), cellsOf(X)};
}

Results square(const Observations& d, Options o)
{
    return compute(M_CovCorrAndMeanStDevVar, d, o);
}

Results packed(const Observations& d, Options o)
{
    return compute(M_CovCorrVAndMeanStDevVar, d, o);
}

/// The lower triangle of a square table, by rows.
std::vector<double> packedFrom(const std::vector<double>& C, int p)
{
    std::vector<double> cells;
    for (int row = 0; row < p; ++row)
        for (int col = 0; col <= row; ++col)
            cells.push_back(C[at(row, col, p)]);
    return cells;
}

double standardised(double x, bool kept, double mean, double var, Options o)
{
    const bool present = kept && x != M;
    if (o.center == -1 && o.reduce == -1) {
        if (var > 0.0 && present)
            return (x - mean) / std::sqrt(var);
        return var == 0.0 ? 0.0 : M;
    }
    if (o.center == -1)
        return present ? x - mean : M;
    if (o.reduce == -1)
        return var > 0.0 && present ? x / std::sqrt(var) : M;
    return x;
}

Results expected(const Observations& d, Options o)
{
    Results r{std::vector<double>(at(0, d.p, d.p)), {}, {}, {}, {}};
    for (int j = 0; j < d.p; ++j)
        for (int k = j; k < d.p; ++k) {
            const PlainPair pair = plainPair(d, j, k, Factor::magnitude);
            const double cell = pair.Q / pair.divisor(o.divisor);
            r.C[at(j, k, d.p)] = r.C[at(k, j, d.p)] = cell;
            if (k > j)
                continue;
            r.mean.push_back(pair.meanX);
            r.var.push_back(cell);
            r.stdev.push_back(std::sqrt(cell));
        }
    for (int j = 0; j < d.p; ++j)
        for (int k = j; o.corr == -1 && k < d.p; ++k) {
            const double product = r.var[static_cast<std::size_t>(j)] * r.var[static_cast<std::size_t>(k)];
            double cell = j == k ? 1.0 : r.C[at(j, k, d.p)] / std::sqrt(product);
            if (product <= 0.0)
                cell = o.zeroForMissing != 0 ? 0.0 : M;
            r.C[at(j, k, d.p)] = r.C[at(k, j, d.p)] = cell;
        }
    for (std::size_t k = 0; k < d.cells.size(); ++k) {
        const std::size_t i = k % d.mask.size(), j = k / d.mask.size();
        r.X.push_back(standardised(d.cells[k], d.mask[i] == 0, r.mean[j], r.var[j], o));
    }
    return r;
}

void expectSame(const Results& actual, const Results& wanted)
{
    EXPECT_THAT(actual.C, SameBits(wanted.C));
    EXPECT_THAT(actual.mean, SameBits(wanted.mean));
    EXPECT_THAT(actual.stdev, SameBits(wanted.stdev));
    EXPECT_THAT(actual.var, SameBits(wanted.var));
    EXPECT_THAT(actual.X, SameBits(wanted.X));
}

TEST(MCovCorrAndMeanStDevVar, FollowsThePlainPassToTheLastBitSquareAndPacked)
{
    RandomData random(651);
    SCOPED_TRACE(random);
    for (const int n : {0, 1, 5, 19})
        for (const int p : {1, 2, 6}) {
            const Observations data = randomObservations(random, n, p);
            for (const Divisor divisor : allDivisors)
                for (const short corr : {0, 1, -1})
                    for (const short center : {0, -1, 1})
                        for (const short reduce : {0, -1, 1}) {
                            const Options options{corr, divisor, center, reduce, center};
                            Results wanted = expected(data, options);
                            expectSame(square(data, options), wanted);
                            wanted.C = packedFrom(wanted.C, p);
                            expectSame(packed(data, options), wanted);
                        }
        }
}

TEST(MCovCorrAndMeanStDevVar, TakesTheMagnitudeOfTheFactor)
{
    // W is 1 at the second row: f = -1 - 1/1 = -2. The plain form has Q = -2 * 4, this one 2 * 4.
    Observations data = observations({{1, 3}});
    data.w = {2, -1};
    EXPECT_THAT(square(data, {0, {0, 0}}).var, SameBits({8.0}));
    EXPECT_THAT(packed(data, {0, {0, 0}}).C, SameBits({8.0}));
    Owned<matrix> X = column({1, 3}), C;
    M_CovCorr(X, 2, 1, C, 0, nullptr, column(data.w), 0, 0, 0);
    EXPECT_THAT(cellsOf(C), SameBits({-8.0}));
}

TEST(MCovCorrAndMeanStDevVar, OnlyMinusOneGivesCorrelations)
{
    const Observations data = observations({{1, 2, 4}, {3, 1, 1}});
    EXPECT_THAT(square(data, {1}).C, SameBits(square(data, {0}).C));
    EXPECT_THAT(packed(data, {1}).C, SameBits(packed(data, {0}).C));
    EXPECT_THAT(square(data, {-1}).C[0], SameBits(1.0));
    EXPECT_NE(square(data, {0}).C[0], 1.0);
}

TEST(MCovCorrAndMeanStDevVar, DoesNotLookForColumnsWithoutRows)
{
    const Observations data = observations({{M, M, M}, {1, 2, 4}});
    const double variance = plainVariances(data, {})[1];
    // 0/0, where the form without moments falls back.
    const Results r = square(data, {0, {}, 0, 0, 1});
    EXPECT_THAT(r.C, SameBits({notANumber, notANumber, notANumber, variance}));
    EXPECT_THAT(r.mean[0], SameBits(0.0));
    EXPECT_THAT(r.var[0], SameBits(notANumber));
    EXPECT_THAT(r.stdev[0], SameBits(notANumber));
    // W - 1 is -1.
    EXPECT_THAT(packed(data, {0, {-1, -1}}).C, SameBits({-0.0, -0.0, variance}));
    // A NaN is not 0 or below.
    EXPECT_THAT(square(data, {-1, {}, 0, 0, 1}).C, SameBits({1, notANumber, notANumber, 1}));
    // Standardised, its cells are missing by every rule.
    for (const Options& o : {Options{0, {}, -1, -1}, Options{0, {}, 0, -1}, Options{0, {}, -1, 0}})
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_THAT(square(data, o).X[i], SameBits(M));
}

TEST(MCovCorrAndMeanStDevVar, AProductOfZeroOrBelowHasNoCorrelation)
{
    Observations light = observations({{1, 3, M}, {1, 3, 5}});
    light.w = {0.25, 0.25, 2};
    // The variances differ in sign; the form without moments computes a NaN here.
    EXPECT_THAT(square(light, {-1, {-1, -1}}).C, SameBits({1, M, M, 1}));
    EXPECT_THAT(packed(light, {-1, {-1, -1}, 0, 0, 1}).C, SameBits({1, 0, 1}));
    EXPECT_THAT(square(light, {-1, {-1, -1}}).stdev[0], SameBits(notANumber));
    const Observations constant = observations({{7, 7}, {1, 3}});
    EXPECT_THAT(square(constant, {-1}).C, SameBits({M, M, M, 1}));
    EXPECT_THAT(square(constant, {-1, {}, 0, 0, 2}).C, SameBits({0, 0, 0, 1}));
}

TEST(MCovCorrAndMeanStDevVar, AColumnWithoutSpreadBecomesZeroOnlyWhenCentredAndReduced)
{
    Observations data = observations({{5, 6, M, 5}, {1, 3, 2, M}});
    data.mask = {0, 1, 0, 0};
    // 0.0 throughout: the masked and the missing cell too.
    EXPECT_THAT(square(data, {0, {0, 0}, -1, -1}).X, SameBits({0, 0, 0, 0, -1, M, 1, M}));
    EXPECT_THAT(square(data, {0, {0, 0}, -1, 0}).X, SameBits({0, M, M, 0, -0.5, M, 0.5, M}));
    EXPECT_THAT(square(data, {0, {0, 0}, 0, -1}).X, SameBits({M, M, M, M, 2, M, 4, M}));
    EXPECT_THAT(packed(data, {0, {0, 0}, -1, -1}).X, SameBits({0, 0, 0, 0, -1, M, 1, M}));
    // Neither is -1.
    EXPECT_THAT(square(data, {0, {0, 0}, 1, 1}).X, SameBits(data.cells));
    // A negative variance has no root: missing, not 0.0.
    Observations light = observations({{1, 3}});
    light.w = {0.25, 0.25};
    EXPECT_THAT(square(light, {0, {-1, -1}, -1, -1}).X, SameBits({M, M}));
    EXPECT_THAT(square(light, {0, {-1, -1}, 0, -1}).X, SameBits({M, M}));
    EXPECT_THAT(square(light, {0, {-1, -1}, -1, 0}).X, SameBits({-1, 1}));
}

TEST(MCovCorrAndMeanStDevVar, StandardisingDoesNotReachThePairs)
{
    RandomData random(652);
    SCOPED_TRACE(random);
    const Observations data = randomObservations(random, 14, 5);
    const Results without = square(data, {-1, {}, 0, 0}), with = square(data, {-1, {}, -1, -1});
    EXPECT_THAT(with.C, SameBits(without.C));
    EXPECT_THAT(with.mean, SameBits(without.mean));
    EXPECT_THAT(with.var, SameBits(without.var));
}

TEST(MCovCorrAndMeanStDevVar, ANullMaskKeepsEveryRow)
{
    for (Function* const function : {M_CovCorrAndMeanStDevVar, M_CovCorrVAndMeanStDevVar}) {
        Owned<matrix> X = column({1, 3}), C, mean, stdev, var;
        function(X, 2, 1, C, mean, stdev, var, 0, nullptr, column({1, 1}), 0, 0, -1, 0, 0);
        EXPECT_THAT(cellsOf(C), SameBits({1.0}));
        EXPECT_THAT(cellsOf(mean), SameBits({2.0}));
        EXPECT_THAT(cellsOf(X), SameBits({-1, 1}));
    }
}

TEST(MCovCorrAndMeanStDevVar, PreparesItsResults)
{
    Owned<matrix> X = byColumns({{1, 3}, {2, 6}}), C = filled(1, 1, 9.0), mean = filled(1, 1, 9.0),
                  stdev = filled(3, 1, 9.0), var;
    M_CovCorrVAndMeanStDevVar(X, 2, 2, C, mean, stdev, var, 0, nullptr, column({1, 1}), 0, 0, 0, 0, 0);
    EXPECT_EQ(C->nRows, 3);
    EXPECT_EQ(C->nCols, 1);
    EXPECT_THAT(cellsOf(C), SameBits({1, 2, 4}));
    EXPECT_THAT(cellsOf(mean), SameBits({2, 4}));
    EXPECT_THAT(cellsOf(stdev), SameBits({1, 2, 9}));
    EXPECT_THAT(cellsOf(var), SameBits({1, 4}));
    Owned<matrix> S = filled(3, 3, 9.0);
    M_CovCorrAndMeanStDevVar(X, 2, 2, S, mean, stdev, var, 0, nullptr, column({1, 1}), 0, 0, 0, 0, 0);
    EXPECT_THAT(cellsOf(S), SameBits({1, 2, 0, 2, 4, 9, 9, 9, 9}));
}

TEST(MCovCorrAndMeanStDevVar, PastTheTableItReadsMinusOneAndWritesNothing)
{
    // Row 2 of column 1 is cell (1, 2), so that standardising column 1 changes what later pairs read.
    Owned<matrix> X = byColumns({{1}, {3}}), C, mean, stdev, var;
    M_CovCorrAndMeanStDevVar(X, 2, 2, C, mean, stdev, var, 0, nullptr, column({1, 1}), 0, 0, -1, 0, 0);
    EXPECT_THAT(cellsOf(mean), SameBits({2, 0})); // of (1, 3); then of (1, -1)
    EXPECT_THAT(cellsOf(C), SameBits({1, -2, -2, 1}));
    EXPECT_THAT(cellsOf(X), SameBits({-1, 1}));
}

TEST(MCovCorrAndMeanStDevVar, WithMoreRowsThanTheTableAChangedColumnReachesTheNext)
{
    RandomData random(652);
    SCOPED_TRACE(random);
    const int rows = 40, p = 6;
    for (const int n : {42, rows}) {
        Observations data = observations({random.normals(static_cast<std::size_t>(n))});
        data.w = random.weights(data.w.size(), 0.1);
        const std::vector<double> cells = random.normals(static_cast<std::size_t>(rows * p));
        // The plain order: the pairs of a column, then its own cells.
        Owned<matrix> X = table(rows, p, cells);
        const auto columnOf = [&](int j) {
            std::vector<double> column;
            for (int i = 1; i <= n; ++i)
                column.push_back(X->vbget(i, j + 1));
            return column;
        };
        std::vector<double> covariances(at(0, p, p));
        for (int j = 0; j < p; ++j) {
            for (int k = j; k < p; ++k) {
                const PlainPair pair = plainPair(columnOf(j), columnOf(k), data.mask, data.w, Factor::magnitude);
                covariances[at(j, k, p)] = covariances[at(k, j, p)] = pair.Q / pair.divisor({0, 0});
            }
            const double mean = plainPair(columnOf(j), columnOf(j), data.mask, data.w, Factor::magnitude).meanX;
            for (int i = 1; i <= n; ++i)
                X->vbset(i, j + 1, X->vbget(i, j + 1) - mean);
        }
        Owned<matrix> given = table(rows, p, cells), C, mean, stdev, var;
        M_CovCorrAndMeanStDevVar(given, n, p, C, mean, stdev, var, 0, data.mask.data(), column(data.w), 0, 0, -1, 0, 0);
        EXPECT_THAT(cellsOf(C), SameBits(covariances)) << n;
        EXPECT_THAT(cellsOf(given), SameBits(cellsOf(X))) << n;
    }
}

TEST(VBMCovCorrAndMeanStDevVar, HandsTheTableBackOnlyWhenStandardised)
{
    RandomData random(653);
    SCOPED_TRACE(random);
    const int n = 12, p = 4;
    const Observations data = randomObservations(random, n, p);
    for (const short corr : {0, -1})
        for (const short center : {0, -1, 1})
            for (const short reduce : {0, -1, 1}) {
                const Options options{corr, {-1, 0}, center, reduce};
                for (const bool isPacked : {false, true}) {
                    Guarded<double> X(data.cells), w(data.w), C(random.leftovers(isPacked ? 10 : 16)),
                        mean(random.leftovers(4)), stdev(random.leftovers(4)), var(random.leftovers(4));
                    Guarded<short> mask(data.mask);
                    const auto call = isPacked ? VB_M_CovCorrVAndMeanStDevVar : VB_M_CovCorrAndMeanStDevVar;
                    EXPECT_EQ(call(X, n, p, C, mean, stdev, var, corr, mask, w, -1, 0, center, reduce), 0);
                    expectSame({C.values(), mean.values(), stdev.values(), var.values(), X.values()},
                               isPacked ? packed(data, options) : square(data, options));
                    EXPECT_TRUE((center == -1 || reduce == -1) != X.untouched());
                    EXPECT_TRUE(w.untouched());
                }
            }
    EXPECT_EQ(VB_M_CovCorrVAndMeanStDevVar(nullptr, 0, 0, nullptr, nullptr, nullptr, nullptr, -1, nullptr, nullptr, -1,
                                           -1, -1, -1),
              0);
}

TEST(VBMCovCorrAndMeanStDevVar, FallsBackToTheMissingValue)
{
    Guarded<double> X{7, 7, 1, 3}, w{1, 1}, C(4, 9.0), V(3, 9.0), mean(2, 9.0), stdev(2, 9.0), var(2, 9.0);
    VB_M_CovCorrAndMeanStDevVar(X, 2, 2, C, mean, stdev, var, -1, nullptr, w, 0, 0, 0, 0);
    EXPECT_THAT(C.values(), SameBits({M, M, M, 1}));
    EXPECT_TRUE(X.untouched());
    VB_M_CovCorrVAndMeanStDevVar(X, 2, 2, V, mean, stdev, var, -1, nullptr, w, 0, 0, -1, -1);
    EXPECT_THAT(V.values(), SameBits({M, M, 1}));
    EXPECT_THAT(X.values(), SameBits({0, 0, -1, 1}));
    EXPECT_THAT(mean.values(), SameBits({7, 2}));
    EXPECT_THAT(stdev.values(), SameBits({0, 1}));
    EXPECT_THAT(var.values(), SameBits({0, 1}));
}

TEST(INDEX3, IsThePositionInThePackedTriangleInEitherOrder)
{
    EXPECT_EQ(INDEX3(1, 1), 1);
    EXPECT_EQ(INDEX3(3, 2), 5);
    EXPECT_EQ(INDEX3(2, 3), 5);
    int position = 0;
    for (int row = 1; row <= 12; ++row)
        for (int col = 1; col <= row; ++col) {
            EXPECT_EQ(INDEX3(row, col), ++position);
            EXPECT_EQ(INDEX3(col, row), position);
        }
    EXPECT_EQ(INDEX3(65535, 65535), 2147450880);
}

} // namespace
} // namespace vecmat::test
