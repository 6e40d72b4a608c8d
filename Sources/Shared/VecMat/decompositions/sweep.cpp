#include "sweep.h"

#include "../access/cells.h"
#include "../access/packed_cells.h"
#include "../base/detail/local_array.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../kernels/update_kernels.h"

#include <algorithm>
#include <cmath>

using namespace vecmat;

namespace {

/// Up to this order all positions fit an int.
constexpr int largestPlainOrder = 65535;

/// Fewer cells than this cost less than calling a kernel.
constexpr int leastForKernel = 8;

/// Position of cell (i, j), both from 0, for an accessor in linear order. Out-of-range numbers wrap.
int at(int i, int j)
{
    return static_cast<int>(static_cast<unsigned>(packedPosition(i, j)));
}

/// Adds `c` times the pivot's column to cells `first` to `end` - 1 of row i, and clears what is negligible.
template <class Cells>
void addToRow(Cells a, int i, int first, int end, const double* pivotColumn, double c)
{
    const auto start = static_cast<unsigned>(at(i, 0));
    if constexpr (requires { a.data(); })
        if (end - first >= leastForKernel) {
            double* const row = a.data() + start;
            updateKernels().addAndClear(end - first, pivotColumn + first, c, zeroTolerance, row + first);
            return;
        }
    for (int j = first; j < end; ++j) {
        const int cell = static_cast<int>(start + static_cast<unsigned>(j));
        const double swept = a.get(cell) + pivotColumn[j] * c;
        a.set(cell, std::fabs(swept) < zeroTolerance ? 0.0 : swept);
    }
}

template <class Cells>
void sweep(Cells a, int n, int k)
{
    // The pivot's column as scaled in this sweep; no later step changes it.
    LocalArray<double> scratch(countOf(n));
    double* const pivotColumn = scratch.data();
    a.set(at(k, k), -1.0 / a.get(at(k, k)));
    // Read back: a pivot outside the table is -1.0 here and so counts as one that was positive.
    const double d = a.get(at(k, k));
    const double scale = std::fabs(d);
    for (int i = 0; i < n; ++i) {
        if (i == k)
            continue;
        const int cell = at(i, k);
        const double c = d < 0.0 ? -a.get(cell) : a.get(cell);
        a.set(cell, a.get(cell) * scale);
        pivotColumn[i] = a.get(cell);
        if (i < k) {
            addToRow(a, i, 0, i + 1, pivotColumn, c);
        } else {
            addToRow(a, i, 0, std::max(k, 0), pivotColumn, c);
            addToRow(a, i, std::max(k + 1, 0), i + 1, pivotColumn, c);
        }
    }
}

} // namespace

int M_Sweep(matrix* a, int n, int k)
{
    const int pivot = zeroBased(k);
    const VectorCells<matrix> checked = linear(a);
    const int order = std::max(n, k);
    // Tests the number itself: the lowest one would wrap to a positive pivot.
    const bool inside = k >= 1 && order <= largestPlainOrder && checked.covers(at(order - 1, order - 1) + 1);
    onBlocks([=](auto packed) { sweep(packed, n, pivot); }, Block<VectorCells<matrix>>{checked, inside});
    return 0;
}
