#include "quantiles.h"

#include "../frame/handles.h"

using vecmat::copied;
using vecmat::handBack;
using vecmat::TableHandle;
using vecmat::viewed;

double VB_V_Quantile(double* x, int n, double p)
{
    return V_Quantile(viewed(x, n, 1), n, p);
}

double VB_V_QuantileW(double* v, int n, double* w, double p)
{
    return V_QuantileW(viewed(v, n, 1), n, viewed(w, n, 1), p);
}

double VB_V_QuantileM(double* v, int n, short* mask, double p)
{
    return V_QuantileM(viewed(v, n, 1), n, mask, p);
}

double VB_V_QuantileMW(double* v, int n, short* mask, double* w, double p)
{
    return V_QuantileMW(viewed(v, n, 1), n, mask, viewed(w, n, 1), p);
}

void Cpp_V_Quantiles13(double* x, int n, double* out)
{
    TableHandle quantiles = copied(out, 13, 1);
    V_Quantiles13(copied(x, n, 1), n, quantiles);
    handBack(quantiles, out);
}
