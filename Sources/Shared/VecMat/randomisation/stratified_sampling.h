// Random samples within strata given by a column of labels, with a quota for each.
//
// Tables, and what is beyond them, are as in sampling_with_repeats.h; the seed as in permutations.h.
//
// @missing copied unchanged; so is the empty string
// @empty with `nStrata` below 1 the population is sorted, nothing is drawn, and `seedOut` receives `seed`
// @source W. G. Cochran, Sampling Techniques, 3rd ed., Wiley 1977, chapter 5
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

/// Draw a sample of `n` of the `N` rows of `S` by strata. Row i has the label `rowIds`[i] and belongs to the stratum
/// whose label is `strata`[i]; stratum k, of `nStrata`, has `sizes`[k] rows (truncated), and `quota`[k] of them are
/// wanted, which may be a fraction. `sizes` and `quota` are in the order of the stratum labels, smallest first. `n`
/// rows of `Z` and cells of `outIds` receive the sample and the labels of its rows, stratum after stratum.
///
/// First the population is put in order: the rows of `S` and `rowIds` are sorted by `strata`, ascending and stably, and
/// so is `strata` itself; all three stay so. Then each stratum is one block of rows, of which a number w is drawn: the
/// quota rounded half up, but in the last stratum the remainder of `n`, whatever its quota.
///   - Without replacement, normally: each of the m rows of the block takes one key, in order, and the w rows with the
///     smallest keys, of equal keys the first, are the sample of the stratum, sorted by their labels.
///   - With replacement, where the quota is above the size as given, or m is below w: as `M_SamplingWithReplacement`
///     of the block, w draws, in the order of the block. A stratum without rows gives empty rows with the label 0.0.
///
/// If the strata before the last already give `n` rows or more, none is taken of the last, and the rows beyond the
/// sample are treated as any beyond their table.
/// @cost a sort of the population; then memory, a draw and a place in a sort for each row that `sizes` or `quota` tells of,
///     also where the population has fewer: of the order nStrata m, if they tell of m rows each
/// @seed each stratum has a series of its own, also where it draws nothing: the first with the caller's `seed` and
///     `seedFlag`, and what the generator makes of this `seed` is returned to the caller; each later one with what the
///     series before stored, and the flag -1. `seedOut` receives what the last one stored. The generator's series is
///     shared as permutations.h tells
VECMAT_API void M_SamplingRandomStratifiedByStr(Smatrix* S, int N, int p, int n, Smatrix* Z, matrix* rowIds,
                                                matrix* outIds, matrix* strata, matrix* quota, matrix* sizes,
                                                int nStrata, int* seed, short seedFlag, int* seedOut);
VECMAT_API void M_SamplingRandomStratifiedByStrSPV(Smatrix** S, int N, int p, int n, Smatrix** Z, matrix* rowIds,
                                                   matrix* outIds, matrix* strata, matrix* quota, matrix* sizes,
                                                   int nStrata, int* seed, short seedFlag, int* seedOut);

/// Flat forms: `rowIds` and `strata` of `N` cells, `outIds` of `n`, `quota` and `sizes` of `nStrata`. `Z` (every
/// element a new BSTR that the caller owns), `outIds` and `rowIds`, the latter in sorted order, come back; the caller's
/// `S` and `strata` are left unchanged.
VECMAT_API void Cpp_M_SamplingRandomStratifiedByStr(wchar_t** S, int N, int p, int n, wchar_t** Z, double* rowIds,
                                                    double* outIds, double* strata, double* quota, double* sizes,
                                                    int nStrata, int* seed, short seedFlag, int* seedOut);
VECMAT_API void VB_M_SamplingRandomStratifiedByStrSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* rowIds,
                                                      double* outIds, double* strata, double* quota, double* sizes,
                                                      int nStrata, int* seed, short seedFlag, int* seedOut);

} // extern "C"
