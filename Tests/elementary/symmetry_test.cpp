#include "elementary/symmetry.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/special_values.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace vecmat::test;
using Cells = std::vector<double>;

/// Runs the four forms of a function on a square table and expects that all answer and leave the cells alike.
template <class Table, class Array, class Flat, class Arrays>
auto allForms(Cells& cells, int n, Table table_, Array array, Flat flat, Arrays arrays)
{
    auto a = table(n, n, cells);
    Columns<matrix> b(n, n, cells);
    Guarded<double> c(cells);
    ArrayOfColumns d = numberColumns(n, n, cells);
    const auto answer = table_(a.reference());
    EXPECT_EQ(array(b.get()), answer);
    EXPECT_EQ(flat(c.data()), answer);
    EXPECT_EQ(arrays(d.get()), answer);
    cells = cellsOf(a);
    EXPECT_THAT(b.cells(), SameBits(cells));
    EXPECT_THAT(c.values(), SameBits(cells));
    EXPECT_THAT(d.numbers(), SameBits(cells));
    return answer;
}

short isSymmetric(int n, Cells cells)
{
    const Cells before = cells;
    const short answer = allForms(
        cells, n, [n](matrix* a) { return M_IsSymmetric(a, n); }, [n](matrix** a) { return M_IsSymmetricSPV(a, n); },
        [n](double* a) { return VB_M_IsSymmetric(a, n); }, [n](SAFEARRAY** a) { return VB_M_IsSymmetricSPV(a, n); });
    EXPECT_THAT(cells, SameBits(before));
    return answer;
}

Cells symmetrized(int n, Cells cells, int mode)
{
    // The functions return nothing, which 0 represents.
    allForms(
        cells, n, [=](matrix*& a) { return M_Symmetrize(a, n, mode), 0; },
        [=](matrix** a) { return M_SymmetrizeSPV(a, n, mode), 0; },
        [=](double* a) { return VB_M_Symmetrize(a, n, mode), 0; },
        [=](SAFEARRAY** a) { return VB_M_SymmetrizeSPV(a, n, mode), 0; });
    return cells;
}

struct Triangular
{
    int kind;
    Cells cells;
};

Triangular triangular(int n, Cells cells, short fill)
{
    const int kind = allForms(
        cells, n, [=](matrix*& a) { return M_IsTriangular(a, n, fill); },
        [=](matrix** a) { return M_IsTriangularSPV(a, n, fill); },
        [=](double* a) { return VB_M_IsTriangular(a, n, fill); },
        [=](SAFEARRAY** a) { return VB_M_IsTriangularSPV(a, n, fill); });
    return {kind, cells};
}

// ---- symmetric ------------------------------------------------------------------------------------------------------

TEST(IsSymmetric, ComparesAllPairs)
{
    EXPECT_EQ(isSymmetric(3, {1, 2, 3, 2, 4, 5, 3, 5, 6}), -1);
    EXPECT_EQ(isSymmetric(3, {1, 2, 3, 2, 4, 5, 3, 5.5, 6}), 0);
    EXPECT_EQ(isSymmetric(2, {1, M, M, 1}), -1) << "a missing value equals itself";
    EXPECT_EQ(isSymmetric(2, {1, M, 0, 1}), 0);
    EXPECT_EQ(isSymmetric(2, {1, notANumber, notANumber, 1}), 0) << "a NaN does not";
    EXPECT_EQ(isSymmetric(2, {notANumber, 1, 1, notANumber}), -1) << "the diagonal is no pair";
    EXPECT_EQ(isSymmetric(2, {1, 0.0, -0.0, 1}), -1);
    EXPECT_EQ(isSymmetric(1, {notANumber}), -1);
    EXPECT_EQ(isSymmetric(0, {}), -1);
    auto a = byRows({{1, 2}, {3, 4}});
    EXPECT_EQ(M_IsSymmetric(a, -1), -1);
}

TEST(IsSymmetric, CornerAndCellsBeyondTheTable)
{
    auto a = byRows({{1, 2, 3}, {2, 1, 9}, {8, 7, 6}});
    EXPECT_EQ(M_IsSymmetric(a, 2), -1);
    EXPECT_EQ(M_IsSymmetric(a, 3), 0);
    auto wide = byRows({{1, -1}}); // (2, 1) slides onto (1, 2)
    EXPECT_EQ(M_IsSymmetric(wide, 2), -1);
    Columns<matrix> columns(1, 2, {1, 5});
    EXPECT_EQ(M_IsSymmetricSPV(columns, 2), 0) << "over columns the row below is out of range: -1.0";
    Columns<matrix> minusOne(1, 2, {1, -1});
    EXPECT_EQ(M_IsSymmetricSPV(minusOne, 2), -1);
}

// ---- made symmetric -------------------------------------------------------------------------------------------------

TEST(Symmetrize, WritesOneValueToBoth)
{
    // Column by column: lower cell 2.0, upper cell 4.0.
    EXPECT_THAT(symmetrized(2, {7, 2, 4, 8}, 0), SameBits({7, 2, 2, 8}));
    EXPECT_THAT(symmetrized(2, {7, 4, 2, 8}, 0), SameBits({7, 2, 2, 8}));
    EXPECT_THAT(symmetrized(2, {7, 2, 4, 8}, 1), SameBits({7, 4, 4, 8}));
    EXPECT_THAT(symmetrized(2, {7, 4, 2, 8}, 1), SameBits({7, 4, 4, 8}));
    EXPECT_THAT(symmetrized(2, {7, 2, 4, 8}, 2), SameBits({7, 1, 1, 8})) << "half the smaller, not the mean";
    EXPECT_THAT(symmetrized(2, {7, 4, 2, 8}, 2), SameBits({7, 1, 1, 8}));
}

TEST(Symmetrize, MissingCells)
{
    EXPECT_THAT(symmetrized(2, {7, M, 2, 8}, 0), SameBits({7, 2, 2, 8}));
    EXPECT_THAT(symmetrized(2, {7, 2, M, 8}, 0), SameBits({7, 2, 2, 8}));
    EXPECT_THAT(symmetrized(2, {7, M, 2, 8}, 1), SameBits({7, 2, 2, 8}));
    EXPECT_THAT(symmetrized(2, {7, 2, M, 8}, 2), SameBits({7, 2, 2, 8})) << "not halved";
    EXPECT_THAT(symmetrized(2, {7, M, M, 8}, 2), SameBits({7, M, M, 8}));
    EXPECT_THAT(symmetrized(2, {7, 2, -infinity, 8}, 0), SameBits({7, 2, 2, 8})) << "above the missing value counts";
    EXPECT_THAT(symmetrized(2, {7, 2, -infinity, 8}, 2), SameBits({7, 2, 2, 8}));
}

TEST(Symmetrize, EqualPairsAndOtherModesChangeNothing)
{
    EXPECT_THAT(symmetrized(2, {7, 4, 4, 8}, 2), SameBits({7, 4, 4, 8})) << "an equal pair is not halved";
    EXPECT_THAT(symmetrized(2, {7, 0.0, -0.0, 8}, 2), SameBits({7, 0.0, -0.0, 8}));
    for (const int mode : {-1, 3, 4})
        EXPECT_THAT(symmetrized(2, {7, 2, 4, 8}, mode), SameBits({7, 2, 4, 8})) << mode;
    EXPECT_THAT(symmetrized(1, {7}, 2), SameBits({7}));
    EXPECT_THAT(symmetrized(0, {}, 2), SameBits(Cells{}));
}

TEST(Symmetrize, CornerAndCellsBeyondTheTable)
{
    auto a = byRows({{1, 5, 3}, {2, 1, 9}, {8, 7, 6}});
    M_Symmetrize(a, 2, 1);
    EXPECT_THAT(cellsOf(a), SameBits({1, 5, 8, 5, 1, 7, 3, 9, 6}));
    Columns<matrix> columns(1, 2, {1, 5});
    M_SymmetrizeSPV(columns, 2, 0);
    EXPECT_THAT(columns.cells(), SameBits({1, -1})) << "-1.0 is the smaller; the write to it is dropped";
}

TEST(Symmetrize, AnyTableBecomesSymmetric)
{
    RandomData data(2501);
    SCOPED_TRACE(data);
    for (const int n : {2, 3, 6})
        for (const int mode : {0, 1, 2}) {
            const Cells before = data.withMissing(data.wholes(static_cast<std::size_t>(n * n), -3, 3), 0.3);
            const Cells after = symmetrized(n, before, mode);
            EXPECT_EQ(isSymmetric(n, after), -1);
            for (int i = 0; i < n; ++i)
                for (int j = 0; j < i; ++j) {
                    const double x = before[static_cast<std::size_t>(i + n * j)];
                    const double y = before[static_cast<std::size_t>(j + n * i)];
                    const double low = x < y ? x : y;
                    const double high = x < y ? y : x;
                    double expected = x;
                    if (x != y)
                        expected = mode == 1 || low == M ? high : mode == 0 ? low : 0.5 * low;
                    EXPECT_THAT(after[static_cast<std::size_t>(i + n * j)], SameBits(expected));
                }
        }
}

// ---- triangular -----------------------------------------------------------------------------------------------------

TEST(IsTriangular, UpperFirst)
{
    EXPECT_EQ(triangular(2, {1, 0, 0, 1}, 0).kind, 2) << "a diagonal table is both";
    EXPECT_EQ(triangular(2, {1, 0, 5, 1}, 0).kind, 2);
    EXPECT_EQ(triangular(2, {1, 5, 0, 1}, 0).kind, 1);
    EXPECT_EQ(triangular(2, {1, 5, 6, 1}, 0).kind, 0);
    EXPECT_EQ(triangular(3, {1, 0, 0, 2, 3, 0, 4, 5, 6}, 0).kind, 2);
    EXPECT_EQ(triangular(3, {1, 2, 3, 0, 4, 5, 0, 0, 6}, 0).kind, 1);
    EXPECT_EQ(triangular(3, {1, 0, 0, 2, 3, 9, 0, 5, 6}, 0).kind, 0);
}

TEST(IsTriangular, MissingAndZerosOfBothSignsAreEmpty)
{
    EXPECT_EQ(triangular(2, {1, M, 5, 1}, 0).kind, 2);
    EXPECT_EQ(triangular(2, {1, 5, M, 1}, 0).kind, 1);
    EXPECT_EQ(triangular(2, {1, -0.0, 5, 1}, 0).kind, 2);
    EXPECT_EQ(triangular(2, {1, -infinity, 5, 1}, 0).kind, 0) << "missing is the equality test";
    EXPECT_EQ(triangular(2, {1, notANumber, 0, 1}, 0).kind, 1) << "a NaN is not empty";
    EXPECT_EQ(triangular(2, {1, 5e-324, 6, 1}, 0).kind, 0);
}

TEST(IsTriangular, BelowTwoIsUpper)
{
    EXPECT_EQ(triangular(1, {5}, -1).kind, 2);
    EXPECT_THAT(triangular(1, {5}, -1).cells, SameBits({5}));
    EXPECT_EQ(triangular(0, {}, -1).kind, 2);
    auto a = byRows({{1, 2}, {3, 4}});
    EXPECT_EQ(M_IsTriangular(a, -2, -1), 2);
    EXPECT_THAT(cellsOf(a), SameBits({1, 3, 2, 4}));
}

TEST(IsTriangular, FillCopiesOntoTheEmptyPart)
{
    const Cells upper{1, 0, M, 2, 3, 0, 4, 5, 6};
    EXPECT_THAT(triangular(3, upper, -1).cells, SameBits({1, 2, 4, 2, 3, 5, 4, 5, 6}));
    EXPECT_EQ(isSymmetric(3, triangular(3, upper, -1).cells), -1);
    const Cells lower{1, 2, 4, 0, 3, 5, M, 0, 6};
    EXPECT_EQ(triangular(3, lower, -1).kind, 1);
    EXPECT_THAT(triangular(3, lower, -1).cells, SameBits({1, 2, 4, 2, 3, 5, 4, 5, 6}));
    EXPECT_THAT(triangular(2, {1, 5, 6, 1}, -1).cells, SameBits({1, 5, 6, 1}));
    EXPECT_THAT(triangular(2, {1, 0, M, 1}, -1).cells, SameBits({1, M, M, 1})) << "an empty upper cell is copied too";
}

TEST(IsTriangular, OnlyMinusOneFills)
{
    for (const short fill : {short{0}, short{1}, short{-2}})
        EXPECT_THAT(triangular(2, {1, 0, 5, 1}, fill).cells, SameBits({1, 0, 5, 1})) << fill;
}

TEST(IsTriangular, CornerAndCellsBeyondTheTable)
{
    auto a = byRows({{1, 5, 9}, {0, 1, 9}, {9, 9, 9}});
    EXPECT_EQ(M_IsTriangular(a, 2, -1), 2);
    EXPECT_THAT(cellsOf(a), SameBits({1, 5, 9, 5, 1, 9, 9, 9, 9}));
    Columns<matrix> columns(1, 2, {1, 0});
    EXPECT_EQ(M_IsTriangularSPV(columns, 2, 0), 1) << "-1.0 below the diagonal is not empty";
}

} // namespace
