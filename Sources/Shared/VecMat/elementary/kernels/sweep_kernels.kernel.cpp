#include "sweep_kernels.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

void addAndClear(int count, const double* __restrict column, double factor, double tolerance, double* __restrict row)
{
    for (int j = 0; j < count; ++j) {
        const double swept = row[j] + column[j] * factor;
        row[j] = __builtin_fabs(swept) < tolerance ? 0.0 : swept;
    }
}

} // namespace

const SweepKernels sweepKernels = {addAndClear};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
