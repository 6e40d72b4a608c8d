// Skewness and kurtosis.
#include "base/detail/mathematics/mathematics.h"
#include "descriptive/shape_moments.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

using namespace vecmat::test;

namespace {

constexpr double untouched = 123456.0;
constexpr double inf = std::numeric_limits<double>::infinity();

struct Shape
{
    double mean = untouched, var = untouched, skewP = untouched, kurtP = untouched;
    double skewS = untouched, kurtS = untouched, seSkew = untouched, seKurt = untouched;

    std::vector<double> all() const { return {mean, var, skewP, kurtP, skewS, kurtS, seSkew, seKurt}; }
};

Shape shape(const std::vector<double>& x, std::vector<short> mask, const std::vector<double>& w, short sample,
            short freqWeights)
{
    Shape s;
    V_MeanVarSkewPKurtP(column(x), static_cast<int>(x.size()), &s.mean, &s.var, &s.skewP, &s.kurtP, &s.skewS, &s.kurtS,
                        &s.seSkew, &s.seKurt, mask.data(), column(w), sample, freqWeights);
    return s;
}

/// With unit weights and every row kept.
Shape shape(const std::vector<double>& x, short sample, short freqWeights)
{
    return shape(x, std::vector<short>(x.size(), 0), std::vector<double>(x.size(), 1.0), sample, freqWeights);
}

const std::vector<double> sampleData{2.5, 3.1, 4.7, 5.0, 7.9, 11.2};

} // namespace

// Reference values: R 4.2 with x the data above, n <- length(x), m2 <- mean((x-mean(x))^2), m3 and m4 likewise,
// g1 <- m3/m2^1.5, g2 <- m4/m2^2-3.
TEST(ShapeMoments, AgreeWithPublishedFormulas)
{
    const double tolerance = 1e-13;
    const Shape s = shape(sampleData, 0, -1);
    EXPECT_NEAR(s.mean, 5.7333333333333334, tolerance);
    EXPECT_NEAR(s.var, 8.9288888888888867, tolerance);     // m2
    EXPECT_NEAR(s.skewP, 0.74947275265718616, tolerance);  // g1
    EXPECT_NEAR(s.kurtP, -0.75493185716540356, tolerance); // g2
    EXPECT_NEAR(s.skewS, 1.026257832164577, tolerance);    // g1*sqrt(n*(n-1))/(n-2)
    EXPECT_NEAR(s.kurtS, 0.29811541660090629, tolerance);  // (n-1)/((n-2)*(n-3))*((n+1)*g2+6)
    EXPECT_NEAR(s.seSkew, 0.84515425472851657, tolerance); // ses <- sqrt(6*n*(n-1)/((n-2)*(n+1)*(n+3)))
    EXPECT_NEAR(s.seKurt, 1.7407765595569784, tolerance);  // 2*ses*sqrt((n^2-1)/((n-3)*(n+5)))
}

TEST(ShapeMoments, FrequencyWeightsStandForRepeatedRows)
{
    const double tolerance = 1e-13; // as above on rep(x, c(1,3,2,1,4,2))
    const Shape s = shape(sampleData, std::vector<short>(6, 0), {1, 3, 2, 1, 4, 2}, 0, -1);
    EXPECT_NEAR(s.mean, 6.1692307692307695, tolerance);
    EXPECT_NEAR(s.var, 8.4621301775147924, tolerance);
    EXPECT_NEAR(s.skewP, 0.4103094583080425, tolerance);
    EXPECT_NEAR(s.kurtP, -1.0925814010433219, tolerance);
    EXPECT_NEAR(s.skewS, 0.4658875901559375, tolerance);
    EXPECT_NEAR(s.kurtS, -1.014124321593437, tolerance);
    EXPECT_NEAR(s.seSkew, 0.61633605270998859, tolerance);
    EXPECT_NEAR(s.seKurt, 1.1908743922772955, tolerance);
}

TEST(ShapeMoments, ThreeMeanWeightsAreRoundedBeforeTheyAreTakenOff)
{
    // A third of 1 is rounded down, three of them round to 1: nothing is left for the kurtosis.
    const Shape s = shape({1, 2, 4}, std::vector<short>(3, 0), {0.25, 0.25, 0.5}, 0, 0);
    EXPECT_THAT(s.kurtS, SameBits(M));
    EXPECT_THAT(s.seKurt, SameBits(M));
    EXPECT_NE(s.skewS, M);
}

TEST(ShapeMoments, PopulationFormsAreDividedByThePowerOfTheGivenVariance)
{
    const double tolerance = 1e-13;
    const Shape s = shape(sampleData, -1, -1);
    EXPECT_NEAR(s.var, 10.714666666666666, tolerance);    // var(x)
    EXPECT_NEAR(s.skewP, 0.57014324009143147, tolerance); // m3/var(x)^1.5
    EXPECT_NEAR(s.kurtP, -1.4409249008093088, tolerance); // m4/var(x)^2-3
}

TEST(ShapeMoments, FollowTheUpdatesToTheLastBit)
{
    RandomData data(65);
    SCOPED_TRACE(data);
    // Around the numbers of rows that are worked on at a time, in vectors and in blocks; at first with all rows, then
    // with rows that are masked, missing or without weight.
    constexpr std::array sizes = {7, 8, 9, 12, 127, 128, 129, 255, 256, 257, 300};
    for (std::size_t draw = 0; draw < 4 * sizes.size(); ++draw) {
        const auto n = static_cast<std::size_t>(sizes[draw % sizes.size()]);
        const double left = draw < sizes.size() ? 0.0 : 0.1;
        const auto x = data.withMissing(data.normals(n), left), w = data.weights(n, 2 * left);
        const auto mask = data.mask(n, left);
        double W = 0, mean = 0, M2 = 0, M3 = 0, M4 = 0;
        int rows = 0;
        for (std::size_t i = 0; i < n; ++i) {
            if (mask[i] != 0 || x[i] == M)
                continue;
            W += w[i];
            ++rows;
            if (w[i] == 0.0)
                continue;
            const double f = w[i] / W, d = x[i] - mean;
            const double d4 = vecmat::pow(d, 4.0), d3 = vecmat::pow(d, 3.0);
            const double t = ((f * 3.0) * d) * M2;
            const double lower = ((f + f) * d) * (t - (M3 + M3));
            const double own = (((((f * 6.0 + -4.0) - (f * f) * 3.0) * f) + 1.0) * d4) * w[i];
            M4 = M4 + (lower + own);
            M3 = (M3 - t) + (((f * f + f * f) + (1.0 - f * 3.0)) * d3) * w[i];
            M2 += (((1.0 - f) * d) * d) * w[i];
            mean += d * f;
        }
        for (const short sample : {short{0}, short{-1}})
            for (const short freqWeights : {short{0}, short{-1}}) {
                const double c = freqWeights == -1 ? 1.0 : W / rows;
                const double D = W - c;
                Shape e;
                e.mean = mean;
                e.var = M2 / (sample == -1 ? D : W);
                e.skewP = (M3 / W) / vecmat::pow(e.var, 1.5);
                e.kurtP = (M4 / W) / (e.var * e.var) + -3.0;
                e.skewS = (std::sqrt(W * D) * e.skewP) / (W - 2 * c);
                e.seSkew = std::sqrt(((W * 6.0) * D) / (((c * 3.0 + W) * (W + c)) * (W - 2 * c)));
                e.kurtS = (((W + c) * (e.kurtP + 3.0) - D * 3.0) * D) / ((W - 2 * c) * (W - 3 * c));
                e.seKurt = std::sqrt((((e.seSkew * e.seSkew) * (W * W - c)) * 4.0) / ((c * 5.0 + W) * (W - 3 * c)));
                EXPECT_THAT(shape(x, mask, w, sample, freqWeights).all(), SameBits(e.all()));
            }
    }
}

TEST(ShapeMoments, LeaveOutMaskedRowsAndMissingCells)
{
    const Shape plain = shape({1, 2, 4, 9, 7}, -1, 0);
    const Shape gaps = shape({1, M, 2, 4, 99, 9, 7}, {0, 0, 0, 0, 5, 0, 0}, std::vector<double>(7, 1.0), -1, 0);
    EXPECT_THAT(gaps.all(), SameBits(plain.all()));
    EXPECT_TRUE(std::isnan(shape({1, 2, std::nan(""), 4, 5}, -1, 0).mean));
}

TEST(ShapeMoments, ARowOfNoWeightCountsInTheMeanWeightOnly)
{
    // W = 4 with m = 5: wbar = 0.8, where leaving the row out would make it 1.
    const std::vector<double> w{1, 0, 1, 1, 1};
    const Shape s = shape({1, inf, 2, 4, 9}, std::vector<short>(5, 0), w, -1, 0);
    EXPECT_THAT(s.mean, SameBits(4.0));
    EXPECT_DOUBLE_EQ(s.var, 38.0 / (4.0 - 0.8));
}

TEST(ShapeMoments, AreMissingWhereTheDivisorIsZeroAndTheErrorsAreLeftAlone)
{
    const std::vector<double> expected{5.0, M, M, M, M, M, untouched, untouched};
    EXPECT_THAT(shape({5}, -1, 0).all(), SameBits(expected));
    EXPECT_THAT(shape({5}, -1, -1).all(), SameBits(expected));
    // No weight at all, and the divisor W; also D = W - W/m.
    EXPECT_THAT(shape({5}, {0}, {0}, 0, 0).all(), SameBits({0.0, M, M, M, M, M, untouched, untouched}));
    EXPECT_THAT(shape({5}, {0}, {0}, -1, 0).all(), SameBits({0.0, M, M, M, M, M, untouched, untouched}));
    EXPECT_THAT(shape({}, 0, 0).all(), SameBits({0.0, M, M, M, M, M, untouched, untouched}));
    // D is -1 without rows and with frequency weights: the variance is a zero, not missing.
    EXPECT_THAT(shape({}, -1, -1).all(), SameBits({0.0, -0.0, M, M, M, M, untouched, untouched}));
    // An option that is neither -1 nor 0 divides by W without the test.
    EXPECT_TRUE(std::isnan(shape({}, 1, 0).var));
}

TEST(ShapeMoments, OfEqualValuesHaveNoShapeAndLeaveTheErrorsAlone)
{
    EXPECT_THAT(shape({3, 3}, -1, -1).all(), SameBits({3.0, 0.0, M, M, M, M, untouched, untouched}));
    EXPECT_THAT(shape({3}, 0, -1).all(), SameBits({3.0, 0.0, M, M, M, M, untouched, untouched}));
}

TEST(ShapeMoments, NeedThreeRowsForTheSampleSkewnessAndFourForTheSampleKurtosis)
{
    const Shape two = shape({1, 4}, -1, -1);
    EXPECT_THAT((std::vector{two.skewS, two.kurtS, two.seSkew, two.seKurt}), SameBits({M, M, M, M}));
    EXPECT_NE(two.skewP, M);
    const Shape three = shape({1, 4, 6}, -1, -1);
    EXPECT_THAT((std::vector{three.kurtS, three.seKurt}), SameBits({M, M}));
    EXPECT_TRUE(std::isfinite(three.skewS) && three.skewS != M);
    EXPECT_TRUE(std::isfinite(three.seSkew) && three.seSkew != M);
    const Shape four = shape({1, 4, 6, 6.5}, -1, -1);
    EXPECT_TRUE(std::isfinite(four.kurtS) && four.kurtS != M);
    EXPECT_TRUE(std::isfinite(four.seKurt) && four.seKurt != M);
}

TEST(ShapeMoments, TheGuardOfTheSkewnessTakesTheMeanWeightEvenWhereTheFormulaTakesOne)
{
    // Two rows of weight 2.5: W - 2 wbar = 0, so no skewness, although W - 2c = 3 and W - 3c = 2 are above 0. The
    // missing value then overflows in the error of the kurtosis.
    const Shape heavy = shape({1, 4}, {0, 0}, {2.5, 2.5}, -1, -1);
    EXPECT_THAT((std::vector{heavy.skewS, heavy.seSkew, heavy.seKurt}), SameBits({M, M, inf}));
    EXPECT_TRUE(std::isfinite(heavy.kurtS) && heavy.kurtS != M);
    // Three rows of weight 0.5: W - 2 wbar = 0.5 lets the formulas run with W - 2c = -0.5, a root of a negative number.
    const Shape light = shape({1, 4, 6}, {0, 0, 0}, {0.5, 0.5, 0.5}, -1, -1);
    EXPECT_TRUE(std::isfinite(light.skewS) && light.skewS != M);
    EXPECT_TRUE(std::isnan(light.seSkew));
    EXPECT_THAT((std::vector{light.kurtS, light.seKurt}), SameBits({M, M}));
}

TEST(ShapeMoments, FlatFormIsTheComputingFunction)
{
    RandomData data(66);
    SCOPED_TRACE(data);
    const int n = 20;
    Guarded<double> x(data.withMissing(data.normals(n), 0.1));
    Guarded<double> w(data.weights(n, 0.1));
    Guarded<short> mask(data.mask(n, 0.2));
    Shape s;
    VB_V_MeanVarSkewPKurtP(x, n, &s.mean, &s.var, &s.skewP, &s.kurtP, &s.skewS, &s.kurtS, &s.seSkew, &s.seKurt, mask, w,
                           -1, 0);
    EXPECT_THAT(s.all(), SameBits(shape(x.values(), mask.values(), w.values(), -1, 0).all()));
    EXPECT_TRUE(x.untouched() && w.untouched() && mask.untouched());
}
