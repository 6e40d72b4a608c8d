#include "covariance.h"

#include "../base/detail/memory_ranges.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/handles.h"

using namespace vecmat;

int VB_M_CovCorr(double* X, int n, int p, double* C, short corr, short* mask, double* w, short sample,
                 short freqWeights)
{
    Stretches arrays;
    arrays.add(X, countOf(n) * std::size_t{countOf(p)});
    arrays.add(C, countOf(p) * std::size_t{countOf(p)});
    auto result = viewed(C, p, p);
    const auto compute = [&](matrix*& data) {
        return M_CovCorr(data, n, p, result.reference(), corr, mask, viewed(w, n, 1), sample, freqWeights, 0);
    };
    if (arrays.areApart())
        return compute(viewed(X, n, p).reference());
    // X goes back as it came, also where the result lies over it: only then does that take a copy.
    TableHandle data = copied(X, n, p);
    const int status = compute(data.reference());
    handBack(data, X);
    return status;
}
