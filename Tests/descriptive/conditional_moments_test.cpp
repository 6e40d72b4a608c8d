// Mean and variance of the cells that a group code selects.
#include "descriptive/conditional_moments.h"

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

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

int count(const std::vector<double>& cells)
{
    return static_cast<int>(cells.size());
}

double meanIf(const std::vector<double>& v, const std::vector<double>& g, double value)
{
    return V_MeanIf(column(v), count(v), column(g), value);
}

double meanIfW(const std::vector<double>& v, const std::vector<double>& g, const std::vector<double>& w, double value)
{
    return V_MeanIfW(column(v), count(v), column(g), column(w), value);
}

double varIf(const std::vector<double>& v, const std::vector<double>& g, double value, short sample)
{
    return V_VarIf(column(v), count(v), column(g), value, sample);
}

double varIfW(const std::vector<double>& v, const std::vector<double>& g, const std::vector<double>& w, double value,
              short sample)
{
    return V_VarIfW(column(v), count(v), column(g), column(w), value, sample);
}

} // namespace

TEST(VMeanIf, IsThePlainMeanOfTheSelected)
{
    EXPECT_THAT(meanIf({1, 2, 6, M}, {3, 4, 3, 3}, 3), SameBits(3.5));
    EXPECT_THAT(meanIf({0.1, 0.2, 0.3}, {1, 1, 1}, 1), SameBits(((0.1 + 0.2) + 0.3) / 3.0));
    EXPECT_THAT(meanIf({1, 2}, {3, 4}, 5), SameBits(M));
    EXPECT_THAT(meanIf({}, {}, 5), SameBits(M));
    EXPECT_THAT(meanIf({1, 2}, {-0.0, 1}, 0.0), SameBits(1.0));
}

TEST(VMeanIf, NeverSelectsAMissingCode)
{
    EXPECT_THAT(meanIf({1, 2}, {M, M}, M), SameBits(M));
    EXPECT_THAT(meanIfW({1, 2}, {M, M}, {1, 1}, M), SameBits(M));
    EXPECT_THAT(varIf({1, 2}, {M, M}, M, 0), SameBits(M));
    EXPECT_THAT(varIfW({1, 2}, {M, M}, {1, 1}, M, 0), SameBits(M));
    EXPECT_THAT(meanIf({1, 2}, {notANumber, 1}, notANumber), SameBits(M));
}

TEST(VMeanIfW, TakesWeightsAboveZeroOnly)
{
    EXPECT_THAT(meanIfW({1, 2, 100, 100, 100}, {1, 1, 1, 1, 1}, {1, 3, 0, -2, notANumber}, 1), SameBits(7.0 / 4.0));
    EXPECT_THAT(meanIfW({M, 2, 3}, {1, 1, 2}, {1, 3, 1}, 1), SameBits(2.0));
    EXPECT_THAT(meanIfW({1, 2}, {1, 1}, {0, -1}, 1), SameBits(M));
    EXPECT_THAT(meanIfW({1, 2}, {1, 1}, {1, 1}, 2), SameBits(M));
}

TEST(VVarIf, UpdatesByTheCount)
{
    const std::vector<double> x{0.3, 1.9, 0.7, 2.2};
    double mean = 0.0, Q = 0.0, m = 0.0;
    for (const double cell : x) {
        m += 1.0;
        const double d = cell - mean;
        Q += d * d * (1.0 - 1.0 / m);
        mean += d / m;
    }
    const std::vector<double> v{0.3, 9, 1.9, M, 0.7, 2.2}, g{5, 4, 5, 5, 5, 5};
    EXPECT_THAT(varIf(v, g, 5, 0), SameBits(Q / 4.0));
    EXPECT_THAT(varIf(v, g, 5, -1), SameBits(Q / 3.0));
    EXPECT_THAT(varIf(v, g, 5, 1), SameBits(Q / 4.0)); // only -1 asks for the corrected divisor
}

TEST(VVarIf, IsMissingWhereTheDivisorIsNotAboveZero)
{
    EXPECT_THAT(varIf({7}, {1}, 1, -1), SameBits(M));
    EXPECT_THAT(varIf({7}, {1}, 1, 0), SameBits(0.0));
    EXPECT_THAT(varIf({7}, {1}, 2, 0), SameBits(M));
    EXPECT_THAT(varIf({7}, {1}, 2, -1), SameBits(M));
}

TEST(VVarIfW, HasAnUpdateOfItsOwn)
{
    RandomData data(69);
    SCOPED_TRACE(data);
    const std::vector<double> g(9, 1.0);
    int otherForm = 0;
    for (int k = 0; k < 20; ++k) {
        const auto x = data.normals(9), w = data.weights(9);
        double W = 0.0, mean = 0.0, Q = 0.0, plainWeighted = 0.0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            W += w[i];
            const double d = x[i] - mean;
            Q += d * d * w[i] * (1.0 - w[i] / W);
            plainWeighted += d * d * (w[i] - w[i] * w[i] / W);
            mean += d * w[i] / W;
        }
        EXPECT_THAT(varIfW(x, g, w, 1, 0), SameBits(Q / W));
        EXPECT_THAT(varIfW(x, g, w, 1, -1), SameBits(Q / (W - 1.0)));
        otherForm += Q != plainWeighted ? 1 : 0;
    }
    EXPECT_GT(otherForm, 0); // the form of the unconditional variance gives other bits
}

TEST(VVarIfW, LetsAZeroWeightInUnlikeTheMean)
{
    // Ahead of all others it divides 0 by 0; the mean passes it over.
    EXPECT_TRUE(std::isnan(varIfW({5, 1, 3}, {1, 1, 1}, {0, 1, 1}, 1, 0)));
    EXPECT_THAT(meanIfW({5, 1, 3}, {1, 1, 1}, {0, 1, 1}, 1), SameBits(2.0));
    // After another weight it adds nothing; a weight below 0, or none, does not enter.
    EXPECT_THAT(varIfW({1, 5, 3, 9, 9}, {1, 1, 1, 1, 1}, {1, 0, 1, -1, notANumber}, 1, 0), SameBits(1.0));
    EXPECT_THAT(varIfW({5}, {1}, {0}, 1, 0), SameBits(M));
    EXPECT_THAT(varIfW({5}, {1}, {1}, 1, -1), SameBits(M));
    EXPECT_THAT(varIfW({5, 6}, {1, 1}, {0.25, 0.25}, 1, -1), SameBits(M));
}

TEST(ConditionalMoments, ReadMinusOnePastTheEndOfTheTables)
{
    EXPECT_THAT(V_MeanIf(column({5}), 2, column({1, 1}), 1), SameBits(2.0));
    EXPECT_THAT(V_MeanIf(column({5, 6}), 2, column({2}), -1.0), SameBits(6.0));
    EXPECT_THAT(V_MeanIfW(column({5, 6}), 2, column({1, 1}), column({1}), 1), SameBits(5.0));
}

TEST(ConditionalMoments, ExportsAreTheComputingFunctions)
{
    RandomData data(64);
    SCOPED_TRACE(data);
    const int n = 31;
    Guarded<double> v(data.withMissing(data.normals(n), 0.2));
    Guarded<double> g(data.withMissing(data.wholes(n, 1, 3), 0.1));
    Guarded<double> w(data.uniforms(n, 0.1, 2.0));
    const auto vs = v.values(), gs = g.values(), ws = w.values();
    EXPECT_THAT(VB_V_MeanIf(v, n, g, 2), SameBits(meanIf(vs, gs, 2)));
    EXPECT_THAT(VB_V_MeanIfW(v, n, g, w, 2), SameBits(meanIfW(vs, gs, ws, 2)));
    for (const short sample : {short{0}, short{-1}}) {
        EXPECT_THAT(VB_V_VarIf(v, n, g, 2, sample), SameBits(varIf(vs, gs, 2, sample)));
        EXPECT_THAT(VB_V_VarIfW(v, n, g, w, 2, sample), SameBits(varIfW(vs, gs, ws, 2, sample)));
    }
    EXPECT_TRUE(v.untouched() && g.untouched() && w.untouched());
}
