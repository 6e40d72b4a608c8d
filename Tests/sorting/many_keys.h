// Vectors of keys of many kinds, and the plain sort by records, with which every faster one is compared.
#pragma once

#include "support/bits.h"
#include "support/random_data.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

namespace vecmat::test {

struct Keys
{
    std::string name;
    std::vector<double> cells;

    friend std::ostream& operator<<(std::ostream& text, const Keys& keys)
    {
        return text << keys.cells.size() << " " << keys.name;
    }
};

/// Vectors of n that differ in what their bits have in common, where they tie and what is among them.
inline std::vector<Keys> keysOfManyKinds(RandomData& random, int n)
{
    const auto count = static_cast<std::size_t>(n);
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double largest = std::numeric_limits<double>::max();
    const auto mixed = [&](std::vector<double> cells, double share, std::vector<double> others) {
        for (double& cell : cells)
            if (random.chance(share))
                cell = others[static_cast<std::size_t>(random.integer(0, static_cast<int>(others.size()) - 1))];
        return cells;
    };
    const auto scaled = [&](double factor, double shift) {
        std::vector<double> cells = random.normals(count);
        for (double& cell : cells)
            cell = shift + factor * cell;
        return cells;
    };
    std::vector<double> ascending = random.wholes(count, -n / 3, n / 3);
    std::sort(ascending.begin(), ascending.end());
    std::vector<double> powers(count);
    for (double& cell : powers)
        cell = std::ldexp(random.uniform(-1.0, 1.0), random.integer(-1070, 1023));
    return {
        {"of normal distribution", random.normals(count)},
        {"with ties", random.wholes(count, -5, 9)},
        {"of two values", random.wholes(count, 0, 1)},
        {"all equal", std::vector<double>(count, 2.5)},
        {"with missing values", mixed(scaled(1.0, 1000.0), 0.2, {M})},
        {"all missing", std::vector<double>(count, M)},
        {"below the missing value",
         mixed(random.normals(count), 0.3, {M, -infinity, -largest, infinity, positiveTwin})},
        {"with zeros of both signs", mixed(random.normals(count), 0.6, {0.0, -0.0})},
        {"with missing values and zeros", mixed(random.normals(count), 0.6, {0.0, -0.0, M})},
        {"of negative zeros", mixed(random.normals(count), 0.6, {-0.0})},
        {"close to one another", scaled(1e-9, 1000.0)},
        {"with outliers", mixed(scaled(1e-6, 3.0), 0.01, {1e300, -1e300})},
        {"of every magnitude", powers},
        {"in order", ascending},
        {"in reverse order", {ascending.rbegin(), ascending.rend()}},
        {"with NaN", mixed(random.wholes(count, -5, 9), 0.1, {std::numeric_limits<double>::quiet_NaN()})},
        {"with everything", random.withSpecials(random.normals(count), 0.4)},
    };
}

struct KeyRecord
{
    int position;
    double key;

    friend bool operator<(const KeyRecord& left, const KeyRecord& right) { return left.key < right.key; }
};

/// The records of a range, 1-based, in the order in which its rows are filled: loaded backwards and taken backwards
/// where the sort is descending.
inline std::vector<KeyRecord> recordsInOrder(const std::vector<double>& keys, int first, int last, bool descending)
{
    std::vector<KeyRecord> records;
    for (int i = first; i <= last; ++i)
        records.push_back({i, keys[static_cast<std::size_t>(i) - 1]});
    if (descending)
        std::reverse(records.begin(), records.end());
    std::stable_sort(records.begin(), records.end());
    if (descending)
        std::reverse(records.begin(), records.end());
    return records;
}

/// The sizes around which another way is taken.
inline std::vector<int> sizesAroundThresholds()
{
    return {0, 1, 2, 9, 10, 11, 12, 31, 32, 64, 65, 299, 300, 301, 1000, 2999, 3000, 3001, 7999, 8000, 8001};
}

} // namespace vecmat::test
