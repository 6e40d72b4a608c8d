// Tables packed into vectors and back: whole, by columns of unequal length, and the lower triangle of a symmetric one.
//
// Vectors are tables taken in linear order. A read outside a table stores -1.0, a write outside is dropped. No target
// is prepared: it must exist.
//
// @missing copied unchanged
// @empty nothing is written
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Stacks the columns: cell (i, j), from 0, goes to position j*rows + i, with `rows` as given and not that of the
/// table.
VECMAT_API void MatToVect(matrix* a, int rows, int cols, matrix* v);

/// Unpacks columns of unequal length. Cell (i, j), from 0, takes the next cell of `v` while counts[j] is at least i +
/// 1; otherwise it becomes missing, and `v` does not advance.
/// @missing copied unchanged; a missing or NaN count makes its column missing
VECMAT_API void VectToMat(matrix* v, matrix* counts, int rows, int cols, matrix* out);

/// Packs the lower triangle by rows: row i gives cells (i, 1) to (i, i) in turn, n(n+1)/2 cells in all.
VECMAT_API void M_CopySymMatToVector(matrix* a, int n, matrix* v);
/// The reverse: each cell of `v` goes to (i, j) and to (j, i).
VECMAT_API void M_CopyVectorToSymMat(matrix* v, int n, matrix* a);

// ---- flat forms -----------------------------------------------------------------------------------------------------

VECMAT_API void Cpp_MatToVect(double* a, int rows, int cols, double* v);
/// `v` has the cells that the counts ask for, no more of them for a column than `rows`.
VECMAT_API void Cpp_VectToMat(double* v, double* counts, int rows, int cols, double* out);
VECMAT_API void Cpp_M_CopySymMatToVector(double* a, int n, double* v);
VECMAT_API void Cpp_M_CopyVectorToSymMat(double* v, int n, double* a);

} // extern "C"
