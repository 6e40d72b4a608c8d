#include "complete_rows.h"

#include "../access/block_copy.h"
#include "../base/detail/numbers.h"
#include "../base/detail/outgoing_texts.h"
#include "../elementary/array_copies.h"
#include "../frame/detail/borrowed_handles.h"
#include "../frame/detail/borrowed_texts.h"
#include "../frame/detail/handles.h"
#include "../frame/detail/outgoing_columns.h"
#include "detail/borrowed_rows.h"

using vecmat::copied;
using vecmat::differenceOfCounts;
using vecmat::sumOfCounts;
using vecmat::viewed;

void VB_RemoveRowsWithMissing(double* data, int nRows, int nCols, int nRemoved, short* mask, double* out)
{
    const int cols = nCols == 0 ? 1 : nCols;
    RemoveRowsWithMissing(viewed(data, nRows, cols).reference(), nRows, cols, mask);
    VB_M_CopyResize(data, nRows, cols, out, differenceOfCounts(nRows, nRemoved), cols);
}

void VB_RemoveRowsWithMissingStr(wchar_t** data, int nRows, int nCols, int nRemoved, short* mask, wchar_t** out)
{
    const int cols = nCols == 0 ? 1 : nCols;
    auto table = vecmat::borrowedCopy(data, nRows, cols);
    RemoveRowsWithMissing(table.reference(), nRows, cols, mask);
    const auto complete = vecmat::freshBorrowed(differenceOfCounts(nRows, nRemoved), cols);
    vecmat::copyResized<vecmat::BorrowedTexts>(table, nRows, complete);
    vecmat::OutgoingTexts texts;
    vecmat::addTexts(texts, table, data);
    vecmat::addTexts(texts, complete, out);
    texts.store();
}

void Cpp_M_InsertMissingDbl(double* data, int nRows, int nCols, short* mask, int nInsert, double* out)
{
    M_InsertMissing(viewed(data, nRows, nCols), nRows, nCols, mask, nInsert,
                    viewed(out, sumOfCounts(nRows, nInsert), nCols));
}

void Cpp_M_InsertMissingLng(int* data, int nRows, int nCols, short* mask, int nInsert, int* out)
{
    M_InsertMissingLng(viewed(data, nRows, nCols), nRows, nCols, mask, nInsert,
                       viewed(out, sumOfCounts(nRows, nInsert), nCols));
}

void Cpp_MatToVect_NoMissing(double* data, int nRows, int nCols, double* counts, double* emptyCols, double* out)
{
    MatToVect_NoMissing(viewed(data, nRows, nCols), nRows, nCols, copied(counts, nCols, 1), emptyCols,
                        viewed(out, nRows, nCols));
}
