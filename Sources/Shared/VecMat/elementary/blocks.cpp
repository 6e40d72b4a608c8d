#include "blocks.h"

#include "../access/block_copy.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_texts.h"
#include "detail/borrowed_moves.h"

using vecmat::copyCells;
using vecmat::countFromTo;
using vecmat::linearIndex;
using vecmat::triangleWindow;
using vecmat::window;
using vecmat::zeroBased;

namespace {

/// Copies rows r1 to r2 and columns c1 to c2, all from 1: `read` opens the window at the corner of the block.
template <class Read, class Target>
void copyRange(Read read, int r1, int r2, int c1, int c2, Target target)
{
    copyCells(read(zeroBased(r1), zeroBased(c1)), target, countFromTo(r1, r2), countFromTo(c1, c2));
}

template <class Source, class Target>
void copyRange(Source* source, int r1, int r2, int c1, int c2, Target target)
{
    copyRange([=](int row, int col) { return window(source, row, col); }, r1, r2, c1, c2, target);
}

template <class Source, class Target>
void duplicate(Source* src, int rows, int cols, Target* dst, int dstRow, int dstCol, int srcRow, int srcCol)
{
    copyCells(window(src, zeroBased(srcRow), zeroBased(srcCol)), window(dst, zeroBased(dstRow), zeroBased(dstCol)),
              rows, cols);
}

template <class Source>
void duplicateToTriangle(Source* src, int rows, int cols, matrix** dst, int dstRow, int dstCol, int srcRow, int srcCol)
{
    copyCells(window(src, zeroBased(srcRow), zeroBased(srcCol)),
              triangleWindow(dst, zeroBased(dstRow), zeroBased(dstCol)), rows, cols);
}

/// Copies `n` cells in linear order, as one long column bounded by the linear check.
template <class Source, class Target>
void copyRun(Source* src, int row, int col, int n, Target* dst, int dstRow, int dstCol)
{
    const unsigned from = linearIndex(zeroBased(row), zeroBased(col), src->nRows);
    const unsigned to = linearIndex(zeroBased(dstRow), zeroBased(dstCol), dst->nRows);
    copyCells(window(src, static_cast<int>(from), 0), window(dst, static_cast<int>(to), 0), n, 1);
}

} // namespace

void M_Duplicate(matrix* src, int rows, int cols, matrix* dst, int dstRow, int dstCol, int srcRow, int srcCol)
{
    duplicate(src, rows, cols, dst, dstRow, dstCol, srcRow, srcCol);
}

void M_Duplicate(matrixInt* src, int rows, int cols, matrixInt* dst, int dstRow, int dstCol, int srcRow, int srcCol)
{
    duplicate(src, rows, cols, dst, dstRow, dstCol, srcRow, srcCol);
}

void M_DuplicateSPV(matrix** src, int rows, int cols, matrix* dst, int dstRow, int dstCol, int srcRow, int srcCol)
{
    duplicate(src, rows, cols, dst, dstRow, dstCol, srcRow, srcCol);
}

void M_DuplicateSPV2(matrix* src, int rows, int cols, matrix** dst, int dstRow, int dstCol, int srcRow, int srcCol)
{
    duplicate(src, rows, cols, dst, dstRow, dstCol, srcRow, srcCol);
}

void M_DuplicateSPV3(matrix** src, int rows, int cols, matrix** dst, int dstRow, int dstCol, int srcRow, int srcCol)
{
    duplicate(src, rows, cols, dst, dstRow, dstCol, srcRow, srcCol);
}

void M_DuplicateSPV2_T(matrix* src, int rows, int cols, matrix** dst, int dstRow, int dstCol, int srcRow, int srcCol)
{
    duplicateToTriangle(src, rows, cols, dst, dstRow, dstCol, srcRow, srcCol);
}

void M_DuplicateSPV3_T(matrix** src, int rows, int cols, matrix** dst, int dstRow, int dstCol, int srcRow, int srcCol)
{
    duplicateToTriangle(src, rows, cols, dst, dstRow, dstCol, srcRow, srcCol);
}

void M_DuplicateStrSPV(Smatrix** src, int rows, int cols, Smatrix** dst)
{
    duplicate(src, rows, cols, dst, 1, 1, 1, 1);
}

void M_CopyBlock(matrix** src, int r1, int r2, int c1, int c2, matrix* dst)
{
    copyRange(src, r1, r2, c1, c2, window(dst, 0, 0));
}

void M_CopyBlock(matrix* src, int r1, int r2, int c1, int c2, matrix** dst)
{
    copyRange(src, r1, r2, c1, c2, window(dst, 0, 0));
}

void M_CopyBlock(matrix** src, int r1, int r2, int c1, int c2, matrix** dst)
{
    copyRange(src, r1, r2, c1, c2, window(dst, 0, 0));
}

void M_CopyBlock(Smatrix** src, int r1, int r2, int c1, int c2, Smatrix*& dst)
{
    copyRange(src, r1, r2, c1, c2, window(dst, 0, 0));
}

void M_CopyBlockSPV_T(matrix** src, int r1, int r2, int c1, int c2, matrix** dst)
{
    copyRange([=](int row, int col) { return triangleWindow(src, row, col); }, r1, r2, c1, c2, window(dst, 0, 0));
}

void M_CopyBlockSPV2_T(matrix** src, int r1, int r2, int c1, int c2, matrix** dst)
{
    copyRange(src, r1, r2, c1, c2, triangleWindow(dst, 0, 0));
}

void M_CopyPasteBlock(matrix* src, int r1, int r2, int c1, int c2, matrix* dst, int row, int col)
{
    copyRange(src, r1, r2, c1, c2, window(dst, zeroBased(row), zeroBased(col)));
}

void M_CopyPasteBlockSPV(matrix** src, int r1, int r2, int c1, int c2, matrix* dst, int row, int col)
{
    copyRange(src, r1, r2, c1, c2, window(dst, zeroBased(row), zeroBased(col)));
}

void M_CopyPasteBlockStr(Smatrix* src, int r1, int r2, int c1, int c2, Smatrix* dst, int row, int col)
{
    copyRange(src, r1, r2, c1, c2, window(dst, zeroBased(row), zeroBased(col)));
}

void M_PasteBlock(matrix* src, int rows, int cols, matrix* dst, int row, int col)
{
    duplicate(src, rows, cols, dst, row, col, 1, 1);
}

void M_PasteBlock(matrixInt* src, int rows, int cols, matrixInt* dst, int row, int col)
{
    duplicate(src, rows, cols, dst, row, col, 1, 1);
}

void M_CopyToBigger(matrix* src, int rows, int cols, matrix* dst)
{
    duplicate(src, rows, cols, dst, 1, 1, 1, 1);
}

void V_Duplicate(matrix* src, int row, int col, int n, matrix* dst, int dstRow, int dstCol)
{
    copyRun(src, row, col, n, dst, dstRow, dstCol);
}

void V_Duplicate(matrixInt* src, int row, int col, int n, matrix* dst, int dstRow, int dstCol)
{
    copyRun(src, row, col, n, dst, dstRow, dstCol);
}

void V_Duplicate(matrixInt* src, int row, int col, int n, matrixInt* dst, int dstRow, int dstCol)
{
    copyRun(src, row, col, n, dst, dstRow, dstCol);
}

void vecmat::M_DuplicateStrSPV(BorrowedTexts** src, int rows, int cols, BorrowedTexts** dst)
{
    duplicate(src, rows, cols, dst, 1, 1, 1, 1);
}

void vecmat::M_CopyPasteBlockStr(BorrowedTexts* src, int r1, int r2, int c1, int c2, BorrowedTexts* dst, int row,
                                 int col)
{
    copyRange(src, r1, r2, c1, c2, window(dst, zeroBased(row), zeroBased(col)));
}
