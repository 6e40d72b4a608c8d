#include "quantiles.h"

#include "../frame/detail/handles.h"

using vecmat::copied;
using vecmat::handBack;
using vecmat::TableHandle;
using vecmat::View;

double VB_V_Quantile(double* x, int n, double p)
{
    return V_Quantile(View(x, n, 1), n, p);
}

double VB_V_QuantileW(double* v, int n, double* w, double p)
{
    return V_QuantileW(View(v, n, 1), n, View(w, n, 1), p);
}

double VB_V_QuantileM(double* v, int n, short* mask, double p)
{
    return V_QuantileM(View(v, n, 1), n, mask, p);
}

double VB_V_QuantileMW(double* v, int n, short* mask, double* w, double p)
{
    return V_QuantileMW(View(v, n, 1), n, mask, View(w, n, 1), p);
}

void Cpp_V_Quantiles13(double* x, int n, double* out)
{
    TableHandle quantiles = copied(out, 13, 1);
    V_Quantiles13(copied(x, n, 1), n, quantiles);
    handBack(quantiles, out);
}
