// Crout's method and the inverse built on it, step by step in the published order, on checked cells.
#pragma once

#include "matrix.h"

#include <cmath>
#include <utility>
#include <vector>

namespace vecmat::test {

/// Which of several equal candidates becomes the pivot.
enum class Tie { last, first };

struct ReferencePivots
{
    std::vector<int> partner; // 1-based
    double parity = 1.0;
};

/// All numbers 1-based. `settle(a, j)` is what happens to pivot j; false ends it. Returns 0, -1 for a row of zeros, 1
/// where no pivot was chosen, -2 where `settle` refused.
template <class Settle>
int referenceCrout(matrix& a, int n, int pivotRowAtStart, Tie tie, ReferencePivots& pivots, Settle settle)
{
    std::vector<double> scale(static_cast<std::size_t>(n) + 1);
    for (int i = 1; i <= n; ++i) {
        double big = 0.0;
        for (int j = 1; j <= n; ++j)
            if (std::fabs(a.vbget(i, j)) > big)
                big = std::fabs(a.vbget(i, j));
        if (big == 0.0)
            return -1;
        scale[static_cast<std::size_t>(i)] = 1.0 / big;
    }
    int pivotRow = pivotRowAtStart;
    for (int j = 1; j <= n; ++j) {
        for (int i = 1; i < j; ++i) {
            double sum = a.vbget(i, j);
            for (int k = 1; k < i; ++k)
                sum -= a.vbget(i, k) * a.vbget(k, j);
            a.vbset(i, j, sum);
        }
        double big = 0.0;
        for (int i = j; i <= n; ++i) {
            double sum = a.vbget(i, j);
            for (int k = 1; k < j; ++k)
                sum -= a.vbget(i, k) * a.vbget(k, j);
            a.vbset(i, j, sum);
            const double t = scale[static_cast<std::size_t>(i)] * std::fabs(a.vbget(i, j));
            if (tie == Tie::last ? t >= big : t > big) {
                big = t;
                pivotRow = i;
            }
        }
        if (pivotRow == 0)
            return 1;
        if (pivotRow != j) {
            for (int c = 1; c <= n; ++c) {
                const double kept = a.vbget(pivotRow, c);
                a.vbset(pivotRow, c, a.vbget(j, c));
                a.vbset(j, c, kept);
            }
            pivots.parity = -pivots.parity;
            scale[static_cast<std::size_t>(pivotRow)] = scale[static_cast<std::size_t>(j)];
        }
        pivots.partner.push_back(pivotRow);
        if (!settle(a, j))
            return -2;
        if (j != n) {
            const double reciprocal = 1.0 / a.vbget(j, j);
            for (int i = j + 1; i <= n; ++i)
                a.vbset(i, j, a.vbget(i, j) * reciprocal);
        }
    }
    return 0;
}

/// The factorisation with the replacement of a zero pivot.
inline int referenceLU(matrix& a, int n, ReferencePivots& pivots, Tie tie = Tie::last)
{
    return referenceCrout(a, n, 0, tie, pivots, [](matrix& w, int j) {
        if (w.vbget(j, j) == 0.0)
            w.vbset(j, j, 1e-20);
        return true;
    });
}

/// The inverse of the block of order `n`; `out` stays where it fails.
inline int referenceInverse(const matrix& a, int n, double tol, matrix& out, Tie tie = Tie::last)
{
    matrix w(const_cast<matrix&>(a));
    const double threshold = tol <= 0.0 ? 2.220446049250313e-16 : 1e-08;
    ReferencePivots pivots;
    const auto settle = [&](matrix& cells, int j) { return !(std::fabs(cells.vbget(j, j)) <= threshold); };
    if (referenceCrout(w, n, 1, tie, pivots, settle) != 0)
        return -1;
    for (int c = 1; c <= n; ++c) {
        std::vector<double> b(static_cast<std::size_t>(n) + 1, 0.0);
        const auto at = [&b](int i) -> double& { return b[static_cast<std::size_t>(i)]; };
        at(c) = 1.0;
        int first = 0;
        for (int r = 1; r <= n; ++r) {
            const int other = pivots.partner[static_cast<std::size_t>(r) - 1];
            double sum = at(other);
            at(other) = at(r);
            if (first != 0) {
                for (int q = first; q < r; ++q)
                    sum -= w.vbget(r, q) * at(q);
            } else if (sum != 0.0) {
                first = r;
            }
            at(r) = sum;
        }
        for (int r = n; r >= 1; --r) {
            double sum = at(r);
            for (int q = r + 1; q <= n; ++q)
                sum -= w.vbget(r, q) * at(q);
            at(r) = sum / w.vbget(r, r);
        }
        for (int r = 1; r <= n; ++r)
            out.vbset(r, c, at(r));
    }
    return 0;
}

} // namespace vecmat::test
