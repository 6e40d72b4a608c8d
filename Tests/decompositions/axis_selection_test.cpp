// How many axes to keep, and which points are well represented.
#include "decompositions/axis_selection.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// What a call requests; nothing but `kept` limits `selected` in the defaults.
struct Request
{
    short drop = 1;
    double floor = 0.0;
    double cumPercent = 0.0;
    int maxCount = 0;
    double minValue = 0.0;
};

struct Selection
{
    std::vector<double> eig;
    int kept = 77;
    int selected = 78;
    std::vector<double> percent;
};

Selection selectedFrom(const std::vector<double>& values, const Request& request)
{
    Owned<matrix> eig = column(values);
    Owned<matrix> percent;
    Selection result;
    EXPECT_EQ(FilterEigen(eig, static_cast<int>(values.size()), request.drop, request.floor, request.cumPercent,
                          request.maxCount, request.minValue, result.kept, result.selected, percent),
              0);
    result.eig = cellsOf(eig);
    result.percent = cellsOf(percent);
    return result;
}

/// Step by step, for combinations that end and at least one eigenvalue.
Selection selectedBySteps(std::vector<double> eig, const Request& request)
{
    const int n = static_cast<int>(eig.size());
    const auto at = [&](int k) -> double& { return eig[static_cast<std::size_t>(k - 1)]; };
    Selection result;
    int i = n;
    result.kept = n;
    while (i > 1 && at(i) < request.floor) {
        if (request.drop != 0) {
            --result.kept;
            --i;
        } else {
            at(i) = 0.0;
        }
    }
    double sum = 0.0;
    for (int k = 1; k <= i; ++k)
        if (at(k) != M)
            sum += at(k);
    const double total = sum / 100;
    result.percent.assign(static_cast<std::size_t>(n), 0.0);
    if (total != 0.0)
        for (int k = 1; k <= result.kept; ++k)
            result.percent[static_cast<std::size_t>(k - 1)] = at(k) / total;
    int byPercent = i;
    if (request.cumPercent > 0.0) {
        double running = 0.0;
        for (int k = 1; k <= result.kept; ++k) {
            running += result.percent[static_cast<std::size_t>(k - 1)];
            if (running >= request.cumPercent) {
                byPercent = k;
                break;
            }
        }
    }
    const int byCount = request.maxCount >= 1 ? request.maxCount : i;
    if (request.minValue > 0.0)
        for (int k = result.kept; k >= 1; --k)
            if (at(k) < request.minValue + 1e-12)
                --i;
    result.selected = std::min({i, byPercent, byCount, result.kept});
    result.eig = eig;
    return result;
}

void expectSame(const Selection& actual, const Selection& expected)
{
    EXPECT_THAT(actual.eig, SameBits(expected.eig));
    EXPECT_EQ(actual.kept, expected.kept);
    EXPECT_EQ(actual.selected, expected.selected);
    EXPECT_THAT(actual.percent, SameBits(expected.percent));
}

TEST(FilterEigen, HasTheBitsOfTheStepsInTheirOrder)
{
    RandomData data(8131);
    SCOPED_TRACE(data);
    for (int round = 0; round < 2000; ++round) {
        const int n = data.integer(1, 8);
        std::vector<double> eig = data.uniforms(static_cast<std::size_t>(n), -1.0, 5.0);
        if (data.chance(0.7))
            std::sort(eig.rbegin(), eig.rend());
        if (data.chance(0.2))
            eig = data.withSpecials(eig, 0.2);
        Request request;
        request.drop = static_cast<short>(data.integer(-1, 1));
        request.floor = request.drop == 0 ? data.uniform(-1.0, 0.0) : data.uniform(-1.0, 3.0);
        request.cumPercent = data.chance(0.5) ? data.uniform(-10.0, 110.0) : 0.0;
        request.maxCount = data.chance(0.5) ? data.integer(-1, 9) : 0;
        request.minValue = data.chance(0.5) ? data.uniform(-1.0, 3.0) : 0.0;
        SCOPED_TRACE(round);
        expectSame(selectedFrom(eig, request), selectedBySteps(eig, request));
    }
}

TEST(FilterEigen, CountsNoShareBeyondThoseKept)
{
    Owned<matrix> eig = column({3, 1});
    Owned<matrix> percent = column({7, 7, 1000}); // kept, as it is larger than asked for
    int kept = 0, selected = 0;
    FilterEigen(eig, 2, 0, 0.0, 500.0, 0, 0.0, kept, selected, percent);
    EXPECT_EQ(selected, 2);
    EXPECT_THAT(cellsOf(percent), SameBits({75, 25, 1000}));
}

TEST(FilterEigen, TakesSmallEigenvaluesOffTheEnd)
{
    for (const short drop : {1, -1, 5}) {
        const Selection result = selectedFrom({4, 3, 1, 0.5, 0.25}, {.drop = drop, .floor = 1.0});
        EXPECT_EQ(result.kept, 3);
        EXPECT_EQ(result.selected, 3);
        EXPECT_THAT(result.eig, SameBits({4, 3, 1, 0.5, 0.25})) << "the list itself stays";
        EXPECT_THAT(result.percent, SameBits({4 / 0.08, 3 / 0.08, 1 / 0.08, 0, 0}));
    }
    // The scan ends at the first that is not below: one in the middle stays.
    EXPECT_EQ(selectedFrom({4, 0.5, 1, 0.25}, {.floor = 1.0}).kept, 3);
    EXPECT_EQ(selectedFrom({4, 0.5, notANumber}, {.floor = 1.0}).kept, 3);
    EXPECT_EQ(selectedFrom({4, 0.5}, {.floor = notANumber}).kept, 2);
}

TEST(FilterEigen, NeverTakesTheFirstEigenvalueOff)
{
    const Selection result = selectedFrom({0.5, 0.4, 0.3}, {.floor = 1.0});
    EXPECT_EQ(result.kept, 1);
    EXPECT_EQ(result.selected, 1);
    EXPECT_THAT(result.percent, SameBits({0.5 / (0.5 / 100), 0, 0}));
    EXPECT_EQ(selectedFrom({0.5}, {.floor = 1.0}).kept, 1);
}

TEST(FilterEigen, ClearsOnlyTheLastEigenvalueWithoutDrop)
{
    const Selection result = selectedFrom({3, 1, -0.5, -0.25}, {.drop = 0});
    EXPECT_THAT(result.eig, SameBits({3, 1, -0.5, 0.0}));
    EXPECT_EQ(result.kept, 4);
    EXPECT_EQ(result.selected, 4);
    EXPECT_THAT(result.percent, SameBits({3 / 0.035, 1 / 0.035, -0.5 / 0.035, 0}));
    // With drop they go.
    EXPECT_EQ(selectedFrom({3, 1, -0.5, -0.25}, {.drop = 1}).kept, 2);
    // Not below the floor: nothing is cleared.
    EXPECT_THAT(selectedFrom({3, -0.25}, {.drop = 0, .floor = -0.25}).eig, SameBits({3, -0.25}));
}

TEST(FilterEigen, EndsWhereAClearedEigenvalueWouldBeFoundBelowTheFloorForEver)
{
    const Selection result = selectedFrom({3, 1, 0.5}, {.drop = 0, .floor = 0.75});
    EXPECT_THAT(result.eig, SameBits({3, 1, 0.0}));
    EXPECT_EQ(result.kept, 3);
    EXPECT_THAT(result.percent, SameBits({75, 25, 0}));
}

TEST(FilterEigen, TakesPercentagesOfWhatIsLeftAndSkipsTheMissing)
{
    const Selection result = selectedFrom({M, 3, 1}, {.drop = 1, .floor = -inf});
    EXPECT_THAT(result.percent, SameBits({M / 0.04, 75, 25}));
    EXPECT_THAT(selectedFrom({3, 1, 0.5}, {.floor = 0.75}).percent, SameBits({75, 25, 0}));
}

TEST(FilterEigen, LeavesPercentagesAtZeroWhereTheSumIsZero)
{
    const Selection result = selectedFrom({2, 0, -2}, {.drop = 1, .floor = -5, .cumPercent = 50});
    EXPECT_THAT(result.percent, SameBits({0, 0, 0}));
    EXPECT_EQ(result.selected, 3) << "no running sum gets there";
}

TEST(FilterEigen, SelectsUpToThePercentageReached)
{
    const std::vector<double> eig = {5, 3, 1, 1};
    EXPECT_EQ(selectedFrom(eig, {.cumPercent = 50}).selected, 1) << "reached exactly";
    EXPECT_EQ(selectedFrom(eig, {.cumPercent = 50.1}).selected, 2);
    EXPECT_EQ(selectedFrom(eig, {.cumPercent = 100}).selected, 4);
    EXPECT_EQ(selectedFrom(eig, {.cumPercent = 200}).selected, 4);
    EXPECT_EQ(selectedFrom(eig, {.cumPercent = 0}).selected, 4);
    EXPECT_EQ(selectedFrom(eig, {.cumPercent = -1}).selected, 4);
    EXPECT_EQ(selectedFrom(eig, {.cumPercent = notANumber}).selected, 4);
}

TEST(FilterEigen, SelectsAtMostTheGivenCount)
{
    const std::vector<double> eig = {5, 3, 1, 1};
    EXPECT_EQ(selectedFrom(eig, {.maxCount = 2}).selected, 2);
    EXPECT_EQ(selectedFrom(eig, {.maxCount = 1}).selected, 1);
    EXPECT_EQ(selectedFrom(eig, {.maxCount = 9}).selected, 4);
    EXPECT_EQ(selectedFrom(eig, {.maxCount = 0}).selected, 4);
    EXPECT_EQ(selectedFrom(eig, {.maxCount = -3}).selected, 4);
}

TEST(FilterEigen, CountsEveryKeptEigenvalueBelowTheLeastValue)
{
    // A small one in front counts as much as one at the end: it is a count, not a cut.
    EXPECT_EQ(selectedFrom({0.5, 3, 2, 0.5}, {.minValue = 1}).selected, 2);
    EXPECT_EQ(selectedFrom({0.5, 0.5}, {.minValue = 1}).selected, 0);
    // Those that were removed are not read.
    EXPECT_EQ(selectedFrom({3, 2, 0.5}, {.floor = 1, .minValue = 1}).selected, 2);
    // The bound carries 1e-12.
    EXPECT_EQ(selectedFrom({3, 1}, {.minValue = 1}).selected, 1);
    EXPECT_EQ(selectedFrom({3, 1 + 1e-12}, {.minValue = 1}).selected, 2);
    EXPECT_EQ(selectedFrom({3, 1 + 0.9e-12}, {.minValue = 1}).selected, 1);
    EXPECT_EQ(selectedFrom({3, -1}, {.floor = -2, .minValue = 0}).selected, 2);
    EXPECT_EQ(selectedFrom({3, -1}, {.floor = -2, .minValue = -0.5}).selected, 2);
    // The other limits are those from before this count.
    EXPECT_EQ(selectedFrom({5, 3, 0.5, 0.5}, {.cumPercent = 90, .maxCount = 4, .minValue = 1}).selected, 2);
}

TEST(FilterEigen, PreparesThePercentages)
{
    Owned<matrix> eig = column({3, 1});
    Owned<matrix> longer = column({7, 7, 7});
    matrix* const same = longer;
    int kept = 0;
    int selected = 0;
    FilterEigen(eig, 2, 1, 0, 0, 0, 0, kept, selected, longer);
    EXPECT_EQ(longer.get(), same);
    EXPECT_THAT(cellsOf(longer), SameBits({75, 25, 7}));
    Owned<matrix> shorter = column({7});
    FilterEigen(eig, 2, 1, 0, 0, 0, 0, kept, selected, shorter);
    EXPECT_THAT(cellsOf(shorter), SameBits({75, 25}));
}

TEST(FilterEigen, ReadsMinusOneBeyondTheList)
{
    Owned<matrix> eig = column({3});
    Owned<matrix> percent;
    int kept = 0;
    int selected = 0;
    FilterEigen(eig, 3, 1, 0, 0, 0, 0, kept, selected, percent);
    EXPECT_EQ(kept, 1);
    // What would be cleared is outside, and is not found again.
    FilterEigen(eig, 3, 0, 0, 0, 0, 0, kept, selected, percent);
    EXPECT_EQ(kept, 3);
    EXPECT_THAT(cellsOf(percent), SameBits({300, -100, -100}));
    EXPECT_THAT(cellsOf(eig), SameBits({3}));
}

TEST(FilterEigen, OfNoneKeepsNone)
{
    for (const short drop : {0, 1}) {
        Owned<matrix> eig = column({3});
        Owned<matrix> percent;
        int kept = 9;
        int selected = 9;
        EXPECT_EQ(FilterEigen(eig, 0, drop, 5, 50, 3, 1, kept, selected, percent), 0);
        EXPECT_EQ(kept, 0);
        EXPECT_EQ(selected, 0);
        EXPECT_EQ(percent->nElems, 0u);
        EXPECT_THAT(cellsOf(eig), SameBits({3}));
    }
}

TEST(FlatFilterEigen, CopiesListAndPercentagesBack)
{
    Guarded<double> eig({3, 1, -0.25});
    Guarded<double> percent(3, 7.0);
    int kept = 0;
    int selected = 0;
    VB_FilterEigen(eig, 3, 0, 0, 80, 0, 0, &kept, &selected, percent);
    EXPECT_THAT(eig.values(), SameBits({3, 1, 0}));
    EXPECT_THAT(percent.values(), SameBits({75, 25, 0}));
    EXPECT_EQ(kept, 3);
    EXPECT_EQ(selected, 2);
}

// ---- points well represented on two axes ----

std::vector<double> flagsOf(matrix* m, int n, int colA, int colB, double threshold)
{
    Guarded<double> flags(static_cast<std::size_t>(n), 7.0);
    FilterOnSumOfSquares(m, n, colA, colB, threshold, flags);
    return flags.values();
}

TEST(FilterOnSumOfSquares, FlagsRowsWhoseSumIsAboveTheThreshold)
{
    const Owned<matrix> m = byRows({{0.5, 0.5}, {0.5, 0.25}, {0, 9}, {-1, 9}, {notANumber, 9}, {0.5, notANumber}});
    EXPECT_THAT(flagsOf(m, 6, 1, 2, 0.75), SameBits({1, 0, 0, 0, 0, 0}));
    EXPECT_THAT(flagsOf(m, 6, 2, 1, 0.75), SameBits({1, 0, 1, 1, 0, 0}));
    EXPECT_THAT(flagsOf(m, 2, 1, 1, 0.75), SameBits({1, 1}));
}

TEST(FilterOnSumOfSquares, TakesMinusOneForASecondColumnOutsideTheTable)
{
    const Owned<matrix> m = column({0.5, 2});
    EXPECT_THAT(flagsOf(m, 2, 1, 2, 0.75), SameBits({0, 1}));
    EXPECT_THAT(flagsOf(m, 2, 1, 2, -0.75), SameBits({1, 1}));
    EXPECT_THAT(flagsOf(m, 2, 1, 0, -0.75), SameBits({1, 1}));
}

TEST(FilterOnSumOfSquares, FlagsNothingForAFirstColumnOutsideTheTable)
{
    const Owned<matrix> m = column({0.5, 2});
    EXPECT_THAT(flagsOf(m, 2, 2, 1, -9), SameBits({0, 0}));
    EXPECT_THAT(flagsOf(m, 2, 0, 1, -9), SameBits({0, 0}));
    EXPECT_THAT(flagsOf(m, 3, 1, 1, -9), SameBits({1, 1, 0})) << "rows beyond the table";
    EXPECT_THAT(flagsOf(m, 0, 1, 1, -9), SameBits(std::vector<double>{}));
}

TEST(FilterOnSumOfSquares, LooksForNoMissingCell)
{
    EXPECT_THAT(flagsOf(byRows({{0.5, M}, {M, 1}}), 2, 1, 2, -positiveTwin), SameBits({0, 0}));
    EXPECT_THAT(flagsOf(byRows({{0.5, M}}), 1, 1, 2, -inf), SameBits({1}));
}

TEST(FlatFilterOnSumOfSquares, WrapsTheTable)
{
    Guarded<double> cells({0.5, 0.25, 0.5, 0.25});
    Guarded<double> flags(2, 7.0);
    Cpp_FilterOnSumOfSquares(cells, 2, 2, 1, 2, 0.75, flags);
    EXPECT_THAT(flags.values(), SameBits({1, 0}));
    Cpp_FilterOnSumOfSquares(cells, 2, 2, 1, 3, -0.6, flags);
    EXPECT_THAT(flags.values(), SameBits({1, 0}));
    EXPECT_TRUE(cells.untouched());
}

} // namespace
} // namespace vecmat::test
