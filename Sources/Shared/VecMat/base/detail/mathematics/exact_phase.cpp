#include "exact_phase.h"

#include "bits.h"
#include "quick_logarithm.h"
#include "rounding.h"
#include "wide.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace vecmat::mathematics {

namespace {

constexpr int fewLimbs = 10;
constexpr int manyLimbs = wideLimbs;

/// A positive number, off by less than a unit of the limb `errorLimb`.
template <int limbs>
struct Approximation
{
    Wide<limbs> number;
    int exponent; // of the number's unit
    int errorLimb;

    double rounded() const { return nearestDouble(number, exponent); }

    std::optional<double> roundedIfDecided() const
    {
        Wide<limbs> error{};
        error[static_cast<std::size_t>(errorLimb)] = 1;
        Wide<limbs> lower = number;
        Wide<limbs> upper = number;
        if (isLess(number, error))
            return std::nullopt;
        subtract(lower, error);
        add(upper, error);
        const double result = nearestDouble(lower, exponent);
        if (result != nearestDouble(upper, exponent))
            return std::nullopt;
        return result;
    }
};

/// Rounds the approximation by few limbs, or the one by many.
template <class Approximate>
double decided(Places places, Approximate approximate)
{
    if (places == Places::few)
        if (const auto result = approximate.template operator()<fewLimbs>().roundedIfDecided())
            return *result;
    return approximate.template operator()<manyLimbs>().rounded();
}

// ---- exponential ----------------------------------------------------------------------------------------------------

/// 2^-halvings x below 2^-16.5: as many terms of exp as count.
constexpr int halvings = 16;
template <int limbs>
constexpr std::uint32_t exponentialTerms()
{
    std::uint32_t terms = 0;
    int bits = 0; // of x^terms / terms!, rounded down
    for (int logarithm = 0; bits <= 32 * limbs; bits += 16 + logarithm) {
        ++terms;
        while ((2u << logarithm) <= terms)
            ++logarithm;
    }
    return terms;
}

/// mantissa 2^exponent, with the mantissa from 1 to 2 and off by less than 2^22 units.
template <int limbs>
struct Exponential
{
    Wide<limbs> mantissa;
    int exponent;
};

/// exp(v) = 2^k exp(r), r from 0 to ln 2; exp(r) by 16 halvings of r, its series, and as many squares (Brent, R. P. 1976,
/// Fast multiple-precision evaluation of elementary functions, J. ACM 23, 242-251).
///
/// In units: k ln 2 is off by |k| < 2^11, and so is r; its halved value t by 2. A step of the series multiplies the error
/// so far by t and adds 3: the sum is off by less than 6. A square doubles the error relative to the number, and adds 2: as
/// the last is below 2, the errors of the sum and of the squares come to less than (6 + 2) 2^17, with the units of r
/// 2^20 + 2^12.
template <int limbs>
Exponential<limbs> exponential(const SignedWide<limbs>& v)
{
    const Wide<limbs> ln2 = highestLimbs<limbs>(wideLn2);
    // The whole part and 32 places give k, but for 1.
    const double v32 = v.magnitude[limbs - 1] + v.magnitude[limbs - 2] * 0x1p-32;
    int k = static_cast<int>(std::floor(withSign(v.negative, v32) * (stepsPerUnit / 256)));
    SignedWide<limbs> r{k > 0, ln2};
    multiply(r.magnitude, static_cast<std::uint32_t>(k > 0 ? k : -k));
    add(r, v);
    while (r.negative && !isZero(r.magnitude)) {
        add(r, {false, ln2});
        --k;
    }
    while (!isLess(r.magnitude, ln2)) {
        subtract(r.magnitude, ln2);
        ++k;
    }

    Wide<limbs> t = r.magnitude;
    shift(t, -halvings);
    Wide<limbs> one{};
    one[limbs - 1] = 1;
    Wide<limbs> sum = one;
    for (std::uint32_t n = exponentialTerms<limbs>(); n > 0; --n) {
        sum = product(sum, t);
        divide(sum, n);
        add(sum, one);
    }
    for (int i = 0; i < halvings; ++i)
        sum = product(sum, sum);
    return {sum, k};
}

template <int limbs>
Approximation<limbs> approximated(const Exponential<limbs>& value, int errorLimb)
{
    return {value.mantissa, value.exponent - 32 * (limbs - 1), errorLimb};
}

// ---- logarithm ------------------------------------------------------------------------------------------------------

/// log x, off by less than 2^24 units: a double y near log m, for x = 2^E m, and the logarithm of m exp(-y), which is
/// near 1, by its series.
///
/// In units: the exponential is off by 2^22, with m below 2^23; ten to forty terms of the series add 2 each, and
/// E ln 2 less than 2^11.
template <int limbs>
SignedWide<limbs> logarithm(double x)
{
    WholeAndExponent parts = partsOf(x);
    const int leading = std::countl_zero(parts.mantissa) - 11;
    parts.mantissa <<= leading;
    parts.exponent += 52 - leading;
    // As in the quick phase, m is from 11/16 to 11/8: the result has no smaller magnitude than E ln 2 asks for.
    const bool upper = parts.mantissa >= 0x0016000000000000;
    const int E = parts.exponent + (upper ? 1 : 0);
    const double m = doubleOf((parts.mantissa & fractionBits) | (upper ? 0x3fe0000000000000 : 0x3ff0000000000000));

    const double y = quickLogarithm(m).high;
    SignedWide<limbs> sum = wideOf<limbs>(y);
    const Exponential<limbs> inverse = exponential(SignedWide<limbs>{!sum.negative, sum.magnitude});
    SignedWide<limbs> rest{false, product(inverse.mantissa, wideOf<limbs>(m).magnitude)};
    shift(rest.magnitude, inverse.exponent);
    SignedWide<limbs> minusOne{true, {}};
    minusOne.magnitude[limbs - 1] = 1;
    add(rest, minusOne);

    SignedWide<limbs> power = rest;
    for (std::uint32_t n = 1; !isZero(power.magnitude); ++n) {
        SignedWide<limbs> term = power;
        divide(term.magnitude, n);
        add(sum, term);
        // The next power of -rest, times -1: the signs alternate.
        power = {power.negative == rest.negative, product(power.magnitude, rest.magnitude)};
    }

    SignedWide<limbs> twos{E < 0, highestLimbs<limbs>(wideLn2)};
    multiply(twos.magnitude, static_cast<std::uint32_t>(E < 0 ? -E : E));
    add(sum, twos);
    return sum;
}

// ---- power ----------------------------------------------------------------------------------------------------------

/// y log x, off by less than 2^93 units: y's 53 bits and 2^12 at most multiply the logarithm's error.
template <int limbs>
SignedWide<limbs> logarithmOfPower(double x, double y)
{
    const SignedWide<limbs> log = logarithm<limbs>(x);
    const WholeAndExponent parts = partsOf(y);
    const std::array<std::uint32_t, 2> factor = {static_cast<std::uint32_t>(parts.mantissa),
                                                 static_cast<std::uint32_t>(parts.mantissa >> 32)};
    auto exact = fullProduct(log.magnitude, factor);
    shift(exact, parts.exponent);
    SignedWide<limbs> result{log.negative != (y < 0.0), {}};
    std::copy(exact.begin(), exact.begin() + limbs, result.magnitude.begin());
    return result;
}

/// The power where it is a whole number of up to 54 bits times a power of two: the only ones that are doubles or lie in
/// the middle between two, also where doubles have fewer bits (Lauter, C. and Lefevre, V. 2009, An efficient rounding
/// boundary test for pow(x, y) in double precision, IEEE Trans. Computers 58, 197-207).
///
/// x = c 2^e and y = n 2^f, c and n odd. A power of two stays one if y e is whole. Otherwise y must be positive, and
/// where f is negative, c a square and e even -f times, before both are raised to n: 3^34 has 54 bits.
std::optional<double> powerInFewBits(double x, double y)
{
    WholeAndExponent c = partsOf(x);
    const int evenX = std::countr_zero(c.mantissa);
    c.mantissa >>= evenX;
    c.exponent += evenX;
    WholeAndExponent n = partsOf(y);
    const int evenY = std::countr_zero(n.mantissa);
    n.mantissa >>= evenY;
    n.exponent += evenY;
    if (c.mantissa == 1) {
        if (n.exponent < 0 && (n.exponent < -10 || c.exponent % (1 << -n.exponent) != 0))
            return std::nullopt;
        const int magnitude = static_cast<int>(n.mantissa) *
                              (n.exponent < 0 ? c.exponent / (1 << -n.exponent) : c.exponent * (1 << n.exponent));
        return nearestDouble(std::uint64_t{1} << 63, (y < 0.0 ? -magnitude : magnitude) - 63, false);
    }
    if (y < 0.0 || y > 34.0)
        return std::nullopt;
    for (; n.exponent < 0; ++n.exponent) {
        const auto root = static_cast<std::uint64_t>(std::sqrt(static_cast<double>(c.mantissa)));
        if (root * root != c.mantissa || c.exponent % 2 != 0)
            return std::nullopt;
        c = {root, c.exponent / 2};
    }
    const int times = static_cast<int>(n.mantissa << n.exponent);
    constexpr std::uint64_t limit = std::uint64_t{1} << 54;
    std::uint64_t whole = 1;
    for (int i = 0; i < times; ++i) {
        if (c.mantissa > limit / whole)
            return std::nullopt;
        whole *= c.mantissa;
    }
    const int leading = std::countl_zero(whole);
    return nearestDouble(whole << leading, c.exponent * times - leading, false);
}

} // namespace

double exactExp(double x, Places places)
{
    return decided(places, [x]<int limbs>() { return approximated(exponential(wideOf<limbs>(x)), 1); });
}

double exactLog(double x, Places places)
{
    const double magnitude = decided(places, [x]<int limbs>() {
        return Approximation<limbs>{logarithm<limbs>(x).magnitude, -32 * (limbs - 1), 1};
    });
    return withSign(x < 1.0, magnitude);
}

double exactLog10(double x, Places places)
{
    const double magnitude = decided(places, [x]<int limbs>() {
        return Approximation<limbs>{product(logarithm<limbs>(x).magnitude, highestLimbs<limbs>(wideInverseLn10)),
                                    -32 * (limbs - 1), 1};
    });
    return withSign(x < 1.0, magnitude);
}

double exactPow(double x, double y, Places places)
{
    if (const auto result = powerInFewBits(x, y))
        return *result;
    return decided(places, [x, y]<int limbs>() { return approximated(exponential(logarithmOfPower<limbs>(x, y)), 3); });
}

} // namespace vecmat::mathematics
