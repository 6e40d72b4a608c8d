// Groups of rows by a plain walk over vectors of cells: nothing here comes from the library.
#pragma once

#include "support/constants.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

namespace vecmat::test {

using Doubles = std::vector<double>;
using Ints = std::vector<int>;

/// A table as its cells, column after column, with rows and columns from 0.
struct PlainTable
{
    int rows;
    Doubles cells;

    std::size_t position(int i, int j) const
    {
        return static_cast<std::size_t>(j) * static_cast<std::size_t>(rows) + static_cast<std::size_t>(i);
    }
    double get(int i, int j) const { return position(i, j) < cells.size() ? cells[position(i, j)] : -1.0; }
    void set(int i, int j, double value) { cells.at(position(i, j)) = value; }
};

inline double plainMode(const Doubles& x)
{
    const int n = static_cast<int>(x.size());
    int best = 0;
    int bestCount = 0;
    for (int code = 0; n >= 2 && code < n; ++code) {
        int count = 0;
        for (const double cell : x)
            if (cell != M && std::trunc(cell + 1.0) == code + 1.0)
                ++count;
        if (count > bestCount) {
            best = code;
            bestCount = count;
        }
    }
    return best;
}

inline double plainMedian(Doubles x)
{
    std::stable_sort(x.begin(), x.end());
    const std::size_t half = x.size() / 2;
    if (x.size() % 2 == 1 || x[half - 1] == x[half])
        return x.size() % 2 == 1 ? x[half] : x[half - 1];
    return 0.5 * x[half - 1] + 0.5 * x[half];
}

inline double plainSum(const Doubles& x)
{
    double sum = 0.0;
    for (const double cell : x)
        if (cell != M)
            sum = sum + cell;
    return sum;
}

inline double plainMean(const Doubles& x)
{
    const auto present = std::count_if(x.begin(), x.end(), [](double cell) { return cell != M; });
    return present == 0 ? M : plainSum(x) / static_cast<double>(present);
}

inline double plainLeast(const Doubles& x)
{
    double least = M;
    for (const double cell : x)
        if (cell != M && (least == M || cell < least))
            least = cell;
    return least;
}

inline double plainMost(const Doubles& x)
{
    double most = M;
    for (const double cell : x)
        if (cell != M && (most == M || cell > most))
            most = cell;
    return most;
}

inline double plainRange(const Doubles& x)
{
    return plainMost(x) > M ? plainMost(x) - plainLeast(x) : M;
}

inline double plainSum(const Doubles& x, const Doubles& w)
{
    double sum = 0.0;
    for (std::size_t k = 0; k < x.size(); ++k)
        if (x[k] != M && w[k] != M)
            sum = sum + w[k] * x[k];
    return sum;
}

inline double plainMean(const Doubles& x, const Doubles& w)
{
    double sum = 0.0;
    double total = 0.0;
    for (std::size_t k = 0; k < x.size(); ++k)
        if (x[k] != M && w[k] != 0.0) {
            sum = sum + w[k] * x[k];
            total = total + w[k];
        }
    return total == 0.0 ? M : sum / total;
}

inline double plainMedian(const Doubles& x, const Doubles& w)
{
    std::vector<std::pair<double, double>> pairs;
    double total = 0.0;
    bool anyCounts = false;
    bool equal = true;
    double first = M;
    for (std::size_t k = 0; k < x.size(); ++k) {
        pairs.emplace_back(x[k], w[k]);
        anyCounts = anyCounts || (w[k] > 0.0 && x[k] != M);
        if (w[k] == M)
            continue;
        first = first == M ? w[k] : first;
        equal = equal && w[k] == first;
    }
    if (!anyCounts)
        return M;
    if (equal)
        return plainMedian(x);
    std::stable_sort(pairs.begin(), pairs.end(),
                     [](const auto& left, const auto& right) { return left.first < right.first; });
    for (const auto& [value, weight] : pairs)
        if (weight != M)
            total = total + weight;
    double cumulated = 0.0;
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        if (cumulated == 0.5 * total)
            return ((i == 0 ? -1.0 : pairs[i - 1].first) + pairs[i].first) * 0.5;
        if (cumulated > 0.5 * total)
            return i == 0 ? -1.0 : pairs[i - 1].first;
        cumulated = cumulated + pairs[i].second;
    }
    return pairs.back().first;
}

/// Groups the first rows and columns of `data` by column `keyCol`, from 1, into `out`; sorts `weights` where there are
/// any. Keys must not be NaN. Answers the number of groups.
inline int plainGroups(const PlainTable& data, int nRows, int nCols, const Ints& colTypes, int keyCol, int aggregate,
                       PlainTable& out, Doubles* weights)
{
    const int key = keyCol - 1;
    Ints order(static_cast<std::size_t>(std::max(nRows, 0)));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&](int left, int right) { return data.get(left, key) < data.get(right, key); });
    for (int i = 0; i < nRows; ++i)
        for (int j = 0; j < nCols; ++j)
            out.set(i, j, data.get(order[static_cast<std::size_t>(i)], j));
    if (weights != nullptr) {
        const Doubles unsorted = *weights;
        for (std::size_t i = 0; i < order.size(); ++i)
            (*weights)[i] = unsorted[static_cast<std::size_t>(order[i])];
    }
    int groups = 0;
    int first = 0;
    while (first < nRows) {
        int last = first;
        while (last + 1 < nRows && out.get(last + 1, key) == out.get(first, key))
            ++last;
        out.set(groups, key, out.get(first, key));
        for (int j = 0; j < nCols; ++j) {
            if (j == key)
                continue;
            Doubles x;
            for (int i = first; i <= last; ++i)
                x.push_back(out.get(i, j));
            const bool qualitative =
                j >= static_cast<int>(colTypes.size()) || colTypes[static_cast<std::size_t>(j)] != 0;
            if (qualitative)
                out.set(groups, j, plainMode(x));
            else if (aggregate == 0)
                out.set(groups, j, weights != nullptr ? plainSum(x, *weights) : plainSum(x));
            else if (aggregate == 1)
                out.set(groups, j, weights != nullptr ? plainMean(x, *weights) : plainMean(x));
            else if (aggregate == 2)
                out.set(groups, j, weights != nullptr ? plainMedian(x, *weights) : plainMedian(x));
            else if (aggregate == 3)
                out.set(groups, j, x.front());
            else if (aggregate == 4)
                out.set(groups, j, out.get(last + 1, j));
            else if (aggregate == 5)
                out.set(groups, j, plainLeast(x));
            else if (aggregate == 6)
                out.set(groups, j, plainMost(x));
            else if (aggregate == 7)
                out.set(groups, j, plainRange(x));
        }
        ++groups;
        first = last + 1;
    }
    return groups;
}

} // namespace vecmat::test
