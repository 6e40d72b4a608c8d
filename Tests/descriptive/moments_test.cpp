// Variance and standard deviation of a vector.
#include "descriptive/moments.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

using namespace vecmat::test;

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct Data
{
    std::vector<double> x;
    std::vector<short> mask;
    std::vector<double> w;

    int n() const { return static_cast<int>(x.size()); }
};

Data unweighted(const std::vector<double>& x)
{
    return {x, std::vector<short>(x.size(), 0), std::vector<double>(x.size(), 1.0)};
}

double var(Data d, short sample, short freqWeights)
{
    return V_Var(column(d.x), d.n(), d.mask.data(), column(d.w), sample, freqWeights);
}

double stdev(Data d, short sample, short freqWeights)
{
    return V_Stdev(column(d.x), d.n(), d.mask.data(), column(d.w), sample, freqWeights);
}

std::vector<double> meanVar(Data d, short sample, short freqWeights)
{
    double mean = 7.0, variance = 8.0;
    V_MeanVar(column(d.x), d.n(), &mean, &variance, d.mask.data(), column(d.w), sample, freqWeights);
    return {mean, variance};
}

std::vector<double> meanStdev(Data d, short sample, short freqWeights)
{
    double mean = 7.0, deviation = 8.0;
    V_MeanStdev(column(d.x), d.n(), &mean, &deviation, d.mask.data(), column(d.w), sample, freqWeights);
    return {mean, deviation};
}

double var2(const std::vector<double>& x, short sample, short freqWeights)
{
    return V_Var2(column(x), static_cast<int>(x.size()), sample, freqWeights);
}

const std::vector<double> reference{2.5, 3.1, 4.7, 5.0, 7.9, 11.2};
const std::vector<double> referenceWeights{0.5, 1.5, 2.0, 1.0, 0.25, 1.75};

} // namespace

// R 4.2: x <- c(2.5,3.1,4.7,5,7.9,11.2); w <- c(.5,1.5,2,1,.25,1.75); W <- sum(w); Q <- sum(w*(x-weighted.mean(x,w))^2)
TEST(VVar, AgreesWithPublishedFormulas)
{
    const double tolerance = 1e-13;
    const Data plain = unweighted(reference);
    EXPECT_NEAR(var(plain, -1, -1), 10.714666666666666, tolerance); // var(x)
    EXPECT_NEAR(var(plain, -1, 0), 10.714666666666666, tolerance);
    EXPECT_NEAR(var(plain, 0, 0), 8.9288888888888867, tolerance);    // mean((x-mean(x))^2)
    EXPECT_NEAR(stdev(plain, -1, 0), 3.2733265444600339, tolerance); // sd(x)
    EXPECT_NEAR(var2(reference, -1, 0), 10.714666666666666, tolerance);
    EXPECT_NEAR(var2(reference, 0, 0), 8.9288888888888867, tolerance);

    const Data weighted{reference, std::vector<short>(6, 0), referenceWeights};
    EXPECT_NEAR(var(weighted, 0, 0), 10.191466836734692, tolerance);   // Q/W
    EXPECT_NEAR(var(weighted, -1, -1), 11.890044642857141, tolerance); // Q/(W-1)
    EXPECT_NEAR(var(weighted, -1, 0), 12.229760204081632, tolerance);  // Q/(W-W/6)
    EXPECT_NEAR(meanVar(weighted, 0, 0)[0], 5.9821428571428568, tolerance);
    EXPECT_NEAR(meanVar(weighted, -1, 0)[1], 12.229760204081632, tolerance);
}

TEST(VVar, FollowsTheRunningUpdateToTheLastBit)
{
    RandomData data(67);
    SCOPED_TRACE(data);
    const std::size_t n = 40;
    const auto x = data.withMissing(data.normals(n), 0.1);
    const auto w = data.weights(n, 0.2);
    const auto mask = data.mask(n, 0.2);
    double W = 0.0, mean = 0.0, Q = 0.0;
    int m = 0;
    for (std::size_t i = 0; i < n; ++i) {
        if (mask[i] != 0 || x[i] == M)
            continue;
        W += w[i];
        m += 1;
        if (w[i] == 0.0)
            continue;
        const double d = x[i] - mean;
        Q += (d * d) * (w[i] - (w[i] * w[i]) / W);
        mean += (d * w[i]) / W;
    }
    const Data all{x, mask, w};
    EXPECT_THAT(var(all, 0, 0), SameBits(Q / W));
    EXPECT_THAT(var(all, 1, -1), SameBits(Q / W)); // only -1 corrects
    EXPECT_THAT(var(all, -1, -1), SameBits(Q / (W - 1.0)));
    EXPECT_THAT(var(all, -1, 0), SameBits(Q / (W - W / m)));
    EXPECT_THAT(var(all, -1, 1), SameBits(Q / (W - W / m))); // only -1 is for frequencies
    EXPECT_THAT(meanVar(all, -1, 0), SameBits({mean, Q / (W - W / m)}));
    EXPECT_THAT(meanStdev(all, -1, 0), SameBits({mean, std::sqrt(Q / (W - W / m))}));
    EXPECT_THAT(stdev(all, -1, 0), SameBits(std::sqrt(Q / (W - W / m))));
}

TEST(VVar, CountsARowOfNoWeightAndMovesNothing)
{
    // Q = 2, W = 2, m = 3: W - W/m is 4/3, where leaving the row out would make it 1.
    const Data d{{1, inf, 3}, {0, 0, 0}, {1, 0, 1}};
    EXPECT_THAT(var(d, -1, 0), SameBits(2.0 / (2.0 - 2.0 / 3)));
    EXPECT_THAT(meanVar(d, -1, 0), SameBits({2.0, 2.0 / (2.0 - 2.0 / 3)}));
    EXPECT_THAT(var({{9, 1, 3}, {0, 0, 0}, {0, 1, 1}}, 0, 0), SameBits(1.0));
}

TEST(VVar, DividesWithoutATest)
{
    EXPECT_TRUE(std::isnan(var(unweighted({}), 0, 0)));
    EXPECT_TRUE(std::isnan(var(unweighted({}), -1, 0)));
    EXPECT_THAT(var(unweighted({}), -1, -1), SameBits(-0.0));
    EXPECT_TRUE(std::isnan(var(unweighted({5}), -1, -1)));
    EXPECT_THAT(var(unweighted({5}), 0, 0), SameBits(0.0));
    EXPECT_THAT(var({{1, 3}, {0, 0}, {0.5, 0.5}}, -1, -1), SameBits(inf));
    EXPECT_THAT(var2({}, -1, -1), SameBits(-0.0));
    EXPECT_TRUE(std::isnan(var2({}, 0, 0)));
    EXPECT_TRUE(std::isnan(var2({M}, -1, 0)));
    EXPECT_TRUE(std::isnan(var2({5}, -1, 0)));
}

TEST(VVar2, HasTheUpdateOfTheCount)
{
    const std::vector<double> x{0.3, 1.9, M, 0.7, 2.2};
    double mean = 0.0, Q = 0.0, m = 0.0;
    for (const double cell : x) {
        if (cell == M)
            continue;
        m += 1.0;
        const double d = cell - mean;
        Q += (d * d) * (1.0 - 1.0 / m);
        mean += d / m;
    }
    EXPECT_THAT(var2(x, 0, -1), SameBits(Q / 4.0));
    EXPECT_THAT(var2(x, -1, -1), SameBits(Q / 3.0));
    EXPECT_THAT(var2(x, -1, 0), SameBits(Q / (4.0 - 4.0 / 4)));
    EXPECT_TRUE(std::isnan(var2({1, notANumber}, 0, 0)));
}

TEST(VStdev, IsZeroForAZeroOfEitherSign)
{
    EXPECT_THAT(stdev(unweighted({4, 4, 4}), -1, 0), SameBits(0.0));
    EXPECT_THAT(stdev(unweighted({}), -1, -1), SameBits(0.0));
    EXPECT_TRUE(std::isnan(stdev(unweighted({}), 0, 0)));
    // A divisor below 0 makes a negative variance.
    EXPECT_TRUE(std::isnan(stdev({{1, 3}, {0, 0}, {0.25, 0.25}}, -1, -1)));
}

TEST(VMeanVar, GuardsWhatTheVarianceAloneDoesNot)
{
    EXPECT_THAT(meanVar(unweighted({}), 0, 0), SameBits({0.0, 0.0}));
    EXPECT_THAT(meanVar(unweighted({}), -1, -1), SameBits({0.0, 0.0}));
    EXPECT_THAT(meanVar({{M, 4}, {0, 3}, {1, 1}}, -1, 0), SameBits({0.0, 0.0}));
    // A single row, or equal ones, before the divisor is read.
    EXPECT_THAT(meanVar(unweighted({5}), -1, -1), SameBits({5.0, 0.0}));
    EXPECT_THAT(meanVar(unweighted({5}), -1, 0), SameBits({5.0, 0.0}));
    EXPECT_THAT(meanVar({{5}, {0}, {0}}, 0, 0), SameBits({0.0, 0.0}));
    // Otherwise the division is not tested.
    EXPECT_THAT(meanVar({{1, 3}, {0, 0}, {0.5, 0.5}}, -1, -1), SameBits({2.0, inf}));
    EXPECT_THAT(meanStdev(unweighted({5}), -1, 0), SameBits({5.0, 0.0}));
    EXPECT_THAT(meanStdev(unweighted({}), -1, 0), SameBits({0.0, 0.0}));
}

TEST(VVar, ANullMaskKeepsEveryRow)
{
    EXPECT_THAT(V_Var(column({1, 3}), 2, nullptr, column({1, 1}), 0, 0), SameBits(1.0));
}

TEST(VVar, ReadsMinusOnePastTheEndOfTheTables)
{
    std::vector<short> mask(2, 0);
    EXPECT_THAT(V_Var(column({1}), 2, mask.data(), column({1, 1}), 0, 0), SameBits(1.0));
    EXPECT_THAT(V_Var2(column({1}), 2, 0, 0), SameBits(1.0));
    EXPECT_THAT(V_Var2(column({1, 3, 50}), 2, 0, 0), SameBits(1.0));
}

TEST(VarianceExports, AreTheComputingFunctionsAndLeaveTheArraysAlone)
{
    RandomData data(68);
    SCOPED_TRACE(data);
    const int n = 25;
    Guarded<double> x(data.withMissing(data.normals(n), 0.2));
    Guarded<double> w(data.weights(n, 0.2));
    Guarded<short> mask(data.mask(n, 0.2));
    const Data d{x.values(), mask.values(), w.values()};
    for (const short sample : {short{0}, short{-1}})
        for (const short freqWeights : {short{0}, short{-1}}) {
            EXPECT_THAT(VB_V_Var(x, n, mask, w, sample, freqWeights), SameBits(var(d, sample, freqWeights)));
            EXPECT_THAT(VB_V_Stdev(x, n, mask, w, sample, freqWeights), SameBits(stdev(d, sample, freqWeights)));
            double mean = 0.0, second = 0.0;
            VB_V_MeanVar(x, n, &mean, &second, mask, w, sample, freqWeights);
            EXPECT_THAT((std::vector{mean, second}), SameBits(meanVar(d, sample, freqWeights)));
            VB_V_MeanStdev(x, n, &mean, &second, mask, w, sample, freqWeights);
            EXPECT_THAT((std::vector{mean, second}), SameBits(meanStdev(d, sample, freqWeights)));
            EXPECT_THAT(Cpp_V_Var2(x, n, sample, freqWeights), SameBits(var(unweighted(d.x), sample, freqWeights)));
        }
    EXPECT_THAT(VB_V_Stdev(x, 0, mask, w, -1, -1), SameBits(0.0));
    EXPECT_TRUE(std::isnan(Cpp_V_Var2(x, 0, 0, 0)));
    EXPECT_TRUE(std::isnan(Cpp_V_Var2(x, -2, 0, 0)));
    EXPECT_TRUE(x.untouched() && w.untouched() && mask.untouched());
}
