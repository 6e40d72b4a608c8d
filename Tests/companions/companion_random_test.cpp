#include "CompanionRandom/CompanionRandom.h"

#include "support/bits.h"

#include <climits>
#include <random>
#include <set>
#include <thread>

namespace vecmat::test {
namespace {

using testing::Not;

constexpr int fromSeed = -1;

std::vector<double> series(int seed, std::size_t count)
{
    GetSeed(&seed, fromSeed);
    std::vector<double> numbers(count);
    for (double& number : numbers)
        number = Random01();
    return numbers;
}

TEST(GetSeed, StartsTheSameSeriesFromTheSameSeed)
{
    EXPECT_THAT(series(42, 50), SameBits(series(42, 50)));
    EXPECT_THAT(series(42, 50), Not(SameBits(series(43, 50))));
}

TEST(GetSeed, LeavesTheSeedItStartsFrom)
{
    for (int seed : {0, 1, -1, 12345, INT_MAX, INT_MIN}) {
        int passed = seed;
        GetSeed(&passed, fromSeed);
        EXPECT_EQ(passed, seed);
    }
}

TEST(GetSeed, TakesEverySeedForItself)
{
    std::set<double> firstNumbers;
    for (int seed : {0, 1, -1, INT_MAX, INT_MIN})
        firstNumbers.insert(series(seed, 1).front());
    EXPECT_EQ(firstNumbers.size(), 5u);
}

TEST(GetSeed, DrawsASeedForEveryOtherFlagAndStoresIt)
{
    for (int flag : {0, 1, 2, -2, 32767}) {
        std::set<int> seeds;
        for (int turn = 0; turn < 4; ++turn) {
            int seed = 42;
            GetSeed(&seed, flag);
            const double first = Random01();
            seeds.insert(seed);
            EXPECT_THAT(series(seed, 1), SameBits({first})) << "the stored seed repeats the series";
        }
        EXPECT_GT(seeds.size(), 1u) << "four seeds drawn with flag " << flag;
    }
}

// Bits 26 to 52 of a number come from one draw of the 32-bit twister, bits 0 to 25 from the next.
TEST(Random01, HasFiftyThreeBitsOfTheTwister)
{
    std::mt19937 twister(2024);
    for (double number : series(2024, 1000)) {
        const double high = static_cast<double>(twister() / 32);
        const double low = static_cast<double>(twister() / 64);
        EXPECT_THAT(number, SameBits((high * 67108864.0 + low) * 0x1p-53));
    }
}

// The value of the twister's 10000th draw is part of the C++ standard; it is the first of the pair of number 5000.
TEST(Random01, BeginsTheDefaultSeriesWhereNoneWasStarted)
{
    std::vector<double> numbers(5000);
    std::thread([&] {
        for (double& number : numbers)
            number = Random01();
    }).join();
    EXPECT_THAT(numbers, SameBits(series(5489, 5000)));
    const auto lowBits = static_cast<std::uint64_t>(numbers.back() * 0x1p53) & 0x3FFFFFF;
    EXPECT_EQ(lowBits, 4123659995u >> 6);
}

TEST(Random01, IsUniformFromZeroToBelowOne)
{
    constexpr int count = 200000;
    double sum = 0.0;
    int tenths[10] = {};
    for (double number : series(7, count)) {
        ASSERT_GE(number, 0.0);
        ASSERT_LT(number, 1.0);
        sum += number;
        ++tenths[static_cast<int>(number * 10.0)];
    }
    // Five standard deviations on either side.
    EXPECT_NEAR(sum / count, 0.5, 0.0033);
    for (int share : tenths)
        EXPECT_NEAR(share, count / 10, 671);
}

TEST(Random01, KeepsTheSeriesOfThreadsApart)
{
    const std::vector<double> expected = series(11, 3);
    int seed = 11;
    GetSeed(&seed, fromSeed);
    std::vector<double> numbers = {Random01()};
    std::thread([] { series(99, 10); }).join();
    numbers.push_back(Random01());
    numbers.push_back(Random01());
    EXPECT_THAT(numbers, SameBits(expected));
}

int seedAfter(int seed, std::size_t draws)
{
    series(seed, draws);
    int next = 0;
    GetSeedUpdate(&next);
    return next;
}

TEST(GetSeedUpdate, ContinuesReproducibly)
{
    for (std::size_t draws : {0u, 1u, 10u, 1000u}) {
        const int next = seedAfter(5, draws);
        EXPECT_EQ(next, seedAfter(5, draws));
        EXPECT_THAT(series(next, 10), Not(SameBits(series(5, 10))));
    }
}

TEST(GetSeedUpdate, DependsOnTheSeedAndOnTheNumberOfDraws)
{
    const std::set<int> seeds = {seedAfter(5, 0), seedAfter(5, 1), seedAfter(5, 2), seedAfter(6, 0), seedAfter(6, 1)};
    EXPECT_EQ(seeds.size(), 5u);
}

TEST(GetSeedUpdate, GivesAChainThatDoesNotReturn)
{
    std::set<int> seeds;
    int seed = 1;
    for (int link = 0; link < 1000; ++link)
        seeds.insert(seed = seedAfter(seed, 0));
    EXPECT_GT(seeds.size(), 990u);
}

} // namespace
} // namespace vecmat::test
