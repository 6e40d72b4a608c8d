// The exact phase for any argument, not only for those that the quick one leaves to it: from few places and from many.
#include "base/detail/mathematics/bits.h"
#include "base/detail/mathematics/exact_phase.h"
#include "base/detail/mathematics/mathematics.h"
#include "base/detail/mathematics/wide.h"
#include "support/bits.h"
#include "support/random_data.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>

namespace vecmat::test {
namespace {

using mathematics::Places;

constexpr std::array eitherPlaces = {Places::few, Places::many};

TEST(ExactPhase, OfTheExponential)
{
    RandomData data(41);
    SCOPED_TRACE(data);
    // A whole number of ln 2 is taken off: one and none, too.
    std::vector<double> x = {1.0, -1.0, 0.5, -0.5, 0.7, -0.7, 1.3, -1.3, 709.7, -745.1, 0x1p-53, -0x1p-54};
    for (int k = 0; k < 200; ++k)
        x.push_back(data.uniform(-745.0, 709.0));
    for (int k = 0; k < 50; ++k)
        x.push_back(data.uniform(-2.0, 2.0));
    for (const double argument : x)
        for (const Places places : eitherPlaces)
            ASSERT_THAT(mathematics::exactExp(argument, places), SameBitsAs(exp(argument))) << argument;
}

TEST(ExactPhase, OfTheLogarithms)
{
    RandomData data(42);
    SCOPED_TRACE(data);
    std::vector<double> x = {0.5, 0.6875, 0.7, 1.25, 1.375, 1.4, 2.0, 10.0, 1e22, 1.0 + 0x1p-52, 1.0 - 0x1p-53, 5e-324};
    for (int k = 0; k < 150; ++k)
        x.push_back(std::ldexp(data.uniform(1.0, 2.0), data.integer(-1074, 1023)));
    for (const double argument : x)
        for (const Places places : eitherPlaces) {
            ASSERT_THAT(mathematics::exactLog(argument, places), SameBitsAs(log(argument))) << argument;
            ASSERT_THAT(mathematics::exactLog10(argument, places), SameBitsAs(log10(argument))) << argument;
        }
}

TEST(ExactPhase, OfThePower)
{
    RandomData data(43);
    SCOPED_TRACE(data);
    for (int k = 0; k < 100; ++k) {
        const double x = data.uniform(0.0, 30.0), y = data.uniform(-40.0, 40.0);
        for (const Places places : eitherPlaces)
            ASSERT_THAT(mathematics::exactPow(x, y, places), SameBitsAs(pow(x, y))) << x << " " << y;
    }
    // Exact ones: a power of two to any power, whole numbers to whole ones, squares to halves.
    for (const double y : {3.0, -3.0, 0.5, -0.5, 0.25, 1.5})
        for (const double x : {16.0, 0x1p-16, 81.0, 18.0, 3.0, 0.75})
            ASSERT_THAT(mathematics::exactPow(x, y), SameBitsAs(pow(x, y))) << x << " " << y;
    EXPECT_THAT(mathematics::exactPow(16.0, -0.75), SameBitsAs(0.125));
    EXPECT_THAT(mathematics::exactPow(81.0, 0.75), SameBitsAs(27.0));
    EXPECT_THAT(mathematics::exactPow(2.0, 0.0009765625), SameBitsAs(pow(2.0, 0.0009765625))); // not a power of two
}

TEST(Wide, ADifferenceBorrowsFromLimbToLimb)
{
    std::array<std::uint32_t, 3> a = {0, 0, 5};
    mathematics::subtract(a, std::array<std::uint32_t, 3>{1, 0, 2});
    EXPECT_EQ(a, (std::array<std::uint32_t, 3>{0xffffffff, 0xffffffff, 2}));
    mathematics::subtract(a, std::array<std::uint32_t, 3>{0xffffffff, 0xffffffff, 2});
    EXPECT_TRUE(mathematics::isZero(a));
}

} // namespace
} // namespace vecmat::test
