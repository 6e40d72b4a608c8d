#include "tile_kernels.h"

#include "lanes.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

// As many results as the registers hold, with room for one column of the left operand and a product.
#if defined(__AVX512F__)
constexpr int vectors = 3;
constexpr int cols = 8;
#elif defined(__AVX__)
constexpr int vectors = 3;
constexpr int cols = 4;
#else
constexpr int vectors = 2;
constexpr int cols = 4;
#endif
constexpr int rows = vectors * laneCount;
static_assert(rows <= TileKernels::mostRows && cols <= TileKernels::mostCols);

struct Plus
{
    Lanes operator()(Lanes sum, Lanes product) const { return sum + product; }
};

struct Minus
{
    Lanes operator()(Lanes sum, Lanes product) const { return sum - product; }
};

template <class Join>
void accumulate(int inner, const double* left, const double* right, double* tile)
{
    Lanes sums[cols][vectors];
    for (int j = 0; j < cols; ++j)
        for (int v = 0; v < vectors; ++v)
            sums[j][v] = load(tile + j * rows + v * laneCount);
    for (int k = 0; k < inner; ++k) {
        Lanes column[vectors];
#pragma GCC unroll 8
        for (int v = 0; v < vectors; ++v)
            column[v] = load(left + v * laneCount);
#pragma GCC unroll 8
        for (int j = 0; j < cols; ++j) {
            const Lanes factor = inEachLane(right[j]);
#pragma GCC unroll 8
            for (int v = 0; v < vectors; ++v)
                sums[j][v] = Join()(sums[j][v], column[v] * factor);
        }
        left += rows;
        right += cols;
    }
    for (int j = 0; j < cols; ++j)
        for (int v = 0; v < vectors; ++v)
            store(tile + j * rows + v * laneCount, sums[j][v]);
}

} // namespace

extern const TileKernels tileKernels;
const TileKernels tileKernels = {rows, cols, accumulate<Plus>, accumulate<Minus>};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
