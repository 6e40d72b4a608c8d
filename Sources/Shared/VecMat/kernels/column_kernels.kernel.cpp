#include "column_kernels.h"

#include "lanes.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

static_assert(laneCount <= ColumnKernels::mostLanes);

// ---- inner products of several columns ------------------------------------------------------------------------------

template <int... numbers>
struct Numbers
{
};
#if defined(__AVX512F__)
using EachLane = Numbers<0, 1, 2, 3, 4, 5, 6, 7>;
#elif defined(__AVX__)
using EachLane = Numbers<0, 1, 2, 3>;
#else
using EachLane = Numbers<0, 1>;
#endif

/// Exchanges the upper right and the lower left block in each group of four blocks of `step` by `step`.
template <int step, int... lane>
[[gnu::always_inline]] inline void exchangeBlocks(Lanes* rows, Numbers<lane...> /*each*/)
{
    if constexpr (step > 0) {
#pragma GCC unroll 8
        for (int i = 0; i < laneCount; ++i) {
            if ((i & step) != 0)
                continue;
            const Lanes upper = rows[i];
            const Lanes lower = rows[i + step];
            rows[i] = __builtin_shufflevector(upper, lower, ((lane & step) != 0 ? lane - step + laneCount : lane)...);
            rows[i + step] =
                __builtin_shufflevector(upper, lower, ((lane & step) != 0 ? lane + laneCount : lane + step)...);
        }
        exchangeBlocks<step / 2>(rows, EachLane());
    }
}

/// Adds the terms of rows k + `skipped` to k + laneCount - 1. The products of a column come side by side from memory;
/// once transposed, those of a row are side by side, and each column's sum adds them in its order.
template <int groups>
[[gnu::always_inline]] inline void addRows(int k, int skipped, const double* with, const double* first,
                                           std::ptrdiff_t stride, Lanes* sums)
{
    const Lanes factors = load(with + k);
#pragma GCC unroll 2
    for (int g = 0; g < groups; ++g) {
        Lanes products[laneCount];
#pragma GCC unroll 8
        for (int c = 0; c < laneCount; ++c)
            products[c] = load(first + (g * laneCount + c) * stride + k) * factors;
        exchangeBlocks<laneCount / 2>(products, EachLane());
#pragma GCC unroll 8
        for (int r = 0; r < laneCount; ++r)
            if (r >= skipped)
                sums[g] += products[r];
    }
}

template <int groups>
void innerProductsOfGroups(int count, const double* with, const double* first, std::ptrdiff_t stride, double* sums)
{
    Lanes running[groups] = {};
    int k = 0;
    for (; count - k >= laneCount; k += laneCount)
        addRows<groups>(k, 0, with, first, stride, running);
    const int rest = count - k;
    if (k > 0 && rest > 0)
        addRows<groups>(count - laneCount, laneCount - rest, with, first, stride, running);
    for (int g = 0; g < groups; ++g)
        store(sums + g * laneCount, running[g]);
    if (k == 0)
        for (; k < count; ++k)
            for (int c = 0; c < groups * laneCount; ++c)
                sums[c] += first[c * stride + k] * with[k];
}

void innerProducts(int count, const double* with, int columns, const double* first, std::ptrdiff_t stride, double* sums)
{
    if (columns > laneCount)
        innerProductsOfGroups<2>(count, with, first, stride, sums);
    else
        innerProductsOfGroups<1>(count, with, first, stride, sums);
}

// ---- updates --------------------------------------------------------------------------------------------------------

void addMultiple(int count, double factor, const double* __restrict from, double* __restrict to)
{
    for (int k = 0; k < count; ++k)
        to[k] = to[k] + factor * from[k];
}

void addMultiples(int count, const double* factors, const double* const* from, double* __restrict to)
{
    static_assert(ColumnKernels::columnsTogether == 4);
    const double a = factors[0], b = factors[1], c = factors[2], d = factors[3];
    const double* __restrict const x = from[0];
    const double* __restrict const y = from[1];
    const double* __restrict const z = from[2];
    const double* __restrict const u = from[3];
    for (int k = 0; k < count; ++k)
        to[k] = (((to[k] + a * x[k]) + b * y[k]) + c * z[k]) + d * u[k];
}

/// Some columns of `updateAndMultiply`; `product` holds the sums up to them.
template <int columns>
void updateColumns(int n, double* a, std::ptrdiff_t stride, const double* x, const double* y, const double* xHere,
                   const double* yHere, const double* v, double* product)
{
    Lanes xEach[columns];
    Lanes yEach[columns];
    Lanes vEach[columns];
    for (int c = 0; c < columns; ++c) {
        xEach[c] = inEachLane(xHere[c]);
        yEach[c] = inEachLane(yHere[c]);
        vEach[c] = inEachLane(v[c]);
    }
    for (int i = 0; i < n; i += laneCount) {
        const Lanes xRows = load(x + i);
        const Lanes yRows = load(y + i);
        Lanes sum = load(product + i);
#pragma GCC unroll 4
        for (int c = 0; c < columns; ++c) {
            double* const cells = a + c * stride + i;
            const Lanes updated = load(cells) - (xRows * yEach[c] + yRows * xEach[c]);
            store(cells, updated);
            sum += updated * vEach[c];
        }
        store(product + i, sum);
    }
}

void updateAndMultiply(int n, double* a, std::ptrdiff_t stride, const double* x, const double* y, const double* v,
                       double* product)
{
#if defined(__AVX512F__)
    constexpr int columns = 4;
#else
    constexpr int columns = 2;
#endif
    for (int i = 0; i < n; i += laneCount)
        store(product + i, Lanes{});
    int k = 0;
    for (; n - k >= columns; k += columns)
        updateColumns<columns>(n, a + k * stride, stride, x, y, x + k, y + k, v + k, product);
    for (; k < n; ++k)
        updateColumns<1>(n, a + k * stride, stride, x, y, x + k, y + k, v + k, product);
}

template <int vectors>
void reflectLanes(int columns, const double* weights, const double* factors, double* a, std::ptrdiff_t stride)
{
    Lanes sums[vectors] = {};
    for (int j = 0; j < columns; ++j)
        if (weights[j] != 0.0)
#pragma GCC unroll 4
            for (int v = 0; v < vectors; ++v)
                sums[v] += inEachLane(weights[j]) * load(a + j * stride + v * laneCount);
    for (int j = 0; j < columns; ++j)
        if (factors[j] != 0.0)
#pragma GCC unroll 4
            for (int v = 0; v < vectors; ++v) {
                double* const cells = a + j * stride + v * laneCount;
                store(cells, load(cells) + inEachLane(factors[j]) * sums[v]);
            }
}

void reflectRow(int columns, const double* weights, const double* factors, double* a, std::ptrdiff_t stride)
{
    double sum = 0.0;
    for (int j = 0; j < columns; ++j)
        if (weights[j] != 0.0)
            sum += weights[j] * a[j * stride];
    for (int j = 0; j < columns; ++j)
        if (factors[j] != 0.0)
            a[j * stride] += factors[j] * sum;
}

void reflectRows(int rows, int columns, const double* weights, const double* factors, double* a, std::ptrdiff_t stride)
{
    constexpr int vectors = 2;
    int i = 0;
    for (; rows - i >= vectors * laneCount; i += vectors * laneCount)
        reflectLanes<vectors>(columns, weights, factors, a + i, stride);
    for (; rows - i >= laneCount; i += laneCount)
        reflectLanes<1>(columns, weights, factors, a + i, stride);
    for (; i < rows; ++i)
        reflectRow(columns, weights, factors, a + i, stride);
}

// ---- rotations ------------------------------------------------------------------------------------------------------

/// This many numbers of one column, side by side.
template <int vectors>
struct Segment
{
    static constexpr int length = vectors * laneCount;

    Lanes lanes[vectors];

    explicit Segment(const double* from)
    {
#pragma GCC unroll 4
        for (int v = 0; v < vectors; ++v)
            lanes[v] = load(from + v * laneCount);
    }
    void writeTo(double* to) const
    {
#pragma GCC unroll 4
        for (int v = 0; v < vectors; ++v)
            store(to + v * laneCount, lanes[v]);
    }
};

/// The second column of a rotation is usually the first of the next: it is kept in registers.
template <int vectors>
void rotatePanel(int count, const ColumnRotation* rotations, double* panel)
{
    using Column = Segment<vectors>;
    double* first = panel + std::ptrdiff_t{rotations[0].x} * Column::length;
    Column x(first);
    for (int r = 0; r < count; ++r) {
        const ColumnRotation& rotation = rotations[r];
        if (r > 0 && rotation.x != rotations[r - 1].y) {
            x.writeTo(first);
            first = panel + std::ptrdiff_t{rotation.x} * Column::length;
            x = Column(first);
        }
        double* const second = panel + std::ptrdiff_t{rotation.y} * Column::length;
        const Column y(second);
        const Lanes c = inEachLane(rotation.c);
        const Lanes s = inEachLane(rotation.s);
#pragma GCC unroll 4
        for (int v = 0; v < vectors; ++v) {
            store(first + v * laneCount, c * x.lanes[v] + s * y.lanes[v]);
            x.lanes[v] = c * y.lanes[v] - s * x.lanes[v];
        }
        first = second;
    }
    x.writeTo(first);
}

void rotate(int vectors, int count, const ColumnRotation* rotations, double* panel)
{
    if (count < 1)
        return;
    switch (vectors) {
    case 1:
        return rotatePanel<1>(count, rotations, panel);
    case 2:
        return rotatePanel<2>(count, rotations, panel);
    case 3:
        return rotatePanel<3>(count, rotations, panel);
    default:
        return rotatePanel<ColumnKernels::mostVectors>(count, rotations, panel);
    }
}

void copyColumns(int vectors, int columns, const double* from, std::ptrdiff_t fromStride, double* to,
                 std::ptrdiff_t toStride)
{
    for (int j = 0; j < columns; ++j)
        for (int v = 0; v < vectors; ++v)
            store(to + j * toStride + v * laneCount, load(from + j * fromStride + v * laneCount));
}

} // namespace

const ColumnKernels columnKernels = {laneCount,         innerProducts, addMultiple, addMultiples,
                                     updateAndMultiply, reflectRows,   rotate,      copyColumns};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
