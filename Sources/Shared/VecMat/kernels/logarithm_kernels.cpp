#include "logarithm_kernels.h"

#include "../base/detail/mathematics/mathematics.h"

namespace vecmat {

void logarithms(int count, const double* x, double* out)
{
    const auto sideBySide = logarithmKernels().logarithms;
    if (sideBySide != nullptr && sideBySide(count, x, out))
        return;
    for (int k = 0; k < count; ++k)
        out[k] = vecmat::log(x[k]);
}

} // namespace vecmat
