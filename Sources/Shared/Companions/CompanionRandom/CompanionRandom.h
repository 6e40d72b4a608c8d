// CompanionRandom: the generator of uniform random numbers, and the seed that a caller carries from series to series.
//
// A series is one bracket of calls: GetSeed once, any number of Random01, GetSeedUpdate once. The generator is the
// 32-bit Mersenne twister of the standard library (Matsumoto and Nishimura, "Mersenne Twister: a 623-dimensionally
// equidistributed uniform pseudo-random number generator", ACM Transactions on Modeling and Computer Simulation 8,
// 1998), one state for each thread: series that run in different threads do not disturb each other. The same seed gives
// the same series on every platform.
//
// Every library with these three functions can take this one's place.
#pragma once

#if !defined(_WIN32)
#define COMPANION_RANDOM_API __attribute__((visibility("default")))
#elif defined(CompanionRandom_EXPORTS)
#define COMPANION_RANDOM_API __declspec(dllexport)
#else
#define COMPANION_RANDOM_API __declspec(dllimport)
#endif

extern "C" {

/// Starts a series in this thread. With `seedFlag` exactly -1 it starts from the value in `*seed`, any value, 0 and
/// negative ones included. With any other flag a new seed is drawn from the system's source of randomness, stored in
/// `*seed`, so that the series can be repeated, and the series starts from it. `seed` must not be null.
COMPANION_RANDOM_API void GetSeed(int* seed, int seedFlag);

/// The next number of the series: uniform over the multiples of 2^-53 from 0 to below 1, never 1.
/// In a thread that has started no series the numbers are those of the twister's default seed, 5489.
COMPANION_RANDOM_API double Random01(void);

/// Closes the series: stores in `*seedOut` the value with which a later series goes on (`GetSeed` with flag -1). It
/// depends on the series' seed and on how many numbers were drawn, none included, so that a chain of series is
/// reproducible as a whole. `seedOut` must not be null.
COMPANION_RANDOM_API void GetSeedUpdate(int* seedOut);
}
