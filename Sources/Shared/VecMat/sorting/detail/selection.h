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

/// The elements that a stable ascending sort of `n` numbers puts in places `place`, from 0 and below n, and `place +
/// 1`; after the last one reads -1.0. Zeros of both signs tie and keep the order of the input. None if a sort is
/// needed: with a NaN, or if a copy cannot be allocated.
std::optional<Neighbours> selectNeighbours(const double* x, std::size_t n, std::size_t place);

} // namespace vecmat
