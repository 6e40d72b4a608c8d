#include "missing_kernels.h"

#include "../../frame/missing_value.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

std::size_t count(const double* x, std::size_t n)
{
    std::size_t found = 0;
    for (std::size_t i = 0; i < n; ++i)
        found += x[i] == missingValue ? 1u : 0u;
    return found;
}

std::size_t countOrBelow(const double* x, std::size_t n)
{
    std::size_t found = 0;
    for (std::size_t i = 0; i < n; ++i)
        found += missingValue >= x[i] ? 1u : 0u;
    return found;
}

void addByRow(const double* x, std::size_t n, int* counts)
{
    for (std::size_t i = 0; i < n; ++i)
        counts[i] += x[i] == missingValue ? 1 : 0;
}

} // namespace

const MissingKernels missingKernels = {count, countOrBelow, addByRow};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
