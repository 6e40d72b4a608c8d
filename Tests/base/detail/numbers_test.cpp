// Truncation, products of dimensions, and the missing value with its two tests.
#include "base/detail/numbers.h"
#include "base/missing_value.h"
#include "support/bits.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace vecmat::test {
namespace {

constexpr int lowestInt = std::numeric_limits<int>::min();
constexpr int highestInt = std::numeric_limits<int>::max();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double lowestDouble = std::numeric_limits<double>::lowest();

TEST(Truncated, GoesTowardsZero)
{
    EXPECT_EQ(truncated(2.9), 2);
    EXPECT_EQ(truncated(-2.9), -2);
    EXPECT_EQ(truncated(0.9999999999999999), 0);
    EXPECT_EQ(truncated(-0.0), 0);
}

TEST(Truncated, ReachesBothEndsOfInt)
{
    EXPECT_EQ(truncated(2147483647.0), highestInt);
    EXPECT_EQ(truncated(std::nextafter(2147483648.0, 0.0)), highestInt);
    EXPECT_EQ(truncated(-2147483648.0), lowestInt);
    EXPECT_EQ(truncated(std::nextafter(-2147483649.0, 0.0)), lowestInt);
    EXPECT_EQ(truncated(-2147483647.5), lowestInt + 1);
}

TEST(Truncated, AnythingElseIsTheLowestInt)
{
    for (const double x :
         {2147483648.0, -2147483649.0, -2147483649.5, 1e300, -1e300, M, -M, infinity, -infinity, notANumber})
        EXPECT_EQ(truncated(x), lowestInt) << x;
}

TEST(ElementCount, IsAProductOf32Bits)
{
    EXPECT_EQ(elementCount(3, 4), 12u);
    EXPECT_EQ(elementCount(0, 4), 0u);
    EXPECT_EQ(elementCount(60000, 60000), 3600000000u);
    EXPECT_EQ(elementCount(65536, 65536), 0u);
    EXPECT_EQ(elementCount(65537, 65536), 65536u);
    EXPECT_EQ(elementCount(highestInt, highestInt), 1u);
}

TEST(ElementCount, NegativeDimensionHasNoCells)
{
    EXPECT_EQ(elementCount(-1, 4), 0u);
    EXPECT_EQ(elementCount(4, -1), 0u);
    EXPECT_EQ(elementCount(-2, -3), 0u);
    EXPECT_EQ(countOf(-1), 0u);
    EXPECT_EQ(countOf(lowestInt), 0u);
    EXPECT_EQ(countOf(5), 5u);
}

TEST(LinearIndex, CountsFromZeroAndWraps)
{
    EXPECT_EQ(linearIndex(2, 3, 10), 32u);
    EXPECT_EQ(linearIndex(12, 0, 10), 12u);
    EXPECT_EQ(linearIndex(-1, 1, 10), 9u);
    EXPECT_EQ(linearIndex(-1, 0, 10), 0xffffffffu);
    EXPECT_EQ(linearIndex(0, -1, 10), 0xfffffff6u);
    EXPECT_EQ(linearIndex(highestInt, highestInt, highestInt), 0x80000000u);
}

TEST(BooleanOf, IsMinusOneOrZero)
{
    EXPECT_EQ(booleanOf(true), -1);
    EXPECT_EQ(booleanOf(false), 0);
}

TEST(MissingValue, HasItsBits)
{
    EXPECT_EQ(std::bit_cast<std::uint64_t>(missingValue), 0xffefffffffffffe2u);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(vecmat::positiveTwin), 0x7fefffffffffffe2u);
    EXPECT_THAT(missingValue, SameBits(-1.79769313486231e308));
    EXPECT_GT(missingValue, lowestDouble);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(lowestDouble) - std::bit_cast<std::uint64_t>(missingValue), 29u);
    EXPECT_THAT(outOfRangeValue, SameBits(-1.0));
}

TEST(MissingValue, EqualityTestTakesTheExactPattern)
{
    EXPECT_TRUE(isMissing(M));
    for (const double x : {std::nextafter(M, 0.0), std::nextafter(M, -infinity), lowestDouble, -infinity, notANumber,
                           test::positiveTwin, -1.0, 0.0})
        EXPECT_FALSE(isMissing(x)) << x;
}

TEST(MissingValue, OrderTestTakesWhatLiesBelowToo)
{
    for (const double x : {M, std::nextafter(M, -infinity), lowestDouble, -infinity})
        EXPECT_TRUE(isMissingOrBelow(x)) << x;
    for (const double x : {std::nextafter(M, 0.0), notANumber, test::positiveTwin, infinity, -1.0, 0.0})
        EXPECT_FALSE(isMissingOrBelow(x)) << x;
}

TEST(Tolerances, AreTheSettledLiterals)
{
    EXPECT_THAT(zeroTolerance, SameBits(1e-12));
    EXPECT_THAT(negligible, SameBits(std::numeric_limits<double>::epsilon()));
    EXPECT_THAT(zeroNorm, SameBits(1e-31));
    EXPECT_THAT(convergenceTolerance, SameBits(1e-06));
}

} // namespace
} // namespace vecmat::test
