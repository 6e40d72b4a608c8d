// Iterations of Newton-Raphson as a caller makes them: roots and likelihoods.
#include "fitting/newton_raphson.h"

#include "support/bits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

namespace vecmat::test {
namespace {

struct Derivatives
{
    std::vector<double> gradient, hessian;
};

struct Settings
{
    double tol = 1e-10;
    short limitStep = 0;
    double maxStep = 1.0;
    std::vector<int> constraints = {};
};

struct Minimum
{
    int calls; ///< up to the one that reports convergence; 0 where none of 100 does
    std::vector<double> x, se;
};

Minimum minimised(std::vector<double> x, const std::function<Derivatives(const std::vector<double>&)>& derivatives,
                  Settings settings = {})
{
    const std::size_t n = x.size();
    settings.constraints.resize(n, 0);
    std::vector<double> se(n), inverse(n * n);
    for (int calls = 1; calls <= 100; ++calls) {
        Derivatives at = derivatives(x);
        const int result = NewtonRaphson(x.data(), static_cast<int>(n), settings.constraints.data(), at.gradient.data(),
                                         at.hessian.data(), settings.tol, se.data(), inverse.data(), settings.limitStep,
                                         settings.maxStep);
        if (result == 1)
            return {calls, x, se};
        EXPECT_EQ(result, 0);
    }
    return {0, x, se};
}

// ---- roots ----------------------------------------------------------------------------------------------------------

/// The root of 2, as the minimum of x^3/3 - 2x.
Derivatives rootOfTwo(const std::vector<double>& x)
{
    return {{x[0] * x[0] - 2}, {2 * x[0]}};
}

TEST(NewtonRaphson, FindsTheRootOfTwo)
{
    // From 1 the changes are 0.5, 8.3e-2, 2.5e-3, 2.1e-6, 1.6e-12: each is about the square of the one before.
    const Minimum minimum = minimised({1.0}, rootOfTwo);
    EXPECT_EQ(minimum.calls, 5);
    EXPECT_DOUBLE_EQ(minimum.x[0], std::sqrt(2.0));
    EXPECT_NEAR(minimum.se[0], std::sqrt(1 / (2 * std::sqrt(2.0))), 1e-12);
    EXPECT_EQ(minimised({1.0}, rootOfTwo, {.tol = 1e-5}).calls, 4);
    EXPECT_EQ(minimised({1.0}, rootOfTwo, {.tol = 1e-12}).calls, 6);
    EXPECT_EQ(minimised({1.0}, rootOfTwo, {.tol = 0.5}).calls, 1);
}

TEST(NewtonRaphson, WalksFromAfarInLimitedSteps)
{
    // From 10 the free steps are 4.9, 2.4, 1.0, 0.3, 3e-2, 3e-4, 3e-8, 2e-16. Of the limited ones eight are of 1, down
    // to 2, then 0.5 and on as from there.
    const Minimum freely = minimised({10.0}, rootOfTwo);
    const Minimum limited = minimised({10.0}, rootOfTwo, {.limitStep = -1, .maxStep = 1.0});
    EXPECT_EQ(freely.calls, 8);
    EXPECT_EQ(limited.calls, 13);
    EXPECT_DOUBLE_EQ(limited.x[0], std::sqrt(2.0));
}

TEST(NewtonRaphson, FindsTheMinimumOfRosenbrocksValley)
{
    // (1 - x)^2 + 100 (y - x^2)^2 from its customary start (Rosenbrock, H. H. (1960), The Computer Journal 3, 175-184).
    const auto valley = [](const std::vector<double>& at) {
        const double x = at[0], y = at[1];
        return Derivatives{{-2 * (1 - x) - 400 * x * (y - x * x), 200 * (y - x * x)},
                           {2 - 400 * (y - 3 * x * x), -400 * x, -400 * x, 200.0}};
    };
    const Minimum minimum = minimised({-1.2, 1.0}, valley);
    EXPECT_EQ(minimum.calls, 7);
    EXPECT_NEAR(minimum.x[0], 1.0, 1e-14);
    EXPECT_NEAR(minimum.x[1], 1.0, 1e-14);
    // The inverse of the Hessian there, (802, -400; -400, 200), is (0.5, 1; 1, 2.005). The errors come from that of the
    // last call, before its own step of up to 1e-10, whose condition is 2500.
    EXPECT_NEAR(minimum.se[0], std::sqrt(0.5), 1e-8);
    EXPECT_NEAR(minimum.se[1], std::sqrt(2.005), 1e-8);
    // With y fixed at 1 the valley's floor is x = 1 or near -1, by the start.
    const Minimum fixed = minimised({0.8, 1.0}, valley, {.constraints = {0, 1}});
    EXPECT_NEAR(fixed.x[0], 1.0, 1e-12);
    EXPECT_THAT(fixed.x[1], SameBits(1.0));
    EXPECT_NEAR(fixed.se[0], std::sqrt(1 / 802.0), 1e-12);
    EXPECT_EQ(fixed.se[1], 0.0);
}

// ---- likelihoods ----------------------------------------------------------------------------------------------------
//
// References come from R 4.2.2, glm(..., control = list(epsilon = 1e-15, maxit = 100)), printed with 17 digits. For
// these models its scoring is Newton-Raphson on the same function.

/// Minus the log likelihood of counts with expectation exp(b0 + ...), on the columns of a design.
Derivatives poisson(const std::vector<std::vector<double>>& rows, const std::vector<double>& counts,
                    const std::vector<double>& b)
{
    const std::size_t p = b.size();
    Derivatives at{std::vector<double>(p, 0.0), std::vector<double>(p * p, 0.0)};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        double linear = 0.0;
        for (std::size_t j = 0; j < p; ++j)
            linear += b[j] * rows[i][j];
        const double expected = std::exp(linear);
        for (std::size_t j = 0; j < p; ++j) {
            at.gradient[j] += (expected - counts[i]) * rows[i][j];
            for (std::size_t k = 0; k < p; ++k)
                at.hessian[j + k * p] += expected * rows[i][j] * rows[i][k];
        }
    }
    return at;
}

/// A randomised trial (Dobson, A. J. (1990), An Introduction to Generalized Linear Models, page 93): counts by three
/// outcomes, the fast index, and three treatments.
const std::vector<double> trialCounts = {18, 17, 15, 20, 10, 20, 25, 13, 12};

std::vector<std::vector<double>> trialDesign()
{
    std::vector<std::vector<double>> rows;
    for (int treatment = 1; treatment <= 3; ++treatment)
        for (int outcome = 1; outcome <= 3; ++outcome)
            rows.push_back({1.0, outcome == 2 ? 1.0 : 0.0, outcome == 3 ? 1.0 : 0.0, treatment == 2 ? 1.0 : 0.0,
                            treatment == 3 ? 1.0 : 0.0});
    return rows;
}

TEST(NewtonRaphson, FitsCountsOfATrial)
{
    const auto likelihood = [](const std::vector<double>& b) { return poisson(trialDesign(), trialCounts, b); };
    // glm(counts ~ outcome + treatment, family = poisson())
    const double beta[] = {3.0445224377234239, -0.4542552722775966, -0.2929871246814742, 0.0, 0.0};
    const double se[] = {0.17089865185644157, 0.20217075919384542, 0.19274234515979277, 0.2, 0.2};
    const Minimum all = minimised({3, 0, 0, 0, 0}, likelihood);
    EXPECT_EQ(all.calls, 5);
    for (std::size_t k = 0; k < 5; ++k) {
        EXPECT_NEAR(all.x[k], beta[k], 1e-13) << k;
        EXPECT_NEAR(all.se[k], se[k], 1e-12) << k;
    }
}

TEST(NewtonRaphson, FitsASmallerModelByFixingParameters)
{
    const auto likelihood = [](const std::vector<double>& b) { return poisson(trialDesign(), trialCounts, b); };
    // glm(counts ~ outcome, family = poisson())
    const double beta[] = {3.0445224377234226, -0.45425527227759649, -0.29298712468147431};
    const double se[] = {0.12598815766974231, 0.20217075919384539, 0.19274234515979272};
    const Minimum outcomes = minimised({3, 0, 0, 0, 0}, likelihood, {.constraints = {0, 0, 0, 1, 1}});
    for (std::size_t k = 0; k < 3; ++k) {
        EXPECT_NEAR(outcomes.x[k], beta[k], 1e-13) << k;
        EXPECT_NEAR(outcomes.se[k], se[k], 1e-12) << k;
    }
    for (std::size_t k = 3; k < 5; ++k) {
        EXPECT_THAT(outcomes.x[k], SameBits(0.0));
        EXPECT_THAT(outcomes.se[k], SameBits(0.0));
    }
}

/// Weights of 32 cars in thousands of pounds, and whether they shift by hand (Motor Trend, 1974; R's mtcars).
const std::vector<double> carWeights = {2.62,  2.875, 2.32,  3.215, 3.44,  3.46,  3.57, 3.19,  3.15,  3.44,  3.44,
                                        4.07,  3.73,  3.78,  5.25,  5.424, 5.345, 2.2,  1.615, 1.835, 2.465, 3.52,
                                        3.435, 3.84,  3.845, 1.935, 2.14,  1.513, 3.17, 2.77,  3.57,  2.78};
const std::vector<double> shiftsByHand = {1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                                          0, 1, 1, 1, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1, 1};

TEST(NewtonRaphson, FitsALogisticModel)
{
    const auto likelihood = [](const std::vector<double>& b) {
        Derivatives at{{0, 0}, {0, 0, 0, 0}};
        for (std::size_t i = 0; i < carWeights.size(); ++i) {
            const double x = carWeights[i], share = 1 / (1 + std::exp(-(b[0] + b[1] * x)));
            const double spread = share * (1 - share), residual = share - shiftsByHand[i];
            at.gradient[0] += residual;
            at.gradient[1] += residual * x;
            at.hessian[0] += spread;
            at.hessian[1] += spread * x;
            at.hessian[2] += spread * x;
            at.hessian[3] += spread * x * x;
        }
        return at;
    };
    // glm(am ~ wt, family = binomial(), data = mtcars). Its own errors are those of a scoring step earlier, and differ
    // in the ninth digit; these are sqrt(diag(solve(t(X) %*% (X * m * (1 - m))))) at its coefficients, m its fitted
    // shares.
    const Minimum minimum = minimised({0, 0}, likelihood);
    EXPECT_EQ(minimum.calls, 8);
    EXPECT_NEAR(minimum.x[0], 12.040369728657319, 1e-11);
    EXPECT_NEAR(minimum.x[1], -4.0239699621732017, 1e-11);
    EXPECT_NEAR(minimum.se[0], 4.5100662389667, 1e-10);
    EXPECT_NEAR(minimum.se[1], 1.4365277526235, 1e-10);
    // Steps of at most 1 get there as well, in more of them.
    const Minimum limited = minimised({0, 0}, likelihood, {.limitStep = -1, .maxStep = 1.0});
    EXPECT_NEAR(limited.x[0], minimum.x[0], 1e-11);
    EXPECT_GT(limited.calls, 12); // the first parameter alone has twelve to go
}

} // namespace
} // namespace vecmat::test
