// Sums whose last bit tells the order of their terms and whether a product was rounded before it was added, against plain
// loops over random numbers: many short columns, as a square root or a quotient hides most of the differences.
#include "descriptive/conditional_moments.h"
#include "descriptive/forecast_errors.h"
#include "descriptive/means.h"
#include "descriptive/rescaling.h"
#include "descriptive/robust_statistics.h"
#include "descriptive/shape_moments.h"
#include "descriptive/triangular_fit.h"

#include "base/detail/mathematics/mathematics.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <vector>

using namespace vecmat::test;

namespace {

constexpr int turns = 200;
constexpr int n = 12;
using Cells = std::vector<double>;

// A product is stored before it is added, so that no compiler fuses the two.

TEST(VMeanIfW, AddsRoundedProductsInTheOrderOfTheRows)
{
    RandomData data(20611);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < turns; ++turn) {
        const Cells v = data.withMissing(data.ofManySizes(n), 0.1);
        const Cells g = data.wholes(n, 1, 2);
        const Cells w = data.weights(n, 0.1);
        double sum = 0.0, weighted = 0.0, W = 0.0;
        int rows = 0;
        for (std::size_t i = 0; i < v.size(); ++i) {
            if (g[i] != 2.0 || v[i] == M)
                continue;
            sum += v[i];
            ++rows;
            if (w[i] > 0.0) {
                const double product = w[i] * v[i];
                weighted += product;
                W += w[i];
            }
        }
        EXPECT_THAT(V_MeanIf(column(v), n, column(g), 2.0), SameBits(rows > 0 ? sum / rows : M));
        EXPECT_THAT(V_MeanIfW(column(v), n, column(g), column(w), 2.0), SameBits(W > 0.0 ? weighted / W : M));
    }
}

TEST(VMeanAbsDev, AddsRoundedProductsInTheOrderOfTheRows)
{
    RandomData data(20612);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < turns; ++turn) {
        const Cells v = data.withMissing(data.ofManySizes(n), 0.1);
        const Cells w = data.weights(n, 0.1);
        const double centre = data.normal();
        double sum = 0.0, W = 0.0;
        for (std::size_t i = 0; i < v.size(); ++i) {
            if (v[i] == M)
                continue;
            const double product = w[i] * std::fabs(v[i] - centre);
            W += w[i];
            sum += product;
        }
        std::vector<short> mask(n, 0);
        EXPECT_THAT(V_MeanAbsDev(column(v), n, centre, mask.data(), column(w)), SameBits(sum / W));
    }
}

TEST(MColSum2, AddsInTheOrderOfTheRows)
{
    RandomData data(20613);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < turns; ++turn) {
        const Cells x = data.withMissing(data.ofManySizes(n), 0.1);
        double sum = 0.0;
        for (const double cell : x)
            if (cell != M)
                sum += cell;
        EXPECT_THAT(M_ColSum2(column(x), n, 1), SameBits(sum));
    }
}

TEST(RMSE, AddsRoundedSquaresInTheOrderOfTheRows)
{
    RandomData data(20614);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < turns; ++turn) {
        const Cells y = data.ofManySizes(n), f = data.ofManySizes(n);
        double sum = 0.0;
        for (std::size_t i = 0; i < y.size(); ++i) {
            const double square = (y[i] - f[i]) * (y[i] - f[i]);
            sum += square;
        }
        EXPECT_THAT(RMSE(column(y), n, 1, column(f), n), SameBits(std::sqrt(sum / n)));
    }
}

TEST(MNormalize, AddsRoundedProductsInTheOrderOfTheRows)
{
    RandomData data(20615);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < turns; ++turn) {
        const Cells x = data.ofManySizes(n), w = data.weights(n);
        double sum = 0.0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            const double product = x[i] * x[i] * w[i];
            sum += product;
        }
        auto X = column(x);
        Owned<matrix> norms;
        std::vector<short> mask(n, 0);
        M_Normalize(X.reference(), n, 1, norms.reference(), mask.data(), column(w));
        EXPECT_THAT(cellsOf(norms), SameBits({std::sqrt(sum)}));
    }
}

TEST(VMeanVarSkewPKurtP, UpdatesTheThirdPowersByRoundedProducts)
{
    RandomData data(20616);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < 10 * turns; ++turn) {
        const Cells x = data.ofManySizes(3), w = data.weights(3);
        double W = 0, mean = 0, M2 = 0, M3 = 0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            W += w[i];
            const double f = w[i] / W, d = x[i] - mean, square = f * f;
            const double t = f * 3.0 * d * M2, threeShares = f * 3.0;
            const double own = (square + square + (1.0 - threeShares)) * vecmat::pow(d, 3.0) * w[i];
            const double deviations = (1.0 - f) * d * d * w[i], step = d * f;
            M3 = (M3 - t) + own;
            M2 += deviations;
            mean += step;
        }
        double results[8];
        std::vector<short> mask(3, 0);
        V_MeanVarSkewPKurtP(column(x), 3, &results[0], &results[1], &results[2], &results[3], &results[4], &results[5],
                            &results[6], &results[7], mask.data(), column(w), 0, -1);
        EXPECT_THAT(results[0], SameBits(mean));
        EXPECT_THAT(results[1], SameBits(M2 / W));
        EXPECT_THAT(results[2], SameBits(M3 / W / vecmat::pow(M2 / W, 1.5)));
    }
}

TEST(VHarmonicMean, AddsQuotientsInTheOrderOfTheRows)
{
    RandomData data(20617);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < turns; ++turn) {
        const Cells x = data.ofManySizes(n), w = data.weights(n);
        double W = 0.0, quotients = 0.0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            W += w[i];
            quotients += w[i] / x[i];
        }
        std::vector<short> mask(n, 0);
        EXPECT_THAT(V_HarmonicMean(column(x), n, mask.data(), column(w)), SameBits(W / quotients));
    }
}

TEST(TriangularFuncDeriv, RoundsEachProductAndAddsFromLeftToRight)
{
    RandomData data(20618);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < turns; ++turn) {
        const Cells x = data.ofManySizes(4);
        const double b = x[0], x1 = x[1], m = x[2], x2 = x[3];
        const double p1 = data.uniform(0.05, 0.45), p2 = data.uniform(0.55, 0.95);
        const double r = 1.0 - p2, d = m - b;
        const double square = x2 * x2, linear = (r * m - (x2 + x2)) * b, ofB = b * b * p2;
        const double numerator = (square + linear) + ofB;
        const double denominator = r * d, doubled = (b + b) * p2, share = r * m;
        const double slope = (((doubled + share) - (x2 + x2)) * d + numerator) / (d * denominator);
        const double a = numerator / denominator;
        const double expected =
            (((m - a) * p1 - b * p1 * slope) - (1.0 - p1) * ((a + a) * slope)) - (m * p1 - (x1 + x1)) * slope;
        EXPECT_THAT(TriangularFuncDeriv(b, x1, m, x2, p1, p2), SameBits(expected));
    }
}

TEST(TriangularQFindAB, TakesTheLowerEndFromTheUpperByRoundedProducts)
{
    RandomData data(20619);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < turns; ++turn) {
        const double x1 = data.uniform(0.5, 2.0), m = x1 + data.uniform(0.1, 2.0), x2 = m + data.uniform(0.1, 2.0);
        const double p1 = data.uniform(0.05, 0.3), p2 = data.uniform(0.7, 0.95), r = 1.0 - p2;
        double a = 0.0, b = 0.0;
        TriangularQFindAB(x1, m, x2, p1, p2, &a, &b);
        const double square = x2 * x2, ofB = b * b * p2, twice = x2 * -2.0, share = r * m;
        EXPECT_THAT(a, SameBits(((square + ofB) + (twice + share) * b) / (r * (m - b))));
    }
}

} // namespace
