// Labels for the observations that have none.
//
// @missing the empty label is a label like any other: the mask decides
// @mask exactly -1 asks for a new label; every flag is 0 at the end
// @empty nothing happens
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"

#include <string>

extern "C" {

/// Gives each marked row a label that no other row has: the prefix followed by a number. The numbers count from 1
/// through the whole call, and one that would repeat a label of any of the `n` rows is skipped; a row's own old label
/// does not count, nor does one that was replaced earlier in the call. `labels` is walked in linear order; a row
/// outside the table uses up a number. Each row is read once.
VECMAT_API void ReplaceMissingObsLabels(Smatrix*& labels, int n, short* mask, std::wstring prefix);

/// `prefix` is one string of 32-bit characters, used as given. Each element of `labels`, even one that keeps its text,
/// becomes a new BSTR.
VECMAT_API void VB_ReplaceMissingObsLabels(wchar_t** labels, int n, short* mask, const wchar_t* prefix);

} // extern "C"
