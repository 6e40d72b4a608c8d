// The sampling designs over tables of strings, or over borrowed texts: the exported functions and the flat forms. The
// contracts are those of the exported functions. Internal to the library.
//
// `Rows` is a table, or an array of columns: `Smatrix*`, `Smatrix**`, `BorrowedTexts*`, `BorrowedTexts**`.
#pragma once

#include "../../Smatrix.h"
#include "../../frame/detail/borrowed_texts.h"
#include "../../matrix.h"

namespace vecmat {

template <class Rows>
void drawWithReplacement(Rows S, int N, int p, int n, Rows Z, matrix* ids, int* seed, short seedFlag, int* seedOut);
template <class Rows>
void takeByCounts(Rows S, int N, int p, Rows Z, matrix* freq, matrix* ids);
template <class Rows>
void takeFromRandomStart(Rows S, int N, int p, int n, Rows Z, matrix* ids, int* seed, short seedFlag, int* seedOut);
template <class Rows>
void takeFromMiddle(Rows S, int N, int p, int n, Rows Z, matrix* ids);
template <class Rows>
void drawOnePerInterval(Rows S, int N, int p, int n, Rows Z, matrix* ids, int* seed, short seedFlag, int* seedOut);
template <class Rows>
void drawByStrata(Rows S, int N, int p, int n, Rows Z, matrix* rowIds, matrix* outIds, matrix* strata, matrix* quota,
                  matrix* sizes, int nStrata, int* seed, short seedFlag, int* seedOut);

} // namespace vecmat
