// When a sequence of cells is constant. Not part of the interface: shared by the functions over tables and over flat
// arrays.
#pragma once

#include "../../base/missing_value.h"

namespace vecmat {

/// Does every cell from number `from` (0-based) on equal the first? From 0 on the first is compared with itself, which
/// a NaN fails; from 1 on it is not.
template <class Vector>
bool equalsFirst(Vector x, int from, int n)
{
    for (int i = from; i < n; ++i)
        if (x.get(i) != x.get(0))
            return false;
    return true;
}

/// Number of the first cell that is not missing, or `n`.
template <class Vector>
int firstPresent(Vector x, int n)
{
    int i = 0;
    while (i < n && isMissing(x.get(i)))
        ++i;
    return i;
}

/// Do the cells that are not missing equal the first of them? Comparison starts at the second cell, so that a NaN fails
/// after a missing cell, being compared with itself, but not as the first cell.
template <class Vector>
bool presentCellsAgree(Vector x, int n)
{
    const int reference = firstPresent(x, n);
    if (reference >= n)
        return true;
    const double value = x.get(reference);
    for (int i = 1; i < n; ++i)
        if (const double cell = x.get(i); !isMissing(cell) && cell != value)
            return false;
    return true;
}

} // namespace vecmat
