// Samples at equal intervals: systematic ones, from a random start or centred, and one random row for each interval.
//
// For `n` of `N` rows the step is t = floor((N - 1) / (n - 1)), and the margin M = N - (n - 1) t is the number of rows
// that a run of `n` rows leaves free: it can start at any of the first M rows. `n` should be at least 2 and at most
// `N`. Others are safe: with `n` above `N` the step is 0 and the margin `N`; with `n` of 1 the margin is `N` too.
//
// Tables, and what is beyond them, are as in sampling_with_repeats.h; the seed as in permutations.h.
//
// @missing copied unchanged; so is the empty string
// @divisor the step floor((N - 1) / (n - 1)); 0 with `n` above `N`
// @source W. G. Cochran, Sampling Techniques, 3rd ed., Wiley 1977, chapter 8
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

/// Take rows s, s + t, s + 2 t, ... of `S`, `n` at most, s being floor(M u) + 1 for one draw u, whose series is closed
/// before any row is copied. `ids`, of `N` cells, becomes N + 1 for each row not taken; for a row taken it stays as the
/// caller set it. With `n` of 1, or above `N`, row s alone is taken.
/// @formula s,\ s + t,\ s + 2t,\ \ldots, \quad t = \left\lfloor \frac{N - 1}{n - 1} \right\rfloor, \quad s = \lfloor M u
///     \rfloor + 1, \quad M = N - (n - 1)\, t
/// @empty with `n` below 1 one number is drawn, and no row taken
/// @seed one series for the call, shared as permutations.h tells
/// @weak a start beyond M is never drawn, so some rows are never in a sample: 72 of 100 for 7 of 100
VECMAT_API void M_SamplingSystematicRdStart(Smatrix* S, int N, int p, int n, Smatrix* Z, matrix* ids, int* seed,
                                            short seedFlag, int* seedOut);
VECMAT_API void M_SamplingSystematicRdStartSPV(Smatrix** S, int N, int p, int n, Smatrix** Z, matrix* ids, int* seed,
                                               short seedFlag, int* seedOut);

/// The same from the middle of the first M rows, floor((M + 1) / 2), without a draw.
/// @formula s,\ s + t,\ s + 2t,\ \ldots, \quad s = \left\lfloor \frac{M + 1}{2} \right\rfloor
/// @empty with `n` below 1 no row is taken
/// @weak every call takes the same rows
VECMAT_API void M_SamplingSystematicCentered(Smatrix* S, int N, int p, int n, Smatrix* Z, matrix* ids);
VECMAT_API void M_SamplingSystematicCenteredSPV(Smatrix** S, int N, int p, int n, Smatrix** Z, matrix* ids);

/// Draw one row from each of the spans of M rows that open at rows 1, 1 + t, 1 + 2 t, ...: row offset + floor(u M) + 1.
/// `ids`, of `N` cells, holds the labels of the rows on entry; on return the labels of the rows taken, in the order of
/// the spans, and after them N + 1.
///
/// There is a span for every row from the centred start, floor((M + 1) / 2), to `N` by steps of t, which can be more
/// than `n`: rows beyond the sample are treated as any beyond their table, but their labels are kept. Where t is below
/// M the spans overlap, a row can be taken twice, and the last spans can reach beyond the population, where a label is
/// -1.0.
/// @divisor the step floor((N - 1) / (n - 1)); where it is below 1 (`n` of 1, or above `N`) `n` rows are drawn, each
///     from all `N`
/// @empty with the start above `N` the series is opened and closed, and `ids` becomes N + 1
/// @seed one series for the call, shared as permutations.h tells
VECMAT_API void M_SamplingRandomStratified(Smatrix* S, int N, int p, int n, Smatrix* Z, matrix* ids, int* seed,
                                           short seedFlag, int* seedOut);
VECMAT_API void M_SamplingRandomStratifiedSPV(Smatrix** S, int N, int p, int n, Smatrix** Z, matrix* ids, int* seed,
                                              short seedFlag, int* seedOut);

// ---- flat forms -----------------------------------------------------------------------------------------------------
//
// Arrays of `N` by `p` strings for the population and `n` by `p` for the sample, column after column, or arrays of `p`
// columns; `N` cells of `ids`. Every element of `Z` becomes a new BSTR that the caller owns; a row that was not written
// comes back with the text it had.

VECMAT_API void VB_M_SamplingSystematicRdStart(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed,
                                               short seedFlag, int* seedOut);
VECMAT_API void VB_M_SamplingSystematicRdStartSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids,
                                                  int* seed, short seedFlag, int* seedOut);
VECMAT_API void VB_M_SamplingSystematicCentered(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids);
VECMAT_API void VB_M_SamplingSystematicCenteredSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids);
VECMAT_API void VB_M_SamplingRandomStratified(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed,
                                              short seedFlag, int* seedOut);
VECMAT_API void VB_M_SamplingRandomStratifiedSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids,
                                                 int* seed, short seedFlag, int* seedOut);

} // extern "C"
