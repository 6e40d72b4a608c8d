#include "replacement.h"

#include "../base/detail/numbers.h"
#include "../base/detail/outgoing_texts.h"
#include "../frame/detail/caller_text.h"
#include "../frame/detail/handles.h"

#include <string>

using vecmat::viewed;

void VB_M_ReplaceMissingByVal(double* a, int nRows, int nCols, double value)
{
    M_ReplaceMissingByVal(viewed(a, nRows, nCols), nRows, nCols, value);
}

void VB_M_ReplaceMissingByValSPV(SAFEARRAY** a, int nRows, int nCols, double value)
{
    M_ReplaceMissingByValSPV(vecmat::columns(a, nCols, nRows), nRows, nCols, value);
}

void VB_M_ReplaceMissingByStr(wchar_t** a, int nRows, int nCols, const wchar_t* value)
{
    if (a == nullptr)
        return;
    const std::wstring text = value;
    vecmat::OutgoingTexts texts;
    const unsigned cells = vecmat::elementCount(nRows, nCols);
    for (unsigned k = 0; k < cells; ++k)
        if (vecmat::Bstr(a[k]).empty())
            texts.add(text, a + k);
        else
            texts.add(a + k, 1, a + k);
    texts.store();
}

void Cpp_M_ReplaceByMissing(double* a, int nRows, int nCols, int* mask, int nMaskCols, short wholeRow)
{
    M_ReplaceByMissing(viewed(a, nRows, nCols), nRows, nCols, viewed(mask, nRows, nMaskCols), nMaskCols, wholeRow);
}

void VB_M_SetWeightsToZeroForMissing(double* data, int nRows, int nCols, double* weights, int nWeightCols)
{
    M_SetWeightsToZeroForMissing(viewed(data, nRows, nCols), nRows, nCols,
                                 viewed(weights, nRows, nWeightCols).reference(), nWeightCols);
}
