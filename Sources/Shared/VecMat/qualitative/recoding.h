// Strings into codes, and values into 0 and 1.
//
// In the functions over categories row j of `categories` lists the categories of column j of the table, of which the
// first nCats[j] are searched in their order: the first match gives the code. A place beyond the table of categories is
// empty. `out` is nRows by nCols and must exist: no function here prepares it, and a cell that is not written keeps its
// value. A text is looked up by a hash, without a search through the categories.
//
// @mask a row with a nonzero entry becomes missing; may be null
// @empty nothing is written
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

#include <string>

extern "C" {

/// The code is the 1-based place. A cell that matches nothing leaves `out` unchanged.
/// @missing an empty string matches an empty category
VECMAT_API void M_ReplaceCatByCodes(Smatrix* table, int nRows, int nCols, int* nCats, Smatrix* categories,
                                    matrix*& out);

/// The code is the 0-based place plus `firstCode`. A cell that matches nothing becomes missing, unlike above.
/// @missing an empty string matches an empty category
VECMAT_API void M_ReplaceStrByCodes(Smatrix* table, int nRows, int nCols, int* nCats, Smatrix* categories, short* mask,
                                    int firstCode, matrix*& out);

/// 1.0 where a cell equals `value`, otherwise 0.0, for the first n cells in linear order. `out` must exist.
/// @missing an empty string is compared like any other
VECMAT_API void V_RecodeToBinary(Smatrix* x, int n, std::wstring value, matrix* out);

/// 0 where the absolute value is below 2.220446049250313e-16, otherwise 1, also for a NaN.
/// @missing stays missing (equality)
VECMAT_API void M_Binarize(matrix* table, int nRows, int nCols, matrix* out);
/// @missing not tested: it becomes 1, unlike in the copy
/// @empty nothing happens
VECMAT_API void M_Binarize2(matrix* table, int nRows, int nCols);
VECMAT_API void M_Binarize2SPV(matrix** table, int nRows, int nCols);

// ---- flat forms: the functions of the same names --------------------------------------------------------------------

/// `categories` is nCols by the largest of nCats.
VECMAT_API void VB_M_ReplaceCatByCodes(wchar_t** table, int nRows, int nCols, int* nCats, wchar_t** categories,
                                       double* out);
VECMAT_API void VB_M_ReplaceStrByCodes(wchar_t** table, int nRows, int nCols, int* nCats, wchar_t** categories,
                                       short* mask, int firstCode, double* out);

/// `value` is read as 32-bit characters up to a NUL, unlike the strings of the array.
VECMAT_API void Cpp_V_RecodeToBinary(wchar_t** x, int n, const wchar_t* value, int ignored, double* out);

VECMAT_API void VB_M_Binarize(double* table, int nRows, int nCols, double* out);
VECMAT_API void VB_M_Binarize2(double* table, int nRows, int nCols);
VECMAT_API void VB_M_Binarize2SPV(SAFEARRAY** table, int nRows, int nCols);

} // extern "C"
