#include "plain.h"

#include "record.h"
#include "support/constants.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vecmat::bench::plain {

void sortVector(double* x, int n)
{
    Cells elements(x, x + n);
    std::stable_sort(elements.begin(), elements.end());
    std::copy(elements.begin(), elements.end(), x);
}

void sortRows(double* data, int n, int cols, double* key, double* companion)
{
    const std::vector<Record> records = sortedRecords(key, n);
    const std::size_t rows = records.size();
    const Cells before(data, data + rows * static_cast<std::size_t>(cols));
    const Cells companionBefore(companion, companion + n);
    for (std::size_t i = 0; i < rows; ++i) {
        const std::size_t source = static_cast<std::size_t>(records[i].position) - 1;
        key[i] = records[i].key;
        for (std::size_t j = 0; j < static_cast<std::size_t>(cols); ++j)
            data[i + rows * j] = before[source + rows * j];
        companion[i] = companionBefore[source];
    }
}

void sortApply(const double* source, int n, int cols, const double* order, double* out)
{
    const std::ptrdiff_t rows = n;
    for (int i = 0; i < n; ++i) {
        const int row = static_cast<int>(order[i] - 1.0);
        for (int j = 0; j < cols; ++j)
            out[i + rows * j] = source[row + rows * j];
    }
}

int ranksWithTies(const double* x, int n, const double* weights, double* ranks, double* tieSizes)
{
    constexpr double tolerance = 1e-15;
    const std::vector<Record> sorted = sortedRecords(x, n);
    Cells sortedWeights;
    for (const Record& record : sorted)
        sortedWeights.push_back(weights[record.position - 1]);
    std::fill(tieSizes, tieSizes + n, 0.0);
    Cells rank(sorted.size(), test::M);
    std::size_t missing = 0;
    while (missing < sorted.size() && sorted[missing].key == test::M)
        ++missing;
    for (std::size_t k = missing; k < rank.size(); ++k)
        rank[k] = static_cast<double>(k - missing + 1);

    int ties = 0;
    std::size_t k = missing + 1;
    while (k < sorted.size()) {
        if (!(std::fabs(sorted[k].key - sorted[k - 1].key) < tolerance)) {
            ++k;
            continue;
        }
        const std::size_t first = k - 1;
        // The first of a group takes the weight of the very first element.
        double weightSum = sortedWeights[0];
        double rankSum = rank[first] * sortedWeights[0];
        while (k < sorted.size() && std::fabs(sorted[k].key - sorted[first].key) < tolerance) {
            weightSum += sortedWeights[k];
            rankSum += rank[k] * sortedWeights[k];
            ++k;
        }
        for (std::size_t i = first; i < k; ++i)
            rank[i] = rankSum / weightSum;
        tieSizes[ties++] = static_cast<double>(k - first);
    }
    for (std::size_t i = 0; i < rank.size(); ++i)
        ranks[sorted[i].position - 1] = rank[i];
    return ties;
}

} // namespace vecmat::bench::plain
