#include "base/detail/mathematics/mathematics.h"
#include "elementary/cell_functions.h"

#include "elementary/product_cases.h"

#include "support/special_values.h"

#include <algorithm>
#include <cmath>

using namespace vecmat::test;

namespace {

constexpr int caseCount = 400;

TEST(Square, TakesTheHeadOfTheBlockInLinearOrder)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        auto a = c.operand(rows, cols), expected = copyOf(a);
        M_Square(a, rows, cols);
        const unsigned count = std::min(vecmat::elementCount(rows, cols), expected->nElems);
        for (unsigned k = 0; k < count; ++k)
            if (expected->X[k] != M)
                expected->X[k] = expected->X[k] * expected->X[k];
        expectSame(a, expected);
    });
    // Not the 2 by 1 corner, but the first two cells: the same here; of 1 by 2 the stride is not heeded.
    auto a = byRows({{2, 4}, {3, 5}});
    M_Square(a, 1, 2);
    EXPECT_THAT(cellsOf(a), SameBits({4.0, 9.0, 4.0, 5.0}));
}

TEST(Square, KeepsMissingCells)
{
    auto a = byRows({{M, -3, -infinity}});
    M_Square(a, 1, 3);
    EXPECT_THAT(cellsOf(a), SameBits({M, 9.0, infinity}));
}

TEST(SquareRootAij, StopsAtTheFirstCellItCannotTake)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        auto a = c.operand(rows, cols);
        for (unsigned k = 0; k < a->nElems; ++k)
            if (a->X[k] < 0.0 && c.data.chance(0.95))
                a->X[k] = -a->X[k];
        auto out = c.existing(rows, cols), expected = copyOf(out), expectedInPlace = copyOf(a);
        const auto reference = [&](matrix* to) {
            for (int i = 1; i <= rows; ++i)
                for (int j = 1; j <= cols; ++j) {
                    const unsigned k = static_cast<unsigned>(i - 1 + (j - 1) * a->nRows);
                    // In place a cell may have been reached before, by a row that ran over into the next column.
                    matrix* const from = to == expectedInPlace.get() ? to : a.get();
                    if (k >= from->nElems || from->X[k] < 0.0 || std::isnan(from->X[k]))
                        return -1.0;
                    to->vbset(i, j, std::sqrt(from->X[k]));
                }
            return 0.0;
        };
        const double status = reference(expected.get());
        EXPECT_THAT(M_SquareRootAij(a.get(), rows, cols, out.get()), SameBits(status));
        expectSame(out, expected);
        const double inPlaceStatus = reference(expectedInPlace.get());
        EXPECT_THAT(M_SquareRootAij2(a.get(), rows, cols), SameBits(inPlaceStatus));
        expectSame(a, expectedInPlace);
    });
}

TEST(SquareRootAij, GoesRowByRowAndLeavesLaterCells)
{
    auto out = filled(2, 2, 7.0);
    EXPECT_THAT(M_SquareRootAij(byRows({{4, 9}, {M, 16}}), 2, 2, out.get()), SameBits(-1.0));
    EXPECT_THAT(cellsOf(out), SameBits({2.0, 7.0, 3.0, 7.0}));
    EXPECT_THAT(M_SquareRootAij(byRows({{4, notANumber}, {1, 16}}), 2, 2, out.get()), SameBits(-1.0));
    EXPECT_THAT(M_SquareRootAij(byRows({{4, 9}}), 2, 2, filled(2, 2, 0.0)),
                SameBits(-1.0)); // the second row is outside
    EXPECT_THAT(M_SquareRootAij(byRows({{-0.0, infinity}, {0, 16}}), 2, 2, out.get()), SameBits(0.0));
    EXPECT_THAT(cellsOf(out), SameBits({-0.0, 0.0, infinity, 4.0}));
    EXPECT_THAT(M_SquareRootAij(byRows({{-1}}), 0, 1, out.get()), SameBits(0.0));
}

TEST(LogMatrix, TakesThePresentCellsOfTheRowsKept)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        auto a = c.operand(rows, cols), expected = copyOf(a);
        std::vector<short> entries = c.data.mask(vecmat::countOf(rows), 0.3);
        for (short& entry : entries)
            if (entry != 0 && c.data.chance(0.5))
                entry = 2; // any entry but 0 excludes
        Guarded<short> mask(entries);
        M_LogMatrix(a, rows, cols, mask);
        for (int i = 1; i <= rows; ++i)
            for (int j = 1; j <= cols; ++j)
                if (entries[static_cast<std::size_t>(i - 1)] == 0 && expected->vbget(i, j) != M)
                    expected->vbset(i, j, vecmat::log(expected->vbget(i, j)));
        expectSame(a, expected);
        EXPECT_TRUE(mask.untouched());
    });
}

TEST(LogMatrix, HasNoGuardForZeroAndNegativeCells)
{
    auto a = byRows({{1, 0, -1, M, belowMissing}});
    short keep[] = {0};
    M_LogMatrix(a, 1, 5, keep);
    EXPECT_THAT(cellsOf(a), SameBits({0.0, -infinity, notANumber, M, notANumber}));
    M_LogMatrix(a, 0, 5, nullptr);
}

TEST(Log10Matrix, TakesThePresentCells)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        auto a = c.operand(rows, cols), expected = copyOf(a);
        M_Log10Matrix(a.get(), rows, cols);
        fillByRows(expected.get(), rows, cols, [&](int i, int j) {
            const double x = expected->vbget(i, j);
            return x == M ? M : vecmat::log10(x);
        });
        expectSame(a, expected);
    });
    auto a = byRows({{1000, M, 0}});
    M_Log10Matrix(a.get(), 1, 3);
    EXPECT_THAT(cellsOf(a), SameBits({3.0, M, -infinity}));
}

TEST(CellFunctionExports, WorkOnTheCallersArray)
{
    forCases(150, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.exact(rows, cols);
        auto squared = copyOf(a), rooted = copyOf(a), logged = copyOf(a), logged10 = copyOf(a);
        auto flatSquared = flat(a), flatRooted = flat(a), flatLogged = flat(a), flatLogged10 = flat(a);
        auto roots = c.exactResult(rows, cols);
        auto flatA = flat(a), flatRoots = flat(roots);
        Guarded<short> mask(c.data.mask(vecmat::countOf(rows), 0.3));
        M_Square(squared, rows, cols);
        VB_M_Square(flatSquared, rows, cols);
        expectFlat(flatSquared, squared);
        EXPECT_THAT(Cpp_M_SquareRootAij(flatA, rows, cols, flatRoots),
                    SameBits(M_SquareRootAij(a.get(), rows, cols, roots.get())));
        expectFlat(flatRoots, roots);
        EXPECT_THAT(Cpp_M_SquareRootAij2(flatRooted, rows, cols), SameBits(M_SquareRootAij2(rooted.get(), rows, cols)));
        expectFlat(flatRooted, rooted);
        M_LogMatrix(logged, rows, cols, mask);
        VB_M_LogMatrix(flatLogged, rows, cols, mask);
        expectFlat(flatLogged, logged);
        M_Log10Matrix(logged10.get(), rows, cols);
        VB_M_Log10Matrix(flatLogged10, rows, cols);
        expectFlat(flatLogged10, logged10);
        expectUntouched(flatA);
        EXPECT_TRUE(mask.untouched());
    });
}

} // namespace
