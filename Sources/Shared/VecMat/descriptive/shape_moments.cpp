#include "shape_moments.h"

#include "../access/cells.h"
#include "../base/detail/companions.h"
#include "../base/detail/masks.h"
#include "../base/detail/mathematics/mathematics.h"
#include "../base/detail/running_moments.h"
#include "../kernels/power_kernels.h"

using namespace vecmat;

namespace {

/// Sums of the second to fourth powers of the deviations from the running mean. Rows are processed in blocks: first
/// their deviations, then all powers, which take most of the time, then the sums.
class RunningShape : public RunningWeights<ZeroWeight::counted>
{
public:
    double mean = 0.0;
    double m2 = 0.0;
    double m3 = 0.0;
    double m4 = 0.0;

    void add(double x, double w)
    {
        if (!take(w))
            return;
        const double d = x - mean;
        mean += update::Fractional::mean(d, w, weights);
        deviation_[pending_] = d;
        weight_[pending_] = w;
        weightsSoFar_[pending_] = weights;
        if (++pending_ == mostPending)
            finish();
    }

    /// Adds the pending rows to the sums.
    void finish()
    {
        double cube[mostPending];
        double fourth[mostPending];
        cubesAndFourths(pending_, deviation_, cube, fourth);
        for (int k = 0; k < pending_; ++k)
            grow(deviation_[k], cube[k], fourth[k], weight_[k], weightsSoFar_[k]);
        pending_ = 0;
    }

private:
    /// Each higher sum uses the old lower ones, so they are updated from the highest down.
    void grow(double d, double d3, double d4, double w, double W)
    {
        const double f = w / W;
        const double t = f * 3.0 * d * m2;
        m4 += (f + f) * d * (t - (m3 + m3)) + (((f * 6.0 + -4.0) - f * f * 3.0) * f + 1.0) * d4 * w;
        m3 = (m3 - t) + (f * f + f * f + (1.0 - f * 3.0)) * d3 * w;
        m2 += update::Fractional::squares(d, w, W);
    }

    static constexpr int mostPending = 128;
    int pending_ = 0;
    double deviation_[mostPending];
    double weight_[mostPending];
    double weightsSoFar_[mostPending];
};

} // namespace

void V_MeanVarSkewPKurtP(matrix* v, int n, double* mean, double* var, double* skewP, double* kurtP, double* skewS,
                         double* kurtS, double* seSkew, double* seKurt, short* mask, matrix* w, short sample,
                         short freqWeights)
{
    RunningShape moments;
    onBlocks(
        [&](auto cell, auto weight) {
            for (int i = 0; i < n; ++i)
                if (const double x = cell.get(i); Mask(mask).keeps(i) && isPresent(x))
                    moments.add(x, weight.get(i));
        },
        block(linear(v), n), block(linear(w), n));
    moments.finish();

    const double W = moments.weights;
    const double wbar = moments.rows > 0 ? W / moments.rows : 0.0;
    const double c = freqWeights == -1 ? 1.0 : wbar;
    const double D = W - c;
    *mean = moments.mean;

    const bool undivided = (sample == -1 && D == 0.0) || (sample == 0 && W == 0.0);
    const double variance = undivided ? missingValue : moments.m2 / (sample == -1 ? D : W);
    *var = variance;
    if (undivided || variance == 0.0) {
        *skewP = *kurtP = *skewS = *kurtS = missingValue;
        return;
    }

    const double skewness = (moments.m3 / W) / vecmat::pow(variance, 1.5);
    *skewP = skewness;
    // The guard subtracts the mean weight even where the formulas subtract 1.
    const bool hasSampleSkewness = W - 2.0 * wbar > 0.0;
    const double errorOfSkewness =
        hasSampleSkewness ? squareRoot((W * 6.0 * D) / ((c * 3.0 + W) * (W + c) * (W - 2.0 * c))) : missingValue;
    *skewS = hasSampleSkewness ? squareRoot(W * D) * skewness / (W - 2.0 * c) : missingValue;
    *seSkew = errorOfSkewness;

    const double kurtosis = (moments.m4 / W) / (variance * variance) + -3.0;
    *kurtP = kurtosis;
    if (W - 2.0 * c > 0.0 && W - 3.0 * c > 0.0) {
        *kurtS = (((W + c) * (kurtosis + 3.0) - D * 3.0) * D) / ((W - 2.0 * c) * (W - 3.0 * c));
        // A missing error of the skewness takes part like any other number.
        *seKurt = squareRoot((errorOfSkewness * errorOfSkewness * (W * W - c) * 4.0) / ((c * 5.0 + W) * (W - 3.0 * c)));
    } else {
        *kurtS = *seKurt = missingValue;
    }
}
