#include "tile_kernels.h"

#include "lanes.h"
#include "tile_shape.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

constexpr int vectors = tileVectors;
constexpr int rows = tileRows;
constexpr int cols = tileCols;
static_assert(rows <= TileKernels::mostRows && cols <= TileKernels::mostCols);

struct Plus
{
    Lanes operator()(Lanes sum, Lanes x, Lanes y, int /*k*/) const { return sum + x * y; }
};

struct Minus
{
    Lanes operator()(Lanes sum, Lanes x, Lanes y, int /*k*/) const { return sum - x * y; }
};

struct PlusWeighted
{
    const double* weights;
    Lanes operator()(Lanes sum, Lanes x, Lanes y, int k) const { return sum + x * y * weights[k]; }
};

#ifdef VECMAT_FUSES_LANES
struct PlusExact
{
    Lanes operator()(Lanes sum, Lanes x, Lanes y, int /*k*/) const { return fusedSum(sum, x, y); }
};
#endif

template <class Join>
void accumulate(int inner, const double* left, const double* right, Join join, double* tile)
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
                sums[j][v] = join(sums[j][v], column[v], factor, k);
        }
        left += rows;
        right += cols;
    }
    for (int j = 0; j < cols; ++j)
        for (int v = 0; v < vectors; ++v)
            store(tile + j * rows + v * laneCount, sums[j][v]);
}

void add(int inner, const double* left, const double* right, double* tile)
{
    accumulate(inner, left, right, Plus{}, tile);
}

#ifdef VECMAT_FUSES_LANES
void addExact(int inner, const double* left, const double* right, double* tile)
{
    accumulate(inner, left, right, PlusExact{}, tile);
}
#else
constexpr auto addExact = nullptr;
#endif

void subtract(int inner, const double* left, const double* right, double* tile)
{
    accumulate(inner, left, right, Minus{}, tile);
}

void addWeighted(int inner, const double* left, const double* right, const double* weights, double* tile)
{
    accumulate(inner, left, right, PlusWeighted{weights}, tile);
}

/// The numbers of the lanes.
inline Lanes laneNumbers()
{
    Lanes numbers;
    for (int lane = 0; lane < laneCount; ++lane)
        numbers[lane] = lane;
    return numbers;
}

/// Subtracts `factor` times a column from the rows of another after row k.
inline void subtractBelow(int k, const double* column, double factor, double* from)
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
            subtractBelow(k, left, right[j], tile + j * rows);
        }
        left += rows;
        right += cols;
    }
}

void extend(FactorRange& range, std::ptrdiff_t count, const double* factors)
{
    constexpr std::uint64_t fraction = 0x000fffffffffffff;
    constexpr std::uint64_t magnitude = 0x7fffffffffffffff;
    auto [fractions, largest, smallest] = range;
    for (std::ptrdiff_t k = 0; k < count; ++k) {
        const auto bits = __builtin_bit_cast(std::uint64_t, factors[k]);
        const std::uint64_t size = bits & magnitude;
        fractions |= bits & fraction;
        largest = size > largest ? size : largest;
        smallest = size - 1 < smallest ? size - 1 : smallest; // a zero turns into the greatest number
    }
    range = {fractions, largest, smallest};
}

} // namespace

const TileKernels tileKernels = {rows, cols, add, addExact, subtract, addWeighted, substitute, extend};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
