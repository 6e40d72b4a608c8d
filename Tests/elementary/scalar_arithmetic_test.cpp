#include "elementary/scalar_arithmetic.h"

#include "elementary/product_cases.h"

#include "support/special_values.h"

#include <algorithm>
#include <cmath>

using namespace vecmat::test;

namespace {

constexpr int caseCount = 400;

double scaled(double s, double x)
{
    return x == M ? M : s * x;
}

double randomScalar(Cases& c)
{
    return c.numbers(1)[0];
}

TEST(ScalarsA, FollowsThePlainLoopInPlaceAndTransposed)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const double s = randomScalar(c);
        const auto a = c.operand(rows, cols);
        auto out = c.existing(rows, cols), expected = copyOf(out);
        auto tr = c.toPrepare(cols, rows), expectedTr = copyOf(tr);
        M_ScalarsA(a.get(), rows, cols, s, out);
        M_ScalarsTrA(a.get(), rows, cols, s, tr);
        fillByRows(expected.get(), rows, cols, [&](int i, int j) { return scaled(s, at(a.get(), i, j)); });
        matrix::matCheck(expectedTr, cols, rows, 0.0);
        fillByRows(expectedTr.get(), cols, rows, [&](int j, int i) { return scaled(s, at(a.get(), i, j)); });
        expectSame(out, expected);
        expectSame(tr, expectedTr);
    });
}

TEST(ScalarsA, KeepsAMissingCellWhileAPlusValDoesNot)
{
    auto out = filled(1, 3, 7.0);
    M_ScalarsA(byRows({{M, 2, -infinity}}), 1, 3, 0.5, out);
    EXPECT_THAT(cellsOf(out), SameBits({M, 1.0, -infinity}));
    M_APlusVal(byRows({{M, 2, -infinity}}).get(), 1, 3, 1e307, out.reference());
    EXPECT_THAT(cellsOf(out), SameBits({M + 1e307, 1e307, -infinity}));
    EXPECT_NE(out->vbget(1, 1), M);
}

TEST(ScalarsA, ResultMayBeTheOperand)
{
    auto a = byRows({{1, M}, {3, 4}});
    M_ScalarsA(a.get(), 2, 2, 2.0, a);
    EXPECT_THAT(cellsOf(a), SameBits({2.0, 6.0, M, 8.0}));
}

TEST(ScalarsA2, GivesTheTableTheShapePassed)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = std::max(c.count(), 0), cols = std::max(c.count(), 0);
        const double s = randomScalar(c);
        auto a = c.operand(rows, cols), expected = filled(rows, cols, 0.0);
        fillByRows(expected.get(), rows, cols, [&](int i, int j) { return scaled(s, at(a.get(), i, j)); });
        M_ScalarsA2(a, rows, cols, s);
        expectSame(a, expected);
        EXPECT_EQ(a->nElems, vecmat::elementCount(rows, cols));
    });
}

double weightedSum(double x, double y, double s1, double s2)
{
    return x == M || y == M ? M : x * s1 + y * s2;
}

TEST(Sums1As2B, FollowsThePlainLoopInAllStorages)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count(), order = std::max({rows, cols, 0});
        const double s1 = randomScalar(c), s2 = randomScalar(c);
        const auto a = c.operand(rows, cols), b = c.operand(rows, cols);
        auto columns = c.columnOperand(rows, cols);
        auto lower = vecmat::test::triangle(order, c.numbers(vecmat::elementCount(order, order)));
        auto out = c.toPrepare(rows, cols), expected = copyOf(out);
        auto ofColumns = c.toPrepare(rows, cols), expectedColumns = copyOf(ofColumns);
        auto ofTriangle = c.toPrepare(rows, cols), expectedTriangle = copyOf(ofTriangle);
        M_Sums1As2B(a.get(), rows, cols, b.get(), s1, s2, out);
        M_Sums1As2BSPV(columns, rows, cols, b.get(), s1, s2, ofColumns);
        M_Sums1As2BSPV_T(lower, rows, cols, b.get(), s1, s2, ofTriangle);

        const auto fill = [&](Owned<matrix>& result, const auto& cell) {
            matrix::matCheck(result, rows, cols, 0.0);
            fillByRows(result.get(), rows, cols,
                       [&](int i, int j) { return weightedSum(cell(i, j), at(b.get(), i, j), s1, s2); });
        };
        fill(expected, [&](int i, int j) { return at(a.get(), i, j); });
        fill(expectedColumns, [&](int i, int j) { return at(columns.get(), i, j); });
        fill(expectedTriangle,
             [&](int i, int j) { return lower.get()[std::min(i, j) - 1]->vbget(std::abs(i - j) + 1, 1); });
        expectSame(out, expected);
        expectSame(ofColumns, expectedColumns);
        expectSame(ofTriangle, expectedTriangle);
    });
}

TEST(Sums1As2B, EitherMissingCellMakesTheSumMissing)
{
    Owned<matrix> out;
    M_Sums1As2B(byRows({{M, 1, 2}}), 1, 3, byRows({{1, M, 3}}), 2.0, 10.0, out);
    EXPECT_THAT(cellsOf(out), SameBits({M, M, 34.0}));
}

TEST(SumMat, AddsWithoutATest)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const auto a = c.operand(rows, cols), b = c.operand(rows, cols);
        auto out = c.existing(rows, cols), expected = copyOf(out);
        SumMat(a.get(), b.get(), rows, cols, out.get());
        fillByRows(expected.get(), rows, cols, [&](int i, int j) { return at(a.get(), i, j) + at(b.get(), i, j); });
        expectSame(out, expected);
    });
    auto out = filled(1, 1, 7.0);
    SumMat(filled(1, 1, M), filled(1, 1, 1e307), 1, 1, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({M + 1e307}));
}

// ---- a + v ----------------------------------------------------------------------------------------------------------

template <class A, class Out>
void checkAPlusVal(int rows, int cols, A a, double v, Owned<Out> out)
{
    auto expected = copyOf(out);
    M_APlusVal(a, rows, cols, v, out.reference());
    Out::matCheck(expected, rows, cols, 0.0);
    fillByRows(expected.get(), rows, cols, [&](int i, int j) { return at(a, i, j) + v; });
    expectSame(out, expected);
}

TEST(APlusVal, AllElementTypesFollowThePlainLoop)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const double v = randomScalar(c);
        auto a = c.operand(rows, cols);
        auto ints = c.intOperand(rows, cols);
        checkAPlusVal(rows, cols, a.get(), v, c.toPrepare(rows, cols));
        checkAPlusVal(rows, cols, a.get(), v, c.intsToPrepare(rows, cols));
        checkAPlusVal(rows, cols, ints.get(), v, c.toPrepare(rows, cols));
        checkAPlusVal(rows, cols, ints.get(), v, c.intsToPrepare(rows, cols));

        auto expected = copyOf(a);
        auto expectedInts = copyOf(ints);
        M_APlusVal2(a.get(), rows, cols, v);
        M_APlusVal2(ints.get(), rows, cols, v);
        fillByRows(expected.get(), rows, cols, [&](int i, int j) { return at(expected.get(), i, j) + v; });
        fillByRows(expectedInts.get(), rows, cols, [&](int i, int j) { return at(expectedInts.get(), i, j) + v; });
        expectSame(a, expected);
        expectSame(ints, expectedInts);
    });
}

TEST(APlusVal, ResultInIntsIsTruncated)
{
    Owned<matrixInt> out;
    M_APlusVal(byRows({{1.25, -1.75, M, 2e9}}).get(), 1, 4, 0.5, out.reference());
    EXPECT_EQ(cellsOf(out), (std::vector<int>{1, -1, lowestInt, 2000000000}));
    M_APlusVal(intsByRows({{2000000000, 3}}).get(), 1, 2, 2e9, out.reference());
    EXPECT_EQ(out->vbget(1, 1), lowestInt);
    EXPECT_EQ(out->vbget(1, 2), 2000000003);
    auto inPlace = intsByRows({{1, -1}});
    M_APlusVal2(inPlace.get(), 1, 2, -0.5);
    EXPECT_EQ(cellsOf(inPlace), (std::vector<int>{0, -1}));
}

// ---- flat forms -----------------------------------------------------------------------------------------------------

TEST(ScalarArithmeticExports, WriteTheBitsOfTheirFunctions)
{
    forCases(150, [](Cases& c) {
        const int rows = c.count(), cols = c.count();
        const double s = randomScalar(c), t = randomScalar(c);
        const auto a = c.exact(rows, cols), b = c.exact(rows, cols);
        auto flatA = flat(a), flatB = flat(b);
        auto times = c.exactResult(rows, cols), timesTr = c.exactResult(cols, rows), sum = c.exactResult(rows, cols),
             plus = c.exactResult(rows, cols), plain = c.exactResult(rows, cols);
        auto flatTimes = flat(times), flatTimesTr = flat(timesTr), flatSum = flat(sum), flatPlus = flat(plus),
             flatPlain = flat(plain);
        M_ScalarsA(a.get(), rows, cols, s, times);
        VB_M_ScalarsA(flatA, rows, cols, s, flatTimes);
        expectFlat(flatTimes, times);
        M_ScalarsTrA(a.get(), rows, cols, s, timesTr);
        VB_M_ScalarsTrA(flatA, rows, cols, s, flatTimesTr);
        expectFlat(flatTimesTr, timesTr);
        M_Sums1As2B(a.get(), rows, cols, b.get(), s, t, sum);
        VB_M_Sums1As2B(flatA, rows, cols, flatB, s, t, flatSum);
        expectFlat(flatSum, sum);
        M_APlusVal(a.get(), rows, cols, s, plus.reference());
        VB_M_APlusVal(flatA, rows, cols, s, flatPlus);
        expectFlat(flatPlus, plus);
        SumMat(a.get(), b.get(), rows, cols, plain.get());
        Cpp_SumMat(flatA, flatB, rows, cols, flatPlain);
        expectFlat(flatPlain, plain);
        expectUntouched(flatA, flatB);

        auto scaledInPlace = copyOf(a), addedInPlace = copyOf(a);
        auto flatScaled = flat(a), flatAdded = flat(a);
        M_ScalarsA2(scaledInPlace, rows, cols, s);
        VB_M_ScalarsA2(flatScaled, rows, cols, s);
        expectFlat(flatScaled, scaledInPlace);
        M_APlusVal2(addedInPlace.get(), rows, cols, s);
        VB_M_APlusVal2(flatAdded, rows, cols, s);
        expectFlat(flatAdded, addedInPlace);
    });
}

} // namespace
