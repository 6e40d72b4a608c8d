#include "elementary/vector_products.h"

#include "elementary/product_cases.h"

#include "support/special_values.h"

using namespace vecmat::test;

namespace {

constexpr int caseCount = 400;

/// Element i, 1-based, of a vector by checked access.
double el(const Owned<matrix>& v, int i)
{
    return v->vbget(i, 1);
}

TEST(ProductTrV1V2, IsTheRunningSum)
{
    forCases(caseCount, [](Cases& c) {
        const int n = c.count();
        const auto a = c.operand(n, 1), b = c.operand(n, 1);
        EXPECT_THAT(V_ProductTrV1V2(a.get(), n, b.get()),
                    SameBits(sumOf(n, [&](int i) { return el(a, i) * el(b, i); })));
    });
    EXPECT_THAT(V_ProductTrV1V2(column({}), 0, column({})), SameBits(0.0));
    EXPECT_THAT(V_ProductTrV1V2(nullptr, -1, nullptr), SameBits(0.0));
    EXPECT_THAT(V_ProductTrV1V2(column({M, 2}), 2, column({0.5, 3})), SameBits(M * 0.5 + 6.0));
}

TEST(ProductTrV1V2, TableIsWalkedInLinearOrder)
{
    EXPECT_THAT(V_ProductTrV1V2(byRows({{1, 3}, {2, 4}}), 4, column({1, 10, 100, 1000})), SameBits(4321.0));
}

TEST(ProductWTrV1V2, FollowsThePlainLoop)
{
    forCases(caseCount, [](Cases& c) {
        const int n = c.count();
        const auto a = c.operand(n, 1), b = c.operand(n, 1), w = c.operand(n, 1);
        double sum = 0.0, weight = 0.0;
        for (int i = 1; i <= n; ++i) {
            if (el(w, i) != M)
                weight += el(w, i);
            if (el(a, i) != M && el(b, i) != M)
                sum += el(a, i) * el(b, i) * el(w, i);
        }
        EXPECT_THAT(V_ProductWTrV1V2(a.get(), n, b.get(), w.get()), SameBits(weight > 0.0 ? sum / weight : sum));
    });
}

TEST(ProductWTrV1V2, DivisorTakesTheWeightsOfSkippedCellsToo)
{
    EXPECT_THAT(V_ProductWTrV1V2(column({1, M, 3, 4}), 4, column({2, 2, M, 5}), column({1, 2, 3, 4})),
                SameBits((2.0 + 80.0) / 10.0));
}

TEST(ProductWTrV1V2, WithoutPositiveWeightTheSumIsNotDivided)
{
    EXPECT_THAT(V_ProductWTrV1V2(column({3, 4}), 2, column({1, 1}), column({-2, 1})), SameBits(-6.0 + 4.0));
    EXPECT_THAT(V_ProductWTrV1V2(column({3}), 1, column({1}), column({0})), SameBits(0.0));
    EXPECT_THAT(V_ProductWTrV1V2(column({3}), 1, column({1}), column({notANumber})), SameBits(notANumber));
    EXPECT_THAT(V_ProductWTrV1V2(column({}), 0, column({}), column({})), SameBits(0.0));
}

TEST(ProductV1V2, FollowsThePlainLoopIntoAThirdVectorAndInPlace)
{
    forCases(caseCount, [](Cases& c) {
        const int n = c.count();
        auto a = c.operand(n, 1);
        const auto b = c.operand(n, 1);
        auto out = c.existing(n, 1), expected = copyOf(out), expectedInPlace = copyOf(a);
        V_ProductV1V2(a.get(), n, b.get(), out.get());
        fillByRows(expected.get(), n, 1, [&](int i, int) { return el(a, i) * el(b, i); });
        fillByRows(expectedInPlace.get(), n, 1, [&](int i, int) { return el(a, i) * el(b, i); });
        V_ProductV1V22(a.get(), n, b.get());
        expectSame(out, expected);
        expectSame(a, expectedInPlace);
    });
}

TEST(ProductV1TrV2, IsTheOuterProduct)
{
    forCases(caseCount, [](Cases& c) {
        const int n = c.count();
        const auto a = c.operand(n, 1), b = c.operand(n, 1);
        auto out = c.existing(n, n), expected = copyOf(out);
        V_ProductV1TrV2(a.get(), n, b.get(), out.get());
        fillByRows(expected.get(), n, n, [&](int i, int j) { return el(a, i) * el(b, j); });
        expectSame(out, expected);
    });
}

TEST(ProductHorizV1V22, PutsAllPairsInTheFirstVector)
{
    forCases(caseCount, [](Cases& c) {
        const int n = c.count(), m = c.count();
        auto a = c.operand(n * m, 1), expected = copyOf(a);
        const auto b = c.operand(m, 1);
        std::vector<double> products;
        for (int i = 1; i <= n; ++i)
            for (int j = 1; j <= m; ++j)
                products.push_back(el(a, i) * el(b, j));
        for (std::size_t k = 0; k < products.size(); ++k)
            expected->vbset(static_cast<int>(k) + 1, 1, products[k]);
        int length = n;
        V_ProductHorizV1V22(a.get(), &length, b.get(), m);
        EXPECT_EQ(length, n * m);
        expectSame(a, expected);
    });
}

TEST(ProductHorizV1V22, MissingCellMultiplies)
{
    auto a = column({0.5, M, 0, 0});
    int n = 2;
    V_ProductHorizV1V22(a.get(), &n, column({M, 0.25}), 2);
    EXPECT_THAT(cellsOf(a), SameBits({0.5 * M, 0.5 * 0.25, infinity, M * 0.25}));
}

TEST(Product1toN, StartsAtOneAndTestsNothing)
{
    forCases(caseCount, [](Cases& c) {
        const int n = c.count();
        const auto x = c.operand(n, 1);
        const auto ints = c.intOperand(n, 1);
        double product = 1.0, ofInts = 1.0;
        for (int i = 1; i <= n; ++i) {
            product *= el(x, i);
            ofInts *= ints->vbget(i, 1);
        }
        EXPECT_THAT(V_Product1toN(x.get(), n), SameBits(product));
        EXPECT_THAT(V_Product1toN(ints.get(), n), SameBits(ofInts));
    });
    EXPECT_THAT(V_Product1toN(column({2, M}), 2), SameBits(-infinity));
    EXPECT_THAT(V_Product1toN(column({5}), 0), SameBits(1.0));
    EXPECT_THAT(V_Product1toN(intColumn({100000, 100000}), 2), SameBits(1e10));
    EXPECT_THAT(V_Product1toN(intColumn({3}), 2), SameBits(-3.0));
}

TEST(Comparisons, FollowThePlainLoops)
{
    forCases(caseCount, [](Cases& c) {
        const int n = c.count(), cols = c.count();
        const auto v = c.operand(n, 1), a = c.operand(n, cols), b = c.operand(n, 1);
        for (unsigned k = 0; k < v->nElems && c.data.chance(0.9); ++k)
            v->X[k] += 2.0; // so that both answers occur
        bool aboveInTable = false, aboveInVector = false;
        for (int i = 1; i <= n; ++i) {
            aboveInVector = aboveInVector || el(b, i) > el(v, i);
            for (int j = 1; j <= cols; ++j)
                aboveInTable = aboveInTable || at(a.get(), i, j) > el(v, i);
        }
        EXPECT_EQ(V_V1GreaterThanMatCols(v.get(), n, a.get(), cols), aboveInTable ? 0 : -1);
        EXPECT_EQ(V_V1inferiorV2(b.get(), n, v.get()), aboveInVector ? 0 : -1);
    });
}

TEST(Comparisons, EqualCellsAndNaNsAreNotAbove)
{
    EXPECT_EQ(V_V1GreaterThanMatCols(column({1, 2}), 2, byRows({{1, 0}, {notANumber, 2}}), 2), -1);
    EXPECT_EQ(V_V1GreaterThanMatCols(column({1, notANumber}), 2, byRows({{1, 0}, {5, 6}}), 2), -1);
    EXPECT_EQ(V_V1GreaterThanMatCols(column({1, 2}), 2, byRows({{1, 0}, {2, 2.5}}), 2), 0);
    EXPECT_EQ(V_V1GreaterThanMatCols(column({M}), 1, byRows({{1}}), 0), -1);
    EXPECT_EQ(V_V1GreaterThanMatCols(column({}), 0, byRows({{1}}), 1), -1);
    EXPECT_EQ(V_V1inferiorV2(column({1, 2}), 2, column({1, 3})), -1);
    EXPECT_EQ(V_V1inferiorV2(column({1, 4}), 2, column({1, 3})), 0);
    EXPECT_EQ(V_V1inferiorV2(column({1}), 0, column({0})), -1);
    EXPECT_EQ(V_V1inferiorV2(column({1}), 2, column({1, -2})), 0); // -1.0 outside is above -2
}

// ---- flat forms -----------------------------------------------------------------------------------------------------

TEST(VectorProductExports, WriteTheBitsOfTheirFunctions)
{
    forCases(150, [](Cases& c) {
        const int n = c.count(), m = c.count();
        const auto a = c.exact(n, 1), b = c.exact(n, 1), table = c.exact(n, m);
        auto flatA = flat(a), flatB = flat(b), flatTable = flat(table);
        EXPECT_THAT(VB_V_ProductTrV1V2(flatA, n, flatB), SameBits(V_ProductTrV1V2(a.get(), n, b.get())));
        EXPECT_THAT(VB_V_Product1toNDbl(flatA, n), SameBits(V_Product1toN(a.get(), n)));
        EXPECT_EQ(VB_V_V1GreaterThanMatCols(flatA, n, flatTable, m),
                  V_V1GreaterThanMatCols(a.get(), n, table.get(), m));
        EXPECT_EQ(VB_V_V1inferiorV2(flatA, n, flatB), V_V1inferiorV2(a.get(), n, b.get()));

        auto product = c.exactResult(n, 1), outer = c.exactResult(n, n), inPlace = copyOf(a);
        auto flatProduct = flat(product), flatOuter = flat(outer), flatInPlace = flat(a);
        V_ProductV1V2(a.get(), n, b.get(), product.get());
        VB_V_ProductV1V2(flatA, n, flatB, flatProduct);
        expectFlat(flatProduct, product);
        V_ProductV1TrV2(a.get(), n, b.get(), outer.get());
        VB_V_ProductV1TrV2(flatA, n, flatB, flatOuter);
        expectFlat(flatOuter, outer);
        V_ProductV1V22(inPlace.get(), n, b.get());
        VB_V_ProductV1V22(flatInPlace, n, flatB);
        expectFlat(flatInPlace, inPlace);
        expectUntouched(flatA, flatB, flatTable);
    });
}

TEST(VectorProductExports, PairsGoIntoAThirdArrayOrIntoTheFirst)
{
    Guarded<double> a({2, 3}), b({1, 10, 100}), out(6, 7.0);
    VB_V_ProductHorizV1V2(a, 2, b, 3, out);
    EXPECT_THAT(out.values(), SameBits({2.0, 20.0, 200.0, 3.0, 30.0, 300.0}));
    expectUntouched(a, b);

    Guarded<double> grown({2, 3, 7, 7, 7, 7});
    int n = 2;
    VB_V_ProductHorizV1V22(grown, &n, b, 3);
    EXPECT_EQ(n, 6);
    EXPECT_THAT(grown.values(), SameBits(out.values()));
    expectUntouched(b);

    n = 0;
    VB_V_ProductHorizV1V22(grown, &n, b, 3);
    VB_V_ProductHorizV1V2(a, 0, b, 3, out);
    VB_V_ProductHorizV1V2(a, -1, b, 3, out);
    EXPECT_EQ(n, 0);
    EXPECT_THAT(grown.values(), SameBits(out.values()));
}

TEST(VectorProductExports, ProductOfIntsIsTruncated)
{
    Guarded<int> x({50000, -40000, 3});
    EXPECT_EQ(VB_V_Product1toNLng(x, 2), -2000000000);
    EXPECT_EQ(VB_V_Product1toNLng(x, 3), lowestInt);
    EXPECT_EQ(VB_V_Product1toNLng(x, 0), 1);
    EXPECT_TRUE(x.untouched());
}

} // namespace
