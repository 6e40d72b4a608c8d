#include "vertical_merges.h"

#include "../access/block_copy.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_handles.h"
#include "../frame/detail/handles.h"
#include "detail/borrowed_moves.h"

#include <algorithm>

using namespace vecmat;

void VB_VMergeVectorsDbl(double* a, int nA, double* b, int nB, double* out)
{
    TableHandle result = fresh(sumOfCounts(nA, nB), 1);
    VMergeVectors(viewed(a, nA, 1), nA, viewed(b, nB, 1), nB, result.reference());
    handBack(result, out);
}

void VB_VMergeVectorsDbl2(double* a, int nA, double* b, int nB)
{
    const TableHandle table = copied(a, sumOfCounts(nA, nB), 1, nA, 1);
    VMergeVectors2(table, nA, viewed(b, nB, 1), nB);
    handBack(table, a);
}

void VB_VMergeVectorsStr(wchar_t** a, int nA, wchar_t** b, int nB, wchar_t** out)
{
    // The second table always has a row, but an array without elements is not read for it.
    const BorrowedHandle second = nB > 0 ? borrowed(b, nB, 1) : freshBorrowed(1, 1);
    BorrowedHandle result = freshBorrowed(sumOfCounts(nA, nB), 1);
    VMergeVectors(borrowed(a, nA, 1), nA, second, nB, result.reference());
    handBack(result, out);
}

void VB_VMergeVectorsStr2(wchar_t** a, int nA, wchar_t** b, int nB)
{
    const BorrowedHandle table = borrowedCopy(a, sumOfCounts(nA, nB), 1, nA, 1);
    VMergeVectors2(table, nA, borrowed(b, nB, 1), nB);
    handBack(table, a);
}

void VB_VMergeVectorsBool2(short* a, int nA, short* b, int nB)
{
    const TableHandle table = copied(a, sumOfCounts(nA, nB), 1);
    VMergeVectorsBool2(table, nA, copied(b, nB, 1), nB);
    handBack(table, a);
}

void VB_VMergeTablesDbl(double* a, int r1, int c1, double* b, int r2, int c2, double* out)
{
    TableHandle result = fresh(sumOfCounts(r1, r2), std::max(c1, c2));
    VMergeTables(viewed(a, r1, c1), r1, c1, viewed(b, r2, c2), r2, c2, result.reference());
    handBack(result, out);
}

void Cpp_VMergeTablesDblSPV(SAFEARRAY** a, int r1, int c1, double* b, int r2, int c2, double* out)
{
    TableHandle result = fresh(sumOfCounts(r1, r2), std::max(c1, c2));
    VMergeTablesSPV(columns(a, c1, r1), r1, c1, viewed(b, r2, c2), r2, c2, result.reference());
    handBack(result, out);
}
