#include "extraction.h"

#include "../access/block_copy.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_handles.h"
#include "../frame/detail/borrowed_texts.h"
#include "../frame/detail/handles.h"
#include "detail/borrowed_moves.h"

using namespace vecmat;

namespace {

/// A caller passes 0 columns for a vector.
int atLeastAVector(int cols)
{
    return cols == 0 ? 1 : cols;
}

/// Copies rows `from` to `to` of the strings, which have no computing function of their own, to the caller's array.
template <class Source>
void extractStrings(Source source, int cols, int from, int to, wchar_t** out)
{
    const int rows = countFromTo(from, to);
    const BorrowedHandle result = freshBorrowed(rows, cols);
    copyCells(source, window<BorrowedTexts>(result, 0, 0), rows, cols);
    handBack(result, out);
}

} // namespace

void VB_M_ExtractMatToMatDbl(double* src, int rows, int cols, int from, int to, double* out)
{
    const int width = atLeastAVector(cols);
    const TableHandle result = fresh(countFromTo(from, to), width);
    M_ExtractMatToMat(viewed(src, rows, width), width, from, to, result);
    handBack(result, out);
}

void VB_M_ExtractMatToMatDblSPV(SAFEARRAY** src, int cols, int from, int to, double* out)
{
    const int width = atLeastAVector(cols);
    const TableHandle result = fresh(countFromTo(from, to), width);
    M_ExtractMatToMatSPV(columns(src, width, to), width, from, to, result);
    handBack(result, out);
}

void VB_M_ExtractMatToMatStr(wchar_t** src, int rows, int cols, int from, int to, wchar_t** out)
{
    const int width = atLeastAVector(cols);
    const BorrowedHandle table = borrowed(src, rows, width);
    extractStrings(window<BorrowedTexts>(table, zeroBased(from), 0), width, from, to, out);
}

void VB_M_ExtractMatToMatStrSPV(SAFEARRAY** src, int cols, int from, int to, wchar_t** out)
{
    const int width = atLeastAVector(cols);
    const auto tables = borrowedColumns(src, width, to);
    extractStrings(window<BorrowedTexts>(static_cast<BorrowedTexts**>(tables), zeroBased(from), 0), width, from, to,
                   out);
}

void VB_M_ExtractMatToMatByColDbl(double* src, int rows, int from, int to, double* out)
{
    TableHandle result = fresh(rows, countFromTo(from, to));
    M_ExtractMatToMatByColDbl(viewed(src, rows, to), rows, from, to, result.reference());
    handBack(result, out);
}

void Cpp_M_ExtractMatNeverySKSPV(SAFEARRAY** src, int n, int cols, int nOut, int keep, int skip, int start,
                                 SAFEARRAY** dst, double* positions)
{
    const auto result = borrowedColumns(dst, cols, nOut);
    const auto taken = copied(positions, nOut, 1);
    M_ExtractMatNeverySKSPV(borrowedColumns(src, cols, n), n, cols, nOut, keep, skip, start, result, taken);
    handBack(result, cols, dst);
    handBack(taken, positions);
}
