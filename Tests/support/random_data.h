// Random inputs from a fixed seed.
#pragma once

#include "support/constants.h"

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <random>
#include <vector>

namespace vecmat::test {

/// Draws inputs for a test; the same seed gives the same inputs on every platform. `SCOPED_TRACE(data)` prints the seed
/// with each failure. Tables are vectors of rows*cols cells.
class RandomData
{
public:
    explicit RandomData(std::uint64_t seed) : seed_(seed), generator_(seed) {}

    std::uint64_t seed() const { return seed_; }

    /// One number: uniform from `low` to below `high`; bell-shaped with mean 0 and deviation 1, between -6 and 6; a
    /// whole number from `low` to `high`, both included; true with the probability `share`.
    double uniform(double low = 0.0, double high = 1.0);
    double normal();
    int integer(int low, int high);
    bool chance(double share) { return uniform() < share; }

    std::vector<double> uniforms(std::size_t count, double low = 0.0, double high = 1.0);
    std::vector<double> normals(std::size_t count);
    /// Numbers of either sign whose sizes differ, so that a sum of a few tells the order of its terms.
    std::vector<double> ofManySizes(std::size_t count);
    /// Small whole numbers, as doubles, so that ties abound.
    std::vector<double> wholes(std::size_t count, int low, int high);
    std::vector<int> integers(std::size_t count, int low, int high);
    /// Weights from 0.1 to 3, a share of them 0.0.
    std::vector<double> weights(std::size_t count, double zeroShare = 0.0);
    /// An exclusion mask of -1 and 0; `share` of the entries exclude.
    std::vector<short> mask(std::size_t count, double share);

    /// The same cells, a share of them replaced by the missing value, or by any of the values that a comparison or a
    /// sum may take for another: zeros of both signs, NaN, infinities, the missing value and its neighbours, its twin,
    /// -1.0, numbers at the ends of the range.
    std::vector<double> withMissing(std::vector<double> cells, double share);
    std::vector<double> withSpecials(std::vector<double> cells, double share);

    /// What stood in a result array before the call: whole numbers that no computation arrives at by chance.
    std::vector<double> leftovers(std::size_t count);
    std::vector<int> intLeftovers(std::size_t count);
    std::vector<short> shortLeftovers(std::size_t count);

private:
    template <class T, class Draw>
    static std::vector<T> drawn(std::size_t count, Draw draw);

    std::uint64_t seed_;
    std::mt19937_64 generator_;
};

std::ostream& operator<<(std::ostream& stream, const RandomData& data);

} // namespace vecmat::test
