// Category lists of qualitative variables: the categories of each column of a table of strings, their weights, the
// modal category, and whether a second table contains only known categories.
//
// Each column of the table is a variable; `nRows` and `nCols` bound the loops. Texts are compared as plain wide
// strings: case matters, and 1 and 1.0 differ. `weights` has nRows row weights; one beyond the table is -1.0. Results
// have a row for each variable:
//
//     modes        nCols by 1    the modal category
//     modeWeights  nCols by 1    its weight
//     nCats        nCols by 1    the number of categories
//     categories   nCols by nRows, or by maxCats    row j: the categories of variable j, from column 1
//     catWeights   likewise      the sum of the weights of each category
//     total        the sum of nCats, set to 0 first; it wraps
//
// Places are 1-based. Result tables are prepared by `matCheck`, so a null one is made and is the caller's to delete; a
// table of strings that is kept also keeps the strings in the places that no category fills. No error is reported
// except by `invalid`. A text is looked up by a hash, without a search through the categories.
//
// @missing the empty string is no category, except in a column without data
// @weights required; one of zero or below still opens a category and adds to it
// @empty a column without data has one category all the same: the cell after its last row in storage, which is the
//     first cell of the next column and empty after the last, with the weight after the last row: -1.0
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// Lists the categories of each column in the order of their first appearance. The mode is the category of the largest
/// weight; the first of equals. With a nonzero `sortCats` each list and its weights are then sorted, the modes staying
/// as found: by ascending value in single precision where every category begins with a number, otherwise as strings.
/// Equal values keep no particular order beyond that of a selection sort by exchanges.
VECMAT_API void M_InfoQuali(Smatrix* table, int nRows, int nCols, Smatrix*& modes, matrix*& modeWeights,
                            matrixInt*& nCats, Smatrix*& categories, matrix*& catWeights, matrix* weights, int* total,
                            short sortCats);

/// The same with the counts known beforehand: `nCats` is read, not written, and at most `maxCats` categories of a
/// column are kept; the others, and their weights, are dropped. The mode, the total and the sort use the given count
/// and not the number found. Where it is higher, as `GetMaxCat` counts the empty string too, the places beyond take
/// part in the search for the mode, and sort as empty texts (among numbers as 0).
/// @empty places beyond those found are empty with weight 0 in fresh tables; a count below 1 gives the category of
///     place 1 as the mode
VECMAT_API void M_InfoQuali2(Smatrix* table, int nRows, int nCols, int maxCats, matrixInt* nCats, Smatrix*& modes,
                             matrix*& modeWeights, Smatrix*& categories, matrix*& catWeights, matrix* weights,
                             int* total, short sortCats);

/// Weights of a table's rows by known categories: `catWeights`, nCols by maxCats, receives the sum of the weights of
/// each of the first nCats[j] categories. A text that is listed twice adds to its last place. `*invalid` is 0, or -1 at
/// the first text, column by column, that is not among them: the call ends there and leaves the sums so far.
/// @missing the empty string is no category and is skipped
/// @weights required; one of zero or below adds like any other
/// @empty `*invalid` 0
VECMAT_API void M_InfoQualiValid(Smatrix* table, int nRows, int nCols, int maxCats, matrixInt* nCats,
                                 Smatrix* categories, matrix*& catWeights, short* invalid, matrix* weights);

/// Counts the different texts of each column into `counts` (nCols cells, which must exist). Returns the largest count.
/// @missing the empty string counts as a text
/// @empty 0 without columns
VECMAT_API int GetMaxCat(Smatrix* table, int nRows, int nCols, matrixInt* counts);

// ---- flat forms -----------------------------------------------------------------------------------------------------
//
// The table has nRows by nCols strings, other arrays the shapes above. Every element of a result is written: numbers
// that no category fills are 0, strings empty, each a new BSTR of the caller's. The input is never written.

VECMAT_API void VB_M_InfoQuali(wchar_t** table, int nRows, int nCols, wchar_t** modes, double* modeWeights, int* total,
                               int* nCats, wchar_t** categories, double* catWeights, int ignored, double* weights,
                               short sortCats);
VECMAT_API void VB_M_InfoQuali2(wchar_t** table, int nRows, int nCols, int maxCats, int* nCats, wchar_t** modes,
                                double* modeWeights, int* total, wchar_t** categories, double* catWeights, int ignored,
                                double* weights, short sortCats);
VECMAT_API void VB_M_InfoQualiValid(wchar_t** table, int nRows, int nCols, int maxCats, int ignored1, int* nCats,
                                    wchar_t** categories, double* catWeights, short* invalid, int ignored2,
                                    double* weights);
VECMAT_API int Cpp_GetMaxCat(wchar_t** table, int nRows, int nCols, int* counts);

/// Is a label used twice? Row i of the table, nRows by nCols, holds the counts[i] labels of variable i. Returns 1 where
/// a label is at one place of a row and at a later place of any row, the same one included, otherwise 0. Two rows that
/// hold it at the same place are not enough. A place beyond the table is empty.
/// @missing an empty label counts like any other
/// @empty 0
VECMAT_API int Cpp_CheckUniqueCatByVar(wchar_t** table, int nRows, int nCols, int* counts);

} // extern "C"
