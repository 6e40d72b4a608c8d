#include "transposition.h"

#include "../access/block_copy.h"
#include "../access/cells.h"
#include "../frame/detail/borrowed_texts.h"
#include "detail/borrowed_moves.h"

#include <algorithm>
#include <utility>

using vecmat::prepareResult;
using vecmat::window;

namespace {

/// Side of the square transposed at a time: its cells of both tables stay in the cache, whereas otherwise one table
/// would be accessed a whole column apart from cell to cell.
constexpr int tile = 32;

template <class Source, class Target>
void transposeCells(Source source, Target target, int rows, int cols)
{
    if (rows < 1 || cols < 1)
        return;
    vecmat::onBlocks(
        [=](auto from, auto to) {
            for (int i = 0, iLast = 0; i < rows; i = iLast) {
                iLast = i + std::min(tile, rows - i);
                for (int j = 0, jLast = 0; j < cols; j = jLast) {
                    jLast = j + std::min(tile, cols - j);
                    for (int column = j; column < jLast; ++column)
                        for (int row = i; row < iLast; ++row)
                            to.set(column, row, from.get(row, column));
                }
            }
        },
        block(source, rows, cols), block(target, cols, rows));
}

template <class Source, class Target>
void transposeToTable(Source*& src, int rows, int cols, Target*& dst)
{
    prepareResult(dst, cols, rows);
    transposeCells(window(src, 0, 0), window(dst, 0, 0), rows, cols);
}

} // namespace

void M_Transpose(matrix*& src, int rows, int cols, matrix*& dst)
{
    transposeToTable(src, rows, cols, dst);
}

void M_Transpose(matrixInt*& src, int rows, int cols, matrixInt*& dst)
{
    transposeToTable(src, rows, cols, dst);
}

void M_Transpose(matrixInt*& src, int rows, int cols, matrix*& dst)
{
    transposeToTable(src, rows, cols, dst);
}

void M_Transpose(Smatrix*& src, int rows, int cols, Smatrix*& dst)
{
    transposeToTable(src, rows, cols, dst);
}

void M_Transpose(matrix** src, int rows, int cols, matrix*& dst)
{
    transposeToTable(src, rows, cols, dst);
}

void M_Transpose(matrix* src, int rows, int cols, matrix** dst)
{
    transposeCells(window(src, 0, 0), window(dst, 0, 0), rows, cols);
}

void M_TransposeSPV(matrix** src, int rows, int cols, matrix** dst)
{
    transposeCells(window(src, 0, 0), window(dst, 0, 0), rows, cols);
}

void M_Transpose2(matrix*& a, int rows, int cols)
{
    matrix transposed(cols, rows, 0.0);
    transposeCells(window(a, 0, 0), window(&transposed, 0, 0), rows, cols);
    transposed.copyMatTo(a);
}

void M_Transpose2(Smatrix*& a, int rows, int cols)
{
    Smatrix transposed(cols, rows);
    transposeCells(window(a, 0, 0), window(&transposed, 0, 0), rows, cols);
    transposed.copyMatTo(a);
}

void vecmat::M_Transpose(BorrowedTexts*& src, int rows, int cols, BorrowedTexts*& dst)
{
    transposeToTable(src, rows, cols, dst);
}

void vecmat::M_Transpose2(BorrowedTexts*& a, int rows, int cols)
{
    BorrowedTexts transposed(cols, rows);
    transposeCells(window(a, 0, 0), window(&transposed, 0, 0), rows, cols);
    *a = std::move(transposed);
}
