// Uniform numbers, random permutations of vectors and rows, and marks of a subset.
//
// Every function that draws ends with the same three arguments, the frame of its series, which is also closed where an
// allocation fails within it. Each draw is at least 0 and below 1.
//
// A permutation is made by giving each of n items one uniform key, in the order of the items, and sorting the items by
// their keys, ascending and stably: exactly n draws, and items of equal keys keep their order. Nothing is ever swapped.
//
// No error is reported. Beyond a table a cell reads -1.0 (-1, empty), and is not written.
//
// @missing not read: moves like any other cell
// @empty nothing is drawn and nothing moves; the frame of the series is opened and closed
// @seed `seed` and `seedFlag` are passed to the generator unchanged, once, before the first draw. The generator may
//     change `seed` (that of the repository starts from it where the flag is -1, and otherwise stores a new seed
//     there). `seedOut` receives, once, after the last draw, the value from which a later series can continue: pass it
//     as the next `seed`. All functions with a `seedFlag` share the generator's series, and each call starts it anew.
//     The generator of the repository keeps a series for each thread, so calls in different threads share nothing; a
//     generator with one series for the process allows one such call at a time
// @cost a draw for each item; a permutation or a subset sorts them, too: of the order n log n
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// One draw in a frame of its own.
/// @empty takes no array
VECMAT_API double GenerateRandom01(int* seed, short seedFlag, int* seedOut);

} // extern "C"

/// Fill `t`, prepared as `rows` by `cols`, with draws row after row, although the storage runs down the columns. The
/// form for ints truncates each draw, so its table is all 0.
/// @missing overwritten
/// @empty nothing is drawn; the frame of the series is opened and closed
VECMAT_API void M_GenerateRandom01(matrix*& t, int rows, int cols, int* seed, short seedFlag, int* seedOut);
VECMAT_API void M_GenerateRandom01(matrixInt*& t, int rows, int cols, int* seed, short seedFlag, int* seedOut);

/// The numbers 1 to `n` in random order into the first `n` cells of `out`, which must exist: item i, which is number i,
/// goes to the place that key i takes among the keys. Keys 0.4, 0.1, 0.9, 0.2, 0.6 give 2, 4, 1, 5, 3.
/// @missing overwritten
/// @empty nothing is drawn; the frame of the series is opened and closed
VECMAT_API void Random1toN(int n, matrixInt* out, int& seed, short seedFlag, int& seedOut);
VECMAT_API void Random1toN(int n, matrix* out, int& seed, short seedFlag, int& seedOut);

/// Permute the first `n` elements of `v` in place.
VECMAT_API void V_Shuffle(matrix* v, int n, int& seed, short seedFlag, int& seedOut);
VECMAT_API void V_Shuffle(matrixInt* v, int n, int& seed, short seedFlag, int& seedOut);

/// Permute the first `n` rows over the first `p` columns of `X` into `Z`, each row staying whole; `X` is not written.
/// The form for numbers first makes `Z` a copy of all of `X`, dimensions included: its block must be large enough, and
/// what lies outside the given rows and columns comes along unchanged. The form for strings copies the `n` by `p` block
/// to the top left corner of `Z` and leaves the rest of it; there a `p` of 0 counts as 1 for the sort.
VECMAT_API void M_Shuffle(matrix* X, int n, int p, matrix* Z, int& seed, short seedFlag, int& seedOut);
VECMAT_API void M_Shuffle(Smatrix* X, int n, int p, Smatrix* Z, int& seed, short seedFlag, int& seedOut);

/// The same in place. A `p` of 0 moves the first column of strings, but no numbers.
VECMAT_API void M_Shuffle2(matrix* X, int n, int p, int& seed, short seedFlag, int& seedOut);
VECMAT_API void M_Shuffle2(Smatrix* X, int n, int p, int& seed, short seedFlag, int& seedOut);

extern "C" {

/// Marks a random subset: of the first `n` cells of `out`, which must exist, the `k` with the smallest of `n` draws
/// become 1.0 and the others 0.0. All are 1.0 with `k` above `n`, all 0.0 with `k` of 0 or below; the draws are the
/// same `n`. The series stays open until the last cell is written.
/// @missing overwritten
/// @empty nothing is drawn; the frame of the series is opened and closed
VECMAT_API void GenerateRandomIndicator(matrix*& out, int n, int k, int* seed, short seedFlag, int* seedOut);

/// Prepares `out` as a column of `n` cells at 0.0, then sets cells `first` to `last`, 1-based and both included, to
/// 1.0. Numbers outside the table are dropped; in a larger table, which is kept, those above `n` are not.
/// @missing overwritten
/// @empty nothing is set
/// @seed none: it draws nothing
VECMAT_API void GenerateIndicator(matrix*& out, int n, int first, int last);

// ---- flat forms -----------------------------------------------------------------------------------------------------
//
// The arrays have exactly the cells that the arguments give: `n` elements, or `n` by `p` cells column after column. A
// form that permutes in place, and an indicator, writes the caller's array itself.

VECMAT_API void Cpp_V_Shuffle(double* v, int n, int* seed, short seedFlag, int* seedOut);
VECMAT_API void Cpp_V_ShuffleLng(int* v, int n, int* seed, short seedFlag, int* seedOut);
VECMAT_API void Cpp_M_ShuffleDbl(double* X, int n, int p, double* Z, int* seed, short seedFlag, int* seedOut);
VECMAT_API void Cpp_M_ShuffleDbl2(double* X, int n, int p, int* seed, short seedFlag, int* seedOut);
VECMAT_API void Cpp_Random1toNLng(int n, int* out, int* seed, short seedFlag, int* seedOut);
VECMAT_API void Cpp_Random1toNDbl(int n, double* out, int* seed, short seedFlag, int* seedOut);
VECMAT_API void VB_GenerateRandomIndicator(double* out, int n, int k, int* seed, short seedFlag, int* seedOut);
VECMAT_API void VB_GenerateIndicator(double* out, int n, int first, int last);

/// Each element of the result, `Z` or in the second form `X`, becomes a new BSTR that the caller owns.
VECMAT_API void Cpp_M_ShuffleStr(wchar_t** X, int n, int p, wchar_t** Z, int* seed, short seedFlag, int* seedOut);
VECMAT_API void Cpp_M_ShuffleStr2(wchar_t** X, int n, int p, int* seed, short seedFlag, int* seedOut);

} // extern "C"
