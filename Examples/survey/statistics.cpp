#include "statistics.h"

#include "VecMat.h"

namespace survey {

namespace {

// Booleans of the flat forms are -1 and 0; an array that isn't needed is null.
constexpr short yes = -1;
constexpr short no = 0;
short* const noMask = nullptr;
double* const noWeights = nullptr;

int sizeOf(const std::vector<double>& cells)
{
    return static_cast<int>(cells.size());
}

} // namespace

Moments momentsOf(std::vector<double> cells)
{
    double* const x = cells.data();
    const int n = sizeOf(cells);
    Moments result{};
    result.missing = static_cast<int>(VB_V_NbIf(x, n, vecmat::missingValue));
    result.count = n - result.missing;
    result.minimum = VB_V_Min2(x, n);
    result.maximum = VB_V_Max2(x, n);
    // Of the functions that give a standard deviation, this one has none for a single cell.
    VB_M_MeanStDev(x, n, 1, &result.mean, &result.standardDeviation, noMask, noWeights, yes, yes, yes);
    // G1 and G2 rest on the variance with divisor n; what else comes with them isn't used.
    std::vector<double> weights(cells.size(), 1.0);
    double mean, variance, skewP, kurtP, seSkew, seKurt;
    VB_V_MeanVarSkewPKurtP(x, n, &mean, &variance, &skewP, &kurtP, &result.skewness, &result.kurtosis, &seSkew, &seKurt,
                           noMask, weights.data(), no, yes);
    return result;
}

Quartiles quartilesOf(std::vector<double> cells)
{
    const auto quantile = [&](double p) { return VB_V_QuantileM(cells.data(), sizeOf(cells), noMask, p); };
    return {quantile(0.25), quantile(0.5), quantile(0.75)};
}

std::array<double, 13> thirteenQuantilesOf(std::vector<double> cells)
{
    std::erase(cells, vecmat::missingValue); // which the function would count as the lowest number
    std::array<double, 13> result;
    result.fill(vecmat::missingValue);
    if (!cells.empty())
        Cpp_V_Quantiles13(cells.data(), sizeOf(cells), result.data());
    return result;
}

} // namespace survey
