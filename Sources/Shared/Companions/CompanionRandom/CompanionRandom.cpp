#include "CompanionRandom.h"

#include <cstdint>
#include <random>

namespace {

std::mt19937& generator()
{
    thread_local std::mt19937 twister;
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
    // 27 and 26 bits make the 53 of a double's significand; taken as one whole number below 2^53, the quotient is
    // exact.
    std::mt19937& twister = generator();
    const std::uint64_t high = twister() >> 5;
    const std::uint64_t low = twister() >> 6;
    return static_cast<double>((high << 26) | low) / 9007199254740992.0;
}

void GetSeedUpdate(int* seedOut)
{
    *seedOut = static_cast<int>(static_cast<std::uint32_t>(generator()()));
}
