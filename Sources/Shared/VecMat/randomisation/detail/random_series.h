// One series of random numbers, from its opening to its close.
#pragma once

#include "../../base/detail/companions.h"

namespace vecmat {

/// Opens a series of the companion generator when it is made and closes it when it goes, exactly once each, on every
/// path: also where no number was drawn, and where a failed allocation passes. The library keeps no generator state of
/// its own: what links one series to the next is in the three values alone, which nobody here interprets.
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
