// The nearest correlation matrix by alternating projections, and the projections it is made of.
#include "decompositions/nearest_correlation.h"

#include "decompositions/eigen.h"
#include "decompositions/inversion.h"
#include "decompositions/nearest_correlation_reference.h"
#include "decompositions/residuals.h"
#include "decompositions/square_root.h"
#include "elementary/diagonal_products.h"
#include "elementary/matrix_products.h"
#include "elementary/scalar_arithmetic.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

std::size_t squareCount(int n)
{
    return static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
}

/// A symmetric table with a unit diagonal that is no correlation matrix, or hardly ever. The larger what stands off the
/// diagonal, the longer is the way.
std::vector<double> pairwiseCells(int n, RandomData& data, double size = 1.0)
{
    std::vector<double> cells(squareCount(n), 1.0);
    for (int j = 0; j < n; ++j)
        for (int i = 0; i < j; ++i)
            cells[static_cast<std::size_t>(i + n * j)] = cells[static_cast<std::size_t>(j + n * i)] =
                data.uniform(-size, size);
    return cells;
}

Owned<matrix> identityTable(int n)
{
    Owned<matrix> w = filled(n, n, 0.0);
    for (int i = 1; i <= n; ++i)
        w->vbset(i, i, 1.0);
    return w;
}

/// The projection on the cone by the functions that define it.
std::vector<double> projectedBySteps(matrix* a, int n, matrix* w)
{
    Owned<matrix> root;
    M_SquareRoot(w, n, root);
    const Owned<matrix> inverse = filled(n, n, 0.0);
    short status = 0;
    root->inverse1(inverse, status, 1e-6);
    const Owned<matrix> b = filled(n, n, 0.0);
    M_ProductABC(root, n, n, a, n, root, n, b);
    Owned<matrix> values;
    Owned<matrix> vectors;
    M_Eigen(b, values, vectors, n, -1);
    for (int i = 1; i <= n; ++i)
        if (values->vbget(i, 1) < 0.0)
            values->vbset(i, 1, 0.0);
    const Owned<matrix> c = filled(n, n, 0.0);
    M_ProductADiagVTrA(vectors, n, n, values, c);
    const Owned<matrix> out = filled(n, n, 0.0);
    M_ProductABC(inverse, n, n, c, n, inverse, n, out);
    return cellsOf(out);
}

ReferenceNearest nearestBySteps(const std::vector<double>& cells, int n)
{
    return NearestBySteps(cells, n).run();
}

std::vector<double> nearestTo(const std::vector<double>& cells, int n)
{
    const Owned<matrix> a = table(n, n, cells);
    EXPECT_EQ(M_CorrMatFromSymMat(a, n), 0);
    return cellsOf(a);
}

TEST(CorrMatFromSymMat, OfThePublishedExample)
{
    // Higham, Computing the nearest correlation matrix, IMA Journal of Numerical Analysis 22, 2002, section 4.
    const std::vector<double> found = nearestTo({1, 1, 0, 1, 1, 1, 0, 1, 1}, 3);
    EXPECT_NEAR(found[1], 0.7607, 5e-5);
    EXPECT_NEAR(found[2], 0.1573, 5e-5);
    EXPECT_NEAR(found[5], 0.7607, 5e-5);
    for (const std::size_t k : {0u, 4u, 8u})
        EXPECT_THAT(found[k], SameBits(1.0));
    EXPECT_THAT(found[1], SameBits(found[3]));
    EXPECT_THAT(found[2], SameBits(found[6]));
    EXPECT_THAT(found[5], SameBits(found[7]));
}

TEST(CorrMatFromSymMat, HasTheBitsOfTheStepsHoweverManyPassesTheyTake)
{
    RandomData data(8601);
    SCOPED_TRACE(data);
    int most = 0;
    for (int round = 0; round < 40; ++round) {
        const int n = data.integer(1, 7);
        const std::vector<double> cells = pairwiseCells(n, data, round % 2 == 0 ? 1.0 : 20.0);
        const ReferenceNearest expected = nearestBySteps(cells, n);
        EXPECT_THAT(nearestTo(cells, n), SameBits(expected.cells)) << round;
        most = std::max(most, expected.passes);
    }
    EXPECT_GT(most, 100);
}

TEST(CorrMatFromSymMat, CarriesTheCorrectionFromPassToPass)
{
    // Without it the projections meet too, elsewhere: not at the nearest.
    const std::vector<double> cells = {1, 1, 0, 1, 1, 1, 0, 1, 1};
    NearestBySteps uncorrected(cells, 3);
    uncorrected.corrected = false;
    const ReferenceNearest elsewhere = uncorrected.run();
    EXPECT_LE(elsewhere.ratio, 1e-06);
    EXPECT_GT(std::fabs(elsewhere.cells[1] - nearestTo(cells, 3)[1]), 1e-3);
}

TEST(CorrMatFromSymMat, IsGivenUpWhereItDoesNotSettle)
{
    // Next to cells this large, rounding makes the table oscillate for ever, and the ratio never falls to the
    // tolerance.
    const std::vector<double> cells = {1, 1e11, 1e11, 1};
    const ReferenceNearest expected = nearestBySteps(cells, 2);
    ASSERT_EQ(expected.passes, 100000);
    ASSERT_GT(expected.ratio, 1e-06);
    const std::vector<double> found = nearestTo(cells, 2);
    EXPECT_THAT(found, SameBits(expected.cells));
    // The last pass still moved it: one pass less would show.
    NearestBySteps oneLess(cells, 2);
    oneLess.passLimit = 99999;
    EXPECT_THAT(found, testing::Not(SameBits(oneLess.run().cells)));

    TableColumns columns(2, 2, cells);
    EXPECT_EQ(M_CorrMatFromSymMatSPV(columns, 2), 0);
    EXPECT_THAT(columns.cells(), SameBits(expected.cells));
    TableColumns lower = triangle(2, cells);
    EXPECT_EQ(M_CorrMatFromSymMatSPV_T(lower, 2), 0);
    EXPECT_THAT(lower.cells(), SameBits(triangle(2, expected.cells).cells()));
}

TEST(CorrMatFromSymMat, IsACorrelationMatrixWithinTheTolerance)
{
    RandomData data(8602);
    SCOPED_TRACE(data);
    for (const int n : {5, 12, 25}) {
        const std::vector<double> cells = pairwiseCells(n, data);
        const std::vector<double> found = nearestTo(cells, n);
        Owned<matrix> values;
        Owned<matrix> vectors;
        ASSERT_EQ(M_Eigen(table(n, n, found), values, vectors, n, -1), 0);
        EXPECT_GT(values->vbget(n, 1), -1e-5);
        EXPECT_LT(values->vbget(n, 1), 1e-5) << "the table was outside, so the nearest is on the border";
        for (int i = 0; i < n; ++i) {
            EXPECT_THAT(found[static_cast<std::size_t>(i + n * i)], SameBits(1.0));
            for (int j = 0; j < n; ++j)
                EXPECT_LE(std::fabs(found[static_cast<std::size_t>(i + n * j)]), 1.0 + 1e-5);
        }
    }
}

TEST(CorrMatFromSymMat, OfACorrelationMatrixEndsAtTheFirstPass)
{
    const std::vector<double> cells = {1, 0.5, 0.25, 0.5, 1, 0.5, 0.25, 0.5, 1};
    EXPECT_EQ(nearestBySteps(cells, 3).passes, 1);
    const std::vector<double> found = nearestTo(cells, 3);
    EXPECT_THAT(found, SameBits(nearestBySteps(cells, 3).cells));
    for (std::size_t k = 0; k < 9; ++k)
        EXPECT_NEAR(found[k], cells[k], 1e-15);
    EXPECT_THAT(nearestTo({1, 0, 0, 1}, 2), SameBits({1, 0, 0, 1}));
}

TEST(CorrMatFromSymMat, OfAZeroTableIsTheIdentityAfterTwoPasses)
{
    EXPECT_EQ(nearestBySteps(std::vector<double>(9, 0.0), 3).passes, 2);
    EXPECT_THAT(nearestTo(std::vector<double>(9, 0.0), 3), SameBits({1, 0, 0, 0, 1, 0, 0, 0, 1}));
}

TEST(CorrMatFromSymMat, GivesARowOfZerosAUnitDiagonal)
{
    const std::vector<double> cells = {1, 0.5, 0, 0.5, 1, 0, 0, 0, 0};
    const std::vector<double> found = nearestTo(cells, 3);
    EXPECT_THAT(found, SameBits(nearestBySteps(cells, 3).cells));
    EXPECT_THAT(found[8], SameBits(1.0));
    EXPECT_NEAR(found[1], 0.5, 1e-6);
    EXPECT_EQ(found[2], 0.0);
    EXPECT_EQ(found[5], 0.0);
}

TEST(CorrMatFromSymMat, OfACovarianceTableIsNotItsCorrelationMatrix)
{
    // The nearest unit diagonal is not the one that scaling gives.
    const std::vector<double> cells = {4, 1, 1, 2};
    const std::vector<double> found = nearestTo(cells, 2);
    EXPECT_THAT(found, SameBits(nearestBySteps(cells, 2).cells));
    EXPECT_NEAR(found[1], 1.0, 1e-5);
}

TEST(CorrMatFromSymMat, RefusesAMissingCellAndLeavesTheTable)
{
    for (std::size_t k = 0; k < 9; ++k) {
        std::vector<double> cells = {1, 1, 0, 1, 1, 1, 0, 1, 1};
        cells[k] = M;
        const Owned<matrix> a = table(3, 3, cells);
        EXPECT_EQ(M_CorrMatFromSymMat(a, 3), -1);
        EXPECT_THAT(cellsOf(a), SameBits(cells));
        TableColumns columns(3, 3, cells);
        EXPECT_EQ(M_CorrMatFromSymMatSPV(columns, 3), -1);
        EXPECT_THAT(columns.cells(), SameBits(cells));
    }
    for (std::size_t k = 0; k < 3; ++k)
        for (std::size_t d = 0; d < 3 - k; ++d) {
            std::vector<std::vector<double>> lower = {{1, 1, 0}, {1, 1}, {1}};
            lower[k][d] = M;
            TableColumns a(lower);
            const std::vector<double> before = a.cells();
            EXPECT_EQ(M_CorrMatFromSymMatSPV_T(a, 3), -1);
            EXPECT_THAT(a.cells(), SameBits(before));
        }
}

TEST(CorrMatFromSymMat, EndsForNaNAndInfinityAndForNoCells)
{
    for (const double x : {notANumber, inf}) {
        const Owned<matrix> a = byRows({{1, x}, {x, 1}});
        EXPECT_EQ(M_CorrMatFromSymMat(a, 2), 0);
        EXPECT_THAT(a->vbget(1, 1), SameBits(1.0));
    }
    EXPECT_EQ(M_CorrMatFromSymMat(filled(1, 1, 5.0), 0), 0);
    EXPECT_EQ(M_CorrMatFromSymMat(filled(1, 1, 5.0), -1), 0);
    EXPECT_THAT(nearestTo({5}, 1), SameBits({1}));
    EXPECT_THAT(nearestTo({-5}, 1), SameBits(nearestBySteps({-5}, 1).cells));
}

TEST(CorrMatFromSymMat, WorksOnTheCornerOfALargerTable)
{
    RandomData data(8603);
    SCOPED_TRACE(data);
    const Owned<matrix> a = table(5, 4, data.uniforms(20, -1.0, 1.0));
    const std::vector<double> all = cellsOf(a);
    const std::vector<double> expected = nearestTo(cornerOf(a, 3, 3), 3);
    EXPECT_EQ(M_CorrMatFromSymMat(a, 3), 0);
    EXPECT_THAT(cornerOf(a, 3, 3), SameBits(expected));
    for (std::size_t k = 0; k < all.size(); ++k)
        if (k % 5 > 2 || k / 5 > 2) {
            EXPECT_THAT(a->X[k], SameBits(all[k]));
        }
}

TEST(CorrMatFromSymMat, HasTheSameBitsInEveryStorage)
{
    RandomData data(8604);
    SCOPED_TRACE(data);
    for (int n = 1; n <= 8; ++n) {
        const std::vector<double> cells = pairwiseCells(n, data);
        const std::vector<double> expected = nearestTo(cells, n);
        TableColumns columns(n, n, cells);
        EXPECT_EQ(M_CorrMatFromSymMatSPV(columns, n), 0);
        EXPECT_THAT(columns.cells(), SameBits(expected));
        TableColumns lower = triangle(n, cells);
        EXPECT_EQ(M_CorrMatFromSymMatSPV_T(lower, n), 0);
        EXPECT_THAT(lower.cells(), SameBits(triangle(n, expected).cells()));

        Guarded<double> flat(cells);
        EXPECT_EQ(Cpp_M_CorrMatFromSymMat(flat, n), 0);
        EXPECT_THAT(flat.values(), SameBits(expected));
        ArrayOfColumns flatColumns = numberColumns(n, n, cells);
        EXPECT_EQ(Cpp_M_CorrMatFromSymMatSPV(flatColumns, n), 0);
        EXPECT_THAT(flatColumns.numbers(), SameBits(expected));
        ArrayOfColumns flatTriangle = numberTriangle(n, cells);
        EXPECT_EQ(Cpp_M_CorrMatFromSymMatSPV_T(flatTriangle, n), 0);
        EXPECT_THAT(flatTriangle.numbers(), SameBits(lower.cells()));
    }
    Guarded<double> missing({1, M, M, 1});
    EXPECT_EQ(Cpp_M_CorrMatFromSymMat(missing, 2), -1);
    EXPECT_TRUE(missing.untouched());
    EXPECT_EQ(Cpp_M_CorrMatFromSymMatSPV(nullptr, 0), 0);
    EXPECT_EQ(Cpp_M_CorrMatFromSymMatSPV_T(nullptr, 0), 0);
}

// ---- the projections ----

TEST(SProject, HasTheBitsOfTheFunctionsThatDefineIt)
{
    RandomData data(8605);
    SCOPED_TRACE(data);
    for (int n = 1; n <= 6; ++n) {
        const Owned<matrix> a = table(n, n, pairwiseCells(n, data));
        const std::vector<double> before = cellsOf(a);
        for (const bool plain : {true, false}) {
            const Owned<matrix> w =
                plain ? identityTable(n) : table(n, n, gramMatrix(randomMatrix(n, data), 0.5).cells);
            const Owned<matrix> out = filled(n, n, 7.0);
            M_SProject(a, n, w, out);
            EXPECT_THAT(cellsOf(out), SameBits(projectedBySteps(a, n, w))) << n << plain;
        }
        EXPECT_THAT(cellsOf(a), SameBits(before));
    }
}

TEST(SProject, WithTheIdentityIsTheProjectionOfTheIteration)
{
    // The root of the identity and its inverse are the identity to the last bit.
    RandomData data(8607);
    SCOPED_TRACE(data);
    for (const int n : {1, 2, 3, 8, 30}) {
        const std::vector<double> cells = pairwiseCells(n, data);
        const Owned<matrix> out = filled(n, n, 7.0);
        M_SProject(table(n, n, cells), n, identityTable(n), out);
        EXPECT_THAT(cellsOf(out), SameBits(NearestBySteps({}, n).onCone(cells))) << n;
    }
}

TEST(SProject, WithTheIdentityClearsTheNegativePart)
{
    // Eigenvalues 3 and -1: what remains is 3 times the projection on (1, 1).
    const Owned<matrix> out = filled(2, 2, 7.0);
    M_SProject(byRows({{1, 2}, {2, 1}}), 2, identityTable(2), out);
    for (const double cell : cellsOf(out))
        EXPECT_NEAR(cell, 1.5, 1e-15);
    // Nothing to clear.
    M_SProject(byRows({{2, 0}, {0, 3}}), 2, identityTable(2), out);
    EXPECT_THAT(cellsOf(out), SameBits({2, 0, 0, 3}));
}

TEST(SProject, ComputesOnWithZerosWhereItsStepsFail)
{
    const Owned<matrix> out = filled(2, 2, 7.0);
    M_SProject(byRows({{1, M}, {M, 1}}), 2, identityTable(2), out);
    EXPECT_EQ(cellsOf(out), std::vector<double>(4, 0.0)) << "no eigenvalues";
    M_SProject(byRows({{1, 0}, {0, 1}}), 2, byRows({{-1, 0}, {0, 1}}), out);
    EXPECT_EQ(cellsOf(out), std::vector<double>(4, 0.0)) << "no root of the weights";
    // A root up to 1e-8 has no inverse: the tolerance selects the larger threshold.
    M_SProject(identityTable(2), 2, byRows({{1, 0}, {0, 1e-18}}), out);
    EXPECT_EQ(cellsOf(out), std::vector<double>(4, 0.0));
    M_SProject(identityTable(2), 2, byRows({{1, 0}, {0, 1e-14}}), out);
    EXPECT_NEAR(out->vbget(2, 2), 1.0, 1e-15);
}

TEST(UProject, CopiesTheBlockAndSetsTheDiagonal)
{
    RandomData data(8606);
    SCOPED_TRACE(data);
    const Owned<matrix> a = table(4, 3, data.normals(12));
    std::vector<double> expected = cornerOf(a, 3, 3);
    for (const std::size_t k : {0u, 4u, 8u})
        expected[k] = 1.0;
    const Owned<matrix> out = filled(4, 4, 7.0);
    M_UProject(a, 3, out);
    EXPECT_THAT(cornerOf(out, 3, 3), SameBits(expected));
    EXPECT_EQ(std::count(out->X, out->X + 16, 7.0), 7);
    M_UProject(a, 0, out);
    EXPECT_EQ(std::count(out->X, out->X + 16, 7.0), 7);

    TableColumns columns(4, 3, std::vector<double>(12, 7.0));
    M_UProjectSPV(a, 3, columns);
    for (int j = 0; j < 3; ++j) {
        std::vector<double> cells(expected.begin() + 3 * j, expected.begin() + 3 * (j + 1));
        cells.push_back(7.0);
        EXPECT_THAT(columns.column(j), SameBits(cells));
    }
}

TEST(UProject, SetsTheFirstCellOfEachColumnOfATriangle)
{
    TableColumns out({{7, 7, 7}, {7, 7}, {7}});
    M_UProjectSPV_T(byRows({{5, 2, 3}, {2, 6, 4}, {3, 4, 8}}), 3, out);
    EXPECT_THAT(out.cells(), SameBits({1, 2, 3, 1, 4, 1}));
    TableColumns shorter({{7, 7}, {7}, {}});
    M_UProjectSPV_T(byRows({{5, 2, 3}, {2, 6, 4}, {3, 4, 8}}), 3, shorter);
    EXPECT_THAT(shorter.cells(), SameBits({1, 2, 1}));
}

// ---- the norm ----

TEST(RowSumNorm, IsTheLargestRowSumOfMagnitudes)
{
    const Owned<matrix> a = byRows({{1, -2, 3}, {-4, 5, -6}});
    EXPECT_THAT(M_RowSumNorm(a, 2, 3), SameBits(15));
    EXPECT_THAT(M_RowSumNorm(a, 1, 3), SameBits(6));
    EXPECT_THAT(M_RowSumNorm(a, 2, 2), SameBits(9));
    EXPECT_THAT(M_RowSumNorm(a, 0, 3), SameBits(0));
    EXPECT_THAT(M_RowSumNorm(a, -1, 3), SameBits(0));
    EXPECT_THAT(M_RowSumNorm(a, 2, 0), SameBits(0));
    TableColumns columns(2, 3, cellsOf(a));
    EXPECT_THAT(M_RowSumNormSPV(columns, 2, 3), SameBits(15));
    Guarded<double> flat(cellsOf(a));
    EXPECT_THAT(Cpp_M_RowSumNorm(flat, 2, 3), SameBits(15));
    EXPECT_TRUE(flat.untouched());
}

TEST(RowSumNorm, AddsEachRowFromTheLeft)
{
    const double large = 1e16; // to which 2 can be added, but not 1
    EXPECT_THAT(M_RowSumNorm(byRows({{1, -1, large}}), 1, 3), SameBits(large + 2));
    EXPECT_THAT(M_RowSumNorm(byRows({{large, -1, 1}}), 1, 3), SameBits(large));
    TableColumns columns(1, 3, {1, 1, -large});
    EXPECT_THAT(M_RowSumNormSPV(columns, 1, 3), SameBits(large + 2));
}

TEST(RowSumNorm, SkipsWhatIsNotAboveTheMissingValue)
{
    for (const double skipped : {M, -inf, notANumber, std::nextafter(M, -inf)}) {
        EXPECT_THAT(M_RowSumNorm(byRows({{1, skipped, 2}}), 1, 3), SameBits(3)) << skipped;
        TableColumns columns(1, 3, {1, skipped, 2});
        EXPECT_THAT(M_RowSumNormSPV(columns, 1, 3), SameBits(3)) << skipped;
        TableColumns lower({{1, skipped}, {2}});
        EXPECT_THAT(M_RowSumNormSPV_T(lower, 2, 2), SameBits(2)) << skipped;
    }
    EXPECT_THAT(M_RowSumNorm(byRows({{1, std::nextafter(M, 0.0)}}), 1, 2), SameBits(-std::nextafter(M, 0.0)));
    EXPECT_THAT(M_RowSumNorm(byRows({{1, inf}}), 1, 2), SameBits(inf));
}

TEST(RowSumNorm, CountsACellOutsideTheTableAsOne)
{
    EXPECT_THAT(M_RowSumNorm(byRows({{5, 6}}), 1, 4), SameBits(13));
    TableColumns columns({{5}, {6, 7}});
    EXPECT_THAT(M_RowSumNormSPV(columns, 2, 2), SameBits(11));
    EXPECT_THAT(M_RowSumNormSPV(columns, 3, 1), SameBits(5));
    TableColumns lower({{5, 6}, {7}, {}});
    EXPECT_THAT(M_RowSumNormSPV_T(lower, 3, 3), SameBits(14)) << "6, 7 and one outside";
}

TEST(RowSumNorm, OfATriangleRunsOverWholeSymmetricRows)
{
    TableColumns lower({{1, -2, 3}, {4, -5}, {6}});
    EXPECT_THAT(M_RowSumNormSPV_T(lower, 3, 3), SameBits(14)) << "3, -5, 6";
    EXPECT_THAT(M_RowSumNormSPV_T(lower, 2, 3), SameBits(11)) << "-2, 4, -5";
    EXPECT_THAT(M_RowSumNormSPV_T(lower, 3, 2), SameBits(8)) << "3, -5";
}

} // namespace
} // namespace vecmat::test
