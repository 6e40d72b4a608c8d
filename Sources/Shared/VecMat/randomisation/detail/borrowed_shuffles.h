// Shuffles of rows of borrowed texts. The contracts are those of the functions of the same names over tables of strings.
// Internal to the library.
#pragma once

#include "../../frame/detail/borrowed_texts.h"

namespace vecmat {

void M_Shuffle(BorrowedTexts* X, int n, int p, BorrowedTexts* Z, int& seed, short seedFlag, int& seedOut);
void M_Shuffle2(BorrowedTexts* X, int n, int p, int& seed, short seedFlag, int& seedOut);

} // namespace vecmat
