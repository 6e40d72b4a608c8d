#include "elementary/matrix_products.h"

#include "elementary/product_cases.h"

#include "support/special_values.h"

#include <limits>

using namespace vecmat::test;

namespace {

constexpr int caseCount = 400;

/// The callee gives a table its shape, but not an array of columns.
struct PreparedTable : TableStorage
{
    static Owned<matrix> existing(Cases& c, int rows, int cols) { return c.toPrepare(rows, cols); }
    static void prepare(Owned<matrix>& out, int rows, int cols) { matrix::matCheck(out, rows, cols, 0.0); }
};
struct ColumnsInPlace : ColumnStorage
{
    static void prepare(Columns<matrix>&, int, int) {}
};

/// Calls a form of a product, with a, b and the result in the storages given, and compares each cell of the result with
/// cell(a, b, i, j, inner).
template <class Product, class Left, class Right, class Result, class Cell>
void expectCells(Product product, Left, Right, Result, Cell cell)
{
    forCases(caseCount, [&](Cases& c) {
        const int rows = c.count(), cols = c.count(), colsB = c.count();
        auto a = Left::operand(c, rows, cols);
        auto b = Right::operand(c, cols, colsB);
        auto out = Result::existing(c, rows, colsB), expected = copyOf(out);
        EXPECT_EQ(product(a, rows, cols, b, colsB, out), 0);
        Result::prepare(expected, rows, colsB);
        fillByRows(expected.get(), rows, colsB, [&](int i, int j) { return cell(a.get(), b.get(), i, j, cols); });
        expectSame(out, expected);
    });
}

constexpr TableStorage ofTables;
constexpr ColumnStorage ofColumns;
constexpr PreparedTable intoTable;
constexpr ColumnsInPlace intoColumns;

// ---- a b ------------------------------------------------------------------------------------------------------------

constexpr auto runningSum = [](auto a, auto b, int i, int j, int inner) {
    return sumOf(inner, [&](int k) { return at(a, i, k) * at(b, k, j); });
};

TEST(ProductAB, IsTheRunningSumOverTheInnerIndex)
{
    expectCells(M_ProductAB, ofTables, ofTables, intoTable, runningSum);
}

TEST(ProductAB, ColumnsGiveTheSame)
{
    expectCells(M_ProductABSPV, ofColumns, ofTables, intoTable, runningSum);
}

TEST(ProductAB, ColumnsThroughoutAreWrittenInPlace)
{
    expectCells(M_ProductABSPV2, ofColumns, ofColumns, intoColumns, runningSum);
}

TEST(ProductAB, AllStoragesGiveTheBitsOfThePlainForm)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.data.integer(0, 9), cols = c.data.integer(0, 9), colsB = c.data.integer(0, 9);
        const auto a = c.exact(rows, cols), b = c.exact(cols, colsB), bTransposed = c.exactResult(colsB, cols);
        fillByRows(bTransposed.get(), colsB, cols, [&](int i, int j) { return at(b.get(), j, i); });
        auto aColumns = columnsOf(a), bColumns = columnsOf(b);
        Owned<matrix> plain, columnsLeft, transposedRight;
        Columns<matrix> columnsThroughout(rows, colsB, c.data.leftovers(vecmat::elementCount(rows, colsB)));
        M_ProductAB(a.get(), rows, cols, b.get(), colsB, plain);
        M_ProductABSPV(aColumns, rows, cols, b.get(), colsB, columnsLeft);
        M_ProductATrB(a.get(), rows, cols, bTransposed.get(), colsB, transposedRight);
        expectSame(columnsLeft, plain);
        expectSame(transposedRight, plain);
        M_ProductABSPV2(aColumns, rows, cols, bColumns, colsB, columnsThroughout);
        EXPECT_THAT(columnsThroughout.cells(), SameBits(cellsOf(plain)));
    });
}

TEST(ProductAB, MissingCellIsAHugeNegativeNumber)
{
    Owned<matrix> out;
    M_ProductAB(byRows({{M, 1}}), 1, 2, column({0.5, 1}), 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({M * 0.5 + 1}));
    EXPECT_LT(out->vbget(1, 1), -1e307);
}

TEST(ProductAB, NoInnerTermsGivePositiveZero)
{
    auto out = filled(2, 2, 7.0);
    M_ProductAB(filled(2, 0, 0.0), 2, 0, filled(0, 2, 0.0), 2, out);
    EXPECT_THAT(cellsOf(out), SameBits({0.0, 0.0, 0.0, 0.0}));
    M_ProductAB(filled(2, 1, -0.0), 2, 1, filled(1, 2, 1.0), 2, out);
    EXPECT_THAT(cellsOf(out), SameBits({0.0, 0.0, 0.0, 0.0})); // +0.0 plus -0.0
}

TEST(ProductAB, ReadsOutsideAreMinusOneAndTakePart)
{
    Owned<matrix> out;
    M_ProductAB(byRows({{2, 3}}), 1, 3, column({10, 100}), 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({20.0 + 300.0 + 1.0}));
}

TEST(ProductAB, KeptResultIsClearedAndKeepsItsStride)
{
    auto out = filled(3, 2, 7.0);
    M_ProductAB(byRows({{1}, {2}}), 2, 1, byRows({{5}}), 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({5.0, 10.0, 7.0, 7.0, 7.0, 7.0}));
    M_ProductAB(byRows({{1}, {2}}), 2, 1, byRows({{5, 6}}), 2, out);
    EXPECT_THAT(cellsOf(out), SameBits({5.0, 10.0, 0.0, 6.0, 12.0, 7.0}));
}

TEST(ProductAB, ResultThatIsAnOperandIsClearedFirst)
{
    auto a = byRows({{1, 2}, {3, 4}});
    M_ProductAB(a.get(), 2, 2, byRows({{1, 1}, {1, notANumber}}), 2, a);
    EXPECT_THAT(cellsOf(a), SameBits({0.0, 0.0, notANumber, notANumber}));
}

TEST(ProductAB, OperandIsReadToTheEndWhereItIsReplacedByTheResult)
{
    auto a = byRows({{1, 2}, {3, 4}});
    M_ProductAB(a.get(), 2, 2, byRows({{1, 0, 2}, {0, 1, 2}}), 3, a);
    EXPECT_EQ(a->nCols, 3);
    EXPECT_THAT(cellsOf(a), SameBits({1.0, 3.0, 2.0, 4.0, 6.0, 14.0}));
}

TEST(ProductAB, InPlaceAResultThatIsAnOperandIsReadAsWrittenSoFar)
{
    Columns<matrix> a(1, 2, {2.0, 3.0});
    Columns<matrix> b(2, 2, {1.0, 1.0, 10.0, 100.0});
    M_ProductABSPV2(a, 1, 2, b, 2, a);
    EXPECT_THAT(a.cells(), SameBits({5.0, 5.0 * 10.0 + 3.0 * 100.0}));
}

TEST(ProductAB, OperandWithoutCellsMayBeNull)
{
    Owned<matrix> out;
    M_ProductAB(nullptr, 0, 3, filled(3, 2, 1.0), 2, out);
    EXPECT_EQ(out->nElems, 0u);
    M_ProductAB(nullptr, 2, 0, nullptr, 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({0.0, 0.0}));
}

// ---- with the missing test ------------------------------------------------------------------------------------------

constexpr auto sumUnlessMissing = [](auto a, auto b, int i, int j, int inner) {
    double sum = 0.0;
    for (int k = 1; k <= inner; ++k) {
        const double x = at(a, i, k), y = at(b, k, j);
        if (x == M || y == M)
            return M;
        sum += x * y;
    }
    return sum;
};

TEST(ProductABMissing, ColumnsEndTheSumAtAMissingFactor)
{
    expectCells(M_ProductABMissingSPV, ofColumns, ofTables, intoTable, sumUnlessMissing);
}

TEST(ProductABMissing, TablesIntoColumnsDoSoInPlace)
{
    expectCells(M_ProductABMissingSPV2, ofTables, ofTables, intoColumns, sumUnlessMissing);
}

TEST(ProductABMissing, ColumnsIntoColumnsDoSoInPlace)
{
    expectCells(M_ProductABMissingSPV3, ofColumns, ofTables, intoColumns, sumUnlessMissing);
}

TEST(ProductABMissing, FactorInEitherTableMakesTheCellMissing)
{
    Columns<matrix> a(2, 2, {1, M, 2, 3});
    Owned<matrix> out;
    M_ProductABMissingSPV(a, 2, 2, byRows({{1, M}, {1, 1}}), 2, out);
    EXPECT_THAT(cellsOf(out), SameBits({3.0, M, M, M}));
    M_ProductABSPV(a, 2, 2, byRows({{1, M}, {1, 1}}), 2, out);
    EXPECT_THAT(out->vbget(2, 1), SameBits(M + 3.0));
}

TEST(ProductABMissing, OnlyTheExactPatternEndsTheSum)
{
    Columns<matrix> a(3, 1, {-infinity, notANumber, std::numeric_limits<double>::lowest()});
    Owned<matrix> out;
    M_ProductABMissingSPV(a, 3, 1, column({1}), 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({-infinity, notANumber, std::numeric_limits<double>::lowest()}));
}

// ---- transposes -----------------------------------------------------------------------------------------------------

TEST(ProductTrAB, SumsOverTheRows)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count(), colsB = c.count();
        const auto a = c.operand(rows, cols), b = c.operand(rows, colsB);
        auto out = c.toPrepare(cols, colsB), expected = copyOf(out);
        M_ProductTrAB(a.get(), rows, cols, b.get(), colsB, out);
        matrix::matCheck(expected, cols, colsB, 0.0);
        fillByRows(expected.get(), cols, colsB, [&](int j, int l) {
            return sumOf(rows, [&](int k) { return at(a.get(), k, j) * at(b.get(), k, l); });
        });
        expectSame(out, expected);
    });
}

TEST(ProductATrB, SumsOverTheColumnsInATableAndInColumns)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count(), rowsB = c.count();
        const auto a = c.operand(rows, cols), b = c.operand(rowsB, cols);
        auto out = c.toPrepare(rows, rowsB), expected = copyOf(out);
        auto columns = c.columnResult(rows, rowsB), expectedColumns = copyOf(columns);
        M_ProductATrB(a.get(), rows, cols, b.get(), rowsB, out);
        M_ProductATrBSPV(a.get(), rows, cols, b.get(), rowsB, columns);
        const auto cell = [&](int i, int j) {
            return sumOf(cols, [&](int k) { return at(a.get(), i, k) * at(b.get(), j, k); });
        };
        matrix::matCheck(expected, rows, rowsB, 0.0);
        fillByRows(expected.get(), rows, rowsB, cell);
        fillByRows(expectedColumns.get(), rows, rowsB, cell);
        expectSame(out, expected);
        expectSame(columns, expectedColumns);
    });
}

// ---- a table and a vector -------------------------------------------------------------------------------------------

TEST(ProductOfTableAndVector, FollowsThePlainLoops)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto b = c.operand(rows, cols), byColumns = c.operand(cols, 1), byRows = c.operand(rows, 1);
        matrix* const v = byColumns.get();
        matrix* const u = byRows.get();

        auto bv = c.existing(rows, 1), expectedBV = copyOf(bv);
        EXPECT_EQ(M_ProductBV(b.get(), rows, cols, v, bv), 0);
        fillByRows(expectedBV.get(), rows, 1,
                   [&](int i, int) { return sumOf(cols, [&](int k) { return at(b.get(), i, k) * at(v, k, 1); }); });
        expectSame(bv, expectedBV);

        const auto trUB = [&](int j, int) {
            return sumOf(rows, [&](int k) { return at(u, k, 1) * at(b.get(), k, j); });
        };
        auto vb = c.toPrepare(cols, 1), expectedVB = copyOf(vb);
        M_ProductVB(u, rows, b.get(), cols, vb);
        matrix::matCheck(expectedVB, cols, 1, 0.0);
        fillByRows(expectedVB.get(), cols, 1, trUB);
        expectSame(vb, expectedVB);

        auto trBV = c.existing(cols, 1), expectedTrBV = copyOf(trBV);
        M_ProductTrBV(b.get(), rows, cols, u, trBV);
        fillByRows(expectedTrBV.get(), cols, 1, trUB);
        expectSame(trBV, expectedTrBV);

        auto vTrB = c.existing(rows, 1), expectedVTrB = copyOf(vTrB);
        M_ProductVTrB(v, cols, b.get(), rows, vTrB);
        fillByRows(expectedVTrB.get(), rows, 1,
                   [&](int j, int) { return sumOf(cols, [&](int k) { return at(v, k, 1) * at(b.get(), j, k); }); });
        expectSame(vTrB, expectedVTrB);
    });
}

TEST(ProductOfTableAndVector, OnlyVBPreparesItsResult)
{
    auto bv = filled(3, 1, 7.0), trBV = filled(3, 1, 7.0), vTrB = filled(3, 1, 7.0), vb = filled(3, 2, 7.0);
    const auto b = byRows({{1, 2}, {3, 4}}), v = column({1, 1});
    M_ProductBV(b.get(), 2, 2, v.get(), bv);
    M_ProductTrBV(b.get(), 2, 2, v.get(), trBV);
    M_ProductVTrB(v.get(), 2, b.get(), 2, vTrB);
    M_ProductVB(v.get(), 2, b.get(), 2, vb);
    EXPECT_THAT(cellsOf(bv), SameBits({3.0, 7.0, 7.0}));
    EXPECT_THAT(cellsOf(trBV), SameBits({4.0, 6.0, 7.0}));
    EXPECT_THAT(cellsOf(vTrB), SameBits({3.0, 7.0, 7.0}));
    EXPECT_THAT(cellsOf(vb), SameBits({4.0, 6.0, 7.0, 7.0, 7.0, 7.0}));
    auto small = filled(1, 1, 7.0);
    M_ProductVB(v.get(), 2, b.get(), 2, small);
    EXPECT_EQ(small->nRows, 2);
    auto kept = filled(1, 1, 7.0);
    M_ProductBV(b.get(), 2, 2, v.get(), kept);
    EXPECT_THAT(cellsOf(kept), SameBits({3.0}));
}

TEST(ProductOfTableAndVector, InPlaceResultMayBeTheVector)
{
    auto v = column({1, 2});
    M_ProductTrBV(byRows({{1, 10}, {1, 10}}), 2, 2, v.get(), v.get());
    EXPECT_THAT(cellsOf(v), SameBits({3.0, 3.0 * 10 + 2 * 10}));
}

} // namespace
