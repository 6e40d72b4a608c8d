// The members of `matrix` that work on whole tables or on one row or column: sums of squares and products, products of
// tables, projection steps, the structure of a block. The column statistics are in `matrix_statistics.cpp`.
#include "access/cells.h"
#include "base/detail/numbers.h"
#include "base/missing_value.h"
#include "matrix.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

using vecmat::block;
using vecmat::cells;
using vecmat::countOf;
using vecmat::isMissing;
using vecmat::linear;
using vecmat::onBlocks;
using vecmat::outOfRangeValue;

namespace {

/// What a `double` member returns for an unsuitable shape, and on success.
constexpr double wrongShape = -1.0;
constexpr double done = 0.0;

double square(double x)
{
    return x * x;
}

/// In a projection step a divisor of zero counts as 1.0.
double ratio(double numerator, double denominator)
{
    return numerator / (denominator == 0.0 ? 1.0 : denominator);
}

/// The cell of `m` that decides whether row i takes part: in row `other`, or in column `other`.
double matchingCell(matrix* m, bool flag, int other, int i)
{
    return flag ? cells(m).get(other, i) : cells(m).get(i, other);
}

/// Sets column c of `out` to `target(i)` in each row i.
template <class Target>
void project(matrix* out, int col, Target target)
{
    const auto result = cells(out);
    for (int i = 0; i < out->nRows; ++i)
        result.set(i, col, target(i));
}

} // namespace

double sqr2(double x)
{
    return x < 0.0 ? vecmat::missingValue : std::sqrt(x);
}

// ---- one column or row ----------------------------------------------------------------------------------------------

double matrix::Normalize(int col)
{
    const auto x = cells(this);
    const double length = std::sqrt(VInnerProd(col));
    for (int i = 0; i < nRows; ++i)
        if (const double cell = x.get(i, col); !isMissing(cell))
            x.set(i, col, cell / length);
    return done;
}

double matrix::VInnerProd(int col)
{
    const auto x = cells(this);
    double sum = 0.0;
    for (int i = 0; i < nRows; ++i)
        if (const double cell = x.get(i, col); !isMissing(cell))
            sum += square(cell);
    return sum;
}

double matrix::VInnerProd(int col, bool flag, int other, matrix* m)
{
    const auto x = cells(this);
    double sum = 0.0;
    for (int i = 0; i < nRows; ++i)
        if (const double cell = x.get(i, col); !isMissing(cell) && !isMissing(matchingCell(m, flag, other, i)))
            sum += square(cell);
    return sum;
}

double matrix::VInnerProdWeighted(int col, bool flag, int other, matrix* m)
{
    InitWeights();
    const auto x = cells(this);
    double sum = 0.0;
    for (int i = 0; i < nRows; ++i)
        if (const double cell = x.get(i, col); !isMissing(cell) && !isMissing(matchingCell(m, flag, other, i)))
            sum += square(cell) * weights[i];
    return sum;
}

double matrix::VSProd(int col, matrix* m, int mCol)
{
    if (nRows != m->nRows)
        return wrongShape;
    InitWeights();
    const auto x = cells(this);
    const auto y = cells(m);
    double sum = 0.0;
    for (int i = 0; i < nRows; ++i)
        if (!isMissing(x.get(i, col)) && !isMissing(y.get(i, mCol)) && weights[i] > 0.0)
            sum += x.get(i, col) * y.get(i, mCol) * weights[i];
    return sum;
}

double matrix::transVSProd(int row, matrix* m, int mRow)
{
    if (nCols != m->nCols)
        return wrongShape;
    const auto x = cells(this);
    const auto y = cells(m);
    double sum = 0.0;
    for (int j = 0; j < nCols; ++j)
        if (!isMissing(x.get(row, j)) && !isMissing(y.get(mRow, j)))
            sum += x.get(row, j) * y.get(mRow, j);
    return sum;
}

double matrix::lineSqrSum(int row)
{
    if (row < 0 || row >= nRows)
        return wrongShape;
    const auto x = cells(this);
    double sum = 0.0;
    for (int j = 0; j < nCols; ++j)
        if (const double cell = x.get(row, j); !isMissing(cell))
            sum += square(cell);
    return sum;
}

double matrix::VDiff(matrix* m, int col, int mCol)
{
    const auto x = cells(this);
    const auto y = cells(m);
    double sum = 0.0;
    for (int i = 0; i < nRows; ++i)
        sum += square(x.get(i, col) - y.get(i, mCol));
    return sum;
}

void matrix::SProd(int row, double f)
{
    const auto x = cells(this);
    for (int j = 0; j < nCols; ++j)
        x.set(row, j, x.get(row, j) * f);
}

void matrix::weighting(double* w, int n)
{
    for (int r = 0; r < n; ++r)
        SProd(r, w[r]);
}

// ---- whole tables ---------------------------------------------------------------------------------------------------

double matrix::MDiff(matrix* m)
{
    if (nRows > m->nRows || nCols > m->nCols)
        return wrongShape;
    const auto x = cells(this);
    const auto y = cells(m);
    for (int j = 0; j < nCols; ++j)
        for (int i = 0; i < nRows; ++i)
            x.set(i, j, x.get(i, j) - y.get(i, j));
    return done;
}

double matrix::matProd(matrix* a, matrix* b)
{
    if (a->nCols != b->nRows || nRows != a->nRows || nCols != b->nCols)
        return wrongShape;
    onBlocks(
        [this, inner = a->nCols](auto result, auto x, auto y) {
            // Down whole columns of the result; each cell still sums over k in order.
            for (int j = 0; j < nCols; ++j) {
                for (int i = 0; i < nRows; ++i)
                    result.set(i, j, 0.0);
                for (int k = 0; k < inner; ++k)
                    for (int i = 0; i < nRows; ++i)
                        result.set(i, j, result.get(i, j) + x.get(i, k) * y.get(k, j));
            }
        },
        block(cells(this), nRows, nCols), block(cells(a), a->nRows, a->nCols), block(cells(b), b->nRows, b->nCols));
    return done;
}

double matrix::transMatProd(matrix* a, matrix* b)
{
    if (a->nRows != b->nRows || nRows != a->nCols || nCols != b->nCols)
        return wrongShape;
    onBlocks(
        [this, inner = a->nRows](auto result, auto x, auto y) {
            for (int j = 0; j < nCols; ++j)
                for (int i = 0; i < nRows; ++i) {
                    double sum = 0.0;
                    for (int k = 0; k < inner; ++k)
                        sum += x.get(k, i) * y.get(k, j);
                    result.set(i, j, sum);
                }
        },
        block(cells(this), nRows, nCols), block(cells(a), a->nRows, a->nCols), block(cells(b), b->nRows, b->nCols));
    return done;
}

double matrix::vecProd(matrix* a, int col, matrix* b, int bCol)
{
    if (nRows != a->nRows)
        return wrongShape;
    const auto result = cells(this);
    for (int j = 0; j < nCols; ++j)
        for (int i = 0; i < nRows; ++i)
            result.set(i, j, cells(a).get(i, col) * cells(b).get(j, bCol));
    return done;
}

double matrix::trans1vecProd(matrix* a, int row, matrix* v, matrix* b, int bRow)
{
    if (nRows != a->nCols)
        return wrongShape;
    const auto result = cells(this);
    const double factor = linear(v).get(row);
    const auto deviation = [=, x = cells(a), y = cells(b)](int j) { return x.get(row, j) - y.get(bRow, j); };
    for (int j = 0; j < nCols; ++j)
        for (int i = 0; i < nRows; ++i)
            result.set(i, j, result.get(i, j) + factor * deviation(i) * deviation(j));
    return done;
}

double matrix::matVecProd(matrix* a, matrix* b, int col, int dst)
{
    if (a->nCols != b->nRows || nRows != a->nRows)
        return wrongShape;
    const auto x = cells(a);
    const auto y = cells(b);
    for (int i = 0; i < nRows; ++i) {
        double sum = 0.0;
        // Up to this table's column count, not the factors': if they differ the reads run past the factors.
        for (int k = 0; k < nCols; ++k)
            sum += x.get(i, k) * y.get(k, col);
        cells(this).set(i, dst, sum);
    }
    return done;
}

void matrix::oneMinus()
{
    const auto x = cells(this);
    for (int j = 0; j < nCols; ++j)
        for (int i = 0; i < nRows; ++i)
            x.set(i, j, (i == j ? 1.0 : 0.0) - x.get(i, j));
}

void matrix::subtractResidual(matrix* t, int k, matrix* p)
{
    const auto x = cells(this);
    for (int j = 0; j < nCols; ++j) {
        const double loading = cells(p).get(j, k);
        if (isMissing(loading))
            continue;
        for (int i = 0; i < nRows; ++i) {
            const double cell = x.get(i, j);
            const double score = cells(t).get(i, k);
            if (!isMissing(cell) && !isMissing(score))
                x.set(i, j, cell - score * loading);
        }
    }
}

double matrix::predictLine(matrix* t, matrix* p, int row, int n, int tRow)
{
    const auto x = cells(this);
    double sum = 0.0;
    for (int k = 0; k < n; ++k)
        for (int j = 0; j < nCols; ++j) {
            const double score = cells(t).get(tRow, k);
            const double loading = cells(p).get(j, k);
            const double cell = x.get(row, j);
            if (!isMissing(score) && !isMissing(loading) && !isMissing(cell))
                sum += score * loading * cell;
        }
    return sum;
}

// ---- projection steps -----------------------------------------------------------------------------------------------
// Of the four, only the weighted step over rows checks whether the cell of `x` is missing, and only it has weights in
// its divisor: those of `x`.

void matrix::GaussProd(matrix* x, int col, matrix* out)
{
    project(out, col, [=, this, own = cells(this), factor = cells(x)](int i) {
        double sum = 0.0;
        for (int j = 0; j < nCols; ++j)
            if (const double cell = own.get(i, j); !isMissing(cell))
                sum += cell * factor.get(j, col);
        return ratio(sum, x->VInnerProd(col, true, i, this));
    });
}

void matrix::transGaussProd(matrix* x, int col, matrix* out)
{
    project(out, col, [=, this, own = cells(this), factor = cells(x)](int i) {
        double sum = 0.0;
        for (int k = 0; k < nRows; ++k)
            if (const double cell = own.get(k, i); !isMissing(cell))
                sum += cell * factor.get(k, col);
        return ratio(sum, x->VInnerProd(col, false, i, this));
    });
}

void matrix::GaussProdWeighted(matrix* x, int col, matrix* out)
{
    InitWeights();
    project(out, col, [=, this, own = cells(this), factor = cells(x)](int i) {
        // A target row beyond this table has no weight: it reads as -1.0, like its cells, and adds nothing.
        const double weight = i < nRows ? weights[i] : outOfRangeValue;
        double sum = 0.0;
        if (weight > 0.0)
            for (int j = 0; j < nCols; ++j)
                if (const double cell = own.get(i, j); !isMissing(cell))
                    sum += cell * factor.get(j, col) * weight;
        return ratio(sum, x->VInnerProd(col, true, i, this));
    });
}

void matrix::transGaussProdWeighted(matrix* x, int col, matrix* out)
{
    InitWeights();
    project(out, col, [=, this, own = cells(this), factor = cells(x)](int i) {
        double sum = 0.0;
        for (int k = 0; k < nRows; ++k) {
            const double cell = own.get(k, i);
            const double other = factor.get(k, col);
            if (!isMissing(cell) && !isMissing(other) && weights[k] > 0.0)
                sum += cell * weights[k] * other;
        }
        return ratio(sum, x->VInnerProdWeighted(col, false, i, this));
    });
}

// ---- the structure of a block ---------------------------------------------------------------------------------------

void matrix::calcStrucInfo(int rows, int cols, bool* colZero, bool* rowZero, bool* diag, int row0, int col0)
{
    const bool square = rows == cols;
    std::fill_n(colZero, countOf(cols), true);
    std::fill_n(rowZero, countOf(rows), true);
    std::fill_n(diag, countOf(std::max(rows, cols)), square);
    for (int c = 0; c < cols; ++c) {
        const double* column = X + row0 + static_cast<std::ptrdiff_t>(nRows) * (col0 + c);
        for (int r = 0; r < rows; ++r)
            if (column[r] != 0.0) {
                colZero[c] = false;
                rowZero[r] = false;
                if (square && r != c) {
                    diag[r] = false;
                    diag[c] = false;
                }
            }
    }
}
