// What the tests of the eigenvalues share: one decomposition by the library, and tables that are hard on it.
#pragma once

#include "decompositions/eigen.h"

#include "decompositions/eigen_reference.h"
#include "support/bits.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <vector>

namespace vecmat::test {

struct Decomposition
{
    int status = 77;
    std::vector<double> values;
    std::vector<double> vectors;
};

inline Decomposition decomposed(int n, const std::vector<double>& cells, short sort = 0)
{
    const Owned<matrix> a = table(n, n, cells);
    Owned<matrix> values;
    Owned<matrix> vectors;
    Decomposition result;
    result.status = M_Eigen(a, values, vectors, n, sort);
    EXPECT_THAT(cellsOf(a), SameBits(cells)) << "the input survives";
    if (values.get() != nullptr)
        result.values = cellsOf(values);
    if (vectors.get() != nullptr)
        result.vectors = cellsOf(vectors);
    return result;
}

inline void expectSame(const Decomposition& actual, const ReferenceEigen& expected)
{
    EXPECT_EQ(actual.status, expected.status);
    EXPECT_THAT(actual.values, SameBits(expected.values));
    EXPECT_THAT(actual.vectors, SameBits(expected.vectors));
}

inline void expectSame(const Decomposition& actual, const Decomposition& expected)
{
    EXPECT_EQ(actual.status, expected.status);
    EXPECT_THAT(actual.values, SameBits(expected.values));
    EXPECT_THAT(actual.vectors, SameBits(expected.vectors));
}

inline std::size_t squareCount(int n)
{
    return static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
}

/// The symmetric table whose lower triangle is given row by row.
inline std::vector<double> symmetricOf(int n, const std::vector<double>& lowerByRows, double factor = 1.0)
{
    std::vector<double> cells(squareCount(n));
    std::size_t next = 0;
    for (std::size_t i = 0; i < static_cast<std::size_t>(n); ++i)
        for (std::size_t j = 0; j <= i; ++j, ++next)
            cells[i + j * static_cast<std::size_t>(n)] = cells[j + i * static_cast<std::size_t>(n)] =
                lowerByRows[next] * factor;
    return cells;
}

// ---- tables so large that an off-diagonal element has far to go to the absolute bound ----

/// Needs 28 passes for the second eigenvalue, the first being 7 * 2^1007.
inline std::vector<double> needs28()
{
    return symmetricOf(6, {7, 0, -9, 0, -2, 2, 0, -6, 7, -6, 0, 3, 7, -5, 0, 0, -6, 5, 9, -7, 0}, 0x1p1007);
}

/// Needs 29 passes for the second eigenvalue, the first being 7 * 2^1005.
inline std::vector<double> needs29()
{
    return symmetricOf(8, {7, 0,  6, 0, -6, -5, 0, -3, -1, 2, 0, 5,  -6, 2, -9, 0,  -7, -2,
                           0, -2, 4, 0, 6,  -4, 0, 9,  9,  5, 0, -9, -7, 9, -8, -2, 9,  -3},
                       0x1p1005);
}

/// Needs 30 passes for the second eigenvalue, as many as the published method allows.
inline std::vector<double> needs30()
{
    return symmetricOf(9, {7,  0, 6, 0, 5,  0, 0,  2,  -6, 4, 0, 5, 7, -6, -8, 0,  -5, -9, -9, 5,  5, 0, 6,
                           -2, 4, 2, 8, -3, 0, -6, -7, -1, 2, 9, 7, 6, 0,  -2, -3, -1, 7,  8,  -2, 6, -5},
                       0x1p1007);
}

} // namespace vecmat::test
