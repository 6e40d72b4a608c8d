#include "replacement.h"

#include "../frame/detail/handles.h"

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
    const auto table = vecmat::copied(a, nRows, nCols);
    M_ReplaceMissingByStr(table, nRows, nCols, value);
    vecmat::handBack(table, a);
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
