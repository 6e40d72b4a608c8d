#include "triangular_fit.h"

#include "../base/detail/companions.h"

#include <cmath>

using vecmat::squareRoot;

namespace {

void fitLeftOfMode(double x1, double m, double x2, double prob1, double prob2, double& a, double& b)
{
    const double s = squareRoot(prob1 / prob2);
    a = (s * x2 - x1) / (s + -1.0);
    b = (x2 * x2 + (1.0 - prob2) * a * a + (x2 * -2.0 + m * prob2) * a) / ((m - a) * prob2);
}

void fitRightOfMode(double x1, double m, double x2, double prob1, double prob2, double& a, double& b)
{
    const double q = 1.0 - prob1;
    const double s = squareRoot((1.0 - prob2) / q);
    b = (s * x1 - x2) / (s + -1.0);
    const double t = (x1 - m) * q;
    const double u = b - x1;
    a = (u * x1 + (t - prob1 * u) * b) / (q * u + t);
}

/// Newton's method with restarts; the step limit covers all starts together.
double searchUpperEnd(double x1, double m, double x2, double prob1, double prob2)
{
    constexpr int stepLimit = 500;
    constexpr double smallestStep = 1e-12;
    int steps = 0;
    for (int multiple = 5;; ++multiple) {
        double b = multiple * x2;
        double next;
        for (;; b = next) {
            next = b - TriangularFunc(b, x1, m, x2, prob1, prob2) / TriangularFuncDeriv(b, x1, m, x2, prob1, prob2);
            ++steps;
            if (steps > stepLimit || std::fabs(b - next) < smallestStep)
                break;
        }
        if (!(steps <= stepLimit && next <= m))
            return next;
    }
}

} // namespace

void TriangularQFindAB(double x1, double m, double x2, double prob1, double prob2, double* a, double* b)
{
    if (m > x2) {
        fitLeftOfMode(x1, m, x2, prob1, prob2, *a, *b);
    } else if (m < x1) {
        fitRightOfMode(x1, m, x2, prob1, prob2, *a, *b);
    } else {
        const double r = 1.0 - prob2;
        const double upper = searchUpperEnd(x1, m, x2, prob1, prob2);
        *b = upper;
        *a = (x2 * x2 + upper * upper * prob2 + (x2 * -2.0 + r * m) * upper) / (r * (m - upper));
    }
}

void Cpp_TriangularQFindAB(double x1, double m, double x2, double prob1, double prob2, double* a, double* b)
{
    TriangularQFindAB(x1, m, x2, prob1, prob2, a, b);
}

double TriangularFunc(double b, double x1, double m, double x2, double prob1, double prob2)
{
    const double r = 1.0 - prob2;
    const double a = (b * b * prob2 + (x2 * -2.0 + r * m) * b + x2 * x2) / ((m - b) * r);
    return b * prob1 * (m - a) - (a * a * (1.0 - prob1) + (m * prob1 - (x1 + x1)) * a + x1 * x1);
}

double TriangularFuncDeriv(double b, double x1, double m, double x2, double prob1, double prob2)
{
    const double r = 1.0 - prob2;
    const double d = m - b;
    const double numerator = x2 * x2 + (r * m - (x2 + x2)) * b + b * b * prob2;
    const double denominator = r * d;
    const double slope = (((b + b) * prob2 + r * m - (x2 + x2)) * d + numerator) / (d * denominator);
    const double a = numerator / denominator;
    return (m - a) * prob1 - b * prob1 * slope - (1.0 - prob1) * ((a + a) * slope) - (m * prob1 - (x1 + x1)) * slope;
}

double TriangularFunc2(double a, double x1, double m, double x2, double prob1, double prob2)
{
    const double b = (x1 * x1 + ((-2.0 * x1 + m * prob1) * a + a * a * (1.0 - prob1))) / ((m - a) * prob1);
    return a * prob2 * (m - b) - (x2 * x2 + ((1.0 - prob2) * b * b + (m * prob2 - (x2 + x2)) * b));
}
