#include "distinct.h"

#include "../elementary/detail/texts.h"
#include "../frame/detail/handles.h"
#include "detail/text_calls.h"

using vecmat::copied;
using vecmat::handBack;
using vecmat::TableHandle;
using vecmat::viewed;

void VB_M_Dedupe(double* data, int nRows, int nCols, int* nKept, double* out)
{
    TableHandle result = copied(out, nRows, nCols + 3);
    int kept = 0;
    M_Dedupe(viewed(data, nRows, nCols + 1), nRows, nCols, &kept, result.reference());
    handBack(result, out);
    *nKept = kept;
}

void VB_V_ExtractDistinct(double* x, int n, double* distinct, int* count)
{
    V_ExtractDistinct(viewed(x, n, 1), n, viewed(distinct, n, 1), count);
}

int VB_V_NbDistinct(double* x, int n)
{
    return V_NbDistinct(viewed(x, n, 1), n);
}

int VB_V_NbDistinctLng(int* x, int n)
{
    return V_NbDistinct(viewed(x, n, 1), n);
}

int Cpp_V_NbDistinctStr(wchar_t** x, int n)
{
    return vecmat::nbDistinct(vecmat::CallerTexts(x, n, 1), n);
}
