// Which columns a least squares fit is made of, and which of them enter.
#include "fitting/regression_calls.h"
#include "fitting/small_problem.h"

#include "support/guarded.h"

#include <cmath>
#include <limits>

namespace vecmat::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();

std::vector<double> scaled(std::vector<double> cells, double factor)
{
    for (double& cell : cells)
        cell *= factor;
    return cells;
}

// ---- which columns enter --------------------------------------------------------------------------------------------

TEST(OLSBasic3, LeavesTheSecondOfTwoEqualColumnsOut)
{
    const Solution twice = fitted(Problem::of({x1, x1}, response)), once = fitted(Problem::of({x1}, response));
    EXPECT_THAT(twice.beta[0], SameBits(once.beta[0]));
    EXPECT_THAT(twice.beta[1], SameBits(0.0));
    EXPECT_THAT(twice.beta[2], SameBits(once.beta[1]));
    EXPECT_THAT(twice.se[1], SameBits(0.0));
    EXPECT_THAT(twice.fitted, SameBits(once.fitted));
    EXPECT_GT(twice.sd[0], 0.0);
    EXPECT_THAT(twice.sd[1], SameBits(0.0)); // the mark of a column that stayed out
    EXPECT_THAT(twice.mean[1], SameBits(twice.mean[0]));
    // It still takes a degree of freedom: 8 - 2 - 1 and 8 - 1 - 1.
    EXPECT_NEAR(twice.se[0] / once.se[0], std::sqrt(6.0 / 5.0), 1e-15);
}

TEST(OLSBasic3, LetsTheEarlierColumnEnter)
{
    const Solution fit = fitted(Problem::of({x1, scaled(x1, 2)}, response));
    const Solution reversed = fitted(Problem::of({scaled(x1, 2), x1}, response));
    EXPECT_GT(fit.sd[0], 0.0);
    EXPECT_EQ(fit.sd[1], 0.0);
    EXPECT_GT(reversed.sd[0], 0.0);
    EXPECT_EQ(reversed.sd[1], 0.0);
    EXPECT_NEAR(fit.beta[0], 2 * reversed.beta[0], 1e-14);
}

TEST(OLSBasic3, JudgesAColumnByThoseThatEnteredBefore)
{
    // The third is a sum of the first two; the second alone would leave it enough.
    std::vector<double> sum = x1;
    for (std::size_t i = 0; i < sum.size(); ++i)
        sum[i] += x2[i];
    const Solution fit = fitted(Problem::of({x1, x2, sum}, response)), two = fitted(small());
    EXPECT_EQ(fit.sd[2], 0.0);
    EXPECT_THAT(fit.beta, SameBits({two.beta[0], two.beta[1], 0.0, two.beta[2]}));
    const Solution last = fitted(Problem::of({sum, x2, x1}, response));
    EXPECT_GT(last.sd[0], 0.0);
    EXPECT_EQ(last.sd[2], 0.0);
    for (std::size_t i = 0; i < response.size(); ++i)
        EXPECT_NEAR(last.fitted[i], two.fitted[i], 1e-13);
}

TEST(OLSBasic3, EntersOnlyAboveTheTolerance)
{
    Problem problem = small();
    problem.tol = 1.0; // exactly what the first column has
    const Solution none = fitted(problem);
    EXPECT_THAT(none.beta, SameBits({0.0, 0.0, 4.75}));
    EXPECT_THAT(none.se[0], SameBits(0.0));
    EXPECT_THAT(none.fitted, SameBits(std::vector<double>(8, 4.75)));
    problem.tol = std::nextafter(1.0, 0.0);
    EXPECT_NE(fitted(problem).beta[0], 0.0);
    problem.tol = std::numeric_limits<double>::quiet_NaN(); // nothing is above it
    EXPECT_THAT(fitted(problem).beta, SameBits(none.beta));
}

TEST(OLSBasic3, LeavesAConstantColumnOutEvenWithAToleranceOfZero)
{
    Problem problem = Problem::of({std::vector<double>(8, 5.0), x1}, response);
    const Solution fit = fitted(problem), without = fitted(Problem::of({x1}, response));
    EXPECT_THAT(fit.beta, SameBits({0.0, without.beta[0], without.beta[1]}));
    EXPECT_THAT(fit.se[0], SameBits(0.0));
    EXPECT_THAT(fit.mean[0], SameBits(5.0));
    EXPECT_THAT(fit.sd[0], SameBits(0.0));
    // Its cells are 0.0, and the sweep of the other leaves them.
    for (std::size_t k = 0; k < 3; ++k)
        EXPECT_EQ(fit.swept[3 * k], 0.0);
    problem.tol = 0.0; // 0.0 is not above it
    EXPECT_THAT(fitted(problem).beta, SameBits(fit.beta));
}

TEST(OLSBasic3, SweepsOnZeroWhereTheToleranceLetsIt)
{
    Problem problem = Problem::of({std::vector<double>(8, 5.0), x1}, response);
    problem.tol = -1.0;
    const Solution fit = fitted(problem);
    EXPECT_EQ(fit.swept[0], -inf); // -1/0, and 0 times that in all others
    EXPECT_TRUE(std::isnan(fit.swept[4]) && std::isnan(fit.swept[8]));
    // A deviation of 0 has no coefficient even so. The second column's diagonal is a NaN, not above the tolerance.
    EXPECT_THAT(fit.beta, SameBits({0.0, 0.0, 4.75}));
    EXPECT_EQ(fit.sd[1], 0.0);
    EXPECT_THAT(fit.fitted, SameBits(std::vector<double>(8, 4.75)));
}

TEST(OLSBasic3, HandsOutTheSweptTableSymmetrically)
{
    const Solution fit = fitted(small());
    // -1 times the inverse of the correlations, whose diagonal is the variance inflation factor.
    double xy = 0.0, xx = 0.0, yy = 0.0;
    for (std::size_t i = 0; i < 8; ++i) {
        xy += (x1[i] - 8.75) * (x2[i] - 3.875);
        xx += (x1[i] - 8.75) * (x1[i] - 8.75);
        yy += (x2[i] - 3.875) * (x2[i] - 3.875);
    }
    const double r = xy / std::sqrt(xx * yy);
    EXPECT_NEAR(fit.swept[0], -1 / (1 - r * r), 1e-14);
    EXPECT_NEAR(fit.swept[4], -1 / (1 - r * r), 1e-14);
    EXPECT_NEAR(fit.swept[1], r / (1 - r * r), 1e-14);
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j)
            EXPECT_THAT(fit.swept[i + 3 * j], SameBits(fit.swept[j + 3 * i]));
    // The response takes part in every sweep: what is left of it is the share not explained.
    double residuals = 0.0, total = 0.0;
    for (std::size_t i = 0; i < 8; ++i) {
        residuals += (response[i] - fit.fitted[i]) * (response[i] - fit.fitted[i]);
        total += (response[i] - 4.75) * (response[i] - 4.75);
    }
    EXPECT_NEAR(fit.swept[8], residuals / total, 1e-14);
}

// ---- the columns of the model ---------------------------------------------------------------------------------------

TEST(OLSBasic3, MakesNoProductsAtDegreeOne)
{
    Problem problem = small();
    const Solution plain = fitted(problem);
    problem.interactions = -1;
    const Solution fit = fitted(problem);
    EXPECT_EQ(fit.beta.size(), 3u);
    expectSameFit(fit, plain);

    // Callers reserve for one product all the same: the intercept is at m + 1, not last.
    Guarded<double> X(problem.X), y(problem.y), w(problem.w), beta(4, 77.0), values(8, 77.0);
    EXPECT_EQ(RunOLSBasic(8, 2, X, y, w, 1, -1, 0, 1e-8, beta, values), 0);
    EXPECT_THAT(beta.values(), SameBits({plain.beta[0], plain.beta[1], plain.beta[2], 0.0}));
}

TEST(OLSBasic3, OrdersPowersBeforeProducts)
{
    Problem problem = Problem::of({{1, 2, 3}, {5, 7, 11}, {13, 17, 23}}, {1, 2, 4});
    problem.degree = 2;
    problem.interactions = -1;
    const Solution fit = fitted(problem);
    ASSERT_EQ(fit.beta.size(), 10u); // m = 9
    const double means[] = {6 / 3.0,
                            23 / 3.0,
                            53 / 3.0, // the columns
                            14 / 3.0,
                            195 / 3.0,
                            987 / 3.0, // squares
                            (5 + 14 + 33) / 3.0,
                            (13 + 34 + 69) / 3.0,
                            (65 + 119 + 253) / 3.0, // x1 x2, x1 x3, x2 x3
                            7 / 3.0};
    for (std::size_t k = 0; k < 10; ++k)
        EXPECT_NEAR(fit.mean[k], means[k], 1e-12 * means[k]) << k;
}

TEST(OLSBasic3, MakesProductsOnlyForMinusOne)
{
    Problem problem = small();
    problem.degree = 2;
    for (const short interactions : {0, 1, -2}) {
        problem.interactions = interactions;
        EXPECT_EQ(modelSize(problem), 4);
        EXPECT_EQ(fitted(problem).mean.size(), 5u);
        // Callers reserve no more: anything past that would fail the guards.
        Guarded<double> X(problem.X), y(problem.y), w(problem.w), beta(5, 77.0), values(8, 77.0);
        EXPECT_EQ(RunOLSBasic(8, 2, X, y, w, 2, interactions, 0, 1e-8, beta, values), 0);
    }
}

TEST(OLSBasic3, MakesNothingButProductsAtDegreeZero)
{
    Problem problem = small();
    problem.degree = 0;
    problem.interactions = -1;
    std::vector<double> product = x1;
    for (std::size_t i = 0; i < product.size(); ++i)
        product[i] *= x2[i];
    expectSameFit(fitted(problem), fitted(Problem::of({product}, response)));
    problem.interactions = 0;
    EXPECT_THAT(fitted(problem).beta, SameBits({4.75}));
}

TEST(OLSBasic3, FitsAPolynomialThatHasNoError)
{
    std::vector<double> y;
    for (const double x : x1)
        y.push_back(2 - 3 * x + 0.5 * x * x);
    Problem problem = Problem::of({x1}, y);
    problem.degree = 2;
    const Solution fit = fitted(problem);
    EXPECT_NEAR(fit.beta[0], -3.0, 1e-12);
    EXPECT_NEAR(fit.beta[1], 0.5, 1e-13);
    EXPECT_NEAR(fit.beta[2], 2.0, 1e-11);
}

} // namespace
} // namespace vecmat::test
