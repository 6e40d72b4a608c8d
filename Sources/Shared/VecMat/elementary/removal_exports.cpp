#include "removal.h"

#include "../frame/detail/borrowed_handles.h"
#include "../frame/detail/handles.h"
#include "detail/borrowed_moves.h"

#include <algorithm>

using namespace vecmat;

void VB_M_RemoveCol(double* a, int rows, int cols, int col, double* out)
{
    const TableHandle result = fresh(rows, std::max(cols, 1) - 1);
    M_RemoveCol(viewed(a, rows, cols), rows, cols, col, result);
    handBack(result, out);
}

void VB_M_RemoveRow(double* a, int rows, int cols, int row, double* out)
{
    const TableHandle result = fresh(std::max(rows, 1) - 1, cols);
    M_RemoveRow(viewed(a, rows, cols), rows, cols, row, result);
    handBack(result, out);
}

void VB_M_MoveRow(double* a, int rows, int cols, int r1, int r2)
{
    M_MoveRow(viewed(a, rows, cols).reference(), cols, r1, r2);
}

void VB_M_RemoveCols2(double* a, int rows, int cols, int from, int to)
{
    M_RemoveCols2(viewed(a, rows, cols).reference(), rows, cols, from, to);
}

void VB_M_RemoveRows2(double* a, int rows, int cols, int from, int to)
{
    M_RemoveRows2(viewed(a, rows, cols).reference(), rows, cols, from, to);
}

void Cpp_M_RemoveRowsStr2(wchar_t** a, int rows, int cols, int from, int to)
{
    BorrowedHandle table = borrowedCopy(a, rows, cols);
    M_RemoveRows2(table.reference(), rows, cols, from, to);
    handBack(table, a);
}

int VB_M_RemoveRowsInList(double* a, int rows, int cols, int* flags, int nOut, double* out)
{
    return M_RemoveRowsInList(viewed(a, rows, cols), rows, cols, viewed(flags, rows, 1), viewed(out, nOut, cols));
}

int VB_M_RemoveColsInList(double* a, int rows, int cols, int* flags, int nOut, double* out)
{
    return M_RemoveColsInList(viewed(a, rows, cols), rows, cols, viewed(flags, cols, 1), viewed(out, rows, nOut));
}
