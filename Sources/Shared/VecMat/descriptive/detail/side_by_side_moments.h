// Running means and variances of several columns by the vector kernels. Internal to the library.
#pragma once

#include "../../base/detail/running_moments.h"
#include "../../kernels/moment_kernels.h"
#include "row_block.h"

#include <algorithm>
#include <type_traits>

namespace vecmat {

namespace detail {

/// Can the kernel for weighted moments compute these moments?
template <class Moments>
inline constexpr bool hasKernel =
    std::is_same_v<typename Moments::Rule, update::Weighted>&& Moments::zeroWeight != ZeroWeight::updated;

template <class Moments>
inline constexpr bool hasSquares = requires(Moments moments)
{
    moments.squares;
};

template <class Moments>
Moments momentsOf(const MomentKernels::Moments& columns, int c)
{
    Moments moments;
    moments.weights = columns.weights[c];
    moments.rows = static_cast<int>(columns.rows[c]);
    moments.mean = columns.mean[c];
    if constexpr (hasSquares<Moments>)
        moments.squares = columns.squares[c];
    return moments;
}

inline constexpr int fewestColumnsForKernel = 3;
inline constexpr int fewestRowsForKernel = 16;

template <class Moments, class X, class Weight, class RowEnters, class Store>
void accumulateByKernel(X x, int n, int p, Weight w, RowEnters rowEnters, Store store)
{
    constexpr int most = MomentKernels::mostColumns;
    const auto kernel = hasSquares<Moments> ? momentKernels().addMoments : momentKernels().addMeans;
    for (int first = 0; first < p; first += most) {
        const int columns = std::min(p - first, most);
        MomentKernels::Moments moments = {};
        for (int row = 0; row < n;) {
            RowBlock rows;
            for (; row < n && rows.count < RowBlock::most; ++row)
                rows.add(row, w.get(row),
                         rowEnters(row) && !(Moments::zeroWeight == ZeroWeight::skipped && w.get(row) == 0.0));
            const BlockColumns<most> cells(x, rows, first, columns);
            kernel(rows.count, columns, cells.starts(), rows.w.data(), &moments);
        }
        for (int c = 0; c < columns; ++c)
            store(first + c, momentsOf<Moments>(moments, c));
    }
}

} // namespace detail

/// Computes the moments of each column over the rows accepted by `rowEnters` and the cells that are present (equality
/// test): `store(j, moments)` for each.
template <class Moments, class X, class Weight, class RowEnters, class Store>
void accumulateColumns(X x, int n, int p, Weight w, RowEnters rowEnters, Store store)
{
    if constexpr (detail::hasKernel<Moments>) {
        if (p >= detail::fewestColumnsForKernel && n >= detail::fewestRowsForKernel)
            return detail::accumulateByKernel<Moments>(x, n, p, w, rowEnters, store);
    }
    accumulate<Moments>(
        p, n,
        [=](Moments& moments, int j, int i) {
            if (rowEnters(i) && isPresent(x.get(i, j)))
                moments.add(x.get(i, j), w.get(i));
        },
        store);
}

} // namespace vecmat
