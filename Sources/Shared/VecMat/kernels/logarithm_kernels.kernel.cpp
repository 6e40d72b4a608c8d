#include "logarithm_kernels.h"

#include "../base/detail/mathematics/bits.h"
#include "../base/detail/mathematics/quick_logarithm.h"

#include <cstdint>

namespace vecmat::VECMAT_INSTRUCTION_SET {

#if defined(__AVX__) || defined(__aarch64__)

namespace {

using namespace mathematics;

/// Both phases' sums are formed for each number, so that no branch keeps numbers from being worked on side by side.
bool logarithms(int count, const double* __restrict x, double* __restrict out)
{
    std::uint64_t doubtful = 0;
    for (int k = 0; k < count; ++k) {
        const std::uint64_t bits = bitsOf(x[k]);
        const BoundedSum near1 = quickLogarithmNear1(x[k] - 1.0);
        const BoundedSum byTable = quickLogarithmByTable(bits, 0);
        const bool near = isNear1(bits);
        const double high = near ? near1.high : byTable.high;
        const double low = near ? near1.low : byTable.low;
        const double error = near ? near1.error : byTable.error;
        const double upper = high + (low + error);
        const double lower = high + (low - error);
        out[k] = upper;
        const bool isNormal = bits - leastNormalBits < infinityBits - leastNormalBits;
        doubtful |= (bitsOf(upper) ^ bitsOf(lower)) | static_cast<std::uint64_t>(!isNormal);
    }
    return doubtful == 0;
}

} // namespace

const LogarithmKernels logarithmKernels = {logarithms};

#else

const LogarithmKernels logarithmKernels = {nullptr};

#endif

} // namespace vecmat::VECMAT_INSTRUCTION_SET
