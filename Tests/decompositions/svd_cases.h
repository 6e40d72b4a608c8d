// What the tests of the singular values share: one decomposition by the library, the same by steps, and awkward tables.
#pragma once

#include "decompositions/singular_values.h"

#include "decompositions/svd_reference.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace vecmat::test {

/// What stood in the tables of vectors before the call.
inline constexpr double leftover = 7.0;

struct Svd
{
    int info = 77;
    std::vector<double> s;
    std::vector<double> u;
    std::vector<double> v;
};

inline std::size_t cellCount(int rows, int cols)
{
    return static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
}

inline int valueCount(int n, int p)
{
    return std::min(n + 1, p);
}

inline int leftColumns(int n, int p, int job)
{
    return job % 100 >= 20 ? std::min(n, p) : n;
}

inline Svd decomposed(int n, int p, const std::vector<double>& cells, int job, int valueRows = -1)
{
    const Owned<matrix> x = table(n, p, cells);
    const Owned<matrix> s = filled(valueRows < 0 ? valueCount(n, p) : valueRows, 1, 0.0);
    const Owned<matrix> u = filled(n, leftColumns(n, p, job), leftover);
    const Owned<matrix> v = filled(p, p, leftover);
    Svd result;
    M_SVDecomp(x, n, p, s, u, v, job, &result.info);
    EXPECT_THAT(cellsOf(x), SameBits(cells)) << "x is as it was";
    result.s = cellsOf(s);
    result.u = cellsOf(u);
    result.v = cellsOf(v);
    return result;
}

inline ReferenceSvd bySteps(int n, int p, const std::vector<double>& cells, int job, SvdVariant variant = {})
{
    return SvdBySteps(cells, n, p, job, CheckedCells(n, leftColumns(n, p, job), leftover), CheckedCells(p, p, leftover),
                      variant)
        .run();
}

inline void expectSame(const Svd& actual, const ReferenceSvd& expected)
{
    EXPECT_EQ(actual.info, expected.info);
    EXPECT_THAT(actual.s, SameBits(expected.s));
    EXPECT_THAT(actual.u, SameBits(expected.u));
    EXPECT_THAT(actual.v, SameBits(expected.v));
}

/// Tables that reach the turns without a pass: small whole numbers, and columns that repeat or vanish.
inline std::vector<double> awkwardCells(int n, int p, RandomData& data)
{
    std::vector<double> cells = data.wholes(cellCount(n, p), -1, 1);
    if (data.chance(0.5)) {
        const auto col = static_cast<std::ptrdiff_t>(data.integer(0, p - 1));
        std::fill_n(cells.begin() + col * n, n, 0.0);
    }
    return cells;
}

} // namespace vecmat::test
