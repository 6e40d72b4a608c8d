// Disjunctive tables: each category of each qualitative variable as a column of indicators.
//
// A row is an observation. The columns are grouped by variable, in the order of its categories: variable j starts after
// the categories of the variables before it. Its first category is the baseline of the contrast codings.
//
// @empty nothing is written
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// Codes a table of strings, nRows by nCols, into `out`, which `matCheck` brings to nRows by totalCats and fills with
/// 0. `nCats` holds the number of categories of each variable, row j of `categories` their texts.
///
/// In the columns of its variable a cell that is not empty gives:
///   - 1 in the column of each category it equals; in the baseline's column only with `coding` 0, or with
///     `keepBaseline` 2, or with `keepBaseline` 1 in the first variable;
///   - where it is the baseline, in the other columns 0 (`coding` 0 and 1), -1 (2), or minus freq(j, place) divided by
///     freq(j, 1) (3), which gives each column a sum of 0 where `freq` holds the frequencies; with another `coding`
///     nothing is written there;
///   - nothing else: a text that is no category leaves 0 in every column.
///
/// `freq` has the shape of `categories` and is read with `coding` 3 alone; it may otherwise be null. Columns beyond
/// those of `out` are dropped.
/// @missing an empty string makes all columns of its variable missing, in every coding
/// @divisor with `coding` 3 the frequency of the baseline, not tested
/// @empty `out` has no row
VECMAT_API void BuildDisjunctiveTable(Smatrix* table, int nRows, int nCols, int totalCats, matrixInt* nCats,
                                      Smatrix* categories, matrix* freq, matrix*& out, int coding, int keepBaseline);

/// The same over arrays: `categories` and `freq` are nCols by maxCats, `out` nRows by totalCats; every element of `out`
/// is written.
VECMAT_API void VB_BuildDisjunctiveTable(wchar_t** table, int nRows, int nCols, int totalCats, int* nCats,
                                         wchar_t** categories, double* freq, int maxCats, double* out, int coding,
                                         int keepBaseline);

/// Can the table be a disjunctive one? -1 if so, otherwise 0. The reference row is the row before the first, from the
/// second on, that the mask keeps; the last row where there is none.
///
/// `*rowSum` is the sum of the reference row, truncated towards zero. The answer is 0 where a row's sum differs from
/// that integer by more than 1e-12; a NaN does not. Then the last column alone decides: 0 where it is constant, all its
/// cells equal to that of the reference row (a NaN is different, even from itself), otherwise -1. Cells beyond the
/// table are -1.0.
/// @missing an ordinary number
/// @mask read in two ways: for the reference row only exactly -1 excludes, and that row's own flag does not matter;
///     after it a nonzero entry excludes its row. May be null
/// @empty without columns -1 (true)
VECMAT_API short M_IsDisjTable(matrix* table, int nRows, int nCols, short* mask, int* rowSum);
VECMAT_API short VB_M_IsDisjTable(double* table, int nRows, int nCols, short* mask, int* rowSum);

/// Column j gives the pair of columns 2j - 1 and 2j (1-based) of `out`: the values, and 1 minus the values. `out`,
/// nRows by 2 nCols, must exist.
/// @missing an ordinary number: it stays, and its partner is 1 minus it
VECMAT_API void M_ConvertBinarytoDisjTable(matrix* table, int nRows, int nCols, matrix* out);
VECMAT_API void Cpp_M_ConvertBinarytoDisjTable(double* table, int nRows, int nCols, double* out);

} // extern "C"
