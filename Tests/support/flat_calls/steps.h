// Whole numbers in an order that depends on a seed alone: the same on every machine, compiler and word size.
#pragma once

#include <cstdint>
#include <string_view>

namespace vecmat::flat {

/// SplitMix64 (Steele, Lea, Flood 2014).
class Steps
{
public:
    explicit Steps(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next()
    {
        std::uint64_t z = (state_ += 0x9E3779B97F4A7C15u);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }
    /// From `low` to `high`, both included.
    int between(int low, int high)
    {
        const auto count = static_cast<std::uint64_t>(static_cast<std::int64_t>(high) - low + 1);
        return static_cast<int>(low + static_cast<std::int64_t>(next() % count));
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
    std::uint64_t state_;
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
