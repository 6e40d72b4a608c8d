// Products with a block diagonal table, held as a list of square tables with their sizes.
//
// A size is read by checked access and truncated. An offset, the sum of the sizes so far, advances along the other
// table, whose row count is its stride. Reads outside a table yield -1.0, writes outside are dropped; results are
// written in place, and cells that are not covered keep their values. A single block gives the plain product of that
// size, which clears its result first and skips no cell.
//
// @missing an ordinary number, unless structure skips it; a missing size is -1
// @empty without blocks nothing happens
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

/// blockdiag times a, by block the rows of a at the offset, `cols` columns. Structure is used as in `M_ProductABC`.
VECMAT_API void M_BlockProductBckA(matrix** blocks, int nBlocks, matrix* sizes, matrix* a, int cols, matrix* out);
VECMAT_API void M_BlockProductBckA(matrix** blocks, int nBlocks, matrixInt* sizes, matrix* a, int cols, matrix* out);

/// a, of `rows` rows, times blockdiag, by block the columns of a at the offset. Structure is used as above.
VECMAT_API void M_BlockProductABck(matrix* a, int rows, matrix** blocks, int nBlocks, matrix* sizes, matrix* out);
VECMAT_API void M_BlockProductABck(matrix* a, int rows, matrix** blocks, int nBlocks, matrixInt* sizes, matrix* out);

/// a, of `rows` rows, times the transpose of blockdiag: plain sums.
/// @missing an ordinary number; a missing size is -1
VECMAT_API void M_BlockProductATrBck(matrix* a, int rows, matrix** blocks, int nBlocks, matrix* sizes, matrix* out);
VECMAT_API void M_BlockProductATrBck(matrix* a, int rows, matrix** blocks, int nBlocks, matrixInt* sizes, matrix* out);

/// blockdiag times v: plain sums.
/// @missing an ordinary number; a missing size is -1
VECMAT_API void M_BlockProductBckVect(matrix** blocks, int nBlocks, matrix* sizes, matrix* v, matrix* out);
VECMAT_API void M_BlockProductBckVect(matrix** blocks, int nBlocks, matrixInt* sizes, matrix* v, matrix* out);
