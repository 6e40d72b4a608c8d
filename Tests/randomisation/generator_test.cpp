// Permutations with the repository's own generator: reproducible from a seed, and linked from call to call.
#include "randomisation/permutations.h"

#include "support/bits.h"
#include "support/tables.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace vecmat::test {
namespace {

constexpr short startFromSeed = -1;

std::vector<int> dealt(int n, int& seed, short seedFlag, int& seedOut)
{
    auto out = intColumn(std::vector<int>(static_cast<std::size_t>(n), 0));
    Random1toN(n, out, seed, seedFlag, seedOut);
    return cellsOf(out);
}

TEST(Generator, SameSeedGivesTheSamePermutation)
{
    int seed = 42;
    int next = 0;
    const std::vector<int> first = dealt(200, seed, startFromSeed, next);
    int nextAgain = 0;
    EXPECT_EQ(dealt(200, seed, startFromSeed, nextAgain), first);
    EXPECT_EQ(next, nextAgain);
    EXPECT_NE(dealt(200, next, startFromSeed, nextAgain), first); // going on is another series

    std::vector<int> sorted = first;
    std::sort(sorted.begin(), sorted.end());
    std::vector<int> expected(200);
    std::iota(expected.begin(), expected.end(), 1);
    EXPECT_EQ(sorted, expected);
}

TEST(Generator, DrawnSeedRepeatsTheSeries)
{
    int seed = 42;
    int next = 0;
    const std::vector<int> first = dealt(200, seed, 0, next); // a new seed, stored in `seed`
    EXPECT_EQ(dealt(200, seed, startFromSeed, next), first);
}

TEST(Generator, EveryFormDealsTheSame)
{
    int seed = 7;
    int next = 0;
    const std::vector<int> numbers = dealt(50, seed, startFromSeed, next);
    std::vector<double> doubles(50);
    std::iota(doubles.begin(), doubles.end(), 1.0);
    Cpp_V_Shuffle(doubles.data(), 50, &seed, startFromSeed, &next);
    EXPECT_EQ(std::vector<int>(doubles.begin(), doubles.end()), numbers);

    // The subset marked is that of the first ones dealt.
    std::vector<double> expected(50, 0.0);
    for (std::size_t i = 0; i < 20; ++i)
        expected[static_cast<std::size_t>(numbers[i]) - 1] = 1.0;
    std::vector<double> marks(50);
    VB_GenerateRandomIndicator(marks.data(), 50, 20, &seed, startFromSeed, &next);
    EXPECT_THAT(marks, SameBits(expected));
}

} // namespace
} // namespace vecmat::test
