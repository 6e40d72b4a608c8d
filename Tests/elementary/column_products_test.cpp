#include "elementary/column_products.h"

#include "elementary/product_cases.h"

#include "support/special_values.h"

#include <algorithm>

using namespace vecmat::test;

namespace {

constexpr int caseCount = 500;
constexpr double eps = 2.220446049250313e-16;

TEST(ProductByElement, FollowsThePlainLoop)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.operand(rows, cols), b = c.operand(rows, cols);
        auto out = c.existing(rows, cols), expected = copyOf(out);
        M_ProductByElement(a.get(), rows, cols, b.get(), out);
        fillByRows(expected.get(), rows, cols, [&](int i, int j) { return at(a.get(), i, j) * at(b.get(), i, j); });
        expectSame(out, expected);
    });
}

TEST(ProductByElement, ResultMayBeAnOperand)
{
    auto a = byRows({{1, 2}, {3, M}});
    M_ProductByElement(a.get(), 2, 2, byRows({{2, 2}, {2, 0.5}}), a);
    EXPECT_THAT(cellsOf(a), SameBits({2.0, 6.0, 4.0, M * 0.5}));
}

TEST(ProductHorizAB, FollowsThePlainLoop)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count(), colsB = c.count();
        const auto a = c.operand(rows, cols), b = c.operand(rows, colsB);
        auto out = c.existing(rows, cols * colsB), expected = copyOf(out);
        M_ProductHorizAB(a.get(), rows, cols, b.get(), colsB, out);
        for (int i = 0; i < cols; ++i)
            for (int j = 0; j < colsB; ++j)
                for (int r = 1; r <= rows; ++r)
                    expected->vbset(r, i * colsB + j + 1, at(a.get(), r, i + 1) * at(b.get(), r, j + 1));
        expectSame(out, expected);
    });
}

TEST(ProductHorizAB2, FollowsThePlainLoop)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = std::max(c.count(), 0), colsB = std::max(c.count(), 0);
        auto a = c.operand(rows, cols * colsB), expected = copyOf(a);
        const auto b = c.operand(rows, colsB);
        const auto products = filled(rows, cols * colsB, 0.0);
        for (int i = 0; i < cols; ++i)
            for (int j = 0; j < colsB; ++j)
                for (int r = 1; r <= rows; ++r) {
                    const double x = at(a.get(), r, i + 1), y = at(b.get(), r, j + 1);
                    products->vbset(r, i * colsB + j + 1, x == M || y == M ? M : x * y);
                }
        fillByRows(expected.get(), rows, cols * colsB, [&](int i, int j) { return at(products.get(), i, j); });
        int count = cols;
        M_ProductHorizAB2(a.get(), rows, &count, b.get(), colsB);
        EXPECT_EQ(count, cols * colsB);
        expectSame(a, expected);
    });
}

TEST(ProductHorizAB2, AloneOfThePairKeepsMissingCells)
{
    auto out = filled(1, 2, 7.0);
    M_ProductHorizAB(byRows({{M}}), 1, 1, byRows({{0.5, M}}), 2, out);
    EXPECT_THAT(cellsOf(out), SameBits({M * 0.5, infinity}));
    auto a = byRows({{M, 7.0}});
    int cols = 1;
    M_ProductHorizAB2(a.get(), 1, &cols, byRows({{0.5, M}}), 2);
    EXPECT_EQ(cols, 2);
    EXPECT_THAT(cellsOf(a), SameBits({M, M}));
}

// ---- the design of an interaction -----------------------------------------------------------------------------------

/// The plain steps on checked access.
void referenceDesign(matrix* a, int rows, int* cols, matrix* b, int colsB, int mode, matrix* w, matrix* out)
{
    const auto before = filled(rows, *cols, 0.0);
    fillByRows(before.get(), rows, *cols, [&](int i, int j) { return at(a, i, j); });
    for (int i = 1; i <= *cols; ++i)
        for (int j = 1; j <= colsB; ++j)
            for (int r = 1; r <= rows; ++r) {
                const double x = at(before.get(), r, i), p = x * at(b, r, j);
                double cell = 0.0;
                if (i == 1 && j == 1)
                    cell = p;
                else if (p > eps)
                    cell = x > eps ? 1.0 : -1.0;
                else if (p < -eps && (i == 1 || j == 1))
                    cell = -1.0;
                a->vbset(r, (i - 1) * colsB + j, cell);
            }
    *cols *= colsB;
    for (int col = 1; col <= *cols; ++col) {
        double positive = 0.0, negative = 0.0;
        for (int r = 1; r <= rows; ++r) {
            if (at(a, r, col) > eps)
                positive += at(w, r, 1);
            if (at(a, r, col) < -eps)
                negative += at(w, r, 1);
        }
        for (int r = 1; r <= rows && mode == 3; ++r)
            if (at(a, r, col) < -eps && negative > eps)
                a->vbset(r, col, -positive / negative);
        out->vbset(col, 1, positive);
    }
}

TEST(ProductDesignAB2, FollowsThePlainLoop)
{
    const double codes[] = {1.0, -1.0, 0.0, -0.0, 1.0 + eps, eps, -eps, 2 * eps, -2 * eps, M, infinity};
    forCases(caseCount, [&](Cases& c) {
        const int rows = c.count(), cols = std::max(c.count(), 0), colsB = std::max(c.count(), 0);
        const int mode = c.data.integer(2, 4), kinds = c.data.chance(0.6) ? 2 : 10;
        auto a = c.operand(rows, cols * colsB), b = c.operand(rows, colsB);
        for (matrix* coded : {a.get(), b.get()})
            for (unsigned k = 0; k < coded->nElems; ++k)
                coded->X[k] = codes[c.data.integer(0, kinds)];
        const auto w = c.operand(rows, 1);
        auto expected = copyOf(a);
        auto out = c.existing(cols * colsB, 1), expectedOut = copyOf(out);
        int count = cols, expectedCount = cols;
        M_ProductDesignAB2(a.get(), rows, &count, b.get(), colsB, mode, w.get(), out);
        referenceDesign(expected.get(), rows, &expectedCount, b.get(), colsB, mode, w.get(), expectedOut.get());
        EXPECT_EQ(count, expectedCount);
        expectSame(a, expected);
        expectSame(out, expectedOut);
    });
}

TEST(ProductDesignAB2, CodesByTheFactorsAndTheirFirstColumns)
{
    // Two columns each; the rows hold (1, 1), (-1, -1) and (1, -1) in a and (1, 1), (-1, -1), (-1, 1) in b.
    auto a = byRows({{1, 1, 7, 7}, {-1, -1, 7, 7}, {1, -1, 7, 7}}), out = filled(4, 1, 7.0);
    int cols = 2;
    M_ProductDesignAB2(a.get(), 3, &cols, byRows({{1, 1}, {-1, -1}, {-1, 1}}), 2, 1, column({1, 2, 4}), out);
    EXPECT_EQ(cols, 4);
    EXPECT_THAT(cornerOf(a, 3, 1), SameBits({1.0, 1.0, -1.0}));                                 // the product
    EXPECT_THAT(cornerOf(byRows({{a->vbget(1, 2)}, {a->vbget(2, 2)}, {a->vbget(3, 2)}}), 3, 1), // first of a
                SameBits({1.0, -1.0, 1.0}));
    EXPECT_THAT(a->vbget(2, 3), SameBits(-1.0)); // p above eps, x not: -1.0
    EXPECT_THAT(a->vbget(3, 3), SameBits(-1.0)); // (-1)(-1) with x = -1
    EXPECT_THAT(a->vbget(3, 4), SameBits(0.0));  // p below -eps, from no first column
    EXPECT_THAT(cellsOf(out), SameBits({3.0, 5.0, 1.0, 1.0}));
}

TEST(ProductDesignAB2, ModeThreeBalancesTheColumns)
{
    auto a = byRows({{1}, {-1}, {-1}, {1}}), out = filled(1, 1, 7.0);
    int cols = 1;
    M_ProductDesignAB2(a.get(), 4, &cols, filled(4, 1, 1.0), 1, 3, column({1, 2, 3, 0}), out);
    EXPECT_THAT(cellsOf(a), SameBits({1.0, -1.0 / 5.0, -1.0 / 5.0, 1.0}));
    EXPECT_THAT(cellsOf(out), SameBits({1.0}));
    auto unweighted = byRows({{1}, {-1}});
    cols = 1;
    M_ProductDesignAB2(unweighted.get(), 2, &cols, filled(2, 1, 1.0), 1, 3, column({1, 0}), out);
    EXPECT_THAT(cellsOf(unweighted), SameBits({1.0, -1.0})); // no weight among the -1
}

// ---- flat forms -----------------------------------------------------------------------------------------------------

TEST(ColumnProductExports, WriteTheBitsOfTheirFunctions)
{
    forCases(150, [](Cases& c) {
        const int rows = c.count(), cols = std::max(c.count(), 0), colsB = std::max(c.count(), 0);
        const int total = cols * colsB;
        const auto a = c.exact(rows, cols), same = c.exact(rows, cols), b = c.exact(rows, colsB), w = c.exact(rows, 1);
        auto flatA = flat(a), flatSame = flat(same), flatB = flat(b), flatW = flat(w);
        auto product = c.exactResult(rows, cols), pairs = c.exactResult(rows, total);
        auto flatProduct = flat(product), flatPairs = flat(pairs);
        M_ProductByElement(a.get(), rows, cols, same.get(), product);
        VB_M_ProductByElement(flatA, rows, cols, flatSame, flatProduct);
        expectFlat(flatProduct, product);
        M_ProductHorizAB(a.get(), rows, cols, b.get(), colsB, pairs);
        VB_M_ProductHorizAB(flatA, rows, cols, flatB, colsB, flatPairs);
        expectFlat(flatPairs, pairs);

        auto grown = c.exact(rows, total), design = copyOf(grown), positive = c.exactResult(total, 1);
        auto flatGrown = flat(grown), flatDesign = flat(design), flatPositive = flat(positive);
        int count = cols, flatCount = cols;
        M_ProductHorizAB2(grown.get(), rows, &count, b.get(), colsB);
        VB_M_ProductHorizAB2(flatGrown, rows, &flatCount, flatB, colsB);
        EXPECT_EQ(count, flatCount);
        expectFlat(flatGrown, grown);
        count = flatCount = cols;
        M_ProductDesignAB2(design.get(), rows, &count, b.get(), colsB, 3, w.get(), positive);
        VB_M_ProductDesignAB2(flatDesign, rows, &flatCount, flatB, colsB, 3, flatW, flatPositive);
        EXPECT_EQ(count, flatCount);
        expectFlat(flatDesign, design);
        expectFlat(flatPositive, positive);
        expectUntouched(flatA, flatSame, flatB, flatW);
    });
}

} // namespace
