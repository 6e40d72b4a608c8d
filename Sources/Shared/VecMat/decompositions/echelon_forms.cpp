#include "echelon_forms.h"

#include "../access/cells.h"
#include "../base/missing_value.h"

#include <cmath>

using namespace vecmat;

namespace {

bool isOne(double x)
{
    return std::fabs(x - 1.0) < zeroTolerance;
}

template <class Cells>
void clearRow(Cells out, int row, int from, int n)
{
    for (int c = from; c < n; ++c)
        out.set(row, c, 0.0);
}

template <class Cells>
void bringPivotToOne(Cells out, int i, int n)
{
    const double pivot = out.get(i, i);
    if (std::fabs(pivot - 1.0) > zeroTolerance) {
        for (int j = i + 1; j < n; ++j)
            out.set(i, j, out.get(i, j) / pivot);
        out.set(i, i, 1.0);
    }
}

/// Eliminates row i, whose pivot is 1, from the rows below it.
template <class Cells>
void reduceRowsBelow(Cells out, int i, int n)
{
    for (int r = i + 1; r < n; ++r) {
        // Only the next row is divided, by the pivot it is about to get.
        const double q = r == i + 1 ? out.get(r, r) - out.get(r, i) * out.get(i, r) : 1.0;
        if (std::fabs(q) > zeroTolerance) {
            for (int c = i + 1; c < n; ++c)
                out.set(r, c, (out.get(r, c) - out.get(r, i) * out.get(i, c)) / q);
            out.set(r, i, 0.0);
        } else {
            clearRow(out, r, i, n);
        }
    }
}

template <class Source, class Cells>
void forwardDoolittle(Source a, Cells out, int n)
{
    for (int i = 0; i < n; ++i)
        for (int j = i; j < n; ++j) {
            out.set(i, j, a.get(i, j));
            out.set(j, i, a.get(i, j));
        }
    for (int i = 0; i < n; ++i) {
        if (std::fabs(out.get(i, i)) <= zeroTolerance) {
            clearRow(out, i, i, n);
        } else {
            bringPivotToOne(out, i, n);
            reduceRowsBelow(out, i, n);
        }
        for (int r = i + 1; r < n; ++r)
            out.set(r, i, 0.0);
    }
}

/// Clears the cells above the pivots.
template <class Cells>
void reduceRowsAbove(Cells h, int n)
{
    for (int i = 1; i < n; ++i) {
        if (!isOne(h.get(i, i)))
            continue;
        for (int k = 0; k < i; ++k) {
            if (!(std::fabs(h.get(k, i)) > zeroTolerance))
                continue;
            for (int c = i + 1; c < n; ++c)
                h.set(k, c, h.get(k, c) - h.get(k, i) * h.get(i, c));
            h.set(k, i, 0.0);
        }
    }
}

} // namespace

void M_ForwardDoolittle(matrix* a, int n, matrix* out)
{
    onBlocks([n](auto x, auto y) { forwardDoolittle(x, y, n); }, block(cells(a), n, n), block(cells(out), n, n));
}

void M_HermiteCanonical(matrix* a, int n, matrix* h)
{
    M_ForwardDoolittle(a, n, h);
    onBlocks([n](auto x) { reduceRowsAbove(x, n); }, block(cells(h), n, n));
}
