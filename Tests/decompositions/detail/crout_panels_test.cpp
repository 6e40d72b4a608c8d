// Tables large enough for panels are factored to the bits of the plain steps: at orders around the edges of a
// tile and of a strip, with ties, zeros of both signs, NaN and infinities.
#include "decompositions/determinants.h"

#include "decompositions/crout_cases.h"
#include "decompositions/lu_calls.h"
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// Multiples of 4, 8, 12, 16, 24 and 32, and their neighbours, from below the least order of the panels on.
constexpr std::array orders = {30, 31, 32, 33, 35, 36, 37, 39, 40, 41, 47, 48, 49, 63, 64, 65, 71, 72, 73, 95, 96, 97};

void expectPlainSteps(const std::vector<double>& cells, int n)
{
    SCOPED_TRACE(n);
    expectSame(factored(table(n, n, cells), n), referenceOf(table(n, n, cells), n));
}

TEST(CroutByPanels, HasTheBitsOfThePlainSteps)
{
    RandomData data(1201);
    SCOPED_TRACE(data);
    for (const int n : orders)
        expectPlainSteps(data.normals(squared(n)), n);
}

TEST(CroutByPanels, TakesTheLastOfEqualCandidatesAndReplacesZeroPivots)
{
    RandomData data(1202);
    SCOPED_TRACE(data);
    for (const int n : orders) {
        std::vector<double> cells = tiesAndZeros(n, data);
        expectPlainSteps(cells, n);
        // A column that occurs again leaves nothing of itself.
        std::copy_n(cells.begin() + n, n, cells.begin() + std::ptrdiff_t{n} * (n / 2));
        expectPlainSteps(cells, n);
        EXPECT_NE(factored(table(n, n, cells), n).index, referenceOf(table(n, n, cells), n, Tie::first).index);
    }
}

TEST(CroutByPanels, HasThoseBitsForNaNAndInfinityToo)
{
    RandomData data(1203);
    SCOPED_TRACE(data);
    for (const int n : orders)
        expectPlainSteps(data.withSpecials(data.normals(squared(n)), 1.5 / double(squared(n))), n);
}

TEST(CroutByPanels, LeavesAColumnWithoutACandidateToThePlainSteps)
{
    RandomData data(1204);
    SCOPED_TRACE(data);
    for (const int n : {32, 49})
        for (const int j : {0, 1, 3, 4, 7, 8, 9, 12, 24, 31, n - 1}) {
            std::vector<double> cells = data.normals(squared(n));
            std::fill_n(cells.begin() + std::ptrdiff_t{n} * j, n, notANumber);
            expectPlainSteps(cells, n);
        }
}

TEST(CroutByPanels, LeavesATableWithARowOfZeros)
{
    RandomData data(1205);
    std::vector<double> cells = data.normals(squared(40));
    for (std::size_t j = 0; j < 40; ++j)
        cells[39 + 40 * j] = 0.0;
    EXPECT_EQ(factored(table(40, 40, cells), 40).status, -1);
    EXPECT_THAT(factored(table(40, 40, cells), 40).cells, SameBits(cells));
}

TEST(CroutByPanels, WorksOnTheTopLeftCornerOfALargerTable)
{
    RandomData data(1206);
    SCOPED_TRACE(data);
    const int n = 50;
    for (const auto& [rows, cols] : {std::pair{57, 50}, {50, 53}, {54, 54}, {49, 60}, {50, 49}}) {
        const std::vector<double> cells = data.normals(std::size_t(rows) * std::size_t(cols));
        EXPECT_THAT(factored(table(rows, cols, cells), n).cells,
                    SameBits(referenceOf(table(rows, cols, cells), n).cells))
            << rows << ' ' << cols;
    }
}

TEST(CroutByPanels, PassesResidualTestsInTheDeterminant)
{
    // Of a triangular table with known pivots, rows and columns shuffled by a product with a permutation.
    const int n = 60;
    RandomData data(1207);
    std::vector<double> cells(squared(n), 0.0);
    for (int i = 0; i < n; ++i)
        for (int j = i; j < n; ++j)
            cells[std::size_t((n - 1 - i) + n * j)] = i == j ? (i % 2 == 0 ? 2.0 : 0.5) : data.uniform(-0.01, 0.01);
    short status = 7;
    // 60 rows in reverse are 30 exchanges.
    EXPECT_NEAR(M_Determinant(table(n, n, cells), n, &status, 0), 1.0, 1e-12);
    EXPECT_EQ(status, 0);
}

TEST(CroutByPanels, WithoutMemoryForThemIsThePlainForm)
{
    const int n = 40;
    RandomData data(1208);
    const std::vector<double> cells = data.normals(squared(n));
    const Factors expected = referenceOf(table(n, n, cells), n);
    Owned<matrix> a = table(n, n, cells);
    Owned<matrixInt> index = intColumn(std::vector<int>(n, 0));
    double d = 0.0;
    short status = 0;
    expectFallbackAtEachFailure(
        [&] {
            std::copy(cells.begin(), cells.end(), a->X);
            M_LUDecomp(a, n, index, &d, &status);
        },
        [&] {
            EXPECT_TRUE(std::equal(expected.cells.begin(), expected.cells.end(), a->X));
            EXPECT_TRUE(std::equal(expected.index.begin(), expected.index.end(), index->X));
            EXPECT_EQ(d, expected.d);
        });
}

} // namespace
} // namespace vecmat::test
