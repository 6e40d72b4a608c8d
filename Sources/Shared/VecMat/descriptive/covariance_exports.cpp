#include "covariance.h"

#include "../frame/handles.h"

using namespace vecmat;

int VB_M_CovCorr(double* X, int n, int p, double* C, short corr, short* mask, double* w, short sample,
                 short freqWeights)
{
    TableHandle data = copied(X, n, p);
    TableHandle result = viewed(C, p, p);
    const int status =
        M_CovCorr(data.reference(), n, p, result.reference(), corr, mask, viewed(w, n, 1), sample, freqWeights, 0);
    handBack(data, X); // as it came
    return status;
}
