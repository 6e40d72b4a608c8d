// Lists of labels: repeated ones made unique, and labels joined from the strings of a row.
//
// @missing an empty label is one like any other
// @empty nothing happens
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"

#include <string>

extern "C" {

/// Rewrites the repeats of a label among the first n cells, in linear order: the first keeps its text, the second gets
/// the suffix 2, the third 3, and so on ("a", "a" become "a", "a2"). A number that would repeat a label further down is
/// skipped for good; labels further up are not read, so a new label can repeat one of those.
VECMAT_API void V_ReplaceDoubles(Smatrix* x, int n);

/// Cell `row` of `out`, in linear order, becomes the strings of columns 1 to nCols of that row with the separator
/// between each two. `out` must exist.
/// @missing an empty string is joined like any other, with its separators
/// @empty without columns the result is empty
VECMAT_API void M_MergeStringsByRow(Smatrix* table, int nRows, int nCols, std::wstring separator, Smatrix* out);

// Flat forms: every element of x, even one that does not change, and of `out` (nRows elements) becomes a new BSTR. The
// separator is a BSTR too.
VECMAT_API void VB_V_ReplaceDoubles(wchar_t** x, int n);
VECMAT_API void Cpp_M_MergeStringsByRow(wchar_t** table, int nRows, int nCols, const void* separator, wchar_t** out);

} // extern "C"
