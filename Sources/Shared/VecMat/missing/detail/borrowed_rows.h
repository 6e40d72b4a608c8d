// Complete rows of borrowed texts, and empty ones filled with others. The contracts are those of the functions of the
// same names over tables of strings. Internal to the library.
#pragma once

#include "../../elementary/detail/texts.h"
#include "../../frame/detail/borrowed_texts.h"
#include "../../matrix.h"

namespace vecmat {

void RemoveRowsWithMissing(BorrowedTexts*& a, int nRows, int nCols, short* mask);
void EstimateRowsWithMissingMode(const CallerTexts& statS, int nStat, BorrowedTexts* S, int nRows, int nCols,
                                 matrix* weights);

} // namespace vecmat
