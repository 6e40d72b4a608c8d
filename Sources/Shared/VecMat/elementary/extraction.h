// Ranges of rows or columns, and regular patterns of cells, taken out of tables.
//
// Row and column numbers count from 1, and ranges include both ends. A read outside the source stores -1.0 (an empty
// string); a write outside is dropped.
//
// @missing copied unchanged
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

// ---- ranges ---------------------------------------------------------------------------------------------------------
// @empty an empty range takes nothing

/// Rows `from` to `to` go to the top of `out`, over `cols` columns. `out` is not prepared.
VECMAT_API void M_ExtractMatToMat(matrix* src, int cols, int from, int to, matrix* out);
VECMAT_API void M_ExtractMatToMatSPV(matrix** src, int cols, int from, int to, matrix* out);

/// Prepares `out` as `rows` by to - from + 1; columns `from` to `to` go to its left.
VECMAT_API void M_ExtractMatToMatByColDbl(matrix* src, int rows, int from, int to, matrix*& out);

/// `out` has to - from + 1 rows (columns in the last form). `src` is `rows` by `cols`; in an array of columns, of which
/// there are `cols`, each has at least `to` rows.
/// @empty an empty range takes nothing; a `cols` of 0 is taken as 1
VECMAT_API void VB_M_ExtractMatToMatDbl(double* src, int rows, int cols, int from, int to, double* out);
VECMAT_API void VB_M_ExtractMatToMatDblSPV(SAFEARRAY** src, int cols, int from, int to, double* out);
VECMAT_API void VB_M_ExtractMatToMatStr(wchar_t** src, int rows, int cols, int from, int to, wchar_t** out);
VECMAT_API void VB_M_ExtractMatToMatStrSPV(SAFEARRAY** src, int cols, int from, int to, wchar_t** out);
VECMAT_API void VB_M_ExtractMatToMatByColDbl(double* src, int rows, int from, int to, double* out);

// ---- patterns -------------------------------------------------------------------------------------------------------

/// Takes, from each of the `cols` string columns, `keep` cells from position `start` on, then skips `skip`, takes
/// `keep` again, and so on. The strings go to the same column of `dst`, their positions in the source, as doubles, to
/// `positions`, both from the first cell on. `nOut` is not used.
///
/// A run of cells also ends at cell `n`, and a column ends once `skip` cells after a run lie beyond `n`. So a column
/// that ends on a run with `skip` 0 has one more run, of empty strings. With `keep` below 1 only cell `n` ends a run.
/// Where the pattern would never end (`skip` below 0, or `keep` below 1 without a `skip`) it ends with the first run
/// that leads no further than the one before.
/// @empty a `start` above `n` gives one run, of empty strings
VECMAT_API void M_ExtractMatNeverySKSPV(Smatrix** src, int n, int cols, int nOut, int keep, int skip, int start,
                                        Smatrix** dst, matrix* positions);

/// The columns of `src` have `n` cells, those of `dst` and the array `positions` nOut.
VECMAT_API void Cpp_M_ExtractMatNeverySKSPV(SAFEARRAY** src, int n, int cols, int nOut, int keep, int skip, int start,
                                            SAFEARRAY** dst, double* positions);

} // extern "C"
