// The stable sorts: of a vector, of rows by a separate key or by a column of their own, of columns by a key.
//
// Common to all of them, unless the comment of a function says otherwise:
//   - The range `first` to `last` is 1-based with both ends included, and need not be the whole table: what lies
//     outside stays as it was, in the data, the companion and the key.
//   - `descending` is exactly -1 for a descending sort; every other value, 1 too, is ascending. Rows with equal keys
//     keep the order of the input in both directions.
//   - The order is the plain less-than: 0.0 and -0.0 tie. Strings are ordered by their character codes, without a
//     locale. With NaN keys the rows come in an unspecified order, each of them once.
//   - Nothing is tested and no error is reported: beyond a table a cell, or a cell of the key, reads -1.0 (-1, empty)
//     and takes part in the sort, and is not written. The result is 0.
//   - Numbers are sorted by the bits of their keys and moved column by column; so are, in the flat forms, rows of
//     strings by a key. A merge of records serves for tables of strings, for NaN and where memory is short; rows beyond
//     a table, and columns that share memory, are written row by row from a copy.
//
// @missing the smallest key, as the empty string is: first ascending, last descending; data moves like any other
// @empty a `last` below `first` changes nothing. Counts of 0 are 1 in the flat forms
// @memory a column of scratch and 8 bytes for each row of the range; for a vector of numbers a copy of it. Where that
//     is short it goes without, in the end without a buffer. A failed allocation is the exception of `new`, raised
//     before a sort writes anything (a sort by several columns in turn may have finished some of them)
// @cost a sort of the keys, of the order n log n at most, and one move of each cell
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"
#include "../matrixInt.h"

// ---- rows by a key ------------------------------------------------------------------------------------------------

/// Rearrange the rows of `data` (over its `nCols` columns) and of `companion` (over `nCompanionCols`) in the order of
/// `key`, element i of which belongs to row i. `writeKeys` exactly -1 writes the sorted keys back into elements `first`
/// to `last`; any other value leaves `key` unchanged, out of step with the rows. `nRows` is not used: the stride of a
/// table is its own. `matrix**` and `Smatrix**` are arrays of column tables.
///
/// Integer keys are compared as doubles and come back unchanged.
VECMAT_API int SortQ(matrix*& data, int nRows, int nCols, int first, int last, matrix*& key, matrix*& companion,
                     int nCompanionCols, short descending, short writeKeys);
VECMAT_API int SortQ(matrixInt*& data, int nRows, int nCols, int first, int last, matrixInt*& key,
                     matrixInt*& companion, int nCompanionCols, short descending, short writeKeys);
VECMAT_API int SortQ(matrix*& data, int nRows, int nCols, int first, int last, matrixInt*& key, matrix*& companion,
                     int nCompanionCols, short descending, short writeKeys);
VECMAT_API int SortQ(matrixInt*& data, int nRows, int nCols, int first, int last, matrix*& key, matrix*& companion,
                     int nCompanionCols, short descending, short writeKeys);
VECMAT_API int SortQ(matrix** data, int nRows, int nCols, int first, int last, matrix*& key, matrix*& companion,
                     int nCompanionCols, short descending, short writeKeys);

/// The same for strings, with two differences: an `nCols` of 0 is one column, the strings in linear order (for an array
/// of columns: its first table), and with `nCompanionCols` 0 the companion may be null.
VECMAT_API int SortQ(Smatrix*& data, int nRows, int nCols, int first, int last, matrix*& key, matrix*& companion,
                     int nCompanionCols, short descending, short writeKeys);
VECMAT_API int SortQ(Smatrix** data, int nRows, int nCols, int first, int last, matrix*& key, matrix*& companion,
                     int nCompanionCols, short descending, short writeKeys);

/// Sort all `n` rows ascending by `key`, normally an indicator of 0 and 1, so that the rows with 0 come first, each
/// group in the order of the input. The sorted keys are written back into `key`.
/// @missing the smallest key: first; data moves like any other
/// @empty nothing changes; `nCols` of 0 is one column of strings, and of any type in the flat forms
VECMAT_API int SortDataBy01(matrix*& data, int n, int nCols, matrix*& key);
VECMAT_API int SortDataBy01(matrix** data, int n, int nCols, matrix*& key);
VECMAT_API int SortDataBy01(Smatrix*& data, int n, int nCols, matrix*& key);

// ---- rows by columns of their own -----------------------------------------------------------------------------------
// @missing the smallest of a key column, as the empty string is: first ascending, last descending
// @empty a `last` below `first`, or no rows, changes nothing

/// Sort rows `first` to `last` by column `col`, 1-based; the first `nCols` columns move.
VECMAT_API int SortQMatrixCol(matrix*& table, int nRows, int nCols, int col, int first, int last, short descending);
VECMAT_API int SortQMatrixCol(matrixInt*& table, int nRows, int nCols, int col, int first, int last, short descending);
VECMAT_API int SortQMatrixCol(Smatrix*& table, int nRows, int nCols, int col, int first, int last, short descending);

/// Sort rows 1 to `nRows` ascending by every column in turn, each sort keeping the order of the one before where it
/// ties. `lastToFirst` exactly -1 goes from the last column to the first, so that the first is the major key and the
/// order lexicographic; any other value goes from the first to the last, which then is the major key.
VECMAT_API int SortMatrixSeqQ(matrix*& table, int nRows, int nCols, short lastToFirst);
VECMAT_API int SortMatrixSeqQ(matrixInt*& table, int nRows, int nCols, short lastToFirst);

/// The same by columns `firstCol` to `lastCol` only, 1-based; all `nCols` columns move.
VECMAT_API int SortMatrixSeqQP1toP2(matrix* table, int nRows, int nCols, int firstCol, int lastCol, short lastToFirst);
VECMAT_API int SortMatrixSeqQP1toP2(matrixInt* table, int nRows, int nCols, int firstCol, int lastCol,
                                    short lastToFirst);

// ---- vectors --------------------------------------------------------------------------------------------------------

/// Sort elements `first` to `last` of a vector of `n` in place. A table is taken in linear order.
/// @missing the smallest: first ascending, last descending
/// @empty a `last` below `first` changes nothing
VECMAT_API int SortQVector(double*& x, int n, int first, int last, short descending);
VECMAT_API int SortQVector(int*& x, int n, int first, int last, short descending);
VECMAT_API int SortQVector(matrix*& x, int n, int first, int last, short descending);
VECMAT_API int SortQVector(matrixInt*& x, int n, int first, int last, short descending);

/// The same for strings. Here, unlike in every other sort, any `descending` but 0 is descending. Callers pass 1 for
/// `first`.
/// @missing the empty string is the smallest: first ascending, last descending
/// @empty a `last` below `first` changes nothing
VECMAT_API int SortQVector(Smatrix* x, int first, int last, short descending);

extern "C" {

// ---- columns by a key -----------------------------------------------------------------------------------------------

/// Rearranges whole columns `first` to `last` of `data` (`nRows` high) and `companion` (`nCompanionRows` high) in the
/// order of `key`, element j of which belongs to column j. `writeKeys` as in `SortQ`; `nCols` is not used.
VECMAT_API int SortQByCol(matrix*& data, int nRows, int nCols, int first, int last, matrix*& key, matrix*& companion,
                          int nCompanionRows, short descending, short writeKeys);

// ---- flat forms -----------------------------------------------------------------------------------------------------
//
// The arrays are column-major with the dimensions given. Numbers are sorted in place; arrays that overlap, and those
// whose cells have to be converted, are copied in, and copied back as a whole: the key, the companion, the data. String
// arrays come back as new BSTRs in every cell, including those outside the range; the old ones are not released.

/// Vectors of `n`; in the string form any `descending` but 0 is descending.
/// @missing the smallest, as the empty string is: first ascending, last descending
VECMAT_API int VB_SortQVectorDbl(double* x, int n, int first, int last, short descending);
VECMAT_API int VB_SortQVectorLng(int* x, int n, int first, int last, short descending);
VECMAT_API int VB_SortQVectorStr(wchar_t** x, int n, int first, int last, short descending);

/// Tables of `nRows` by `nCols`, by one column of their own.
VECMAT_API int VB_SortQMatrixCol(double* table, int nRows, int nCols, int col, int first, int last, short descending);
VECMAT_API int VB_SortQMatrixColStr(wchar_t** table, int nRows, int nCols, int col, int first, int last,
                                    short descending);

/// By all columns in turn; by columns `firstCol` to `lastCol`, in the caller's array itself.
VECMAT_API int VB_SortMatrixSeqQDbl(double* table, int nRows, int nCols, short lastToFirst);
VECMAT_API int VB_SortMatrixSeqQLng(int* table, int nRows, int nCols, short lastToFirst);
VECMAT_API int VB_SortMatrixSeqQP1toP2Dbl(double* table, int nRows, int nCols, int firstCol, int lastCol,
                                          short lastToFirst);
VECMAT_API int VB_SortMatrixSeqQP1toP2Lng(int* table, int nRows, int nCols, int firstCol, int lastCol,
                                          short lastToFirst);

/// `SortQ`: data `nRows` by `nCols`, `nRows` keys, companion `nRows` by `nCompanionCols`. As 0 counts as 1 in both
/// column counts, there is always a companion and it is always rearranged. In order: doubles by doubles, doubles by
/// ints, ints by ints, Booleans by doubles (every true cell comes back as -1), strings by doubles.
VECMAT_API int VB_SortQDbl(double* data, int nRows, int nCols, int first, int last, double* key, double* companion,
                           int nCompanionCols, short descending, short writeKeys);
VECMAT_API int VB_SortQDbl2(double* data, int nRows, int nCols, int first, int last, int* key, double* companion,
                            int nCompanionCols, short descending, short writeKeys);
VECMAT_API int VB_SortQLng(int* data, int nRows, int nCols, int first, int last, int* key, int* companion,
                           int nCompanionCols, short descending, short writeKeys);
VECMAT_API int VB_SortQBool(short* data, int nRows, int nCols, int first, int last, double* key, double* companion,
                            int nCompanionCols, short descending, short writeKeys);
VECMAT_API int VB_SortQStr(wchar_t** data, int nRows, int nCols, int first, int last, double* key, double* companion,
                           int nCompanionCols, short descending, short writeKeys);

/// The same with the data an array of `nCols` columns of `nRows`: numbers are rearranged in place, strings saved back.
VECMAT_API int VB_SortQDblSPV(SAFEARRAY** data, int nRows, int nCols, int first, int last, double* key,
                              double* companion, int nCompanionCols, short descending, short writeKeys);
VECMAT_API int VB_SortQStrSPV(SAFEARRAY** data, int nRows, int nCols, int first, int last, double* key,
                              double* companion, int nCompanionCols, short descending, short writeKeys);

/// `SortQByCol`: data `nRows` by `nCols`, `nCols` keys, companion `nCompanionRows` by `nCols`; 0 counts as 1 in both
/// row counts.
VECMAT_API int VB_SortQByColDbl(double* data, int nRows, int nCols, int first, int last, double* key, double* companion,
                                int nCompanionRows, short descending, short writeKeys);

/// `SortDataBy01`: data `n` by `nCols` (0 counts as 1), `n` keys. The caller's keys stay as they were: they are sorted
/// in a private copy. Booleans come back as -1 and 0.
VECMAT_API int VB_SortDataBy01(double* data, int n, int nCols, double* key);
VECMAT_API int VB_SortDataBy01Bool(short* data, int n, int nCols, double* key);
VECMAT_API int VB_SortDataBy01SPV(SAFEARRAY** data, int n, int nCols, double* key);

/// The same for strings, but no string is copied: the caller's references change places.
VECMAT_API int VB_SortDataBy01Str(wchar_t** data, int n, int nCols, double* key);

} // extern "C"
