// What sets the fit from five tables apart from the fit from one.
#include "fitting/regression_calls.h"
#include "fitting/small_problem.h"

#include "support/guarded.h"

#include <cmath>

namespace vecmat::test {
namespace {

const std::vector<std::vector<int>> layouts = {{1, 1, 0, 0, 0}, {0, 1, 0, 1, 0}, {0, 0, 0, 0, 2},
                                               {2, 0, 0, 0, 0}, {0, 0, 2, 0, 0}, {1, 0, 0, 0, 1}};

TEST(OLSBasic2Lg, IsTheFitFromOneTableWhereverTheColumnsAre)
{
    for (const short noIntercept : {0, 1}) {
        Problem problem = small();
        problem.noIntercept = noIntercept;
        problem.w = {1, 2, 0.5, 1, 3, 0, 1, 2};
        const Solution one = fitted(problem);
        for (const auto& widths : layouts) {
            const Solution five = fittedByBlocks(problem, widths);
            ASSERT_EQ(five.beta.size(), 3u);
            for (std::size_t k = 0; k < 3; ++k) {
                EXPECT_NEAR(five.beta[k], one.beta[k], 1e-13);
                EXPECT_NEAR(five.se[k], one.se[k], 1e-13);
            }
            for (std::size_t i = 0; i < 8; ++i)
                EXPECT_NEAR(five.fitted[i], one.fitted[i], 1e-13);
        }
    }
}

TEST(OLSBasic2Lg, LeavesRepeatedColumnsOutAcrossBlocks)
{
    const Problem problem = Problem::of({x1, x2, x1}, response);
    const Solution two = fitted(small());
    for (const auto& widths : std::vector<std::vector<int>>{{1, 1, 1, 0, 0}, {2, 1, 0, 0, 0}, {0, 1, 0, 0, 2}}) {
        const Solution fit = fittedByBlocks(problem, widths);
        EXPECT_NEAR(fit.beta[0], two.beta[0], 1e-13);
        EXPECT_THAT(fit.beta[2], SameBits(0.0));
        EXPECT_THAT(fit.se[2], SameBits(0.0));
        for (std::size_t i = 0; i < 8; ++i)
            EXPECT_NEAR(fit.fitted[i], two.fitted[i], 1e-13);
    }
}

// ---- nothing is done ------------------------------------------------------------------------------------------------

struct Called
{
    std::vector<double> beta, se, fitted;
};

/// The columns of the small problem in the first two tables, into results that hold 77.
Called calledWith(int p1, int p2, int degree)
{
    Owned<matrix> beta = filled(3, 1, 77.0), se = filled(3, 1, 77.0), values = filled(8, 1, 77.0);
    OLSBasic2Lg(8, p1, column(x1), p2, column(x2), 0, nullptr, 0, nullptr, 0, nullptr, column(response),
                column(std::vector<double>(8, 1.0)), degree, 0, 1e-8, beta, se, values);
    return {cellsOf(beta), cellsOf(se), cellsOf(values)};
}

TEST(OLSBasic2Lg, DoesNothingForAnyDegreeButOne)
{
    for (const int degree : {2, 0, -1}) {
        const Called called = calledWith(1, 1, degree);
        EXPECT_THAT(called.beta, SameBits({77.0, 77.0, 77.0}));
        EXPECT_THAT(called.se, SameBits({77.0, 77.0, 77.0}));
        EXPECT_THAT(called.fitted, SameBits(std::vector<double>(8, 77.0)));
        Owned<matrix> beta, se, values;
        OLSBasic2Lg(8, 1, column(x1), 0, nullptr, 0, nullptr, 0, nullptr, 0, nullptr, column(response),
                    column(std::vector<double>(8, 1.0)), degree, 0, 1e-8, beta, se, values);
        EXPECT_EQ(beta.get(), nullptr);
    }
    EXPECT_THAT(calledWith(1, 1, 1).beta, SameBits(fittedByBlocks(small(), {1, 1, 0, 0, 0}).beta));
}

TEST(OLSBasic2Lg, DoesNothingWithoutColumns)
{
    // The fit from one table is the mean of the response then.
    const Called called = calledWith(0, 0, 1);
    EXPECT_THAT(called.beta, SameBits({77.0, 77.0, 77.0}));
    EXPECT_THAT(called.fitted, SameBits(std::vector<double>(8, 77.0)));
}

TEST(RunOLSBasic2Lg, WritesZerosWhereNothingIsDone)
{
    Guarded<double> a(x1), b(x2), y(response), w(8, 1.0);
    for (const int degree : {2, 1}) {
        const int width = degree == 2 ? 1 : 0; // the wrong degree, or no columns
        // Reserved: degree p + 1, and one product.
        const std::size_t c = degree == 2 ? 6 : 1;
        Guarded<double> beta(c, 77.0), se(c, 77.0), values(8, 77.0);
        EXPECT_EQ(RunOLSBasic2Lg(8, width, a, 0, nullptr, width, b, 0, nullptr, 0, nullptr, y, w, degree, -1, 0, 1e-8,
                                 beta, se, values),
                  0);
        EXPECT_THAT(beta.values(), SameBits(std::vector<double>(c, 0.0)));
        EXPECT_THAT(se.values(), SameBits(std::vector<double>(c, 0.0)));
        EXPECT_THAT(values.values(), SameBits(std::vector<double>(8, 0.0)));
    }
}

TEST(RunOLSBasic2Lg, ReservesForProductsThatItDoesNotMake)
{
    const Solution expected = fittedByBlocks(small(), {1, 0, 0, 0, 1});
    Guarded<double> a(x1), b(x2), y(response), w(8, 1.0);
    for (const short interactions : {-1, 1}) {
        const std::size_t c = interactions == -1 ? 4 : 3;
        Guarded<double> beta(c, 77.0), se(c, 77.0), values(8, 77.0);
        EXPECT_EQ(RunOLSBasic2Lg(8, 1, a, 0, nullptr, 0, nullptr, 0, nullptr, 1, b, y, w, 1, interactions, 0, 1e-8,
                                 beta, se, values),
                  0);
        std::vector<double> padded = expected.beta;
        padded.resize(c, 0.0);
        EXPECT_THAT(beta.values(), SameBits(padded));
        EXPECT_THAT(values.values(), SameBits(expected.fitted));
    }
    EXPECT_TRUE(a.untouched() && b.untouched() && y.untouched() && w.untouched());
}

// ---- cells that can't be computed -----------------------------------------------------------------------------------

TEST(OLSBasic2Lg, HasAMissingCorrelationAcrossBlocksWithoutSpread)
{
    // The constant's cells are 0.0 within a block and missing across: after a sweep of the other column its own
    // diagonal is minus infinity instead of 0. It stays out either way.
    const Problem problem = Problem::of({x1, std::vector<double>(8, 5.0)}, response);
    const Solution within = fittedByBlocks(problem, {2, 0, 0, 0, 0}), across = fittedByBlocks(problem, {1, 1, 0, 0, 0});
    for (const Solution& fit : {within, across}) {
        EXPECT_THAT(fit.beta[1], SameBits(0.0));
        EXPECT_THAT(fit.se[1], SameBits(0.0));
        EXPECT_NEAR(fit.beta[0], within.beta[0], 1e-14);
    }
    // With a tolerance below 0 the one is swept on 0, which leaves NaN; the other is still not above it.
    Problem all = problem;
    all.tol = -1.0;
    EXPECT_TRUE(std::isnan(fittedByBlocks(all, {2, 0, 0, 0, 0}).se[0]));
    EXPECT_FALSE(std::isnan(fittedByBlocks(all, {1, 1, 0, 0, 0}).se[0]));
}

TEST(OLSBasic2Lg, HasNaNForAConstantResponseAcrossBlocks)
{
    // One table, or one block with the response in it, has correlations of 0.0.
    const Problem problem = Problem::of({x1, x2}, std::vector<double>(8, 5.0));
    for (const Solution& fit : {fitted(problem), fittedByBlocks(problem, {0, 2, 0, 0, 0})}) {
        EXPECT_THAT(fit.beta, SameBits({0.0, 0.0, 5.0}));
        EXPECT_THAT(fit.se, SameBits({0.0, 0.0, 0.0}));
    }
    const Solution across = fittedByBlocks(problem, {1, 1, 0, 0, 0});
    EXPECT_TRUE(std::isnan(across.beta[0]));
    for (const double error : across.se)
        EXPECT_TRUE(std::isnan(error));
}

TEST(OLSBasic2Lg, TakesTheVariancesOfAPairFromItsOwnRowsAcrossBlocks)
{
    // Within a block the variance of the second column is that of all its rows.
    Problem problem = small();
    problem.X[3] = M;
    const Solution within = fittedByBlocks(problem, {2, 0, 0, 0, 0}), across = fittedByBlocks(problem, {1, 1, 0, 0, 0});
    expectSameFit(within, blockReference(problem, {2, 0, 0, 0, 0}));
    expectSameFit(across, blockReference(problem, {1, 1, 0, 0, 0}));
    EXPECT_NEAR(within.beta[1], fitted(problem).beta[1], 1e-13);
    EXPECT_GT(std::fabs(across.beta[1] - within.beta[1]), 1e-4);
}

TEST(OLSBasic2Lg, DoesNotTestForAMissingDeviationThroughTheOrigin)
{
    // One row is left for the response: its divisor is 0 and its deviation missing. One table has no correlation then,
    // five have an infinite product over an infinite square.
    Problem problem = Problem::of({{1, 2, 4, 7}}, {M, M, M, 3});
    problem.noIntercept = -1;
    const Solution one = fitted(problem), five = fittedByBlocks(problem, {1, 0, 0, 0, 0});
    EXPECT_EQ(one.se[0], 0.0);
    EXPECT_TRUE(std::isnan(five.se[0]));
}

} // namespace
} // namespace vecmat::test
