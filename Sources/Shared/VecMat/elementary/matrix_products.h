// Products of tables.
//
// A name reads as the formula it computes, left to right: A, B, C are tables, V, V1, V2 vectors, Tr is the transpose of
// what follows. `rows` and `cols` are those of the first table; they bound the loops, and each table's own row count is
// its stride. A read outside a table yields -1.0, which takes part; a write outside is dropped. Every result is one
// running sum from +0.0 over the inner index from first to last. The `SPV` forms hold a table as an array of columns
// and give the same bits.
//
// A result `matrix*&` described as "prepared" goes through `matCheck` with 0.0, so a table that is too small is
// replaced. Every other result must exist and is written in place, by rows; cells that are not covered keep their
// values. A result may be one of the operands: a prepared one is then cleared before it is read, one in place is read
// as far as it is not yet overwritten.
//
// @memory larger products are worked on tile by tile in scratch memory: a block of both operands, up to 256 numbers of
//     the inner index, and a copy of the results where there is more than one block. Where memory is short, and where a
//     result is an operand, they do without, slower and with the same results
//
// @missing an ordinary number
// @empty an empty sum is 0.0
// @cost a multiplication for each cell of the result and each step of the inner index
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// a b; b has `cols` rows and `colsB` columns. Prepared `rows` by `colsB`, in place in an array of columns. Return 0.
/// @formula (A B)_{ij} = \sum_k a_{ik} b_{kj}
VECMAT_API int M_ProductAB(matrix* a, int rows, int cols, matrix* b, int colsB, matrix*& out);
VECMAT_API int M_ProductABSPV(matrix** a, int rows, int cols, matrix* b, int colsB, matrix*& out);
VECMAT_API int M_ProductABSPV2(matrix** a, int rows, int cols, matrix** b, int colsB, matrix** out);

/// a b. Prepared as above, in place in an array of columns. Return 0.
/// @formula (A B)_{ij} = \sum_k a_{ik} b_{kj}
/// @missing the first one, in either factor, ends the sum and makes the result missing (equality)
VECMAT_API int M_ProductABMissingSPV(matrix** a, int rows, int cols, matrix* b, int colsB, matrix*& out);
VECMAT_API int M_ProductABMissingSPV2(matrix* a, int rows, int cols, matrix* b, int colsB, matrix** out);
VECMAT_API int M_ProductABMissingSPV3(matrix** a, int rows, int cols, matrix* b, int colsB, matrix** out);

/// a' b; b has `rows` rows. Prepared `cols` by `colsB`.
/// @formula A^{\top} B
VECMAT_API void M_ProductTrAB(matrix* a, int rows, int cols, matrix* b, int colsB, matrix*& out);

/// a b'; b has `rowsB` rows and `cols` columns. Prepared `rows` by `rowsB`, or in place in an array of columns.
/// @formula A B^{\top}
VECMAT_API void M_ProductATrB(matrix* a, int rows, int cols, matrix* b, int rowsB, matrix*& out);
VECMAT_API void M_ProductATrBSPV(matrix* a, int rows, int cols, matrix* b, int rowsB, matrix** out);

/// b v, v of `cols` cells, in `rows` cells in place. Returns 0.
/// @formula B v
VECMAT_API int M_ProductBV(matrix* b, int rows, int cols, matrix* v, matrix*& out);
/// v' b as a column, v of `rows` cells. Prepared `cols` by 1.
/// @formula v^{\top} B
VECMAT_API void M_ProductVB(matrix* v, int rows, matrix* b, int cols, matrix*& out);
/// b' v, v of `rows` cells, in `cols` cells in place.
/// @formula B^{\top} v
VECMAT_API void M_ProductTrBV(matrix* b, int rows, int cols, matrix* v, matrix* out);
/// v' b' as a column, v of `n` cells and b `m` by `n`, in `m` cells in place.
/// @formula v^{\top} B^{\top}
VECMAT_API void M_ProductVTrB(matrix* v, int n, matrix* b, int m, matrix* out);

/// Chains go from left to right through a temporary. (a b) a' with b of order `cols`; (a' b) a with b of order `rows`.
/// In place.
VECMAT_API void M_ProductABTrA(matrix* a, int rows, int cols, matrix* b, matrix* out);
VECMAT_API void M_ProductTrABA(matrix* a, int rows, int cols, matrix* b, matrix* out);
/// (v' b) v and (va' b) vb with b of order `n`, returned.
VECMAT_API double M_ProductTrVBV(matrix* v, int n, matrix* b);
VECMAT_API double M_ProductTrV1BV2(matrix* va, int n, matrix* b, matrix* vb);
/// (a' b) c: b is `rows` by `colsB`, c `colsB` by `colsC`; the result, `cols` by `colsC`, in place.
/// @formula (A^{\top} B)\, C
VECMAT_API void M_ProductTrABC(matrix* a, int rows, int cols, matrix* b, int colsB, matrix* c, int colsC, matrix* out);
/// (a b') c: b is `rowsB` by `cols`, c `rowsB` by `colsC`; the result, `rows` by `colsC`, in place.
/// @formula (A B^{\top})\, C
VECMAT_API void M_ProductATrBC(matrix* a, int rows, int cols, matrix* b, int rowsB, matrix* c, int colsC, matrix* out);
/// (a' b) v: b is `rows` by `colsB`, v has `colsB` cells; the result, `cols` cells, in place.
/// @formula (A^{\top} B)\, v
VECMAT_API void M_ProductTrABV(matrix* a, int rows, int cols, matrix* b, int colsB, matrix* v, matrix* out);

/// (a b) c: b is `cols` by `colsB`, c `colsB` by `colsC`; the result, `rows` by `colsC`, in place. Each of the two
/// products looks for structure. Where a row of the left or a column of the right operand is all zero the cell is +0.0;
/// in a row of a square left operand that is zero off the diagonal (its column too) the cell is one product, and
/// likewise in such a column of a square right operand. A cell that is skipped in this way has no effect, even if it is
/// infinite or a NaN, and a product of zeros keeps its sign: the bits differ from those of two plain products.
/// @formula (A B)\, C
/// @missing an ordinary number, unless structure skips its term
VECMAT_API void M_ProductABC(matrix* a, int rows, int cols, matrix* b, int colsB, matrix* c, int colsC, matrix* out);

} // extern "C"

/// a' a and a a'. The lower triangle is computed and mirrored. Prepared, `cols` by `cols` and `rows` by `rows`. Sums
/// are doubles for ints too; a result in ints is truncated, and a sum outside their range becomes the lowest int.
VECMAT_API void M_ProductTrAA(matrix* a, int rows, int cols, matrix*& out);
VECMAT_API void M_ProductTrAA(matrix* a, int rows, int cols, matrixInt*& out);
VECMAT_API void M_ProductTrAA(matrixInt* a, int rows, int cols, matrixInt*& out);
VECMAT_API void M_ProductTrAA(matrixInt* a, int rows, int cols, matrix*& out);
VECMAT_API void M_ProductATrA(matrix* a, int rows, int cols, matrix*& out);
VECMAT_API void M_ProductATrA(matrixInt* a, int rows, int cols, matrix*& out);

// Flat forms of the functions above: each array is column-major with the dimensions of its role, and a result is
// written to the caller's array in place. The operands are not changed.
extern "C" {

VECMAT_API int VB_M_ProductAB(double* a, int r, int c, double* b, int c2, double* out);
VECMAT_API int VB_M_ProductBV(double* b, int rows, int cols, double* v, double* out);
VECMAT_API void VB_M_ProductVB(double* v, int rows, double* b, int cols, double* out);
VECMAT_API void VB_M_ProductTrAB(double* a, int rows, int cols, double* b, int colsB, double* out);
VECMAT_API void VB_M_ProductATrB(double* a, int rows, int cols, double* b, int rowsB, double* out);
VECMAT_API void VB_M_ProductTrAA(double* a, int rows, int cols, double* out);
VECMAT_API void Cpp_M_ProductTrAALng(int* a, int rows, int cols, int* out);
VECMAT_API void VB_M_ProductATrA(double* a, int rows, int cols, double* out);
VECMAT_API void VB_M_ProductTrBV(double* b, int rows, int cols, double* v, double* out);
VECMAT_API void VB_M_ProductVTrB(double* v, int n, double* b, int m, double* out);
VECMAT_API void VB_M_ProductABTrA(double* a, int rows, int cols, double* b, double* out);
VECMAT_API void VB_M_ProductTrABA(double* a, int rows, int cols, double* b, double* out);
VECMAT_API double VB_M_ProductTrVBV(double* v, int n, double* b);
VECMAT_API double VB_M_ProductTrV1BV2(double* va, int n, double* b, double* vb);
VECMAT_API void VB_M_ProductTrABC(double* a, int rows, int cols, double* b, int colsB, double* c, int colsC,
                                  double* out);
VECMAT_API void VB_M_ProductATrBC(double* a, int rows, int cols, double* b, int rowsB, double* c, int colsC,
                                  double* out);
VECMAT_API void Cpp_M_ProductTrABV(double* a, int rows, int cols, double* b, int colsB, double* v, double* out);
VECMAT_API void VB_M_ProductABC(double* a, int rows, int cols, double* b, int colsB, double* c, int colsC, double* out);

} // extern "C"
