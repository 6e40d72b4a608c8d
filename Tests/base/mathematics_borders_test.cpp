// The functions keep their order across the borders of their tables and of their ranges; products of two doubles are
// exact with and without the machine's fused product.
#include "base/detail/mathematics/double_double.h"
#include "base/detail/mathematics/mathematics.h"
#include "base/mathematics_arguments.h"
#include "support/bits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vecmat::test {
namespace {

/// From so many places below the border to as many above it no result is less than the one before.
template <class Function>
void expectAscending(Function function, double border)
{
    double x = border;
    for (int i = 0; i < 20; ++i)
        x = std::nextafter(x, -std::numeric_limits<double>::infinity());
    double before = function(x);
    for (int i = 0; i < 40; ++i) {
        x = std::nextafter(x, std::numeric_limits<double>::infinity());
        const double result = function(x);
        ASSERT_LE(before, result) << border;
        before = result;
    }
}

TEST(Monotony, OfExp)
{
    for (int k = -275000; k <= 262000; k += k > -600 && k < 600 ? 1 : 97)
        expectAscending([](double x) { return exp(x); }, (k + 0.5) * (0.6931471805599453 / 256.0));
    for (const double border : {-745.1332191019412, -708.3964185322641, -708.3, 709.4, 709.782712893384, 0x1p-54})
        expectAscending([](double x) { return exp(x); }, border);
}

TEST(Monotony, OfLogarithms)
{
    for (const int e : {-1060, -1022, -3, -1, 0, 1, 5, 1022})
        for (int i = 0; i <= 352; ++i) {
            const double border = std::ldexp(0.6875 + i / 512.0, e);
            expectAscending([](double x) { return log(x); }, border);
            expectAscending([](double x) { return log10(x); }, border);
        }
    for (const double border : {1.0 - 0x1p-9, 1.0 + 0x1p-9, 1.0, 0x1p-1022}) {
        expectAscending([](double x) { return log(x); }, border);
        expectAscending([](double x) { return log10(x); }, border);
    }
}

TEST(Monotony, OfPow)
{
    for (const double y : {0.5, 1.0, 1.5, 3.0, 7.1, 30.0})
        for (int i = 0; i <= 352; ++i)
            expectAscending([y](double x) { return pow(x, y); }, 0.6875 + i / 512.0);
    for (const double x : {1.0 + 0x1p-40, 1.5, 2.0, 10.0, 1e300})
        for (int k = -500; k <= 500; k += 3)
            expectAscending([x](double y) { return pow(x, y); }, (k + 0.5) * (0.6931471805599453 / 256.0) / log(x));
}

TEST(ExactProduct, IsThatOfTheFusedProduct)
{
    MathematicsArguments arguments(3);
    for (int i = 0; i < 20000; ++i) {
        const double x = arguments.forPow().x;
        const double y = arguments.forPow().x;
        if (!(std::fabs(x) > 1e-100 && std::fabs(x) < 1e100 && std::fabs(y) > 1e-100 && std::fabs(y) < 1e100))
            continue;
        const DoubleDouble product = exactProduct(x, y);
        ASSERT_THAT(product.high, SameBitsAs(x * y));
        ASSERT_EQ(product.low, std::fma(x, y, -product.high)) << x << " " << y;
    }
}

} // namespace
} // namespace vecmat::test
