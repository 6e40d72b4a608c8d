// One series of random numbers, from opening to closing.
#pragma once

#include "../../base/detail/companions.h"

namespace vecmat {

/// Opens a series of the companion generator on construction and closes it on destruction, exactly once each, on every
/// path: even if no number was drawn, or a failed allocation throws. The library keeps no generator state of its own:
/// one series is linked to the next only by the three values, which are not interpreted here.
class SeedFrame
{
public:
    SeedFrame(int* seed, short seedFlag, int* seedOut) : seedOut_(seedOut) { GetSeed(seed, seedFlag); }
    SeedFrame(const SeedFrame&) = delete;
    SeedFrame& operator=(const SeedFrame&) = delete;
    ~SeedFrame() { GetSeedUpdate(seedOut_); }

    /// The next number of the series, at least 0 and below 1.
    // NOLINTNEXTLINE(readability-convert-member-functions-to-static): only an open series has a next number
    double draw() { return Random01(); }

private:
    int* seedOut_;
};

} // namespace vecmat
