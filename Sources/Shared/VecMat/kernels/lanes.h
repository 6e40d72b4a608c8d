// Several doubles side by side, as wide as the instruction set that a kernel is compiled for. For the sources of
// kernels only: every name here belongs to the namespace of one instruction set.
#pragma once

#include <cstddef>

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
/// The same in memory at any address of a double.
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

} // namespace vecmat::VECMAT_INSTRUCTION_SET
