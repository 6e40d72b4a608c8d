#include "blocks.h"

#include "../access/block_copy.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_handles.h"
#include "../frame/detail/handles.h"
#include "../sorting/copy_block.h"
#include "../sorting/detail/borrowed_rows.h"
#include "detail/borrowed_moves.h"

using namespace vecmat;

void VB_M_CopyBlock(double* src, int rows, int cols, int r1, int r2, int c1, int c2, double* dst)
{
    TableHandle result = fresh(countFromTo(r1, r2), countFromTo(c1, c2));
    M_CopyBlock(viewed(src, rows, cols), r1, r2, c1, c2, result.reference());
    handBack(result, dst);
}

void VB_M_CopyBlockStr(wchar_t** src, int rows, int cols, int r1, int r2, int c1, int c2, wchar_t** dst)
{
    BorrowedHandle result = freshBorrowed(countFromTo(r1, r2), countFromTo(c1, c2));
    M_CopyBlock(borrowed(src, rows, cols), r1, r2, c1, c2, result.reference());
    handBack(result, dst);
}

void VB_M_CopyBlockSPV(SAFEARRAY** src, int r1, int r2, int c1, int c2, double* dst)
{
    const TableHandle result = fresh(countFromTo(r1, r2), countFromTo(c1, c2));
    M_CopyBlock(columns(src, c2, r2), r1, r2, c1, c2, result);
    handBack(result, dst);
}

void Cpp_M_CopyBlockSPV2(SAFEARRAY** src, int r1, int r2, int c1, int c2, SAFEARRAY** dst)
{
    M_CopyBlock(columns(src, c2, r2), r1, r2, c1, c2, columns(dst, countFromTo(c1, c2), countFromTo(r1, r2)));
}

void Cpp_M_CopyBlockSPV2_T(SAFEARRAY** src, int r1, int r2, int c1, int c2, SAFEARRAY** dst)
{
    M_CopyBlockSPV2_T(columns(src, c2, r2), r1, r2, c1, c2, triangleColumns(dst, countFromTo(c1, c2)));
}

void Cpp_M_DuplicateDblSPV(SAFEARRAY** src, int rows, int cols, double* dst)
{
    M_DuplicateSPV(columns(src, cols, rows), rows, cols, viewed(dst, rows, cols), 1, 1, 1, 1);
}

void Cpp_M_DuplicateDblSPV2(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst)
{
    M_DuplicateSPV3(columns(src, cols, rows), rows, cols, columns(dst, cols, rows), 1, 1, 1, 1);
}

void Cpp_M_DuplicateDblSPV2_T(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst)
{
    M_DuplicateSPV3_T(columns(src, cols, rows), rows, cols, triangleColumns(dst, cols), 1, 1, 1, 1);
}

void Cpp_M_DuplicateDblSPV3(double* src, int rows, int cols, SAFEARRAY** dst)
{
    M_DuplicateSPV2(viewed(src, rows, cols), rows, cols, columns(dst, cols, rows), 1, 1, 1, 1);
}

void VB_M_DuplicateStrSPV(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst)
{
    const auto result = borrowedColumns(dst, cols, rows);
    M_DuplicateStrSPV(borrowedColumns(src, cols, rows), rows, cols, result);
    handBack(result, cols, dst);
}

void Cpp_M_CopyPasteBlock(double* src, int rows, int cols, int r1, int r2, int c1, int c2, double* dst, int dstRows,
                          int dstCols, int row, int col)
{
    M_CopyPasteBlock(copied(src, rows, cols), r1, r2, c1, c2, viewed(dst, dstRows, dstCols), row, col);
}

void Cpp_M_CopyPasteBlockSPV(SAFEARRAY** src, int r1, int r2, int c1, int c2, double* dst, int dstRows, int dstCols,
                             int row, int col)
{
    M_CopyPasteBlockSPV(columns(src, c2, r2), r1, r2, c1, c2, viewed(dst, dstRows, dstCols), row, col);
}

void Cpp_M_CopyPasteBlockStr(wchar_t** src, int rows, int cols, int r1, int r2, int c1, int c2, wchar_t** dst,
                             int dstRows, int dstCols, int row, int col)
{
    const auto result = borrowedCopy(dst, dstRows, dstCols);
    M_CopyPasteBlockStr(borrowed(src, rows, cols), r1, r2, c1, c2, result, row, col);
    handBack(result, dst);
}

void VB_M_PasteBlock(double* src, int rows, int cols, double* dst, int dstRows, int dstCols, int row, int col)
{
    M_PasteBlock(copied(src, rows, cols), rows, cols, viewed(dst, dstRows, dstCols), row, col);
}

void VB_M_PasteBlockLng(int* src, int rows, int cols, int* dst, int dstRows, int dstCols, int row, int col)
{
    M_PasteBlock(copied(src, rows, cols), rows, cols, viewed(dst, dstRows, dstCols), row, col);
}

void VB_M_CopyToBigger(double* src, int rows, int cols, double* dst, int dstRows, int dstCols)
{
    M_CopyToBigger(copied(src, rows, cols), rows, cols, viewed(dst, dstRows, dstCols));
}
