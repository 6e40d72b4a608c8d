// Disjunctive tables: each category of each qualitative variable as a column of indicators.
//
// A row is an observation. The columns are grouped by variable, in the order of its categories: variable j starts
// behind the categories of the variables before it. Its first category is the baseline of the contrast codings.
//
// @missing an empty string makes all columns of its variable missing, in every coding
// @mask may be null; for the reference row only exactly -1 excludes, behind it any nonzero entry
// @empty no row of `out`
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// Codes a table of strings, nRows by nCols, into `out`, which `matCheck` brings to nRows by totalCats and fills with
/// 0. `nCats` holds the number of categories of each variable, row j of `categories` their texts.
///
/// In the columns of its variable a cell gives:
///   - where it is empty, the missing value everywhere, in every coding;
///   - 1 in the column of each category it equals; in the baseline's column only with `coding` 0, or with
///     `keepBaseline` 2, or with `keepBaseline` 1 in the first variable;
///   - where it is the baseline, in the other columns 0 (`coding` 0 and 1), -1 (2), or minus freq(j, place) divided by
///     freq(j, 1) (3), which gives each column a sum of 0 where `freq` holds the frequencies; with another `coding`
///     nothing is written there;
///   - nothing else: a text that is no category leaves 0 in every column.
///
/// `freq` has the shape of `categories` and is read with `coding` 3 alone; it may otherwise be null. Columns beyond
/// those of `out` are dropped.
/// @divisor `coding` 3: the frequency of the baseline
VECMAT_API void BuildDisjunctiveTable(Smatrix* table, int nRows, int nCols, int totalCats, matrixInt* nCats,
                                      Smatrix* categories, matrix* freq, matrix*& out, int coding, int keepBaseline);

/// The same over arrays: `categories` and `freq` are nCols by maxCats, `out` nRows by totalCats; every element of `out`
/// is written.
VECMAT_API void VB_BuildDisjunctiveTable(wchar_t** table, int nRows, int nCols, int totalCats, int* nCats,
                                         wchar_t** categories, double* freq, int maxCats, double* out, int coding,
                                         int keepBaseline);

/// Can the table be a disjunctive one? -1 if so, else 0. `mask` flags excluded rows and is read in two ways: the
/// reference row is the row before the first, from the second on, whose flag is not exactly -1 (the last row where
/// there is none), whatever its own flag; the rows behind it take part where their flag is 0. A null mask excludes
/// none.
///
/// `*rowSum` is the sum of the reference row, truncated towards zero. The answer is 0 where a row's sum differs from
/// that integer by more than 1e-12; a NaN does not. Then the last column alone decides: 0 where it is constant, all its
/// cells equal to that of the reference row (a NaN is different, also from itself), else -1. Without columns it is -1.
/// No missing test; cells beyond the table are -1.0.
/// @missing an ordinary number
/// @empty without columns -1 (true)
VECMAT_API short M_IsDisjTable(matrix* table, int nRows, int nCols, short* mask, int* rowSum);
VECMAT_API short VB_M_IsDisjTable(double* table, int nRows, int nCols, short* mask, int* rowSum);

/// Column j gives the pair of columns 2j - 1 and 2j (1-based) of `out`: the values, and 1 minus the values. `out`,
/// nRows by 2 nCols, must exist. No missing test: a missing cell gives 1 minus the missing value.
/// @missing an ordinary number: its partner is 1 minus it
/// @empty nothing is written
VECMAT_API void M_ConvertBinarytoDisjTable(matrix* table, int nRows, int nCols, matrix* out);
VECMAT_API void Cpp_M_ConvertBinarytoDisjTable(double* table, int nRows, int nCols, double* out);

} // extern "C"
