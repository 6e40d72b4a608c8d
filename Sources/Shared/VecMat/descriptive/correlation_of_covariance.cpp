#include "correlation_of_covariance.h"

#include "../access/cells.h"
#include "../base/detail/companions.h"
#include "detail/pair_pass.h"

using namespace vecmat;

namespace {

/// Row j is finished, its diagonal last, before the next begins: no later row reads what it wrote, so the result may
/// overwrite the covariances.
template <class Cells>
int correlationsOf(Cells covariance, int p, Cells correlation, double fallback)
{
    for (int j = 0; j < p; ++j) {
        for (int k = j + 1; k < p; ++k) {
            const double product = covariance.get(j, j) * covariance.get(k, k);
            const double r = product > 0.0 ? covariance.get(j, k) / squareRoot(product) : fallback;
            correlation.set(j, k, r);
            correlation.set(k, j, r);
        }
        correlation.set(j, j, covariance.get(j, j) > zeroTolerance ? 1.0 : fallback);
    }
    return 0;
}

} // namespace

int M_CorrMatFromCovMat(matrix* S, int p, matrix* R, short zeroForMissing)
{
    return correlationsOf(cells(S), p, cells(R), fallbackForMinusOne(zeroForMissing));
}

int M_CorrMatFromCovMatSPV2_T(matrix** C, int p)
{
    return correlationsOf(triangle(C), p, triangle(C), missingValue);
}
