// The tests for a missing value, and counts of missing cells.
//
// A missing cell of a `matrix` holds the missing value, one of an `Smatrix` the empty string. There are two tests for a
// missing double: "equality" takes the missing value alone, "order" also what is below it and minus infinity; a NaN is
// missing under neither.
//
// The block named by the caller is read, `nRows` by `nCols` or the first `n` cells in linear order. A cell of it that
// lies outside the table counts as present, in a table of strings too. Counts by column or row overwrite the old ones,
// with 0 where the column or row has no cells. No error is reported.
//
// @missing counted (equality, or empty strings)
// @empty 0
// @cost one pass over the cells
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

#include <string>

extern "C" {

/// -1 where the value is missing, otherwise 0. The two names are one function.
/// @missing the order test: -1
/// @empty takes no array
VECMAT_API short IsMissingValueDbl(double x);
VECMAT_API short VB_IsMissingValueDbl(double x);

/// -1 where the string has no characters, otherwise 0. The flat form reads 32-bit characters up to a NUL.
/// @missing the empty string: -1
/// @empty the empty string is the missing one
VECMAT_API short IsMissingValueStr(std::wstring s);
VECMAT_API short VB_IsMissingValueStr(const wchar_t* s);

/// `n` less the missing cells of a vector.
/// @missing not counted (equality)
/// @empty `n` itself, even a negative one
VECMAT_API int V_NbNonMissing(matrix* x, int n);

/// The missing cells of each row, in `nRows` counts.
VECMAT_API void M_NbMissingPerRow(matrix* a, int nRows, int nCols, int* counts);

/// The present cells of each column, in `nCols` counts.
/// @missing not counted (equality)
/// @empty 0 for a column without rows
VECMAT_API void M_NbNonMissing(matrix* a, int nRows, int nCols, int* counts);

/// The missing cells off the diagonal of a symmetric table of order `n`, held as a triangle of columns. The diagonal is
/// not read.
/// @missing counted (equality), twice for each cell below the diagonal, which represents two
VECMAT_API int M_NbMissingSPV_T(matrix** a, int n, int unused);

} // extern "C"

/// The missing cells of a vector.
VECMAT_API int V_NbMissing(matrix* x, int n);
VECMAT_API int V_NbMissing(Smatrix* x, int n);

/// The missing cells of each column, in `nCols` counts.
VECMAT_API void M_NbMissing(matrix* a, int nRows, int nCols, int* counts);
VECMAT_API void M_NbMissing(Smatrix* a, int nRows, int nCols, int* counts);

/// The missing cells of an array of columns.
/// @missing counted by the order test, unlike all others here
VECMAT_API int M_NbMissing(matrix** a, int nRows, int nCols);

/// All missing cells of a table or an array of columns.
VECMAT_API int M_NbMissing2(matrix* a, int nRows, int nCols);
VECMAT_API int M_NbMissing2(matrix** a, int nRows, int nCols);
VECMAT_API int M_NbMissing2(Smatrix* a, int nRows, int nCols);

// ---- flat forms: `nRows` by `nCols` or n elements, never written ----------------------------------------------------

extern "C" {

/// The functions of the same names.
VECMAT_API int VB_V_NbMissing(double* x, int n);
VECMAT_API int VB_V_NbMissingStr(wchar_t** x, int n);
VECMAT_API int VB_V_NbNonMissing(double* x, int n);
/// `M_NbMissing` of one table.
/// @missing counted (equality, or empty strings)
VECMAT_API void VB_M_NbMissing(double* a, int nRows, int nCols, int* counts);
VECMAT_API void VB_M_NbMissingStr(wchar_t** a, int nRows, int nCols, int* counts);
/// The functions of the same names.
VECMAT_API int VB_M_NbMissing2(double* a, int nRows, int nCols);
VECMAT_API int VB_M_NbMissing2Str(wchar_t** a, int nRows, int nCols);
VECMAT_API void VB_M_NbNonMissing(double* a, int nRows, int nCols, int* counts);

VECMAT_API int VB_M_NbMissingSPV_T(SAFEARRAY** a, int n, int unused);
/// `M_NbMissing` of an array of columns.
/// @missing counted by the order test, unlike all others here
VECMAT_API int Cpp_M_NbMissingSPV(SAFEARRAY** a, int nRows, int nCols);

} // extern "C"
