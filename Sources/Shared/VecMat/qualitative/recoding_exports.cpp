#include "recoding.h"

#include "../elementary/detail/texts.h"
#include "../elementary/extremes.h"
#include "../frame/detail/handles.h"
#include "detail/text_calls.h"

using vecmat::CallerTexts;
using vecmat::columns;
using vecmat::copied;
using vecmat::handBack;
using vecmat::TableHandle;
using vecmat::viewed;

namespace {

int largestCount(int* nCats, int nCols)
{
    return VB_V_MaxInt(nCats, nCols, nullptr);
}

} // namespace

void VB_M_ReplaceCatByCodes(wchar_t** table, int nRows, int nCols, int* nCats, wchar_t** categories, double* out)
{
    TableHandle codes = copied(out, nRows, nCols); // cells without a match keep the caller's contents
    vecmat::replaceCatByCodes(CallerTexts(table, nRows, nCols), nRows, nCols, nCats,
                              CallerTexts(categories, nCols, largestCount(nCats, nCols)), codes.reference());
    handBack(codes, out);
}

void VB_M_ReplaceStrByCodes(wchar_t** table, int nRows, int nCols, int* nCats, wchar_t** categories, short* mask,
                            int firstCode, double* out)
{
    TableHandle codes = copied(out, nRows, nCols);
    vecmat::replaceStrByCodes(CallerTexts(table, nRows, nCols), nRows, nCols, nCats,
                              CallerTexts(categories, nCols, largestCount(nCats, nCols)), mask, firstCode,
                              codes.reference());
    handBack(codes, out);
}

void Cpp_V_RecodeToBinary(wchar_t** x, int n, const wchar_t* value, int /*ignored*/, double* out)
{
    vecmat::recodeToBinary(CallerTexts(x, n, 1), n, value, viewed(out, n, 1));
}

void VB_M_Binarize(double* table, int nRows, int nCols, double* out)
{
    M_Binarize(viewed(table, nRows, nCols), nRows, nCols, viewed(out, nRows, nCols));
}

void VB_M_Binarize2(double* table, int nRows, int nCols)
{
    M_Binarize2(viewed(table, nRows, nCols), nRows, nCols);
}

void VB_M_Binarize2SPV(SAFEARRAY** table, int nRows, int nCols)
{
    M_Binarize2SPV(columns(table, nCols, nRows), nRows, nCols);
}
