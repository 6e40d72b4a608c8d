#include "update_kernels.h"

#include "../base/missing_value.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

void addAndClear(int count, const double* __restrict column, double factor, double tolerance, double* __restrict row)
{
    for (int j = 0; j < count; ++j) {
        const double swept = row[j] + column[j] * factor;
        row[j] = __builtin_fabs(swept) < tolerance ? 0.0 : swept;
    }
}

void addPresent(int count, const double* __restrict column, double factor, double* __restrict sums)
{
    for (int j = 0; j < count; ++j) {
        const double sum = sums[j] + factor * column[j];
        sums[j] = column[j] == missingValue ? sums[j] : sum;
    }
}

} // namespace

const UpdateKernels updateKernels = {addAndClear, addPresent};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
