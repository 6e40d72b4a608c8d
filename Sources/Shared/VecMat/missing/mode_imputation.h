// Empty strings filled with the most frequent category of their column.
//
// @missing an empty string becomes the mode of its column; in a column without any category, what follows the column in
//     storage
// @weights summed to find the modes, as in `M_InfoQuali`
// @empty nothing happens
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Every empty cell of `S`, `nRows` by `nCols`, becomes the modal category of its column in `statS`, which has `nStat`
/// rows and may be `S` itself. There is no row mask. The modes are those of `M_InfoQuali` with `weights` (`nStat`
/// cells), all found before the first cell is filled; so a column without any category takes the first cell of the next
/// column of `statS`, and the last column stays empty.
VECMAT_API void EstimateRowsWithMissingMode(Smatrix* statS, int nStat, Smatrix*& S, int nRows, int nCols,
                                            matrix* weights);

// Flat forms: each element of S, even one that keeps its text, becomes a new BSTR; the other arrays are not written.
// The first takes the statistics from S itself; in the second `weights` has `nStat` elements.
/// @mask not read: may be null
VECMAT_API void VB_EstimateRowsWithMissingMode(wchar_t** S, int n, int nCols, short* mask, double* weights);
VECMAT_API void VB_EstimateRowsWithMissingModePred(wchar_t** statS, int nStat, wchar_t** S, int nRows, int nCols,
                                                   short* mask, double* weights);

} // extern "C"
