// The caller's seeds in a call that may fail after it has drawn.
#pragma once

namespace vecmat {

/// Calls draw(seed, seedOut). The companion gets the caller's own variables, which get back what they held if the call
/// fails. What it has drawn stays drawn: the series is the companion's.
template <class Draw>
void withSeeds(int* seed, int* seedOut, Draw draw)
{
    const int start = *seed;
    const int next = *seedOut;
    try {
        draw(*seed, *seedOut);
    } catch (...) {
        *seed = start;
        *seedOut = next;
        throw;
    }
}

} // namespace vecmat
