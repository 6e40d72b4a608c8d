// End points of triangular distributions.
#include "descriptive/triangular_fit.h"

#include "support/bits.h"
#include "support/random_data.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

using namespace vecmat::test;

namespace {

/// Distribution function of the triangular distribution from a to b with mode m.
double probability(double x, double a, double m, double b)
{
    return x <= m ? (x - a) * (x - a) / ((b - a) * (m - a)) : 1 - (b - x) * (b - x) / ((b - a) * (b - m));
}

void expectRecovered(double a, double m, double b, double x1, double x2, double tolerance)
{
    double foundA = 0, foundB = 0;
    TriangularQFindAB(x1, m, x2, probability(x1, a, m, b), probability(x2, a, m, b), &foundA, &foundB);
    EXPECT_NEAR(foundA, a, tolerance);
    EXPECT_NEAR(foundB, b, tolerance);
    double flatA = 0, flatB = 0;
    Cpp_TriangularQFindAB(x1, m, x2, probability(x1, a, m, b), probability(x2, a, m, b), &flatA, &flatB);
    EXPECT_THAT(flatA, SameBits(foundA));
    EXPECT_THAT(flatB, SameBits(foundB));
}

TEST(TriangularQFindAB, RecoversTheEndsOnAllSidesOfTheMode)
{
    expectRecovered(0, 8, 10, 2, 6, 1e-9); // both left of the mode
    expectRecovered(1, 3, 11, 5, 8, 1e-9); // both right of it
    expectRecovered(0, 4, 10, 2, 7, 1e-8); // one on either side
    expectRecovered(-3, 1, 4, -1, 2, 1e-8);
    expectRecovered(2, 5, 9, 3, 5, 1e-8); // the mode at the second quantile
    expectRecovered(2, 5, 9, 5, 8, 1e-8); // and at the first
}

TEST(TriangularQFindAB, UsesTheClosedFormOutsideTheMode)
{
    double a = 0, b = 0;
    const double x1 = 2, m = 8, x2 = 6, p1 = 0.05, p2 = 0.45;
    TriangularQFindAB(x1, m, x2, p1, p2, &a, &b);
    const double s = std::sqrt(p1 / p2);
    const double wantedA = (s * x2 - x1) / (s + -1.0);
    EXPECT_THAT(a, SameBits(wantedA));
    EXPECT_THAT(b, SameBits((x2 * x2 + (1.0 - p2) * wantedA * wantedA + (x2 * -2.0 + m * p2) * wantedA) /
                            ((m - wantedA) * p2)));

    const double y1 = 5, mode = 3, y2 = 8, q1 = 0.55, q2 = 0.9;
    TriangularQFindAB(y1, mode, y2, q1, q2, &a, &b);
    const double q = 1.0 - q1;
    const double r = std::sqrt((1.0 - q2) / q);
    const double wantedB = (r * y1 - y2) / (r + -1.0);
    const double t = (y1 - mode) * q;
    const double u = wantedB - y1;
    EXPECT_THAT(b, SameBits(wantedB));
    EXPECT_THAT(a, SameBits((u * y1 + (t - q1 * u) * wantedB) / (q * u + t)));
}

struct Search
{
    double x1, m, x2, prob1, prob2;
};

struct Found
{
    double a, b;
    int steps, lastMultiple;
};

/// The search written out again, with one function for a(b), its slope, and both sides of the equation.
Found plainSearch(const Search& s)
{
    const double r = 1.0 - s.prob2, A = s.x2 * -2.0 + r * s.m;
    const auto lower = [&](double b) { return (b * b * s.prob2 + A * b + s.x2 * s.x2) / ((s.m - b) * r); };
    Found found{0, 0, 0, 5};
    for (;;) {
        double b = found.lastMultiple * s.x2;
        for (;;) {
            const double a = lower(b);
            const double g =
                b * s.prob1 * (s.m - a) - (a * a * (1 - s.prob1) + (s.m * s.prob1 - (s.x1 + s.x1)) * a + s.x1 * s.x1);
            const double D = s.m - b;
            const double P = s.x2 * s.x2 + (r * s.m - (s.x2 + s.x2)) * b + b * b * s.prob2;
            const double R = r * D;
            const double slope = (((b + b) * s.prob2 + r * s.m - (s.x2 + s.x2)) * D + P) / (D * R);
            const double own = P / R;
            const double derivative = (s.m - own) * s.prob1 - b * s.prob1 * slope -
                                      (1 - s.prob1) * ((own + own) * slope) - (s.m * s.prob1 - (s.x1 + s.x1)) * slope;
            found.b = b - g / derivative;
            ++found.steps;
            if (found.steps > 500 || std::fabs(b - found.b) < 1e-12)
                break;
            b = found.b;
        }
        if (found.steps >= 501 || !(found.b <= s.m))
            break;
        ++found.lastMultiple;
    }
    found.a = (s.x2 * s.x2 + found.b * found.b * s.prob2 + A * found.b) / (r * (s.m - found.b));
    return found;
}

TEST(TriangularQFindAB, StartsAgainFromTheNextMultipleAndSharesTheSteps)
{
    const auto expectSame = [](const Search& s) {
        const Found wanted = plainSearch(s);
        double a = 7, b = 7;
        TriangularQFindAB(s.x1, s.m, s.x2, s.prob1, s.prob2, &a, &b);
        EXPECT_THAT((std::vector{a, b}), SameBits({wanted.a, wanted.b}));
        return wanted;
    };
    EXPECT_EQ(expectSame({2, 4, 7, 0.1, 0.85}).lastMultiple, 5); // at once
    EXPECT_EQ(expectSame({5, 5, 8, 0.15, 0.8}).lastMultiple, 5); // the mode at the first quantile
    EXPECT_EQ(expectSame({2, 5, 5, 0.15, 0.6}).lastMultiple, 5); // and at the second
    // Probabilities in the wrong order, for which starts end below the mode.
    EXPECT_EQ(expectSame({-2, -1.25, 3.25, 0.1875, 0.125}).lastMultiple, 6);
    EXPECT_EQ(expectSame({-1.1, -1, 0.2, 0.7, 0.3}).lastMultiple, 13);
    // Every one of them: the 500 steps are those of all of them.
    const Found last = expectSame({-2.2, -2, -2, 0.1, 0.05});
    EXPECT_EQ(last.steps, 501);
    EXPECT_GT(last.lastMultiple, 20);
    EXPECT_NEAR(last.b, -21.45, 0.01); // on its way
}

TEST(TriangularQFindAB, EndsWithinItsStepsWhereThereIsNoRoot)
{
    double a = 0, b = 0;
    TriangularQFindAB(1, 2, 0, 0.5, 0.5, &a, &b);  // outside the contract, but it returns
    TriangularQFindAB(-1, 0, 0, 0.3, 0.6, &a, &b); // every start is 0
    TriangularQFindAB(1, 2, 3, std::nan(""), 0.5, &a, &b);
    EXPECT_TRUE(std::isnan(b));
}

TEST(TriangularFunc, IsZeroAtTheUpperEnd)
{
    // a = 0, b = 10, mode 4: F(2) = 0.1, F(7) = 0.85.
    EXPECT_NEAR(TriangularFunc(10, 2, 4, 7, 0.1, 0.85), 0, 1e-12);
    double a = 7, b = 7;
    TriangularQFindAB(2, 4, 7, 0.1, 0.85, &a, &b);
    EXPECT_NEAR(a, 0, 1e-10);
    EXPECT_NEAR(b, 10, 1e-10);
}

TEST(TriangularFunc, AndItsMirrorMultiplyInTheirOrder)
{
    RandomData data(20302);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < 100; ++turn) {
        const double x1 = data.uniform(1.0, 3.0), m = data.uniform(3.0, 5.0), x2 = data.uniform(5.0, 8.0);
        const double p1 = data.uniform(0.05, 0.4), p2 = data.uniform(0.5, 0.95);
        const double b = data.uniform(8.0, 20.0);
        const double r = 1.0 - p2;
        const double a = ((b * b) * p2 + (x2 * -2.0 + r * m) * b + x2 * x2) / ((m - b) * r);
        EXPECT_THAT(TriangularFunc(b, x1, m, x2, p1, p2),
                    SameBits((b * p1) * (m - a) - ((a * a) * (1.0 - p1) + (m * p1 - (x1 + x1)) * a + x1 * x1)));
        const double lower = data.uniform(-9.0, 1.0);
        const double upper =
            (x1 * x1 + ((-2.0 * x1 + m * p1) * lower + (lower * lower) * (1.0 - p1))) / ((m - lower) * p1);
        EXPECT_THAT(TriangularFunc2(lower, x1, m, x2, p1, p2),
                    SameBits((lower * p2) * (m - upper) -
                             (x2 * x2 + (((1.0 - p2) * upper) * upper + (m * p2 - (x2 + x2)) * upper))));
    }
}

TEST(TriangularQFindAB, MultipliesInTheOrderOfTheClosedForms)
{
    RandomData data(20303);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < 100; ++turn) {
        const double x1 = data.uniform(1.0, 3.0), x2 = data.uniform(5.0, 8.0);
        const double p1 = data.uniform(0.05, 0.4), p2 = data.uniform(0.5, 0.95);
        double a = 0, b = 0;
        const double right = data.uniform(8.5, 12.0);
        TriangularQFindAB(x1, right, x2, p1, p2, &a, &b);
        const double s = std::sqrt(p1 / p2);
        const double wantedA = (s * x2 - x1) / (s + -1.0);
        EXPECT_THAT(a, SameBits(wantedA));
        EXPECT_THAT(b, SameBits((x2 * x2 + ((1.0 - p2) * wantedA) * wantedA + (x2 * -2.0 + right * p2) * wantedA) /
                                ((right - wantedA) * p2)));
        const double left = data.uniform(-3.0, 0.5);
        TriangularQFindAB(x1, left, x2, p1, p2, &a, &b);
        const double q = 1.0 - p1;
        const double root = std::sqrt((1.0 - p2) / q);
        const double wantedB = (root * x1 - x2) / (root + -1.0);
        const double t = (x1 - left) * q;
        const double u = wantedB - x1;
        EXPECT_THAT(b, SameBits(wantedB));
        EXPECT_THAT(a, SameBits((u * x1 + (t - p1 * u) * wantedB) / (q * u + t)));
    }
}

TEST(TriangularFunc, FollowsItsFormula)
{
    const double b = 11.3, x1 = 2.1, m = 4.2, x2 = 7.7, p1 = 0.15, p2 = 0.8;
    const double r = 1 - p2;
    const double a = (b * b * p2 + (x2 * -2.0 + r * m) * b + x2 * x2) / ((m - b) * r);
    EXPECT_THAT(TriangularFunc(b, x1, m, x2, p1, p2),
                SameBits(b * p1 * (m - a) - (a * a * (1 - p1) + (m * p1 - (x1 + x1)) * a + x1 * x1)));
    const double c = 0.4;
    const double upper = (x1 * x1 + ((-2.0 * x1 + m * p1) * c + c * c * (1 - p1))) / ((m - c) * p1);
    EXPECT_THAT(TriangularFunc2(c, x1, m, x2, p1, p2),
                SameBits(c * p2 * (m - upper) - (x2 * x2 + ((1 - p2) * upper * upper + (m * p2 - (x2 + x2)) * upper))));
}

TEST(TriangularFuncDeriv, IsTheSlope)
{
    for (double b : {8.0, 10.0, 35.0}) {
        const double h = 1e-5;
        const double slope =
            (TriangularFunc(b + h, 2, 4, 7, 0.1, 0.85) - TriangularFunc(b - h, 2, 4, 7, 0.1, 0.85)) / (2 * h);
        EXPECT_NEAR(TriangularFuncDeriv(b, 2, 4, 7, 0.1, 0.85), slope, 1e-5 * (1 + std::fabs(slope)));
    }
}

} // namespace
