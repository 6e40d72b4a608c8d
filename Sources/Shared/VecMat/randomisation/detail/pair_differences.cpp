#include "pair_differences.h"

#include "../../access/cells.h"
#include "../../base/detail/numbers.h"
#include "../../base/missing_value.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace vecmat {

namespace {

constexpr int noRow = -1;

/// Cells of a triangle of order n with its diagonal.
std::size_t triangleSize(std::size_t n)
{
    const unsigned long long count = n % 2 == 0 ? n / 2ULL * (n + 1ULL) : (n + 1ULL) / 2 * n;
    if (count > static_cast<std::size_t>(-1) / sizeof(int))
        throw std::bad_alloc();
    return static_cast<std::size_t>(count);
}

} // namespace

PairRows::PairRows(matrix* pairs, int colA, int colB, matrix* perm, int n)
{
    std::vector<int> itemAtPlace;
    itemAtPlace.reserve(countOf(n));
    for (int place = 0; place < n; ++place)
        itemAtPlace.push_back(truncated(linear(perm).get(place)));
    items_ = itemAtPlace;
    std::sort(items_.begin(), items_.end());
    items_.erase(std::unique(items_.begin(), items_.end()), items_.end());
    for (const int item : itemAtPlace)
        numberAtPlace_.push_back(*numberOf(item));

    rows_.assign(triangleSize(items_.size()), noRow);
    const long long rowCount = (n - 1LL) * n / 2;
    long long distinctPairs = 0;
    const auto table = cells(pairs);
    for (long long k = 0; k < rowCount; ++k) {
        const int row = static_cast<int>(k);
        const auto a = numberOf(table.get(row, zeroBased(colA)));
        const auto b = numberOf(table.get(row, zeroBased(colB)));
        if (!a || !b || rows_[slot(*a, *b)] != noRow)
            continue;
        rows_[slot(*a, *b)] = row;
        distinctPairs += *a != *b ? 1 : 0;
    }
    complete_ = items_.size() == itemAtPlace.size() && distinctPairs == rowCount;
}

std::optional<std::size_t> PairRows::numberOf(double item) const
{
    // Usually the items are consecutive, and the distance from the lowest is the number.
    const double distance = item - items_.front();
    if (distance >= 0.0 && distance < static_cast<double>(items_.size())) {
        const auto number = static_cast<std::size_t>(distance);
        if (items_[number] == item)
            return number;
    }
    const auto found = std::lower_bound(items_.begin(), items_.end(), item);
    if (found == items_.end() || *found != item)
        return std::nullopt;
    return static_cast<std::size_t>(found - items_.begin());
}

template <class ValueOfRow>
long long PairDifferences::lookUp(int s, int t, ValueOfRow valueOfRow)
{
    const int row = rows_.rowOf(s, t);
    if (row != noRow)
        last_ = valueOfRow(row);
    return last_;
}

long long PairDifferences::magnitudeOfRow(int row) const
{
    return std::llabs(linear(diff_).get(row));
}

long long PairDifferences::magnitude(int s, int t)
{
    return lookUp(s, t, [this](int row) { return magnitudeOfRow(row); });
}

long long PairDifferences::signedValue(int s, int t)
{
    return lookUp(s, t, [this](int row) { return static_cast<long long>(linear(diff_).get(row)); });
}

long long PairDifferences::magnitudeInForwardRun(int s, int t)
{
    return lookUp(s, t, [this](int row) {
        const bool counts = cells(pairs_).get(row, 1) > 0.0 || isMissing(cells(pairs_).get(row, 0));
        return counts ? magnitudeOfRow(row) : 0LL;
    });
}

} // namespace vecmat
