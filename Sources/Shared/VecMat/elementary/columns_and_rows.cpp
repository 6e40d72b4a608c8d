#include "columns_and_rows.h"

#include "../access/block_copy.h"
#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_texts.h"
#include "detail/borrowed_moves.h"

using vecmat::copyCells;
using vecmat::window;
using vecmat::zeroBased;

void CopyMatrixColToMatrixCol(matrix* src, int n, int col, matrix*& dst, int dstCol, short prepare)
{
    if (prepare != 0)
        matrix::matCheck(dst, n, dstCol, 0.0);
    copyCells(window(src, 0, zeroBased(col)), window(dst, 0, zeroBased(dstCol)), n, 1);
}

void CopyMatrixColToVector(matrix* src, int n, int col, matrix*& v)
{
    matrix::matCheck(v, n, 1, 0.0);
    copyCells(window(src, 0, zeroBased(col)), window(v, 0, 0), n, 1);
}

void CopyMatrixColToVectorSPV(matrix** src, int n, int col, matrix*& v)
{
    matrix::matCheck(v, n, 1, 0.0);
    copyCells(window(src, 0, zeroBased(col)), window(v, 0, 0), n, 1);
}

void CopyMatrixRowToMatrixRow(matrix* src, int cols, int row, matrix*& dst, int dstRows, int dstRow, short prepare)
{
    if (prepare != 0)
        matrix::matCheck(dst, dstRows, cols, 0.0);
    copyCells(window(src, row, 0), window(dst, dstRow, 0), 1, cols);
}

void CopyMatrixColToOneColMatStr(Smatrix* src, int n, int col, Smatrix* out)
{
    copyCells(window(src, 0, zeroBased(col)), window(out, 0, 0), n, 1);
}

void CopyCol(matrix** src, int nTables, int srcCol, int dstCol, matrix* dst)
{
    if (srcCol < 0 || dstCol < 0 || srcCol >= nTables || dstCol >= dst->nCols)
        return;
    const int n = static_cast<int>(src[srcCol]->nElems);
    copyCells(window(src, 0, srcCol), window(dst, 0, dstCol), n, 1);
}

void Extractij(matrix* a, int n, int i, int j, matrix* out)
{
    const auto from = vecmat::cells(a);
    const auto to = vecmat::cells(out);
    // Row by row: if `out` is too short, its first column runs into the second.
    for (int k = 0; k < n; ++k) {
        to.set(k, 0, from.get(k, zeroBased(i)));
        to.set(k, 1, from.get(k, zeroBased(j)));
    }
}

void vecmat::CopyMatrixColToOneColMatStr(BorrowedTexts* src, int n, int col, BorrowedTexts* out)
{
    copyCells(window(src, 0, zeroBased(col)), window(out, 0, 0), n, 1);
}
