// A small problem whose columns explain each other hardly at all.
#pragma once

#include "fitting/regression_reference.h"

#include <vector>

namespace vecmat::test {

inline const std::vector<double> x1 = {1, 2, 4, 7, 11, 12, 15, 18};
inline const std::vector<double> x2 = {3, 1, 4, 1, 5, 9, 2, 6};
inline const std::vector<double> response = {2, 7, 1, 8, 2, 8, 1, 9};

/// The response on both columns, with unit weights.
inline Problem small()
{
    return Problem::of({x1, x2}, response);
}

} // namespace vecmat::test
