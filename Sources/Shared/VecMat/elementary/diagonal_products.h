// Products with a diagonal table, given as a square table of which only the diagonal is read (D, Diag) or as a vector
// (DiagV). Names, dimensions, checked access, order of sums and results are as in `matrix_products.h`. Factors are
// multiplied from left to right: a term of `a diag(d) a'` is (a d) a.
//
// @missing an ordinary number
// @empty an empty sum is 0.0
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

/// a diag(d) a', d of order `cols`, and a' diag(d) a, d of order `rows`. The lower triangle is computed and mirrored.
/// Prepared, `rows` by `rows` and `cols` by `cols`.
VECMAT_API void M_ProductADTrA(matrix* a, int rows, int cols, matrix* d, matrix*& out);
VECMAT_API void M_ProductTrADA(matrix* a, int rows, int cols, matrix* d, matrix*& out);

/// a diag(d), d of order `cols`, prepared `rows` by `cols`; a' diag(d), d of order `rows`, prepared `cols` by `rows`.
VECMAT_API void M_ProductADiag(matrix* a, int rows, int cols, matrix* d, matrix*& out);
VECMAT_API void M_ProductTrADiag(matrix* a, int rows, int cols, matrix* d, matrix*& out);

/// diag(v) a in place, v of `rows` cells.
/// @missing in v makes its whole row missing, in a its cell (equality)
/// @empty nothing is written
VECMAT_API void M_ProductDiagVA(matrix* v, int rows, matrix* a, int cols, matrix* out);
VECMAT_API void M_ProductDiagVASPV(matrix* v, int rows, matrix** a, int cols, matrix** out);

/// a diag(v) in place, v of `cols` cells.
/// @missing an ordinary number, unlike in `M_ProductDiagVA`
/// @empty nothing is written
VECMAT_API void M_ProductADiagV(matrix* a, int rows, int cols, matrix* v, matrix*& out);
VECMAT_API void M_ProductADiagVSPV(matrix** a, int rows, int cols, matrix* v, matrix** out);

/// (diag(va) a) diag(vb) in place, through a temporary: `M_ProductDiagVA`, then `M_ProductADiagV`.
/// @missing the first product makes the cell missing (equality), the second multiplies it like an ordinary number
/// @empty nothing is written
VECMAT_API void M_ProductDiagV1ADiagV2(matrix* va, int rows, matrix* a, int cols, matrix* vb, matrix*& out);
VECMAT_API void M_ProductDiagV1ADiagV2SPV(matrix* va, int rows, matrix** a, int cols, matrix* vb, matrix** out);

/// a diag(v) a', v of `cols` cells, and a' diag(v) a, v of `rows` cells, in place. The lower triangle is computed and
/// mirrored.
VECMAT_API void M_ProductADiagVTrA(matrix* a, int rows, int cols, matrix* v, matrix* out);
VECMAT_API void M_ProductTrADiagVA(matrix* a, int rows, int cols, matrix* v, matrix* out);

/// a diag(v) b' in place, v of `cols` cells and b `rowsB` by `cols`.
VECMAT_API void M_ProductADiagVTrB(matrix* a, int rows, int cols, matrix* v, matrix* b, int rowsB, matrix* out);

/// a diag(v) b in place, v of `cols` cells and b `cols` by `colsB`. The strides of b and out are those of the tables.
VECMAT_API void M_ProductADiagVB(matrix* a, int rows, int cols, matrix* v, matrix* b, int colsB, matrix* out);

/// The upper triangle of a' diag(v) in place, v of `rows` cells: row c of out takes a(k, c) v(k) for k from c on. The
/// cells below the diagonal stay as they are.
/// @empty nothing is written
VECMAT_API void M_ProductTrADiagV(matrix* a, int rows, int cols, matrix* v, matrix* out);

// Flat forms: each array has the dimensions of its role, results go to the caller's array in place, with two
// exceptions. `VB_M_ProductADiagVTrB` opens out as `rows` by `rows`, so columns of the result beyond `rows` are
// dropped. `VB_M_ProductADiagVB` does so too, and opens b with `colsB` rows and `cols` columns: with any other shape
// the strides decide what is read.
VECMAT_API void VB_M_ProductADTrA(double* a, int rows, int cols, double* d, double* out);
VECMAT_API void VB_M_ProductTrADA(double* a, int rows, int cols, double* d, double* out);
VECMAT_API void VB_M_ProductADiag(double* a, int rows, int cols, double* d, double* out);
VECMAT_API void VB_M_ProductTrADiag(double* a, int rows, int cols, double* d, double* out);
VECMAT_API void VB_M_ProductDiagVA(double* v, int rows, double* a, int cols, double* out);
VECMAT_API void VB_M_ProductDiagV1ADiagV2(double* va, int rows, double* a, int cols, double* vb, double* out);
VECMAT_API void VB_M_ProductADiagV(double* a, int rows, int cols, double* v, double* out);
VECMAT_API void VB_M_ProductADiagVTrA(double* a, int rows, int cols, double* v, double* out);
VECMAT_API void VB_M_ProductTrADiagVA(double* a, int rows, int cols, double* v, double* out);
VECMAT_API void VB_M_ProductADiagVTrB(double* a, int rows, int cols, double* v, double* b, int rowsB, double* out);
VECMAT_API void VB_M_ProductADiagVB(double* a, int rows, int cols, double* v, double* b, int colsB, double* out);
VECMAT_API void VB_M_ProductTrADiagV(double* a, int rows, int cols, double* v, double* out);

} // extern "C"
