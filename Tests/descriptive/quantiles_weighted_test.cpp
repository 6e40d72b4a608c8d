// One quantile of a vector, with weights.
#include "descriptive/quantiles.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <numeric>
#include <vector>

using namespace vecmat::test;

namespace {

double weighted(const std::vector<double>& x, const std::vector<double>& w, double p)
{
    return V_QuantileW(column(x), static_cast<int>(x.size()), column(w), p);
}

double masked(const std::vector<double>& x, std::vector<short> mask, const std::vector<double>& w, double p)
{
    return V_QuantileMW(column(x), static_cast<int>(x.size()), mask.data(), column(w), p);
}

/// The step rule written out again, for p inside 0 to 1 and weights that differ.
double plainStep(const std::vector<double>& x, const std::vector<double>& w, double p)
{
    std::vector<std::size_t> order(x.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return x[a] < x[b]; });
    double total = 0.0, cumulated = 0.0;
    for (const std::size_t k : order)
        total += w[k];
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (cumulated == p * total)
            return (x[order[i - 1]] + x[order[i]]) * 0.5;
        if (cumulated > p * total)
            return x[order[i - 1]];
        cumulated += w[order[i]];
    }
    return x[order.back()];
}

} // namespace

TEST(VQuantileW, StepsWithTheMidpointOnAnExactHit)
{
    EXPECT_THAT(weighted({1, 2, 3, 4}, {1, 1, 1, 2}, 0.2), SameBits(1.5));
    EXPECT_THAT(weighted({1, 2, 3, 4}, {1, 1, 1, 2}, 0.19), SameBits(1.0));
    EXPECT_THAT(weighted({1, 2, 3, 4}, {1, 1, 1, 2}, 0.21), SameBits(2.0));
    EXPECT_THAT(weighted({4, 1, 3, 2}, {2, 1, 1, 1}, 0.4), SameBits(2.5)); // weights travel with their values
}

TEST(VQuantileW, FollowsTheWalkToTheLastBit)
{
    RandomData data(83);
    SCOPED_TRACE(data);
    for (const std::size_t n : {2u, 3u, 8u, 25u}) {
        const auto x = data.wholes(n, 1, 9);
        const auto w = data.uniforms(n, 0.1, 2.0);
        for (int k = 0; k < 20; ++k) {
            const double p = data.uniform(0.01, 0.99);
            EXPECT_THAT(weighted(x, w, p), SameBits(plainStep(x, w, p)));
        }
    }
}

TEST(VQuantileW, TiesKeepTheOrderOfTheInput)
{
    // Equal keys of either sign: the weights keep their order, 1, 2, 1, and the hit at C = 1 lies between them.
    EXPECT_THAT(weighted({0.0, -0.0, 5}, {1, 2, 1}, 0.25), SameBits(0.0));
    EXPECT_THAT(weighted({0.0, -0.0, 5}, {1, 2, 1}, 0.2), SameBits(0.0));
    EXPECT_THAT(weighted({-0.0, 0.0, 5}, {1, 2, 1}, 0.2), SameBits(-0.0));
}

TEST(VQuantileW, EqualWeightsMeanInterpolation)
{
    EXPECT_THAT(weighted({1, 2, 3, 4}, {1, 1, 1, 1}, 0.25), SameBits(1.75));
    EXPECT_THAT(weighted({1, 2, 3, 4}, {3, 3, 3, 3}, 0.25), SameBits(1.75));
    EXPECT_THAT(weighted({1, 2, 3, 4}, {M, 1, 1, 1}, 0.25), SameBits(1.75)); // missing weights are left out
    // Almost equal ones give the step rule.
    EXPECT_THAT(weighted({1, 2, 3, 4}, {1, 1, 1, 1 + 1e-12}, 0.25), SameBits(2.0));
    // Missing values are counted by the rule that takes over.
    EXPECT_THAT(weighted({M, 2, 3}, {1, 1, 1}, 0.5), SameBits(2.0));
    EXPECT_THAT(weighted({7}, {2}, 0.3), SameBits(7.0));
}

TEST(VQuantileW, AtTheEndsTakesTheSmallestAndTheLargestWhateverTheirWeights)
{
    EXPECT_THAT(weighted({5, 1, 3}, {2, 0, 1}, 0.0), SameBits(1.0));
    EXPECT_THAT(weighted({5, 1, 3}, {0, 2, 1}, 1.0), SameBits(5.0));
    EXPECT_THAT(weighted({M, 1, 3}, {0, 2, 1}, 0.0), SameBits(M));
    EXPECT_THAT(weighted({1, 3}, {-1, 2}, 0.0), SameBits(1.0)); // returns
    EXPECT_THAT(weighted({1, 3}, {-1, 2}, -0.0), SameBits(1.0));
}

TEST(VQuantileW, IsMissingWhereNothingCounts)
{
    EXPECT_THAT(weighted({1, 2}, {0, 0}, 0.5), SameBits(M));
    EXPECT_THAT(weighted({M, 2}, {3, 0}, 0.5), SameBits(M));
    EXPECT_THAT(weighted({1, 2}, {-1, -2}, 0.5), SameBits(M));
    EXPECT_THAT(weighted({1, 2}, {M, M}, 0.5), SameBits(M));
    EXPECT_THAT(weighted({}, {}, 0.5), SameBits(M));
    EXPECT_THAT(V_QuantileW(column({1}), -4, column({1}), 0.5), SameBits(M));
}

TEST(VQuantileW, DoesNotRemoveMissingValues)
{
    // Sorted M, 1, 2 with 5, 1, 2: the target 2.4 of 8 is passed after the first.
    EXPECT_THAT(weighted({1, M, 2}, {1, 5, 2}, 0.3), SameBits(M));
    EXPECT_THAT(masked({1, M, 2}, {0, 0, 0}, {1, 5, 2}, 0.3), SameBits(1.0));
}

TEST(VQuantileW, NeverComparesTheSumThatHasTheLastWeight)
{
    EXPECT_THAT(weighted({1, 2, 3}, {1, 1, 8}, 0.95), SameBits(3.0));
    EXPECT_THAT(weighted({1, 2, 3}, {1, 2, 0}, 0.9), SameBits(2.0)); // C = 3 is above 2.7 at the last place
    EXPECT_THAT(weighted({1, 2}, {2, 1}, 0.9), SameBits(2.0));
    // Weights so small that the target rounds to their sum: still no hit.
    const double least = std::numeric_limits<double>::denorm_min();
    EXPECT_THAT(weighted({1, 2}, {least, 2 * least}, 0.9), SameBits(2.0));
}

TEST(VQuantileW, ReadsMinusOneBeforeTheFirstValue)
{
    EXPECT_THAT(weighted({4, 6}, {2, -2}, 0.5), SameBits((-1.0 + 4.0) * 0.5)); // a total of 0 is hit at once
    EXPECT_THAT(weighted({4, 6}, {1, 2}, -0.5), SameBits(-1.0));
    EXPECT_THAT(weighted({4, 6}, {1, 2}, 1.5), SameBits(6.0));
}

TEST(VQuantileW, LeavesMissingWeightsOutOfTheTotalAndAddsThemInTheWalk)
{
    EXPECT_THAT(weighted({1, 2, 3}, {M, 1, 2}, 0.5), SameBits(3.0)); // the sum stays far below
    EXPECT_THAT(weighted({1, 2, 3}, {1, 2, M}, 0.5), SameBits(2.0));
}

TEST(VQuantileW, ReadsItsTablesByTheCheckedReadAndLeavesThemAlone)
{
    const auto x = column({5, 3}), w = column({2, 1});
    // Third row: value -1 of weight -1. Sorted -1, 3, 5 with -1, 1, 2; target 1 of 2.
    EXPECT_THAT(V_QuantileW(x.get(), 3, w.get(), 0.5), SameBits(5.0));
    EXPECT_THAT(cellsOf(x), SameBits({5.0, 3.0}));
    EXPECT_THAT(cellsOf(w), SameBits({2.0, 1.0}));
}

TEST(VQuantileMW, PacksValuesAndWeightsInStep)
{
    const std::vector<double> x{4, 99, 1, M, 3, 2}, w{2, 50, 1, 50, 1, 1};
    const std::vector<short> mask{0, 3, 0, 0, 0, 0};
    EXPECT_THAT(masked(x, mask, w, 0.2), SameBits(1.5));
    EXPECT_THAT(masked(x, mask, w, 0.2), SameBits(weighted({4, 1, 3, 2}, {2, 1, 1, 1}, 0.2)));
    // Whether the weights are equal is asked of those that are left.
    EXPECT_THAT(masked({1, 2, 3, 4, 9}, {0, 0, 0, 0, 1}, {1, 1, 1, 1, 7}, 0.25), SameBits(1.75));
    // A missing weight is not removed.
    EXPECT_THAT(masked({1, 2, 3}, {0, 0, 0}, {M, 1, 2}, 0.5), SameBits(3.0));
}

TEST(VQuantileMW, IsMissingWhereNothingIsLeft)
{
    EXPECT_THAT(masked({1, 2}, {1, 1}, {1, 2}, 0.5), SameBits(M));
    EXPECT_THAT(masked({M, 2}, {0, 1}, {1, 2}, 0.5), SameBits(M));
    EXPECT_THAT(masked({1, 2}, {0, 1}, {0, 2}, 0.5), SameBits(M));
    EXPECT_THAT(masked({}, {}, {}, 0.5), SameBits(M));
}

TEST(MQuantileMW, WorksOnAColumn)
{
    const auto m = byColumns({{9, 9, 9, 9}, {4, 1, 3, 2}});
    std::vector<short> mask(4, 0);
    EXPECT_THAT(M_QuantileMW(m.get(), 4, 2, mask.data(), column({2, 1, 1, 1}), 0.2), SameBits(1.5));
    EXPECT_THAT(M_QuantileMW(m.get(), 3, 2, mask.data(), column({1, 1, 1}), 0.5), SameBits(3.0));
    EXPECT_THAT(M_QuantileMW(m.get(), 0, 2, mask.data(), column({1}), 0.5), SameBits(M));
    mask[1] = -1;
    EXPECT_THAT(M_QuantileMW(m.get(), 4, 2, mask.data(), column({1, 1, 1, 1}), 0.0), SameBits(2.0));
    // A column outside the table reads -1.0.
    EXPECT_THAT(M_QuantileMW(m.get(), 2, 3, mask.data(), column({1, 1}), 0.5), SameBits(-1.0));
}

TEST(WeightedQuantileExports, AreTheComputingFunctionsAndLeaveTheArraysAlone)
{
    RandomData data(84);
    SCOPED_TRACE(data);
    const int n = 17;
    Guarded<double> x(data.withMissing(data.normals(n), 0.2));
    Guarded<double> w(data.weights(n, 0.2));
    Guarded<short> mask(data.mask(n, 0.3));
    for (const double p : {0.0, 0.1, 0.5, 0.77, 1.0}) {
        EXPECT_THAT(VB_V_QuantileW(x, n, w, p), SameBits(weighted(x.values(), w.values(), p)));
        EXPECT_THAT(VB_V_QuantileMW(x, n, mask, w, p), SameBits(masked(x.values(), mask.values(), w.values(), p)));
    }
    EXPECT_TRUE(x.untouched() && w.untouched() && mask.untouched());
}
