// Missing cells filled from the most similar row: nearest-neighbour imputation over up to three blocks of columns.
//
// One data set is held in a primary block (numbers, or strings in the `Str` form), a second block of numbers Y and a
// block of strings S, all with `nRows` rows. Each missing cell of each row t flagged by `mask` takes the value that the
// nearest unflagged row has in its column; where there is none it takes the column's mean, or the most frequent
// category. Rows go in order, within a row the columns of the primary block, then Y, then S. A filled cell counts as
// present from then on, but its row stays flagged. A flag on a complete row only keeps that row from being a neighbour.
// Rows that are not flagged are never written.
//
// Column statistics come from the statistics tables (statX, statY, statS; `nStat` rows, `weights` of `nStat` cells),
// before the first cell is filled. These may be the target tables themselves. Rows of the statistics tables are never
// copied from: neighbours are rows of the target tables. Means and variances are those of `M_MeanStDevVar` over all
// rows; most frequent categories are those of `M_InfoQuali`, with its answer for a column without any. A column without
// any number has mean 0.0.
//
// The distance of a candidate row c is the sum of these terms, in the order of blocks and columns:
//     numbers   (x(t,k) - x(c,k))^2 / variance(k), where the variance is above 0 and x(t,k) is present
//     strings   1.0, where the text of row t is present and differs
// The least distance below the magnitude of the missing value wins, the lowest row of equals. A candidate is rejected
// at once by a missing cell, whatever its distance so far. To fill column j:
//
//                     primary column j       column j of Y          column j of S
//     passed over     row t                  row number j           row number j
//     primary block   any column but j       not compared           not compared
//     Y               any column, own cell   any column but j       any column but number j
//     S               any column, own cell   any column, own cell   any column, own cell
//
// The lines for the blocks name the cells of c that reject it when missing. The "own cell" is the one that would be
// copied: it is tested only along with the columns of the blocks so marked. Where these have no columns a row whose own
// cell is missing can win, and the cell stays missing. Only in the primary block is the row passed over the target row
// (which is flagged anyhow); elsewhere row j is never a neighbour for column j, even if it is the nearest.
//
// A candidate wins only while some term has been added, a numeric one of 0.0 included; equal strings add none. In the
// primary block this must hold for the candidate itself. In Y and S it is enough that a term was added in the call
// since the last candidate row of the last primary search was reached, so a row without anything to compare can win
// there at distance 0.0.
//
// @missing in a flagged row filled from the nearest row (a number at or below the missing value, not a NaN; an empty
//     string); in a candidate row it rejects the row at once, whatever its distance so far
// @mask a nonzero entry flags a row: to be filled, and never a neighbour
// @weights required; they count in means, variances and modes alone: frequencies in the primary block, the other
//     corrected divisor in Y
// @divisor each squared difference by its column's variance, where that is above 0
// @empty without rows nothing happens; a block without columns, or a null Y or S, takes no part
// @memory with 50 rows or more a copy of the numbers of the unflagged rows, to skip those that are too far away; where
//     that is short the search does without, with the same result
// @cost of the order n^2 m at most, for n rows and m columns in all: each flagged row is compared with each candidate
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

/// All blocks are tables. X, Y and S are changed in place.
VECMAT_API void EstimateRowsWithMissingNN(matrix* statX, int nStat, matrix*& X, int nRows, int nColsX, short* mask,
                                          matrix* statY, matrix*& Y, int nColsY, Smatrix* statS, Smatrix*& S,
                                          int nColsS, matrix* weights);

/// The same with a primary block of strings.
VECMAT_API void EstimateRowsWithMissingNNStr(Smatrix* statX, int nStat, Smatrix*& X, int nRows, int nColsX, short* mask,
                                             matrix* statY, matrix*& Y, int nColsY, Smatrix* statS, Smatrix*& S,
                                             int nColsS, matrix* weights);

/// The same with X an array of column tables, which are their own statistics: all tables and the weights have `nRows`
/// rows. A cell beyond the length of a column is present and counts as -1.0.
VECMAT_API void EstimateRowsWithMissingNNSPV(matrix** X, int nRows, int nColsX, short* mask, matrix* statY, matrix*& Y,
                                             int nColsY, Smatrix* statS, Smatrix*& S, int nColsS, matrix* weights);

/// The same with X and Y arrays of column tables.
VECMAT_API void EstimateRowsWithMissingNNSPV2(matrix** X, int nRows, int nColsX, short* mask, matrix** statY,
                                              matrix** Y, int nColsY, Smatrix* statS, Smatrix*& S, int nColsS,
                                              matrix* weights);

// Flat forms with the data as their own statistics: n rows, n weights. Numbers are filled in the caller's array; each
// string of a block, also one that stays, becomes a new BSTR. The array of a block without columns is not looked at and
// may be null.
VECMAT_API void VB_EstimateRowsWithMissingNN(double* X, int n, int nColsX, short* mask, double* Y, int nColsY,
                                             wchar_t** S, int nColsS, double* weights);
VECMAT_API void VB_EstimateRowsWithMissingNNStr(wchar_t** P, int n, int nColsP, short* mask, double* Y, int nColsY,
                                                wchar_t** S, int nColsS, double* weights);
VECMAT_API void VB_EstimateRowsWithMissingNNSPV(SAFEARRAY** X, int n, int nColsX, short* mask, double* Y, int nColsY,
                                                wchar_t** S, int nColsS, double* weights);
VECMAT_API void VB_EstimateRowsWithMissingNNSPV2(SAFEARRAY** X, int n, int nColsX, short* mask, SAFEARRAY** Y,
                                                 int nColsY, wchar_t** S, int nColsS, double* weights);

// Flat forms for data to be predicted for: the statistics, with `nStat` rows and weights, come from an estimation
// sample of the same columns, which is not written.
VECMAT_API void VB_EstimateRowsWithMissingNNPred(double* statX, int nStat, double* X, int nRows, int nColsX,
                                                 short* mask, double* statY, double* Y, int nColsY, wchar_t** statS,
                                                 wchar_t** S, int nColsS, double* weights);
VECMAT_API void VB_EstimateRowsWithMissingNNStrPred(wchar_t** statX, int nStat, wchar_t** X, int nRows, int nColsX,
                                                    short* mask, double* statY, double* Y, int nColsY, wchar_t** statS,
                                                    wchar_t** S, int nColsS, double* weights);

} // extern "C"
