// The elementary functions have the same bits in every build. mathematics_against_mpfr finds each of these results right,
// with the same count and seed; where there is no MPFR, their digests tell that they are the same.
#include "base/mathematics_arguments.h"

#include <gtest/gtest.h>

namespace vecmat::test {
namespace {

constexpr int count = 100000;
constexpr std::uint64_t seed = 1;

/// FNV-1a over the bits of the results; every NaN counts alike.
template <class Draw>
std::uint64_t digest(Draw draw)
{
    MathematicsArguments arguments(seed);
    std::uint64_t hash = 0xcbf29ce484222325;
    for (int i = 0; i < count; ++i) {
        const double result = draw(arguments);
        std::uint64_t bits = std::isnan(result) ? 0x7ff8000000000000 : std::bit_cast<std::uint64_t>(result);
        for (int byte = 0; byte < 8; ++byte, bits >>= 8)
            hash = (hash ^ (bits & 0xff)) * 0x100000001b3;
    }
    return hash;
}

TEST(MathematicsDigests, AreThoseOfTheResultsThatWereFoundRight)
{
    EXPECT_EQ(digest([](auto& arguments) { return exp(arguments.forExp()); }), 0x20a71b0bccb8cba4);
    EXPECT_EQ(digest([](auto& arguments) { return log(arguments.forLog()); }), 0xfc38efd2ae6e409e);
    EXPECT_EQ(digest([](auto& arguments) { return log10(arguments.forLog10()); }), 0xb18585c8f862293c);
    EXPECT_EQ(digest([](auto& arguments) {
                  const auto [x, y] = arguments.forPow();
                  return pow(x, y);
              }),
              0xea46a8263810f130);
    EXPECT_EQ(digest([](auto& arguments) { return cube(arguments.forPow().x); }), 0xb2610684891c0794);
    EXPECT_EQ(digest([](auto& arguments) { return fourthPower(arguments.forPow().x); }), 0xaee75762d149c36f);
}

} // namespace
} // namespace vecmat::test
