#include "elementary/matrix_products.h"

#include "elementary/product_cases.h"

#include "support/special_values.h"

#include <functional>

using namespace vecmat::test;

namespace {

constexpr int caseCount = 400;

// ---- a' a and a a' --------------------------------------------------------------------------------------------------

template <class A, class Out>
void checkProductTrAA(int rows, int cols, A a, Owned<Out> out)
{
    auto expected = copyOf(out);
    M_ProductTrAA(a, rows, cols, out.reference());
    Out::matCheck(expected, cols, cols, 0.0);
    fillMirrored(expected.get(), cols,
                 [&](int i, int j) { return sumOf(rows, [&](int k) { return at(a, k, i) * at(a, k, j); }); });
    expectSame(out, expected);
}

template <class A>
void checkProductATrA(Cases& c, int rows, int cols, A a)
{
    auto out = c.toPrepare(rows, rows), expected = copyOf(out);
    M_ProductATrA(a, rows, cols, out.reference());
    matrix::matCheck(expected, rows, rows, 0.0);
    fillMirrored(expected.get(), rows,
                 [&](int i, int j) { return sumOf(cols, [&](int k) { return at(a, i, k) * at(a, j, k); }); });
    expectSame(out, expected);
}

TEST(ProductTrAA, AllElementTypesFollowThePlainLoop)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.operand(rows, cols);
        const auto ints = c.intOperand(rows, cols);
        checkProductTrAA(rows, cols, a.get(), c.toPrepare(cols, cols));
        checkProductTrAA(rows, cols, a.get(), c.intsToPrepare(cols, cols));
        checkProductTrAA(rows, cols, ints.get(), c.toPrepare(cols, cols));
        checkProductTrAA(rows, cols, ints.get(), c.intsToPrepare(cols, cols));
    });
}

TEST(ProductATrA, BothElementTypesFollowThePlainLoop)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        checkProductATrA(c, rows, cols, c.operand(rows, cols).get());
        checkProductATrA(c, rows, cols, c.intOperand(rows, cols).get());
    });
}

TEST(ProductTrAA, IntsAreSummedInDoublesAndTruncatedAtTheEnd)
{
    Owned<matrixInt> ints;
    Owned<matrix> doubles;
    const auto large = intsByRows({{60000}, {60000}});
    M_ProductTrAA(large.get(), 2, 1, doubles.reference());
    M_ProductTrAA(large.get(), 2, 1, ints.reference());
    EXPECT_THAT(cellsOf(doubles), SameBits({7.2e9}));
    EXPECT_EQ(cellsOf(ints), std::vector<int>{lowestInt});
    M_ProductTrAA(column({0.9, 1.2}).get(), 2, 1, ints.reference());
    EXPECT_EQ(cellsOf(ints), std::vector<int>{2}); // 0.81 + 1.44
}

TEST(ProductTrAA, OperandThatIsReplacedByTheResultIsReadToTheEnd)
{
    auto a = byRows({{1, 2, 3}});
    M_ProductTrAA(a.get(), 1, 3, a.reference());
    EXPECT_THAT(cellsOf(a), SameBits({1.0, 2.0, 3.0, 2.0, 4.0, 6.0, 3.0, 6.0, 9.0}));
    auto ints = intsByRows({{1, 2}});
    M_ProductTrAA(ints.get(), 1, 2, ints.reference());
    EXPECT_EQ(cellsOf(ints), (std::vector<int>{1, 2, 2, 4}));
}

// ---- chains ---------------------------------------------------------------------------------------------------------

using Read = std::function<double(int, int)>;

Read cellOf(const Owned<matrix>& table)
{
    return [m = table.get()](int i, int j) { return at(m, i, j); };
}

Read transposeOf(const Owned<matrix>& table)
{
    return [m = table.get()](int i, int j) { return at(m, j, i); };
}

/// The first link of a chain, in a table of its own.
Owned<matrix> linked(const Read& left, const Read& right, int rows, int inner, int cols)
{
    auto link = filled(rows, cols, 0.0);
    fillByRows(link.get(), rows, cols,
               [&](int i, int j) { return sumOf(inner, [&](int k) { return left(i, k) * right(k, j); }); });
    return link;
}

void fillProduct(const Owned<matrix>& out, const Read& left, const Read& right, int rows, int inner, int cols)
{
    fillByRows(out.get(), rows, cols,
               [&](int i, int j) { return sumOf(inner, [&](int k) { return left(i, k) * right(k, j); }); });
}

TEST(ProductChains, WithATransposeOnTheOtherSide)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.operand(rows, cols), ofCols = c.operand(cols, cols), ofRows = c.operand(rows, rows);
        auto outer = c.existing(rows, rows), expectedOuter = copyOf(outer);
        M_ProductABTrA(a.get(), rows, cols, ofCols.get(), outer.get());
        const auto ab = linked(cellOf(a), cellOf(ofCols), rows, cols, cols);
        fillProduct(expectedOuter, cellOf(ab), transposeOf(a), rows, cols, rows);
        expectSame(outer, expectedOuter);

        auto inner = c.existing(cols, cols), expectedInner = copyOf(inner);
        M_ProductTrABA(a.get(), rows, cols, ofRows.get(), inner.get());
        const auto trAB = linked(transposeOf(a), cellOf(ofRows), cols, rows, rows);
        fillProduct(expectedInner, cellOf(trAB), cellOf(a), cols, rows, cols);
        expectSame(inner, expectedInner);
    });
}

TEST(ProductChains, QuadraticAndBilinearForms)
{
    forCases(caseCount, [](Cases& c) {
        const int n = c.count();
        const auto va = c.operand(n, 1), vb = c.operand(n, 1), b = c.operand(n, n);
        const auto form = [&](matrix* left, matrix* right) {
            return sumOf(n, [&](int j) {
                return sumOf(n, [&](int i) { return at(left, i, 1) * at(b.get(), i, j); }) * at(right, j, 1);
            });
        };
        EXPECT_THAT(M_ProductTrVBV(va.get(), n, b.get()), SameBits(form(va.get(), va.get())));
        EXPECT_THAT(M_ProductTrV1BV2(va.get(), n, b.get(), vb.get()), SameBits(form(va.get(), vb.get())));
    });
}

TEST(ProductChains, OfThreeTables)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count(), otherB = c.count(), colsC = c.count();
        const auto a = c.operand(rows, cols), b = c.operand(rows, otherB), bForTranspose = c.operand(otherB, cols),
                   third = c.operand(otherB, colsC), v = c.operand(otherB, 1);
        const auto trAB = linked(transposeOf(a), cellOf(b), cols, rows, otherB);
        const auto aTrB = linked(cellOf(a), transposeOf(bForTranspose), rows, cols, otherB);

        auto trABC = c.existing(cols, colsC), expectedTrABC = copyOf(trABC);
        M_ProductTrABC(a.get(), rows, cols, b.get(), otherB, third.get(), colsC, trABC.get());
        fillProduct(expectedTrABC, cellOf(trAB), cellOf(third), cols, otherB, colsC);
        expectSame(trABC, expectedTrABC);

        auto aTrBC = c.existing(rows, colsC), expectedATrBC = copyOf(aTrBC);
        M_ProductATrBC(a.get(), rows, cols, bForTranspose.get(), otherB, third.get(), colsC, aTrBC.get());
        fillProduct(expectedATrBC, cellOf(aTrB), cellOf(third), rows, otherB, colsC);
        expectSame(aTrBC, expectedATrBC);

        auto trABV = c.existing(cols, 1), expectedTrABV = copyOf(trABV);
        M_ProductTrABV(a.get(), rows, cols, b.get(), otherB, v.get(), trABV.get());
        fillProduct(expectedTrABV, cellOf(trAB), cellOf(v), cols, otherB, 1);
        expectSame(trABV, expectedTrABV);
    });
}

// ---- a b c by structure ---------------------------------------------------------------------------------------------

/// The rule for one cell of p q, read cell by cell.
double cellByStructure(const Read& p, int rows, int inner, const Read& q, int cols, int i, int j)
{
    const auto everyOf = [](int n, const auto& holds) {
        for (int k = 1; k <= n; ++k)
            if (!holds(k))
                return false;
        return true;
    };
    const bool rowZero = everyOf(inner, [&](int k) { return p(i, k) == 0.0; });
    const bool columnZero = everyOf(inner, [&](int k) { return q(k, j) == 0.0; });
    if (rowZero || columnZero)
        return 0.0;
    if (rows == inner && everyOf(inner, [&](int k) { return k == i || (p(i, k) == 0.0 && p(k, i) == 0.0); }))
        return p(i, i) * q(i, j);
    if (inner == cols && everyOf(inner, [&](int k) { return k == j || (q(k, j) == 0.0 && q(j, k) == 0.0); }))
        return p(i, j) * q(j, j);
    return sumOf(inner, [&](int k) { return p(i, k) * q(k, j); });
}

/// A table with zero rows and columns and with diagonal ones.
Owned<matrix> structured(Cases& c, int rows, int cols)
{
    auto table = c.operand(rows, cols);
    for (int i = 1; i <= table->nRows; ++i) {
        const bool clearRow = c.data.chance(0.25), clearOffDiagonal = c.data.chance(0.5);
        for (int j = 1; j <= table->nCols; ++j) {
            const double zero = c.data.chance(0.5) ? 0.0 : -0.0;
            if (clearRow || (clearOffDiagonal && i != j)) {
                table->vbset(i, j, zero);
                if (clearOffDiagonal && j <= table->nRows && i <= table->nCols && i != j)
                    table->vbset(j, i, zero);
            }
        }
    }
    return table;
}

TEST(ProductABC, FollowsTheRuleOfStructureInBothProducts)
{
    forCases(1500, [](Cases& c) {
        const int rows = c.data.integer(0, 4), cols = c.data.chance(0.6) ? rows : c.count(),
                  colsB = c.data.chance(0.6) ? cols : c.count(), colsC = c.data.chance(0.6) ? colsB : c.count();
        const auto a = structured(c, rows, cols), b = structured(c, cols, colsB), third = structured(c, colsB, colsC);
        auto out = c.existing(rows, colsC), expected = copyOf(out);
        M_ProductABC(a.get(), rows, cols, b.get(), colsB, third.get(), colsC, out.get());
        const auto ab = filled(rows, colsB, 0.0);
        fillByRows(ab.get(), rows, colsB,
                   [&](int i, int j) { return cellByStructure(cellOf(a), rows, cols, cellOf(b), colsB, i, j); });
        fillByRows(expected.get(), rows, colsC,
                   [&](int i, int j) { return cellByStructure(cellOf(ab), rows, colsB, cellOf(third), colsC, i, j); });
        expectSame(out, expected);
    });
}

TEST(ProductABC, SkippedCellsDoNotCount)
{
    const auto identity = byRows({{1, 0}, {0, 1}});
    auto out = filled(2, 2, 7.0);
    // A row of zeros on the left, a column of zeros on the right.
    M_ProductABC(byRows({{0, 0}, {1, 1}}), 2, 2, byRows({{infinity, 0}, {notANumber, -0.0}}), 2, identity.get(), 2,
                 out.get());
    EXPECT_THAT(cellsOf(out), SameBits({0.0, notANumber, 0.0, 0.0}));
    // Diagonal on the left: one product, so that a negative zero shows and an infinity elsewhere does not.
    M_ProductABC(byRows({{-1, 0}, {0, 2}}), 2, 2, byRows({{0, 1}, {infinity, 1}}), 2, identity.get(), 2, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({-0.0, infinity, -1.0, 2.0}));
    // Diagonal on the right.
    M_ProductABC(byRows({{0, 1}, {infinity, 1}}), 2, 2, byRows({{-1, 0}, {0, 2}}), 2, identity.get(), 2, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({-0.0, -infinity, 2.0, 2.0}));
}

TEST(ProductABC, StructureOfALeftOperandThatIsNotSquareIsNotUsed)
{
    auto out = filled(1, 1, 7.0);
    M_ProductABC(byRows({{-1, 0}}), 1, 2, byRows({{0}, {infinity}}), 1, byRows({{1}}), 1, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({notANumber})); // 0 times infinity took part
}

TEST(ProductABC, CellsOutsideCountAsMinusOneInTheStructureToo)
{
    // A 2 by 2 corner of a single zero: the three cells outside are -1.0, so nothing here is zero or diagonal.
    auto out = filled(2, 2, 7.0);
    const auto identity = byRows({{1, 0}, {0, 1}});
    M_ProductABC(byRows({{0}}), 2, 2, identity.get(), 2, identity.get(), 2, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({0.0, -1.0, -1.0, -1.0}));
}

} // namespace
