// Forward Doolittle reduction and Hermite canonical form.
#include "decompositions/echelon_forms.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace vecmat::test {
namespace {

/// Which rows are divided when a pivot is taken off.
enum class Divided { nextRow, everyRow, noRow };

/// The steps in their order, on checked cells.
void referenceDoolittle(matrix& a, int n, matrix& out, Divided divided = Divided::nextRow)
{
    for (int i = 1; i <= n; ++i)
        for (int j = i; j <= n; ++j) {
            out.vbset(i, j, a.vbget(i, j));
            out.vbset(j, i, a.vbget(i, j));
        }
    for (int i = 1; i <= n; ++i) {
        if (std::fabs(out.vbget(i, i)) <= 1e-12) {
            for (int c = i; c <= n; ++c)
                out.vbset(i, c, 0.0);
        } else {
            if (std::fabs(out.vbget(i, i) - 1.0) > 1e-12) {
                for (int j = i + 1; j <= n; ++j)
                    out.vbset(i, j, out.vbget(i, j) / out.vbget(i, i));
                out.vbset(i, i, 1.0);
            }
            for (int r = i + 1; r <= n; ++r) {
                double q = 1.0;
                if (divided == Divided::everyRow || (divided == Divided::nextRow && r == i + 1))
                    q = out.vbget(r, r) - out.vbget(r, i) * out.vbget(i, r);
                if (std::fabs(q) > 1e-12) {
                    for (int c = i + 1; c <= n; ++c)
                        out.vbset(r, c, (out.vbget(r, c) - out.vbget(r, i) * out.vbget(i, c)) / q);
                    out.vbset(r, i, 0.0);
                } else {
                    for (int c = i; c <= n; ++c)
                        out.vbset(r, c, 0.0);
                }
            }
        }
        for (int r = i + 1; r <= n; ++r)
            out.vbset(r, i, 0.0);
    }
}

void referenceHermite(matrix& a, int n, matrix& h)
{
    referenceDoolittle(a, n, h);
    for (int i = 2; i <= n; ++i)
        if (std::fabs(h.vbget(i, i) - 1.0) < 1e-12)
            for (int k = 1; k < i; ++k)
                if (std::fabs(h.vbget(k, i)) > 1e-12) {
                    for (int c = i + 1; c <= n; ++c)
                        h.vbset(k, c, h.vbget(k, c) - h.vbget(k, i) * h.vbget(i, c));
                    h.vbset(k, i, 0.0);
                }
}

std::vector<double> doolittle(matrix* a, int n)
{
    const Owned<matrix> out = filled(n, n, 77.0);
    M_ForwardDoolittle(a, n, out);
    return cellsOf(out);
}

std::vector<double> hermite(matrix* a, int n)
{
    const Owned<matrix> out = filled(n, n, 77.0);
    M_HermiteCanonical(a, n, out);
    return cellsOf(out);
}

TEST(MForwardDoolittle, HasTheBitsOfTheStepsInTheirOrder)
{
    RandomData data(761);
    SCOPED_TRACE(data);
    for (int round = 0; round < 300; ++round) {
        const int rows = data.integer(1, 6);
        const int cols = data.integer(1, 6);
        const int n = round % 2 == 0 ? rows : data.integer(0, 7);
        const auto count = static_cast<std::size_t>(rows * cols);
        const std::vector<double> cells = round % 3 == 0
                                              ? data.normals(count)
                                              : data.withSpecials(data.wholes(count, -1, 2), round % 3 == 1 ? 0 : 0.1);
        const Owned<matrix> a = table(rows, cols, cells);
        const std::vector<double> leftovers = data.leftovers(static_cast<std::size_t>(rows * cols));
        const Owned<matrix> out = table(rows, cols, leftovers);
        const Owned<matrix> expected = table(rows, cols, leftovers);
        M_ForwardDoolittle(a, n, out);
        referenceDoolittle(*a, n, *expected);
        EXPECT_THAT(cellsOf(out), SameBits(cellsOf(expected))) << rows << " " << cols << " " << n;
        M_HermiteCanonical(a, n, out);
        referenceHermite(*a, n, *expected);
        EXPECT_THAT(cellsOf(out), SameBits(cellsOf(expected))) << rows << " " << cols << " " << n;
        EXPECT_THAT(cellsOf(a), SameBits(cells));
    }
}

TEST(MForwardDoolittle, GivesPivotsOfOneAndZerosBelow)
{
    EXPECT_THAT(doolittle(byRows({{4, 2}, {2, 3}}), 2), SameBits({1, 0, 0.5, 1}));
    // A dependent row vanishes.
    EXPECT_THAT(doolittle(byRows({{4, 2, 4}, {2, 1, 2}, {4, 2, 8}}), 3), SameBits({1, 0, 0, 0.5, 0, 0, 1, 0, 1}));
}

TEST(MForwardDoolittle, DividesOnlyTheRowRightBelowThePivot)
{
    const auto reference = [](const Owned<matrix>& a, Divided divided) {
        const Owned<matrix> out = filled(a->nRows, a->nRows, 0.0);
        referenceDoolittle(*a.get(), a->nRows, *out, divided);
        return cellsOf(out);
    };
    // Row 2 is divided by its new pivot, which it would keep as near enough to 1.
    const Owned<matrix> nearlyOne = byRows({{1, 0}, {0, 1 + 0x1p-41}});
    EXPECT_THAT(doolittle(nearlyOne, 2), SameBits({1, 0, 0, 1}));
    EXPECT_THAT(reference(nearlyOne, Divided::noRow), SameBits({1, 0, 0, 1 + 0x1p-41}));
    // Row 3 is not: it keeps its 1e-13 of row 1 until its own turn, when -8 has come of it.
    const Owned<matrix> graded = byRows({{1, 1, 1}, {1, 3, 5}, {1, 5, 1 + 1e-13}});
    EXPECT_THAT(doolittle(graded, 3), SameBits(reference(graded, Divided::nextRow)));
    EXPECT_THAT(doolittle(graded, 3), testing::Not(SameBits(reference(graded, Divided::everyRow))));
}

TEST(MForwardDoolittle, ZeroesTheNextRowWhereItsPivotWouldVanish)
{
    // 1 - 1*1 is 0 for row 2: cleared at once, although its cell (2, 3) would be 2 - 1.
    EXPECT_THAT(doolittle(byRows({{1, 1, 1}, {1, 1, 2}, {1, 2, 9}}), 3), SameBits({1, 0, 0, 1, 0, 0, 1, 0, 1}));
}

TEST(MForwardDoolittle, TakesASmallPivotForZero)
{
    EXPECT_THAT(doolittle(byRows({{1e-12, 5}, {5, 4}}), 2), SameBits({0, 0, 0, 1}));
    const double above = std::nextafter(1e-12, 1.0);
    EXPECT_THAT(doolittle(column({above}), 1), SameBits({1}));
    EXPECT_THAT(doolittle(column({-1e-12}), 1), SameBits({0}));
}

TEST(MForwardDoolittle, LeavesAPivotThatIsOneWithinTheTolerance)
{
    const double nearlyOne = 1.0 + 0x1p-41;
    EXPECT_THAT(doolittle(byRows({{nearlyOne, 3}, {3, 20}}), 2)[0], SameBits(nearlyOne));
    EXPECT_THAT(doolittle(byRows({{nearlyOne, 3}, {3, 20}}), 2)[2], SameBits(3.0));
}

TEST(MForwardDoolittle, ReadsTheUpperTriangleOnly)
{
    EXPECT_THAT(doolittle(byRows({{4, 2}, {99, 3}}), 2), SameBits({1, 0, 0.5, 1}));
    // So that the table may be its own result.
    const Owned<matrix> a = byRows({{4, 2}, {99, 3}});
    M_ForwardDoolittle(a, 2, a);
    EXPECT_THAT(cellsOf(a), SameBits({1, 0, 0.5, 1}));
}

TEST(MHermiteCanonical, BringsTheCellsAboveThePivotsToZero)
{
    EXPECT_THAT(hermite(byRows({{4, 2}, {2, 3}}), 2), SameBits({1, 0, 0, 1}));
    EXPECT_THAT(hermite(byRows({{4, 2, 4}, {2, 1, 2}, {4, 2, 8}}), 3), SameBits({1, 0, 0, 0.5, 0, 0, 0, 0, 1}));
}

TEST(MHermiteCanonical, TakesAPivotNearOneForOne)
{
    // Row 3 is the next of no pivot, so that nothing divides it.
    const double nearlyOne = 1 + 0x1p-41;
    EXPECT_THAT(hermite(byRows({{1, 0, 0.5}, {0, 0, 0}, {0.5, 0, 0.25 + nearlyOne}}), 3),
                SameBits({1, 0, 0, 0, 0, 0, 0, 0, nearlyOne}));
}

TEST(MHermiteCanonical, IsIdempotentForAPositiveSemidefiniteTable)
{
    // x'x of a design with a constant and two groups: rank 2 of 3.
    const Owned<matrix> a = byRows({{5, 2, 3}, {2, 2, 0}, {3, 0, 3}});
    const std::vector<double> h = hermite(a, 3);
    const std::vector<double> expected{1, 0, 0, 0, 1, 0, 1, -1, 0};
    for (std::size_t k = 0; k < h.size(); ++k)
        EXPECT_NEAR(h[k], expected[k], 1e-15) << k;
}

TEST(EchelonForms, WorkOnTheTopLeftCorner)
{
    const Owned<matrix> out = filled(3, 3, 77.0);
    M_HermiteCanonical(byRows({{4, 2, 9}, {2, 3, 9}, {9, 9, 9}}), 2, out);
    EXPECT_THAT(cellsOf(out), SameBits({1, 0, 77, 0, 1, 77, 77, 77, 77}));
    M_ForwardDoolittle(byRows({{4}}), 0, out);
    EXPECT_THAT(cellsOf(out), SameBits({1, 0, 77, 0, 1, 77, 77, 77, 77}));
}

TEST(EchelonForms, HaveFlatForms)
{
    Guarded<double> a{4, 2, 2, 3};
    Guarded<double> out(4, 77.0);
    Cpp_M_ForwardDoolittle(a, 2, out);
    EXPECT_THAT(out.values(), SameBits({1, 0, 0.5, 1}));
    Cpp_M_HermiteCanonical(a, 2, out);
    EXPECT_THAT(out.values(), SameBits({1, 0, 0, 1}));
    EXPECT_TRUE(a.untouched());
}

} // namespace
} // namespace vecmat::test
