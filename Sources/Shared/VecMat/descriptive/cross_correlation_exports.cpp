#include "cross_correlation.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int VB_M_CorrMatMat(double* X, int n, int p, double* Y, int q, double* C, short* mask, double* w, short corr,
                    short square, short sample, short freqWeights)
{
    return M_CorrMatMat(viewed(X, n, p), n, p, viewed(Y, n, q), q, viewed(C, p, q).reference(), mask, viewed(w, n, 1),
                        corr, square, sample, freqWeights, 0);
}

int VB_M_CorrMatMatSPV(SAFEARRAY** X, int n, int p, double* Y, int q, double* C, short* mask, double* w, short corr,
                       short square, short sample, short freqWeights)
{
    return M_CorrMatMatSPV(columns(X, p, n), n, p, viewed(Y, n, q), q, viewed(C, p, q).reference(), mask,
                           viewed(w, n, 1), corr, square, sample, freqWeights, 0);
}

double VB_CorrelPearson(double* x, double* y, int n, short* mask, double* w, short sample, short freqWeights)
{
    return CorrelPearson(viewed(x, n, 1), viewed(y, n, 1), n, mask, viewed(w, n, 1), sample, freqWeights, 0);
}
