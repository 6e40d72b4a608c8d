// Whole numbers in an order that depends on a seed alone: the same on every machine, compiler and word size.
#pragma once

#include "support/flat_calls/bytes.h"

#include <cstdint>
#include <string_view>

namespace vecmat::flat {

/// SplitMix64 (Steele, Lea, Flood 2014).
class Steps
{
public:
    /// As long as there are bytes, the numbers are made of these.
    explicit Steps(std::uint64_t seed, Bytes* bytes = nullptr) : state_(seed), bytes_(bytes) {}

    std::uint64_t next()
    {
        if (hasBytes())
            return bytes_->take(sizeof(std::uint64_t));
        std::uint64_t z = (state_ += 0x9E3779B97F4A7C15u);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }
    /// From `low` to `high`, both included.
    int between(int low, int high)
    {
        const auto count = static_cast<std::uint64_t>(static_cast<std::int64_t>(high) - low + 1);
        return static_cast<int>(low + static_cast<std::int64_t>(below(count)));
    }
    /// From 0 to `count` - 1. Takes no more bytes than it needs.
    std::uint64_t below(std::uint64_t count)
    {
        if (hasBytes())
            return bytes_->take(count <= 0x100 ? 1 : count <= 0x10000 ? 2 : 4) % count;
        return next() % count;
    }
    /// True once in `times`.
    bool onceIn(int times) { return between(1, times) == 1; }

    /// From -1 to 1, with all 53 digits.
    double withAllDigits()
    {
        constexpr std::int64_t half = std::int64_t{1} << 53;
        return static_cast<double>(static_cast<std::int64_t>(next() >> 10) - half) / static_cast<double>(half);
    }

private:
    bool hasBytes() const { return bytes_ != nullptr && !bytes_->empty(); }

    std::uint64_t state_;
    Bytes* bytes_;
};

/// A seed for one part of something that has a seed of its own.
inline std::uint64_t seedFor(std::uint64_t seed, std::string_view part)
{
    std::uint64_t hash = 0xCBF29CE484222325u ^ seed;
    for (const char character : part)
        hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001B3u;
    return Steps(hash).next();
}

} // namespace vecmat::flat
