#include "plain.h"

#include "record.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vecmat::bench::plain {

double quantile(const double* x, int n, double p)
{
    Cells sorted(x, x + n);
    std::stable_sort(sorted.begin(), sorted.end());
    const double h = (n - 1.0) * p;
    const auto i = static_cast<std::size_t>(std::floor(h));
    const double g = h - static_cast<double>(i);
    if (g == 0.0 || sorted[i] == sorted[i + 1])
        return sorted[i];
    return (1.0 - g) * sorted[i] + g * sorted[i + 1];
}

double weightedQuantile(const double* x, int n, const double* w, double p)
{
    const std::vector<Record> sorted = sortedRecords(x, n);
    Cells weights;
    for (const Record& record : sorted)
        weights.push_back(w[record.position - 1]);
    double total = 0.0;
    for (const double weight : weights)
        total += weight;
    const double target = p * total;
    double cumulated = 0.0;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        if (i > 0 && cumulated == target)
            return (sorted[i - 1].key + sorted[i].key) * 0.5;
        if (i > 0 && cumulated > target)
            return sorted[i - 1].key;
        cumulated += weights[i];
    }
    return sorted.back().key;
}

} // namespace vecmat::bench::plain
