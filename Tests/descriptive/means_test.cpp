// Arithmetic, absolute, harmonic and geometric means of a vector.
#include "base/detail/mathematics/mathematics.h"
#include "descriptive/means.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

using namespace vecmat::test;

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

double mean(const std::vector<double>& x, std::vector<short> mask, const std::vector<double>& w)
{
    return V_Mean(column(x), static_cast<int>(x.size()), mask.data(), column(w));
}

double meanAbs(const std::vector<double>& x, std::vector<short> mask, const std::vector<double>& w)
{
    return V_MeanAbs(column(x), static_cast<int>(x.size()), mask.data(), column(w));
}

double harmonic(const std::vector<double>& x, std::vector<short> mask, const std::vector<double>& w)
{
    return V_HarmonicMean(column(x), static_cast<int>(x.size()), mask.data(), column(w));
}

/// Geometric mean and geometric standard deviation.
std::array<double, 2> geometric(const std::vector<double>& x, std::vector<short> mask, const std::vector<double>& w)
{
    std::array<double, 2> results{7.0, 8.0};
    V_GMeanGSD(column(x), static_cast<int>(x.size()), mask.data(), column(w), &results[0], &results[1]);
    return results;
}

} // namespace

TEST(VMean, IsTheWeightedSumOverTheSumOfWeightsInRowOrder)
{
    EXPECT_THAT(mean({1, 2, 6}, {0, 0, 0}, {1, 2, 1}), SameBits(11.0 / 4.0));
    // Sums, not a running mean: the two differ in the last bits.
    const std::vector<double> x{0.1, 0.7, 0.3, 1e16};
    EXPECT_THAT(mean(x, {0, 0, 0, 0}, {1, 1, 1, 1}), SameBits((((0.1 + 0.7) + 0.3) + 1e16) / 4.0));
}

TEST(VMean, LeavesOutMaskedRowsMissingCellsAndZeroWeights)
{
    EXPECT_THAT(mean({1, 2, M, 6, inf}, {0, 1, 0, 0, 0}, {1, 5, 5, 3, 0}), SameBits(19.0 / 4.0));
    EXPECT_THAT(mean({1, 2}, {-1, 7}, {1, 1}), SameBits(M));
    EXPECT_THAT(mean({}, {}, {}), SameBits(M));
}

TEST(VMean, TakesANaNAndTheNeighboursOfTheMissingValueAsNumbers)
{
    EXPECT_TRUE(std::isnan(mean({1, notANumber}, {0, 0}, {1, 1})));
    EXPECT_THAT(mean({-inf, 1}, {0, 0}, {1, 1}), SameBits(-inf));
    const double below = std::nextafter(M, -inf);
    EXPECT_THAT(mean({below}, {0}, {1}), SameBits(below));
}

TEST(VMean, IsMissingWhereTheWeightsCancelOut)
{
    EXPECT_THAT(mean({3, 4}, {0, 0}, {1, -1}), SameBits(M));
    EXPECT_THAT(mean({3, 4}, {0, 0}, {0, 0}), SameBits(M));
}

TEST(VMean, ReadsMinusOnePastTheEndOfTheTables)
{
    std::vector<short> mask(3, 0);
    EXPECT_THAT(V_Mean(column({5, 7}), 3, mask.data(), column({1, 1, 2})), SameBits(10.0 / 4.0));
    EXPECT_THAT(V_Mean(column({5, 7, 6}), 3, mask.data(), column({2, 2})), SameBits(18.0 / 3.0));
    EXPECT_THAT(V_Mean(column({5, 7, 6}), 2, mask.data(), column({1, 1, 9})), SameBits(6.0));
}

TEST(Means, ReadMinusOnePastTheEndOfEitherTable)
{
    constexpr int n = 9, beyond = 2;
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        auto x = data.withMissing(data.normals(n), 0.3), w = data.weights(n, 0.3);
        auto mask = data.mask(n, 0.3);
        std::fill(x.end() - beyond, x.end(), -1.0);
        std::fill(w.end() - beyond, w.end(), -1.0);
        const std::vector<double> shortX(x.begin(), x.end() - beyond), shortW(w.begin(), w.end() - beyond);
        const double expected = mean(x, mask, w), expectedAbs = meanAbs(x, mask, w);
        EXPECT_THAT(V_Mean(column(shortX), n, mask.data(), column(w)), SameBits(expected));
        EXPECT_THAT(V_Mean(column(x), n, mask.data(), column(shortW)), SameBits(expected));
        EXPECT_THAT(V_MeanAbs(column(shortX), n, mask.data(), column(w)), SameBits(expectedAbs));
        EXPECT_THAT(V_MeanAbs(column(x), n, mask.data(), column(shortW)), SameBits(expectedAbs));
    }
}

TEST(Means, ANullMaskKeepsEveryRow)
{
    double gmean = 0.0, gsd = 0.0;
    EXPECT_THAT(V_Mean(column({5, 7}), 2, nullptr, column({1, 1})), SameBits(6.0));
    EXPECT_THAT(V_MeanAbs(column({-5, 7}), 2, nullptr, column({1, 1})), SameBits(6.0));
    EXPECT_THAT(V_HarmonicMean(column({2, 2}), 2, nullptr, column({1, 1})), SameBits(2.0));
    V_GMeanGSD(column({1, 1}), 2, nullptr, column({1, 1}), &gmean, &gsd);
    EXPECT_THAT((std::array{gmean, gsd}), SameBits({1.0, 1.0}));
}

TEST(VMean2, IsThePlainMeanOfWhatIsPresent)
{
    EXPECT_THAT(V_Mean2(column({1, M, 6}), 3), SameBits(3.5));
    EXPECT_THAT(V_Mean2(column({1, 5, 6}), 2), SameBits(3.0));
    EXPECT_THAT(V_Mean2(column({0.1, 0.2, 0.3}), 3), SameBits(((0.1 + 0.2) + 0.3) / 3.0));
    EXPECT_THAT(V_Mean2(column({M, M}), 2), SameBits(M));
    EXPECT_THAT(V_Mean2(column({4}), 0), SameBits(M));
    EXPECT_THAT(V_Mean2(column({4}), -3), SameBits(M));
    EXPECT_TRUE(std::isnan(V_Mean2(column({4, notANumber}), 2)));
}

TEST(VMeanAbs, IsTheMeanOfTheMagnitudes)
{
    EXPECT_THAT(meanAbs({-1, 2, M, 6, -inf, 9}, {0, 0, 0, 0, 0, 1}, {1, 2, 5, 1, 0, 1}), SameBits(11.0 / 4.0));
    EXPECT_THAT(meanAbs({-1}, {1}, {1}), SameBits(M));
    EXPECT_THAT(meanAbs({-1, 1}, {0, 0}, {2, -2}), SameBits(M));
}

TEST(VHarmonicMean, IsTheSumOfWeightsOverTheSumOfWeightedReciprocals)
{
    EXPECT_THAT(harmonic({2, 4, M, 9}, {0, 0, 0, 3}, {1, 2, 5, 5}), SameBits(3.0 / (1.0 / 2.0 + 2.0 / 4.0)));
    EXPECT_THAT(harmonic({-2, -4}, {0, 0}, {1, 1}), SameBits(2.0 / -0.75));
}

TEST(VHarmonicMean, IsMissingForAKeptZeroAlsoOfNoWeight)
{
    EXPECT_THAT(harmonic({2, 0}, {0, 0}, {1, 0}), SameBits(M));
    EXPECT_THAT(harmonic({2, -0.0}, {0, 0}, {1, 1}), SameBits(M));
    EXPECT_THAT(harmonic({2, 0}, {0, 1}, {1, 1}), SameBits(2.0));
}

TEST(VHarmonicMean, IsMissingWithoutRowsOrWhereTheReciprocalsCancelOut)
{
    EXPECT_THAT(harmonic({}, {}, {}), SameBits(M));
    EXPECT_THAT(harmonic({M, 3}, {0, 1}, {1, 1}), SameBits(M));
    EXPECT_THAT(harmonic({2, -2}, {0, 0}, {1, 1}), SameBits(M));
}

TEST(VGMeanGSD, UpdatesWithTheShareOfTheWeight)
{
    RandomData data(60);
    SCOPED_TRACE(data);
    for (int k = 0; k < 20; ++k) {
        const auto x = data.uniforms(9, 0.5, 9.0), w = data.weights(9);
        double W = 0.0, running = 0.0, Q = 0.0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            W += w[i];
            const double f = w[i] / W;
            const double d = vecmat::log(x[i]) - running;
            Q += (1.0 - f) * d * d * w[i];
            running += d * f;
        }
        EXPECT_THAT(geometric(x, std::vector<short>(9, 0), w),
                    SameBits({vecmat::exp(running), vecmat::exp(std::sqrt(Q / (W - W / 9)))}));
    }
}

TEST(VGMeanGSD, LeavesOutMaskedRowsAndMissingCells)
{
    const auto all = geometric({2, 8, 3}, {0, 0, 0}, {1, 1, 1});
    EXPECT_THAT(geometric({2, -5, M, 8, 0, 3}, {0, 2, 0, 0, -1, 0}, {1, 1, 1, 1, 1, 1}), SameBits({all[0], all[1]}));
}

TEST(VGMeanGSD, CountsARowOfNoWeightInTheDivisorOnly)
{
    // W = 2, m = 3: the divisor is 2 - 2/3, where leaving the row out would make it 1.
    const auto results = geometric({1, 5, vecmat::exp(2.0)}, {0, 0, 0}, {1, 0, 1});
    EXPECT_DOUBLE_EQ(results[0], vecmat::exp(1.0));
    EXPECT_DOUBLE_EQ(results[1], vecmat::exp(std::sqrt(2.0 / (2.0 - 2.0 / 3.0))));
    // Only rows of no weight: the mean of the logarithms is still 0, the divisor as well.
    EXPECT_THAT(geometric({5}, {0}, {0}), SameBits({1.0, M}));
}

TEST(VGMeanGSD, IsMissingForAKeptCellAtOrBelowZeroEvenAfterGoodRows)
{
    EXPECT_THAT(geometric({2, 3, -1}, {0, 0, 0}, {1, 1, 1}), SameBits({M, M}));
    EXPECT_THAT(geometric({2, 3, 0}, {0, 0, 0}, {1, 1, 0}), SameBits({M, M}));
    EXPECT_THAT(geometric({2, 3, -inf}, {0, 0, 0}, {1, 1, 1}), SameBits({M, M}));
}

TEST(VGMeanGSD, IsMissingWithoutRowsAndHasNoDeviationForASingleRow)
{
    EXPECT_THAT(geometric({}, {}, {}), SameBits({M, M}));
    EXPECT_THAT(geometric({M, 4}, {0, 1}, {1, 1}), SameBits({M, M}));
    EXPECT_THAT(geometric({4}, {0}, {1}), SameBits({vecmat::exp(vecmat::log(4.0)), M}));
}

TEST(Means, AgreeWithPublishedFormulas)
{
    // R 4.2: x <- c(2.5,3.1,4.7,5,7.9,11.2); w <- c(.5,1.5,2,1,.25,1.75)
    const std::vector<double> x{2.5, 3.1, 4.7, 5.0, 7.9, 11.2};
    const std::vector<double> w{0.5, 1.5, 2.0, 1.0, 0.25, 1.75};
    const std::vector<double> ones(6, 1.0);
    const std::vector<short> all(6, 0);
    EXPECT_NEAR(mean(x, all, w), 5.9821428571428568, 1e-14);            // weighted.mean(x, w)
    EXPECT_NEAR(harmonic(x, all, w), 4.6750866465225505, 1e-14);        // sum(w)/sum(w/x)
    EXPECT_NEAR(harmonic(x, all, ones), 4.4404493709125497, 1e-14);     // 1/mean(1/x)
    EXPECT_NEAR(geometric(x, all, w)[0], 5.2475853519910736, 1e-14);    // exp(weighted.mean(log(x), w))
    EXPECT_NEAR(geometric(x, all, ones)[0], 5.0257681120431403, 1e-14); // exp(mean(log(x)))
    EXPECT_NEAR(geometric(x, all, ones)[1], 1.7520107624055405, 1e-14); // exp(sd(log(x)))
    const std::vector<double> centred{2.5 - 5, 3.1 - 5, 4.7 - 5, 0.0, 2.9, 6.2};
    EXPECT_NEAR(meanAbs(centred, all, w), 2.3249999999999997, 1e-14); // weighted.mean(abs(x-5), w)
}

TEST(MeanExports, AreTheComputingFunctionsAndLeaveTheArraysAlone)
{
    RandomData data(61);
    SCOPED_TRACE(data);
    const int n = 23;
    Guarded<double> x(data.withMissing(data.uniforms(n, 0.5, 9.0), 0.2));
    Guarded<double> w(data.weights(n, 0.2));
    Guarded<short> mask(data.mask(n, 0.2));

    EXPECT_THAT(VB_V_Mean(x, n, mask, w), SameBits(mean(x.values(), mask.values(), w.values())));
    EXPECT_THAT(VB_V_MeanAbs(x, n, mask, w), SameBits(meanAbs(x.values(), mask.values(), w.values())));
    EXPECT_THAT(VB_V_Mean2(x, n), SameBits(V_Mean2(column(x.values()), n)));
    EXPECT_THAT(Cpp_V_HarmonicMean(x, n, mask, w), SameBits(harmonic(x.values(), mask.values(), w.values())));
    double gmean = 0.0, gsd = 0.0;
    Cpp_V_GMeanGSD(x, n, mask, w, &gmean, &gsd);
    const auto expected = geometric(x.values(), mask.values(), w.values());
    EXPECT_THAT((std::array{gmean, gsd}), SameBits({expected[0], expected[1]}));
    EXPECT_TRUE(x.untouched() && w.untouched() && mask.untouched());
}
