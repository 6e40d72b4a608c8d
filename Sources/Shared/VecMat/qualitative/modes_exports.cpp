#include "modes.h"

#include "../base/detail/companions.h"
#include "../frame/detail/handles.h"

using vecmat::copied;
using vecmat::viewed;

wchar_t* VB_V_Mode(wchar_t** x, int n, int /*ignored*/, double* weights)
{
    return SysAllocString2(V_Mode(copied(x, n, 1), n, viewed(weights, n, 1)).c_str());
}

double VB_V_ModeCatDbl(double* x, int n)
{
    return V_ModeCat(viewed(x, n, 1), n);
}
