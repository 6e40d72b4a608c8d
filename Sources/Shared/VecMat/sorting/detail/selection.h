// Single elements of a sorted vector, found without sorting it.
#pragma once

#include <cstddef>
#include <optional>

namespace vecmat {

/// The elements at one place of a sorted vector and at the next.
struct Neighbours
{
    double at;
    double next;
};

/// What a stable ascending sort of `n` numbers puts in places `place`, from 0 and below n, and `place + 1`; behind the
/// last stands -1.0. Zeros of both signs tie and keep the order of the input. None where a sort has to serve: with a
/// NaN, and where there is no memory for a copy.
std::optional<Neighbours> selectNeighbours(const double* x, std::size_t n, std::size_t place);

} // namespace vecmat
