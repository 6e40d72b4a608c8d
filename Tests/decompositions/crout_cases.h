// Tables on which the order of the steps of Crout's method can be seen.
#pragma once

#include "support/random_data.h"

#include <cstddef>
#include <vector>

namespace vecmat::test {

inline std::size_t squared(int n)
{
    return static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
}

/// -1, 0 and 1, so that candidates for a pivot are equal, with zeros of both signs.
inline std::vector<double> tiesAndZeros(int n, RandomData& data)
{
    std::vector<double> cells = data.wholes(squared(n), -1, 1);
    for (double& x : cells)
        if (x == 0.0 && data.chance(0.5))
            x = -0.0;
    return cells;
}

} // namespace vecmat::test
