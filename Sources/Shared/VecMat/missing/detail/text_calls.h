// The functions that look for empty texts, over a caller's where they lie. The contracts are those of the exported
// functions over tables. Internal to the library.
#pragma once

#include "../../elementary/detail/texts.h"

namespace vecmat {

void nbMissing(const CallerTexts& a, int nRows, int nCols, int* counts);
int nbMissing2(const CallerTexts& a, int nRows, int nCols);
void getMissingStr(const CallerTexts& x, int n, const short* a, short* out);

} // namespace vecmat
