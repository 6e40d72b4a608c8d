// The triangular factors of a table, from the library and from the reference.
#pragma once

#include "decompositions/crout_reference.h"
#include "decompositions/lu.h"
#include "support/bits.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace vecmat::test {

struct Factors
{
    std::vector<double> cells;
    std::vector<int> index;
    double d;
    short status;
};

inline Factors factored(Owned<matrix> a, int n)
{
    Owned<matrixInt> index;
    Factors result{{}, {}, 77.0, 77};
    M_LUDecomp(a, n, index, &result.d, &result.status);
    result.cells = cellsOf(a);
    result.index = cellsOf(index);
    return result;
}

inline Factors factored(Owned<matrix> a)
{
    const int n = a->nRows;
    return factored(std::move(a), n);
}

/// The steps in their order, with the index as the library returns it.
inline Factors referenceOf(const Owned<matrix>& a, int n, Tie tie = Tie::last)
{
    matrix w(*a.get());
    ReferencePivots pivots;
    const int status = referenceLU(w, n, pivots, tie);
    pivots.partner.resize(static_cast<std::size_t>(n), 0);
    return {cellsOf(&w), pivots.partner, pivots.parity, static_cast<short>(status)};
}

inline void expectSame(const Factors& actual, const Factors& expected)
{
    EXPECT_THAT(actual.cells, SameBits(expected.cells));
    EXPECT_EQ(actual.index, expected.index);
    EXPECT_THAT(actual.d, SameBits(expected.d));
    EXPECT_EQ(actual.status, expected.status);
}

} // namespace vecmat::test
