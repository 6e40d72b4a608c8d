#include "plain.h"
#include "record.h"
#include "table.h"

#include "CompanionRandom/CompanionRandom.h"

#include <cmath>
#include <cstddef>
#include <map>

namespace vecmat::bench::plain {

namespace {

Cells draws(int n, int seed)
{
    constexpr int fromSeed = -1;
    Cells keys;
    int seedOut = 0;
    GetSeed(&seed, fromSeed);
    for (int i = 0; i < n; ++i)
        keys.push_back(Random01());
    GetSeedUpdate(&seedOut);
    return keys;
}

} // namespace

void shuffle(double* x, int n, int seed)
{
    const std::vector<Record> sorted = sortedRecords(draws(n, seed).data(), n);
    const Cells before(x, x + n);
    for (std::size_t i = 0; i < before.size(); ++i)
        x[i] = before[static_cast<std::size_t>(sorted[i].position) - 1];
}

void sample(const std::wstring* population, int n, int cols, int draws, std::wstring* out, double* ids, int seed)
{
    const Cells keys = plain::draws(draws, seed);
    const Table source{population, n};
    const Table result{out, draws};
    for (int i = 0; i < draws; ++i) {
        ids[i] = std::floor(keys[static_cast<std::size_t>(i)] * n) + 1.0;
        for (int j = 0; j < cols; ++j)
            result(i, j) = source(static_cast<int>(ids[i]) - 1, j);
    }
    // Rows of strings are sorted by their numbers with an ordered map.
    std::multimap<double, int> order;
    for (int i = 0; i < draws; ++i)
        order.emplace(ids[i], i);
    const Texts before(out, out + std::ptrdiff_t{draws} * cols);
    const Table unsorted{before.data(), draws};
    int row = 0;
    for (const auto& [id, position] : order) {
        ids[row] = id;
        for (int j = 0; j < cols; ++j)
            result(row, j) = unsorted(position, j);
        ++row;
    }
}

} // namespace vecmat::bench::plain
