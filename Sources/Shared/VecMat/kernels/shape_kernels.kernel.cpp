#include "shape_kernels.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

void terms(int count, const ShapeKernels::Rows& rows, const double* __restrict cube, const double* __restrict fourth,
           ShapeKernels::Terms& __restrict terms)
{
    for (int k = 0; k < count; ++k) {
        const double d = rows.d[k];
        const double w = rows.w[k];
        const double f = rows.f[k];
        terms.third[k] = f * 3.0 * d;
        terms.fourth[k] = (f + f) * d;
        terms.ofSecond[k] = (1.0 - f) * d * d * w;
        terms.ofThird[k] = (f * f + f * f + (1.0 - f * 3.0)) * cube[k] * w;
        terms.ofFourth[k] = (((f * 6.0 + -4.0) - f * f * 3.0) * f + 1.0) * fourth[k] * w;
    }
}

} // namespace

const ShapeKernels shapeKernels = {terms};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
