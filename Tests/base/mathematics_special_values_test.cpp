// Zeros, infinities, NaNs and the ends of the range, as C23 tells in its Annex F.
#include "base/detail/mathematics/bits.h"
#include "base/detail/mathematics/mathematics.h"
#include "support/bits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <limits>

namespace vecmat::test {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double least = 0x1p-1074;
constexpr double greatest = std::numeric_limits<double>::max();

TEST(Exp, OfSpecialValues)
{
    EXPECT_THAT(exp(0.0), SameBitsAs(1.0));
    EXPECT_THAT(exp(-0.0), SameBitsAs(1.0));
    EXPECT_THAT(exp(infinity), SameBitsAs(infinity));
    EXPECT_THAT(exp(-infinity), SameBitsAs(0.0));
    EXPECT_TRUE(std::isnan(exp(notANumber)));
    EXPECT_TRUE(std::isnan(exp(-notANumber)));
}

TEST(Exp, AtTheEndsOfTheRange)
{
    EXPECT_THAT(exp(0x1.62e42fefa39efp+9), SameBitsAs(0x1.fffffffffff2ap+1023));
    EXPECT_THAT(exp(0x1.62e42fefa39f0p+9), SameBitsAs(infinity));
    EXPECT_THAT(exp(greatest), SameBitsAs(infinity));
    EXPECT_THAT(exp(-0x1.74910d52d3051p+9), SameBitsAs(least));
    EXPECT_THAT(exp(-0x1.74910d52d3052p+9), SameBitsAs(0.0));
    EXPECT_THAT(exp(-greatest), SameBitsAs(0.0));
    EXPECT_THAT(exp(least), SameBitsAs(1.0));
    EXPECT_THAT(exp(-least), SameBitsAs(1.0));
}

TEST(Cube, OfAnyNaNIsOne)
{
    for (const std::uint64_t bits :
         {0x7ff0000000000001u, 0x7ff8000000000000u, 0xfff0000000000001u, 0xffffffffffffffffu}) {
        EXPECT_TRUE(std::isnan(cube(mathematics::doubleOf(bits)))) << bits;
        EXPECT_TRUE(std::isnan(fourthPower(mathematics::doubleOf(bits)))) << bits;
    }
}

TEST(Exp, NextToOne)
{
    EXPECT_THAT(exp(0x1p-53), SameBitsAs(1.0 + 0x1p-52)); // beyond the middle, as the square is added
    EXPECT_THAT(exp(0x1.fffffffffffffp-54), SameBitsAs(1.0));
    EXPECT_THAT(exp(-0x1p-54), SameBitsAs(1.0));
    EXPECT_THAT(exp(-0x1.0000000000001p-54), SameBitsAs(1.0 - 0x1p-53));
}

template <class Logarithm>
void expectSpecialValues(Logarithm logarithm)
{
    EXPECT_THAT(logarithm(1.0), SameBitsAs(0.0));
    EXPECT_THAT(logarithm(0.0), SameBitsAs(-infinity));
    EXPECT_THAT(logarithm(-0.0), SameBitsAs(-infinity));
    EXPECT_THAT(logarithm(infinity), SameBitsAs(infinity));
    for (const double x : {notANumber, -notANumber, -least, -1.0, -greatest, -infinity})
        EXPECT_TRUE(std::isnan(logarithm(x))) << x;
    EXPECT_FALSE(std::signbit(logarithm(-1.0)));
}

TEST(Log, OfSpecialValues)
{
    expectSpecialValues([](double x) { return log(x); });
    EXPECT_THAT(log(least), SameBitsAs(-0x1.74385446d71c3p+9));
    EXPECT_THAT(log(greatest), SameBitsAs(0x1.62e42fefa39efp+9));
    EXPECT_THAT(log(1.0 + 0x1p-52), SameBitsAs(0x1.fffffffffffffp-53));
    EXPECT_THAT(log(1.0 - 0x1p-53), SameBitsAs(-0x1p-53));
}

TEST(Log10, OfSpecialValues)
{
    expectSpecialValues([](double x) { return log10(x); });
    EXPECT_THAT(log10(least), SameBitsAs(-0x1.434e6420f4374p+8));
    EXPECT_THAT(log10(greatest), SameBitsAs(0x1.34413509f79ffp+8));
}

TEST(Pow, OfZeroExponentAndBaseOne)
{
    for (const double x : {0.0, -0.0, 1.0, -3.5, least, greatest, infinity, -infinity, notANumber}) {
        EXPECT_THAT(pow(x, 0.0), SameBitsAs(1.0)) << x;
        EXPECT_THAT(pow(x, -0.0), SameBitsAs(1.0)) << x;
        EXPECT_THAT(pow(1.0, x), SameBitsAs(1.0)) << x;
    }
}

TEST(Pow, OfZero)
{
    for (const double y : {-1.0, -3.0, -0x1.fffffffffffffp+52}) {
        EXPECT_THAT(pow(0.0, y), SameBitsAs(infinity)) << y;
        EXPECT_THAT(pow(-0.0, y), SameBitsAs(-infinity)) << y;
        EXPECT_THAT(pow(0.0, -y), SameBitsAs(0.0)) << y;
        EXPECT_THAT(pow(-0.0, -y), SameBitsAs(-0.0)) << y;
    }
    for (const double y : {-2.0, -0.5, -least, -0x1p53, -greatest, -infinity}) {
        EXPECT_THAT(pow(0.0, y), SameBitsAs(infinity)) << y;
        EXPECT_THAT(pow(-0.0, y), SameBitsAs(infinity)) << y;
        EXPECT_THAT(pow(0.0, -y), SameBitsAs(0.0)) << y;
        EXPECT_THAT(pow(-0.0, -y), SameBitsAs(0.0)) << y;
    }
}

TEST(Pow, OfInfinity)
{
    EXPECT_THAT(pow(infinity, 0.5), SameBitsAs(infinity));
    EXPECT_THAT(pow(infinity, -0.5), SameBitsAs(0.0));
    EXPECT_THAT(pow(-infinity, 3.0), SameBitsAs(-infinity));
    EXPECT_THAT(pow(-infinity, 2.5), SameBitsAs(infinity));
    EXPECT_THAT(pow(-infinity, -3.0), SameBitsAs(-0.0));
    EXPECT_THAT(pow(-infinity, -2.5), SameBitsAs(0.0));
}

TEST(Pow, ToInfinity)
{
    EXPECT_THAT(pow(-1.0, infinity), SameBitsAs(1.0));
    EXPECT_THAT(pow(-1.0, -infinity), SameBitsAs(1.0));
    for (const double x : {1.0 + 0x1p-52, -2.0, greatest, infinity, -infinity}) {
        EXPECT_THAT(pow(x, infinity), SameBitsAs(infinity)) << x;
        EXPECT_THAT(pow(x, -infinity), SameBitsAs(0.0)) << x;
    }
    for (const double x : {1.0 - 0x1p-53, -0.5, least, 0.0, -0.0}) {
        EXPECT_THAT(pow(x, infinity), SameBitsAs(0.0)) << x;
        EXPECT_THAT(pow(x, -infinity), SameBitsAs(infinity)) << x;
    }
}

TEST(Pow, OfNegativeNumbers)
{
    for (const double y : {0.5, -0.5, least, 1e-300, 0x1.fffffffffffffp+51})
        EXPECT_TRUE(std::isnan(pow(-2.0, y))) << y;
    EXPECT_FALSE(std::signbit(pow(-2.0, 0.5)));
    EXPECT_THAT(pow(-2.0, 3.0), SameBitsAs(-8.0));
    EXPECT_THAT(pow(-2.0, 4.0), SameBitsAs(16.0));
    EXPECT_THAT(pow(-1.0, 0x1.fffffffffffffp+52), SameBitsAs(-1.0));
    EXPECT_THAT(pow(-1.0, 0x1p53), SameBitsAs(1.0));
    EXPECT_THAT(pow(-3.0, 1001.0), SameBitsAs(-infinity));
    EXPECT_THAT(pow(-3.0, -1001.0), SameBitsAs(-0.0));
    EXPECT_THAT(pow(-3.0, -1000.0), SameBitsAs(0.0));
}

TEST(Pow, OfNotANumber)
{
    for (const double other : {-2.0, 2.0, 0.5, infinity, -infinity, notANumber}) {
        EXPECT_TRUE(std::isnan(pow(notANumber, other))) << other;
        EXPECT_TRUE(std::isnan(pow(other, notANumber))) << other;
    }
}

TEST(Pow, BeyondTheRange)
{
    EXPECT_THAT(pow(2.0, 1024.0), SameBitsAs(infinity));
    EXPECT_THAT(pow(2.0, 1e300), SameBitsAs(infinity));
    EXPECT_THAT(pow(0.5, 1e300), SameBitsAs(0.0));
    EXPECT_THAT(pow(2.0, -1074.0), SameBitsAs(least));
    EXPECT_THAT(pow(2.0, -1075.0), SameBitsAs(0.0)); // the middle, and 0 is even
    EXPECT_THAT(pow(2.0, -0x1.0cbffffffffffp+10), SameBitsAs(least));
    EXPECT_THAT(pow(least, -1.0), SameBitsAs(infinity));
    EXPECT_THAT(pow(1.0 + 0x1p-52, 0x1.62e42fefa39efp+61), SameBitsAs(0x1.ffffffffffc64p+1023));
    EXPECT_THAT(pow(greatest, 1e-300), SameBitsAs(1.0));
    EXPECT_THAT(pow(least, 1e-300), SameBitsAs(1.0));
}

TEST(SmallPowers, OfSpecialValues)
{
    EXPECT_THAT(cube(-0.0), SameBitsAs(-0.0));
    EXPECT_THAT(cube(-infinity), SameBitsAs(-infinity));
    EXPECT_THAT(cube(-greatest), SameBitsAs(-infinity));
    EXPECT_THAT(cube(-least), SameBitsAs(-0.0));
    EXPECT_TRUE(std::isnan(cube(notANumber)));
    EXPECT_THAT(fourthPower(-0.0), SameBitsAs(0.0));
    EXPECT_THAT(fourthPower(-infinity), SameBitsAs(infinity));
    EXPECT_THAT(fourthPower(-greatest), SameBitsAs(infinity));
    EXPECT_TRUE(std::isnan(fourthPower(notANumber)));
}

} // namespace
} // namespace vecmat::test
