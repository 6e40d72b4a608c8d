// Distances of many points from one: the kernel under the search for neighbours.
#pragma once

#include "instruction_set.h"

#include <cstddef>

namespace vecmat {

/// Points are stored in contiguous panels: for each column the numbers of `DistanceKernels::width` points next to each
/// other.
struct DistanceKernels
{
    static constexpr int width = 32;

    /// The contribution of one column to the distance of a point x from the target.
    struct Term
    {
        std::ptrdiff_t column; ///< position of the column in a panel
        double target;
        double factor;
    };

    /// For each point of `count` panels: from 0.0, term by term, distance = distance + ((d d) factor), d = target - x.
    void (*distances)(std::ptrdiff_t count, const double* panels, std::ptrdiff_t panelSize, const Term* terms,
                      std::ptrdiff_t termCount, double* distances);
};

namespace baseline {
extern const DistanceKernels distanceKernels;
}
namespace avx2 {
extern const DistanceKernels distanceKernels;
}
namespace avx512 {
extern const DistanceKernels distanceKernels;
}

inline const DistanceKernels& distanceKernels()
{
    return forThisMachine<baseline::distanceKernels, avx2::distanceKernels, avx512::distanceKernels>();
}

} // namespace vecmat
