// The sampling designs over a caller's texts where they lie: the flat forms call these, so that only the texts of the
// sample are kept. The contracts are those of the exported functions over tables. Internal to the library.
#pragma once

#include "../../Smatrix.h"
#include "../../elementary/detail/texts.h"
#include "../../matrix.h"

namespace vecmat {

void drawWithReplacement(const CallerTexts& S, int N, int p, int n, Smatrix* Z, matrix* ids, int* seed, short seedFlag,
                         int* seedOut);
void takeByCounts(const CallerTexts& S, int N, int p, Smatrix* Z, matrix* freq, matrix* ids);
void takeFromRandomStart(const CallerTexts& S, int N, int p, int n, Smatrix* Z, matrix* ids, int* seed, short seedFlag,
                         int* seedOut);
void takeFromMiddle(const CallerTexts& S, int N, int p, int n, Smatrix* Z, matrix* ids);
void drawOnePerInterval(const CallerTexts& S, int N, int p, int n, Smatrix* Z, matrix* ids, int* seed, short seedFlag,
                        int* seedOut);

} // namespace vecmat
