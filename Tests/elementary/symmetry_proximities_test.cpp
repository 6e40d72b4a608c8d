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

int tableKind(int n, const Cells& cells, int kind)
{
    auto a = table(n, n, cells);
    Guarded<double> flat(cells);
    const int answer = M_CheckIfSimOrDissim(a, n, kind);
    EXPECT_EQ(VB_M_CheckIfSimOrDissim(flat, n, kind), answer);
    EXPECT_TRUE(flat.untouched());
    EXPECT_THAT(cellsOf(a), SameBits(cells));
    return answer;
}

int columnsKind(int rows, int cols, const Cells& cells, int kind)
{
    Columns<matrix> a(rows, cols, cells);
    ArrayOfColumns array = numberColumns(rows, cols, cells);
    const int answer = M_CheckIfSimOrDissimSPV(a, rows, cols, kind);
    EXPECT_EQ(VB_M_CheckIfSimOrDissimSPV(array, rows, cols, kind), answer);
    EXPECT_TRUE(array.untouched());
    return answer;
}

/// The answer where both forms agree; 99 where they don't.
int bothKinds(int n, const Cells& cells, int kind)
{
    const int answer = tableKind(n, cells, kind);
    return columnsKind(n, n, cells, kind) == answer ? answer : 99;
}

const Cells similar{1, 0.5, 0.5, 1};
const Cells distant{0, 0.5, 0.5, 0};
const Cells mixed{0.5, 1, 0, 0.5};

// ---- similarities or dissimilarities --------------------------------------------------------------------------------

TEST(CheckIfSimOrDissim, WhatTheTableHolds)
{
    EXPECT_EQ(bothKinds(2, similar, 0), 1);
    EXPECT_EQ(bothKinds(2, distant, 0), 2);
    EXPECT_EQ(bothKinds(2, mixed, 0), 0);
    EXPECT_EQ(bothKinds(2, {1, 1, 1, 1}, 0), 1) << "a constant table is both: similarities come first";
}

TEST(CheckIfSimOrDissim, KindSaysWhatToTry)
{
    EXPECT_EQ(bothKinds(2, similar, 1), 1);
    EXPECT_EQ(bothKinds(2, distant, 1), 0);
    EXPECT_EQ(bothKinds(2, similar, 2), 0);
    EXPECT_EQ(bothKinds(2, distant, 2), 2);
    EXPECT_EQ(bothKinds(2, {1, 1, 1, 1}, 2), 2);
}

TEST(CheckIfSimOrDissim, OtherKindsAnswerTwoWithoutTheSecondTest)
{
    for (const int kind : {3, 4, 6, 7}) {
        EXPECT_EQ(bothKinds(2, similar, kind), 2) << kind;
        EXPECT_EQ(bothKinds(2, mixed, kind), 2) << kind;
        EXPECT_EQ(M_CheckIfSimOrDissim(nullptr, 2, kind), 2) << "nothing is read: " << kind;
        EXPECT_EQ(M_CheckIfSimOrDissimSPV(nullptr, 2, 2, kind), 2) << "nothing is read: " << kind;
    }
    for (const int kind : {-1, -2, -4}) {
        EXPECT_EQ(bothKinds(2, similar, kind), 1) << "below 2 the first test runs: " << kind;
        EXPECT_EQ(bothKinds(2, mixed, kind), 2) << kind;
    }
}

TEST(CheckIfSimOrDissim, DissimilaritiesHaveAConstantDiagonal)
{
    EXPECT_EQ(bothKinds(2, {0, 5, 5, 1}, 0), 0);
    EXPECT_EQ(bothKinds(2, {1, 0.5, 0.5, 2}, 0), 1) << "similarities need none";
    EXPECT_EQ(bothKinds(1, {notANumber}, 0), 1);
    EXPECT_EQ(bothKinds(1, {notANumber}, 2), 0) << "a NaN differs from itself";
}

TEST(CheckIfSimOrDissim, CellsNotAboveTheMissingValueAreLeftOut)
{
    EXPECT_EQ(bothKinds(2, {0, M, 0.5, 0}, 0), 2);
    EXPECT_EQ(bothKinds(2, {0, -infinity, 0.5, 0}, 2), 2) << "the order test";
    EXPECT_EQ(bothKinds(2, {1, M, 0.5, 1}, 0), 1);
    EXPECT_EQ(bothKinds(2, {M, M, M, M}, 2), 2);
    EXPECT_EQ(bothKinds(2, {1, notANumber, 0.5, 1}, 0), 1) << "a NaN is not above anything";
    EXPECT_EQ(bothKinds(2, {M, 0.5, 0.5, M}, 1), 0) << "a missing diagonal cell is compared with";
}

TEST(CheckIfSimOrDissim, DiagonalOfTheRowOrOfTheColumn)
{
    // Cell (2, 1) is 1.5: below its row's diagonal cell, above its column's.
    const Cells cells{1, 1.5, 0, 2};
    EXPECT_EQ(tableKind(2, cells, 1), 1);
    EXPECT_EQ(columnsKind(2, 2, cells, 1), 0);
    // The other way round for dissimilarities: with unequal diagonals both fail there, so similarities tell them apart.
    const Cells transposed{1, 0, 1.5, 2};
    EXPECT_EQ(tableKind(2, transposed, 1), 0);
    EXPECT_EQ(columnsKind(2, 2, transposed, 1), 1);
}

TEST(CheckIfSimOrDissim, NoRows)
{
    EXPECT_EQ(bothKinds(0, {}, 0), 1);
    EXPECT_EQ(bothKinds(0, {}, 1), 1);
    EXPECT_EQ(bothKinds(0, {}, 2), 2);
    auto a = table(1, 1, {1});
    EXPECT_EQ(M_CheckIfSimOrDissim(a, -1, 0), 1);
    EXPECT_EQ(M_CheckIfSimOrDissim(a, -1, 2), 2);
}

TEST(CheckIfSimOrDissim, ColumnsThatAreNotSquare)
{
    EXPECT_EQ(columnsKind(3, 2, {1, 0.5, 0.5, 0.5, 1, 0.5}, 0), 1);
    EXPECT_EQ(columnsKind(3, 2, {0, 1, 1, 1, 0, 1}, 0), 2);
    // The third column's diagonal cell is out of range, -1.0: above nothing, and no constant diagonal with 0.
    EXPECT_EQ(columnsKind(2, 3, {0, 1, 1, 0, 1, 1}, 0), 0);
    EXPECT_EQ(columnsKind(2, 3, {-1, 1, 1, -1, 1, 1}, 0), 2);
    EXPECT_EQ(columnsKind(2, 3, {1, 0, 0, 1, -1, -1}, 0), 1);
    EXPECT_EQ(columnsKind(2, 3, {1, 0, 0, 1, -1, 0}, 1), 0);
}

TEST(CheckIfSimOrDissim, CornerAndCellsBeyondTheTable)
{
    auto a = byRows({{1, 0.5, 9}, {0.5, 1, 9}, {9, 9, 0}});
    EXPECT_EQ(M_CheckIfSimOrDissim(a, 2, 0), 1);
    EXPECT_EQ(M_CheckIfSimOrDissim(a, 3, 0), 0);
    auto small = byRows({{-1}});
    EXPECT_EQ(M_CheckIfSimOrDissim(small, 2, 2), 2) << "cells out of range are -1.0, as the diagonal is";
    auto other = byRows({{0}});
    EXPECT_EQ(M_CheckIfSimOrDissim(other, 2, 2), 0);
}

TEST(CheckIfSimOrDissim, FormsAgreeOnSymmetricTables)
{
    RandomData data(2502);
    SCOPED_TRACE(data);
    int seen[3] = {0, 0, 0};
    for (int round = 0; round < 300; ++round) {
        const int n = data.integer(1, 3);
        Cells cells = data.withMissing(data.wholes(static_cast<std::size_t>(n * n), 0, 2), 0.1);
        const double diagonal = data.integer(0, 2);
        for (int i = 0; i < n; ++i)
            for (int j = 0; j <= i; ++j) {
                double& lower = cells[static_cast<std::size_t>(i + n * j)];
                lower = i == j ? diagonal : lower;
                cells[static_cast<std::size_t>(j + n * i)] = lower;
            }
        const int answer = bothKinds(n, cells, 0);
        ASSERT_GE(answer, 0);
        ASSERT_LE(answer, 2);
        ++seen[answer];
    }
    for (const int count : seen)
        EXPECT_GT(count, 10);
}

// ---- similarities into dissimilarities ------------------------------------------------------------------------------

Cells transformed(int n, const Cells& cells)
{
    auto a = table(n, n, cells);
    Guarded<double> flat(cells);
    M_TransformSimToDissim(a, n);
    VB_M_TransformSimToDissim(flat, n);
    EXPECT_THAT(flat.values(), SameBits(cellsOf(a)));
    return cellsOf(a);
}

TEST(TransformSimToDissim, RowsDiagonalAndUpperTriangleAlone)
{
    // Rows: (5, 2, 1), (99, 7, 3), (99, 99, 11).
    EXPECT_THAT(transformed(3, {5, 99, 99, 2, 7, 99, 1, 3, 11}), SameBits({0, 3, 4, 3, 0, 4, 4, 4, 0}));
}

TEST(TransformSimToDissim, MissingPairsStay)
{
    EXPECT_THAT(transformed(2, {5, 99, M, 7}), SameBits({0, 99, M, 0}));
    EXPECT_THAT(transformed(2, {5, M, 2, 7}), SameBits({0, 3, 3, 0})) << "only the upper cell is asked";
    EXPECT_THAT(transformed(2, {5, 99, -infinity, 7}), SameBits({0, infinity, infinity, 0})) << "the equality test";
    EXPECT_THAT(transformed(2, {M, 99, 1e300, 7}), SameBits({0, M - 1e300, M - 1e300, 0}))
        << "a missing diagonal cell is a number";
}

TEST(TransformSimToDissim, SmallOrders)
{
    EXPECT_THAT(transformed(1, {5}), SameBits({0}));
    EXPECT_THAT(transformed(0, {}), SameBits(Cells{}));
    auto a = byRows({{5, 2}, {2, 7}});
    M_TransformSimToDissim(a, -1);
    EXPECT_THAT(cellsOf(a), SameBits({5, 2, 2, 7}));
    M_TransformSimToDissim(a, 1);
    EXPECT_THAT(cellsOf(a), SameBits({0, 2, 2, 7}));
}

TEST(TransformSimToDissim, CellsBeyondTheTable)
{
    auto a = table(2, 1, {5, 99});
    M_TransformSimToDissim(a, 2);
    EXPECT_THAT(cellsOf(a), SameBits({0, 6})) << "cell (1, 2) reads as -1.0 and takes no write";
}

} // namespace
