// The inverse of a triangular table.
#include "decompositions/inversion.h"

#include "decompositions/residuals.h"
#include "decompositions/triangular_reference.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

TEST(MInverseTriang, HasTheBitsOfTheStepsInTheirOrder)
{
    RandomData data(711);
    SCOPED_TRACE(data);
    for (int n = 0; n <= 14; ++n)
        for (const bool lower : {true, false}) {
            const std::size_t count = static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
            const std::vector<double> cells = data.withSpecials(data.normals(count), n % 4 == 3 ? 0.05 : 0.0);
            const std::vector<double> leftovers = data.leftovers(count);
            Owned<matrix> out = table(n, n, leftovers);
            const Owned<matrix> expected = table(n, n, leftovers);
            const Owned<matrix> a = table(n, n, cells);
            EXPECT_EQ(M_InverseTriang(a, n, lower ? -1 : 0, out, 1e-12),
                      referenceTriangularInverse(*a, n, lower, *expected, 1e-12));
            EXPECT_THAT(cellsOf(out), SameBits(cellsOf(expected))) << n << lower;
        }
}

TEST(MInverseTriang, NeitherReadsNorWritesTheOtherTriangle)
{
    Owned<matrix> out = filled(2, 2, 77.0);
    EXPECT_EQ(M_InverseTriang(byRows({{2, notANumber}, {1, 4}}), 2, -1, out, 1e-12), 0);
    EXPECT_THAT(cellsOf(out), SameBits({0.5, -0.125, 77, 0.25}));
    Owned<matrix> upper = filled(2, 2, 77.0);
    EXPECT_EQ(M_InverseTriang(byRows({{2, 1}, {notANumber, 4}}), 2, 0, upper, 1e-12), 0);
    EXPECT_THAT(cellsOf(upper), SameBits({0.5, 77, -0.125, 0.25}));
}

TEST(MInverseTriang, TakesAnythingButZeroForLower)
{
    for (const short lower : {short{1}, short{-1}, short{7}}) {
        Owned<matrix> out = filled(2, 2, 0.0);
        M_InverseTriang(byRows({{1, 0}, {3, 1}}), 2, lower, out, 1e-12);
        EXPECT_THAT(cellsOf(out), SameBits({1, -3, 0, 1})) << lower;
    }
}

TEST(MInverseTriang, HasNothingToDoWithoutRows)
{
    for (const int n : {0, -1, std::numeric_limits<int>::min()})
        for (const short lower : {-1, 0}) {
            double a = 7.0, out = 8.0;
            EXPECT_EQ(VB_M_InverseTriang(&a, n, lower, &out, 1e-12), 0) << n << ' ' << lower;
            EXPECT_EQ(out, 8.0);
        }
}

TEST(MInverseTriang, PassesADiagonalCellEqualToTheTolerance)
{
    Owned<matrix> out = filled(1, 1, 0.0);
    EXPECT_EQ(M_InverseTriang(column({1e-3}), 1, -1, out, 1e-3), 0);
    EXPECT_EQ(M_InverseTriang(column({-1e-3}), 1, -1, out, 1e-3), 0);
    EXPECT_EQ(M_InverseTriang(column({std::nextafter(1e-3, 0.0)}), 1, -1, out, 1e-3), -1);
    // With a tolerance of 0 even a zero passes.
    EXPECT_EQ(M_InverseTriang(column({0.0}), 1, -1, out, 0.0), 0);
    EXPECT_TRUE(std::isinf(out->X[0]));
}

TEST(MInverseTriang, LeavesTheDiagonalUpToTheCellThatFailed)
{
    Owned<matrix> out = filled(3, 3, 77.0);
    EXPECT_EQ(M_InverseTriang(byRows({{2, 0, 0}, {1, 4, 0}, {1, 1, 0}}), 3, -1, out, 1e-12), -1);
    EXPECT_THAT(cellsOf(out), SameBits({0.5, 77, 77, 77, 0.25, 77, 77, 77, 77}));
}

TEST(MInverseTriang, WorksOnTheTopLeftCornerOfLargerTables)
{
    Owned<matrix> out = filled(4, 3, 77.0);
    EXPECT_EQ(M_InverseTriang(byRows({{2, 9, 9}, {1, 4, 9}, {9, 9, 9}}), 2, -1, out, 1e-12), 0);
    EXPECT_THAT(cornerOf(out, 2, 2), SameBits({0.5, -0.125, 77, 0.25}));
    EXPECT_THAT(out->vbget(3, 1), SameBits(77.0));
}

TEST(MInverseTriang, ReadsMinusOneOutsideTheTables)
{
    const Owned<matrix> a = byColumns({{2.0, 1.0}});
    Owned<matrix> out = filled(2, 1, 77.0);
    const Owned<matrix> expected = filled(2, 1, 77.0);
    EXPECT_EQ(M_InverseTriang(a, 2, -1, out, 1e-12), referenceTriangularInverse(*a, 2, true, *expected, 1e-12));
    EXPECT_THAT(cellsOf(out), SameBits(cellsOf(expected)));
    // The written 1 / -1.0 is dropped, and read as -1.0 again.
    EXPECT_THAT(cellsOf(out), SameBits({0.5, -0.5 * -1.0}));
}

TEST(MInverseTriang, PassesResidualTests)
{
    RandomData data(712);
    SCOPED_TRACE(data);
    for (const int n : {1, 2, 10, 50, 200})
        for (const bool lower : {true, false}) {
            const TestMatrix m{"triangular", n, squareOf(n, [&](int i, int j) {
                                   if (i == j)
                                       return data.uniform(1.0, 2.0);
                                   return (i > j) == lower ? data.uniform(-1.0, 1.0) / n : 0.0;
                               })};
            Owned<matrix> out = filled(n, n, 0.0);
            ASSERT_EQ(M_InverseTriang(table(n, n, m.cells), n, lower ? -1 : 0, out, 1e-12), 0);
            const Wide a(n, n, m.cells);
            const Wide inverse(n, n, cellsOf(out));
            EXPECT_LT(residual(a * inverse - Wide::identity(n), a.norm() * inverse.norm()), residualBound) << n;
        }
}

TEST(VBMInverseTriang, ClearsTheOtherTriangle)
{
    Guarded<double> a{2, 1, 9, 4};
    Guarded<double> out(4, 77.0);
    EXPECT_EQ(VB_M_InverseTriang(a, 2, -1, out, 1e-12), 0);
    EXPECT_THAT(out.values(), SameBits({0.5, -0.125, 0, 0.25}));
    EXPECT_TRUE(a.untouched());
}

TEST(VBMInverseTriang, HandsBackTheDiagonalUpToTheCellThatFailed)
{
    Guarded<double> a{2, 1, 0, 0};
    Guarded<double> out(4, 77.0);
    EXPECT_EQ(VB_M_InverseTriang(a, 2, -1, out, 1e-12), -1);
    EXPECT_THAT(out.values(), SameBits({0.5, 0, 0, 0}));
}

} // namespace
} // namespace vecmat::test
