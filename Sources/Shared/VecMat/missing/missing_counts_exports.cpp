#include "missing_counts.h"

#include "../base/detail/numbers.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/handles.h"
#include "../kernels/missing_kernels.h"
#include "detail/text_calls.h"

using vecmat::CallerTexts;
using vecmat::viewed;

short VB_IsMissingValueDbl(double x)
{
    return IsMissingValueDbl(x);
}

short VB_IsMissingValueStr(const wchar_t* s)
{
    return vecmat::booleanOf(*s == L'\0');
}

int VB_V_NbMissing(double* x, int n)
{
    return static_cast<int>(vecmat::missingKernels().count(x, vecmat::countOf(n)));
}

int VB_V_NbMissingStr(wchar_t** x, int n)
{
    return vecmat::nbMissing2(CallerTexts(x, n, 1), n, 1);
}

int VB_V_NbNonMissing(double* x, int n)
{
    return n - VB_V_NbMissing(x, n);
}

void VB_M_NbMissing(double* a, int nRows, int nCols, int* counts)
{
    M_NbMissing(viewed(a, nRows, nCols), nRows, nCols, counts);
}

void VB_M_NbMissingStr(wchar_t** a, int nRows, int nCols, int* counts)
{
    vecmat::nbMissing(CallerTexts(a, nRows, nCols), nRows, nCols, counts);
}

int VB_M_NbMissing2(double* a, int nRows, int nCols)
{
    return M_NbMissing2(viewed(a, nRows, nCols), nRows, nCols);
}

int VB_M_NbMissing2Str(wchar_t** a, int nRows, int nCols)
{
    return vecmat::nbMissing2(CallerTexts(a, nRows, nCols), nRows, nCols);
}

void VB_M_NbNonMissing(double* a, int nRows, int nCols, int* counts)
{
    M_NbNonMissing(viewed(a, nRows, nCols), nRows, nCols, counts);
}

int Cpp_M_NbMissingSPV(SAFEARRAY** a, int nRows, int nCols)
{
    return M_NbMissing(vecmat::columns(a, nCols, nRows), nRows, nCols);
}

int VB_M_NbMissingSPV_T(SAFEARRAY** a, int n, int unused)
{
    return M_NbMissingSPV_T(vecmat::triangleColumns(a, n), n, unused);
}
