#include "power_kernels.h"

#include "../base/detail/mathematics/mathematics.h"

namespace vecmat {

void cubesAndFourths(int count, const double* x, double* cube, double* fourth)
{
    if (powerKernels().cubesAndFourths(count, x, cube, fourth))
        return;
    for (int k = 0; k < count; ++k) {
        cube[k] = vecmat::cube(x[k]);
        fourth[k] = fourthPower(x[k]);
    }
}

} // namespace vecmat
