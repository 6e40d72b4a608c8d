#include "missing/missing_arithmetic.h"

#include "missing/special_numbers.h"
#include "support/random_data.h"
#include "support/tables.h"

namespace vecmat::test {
namespace {

// ---- minimum --------------------------------------------------------------------------------------------------------

/// The function and its flat form.
double minimum(const std::vector<double>& cells)
{
    Guarded<double> x(cells);
    const auto n = static_cast<int>(cells.size());
    const double result = V_MinIgnoreMissing(column(cells), n);
    EXPECT_THAT(Cpp_V_MinIgnoreMissing(x, n), SameBits(result));
    EXPECT_TRUE(x.untouched());
    return result;
}

TEST(MinIgnoreMissing, SmallestOfThePresent)
{
    EXPECT_THAT(minimum({3, M, -2, 5}), SameBits(-2.0));
    EXPECT_THAT(minimum({M, 7, M}), SameBits(7.0));
    EXPECT_THAT(minimum({M, 0.0, -0.0}), SameBits(0.0)); // the first of equals
}

TEST(MinIgnoreMissing, OnlyTheExactPatternIsPassedOver)
{
    EXPECT_THAT(minimum({3, -inf, M}), SameBits(-inf));
    EXPECT_THAT(minimum({3, belowMissing, M}), SameBits(belowMissing));
    EXPECT_THAT(minimum({M, inf, M}), SameBits(inf)); // also where it is above any start of a search
    EXPECT_THAT(minimum({positiveTwin, M}), SameBits(positiveTwin));
}

TEST(MinIgnoreMissing, NaNIsNeverSmaller)
{
    EXPECT_THAT(minimum({3, notANumber, 2}), SameBits(2.0));
    EXPECT_THAT(minimum({M, notANumber, 2}), SameBits(notANumber));
}

TEST(MinIgnoreMissing, NothingPresentIsMissing)
{
    EXPECT_THAT(minimum({M, M, M}), SameBits(M));
    EXPECT_THAT(minimum({}), SameBits(M));
    EXPECT_THAT(V_MinIgnoreMissing(column({1}), -1), SameBits(M));
    EXPECT_THAT(Cpp_V_MinIgnoreMissing(nullptr, 0), SameBits(M));
}

TEST(MinIgnoreMissing, CellBeyondTheTableIsMinusOne)
{
    EXPECT_THAT(V_MinIgnoreMissing(column({M, 4}), 3), SameBits(-1.0));
    EXPECT_THAT(V_MinIgnoreMissing(byColumns({{5, 4}, {3, 1}}), 3), SameBits(3.0));
}

// ---- sum ------------------------------------------------------------------------------------------------------------

double sum(const std::vector<double>& cells, const std::vector<double>& companions)
{
    Guarded<double> x(cells);
    Guarded<double> y(companions);
    const auto n = static_cast<int>(cells.size());
    const double result = V_SumIfNotMissing(column(cells), n, column(companions));
    EXPECT_THAT(VB_V_SumIfNotMissing(x, n, y), SameBits(result));
    EXPECT_TRUE(x.untouched() && y.untouched());
    return result;
}

TEST(SumIfNotMissing, AddsWhereNeitherIsMissing)
{
    EXPECT_THAT(sum({1, 2, M, 8, 16}, {5, M, 5, 0, 5}), SameBits(25.0));
    EXPECT_THAT(sum({1, 2}, {-inf, notANumber}), SameBits(3.0));
    EXPECT_THAT(sum({1, -inf}, {0, 0}), SameBits(-inf));
    EXPECT_THAT(sum({1, belowMissing}, {0, belowMissing}), SameBits(belowMissing));
    EXPECT_THAT(sum({-0.0}, {1}), SameBits(0.0)); // the sum starts at +0.0
}

TEST(SumIfNotMissing, WithoutAQualifyingRowItIsMissingAndNotZero)
{
    EXPECT_THAT(sum({M, M}, {1, 1}), SameBits(M));
    EXPECT_THAT(sum({1, 1}, {M, M}), SameBits(M));
    EXPECT_THAT(sum({1, M}, {M, 1}), SameBits(M));
    EXPECT_THAT(sum({}, {}), SameBits(M));
    EXPECT_THAT(V_SumIfNotMissing(column({1}), -2, column({1})), SameBits(M));
    EXPECT_THAT(VB_V_SumIfNotMissing(nullptr, 0, nullptr), SameBits(M));
    EXPECT_THAT(sum({0, M}, {1, 1}), SameBits(0.0));
}

TEST(SumIfNotMissing, RunsInOrder)
{
    EXPECT_THAT(sum({1e16, 1, -1e16, 1}, {0, 0, 0, 0}), SameBits(1.0));
}

TEST(SumIfNotMissing, CellBeyondATableIsPresent)
{
    EXPECT_THAT(V_SumIfNotMissing(column({5}), 3, column({1, M, 1})), SameBits(4.0));
    EXPECT_THAT(V_SumIfNotMissing(column({5, 6}), 2, column({M})), SameBits(6.0));
}

// ---- product --------------------------------------------------------------------------------------------------------

TEST(ProductABMissing, MissingFactorMakesItsRowOrColumnMissing)
{
    Owned<matrix> c;
    // B(2, 2) is 0, and row 1 is missing all the same.
    EXPECT_EQ(M_ProductABMissing(byRows({{1, M}, {3, 4}}), 2, 2, byRows({{1, 2}, {5, 0}}), 2, c), 0);
    EXPECT_THAT(cellsOf(c), SameBits({M, 23.0, M, 6.0}));
    EXPECT_EQ(M_ProductABMissing(byRows({{0, 0}, {3, 4}}), 2, 2, byRows({{1, M}, {5, 0}}), 2, c), 0);
    EXPECT_THAT(cellsOf(c), SameBits({0.0, 23.0, M, M}));
}

TEST(ProductABMissing, OnlyTheExactPatternIsMissing)
{
    Owned<matrix> c;
    M_ProductABMissing(byRows({{-inf, 1}, {belowMissing, 0}, {notANumber, M}}), 3, 2, column({1, 1}), 1, c);
    EXPECT_THAT(cellsOf(c), SameBits({-inf, belowMissing, M}));
}

TEST(ProductABMissing, WithoutTermsItIsZero)
{
    for (const int inner : {0, -1}) {
        auto c = filled(2, 2, 77.0);
        EXPECT_EQ(M_ProductABMissing(byRows({{M}, {M}}), 2, inner, byRows({{M, M}}), 2, c), 0);
        EXPECT_THAT(cellsOf(c), SameBits({0.0, 0.0, 0.0, 0.0}));
    }
}

TEST(ProductABMissing, PreparesItsResult)
{
    auto small = column({77});
    M_ProductABMissing(byRows({{1, 2}, {3, 4}}), 2, 2, byRows({{1, 0}, {0, 1}}), 2, small);
    EXPECT_EQ(small->nRows, 2);
    EXPECT_THAT(cellsOf(small), SameBits({1.0, 3.0, 2.0, 4.0}));
    auto large = filled(3, 3, 77.0);
    const matrix* const kept = large.get();
    M_ProductABMissing(byRows({{1, 2}, {3, 4}}), 2, 2, byRows({{1, 0}, {0, 1}}), 2, large);
    EXPECT_EQ(large.get(), kept);
    // The first four cells of the block are cleared; the results are in the corner.
    EXPECT_THAT(cellsOf(large), SameBits({1.0, 3.0, 0.0, 2.0, 4.0, 77.0, 77.0, 77.0, 77.0}));
}

TEST(ProductABMissing, AgreesWithThePlainLoop)
{
    RandomData data(471);
    SCOPED_TRACE(data);
    for (int trial = 0; trial < 30; ++trial) {
        const int rows = data.integer(1, 6);
        const int inner = data.integer(1, 6);
        const int cols = data.integer(1, 6);
        const auto size = [](int r, int c) { return static_cast<std::size_t>(r * c); };
        const auto a = data.withMissing(data.normals(size(rows, inner)), 0.08);
        const auto b = data.withMissing(data.normals(size(inner, cols)), 0.08);
        std::vector<double> expected;
        for (int j = 0; j < cols; ++j)
            for (int i = 0; i < rows; ++i) {
                double total = 0.0;
                for (int k = 0; k < inner; ++k) {
                    const double x = a[static_cast<std::size_t>(i + rows * k)];
                    const double y = b[static_cast<std::size_t>(k + inner * j)];
                    if (x == M || y == M) {
                        total = M;
                        break;
                    }
                    total += x * y;
                }
                expected.push_back(total);
            }
        auto c = table(rows, cols, data.leftovers(size(rows, cols)));
        M_ProductABMissing(table(rows, inner, a), rows, inner, table(inner, cols, b), cols, c);
        EXPECT_THAT(cellsOf(c), SameBits(expected));
        Guarded<double> flatA(a);
        Guarded<double> flatB(b);
        Guarded<double> flatC(data.leftovers(size(rows, cols)));
        EXPECT_EQ(VB_M_ProductABMissing(flatA, rows, inner, flatB, cols, flatC), 0);
        EXPECT_THAT(flatC.values(), SameBits(expected));
        EXPECT_TRUE(flatA.untouched() && flatB.untouched());
    }
}

TEST(ProductABMissing, CellOutsideATableIsMinusOne)
{
    Owned<matrix> c;
    M_ProductABMissing(byRows({{2}}), 1, 2, column({3, 5}), 1, c);
    EXPECT_THAT(cellsOf(c), SameBits({1.0}));
}

} // namespace
} // namespace vecmat::test
