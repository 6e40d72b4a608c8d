// Rows with missing cells removed before an analysis and put back after it, and tables stacked without them.
//
// A mask has one 16-bit entry for each row. The block is `nRows` by `nCols`; a read outside a table yields -1.0 (-1, an
// empty string) and a write outside is dropped. Nothing is resized; the caller's count of marked rows is not checked.
//
// @missing with two or more columns the mask alone decides; with one column (`nCols` below 2) a missing cell (order),
//     or an empty string, excludes its row as well, whatever its mask entry
// @mask a nonzero entry excludes the row
// @empty no row moves
// @cost one pass over the cells
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

/// Moves the rows that are kept up to the top, in their order; below them the cells keep their values.
VECMAT_API void RemoveRowsWithMissing(matrix*& a, int nRows, int nCols, short* mask);
VECMAT_API void RemoveRowsWithMissing(Smatrix*& a, int nRows, int nCols, short* mask);

extern "C" {

/// The same over `data`, which changes in place (each string becomes a new BSTR); then its top `nRows` - `nRemoved`
/// rows go to `out`. An `nCols` of 0 means 1.
VECMAT_API void VB_RemoveRowsWithMissing(double* data, int nRows, int nCols, int nRemoved, short* mask, double* out);
VECMAT_API void VB_RemoveRowsWithMissingStr(wchar_t** data, int nRows, int nCols, int nRemoved, short* mask,
                                            wchar_t** out);

/// The reverse: fills the `nRows` + `nInsert` rows of `out`, for each of which the mask has an entry. A row that is not
/// marked takes the next row of `data`.
/// @missing copied unchanged; a marked row becomes missing in every column, in ints -2147483648, which no function
///     looks for
/// @mask a nonzero entry marks a row to be inserted
/// @empty nothing is written
VECMAT_API void M_InsertMissing(matrix* data, int nRows, int nCols, short* mask, int nInsert, matrix* out);
VECMAT_API void M_InsertMissingLng(matrixInt* data, int nRows, int nCols, short* mask, int nInsert, matrixInt* out);
VECMAT_API void Cpp_M_InsertMissingDbl(double* data, int nRows, int nCols, short* mask, int nInsert, double* out);
VECMAT_API void Cpp_M_InsertMissingLng(int* data, int nRows, int nCols, short* mask, int nInsert, int* out);

/// Stacks the present cells, column by column, into `out`, which keeps its values beyond them. Cell j of `counts` grows
/// by 1 for each present cell of column j; if it is 0 after the column, `*emptyCols` grows by 1. Both are added to and
/// must be initialised.
/// @missing left out (equality)
/// @empty a column whose count is 0 adds 1 to `*emptyCols`
VECMAT_API void MatToVect_NoMissing(matrix* data, int nRows, int nCols, matrix* counts, double* emptyCols, matrix* out);

/// `counts` has `nCols` elements, which are the start of a private count: the caller's array is not written. `out` has
/// an element for each present cell.
VECMAT_API void Cpp_MatToVect_NoMissing(double* data, int nRows, int nCols, double* counts, double* emptyCols,
                                        double* out);

} // extern "C"
