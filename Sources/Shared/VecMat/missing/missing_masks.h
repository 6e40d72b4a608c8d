// Masks and indicators of missing cells.
//
// A flag is a 16-bit -1 or 0. Flags and indicators that a function is not said to write keep their values: the caller
// clears them. "Equality" takes the missing value alone as missing, "order" also what is below it and minus infinity; a
// NaN is missing under neither. A missing string is an empty one, and so is a place outside a table of strings; a place
// outside a table of doubles reads as -1.0.
//
// @empty nothing is written
// @cost one pass over the cells
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// out[i] becomes -1 where a[i] or b[i] is -1, or c[i] where `c` is not null. `total` becomes the number of those rows,
/// whatever `out` held before.
/// @missing no cell is read
/// @mask `a`, `b`, `c`: exactly -1 in any of them sets the flag of the row; no flag is cleared
/// @empty total 0
VECMAT_API void SummarizeMissing(int n, int*& total, short*& out, short*& a, short*& b, short*& c);
VECMAT_API void VB_SummarizeMissing(int n, int* total, short* out, short* a, short* b, short* c);

/// The same where a[i] and b[i] both are -1. The order of the arguments is different.
/// @missing no cell is read
/// @mask `a`, `b`: exactly -1 in both sets the flag of the row; no flag is cleared
/// @empty total 0
VECMAT_API void VB_SummarizeAllMissing(int n, short* a, short* b, int* total, short* out);

/// out[i] becomes -1 for a row that the filter selects and whose cells are all missing.
/// @missing a row with nothing else sets its flag (equality, or empty strings)
/// @mask a row is selected where its filter is exactly -1; no flag is cleared
/// @empty without columns no flag is written
VECMAT_API void VB_M_AllMissingRows(double* x, int nRows, int nCols, short* filter, short* out);
VECMAT_API void VB_M_AllMissingRowsStr(wchar_t** x, int nRows, int nCols, short* filter, short* out);

/// out[i] becomes -1 where a[i] is -1 or the element is missing, and 0 everywhere else.
/// @missing sets the flag (order)
/// @mask exactly -1 in `a` sets the flag; the others become 0
VECMAT_API void VB_V_GetMissingDbl(double* x, int n, short* a, short* out);

/// out[i] becomes -1 where a[i] is -1 and the string is empty: unlike in the form for doubles, and on purpose.
/// @missing an empty string sets the flag, but only where `a` is set
/// @mask exactly -1 in `a` is needed for the flag; no flag is cleared
VECMAT_API void V_GetMissingStr(Smatrix* x, int n, short* a, short* out);
VECMAT_API void VB_V_GetMissingStr(wchar_t** x, int n, short* a, short* out);

/// out[i] becomes -1 where filter[i] is -1 or the cell of row i in the last of the `nCols` columns is missing,
/// otherwise 0. `filter` and `out` may be one array. The other form reads an array of columns.
/// @missing in the last column sets the flag of its row (order); the other columns are not read
/// @mask exactly -1 sets the flag; the others become 0
/// @empty without columns nothing is written
VECMAT_API void M_GetMissing(matrix* a, int nRows, int nCols, short* filter, short* out);
VECMAT_API void M_GetMissingSPV(matrix** a, int nRows, int nCols, short* filter, short* out);
VECMAT_API void Cpp_M_GetMissingDbl(double* a, int nRows, int nCols, short* filter, short* out);
VECMAT_API void Cpp_M_GetMissingDblSPV(SAFEARRAY** a, int nRows, int nCols, short* filter, short* out);

/// Writes 1 into `out` at each missing cell of the block. In a flat form `out` is `nRows` by `nCols`.
/// @missing writes 1 at its place (equality), nothing elsewhere
VECMAT_API void M_IdentifyMissingInMat(matrix* a, int nRows, int nCols, matrixInt* out);
VECMAT_API void M_IdentifyMissingInMatSPV(matrix** a, int nRows, int nCols, matrixInt* out);
VECMAT_API void Cpp_M_IdentifyMissingInMat(double* a, int nRows, int nCols, int* out);
VECMAT_API void Cpp_M_IdentifyMissingInMatSPV(SAFEARRAY** a, int nRows, int nCols, int* out);

/// Is a cell of a symmetric table of order `n` missing although both its diagonal cells are present? -1 where that
/// holds for some cell (i, j) above the diagonal, otherwise 0. A diagonal cell outside the table counts as present, a
/// NaN on the diagonal does not. The cells below the diagonal are not read. The other form reads a triangle of columns.
/// @missing looked for above the diagonal (equality), where both diagonal cells are above the missing value (order)
/// @empty 0, also for an `n` of 1
VECMAT_API short M_IsMissingOutOfDiagonalAndNotOnDiags(matrix* a, int n);
VECMAT_API short M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(matrix** a, int n);
VECMAT_API short Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(double* a, int n);
VECMAT_API short Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(SAFEARRAY** a, int n);

} // extern "C"
