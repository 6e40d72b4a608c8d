#include "regression_kernels.h"

#include "../base/missing_value.h"
#include "lanes.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

/// What a missing cell adds to a sum that starts at 0.0: such a sum is never -0.0, so it stays unchanged.
constexpr Lanes nothing = {};

constexpr int width = RegressionKernels::stripWidth;
constexpr int vectors = width / laneCount;
static_assert(width % laneCount == 0);

void sumColumns(std::ptrdiff_t rows, int strips, const double* first, const double* w,
                RegressionKernels::ColumnSums* columnSums)
{
    const Lanes missing = inEachLane(missingValue);
    for (int s = 0; s < strips; ++s)
        for (int v = 0; v < width; v += laneCount) {
            const double* cells = first + s * rows * width + v;
            Lanes absent = {};
            Lanes weights = {};
            Lanes sums = {};
            Lanes squares = {};
            for (std::ptrdiff_t i = 0; i < rows; ++i, cells += width) {
                const Lanes x = load(cells);
                absent += x == missing ? inEachLane(1.0) : nothing;
                weights += x == missing ? nothing : inEachLane(w[i]);
                sums += x == missing ? nothing : w[i] * x;
                squares += x == missing ? nothing : w[i] * x * x;
            }
            store(columnSums[s].missing + v, absent);
            store(columnSums[s].weights + v, weights);
            store(columnSums[s].sums + v, sums);
            store(columnSums[s].squares + v, squares);
        }
}

void centreColumn(std::ptrdiff_t rows, double* column, const double* w, double mean)
{
    for (std::ptrdiff_t i = 0; i < rows; ++i)
        column[i] = column[i] == missingValue ? column[i] : w[i] * column[i] - mean;
}

void centreStrip(std::ptrdiff_t rows, double* strip, const double* w, const double* means)
{
    const Lanes missing = inEachLane(missingValue);
    for (std::ptrdiff_t i = 0; i < rows; ++i, strip += width)
        for (int v = 0; v < width; v += laneCount) {
            const Lanes x = load(strip + v);
            store(strip + v, x == missing ? x : w[i] * x - load(means + v));
        }
}

template <int strips>
void addScores(std::ptrdiff_t rows, const double* first, const double* scores, double* squares, double* products)
{
    const Lanes missing = inEachLane(missingValue);
    Lanes squareSums[strips][vectors] = {};
    Lanes productSums[strips][vectors] = {};
    for (std::ptrdiff_t i = 0; i < rows; ++i) {
        if (scores[i] == missingValue)
            continue;
        const Lanes t = inEachLane(scores[i]);
        const Lanes tt = t * t;
#pragma GCC unroll 4
        for (int s = 0; s < strips; ++s)
#pragma GCC unroll 4
            for (int v = 0; v < vectors; ++v) {
                const Lanes z = load(first + (s * rows + i) * width + v * laneCount);
                squareSums[s][v] += z == missing ? nothing : tt;
                productSums[s][v] += z == missing ? nothing : z * t;
            }
    }
    for (int s = 0; s < strips; ++s)
        for (int v = 0; v < vectors; ++v) {
            store(squares + s * width + v * laneCount, squareSums[s][v]);
            store(products + s * width + v * laneCount, productSums[s][v]);
        }
}

/// Sums wait for those of the previous row: four vectors of them at once fill the time.
template <int atOnce =
              vectors<4 ? 4 / vectors : 1> void onScores(std::ptrdiff_t rows, int strips, const double* first,
                                                         const double* scores, double* squares, double* products)
{
    for (; strips >= atOnce; strips -= atOnce) {
        addScores<atOnce>(rows, first, scores, squares, products);
        first += atOnce * rows * width;
        squares += atOnce * width;
        products += atOnce * width;
    }
    if constexpr (atOnce > 1)
        onScores<atOnce - 1>(rows, strips, first, scores, squares, products);
}

// As many rows as keep scores and sums of squares in registers.
constexpr int rowVectors = laneCount > 2 ? 4 : 2;
constexpr int rowsAtOnce = rowVectors * laneCount;
static_assert(RegressionKernels::blockHeight % rowsAtOnce == 0);

void onLoadings(std::ptrdiff_t rows, const double* columns, std::ptrdiff_t columnCount, const double* loadings,
                double* scores)
{
    const Lanes missing = inEachLane(missingValue);
    for (std::ptrdiff_t first = 0; first < rows; first += rowsAtOnce) {
        Lanes t[rowVectors];
        Lanes q[rowVectors];
        for (int v = 0; v < rowVectors; ++v) {
            t[v] = missing;
            q[v] = Lanes{};
        }
        const double* column = columns + first;
        for (std::ptrdiff_t j = 0; j < columnCount; ++j, column += rows) {
            const Lanes p = inEachLane(loadings[j]);
            const Lanes pp = p * p;
#pragma GCC unroll 4
            for (int v = 0; v < rowVectors; ++v) {
                const Lanes z = load(column + v * laneCount);
                const Lanes term = z * p;
                const Lanes next = t[v] == missing ? term : t[v] + term;
                t[v] = z == missing ? t[v] : next;
                q[v] += z == missing ? nothing : pp;
            }
        }
        for (int v = 0; v < rowVectors; ++v)
            store(scores + first + v * laneCount, t[v] == missing ? t[v] : t[v] / q[v]);
    }
}

void deflateColumn(std::ptrdiff_t rows, double* column, const double* scores, double loading)
{
    for (std::ptrdiff_t i = 0; i < rows; ++i)
        column[i] =
            column[i] == missingValue || scores[i] == missingValue ? column[i] : column[i] - scores[i] * loading;
}

void deflateStrip(std::ptrdiff_t rows, double* strip, const double* scores, const double* loadings)
{
    const Lanes missing = inEachLane(missingValue);
    for (std::ptrdiff_t i = 0; i < rows; ++i, strip += width)
        if (scores[i] != missingValue)
            for (int v = 0; v < width; v += laneCount) {
                const Lanes z = load(strip + v);
                store(strip + v, z == missing ? z : z - scores[i] * load(loadings + v));
            }
}

} // namespace

const RegressionKernels regressionKernels = {sumColumns, centreColumn,  centreStrip, onScores<>,
                                             onLoadings, deflateColumn, deflateStrip};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
