// Arguments at which a correct rounding of exp, log, log10 and pow is put to the test: drawn from all exponents, near the
// borders of the tables, near 1, overflow and underflow, and, for pow, where results are exact, lie in the middle
// between two doubles, or very near to it. The same seed gives the same arguments in every build.
#pragma once

#include "base/detail/mathematics/mathematics.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace vecmat::test {

class MathematicsArguments
{
public:
    explicit MathematicsArguments(std::uint64_t seed) : state_(seed) {}

    double forExp()
    {
        switch (next() % 8) {
        case 0:
            return uniform(-746.0, 710.5);
        case 1: // near 0: the result is near 1
            return signedByChance(power2(-uniform(0.0, 60.0)));
        case 2: // from the least magnitude to beyond the greatest that matters
            return signedByChance(withExponent(whole(-1074, 10)));
        case 3: // between two steps of the table, or at one
            return nearby(whole(-275000, 262000) * (0.5 * ln2 / 256.0));
        case 4: // results below the normal numbers
            return uniform(-745.2, -708.3);
        case 5: // the ends of the range
            return chance() ? nearby(709.782712893384) : nearby(chance() ? -745.1332191019412 : -708.3964185322641);
        default:
            return uniform(-4.0, 4.0);
        }
    }

    double forLog()
    {
        switch (next() % 8) {
        case 0:
        case 1:
            return withExponent(whole(-1022, 1023));
        case 2:
            return withExponent(whole(-1074, -1023));
        case 3:
            return 1.0 + signedByChance(power2(-uniform(1.0, 53.0)));
        case 4: // the borders of the table
            return nearby(scaledWhole(352, 704, -39, 21));
        case 5:
            return nearby(std::ldexp(1.0, whole(-1073, 1023)));
        case 6:
            return static_cast<double>(whole(1, 1000000));
        default:
            return uniform(0.0, 10.0);
        }
    }

    double forLog10()
    {
        if (next() % 16 == 0)
            return nearby(pow(10.0, whole(-307, 308)));
        return forLog();
    }

    struct PowArguments
    {
        double x;
        double y;
    };

    PowArguments forPow()
    {
        switch (next() % 12) {
        case 0: // results from the least to the greatest
            return overTheRange(withExponent(whole(-1022, 1023)));
        case 1:
            return overTheRange(withExponent(whole(-1074, -1023)));
        case 2:
            return overTheRange(1.0 + signedByChance(power2(-uniform(1.0, 52.0))));
        case 3: // any bits at all
            return {std::bit_cast<double>(next()), std::bit_cast<double>(next())};
        case 4: { // results below the normal numbers
            const double x = withExponent(whole(-40, 40));
            return {x, uniform(-1076.0, -1021.0) * ln2 / log(x)};
        }
        case 5: // many digits that are 0: exact results, and middles
            return {scaledWhole(1, 1 << whole(1, 28), -40, 40), small()};
        case 6: { // squares, fourth powers, ... with a root asked for
            const int times = whole(1, 5);
            double x = static_cast<double>(whole(1, 1 << (52 >> times < 30 ? 52 >> times : 30)));
            for (int i = 0; i < times; ++i)
                x *= x;
            return {std::ldexp(x, 32 * whole(-8, 8)), scaledWhole(-40, 40, -5, 0)};
        }
        case 7: { // near a middle next to 1, by 2^-105 or so
            const double x = withExponent(whole(-40, 40));
            const double places = std::floor(power2(uniform(0.0, 40.0)));
            return {x, signedByChance((2.0 * places + 1.0) * 0x1p-53) / log(x)};
        }
        case 8: { // likewise, with x next to 1 and a simple exponent
            const double x = 1.0 + signedByChance(std::floor(power2(uniform(0.0, 26.0))) * 0x1p-53);
            return {x, small()};
        }
        case 9:
            return {-static_cast<double>(whole(1, 100000)), scaledWhole(-60, 60, -1, 0)};
        case 10: // powers of two
            return {std::ldexp(1.0, whole(-1074, 1023)), scaledWhole(-2000, 2000, -10, 0)};
        default:
            return {uniform(0.0, 10.0), uniform(-10.0, 10.0)};
        }
    }

private:
    static constexpr double ln2 = 0.6931471805599453;

    /// SplitMix64 (Steele, G. L., Lea, D. and Flood, C. H. 2014, Fast splittable pseudorandom number generators, Proc.
    /// OOPSLA '14, 453-472).
    std::uint64_t next()
    {
        std::uint64_t z = state_ += 0x9e3779b97f4a7c15;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
        z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
        return z ^ (z >> 31);
    }

    bool chance() { return next() >> 63 != 0; }
    double signedByChance(double x) { return chance() ? -x : x; }

    double uniform(double low, double high)
    {
        return low + (high - low) * (static_cast<double>(next() >> 11) * 0x1p-53);
    }

    int whole(int low, int high) { return low + static_cast<int>(next() % static_cast<std::uint64_t>(high - low + 1)); }

    /// A whole number times a power of two. One after the other: the order in which a call's arguments are drawn would be
    /// the compiler's.
    double scaledWhole(int low, int high, int leastExponent, int greatestExponent)
    {
        const double number = whole(low, high);
        return std::ldexp(number, whole(leastExponent, greatestExponent));
    }

    static double power2(double y) { return pow(2.0, y); }

    /// A random significand with the exponent; of the subnormal ones as many digits as there are.
    double withExponent(int exponent)
    {
        return std::ldexp(1.0 + static_cast<double>(next() >> 12) * 0x1p-52, exponent);
    }

    /// Up to four places beside a number.
    double nearby(double x)
    {
        for (int places = whole(-4, 4); places != 0; places += places < 0 ? 1 : -1)
            x = std::nextafter(x, places < 0 ? -infinity : infinity);
        return x;
    }

    PowArguments overTheRange(double x) { return {x, uniform(-1080.0, 1030.0) * ln2 / log(x)}; }

    double small() { return scaledWhole(-70, 70, -4, 0); }

    static constexpr double infinity = std::numeric_limits<double>::infinity();

    std::uint64_t state_;
};

} // namespace vecmat::test
