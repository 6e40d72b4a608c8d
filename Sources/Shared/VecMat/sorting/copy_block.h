// Copies of a block to the top left corner of another table.
//
// @missing copied unchanged
// @empty an empty range copies nothing; 0
// @cost one pass over the block
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

/// Rows `r1` to `r2` and columns `c1` to `c2` of `src`, 1-based and both included, go to the top left corner of `dst`,
/// which must exist and is not prepared: cell (i, j) of the source becomes cell (i - r1 + 1, j - c1 + 1).
///
/// The checks are those of the tables: a source cell beyond its table is -1.0 (-1, an empty string), a destination cell
/// beyond its own is dropped. Within one table, and where a row runs over into the next column, the block is walked row
/// by row. Returns 0.
VECMAT_API int M_CopyBlock(matrix* src, int r1, int r2, int c1, int c2, matrix*& dst);
VECMAT_API int M_CopyBlock(matrixInt* src, int r1, int r2, int c1, int c2, matrixInt*& dst);
VECMAT_API int M_CopyBlock(Smatrix* src, int r1, int r2, int c1, int c2, Smatrix*& dst);
