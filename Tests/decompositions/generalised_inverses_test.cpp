// Moore-Penrose inverses.
#include "decompositions/generalised_inverses.h"

#include "decompositions/residuals.h"
#include "decompositions/singular_values.h"
#include "elementary/diagonal_products.h"
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

struct Inverse
{
    int status;
    int rank;
    std::vector<double> out;
};

enum class Form { general, columns, symmetric };

Inverse inverted(const std::vector<double>& cells, int n, double tol, Form form = Form::general)
{
    const Owned<matrix> a = table(n, n, cells);
    TableColumns columns(n, n, cells);
    const Owned<matrix> out = filled(n, n, 77.0);
    Inverse result{7, 77, {}};
    if (form == Form::general)
        result.status = M_InvGeneralized(a, n, out, tol, &result.rank);
    else if (form == Form::columns)
        result.status = M_InvGeneralizedSPV(columns, n, out, tol, &result.rank);
    else
        result.status = M_InvGeneralizedSym(a, n, out, tol, &result.rank);
    EXPECT_THAT(cellsOf(a), SameBits(cells));
    EXPECT_THAT(columns.cells(), SameBits(cells));
    result.out = cellsOf(out);
    return result;
}

/// A product of random n by rank factors.
std::vector<double> ofRank(int n, int rank, RandomData& data)
{
    const auto count = static_cast<std::size_t>(n) * static_cast<std::size_t>(rank);
    const Wide left(n, rank, data.normals(count));
    const Wide right(rank, n, data.normals(count));
    const Wide product = left * right;
    return squareOf(n, [&](int i, int j) { return static_cast<double>(product.at(i, j)); });
}

void expectMoorePenrose(const std::vector<double>& cells, const std::vector<double>& inverse, int n)
{
    const Wide a(n, n, cells);
    const Wide x(n, n, inverse);
    const long double condition = a.norm() * x.norm();
    EXPECT_LT(residual(a * x * a - a, a.norm() * condition), residualBound) << n;
    EXPECT_LT(residual(x * a * x - x, x.norm() * condition), residualBound) << n;
    EXPECT_LT(residual((a * x).transposed() - a * x, condition), residualBound) << n;
    EXPECT_LT(residual((x * a).transposed() - x * a, condition), residualBound) << n;
}

TEST(MInvGeneralized, HasTheBitsOfItsSteps)
{
    RandomData data(801);
    SCOPED_TRACE(data);
    for (int n = 1; n <= 7; ++n) {
        const std::vector<double> cells = ofRank(n, (n + 1) / 2, data);
        const Owned<matrix> a = table(n, n, cells);
        const Owned<matrix> s = filled(n, 1, 0.0);
        const Owned<matrix> u = filled(n, n, 0.0);
        const Owned<matrix> v = filled(n, n, 0.0);
        int info = 0;
        M_SVDecomp(a, n, n, s, u, v, 21, &info);
        for (int i = 1; i <= n; ++i)
            s->vbset(i, 1, s->vbget(i, 1) >= 1e-8 ? 1.0 / s->vbget(i, 1) : 0.0);
        const Owned<matrix> expected = filled(n, n, 0.0);
        M_ProductADiagVTrB(v, n, n, s, u, n, expected);
        const Inverse inverse = inverted(cells, n, 1e-8);
        EXPECT_EQ(inverse.status, 0);
        EXPECT_EQ(inverse.rank, (n + 1) / 2);
        EXPECT_THAT(inverse.out, SameBits(cellsOf(expected))) << n;
        EXPECT_THAT(inverted(cells, n, 1e-8, Form::columns).out, SameBits(inverse.out)) << n;
    }
}

TEST(MInvGeneralized, MeetsTheConditionsOfMooreAndPenrose)
{
    RandomData data(802);
    SCOPED_TRACE(data);
    for (const int n : {1, 2, 6, 30, 100})
        for (const int rank : {n, (n + 1) / 2, 1}) {
            const std::vector<double> cells = ofRank(n, rank, data);
            const Inverse inverse = inverted(cells, n, 1e-8);
            EXPECT_EQ(inverse.status, 0);
            EXPECT_EQ(inverse.rank, rank);
            expectMoorePenrose(cells, inverse.out, n);
        }
}

TEST(MInvGeneralized, InvertsAZeroTableToZero)
{
    const Inverse inverse = inverted({0, 0, 0, 0}, 2, 1e-12);
    EXPECT_EQ(inverse.status, 0);
    EXPECT_EQ(inverse.rank, 0);
    EXPECT_THAT(inverse.out, testing::Each(0.0));
}

TEST(MInvGeneralized, CountsAValueEqualToTheTolerance)
{
    const std::vector<double> cells{2, 0, 0, 0.5};
    const Inverse equal = inverted(cells, 2, 0.5);
    EXPECT_EQ(equal.rank, 2);
    EXPECT_THAT(equal.out, SameBits({0.5, 0, 0, 2}));
    const Inverse below = inverted(cells, 2, std::nextafter(0.5, 1.0));
    EXPECT_EQ(below.rank, 1);
    EXPECT_THAT(below.out[0], SameBits(0.5));
    EXPECT_EQ(below.out[3], 0.0);
    EXPECT_EQ(inverted(cells, 2, 3.0).rank, 0);
}

TEST(MInvGeneralized, JudgesEachValueForItselfWhereTheDecompositionFails)
{
    // The first value is 0, the others do not converge: sorted values would end at the first.
    const std::vector<double> cells{0, 0, 0, 0, notANumber, 1, 0, 1, 2};
    const Inverse inverse = inverted(cells, 3, 1e-12);
    EXPECT_EQ(inverse.status, -1);
    EXPECT_EQ(inverse.rank, 2);
    EXPECT_TRUE(std::isnan(inverse.out[8]));
    EXPECT_EQ(inverted(cells, 3, 1e-12, Form::columns).status, -1);
    EXPECT_EQ(inverted(cells, 3, 1e-12, Form::symmetric).status, -1);
    EXPECT_EQ(inverted(cells, 3, 1e-12, Form::symmetric).rank, 2);
}

TEST(MInvGeneralizedSym, AgreesForEigenvaluesThatAreNotNegative)
{
    RandomData data(803);
    SCOPED_TRACE(data);
    for (const int n : {1, 2, 5, 30}) {
        const TestMatrix m = gramMatrix(randomMatrix(n, data), 0.1);
        const Inverse symmetric = inverted(m.cells, n, 1e-12, Form::symmetric);
        const Inverse general = inverted(m.cells, n, 1e-12);
        EXPECT_EQ(symmetric.status, 0);
        EXPECT_EQ(symmetric.rank, n);
        const Wide expected(n, n, general.out);
        const Wide a(n, n, m.cells);
        EXPECT_LT(residual(Wide(n, n, symmetric.out) - expected, expected.norm() * expected.norm() * a.norm()),
                  residualBound);
        expectMoorePenrose(m.cells, symmetric.out, n);
    }
}

TEST(MInvGeneralizedSym, LosesTheSignOfANegativeEigenvalue)
{
    EXPECT_NEAR(inverted({-2}, 1, 1e-12).out[0], -0.5, 1e-16);
    EXPECT_NEAR(inverted({-2}, 1, 1e-12, Form::symmetric).out[0], 0.5, 1e-16);
}

TEST(GeneralisedInverses, HaveFlatForms)
{
    Guarded<double> a{2, 0, 0, 0};
    Guarded<double> out(4, 77.0);
    int rank = 7;
    EXPECT_EQ(VB_M_InvGeneralized(a, 2, out, 1e-12, &rank), 0);
    EXPECT_EQ(rank, 1);
    EXPECT_THAT(out.values(), SameBits(inverted({2, 0, 0, 0}, 2, 1e-12).out));
    EXPECT_EQ(VB_M_InvGeneralizedSym(a, 2, out, 1e-12, &rank), 0);
    EXPECT_THAT(out.values(), SameBits(inverted({2, 0, 0, 0}, 2, 1e-12, Form::symmetric).out));
    EXPECT_TRUE(a.untouched());
    Guarded<double> none(0, 0.0);
    EXPECT_EQ(VB_M_InvGeneralized(none, 0, none, 1e-12, &rank), 0);
    EXPECT_EQ(rank, 0);
}

} // namespace
} // namespace vecmat::test
