// What every sort is held against: std::stable_sort over row numbers, and the plain rearrangement of a table by them.
#pragma once

#include "support/bits.h"
#include "support/random_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <string>
#include <vector>

namespace vecmat::test {

/// A range inside, or the whole of, a vector of n; 1-based, both ends included.
struct SortCase
{
    int first;
    int last;
    short descending;
};

inline std::vector<SortCase> sortCases(int n)
{
    std::vector<SortCase> cases;
    for (const short descending : {short{0}, short{-1}})
        for (const auto& [first, last] : {std::pair{1, n}, {2, n}, {1, n - 1}, {n / 3 + 1, n - n / 4}, {n, n}})
            cases.push_back({first, last, descending});
    return cases;
}

/// For each row of n its source, 0-based, when rows `first` to `last` are sorted by the keys.
template <class Key>
std::vector<std::size_t> sortedSources(const std::vector<Key>& keys, const SortCase& sort)
{
    std::vector<std::size_t> order(keys.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    const auto from = order.begin() + (sort.first - 1);
    const auto to = order.begin() + sort.last;
    if (sort.descending == -1)
        std::stable_sort(from, to, [&](std::size_t a, std::size_t b) { return keys[b] < keys[a]; });
    else
        std::stable_sort(from, to, [&](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    return order;
}

/// The rows of a column-major table in another order.
template <class Value>
std::vector<Value> withRows(const std::vector<Value>& cells, const std::vector<std::size_t>& sources)
{
    std::vector<Value> result;
    for (std::size_t start = 0; start < cells.size(); start += sources.size())
        for (const std::size_t source : sources)
            result.push_back(cells[start + source]);
    return result;
}

/// Keys with many ties, missing values and zeros of both signs.
inline std::vector<double> tiedKeys(RandomData& data, std::size_t n)
{
    std::vector<double> keys = data.wholes(n, -2, 2);
    for (double& key : keys)
        if (data.chance(0.3))
            key = data.chance(0.4) ? M : data.chance(0.5) ? 0.0 : -0.0;
    return keys;
}

/// A test over one vector of such keys.
class WithTiedKeys : public testing::Test
{
protected:
    WithTiedKeys(std::uint64_t seed, std::size_t n) : random(seed), keys(tiedKeys(random, n)) {}

    RandomData random;
    testing::ScopedTrace trace{__FILE__, __LINE__, random.seed()};
    const std::vector<double> keys;
};

/// 1.0, 2.0, ...: every cell tells where it came from.
template <class Value = double>
std::vector<Value> countedCells(std::size_t n)
{
    std::vector<Value> cells(n);
    std::iota(cells.begin(), cells.end(), Value{1});
    return cells;
}

/// Short texts with many ties, some of them empty.
inline std::vector<std::wstring> tiedTexts(RandomData& data, std::size_t n)
{
    const std::vector<std::wstring> texts{
        L"", L"a", L"B", L"ab", L"aB", L"a longer text than a string holds inside", L"\x10FFFF", L"é"};
    std::vector<std::wstring> cells(n);
    for (auto& cell : cells)
        cell = texts[static_cast<std::size_t>(data.integer(0, static_cast<int>(texts.size()) - 1))];
    return cells;
}

/// Texts that are all different.
inline std::vector<std::wstring> countedTexts(std::size_t n)
{
    std::vector<std::wstring> cells(n);
    for (std::size_t k = 0; k < n; ++k)
        cells[k] = L"cell number " + std::to_wstring(k);
    return cells;
}

} // namespace vecmat::test
