#include "shape_moments.h"

#include "../frame/detail/handles.h"

using vecmat::viewed;

void VB_V_MeanVarSkewPKurtP(double* v, int n, double* mean, double* var, double* skewP, double* kurtP, double* skewS,
                            double* kurtS, double* seSkew, double* seKurt, short* mask, double* w, short sample,
                            short freqWeights)
{
    V_MeanVarSkewPKurtP(viewed(v, n, 1), n, mean, var, skewP, kurtP, skewS, kurtS, seSkew, seKurt, mask,
                        viewed(w, n, 1), sample, freqWeights);
}
