#include "conditional_moments.h"

#include "../frame/detail/handles.h"

using vecmat::viewed;

double VB_V_MeanIf(double* v, int n, double* g, double value)
{
    return V_MeanIf(viewed(v, n, 1), n, viewed(g, n, 1), value);
}

double VB_V_MeanIfW(double* v, int n, double* g, double* w, double value)
{
    return V_MeanIfW(viewed(v, n, 1), n, viewed(g, n, 1), viewed(w, n, 1), value);
}

double VB_V_VarIf(double* v, int n, double* g, double value, short sample)
{
    return V_VarIf(viewed(v, n, 1), n, viewed(g, n, 1), value, sample);
}

double VB_V_VarIfW(double* v, int n, double* g, double* w, double value, short sample)
{
    return V_VarIfW(viewed(v, n, 1), n, viewed(g, n, 1), viewed(w, n, 1), value, sample);
}
