#include "elementary/sums_and_norms.h"

#include "elementary/product_cases.h"

#include "support/special_values.h"

#include <algorithm>

using namespace vecmat::test;

namespace {

constexpr int caseCount = 500;

TEST(Trace, AddsTheDiagonalWithoutATest)
{
    forCases(caseCount, [](Cases& c) {
        const int n = c.count();
        const auto a = c.operand(n, n);
        EXPECT_THAT(M_Trace(a.get(), n), SameBits(sumOf(n, [&](int i) { return at(a.get(), i, i); })));
    });
    EXPECT_THAT(M_Trace(byRows({{M, 1}, {1, 1e307}}), 2), SameBits(M + 1e307));
    EXPECT_THAT(M_Trace(byRows({{5}}), 0), SameBits(0.0));
    EXPECT_THAT(M_Trace(byRows({{5}}), 2), SameBits(4.0));
}

TEST(FrobeniusNorm, IsTheTraceOfTheProduct)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.operand(rows, cols), b = c.operand(rows, cols);
        const double trace = sumOf(
            cols, [&](int j) { return sumOf(rows, [&](int k) { return at(a.get(), k, j) * at(b.get(), k, j); }); });
        EXPECT_THAT(M_FrobeniusNorm(a.get(), rows, cols, b.get()), SameBits(trace));
    });
    const auto a = byRows({{3, 0}, {0, 4}});
    EXPECT_THAT(M_FrobeniusNorm(a.get(), 2, 2, a.get()), SameBits(25.0)); // no root
}

TEST(Sum2, AddsThePresentCellsRowAfterRow)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.operand(rows, cols);
        double sum = 0.0;
        for (int i = 1; i <= rows; ++i)
            for (int j = 1; j <= cols; ++j)
                if (at(a.get(), i, j) != M)
                    sum += at(a.get(), i, j);
        EXPECT_THAT(M_Sum2(a.get(), rows, cols), SameBits(sum));
    });
    // By rows the first two cells cancel; by columns the small one would be lost.
    EXPECT_THAT(M_Sum2(byRows({{1e20, -1e20}, {1, 2}}), 2, 2), SameBits(3.0));
    EXPECT_THAT(M_Sum2(byRows({{1}}), 1, 3), SameBits(-1.0));
    EXPECT_THAT(M_Sum2(byRows({{1}}), 0, 3), SameBits(0.0));
}

TEST(SumByColsAndRows, FollowThePlainLoops)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto table = c.operand(rows, cols);
        matrix* const a = table.get();
        auto byCols = c.existing(cols, 1), expectedCols = copyOf(byCols);
        auto byRows = c.existing(rows, 1), expectedRows = copyOf(byRows);
        M_SumByCols(a, rows, cols, byCols.get());
        M_SumByRows(a, rows, cols, byRows.get());
        const auto sumOfLine = [](int length, const auto& cell) {
            double sum = 0.0;
            int present = 0;
            for (int k = 1; k <= length; ++k)
                if (cell(k) != M) {
                    sum += cell(k);
                    ++present;
                }
            return present > 0 ? sum : M;
        };
        for (int j = 1; j <= cols; ++j)
            expectedCols->vbset(j, 1, sumOfLine(rows, [&](int i) { return at(a, i, j); }));
        for (int i = 1; i <= rows; ++i)
            expectedRows->vbset(i, 1, sumOfLine(cols, [&](int j) { return at(a, i, j); }));
        expectSame(byCols, expectedCols);
        expectSame(byRows, expectedRows);
    });
}

TEST(SumByColsAndRows, LineWithoutPresentCellsIsMissingWhileTheTotalIsZero)
{
    const auto a = byRows({{M, M}, {M, M}});
    auto out = filled(2, 1, 7.0);
    M_SumByCols(a.get(), 2, 2, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({M, M}));
    M_SumByRows(byRows({{M, M}, {M, 3}}), 2, 2, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({M, 3.0}));
    EXPECT_THAT(M_Sum2(a.get(), 2, 2), SameBits(0.0));
    M_SumByCols(a.get(), 0, 2, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({M, M}));
    M_SumByCols(byRows({{-infinity, notANumber}}), 1, 2, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({-infinity, notANumber}));
}

TEST(SumOfElem, IsTheSumOfASquareTable)
{
    Guarded<double> ones(4, 1.0);
    EXPECT_THAT(VB_M_SumOfElem(ones, 2, 2), SameBits(4.0));
    expectUntouched(ones);
}

TEST(SumOfElem, AddsAsManyColumnSumsAsThereAreRows)
{
    Guarded<double> wide({1, 2, 4, 8, 16, 32}); // 2 by 3
    EXPECT_THAT(VB_M_SumOfElem(wide, 2, 3), SameBits(3.0 + 12.0));
    Guarded<double> tall({1, 2, 4}); // 3 by 1: the places without a column add 0.0
    EXPECT_THAT(VB_M_SumOfElem(tall, 3, 1), SameBits(7.0));
    EXPECT_THAT(VB_M_SumOfElem(tall, 0, 3), SameBits(0.0));
    EXPECT_THAT(VB_M_SumOfElem(tall, 3, 0), SameBits(0.0));
    EXPECT_THAT(VB_M_SumOfElem(tall, -1, -1), SameBits(0.0));
}

TEST(SumOfElem, MissingColumnSumAmongThoseAddedMakesItMissing)
{
    Guarded<double> a({1, 2, M, M}), single({1, M});
    EXPECT_THAT(VB_M_SumOfElem(a, 2, 2), SameBits(M));
    EXPECT_THAT(VB_M_SumOfElem(single, 1, 2), SameBits(1.0)); // the second column isn't added
    EXPECT_THAT(VB_M_SumOfElem(single, 2, 1), SameBits(1.0)); // a present cell is enough
}

TEST(SumOfElem, FollowsThePlainLoop)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.exact(rows, cols);
        auto flatA = flat(a);
        std::vector<double> sums(vecmat::countOf(std::max(rows, cols)), 0.0);
        for (int j = 1; j <= cols; ++j) {
            bool present = false;
            double& sum = sums[static_cast<std::size_t>(j - 1)];
            for (int i = 1; i <= rows; ++i)
                if (at(a.get(), i, j) != M) {
                    sum += at(a.get(), i, j);
                    present = true;
                }
            if (!present)
                sum = M;
        }
        double total = 0.0;
        bool missing = false;
        for (int j = 1; j <= rows && !missing; ++j) {
            missing = sums[static_cast<std::size_t>(j - 1)] == M;
            total += sums[static_cast<std::size_t>(j - 1)];
        }
        EXPECT_THAT(VB_M_SumOfElem(flatA, rows, cols), SameBits(missing ? M : total));
    });
}

TEST(SquaredRowsAndColumns, FollowThePlainLoops)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto table = c.operand(rows, cols);
        matrix* const a = table.get();
        auto columns = c.columnOperand(rows, cols);
        auto ofRows = c.existing(rows, 1), expectedRows = copyOf(ofRows);
        auto ofColumns = c.existing(rows, 1), expectedColumns = copyOf(ofColumns);
        auto byColumn = c.existing(cols, 1), expectedByColumn = copyOf(byColumn);
        M_SquaredRows(a, rows, cols, ofRows);
        M_SquaredRowsSPV(columns, rows, cols, ofColumns);
        M_SquaredColumns(a, rows, cols, byColumn);
        const auto squaredRow = [&](auto x, int i) {
            for (int j = 1; j <= cols; ++j)
                if (at(x, i, j) == M)
                    return M;
            return sumOf(cols, [&](int j) { return at(x, i, j) * at(x, i, j); });
        };
        fillByRows(expectedRows.get(), rows, 1, [&](int i, int) { return squaredRow(a, i); });
        fillByRows(expectedColumns.get(), rows, 1, [&](int i, int) { return squaredRow(columns.get(), i); });
        fillByRows(expectedByColumn.get(), cols, 1,
                   [&](int j, int) { return sumOf(rows, [&](int i) { return at(a, i, j) * at(a, i, j); }); });
        expectSame(ofRows, expectedRows);
        expectSame(ofColumns, expectedColumns);
        expectSame(byColumn, expectedByColumn);
    });
}

TEST(SquaredRowsAndColumns, OnlyRowsHeedTheMissingValue)
{
    auto rows = filled(2, 1, 7.0), columns = filled(2, 1, 7.0);
    const auto a = byRows({{1, M}, {3, 4}});
    M_SquaredRows(a.get(), 2, 2, rows);
    M_SquaredColumns(a.get(), 2, 2, columns);
    EXPECT_THAT(cellsOf(rows), SameBits({M, 25.0}));
    EXPECT_THAT(cellsOf(columns), SameBits({10.0, infinity}));
}

TEST(SquaredRowsAndColumns, ResultIsNotPrepared)
{
    auto rows = filled(1, 3, 7.0);
    M_SquaredRows(byRows({{1, 2}}), 1, 2, rows);
    EXPECT_THAT(cellsOf(rows), SameBits({5.0, 7.0, 7.0}));
}

TEST(SumExports, WriteTheBitsOfTheirFunctions)
{
    forCases(150, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.exact(rows, cols), b = c.exact(rows, cols), square = c.exact(rows, rows);
        auto flatA = flat(a), flatB = flat(b), flatSquare = flat(square);
        EXPECT_THAT(VB_M_Trace(flatSquare, rows), SameBits(M_Trace(square.get(), rows)));
        EXPECT_THAT(VB_M_FrobeniusNorm(flatA, rows, cols, flatB),
                    SameBits(M_FrobeniusNorm(a.get(), rows, cols, b.get())));
        auto byCols = c.exactResult(cols, 1), byRows = c.exactResult(rows, 1), squaredRows = c.exactResult(rows, 1),
             squaredCols = c.exactResult(cols, 1);
        auto flatByCols = flat(byCols), flatByRows = flat(byRows), flatSquaredRows = flat(squaredRows),
             flatSquaredCols = flat(squaredCols);
        M_SumByCols(a.get(), rows, cols, byCols.get());
        VB_M_SumByCols(flatA, rows, cols, flatByCols);
        expectFlat(flatByCols, byCols);
        M_SumByRows(a.get(), rows, cols, byRows.get());
        VB_M_SumByRows(flatA, rows, cols, flatByRows);
        expectFlat(flatByRows, byRows);
        M_SquaredRows(a.get(), rows, cols, squaredRows);
        VB_M_SquaredRows(flatA, rows, cols, flatSquaredRows);
        expectFlat(flatSquaredRows, squaredRows);
        M_SquaredColumns(a.get(), rows, cols, squaredCols);
        VB_M_SquaredColumns(flatA, rows, cols, flatSquaredCols);
        expectFlat(flatSquaredCols, squaredCols);
        expectUntouched(flatA, flatB, flatSquare);
    });
}

} // namespace
