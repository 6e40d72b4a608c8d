// Several doubles side by side, as wide as the instruction set a kernel is compiled for. For kernel sources only: every
// name here belongs to the namespace of one instruction set.
#pragma once

#include <cstddef>

#if defined(__AVX__)
#include <immintrin.h>
#endif

namespace vecmat::VECMAT_INSTRUCTION_SET {

#if defined(__AVX512F__)
inline constexpr int laneCount = 8;
#elif defined(__AVX__)
inline constexpr int laneCount = 4;
#else
inline constexpr int laneCount = 2;
#endif

/// Arithmetic on it is plain IEEE arithmetic, lane by lane.
using Lanes [[gnu::vector_size(laneCount * sizeof(double))]] = double;
/// The same in memory, at the address of any double.
using LanesInMemory [[gnu::vector_size(laneCount * sizeof(double)), gnu::aligned(alignof(double)), gnu::may_alias]] =
    double;

inline Lanes load(const double* from)
{
    return *reinterpret_cast<const LanesInMemory*>(from);
}

inline void store(double* to, Lanes lanes)
{
    *reinterpret_cast<LanesInMemory*>(to) = lanes;
}

inline Lanes inEachLane(double x)
{
    return x - Lanes{};
}

// Where the machine has fused multiply-add: sum + x y and sum - x y, rounded once. Only for steps proved to give the
// bits of the unfused ones.
#if defined(__AVX512F__)
#define VECMAT_FUSES_LANES
inline Lanes fusedSum(Lanes sum, Lanes x, Lanes y)
{
    return _mm512_fmadd_pd(x, y, sum);
}
inline Lanes fusedDifference(Lanes sum, Lanes x, Lanes y)
{
    return _mm512_fnmadd_pd(x, y, sum);
}
#elif defined(__FMA__)
#define VECMAT_FUSES_LANES
inline Lanes fusedSum(Lanes sum, Lanes x, Lanes y)
{
    return _mm256_fmadd_pd(x, y, sum);
}
inline Lanes fusedDifference(Lanes sum, Lanes x, Lanes y)
{
    return _mm256_fnmadd_pd(x, y, sum);
}
#elif defined(__aarch64__)
// Lane by lane, which becomes one instruction. The intrinsics look to the compiler as if they read memory: sums in a loop
// would be stored in every step.
#define VECMAT_FUSES_LANES
inline Lanes fusedSum(Lanes sum, Lanes x, Lanes y)
{
    return Lanes{__builtin_fma(x[0], y[0], sum[0]), __builtin_fma(x[1], y[1], sum[1])};
}
inline Lanes fusedDifference(Lanes sum, Lanes x, Lanes y)
{
    return Lanes{__builtin_fma(-x[0], y[0], sum[0]), __builtin_fma(-x[1], y[1], sum[1])};
}
#endif

} // namespace vecmat::VECMAT_INSTRUCTION_SET
