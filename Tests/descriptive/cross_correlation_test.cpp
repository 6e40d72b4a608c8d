// Covariances and correlations between two tables, and of two vectors.
#include "descriptive/cross_correlation.h"

#include "descriptive/pair_reference.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();

struct Options
{
    short corr = 0;
    short square = 0;
    Divisor divisor = {};
    short zeroForMissing = 0;
};

/// Mask and weights are those of x.
std::vector<double> corrMatMat(Observations x, const Observations& y, Options o)
{
    Owned<matrix> C;
    EXPECT_EQ(M_CorrMatMat(table(x.n, x.p, x.cells), x.n, x.p, table(y.n, y.p, y.cells), y.p, C, x.mask.data(),
                           column(x.w), o.corr, o.square, o.divisor.sample, o.divisor.freqWeights, o.zeroForMissing),
              0);
    EXPECT_EQ(C->nRows, x.p);
    EXPECT_EQ(C->nCols, y.p);
    return cellsOf(C);
}

std::vector<double> corrMatMatColumns(Observations x, const Observations& y, Options o)
{
    TableColumns X(x.columns());
    Owned<matrix> C;
    EXPECT_EQ(M_CorrMatMatSPV(X, x.n, x.p, table(y.n, y.p, y.cells), y.p, C, x.mask.data(), column(x.w), o.corr,
                              o.square, o.divisor.sample, o.divisor.freqWeights, o.zeroForMissing),
              0);
    return cellsOf(C);
}

std::vector<double> expected(const Observations& x, const Observations& y, Options o)
{
    std::vector<double> C(static_cast<std::size_t>(x.p) * static_cast<std::size_t>(y.p));
    std::vector<double> vx(static_cast<std::size_t>(x.p)), vy(static_cast<std::size_t>(y.p));
    for (int j = 0; j < x.p; ++j)
        for (int k = 0; k < y.p; ++k) {
            const PlainPair pair = plainPair(x.column(j), y.column(k), x.mask, x.w);
            const double D = pair.divisor(o.divisor);
            C[at(j, k, x.p)] = pair.S / D;
            vx[static_cast<std::size_t>(j)] = pair.Qx / D; // overwritten by each pair
            vy[static_cast<std::size_t>(k)] = pair.Qy / D;
        }
    for (std::size_t c = 0; o.corr != 0 && c < C.size(); ++c) {
        const double v = vx[c % vx.size()] * vy[c / vx.size()];
        if (!(std::fabs(v) - 1e-12 > 0.0)) {
            C[c] = o.zeroForMissing != 0 ? 0.0 : M;
            continue;
        }
        C[c] = C[c] / std::sqrt(v);
        if (o.square != 0)
            C[c] = C[c] * C[c];
    }
    return C;
}

TEST(MCorrMatMat, FollowsThePlainPassToTheLastBitFromTableAndColumns)
{
    RandomData random(661);
    SCOPED_TRACE(random);
    for (const int n : {0, 1, 6, 21})
        for (const int p : {1, 3})
            for (const int q : {1, 2, 6}) {
                const Observations x = randomObservations(random, n, p), y = randomObservations(random, n, q);
                for (const Divisor divisor : allDivisors)
                    for (const short corr : {0, 1, -1})
                        for (const short square : {0, 1}) {
                            const Options options{corr, square, divisor, square};
                            const std::vector<double> wanted = expected(x, y, options);
                            EXPECT_THAT(corrMatMat(x, y, options), SameBits(wanted));
                            EXPECT_THAT(corrMatMatColumns(x, y, options), SameBits(wanted));
                        }
            }
}

TEST(MCorrMatMat, TheVarianceIsThatOfTheLastPair)
{
    // Column 1 of Y lacks the row that gives X its spread in column 2 of Y.
    const Observations x = observations({{1, 3, 2, 8}});
    const Observations y = observations({{1, 3, 2, M}, {1, 3, 2, 4}});
    const double S = 2.0 / 3, vxLast = 29.0 / 4, vy = 2.0 / 3; // n = 3, 4, 3
    const std::vector<double> r = corrMatMat(x, y, {1, 0, {0, 0}, 0});
    EXPECT_NEAR(r[0], S / std::sqrt(vxLast * vy), 1e-15); // over its own rows it would be 1
    // With the columns of Y exchanged the first is the last.
    const Observations exchanged = observations({{1, 3, 2, 4}, {1, 3, 2, M}});
    EXPECT_NEAR(corrMatMat(x, exchanged, {1, 0, {0, 0}, 0})[1], 1.0, 1e-15);
    // Likewise a column of Y takes its variance from the last column of X.
    EXPECT_NEAR(corrMatMat(y, x, {1, 0, {0, 0}, 0})[0], S / std::sqrt(vxLast * vy), 1e-15);
}

TEST(MCorrMatMat, AnyCorrButZeroAndAnySquareButZero)
{
    const Observations x = observations({{1, 2, 4}}), y = observations({{3, 1, 1}});
    const double r = corrMatMat(x, y, {1, 0})[0];
    EXPECT_LT(r, 0.0);
    EXPECT_THAT(corrMatMat(x, y, {-1, 0})[0], SameBits(r));
    EXPECT_THAT(corrMatMat(x, y, {1, 1})[0], SameBits(r * r));
    EXPECT_THAT(corrMatMat(x, y, {1, -1})[0], SameBits(r * r));
    EXPECT_THAT(corrMatMat(x, y, {0, 1}), SameBits(corrMatMat(x, y, {0, 0}))); // covariances are not squared
}

TEST(MCorrMatMat, FallsBackWhereTheVariancesMultiplyToNothing)
{
    const Observations constant = observations({{4, 4, 4}}), varying = observations({{1, 2, 4}});
    for (const short square : {0, 1}) {
        EXPECT_THAT(corrMatMat(constant, varying, {1, square, {}, 0}), SameBits({M})); // not squared
        EXPECT_THAT(corrMatMat(constant, varying, {1, square, {}, 1}), SameBits({0.0}));
        EXPECT_THAT(corrMatMat(constant, varying, {1, square, {}, -1}), SameBits({0.0}));
    }
    // Variances 1 and 1e-12: their product less 1e-12 is not above 0; a little more is.
    const Observations unit = observations({{-1, 1}});
    const double root = 1e-6;
    Observations small = observations({{-root, root}});
    ASSERT_LE(plainVariances(small, {0, 0})[0], 1e-12);
    EXPECT_THAT(corrMatMat(unit, small, {1, 0, {0, 0}, 0}), SameBits({M}));
    small = observations({{-1.1e-6, 1.1e-6}});
    EXPECT_NEAR(corrMatMat(unit, small, {1, 0, {0, 0}, 0})[0], 1.0, 1e-12);
}

TEST(MCorrMatMat, TheDivisorIsNotTested)
{
    Observations none = observations({{1, 2}});
    none.mask = {1, 1};
    const Observations y = observations({{3, 5}});
    EXPECT_THAT(corrMatMat(none, y, {0, 0, {-1, 0}, 1}), SameBits({notANumber}));
    EXPECT_THAT(corrMatMat(none, y, {0, 0, {-1, -1}, 1}), SameBits({-0.0}));
    // |NaN| - 1e-12 is not above 0, unlike in the forms for one table.
    EXPECT_THAT(corrMatMat(none, y, {1, 0, {-1, 0}, 0}), SameBits({M}));
    EXPECT_THAT(corrMatMat(none, y, {1, 0, {-1, 0}, 1}), SameBits({0.0}));
    // A negative product passes by its magnitude and has no root.
    Observations light = observations({{1, 3, M}, {1, 3, 5}});
    light.w = {0.25, 0.25, 2};
    const Observations both = observations({{1, 3, M}, {1, 3, 5}});
    EXPECT_THAT(corrMatMat(light, both, {1, 0, {-1, -1}, 1})[1], SameBits(notANumber));
}

TEST(MCorrMatMat, KeepsALargerResultAndReadsMinusOnePastATable)
{
    Owned<matrix> C = filled(3, 2, 9.0);
    M_CorrMatMat(byColumns({{1, 3}, {2, 6}}), 2, 2, column({1, 5}), 1, C, nullptr, column({1, 1}), 0, 0, 0, 0, 0);
    EXPECT_THAT(cellsOf(C), SameBits({2, 4, 9, 9, 9, 9}));
    TableColumns shortColumn(std::vector<std::vector<double>>{{1}});
    M_CorrMatMatSPV(shortColumn, 2, 1, column({1, 5}), 1, C, nullptr, column({1, 1}), 0, 0, 0, 0, 0);
    EXPECT_THAT(C->X[0], SameBits(-2.0));
    M_CorrMatMat(column({1}), 2, 1, column({1, 5}), 1, C, nullptr, column({1, 1}), 0, 0, 0, 0, 0);
    EXPECT_THAT(C->X[0], SameBits(-2.0));
}

TEST(VBMCorrMatMat, AreTheComputingFunctions)
{
    RandomData random(662);
    SCOPED_TRACE(random);
    const int n = 9, p = 3, q = 2;
    Observations x = randomObservations(random, n, p);
    const Observations y = randomObservations(random, n, q);
    for (const short corr : {0, 1})
        for (const short square : {0, 1}) {
            const std::vector<double> wanted = corrMatMat(x, y, {corr, square, {-1, 0}, 0});
            Guarded<double> X(x.cells), Y(y.cells), w(x.w), C(random.leftovers(6)), D(random.leftovers(6));
            Guarded<short> mask(x.mask);
            EXPECT_EQ(VB_M_CorrMatMat(X, n, p, Y, q, C, mask, w, corr, square, -1, 0), 0);
            EXPECT_THAT(C.values(), SameBits(wanted));
            ArrayOfColumns columns(x.columns());
            EXPECT_EQ(VB_M_CorrMatMatSPV(columns, n, p, Y, q, D, mask, w, corr, square, -1, 0), 0);
            EXPECT_THAT(D.values(), SameBits(wanted));
            EXPECT_TRUE(X.untouched() && Y.untouched() && w.untouched() && columns.untouched());
        }
    Guarded<double> X{4, 4}, Y{1, 3}, w{1, 1}, C(1, 9.0);
    VB_M_CorrMatMat(X, 2, 1, Y, 1, C, nullptr, w, 1, 0, -1, -1);
    EXPECT_THAT(C.values(), SameBits({M}));
    ArrayOfColumns constant(std::vector<std::vector<double>>{{4, 4}});
    Guarded<double> D(1, 9.0);
    VB_M_CorrMatMatSPV(constant, 2, 1, Y, 1, D, nullptr, w, 1, 0, -1, -1);
    EXPECT_THAT(D.values(), SameBits({M}));
}

double pearson(const std::vector<double>& x, const std::vector<double>& y, short zeroForMissing = 0)
{
    return CorrelPearson(column(x), column(y), static_cast<int>(x.size()), nullptr,
                         column(std::vector<double>(x.size(), 1.0)), -1, -1, zeroForMissing);
}

TEST(CorrelPearson, FollowsThePlainPassWhateverTheDivisor)
{
    RandomData random(663);
    SCOPED_TRACE(random);
    for (int round = 0; round < 20; ++round) {
        Observations data = randomObservations(random, 14, 2);
        const PlainPair pair = plainPair(data, 0, 1);
        const double r = pair.S / std::sqrt(pair.Qx * pair.Qy);
        for (const Divisor divisor : allDivisors)
            EXPECT_THAT(CorrelPearson(column(data.column(0)), column(data.column(1)), 14, data.mask.data(),
                                      column(data.w), divisor.sample, divisor.freqWeights, 0),
                        SameBits(r));
        Guarded<double> x(data.column(0)), y(data.column(1)), w(data.w);
        EXPECT_THAT(VB_CorrelPearson(x, y, 14, data.mask.data(), w, 0, 0), SameBits(r));
        EXPECT_TRUE(x.untouched() && y.untouched() && w.untouched());
    }
}

TEST(CorrelPearson, OfTwoConstantVectorsIsOne)
{
    EXPECT_THAT(pearson({2, 2, 2}, {5, 5, 5}), SameBits(1.0));
    EXPECT_THAT(pearson({2}, {5}), SameBits(1.0));
    EXPECT_THAT(pearson({2, 2, M, 3}, {5, 5, 6, M}), SameBits(1.0)); // over the common rows
    Guarded<double> x{2, 2}, y{5, 5}, w{1, 1};
    EXPECT_THAT(VB_CorrelPearson(x, y, 2, nullptr, w, -1, -1), SameBits(1.0));
    // Rows of no weight are rows, but move nothing.
    EXPECT_THAT(CorrelPearson(column({1, 2}), column({1, 2}), 2, nullptr, column({0, 0}), 0, 0, 0), SameBits(1.0));
}

TEST(CorrelPearson, WithOneConstantVectorFallsBack)
{
    EXPECT_THAT(pearson({2, 2, 2}, {5, 6, 7}), SameBits(M));
    EXPECT_THAT(pearson({5, 6, 7}, {2, 2, 2}), SameBits(M));
    EXPECT_THAT(pearson({2, 2, 2}, {5, 6, 7}, -1), SameBits(0.0));
    EXPECT_THAT(pearson({2, 2, 2}, {5, 6, 7}, 1), SameBits(M)); // only -1 asks for 0.0
    Guarded<double> x{2, 2}, y{5, 6}, w{1, 1};
    EXPECT_THAT(VB_CorrelPearson(x, y, 2, nullptr, w, -1, -1), SameBits(M));
}

TEST(CorrelPearson, WithoutRowsIsZero)
{
    EXPECT_THAT(pearson({}, {}), SameBits(0.0));
    EXPECT_THAT(pearson({M, 1}, {1, M}), SameBits(0.0));
    std::vector<short> mask{1, -1};
    EXPECT_THAT(CorrelPearson(column({1, 2}), column({1, 2}), 2, mask.data(), column({1, 1}), 0, 0, 0), SameBits(0.0));
    EXPECT_THAT(CorrelPearson(column({1, 2}), column({1, 2}), -3, mask.data(), column({1, 1}), 0, 0, 0), SameBits(0.0));
    EXPECT_THAT(VB_CorrelPearson(nullptr, nullptr, 0, nullptr, nullptr, 0, 0), SameBits(0.0));
}

TEST(CorrelPearson, WithoutCrossProductIsZero)
{
    EXPECT_THAT(pearson({-1, 1, -1, 1}, {-1, -1, 1, 1}), SameBits(0.0));
    // A sum of -0.0 is a zero, too.
    EXPECT_FALSE(std::signbit(pearson({-1, 1, -1, 1}, {1, 1, -1, -1})));
    EXPECT_THAT(pearson({1, 3, 2}, {2, 6, 4}), SameBits(1.0));
    EXPECT_TRUE(std::isnan(pearson({1, notANumber, 2}, {2, 6, 4})));
    EXPECT_TRUE(std::isnan(pearson({1, inf, 2}, {2, 6, 4})));
}

TEST(CorrelPearson, PastAVectorItReadsMinusOne)
{
    EXPECT_THAT(CorrelPearson(column({1}), column({2, 8}), 2, nullptr, column({1, 1}), 0, 0, 0), SameBits(-1.0));
}

} // namespace
} // namespace vecmat::test
