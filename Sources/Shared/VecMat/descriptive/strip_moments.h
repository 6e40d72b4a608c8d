// Running means and variances of several columns by the vector kernels. Internal to the library.
#pragma once

#include "column_strips.h"
#include "running_moments.h"

#include <algorithm>
#include <type_traits>

namespace vecmat {

namespace detail {

/// Can the kernel for weighted moments stand in for this family?
template <class Moments>
inline constexpr bool hasStripKernel =
    std::is_same_v<typename Moments::Rule, update::Weighted>&& Moments::zeroWeight != ZeroWeight::updated;

template <class Moments>
Moments momentsOf(const MomentKernels::Moments& strip, int lane)
{
    Moments moments;
    moments.weights = strip.weights[lane];
    moments.rows = static_cast<int>(strip.rows[lane]);
    moments.mean = strip.mean[lane];
    if constexpr (requires { moments.squares; })
        moments.squares = strip.squares[lane];
    return moments;
}

inline constexpr int fewestColumnsForStrips = 3;
inline constexpr int fewestRowsForStrips = 16;

/// False: nothing is done, for want of memory or because the table is small.
template <class Moments, class X, class Weight, class RowEnters, class Store>
bool accumulateInStrips(X x, int n, int p, Weight w, RowEnters rowEnters, Store store)
{
    constexpr int lanes = MomentKernels::lanes;
    constexpr int most = 2; // strips that the kernel takes at once
    constexpr int rowsAtOnce = 128;
    if (p < fewestColumnsForStrips || n < fewestRowsForStrips)
        return false;
    for (int first = 0; first < p; first += most * lanes) {
        const ColumnStrips strips(rowsAtOnce, std::min(p - first, most * lanes));
        if (!strips)
            return false;
        MomentKernels::Moments moments[most] = {};
        int row = 0;
        while (row < n) {
            int rows[rowsAtOnce];
            double weights[rowsAtOnce];
            int count = 0;
            for (; row < n && count < rowsAtOnce; ++row) {
                if (!rowEnters(row) || (Moments::zeroWeight == ZeroWeight::skipped && w.get(row) == 0.0))
                    continue;
                rows[count] = row;
                weights[count++] = w.get(row);
            }
            strips.fill(count, first, p, [&](int k, int j) { return x.get(rows[k], j); });
            momentKernels().addMoments(count, strips.strip(0), strips.size(), strips.count(), weights, moments);
        }
        for (int j = first; j < std::min(p, first + most * lanes); ++j)
            store(j, momentsOf<Moments>(moments[(j - first) / lanes], (j - first) % lanes));
    }
    return true;
}

} // namespace detail

/// Computes the moments of each column over the rows that `rowEnters` lets in and the cells that are present (equality
/// test): `store(j, moments)` for each.
template <class Moments, class X, class Weight, class RowEnters, class Store>
void accumulateColumns(X x, int n, int p, Weight w, RowEnters rowEnters, Store store)
{
    if constexpr (detail::hasStripKernel<Moments>) {
        if (detail::accumulateInStrips<Moments>(x, n, p, w, rowEnters, store))
            return;
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
