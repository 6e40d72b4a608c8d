// The numbers of the survey, each from a flat form of the library.
//
// The cells are those of one group in one column, at least one, with a weight each or none at all. Cells that hold the
// missing value are left out, and a number that can't be told from those that remain is itself the missing value.
#pragma once

#include <array>
#include <vector>

namespace survey {

/// `standardDeviation` has the divisor n - 1, so that it takes two cells, with weights W - W/n, W being their sum.
/// `skewness` and `kurtosis` are the sample forms G1 and G2 of Joanes and Gill (1998), 0 for a normal distribution; they
/// take three and four cells that aren't all equal.
struct Moments
{
    int count; ///< of the cells that aren't missing
    int missing;
    double minimum;
    double maximum;
    double mean;
    double standardDeviation;
    double skewness;
    double kurtosis;
    double weight; ///< of the cells that aren't missing: their count where there are no weights
};

Moments momentsOf(std::vector<double> cells, std::vector<double> weights = {});

inline constexpr std::array<int, 13> thirteenPercentages = {5, 10, 20, 25, 30, 40, 50, 60, 70, 75, 80, 90, 95};

/// The quantiles of these percentages, by linear interpolation at position (n-1)p of the sorted cells, counted from 0:
/// rule 7 of Hyndman and Fan (1996). With weights that aren't all equal, the cell at which the weights summed in sorted
/// order come to be above p of their total, or between two cells their mean.
struct Quantiles
{
    std::array<double, 13> thirteen;

    double lowerQuartile() const { return thirteen[3]; }
    double median() const { return thirteen[6]; }
    double upperQuartile() const { return thirteen[9]; }
};

Quantiles quantilesOf(std::vector<double> cells, std::vector<double> weights = {});

} // namespace survey
