// Samples in which a row may be repeated: drawn with replacement, or copied as often as a table of counts says.
//
// Common to the sampling designs, here and in the units beside this one:
//   - The population `S` is a table of strings of `N` rows and `p` columns, the sample `Z` one of as many columns,
//     which must exist. In the SPV forms both are arrays of `p` tables of one column. `S` is not written, unless a
//     function says so.
//   - Row numbers are 1-based and are held in tables of doubles, which must exist and are not prepared.
//   - `seed`, `seedFlag` and `seedOut` are the frame of a series of draws, as in permutations.h.
//   - Nothing is tested and no error is reported. Beyond a table a cell reads -1.0, or empty, and is not written; in a
//     plain table a row below the last is the next column's, in an array of columns it is outside.
//
// @missing copied unchanged; so is the empty string
// @empty with `n` below 1 the series is opened and closed, and nothing else happens
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

/// Draw `n` rows with replacement: draw u, of `n` in one series, takes row floor(u N) + 1. The sample comes out in the
/// order of the population, repeats next to each other, and `ids`, of `n` cells, receives the rows taken in that order.
/// A `p` of 0 copies nothing; the sort then moves the first column of a plain `Z`, but no column of an array.
/// @formula i = \lfloor u N \rfloor + 1, \quad u \text{ uniform on } [0, 1)
/// @seed one series for the call, shared as permutations.h tells
VECMAT_API void M_SamplingWithReplacement(Smatrix* S, int N, int p, int n, Smatrix* Z, matrix* ids, int* seed,
                                          short seedFlag, int* seedOut);
VECMAT_API void M_SamplingWithReplacementSPV(Smatrix** S, int N, int p, int n, Smatrix** Z, matrix* ids, int* seed,
                                             short seedFlag, int* seedOut);

/// Copy row i of the population f times, f being cell i of `freq` truncated to an integer, and not at all where that is
/// not above 0. `Z` and `ids`, which receives the number of the row copied, have a row for each copy; rows beyond the
/// copies are left unchanged. Nothing is drawn.
/// @missing copied unchanged; a missing count, like an infinite or NaN one, copies no row
/// @empty with `N` below 1 nothing happens
VECMAT_API void M_SampleUserDefined(Smatrix* S, int N, int p, Smatrix* Z, matrix* freq, matrix* ids);
VECMAT_API void M_SampleUserDefinedSPV(Smatrix** S, int N, int p, Smatrix** Z, matrix* freq, matrix* ids);

// ---- flat forms -----------------------------------------------------------------------------------------------------
//
// Arrays of `N` by `p` strings for the population and `n` by `p` for the sample, column after column, or arrays of `p`
// columns. Every element of `Z` becomes a new BSTR that the caller owns; a row that was not written comes back with the
// text it had.

VECMAT_API void VB_M_SamplingWithReplacement(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed,
                                             short seedFlag, int* seedOut);
VECMAT_API void VB_M_SamplingWithReplacementSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids,
                                                int* seed, short seedFlag, int* seedOut);

/// The size of the sample is the sum of `freq`, missing cells left out, truncated: with fractions it can be larger than
/// the number of copies, whose counts are truncated one by one; with negative counts smaller.
VECMAT_API void VB_M_SampleUserDefined(wchar_t** S, int N, int p, wchar_t** Z, double* freq, double* ids);
VECMAT_API void VB_M_SampleUserDefinedSPV(SAFEARRAY** S, int N, int p, SAFEARRAY** Z, double* freq, double* ids);

} // extern "C"
