// Complete rows of borrowed texts. The contract is that of the function of the same name over tables of strings.
// Internal to the library.
#pragma once

#include "../../frame/detail/borrowed_texts.h"

namespace vecmat {

void RemoveRowsWithMissing(BorrowedTexts*& a, int nRows, int nCols, short* mask);

} // namespace vecmat
