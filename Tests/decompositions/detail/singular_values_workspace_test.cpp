// Tables large enough for the workspace have the bits of the plain steps: at sizes around the edges of vectors, groups
// of columns and panels of rows, with NaN and infinite cells, where reflections leave columns out, where tables overlap
// and where memory for the workspace is short.
#include "decompositions/detail/strided_vector.h"
#include "decompositions/detail/svd_iteration.h"

#include "decompositions/svd_cases.h"
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct Shape
{
    int n;
    int p;
};

int anyJob(RandomData& data)
{
    return std::vector<int>{0, 1, 10, 11, 20, 21}[static_cast<std::size_t>(data.integer(0, 5))];
}

TEST(SVDecompWorkspace, HasTheBitsOfTheStepsAtTheEdgesOfItsBlocks)
{
    RandomData data(8220);
    SCOPED_TRACE(data);
    for (const auto& [n, p] : {Shape{12, 8},
                               {13, 9},
                               {15, 8},
                               {16, 16},
                               {17, 15},
                               {24, 17},
                               {31, 9},
                               {32, 24},
                               {33, 33},
                               {40, 25},
                               {47, 31},
                               {64, 32},
                               {65, 33},
                               {97, 20},
                               {12, 13},
                               {16, 17},
                               {17, 40},
                               {33, 48},
                               {12, 30}})
    {
        SCOPED_TRACE(std::to_string(n) + " by " + std::to_string(p));
        const std::vector<double> cells = data.normals(cellCount(n, p));
        for (const int job : {11, 21, anyJob(data)})
            expectSame(decomposed(n, p, cells, job), bySteps(n, p, cells, job));
    }
}

TEST(SVDecompWorkspace, LeavesOutOrthogonalColumns)
{
    // Many inner products are exactly 0, as zeros of either sign show.
    RandomData data(8221);
    SCOPED_TRACE(data);
    int turnsWithoutPass = 0;
    for (int round = 0; round < 60; ++round) {
        const int n = data.integer(12, 36);
        const int p = data.integer(8, 36);
        std::vector<double> cells = awkwardCells(n, p, data);
        for (double& cell : cells)
            cell = data.chance(0.7) ? (data.chance(0.5) ? 0.0 : -0.0) : cell;
        SCOPED_TRACE(round);
        const ReferenceSvd expected = bySteps(n, p, cells, 21);
        turnsWithoutPass += expected.turnsWithoutPass;
        expectSame(decomposed(n, p, cells, 21), expected);
    }
    EXPECT_GT(turnsWithoutPass, 20);
}

TEST(SVDecompWorkspace, HasThoseBitsForCellsOfAnySizeAndForNaNAndInfinity)
{
    RandomData data(8222);
    SCOPED_TRACE(data);
    int failures = 0;
    int successes = 0;
    for (int round = 0; round < 80; ++round) {
        const int n = data.integer(12, 25);
        const int p = data.integer(8, 25);
        std::vector<double> cells = awkwardCells(n, p, data);
        for (double& cell : cells) {
            if (round % 4 == 0)
                cell = std::ldexp(cell, data.integer(-600, 600));
            else if (round % 4 == 1)
                cell = data.chance(0.01) ? (data.chance(0.5) ? inf : notANumber) : cell;
            else if (round % 4 == 2)
                cell = std::ldexp(cell, data.chance(0.5) ? 1020 : -1060);
            else
                cell = std::ldexp(cell, -60);
        }
        SCOPED_TRACE(round);
        const int job = anyJob(data);
        const ReferenceSvd expected = bySteps(n, p, cells, job);
        expectSame(decomposed(n, p, cells, job), expected);
        ++(expected.info == 0 ? successes : failures);
    }
    EXPECT_GT(failures, 5);
    EXPECT_GT(successes, 20);
}

TEST(SVDecompWorkspace, BeginsAgainInPlaceWhereALeftVectorBeyondTheLastIsRequested)
{
    // A NaN beside the value without a left vector keeps it in a block that is then split.
    RandomData data(8228);
    SCOPED_TRACE(data);
    int askedFor = 0;
    for (int round = 0; round < 300 && askedFor < 2; ++round) {
        const int n = 12;
        const int p = 13;
        std::vector<double> cells(cellCount(n, p), 0.0);
        for (double& cell : cells)
            cell = data.chance(0.15) ? data.integer(-1, 1) : 0.0;
        cells[static_cast<std::size_t>(
            data.integer(static_cast<int>(cells.size()) - 2 * n, static_cast<int>(cells.size()) - 1))] = notANumber;
        SCOPED_TRACE(round);
        expectSame(decomposed(n, p, cells, 21), bySteps(n, p, cells, 21));

        // With room for one vector more the steps show whether they turn it.
        const ReferenceSvd roomy =
            SvdBySteps(cells, n, p, 21, CheckedCells(n, n + 1, leftover), CheckedCells(p, p, leftover), {}).run();
        askedFor += std::count(roomy.u.end() - n, roomy.u.end(), leftover) < n ? 1 : 0;
    }
    EXPECT_EQ(askedFor, 2);
}

TEST(SVDecompWorkspace, ServesArraysOfColumns)
{
    RandomData data(8223);
    SCOPED_TRACE(data);
    for (const auto& [n, p] : {Shape{30, 20}, {20, 30}, {40, 40}}) {
        const std::vector<double> cells = data.normals(cellCount(n, p));
        const ReferenceSvd expected = bySteps(n, p, cells, 21);
        TableColumns x(n, p, cells);
        TableColumns u(n, std::min(n, p), std::vector<double>(expected.u.size(), leftover));
        TableColumns v(p, p, std::vector<double>(expected.v.size(), leftover));
        const Owned<matrix> s = filled(valueCount(n, p), 1, 0.0);
        int info = 77;
        M_SVDecompSPV(x, n, p, s, u, v, 21, &info);
        expectSame({info, cellsOf(s), u.cells(), v.cells()}, expected);
        EXPECT_THAT(x.cells(), SameBits(cells));
    }
}

TEST(SVDecompWorkspace, WorksOnTheCornersOfLargerTables)
{
    RandomData data(8224);
    SCOPED_TRACE(data);
    const int n = 21;
    const int p = 14;
    const Owned<matrix> x = table(n + 2, p + 1, data.normals(cellCount(n + 2, p + 1)));
    const std::vector<double> before = cellsOf(x);
    const Owned<matrix> s = filled(p + 3, 1, leftover);
    const Owned<matrix> u = filled(n + 1, p + 2, leftover);
    const Owned<matrix> v = filled(p + 5, p + 1, leftover);
    int info = 77;
    M_SVDecomp(x, n, p, s, u, v, 21, &info);
    expectSame({info, cornerOf(s, p, 1), cornerOf(u, n, p), cornerOf(v, p, p)}, bySteps(n, p, cornerOf(x, n, p), 21));
    EXPECT_THAT(cellsOf(x), SameBits(before));
    EXPECT_EQ(std::count(u->X, u->X + u->nElems, leftover), static_cast<long>(u->nElems) - n * p);
    EXPECT_EQ(std::count(v->X, v->X + v->nElems, leftover), static_cast<long>(v->nElems) - p * p);
}

// ---- tables that overlap: as the steps in place leave them ----

/// Where the results begin in a memory that the table is at the start of.
struct Places
{
    int s;
    int u;
    int v;
};

constexpr int overlappingOrder = 14;
constexpr int overlappingCells = overlappingOrder * overlappingOrder;

/// `decompose(x, s, u, v)` on views of `memory`; returns what it does.
template <class Decompose>
int decomposedInMemory(std::vector<double>& memory, const Places& places, Decompose decompose)
{
    const auto at = [&memory](int place, int cols) {
        return matrix(overlappingOrder, cols, memory.data() + place, true);
    };
    matrix x = at(0, overlappingOrder);
    matrix s = at(places.s, 1);
    matrix u = at(places.u, overlappingOrder);
    matrix v = at(places.v, overlappingOrder);
    return decompose(&x, &s, &u, &v);
}

TEST(SVDecompWorkspace, TakesTablesThatLieOverOneAnotherAsTheStepsInPlaceDo)
{
    RandomData data(8225);
    SCOPED_TRACE(data);
    constexpr int n = overlappingOrder;
    constexpr int first = overlappingCells;
    constexpr int second = 2 * overlappingCells;
    constexpr int third = 3 * overlappingCells;
    for (const Places& places :
         {Places{third, 0, second}, Places{third, first, 5}, Places{3, first, second}, Places{third, first, first + 20},
          Places{first + 3, first, second}, Places{second + 30, first, second}})
    {
        SCOPED_TRACE(testing::Message() << places.s << ' ' << places.u << ' ' << places.v);
        std::vector<double> memory = data.normals(4 * overlappingCells);
        std::vector<double> expected = memory;
        const int info = decomposedInMemory(expected, places, [](matrix* x, matrix* s, matrix* u, matrix* v) {
            const std::vector<double> saved = cellsOf<matrix>(x);
            DirectVectors<TableStore> left(TableStore(u), n);
            DirectVectors<TableStore> right(TableStore(v), n);
            const int result = SvdIteration<TableStore, DirectVectors<TableStore>>(TableStore(x), n, n, s, left, right,
                                                                                   SingularVectors(21, n, n))
                                   .run();
            std::copy(saved.begin(), saved.end(), x->X);
            return result;
        });
        EXPECT_EQ(decomposedInMemory(memory, places,
                                     [](matrix* x, matrix* s, matrix* u, matrix* v) {
                                         int result = 77;
                                         M_SVDecomp(x, n, n, s, u, v, 21, &result);
                                         return result;
                                     }),
                  info);
        EXPECT_THAT(memory, SameBits(expected));
    }
}

TEST(SVDecompWorkspace, TakesColumnsThatRunOverIntoTheNextAsTheStepsInPlaceDo)
{
    RandomData data(8226);
    SCOPED_TRACE(data);
    const int n = 20;
    const int p = 12;
    // With columns enough for all of the rows to lie inside.
    for (const auto& [strideU, strideV] : {std::pair{17, p}, {n, 11}}) {
        const CheckedCells inU(strideU, 15, leftover);
        const CheckedCells inV(strideV, 14, leftover);
        const std::vector<double> cells = data.normals(cellCount(n, p));
        const ReferenceSvd expected = SvdBySteps(cells, n, p, 21, inU, inV, {}).run();
        const Owned<matrix> s = filled(p, 1, 0.0);
        const Owned<matrix> u = filled(strideU, 15, leftover);
        const Owned<matrix> v = filled(strideV, 14, leftover);
        int info = 77;
        M_SVDecomp(table(n, p, cells), n, p, s, u, v, 21, &info);
        expectSame({info, cellsOf(s), cellsOf(u), cellsOf(v)}, expected);
    }
}

// ---- memory ----

TEST(SVDecompWorkspace, DoesWithoutItWhereMemoryIsShort)
{
    RandomData data(8227);
    SCOPED_TRACE(data);
    const int n = 18;
    const int p = 11;
    const std::vector<double> cells = data.normals(cellCount(n, p));
    const ReferenceSvd expected = bySteps(n, p, cells, 21);
    const Owned<matrix> x = table(n, p, cells);
    const Owned<matrix> s = filled(p, 1, 0.0);
    const Owned<matrix> u = filled(n, p, leftover);
    const Owned<matrix> v = filled(p, p, leftover);
    int info = 77;
    expectFallbackAtEachFailure(
        [&] {
            s->X[0] = u->X[0] = v->X[0] = leftover;
            M_SVDecomp(x, n, p, s, u, v, 21, &info);
        },
        [&] {
            expectSame({info, cellsOf(s), cellsOf(u), cellsOf(v)}, expected);
        });
    EXPECT_THAT(cellsOf(x), SameBits(cells));
}

} // namespace
} // namespace vecmat::test
