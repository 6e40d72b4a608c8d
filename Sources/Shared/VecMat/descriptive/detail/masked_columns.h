// Transforms columns one by one, each with its own mask. Internal to the library.
#pragma once

#include "../../base/detail/masks.h"
#include "../../base/detail/numbers.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace vecmat {

/// Column j of Z becomes the result of `transform(column, mask)` for a copy of column j of X. The mask drops the rows
/// where `a` is exactly -1 or the cell is missing by the order test. X and Z are n by p and may be the same array: each
/// column is complete before it is written back, and no later column reads it.
template <class Transform>
void transformMaskedColumns(const double* X, int n, int p, short* a, double* Z, Transform transform)
{
    const std::size_t rows = countOf(n);
    std::vector<short> mask(rows);
    std::vector<double> column(rows);
    for (std::size_t j = 0; j < countOf(p); ++j) {
        std::copy_n(X + rows * j, rows, column.begin());
        std::transform(a, a + rows, column.begin(), mask.begin(), maskOfMissing);
        transform(column.data(), mask.data());
        std::copy_n(column.begin(), rows, Z + rows * j);
    }
}

} // namespace vecmat
