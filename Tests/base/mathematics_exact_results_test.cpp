// Powers that are doubles, or lie in the middle between two. Whole numbers tell what is right: their conversion to double
// rounds as the functions do.
#include "base/detail/mathematics/mathematics.h"
#include "support/bits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace vecmat::test {
namespace {

constexpr std::uint64_t most = std::numeric_limits<std::uint64_t>::max();

/// In the middle between two doubles?
bool isMiddle(std::uint64_t number)
{
    while (number != 0 && number % 2 == 0)
        number /= 2;
    return number >> 53 == 1;
}

/// Calls see(base, times, base^times) for all powers of a base that have 64 bits.
template <class See>
void forPowersOf(std::uint64_t base, See see)
{
    std::uint64_t power = base;
    for (int times = 1;; ++times) {
        see(static_cast<double>(base), times, power);
        if (power > most / base)
            return;
        power *= base;
    }
}

TEST(Pow, OfSmallWholeNumbers)
{
    int middles = 0;
    for (std::uint64_t base = 2; base <= 5000; ++base)
        forPowersOf(base, [&](double x, int times, std::uint64_t power) {
            const auto expected = static_cast<double>(power);
            middles += isMiddle(power) ? 1 : 0;
            ASSERT_THAT(pow(x, times), SameBitsAs(expected)) << x << " " << times;
            ASSERT_THAT(pow(-x, times), SameBitsAs(times % 2 != 0 ? -expected : expected)) << x << " " << times;
        });
    EXPECT_GT(middles, 20);
}

TEST(Pow, SquaresAndCubesInTheMiddle)
{
    int middles = 0;
    for (std::uint64_t base = 94906267; base < 94906267 + 40000; base += 2) { // above 2^26.5, odd
        ASSERT_THAT(pow(static_cast<double>(base), 2.0), SameBitsAs(static_cast<double>(base * base))) << base;
        middles += isMiddle(base * base) ? 1 : 0;
    }
    for (std::uint64_t base = 208065; base < 208065 + 40000; base += 2) { // above 2^(53/3), odd
        const auto expected = static_cast<double>(base * base * base);
        ASSERT_THAT(pow(static_cast<double>(base), 3.0), SameBitsAs(expected)) << base;
        ASSERT_THAT(cube(static_cast<double>(base)), SameBitsAs(expected)) << base;
        middles += isMiddle(base * base * base) ? 1 : 0;
    }
    EXPECT_EQ(middles, 40000);
}

// x = c^(2^j) 4^..., to the power n / 2^j.
TEST(Pow, OfFractionalExponentsWithAnExactRoot)
{
    for (int halvings = 1; halvings <= 5; ++halvings) {
        const int root = 1 << halvings;
        for (std::uint64_t base = 2; base <= 3000; ++base) {
            if (std::pow(static_cast<double>(base), root) >= 0x1p53)
                break;
            std::uint64_t x = 1;
            for (int i = 0; i < root; ++i)
                x *= base;
            forPowersOf(base, [&](double, int times, std::uint64_t power) {
                const double y = times / static_cast<double>(root);
                const double scaled = std::ldexp(static_cast<double>(x), 4 * root);
                ASSERT_THAT(pow(static_cast<double>(x), y), SameBitsAs(static_cast<double>(power))) << x << " " << y;
                ASSERT_THAT(pow(scaled, y), SameBitsAs(std::ldexp(static_cast<double>(power), 4 * times))) << x;
            });
        }
    }
}

TEST(Pow, OfPowersOfTwo)
{
    for (int e = -1074; e <= 1023; e += e < -1000 || e > 1000 ? 1 : 13)
        for (int n = -2200; n <= 2200; n += 7)
            for (const double part : {1.0, 0.5, 0.25, 0.125}) {
                const double exponent = e * n * part;
                if (e == 0 || exponent != std::floor(exponent) || std::fabs(exponent) > 1e6)
                    continue;
                ASSERT_THAT(pow(std::ldexp(1.0, e), n * part), SameBitsAs(std::ldexp(1.0, static_cast<int>(exponent))))
                    << e << " " << n * part;
            }
}

// (c 2^e)^n where results have few bits, or none: the middles there have fewer bits, too.
TEST(Pow, BelowTheNormalNumbers)
{
    int middles = 0;
    for (std::uint64_t base = 3; base <= 101; base += 2)
        forPowersOf(base, [&](double x, int times, std::uint64_t power) {
            if (power >> 53 != 0)
                return;
            for (int e = -1080 / times - 4; e <= -1000 / times; ++e) {
                // Scaled in one step from a whole number, the result is rounded once.
                const double expected = std::ldexp(static_cast<double>(power), e * times);
                middles += e * times == -1075 ? 1 : 0; // the power is odd
                ASSERT_THAT(pow(std::ldexp(x, e), times), SameBitsAs(expected)) << x << " " << e << " " << times;
            }
        });
    EXPECT_GT(middles, 10);
}

TEST(Log10, OfWholePowersOfTen)
{
    double power = 1.0;
    for (int n = 0; n <= 22; ++n, power *= 10.0)
        EXPECT_THAT(log10(power), SameBitsAs(static_cast<double>(n)));
}

TEST(SmallPowers, OfWholeNumbers)
{
    for (std::uint64_t base = 1; base < (1u << 16); base += 3)
        ASSERT_THAT(fourthPower(static_cast<double>(base)), SameBitsAs(static_cast<double>(base * base * base * base)));
    for (std::uint64_t base = 1; base < (1u << 21); base += 17)
        ASSERT_THAT(cube(-static_cast<double>(base)), SameBitsAs(-static_cast<double>(base * base * base)));
}

TEST(SmallPowers, AreThoseOfPow)
{
    double x = 1.1;
    for (int i = 0; i < 2000; ++i, x = -x * 1.37) {
        if (std::fabs(x) > 1e100)
            x *= 1e-200;
        ASSERT_THAT(cube(x), SameBitsAs(pow(x, 3.0))) << x;
        ASSERT_THAT(fourthPower(x), SameBitsAs(pow(x, 4.0))) << x;
    }
}

} // namespace
} // namespace vecmat::test
