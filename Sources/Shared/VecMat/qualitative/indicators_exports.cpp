#include "indicators.h"

#include "../frame/detail/handles.h"

using vecmat::columns;
using vecmat::viewed;

short VB_V_Is01(double* x, int n)
{
    return V_Is01(viewed(x, n, 1), n);
}

short VB_V_IsWeights(double* x, int n)
{
    return V_IsWeights(viewed(x, n, 1), n);
}

short VB_V_IsCWeights(double* x, int n)
{
    return V_IsCWeights(viewed(x, n, 1), n);
}

short VB_V_IsIndicator(double* x, int n)
{
    return V_IsIndicator(viewed(x, n, 1), n);
}

short VB_V_IsIndicatorSPV(SAFEARRAY** x, int nRows, int nCols)
{
    return M_IsIndicatorSPV(columns(x, nCols, nRows), nRows, nCols);
}
