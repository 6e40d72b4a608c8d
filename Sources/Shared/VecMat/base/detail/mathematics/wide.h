// Fixed-point numbers of many limbs, for the exact phase. Portable: 32-bit limbs and 64-bit products.
//
// "Units" are those of the last place. Where an error is told, it is that of the operation; errors of the operands come
// on top.
#pragma once

#include "bits.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace vecmat::mathematics {

/// A number from 0 to 2^32: the highest limb is the whole part, the lowest comes first.
template <int limbs>
using Wide = std::array<std::uint32_t, limbs>;

template <int limbs>
struct SignedWide
{
    bool negative = false;
    Wide<limbs> magnitude{};
};

/// The highest limbs of a longer number. Off by less than a unit.
template <int limbs, std::size_t given>
Wide<limbs> highestLimbs(const std::uint32_t (&number)[given])
{
    static_assert(limbs <= given);
    Wide<limbs> result;
    std::copy(number + given - limbs, number + given, result.begin());
    return result;
}

template <std::size_t limbs>
bool isZero(const std::array<std::uint32_t, limbs>& a)
{
    return std::all_of(a.begin(), a.end(), [](std::uint32_t limb) { return limb == 0; });
}

/// Is a less than b?
template <std::size_t limbs>
bool isLess(const std::array<std::uint32_t, limbs>& a, const std::array<std::uint32_t, limbs>& b)
{
    return std::lexicographical_compare(a.rbegin(), a.rend(), b.rbegin(), b.rend());
}

template <std::size_t limbs>
void add(std::array<std::uint32_t, limbs>& a, const std::array<std::uint32_t, limbs>& b)
{
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i < limbs; ++i) {
        carry += std::uint64_t{a[i]} + b[i];
        a[i] = static_cast<std::uint32_t>(carry);
        carry >>= 32;
    }
}

/// a - b, for b up to a.
template <std::size_t limbs>
void subtract(std::array<std::uint32_t, limbs>& a, const std::array<std::uint32_t, limbs>& b)
{
    std::uint64_t borrow = 0;
    for (std::size_t i = 0; i < limbs; ++i) {
        const std::uint64_t difference = std::uint64_t{a[i]} - b[i] - borrow;
        a[i] = static_cast<std::uint32_t>(difference);
        borrow = difference >> 63;
    }
}

template <int limbs>
void add(SignedWide<limbs>& a, const SignedWide<limbs>& b)
{
    if (a.negative == b.negative) {
        add(a.magnitude, b.magnitude);
    } else if (!isLess(a.magnitude, b.magnitude)) {
        subtract(a.magnitude, b.magnitude);
    } else {
        Wide<limbs> difference = b.magnitude;
        subtract(difference, a.magnitude);
        a = {b.negative, difference};
    }
}

/// a 2^bits, for negative `bits` cut off: then off by less than a unit.
template <std::size_t limbs>
void shift(std::array<std::uint32_t, limbs>& a, int bits)
{
    const int whole = bits >> 5;
    const int rest = bits & 31;
    const auto limbOf = [&a](int i) {
        return i >= 0 && i < static_cast<int>(limbs) ? std::uint64_t{a[static_cast<std::size_t>(i)]} : 0;
    };
    std::array<std::uint32_t, limbs> result;
    for (int i = 0; i < static_cast<int>(limbs); ++i) {
        const std::uint64_t pair = limbOf(i - whole) << 32 | limbOf(i - whole - 1);
        result[static_cast<std::size_t>(i)] = static_cast<std::uint32_t>(pair << rest >> 32);
    }
    a = result;
}

/// The exact product.
template <std::size_t limbsA, std::size_t limbsB>
std::array<std::uint32_t, limbsA + limbsB> fullProduct(const std::array<std::uint32_t, limbsA>& a,
                                                       const std::array<std::uint32_t, limbsB>& b)
{
    std::array<std::uint32_t, limbsA + limbsB> result{};
    for (std::size_t i = 0; i < limbsA; ++i) {
        std::uint64_t carry = 0;
        for (std::size_t j = 0; j < limbsB; ++j) {
            carry += std::uint64_t{a[i]} * b[j] + result[i + j];
            result[i + j] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        result[i + limbsB] = static_cast<std::uint32_t>(carry);
    }
    return result;
}

/// a b, for a product below 2^32. The places below the last but one are left out: off by less than 2 units.
template <std::size_t limbs>
std::array<std::uint32_t, limbs> product(const std::array<std::uint32_t, limbs>& a,
                                         const std::array<std::uint32_t, limbs>& b)
{
    static_assert(limbs < 1000);
    constexpr std::size_t leftOut = limbs - 3;
    std::array<std::uint32_t, limbs + 3> columns{};
    for (std::size_t i = 0; i < limbs; ++i) {
        std::uint64_t carry = 0;
        const std::size_t start = i < leftOut ? leftOut - i : 0;
        for (std::size_t j = start; j < limbs; ++j) {
            carry += std::uint64_t{a[i]} * b[j] + columns[i + j - leftOut];
            columns[i + j - leftOut] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        columns[i + limbs - leftOut] = static_cast<std::uint32_t>(carry);
    }
    std::array<std::uint32_t, limbs> result;
    std::copy(columns.begin() + 2, columns.begin() + 2 + limbs, result.begin());
    return result;
}

/// a times a small number. Exact, for a product below 2^32.
template <std::size_t limbs>
void multiply(std::array<std::uint32_t, limbs>& a, std::uint32_t factor)
{
    std::uint64_t carry = 0;
    for (std::uint32_t& limb : a) {
        carry += std::uint64_t{limb} * factor;
        limb = static_cast<std::uint32_t>(carry);
        carry >>= 32;
    }
}

/// a / divisor. Off by less than a unit.
template <std::size_t limbs>
void divide(std::array<std::uint32_t, limbs>& a, std::uint32_t divisor)
{
    std::uint64_t rest = 0;
    for (std::size_t i = limbs; i-- > 0;) {
        rest = rest << 32 | a[i];
        a[i] = static_cast<std::uint32_t>(rest / divisor);
        rest %= divisor;
    }
}

/// A finite number below 2^32. Exact, if its last bit is not below the unit.
template <int limbs>
SignedWide<limbs> wideOf(double x)
{
    SignedWide<limbs> result{(bitsOf(x) & signBit) != 0, {}};
    const WholeAndExponent parts = partsOf(x);
    result.magnitude[0] = static_cast<std::uint32_t>(parts.mantissa);
    result.magnitude[1] = static_cast<std::uint32_t>(parts.mantissa >> 32);
    shift(result.magnitude, parts.exponent + 32 * (limbs - 1));
    return result;
}

} // namespace vecmat::mathematics
