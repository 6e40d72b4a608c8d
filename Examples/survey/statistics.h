// The numbers of the survey, each from a flat form of the library.
//
// The cells are those of one group in one column, at least one. Cells that hold the missing value are left out, and a
// number that can't be told from those that remain is itself the missing value.
#pragma once

#include <array>
#include <vector>

namespace survey {

/// `standardDeviation` has the divisor n - 1, so that it takes two cells. `skewness` and `kurtosis` are the sample forms
/// G1 and G2 of Joanes and Gill (1998), 0 for a normal distribution; they take three and four cells that aren't all
/// equal.
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
};

Moments momentsOf(std::vector<double> cells);

/// By linear interpolation at position (n-1)p of the sorted cells, counted from 0: rule 7 of Hyndman and Fan (1996).
struct Quartiles
{
    double lower;
    double median;
    double upper;
};

Quartiles quartilesOf(std::vector<double> cells);

inline constexpr std::array<int, 13> thirteenPercentages = {5, 10, 20, 25, 30, 40, 50, 60, 70, 75, 80, 90, 95};

/// The quantiles of these percentages by another rule: the position, counted from 1, is (n-1)p + 1/2 up to 50 % and
/// (n-1)p + 1 above.
std::array<double, 13> thirteenQuantilesOf(std::vector<double> cells);

} // namespace survey
