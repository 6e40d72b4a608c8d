// Cholesky factors step by step in the prescribed order, on checked cells.
#pragma once

#include "matrix.h"

#include <cmath>

namespace vecmat::test {

/// In which order the terms of a cell are taken off.
enum class TermOrder { lastToFirst, firstToLast };

/// Row i of the factor, from 1; -1 where the pivot is below `least` or a divisor is 0.
inline int referenceCholeskyColumn(matrix& a, int i, int n, matrix& l, double least,
                                   TermOrder order = TermOrder::lastToFirst)
{
    for (int j = i; j <= n; ++j) {
        double t = a.vbget(i, j);
        for (int step = 1; step < i; ++step) {
            const int k = order == TermOrder::lastToFirst ? i - step : step;
            t -= l.vbget(i, k) * l.vbget(j, k);
        }
        if (j == i) {
            if (t < least)
                return -1;
            l.vbset(i, i, std::sqrt(t));
        } else {
            if (l.vbget(i, i) == 0.0)
                return -1;
            l.vbset(j, i, t / l.vbget(i, i));
        }
    }
    return 0;
}

inline int referenceCholesky(matrix& a, int n, matrix& l, double least, TermOrder order = TermOrder::lastToFirst)
{
    for (int i = 1; i <= n; ++i)
        if (referenceCholeskyColumn(a, i, n, l, least, order) != 0)
            return -1;
    return 0;
}

} // namespace vecmat::test
