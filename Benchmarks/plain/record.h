// The record of a sort by keys: a key and the row it came from, from 1.
#pragma once

#include <algorithm>
#include <vector>

namespace vecmat::bench::plain {

struct Record
{
    int position;
    double key;

    friend bool operator<(const Record& left, const Record& right) { return left.key < right.key; }
};

inline std::vector<Record> sortedRecords(const double* keys, int n)
{
    std::vector<Record> records;
    records.reserve(static_cast<std::size_t>(n));
    for (int i = 1; i <= n; ++i)
        records.push_back({i, keys[i - 1]});
    std::stable_sort(records.begin(), records.end());
    return records;
}

} // namespace vecmat::bench::plain
