#include "statistics.h"

#include "flat_call.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace survey {

namespace {

int sizeOf(const std::vector<double>& cells)
{
    return static_cast<int>(cells.size());
}

/// Drops missing cells along with their weights, so that no call has to look at them again.
void dropMissing(std::vector<double>& cells, std::vector<double>& weights)
{
    std::size_t kept = 0;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (cells[i] == vecmat::missingValue)
            continue;
        cells[kept] = cells[i];
        if (!weights.empty())
            weights[kept] = weights[i];
        ++kept;
    }
    cells.resize(kept);
    weights.resize(std::min(weights.size(), kept));
}

double weightOf(std::vector<double> cells, std::vector<double> weights)
{
    dropMissing(cells, weights);
    return weights.empty() ? static_cast<double>(cells.size()) : std::accumulate(weights.begin(), weights.end(), 0.0);
}

} // namespace

Moments momentsOf(std::vector<double> cells, std::vector<double> weights)
{
    double* const x = cells.data();
    const int n = sizeOf(cells);
    Moments result{};
    result.missing = static_cast<int>(VB_V_NbIf(x, n, vecmat::missingValue));
    result.count = n - result.missing;
    result.minimum = VB_V_Min2(x, n);
    result.maximum = VB_V_Max2(x, n);
    result.weight = weightOf(cells, weights);
    // Of the functions that give a standard deviation, this one has none for a single cell.
    double* const w = weights.empty() ? noWeights : weights.data();
    VB_M_MeanStDev(x, n, 1, &result.mean, &result.standardDeviation, noMask, w, yes, areFrequencies, yes);
    // G1 and G2 rest on the variance with divisor n; what else comes with them isn't used.
    if (weights.empty())
        weights = unitWeights(n);
    double mean, variance, skewP, kurtP, seSkew, seKurt;
    VB_V_MeanVarSkewPKurtP(x, n, &mean, &variance, &skewP, &kurtP, &result.skewness, &result.kurtosis, &seSkew, &seKurt,
                           noMask, weights.data(), no, areFrequencies);
    return result;
}

Quantiles quantilesOf(std::vector<double> cells, std::vector<double> weights)
{
    dropMissing(cells, weights);
    Quantiles quantiles;
    for (std::size_t k = 0; k < thirteenPercentages.size(); ++k) {
        const double p = thirteenPercentages[k] / 100.0;
        quantiles.thirteen[k] = weights.empty()
                                    ? VB_V_QuantileM(cells.data(), sizeOf(cells), noMask, p)
                                    : VB_V_QuantileMW(cells.data(), sizeOf(cells), noMask, weights.data(), p);
    }
    return quantiles;
}

} // namespace survey
