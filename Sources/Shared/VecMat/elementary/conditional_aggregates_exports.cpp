#include "conditional_aggregates.h"

#include "../base/detail/numbers.h"
#include "../frame/detail/handles.h"

#include <algorithm>

using vecmat::copied;
using vecmat::countOf;
using vecmat::truncated;

double VB_V_NbIf(double* x, int n, double val)
{
    return static_cast<double>(std::count(x, x + countOf(n), val));
}

int VB_V_NbIfLng(int* x, int n, int val)
{
    return truncated(V_NbIf(copied(x, n, 1), n, val));
}

double VB_V_NbIfW(double* x, int n, double* w, double val)
{
    return V_NbIfW(copied(x, n, 1), n, copied(w, n, 1), val);
}

double VB_V_SumIf(double* x, int n, double* key, double val)
{
    return V_SumIf(copied(x, n, 1), n, copied(key, n, 1), val);
}

double VB_V_SumIfW(double* x, int n, double* key, double* w, double val)
{
    return V_SumIfW(copied(x, n, 1), n, copied(key, n, 1), copied(w, n, 1), val);
}

double VB_V_MaxIf(double* x, int n, double* key, double val)
{
    return V_MaxIf(copied(x, n, 1), n, copied(key, n, 1), val);
}

double VB_V_MinIf(double* x, int n, double* key, double val)
{
    return V_MinIf(copied(x, n, 1), n, copied(key, n, 1), val);
}
