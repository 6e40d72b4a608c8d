#include "distance_kernels.h"

#include "lanes.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

// As many points as keep the sums in registers, and enough to work on one while another waits.
constexpr int vectors = 4;
constexpr int points = vectors * laneCount;
static_assert(DistanceKernels::width % points == 0);

void distances(std::ptrdiff_t count, const double* panels, std::ptrdiff_t panelSize, const DistanceKernels::Term* terms,
               std::ptrdiff_t termCount, double* to)
{
    for (std::ptrdiff_t panel = 0; panel < count; ++panel, panels += panelSize)
        for (int first = 0; first < DistanceKernels::width; first += points, to += points) {
            Lanes sums[vectors] = {};
            for (std::ptrdiff_t k = 0; k < termCount; ++k) {
                const double* const x = panels + terms[k].column + first;
                const Lanes target = inEachLane(terms[k].target);
                const Lanes factor = inEachLane(terms[k].factor);
#pragma GCC unroll 4
                for (int v = 0; v < vectors; ++v) {
                    const Lanes d = target - load(x + v * laneCount);
                    sums[v] = sums[v] + d * d * factor;
                }
            }
#pragma GCC unroll 4
            for (int v = 0; v < vectors; ++v)
                store(to + v * laneCount, sums[v]);
        }
}

} // namespace

const DistanceKernels distanceKernels = {distances};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
