// Missing cells replaced by a constant, and cells or weights taken out of use.
//
// Tables are changed in place, over the block that the caller names; nothing is resized, and a cell outside the table
// is neither missing nor written. "Equality" takes the missing value alone as missing, "order" also what is below it
// and minus infinity; a NaN is missing under neither.
//
// @missing replaced (order)
// @empty nothing happens
// @cost one pass over the cells
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"
#include "../matrixInt.h"

#include <string>

extern "C" {

/// Every missing cell becomes `value`: of a table, of an array of columns, and of a symmetric table held as a
/// triangle of columns, where (i, j) and (j, i) are one cell.
VECMAT_API void M_ReplaceMissingByVal(matrix* a, int nRows, int nCols, double value);
VECMAT_API void M_ReplaceMissingByValSPV(matrix** a, int nRows, int nCols, double value);
VECMAT_API void M_ReplaceMissingByValSPV_T(matrix** a, int nRows, int nCols, double value);

/// Every empty string becomes `value`.
/// @missing the empty string is replaced
VECMAT_API void M_ReplaceMissingByStr(Smatrix* a, int nRows, int nCols, std::wstring value);

/// The mask has `nRows` by `nMaskCols` cells; one outside its table reads as -1.
/// @missing overwritten like any other
/// @mask exactly 1 makes the cell at its place missing, or, with `wholeRow` exactly -1, all `nCols` cells of its row
VECMAT_API void M_ReplaceByMissing(matrix* a, int nRows, int nCols, matrixInt* mask, int nMaskCols, short wholeRow);

/// With `nWeightCols` 1 each row has a weight, with any other number each cell. Other weights keep their values.
/// @missing sets the weight of its row, or of its cell, to 0 (equality)
/// @weights written, not read
VECMAT_API void M_SetWeightsToZeroForMissing(matrix* data, int nRows, int nCols, matrix*& weights, int nWeightCols);

// ---- flat forms: the caller's array is changed in place -------------------------------------------------------------

VECMAT_API void VB_M_ReplaceMissingByVal(double* a, int nRows, int nCols, double value);
VECMAT_API void VB_M_ReplaceMissingByValSPV(SAFEARRAY** a, int nRows, int nCols, double value);
/// `value` is one string of 32-bit characters, used as given. Each element of `a`, even one that keeps its text,
/// becomes a new BSTR.
VECMAT_API void VB_M_ReplaceMissingByStr(wchar_t** a, int nRows, int nCols, const wchar_t* value);
VECMAT_API void Cpp_M_ReplaceByMissing(double* a, int nRows, int nCols, int* mask, int nMaskCols, short wholeRow);
/// `weights` is `nRows` by `nWeightCols`.
VECMAT_API void VB_M_SetWeightsToZeroForMissing(double* data, int nRows, int nCols, double* weights, int nWeightCols);

} // extern "C"
