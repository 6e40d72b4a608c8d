// The inverse of a triangular table, step by step in the prescribed order.
#pragma once

#include "matrix.h"

#include <cmath>

namespace vecmat::test {

/// The steps in their order, on checked cells.
inline int referenceTriangularInverse(matrix& a, int n, bool lower, matrix& out, double tol)
{
    for (int i = 1; i <= n; ++i) {
        if (std::fabs(a.vbget(i, i)) < tol)
            return -1;
        out.vbset(i, i, 1.0 / a.vbget(i, i));
    }
    for (int step = 2; step <= n; ++step) {
        const int i = lower ? step : n + 1 - step;
        for (int j = lower ? 1 : i + 1; j <= (lower ? i - 1 : n); ++j) {
            double sum = 0.0;
            for (int k = lower ? j : i + 1; k <= (lower ? i - 1 : j); ++k)
                sum += a.vbget(i, k) * out.vbget(k, j);
            out.vbset(i, j, -sum * out.vbget(i, i));
        }
    }
    return 0;
}

} // namespace vecmat::test
