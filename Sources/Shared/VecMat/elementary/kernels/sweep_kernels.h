// One row of a sweep.
#pragma once

#include "instruction_set.h"

namespace vecmat {

struct SweepKernels
{
    /// For each j from 0 to count - 1
    ///     row(j) = row(j) + column(j) * factor
    /// product and sum rounded, but 0.0 where the magnitude of that is below `tolerance`; a NaN is not.
    void (*addAndClear)(int count, const double* column, double factor, double tolerance, double* row);
};

namespace baseline {
extern const SweepKernels sweepKernels;
}
namespace avx2 {
extern const SweepKernels sweepKernels;
}
namespace avx512 {
extern const SweepKernels sweepKernels;
}

inline const SweepKernels& sweepKernels()
{
    return forThisMachine(baseline::sweepKernels, avx2::sweepKernels, avx512::sweepKernels);
}

} // namespace vecmat
