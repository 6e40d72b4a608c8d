#include "horizontal_merges.h"

#include "../access/block_copy.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_handles.h"
#include "../frame/detail/handles.h"
#include "detail/borrowed_moves.h"

#include <algorithm>

using namespace vecmat;

void VB_HMergeVectors(double* a, int nA, double* b, int nB, double* out)
{
    TableHandle result = fresh(std::max(nA, nB), 2);
    HMergeVectors(a, nA, b, nB, result.reference());
    handBack(result, out);
}

void VB_HMergeTableVect(double* t, int r, int c, double* v, int n, double* out)
{
    TableHandle result = fresh(std::max(n, r), sumOfCounts(c, 1));
    HMergeTableVect(viewed(t, r, c), r, c, v, n, result.reference());
    handBack(result, out);
}

void VB_HMergeTableVect2(double* t, int r, int c, double* v, int n)
{
    const TableHandle table = copied(t, std::max(r, n), sumOfCounts(c, 1), r, c);
    HMergeTableVect2(table, c, v, n);
    handBack(table, t);
}

void VB_HMergeVectTable(double* v, int n, double* t, int r, int c, double* out)
{
    TableHandle result = fresh(std::max(n, r), sumOfCounts(c, 1));
    HMergeVectTable(v, n, viewed(t, r, c), r, c, result.reference());
    handBack(result, out);
}

void VB_HMergeVectColDbl(double* v, int n, double* t, int r, int col, double* out)
{
    TableHandle result = fresh(std::max(n, r), 2);
    HMergeVectCol(v, n, viewed(t, r, col), r, col, result.reference());
    handBack(result, out);
}

void VB_HMergeTablesDbl(double* a, int r1, int c1, double* b, int r2, int c2, double* out)
{
    TableHandle result = fresh(std::max(r1, r2), sumOfCounts(c1, c2));
    HMergeTables(viewed(a, r1, c1), r1, c1, viewed(b, r2, c2), r2, c2, result.reference());
    handBack(result, out);
}

void VB_HMergeTablesDbl2(double* a, int r1, int c1, double* b, int r2, int c2)
{
    VB_HMergeTablesDbl(a, r1, c1, b, r2, c2, a);
}

void VB_HMergeTablesDbl2SPV(SAFEARRAY** a, int r1, int c1, double* b, int r2, int c2)
{
    HMergeTables(columns(a, sumOfCounts(c1, c2), r1), r1, c1, viewed(b, r2, c2), r2, c2);
}

void VB_HMergeTablesDbl2SPV2(SAFEARRAY** a, int r1, int c1, SAFEARRAY** b, int r2, int c2)
{
    HMergeTables(columns(a, sumOfCounts(c1, c2), r1), r1, c1, columns(b, c2, r2), r2, c2);
}

void VB_HMergeTablesLng2(int* a, int r1, int c1, int* b, int r2, int c2)
{
    IntTableHandle result = freshInt(std::max(r1, r2), sumOfCounts(c1, c2));
    HMergeTables(viewed(a, r1, c1), r1, c1, viewed(b, r2, c2), r2, c2, result.reference());
    handBack(result, a);
}

void VB_HMergeTablesBool(short* a, int r1, int c1, short* b, int r2, int c2, short* out)
{
    TableHandle result = fresh(std::max(r1, r2), sumOfCounts(c1, c2));
    HMergeTables(copied(a, r1, c1), r1, c1, copied(b, r2, c2), r2, c2, result.reference());
    handBack(result, out);
}

void VB_HMergeTablesBool2(short* a, int r1, int c1, short* b, int r2, int c2)
{
    VB_HMergeTablesBool(a, r1, c1, b, r2, c2, a);
}

void VB_HMergeTablesStr(wchar_t** a, int r1, int c1, wchar_t** b, int r2, int c2, wchar_t** out)
{
    BorrowedHandle result = freshBorrowed(std::max(r1, r2), sumOfCounts(c1, c2));
    HMergeTables(borrowed(a, r1, c1), r1, c1, borrowed(b, r2, c2), r2, c2, result.reference());
    handBack(result, out);
}

void VB_HMergeTablesStr2(wchar_t** a, int r1, int c1, wchar_t** b, int r2, int c2)
{
    VB_HMergeTablesStr(a, r1, c1, b, r2, c2, a);
}
