// Counts of missing cells, many cells side by side.
#pragma once

#include "instruction_set.h"

#include <cstddef>

namespace vecmat {

/// Over n contiguous cells. Counts are whole numbers, so their order does not matter.
struct MissingKernels
{
    /// How many are missing by the equality test, and by the order test.
    std::size_t (*count)(const double* x, std::size_t n);
    std::size_t (*countOrBelow)(const double* x, std::size_t n);
    /// Adds 1 to counts[i] where x[i] is missing (equality).
    void (*addByRow)(const double* x, std::size_t n, int* counts);
};

namespace baseline {
extern const MissingKernels missingKernels;
}
namespace avx2 {
extern const MissingKernels missingKernels;
}
namespace avx512 {
extern const MissingKernels missingKernels;
}

inline const MissingKernels& missingKernels()
{
    return forThisMachine<baseline::missingKernels, avx2::missingKernels, avx512::missingKernels>();
}

} // namespace vecmat
