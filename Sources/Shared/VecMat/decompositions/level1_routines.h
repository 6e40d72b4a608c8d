// Level-1 routines over runs of table cells, in the manner of the BLAS, with the library's checked access.
//
// A vector of `count` elements begins at (row, col), 1-based, and continues in linear order by `inc` elements at a
// time: past the end of a column it continues in the next one. A negative increment starts at (1 - count) * inc, as in
// the BLAS. Reads outside the table give -1.0, writes outside it are dropped. In the SPV forms `col` selects the table
// of the array and the vector stays inside it; a column below 1 is outside.
//
// dscal, drotg, ddot, daxpy and drot are names of the BLAS, too, with other arguments. Most builds of a BLAS decorate
// theirs (ddot_, cblas_ddot). Beside one on Linux that does not, VecMat's own steps stay VecMat's; a caller's reference
// goes to the library that is loaded first, unless that BLAS has symbol versions. Open one of the two by dlopen with
// RTLD_LOCAL, or link VecMat first and call the BLAS by decorated names: see Docs/versions.md.
//
// @missing an ordinary number
// @empty nothing is changed
// @cost one pass over the vectors
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Euclidean norm by scale and sum of squares.
/// @formula \|x\|_2 = \sqrt{\sum_i x_i^2}
/// @empty 0.0, also for an increment below 1
VECMAT_API double DNRM2(int count, matrix* x, int inc, int row, int col);
VECMAT_API double DNRM2SPV(int count, matrix** x, int inc, int row, int col);

/// x = a x.
/// @formula x \leftarrow a x
VECMAT_API void dscal(int count, double a, matrix* x, int inc, int row, int col);
VECMAT_API void dscalSPV(int count, double a, matrix** x, int inc, int row, int col);

/// Builds the rotation that brings (a, b) to (r, 0): stores r in `*a`, the reconstruction number z in `*b`, the cosine
/// and sine.
/// @formula \begin{pmatrix} c & s \\ -s & c \end{pmatrix} \begin{pmatrix} a \\ b \end{pmatrix} = \begin{pmatrix} r \\ 0
///     \end{pmatrix}
/// @divisor with a and b both 0 the rotation is the identity, and r and z are 0
/// @empty takes no array
VECMAT_API void drotg(double* a, double* b, double* c, double* s);

/// Inner product, added in element order.
/// @formula \sum_i x_i y_i
/// @empty 0.0
VECMAT_API double ddot(int count, matrix* x, int incx, matrix* y, int incy, int rowx, int colx, int rowy, int coly);
VECMAT_API double ddotSPV(int count, matrix** x, int incx, matrix** y, int incy, int rowx, int colx, int rowy,
                          int coly);

/// y = y + a x; y keeps its bits where a is exactly 0.
/// @formula y \leftarrow y + a x
VECMAT_API void daxpy(int count, double a, matrix* x, int incx, matrix* y, int incy, int rowx, int colx, int rowy,
                      int coly);
VECMAT_API void daxpySPV(int count, double a, matrix** x, int incx, matrix** y, int incy, int rowx, int colx, int rowy,
                         int coly);

/// Plane rotation of column `colx` of x and `coly` of y, from row 1: x' = c x + s y, y' = c y - s x.
/// @formula x' = c x + s y, \quad y' = c y - s x
VECMAT_API void drot(int count, matrix* x, int incx, matrix* y, int incy, double c, double s, int colx, int coly);
VECMAT_API void drotSPV(int count, matrix** x, int incx, matrix** y, int incy, double c, double s, int colx, int coly);

/// Exchanges column `colx` of x and `coly` of y, from row 1.
VECMAT_API void M_SwapVectors(int count, matrix* x, int incx, matrix* y, int incy, int colx, int coly);
VECMAT_API void M_SwapVectorsSPV(int count, matrix** x, int incx, matrix** y, int incy, int colx, int coly);

} // extern "C"
