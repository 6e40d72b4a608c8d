// Third and fourth powers of many numbers, rounded once.
#pragma once

#include "instruction_set.h"

namespace vecmat {

struct PowerKernels
{
    /// cube[k] = x[k]^3 and fourth[k] = x[k]^4, rounded to nearest. False where one of them lies so near the middle
    /// between two doubles that its rounding is in doubt, or an x[k] so far from 1 that a part of its powers may leave
    /// the range: then none of the results counts.
    ///
    /// The powers are products of two doubles each, high and low part. What is rounded of the low part is below 2^-103
    /// of the power, 2^-50 of its last place: farther than 2^-41 of that from the middle nothing is in doubt.
    bool (*cubesAndFourths)(int count, const double* x, double* cube, double* fourth);
};

namespace baseline {
extern const PowerKernels powerKernels;
}
namespace avx2 {
extern const PowerKernels powerKernels;
}
namespace avx512 {
extern const PowerKernels powerKernels;
}

inline const PowerKernels& powerKernels()
{
    return forThisMachine<baseline::powerKernels, avx2::powerKernels, avx512::powerKernels>();
}

/// cube[k] = x[k]^3 and fourth[k] = x[k]^4, each rounded once.
void cubesAndFourths(int count, const double* x, double* cube, double* fourth);

} // namespace vecmat
