#include "covariance_with_moments.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

namespace {

using Computing = decltype(M_CovCorrAndMeanStDevVar);

/// Both forms, apart from the shape of C.
int covCorrAndMoments(Computing computing, double* X, int n, int p, View<matrix> C, double* mean, double* stdev,
                      double* var, short corr, short* mask, double* w, short sample, short freqWeights, short center,
                      short reduce)
{
    TableHandle data = copied(X, n, p);
    const int status = computing(data.reference(), n, p, C.reference(), viewed(mean, p, 1).reference(),
                                 viewed(stdev, p, 1).reference(), viewed(var, p, 1).reference(), corr, mask,
                                 viewed(w, n, 1), sample, freqWeights, center, reduce, 0);
    if (center == -1 || reduce == -1)
        handBack(data, X);
    return status;
}

} // namespace

int VB_M_CovCorrAndMeanStDevVar(double* X, int n, int p, double* C, double* mean, double* stdev, double* var,
                                short corr, short* mask, double* w, short sample, short freqWeights, short center,
                                short reduce)
{
    return covCorrAndMoments(M_CovCorrAndMeanStDevVar, X, n, p, viewed(C, p, p), mean, stdev, var, corr, mask, w,
                             sample, freqWeights, center, reduce);
}

int VB_M_CovCorrVAndMeanStDevVar(double* X, int n, int p, double* C, double* mean, double* stdev, double* var,
                                 short corr, short* mask, double* w, short sample, short freqWeights, short center,
                                 short reduce)
{
    return covCorrAndMoments(M_CovCorrVAndMeanStDevVar, X, n, p, viewed(C, p > 0 ? INDEX3(p, p) : 0, 1), mean, stdev,
                             var, corr, mask, w, sample, freqWeights, center, reduce);
}
