// Super-matrices: tables held as an array of columns, and stacks of equal tables.
//
// An array of columns is a `matrix**` (`Smatrix**`) of `nCols` tables: cell (i, j) is cell i of table j. A triangular
// one has n - k cells in table k and stands for a symmetric table of order n: element (R, C), from 0, is cell |R - C|
// of table min(R, C). A stack is an array of n tables of equal shape whose flat form interleaves them: the value of
// table k, cell (i, j), all from 0, stands at k + n*(i + rows*j).
//
// @missing not read
// @empty without tables nothing happens
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"

#include <cstddef>
#include <cstdint>

/// Array descriptor of OLE Automation, as the caller's arrays of arrays come. Only `pvData` is ever read. A program that
/// includes the system's own, <oleauto.h>, does so before.
#ifndef __oaidl_h__
struct SAFEARRAYBOUND
{
    std::uint32_t cElements;
    std::int32_t lLbound;
};

struct SAFEARRAY
{
    std::uint16_t cDims;
    std::uint16_t fFeatures;
    std::uint32_t cbElements;
    std::uint32_t cLocks;
    void* pvData;
    SAFEARRAYBOUND rgsabound[1];
};
#endif

/// One element of the outer array: a column of numbers and a column of strings, either of which may be null.
struct SAFEARRAYColumn
{
    SAFEARRAY* numbers;
    SAFEARRAY* strings;
};

static_assert(offsetof(SAFEARRAY, pvData) == (sizeof(void*) == 8 ? 16 : 12),
              "the word size decides where pvData stands");
static_assert(sizeof(SAFEARRAYColumn) == 2 * sizeof(void*) && offsetof(SAFEARRAYColumn, strings) == sizeof(void*),
              "an element is two pointers");

extern "C" {

/// Wraps the numeric columns of a caller's array of arrays: returns `nCols` tables (null where the column is null),
/// each a view of the caller's doubles. With `width` above 0 every table has `nRows` rows and `width` columns; with 0
/// each has one column, and the rows fall by one after every column that is present: a triangle. A negative row count
/// loads an empty column. To be released with `DeleteSAFEARRAY`.
/// @empty every entry is null where the array or the count is empty
VECMAT_API matrix** LoadSAFEARRAY(SAFEARRAY** sa, int nCols, int nRows, int width);

/// The same for the string columns: each table has one column and holds its own strings; `width` 0 lowers the rows as
/// above.
/// @empty every entry is null where the array or the count is empty
VECMAT_API Smatrix** LoadSAFEARRAYStr(SAFEARRAY** sa, int nCols, int nRows, int width);

/// Stores the strings of each table as new BSTRs in the caller's string column.
/// @missing an empty string is stored as a BSTR like any other
/// @empty a column that is not there is skipped
VECMAT_API void SaveSAFEARRAY(Smatrix** tables, int nCols, int ignored, SAFEARRAY** sa);

/// Delete the tables and the array of pointers; the caller's doubles stay.
/// @empty a null table is skipped
VECMAT_API void DeleteSAFEARRAY(matrix** tables, int nCols);
VECMAT_API void DeleteSAFEARRAYStr(Smatrix** tables, int nCols);

/// Stores `pvData` in `*data` and returns 1. Takes no lock.
/// @empty 0 where either pointer is null
VECMAT_API int MySafeArrayAccessData(SAFEARRAY* sa, void** data);

/// `pvData` of `*sa`.
/// @empty null where `*sa` is null
VECMAT_API void* ExtractBSTR(SAFEARRAY** sa);

/// Makes the `n` tables of a stack, all 0.0, in an array that the caller has room for.
/// @missing overwritten
/// @memory should an allocation fail, the tables made so far are in `sm` and the others are null; the forms of
///     `loadSuperMat` leave the same
VECMAT_API void iniSuperMat(matrix** sm, int n, int rows, int cols);

/// `matCheck` of each table.
/// @missing overwritten
VECMAT_API void SuperMatSetToValue(matrix** sm, int n, int rows, int cols, double value);

/// As `loadSuperMat` from ints, which are widened: the tables hold doubles.
/// @missing ints are never missing
VECMAT_API void loadSuperMatLng(matrix** sm, int* flat, int n, int rows, int cols);

/// As `unloadSuperMat` to ints: cells are truncated.
/// @missing writes 0 (equality); a cell out of range -1
/// @empty nothing is written
VECMAT_API void unloadSuperMatLng(matrix** sm, int* flat, int n, int rows, int cols);

/// Copies the `rows` doubles of the 1-based column `col` of a flat table to `dst`.
/// @missing copied unchanged
/// @empty nothing happens, also for a column outside 1 to `cols`
VECMAT_API void ProjVecToMat(double* src, int rows, int cols, int col, double* dst);

} // extern "C"

/// Make the `n` tables of a stack and fill them from its interleaved array. A null string pointer is an empty cell.
/// @missing copied unchanged
/// @memory should an allocation fail, the tables made so far are in `sm` and the others are null
VECMAT_API void loadSuperMat(matrix** sm, double* flat, int n, int rows, int cols);
VECMAT_API void loadSuperMat(Smatrix** sm, wchar_t** flat, int n, int rows, int cols);

/// Write the interleaved array of a stack. Strings become new BSTRs.
/// @missing copied unchanged; a cell outside its table writes -1.0, or an empty string
VECMAT_API void unloadSuperMat(matrix** sm, double* flat, int n, int rows, int cols);
VECMAT_API void unloadSuperMat(Smatrix** sm, wchar_t** flat, int n, int rows, int cols);

/// Delete each table of a stack; the array stays with the caller.
/// @empty a null table is skipped
VECMAT_API void deletecascade(matrix** sm, int n);
VECMAT_API void deletecascade(Smatrix** sm, int n);
