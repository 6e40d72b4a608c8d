#include "Smatrix.h"

#include "base/detail/companions.h"
#include "base/detail/numbers.h"
#include "base/detail/outgoing_texts.h"
#include "base/detail/table_arrays.h"

#include <algorithm>

using vecmat::elementCount;

// Every public constructor delegates to this one, so that the destructor releases what was allocated before a failure.
Smatrix::Smatrix(Shape shape)
    : nElems(elementCount(shape.rows, shape.cols)), nRows(shape.rows), nCols(shape.cols), X(new std::wstring[nElems])
{
}

Smatrix::Smatrix(int rows, int cols) : Smatrix(Shape{rows, cols}) {}

Smatrix::Smatrix(int rows, int cols, wchar_t** src, int srcRows, int srcCols) : Smatrix(Shape{rows, cols})
{
    const unsigned given = elementCount(srcRows != 0 ? srcRows : rows, srcCols != 0 ? srcCols : cols);
    const unsigned read = std::min(given, nElems);
    for (unsigned k = 0; k < read; ++k)
        if (src[k] != nullptr)
            X[k] = CW162W32(src[k]);
}

Smatrix::Smatrix(Smatrix& src) : Smatrix(Shape{src.nRows, src.nCols})
{
    std::copy_n(src.X, nElems, X);
}

Smatrix::~Smatrix()
{
    delete[] X;
}

void Smatrix::matCheck(Smatrix*& ref, int rows, int cols)
{
    const bool exact = ref != nullptr && !vecmat::isUnset(ref) && ref->nRows == rows && ref->nCols == cols;
    if (!exact)
        ref = new Smatrix(rows, cols);
}

void Smatrix::copyMatTo(Smatrix* dst)
{
    dst->nRows = nRows;
    dst->nCols = nCols;
    dst->nElems = nElems;
    if (dst->X != X)
        std::copy_n(X, nElems, dst->X);
}

void Smatrix::copyMatTo(wchar_t** dst)
{
    vecmat::OutgoingTexts texts;
    texts.add(X, nElems, dst);
    texts.store();
}
