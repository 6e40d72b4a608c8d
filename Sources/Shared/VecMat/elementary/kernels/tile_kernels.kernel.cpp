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

/// The numbers of the lanes.
inline Lanes laneNumbers()
{
    Lanes numbers;
    for (int lane = 0; lane < laneCount; ++lane)
        numbers[lane] = lane;
    return numbers;
}

/// Takes `factor` times a column off the rows of another that are behind row k.
inline void takeOffBehind(int k, const double* column, double factor, double* from)
{
    int v = k / laneCount * laneCount;
    const Lanes before = load(from + v);
    const Lanes after = before - load(column + v) * inEachLane(factor);
    store(from + v, laneNumbers() > inEachLane(k - v) ? after : before);
    for (v += laneCount; v < rows; v += laneCount)
        store(from + v, load(from + v) - load(column + v) * inEachLane(factor));
}

void substitute(int count, const double* left, double* right, double* tile)
{
    for (int k = 0; k < count; ++k) {
        for (int j = 0; j < cols; ++j) {
            right[j] = tile[j * rows + k];
            takeOffBehind(k, left, right[j], tile + j * rows);
        }
        left += rows;
        right += cols;
    }
}

} // namespace

const TileKernels tileKernels = {rows, cols, accumulate<Plus>, accumulate<Minus>, substitute};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
