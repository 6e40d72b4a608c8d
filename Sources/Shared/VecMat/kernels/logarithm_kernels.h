// Logarithms of many numbers, rounded once.
#pragma once

#include "instruction_set.h"

namespace vecmat {

struct LogarithmKernels
{
    /// What follows is null where it doesn't pay off: with two numbers in a vector and few registers.
    ///
    /// out[k] = log(x[k]), rounded to nearest. False where the quick phase leaves the rounding of one of them in doubt, or
    /// an x[k] is not a positive normal number: then none of the results counts. `x` and `out` do not overlap.
    bool (*logarithms)(int count, const double* x, double* out);
};

namespace baseline {
extern const LogarithmKernels logarithmKernels;
}
namespace avx2 {
extern const LogarithmKernels logarithmKernels;
}
namespace avx512 {
extern const LogarithmKernels logarithmKernels;
}

inline const LogarithmKernels& logarithmKernels()
{
    return forThisMachine<baseline::logarithmKernels, avx2::logarithmKernels, avx512::logarithmKernels>();
}

/// Numbers worked on together: of so many one is in doubt about every thousandth time.
inline constexpr int logarithmsTogether = 256;

/// out[k] = log(x[k]) for up to `logarithmsTogether` numbers of any kind. `x` and `out` do not overlap.
void logarithms(int count, const double* x, double* out);

} // namespace vecmat
