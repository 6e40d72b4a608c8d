// The order of correlations over a caller's labels, which only move. The contract is that of the function of the same
// name over tables of strings. Internal to the library.
#pragma once

#include "../../frame/detail/borrowed_texts.h"
#include "../../matrix.h"
#include "../../matrixInt.h"

namespace vecmat {

int ReOrderCorrelations(matrix* R, int n, int mode, BorrowedTexts* labels, matrix* second, matrixInt* third);

} // namespace vecmat
