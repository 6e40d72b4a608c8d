// Ranks by three rules, and two questions about a series: is it sorted, and are its steps even.
//
// The three rank rules on the sorted values 10, 20, 20, 30:
//
//     V_GetRanks         1, 2, 2, 3      tied values share a rank, the next rank is one higher; a tie is plain equality
//     V_GetRanksTies     1, 2.5, 2.5, 4  a weighted mean of the places; a tie is a difference below 1e-15
//     V_GetRanksTiesInt  1, 2, 2, 4      the lowest of the places; a tie is plain equality
//
// Vectors are read in linear order; an element beyond its table reads -1.0 and takes part. No error is reported. With
// NaN among the values the sort promises no order (see sort.h), and a NaN ties with nothing.
//
// @missing its rank is missing, and it takes up no place (equality)
// @empty 0 ties
// @memory at most four vectors of scratch; nothing is written before everything is read
// @cost a sort, of the order n log n at most
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

/// The rank of each of the `n` elements of `x`, in the order of `x`. `ranks` is prepared with `matCheck`.
/// @missing an ordinary value, the smallest: missing elements share rank 1
/// @empty no rank is written
VECMAT_API void V_GetRanks(matrix* x, int n, matrix*& ranks);
VECMAT_API void V_GetRanks(matrix* x, int n, matrixInt*& ranks);

extern "C" {

/// Ranks with tied values at a weighted mean of their places.
///
/// A run of ties begins where an element differs from its sorted predecessor by less than 1e-15, and goes on while the
/// next differs from the run's first by less than that. Its rank is the sum of place times weight over the sum of
/// weights. The element after a run is compared with the run's last; where the two differ by less than 1e-15 they begin
/// a run of their own, which starts from the rank that the last has by then.
///
/// `ranks` must hold `n` rows and is not prepared. `*nTies` is the number of runs and `tieSizes`, prepared with
/// `matCheck` to `n` rows, holds their lengths from the lowest value up, then 0.0.
/// @missing its rank is missing, and it takes up no place (equality); recognised only at the head of the sorted values,
///     so not after a value below the missing one
/// @weights weight the places of a run, but its first element takes the weight of the smallest element of all (in input
///     order the first of its ties, missing ones included) and not its own; 0 is a weight like any other. Equal weights
///     give the mean of the places
/// @divisor the sum of the weights of a run, not guarded against 0
VECMAT_API void V_GetRanksTies(matrix* x, int n, matrix* weights, matrix*& ranks, int* nTies, matrix*& tieSizes);

/// Ranks with tied values at the lowest of their places. A run is one of equal values, without a tolerance. `ranks` and
/// `tieSizes` must exist and are not prepared: what `tieSizes` holds after the `*nTies` lengths stays.
/// @weights have no effect
VECMAT_API void V_GetRanksTiesInt(matrix* x, int n, matrix* weights, matrix*& ranks, int* nTies, matrix* tieSizes);

/// `V_GetRanksTies` of `n` cells of column `col`, 1-based, into the same column of `out`, which must exist; its other
/// columns stay.
/// @weights as in `V_GetRanksTies`
/// @divisor the sum of the weights of a run, not guarded against 0
VECMAT_API void M_GetRanksTies(matrix* table, int n, int col, matrix* weights, matrix*& out, int* nTies,
                               matrix*& tieSizes);

/// -1 if the `n` elements ascend, otherwise 0. `strict` exactly -1 forbids equal neighbours; any other value allows
/// them. A NaN passes either test.
/// @missing compared like a number
/// @empty -1 (true), also for a single element
VECMAT_API short V_IsSorted(matrix* x, int n, short strict);

/// The step of an evenly spaced series of `n` times: the second minus the first, or the missing value if any later step
/// differs from that one by more than 1e-6. `sorted` exactly -1 sorts a private copy first; any other value takes the
/// order given.
/// @missing an ordinary number
/// @empty cells that are not there read -1.0, also the second of a single one
VECMAT_API double V_TimeIntervalSize(matrix* t, int n, short sorted);

/// Flat forms over vectors of `n`. The results are in `ranks` and `tieSizes`; all other arrays are left unchanged.
VECMAT_API void VB_V_GetRanksDbl(double* x, int n, double* ranks);
VECMAT_API void VB_V_GetRanksLng(double* x, int n, int* ranks);
VECMAT_API void VB_V_GetRanksTiesDbl(double* x, int n, double* weights, double* ranks, int* nTies, double* tieSizes);
VECMAT_API void VB_V_GetRanksTiesIntDbl(double* x, int n, double* weights, double* ranks, int* nTies, double* tieSizes);
VECMAT_API short VB_V_IsSorted(double* x, int n, short strict);
VECMAT_API double VB_V_TimeIntervalSize(double* t, int n, short sorted);

} // extern "C"
