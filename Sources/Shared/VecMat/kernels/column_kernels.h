// Operations on the columns of a workspace: the kernels under the decompositions.
#pragma once

#include "instruction_set.h"

#include <cstddef>

namespace vecmat {

/// A plane rotation of two columns, given by their numbers from 0: x' = c x + s y, y' = c y - s x.
struct ColumnRotation
{
    double c;
    double s;
    int x;
    int y;
};

/// Columns start `stride` doubles apart. Each product and each sum is rounded; a sum starts at +0.0 and adds its terms
/// in ascending order.
struct ColumnKernels
{
    static constexpr int mostLanes = 8;
    /// Columns whose inner products are formed side by side: up to twice the lanes.
    static constexpr int mostColumns = 2 * mostLanes;
    /// Rows rotated side by side: up to four times the lanes.
    static constexpr int mostVectors = 4;

    int lanes;

    /// sums(c) = sum over k of column(c)(k) * with(k), for up to 2 `lanes` columns. Reads as many columns as the next
    /// multiple of `lanes`, and writes as many sums.
    void (*innerProducts)(int count, const double* with, int columns, const double* first, std::ptrdiff_t stride,
                          double* sums);

    /// to(k) = to(k) + factor * from(k).
    void (*addMultiple)(int count, double factor, const double* from, double* to);

    /// The same for `columnsTogether` columns, one after the other in each to(k).
    static constexpr int columnsTogether = 4;
    void (*addMultiples)(int count, const double* factors, const double* const* from, double* to);

    /// For the symmetric table a of order n, stored in full:
    ///     a(i, k) = a(i, k) - (x(i) * y(k) + y(i) * x(k)), then product(i) = sum over k of a(i, k) * v(k).
    /// Rows up to the next multiple of `lanes` are read and written, in the table and in x, y and product.
    void (*updateAndMultiply)(int n, double* a, std::ptrdiff_t stride, const double* x, const double* y,
                              const double* v, double* product);

    /// For each row i of a: sum = sum over j of weights(j) * a(i, j), then a(i, j) = a(i, j) + factors(j) * sum. A
    /// weight or factor of exactly 0 excludes its column.
    void (*reflectRows)(int rows, int columns, const double* weights, const double* factors, double* a,
                        std::ptrdiff_t stride);

    /// Applies one rotation after another to a panel whose columns have `vectors` times `lanes` rows and are
    /// contiguous.
    void (*rotate)(int vectors, int count, const ColumnRotation* rotations, double* panel);

    /// Copies `columns` columns of `vectors` times `lanes` rows.
    void (*copyColumns)(int vectors, int columns, const double* from, std::ptrdiff_t fromStride, double* to,
                        std::ptrdiff_t toStride);
};

namespace baseline {
extern const ColumnKernels columnKernels;
}
namespace avx2 {
extern const ColumnKernels columnKernels;
}
namespace avx512 {
extern const ColumnKernels columnKernels;
}

inline const ColumnKernels& columnKernels()
{
    return forThisMachine<baseline::columnKernels, avx2::columnKernels, avx512::columnKernels>();
}

} // namespace vecmat
