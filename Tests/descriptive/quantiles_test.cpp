// One quantile of a vector, without weights.
#include "descriptive/quantiles.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

using namespace vecmat::test;

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

double quantile(const std::vector<double>& x, double p)
{
    return V_Quantile(column(x), static_cast<int>(x.size()), p);
}

double masked(const std::vector<double>& x, std::vector<short> mask, double p)
{
    return V_QuantileM(column(x), static_cast<int>(x.size()), mask.data(), p);
}

/// The rule written down once more, for p inside 0 to 1.
double plainQuantile(std::vector<double> x, double p)
{
    std::stable_sort(x.begin(), x.end());
    const double h = (static_cast<double>(x.size()) - 1.0) * p;
    const auto i = static_cast<std::size_t>(h);
    if (h == std::floor(h) || x[i] == x[i + 1])
        return x[i];
    const double g = h - std::floor(h);
    return (1 - g) * x[i] + g * x[i + 1];
}

} // namespace

TEST(VQuantile, InterpolatesAtTheShareOfTheLastPosition)
{
    EXPECT_THAT(quantile({4, 2, 1, 3}, 0.5), SameBits(2.5));
    EXPECT_THAT(quantile({4, 2, 1, 3}, 0.0), SameBits(1.0));
    EXPECT_THAT(quantile({4, 2, 1, 3}, 1.0), SameBits(4.0));
    EXPECT_THAT(quantile({5, 1, 4, 2, 3}, 0.25), SameBits(2.0));
    std::vector<double> eleven;
    for (int i = 1; i <= 11; ++i)
        eleven.push_back(i);
    EXPECT_THAT(quantile(eleven, 0.5), SameBits(6.0));
}

TEST(VQuantile, OfOneValueIsThatValueForEveryP)
{
    for (const double p : {0.0, 0.05, 0.5, 0.99, 1.0, -3.0, 17.5})
        EXPECT_THAT(quantile({7}, p), SameBits(7.0));
}

TEST(VQuantile, OfNothingIsMinusOne)
{
    for (const double p : {0.0, 0.3, 0.5, 1.0, -3.0, 17.5})
        for (const int n : {0, -1, std::numeric_limits<int>::min()})
            EXPECT_THAT(V_Quantile(column({5, 6}), n, p), SameBits(-1.0));
}

TEST(VQuantile, KeepsARunOfTiesExact)
{
    EXPECT_THAT(quantile({5, 5, 5, 7}, 0.3), SameBits(5.0));
    // The weighted sum alone would round.
    int rounded = 0;
    for (double p = 0.01; p < 1.0; p += 0.01) {
        const double h = 3.0 * p, g = h - std::floor(h);
        rounded += (1 - g) * 0.1 + g * 0.1 != 0.1 ? 1 : 0;
        EXPECT_THAT(quantile({0.1, 0.1, 0.1, 0.1}, p), SameBits(0.1));
    }
    EXPECT_GT(rounded, 0);
}

TEST(VQuantile, FollowsItsFormToTheLastBit)
{
    RandomData data(81);
    SCOPED_TRACE(data);
    int otherForm = 0;
    for (const std::size_t n : {2u, 3u, 7u, 10u, 31u}) {
        const auto x = data.withMissing(data.normals(n), 0.1);
        for (int k = 0; k < 20; ++k) {
            const double p = data.uniform();
            EXPECT_THAT(quantile(x, p), SameBits(plainQuantile(x, p)));
            auto sorted = x;
            std::stable_sort(sorted.begin(), sorted.end());
            const double h = (static_cast<double>(n) - 1.0) * p;
            const auto i = static_cast<std::size_t>(h);
            otherForm += sorted[i] + (h - std::floor(h)) * (sorted[i + 1] - sorted[i]) != plainQuantile(x, p) ? 1 : 0;
        }
    }
    EXPECT_GT(otherForm, 0); // a + g (b-a) would give other bits
}

TEST(VQuantile, CountsMissingValuesAsTheLowest)
{
    EXPECT_THAT(quantile({3, M, 1}, 0.0), SameBits(M));
    EXPECT_THAT(quantile({3, M, 1}, 0.5), SameBits(1.0));
    EXPECT_THAT(quantile({3, M, 1, M, M}, 0.5), SameBits(M));
}

TEST(VQuantile, ReadsMinusOneOutsideTheData)
{
    EXPECT_THAT(quantile({1, 2, 3, 4}, -0.25), SameBits(-0.5)); // between -1 and 1
    EXPECT_THAT(quantile({1, 2, 3, 4}, 2.0), SameBits(-1.0));
    const double h = 3.0 * 1.1, g = h - 3;
    EXPECT_THAT(quantile({1, 2, 3, 4}, 1.1), SameBits((1 - g) * 4.0 + g * -1.0));
    for (const double p : {1e300, -1e300, inf, -inf, notANumber, 7e8 + 0.1})
        EXPECT_THAT(quantile({1, 2, 3, 4}, p), SameBits(-1.0));
}

TEST(VQuantile, ReadsItsTableByTheCheckedReadAndLeavesItAlone)
{
    const auto x = column({5, 3, 4});
    EXPECT_THAT(V_Quantile(x.get(), 5, 0.0), SameBits(-1.0));
    EXPECT_THAT(V_Quantile(x.get(), 5, 0.5), SameBits(3.0));
    EXPECT_THAT(V_Quantile(x.get(), 2, 1.0), SameBits(5.0));
    EXPECT_THAT(cellsOf(x), SameBits({5.0, 3.0, 4.0}));
}

TEST(VQuantileM, LeavesOutMaskedRowsAndMissingValues)
{
    EXPECT_THAT(masked({4, M, 2, 99, 1, 3}, {0, 0, 0, 5, 0, 0}, 0.5), SameBits(2.5));
    EXPECT_THAT(masked({4, -inf, 2}, {0, 0, 0}, 0.0), SameBits(-inf)); // only the missing value itself
    EXPECT_THAT(masked({1, 2}, {-1, 1}, 0.5), SameBits(M));
    EXPECT_THAT(masked({M, M}, {0, 0}, 0.5), SameBits(M));
    EXPECT_THAT(masked({}, {}, 0.5), SameBits(M));
    EXPECT_THAT(V_QuantileM(column({1}), -2, nullptr, 0.5), SameBits(M));
    EXPECT_THAT(V_QuantileM(column({1, M, 2}), 3, nullptr, 0.5), SameBits(1.5));
}

// R 4.2: x <- c(2.5,3.1,4.7,5,7.9,11.2,.3); quantile(x, p, type=7)
TEST(VQuantile, AgreesWithPublishedFormulas)
{
    const std::vector<double> x{2.5, 3.1, 4.7, 5.0, 7.9, 11.2, 0.3};
    const std::vector<std::pair<double, double>> expected{
        {0.05, 0.96000000000000008}, {0.1, 1.6200000000000001},  {0.25, 2.7999999999999998}, {0.5, 4.7},
        {0.6, 4.8799999999999999},   {0.75, 6.4500000000000002}, {0.9, 9.2200000000000024}};
    for (const auto& [p, value] : expected)
        EXPECT_NEAR(quantile(x, p), value, 1e-14);
}

TEST(QuantileExports, AreTheComputingFunctionsAndLeaveTheArraysAlone)
{
    RandomData data(82);
    SCOPED_TRACE(data);
    const int n = 17;
    Guarded<double> x(data.withMissing(data.normals(n), 0.2));
    Guarded<short> mask(data.mask(n, 0.3));
    for (const double p : {0.0, 0.1, 0.5, 0.77, 1.0}) {
        EXPECT_THAT(VB_V_Quantile(x, n, p), SameBits(quantile(x.values(), p)));
        EXPECT_THAT(VB_V_QuantileM(x, n, mask, p), SameBits(masked(x.values(), mask.values(), p)));
    }
    EXPECT_THAT(VB_V_Quantile(x, 0, 0.5), SameBits(-1.0));
    EXPECT_TRUE(x.untouched() && mask.untouched());
}
