#include "missing_masks.h"

#include "../access/cells.h"
#include "../base/detail/masks.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../elementary/detail/texts.h"
#include "detail/text_calls.h"

using vecmat::block;
using vecmat::booleanOf;
using vecmat::CallerTexts;
using vecmat::cells;
using vecmat::isMissing;
using vecmat::linear;
using vecmat::maskOfMissing;
using vecmat::missingValue;
using vecmat::onBlocks;
using vecmat::TableTexts;
using vecmat::triangle;

namespace {

constexpr bool isSet(short flag)
{
    return flag == -1;
}

template <class Texts>
void flagEmpty(Texts texts, int n, const short* filter, short* out)
{
    for (int i = 0; i < n; ++i)
        if (isSet(filter[i]) && texts.at(i, 0).empty())
            out[i] = -1;
}

/// Each column would overwrite the flags of the one before, so only the last one is read.
template <class Storage>
void flagMissing(Storage storage, int rows, int cols, const short* filter, short* out)
{
    if (cols < 1)
        return;
    onBlocks(
        [=](auto x) {
            for (int i = 0; i < rows; ++i)
                out[i] = maskOfMissing(filter[i], x.get(i, cols - 1));
        },
        block(storage, rows, cols));
}

template <class Storage>
void markMissing(Storage storage, int rows, int cols, matrixInt* out)
{
    onBlocks(
        [=](auto x, auto marks) {
            for (int j = 0; j < cols; ++j)
                for (int i = 0; i < rows; ++i)
                    if (isMissing(x.get(i, j)))
                        marks.set(i, j, 1);
        },
        block(storage, rows, cols), block(cells(out), rows, cols));
}

template <class Storage>
short missingBetweenPresent(Storage storage, int n)
{
    if (n < 2)
        return booleanOf(false);
    const bool found = onBlocks(
        [n](auto x) {
            // Not the negation of a test for missing: a NaN is neither missing nor present here.
            const auto presentOnDiagonal = [x](int i) { return x.get(i, i) > missingValue; };
            for (int j = 1; j < n; ++j)
                for (int i = 0; i < j; ++i)
                    if (isMissing(x.get(i, j)) && presentOnDiagonal(i) && presentOnDiagonal(j))
                        return true;
            return false;
        },
        block(storage, n, n));
    return booleanOf(found);
}

} // namespace

void SummarizeMissing(int n, int*& total, short*& out, short*& a, short*& b, short*& c)
{
    *total = 0;
    for (int i = 0; i < n; ++i)
        if (isSet(a[i]) || isSet(b[i]) || (c != nullptr && isSet(c[i]))) {
            out[i] = -1;
            ++*total;
        }
}

void vecmat::getMissingStr(const CallerTexts& x, int n, const short* a, short* out)
{
    flagEmpty(x, n, a, out);
}

void V_GetMissingStr(Smatrix* x, int n, short* a, short* out)
{
    flagEmpty(TableTexts(x), n, a, out);
}

void M_GetMissing(matrix* a, int nRows, int nCols, short* filter, short* out)
{
    flagMissing(cells(a), nRows, nCols, filter, out);
}

void M_GetMissingSPV(matrix** a, int nRows, int nCols, short* filter, short* out)
{
    flagMissing(cells(a), nRows, nCols, filter, out);
}

void M_IdentifyMissingInMat(matrix* a, int nRows, int nCols, matrixInt* out)
{
    markMissing(cells(a), nRows, nCols, out);
}

void M_IdentifyMissingInMatSPV(matrix** a, int nRows, int nCols, matrixInt* out)
{
    markMissing(cells(a), nRows, nCols, out);
}

short M_IsMissingOutOfDiagonalAndNotOnDiags(matrix* a, int n)
{
    return missingBetweenPresent(cells(a), n);
}

short M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(matrix** a, int n)
{
    return missingBetweenPresent(triangle(a), n);
}
