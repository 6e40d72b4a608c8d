#include "CompanionRandom.h"

#include <cstdint>
#include <random>

namespace {

/// std::mt19937 with a state of 32-bit words, where the standard's alias uses the processor's fastest type: the same
/// series, from half the memory in less than half the time.
using Twister = std::mersenne_twister_engine<std::uint32_t, 32, 624, 397, 31, 0x9908b0df, 11, 0xffffffff, 7, 0x9d2c5680,
                                             15, 0xefc60000, 18, 1812433253>;

Twister& generator()
{
    thread_local Twister twister;
    return twister;
}

int newSeed()
{
    std::random_device device;
    return static_cast<int>(device());
}

} // namespace

void GetSeed(int* seed, int seedFlag)
{
    if (seedFlag != -1)
        *seed = newSeed();
    generator().seed(static_cast<std::uint32_t>(*seed));
}

double Random01(void)
{
    // 27 and 26 bits make up the 53 of a double's significand; the combined whole number is below 2^53, so the quotient
    // is exact.
    Twister& twister = generator();
    const std::uint64_t high = twister() >> 5;
    const std::uint64_t low = twister() >> 6;
    return static_cast<double>((high << 26) | low) / 9007199254740992.0;
}

void GetSeedUpdate(int* seedOut)
{
    *seedOut = static_cast<int>(static_cast<std::uint32_t>(generator()()));
}
