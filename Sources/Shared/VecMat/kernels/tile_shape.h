// The size of a tile with the instruction set a kernel is compiled for. For kernel sources only.
#pragma once

#include "lanes.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

// As many results as the registers hold, with room for one column of the left operand and a product.
#if defined(__AVX512F__)
inline constexpr int tileVectors = 3;
inline constexpr int tileCols = 8;
#elif defined(__AVX__)
inline constexpr int tileVectors = 3;
inline constexpr int tileCols = 4;
#elif defined(__aarch64__)
inline constexpr int tileVectors = 4;
inline constexpr int tileCols = 4;
#else
inline constexpr int tileVectors = 2;
inline constexpr int tileCols = 4;
#endif
inline constexpr int tileRows = tileVectors * laneCount;
static_assert(tileRows % tileCols == 0); // a panel of the left operand is cut into panels of the right one

} // namespace vecmat::VECMAT_INSTRUCTION_SET
