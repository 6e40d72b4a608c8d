// Eigenvalues of flat tables, columns and triangles: the bits of the plain form, and the caller's arrays.
#include "decompositions/eigen_cases.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace vecmat::test {
namespace {

// ---- the flat form ----

TEST(FlatEigen, CopiesValuesAndVectorsOut)
{
    RandomData data(8106);
    SCOPED_TRACE(data);
    for (int n = 1; n <= 6; ++n) {
        Guarded<double> a(data.normals(squareCount(n)));
        Guarded<double> values(static_cast<std::size_t>(n), 7.0);
        Guarded<double> vectors(squareCount(n), 8.0);
        EXPECT_EQ(VB_M_Eigen(a, values, vectors, n, -1), 0);
        const ReferenceEigen expected = sortedBySteps(a.values(), n);
        EXPECT_THAT(values.values(), SameBits(expected.values));
        EXPECT_THAT(vectors.values(), SameBits(expected.vectors));
        EXPECT_TRUE(a.untouched());
    }
}

TEST(FlatEigen, LeavesTheArraysWhereACellIsMissing)
{
    Guarded<double> a({1, 0, M, 1});
    Guarded<double> values(2, 7.0);
    Guarded<double> vectors(4, 8.0);
    EXPECT_EQ(VB_M_Eigen(a, values, vectors, 2, -1), -1);
    EXPECT_TRUE(a.untouched());
    EXPECT_TRUE(values.untouched());
    EXPECT_TRUE(vectors.untouched());
}

TEST(FlatEigen, CopiesTheInterruptedStateOut)
{
    Guarded<double> a(needs29());
    Guarded<double> values(8, 7.0);
    Guarded<double> vectors(64, 8.0);
    EXPECT_EQ(VB_M_Eigen(a, values, vectors, 8, -1), -1);
    const ReferenceEigen interrupted = eigenBySteps(needs29(), 8);
    EXPECT_THAT(values.values(), SameBits(interrupted.values));
    EXPECT_THAT(vectors.values(), SameBits(interrupted.vectors));
}

TEST(FlatEigen, TouchesNothingForAnOrderOfZero)
{
    Guarded<double> a({1});
    Guarded<double> values({7});
    Guarded<double> vectors({8});
    EXPECT_EQ(VB_M_Eigen(a, values, vectors, 0, -1), 0);
    EXPECT_TRUE(values.untouched());
    EXPECT_TRUE(vectors.untouched());
}

// ---- the other storages ----

struct Storages
{
    int n;
    std::vector<double> cells;

    Decomposition columns(short sort) const { return besideArgument(M_EigenSPV, TableColumns(n, n, cells), sort); }
    Decomposition fromTriangle(short sort) const { return besideArgument(M_EigenSPV_T, triangle(n, cells), sort); }
    Decomposition inPlace(short sort) const
    {
        TableColumns a(n, n, cells);
        Owned<matrix> values;
        Decomposition result;
        result.status = M_EigenDestroySPV(a, values, n, sort);
        result.values = cellsOf(values);
        result.vectors = a.cells();
        return result;
    }

private:
    /// By a function that leaves its argument and writes the vectors into columns of their own.
    template <class Function>
    Decomposition besideArgument(Function function, TableColumns a, short sort) const
    {
        const std::vector<double> before = a.cells();
        TableColumns vectors(n, n, std::vector<double>(squareCount(n), 8.0));
        Owned<matrix> values;
        Decomposition result;
        result.status = function(a, values, vectors, n, sort);
        EXPECT_THAT(a.cells(), SameBits(before));
        result.values = cellsOf(values);
        result.vectors = vectors.cells();
        return result;
    }
};

constexpr std::pair<const char*, Decomposition (Storages::*)(short) const> forms[] = {
    {"columns", &Storages::columns}, {"in place", &Storages::inPlace}, {"from a triangle", &Storages::fromTriangle}};

TEST(EigenOfColumns, HasTheBitsOfThePlainForm)
{
    RandomData data(8107);
    SCOPED_TRACE(data);
    for (int n = 1; n <= 12; ++n)
        for (const short sort : {0, 1, -1}) {
            SCOPED_TRACE(n);
            const std::vector<double> cells =
                n % 2 == 0 ? data.normals(squareCount(n)) : data.wholes(squareCount(n), -1, 1);
            const Decomposition plain = decomposed(n, cells, sort);
            const Storages storages{n, cells};
            for (const auto& [name, form] : forms) {
                SCOPED_TRACE(name);
                expectSame((storages.*form)(sort), plain);
            }
        }
}

TEST(EigenOfColumns, GivesUpAtTheTwentyNinthPassToo)
{
    const Decomposition plain = decomposed(8, needs29(), -1);
    ASSERT_EQ(plain.status, -1);
    const Storages storages{8, needs29()};
    const Storages enough{6, needs28()};
    for (const auto& [name, form] : forms) {
        SCOPED_TRACE(name);
        expectSame((storages.*form)(-1), plain);
        EXPECT_EQ((enough.*form)(0).status, 0);
    }
}

TEST(EigenOfColumns, RefusesAMissingCellWithNothingTouched)
{
    for (std::size_t k = 0; k < 9; ++k) {
        std::vector<double> cells = symmetricOf(3, {1, 2, 3, 4, 5, 6});
        cells[k] = M;
        TableColumns a(3, 3, cells);
        TableColumns vectors(3, 3, std::vector<double>(9, 8.0));
        Owned<matrix> values;
        EXPECT_EQ(M_EigenSPV(a, values, vectors, 3, -1), -1);
        EXPECT_EQ(M_EigenDestroySPV(a, values, 3, -1), -1);
        EXPECT_EQ(values.get(), nullptr);
        EXPECT_THAT(a.cells(), SameBits(cells));
        EXPECT_THAT(vectors.cells(), SameBits(std::vector<double>(9, 8.0)));
    }
    for (std::size_t k = 0; k < 3; ++k)
        for (std::size_t d = 0; d < 3 - k; ++d) {
            std::vector<std::vector<double>> lower = {{1, 2, 3}, {4, 5}, {6}};
            lower[k][d] = M;
            TableColumns a(lower);
            TableColumns vectors(3, 3, std::vector<double>(9, 8.0));
            Owned<matrix> values = filled(1, 1, 7.0);
            EXPECT_EQ(M_EigenSPV_T(a, values, vectors, 3, -1), -1);
            EXPECT_THAT(cellsOf(values), SameBits({7}));
            EXPECT_THAT(vectors.cells(), SameBits(std::vector<double>(9, 8.0)));
        }
}

TEST(EigenOfColumns, LeavesCellsBeyondTheOrder)
{
    RandomData data(8108);
    SCOPED_TRACE(data);
    const int n = 3;
    const std::vector<double> cells = data.normals(squareCount(n));
    TableColumns a(n, n, cells);
    TableColumns vectors(n + 2, n + 1, std::vector<double>(20, 8.0));
    Owned<matrix> values = filled(5, 1, 7.0);
    EXPECT_EQ(M_EigenSPV(a, values, vectors, n, -1), 0);
    const ReferenceEigen expected = sortedBySteps(cells, n);
    const std::vector<double> allValues = cellsOf(values);
    EXPECT_THAT(std::vector<double>(allValues.begin(), allValues.begin() + n), SameBits(expected.values));
    EXPECT_THAT(std::vector<double>(allValues.begin() + n, allValues.end()), SameBits({7, 7}));
    for (int j = 0; j < n; ++j) {
        std::vector<double> column(expected.vectors.begin() + j * n, expected.vectors.begin() + (j + 1) * n);
        column.insert(column.end(), {8, 8});
        EXPECT_THAT(vectors.column(j), SameBits(column));
    }
    EXPECT_THAT(vectors.column(n), SameBits(std::vector<double>(5, 8.0)));
}

TEST(EigenOfColumns, StaysInsideColumnsThatAreTooShort)
{
    RandomData data(8109);
    SCOPED_TRACE(data);
    TableColumns a(4, 4, data.normals(16));
    TableColumns vectors({{8, 8, 8, 8}, {8, 8}, {8, 8, 8}, {}});
    Owned<matrix> values;
    M_EigenSPV(a, values, vectors, 4, -1);
    EXPECT_EQ(values->nElems, 4u);
    TableColumns shortColumns({{1, 2, 3, 4}, {1, 2}, {}, {1}});
    M_EigenDestroySPV(shortColumns, values, 4, -1);
    TableColumns shortTriangle({{1, 2}, {1}, {}, {}});
    M_EigenSPV_T(shortTriangle, values, vectors, 4, -1);
}

TEST(EigenOfColumns, OfNoCellsTouchesNothing)
{
    Owned<matrix> values;
    EXPECT_EQ(M_EigenSPV(nullptr, values, nullptr, 0, -1), 0);
    EXPECT_EQ(M_EigenDestroySPV(nullptr, values, 0, -1), 0);
    EXPECT_EQ(M_EigenSPV_T(nullptr, values, nullptr, 0, -1), 0);
    EXPECT_EQ(values->nElems, 0u);
}

} // namespace
} // namespace vecmat::test
