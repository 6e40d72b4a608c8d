// Quantiles of few and many values against a sorted copy.
#include "descriptive/quantiles.h"

#include "sorting/many_keys.h"
#include "support/bits.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

using namespace vecmat::test;

namespace {

std::vector<double> sortedCopy(const std::vector<double>& x)
{
    std::vector<double> sorted;
    for (const KeyRecord& record : recordsInOrder(x, 1, static_cast<int>(x.size()), false))
        sorted.push_back(record.key);
    return sorted;
}

/// The rule on a sorted vector; -1.0 on either side of it.
double quantileOfSorted(const std::vector<double>& sorted, double p)
{
    const auto at = [&](double position) {
        return position >= 0.0 && position < static_cast<double>(sorted.size())
                   ? sorted[static_cast<std::size_t>(position)]
                   : -1.0;
    };
    if (p == 0.0)
        return at(0.0);
    if (p == 1.0)
        return at(static_cast<double>(sorted.size()) - 1.0);
    const double h = (static_cast<double>(sorted.size()) - 1.0) * p;
    const double below = std::floor(h);
    if (h == below)
        return at(h);
    const double a = at(below);
    const double b = at(below + 1.0);
    return a == b ? a : (1.0 - (h - below)) * a + (h - below) * b;
}

double stepQuantile(const std::vector<double>& x, const std::vector<double>& w, double p)
{
    const auto records = recordsInOrder(x, 1, static_cast<int>(x.size()), false);
    const auto weight = [&](std::size_t k) { return w[static_cast<std::size_t>(records[k].position) - 1]; };
    if (p == 0.0)
        return records.front().key;
    if (p == 1.0)
        return records.back().key;
    double sum = 0.0;
    for (std::size_t k = 0; k < x.size(); ++k)
        if (weight(k) != M)
            sum += weight(k);
    double cumulated = 0.0;
    for (std::size_t k = 0; k < x.size(); ++k) {
        const double before = k == 0 ? -1.0 : records[k - 1].key;
        if (cumulated == p * sum)
            return (before + records[k].key) * 0.5;
        if (cumulated > p * sum)
            return before;
        cumulated += weight(k);
    }
    return records.back().key;
}

class QuantileOfManyValues : public testing::TestWithParam<int>
{
protected:
    const int n = GetParam();
    RandomData random{static_cast<std::uint64_t>(33 + n)};
    testing::ScopedTrace trace{__FILE__, __LINE__, random.seed()};
    std::vector<Keys> kinds = keysOfManyKinds(random, n);
};

TEST_P(QuantileOfManyValues, isThatOfTheSortedCopy)
{
    for (Keys& keys : kinds) {
        const std::vector<double> sorted = sortedCopy(keys.cells);
        std::vector<double> orders{-0.2, 0.0, 1e-9, 1.0 / 3.0, 0.37, 0.5, 0.9, 1.0 - 1e-9, 1.0, 1.2};
        for (int k = 0; k < 10; ++k)
            orders.push_back(random.uniform());
        for (const double p : orders)
            EXPECT_THAT(VB_V_Quantile(keys.cells.data(), n, p), SameBits(quantileOfSorted(sorted, p)))
                << keys << " at " << p;
    }
}

TEST_P(QuantileOfManyValues, withWeightsStepsThroughTheSortedCopy)
{
    if (n < 3)
        return;
    for (Keys& keys : kinds) {
        if (keys.name == "all missing")
            continue;
        std::vector<double> weights = random.weights(static_cast<std::size_t>(n));
        weights[0] = 0.25;
        weights[1] = M;
        weights.back() = 0.5;
        if (keys.cells.back() == M)
            keys.cells.back() = 3.0; // a value that counts
        for (const double p : {0.0, 0.1, 0.37, 0.5, 0.9, 1.0})
            EXPECT_THAT(VB_V_QuantileW(keys.cells.data(), n, weights.data(), p),
                        SameBits(stepQuantile(keys.cells, weights, p)))
                << keys << " at " << p;
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, QuantileOfManyValues, testing::ValuesIn(sizesAroundThresholds()));

/// Numbers are first selected between two of a sample: every sixteenth of 4,096. Here the upper one is the number asked
/// for, and the next lies above it.
TEST(QuantilesSelection, TheNextNumberLiesBeyondTheSampledBound)
{
    constexpr std::size_t n = 4096, step = 16, sampled = n / step, place = 1605;
    constexpr double upper = 100 + 2 * 16; // 2 standard deviations above the place in the sample
    std::vector<double> x(n, 1000.0);
    std::size_t notAbove = 0;
    for (std::size_t k = 0; k < sampled; ++k) {
        x[k * step] = static_cast<double>(k);
        notAbove += static_cast<std::size_t>(static_cast<double>(k) <= upper);
    }
    for (std::size_t k = 1; notAbove <= place; ++k)
        if (k % step != 0) {
            x[k] = 100.5;
            ++notAbove;
        }
    const std::vector<double> sorted = sortedCopy(x);
    ASSERT_EQ(sorted[place], upper);
    ASSERT_EQ(sorted[place + 1], upper + 1.0);
    const double p = (place + 0.25) / (n - 1.0);
    EXPECT_EQ(V_Quantile(column(x), static_cast<int>(n), p), quantileOfSorted(sorted, p));
}

TEST(QuantileOfZerosOfBothSigns, isTheOneInItsPlace)
{
    RandomData data(87);
    SCOPED_TRACE(data);
    for (const int n : {5, 9, 17, 33, 65}) // n - 1 is a power of two: every order below is an element's
        for (int round = 0; round < 40; ++round) {
            std::vector<double> x;
            for (int i = 0; i < n; ++i)
                x.push_back(std::array{-1.0, -0.0, 0.0, 1.0}[static_cast<std::size_t>(data.integer(0, 3))]);
            const std::vector<double> sorted = sortedCopy(x);
            for (int k = 0; k < n; ++k) {
                const double p = k / (n - 1.0);
                EXPECT_THAT(VB_V_Quantile(x.data(), n, p), SameBits(quantileOfSorted(sorted, p))) << n << " " << k;
            }
        }
}

TEST(QuantileOfAnUnevenSample, isFoundWhereTheSampleMisleads)
{
    // Numbers at even steps, from which the place is guessed, are all small, all large, or NaN but one.
    constexpr int n = 10000;
    for (int step = 2; step < 40; ++step) {
        std::vector<double> x(n);
        for (int i = 0; i < n; ++i)
            x[static_cast<std::size_t>(i)] = i % step == 0 ? -1e6 + i : i;
        for (const double p : {0.1, 0.5, 0.77}) {
            EXPECT_THAT(VB_V_Quantile(x.data(), n, p), SameBits(quantileOfSorted(sortedCopy(x), p))) << step;
            for (double& number : x)
                number = -number;
        }
    }
}

} // namespace
