// Third and fourth powers of many numbers, as std::pow rounds them.
#pragma once

#include "instruction_set.h"

namespace vecmat {

struct PowerKernels
{
    /// cube[k] = x[k]^3 and fourth[k] = x[k]^4, rounded to nearest. `unsure[k]` has the bit 1 for a cube, and the bit 2
    /// for a fourth power, that lies so near the middle between two doubles, or x[k] so far from 1, that another
    /// correct pow may round it the other way.
    ///
    /// The powers are products of two doubles each, high and low part (Dekker, T. J. 1971, A floating-point technique
    /// for extending the available precision, Numer. Math. 18, 224-242), good to 100 bits. A pow whose error before the
    /// last rounding is below 0.05 units in the last place, as those of the common C libraries are, gives the same
    /// double wherever the power is farther than that from a middle.
    void (*cubesAndFourths)(int count, const double* x, double* cube, double* fourth, long long* unsure);
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

/// cube[k] = std::pow(x[k], 3.0) and fourth[k] = std::pow(x[k], 4.0), for up to `mostPowers` numbers.
inline constexpr int mostPowers = 128;
void powThreeAndFour(int count, const double* x, double* cube, double* fourth);

} // namespace vecmat
