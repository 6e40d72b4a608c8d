#include "inference.h"

#include "number_format.h"

#include <boost/math/distributions/fisher_f.hpp>
#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/students_t.hpp>
#include <boost/math/policies/policy.hpp>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace survey {

namespace {

/// In doubles, also where a long double is wider: it has other widths elsewhere, and p values would have other digits.
using InDoubles = boost::math::policies::policy<boost::math::policies::promote_double<false>>;
using StudentsT = boost::math::students_t_distribution<double, InDoubles>;
using FisherF = boost::math::fisher_f_distribution<double, InDoubles>;
using Normal = boost::math::normal_distribution<double, InDoubles>;

/// The places of the p values, from the smallest to the largest.
std::vector<std::size_t> ascending(const std::vector<double>& p)
{
    std::vector<std::size_t> order(p.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return p[a] < p[b]; });
    return order;
}

} // namespace

double twoSidedP(double t, double freedom)
{
    if (std::isinf(t))
        return 0.0;
    const StudentsT distribution(freedom);
    return std::min(1.0, 2.0 * boost::math::cdf(boost::math::complement(distribution, std::fabs(t))));
}

double upperP(double f, double freedomAbove, double freedomBelow)
{
    if (std::isinf(f))
        return 0.0;
    const FisherF distribution(freedomAbove, freedomBelow);
    return boost::math::cdf(boost::math::complement(distribution, std::max(0.0, f)));
}

double intervalReach(double freedom)
{
    return boost::math::quantile(StudentsT(freedom), 0.5 + 0.5 * confidence);
}

double normalQuantile(double p)
{
    return boost::math::quantile(Normal(), p);
}

std::vector<double> corrected(const std::vector<double>& p, Correction correction)
{
    const auto n = static_cast<double>(p.size());
    std::vector<double> result = p;
    const std::vector<std::size_t> order = ascending(p);
    double bound = correction == Correction::fdr ? 1.0 : 0.0;
    for (std::size_t i = 0; i < p.size(); ++i) {
        if (correction == Correction::bonferroni) {
            result[i] = std::min(1.0, n * p[i]);
        } else if (correction == Correction::holm) { // none below the ones before
            const std::size_t place = order[i];
            bound = std::max(bound, (n - static_cast<double>(i)) * p[place]);
            result[place] = std::min(1.0, bound);
        } else if (correction == Correction::fdr) { // none above the ones behind
            const std::size_t rank = p.size() - i;
            const std::size_t place = order[rank - 1];
            bound = std::min(bound, n / static_cast<double>(rank) * p[place]);
            result[place] = bound;
        }
    }
    return result;
}

std::string nameOf(Correction correction)
{
    switch (correction) {
    case Correction::none:
        return "none";
    case Correction::bonferroni:
        return "bonferroni";
    case Correction::holm:
        return "holm";
    case Correction::fdr:
        break;
    }
    return "fdr";
}

std::string shownP(double p)
{
    if (!(p >= 0.0 && p <= 1.0))
        return "-";
    return p < 0.0001 ? "<0.0001" : withDecimals(p, 4);
}

} // namespace survey
