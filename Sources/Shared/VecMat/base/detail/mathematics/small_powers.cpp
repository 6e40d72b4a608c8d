#include "bits.h"
#include "mathematics.h"
#include "rounding.h"
#include "wide.h"

#include <array>
#include <cstdint>

namespace vecmat {

using namespace mathematics;

namespace {

bool isFiniteAndNotZero(double x)
{
    return (bitsOf(x) & ~signBit) - 1 < infinityBits - 1;
}

std::array<std::uint32_t, 2> limbsOf(std::uint64_t number)
{
    return {static_cast<std::uint32_t>(number), static_cast<std::uint32_t>(number >> 32)};
}

} // namespace

double cube(double x)
{
    if (!isFiniteAndNotZero(x))
        return x * x * x;
    const WholeAndExponent parts = partsOf(x);
    const auto whole = limbsOf(parts.mantissa);
    return withSign(x < 0.0, nearestDouble(fullProduct(fullProduct(whole, whole), whole), 3 * parts.exponent));
}

double fourthPower(double x)
{
    if (!isFiniteAndNotZero(x))
        return x * x * (x * x);
    const WholeAndExponent parts = partsOf(x);
    const auto whole = limbsOf(parts.mantissa);
    const auto square = fullProduct(whole, whole);
    return nearestDouble(fullProduct(square, square), 4 * parts.exponent);
}

} // namespace vecmat
