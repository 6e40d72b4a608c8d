#include "g2_inverse.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../sorting/copy_block.h"

#include <cmath>

using namespace vecmat;

namespace {

template <class Cells>
void clearRowAndColumn(Cells a, int n, int k)
{
    for (int j = 0; j < n; ++j)
        a.set(k, j, 0.0);
    for (int i = 0; i < n; ++i)
        a.set(i, k, 0.0);
}

template <class Cells>
void sweep(Cells a, int n, int k, double tol)
{
    const double d = a.get(k, k);
    if (std::fabs(d) < tol) {
        clearRowAndColumn(a, n, k);
        return;
    }
    for (int j = 0; j < n; ++j)
        a.set(k, j, a.get(k, j) / d);
    for (int i = 0; i < n; ++i) {
        if (i == k)
            continue;
        const double c = a.get(i, k);
        for (int j = 0; j < n; ++j)
            a.set(i, j, a.get(i, j) - a.get(k, j) * c);
        a.set(i, k, -c / d);
    }
    a.set(k, k, 1.0 / d);
}

} // namespace

void G2SweepStep(matrix* a, int n, int k, double tol)
{
    const int pivot = zeroBased(k);
    const bool inside = pivot >= 0 && pivot < n && cells(a).covers(n, n);
    onBlocks([=](auto x) { sweep(x, n, pivot, tol); }, Block<TableCells<matrix>>{cells(a), inside});
}

void M_InverseG2(matrix* a, int n, double tol, matrix* out)
{
    M_CopyBlock(a, 1, n, 1, n, out);
    for (int k = 1; k <= n; ++k)
        G2SweepStep(out, n, k, tol);
}

void M_InverseG2Selective(matrix* a, int n, matrixInt* select, double tol, matrix* out, short zeroOthers)
{
    M_CopyBlock(a, 1, n, 1, n, out);
    for (int k = 1; k <= n; ++k) {
        if (select->vbget(k, 1) == 1)
            G2SweepStep(out, n, k, tol);
        else if (zeroOthers == -1)
            clearRowAndColumn(cells(out), n, k - 1);
    }
}
