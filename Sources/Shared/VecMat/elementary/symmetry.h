// Symmetric and triangular tables, and tables of proximities: questions, and repairs of the table that is asked about.
//
// Tables are square, `n` by `n`, in a table or an array of columns (`SPV`). Cells are read with the checks of the
// tables: one out of range is -1.0, and a write to it is dropped. Equality is that of doubles: a missing value equals
// itself, a NaN nothing. Repairs are made in place; the flat forms make them in the caller's array.
//
// @empty nothing happens
// @cost one pass over the cells at most
#pragma once

#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

/// -1 if a(i, j) equals a(j, i) for all pairs, otherwise 0.
/// @missing equals itself
/// @empty -1 (true), also for an `n` of 1
VECMAT_API short M_IsSymmetric(matrix* a, int n);
VECMAT_API short M_IsSymmetricSPV(matrix** a, int n);
VECMAT_API short VB_M_IsSymmetric(double* a, int n);
VECMAT_API short VB_M_IsSymmetricSPV(SAFEARRAY** a, int n);

/// Makes the table symmetric: where the two cells of a pair differ, one value is written to both.
///
///     mode 0   the smaller that is not missing
///     mode 1   the larger
///     mode 2   half of what mode 0 writes where the smaller is not missing, else the larger: not the mean of the two
///
/// Any other `mode` does nothing. A pair with a NaN always differs; its cell above the diagonal is taken for the
/// smaller and the larger.
/// @missing a cell not above it is missing here (order), and is not written as the smaller
VECMAT_API void M_Symmetrize(matrix*& a, int n, int mode);
VECMAT_API void M_SymmetrizeSPV(matrix** a, int n, int mode);
VECMAT_API void VB_M_Symmetrize(double* a, int n, int mode);
VECMAT_API void VB_M_SymmetrizeSPV(SAFEARRAY** a, int n, int mode);

/// 2 if the strict lower part is empty, which includes a diagonal table; otherwise 1 if the strict upper part is;
/// otherwise 0. A cell is empty if it is exactly 0.0 or missing. With `fill` exactly -1 the other part of a triangular
/// table is copied onto the empty one.
/// @missing counts as empty, like 0.0
/// @empty 2, also for an `n` of 1
VECMAT_API int M_IsTriangular(matrix*& a, int n, short fill);
VECMAT_API int M_IsTriangularSPV(matrix** a, int n, short fill);
VECMAT_API int VB_M_IsTriangular(double* a, int n, short fill);
VECMAT_API int VB_M_IsTriangularSPV(SAFEARRAY** a, int n, short fill);

/// What a table of proximities holds: 1 similarities, 2 dissimilarities, 0 neither. In similarities no cell is above
/// the diagonal cell of its row; in dissimilarities none below it, and the diagonal is constant. `kind` says what to
/// try: 0 both, similarities first; 1 similarities; 2 dissimilarities; any other answers 2 without the second test, and
/// above 2 without the first.
/// @missing a cell not above it is left out of the comparisons (order)
/// @empty passes every test: 1 for `kind` 0
VECMAT_API int M_CheckIfSimOrDissim(matrix* a, int n, int kind);
VECMAT_API int VB_M_CheckIfSimOrDissim(double* a, int n, int kind);

/// The same over columns, except that each cell is compared with the diagonal cell of its column, and the constant
/// diagonal has a cell for each column.
/// @missing a cell not above it is left out of the comparisons (order)
/// @empty passes every test: 1 for `kind` 0
VECMAT_API int M_CheckIfSimOrDissimSPV(matrix** a, int rows, int cols, int kind);
VECMAT_API int VB_M_CheckIfSimOrDissimSPV(SAFEARRAY** a, int rows, int cols, int kind);

/// Turns similarities into dissimilarities: each pair i < j becomes a(i, i) - a(i, j), from the cell above the diagonal
/// and the diagonal cell of its row alone. The diagonal becomes 0.0.
/// @missing in that cell leaves both cells of the pair unchanged (equality)
VECMAT_API void M_TransformSimToDissim(matrix*& a, int n);
VECMAT_API void VB_M_TransformSimToDissim(double* a, int n);

} // extern "C"
