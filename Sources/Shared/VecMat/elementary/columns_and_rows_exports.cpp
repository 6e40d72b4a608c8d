#include "columns_and_rows.h"

#include "../access/block_copy.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_handles.h"
#include "../frame/detail/handles.h"
#include "detail/borrowed_moves.h"

#include <algorithm>

using namespace vecmat;

void VB_CopyMatrixColToMatrixCol(double* src, int n, int col, double* dst, int dstCol, short prepare)
{
    CopyMatrixColToMatrixCol(viewed(src, n, col), n, col, viewed(dst, n, dstCol).reference(), dstCol, prepare);
}

void VB_CopyMatrixColToVector(double* src, int n, int col, double* v)
{
    TableHandle result = fresh(n, 1);
    CopyMatrixColToVector(viewed(src, n, col), n, col, result.reference());
    handBack(result, v);
}

void VB_CopyMatrixRowToMatrixRow(double* src, int rows, int cols, int row, double* dst, int dstRows, int dstRow,
                                 short prepare)
{
    CopyMatrixRowToMatrixRow(viewed(src, rows, cols), cols, zeroBased(row), viewed(dst, dstRows, cols).reference(),
                             dstRows, zeroBased(dstRow), prepare);
}

void VB_CopyMatrixColToOneColMatStr(wchar_t** src, int n, int col, wchar_t** out)
{
    const auto result = freshBorrowed(n, 1);
    CopyMatrixColToOneColMatStr(borrowed(src, n, col), n, col, result);
    handBack(result, out);
}

void Cpp_Extractij(double* a, int n, int i, int j, double* out)
{
    const TableHandle result = fresh(n, 2);
    Extractij(viewed(a, n, std::max(i, j)), n, i, j, result);
    handBack(result, out);
}
