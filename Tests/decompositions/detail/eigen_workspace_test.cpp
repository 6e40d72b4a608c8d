// Tables large enough for the workspace have the bits of the plain steps: at orders around the edges of vectors, groups
// of columns and panels of rows, with NaN and infinite cells, where reflections are skipped, where results overlap and
// where memory for the workspace is short.
#include "access/cells.h"
#include "decompositions/detail/symmetric_ql.h"

#include "decompositions/eigen_cases.h"
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

std::size_t at(int i, int j, int n)
{
    return static_cast<std::size_t>(i) + static_cast<std::size_t>(j) * static_cast<std::size_t>(n);
}

TEST(EigenWorkspace, HasTheBitsOfTheStepsAtTheEdgesOfItsBlocks)
{
    RandomData data(8120);
    SCOPED_TRACE(data);
    for (const int n : {19, 20, 21, 23, 24, 25, 31, 32, 33, 34, 39, 40, 41, 47, 48, 49, 63, 64, 65, 96, 97, 128, 131}) {
        SCOPED_TRACE(n);
        const std::vector<double> cells = data.normals(squareCount(n));
        expectSame(decomposed(n, cells), eigenBySteps(cells, n));
        const std::vector<double> wholes = data.wholes(squareCount(n), -1, 1);
        expectSame(decomposed(n, wholes, -1), sortedBySteps(wholes, n));
    }
}

TEST(EigenWorkspace, ReadsTheLowerTriangleAlone)
{
    RandomData data(8121);
    SCOPED_TRACE(data);
    const int n = 45;
    std::vector<double> cells = data.normals(squareCount(n));
    const ReferenceEigen expected = eigenBySteps(cells, n);
    for (int j = 0; j < n; ++j)
        for (int i = 0; i < j; ++i)
            cells[at(i, j, n)] = data.chance(0.1) ? notANumber : data.normal();
    expectSame(decomposed(n, cells), expected);
}

TEST(EigenWorkspace, PassesOverRowsThatAreZero)
{
    // Blocks along the diagonal, single cells among them: an update waits while rows are skipped, or none waits.
    RandomData data(8122);
    SCOPED_TRACE(data);
    for (int round = 0; round < 30; ++round) {
        const int n = data.integer(20, 50);
        std::vector<double> cells(squareCount(n), round % 2 == 0 ? 0.0 : -0.0);
        for (int first = 0; first < n;) {
            const int last = std::min(n, first + data.integer(1, round % 3 == 0 ? 3 : 12));
            for (int j = first; j < last; ++j)
                for (int i = first; i < last; ++i)
                    cells[at(i, j, n)] = data.integer(-2, 2);
            first = last;
        }
        SCOPED_TRACE(round);
        expectSame(decomposed(n, cells), eigenBySteps(cells, n));
    }
    const std::vector<double> zeros(squareCount(33), 0.0);
    expectSame(decomposed(33, zeros, -1), sortedBySteps(zeros, 33));
}

TEST(EigenWorkspace, HasThoseBitsForCellsOfAnySizeAndForNaNAndInfinity)
{
    RandomData data(8123);
    SCOPED_TRACE(data);
    int failures = 0;
    int successes = 0;
    for (int round = 0; round < 120; ++round) {
        const int n = data.integer(20, 37);
        std::vector<double> cells = data.wholes(squareCount(n), -2, 2);
        for (double& cell : cells) {
            if (round % 4 == 0)
                cell = std::ldexp(cell, data.integer(-600, 600));
            else if (round % 4 == 1)
                cell = data.chance(0.002) ? (data.chance(0.5) ? inf : notANumber) : cell;
            else if (round % 4 == 2)
                cell = std::ldexp(cell, data.chance(0.5) ? 1020 : -1060);
            else
                cell = std::ldexp(cell, -1070);
        }
        SCOPED_TRACE(round);
        const ReferenceEigen expected = eigenBySteps(cells, n);
        expectSame(decomposed(n, cells), expected);
        ++(expected.status == 0 ? successes : failures);
    }
    EXPECT_GT(failures, 20);
    EXPECT_GT(successes, 20);
}

TEST(EigenWorkspace, ServesArraysOfColumns)
{
    RandomData data(8124);
    SCOPED_TRACE(data);
    for (const int n : {20, 33, 50}) {
        const std::vector<double> cells = data.normals(squareCount(n));
        const ReferenceEigen expected = sortedBySteps(cells, n);
        TableColumns a(n, n, cells);
        TableColumns vectors(n + 1, n, std::vector<double>(squareCount(n) + static_cast<std::size_t>(n), 8.0));
        Owned<matrix> values;
        EXPECT_EQ(M_EigenSPV(a, values, vectors, n, -1), 0);
        EXPECT_THAT(cellsOf(values), SameBits(expected.values));
        for (int j = 0; j < n; ++j) {
            std::vector<double> column(expected.vectors.begin() + j * n, expected.vectors.begin() + (j + 1) * n);
            column.push_back(8.0);
            EXPECT_THAT(vectors.column(j), SameBits(column)) << "and nothing beyond the order";
        }
        EXPECT_EQ(M_EigenDestroySPV(a, values, n, -1), 0);
        EXPECT_THAT(cellsOf(values), SameBits(expected.values));
        EXPECT_THAT(a.cells(), SameBits(expected.vectors));
    }
}

TEST(EigenWorkspace, WorksOnTheCornersOfLargerTables)
{
    RandomData data(8125);
    SCOPED_TRACE(data);
    const int n = 27;
    const Owned<matrix> a = table(n + 3, n + 1, data.normals(static_cast<std::size_t>((n + 3) * (n + 1))));
    Owned<matrix> values = filled(n + 2, 1, 7.0);
    Owned<matrix> vectors = filled(n + 1, n + 2, 8.0);
    const ReferenceEigen expected = sortedBySteps(cornerOf(a, n, n), n);
    EXPECT_EQ(M_Eigen(a, values, vectors, n, -1), 0);
    EXPECT_THAT(cornerOf(values, n, 1), SameBits(expected.values));
    EXPECT_THAT(cornerOf(vectors, n, n), SameBits(expected.vectors));
    EXPECT_THAT(vectors->vbget(n + 1, n + 1), SameBits(8.0));
}

// ---- results that overlap: as the plain loops leave them ----

TEST(EigenWorkspace, WritesValuesOverVectorsAsThePlainLoopsDo)
{
    RandomData data(8126);
    SCOPED_TRACE(data);
    const int n = 30;
    const std::vector<double> cells = data.normals(squareCount(n));
    std::vector<double> expected = cells;
    std::vector<double> e(static_cast<std::size_t>(n));
    const bool converged = eigenInPlace(PlainCells<matrix>(expected.data(), n), PlainVector<matrix>(expected.data()),
                                        PlainVector<matrix>(e.data()), n);
    Owned<matrix> both;
    EXPECT_EQ(M_Eigen(table(n, n, cells), both, both, n, 0), converged ? 0 : -1);
    EXPECT_THAT(cellsOf(both), SameBits(expected));
}

TEST(EigenWorkspace, TakesARepeatedColumnAsThePlainLoopsDo)
{
    RandomData data(8127);
    SCOPED_TRACE(data);
    const int n = 24;
    const auto run = [&](TableColumns& columns, auto decompose) {
        std::vector<matrix*> repeated(static_cast<matrix**>(columns), static_cast<matrix**>(columns) + n);
        repeated[5] = repeated[2];
        return decompose(repeated.data());
    };
    const std::vector<double> cells = data.normals(squareCount(n));
    TableColumns plain(n, n, cells);
    std::vector<double> values(static_cast<std::size_t>(n));
    std::vector<double> e(static_cast<std::size_t>(n));
    const bool converged = run(plain, [&](matrix** columns) {
        return eigenInPlace(PlainColumns<matrix>(columns), PlainVector<matrix>(values.data()),
                            PlainVector<matrix>(e.data()), n);
    });
    TableColumns columns(n, n, cells);
    Owned<matrix> found;
    EXPECT_EQ(run(columns, [&](matrix** repeated) { return M_EigenDestroySPV(repeated, found, n, 0); }),
              converged ? 0 : -1);
    EXPECT_THAT(cellsOf(found), SameBits(values));
    EXPECT_THAT(columns.cells(), SameBits(plain.cells()));
}

// ---- memory ----

TEST(EigenWorkspace, DoesWithoutItWhereMemoryIsShort)
{
    RandomData data(8128);
    SCOPED_TRACE(data);
    const int n = 26;
    const std::vector<double> cells = data.normals(squareCount(n));
    const ReferenceEigen expected = eigenBySteps(cells, n);
    const Owned<matrix> a = table(n, n, cells);
    Owned<matrix> values = filled(n, 1, 7.0);
    Owned<matrix> vectors = filled(n, n, 8.0);
    int status = 0;
    expectFallbackAtEachFailure(
        [&] {
            values->X[0] = vectors->X[0] = 7.0;
            status = M_Eigen(a, values, vectors, n, 0);
        },
        [&] {
            if (allocationState().threw) {
                EXPECT_EQ(status, -1);
                return;
            }
            EXPECT_EQ(status, 0);
            EXPECT_THAT(cellsOf(values), SameBits(expected.values));
            EXPECT_THAT(cellsOf(vectors), SameBits(expected.vectors));
        });
}

} // namespace
} // namespace vecmat::test
