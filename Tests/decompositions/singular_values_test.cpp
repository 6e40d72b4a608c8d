// The singular value decomposition: the steps in their order, what departs from the published routine, what is wanted
// and what is left alone.
#include "decompositions/svd_cases.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

using testing::Not;

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

TEST(SVDecomp, HasTheBitsOfTheStepsInTheirOrder)
{
    RandomData data(8201);
    SCOPED_TRACE(data);
    for (int n = 1; n <= 8; ++n)
        for (int p = 1; p <= 8; ++p) {
            const std::vector<double> cells = data.normals(cellCount(n, p));
            for (const int job : {0, 1, 10, 11, 20, 21}) {
                SCOPED_TRACE(std::to_string(n) + " by " + std::to_string(p) + ", job " + std::to_string(job));
                const ReferenceSvd expected = bySteps(n, p, cells, job);
                EXPECT_EQ(expected.info, 0);
                expectSame(decomposed(n, p, cells, job), expected);
            }
        }
    for (const auto& [n, p] : {std::pair{30, 20}, {20, 30}, {25, 25}}) {
        const std::vector<double> cells = data.normals(cellCount(n, p));
        expectSame(decomposed(n, p, cells, 11), bySteps(n, p, cells, 11));
    }
}

TEST(SVDecomp, HasThoseBitsWhereValuesVanishOnTheWay)
{
    RandomData data(8202);
    SCOPED_TRACE(data);
    int turnsWithoutPass = 0;
    for (int round = 0; round < 600; ++round) {
        const int n = data.integer(1, 6);
        const int p = data.integer(1, 6);
        const std::vector<double> cells = awkwardCells(n, p, data);
        const int job = round % 2 == 0 ? 11 : 21;
        SCOPED_TRACE(round);
        const ReferenceSvd expected = bySteps(n, p, cells, job);
        expectSame(decomposed(n, p, cells, job), expected);
        turnsWithoutPass += expected.turnsWithoutPass;
    }
    EXPECT_GT(turnsWithoutPass, 50) << "deflations and splits were among them";
}

TEST(SVDecomp, HasThoseBitsForCellsOfAnySizeAndForNaNAndInfinity)
{
    RandomData data(8203);
    SCOPED_TRACE(data);
    int failures = 0;
    for (int round = 0; round < 600; ++round) {
        const int n = data.integer(1, 6);
        const int p = data.integer(1, 6);
        std::vector<double> cells = awkwardCells(n, p, data);
        if (round % 2 == 0)
            for (double& cell : cells)
                cell = std::ldexp(cell, data.integer(-300, 300));
        else
            cells = data.withSpecials(cells, 0.1);
        SCOPED_TRACE(round);
        const ReferenceSvd expected = bySteps(n, p, cells, 11);
        expectSame(decomposed(n, p, cells, 11), expected);
        failures += expected.info < 0 ? 1 : 0;
    }
    EXPECT_GT(failures, 50);
}

// ---- the departures from the published routine ----

TEST(SVDecomp, AllowsSixtyPassesForAValueAndReportsTheBlockAsNegative)
{
    // A table of values that lacks rows: what is read there is -1.0 for ever, and the iteration never settles.
    const std::vector<double> cells = {-3, 3, -1, -1, -3, 1, -4, 1, 2};
    const Svd found = decomposed(3, 3, cells, 11, 1);
    SvdVariant variant;
    variant.valueRows = 1;
    const auto withLimit = [&](int limit) {
        variant.passLimit = limit;
        return bySteps(3, 3, cells, 11, variant);
    };
    EXPECT_EQ(found.info, -3);
    expectSame(found, withLimit(60));
    for (const int other : {30, 59, 61})
        EXPECT_THAT(found.v, Not(SameBits(withLimit(other).v))) << other;
}

TEST(SVDecomp, LeavesTheValuesAfterTheUnresolvedBlockFinal)
{
    // Value 3 is settled before the block with the NaN is met; value 2 is not.
    const std::vector<double> apart = {notANumber, 0, 0, 0, 3, 0, 0, 0, 4};
    const Svd partly = decomposed(3, 3, apart, 11);
    EXPECT_EQ(partly.info, -2);
    EXPECT_THAT(partly.s[2], SameBits(4.0));
    expectSame(partly, bySteps(3, 3, apart, 11));
    EXPECT_EQ(decomposed(2, 2, {1, 2, inf, 4}, 11).info, -2);
    EXPECT_EQ(decomposed(3, 3, {1, notANumber, 0, 2, 3, 0, 0, 0, 4}, 11).info, -2);
}

TEST(SVDecomp, GivesUpWhereSplitsDoNotEnd)
{
    // A split beside a NaN leaves the block as it was, and does not count as a pass.
    const std::vector<double> cells = {0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 1, notANumber};
    const ReferenceSvd expected = bySteps(3, 4, cells, 11);
    ASSERT_GT(expected.turnsWithoutPass, 1000);
    ASSERT_LT(expected.mostPasses, 60);
    expectSame(decomposed(3, 4, cells, 11), expected);
    EXPECT_EQ(expected.info, -4);
}

TEST(SVDecomp, TakesANormUpToTheBoundForZero)
{
    const auto left = [](double x) { return decomposed(2, 1, {x, 0}, 11); };
    SvdVariant published;
    published.zeroNorm = 0.0;
    // Reflected, the first left vector turns over and back; not reflected, the right one turns over.
    EXPECT_THAT(left(1e-31).v, SameBits({-1}));
    EXPECT_THAT(left(1e-31).u, SameBits({1, 0, 0, 1}));
    EXPECT_THAT(left(1e-31).s, SameBits({1e-31}));
    const double above = std::nextafter(1e-31, 1.0);
    EXPECT_THAT(left(above).u, SameBits({-1, -0.0, 0, 1}));
    expectSame(left(above), bySteps(2, 1, {above, 0}, 11));
    EXPECT_THAT(left(1e-31).u, Not(SameBits(bySteps(2, 1, {1e-31, 0}, 11, published).u)));

    // The same for the rows of a table with more columns.
    const std::vector<double> row = {1, 0, 1e-32, 0, 1e-32, 0};
    expectSame(decomposed(2, 3, row, 11), bySteps(2, 3, row, 11));
    EXPECT_THAT(decomposed(2, 3, row, 11).v, Not(SameBits(bySteps(2, 3, row, 11, published).v)));
}

TEST(SVDecomp, TakesTheSignOfARowFromAnEntryAboveTheBoundOnly)
{
    // Row 1 beyond the diagonal comes to (-1e-32, -1): its first entry is zero by the bound, negative by an exact test.
    const std::vector<double> cells = {1, 0, 1e-32, 0, 1, 0};
    SvdVariant published;
    published.zeroNorm = 0.0;
    const Svd found = decomposed(2, 3, cells, 11);
    expectSame(found, bySteps(2, 3, cells, 11));
    EXPECT_THAT(found.v, Not(SameBits(bySteps(2, 3, cells, 11, published).v)));
}

TEST(SVDecomp, TakesTheSignOfAColumnFromADiagonalCellThatIsExactlyNotZero)
{
    // A diagonal cell far below the bound still gives its sign.
    const std::vector<double> cells = {-1e-40, 1};
    SvdVariant likeTheNorms;
    likeTheNorms.zeroDiagonal = 1e-31;
    const Svd found = decomposed(2, 1, cells, 11);
    expectSame(found, bySteps(2, 1, cells, 11));
    EXPECT_THAT(found.u, Not(SameBits(bySteps(2, 1, cells, 11, likeTheNorms).u)));
    EXPECT_THAT(decomposed(2, 1, {-0.0, 1}, 11).u, SameBits(bySteps(2, 1, {0.0, 1}, 11).u));
}

TEST(SVDecomp, TakesAnEntryForNegligibleByItsAbsoluteValue)
{
    // All entries vanish: the values are those of the diagonal, though the table is as far from diagonal as can be.
    const std::vector<double> small = {1e-17, 0, 1e-17, 1e-17};
    SvdVariant published;
    published.equalityTest = true;
    EXPECT_THAT(decomposed(2, 2, small, 0).s, SameBits({1e-17, 1e-17}));
    EXPECT_NEAR(bySteps(2, 2, small, 0, published).s[0], 1.618e-17, 1e-20);

    // The bound itself is not negligible, the value below it is. (With an empty diagonal the sum is the entry itself.)
    const double bound = 2.220446049250313e-16;
    const auto offDiagonal = [](double x) { return decomposed(2, 2, {0, 0, x, 0}, 0).s; };
    EXPECT_EQ(offDiagonal(bound), (std::vector<double>{bound, 0}));
    EXPECT_EQ(offDiagonal(std::nextafter(bound, 0.0)), (std::vector<double>{0, 0}));
}

// ---- x, and what is wanted ----

TEST(SVDecomp, LeavesXBitForBit)
{
    const double payload = std::bit_cast<double>(std::uint64_t{0xfff8000000001234});
    const std::vector<double> cells = {-0.0, payload, M, 0.0, inf, 5e-324};
    const Owned<matrix> x = table(3, 2, cells);
    const Owned<matrix> s = filled(2, 1, 0.0);
    const Owned<matrix> u = filled(3, 3, 0.0);
    const Owned<matrix> v = filled(2, 2, 0.0);
    int info = 0;
    M_SVDecomp(x, 3, 2, s, u, v, 11, &info);
    EXPECT_LT(info, 0);
    EXPECT_EQ(std::memcmp(x->X, cells.data(), sizeof(double) * cells.size()), 0);

    TableColumns columns(3, 2, cells);
    TableColumns left(3, 3, std::vector<double>(9));
    TableColumns right(2, 2, std::vector<double>(4));
    M_SVDecompSPV(columns, 3, 2, s, left, right, 11, &info);
    EXPECT_LT(info, 0);
    EXPECT_EQ(std::memcmp(columns.cells().data(), cells.data(), sizeof(double) * cells.size()), 0);
}

TEST(SVDecomp, TouchesVectorsOnlyWhereTheyAreWanted)
{
    RandomData data(8204);
    SCOPED_TRACE(data);
    struct Case
    {
        int job;
        bool left;
        bool right;
    };
    for (const Case& one :
         {Case{0, false, false}, Case{1, false, true}, Case{9, false, true}, Case{10, true, false},
          Case{11, true, true}, Case{19, true, true}, Case{20, true, false}, Case{21, true, true},
          Case{90, true, false}, Case{100, false, false}, Case{101, false, true}, Case{211, true, true},
          Case{-1, false, true}, Case{-10, false, false}, Case{-11, false, true}, Case{-20, false, false}})
    {
        const std::vector<double> cells = data.normals(12);
        const Svd found = decomposed(4, 3, cells, one.job);
        const std::vector<double> untouched(found.u.size(), leftover);
        SCOPED_TRACE(one.job);
        EXPECT_EQ(found.info, 0);
        EXPECT_THAT(found.s, SameBits(bySteps(4, 3, cells, 0).s));
        if (one.left)
            EXPECT_THAT(found.u, SameBits(bySteps(4, 3, cells, one.job % 100 >= 20 ? 20 : 10).u));
        else
            EXPECT_THAT(found.u, SameBits(untouched));
        if (one.right)
            EXPECT_THAT(found.v, SameBits(bySteps(4, 3, cells, 1).v));
        else
            EXPECT_THAT(found.v, SameBits(std::vector<double>(9, leftover)));
        // What is not wanted may be null.
        const Owned<matrix> x = table(4, 3, cells);
        const Owned<matrix> s = filled(3, 1, 0.0);
        const Owned<matrix> u = filled(4, 4, 0.0);
        const Owned<matrix> v = filled(3, 3, 0.0);
        int info = 7;
        M_SVDecomp(x, 4, 3, s, one.left ? u.get() : nullptr, one.right ? v.get() : nullptr, one.job, &info);
        EXPECT_EQ(info, 0);
        EXPECT_THAT(cellsOf(s), SameBits(found.s));
    }
}

TEST(SVDecomp, GivesNOrTheSmallerNumberOfLeftVectors)
{
    RandomData data(8205);
    SCOPED_TRACE(data);
    const std::vector<double> cells = data.normals(12);
    for (const int job : {11, 21}) {
        const Owned<matrix> u = filled(4, 4, leftover);
        const Owned<matrix> s = filled(3, 1, 0.0);
        const Owned<matrix> v = filled(3, 3, 0.0);
        int info = 7;
        M_SVDecomp(table(4, 3, cells), 4, 3, s, u, v, job, &info);
        const std::vector<double> all = cellsOf(u);
        const std::vector<double> last(all.begin() + 12, all.end());
        if (job == 11)
            EXPECT_THAT(last, Not(testing::Contains(leftover)));
        else
            EXPECT_THAT(last, SameBits(std::vector<double>(4, leftover)));
    }
}

TEST(SVDecomp, OfAZeroTableHasUnitVectors)
{
    for (const auto& [n, p] : {std::pair{3, 3}, {4, 2}, {2, 4}}) {
        const Svd found = decomposed(n, p, std::vector<double>(cellCount(n, p)), 11);
        EXPECT_EQ(found.info, 0);
        for (const double value : found.s)
            EXPECT_EQ(value, 0.0);
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j)
                EXPECT_EQ(found.u[static_cast<std::size_t>(i + n * j)], i == j ? 1.0 : 0.0);
        for (int i = 0; i < p; ++i)
            for (int j = 0; j < p; ++j)
                EXPECT_EQ(found.v[static_cast<std::size_t>(i + p * j)], i == j ? 1.0 : 0.0);
    }
}

TEST(SVDecomp, OfOneCellIsItsSize)
{
    for (const double x : {5.0, -5.0}) {
        const Svd found = decomposed(1, 1, {x}, 11);
        EXPECT_THAT(found.s, SameBits({5}));
        EXPECT_THAT(found.u, SameBits({1}));
        EXPECT_THAT(found.v, SameBits({x < 0 ? -1.0 : 1.0}));
    }
}

TEST(SVDecomp, OfNoRowsOrColumnsStaysInside)
{
    int info = 7;
    const Owned<matrix> s = filled(1, 1, leftover);
    const Owned<matrix> u = filled(2, 2, leftover);
    const Owned<matrix> v = filled(2, 2, leftover);
    M_SVDecomp(filled(0, 2, 0.0), 0, 2, s, u, v, 11, &info);
    EXPECT_EQ(info, 0);
    EXPECT_THAT(cellsOf(s), SameBits({0}));
    EXPECT_THAT(cellsOf(u), SameBits(std::vector<double>(4, leftover)));
    EXPECT_THAT(cellsOf(v), SameBits({1, 0, 0, 1}));
    M_SVDecomp(filled(2, 0, 0.0), 2, 0, s, u, v, 11, &info);
    EXPECT_EQ(info, 0);
    EXPECT_THAT(cellsOf(u), SameBits({1, 0, 0, 1}));
    M_SVDecomp(filled(2, 2, 5.0), 0, 0, s, u, v, 11, &info);
    M_SVDecomp(filled(2, 2, 5.0), -1, 2, s, u, v, 11, &info);
    M_SVDecomp(filled(2, 2, 5.0), 2, -1, s, u, v, 11, &info);
    EXPECT_EQ(info, 0);
    constexpr int lowest = std::numeric_limits<int>::min();
    M_SVDecomp(filled(2, 2, 5.0), lowest, 2, s, u, v, 11, &info);
    M_SVDecomp(filled(2, 2, 5.0), 2, lowest, s, u, v, 11, &info);
    EXPECT_EQ(info, 0);
}

TEST(SVDecomp, WorksOnTheCornersOfLargerTables)
{
    RandomData data(8206);
    SCOPED_TRACE(data);
    for (const auto& [n, p] : {std::pair{4, 3}, {3, 4}}) {
        const std::vector<double> all = data.normals(48);
        const Owned<matrix> x = table(6, 8, all);
        const ReferenceSvd expected = bySteps(n, p, cornerOf(x, n, p), 11);
        const Owned<matrix> s = filled(7, 2, leftover);
        const Owned<matrix> u = filled(6, 5, leftover);
        const Owned<matrix> v = filled(5, 6, leftover);
        int info = 7;
        M_SVDecomp(x, n, p, s, u, v, 11, &info);
        EXPECT_EQ(info, 0);
        EXPECT_THAT(cellsOf(x), SameBits(all));
        EXPECT_THAT(cornerOf(s, valueCount(n, p), 1), SameBits(expected.s));
        EXPECT_THAT(cornerOf(u, n, n), SameBits(expected.u));
        EXPECT_THAT(cornerOf(v, p, p), SameBits(expected.v));
        EXPECT_THAT(cellsOf(s).back(), SameBits(leftover));
        EXPECT_EQ(std::count(u->X, u->X + u->nElems, leftover), 30 - n * n);
        EXPECT_EQ(std::count(v->X, v->X + v->nElems, leftover), 30 - p * p);
    }
}

TEST(SVDecomp, StaysInsideTablesThatAreTooSmall)
{
    RandomData data(8207);
    SCOPED_TRACE(data);
    for (const int job : {0, 11, 21}) {
        const std::vector<double> cells = data.normals(4);
        const Owned<matrix> x = table(2, 2, cells);
        const Owned<matrix> s = filled(1, 1, leftover);
        const Owned<matrix> u = filled(2, 1, leftover);
        const Owned<matrix> v = filled(1, 2, leftover);
        int info = 7;
        M_SVDecomp(x, 4, 3, s, u, v, job, &info);
        EXPECT_LE(info, 0);
        EXPECT_THAT(cellsOf(x), SameBits(cells));
    }
}

} // namespace
} // namespace vecmat::test
