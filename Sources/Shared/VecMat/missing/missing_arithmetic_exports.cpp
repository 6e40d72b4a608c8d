#include "missing_arithmetic.h"

#include "../frame/detail/handles.h"

using vecmat::viewed;

double Cpp_V_MinIgnoreMissing(double* x, int n)
{
    return V_MinIgnoreMissing(viewed(x, n, 1), n);
}

double VB_V_SumIfNotMissing(double* x, int n, double* y)
{
    return V_SumIfNotMissing(viewed(x, n, 1), n, viewed(y, n, 1));
}

int VB_M_ProductABMissing(double* a, int nRows, int nInner, double* b, int nCols, double* c)
{
    return M_ProductABMissing(viewed(a, nRows, nInner), nRows, nInner, viewed(b, nInner, nCols), nCols,
                              viewed(c, nRows, nCols).reference());
}
