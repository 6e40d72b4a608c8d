// Distributions of test statistics, by Boost.Math, and corrections for many comparisons.
#pragma once

#include <string>
#include <vector>

namespace survey {

inline constexpr double confidence = 0.95; // of the intervals
inline constexpr double significance = 0.05;

/// How likely a t is that is so far from 0, or farther. 0 for an infinite one.
double twoSidedP(double t, double freedom);

/// How likely an F is that is so large, or larger.
double upperP(double f, double freedomAbove, double freedomBelow);

/// Half the width of a confidence interval, in standard errors.
double intervalReach(double freedom);

/// The quantile of the normal distribution with mean 0 and variance 1.
double normalQuantile(double p);

/// What is done about p values where there are many: nothing, times their number (Bonferroni), that step by step from
/// the smallest (Holm 1979), or the false discovery rate (Benjamini and Hochberg 1995).
enum class Correction { none, bonferroni, holm, fdr };

/// In their order.
std::vector<double> corrected(const std::vector<double>& p, Correction correction);

/// "none", "bonferroni", "holm" or "fdr".
std::string nameOf(Correction correction);

/// With four decimals; "<0.0001" below them, a dash for what is no probability.
std::string shownP(double p);

} // namespace survey
