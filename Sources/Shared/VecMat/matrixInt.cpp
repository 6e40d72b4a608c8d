#include "matrixInt.h"

#include "base/detail/numbers.h"
#include "base/detail/table_arrays.h"

#include <algorithm>
#include <utility>

using vecmat::copyOf;
using vecmat::countOf;
using vecmat::elementCount;
using vecmat::truncated;

namespace {

// The inline accessors are part of the binary interface too: taking their addresses emits them out of line.
[[gnu::used]] int (matrixInt::*const emittedGet)(int, int) = &matrixInt::vbget;
[[gnu::used]] void (matrixInt::*const emittedSet)(int, int, int) = &matrixInt::vbset;

} // namespace

matrixInt::matrixInt(int rows, int cols, int value) : matrixInt(Shape{rows, cols, elementCount(rows, cols)})
{
    X = new int[nElems];
    std::fill_n(X, nElems, value);
}

matrixInt::matrixInt(int rows, int cols, int* src, bool view) : matrixInt(Shape{rows, cols, elementCount(rows, cols)})
{
    ownsX = view ? 0 : 1;
    X = view ? src : copyOf(src, nElems);
    nCol = new int[countOf(cols)];
    std::fill_n(nCol, countOf(cols), rows);
    weightcorr = new double[countOf(cols)];
    std::fill_n(weightcorr, countOf(cols), static_cast<double>(rows) - 1.0);
}

matrixInt::matrixInt(int rows, matrixInt* src) : matrixInt(Shape{rows, src->nCols, elementCount(rows, src->nCols)})
{
    X = vecmat::resizedCopyOf(src->X, src->nElems, nElems, -1);
    vecmat::copyArrays(*src, *this);
}

matrixInt::~matrixInt()
{
    vecmat::deleteArrays(*this);
}

void matrixInt::copyMatTo(int* dst)
{
    std::copy_n(X, nElems, dst);
}

void matrixInt::copyMatTo(matrixInt* dst)
{
    dst->nRows = nRows;
    dst->nCols = nCols;
    dst->nElems = nElems;
    copyMatTo(dst->X);
}

void matrixInt::matCheck(matrixInt*& ref, int rows, int cols, double value)
{
    const int filler = truncated(value);
    if (ref != nullptr && ref->nRows >= rows && ref->nCols >= cols) {
        std::fill_n(ref->X, std::min(elementCount(rows, cols), ref->nElems), filler);
        return;
    }
    vecmat::release(std::exchange(ref, nullptr));
    ref = new matrixInt(rows, cols, filler);
}
