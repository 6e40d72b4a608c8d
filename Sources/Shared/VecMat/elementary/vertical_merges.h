// Tables and vectors merged one above the other.
//
// A result given as a reference is prepared; in a new one the cells beside the narrower table are 0.0. A numeric table
// that is already large enough is kept with its own stride, and only the head of its block is cleared. A read outside a
// table stores -1.0 (an empty string); a write outside is dropped.
//
// @missing copied unchanged
// @empty an empty side adds nothing
// @cost one pass over the cells
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

/// nA + nB by 1.
VECMAT_API void VMergeVectors(matrix* a, int nA, matrix* b, int nB, matrix*& out);
VECMAT_API void VMergeVectors(Smatrix* a, int nA, Smatrix* b, int nB, Smatrix*& out);

/// Appends `b` to `a` from position nA, counted from 0, as far as the table `a` goes.
VECMAT_API void VMergeVectors2(matrix* a, int nA, matrix* b, int nB);
VECMAT_API void VMergeVectors2(Smatrix* a, int nA, Smatrix* b, int nB);

extern "C" {

/// The same for tables that hold Booleans.
/// @missing Booleans are never missing
VECMAT_API void VMergeVectorsBool2(matrix* a, int nA, matrix* b, int nB);

/// r1 + r2 by max(c1, c2).
VECMAT_API void VMergeTables(matrix* a, int r1, int c1, matrix* b, int r2, int c2, matrix*& out);
VECMAT_API void VMergeTablesSPV(matrix** a, int r1, int c1, matrix* b, int r2, int c2, matrix*& out);

// ---- flat forms -----------------------------------------------------------------------------------------------------

/// `out` has the size of the result, as given above, and may be one of the sources.
VECMAT_API void VB_VMergeVectorsDbl(double* a, int nA, double* b, int nB, double* out);
VECMAT_API void VB_VMergeVectorsStr(wchar_t** a, int nA, wchar_t** b, int nB, wchar_t** out);
VECMAT_API void VB_VMergeTablesDbl(double* a, int r1, int c1, double* b, int r2, int c2, double* out);
VECMAT_API void Cpp_VMergeTablesDblSPV(SAFEARRAY** a, int r1, int c1, double* b, int r2, int c2, double* out);

/// These write the result over the first array, which must have nA + nB elements. The whole result goes back: every
/// Boolean becomes -1 or 0, every string a new BSTR.
VECMAT_API void VB_VMergeVectorsDbl2(double* a, int nA, double* b, int nB);
VECMAT_API void VB_VMergeVectorsStr2(wchar_t** a, int nA, wchar_t** b, int nB);
VECMAT_API void VB_VMergeVectorsBool2(short* a, int nA, short* b, int nB);

} // extern "C"
