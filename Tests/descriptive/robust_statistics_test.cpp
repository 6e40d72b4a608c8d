// Absolute deviations, winsorising and z-scores.
#include "descriptive/robust_statistics.h"

#include "descriptive/quantiles.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

using namespace vecmat::test;

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

int count(const std::vector<double>& x)
{
    return static_cast<int>(x.size());
}

double medianAbsDev(const std::vector<double>& x, double centre, std::vector<short> mask, const std::vector<double>& w)
{
    return V_MedianAbsDev(column(x), count(x), centre, mask.data(), column(w));
}

double meanAbsDev(const std::vector<double>& x, double centre, std::vector<short> mask, const std::vector<double>& w)
{
    return V_MeanAbsDev(column(x), count(x), centre, mask.data(), column(w));
}

/// The deviation, then the centre.
std::vector<double> medianAbsDev2(const std::vector<double>& x, double centre)
{
    const double deviation = V_MedianAbsDev2(column(x), count(x), &centre);
    return {deviation, centre};
}

std::vector<double> meanStdev2(const std::vector<double>& x, short sample)
{
    double mean = 7.0, stdev = 8.0;
    V_MeanStdev2(column(x), count(x), sample, &mean, &stdev);
    return {mean, stdev};
}

std::vector<double> winsorized(const std::vector<double>& x, double low, double high)
{
    const auto v = column(x);
    V_Winsorize2(v.get(), count(x), low, high);
    return cellsOf(v);
}

std::vector<double> scores(const std::vector<double>& x, int kind, double mean = M, double stdev = M)
{
    const auto out = filled(count(x), 1, 77.0);
    V_ZScores(column(x), count(x), kind, &mean, &stdev, out.get());
    return cellsOf(out);
}

const std::vector<double> reference{2.5, 3.1, 4.7, 5.0, 7.9, 11.2, 0.3};

} // namespace

TEST(VMedianAbsDev, IsTheMedianOfTheDeviationsOfTheRowsLeft)
{
    EXPECT_THAT(medianAbsDev({1, 2, 6, 9, M}, 2, {0, 0, 0, 0, 0}, {1, 1, 1, 1, 1}), SameBits(2.5)); // 1, 0, 4, 7
    EXPECT_THAT(medianAbsDev({1, 2, 6, 9, M}, 2, {0, 0, 0, 8, 0}, {1, 1, 1, 1, 1}), SameBits(1.0));
    EXPECT_THAT(medianAbsDev({1, 2}, 2, {1, 1}, {1, 1}), SameBits(M));
    EXPECT_THAT(medianAbsDev({}, 2, {}, {}), SameBits(M));
}

TEST(VMedianAbsDev, StepsWhereTheWeightsDiffer)
{
    // Deviations 1, 0, 4, 7; sorted 0, 1, 4, 7 with 1, 1, 1, 3: target 3 of 6 is hit between 4 and 7.
    EXPECT_THAT(medianAbsDev({1, 2, 6, 9}, 2, {0, 0, 0, 0}, {1, 1, 1, 3}), SameBits(5.5));
    // The weights are equal only without the masked row: asked of all of them first, of those left by the quantile.
    EXPECT_THAT(medianAbsDev({1, 2, 6, 9}, 2, {0, 0, 0, 1}, {1, 1, 1, 3}), SameBits(1.0));
    // Equal weights lead to the unweighted median, even if all are 0.
    EXPECT_THAT(medianAbsDev({1, 2, 6, 9}, 2, {0, 0, 0, 0}, {0, 0, 0, 0}), SameBits(2.5));
}

TEST(VMeanAbsDev, DividesByTheSumOfTheWeights)
{
    EXPECT_THAT(meanAbsDev({1, 2, 6, M, 50}, 2, {0, 0, 0, 0, 1}, {1, 5, 2, 9, 9}), SameBits(9.0 / 8.0));
    EXPECT_THAT(meanAbsDev({1, 2}, 2, {1, -1}, {1, 1}), SameBits(M));
    EXPECT_THAT(meanAbsDev({1, 2}, 2, {0, 0}, {1, -1}), SameBits(M));
    EXPECT_THAT(meanAbsDev({}, 2, {}, {}), SameBits(M));
    EXPECT_THAT(V_MeanAbsDev(column({4}), -1, 2, nullptr, column({1})), SameBits(M));
    // A weight of 0 is not skipped.
    EXPECT_TRUE(std::isnan(meanAbsDev({1, inf}, 2, {0, 0}, {1, 0})));
}

TEST(VMedianAbsDev2, FindsTheCentreOrKeepsTheOneGiven)
{
    EXPECT_THAT(medianAbsDev2({1, 2, 6}, M), SameBits({1.0, 2.0}));
    EXPECT_THAT(medianAbsDev2({1, 2, 6}, 6.0), SameBits({4.0, 6.0}));
    EXPECT_THAT(medianAbsDev2({}, M), SameBits({-1.0, -1.0}));
    EXPECT_THAT(medianAbsDev2({5, 5, 5}, M), SameBits({0.0, 5.0}));
}

TEST(VMedianAbsDev2, LetsMissingValuesDrawBothMediansDown)
{
    // Sorted M, 1, 2, 6, 9: centre 2. Deviations 1, 0, 4, 7 and a missing one: sorted M, 0, 1, 4, 7.
    EXPECT_THAT(medianAbsDev2({1, 2, M, 6, 9}, M), SameBits({1.0, 2.0}));
    EXPECT_THAT(medianAbsDev({1, 2, M, 6, 9}, 2, {0, 0, 0, 0, 0}, {1, 1, 1, 1, 1}), SameBits(2.5));
    // A centre that comes out as missing is used as it is; only missing values are left out of the deviations.
    EXPECT_THAT(medianAbsDev2({M, M, M, 5}, M), SameBits({M, M}));
}

TEST(VMeanStdev2, IsTheUpdatingFormOverWhatIsAboveTheMissingValue)
{
    const std::vector<double> x{0.3, M, 1.9, notANumber, 0.7, -inf, std::nextafter(M, -inf), 2.2};
    double mean = 0.0, Q = 0.0, m = 0.0;
    for (const double cell : {0.3, 1.9, 0.7, 2.2}) {
        m += 1.0;
        const double d = cell - mean;
        mean = d / m + mean;
        Q += d * d * (1.0 - 1.0 / m);
    }
    EXPECT_THAT(meanStdev2(x, 0), SameBits({mean, std::sqrt(Q / 4.0)}));
    EXPECT_THAT(meanStdev2(x, 1), SameBits({mean, std::sqrt(Q / 4.0)}));
    EXPECT_THAT(meanStdev2(x, -1), SameBits({mean, std::sqrt(Q / 3.0)}));
}

TEST(VMeanStdev2, GuardsNeitherNoCellsNorOne)
{
    EXPECT_THAT(meanStdev2({}, 0)[0], SameBits(0.0));
    EXPECT_TRUE(std::isnan(meanStdev2({}, 0)[1]));
    EXPECT_THAT(meanStdev2({M}, -1), SameBits({0.0, -0.0})); // the root of 0 / -1
    EXPECT_THAT(meanStdev2({5}, 0), SameBits({5.0, 0.0}));
    EXPECT_TRUE(std::isnan(meanStdev2({5}, -1)[1]));
}

TEST(VWinsorize2, ClipsToTheQuantiles)
{
    EXPECT_THAT(winsorized({5, 1, 4, 2, 3}, 0.25, 0.75), SameBits({4.0, 2.0, 4.0, 2.0, 3.0}));
    EXPECT_THAT(winsorized({5, 1, 4, 2, 3}, 0.0, 1.0), SameBits({5.0, 1.0, 4.0, 2.0, 3.0}));
    EXPECT_THAT(winsorized({}, 0.1, 0.9), SameBits(std::vector<double>{}));
}

TEST(VWinsorize2, LeavesZerosOfEitherSignThatEqualALimit)
{
    const auto v = column({-0.0, 0.0, -0.0});
    V_Winsorize2(v.get(), 3, 0.0, 1.0);
    EXPECT_THAT(cellsOf(v), SameBits({-0.0, 0.0, -0.0}));
}

TEST(VWinsorize2, LeavesMissingCellsButCountsThemInBothLimits)
{
    // Sorted M, 1, 2, 3, 4: limits 1 and 3, where 1, 2, 3, 4 alone have 1.75 and 3.25.
    EXPECT_THAT(winsorized({4, M, 3, 1, 2}, 0.25, 0.75), SameBits({3.0, M, 3.0, 1.0, 2.0}));
    EXPECT_THAT(winsorized({4, 3, 1, 2}, 0.25, 0.75), SameBits({3.25, 3.0, 1.75, 2.0}));
}

TEST(VWinsorize2, StaysInsideItsTable)
{
    const auto v = column({4, 2});
    V_Winsorize2(v.get(), 3, 0.5, 1.0); // the third reads -1.0, and is not written
    EXPECT_THAT(cellsOf(v), SameBits({4.0, 2.0}));
    const auto longer = column({1, 2, 3, 50});
    V_Winsorize2(longer.get(), 3, 0.0, 0.5);
    EXPECT_THAT(cellsOf(longer), SameBits({1.0, 2.0, 2.0, 50.0}));
}

TEST(VZScores, ClassicalScoresComputeMeanAndDeviationWhereTheMeanIsMissing)
{
    double mean = M, stdev = 99.0;
    const auto out = filled(5, 1, 77.0);
    V_ZScores(column({1, 2, 3, 6}), 4, 0, &mean, &stdev, out.get());
    const auto expected = meanStdev2({1, 2, 3, 6}, -1);
    EXPECT_THAT((std::vector{mean, stdev}), SameBits({expected[0], expected[1]}));
    EXPECT_THAT(cellsOf(out),
                SameBits({(1 - mean) / stdev, (2 - mean) / stdev, (3 - mean) / stdev, (6 - mean) / stdev, 77.0}));
    EXPECT_THAT(scores({1, 2, 7}, 0, 2.0, 4.0), SameBits({-0.25, 0.0, 1.25})); // taken as given
    EXPECT_THAT(scores({1, 2, 7}, 0, 2.0, M), SameBits({M, M, M}));
}

TEST(VZScores, RobustScoresMultiplyBeforeTheyDivide)
{
    double mean = 11.0, stdev = 12.0;
    const auto out = filled(4, 1, 77.0);
    const std::vector<double> x{0.3, 1.9, 0.7, 2.2};
    V_ZScores(column(x), 4, 1, &mean, &stdev, out.get());
    const auto spread = medianAbsDev2(x, M);
    std::vector<double> expected;
    for (const double cell : x)
        expected.push_back(((cell - spread[1]) * 0.6745) / spread[0]);
    EXPECT_THAT(cellsOf(out), SameBits(expected));
    EXPECT_THAT((std::vector{mean, stdev}), SameBits({11.0, 12.0}));
    EXPECT_THAT(scores(x, -7), SameBits(expected)); // any kind but 0
    V_ZScores(column(x), 4, 2, nullptr, nullptr, out.get());
    EXPECT_THAT(cellsOf(out), SameBits(expected));
}

TEST(VZScores, AreMissingWhereTheScaleIsNegligible)
{
    EXPECT_THAT(scores({5, 5, 5}, 0), SameBits({M, M, M}));
    EXPECT_THAT(scores({5, 5, 5}, 1), SameBits({M, M, M}));
    EXPECT_THAT(scores({5}, 0), SameBits({M})); // a NaN
    const double floor = 2.220446049250313e-16;
    EXPECT_THAT(scores({5}, 0, 5.0, floor), SameBits({M}));
    EXPECT_THAT(scores({5}, 0, 5.0, std::nextafter(floor, 1.0)), SameBits({0.0}));
    EXPECT_THAT(scores({5}, 0, 5.0, -1.0), SameBits({M}));
}

TEST(VZScores, TakeAMissingCellForTheNumberItIs)
{
    EXPECT_THAT(scores({M, 5}, 0, 1.0, 2.0), SameBits({(M - 1.0) / 2.0, 2.0}));
    EXPECT_LT(scores({1, 2, 3, 6, M}, 1)[4], -1e300);
}

// R 4.2: x <- c(2.5,3.1,4.7,5,7.9,11.2,.3)
TEST(RobustStatistics, AgreeWithPublishedFormulas)
{
    const double tolerance = 1e-14;
    const std::vector<double> ones(7, 1.0);
    EXPECT_THAT(medianAbsDev2(reference, M)[1], SameBits(4.7));                 // median(x)
    EXPECT_NEAR(medianAbsDev2(reference, M)[0], 2.2000000000000002, tolerance); // mad(x, constant=1)
    EXPECT_NEAR(medianAbsDev(reference, 4.7, std::vector<short>(7, 0), ones), 2.2000000000000002, tolerance);
    EXPECT_NEAR(meanAbsDev(reference, 5.0, std::vector<short>(7, 0), ones), 2.6428571428571428,
                tolerance);                                                   // mean(abs(x-5))
    EXPECT_NEAR(meanStdev2(reference, -1)[1], 3.6257675706242498, tolerance); // sd(x)
    const auto robust = scores(reference, 1), classical = scores(reference, 0);
    const std::vector<double> robustReference{
        -0.67449999999999999, -0.49054545454545445, 0.0,   0.091977272727272658,
        0.9810909090909089,   1.9928409090909087,   -1.349}; // (x-median(x))*0.6745/mad(x,constant=1)
    const std::vector<double> classicalReference{-0.67768901598946396, -0.51220681441064142, -0.070920943533781103,
                                                 0.011820157255630143, 0.81165079821993946,  1.7218029069034635,
                                                 -1.2844570884451469}; // scale(x)
    for (std::size_t i = 0; i < reference.size(); ++i) {
        EXPECT_NEAR(robust[i], robustReference[i], tolerance);
        EXPECT_NEAR(classical[i], classicalReference[i], tolerance);
    }
}

TEST(RobustExports, AreTheComputingFunctionsAndLeaveTheArraysAlone)
{
    RandomData data(87);
    SCOPED_TRACE(data);
    const int n = 17;
    Guarded<double> x(data.withMissing(data.normals(n), 0.1));
    Guarded<double> w(data.weights(n));
    Guarded<short> mask(data.mask(n, 0.3));
    const auto xs = x.values();
    EXPECT_THAT(Cpp_V_MedianAbsDev(x, n, 0.5, mask, w), SameBits(medianAbsDev(xs, 0.5, mask.values(), w.values())));
    EXPECT_THAT(Cpp_V_MeanAbsDev(x, n, 0.5, mask, w), SameBits(meanAbsDev(xs, 0.5, mask.values(), w.values())));
    double centre = M;
    const double deviation = Cpp_V_MedianAbsDev2(x, n, &centre);
    EXPECT_THAT((std::vector{deviation, centre}), SameBits(medianAbsDev2(xs, M)));
    double mean = 0.0, stdev = 0.0;
    Cpp_V_MeanStdev2(x, n, -1, &mean, &stdev);
    EXPECT_THAT((std::vector{mean, stdev}), SameBits(meanStdev2(xs, -1)));
    Guarded<double> out(data.leftovers(n));
    for (const int kind : {0, 1}) {
        mean = M;
        Cpp_V_ZScores(x, n, kind, &mean, &stdev, out);
        EXPECT_THAT(out.values(), SameBits(scores(xs, kind)));
        EXPECT_THAT(mean, SameBits(kind == 0 ? meanStdev2(xs, -1)[0] : M));
    }
    EXPECT_TRUE(x.untouched() && w.untouched() && mask.untouched());

    Cpp_V_Winsorize2(x, n, 0.2, 0.7);
    EXPECT_THAT(x.values(), SameBits(winsorized(xs, 0.2, 0.7)));
}
