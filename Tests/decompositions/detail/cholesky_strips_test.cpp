// Cholesky factors of tables that are large enough for strips have the bits of the plain steps.
#include "decompositions/cholesky.h"

#include "decompositions/cholesky_reference.h"
#include "decompositions/residuals.h"
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

namespace vecmat::test {
namespace {

// Around the least order of the strips and around multiples of 16 and 32.
constexpr std::array orders = {31, 32, 33, 39, 40, 41, 47, 48, 49, 63, 64, 65, 71, 72, 73, 79, 80, 81, 95, 96, 97, 129};

std::size_t squared(int n)
{
    return static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
}

std::vector<double> positiveDefinite(int n, RandomData& data)
{
    return gramMatrix(randomMatrix(n, data), 0.1).cells;
}

/// `tolerance` is the least pivot: that of the full factor, or 0.0 for a retained block of all rows.
void expectPlainSteps(const std::vector<double>& cells, int n, double tolerance = 1e-12)
{
    SCOPED_TRACE(n);
    const Owned<matrix> a = table(n, n, cells);
    const Owned<matrix> expected = filled(n, n, 0.0);
    const int status = referenceCholesky(*a, n, *expected, tolerance);
    Owned<matrix> l = filled(n, n, 77.0);
    if (tolerance > 0.0) {
        EXPECT_EQ(M_CholDecomp(a, n, l), status);
        EXPECT_THAT(cellsOf(l), SameBits(cellsOf(expected)));
    } else {
        EXPECT_EQ(M_CholDecompCleaned(a, n, filled(n, 1, 0.0), l), status);
        if (status == 0) {
            EXPECT_THAT(cellsOf(l), SameBits(cellsOf(expected)));
        }
    }
}

TEST(CholeskyByStrips, HasTheBitsOfThePlainSteps)
{
    RandomData data(1221);
    SCOPED_TRACE(data);
    for (const int n : orders) {
        const std::vector<double> cells = positiveDefinite(n, data);
        expectPlainSteps(cells, n);
        expectPlainSteps(cells, n, 0.0);
    }
}

TEST(CholeskyByStrips, ReadsNothingBelowTheDiagonal)
{
    RandomData data(1222);
    SCOPED_TRACE(data);
    for (const int n : orders) {
        std::vector<double> cells = positiveDefinite(n, data);
        for (int j = 0; j < n; ++j)
            for (int i = j + 1; i < n; ++i)
                cells[std::size_t(i + n * j)] = M;
        expectPlainSteps(cells, n);
    }
}

TEST(CholeskyByStrips, KeepsTheColumnsBeforeAPivotThatFails)
{
    RandomData data(1223);
    SCOPED_TRACE(data);
    for (const int n : {40, 70})
        for (const int failing : {0, 1, 15, 16, 17, 23, 24, 25, 31, 32, 33, 38, n - 1}) {
            std::vector<double> cells = positiveDefinite(n, data);
            cells[std::size_t(failing + n * failing)] = -1.0;
            expectPlainSteps(cells, n);
            expectPlainSteps(cells, n, 0.0);
        }
}

TEST(CholeskyByStrips, FailsAtAZeroPivotOnlyAsADivisor)
{
    const int n = 48;
    for (const int zero : {5, 16, 46, 47}) {
        std::vector<double> cells(squared(n), 0.0);
        for (int i = 0; i < n; ++i)
            cells[std::size_t(i + n * i)] = i == zero ? 0.0 : 4.0;
        expectPlainSteps(cells, n, 0.0);
        expectPlainSteps(cells, n);
        Owned<matrix> l = filled(n, n, 77.0);
        EXPECT_EQ(M_CholDecompCleaned(table(n, n, cells), n, filled(n, 1, 0.0), l), zero == n - 1 ? 0 : -1);
    }
}

TEST(CholeskyByStrips, HasThoseBitsForNaNAndInfinityToo)
{
    RandomData data(1224);
    SCOPED_TRACE(data);
    for (const int n : orders)
        for (int round = 0; round < 4; ++round) {
            const std::vector<double> cells = data.withSpecials(positiveDefinite(n, data), 1.5 / double(squared(n)));
            expectPlainSteps(cells, n);
            expectPlainSteps(cells, n, 0.0);
        }
}

TEST(CholeskyByStrips, WorksOnTheTopLeftCornerOfALargerTable)
{
    RandomData data(1225);
    SCOPED_TRACE(data);
    const int n = 50;
    const std::vector<double> cells = positiveDefinite(60, data);
    const Owned<matrix> a = table(60, 60, cells);
    Owned<matrix> l = filled(55, 51, 77.0);
    Owned<matrix> expected = filled(55, 51, 77.0);
    EXPECT_EQ(M_CholDecomp(a, n, l), 0);
    matrix::matCheck(expected.reference(), n, n, 0.0);
    EXPECT_EQ(referenceCholesky(*a, n, *expected, 1e-12), 0);
    EXPECT_THAT(cellsOf(l), SameBits(cellsOf(expected)));
}

TEST(CholeskyByStrips, OverTheTableShowsTheOrderOfTheCells)
{
    // The factor begins a few columns inside the table, so that it is read after it has been written.
    RandomData data(1226);
    SCOPED_TRACE(data);
    const int n = 48;
    for (const int columns : {1, 3, 20}) {
        std::vector<double> memory = positiveDefinite(n, data);
        memory.resize(squared(n) + std::size_t(n * columns) + 5, 0.5);
        std::vector<double> expected = memory;
        matrix a(n, n, memory.data(), true);
        matrix sameA(n, n, expected.data(), true);
        Owned<matrix> l(new matrix(n, n, memory.data() + n * columns + 5, true));
        Owned<matrix> sameL(new matrix(n, n, expected.data() + n * columns + 5, true));
        matrix::matCheck(sameL.reference(), n, n, 0.0);
        EXPECT_EQ(M_CholDecomp(&a, n, l), referenceCholesky(sameA, n, *sameL, 1e-12));
        EXPECT_THAT(memory, SameBits(expected)) << columns;
    }
}

TEST(CholeskyByStrips, WithoutMemoryForThemIsThePlainForm)
{
    const int n = 48;
    RandomData data(1227);
    const Owned<matrix> a = table(n, n, positiveDefinite(n, data));
    const Owned<matrix> expected = filled(n, n, 0.0);
    ASSERT_EQ(referenceCholesky(*a, n, *expected, 1e-12), 0);
    Owned<matrix> l = filled(n, n, 0.0);
    int status = 7;
    int finished = 0;
    const int failures = expectFallbackAtEachFailure([&] { status = M_CholDecomp(a, n, l); },
                                                     [&] {
                                                         ++finished;
                                                         EXPECT_EQ(status, 0);
                                                         EXPECT_THAT(cellsOf(l), SameBits(cellsOf(expected)));
                                                     });
    EXPECT_EQ(finished, failures + 2) << "every call ends, the two without a failure included";
}

} // namespace
} // namespace vecmat::test
