#include "robust_statistics.h"

#include "../access/cells.h"
#include "../base/detail/masks.h"
#include "../base/detail/running_moments.h"
#include "../base/missing_value.h"
#include "../elementary/predicates.h"
#include "quantiles.h"

#include <cmath>

using namespace vecmat;

namespace {

/// |v - centre| of the kept rows that are not missing; the missing value in the other cells.
matrix& fillDeviations(matrix& deviations, matrix* v, int n, double centre, Mask mask)
{
    for (int i = 0; i < n; ++i)
        if (const double x = linear(v).get(i); mask.keeps(i) && !isMissing(x))
            deviations.X[i] = std::fabs(x - centre);
    return deviations;
}

/// Scales a deviation; gives the missing value throughout if the scale is negligible or NaN.
template <class Score>
void writeScores(matrix* v, int n, double scale, matrix* out, Score score)
{
    for (int i = 0; i < n; ++i)
        linear(out).set(i, scale > negligible ? score(linear(v).get(i)) : missingValue);
}

} // namespace

double V_MedianAbsDev(matrix* v, int n, double centre, short* mask, matrix* w)
{
    matrix deviations(n, 1, missingValue);
    fillDeviations(deviations, v, n, centre, Mask(mask));
    return V_IsConstant(w, n, -1) != 0 ? V_QuantileM(&deviations, n, mask, 0.5)
                                       : V_QuantileMW(&deviations, n, mask, w, 0.5);
}

double V_MeanAbsDev(matrix* v, int n, double centre, short* mask, matrix* w)
{
    double weights = 0.0;
    double sum = 0.0;
    for (int i = 0; i < n; ++i) {
        const double x = linear(v).get(i);
        if (!Mask(mask).keeps(i) || isMissing(x))
            continue;
        weights += linear(w).get(i);
        sum += linear(w).get(i) * std::fabs(x - centre);
    }
    return weights == 0.0 ? missingValue : sum / weights;
}

double V_MedianAbsDev2(matrix* v, int n, double* centre)
{
    const double used = isMissing(*centre) ? V_Quantile(v, n, 0.5) : *centre;
    matrix deviations(n, 1, missingValue);
    fillDeviations(deviations, v, n, used, Mask(nullptr));
    const double deviation = V_Quantile(&deviations, n, 0.5);
    *centre = used;
    return deviation;
}

void V_MeanStdev2(matrix* v, int n, short sample, double* mean, double* stdev)
{
    RunningVariance<update::Counted, ZeroWeight::updated> moments;
    for (int i = 0; i < n; ++i)
        if (const double x = linear(v).get(i); isPresent<MissingTest::order>(x))
            moments.add(x, 1.0);
    *mean = moments.mean;
    *stdev = std::sqrt(moments.squares / (sample == -1 ? moments.weights - 1.0 : moments.weights));
}

void V_Winsorize2(matrix* v, int n, double pLow, double pHigh)
{
    const double low = V_Quantile(v, n, pLow);
    const double high = V_Quantile(v, n, pHigh);
    const auto cell = linear(v);
    for (int i = 0; i < n; ++i) {
        const double x = cell.get(i);
        if (isMissing(x))
            continue;
        if (low > x)
            cell.set(i, low);
        else if (x > high)
            cell.set(i, high);
    }
}

void V_ZScores(matrix* v, int n, int kind, double* mean, double* stdev, matrix* out)
{
    if (kind == 0) {
        if (isMissing(*mean))
            V_MeanStdev2(v, n, -1, mean, stdev);
        const double centre = *mean;
        const double scale = *stdev;
        writeScores(v, n, scale, out, [=](double x) { return (x - centre) / scale; });
    } else {
        constexpr double normalRatio = 0.6745; // median absolute deviation of a standard normal variable
        double centre = missingValue;
        const double scale = V_MedianAbsDev2(v, n, &centre);
        writeScores(v, n, scale, out, [=](double x) { return (x - centre) * normalRatio / scale; });
    }
}
