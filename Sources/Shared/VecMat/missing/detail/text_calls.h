// The functions that look for empty texts, or replace some, over a caller's where they lie. The contracts are those of the
// exported functions over tables. Internal to the library.
#pragma once

#include "../../base/detail/outgoing_texts.h"
#include "../../elementary/detail/texts.h"

#include <string>

namespace vecmat {

void nbMissing(const CallerTexts& a, int nRows, int nCols, int* counts);
int nbMissing2(const CallerTexts& a, int nRows, int nCols);
/// New texts for all labels, in their places.
void replaceMissingObsLabels(wchar_t** labels, int n, short* mask, const std::wstring& prefix, OutgoingTexts& texts);

void getMissingStr(const CallerTexts& x, int n, const short* a, short* out);

} // namespace vecmat
