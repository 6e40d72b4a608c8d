#include "means.h"

#include "../frame/detail/handles.h"

using vecmat::TableHandle;
using vecmat::viewed;

// The observations and the weights are only read, so views of the caller's arrays will do; results are written through
// views as well.

double VB_V_Mean(double* v, int n, short* mask, double* w)
{
    return V_Mean(viewed(v, n, 1), n, mask, viewed(w, n, 1));
}

double VB_V_Mean2(double* v, int n)
{
    return V_Mean2(viewed(v, n, 1), n);
}

double VB_V_MeanAbs(double* v, int n, short* mask, double* w)
{
    return V_MeanAbs(viewed(v, n, 1), n, mask, viewed(w, n, 1));
}

double Cpp_V_HarmonicMean(double* v, int n, short* mask, double* w)
{
    return V_HarmonicMean(viewed(v, n, 1), n, mask, viewed(w, n, 1));
}

void Cpp_V_GMeanGSD(double* v, int n, short* mask, double* w, double* gmean, double* gsd)
{
    V_GMeanGSD(viewed(v, n, 1), n, mask, viewed(w, n, 1), gmean, gsd);
}

int VB_M_Mean(double* X, int n, int p, double* mean, int /*ignored*/, double* w)
{
    return M_Mean(viewed(X, n, p), n, p, viewed(mean, p, 1).reference(), viewed(w, n, 1));
}

int Cpp_M_Mean2(double* X, int n, int p, double* w, double* mean)
{
    return M_Mean2(viewed(X, n, p), n, p, viewed(w, n, 1), viewed(mean, p, 1));
}

int Cpp_M_Mean3(double* X, int n, int p, double* mean)
{
    return M_Mean3(viewed(X, n, p), n, p, viewed(mean, p, 1));
}
