#include "matrix.h"

#include "base/detail/checked_cells.h"
#include "base/detail/numbers.h"
#include "base/detail/table_arrays.h"
#include "base/missing_value.h"
#include "matrixInt.h"

#include <algorithm>
#include <utility>

using vecmat::copyOf;
using vecmat::countOf;
using vecmat::elementCount;
using vecmat::linearIndex;
using vecmat::outOfRangeValue;
using vecmat::readAt;
using vecmat::resizedCopyOf;
using vecmat::truncated;
using vecmat::writeAt;

namespace {

// The inline accessors are part of the binary interface too: taking their addresses emits them out of line.
[[gnu::used]] double (matrix::*const emittedGet)(int, int) = &matrix::vbget;
[[gnu::used]] void (matrix::*const emittedSet)(int, int, double) = &matrix::vbset;

bool canHold(const matrix* table, int rows, int cols)
{
    return table != nullptr && !vecmat::isUnset(table) && table->nRows >= rows && table->nCols >= cols;
}

} // namespace

matrix::matrix(int rows, int cols, int value) : matrix(rows, cols, static_cast<double>(value)) {}

matrix::matrix(int rows, int cols, double value) : matrix(Shape{rows, cols, elementCount(rows, cols)})
{
    X = new double[nElems];
    std::fill_n(X, nElems, value);
}

matrix::matrix(int rows, int cols, double* src, bool view) : matrix(Shape{rows, cols, elementCount(rows, cols)})
{
    ownsX = view ? 0 : 1;
    X = view ? src : copyOf(src, nElems);
}

matrix::matrix(int rows, int cols, double* src, int srcRows, int srcCols)
    : matrix(Shape{rows, cols, elementCount(rows, cols)})
{
    const unsigned given = elementCount(srcRows != 0 ? srcRows : rows, srcCols != 0 ? srcCols : cols);
    X = resizedCopyOf(src, given, nElems, 0.0);
    allocateClearedCounts();
}

matrix::matrix(int rows, int cols, short* src) : matrix(Shape{rows, cols, elementCount(rows, cols)})
{
    X = new double[nElems];
    std::copy_n(src, nElems, X);
    allocateClearedCounts();
}

matrix::matrix(int rows, matrix* src) : matrix(Shape{rows, src->nCols, elementCount(rows, src->nCols)})
{
    X = resizedCopyOf(src->X, src->nElems, nElems, outOfRangeValue);
    vecmat::copyArrays(*src, *this);
}

matrix::matrix(matrix& src) : matrix(src.nRows, &src) {}

matrix::~matrix()
{
    vecmat::deleteArrays(*this);
}

// Both pointers must be set on such tables, so that InitnCol and InitWeightcorr leave them alone; no entry is read
// before it is stored.
void matrix::allocateClearedCounts()
{
    nCol = new int[countOf(nCols)]();
    weightcorr = new double[countOf(nCols)]();
}

double* matrix::GetX()
{
    return X;
}

void matrix::copyMatTo(double* dst)
{
    std::copy_n(X, nElems, dst);
}

void matrix::copyMatTo(double* dst, int* rows, int* cols)
{
    *rows = nRows;
    *cols = nCols;
    copyMatTo(dst);
}

void matrix::copyMatTo(short* dst)
{
    std::transform(X, X + nElems, dst, [](double x) { return static_cast<short>(x == 0.0 ? 0 : -1); });
}

void matrix::copyMatTo(matrix* dst)
{
    dst->nRows = nRows;
    dst->nCols = nCols;
    dst->nElems = nElems;
    copyMatTo(dst->X);
}

void matrix::copyMatTo(matrixInt* dst)
{
    dst->nRows = nRows;
    dst->nCols = nCols;
    dst->nElems = nElems;
    std::transform(X, X + nElems, dst->X, truncated);
}

void matrix::vectorizeTo(matrix* dst)
{
    dst->nRows = static_cast<int>(static_cast<unsigned>(nRows) * static_cast<unsigned>(nCols));
    dst->nCols = 1;
    dst->nElems = nElems;
    copyMatTo(dst->X);
}

void matrix::condenseTo(matrix* dst)
{
    for (unsigned k = 0; k < dst->nElems; ++k)
        dst->X[k] = readAt(*this, k);
}

void matrix::transposeTo(matrix* dst)
{
    dst->nRows = nCols;
    dst->nCols = nRows;
    dst->nElems = nElems;
    for (int i = 0; i < nRows; ++i)
        for (int j = 0; j < nCols; ++j)
            writeAt(*dst, linearIndex(j, i, nCols), readAt(*this, linearIndex(i, j, nRows)));
}

void matrix::copyCol(matrix* src, int srcCol, int dstCol)
{
    if (srcCol < 0 || dstCol < 0 || srcCol >= src->nCols || dstCol >= nCols)
        return;
    for (int i = 0; i < src->nRows; ++i)
        writeAt(*this, linearIndex(i, dstCol, nRows), readAt(*src, linearIndex(i, srcCol, src->nRows)));
}

void matrix::copyCol(matrixInt* src, int srcCol, int dstCol)
{
    if (srcCol < 0 || dstCol < 0 || srcCol >= src->nCols || dstCol >= nCols)
        return;
    for (int i = 0; i < src->nRows; ++i)
        writeAt(*this, linearIndex(i, dstCol, nRows), src->vbget(i + 1, srcCol + 1));
}

void matrix::copyLine(matrix* src, int srcRow, int dstRow)
{
    if (srcRow < 0 || dstRow < 0 || srcRow >= src->nRows || dstRow >= nRows)
        return;
    for (int j = 0; j < src->nCols; ++j)
        writeAt(*this, linearIndex(dstRow, j, nRows), readAt(*src, linearIndex(srcRow, j, src->nRows)));
}

void matrix::transferLineFrom(matrix* src, int srcRow, int dstRow)
{
    if (srcRow < 0 || dstRow < 0 || srcRow >= src->nRows || dstRow >= nRows)
        return;
    for (int j = 0; j < src->nCols; ++j) {
        const unsigned here = linearIndex(dstRow, j, nRows);
        const unsigned there = linearIndex(srcRow, j, src->nRows);
        const double kept = readAt(*this, here);
        writeAt(*this, here, readAt(*src, there));
        writeAt(*src, there, kept);
    }
}

void matrix::matCheck(matrix*& ref, int rows, int cols, double value)
{
    if (canHold(ref, rows, cols)) {
        std::fill_n(ref->X, std::min(elementCount(rows, cols), ref->nElems), value);
        return;
    }
    // Null first, so that a failed allocation leaves nothing to delete twice. The check for the unset pattern prevents
    // it from being read above, not from being deleted here.
    vecmat::release(std::exchange(ref, nullptr));
    ref = new matrix(rows, cols, value);
}

void matrix::InitWeights()
{
    if (weights != nullptr)
        return;
    weights = new double[countOf(nRows)];
    std::fill_n(weights, countOf(nRows), 1.0);
}

void matrix::InitWeightcorr()
{
    if (weightcorr != nullptr)
        return;
    weightcorr = new double[countOf(nCols)];
    std::fill_n(weightcorr, countOf(nCols), static_cast<double>(nRows) - 1.0);
}

void matrix::InitnCol()
{
    if (nCol != nullptr)
        return;
    nCol = new int[countOf(nCols)];
    std::fill_n(nCol, countOf(nCols), nRows);
}

void matrix::weighting(double* w)
{
    InitWeights();
    std::copy_n(w, countOf(nRows), weights);
}

void matrix::weighting(matrix* w)
{
    InitWeights();
    for (unsigned i = 0; i < countOf(nRows); ++i)
        weights[i] = readAt(*w, i);
}
