#include "bits.h"
#include "exact_phase.h"
#include "mathematics.h"
#include "quick_exponential.h"

namespace vecmat {

using namespace mathematics;

double exp(double x)
{
    if (x > leastQuickExponent && x < greatestQuickExponent) [[likely]] {
        const ScaledSum sum = quickExponential(x, 0.0);
        const double upper = sum.high + (sum.low + quickExponentialError);
        const double lower = sum.high + (sum.low - quickExponentialError);
        return upper == lower ? upper * sum.scale : exactExp(x);
    }
    if (x != x)
        return x + x;
    if (x > 710.0)
        return doubleOf(infinityBits);
    return x < -746.0 ? 0.0 : exactExp(x);
}

} // namespace vecmat
