#include "elementary/matrix_products.h"

#include "elementary/product_cases.h"

using vecmat::elementCount;
using namespace vecmat::test;

namespace {

constexpr int caseCount = 150;

TEST(MatrixProductExports, ProductsOfTwoTables)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count(), other = c.count();
        const auto a = c.exact(rows, cols), right = c.exact(cols, other), sameRows = c.exact(rows, other),
                   sameCols = c.exact(other, cols);
        auto flatA = flat(a), flatRight = flat(right), flatRows = flat(sameRows), flatCols = flat(sameCols);

        auto ab = c.exactResult(rows, other);
        auto flatAB = flat(ab);
        M_ProductAB(a.get(), rows, cols, right.get(), other, ab);
        EXPECT_EQ(VB_M_ProductAB(flatA, rows, cols, flatRight, other, flatAB), 0);
        expectFlat(flatAB, ab);

        auto trAB = c.exactResult(cols, other);
        auto flatTrAB = flat(trAB);
        M_ProductTrAB(a.get(), rows, cols, sameRows.get(), other, trAB);
        VB_M_ProductTrAB(flatA, rows, cols, flatRows, other, flatTrAB);
        expectFlat(flatTrAB, trAB);

        auto aTrB = c.exactResult(rows, other);
        auto flatATrB = flat(aTrB);
        M_ProductATrB(a.get(), rows, cols, sameCols.get(), other, aTrB);
        VB_M_ProductATrB(flatA, rows, cols, flatCols, other, flatATrB);
        expectFlat(flatATrB, aTrB);

        expectUntouched(flatA, flatRight, flatRows, flatCols);
    });
}

TEST(MatrixProductExports, SymmetricProducts)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.exact(rows, cols);
        auto flatA = flat(a);

        auto trAA = c.exactResult(cols, cols), aTrA = c.exactResult(rows, rows);
        auto flatTrAA = flat(trAA), flatATrA = flat(aTrA);
        M_ProductTrAA(a.get(), rows, cols, trAA.reference());
        VB_M_ProductTrAA(flatA, rows, cols, flatTrAA);
        expectFlat(flatTrAA, trAA);
        M_ProductATrA(a.get(), rows, cols, aTrA.reference());
        VB_M_ProductATrA(flatA, rows, cols, flatATrA);
        expectFlat(flatATrA, aTrA);

        const auto ints = c.exactInts(rows, cols);
        Guarded<int> flatInts(cellsOf(ints)), flatProduct(elementCount(cols, cols), 7);
        Owned<matrixInt> product;
        M_ProductTrAA(ints.get(), rows, cols, product.reference());
        Cpp_M_ProductTrAALng(flatInts, rows, cols, flatProduct);
        EXPECT_EQ(flatProduct.values(), cellsOf(product));

        EXPECT_TRUE(flatInts.untouched());
        expectUntouched(flatA);
    });
}

TEST(MatrixProductExports, ProductsWithVectors)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto b = c.exact(rows, cols), u = c.exact(rows, 1), v = c.exact(cols, 1);
        auto flatB = flat(b), flatU = flat(u), flatV = flat(v);

        auto bv = c.exactResult(rows, 1);
        auto flatBV = flat(bv);
        M_ProductBV(b.get(), rows, cols, v.get(), bv);
        EXPECT_EQ(VB_M_ProductBV(flatB, rows, cols, flatV, flatBV), 0);
        expectFlat(flatBV, bv);

        auto ub = c.exactResult(cols, 1);
        auto flatUB = flat(ub);
        M_ProductVB(u.get(), rows, b.get(), cols, ub);
        VB_M_ProductVB(flatU, rows, flatB, cols, flatUB);
        expectFlat(flatUB, ub);

        auto trBU = c.exactResult(cols, 1);
        auto flatTrBU = flat(trBU);
        M_ProductTrBV(b.get(), rows, cols, u.get(), trBU.get());
        VB_M_ProductTrBV(flatB, rows, cols, flatU, flatTrBU);
        expectFlat(flatTrBU, trBU);

        auto vTrB = c.exactResult(rows, 1);
        auto flatVTrB = flat(vTrB);
        M_ProductVTrB(v.get(), cols, b.get(), rows, vTrB.get());
        VB_M_ProductVTrB(flatV, cols, flatB, rows, flatVTrB);
        expectFlat(flatVTrB, vTrB);

        expectUntouched(flatB, flatU, flatV);
    });
}

TEST(MatrixProductExports, Forms)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.exact(rows, cols), ofCols = c.exact(cols, cols), ofRows = c.exact(rows, rows),
                   u = c.exact(rows, 1), v = c.exact(rows, 1);
        auto flatA = flat(a), flatOfCols = flat(ofCols), flatOfRows = flat(ofRows), flatU = flat(u), flatV = flat(v);

        auto outer = c.exactResult(rows, rows), inner = c.exactResult(cols, cols);
        auto flatOuter = flat(outer), flatInner = flat(inner);
        M_ProductABTrA(a.get(), rows, cols, ofCols.get(), outer.get());
        VB_M_ProductABTrA(flatA, rows, cols, flatOfCols, flatOuter);
        expectFlat(flatOuter, outer);
        M_ProductTrABA(a.get(), rows, cols, ofRows.get(), inner.get());
        VB_M_ProductTrABA(flatA, rows, cols, flatOfRows, flatInner);
        expectFlat(flatInner, inner);

        EXPECT_THAT(VB_M_ProductTrVBV(flatU, rows, flatOfRows), SameBits(M_ProductTrVBV(u.get(), rows, ofRows.get())));
        EXPECT_THAT(VB_M_ProductTrV1BV2(flatU, rows, flatOfRows, flatV),
                    SameBits(M_ProductTrV1BV2(u.get(), rows, ofRows.get(), v.get())));

        expectUntouched(flatA, flatOfCols, flatOfRows, flatU, flatV);
    });
}

TEST(MatrixProductExports, ChainsOfThree)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count(), other = c.count(), colsC = c.count();
        const auto a = c.exact(rows, cols), sameRows = c.exact(rows, other), sameCols = c.exact(other, cols),
                   right = c.exact(cols, other), third = c.exact(other, colsC), v = c.exact(other, 1);
        auto flatA = flat(a), flatRows = flat(sameRows), flatCols = flat(sameCols), flatRight = flat(right),
             flatThird = flat(third), flatV = flat(v);

        auto trABC = c.exactResult(cols, colsC), aTrBC = c.exactResult(rows, colsC), abc = c.exactResult(rows, colsC),
             trABV = c.exactResult(cols, 1);
        auto flatTrABC = flat(trABC), flatATrBC = flat(aTrBC), flatABC = flat(abc), flatTrABV = flat(trABV);
        M_ProductTrABC(a.get(), rows, cols, sameRows.get(), other, third.get(), colsC, trABC.get());
        VB_M_ProductTrABC(flatA, rows, cols, flatRows, other, flatThird, colsC, flatTrABC);
        expectFlat(flatTrABC, trABC);
        M_ProductATrBC(a.get(), rows, cols, sameCols.get(), other, third.get(), colsC, aTrBC.get());
        VB_M_ProductATrBC(flatA, rows, cols, flatCols, other, flatThird, colsC, flatATrBC);
        expectFlat(flatATrBC, aTrBC);
        M_ProductABC(a.get(), rows, cols, right.get(), other, third.get(), colsC, abc.get());
        VB_M_ProductABC(flatA, rows, cols, flatRight, other, flatThird, colsC, flatABC);
        expectFlat(flatABC, abc);
        M_ProductTrABV(a.get(), rows, cols, sameRows.get(), other, v.get(), trABV.get());
        Cpp_M_ProductTrABV(flatA, rows, cols, flatRows, other, flatV, flatTrABV);
        expectFlat(flatTrABV, trABV);

        expectUntouched(flatA, flatRows, flatCols, flatRight, flatThird, flatV);
    });
}

// The result is prepared in the caller's array, which is the operand too.
TEST(MatrixProductExports, ResultOverAnOperandClearsItFirst)
{
    Guarded<double> a({1, 2, 3, 4}), b({1, 0, 0, 1});
    VB_M_ProductAB(a, 2, 2, b, 2, a);
    EXPECT_THAT(a.values(), SameBits({0.0, 0.0, 0.0, 0.0}));
}

} // namespace
