// Order statistics.
#include "contest.h"
#include "plain/plain.h"

#include "descriptive/quantiles.h"

#include <gsl/gsl_sort.h>
#include <gsl/gsl_statistics_double.h>

#include <algorithm>
#include <cmath>

namespace vecmat::bench {

namespace {

/// Every contender leaves the data unchanged: one that works in place copies them first.
struct Quantile
{
    static constexpr double p = 0.3;
    Cells x, result;

    explicit Quantile(int n) : x(RandomData(30).normals(count(n))), result(1) {}
    void enter(Contest& contest)
    {
        contest.outputs({&result});
        contest.share("x", x);
        contest.ours([this] { result[0] = VB_V_Quantile(x.data(), lengthOf(x), p); });
        contest.plain([this] { result[0] = plain::quantile(x.data(), lengthOf(x), p); });
        contest.peer("std::nth_element", 1e-15, [this] {
            Cells cells = x;
            const double position = (static_cast<double>(cells.size()) - 1.0) * p;
            const double below = std::floor(position);
            const auto place = cells.begin() + static_cast<std::ptrdiff_t>(below);
            std::nth_element(cells.begin(), place, cells.end());
            const double next = *std::min_element(place + 1, cells.end());
            result[0] = (1.0 - (position - below)) * *place + (position - below) * next;
        });
        contest.peer("GSL", 1e-15, [this] {
            Cells cells = x;
            gsl_sort(cells.data(), 1, cells.size());
            result[0] = gsl_stats_quantile_from_sorted_data(cells.data(), 1, cells.size(), p);
        });
    }
};

struct WeightedQuantile
{
    static constexpr double p = 0.5;
    Cells x, w, result;

    explicit WeightedQuantile(int n)
        : x(RandomData(31).normals(count(n))), w(RandomData(32).weights(count(n))), result(1)
    {
    }
    void enter(Contest& contest)
    {
        contest.outputs({&result});
        contest.share("x", x);
        contest.share("w", w);
        contest.ours([this] { result[0] = VB_V_QuantileW(x.data(), lengthOf(x), w.data(), p); });
        contest.plain([this] { result[0] = plain::weightedQuantile(x.data(), lengthOf(x), w.data(), p); });
    }
};

} // namespace

void addQuantiles(Suite& suite)
{
    suite.add<Quantile>("quantile", {10'000, 100'000, 1'000'000}).alsoAt({10'000'000, 100'000'000});
    suite.add<WeightedQuantile>("weighted-quantile", {10'000, 100'000, 1'000'000}).alsoAt({10'000'000});
}

} // namespace vecmat::bench
