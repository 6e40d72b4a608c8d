// The power iteration, and the 2-norm built on the eigenvalues.
#include "decompositions/eigen.h"

#include "decompositions/eigen_reference.h"
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

struct ReferencePower
{
    std::vector<double> v;
    int turns = 0;
};

/// Step by step on plain vectors; the table column after column.
ReferencePower powerBySteps(const std::vector<double>& a, std::size_t n)
{
    ReferencePower result;
    std::vector<double>& v = result.v;
    v.assign(n, 1.0);
    while (result.turns < 1000) {
        ++result.turns;
        std::vector<double> w(n, 0.0);
        for (std::size_t i = 0; i < n; ++i)
            for (std::size_t k = 0; k < n; ++k)
                w[i] += a[i + k * n] * v[k];
        double lambda = 0.0;
        for (std::size_t i = 0; i < n; ++i)
            lambda += v[i] * w[i];
        double differences = 0.0;
        double squares = 0.0;
        const double reciprocal = 1.0 / lambda;
        for (std::size_t i = 0; i < n; ++i) {
            const double t = lambda * v[i];
            differences += (w[i] - t) * (w[i] - t);
            squares += t * t;
            v[i] = reciprocal * w[i];
        }
        const double error = std::sqrt(differences) / std::sqrt(squares);
        if (error <= 1e-6 || error != error)
            break;
    }
    return result;
}

std::vector<double> iterated(int n, const std::vector<double>& cells)
{
    Owned<matrix> v;
    EXPECT_EQ(M_VonMises(table(n, n, cells), v, n), 0);
    return cellsOf(v);
}

TEST(VonMises, HasTheBitsOfTheStepsInTheirOrder)
{
    RandomData data(8111);
    SCOPED_TRACE(data);
    bool converged = false;
    bool ranOut = false;
    for (int round = 0; round < 24; ++round) {
        const int n = data.integer(1, 6);
        const auto count = static_cast<std::size_t>(n * n);
        const std::vector<double> cells = round % 4 == 3 ? data.withSpecials(data.wholes(count, -2, 2), 0.1)
                                                         : data.uniforms(count, round % 2 == 0 ? 0.1 : -1.0, 1.0);
        // A missing cell of the products would be kept as it is; none occurs here.
        const ReferencePower expected = powerBySteps(cells, static_cast<std::size_t>(n));
        EXPECT_THAT(iterated(n, cells), SameBits(expected.v)) << round;
        converged = converged || (expected.turns > 1 && expected.turns < 1000);
        ranOut = ranOut || expected.turns == 1000;
    }
    EXPECT_TRUE(converged);
    EXPECT_TRUE(ranOut);
}

TEST(VonMises, DividesByTheRayleighProductAndNotByTheLength)
{
    // The vector goes to a multiple of the eigenvector whose squared length is 1 / (v' v): here of (1, 1) for 3.
    const std::vector<double> v = iterated(2, {2, 1, 1, 2});
    EXPECT_THAT(v, SameBits(powerBySteps({2, 1, 1, 2}, 2).v));
    // From (1, 1): w = (3, 3), lambda = 6, v = (0.5, 0.5); and w = 1.5, lambda = 1.5, v = (1, 1): it never settles.
    EXPECT_EQ(powerBySteps({2, 1, 1, 2}, 2).turns, 1000);
    EXPECT_THAT(v, SameBits({1, 1}));
    // A table of one cell ends at once: w = 4, lambda = 4, t = 4.
    EXPECT_THAT(iterated(1, {4}), SameBits({1}));
}

TEST(VonMises, ReportsTheLimitAsSuccess)
{
    Owned<matrix> v;
    EXPECT_EQ(M_VonMises(byRows({{2, 1}, {1, 2}}), v, 2), 0);
}

TEST(VonMises, StartsFromOnesWhateverTheVectorHeld)
{
    const Owned<matrix> a = byRows({{0.5, 0.1}, {0.1, 0.3}});
    Owned<matrix> v = column({notANumber, M});
    matrix* const same = v;
    EXPECT_EQ(M_VonMises(a, v, 2), 0);
    EXPECT_EQ(v.get(), same);
    EXPECT_THAT(cellsOf(v), SameBits(powerBySteps({0.5, 0.1, 0.1, 0.3}, 2).v));

    Owned<matrix> longer = column({5, 6, 7, 8});
    EXPECT_EQ(M_VonMises(a, longer, 2), 0);
    EXPECT_THAT(cornerOf(longer, 2, 1), SameBits(cellsOf(v)));
    EXPECT_THAT(cellsOf(longer)[2], SameBits(7));
    EXPECT_THAT(cellsOf(longer)[3], SameBits(8));

    Owned<matrix> shorter = column({5});
    EXPECT_EQ(M_VonMises(a, shorter, 2), 0);
    EXPECT_THAT(cellsOf(shorter), SameBits(cellsOf(v)));
}

TEST(VonMises, EndsWhereTheRayleighProductIsZero)
{
    // v'Av of ones is 0: 1 / 0 times (1, -1), and t = 0, so that the error is infinite; then it is not a number.
    const std::vector<double> v = iterated(2, {1, 0, 0, -1});
    EXPECT_EQ(powerBySteps({1, 0, 0, -1}, 2).turns, 2);
    EXPECT_TRUE(std::isnan(v[0]));
    EXPECT_TRUE(std::isnan(v[1]));
    // A zero table: 0 / 0 in the first turn.
    EXPECT_EQ(powerBySteps({0, 0, 0, 0}, 2).turns, 1);
    EXPECT_TRUE(std::isnan(iterated(2, {0, 0, 0, 0})[0]));
}

TEST(VonMises, OfNoCellsMakesAnEmptyVector)
{
    Owned<matrix> v;
    EXPECT_EQ(M_VonMises(byRows({{5}}), v, 0), 0);
    EXPECT_EQ(v->nElems, 0u);
}

// ---- the 2-norm ----

TEST(Norm2, OfOneColumnIsTheRootOfItsSumOfSquares)
{
    EXPECT_THAT(getNorm2(column({3, 4})), SameBits(5));
    EXPECT_THAT(getNorm2(column({-7})), SameBits(7));
    EXPECT_THAT(getNorm2(filled(0, 1, 0.0)), SameBits(0));
    EXPECT_THAT(getNorm2(filled(3, 0, 0.0)), SameBits(0)) << "no column, no cell to read";
}

TEST(Norm2, OfOneColumnAddsTheRoundedSquaresFromTheTop)
{
    RandomData data(8111);
    SCOPED_TRACE(data);
    for (std::size_t n = 1; n <= 30; ++n) {
        const std::vector<double> x = data.normals(n);
        double sum = 0.0;
        for (const double cell : x) {
            const double square = cell * cell;
            sum += square;
        }
        EXPECT_THAT(getNorm2(column(x)), SameBits(std::sqrt(sum)));
    }
}

TEST(Norm2, IsTheRootOfTheFirstEigenvalueOfTheTableTimesItsTranspose)
{
    RandomData data(8112);
    SCOPED_TRACE(data);
    for (int round = 0; round < 20; ++round) {
        const int rows = data.integer(1, 6);
        const int cols = data.integer(2, 6);
        const std::vector<double> cells = data.normals(static_cast<std::size_t>(rows * cols));
        const Owned<matrix> a = table(rows, cols, cells);
        std::vector<double> product(static_cast<std::size_t>(rows * rows));
        for (int i = 1; i <= rows; ++i)
            for (int j = 1; j <= rows; ++j) {
                double sum = 0.0;
                for (int k = 1; k <= cols; ++k)
                    sum += a->vbget(i, k) * a->vbget(j, k);
                product[static_cast<std::size_t>((i - 1) + rows * (j - 1))] = sum;
            }
        EXPECT_THAT(getNorm2(a), SameBits(std::sqrt(sortedBySteps(product, rows).values[0])));
        EXPECT_THAT(cellsOf(a), SameBits(cells));
    }
}

TEST(Norm2, OfAProductThatHoldsTheMissingValueIsMissing)
{
    // a a' comes to the missing value itself, which has no eigenvalues.
    const double root = 0x1p511;
    EXPECT_THAT(getNorm2(byRows({{M / root / 2, 0}, {root * 2, 0}})), SameBits(M));
}

TEST(Norm2, OfAFlatTableIsZeroUnlessItIsSquare)
{
    Guarded<double> a({3, 0, 0, -4, 9, 9});
    EXPECT_THAT(Cpp_M_Norm2(a, 2, 2), SameBits(4));
    EXPECT_THAT(Cpp_M_Norm2(a, 2, 3), SameBits(0));
    EXPECT_THAT(Cpp_M_Norm2(a, 3, 2), SameBits(0));
    EXPECT_THAT(Cpp_M_Norm2(a, 1, 1), SameBits(3));
    EXPECT_THAT(Cpp_M_Norm2(a, 0, 0), SameBits(0));
    EXPECT_TRUE(a.untouched());
}

} // namespace
} // namespace vecmat::test
