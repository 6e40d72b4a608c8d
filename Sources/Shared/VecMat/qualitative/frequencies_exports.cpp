#include "frequencies.h"

#include "../base/detail/numbers.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/handles.h"
#include "detail/text_calls.h"

using vecmat::truncated;
using vecmat::viewed;

double VB_V_Freq(double* x, int n, double* weights, double value, double tolerance)
{
    return V_Freq(viewed(x, n, 1), n, viewed(weights, n, 1), value, tolerance);
}

int VB_V_FreqLng(int* x, int n, double* weights, int value)
{
    constexpr double tolerance = 0.01; // any number below 1 matches only equal ints
    return truncated(V_Freq(viewed(x, n, 1), n, viewed(weights, n, 1), value, tolerance));
}

double VB_V_FreqStr(wchar_t** x, int n, double* weights, const wchar_t* value)
{
    return vecmat::freqStr(vecmat::CallerTexts(x, n, 1), n, viewed(weights, n, 1), value);
}
