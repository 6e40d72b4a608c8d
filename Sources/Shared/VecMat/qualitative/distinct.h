// Repeated rows, and the distinct values of a vector.
//
// Equality is that of doubles: 0.0 equals -0.0, a NaN nothing. A vector is a table in linear order. The input is not
// written.
//
// @missing a value like any other, the smallest number, equal to itself; so is the empty string
// @empty 1 for `n` below 2
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// Separates the rows that repeat another from the first of their kind. `data` has nCols key columns and an identifier
/// in column nCols + 1; `out`, nRows by nCols + 3, must exist and is filled with
///     columns 1 to nCols   the keys
///     nCols + 1            the number of input rows with these keys, 0 in a repeated row
///     nCols + 2            the identifier
///     nCols + 3            1 in a kept row, 0 in a repeated one
/// First come the `*nKept` kept rows, by ascending identifier, then the repeated ones likewise; where identifiers are
/// equal, by ascending keys from the first column on, then in the order of the input. Of equal rows the first of the
/// input is kept.
/// @missing a key like any other, the smallest, equal to itself
/// @empty no row is kept
VECMAT_API void M_Dedupe(matrix* data, int nRows, int nCols, int* nKept, matrix*& out);

/// The values in ascending order, without those that lie above the one before by no more than the tolerance: the
/// smaller of 2.220446049250313e-16 and the range of the values. So the last of a chain of close values may be far from
/// the one that represents it. `distinct` has room for n cells; those beyond `*count` are left unchanged.
/// @missing a value like any other, the smallest
/// @empty one value, -1.0
VECMAT_API void V_ExtractDistinct(matrix* x, int n, matrix* distinct, int* count);

} // extern "C"

/// The number of distinct values, without a tolerance, so it can be higher than the count above.
VECMAT_API int V_NbDistinct(matrix* x, int n);
VECMAT_API int V_NbDistinct(matrixInt* x, int n);
VECMAT_API int V_NbDistinct(Smatrix* x, int n);

extern "C" {

// Flat forms: the functions of the same names; `distinct` has n elements.
VECMAT_API void VB_M_Dedupe(double* data, int nRows, int nCols, int* nKept, double* out);
VECMAT_API void VB_V_ExtractDistinct(double* x, int n, double* distinct, int* count);
VECMAT_API int VB_V_NbDistinct(double* x, int n);
VECMAT_API int VB_V_NbDistinctLng(int* x, int n);
VECMAT_API int Cpp_V_NbDistinctStr(wchar_t** x, int n);

} // extern "C"
