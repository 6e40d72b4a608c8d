// One row of a triangular system, for several right-hand sides at once: the kernel under substitutions.
#pragma once

#include "instruction_set.h"

#include <cstddef>

namespace vecmat {

/// Position of the factors of a row, or of the rows of known solutions: the first and the distance to the next, which
/// may be negative.
struct Sequence
{
    const double* first;
    std::ptrdiff_t step;
};

/// A row has `width` results, side by side. For k from 0 to terms - 1, and for each result on its own,
///     add        row(c) = row(c) + factors(k) * known(k, c)
///     subtract   row(c) = row(c) - factors(k) * known(k, c)
/// each product and each sum rounded; `known.step` is the distance from row k of `known` to the next.
struct SubstitutionKernels
{
    static constexpr int mostResults = 32;

    int width;
    void (*add)(int terms, Sequence factors, Sequence known, double* row);
    void (*subtract)(int terms, Sequence factors, Sequence known, double* row);
    /// row(c) = row(c) / divisor
    void (*divide)(double divisor, double* row);
};

namespace baseline {
extern const SubstitutionKernels substitutionKernels;
}
namespace avx2 {
extern const SubstitutionKernels substitutionKernels;
}
namespace avx512 {
extern const SubstitutionKernels substitutionKernels;
}

inline const SubstitutionKernels& substitutionKernels()
{
    return forThisMachine<baseline::substitutionKernels, avx2::substitutionKernels, avx512::substitutionKernels>();
}

} // namespace vecmat
