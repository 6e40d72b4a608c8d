// Labels for the observations that have none.
//
// @missing the empty label is one like any other: the mask decides
// @mask exactly -1 asks for a new label; every flag is 0 at the end
// @empty nothing happens
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"

#include <string>

extern "C" {

/// Gives each row whose flag is exactly -1 a label that no other row bears: the prefix followed by a number. The
/// numbers count from 1 through the whole call, and one that would repeat a label of any of the `n` rows is passed
/// over; a row's own old label does not count, nor does one that was replaced earlier in the call. Every flag is 0 at
/// the end, also one that was neither -1 nor 0. `labels` is walked in linear order; a row outside the table uses up a
/// number. The cost is that of looking at each row once.
VECMAT_API void ReplaceMissingObsLabels(Smatrix*& labels, int n, short* mask, std::wstring prefix);

/// `prefix` is one string of 32-bit characters, used as it stands. Each element of `labels`, also one that keeps its
/// text, becomes a new BSTR.
VECMAT_API void VB_ReplaceMissingObsLabels(wchar_t** labels, int n, short* mask, const wchar_t* prefix);

} // extern "C"
