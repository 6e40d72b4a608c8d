// The thirteen quantiles of the second rule.
#include "descriptive/quantiles.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

using namespace vecmat::test;

namespace {

const std::vector<double> orders{0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.75, 0.8, 0.9, 0.95};

std::vector<double> thirteen(const std::vector<double>& x)
{
    Owned<matrix> out = filled(13, 1, 77.0);
    V_Quantiles13(column(x), static_cast<int>(x.size()), out);
    return cellsOf(out);
}

/// The rule written down once more, for two values or more.
std::vector<double> plainThirteen(std::vector<double> x)
{
    std::stable_sort(x.begin(), x.end());
    const auto at = [&](double position) { return x[static_cast<std::size_t>(position) - 1]; };
    std::vector<double> results;
    for (const double p : orders) {
        const double h = (static_cast<double>(x.size()) - 1.0) * p + (p > 0.5 ? 1.0 : 0.5);
        const double f = std::floor(h), c = std::floor(h + 1.0 - 2.220446049250313e-16);
        if (h == f)
            results.push_back(at(h));
        else if (f == 0.0)
            results.push_back(x[0]);
        else
            results.push_back(at(f) == at(c) ? at(f) : at(f) + (h - f) * (at(c) - at(f)));
    }
    return results;
}

} // namespace

TEST(VQuantiles13, ShiftsByAHalfUpToTheMedianAndByOneAboveIt)
{
    std::vector<double> eleven;
    for (int i = 11; i >= 1; --i)
        eleven.push_back(i);
    EXPECT_THAT(thirteen(eleven), SameBits({1, 1.5, 2.5, 3, 3.5, 4.5, 5.5, 7, 8, 8.5, 9, 10, 10.5}));
    EXPECT_THAT(V_Quantile(column(eleven), 11, 0.5), SameBits(6.0)); // the other rule
}

TEST(VQuantiles13, FollowsItsFormToTheLastBit)
{
    RandomData data(85);
    SCOPED_TRACE(data);
    for (const std::size_t n : {2u, 3u, 5u, 12u, 21u, 40u, 91u}) // at 91 a position just below 64
        for (int k = 0; k < 4; ++k) {
            const auto x = k < 2 ? data.normals(n) : data.wholes(n, 1, 4);
            EXPECT_THAT(thirteen(x), SameBits(plainThirteen(x)));
        }
}

TEST(VQuantiles13, GivesTheFirstElementBeforeThePositionOne)
{
    EXPECT_THAT(thirteen({7}), SameBits(std::vector<double>(13, 7.0)));
    const auto two = thirteen({4, 2});
    EXPECT_THAT(two[0], SameBits(2.0)); // h = 0.55
    EXPECT_THAT(two[6], SameBits(2.0)); // h = 1
    EXPECT_THAT(two[7], SameBits(2.0 + (0.6 + 1.0 - 1.0) * (4.0 - 2.0)));
}

TEST(VQuantiles13, OfNothingReadsTheTable)
{
    EXPECT_THAT(thirteen({}), SameBits(std::vector<double>(13, -1.0)));
    // The first cell serves for every position before 1; the whole position 0 of p = 0.5 lies outside.
    Owned<matrix> out = filled(13, 1, 77.0);
    V_Quantiles13(column({8, 3}), 0, out);
    std::vector<double> expected(13, 8.0);
    expected[6] = -1.0;
    EXPECT_THAT(cellsOf(out), SameBits(expected));
}

TEST(VQuantiles13, CountsMissingValues)
{
    const auto results = thirteen({3, M, M, 1, M});
    EXPECT_THAT(results[0], SameBits(M));
    EXPECT_THAT(results[6], SameBits(M));   // h = 2.5, between two of them
    EXPECT_THAT(results[9], SameBits(1.0)); // h = 4
}

TEST(VQuantiles13, SortsTheFirstElementsOfItsVectorInPlace)
{
    const auto x = column({4, 3, 2, 1});
    Owned<matrix> out = filled(15, 1, 77.0);
    V_Quantiles13(x.get(), 3, out);
    EXPECT_THAT(cellsOf(x), SameBits({2.0, 3.0, 4.0, 1.0}));
    EXPECT_THAT(cellsOf(out)[13], SameBits(77.0));
    EXPECT_THAT(cellsOf(out)[14], SameBits(77.0));
    Owned<matrix> small = filled(2, 1, 77.0); // what does not fit is dropped
    V_Quantiles13(x.get(), 3, small);
    EXPECT_THAT(cellsOf(small), SameBits({2.0, 2.0}));
}

TEST(CppVQuantiles13, LeavesTheCallersVectorUnsorted)
{
    RandomData data(86);
    SCOPED_TRACE(data);
    const int n = 19;
    Guarded<double> x(data.withMissing(data.normals(n), 0.1));
    Guarded<double> out(data.leftovers(13));
    Cpp_V_Quantiles13(x, n, out);
    EXPECT_THAT(out.values(), SameBits(thirteen(x.values())));
    EXPECT_TRUE(x.untouched());
}
