#include "substitution_kernels.h"

#include "lanes.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

// Enough sums side by side to fill the time of one addition, and no more: strips of known solutions as wide as this
// should stay in the nearest cache.
#if defined(__AVX512F__)
constexpr int vectors = 3;
#else
constexpr int vectors = 8;
#endif
constexpr int width = vectors * laneCount;
static_assert(width <= SubstitutionKernels::mostResults);

struct Plus
{
    Lanes operator()(Lanes sum, Lanes product) const { return sum + product; }
};

struct Minus
{
    Lanes operator()(Lanes sum, Lanes product) const { return sum - product; }
};

template <class Join>
void accumulate(int terms, Sequence factors, Sequence known, double* row)
{
    Lanes sums[vectors];
    for (int v = 0; v < vectors; ++v)
        sums[v] = load(row + v * laneCount);
    for (int k = 0; k < terms; ++k) {
        const Lanes factor = inEachLane(*factors.first);
#pragma GCC unroll 8
        for (int v = 0; v < vectors; ++v)
            sums[v] = Join()(sums[v], factor * load(known.first + v * laneCount));
        factors.first += factors.step;
        known.first += known.step;
    }
    for (int v = 0; v < vectors; ++v)
        store(row + v * laneCount, sums[v]);
}

void divide(double divisor, double* row)
{
    for (int c = 0; c < width; c += laneCount)
        store(row + c, load(row + c) / inEachLane(divisor));
}

} // namespace

const SubstitutionKernels substitutionKernels = {width, accumulate<Plus>, accumulate<Minus>, divide};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
