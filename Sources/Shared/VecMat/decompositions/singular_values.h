// Singular value decomposition and numerical rank.
//
// @missing an ordinary number
// @divisor a norm up to 1e-31 counts as zero
// @empty `*info` 0
// @cost of the order n p^2 where n is at least p
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

// ---- decomposition --------------------------------------------------------------------------------------------------
// @failure `*info` is -m where the passes do not suffice, and after 10000 turns for one value: the values from m + 1 on
//     are final, and the rest is in the state of the interruption. Otherwise 0
// @memory a copy of x, p and n doubles, and from 12 rows and 8 columns on two copies of each of the tables of vectors
//     asked for and about 50 doubles for each of their columns; where that is short it does without, more slowly and
//     with the same result
// @source Dongarra, Moler, Bunch and Stewart, LINPACK Users' Guide, 1979
// @weak an entry is negligible where adding it changes a sum of its neighbours by less than 2.220446049250313e-16 in
//     absolute terms. So accuracy is lost with `*info` 0 where the cells are below about 1e-12; for huge cells the
//     passes may run out. Scale the table to the order of 1

/// Singular value decomposition x = U diag(s) V' of an `n` by `p` table: the LINPACK routine DSVDC, by Householder
/// reduction to bidiagonal form and implicit-shift QR with deflation.
///
/// `s` has min(n + 1, p) cells and receives the singular values, non-negative and descending. `job` has the decimal
/// digits ab: a nonzero b asks for `v` (p columns); a = 1 asks for `u` with n columns, a of 2 or more for `u` with
/// min(n, p), each of n rows. The tables exist and are large enough; those not asked for are not touched and may be
/// null. All access is checked. `x` is left unchanged; a table too small for the scratch is worked on in place and
/// restored.
///
/// It departs from DSVDC in the number of passes, 60 for a singular value, and in what is zero or negligible.
/// @formula X = U \operatorname{diag}(s)\, V^{\top}
VECMAT_API void M_SVDecomp(matrix* x, int n, int p, matrix* s, matrix* u, matrix* v, int job, int* info);

/// The same over arrays of columns.
VECMAT_API void M_SVDecompSPV(matrix** x, int n, int p, matrix* s, matrix** u, matrix** v, int job, int* info);

/// Flat forms: `s` has min(n + 1, p) elements, `u` `ldu` rows and 1, n or min(n, p) columns as `job` asks, `v` `ldv`
/// rows and p columns, or 1 where it is not asked for. Return 0.
VECMAT_API int VB_M_SVDecomp(double* x, int n, int p, double* s, double* u, int ldu, double* v, int ldv, int job,
                             int* info);
VECMAT_API int VB_M_SVDecompSPV(SAFEARRAY** x, int n, int p, double* s, SAFEARRAY** u, int ldu, SAFEARRAY** v, int ldv,
                                int job, int* info);

// ---- rank -----------------------------------------------------------------------------------------------------------

/// Number of singular values above 1e-12, up to the first that is not. For p above n the last value is out of range of
/// the private s, and reads -1.0.
/// @divisor a singular value up to 1e-12 ends the count
/// @empty 0
/// @failure -1 where the singular values cannot be computed
/// @weak the limit of 1e-12 is absolute: the rank changes with the scale of the table
VECMAT_API int M_Rank(matrix* a, int n, int p);
VECMAT_API int VB_M_Rank(double* a, int n, int p);

} // extern "C"
