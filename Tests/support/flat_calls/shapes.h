// What the expressions of arguments.tsv are made of, for the generated table.
#pragma once

#include "support/flat_calls/calls.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vecmat::flat {

inline Extent extentOf(long long rows, long long cols)
{
    return {std::max(rows, 0LL), std::max(cols, 0LL)};
}

/// The numbers from `first` to `last`.
inline long long span(long long first, long long last)
{
    return std::max(last - first + 1, 0LL);
}

/// The cells of a packed symmetric table of order n.
inline long long packed(long long n)
{
    return n > 0 ? n * (n + 1) / 2 : 0;
}

inline long long value(const Slot& array)
{
    return *static_cast<const int*>(array.pointer);
}

/// The largest of the first n cells, or 0.
inline long long largest(const Slot& array, long long n)
{
    const int* const cells = static_cast<const int*>(array.pointer);
    return n > 0 ? std::max(*std::max_element(cells, cells + n), 0) : 0;
}

/// The sum of the first n cells that are not missing, in doubles, truncated to an int.
inline long long sum(const Slot& array, long long n)
{
    const double* const cells = static_cast<const double*>(array.pointer);
    double total = 0.0;
    for (long long i = 0; i < n; ++i)
        if (cells[i] != -0x1.fffffffffffe2p+1023)
            total += cells[i];
    return total > -2147483649.0 && total < 2147483648.0 ? static_cast<int>(total) : std::numeric_limits<int>::min();
}

/// The sum of the first n cells, each rounded down and held between 0 and `most`.
inline long long clampedSum(const Slot& array, long long n, long long most)
{
    const double* const cells = static_cast<const double*>(array.pointer);
    long long total = 0;
    for (long long i = 0; i < n && most > 0; ++i)
        if (cells[i] >= 1.0)
            total += static_cast<long long>(std::floor(std::min(cells[i], static_cast<double>(most))));
    return total;
}

} // namespace vecmat::flat
