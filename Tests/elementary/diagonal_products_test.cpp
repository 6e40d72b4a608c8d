#include "elementary/diagonal_products.h"

#include "elementary/product_cases.h"

#include "support/special_values.h"

using namespace vecmat::test;

namespace {

constexpr int caseCount = 400;

// ---- with the diagonal of a table -----------------------------------------------------------------------------------

TEST(ProductWithDiagonal, SymmetricFormsMultiplyFromTheLeft)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto table = c.operand(rows, cols), ofCols = c.operand(cols, cols), ofRows = c.operand(rows, rows);
        matrix* const a = table.get();

        auto outer = c.toPrepare(rows, rows), expectedOuter = copyOf(outer);
        M_ProductADTrA(a, rows, cols, ofCols.get(), outer);
        matrix::matCheck(expectedOuter, rows, rows, 0.0);
        fillMirrored(expectedOuter.get(), rows, [&](int i, int j) {
            return sumOf(cols, [&](int k) { return at(a, i, k) * at(ofCols.get(), k, k) * at(a, j, k); });
        });
        expectSame(outer, expectedOuter);

        auto inner = c.toPrepare(cols, cols), expectedInner = copyOf(inner);
        M_ProductTrADA(a, rows, cols, ofRows.get(), inner);
        matrix::matCheck(expectedInner, cols, cols, 0.0);
        fillMirrored(expectedInner.get(), cols, [&](int i, int j) {
            return sumOf(rows, [&](int k) { return at(a, k, i) * at(ofRows.get(), k, k) * at(a, k, j); });
        });
        expectSame(inner, expectedInner);
    });
}

TEST(ProductWithDiagonal, ScalesColumns)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.operand(rows, cols), ofCols = c.operand(cols, cols), ofRows = c.operand(rows, rows);

        auto aDiag = c.toPrepare(rows, cols), expected = copyOf(aDiag);
        M_ProductADiag(a.get(), rows, cols, ofCols.get(), aDiag);
        matrix::matCheck(expected, rows, cols, 0.0);
        fillByRows(expected.get(), rows, cols,
                   [&](int i, int j) { return at(a.get(), i, j) * at(ofCols.get(), j, j); });
        expectSame(aDiag, expected);

        auto trADiag = c.toPrepare(cols, rows), expectedTr = copyOf(trADiag);
        M_ProductTrADiag(a.get(), rows, cols, ofRows.get(), trADiag);
        matrix::matCheck(expectedTr, cols, rows, 0.0);
        fillByRows(expectedTr.get(), cols, rows,
                   [&](int j, int i) { return at(a.get(), i, j) * at(ofRows.get(), i, i); });
        expectSame(trADiag, expectedTr);
    });
}

TEST(ProductWithDiagonal, ReadsNothingBesideTheDiagonal)
{
    Owned<matrix> out;
    M_ProductADiag(byRows({{1, 2}}), 1, 2, byRows({{3, infinity}, {M, 5}}), out);
    EXPECT_THAT(cellsOf(out), SameBits({3.0, 10.0}));
}

// The product of three factors depends on where it starts.
TEST(ProductWithDiagonal, LowerTriangleIsComputed)
{
    const double big = 1e200;
    Owned<matrix> out;
    M_ProductADTrA(byRows({{1e-200}, {big}}), 2, 1, filled(1, 1, big), out);
    EXPECT_THAT(cellsOf(out),
                SameBits({1e-200 * big * 1e-200, infinity, infinity, infinity})); // (2,1): big times big came first
}

// ---- with a vector as the diagonal ----------------------------------------------------------------------------------

double unlessMissing(double v, double x)
{
    return v == M || x == M ? M : v * x;
}

TEST(ProductDiagVA, FollowsThePlainLoopInBothStorages)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto v = c.operand(rows, 1);
        const auto expectCellsOf = [&](auto product, auto storage) {
            SCOPED_TRACE(storage.name);
            auto a = storage.operand(c, rows, cols);
            auto out = storage.existing(c, rows, cols), expected = copyOf(out);
            product(v, rows, a, cols, out);
            fillByRows(expected.get(), rows, cols,
                       [&](int i, int j) { return unlessMissing(at(v.get(), i, 1), at(a.get(), i, j)); });
            expectSame(out, expected);
        };
        expectCellsOf(M_ProductDiagVA, TableStorage{});
        expectCellsOf(M_ProductDiagVASPV, ColumnStorage{});
    });
}

TEST(ProductDiagVA, MissingWeightMakesItsRowMissing)
{
    auto out = filled(2, 2, 7.0);
    M_ProductDiagVA(column({M, 2}), 2, byRows({{1, 2}, {M, 3}}), 2, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({M, M, M, 6.0}));
}

TEST(ProductADiagV, FollowsThePlainLoopInBothStorages)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto v = c.operand(cols, 1);
        const auto expectCellsOf = [&](auto product, auto storage) {
            SCOPED_TRACE(storage.name);
            auto a = storage.operand(c, rows, cols);
            auto out = storage.existing(c, rows, cols), expected = copyOf(out);
            product(a, rows, cols, v, out);
            fillByRows(expected.get(), rows, cols, [&](int i, int j) { return at(a.get(), i, j) * at(v.get(), j, 1); });
            expectSame(out, expected);
        };
        expectCellsOf(M_ProductADiagV, TableStorage{});
        expectCellsOf(M_ProductADiagVSPV, ColumnStorage{});
    });
}

TEST(ProductADiagV, MissingWeightMultiplies)
{
    auto out = filled(1, 2, 7.0);
    M_ProductADiagV(byRows({{0.5, M}}), 1, 2, column({M, 0.25}), out);
    EXPECT_THAT(cellsOf(out), SameBits({0.5 * M, M * 0.25}));
    auto outColumns = Columns<matrix>(1, 2, {7.0, 7.0});
    M_ProductADiagVSPV(Columns<matrix>(1, 2, {0.5, M}), 1, 2, column({M, 0.25}), outColumns);
    EXPECT_THAT(outColumns.cells(), SameBits({0.5 * M, M * 0.25}));
}

TEST(ProductDiagV1ADiagV2, IsOneProductAfterTheOther)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto va = c.operand(rows, 1), vb = c.operand(cols, 1);
        const auto expectCellsOf = [&](auto product, auto storage) {
            SCOPED_TRACE(storage.name);
            auto a = storage.operand(c, rows, cols);
            auto out = storage.existing(c, rows, cols), expected = copyOf(out);
            product(va, rows, a, cols, vb, out);
            fillByRows(expected.get(), rows, cols, [&](int i, int j) {
                return unlessMissing(at(va.get(), i, 1), at(a.get(), i, j)) * at(vb.get(), j, 1);
            });
            expectSame(out, expected);
        };
        expectCellsOf(M_ProductDiagV1ADiagV2, TableStorage{});
        expectCellsOf(M_ProductDiagV1ADiagV2SPV, ColumnStorage{});
    });
}

TEST(ProductDiagV1ADiagV2, CellMadeMissingIsThenMultiplied)
{
    auto out = filled(1, 1, 7.0);
    M_ProductDiagV1ADiagV2(column({M}), 1, filled(1, 1, 3.0), 1, column({0.5}), out);
    EXPECT_THAT(cellsOf(out), SameBits({M * 0.5}));
}

/// Large enough for tiles, and written over a factor: the order of the results shows.
TEST(ProductWithDiagonalVector, IsWrittenOverALargeFactorCellByCell)
{
    forCases(4, [](Cases& c) {
        constexpr int n = 20;
        const auto ofCols = table(n, 1, c.numbers(n)), b = table(n, n, c.numbers(n * n));
        const auto a = table(n, n, c.numbers(n * n)), expected = copyOf(a);
        M_ProductADiagVTrB(a.get(), n, n, ofCols.get(), b.get(), n, a.get());
        for (int i = 1; i <= n; ++i)
            for (int j = 1; j <= n; ++j)
                put(expected.get(), i, j, sumOf(n, [&](int k) {
                        return at(expected.get(), i, k) * at(ofCols.get(), k, 1) * at(b.get(), j, k);
                    }));
        expectSame(a, expected);

        // Fewer rows than the result, and many columns: rows run on into the next column.
        const auto low = filled(5, 90, 7.0), expectedLow = copyOf(low);
        M_ProductADiagVTrB(b.get(), n, n, ofCols.get(), b.get(), n, low.get());
        for (int i = 1; i <= n; ++i)
            for (int j = 1; j <= n; ++j)
                put(expectedLow.get(), i, j,
                    sumOf(n, [&](int k) { return at(b.get(), i, k) * at(ofCols.get(), k, 1) * at(b.get(), j, k); }));
        expectSame(low, expectedLow);
    });
}

TEST(ProductWithDiagonalVector, SymmetricFormsAreWrittenInPlace)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto table = c.operand(rows, cols), ofCols = c.operand(cols, 1), ofRows = c.operand(rows, 1);
        matrix* const a = table.get();

        auto outer = c.existing(rows, rows), expectedOuter = copyOf(outer);
        M_ProductADiagVTrA(a, rows, cols, ofCols.get(), outer.get());
        fillMirrored(expectedOuter.get(), rows, [&](int i, int j) {
            return sumOf(cols, [&](int k) { return at(a, i, k) * at(ofCols.get(), k, 1) * at(a, j, k); });
        });
        expectSame(outer, expectedOuter);

        auto inner = c.existing(cols, cols), expectedInner = copyOf(inner);
        M_ProductTrADiagVA(a, rows, cols, ofRows.get(), inner.get());
        fillMirrored(expectedInner.get(), cols, [&](int i, int j) {
            return sumOf(rows, [&](int k) { return at(a, k, i) * at(ofRows.get(), k, 1) * at(a, k, j); });
        });
        expectSame(inner, expectedInner);
    });
}

TEST(ProductWithDiagonalVector, OfTwoTables)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count(), other = c.count();
        const auto table = c.operand(rows, cols), v = c.operand(cols, 1), b = c.operand(cols, other),
                   bForTranspose = c.operand(other, cols);
        matrix* const a = table.get();

        auto plain = c.existing(rows, other), expected = copyOf(plain);
        M_ProductADiagVB(a, rows, cols, v.get(), b.get(), other, plain.get());
        fillByRows(expected.get(), rows, other, [&](int i, int j) {
            return sumOf(cols, [&](int k) { return at(a, i, k) * at(v.get(), k, 1) * at(b.get(), k, j); });
        });
        expectSame(plain, expected);

        auto tr = c.existing(rows, other), expectedTr = copyOf(tr);
        M_ProductADiagVTrB(a, rows, cols, v.get(), bForTranspose.get(), other, tr.get());
        fillByRows(expectedTr.get(), rows, other, [&](int i, int j) {
            return sumOf(cols, [&](int k) { return at(a, i, k) * at(v.get(), k, 1) * at(bForTranspose.get(), j, k); });
        });
        expectSame(tr, expectedTr);
    });
}

TEST(ProductTrADiagV, WritesTheUpperTriangleAlone)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.operand(rows, cols), v = c.operand(rows, 1);
        auto out = c.existing(cols, rows), expected = copyOf(out);
        M_ProductTrADiagV(a.get(), rows, cols, v.get(), out.get());
        for (int col = 1; col <= cols; ++col)
            for (int k = col; k <= rows; ++k)
                expected->vbset(col, k, at(a.get(), k, col) * at(v.get(), k, 1));
        expectSame(out, expected);
    });
    auto out = filled(2, 2, 7.0);
    M_ProductTrADiagV(byRows({{1, 2}, {3, 4}}), 2, 2, column({10, 100}), out.get());
    EXPECT_THAT(cellsOf(out), SameBits({10.0, 7.0, 300.0, 400.0}));
}

// ---- flat forms -----------------------------------------------------------------------------------------------------

TEST(DiagonalProductExports, WithTables)
{
    forCases(150, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.exact(rows, cols), ofCols = c.exact(cols, cols), ofRows = c.exact(rows, rows);
        auto flatA = flat(a), flatOfCols = flat(ofCols), flatOfRows = flat(ofRows);
        auto aDTrA = c.exactResult(rows, rows), trADA = c.exactResult(cols, cols), aDiag = c.exactResult(rows, cols),
             trADiag = c.exactResult(cols, rows);
        auto flatADTrA = flat(aDTrA), flatTrADA = flat(trADA), flatADiag = flat(aDiag), flatTrADiag = flat(trADiag);
        M_ProductADTrA(a.get(), rows, cols, ofCols.get(), aDTrA);
        VB_M_ProductADTrA(flatA, rows, cols, flatOfCols, flatADTrA);
        expectFlat(flatADTrA, aDTrA);
        M_ProductTrADA(a.get(), rows, cols, ofRows.get(), trADA);
        VB_M_ProductTrADA(flatA, rows, cols, flatOfRows, flatTrADA);
        expectFlat(flatTrADA, trADA);
        M_ProductADiag(a.get(), rows, cols, ofCols.get(), aDiag);
        VB_M_ProductADiag(flatA, rows, cols, flatOfCols, flatADiag);
        expectFlat(flatADiag, aDiag);
        M_ProductTrADiag(a.get(), rows, cols, ofRows.get(), trADiag);
        VB_M_ProductTrADiag(flatA, rows, cols, flatOfRows, flatTrADiag);
        expectFlat(flatTrADiag, trADiag);
        expectUntouched(flatA, flatOfCols, flatOfRows);
    });
}

TEST(DiagonalProductExports, WithVectors)
{
    forCases(150, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.exact(rows, cols), ofRows = c.exact(rows, 1), ofCols = c.exact(cols, 1);
        auto flatA = flat(a), flatOfRows = flat(ofRows), flatOfCols = flat(ofCols);
        auto vA = c.exactResult(rows, cols), aV = c.exactResult(rows, cols), both = c.exactResult(rows, cols),
             outer = c.exactResult(rows, rows), inner = c.exactResult(cols, cols), upper = c.exactResult(cols, rows);
        auto flatVA = flat(vA), flatAV = flat(aV), flatBoth = flat(both), flatOuter = flat(outer),
             flatInner = flat(inner), flatUpper = flat(upper);
        M_ProductDiagVA(ofRows.get(), rows, a.get(), cols, vA.get());
        VB_M_ProductDiagVA(flatOfRows, rows, flatA, cols, flatVA);
        expectFlat(flatVA, vA);
        M_ProductADiagV(a.get(), rows, cols, ofCols.get(), aV);
        VB_M_ProductADiagV(flatA, rows, cols, flatOfCols, flatAV);
        expectFlat(flatAV, aV);
        M_ProductDiagV1ADiagV2(ofRows.get(), rows, a.get(), cols, ofCols.get(), both);
        VB_M_ProductDiagV1ADiagV2(flatOfRows, rows, flatA, cols, flatOfCols, flatBoth);
        expectFlat(flatBoth, both);
        M_ProductADiagVTrA(a.get(), rows, cols, ofCols.get(), outer.get());
        VB_M_ProductADiagVTrA(flatA, rows, cols, flatOfCols, flatOuter);
        expectFlat(flatOuter, outer);
        M_ProductTrADiagVA(a.get(), rows, cols, ofRows.get(), inner.get());
        VB_M_ProductTrADiagVA(flatA, rows, cols, flatOfRows, flatInner);
        expectFlat(flatInner, inner);
        M_ProductTrADiagV(a.get(), rows, cols, ofRows.get(), upper.get());
        VB_M_ProductTrADiagV(flatA, rows, cols, flatOfRows, flatUpper);
        expectFlat(flatUpper, upper);
        expectUntouched(flatA, flatOfRows, flatOfCols);
    });
}

// Both forms open the second table as `other` by cols and the result as rows by rows, also the one that then reads b as
// cols by `other`.
TEST(DiagonalProductExports, OfTwoTablesOpenTheSecondByItsRows)
{
    forCases(150, [](Cases& c) {
        const int rows = c.count(), cols = c.count(), other = c.count();
        const auto a = c.exact(rows, cols), v = c.exact(cols, 1), b = c.exact(other, cols);
        auto flatA = flat(a), flatV = flat(v), flatB = flat(b);
        auto plain = c.exactResult(rows, rows), tr = c.exactResult(rows, rows);
        auto flatPlain = flat(plain), flatTr = flat(tr);
        M_ProductADiagVB(a.get(), rows, cols, v.get(), b.get(), other, plain.get());
        VB_M_ProductADiagVB(flatA, rows, cols, flatV, flatB, other, flatPlain);
        expectFlat(flatPlain, plain);
        M_ProductADiagVTrB(a.get(), rows, cols, v.get(), b.get(), other, tr.get());
        VB_M_ProductADiagVTrB(flatA, rows, cols, flatV, flatB, other, flatTr);
        expectFlat(flatTr, tr);
        expectUntouched(flatA, flatV, flatB);
    });
    // a is 1 by 2 and b comes as 1 by 2, so the row (3, 4) is read as the column it is summed over by its own stride.
    Guarded<double> a({1, 1}), v({1, 1}), b({3, 4}), out({7});
    VB_M_ProductADiagVB(a, 1, 2, v, b, 1, out);
    EXPECT_THAT(out.values(), SameBits({7.0}));
    // Of a result wider than it has rows, the columns beyond the rows are dropped.
    Guarded<double> wideB({3, 5}), one({7}), single({2}), unit({1});
    VB_M_ProductADiagVTrB(single, 1, 1, unit, wideB, 2, one);
    EXPECT_THAT(one.values(), SameBits({6.0}));
}

} // namespace
