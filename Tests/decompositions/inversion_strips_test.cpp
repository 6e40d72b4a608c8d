// Inverses of tables that are large enough for several columns side by side have the bits of the plain steps.
#include "decompositions/inversion.h"

#include "decompositions/crout_cases.h"
#include "decompositions/crout_reference.h"
#include "decompositions/triangular_reference.h"
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// Around the multiples of 8, 16, 24 and 32, and small ones.
constexpr std::array orders = {3, 5, 6, 7, 9, 15, 16, 17, 23, 24, 25, 31, 32, 33, 47, 48, 49, 63, 64, 65, 95, 96, 97};

struct Inversion
{
    int result;
    std::vector<double> out;
};

Inversion inverted(matrix* a, double tol)
{
    const Owned<matrix> out = filled(a->nRows, a->nRows, 77.0);
    short status = 0;
    const int result = a->inverse1(out, status, tol);
    return {result, cellsOf(out)};
}

void expectPlainSteps(const std::vector<double>& cells, int n, double tol = 0.0)
{
    SCOPED_TRACE(n);
    const Owned<matrix> expected = filled(n, n, 77.0);
    const Owned<matrix> a = table(n, n, cells);
    const int result = referenceInverse(*a, n, tol, *expected);
    const Inversion actual = inverted(a, tol);
    EXPECT_EQ(actual.result, result);
    EXPECT_THAT(actual.out, SameBits(cellsOf(expected)));
    Columns<matrix> columns(n, n, cells);
    const Owned<matrix> out = filled(n, n, 77.0);
    EXPECT_EQ(Inverse1SPV(columns, out, n, n, 0, tol), result);
    EXPECT_THAT(cellsOf(out), SameBits(cellsOf(expected)));
}

TEST(InverseSideBySide, HasTheBitsOfThePlainSteps)
{
    RandomData data(1211);
    SCOPED_TRACE(data);
    for (const int n : orders) {
        expectPlainSteps(data.normals(squared(n)), n);
        expectPlainSteps(data.normals(squared(n)), n, 1.0);
    }
}

TEST(InverseSideBySide, HasThemWithTiesAndZerosOfBothSigns)
{
    RandomData data(1212);
    SCOPED_TRACE(data);
    for (const int n : orders) {
        expectPlainSteps(tiesAndZeros(n, data), n);
        // Nearly all zeros: a permutation of a diagonal, with a few cells besides.
        std::vector<double> sparse(squared(n), -0.0);
        for (int i = 0; i < n; ++i) {
            sparse[std::size_t(i + n * ((i + 5) % n))] = data.uniform(0.5, 2.0);
            sparse[std::size_t(data.integer(0, n * n - 1))] = -0.25;
        }
        expectPlainSteps(sparse, n);
    }
}

TEST(InverseSideBySide, HasThemForNaNAndInfinity)
{
    RandomData data(1213);
    SCOPED_TRACE(data);
    for (const int n : orders)
        for (int round = 0; round < 4; ++round)
            expectPlainSteps(data.withSpecials(data.normals(squared(n)), 1.5 / double(squared(n))), n, -1.0);
}

TEST(InverseSideBySide, KeepsTheTermsBeforeTheFirstOutOfTheSums)
{
    // L has an infinity below a pivot, as far down as the strip goes: times the zeros before the one of a unit vector
    // it would make NaN of them.
    for (const int n : {8, 40}) {
        std::vector<double> cells(squared(n), 0.0);
        for (int i = 0; i < n; ++i)
            cells[std::size_t(i + n * i)] = 1.0;
        cells[0] = 1e-10;
        cells[std::size_t(n * (n - 1))] = 1e300;
        cells[std::size_t(n - 1)] = 1e299;
        cells[std::size_t(n - 1 + n * (n - 1))] = inf;
        expectPlainSteps(cells, n, -1.0);
        cells[std::size_t(n - 1 + n * (n - 1))] = notANumber;
        expectPlainSteps(cells, n, -1.0);
    }
}

TEST(InverseSideBySide, LeavesAColumnWithoutACandidateToThePlainSteps)
{
    RandomData data(1214);
    SCOPED_TRACE(data);
    for (const int n : {8, 40})
        for (const int j : {0, 1, 5, n - 1}) {
            std::vector<double> cells = data.normals(squared(n));
            std::fill_n(cells.begin() + std::ptrdiff_t{n} * j, n, notANumber);
            expectPlainSteps(cells, n);
        }
}

TEST(InverseSideBySide, EndsAtASmallPivotWithTheResultUntouched)
{
    RandomData data(1215);
    const int n = 50;
    std::vector<double> cells = data.normals(squared(n));
    std::copy_n(cells.begin(), n, cells.begin() + std::ptrdiff_t{n} * 37);
    expectPlainSteps(cells, n, 1.0);
    EXPECT_THAT(inverted(table(n, n, cells), 1.0).out, SameBits(std::vector<double>(squared(n), 77.0)));
}

TEST(InverseSideBySide, ShowsTheOrderOfTheColumnsInAResultWhoseRowsRunOver)
{
    RandomData data(1216);
    SCOPED_TRACE(data);
    const int n = 40;
    const Owned<matrix> a = table(n, n, data.normals(squared(n)));
    for (const auto& [rows, cols] : {std::pair{39, 60}, {40, 39}, {45, 41}}) {
        const Owned<matrix> out = filled(rows, cols, 77.0);
        const Owned<matrix> expected = filled(rows, cols, 77.0);
        short status = 0;
        EXPECT_EQ(a->inverse1(out, status, 0.0), 0);
        EXPECT_EQ(referenceInverse(*a, n, 0.0, *expected), 0);
        EXPECT_THAT(cellsOf(out), SameBits(cellsOf(expected))) << rows << ' ' << cols;
    }
}

TEST(InverseSideBySide, WithoutMemoryForItIsThePlainForm)
{
    const int n = 40;
    RandomData data(1217);
    const Owned<matrix> a = table(n, n, data.normals(squared(n)));
    const Owned<matrix> expected = filled(n, n, 0.0);
    ASSERT_EQ(referenceInverse(*a, n, 0.0, *expected), 0);
    const Owned<matrix> out = filled(n, n, 0.0);
    expectFallbackAtEachFailure(
        [&] {
            std::fill_n(out->X, n * n, 77.0);
            short status = 0;
            a->inverse1(out, status, 0.0);
        },
        [&] { EXPECT_THAT(cellsOf(out), SameBits(cellsOf(expected))); });
}

// ---- triangular tables ----------------------------------------------------------------------------------------------

TEST(InverseSideBySide, OfATriangleHasTheBitsOfThePlainSteps)
{
    RandomData data(1218);
    SCOPED_TRACE(data);
    for (const int n : orders)
        for (const bool lower : {true, false})
            for (int kind = 0; kind < 3; ++kind) {
                std::vector<double> cells = kind == 1 ? data.wholes(squared(n), -1, 1) : data.normals(squared(n));
                if (kind == 2)
                    cells = data.withSpecials(cells, 2.0 / double(squared(n)));
                const std::vector<double> leftovers = data.leftovers(squared(n));
                const Owned<matrix> a = table(n, n, cells);
                Owned<matrix> out = table(n, n, leftovers);
                const Owned<matrix> expected = table(n, n, leftovers);
                EXPECT_EQ(M_InverseTriang(a, n, lower ? -1 : 0, out, -1.0), 0);
                referenceTriangularInverse(*a, n, lower, *expected, -1.0);
                EXPECT_THAT(cellsOf(out), SameBits(cellsOf(expected))) << n << lower << kind;
            }
}

TEST(InverseSideBySide, OfATriangleShowsTheOrderOfTheResultsInATableWhoseRowsRunOver)
{
    RandomData data(1220);
    SCOPED_TRACE(data);
    const int n = 40;
    const Owned<matrix> a = table(n, n, data.uniforms(squared(n), 0.5, 1.5));
    for (const bool lower : {true, false}) {
        Owned<matrix> out = filled(n - 3, n + 5, 77.0);
        const Owned<matrix> expected = filled(n - 3, n + 5, 77.0);
        EXPECT_EQ(M_InverseTriang(a, n, lower ? -1 : 0, out, 0.0), 0);
        EXPECT_EQ(referenceTriangularInverse(*a, n, lower, *expected, 0.0), 0);
        EXPECT_THAT(cellsOf(out), SameBits(cellsOf(expected))) << lower;
    }
}

TEST(InverseSideBySide, OfATriangleOverItselfShowsTheOrderOfTheResults)
{
    RandomData data(1219);
    SCOPED_TRACE(data);
    const int n = 40;
    for (const bool lower : {true, false}) {
        std::vector<double> memory = data.uniforms(squared(n) + 9, 0.5, 1.5);
        std::vector<double> expected = memory;
        for (std::vector<double>* cells : {&memory, &expected}) {
            matrix a(n, n, cells->data(), true);
            matrix* out = new matrix(n, n, cells->data() + 9, true);
            const Owned<matrix> owner(out);
            if (cells == &memory)
                M_InverseTriang(&a, n, lower ? -1 : 0, out, -1.0);
            else
                referenceTriangularInverse(a, n, lower, *out, -1.0);
        }
        EXPECT_THAT(memory, SameBits(expected)) << lower;
    }
}

} // namespace
} // namespace vecmat::test
