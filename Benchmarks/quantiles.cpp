// Order statistics.
#include "contest.h"
#include "plain/plain.h"

#include "descriptive/quantiles.h"

#include <gsl/gsl_sort.h>
#include <gsl/gsl_statistics_double.h>

#include <algorithm>
#include <cmath>
#include <iterator>

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
        contest.compiledPeer("GSL", 1e-15, [this] {
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

/// The thirteen of the second rule.
struct Thirteen
{
    static constexpr double orders[] = {0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.75, 0.8, 0.9, 0.95};
    Cells x, results;

    explicit Thirteen(int n) : x(RandomData(33).normals(count(n))), results(std::size(orders)) {}
    void enter(Contest& contest)
    {
        contest.outputs({&results});
        contest.share("x", x);
        contest.ours([this] { Cpp_V_Quantiles13(x.data(), lengthOf(x), results.data()); });
        contest.plain([this] {
            Cells cells = x;
            plain::sortVector(cells.data(), lengthOf(cells));
            interpolate([&](std::size_t place) { return cells[place]; });
        });
        contest.peer("std::nth_element", sameBits, [this] {
            Cells cells = x;
            auto settled = cells.begin();
            interpolate([&](std::size_t place) {
                const auto found = cells.begin() + static_cast<std::ptrdiff_t>(place);
                if (found >= settled) {
                    std::nth_element(settled, found, cells.end());
                    settled = found + 1;
                }
                return *found;
            });
        });
    }

private:
    template <class At>
    void interpolate(At at)
    {
        std::size_t k = 0;
        for (const double p : orders) {
            const double h = (static_cast<double>(x.size()) - 1.0) * p + (p <= 0.5 ? 0.5 : 1.0);
            const double below = std::floor(h);
            const double a = at(static_cast<std::size_t>(below) - 1);
            const double b = below == h ? a : at(static_cast<std::size_t>(below));
            results[k++] = a == b ? a : a + (h - below) * (b - a);
        }
    }
};

} // namespace

void addQuantiles(Suite& suite)
{
    suite.add<Quantile>("quantile", {10'000, 100'000, 1'000'000}).alsoAt({10'000'000, 100'000'000});
    suite.add<Thirteen>("quantiles-13", {10'000, 100'000, 1'000'000});
    suite.add<WeightedQuantile>("weighted-quantile", {10'000, 100'000, 1'000'000}).alsoAt({10'000'000});
}

} // namespace vecmat::bench
