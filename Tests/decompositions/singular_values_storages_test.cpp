// Singular values of columns and flat tables: the bits of the plain form, and the caller's arrays.
#include "decompositions/svd_cases.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// ---- arrays of columns ----

TEST(SVDecompOfColumns, HasTheBitsOfThePlainForm)
{
    RandomData data(8208);
    SCOPED_TRACE(data);
    for (int round = 0; round < 300; ++round) {
        const int n = data.integer(1, 6);
        const int p = data.integer(1, 6);
        std::vector<double> cells = round % 2 == 0 ? data.normals(cellCount(n, p)) : awkwardCells(n, p, data);
        if (round % 5 == 0)
            cells = data.withSpecials(cells, 0.1);
        const int job = std::vector<int>{0, 1, 10, 11, 20, 21}[static_cast<std::size_t>(data.integer(0, 5))];
        const Svd plain = decomposed(n, p, cells, job);
        TableColumns x(n, p, cells);
        TableColumns u(n, leftColumns(n, p, job), std::vector<double>(plain.u.size(), leftover));
        TableColumns v(p, p, std::vector<double>(plain.v.size(), leftover));
        const Owned<matrix> s = filled(valueCount(n, p), 1, 0.0);
        int info = 77;
        M_SVDecompSPV(x, n, p, s, u, v, job, &info);
        SCOPED_TRACE(round);
        EXPECT_EQ(info, plain.info);
        EXPECT_THAT(cellsOf(s), SameBits(plain.s));
        EXPECT_THAT(u.cells(), SameBits(plain.u));
        EXPECT_THAT(v.cells(), SameBits(plain.v));
        EXPECT_THAT(x.cells(), SameBits(cells));
    }
}

TEST(SVDecompOfColumns, ReachesForNoLeftVectorBeyondTheLast)
{
    // With more columns than rows there is one value without a left vector. A NaN beside it keeps it in a block that is
    // then split, which turns the left vectors up to that value.
    const int n = 3;
    const int p = 4;
    const std::vector<double> cells = {0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 1, notANumber};
    for (const int job : {11, 21}) {
        const ReferenceSvd expected = bySteps(n, p, cells, job);
        ASSERT_GT(expected.turnsWithoutPass, 0);
        TableColumns x(n, p, cells);
        TableColumns u(n, n, std::vector<double>(9, leftover));
        TableColumns v(p, p, std::vector<double>(16, leftover));
        const Owned<matrix> s = filled(4, 1, 0.0);
        int info = 7;
        M_SVDecompSPV(x, n, p, s, u, v, job, &info);
        EXPECT_EQ(info, expected.info);
        EXPECT_THAT(cellsOf(s), SameBits(expected.s));
        EXPECT_THAT(u.cells(), SameBits(expected.u));
        EXPECT_THAT(v.cells(), SameBits(expected.v));
        EXPECT_THAT(decomposed(n, p, cells, job).u, SameBits(expected.u));
    }
}

// The last value lies where the first left vector begins: each step shows to the next. Without a full table for the right
// vectors the steps are taken cell by cell, which leads to the same values and left vectors.
TEST(SVDecomp, ValuesMayShareTheirLastCellWithAVector)
{
    constexpr int n = 12;
    RandomData data(8401);
    SCOPED_TRACE(data);
    const std::vector<double> cells = data.normals(n * n);
    const auto valuesAndVectors = [&](int columnsOfV) {
        std::vector<double> shared(n - 1 + n * n, 0.5);
        matrix s(n, 1, shared.data(), true), u(n, n, shared.data() + n - 1, true);
        const Owned<matrix> v = filled(n, columnsOfV, 0.0);
        int info = 0;
        M_SVDecomp(table(n, n, cells), n, n, &s, &u, v, 21, &info);
        return shared;
    };
    EXPECT_THAT(valuesAndVectors(n), SameBits(valuesAndVectors(n - 1)));
}

TEST(SVDecompOfColumns, NeedsNoArraysForWhatIsNotWanted)
{
    TableColumns x(2, 2, {3, 0, 0, 4});
    const Owned<matrix> s = filled(2, 1, 0.0);
    int info = 7;
    M_SVDecompSPV(x, 2, 2, s, nullptr, nullptr, 0, &info);
    EXPECT_EQ(info, 0);
    EXPECT_THAT(cellsOf(s), SameBits({4, 3}));
}

// ---- flat forms ----

/// Are the results those of the plain form, and is everything not requested unchanged? `cellsOf` reads an array of the
/// kind of x, u and v.
template <class Array, class CellsOf>
void expectPlainForm(const Svd& plain, int job, int info, const Array& x, const Guarded<double>& s, const Array& u,
                     const Array& v, CellsOf cellsOf)
{
    SCOPED_TRACE(job);
    EXPECT_EQ(info, 0);
    EXPECT_TRUE(x.untouched());
    EXPECT_THAT(s.values(), SameBits(plain.s));
    if (job >= 10)
        EXPECT_THAT(cellsOf(u), SameBits(plain.u));
    else
        EXPECT_TRUE(u.untouched());
    if (job % 10 != 0)
        EXPECT_THAT(cellsOf(v), SameBits(plain.v));
    else
        EXPECT_TRUE(v.untouched());
}

TEST(FlatSVDecomp, WritesTheCallersArrays)
{
    RandomData data(8209);
    SCOPED_TRACE(data);
    for (const auto& [n, p] : {std::pair{4, 3}, {3, 4}, {3, 3}, {1, 3}, {3, 1}})
        for (const int job : {0, 1, 10, 11, 20, 21, -11}) {
            const std::vector<double> cells = data.normals(cellCount(n, p));
            const int cols = job < 10 ? 1 : leftColumns(n, p, job);
            Guarded<double> x(cells);
            Guarded<double> s(static_cast<std::size_t>(valueCount(n, p)), leftover);
            Guarded<double> u(cellCount(n, cols), leftover);
            Guarded<double> v(cellCount(p, job % 10 == 0 ? 1 : p), leftover);
            int info = 7;
            EXPECT_EQ(VB_M_SVDecomp(x, n, p, s, u, n, v, p, job, &info), 0);
            expectPlainForm(decomposed(n, p, cells, job), job, info, x, s, u, v,
                            [](const Guarded<double>& array) { return array.values(); });
            if (p > n) {
                EXPECT_EQ(s.values().back(), 0.0) << "the value beyond the rows";
            }
        }
}

TEST(FlatSVDecomp, UsesTheLeadingDimensionsAsStrides)
{
    RandomData data(8210);
    SCOPED_TRACE(data);
    const std::vector<double> cells = data.normals(6);
    const Svd plain = decomposed(3, 2, cells, 21);
    Guarded<double> x(cells);
    Guarded<double> s(2, leftover);
    Guarded<double> u(5 * 2, leftover);
    Guarded<double> v(4 * 2, leftover);
    int info = 7;
    VB_M_SVDecomp(x, 3, 2, s, u, 5, v, 4, 21, &info);
    EXPECT_THAT(cornerOf<matrix>(table(5, 2, u.values()), 3, 2), SameBits(plain.u));
    EXPECT_THAT(cornerOf<matrix>(table(4, 2, v.values()), 2, 2), SameBits(plain.v));
    EXPECT_THAT(u.values()[4], SameBits(leftover));
    EXPECT_THAT(v.values()[3], SameBits(leftover));
}

TEST(FlatSVDecompOfColumns, WritesTheCallersColumns)
{
    RandomData data(8211);
    SCOPED_TRACE(data);
    for (const auto& [n, p] : {std::pair{4, 3}, {3, 4}, {2, 2}})
        for (const int job : {0, 11, 21, -1, -11}) {
            const std::vector<double> cells = data.normals(cellCount(n, p));
            const int cols = job < 10 ? 1 : leftColumns(n, p, job);
            const int rightCols = job % 10 == 0 ? 1 : p;
            ArrayOfColumns x = numberColumns(n, p, cells);
            ArrayOfColumns u = numberColumns(n, cols, std::vector<double>(cellCount(n, cols), leftover));
            ArrayOfColumns v = numberColumns(p, rightCols, std::vector<double>(cellCount(p, rightCols), leftover));
            Guarded<double> s(static_cast<std::size_t>(valueCount(n, p)), leftover);
            int info = 7;
            EXPECT_EQ(VB_M_SVDecompSPV(x, n, p, s, u, n, v, p, job, &info), 0);
            expectPlainForm(decomposed(n, p, cells, job), job, info, x, s, u, v,
                            [](const ArrayOfColumns& array) { return array.numbers(); });
        }
}

} // namespace
} // namespace vecmat::test
