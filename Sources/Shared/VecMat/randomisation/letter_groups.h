// Letter groups of pairwise comparisons: items whose means do not differ share a letter.
//
// The groups are runs of the items in the order of their means. A group goes on while its first item does not differ
// from the next; the one that differs opens a new letter, which goes back over the items that do not differ from it.
//
//     A     places 1 to 3 of four, where only the pairs (1, 4) and (2, 4) differ; the fourth place opens B, which goes
//     A     back to the third
//     AB
//      B
//
// Letter codes become letters by `ChrSp`: the 27th group is AA. A result of 0 is a warning: the letters are valid, but
// a shared letter is not transitive.
//
// @missing a mean is missing by the order test, a NaN too except in the first place: it opens no group
// @empty nothing is changed
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// Sorts `n` items by their means and groups them. Returns -1 if the groups are free of contradictions, otherwise 0.
///
/// `means` has a column of n means. `perm` has the n item numbers, in the order of the given means; numbers are
/// truncated. With `*sorted` 0, `perm` and the first `nCarried` columns of `means` are sorted by the means (stable,
/// `descending` exactly -1 for descending, missing means first when ascending). With any other value the given order is
/// used. `*sorted` becomes -1 either way.
///
/// `pairs` has n(n - 1)/2 rows; `colA` and `colB`, 1-based, are its columns with the two item numbers of a pair, in
/// either order. Element k of `diff` belongs to row k: 0 where the two do not differ, any other number where they do. A
/// pair is looked up as the first row that holds it. One that is in no row takes the outcome of the look-up before, 0
/// at the start. In the forward run of a group, and only there, a pair whose row has neither a number above 0 in column
/// 2 nor exactly the missing value in column 1 does not differ, whatever `diff` says.
///
/// Cell (i, g) of `labels` becomes the letter of group g for the item in sorted place i; cells of no group are not
/// written, so the caller clears the table before. `*nGroups` is the number of groups, 256 at most: one more ends the
/// grouping at once, with a count of 257.
///
/// A missing item gets an empty cell in the column of the last group; the places that it does not differ from take the
/// letter of that group, after a missing first item the letter with the code 64 ("@").
///
/// Contradictions are: after the first place that differs from the first of a group, one that does not; and two items
/// of one group that differ. In the last group negative numbers of `diff` do not count as differing for the second.
/// With one item there is one group.
/// @missing a mean is missing by the order test, a NaN too except in the first place: it opens no group; exactly the
///     missing value in column 1 of a pair lets `diff` decide
/// @empty nothing is changed; -1
VECMAT_API short BuildGroupingForDiffs(matrix* means, int nCarried, matrix* pairs, int n, matrixInt* diff,
                                       Smatrix* labels, int* nGroups, matrix* perm, int colA, int colB, short* sorted,
                                       short descending);

/// Groups `n` items in the ascending order of column `col` of X, 1-based; 0 is the first column. Cell (i, j) of `comp`,
/// n by n, is 0 where items i and j do not differ, any other number where they do; only the cells below the diagonal
/// are read.
///
/// `labels`: the n by n cells at its top left are cleared, then receive the letters. `keepOrder` 0 sorts the rows of X
/// (the first column if `col` is 0, otherwise columns 1 to `col`), and `order` becomes the item numbers in the sorted
/// order, like the rows of `labels`. With any other value X is left unchanged, `order` is 1 to n, and the rows of
/// `labels`, all its columns, are put back into the order of the items.
VECMAT_API void GetCompMatrices(matrix* X, int n, int col, matrixInt* comp, short keepOrder, matrixInt* order,
                                Smatrix* labels, int* nGroups);

/// The same over column-major arrays: X of n by `col` (one column if `col` is 0), `comp` of n by n, `order` of n,
/// `labels` of n by 256. All labels come back as new BSTRs that the caller owns, the old ones are not released; cells
/// after the n-th column come back with the caller's text.
VECMAT_API void Cpp_GetCompMatrices(double* X, int n, int col, int* comp, short keepOrder, int* order, wchar_t** labels,
                                    int* nGroups);

} // extern "C"
