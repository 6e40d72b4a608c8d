// Householder reduction of a symmetric table to tridiagonal form, and QL iteration with implicit shifts: the pair
// published as tred2 and tqli (Press, Flannery, Teukolsky, Vetterling: Numerical Recipes, 1st edition, after Martin,
// Reinsch and Wilkinson, Numerische Mathematik 11, 1968), over accessors, so that every storage has the same
// arithmetic.
//
// It departs from the publication in two points: an eigenvalue gets 28 passes, and an off-diagonal element is
// negligible by its absolute value alone, whatever the size of its neighbours on the diagonal.
#pragma once

#include "../../base/detail/companions.h"
#include "../../base/missing_value.h"

#include <cmath>
#include <cstddef>
#include <vector>

namespace vecmat {

inline constexpr int passesForEachEigenvalue = 28;

/// Turns the cells of a row left of the diagonal into the Householder vector that clears all but the last of them. That
/// one becomes the off-diagonal element, and `h` half the squared length of the vector. Returns false, with h 0.0, if
/// there is nothing to do.
template <class Row>
bool makeReflection(Row row, int count, double& offDiagonal, double& h)
{
    h = 0.0;
    double scale = 0.0;
    if (count > 1)
        for (int k = 0; k < count; ++k)
            scale += std::fabs(row.get(k));
    const int last = count - 1;
    if (count == 1 || scale == 0.0) {
        offDiagonal = row.get(last);
        return false;
    }
    for (int k = 0; k < count; ++k) {
        row.set(k, row.get(k) / scale);
        h += row.get(k) * row.get(k);
    }
    const double f = row.get(last);
    const double root = f > 0.0 ? -squareRoot(h) : squareRoot(h);
    offDiagonal = scale * root;
    h -= f * root;
    row.set(last, f - root);
    return true;
}

template <class Cells>
struct RowCells
{
    Cells cells;
    int row;

    double get(int k) const { return cells.get(row, k); }
    void set(int k, double value) const { cells.set(row, k, value); }
};

/// One row of the reduction: clears row i of the leading block left of the subdiagonal. Returns the h of the
/// Householder vector, which stays in the row.
template <class Cells, class Vector>
double eliminateRow(Cells a, Vector e, int i)
{
    const int l = i - 1;
    double offDiagonal = 0.0;
    double h = 0.0;
    const bool reflected = makeReflection(RowCells<Cells>{a, i}, i, offDiagonal, h);
    e.set(i, offDiagonal);
    if (!reflected)
        return h;
    double f = 0.0;
    for (int j = 0; j <= l; ++j) {
        a.set(j, i, a.get(i, j) / h);
        double g = 0.0;
        for (int k = 0; k <= j; ++k)
            g += a.get(j, k) * a.get(i, k);
        for (int k = j + 1; k <= l; ++k)
            g += a.get(k, j) * a.get(i, k);
        e.set(j, g / h);
        f += e.get(j) * a.get(i, j);
    }
    const double hh = f / (h + h);
    for (int j = 0; j <= l; ++j) {
        f = a.get(i, j);
        const double g = e.get(j) - hh * f;
        e.set(j, g);
        for (int k = 0; k <= j; ++k)
            a.set(j, k, a.get(j, k) - (f * e.get(k) + g * a.get(i, k)));
    }
    return h;
}

/// Reduces the lower triangle of `a` to the diagonal `d` and the off-diagonal `e` (from place 1), and leaves in `a` the
/// orthogonal table that does so.
template <class Cells, class Diagonal, class Vector>
void tridiagonalise(Cells a, Diagonal d, Vector e, int n)
{
    for (int i = n - 1; i >= 1; --i)
        d.set(i, eliminateRow(a, e, i));
    d.set(0, 0.0);
    e.set(0, 0.0);
    for (int i = 0; i < n; ++i) {
        if (d.get(i) != 0.0)
            for (int j = 0; j < i; ++j) {
                double g = 0.0;
                for (int k = 0; k < i; ++k)
                    g += a.get(i, k) * a.get(k, j);
                for (int k = 0; k < i; ++k)
                    a.set(k, j, a.get(k, j) - g * a.get(k, i));
            }
        d.set(i, a.get(i, i));
        a.set(i, i, 1.0);
        for (int j = 0; j < i; ++j) {
            a.set(j, i, 0.0);
            a.set(i, j, 0.0);
        }
    }
}

/// First place from l on whose off-diagonal element is negligible; the last place if none.
template <class Vector>
int endOfBlock(Vector e, int l, int n)
{
    int m = l;
    while (m < n - 1 && !(std::fabs(e.get(m)) < negligible))
        ++m;
    return m;
}

/// One pass of QL over the block from l to m. `rotate(i, c, s)` rotates columns i + 1 and i of the vectors:
/// x' = c x + s y and y' = c y - s x.
template <class Diagonal, class Vector, class Rotate>
void qlPass(Diagonal d, Vector e, int l, int m, Rotate rotate)
{
    double g = (d.get(l + 1) - d.get(l)) / (e.get(l) + e.get(l));
    double r = squareRoot(g * g + 1.0);
    g = (d.get(m) - d.get(l)) + e.get(l) / (g + FSign(r, g));
    double s = 1.0;
    double c = 1.0;
    double p = 0.0;
    for (int i = m - 1; i >= l; --i) {
        const double f = s * e.get(i);
        const double b = c * e.get(i);
        // Branching on the larger term takes the place of a hypotenuse; a vanishing radius is not checked for.
        if (std::fabs(g) <= std::fabs(f)) {
            c = g / f;
            r = squareRoot(c * c + 1.0);
            e.set(i + 1, f * r);
            s = 1.0 / r;
            c = c * s;
        } else {
            s = f / g;
            r = squareRoot(s * s + 1.0);
            e.set(i + 1, g * r);
            c = 1.0 / r;
            s = s * c;
        }
        g = d.get(i + 1) - p;
        r = (d.get(i) - g) * s + (c + c) * b;
        p = s * r;
        d.set(i + 1, g + p);
        g = r * c - b;
        rotate(i, c, s);
    }
    d.set(l, d.get(l) - p);
    e.set(l, g);
    e.set(m, 0.0);
}

/// Eigenvalues of the tridiagonal table with the diagonal `d` and, from place 1 on, the off-diagonal `e`, which is
/// destroyed. False if an eigenvalue exceeds its passes.
template <class Diagonal, class Vector, class Rotate>
bool qlIteration(Diagonal d, Vector e, int n, Rotate rotate)
{
    for (int i = 1; i < n; ++i)
        e.set(i - 1, e.get(i));
    e.set(n - 1, 0.0);
    for (int l = 0; l < n; ++l) {
        int passes = 0;
        for (int m = endOfBlock(e, l, n); m != l; m = endOfBlock(e, l, n)) {
            if (passes == passesForEachEigenvalue)
                return false;
            ++passes;
            qlPass(d, e, l, m, rotate);
        }
    }
    return true;
}

/// Writes the eigenvalues to `d` and the eigenvectors to the columns of `a`, whose lower triangle is the input. `e` is
/// scratch memory for n values. False if an eigenvalue exceeds its passes; `d` and `a` then hold the interrupted state.
template <class Cells, class Diagonal, class Vector>
bool eigenInPlace(Cells a, Diagonal d, Vector e, int n)
{
    if (n < 1)
        return true;
    tridiagonalise(a, d, e, n);
    return qlIteration(d, e, n, [a, n](int i, double c, double s) {
        for (int k = 0; k < n; ++k) {
            const double f = a.get(k, i + 1);
            a.set(k, i + 1, s * a.get(k, i) + c * f);
            a.set(k, i, c * a.get(k, i) - s * f);
        }
    });
}

} // namespace vecmat
