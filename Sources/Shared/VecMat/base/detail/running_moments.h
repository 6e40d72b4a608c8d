// Running moments: the one-pass updates of means and variances, and the divisors. Internal to the library.
//
// Each row adds to the sum of weights W, then with d = x - mean to the sum of squared deviations, then to the mean.
// Functions write the two terms differently, so that they round differently; each keeps its own form. They differ in
// three choices: the update rule, the effect of a weight of zero, and the test for a missing cell.
#pragma once

#include "../missing_value.h"
#include "companions.h"

namespace vecmat {

/// The update rules: what a row of weight w at distance d from the running mean adds to the sum of squared deviations
/// and to the mean; W is the sum of weights including this row.
namespace update {

struct Weighted
{
    static double squares(double d, double w, double W) { return d * d * (w - w * w / W); }
    static double mean(double d, double w, double W) { return d * w / W; }
};

/// Unit weights; W is the number of rows.
struct Counted
{
    static double squares(double d, double, double W) { return d * d * (1.0 - 1.0 / W); }
    static double mean(double d, double, double W) { return d / W; }
};

struct Conditional
{
    static double squares(double d, double w, double W) { return d * d * w * (1.0 - w / W); }
    static double mean(double d, double w, double W) { return d * w / W; }
};

/// The row's share of the weights is formed first, and both terms are multiples of it.
struct Fractional
{
    static double squares(double d, double w, double W) { return (1.0 - w / W) * d * d * w; }
    static double mean(double d, double w, double W) { return d * (w / W); }
};

} // namespace update

/// How a row that is present but has a weight of zero is treated.
enum class ZeroWeight {
    skipped, ///< it does not enter at all
    counted, ///< it counts among the rows, but moves neither mean nor squares
    updated, ///< it is not tested for: while the weights still sum to zero it divides 0 by 0, and the mean stays NaN
};

/// The test that excludes a missing cell. Under `order` a cell must be above the missing value, which a NaN is not.
enum class MissingTest { equality, order };

template <MissingTest test = MissingTest::equality>
bool isPresent(double x)
{
    return test == MissingTest::equality ? !isMissing(x) : x > missingValue;
}

/// The sum of weights W and the count m of the rows added so far.
template <ZeroWeight zero>
struct RunningWeights
{
    static constexpr ZeroWeight zeroWeight = zero;

    double weights = 0.0;
    int rows = 0;

    /// Adds a row; returns whether it also moves the moments.
    bool take(double w)
    {
        if (zero == ZeroWeight::skipped && w == 0.0)
            return false;
        weights += w;
        ++rows;
        return zero != ZeroWeight::counted || w != 0.0;
    }
};

/// Mean of the rows added so far, 0.0 before the first.
template <class UpdateRule, ZeroWeight zero>
struct RunningMean : RunningWeights<zero>
{
    using Rule = UpdateRule;

    double mean = 0.0;

    void add(double x, double w)
    {
        if (this->take(w))
            mean += Rule::mean(x - mean, w, this->weights);
    }
};

/// Mean and sum of squared deviations of the rows added so far.
template <class UpdateRule, ZeroWeight zero>
struct RunningVariance : RunningWeights<zero>
{
    using Rule = UpdateRule;

    double mean = 0.0;
    double squares = 0.0;

    void add(double x, double w)
    {
        if (!this->take(w))
            return;
        const double d = x - mean;
        squares += Rule::squares(d, w, this->weights);
        mean += Rule::mean(d, w, this->weights);
    }
};

/// What `sample` -1 subtracts from the sum of weights W: 1.0 if the weights are frequencies, otherwise the mean weight
/// of the rows counted.
inline double weightCorrection(double W, int rows, short freqWeights)
{
    return freqWeights == -1 ? 1.0 : W / rows;
}

inline double varianceDivisor(double W, int rows, short sample, short freqWeights)
{
    return sample == -1 ? W - weightCorrection(W, rows, freqWeights) : W;
}

/// The quotient whatever the divisor, by the rules of floating point.
template <class Moments>
double untestedVariance(const Moments& m, short sample, short freqWeights)
{
    return m.squares / varianceDivisor(m.weights, m.rows, sample, freqWeights);
}

/// The missing value if the divisor is not above 0, including NaN.
template <class Moments>
double testedVariance(const Moments& m, short sample, short freqWeights)
{
    const double divisor = varianceDivisor(m.weights, m.rows, sample, freqWeights);
    return divisor > 0.0 ? m.squares / divisor : missingValue;
}

inline double deviationOf(double variance)
{
    return isMissing(variance) ? missingValue : squareRoot(variance);
}

/// Computes `results` moments, each over `terms` terms in order: `add(moments, result, term)`, then `store(result,
/// moments)` once. A few results are processed side by side, because each waits for a chain of divisions of its own.
template <class Moments, class Add, class Store>
void accumulate(int results, int terms, Add add, Store store)
{
    const auto group = [&]<int width>(int first) {
        Moments moments[width];
        for (int term = 0; term < terms; ++term)
            for (int k = 0; k < width; ++k)
                add(moments[k], first + k, term);
        for (int k = 0; k < width; ++k)
            store(first + k, moments[k]);
    };
    int first = 0;
    for (; results - first >= 4; first += 4)
        group.template operator()<4>(first);
    for (; results - first >= 2; first += 2)
        group.template operator()<2>(first);
    if (first < results)
        group.template operator()<1>(first);
}

} // namespace vecmat
