#include "power_kernels.h"

#include <cmath>

namespace vecmat {

void powThreeAndFour(int count, const double* x, double* cube, double* fourth)
{
    long long unsure[mostPowers];
    powerKernels().cubesAndFourths(count, x, cube, fourth, unsure);
    for (int k = 0; k < count; ++k) {
        if ((unsure[k] & 1) != 0)
            cube[k] = std::pow(x[k], 3.0);
        if ((unsure[k] & 2) != 0)
            fourth[k] = std::pow(x[k], 4.0);
    }
}

} // namespace vecmat
