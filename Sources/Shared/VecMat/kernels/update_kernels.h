// Updates of a vector by a multiple of another.
#pragma once

#include "instruction_set.h"

namespace vecmat {

struct UpdateKernels
{
    /// For each j from 0 to count - 1
    ///     row(j) = row(j) + column(j) * factor
    /// product and sum rounded, but 0.0 if the magnitude of the result is below `tolerance`; a NaN is kept.
    void (*addAndClear)(int count, const double* column, double factor, double tolerance, double* row);

    /// For each j whose column(j) is not the missing value
    ///     sums(j) = sums(j) + factor * column(j)
    void (*addPresent)(int count, const double* column, double factor, double* sums);
};

namespace baseline {
extern const UpdateKernels updateKernels;
}
namespace avx2 {
extern const UpdateKernels updateKernels;
}
namespace avx512 {
extern const UpdateKernels updateKernels;
}

inline const UpdateKernels& updateKernels()
{
    return forThisMachine<baseline::updateKernels, avx2::updateKernels, avx512::updateKernels>();
}

} // namespace vecmat
