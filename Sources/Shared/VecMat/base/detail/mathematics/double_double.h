// Sums and products of doubles without a rounding error, as two doubles. The names have no linkage: sources of kernels,
// which are compiled once for each instruction set, may include this.
#pragma once

#if defined(__FMA__) || defined(__AVX512F__) || defined(__aarch64__)
#define VECMAT_HAS_FUSED_PRODUCT 1
#else
#define VECMAT_HAS_FUSED_PRODUCT 0
#endif

namespace vecmat {
namespace {

/// high + low, where high is the sum rounded to nearest.
struct DoubleDouble
{
    double high;
    double low;
};

/// x + y, for |x| at least |y| (Dekker, T. J. 1971, A floating-point technique for extending the available precision,
/// Numer. Math. 18, 224-242).
inline DoubleDouble exactSum(double x, double y)
{
    const double high = x + y;
    return {high, y - (high - x)};
}

/// x y, where neither factors times 2^27 nor the product overflow and no part of the product is below the normal
/// numbers. The machine's fused product gives the rest at once; otherwise the factors are split in halves whose
/// products are exact (Dekker 1971, Veltkamp's splitting). Both rests are the exact one.
inline DoubleDouble exactProduct(double x, double y)
{
    const double high = x * y;
#if VECMAT_HAS_FUSED_PRODUCT
    return {high, __builtin_fma(x, y, -high)};
#else
    constexpr double splitter = 134217729.0; // 2^27 + 1
    const double xScaled = splitter * x;
    const double xHigh = xScaled - (xScaled - x);
    const double xLow = x - xHigh;
    const double yScaled = splitter * y;
    const double yHigh = yScaled - (yScaled - y);
    const double yLow = y - yHigh;
    return {high, ((xHigh * yHigh - high) + xHigh * yLow + xLow * yHigh) + xLow * yLow};
#endif
}

} // namespace
} // namespace vecmat
