#include "covariance.h"

#include "../frame/detail/handles.h"
#include "../frame/detail/in_place.h"

using namespace vecmat;

int VB_M_CovCorr(double* X, int n, int p, double* C, short corr, short* mask, double* w, short sample,
                 short freqWeights)
{
    const CallerArray data{X, n, p};
    // X is written back unchanged, even if the result overlaps it.
    return onViewsOrCopies<Copies::handedBack>(
        areApart(data, CallerArray{C, p, p}),
        [=](matrix*& x) {
            return M_CovCorr(x, n, p, viewed(C, p, p).reference(), corr, mask, viewed(w, n, 1), sample, freqWeights, 0);
        },
        data);
}
