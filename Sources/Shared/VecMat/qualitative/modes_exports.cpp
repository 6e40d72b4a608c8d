#include "modes.h"

#include "../base/detail/companions.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/handles.h"
#include "detail/text_calls.h"

using vecmat::CallerTexts;
using vecmat::viewed;

wchar_t* VB_V_Mode(wchar_t** x, int n, int /*ignored*/, double* weights)
{
    return SysAllocString2(vecmat::mode(CallerTexts(x, n, 1), n, viewed(weights, n, 1)).c_str());
}

double VB_V_ModeCatDbl(double* x, int n)
{
    return V_ModeCat(viewed(x, n, 1), n);
}
