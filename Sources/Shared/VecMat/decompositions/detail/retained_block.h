// Models with linear constraints mark parameters as fixed: their rows and columns are removed from a square table, and
// the result for the remaining block is written back to the original places.
#pragma once

#include "../../access/cells.h"
#include "../../base/detail/numbers.h"
#include "../../frame/detail/handles.h"

#include <vector>

namespace vecmat {

/// The rows and columns of a square table of order n that a mask of n entries retains.
struct Retained
{
    int order;              ///< n less the number of positive entries: the order of the block
    std::vector<int> which; ///< the rows and columns whose entries are exactly 0, from 0
};

/// A negative or NaN entry is neither: it counts in the order but its row and column are left out, so the last rows and
/// columns of the block stay 0.0. No caller passes one.
template <class Mask>
Retained retainedBy(Mask* mask, int n)
{
    Retained retained{n, {}};
    const VectorCells<Mask> entries = linear(mask);
    for (int i = 0; i < n; ++i) {
        if (entries.get(i) > 0)
            --retained.order;
        if (entries.get(i) == 0)
            retained.which.push_back(i);
    }
    return retained;
}

/// Copies the block to its own table.
inline TableHandle compressed(matrix* a, const Retained& retained)
{
    TableHandle result = fresh(retained.order, retained.order);
    const TableCells<matrix> source = cells(a);
    const TableCells<matrix> target = cells<matrix>(result);
    const int count = static_cast<int>(retained.which.size());
    for (int j = 0; j < count; ++j)
        for (int i = 0; i < count; ++i)
            target.set(i, j, source.get(retained.which[countOf(i)], retained.which[countOf(j)]));
    return result;
}

/// Writes each row of the block to its own row of `out`, over all n columns: 0.0 in the columns removed. Rows that were
/// removed are left unchanged.
inline void expand(matrix* compact, const Retained& retained, int n, matrix* out)
{
    const TableCells<matrix> source = cells(compact);
    const TableCells<matrix> target = cells(out);
    const int count = static_cast<int>(retained.which.size());
    for (int i = 0; i < count; ++i) {
        const int row = retained.which[countOf(i)];
        int next = 0;
        for (int j = 0; j < n; ++j) {
            const bool kept = next < count && retained.which[countOf(next)] == j;
            target.set(row, j, kept ? source.get(i, next++) : 0.0);
        }
    }
}

} // namespace vecmat
