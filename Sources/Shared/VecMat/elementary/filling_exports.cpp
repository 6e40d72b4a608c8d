#include "filling.h"

#include "../base/detail/numbers.h"
#include "../base/detail/outgoing_texts.h"

#include <algorithm>
#include <numeric>
#include <string>

using vecmat::countOf;

void VB_InitVectorToFalse(short* v, int n)
{
    std::fill_n(v, countOf(n), short{0});
}

void VB_InitVectorToTrue(short* v, int n)
{
    std::fill_n(v, countOf(n), short{-1});
}

void VB_V_SetToValue(double* v, int n, double value)
{
    std::fill_n(v, countOf(n), value);
}

void VB_V_SetToValueLng(int* v, int n, int value)
{
    std::fill_n(v, countOf(n), value);
}

void VB_V_SetToValueStr(wchar_t** v, int n, const wchar_t* value)
{
    if (v == nullptr)
        return;
    const std::wstring text = value;
    vecmat::OutgoingTexts texts;
    for (int i = 0; i < n; ++i)
        texts.add(text, v + i);
    texts.store();
}

void VB_V_Set1toNDbl(double* v, int n)
{
    std::iota(v, v + countOf(n), 1);
}

void VB_V_Set1toNLng(int* v, int n)
{
    std::iota(v, v + countOf(n), 1);
}
