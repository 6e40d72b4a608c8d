#include "labels.h"

#include "../base/detail/companions.h"
#include "../base/detail/outgoing_texts.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/borrowed_handles.h"
#include "detail/text_calls.h"

using vecmat::CallerTexts;
using vecmat::OutgoingTexts;

void VB_V_ReplaceDoubles(wchar_t** x, int n)
{
    if (x == nullptr)
        return;
    const auto labels = vecmat::borrowedCopy(x, n, 1);
    OutgoingTexts texts;
    vecmat::replaceDoubles(labels->X, n, texts, x);
    texts.store();
}

void Cpp_M_MergeStringsByRow(wchar_t** table, int nRows, int nCols, const void* separator, wchar_t** out)
{
    if (out == nullptr)
        return;
    OutgoingTexts texts;
    vecmat::mergeStringsByRow(CallerTexts(table, nRows, nCols), nRows, nCols, convToWstring(separator), texts, out);
    texts.store();
}
