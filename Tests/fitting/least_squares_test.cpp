// The edges of a least squares fit: degrees of freedom, lines through the origin, missing cells, other shapes.
#include "fitting/regression_calls.h"
#include "fitting/small_problem.h"

#include "support/guarded.h"

#include <cmath>
#include <limits>

namespace vecmat::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();

// ---- degrees of freedom ---------------------------------------------------------------------------------------------

TEST(OLSBasic3, HasNoErrorsWithoutDegreesOfFreedom)
{
    const Solution fit = fitted(Problem::of({{1, 2, 4}, {3, 5, 4}}, {2, 9, 5})); // n = m + 1
    EXPECT_THAT(fit.se, SameBits({0.0, 0.0, 0.0}));
    const double expected[] = {2, 9, 5};
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NEAR(fit.fitted[i], expected[i], 1e-13);
    EXPECT_NE(fit.beta[0], 0.0);
    EXPECT_NE(fit.beta[1], 0.0);
}

TEST(OLSBasic3, HasNumbersWithFewerRowsThanColumns)
{
    // One row less: the divisor is -1, and the roots are of negative numbers unless nothing is left under them.
    const Solution fit = fitted(Problem::of({{1, 3}, {2, 1}}, {2, 9}));
    EXPECT_NEAR(fit.beta[0], 3.5, 1e-14);
    EXPECT_THAT(fit.beta[1], SameBits(0.0));
    EXPECT_EQ(fit.se[0], 0.0); // the root of -0.0
    EXPECT_NEAR(fit.fitted[0], 2.0, 1e-14);
    EXPECT_NEAR(fit.fitted[1], 9.0, 1e-14);
}

TEST(OLSBasic3, CountsRowsForSlopesAndWeightsForTheIntercept)
{
    Problem problem = small();
    const Solution once = fitted(problem);
    problem.w.assign(8, 2.0);
    const Solution twice = fitted(problem);
    for (std::size_t k = 0; k < 2; ++k) {
        EXPECT_NEAR(twice.beta[k], once.beta[k], 1e-14);
        EXPECT_NEAR(twice.se[k], once.se[k], 1e-14); // both have 8 - 3 degrees of freedom
    }
    EXPECT_NEAR(twice.beta[2], once.beta[2], 1e-14);
    // s = (W - 1) A sy^2 / (W - 3) / W + sum of (se mean)^2 + the cross term over (W - 3).
    const auto squared = [](double x) { return x * x; };
    const double W = 16.0;
    const double A = twice.swept[8], sy = twice.sd[2];
    double s = (W - 1) * A * sy * sy / (W - 3) / W;
    s += squared(twice.se[0] * 8.75) + squared(twice.se[1] * 3.875);
    s -= 2 * sy * sy * twice.swept[1] * A * 8.75 * 3.875 / (twice.sd[0] * twice.sd[1]) / (W - 3);
    EXPECT_NEAR(twice.se[2], std::sqrt(s), 1e-13);
    EXPECT_GT(std::fabs(twice.se[2] - once.se[2]), 0.05);
}

TEST(OLSBasic3, CountsRowsOfWeightZero)
{
    Problem problem = small();
    problem.w[2] = problem.w[5] = 0.0;
    Problem without = small();
    without.n = 6;
    for (auto* cells : {&without.X, &without.y, &without.w}) {
        std::vector<double> left;
        for (std::size_t i = 0; i < cells->size(); ++i)
            if (i % 8 != 2 && i % 8 != 5)
                left.push_back((*cells)[i]);
        *cells = left;
    }
    const Solution fit = fitted(problem), expected = fitted(without);
    EXPECT_THAT(fit.beta, SameBits(expected.beta));
    // 8 - 3 degrees of freedom instead of 6 - 3.
    for (std::size_t k = 0; k < 2; ++k)
        EXPECT_NEAR(fit.se[k] / expected.se[k], std::sqrt(3.0 / 5.0), 1e-15);
    // The rows are fitted like any others.
    EXPECT_NEAR(fit.fitted[2], fit.beta[2] + 4 * fit.beta[0] + 4 * fit.beta[1], 1e-14);
}

TEST(OLSBasic3, LetsDivisorsOfZeroThrough)
{
    // One column, W = 2 = m + 1 while n is 4: s is something over 0.
    Problem one = Problem::of({{1, 2, 4, 8}}, {1, 3, 2, 5});
    one.w.assign(4, 0.5);
    const Solution fit = fitted(one);
    EXPECT_GT(fit.se[0], 0.0);
    EXPECT_EQ(fit.se[1], inf);
    // Two columns, W = 3: the pair resets s to 0.
    Problem two = Problem::of({{1, 2, 4, 8, 16, 32}, {3, 1, 4, 1, 5, 9}}, {1, 3, 2, 5, 4, 4});
    two.w.assign(6, 0.5);
    EXPECT_THAT(fitted(two).se[2], SameBits(0.0));
    // Below that s is negative, and its root NaN.
    one.w.assign(4, 0.375); // W = 1.5
    EXPECT_TRUE(std::isnan(fitted(one).se[1]));
}

// ---- through the origin ---------------------------------------------------------------------------------------------

TEST(OLSBasic3, PassesThroughTheOriginForAnyValueButZero)
{
    Problem problem = Problem::of({{1, 2, 3, 5}}, {2, 3, 7, 9});
    const Solution with = fitted(problem);
    for (const short noIntercept : {-1, 1, 2}) {
        problem.noIntercept = noIntercept;
        const Solution fit = fitted(problem);
        EXPECT_NEAR(fit.beta[0], (1 * 2 + 2 * 3 + 3 * 7 + 5 * 9) / (1.0 + 4 + 9 + 25), 1e-15);
        EXPECT_THAT(fit.beta[1], SameBits(0.0));
        EXPECT_THAT(fit.se[1], SameBits(0.0));
        EXPECT_THAT(fit.fitted[3], SameBits(0.0 + fit.beta[0] * 5));
    }
    EXPECT_GT(std::fabs(with.beta[1]), 0.01);
}

TEST(OLSBasic3, DividesRawProductsByCentredDeviations)
{
    Problem problem = Problem::of({{1, 2, 3, 5}}, {2, 3, 7, 9});
    problem.noIntercept = -1;
    problem.tol = 4.0; // the diagonal is not 1: it is a sum of squares over a centred one, here 39 over 8.75
    const Solution fit = fitted(problem);
    EXPECT_NEAR(fit.swept[0], -8.75 / 39, 1e-15);
    EXPECT_GT(fit.sd[0], 0.0);
    problem.tol = 39 / 8.75 + 1e-9;
    const Solution out = fitted(problem);
    EXPECT_NEAR(out.swept[0], 39 / 8.75, 1e-14);
    EXPECT_EQ(out.sd[0], 0.0);
    EXPECT_THAT(out.fitted, SameBits({0.0, 0.0, 0.0, 0.0}));
}

TEST(OLSBasic3, LeavesAConstantOutOfALineThroughTheOrigin)
{
    // A column of ones would do for an intercept, but has no spread to divide by.
    Problem problem = Problem::of({std::vector<double>(8, 1.0), x1}, response);
    problem.noIntercept = -1;
    const Solution fit = fitted(problem);
    EXPECT_THAT(fit.beta[0], SameBits(0.0));
    EXPECT_NE(fit.beta[1], 0.0);
    EXPECT_EQ(fit.sd[0], 0.0);
}

// ---- missing cells --------------------------------------------------------------------------------------------------

TEST(OLSBasic3, DropsTheTermOfAMissingCell)
{
    Problem problem = small();
    problem.X[3] = M;
    const Solution fit = fitted(problem);
    EXPECT_THAT(fit.fitted[3], SameBits(fit.beta[2] + fit.beta[1] * x2[3]));
    EXPECT_THAT(fit.fitted[4], SameBits(fit.beta[2] + fit.beta[0] * x1[4] + fit.beta[1] * x2[4]));
    EXPECT_LT(std::fabs(fit.beta[0]), 100.0); // it is no number in the correlations either
}

TEST(OLSBasic3, DropsOnlyTheVeryMissingValue)
{
    Problem problem = small();
    problem.X[3] = std::nextafter(M, -inf); // below it
    EXPECT_FALSE(std::fabs(fitted(problem).fitted[3]) < 1e6);
}

TEST(OLSBasic3, MultipliesAMissingCellLikeAnyNumberElsewhere)
{
    // Through the origin its raw product is beyond the numbers.
    Problem origin = small();
    origin.noIntercept = -1;
    origin.X[3] = M;
    EXPECT_NE(fitted(origin).sd[0], 0.0);
    EXPECT_EQ(fitted(origin).swept[0], 0.0); // -1 over an infinite diagonal

    // And its square is no missing value: the first column's moments leave it out, those of the second have it.
    Problem squares = Problem::of({x1}, response);
    squares.degree = 2;
    squares.X[3] = M;
    const Solution fit = fitted(squares);
    EXPECT_NEAR(fit.mean[0], (1 + 2 + 4 + 11 + 12 + 15 + 18) / 7.0, 1e-14);
    EXPECT_FALSE(std::isfinite(fit.mean[1]));
}

TEST(OLSBasic3, SumsWeightsWithoutMissingOnes)
{
    Problem problem = Problem::of({}, {1, 2, 6});
    problem.w = {1, 1, 2};
    EXPECT_THAT(fitted(problem).beta, SameBits({3.75}));
    EXPECT_NEAR(fitted(problem).se[0], std::sqrt(3.0 * fitted(problem).sd[0] * fitted(problem).sd[0] / 3.0 / 4.0),
                1e-14);
    Problem missing = Problem::of({x1}, response);
    missing.w[0] = M;
    EXPECT_EQ(sumOfWeights(missing), 7.0); // of what follows the bits of the second implementation tell
    const Solution fit = fitted(missing), expected = reference(missing);
    expectSameFit(fit, expected);
}

// ---- no columns, no rows, other shapes ------------------------------------------------------------------------------

TEST(OLSBasic3, IsTheWeightedMeanWithoutColumns)
{
    Problem problem = Problem::of({}, {1, 2, 6});
    problem.w = {1, 1, 2};
    EXPECT_THAT(fitted(problem).fitted, SameBits({3.75, 3.75, 3.75}));
    EXPECT_THAT(fitted(problem).swept, SameBits({1.0}));

    Guarded<double> y(problem.y), w(problem.w), beta(1, 77.0), se(1, 77.0), values(3, 77.0);
    EXPECT_EQ(RunOLSBasic2(3, 0, nullptr, y, w, 1, 0, 0, 1e-8, beta, se, values), 0);
    EXPECT_THAT(beta.values(), SameBits({3.75}));
    EXPECT_THAT(values.values(), SameBits({3.75, 3.75, 3.75}));

    const Solution one = fitted(Problem::of({}, {5.5})); // n - m is 1
    EXPECT_THAT(one.beta, SameBits({5.5}));
    EXPECT_THAT(one.se, SameBits({0.0}));
    Problem origin = Problem::of({}, {1, 2});
    origin.noIntercept = -1;
    EXPECT_THAT(fitted(origin).fitted, SameBits({0.0, 0.0}));
}

TEST(RunOLSBasic3, WritesItsArraysWithoutRows)
{
    Guarded<double> beta(3, 77.0), se(3, 77.0), swept(9, 77.0), mean(3, 77.0), sd(3, 77.0), none(0, 0.0);
    EXPECT_EQ(RunOLSBasic3(0, 2, none, none, none, 1, 0, 0, 1e-8, beta, se, none, swept, mean, sd), 0);
    EXPECT_THAT(beta.values(), SameBits(reference(Problem::of({{}, {}}, {})).beta));
    EXPECT_THAT(sd.values(), SameBits(reference(Problem::of({{}, {}}, {})).sd));
}

TEST(OLSBasic3, KeepsLargerTablesAndTheirStrides)
{
    const Problem problem = small();
    const Solution expected = fitted(problem);
    const Owned<matrix> X = table(8, 2, problem.X), y = column(problem.y), w = column(problem.w);
    Owned<matrix> beta = filled(5, 2, 77.0), se = filled(3, 1, 77.0), values = filled(9, 1, 77.0);
    const Owned<matrix> swept = filled(5, 4, 77.0), mean = filled(5, 1, 77.0), sd = filled(2, 1, 77.0);
    matrix* const before = beta.get();
    OLSBasic3(8, 2, X, y, w, 1, 0, 0, 1e-8, beta, se, values, swept, mean, sd);
    EXPECT_EQ(beta.get(), before);
    // The first m + 1 cells were cleared and written.
    EXPECT_THAT(cellsOf(beta),
                SameBits({expected.beta[0], expected.beta[1], expected.beta[2], 77, 77, 77, 77, 77, 77, 77}));
    EXPECT_THAT(cellsOf(values)[8], SameBits(77.0));
    EXPECT_THAT(cornerOf(swept, 3, 3), SameBits(expected.swept));
    EXPECT_THAT(cellsOf(swept)[3], SameBits(77.0));
    EXPECT_THAT(cellsOf(mean), SameBits({expected.mean[0], expected.mean[1], expected.mean[2], 77.0, 77.0}));
    EXPECT_THAT(cellsOf(sd), SameBits({expected.sd[0], expected.sd[1]})); // too small: the rest is dropped
}

TEST(OLSBasic3, WorksOnACornerOfLargerTables)
{
    const Problem problem = small();
    const Solution expected = fitted(problem);
    Owned<matrix> X = filled(10, 3, 99.0), y = filled(9, 2, 99.0), w = filled(12, 1, 99.0), beta, values;
    for (int i = 1; i <= 8; ++i) {
        X->vbset(i, 1, x1[static_cast<std::size_t>(i - 1)]);
        X->vbset(i, 2, x2[static_cast<std::size_t>(i - 1)]);
        y->vbset(i, 1, response[static_cast<std::size_t>(i - 1)]);
        w->vbset(i, 1, 1.0);
    }
    for (const int degree : {1, 2}) {
        Problem same = problem;
        same.degree = degree;
        OLSBasic(8, 2, X, y, w, degree, 0, 0, 1e-8, beta, values);
        EXPECT_THAT(cellsOf(beta), SameBits(fitted(same).beta));
        EXPECT_THAT(cornerOf(values, 8, 1), SameBits(fitted(same).fitted));
    }
}

TEST(OLSBasic3, ReadsMinusOneOutsideTheTables)
{
    // Row 9 is the head of the second column of X, and outside of its last one, of y and of w.
    for (const double fourth : {7.0, M})
        for (const short noIntercept : {0, -1}) {
            Problem problem = small();
            problem.X[3] = fourth;
            problem.noIntercept = noIntercept;
            Problem read = problem;
            read.n = 9;
            read.X.insert(read.X.begin() + 8, x2[0]);
            read.X.push_back(-1.0);
            read.y.push_back(-1.0);
            read.w.push_back(-1.0);
            Owned<matrix> beta, values;
            OLSBasic(9, 2, table(8, 2, problem.X), column(problem.y), column(problem.w), 1, 0, noIntercept, 1e-8, beta,
                     values);
            EXPECT_THAT(cellsOf(beta), SameBits(fitted(read).beta));
            EXPECT_THAT(cellsOf(values), SameBits(fitted(read).fitted));
            // Only y and w too short.
            OLSBasic(9, 2, table(9, 2, read.X), column(problem.y), column(problem.w), 1, 0, noIntercept, 1e-8, beta,
                     values);
            EXPECT_THAT(cellsOf(beta), SameBits(fitted(read).beta));
        }
}

} // namespace
} // namespace vecmat::test
