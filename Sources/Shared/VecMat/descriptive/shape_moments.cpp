#include "shape_moments.h"

#include "../access/cells.h"
#include "../base/detail/companions.h"
#include "../base/detail/masks.h"
#include "../base/detail/mathematics/mathematics.h"
#include "../base/detail/running_moments.h"
#include "../kernels/power_kernels.h"
#include "../kernels/shape_kernels.h"

using namespace vecmat;

namespace {

/// The running mean, and the sums of the second to fourth powers of the deviations from it. Rows are processed in
/// blocks: first their deviations, in order, then what each brings to the sums, side by side, then the sums, in order.
class RunningShape
{
public:
    double weights = 0.0;
    int rows = 0;
    double mean = 0.0;
    double m2 = 0.0;
    double m3 = 0.0;
    double m4 = 0.0;

    template <class X, class Weights>
    void addAll(X x, Weights weight, Mask mask, int n)
    {
        for (int next = 0; next < n;) {
            next = addToMean(x, weight, mask, next, n);
            addToSums();
        }
    }

private:
    /// Adds rows from `first` on to the mean until a block is full or all are done. Returns the next row.
    template <class X, class Weights>
    int addToMean(X x, Weights weight, Mask mask, int first, int n)
    {
        // In locals, which stay in registers: each row waits for the mean and the weights of the one before.
        RunningWeights<ZeroWeight::counted> sum{weights, rows};
        double running = mean;
        int count = 0;
        for (; first < n && count < ShapeKernels::mostRows; ++first) {
            if (!mask.keeps(first) || !isPresent(x.get(first)))
                continue;
            const double w = weight.get(first);
            if (!sum.take(w))
                continue;
            const double f = w / sum.weights;
            const double d = x.get(first) - running;
            running += d * f;
            block_.d[count] = d;
            block_.w[count] = w;
            block_.f[count++] = f;
        }
        weights = sum.weights;
        rows = sum.rows;
        mean = running;
        pending_ = count;
        return first;
    }

    void addToSums()
    {
        double cube[ShapeKernels::mostRows];
        double fourth[ShapeKernels::mostRows];
        ShapeKernels::Terms terms;
        cubesAndFourths(pending_, block_.d, cube, fourth);
        shapeKernels().terms(pending_, block_, cube, fourth, terms);
        for (int k = 0; k < pending_; ++k) {
            // Each higher sum uses the old lower ones, so they are updated from the highest down.
            const double t = terms.third[k] * m2;
            m4 += terms.fourth[k] * (t - (m3 + m3)) + terms.ofFourth[k];
            m3 = (m3 - t) + terms.ofThird[k];
            m2 += terms.ofSecond[k];
        }
    }

    int pending_ = 0;
    ShapeKernels::Rows block_;
};

} // namespace

void V_MeanVarSkewPKurtP(matrix* v, int n, double* mean, double* var, double* skewP, double* kurtP, double* skewS,
                         double* kurtS, double* seSkew, double* seKurt, short* mask, matrix* w, short sample,
                         short freqWeights)
{
    RunningShape moments;
    onBlocks([&](auto cell, auto weight) { moments.addAll(cell, weight, Mask(mask), n); }, block(linear(v), n),
             block(linear(w), n));

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
