#include "matrixInt.h"

#include "frame/missing_value.h"
#include "frame/numbers.h"

#include <algorithm>
#include <utility>

using vecmat::countOf;
using vecmat::elementCount;
using vecmat::outOfRangeValue;
using vecmat::truncated;

namespace {

// The inline accessors are part of the binary interface too: taking their addresses emits them out of line.
[[gnu::used]] int (matrixInt::*const emittedGet)(int, int) = &matrixInt::vbget;
[[gnu::used]] void (matrixInt::*const emittedSet)(int, int, int) = &matrixInt::vbset;

template <class Number>
Number* copyOf(const Number* src, unsigned n)
{
    return std::copy_n(src, n, new Number[n]) - n;
}

} // namespace

// Every public constructor delegates to this one, so that the destructor releases what was allocated before a failure.
matrixInt::matrixInt(Shape shape) : nRows(shape.rows), nCols(shape.cols), nElems(elementCount(shape.rows, shape.cols))
{
}

matrixInt::matrixInt(int rows, int cols, int value) : matrixInt(Shape{rows, cols})
{
    X = new int[nElems];
    std::fill_n(X, nElems, value);
}

matrixInt::matrixInt(int rows, int cols, int* src, bool view) : matrixInt(Shape{rows, cols})
{
    ownsX = view ? 0 : 1;
    X = view ? src : copyOf(src, nElems);
    nCol = new int[countOf(cols)];
    std::fill_n(nCol, countOf(cols), rows);
    weightcorr = new double[countOf(cols)];
    std::fill_n(weightcorr, countOf(cols), static_cast<double>(rows) - 1.0);
}

matrixInt::matrixInt(int rows, matrixInt* src) : matrixInt(Shape{rows, src->nCols})
{
    const unsigned columns = countOf(nCols);
    X = new int[nElems];
    const unsigned cells = std::min(nElems, src->nElems);
    std::fill(std::copy_n(src->X, cells, X), X + nElems, -1);
    if (src->weightcorr != nullptr)
        weightcorr = copyOf(src->weightcorr, columns);
    if (src->nCol != nullptr)
        nCol = copyOf(src->nCol, columns);
    if (src->weights != nullptr) {
        weights = new double[countOf(rows)];
        const unsigned known = std::min(countOf(rows), countOf(src->nRows));
        std::fill(std::copy_n(src->weights, known, weights), weights + countOf(rows), outOfRangeValue);
    }
    if (src->normalized == 1) {
        norMu = copyOf(src->norMu, columns);
        norSigma = copyOf(src->norSigma, columns);
        normalized = 1;
    }
}

matrixInt::~matrixInt()
{
    if (ownsX == 1)
        delete[] X;
    delete[] weights;
    delete[] nCol;
    delete[] weightcorr;
    delete[] descMu;
    delete[] descSigma;
    delete[] norMu;
    delete[] norSigma;
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
    delete std::exchange(ref, nullptr);
    ref = new matrixInt(rows, cols, filler);
}
