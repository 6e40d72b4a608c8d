// The step of Newton-Raphson.
#include "fitting/newton_raphson.h"

#include "decompositions/constrained_inverses.h"
#include "elementary/matrix_products.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

struct Call
{
    std::vector<double> x, g, H;
    std::vector<int> constraints;
    double tol = 1e-6;
    short limitStep = 0;
    double maxStep = 1.0;
};

struct Outcome
{
    int result;
    std::vector<double> x, se, Hinv;
};

/// Through both forms, which must agree, over results that hold 77, and through the flat form, over ones
/// that it clears.
Outcome step(const Call& call)
{
    const int n = static_cast<int>(call.x.size());
    const Owned<matrix> g = column(call.g), H = table(n, n, call.H);
    Owned<matrix> x = column(call.x), se = filled(n, 1, 77.0), inverse = filled(n, n, 77.0);
    Owned<matrix> otherX = column(call.x), otherSe = filled(n, 1, 77.0), otherInverse = filled(n, n, 77.0);
    matrix* const before[] = {x.get(), se.get(), inverse.get()};
    const int result =
        cNewtonRaphson(x, n, intColumn(call.constraints), g, H, call.tol, se, inverse, call.limitStep, call.maxStep);
    EXPECT_TRUE(x.get() == before[0] && se.get() == before[1] && inverse.get() == before[2]);
    EXPECT_EQ(cNewtonRaphson(otherX, n, column({call.constraints.begin(), call.constraints.end()}), g, H, call.tol,
                             otherSe, otherInverse, call.limitStep, call.maxStep),
              result);
    EXPECT_THAT(cellsOf(otherX), SameBits(cellsOf(x)));
    EXPECT_THAT(cellsOf(otherSe), SameBits(cellsOf(se)));
    EXPECT_THAT(cellsOf(otherInverse), SameBits(cellsOf(inverse)));
    EXPECT_THAT(cellsOf(g), SameBits(call.g));
    EXPECT_THAT(cellsOf(H), SameBits(call.H));
    return {result, cellsOf(x), cellsOf(se), cellsOf(inverse)};
}

Outcome flatStep(const Call& call)
{
    const std::size_t n = call.x.size();
    Guarded<double> x(call.x), g(call.g), H(call.H), se(n, 77.0), inverse(n * n, 77.0);
    Guarded<int> constraints(call.constraints);
    const int result =
        NewtonRaphson(x, static_cast<int>(n), constraints, g, H, call.tol, se, inverse, call.limitStep, call.maxStep);
    EXPECT_TRUE(g.untouched() && H.untouched() && constraints.untouched());
    return {result, x.values(), se.values(), inverse.values()};
}

/// One parameter, free, whose step is `change`.
Call single(double x, double change)
{
    return {.x = {x}, .g = {change}, .H = {1.0}, .constraints = {0}};
}

TEST(NewtonRaphson, GoesToTheMinimumOfAQuadratic)
{
    // (x - 3)^2 + (x - 3)(y + 1) + 2 (y + 1)^2 at (0, 0).
    const Call call{.x = {0, 0}, .g = {-5, 1}, .H = {2, 1, 1, 4}, .constraints = {0, 0}};
    const Outcome moved = flatStep(call);
    EXPECT_EQ(moved.result, 0);
    EXPECT_NEAR(moved.x[0], 3.0, 1e-15);
    EXPECT_NEAR(moved.x[1], -1.0, 1e-15);
    EXPECT_NEAR(moved.Hinv[0], 4 / 7.0, 1e-15);
    EXPECT_NEAR(moved.Hinv[1], -1 / 7.0, 1e-15);
    EXPECT_THAT(moved.se, SameBits({std::sqrt(moved.Hinv[0]), std::sqrt(moved.Hinv[3])}));
    Call again = call;
    again.x = moved.x;
    again.g = {0.0, 0.0};
    EXPECT_EQ(flatStep(again).result, 1);
    EXPECT_THAT(flatStep(again).x, SameBits(moved.x));
}

TEST(NewtonRaphson, HasConvergedAtExactlyTheTolerance)
{
    Call call = single(1.0, 0.25);
    call.tol = 0.25;
    EXPECT_EQ(step(call).result, 1);
    EXPECT_THAT(step(call).x, SameBits({0.75})); // it moves all the same
    call.tol = std::nextafter(0.25, 0.0);
    EXPECT_EQ(step(call).result, 0);
    call.g = {-0.25};
    EXPECT_EQ(step(call).result, 0);
}

TEST(NewtonRaphson, TestsTheChangeThatWasMadeNotTheStep)
{
    // Beside a large x a step that is above the tolerance is lost in rounding.
    Call call = single(1e17, 1.0);
    EXPECT_EQ(step(call).result, 1);
    EXPECT_THAT(step(call).x, SameBits({1e17}));
}

TEST(NewtonRaphson, ShortensTheStepOnlyAboveTheMaximum)
{
    Call call{.x = {10, 10}, .g = {4, -1}, .H = {1, 0, 0, 1}, .constraints = {0, 0}, .limitStep = -1, .maxStep = 2};
    EXPECT_THAT(step(call).x, SameBits({8.0, 10.5})); // the direction stays
    call.maxStep = 4.0;                               // a ratio of exactly 1
    EXPECT_THAT(step(call).x, SameBits({6.0, 11.0}));
    call.maxStep = 5.0;
    EXPECT_THAT(step(call).x, SameBits({6.0, 11.0}));
    call.g = {1, -4}; // the largest by its magnitude
    call.maxStep = 2.0;
    EXPECT_THAT(step(call).x, SameBits({9.5, 12.0}));
    for (const short off : {0, 1, -2}) {
        call.limitStep = off;
        EXPECT_THAT(step(call).x, SameBits({9.0, 14.0}));
    }
}

TEST(NewtonRaphson, TestsTheShortenedStep)
{
    Call call = single(10.0, 100.0);
    call.limitStep = -1;
    call.maxStep = 0.5;
    call.tol = 0.5;
    EXPECT_EQ(step(call).result, 1); // a limit as short as the tolerance
    call.tol = 0.4;
    EXPECT_EQ(step(call).result, 0);
    call.g = {0.3}; // a step that is small anyway
    EXPECT_EQ(step(call).result, 1);
    call.maxStep = 1.0;
    call.g = {100.0};
    call.limitStep = 0;
    call.tol = 1.0;
    EXPECT_EQ(step(call).result, 0);
}

TEST(NewtonRaphson, KeepsFixedParameters)
{
    const Call call{.x = {1, 2, 3}, .g = {0.5, 100, 2}, .H = {2, 9, 0, 9, 9, 9, 0, 9, 4}, .constraints = {0, 1, 0}};
    const Outcome outcome = step(call);
    EXPECT_EQ(outcome.result, 0);
    EXPECT_THAT(outcome.x, SameBits({0.75, 2.0, 2.5})); // the fixed one's gradient doesn't enter
    EXPECT_THAT(outcome.se, SameBits({std::sqrt(0.5), 77.0, 0.5}));
    EXPECT_THAT(outcome.Hinv, SameBits({0.5, 77, 0, 0, 77, 0, 0, 77, 0.25}));
    const Outcome flat = flatStep(call);
    EXPECT_THAT(flat.x, SameBits(outcome.x));
    EXPECT_THAT(flat.se, SameBits({std::sqrt(0.5), 0.0, 0.5}));
    EXPECT_THAT(flat.Hinv, SameBits({0.5, 0, 0, 0, 0, 0, 0, 0, 0.25}));
}

TEST(NewtonRaphson, CountsNoChangeOfAFixedParameter)
{
    // The row of the fixed one in Hinv keeps 77s, so that its step is large, but it is not made.
    Call call{.x = {1, 2}, .g = {0, 5}, .H = {2, 0, 0, 2}, .constraints = {0, 1}};
    EXPECT_EQ(step(call).result, 1);
    EXPECT_THAT(step(call).x, SameBits({1.0, 2.0}));
    call.constraints = {0, 0};
    EXPECT_EQ(step(call).result, 0);
}

TEST(NewtonRaphson, LimitsByTheStepsOfAllParameters)
{
    // What the kept row of a fixed parameter makes of the gradient counts among the steps: 77 * 1 + 77 * 0.
    const Call call{
        .x = {10, 2}, .g = {1, 0}, .H = {1, 0, 0, 1}, .constraints = {0, 1}, .limitStep = -1, .maxStep = 1.0};
    EXPECT_THAT(step(call).x, SameBits({10 - 1 / 77.0, 2.0}));
    EXPECT_THAT(flatStep(call).x, SameBits({9.0, 2.0})); // whose row is cleared
}

TEST(NewtonRaphson, HasConvergedWhereNothingIsFree)
{
    const Outcome outcome = step({.x = {1, 2}, .g = {3, 4}, .H = {1, 0, 0, 1}, .constraints = {1, 2}, .tol = 0.0});
    EXPECT_EQ(outcome.result, 1);
    EXPECT_THAT(outcome.x, SameBits({1.0, 2.0}));
    EXPECT_THAT(outcome.se, SameBits({77.0, 77.0}));
    EXPECT_THAT(outcome.Hinv, SameBits(std::vector<double>(4, 77.0)));
    EXPECT_EQ(step({}).result, 1);
}

TEST(NewtonRaphson, MakesALargeStepOnAHessianOfZero)
{
    Call call{.x = {1.0}, .g = {2.0}, .H = {0.0}, .constraints = {0}};
    const Outcome outcome = step(call);
    EXPECT_EQ(outcome.result, 0);
    EXPECT_THAT(outcome.Hinv, SameBits({1 / 1e-12}));
    EXPECT_THAT(outcome.x, SameBits({1.0 - 1 / 1e-12 * 2.0}));
    EXPECT_THAT(outcome.se, SameBits({std::sqrt(1 / 1e-12)}));
    call.limitStep = -1;
    call.maxStep = 0.5; // now this governs it
    EXPECT_THAT(step(call).x, SameBits({0.5}));
}

TEST(NewtonRaphson, HasErrorsOfANegativeDiagonal)
{
    const Outcome outcome = step({.x = {1, 1}, .g = {1, 1}, .H = {-4, 0, 0, 4}, .constraints = {0, 0}});
    EXPECT_THAT(outcome.se, SameBits({0.5, 0.5}));
    EXPECT_THAT(outcome.x, SameBits({1.25, 0.75})); // towards a saddle
}

TEST(NewtonRaphson, DoesNotReportAGeneralisedInverse)
{
    const Call call{.x = {1, 1}, .g = {2, 2}, .H = {1, 1, 1, 1}, .constraints = {0, 0}};
    Owned<matrix> inverse = filled(2, 2, 0.0);
    ASSERT_EQ(cCleanConstraintsAndInvert(2, intColumn({0, 0}), table(2, 2, call.H), inverse), 1);
    const Outcome outcome = step(call);
    EXPECT_EQ(outcome.result, 0);
    EXPECT_THAT(outcome.Hinv, SameBits(cellsOf(inverse)));
    EXPECT_NEAR((outcome.x[0] - 1) + (outcome.x[1] - 1), -2.0, 1e-14); // H times the step is the gradient
    Call again = call;
    again.g = {0, 0};
    EXPECT_EQ(step(again).result, 1);
}

TEST(NewtonRaphson, LetsWhatIsNotFiniteThrough)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    Call call = single(1.0, nan);
    EXPECT_EQ(step(call).result, 1); // no change that is above the tolerance
    EXPECT_TRUE(std::isnan(step(call).x[0]));
    call.g = {std::numeric_limits<double>::infinity()};
    EXPECT_EQ(step(call).result, 0);
    EXPECT_THAT(step(call).x, SameBits({-std::numeric_limits<double>::infinity()}));
}

// ---- bit by bit -----------------------------------------------------------------------------------------------------

Outcome reference(const Call& call)
{
    const int n = static_cast<int>(call.x.size());
    Owned<matrix> inverse = filled(n, n, 77.0), step = filled(n, 1, 0.0);
    cCleanConstraintsAndInvert(n, intColumn(call.constraints), table(n, n, call.H), inverse);
    M_ProductBV(inverse, n, n, column(call.g), step);
    if (call.limitStep == -1) {
        double big = 0.0;
        for (int i = 1; i <= n; ++i)
            if (std::fabs(step->vbget(i, 1)) > big)
                big = std::fabs(step->vbget(i, 1));
        const double ratio = big / call.maxStep;
        if (ratio > 1.0)
            for (int i = 1; i <= n; ++i)
                step->vbset(i, 1, step->vbget(i, 1) / ratio);
    }
    Outcome outcome{1, call.x, std::vector<double>(call.x.size(), 77.0), cellsOf(inverse)};
    for (std::size_t i = 0; i < call.x.size(); ++i) {
        if (call.constraints[i] != 0)
            continue;
        const double next = call.x[i] - step->X[i];
        if (std::fabs(call.x[i] - next) > call.tol)
            outcome.result = 0;
        outcome.x[i] = next;
        outcome.se[i] = std::sqrt(std::fabs(outcome.Hinv[i + i * call.x.size()]));
    }
    return outcome;
}

TEST(NewtonRaphson, FollowsThePlainStepsBitByBit)
{
    int converged = 0;
    for (std::uint64_t seed = 1; seed <= 2000 && !HasFailure(); ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const auto n = static_cast<std::size_t>(data.integer(1, 6));
        Call call{.x = data.normals(n), .g = data.normals(n), .H = data.normals(n * n), .constraints = {}};
        for (std::size_t i = 0; i < n; ++i)
            call.constraints.push_back(data.chance(0.2) ? data.integer(1, 3) : 0);
        if (n > 1 && data.chance(0.2)) // singular
            for (std::size_t i = 0; i < n; ++i)
                call.H[i] = call.H[i + n];
        if (data.chance(0.1))
            call.g = data.withSpecials(call.g, 0.2);
        call.tol = data.chance(0.5) ? 1.0 : 0.1;
        call.limitStep = static_cast<short>(data.integer(-1, 1));
        call.maxStep = data.uniform(0.05, 2.0);
        const Outcome actual = step(call), expected = reference(call);
        EXPECT_EQ(actual.result, expected.result);
        EXPECT_THAT(actual.x, SameBits(expected.x));
        EXPECT_THAT(actual.se, SameBits(expected.se));
        EXPECT_THAT(actual.Hinv, SameBits(expected.Hinv));
        converged += actual.result;
    }
    EXPECT_GT(converged, 200);
    EXPECT_LT(converged, 1800);
}

} // namespace
} // namespace vecmat::test
