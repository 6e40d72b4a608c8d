#include "matrix.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/special_values.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using namespace vecmat::test;

using Cells = std::vector<double>;

TEST(Sqr2, IsTheRootOrTheMissingValue)
{
    EXPECT_THAT(sqr2(2.25), SameBits(1.5));
    EXPECT_THAT(sqr2(-1e-300), SameBits(M));
    EXPECT_THAT(sqr2(-0.0), SameBits(-0.0));
    EXPECT_THAT(sqr2(M), SameBits(M));
    EXPECT_TRUE(std::isnan(sqr2(std::nan(""))));
}

// ---- one column -----------------------------------------------------------------------------------------------------

TEST(NormalizeColumn, DividesByTheRootOfTheSquares)
{
    auto t = table(3, 2, {1, 1, 1, 3, M, 4});
    EXPECT_THAT(t->Normalize(1), SameBits(0.0));
    EXPECT_THAT(cellsOf(t), SameBits({1, 1, 1, 3.0 / 5.0, M, 4.0 / 5.0}));
    EXPECT_EQ(t->normalized, 0);
}

TEST(NormalizeColumn, ZeroLengthIsNotTested)
{
    auto t = table(2, 1, {0, 0});
    t->Normalize(0);
    EXPECT_TRUE(std::isnan(t->X[0]));
}

TEST(NormalizeColumn, RunsOnANormalizedTable)
{
    auto t = table(2, 1, {1, 3});
    t->Center();
    EXPECT_THAT(t->Normalize(0), SameBits(0.0));
    EXPECT_THAT(t->X[0], SameBits(-1.0 / std::sqrt(2.0)));
}

TEST(NormalizeColumn, ColumnOutOfRangeChangesNothing)
{
    auto t = table(2, 1, {1, 3});
    t->Normalize(1);
    t->Normalize(-1);
    EXPECT_THAT(cellsOf(t), SameBits({1, 3}));
}

TEST(VInnerProd, SquaresOfPresentCells)
{
    auto t = table(3, 2, {1, M, 3, 2, 2, 2});
    EXPECT_THAT(t->VInnerProd(0), SameBits(10.0));
    EXPECT_THAT(t->VInnerProd(1), SameBits(12.0));
    EXPECT_THAT(t->VInnerProd(2), SameBits(3.0)) << "each cell out of range is -1.0";
    EXPECT_THAT(t->VInnerProd(-1), SameBits(3.0));
    auto empty = table(0, 1, {});
    EXPECT_THAT(empty->VInnerProd(0), SameBits(0.0));
    auto infinite = table(1, 1, {-infinity});
    EXPECT_THAT(infinite->VInnerProd(0), SameBits(infinity));
}

TEST(VInnerProd, OverRowsPresentInTheOtherTable)
{
    auto t = table(3, 1, {1, 2, 4});
    auto byRow = table(2, 3, {9, 9, 9, M, 9, 9}); // row 1 lacks its second cell
    EXPECT_THAT(t->VInnerProd(0, true, 1, byRow), SameBits(17.0));
    EXPECT_THAT(t->VInnerProd(0, true, 0, byRow), SameBits(21.0));
    auto byColumn = table(3, 2, {9, 9, 9, M, 9, 9}); // column 1 lacks its first cell
    EXPECT_THAT(t->VInnerProd(0, false, 1, byColumn), SameBits(20.0));
    EXPECT_THAT(t->VInnerProd(0, false, 0, byColumn), SameBits(21.0));
    auto shorter = table(1, 1, {M});
    EXPECT_THAT(t->VInnerProd(0, false, 0, shorter), SameBits(20.0)) << "a cell out of range is present";
}

TEST(VInnerProd, OwnMissingCellIsLeftOutToo)
{
    auto t = table(2, 1, {M, 2});
    auto other = table(2, 1, {1, 1});
    EXPECT_THAT(t->VInnerProd(0, false, 0, other), SameBits(4.0));
}

TEST(VInnerProdWeighted, MultipliesEachSquare)
{
    auto t = table(3, 1, {1, 2, 4});
    auto other = table(3, 1, {1, M, 1});
    EXPECT_THAT(t->VInnerProdWeighted(0, false, 0, other), SameBits(17.0)) << "unit weights by default";
    ASSERT_NE(t->weights, nullptr);
    double w[] = {3, 100, -2};
    t->weighting(w);
    EXPECT_THAT(t->VInnerProdWeighted(0, false, 0, other), SameBits(3.0 - 32.0)) << "negative weights count";
    auto row = table(1, 3, {M, 1, 1});
    EXPECT_THAT(t->VInnerProdWeighted(0, true, 0, row), SameBits(400.0 - 32.0));
    EXPECT_THAT(t->VInnerProd(0, true, 0, row), SameBits(20.0)) << "the plain form has no weights";
}

TEST(VSProd, LeavesOutMissingCellsAndWeightsNotAboveZero)
{
    auto x = table(5, 2, {0, 0, 0, 0, 0, 1, M, 3, 4, 5});
    auto y = table(5, 1, {2, 2, M, 2, 2});
    double w[] = {3, 1, 1, 0, -1};
    x->weighting(w);
    EXPECT_THAT(x->VSProd(1, y, 0), SameBits(6.0));
}

TEST(VSProd, OtherRowCount)
{
    auto x = table(2, 1, {1, 2});
    auto y = table(3, 1, {1, 2, 3});
    EXPECT_THAT(x->VSProd(0, y, 0), SameBits(-1.0));
    EXPECT_EQ(x->weights, nullptr) << "the shape is tested first";
    auto z = table(2, 1, {3, 4});
    EXPECT_THAT(x->VSProd(0, z, 0), SameBits(11.0));
    EXPECT_NE(x->weights, nullptr);
    EXPECT_THAT(x->VSProd(0, z, 5), SameBits(-3.0)) << "a column out of range reads as -1.0";
}

TEST(VSProd, ProductsGoFromLeftToRight)
{
    auto x = table(1, 1, {1e200});
    auto y = table(1, 1, {1e200});
    double w[] = {1e-200};
    x->weighting(w);
    EXPECT_THAT(x->VSProd(0, y, 0), SameBits(infinity));
}

TEST(VDiff, SquaredDifferencesWithoutATest)
{
    auto x = table(2, 2, {9, 9, 1, 5});
    auto y = table(3, 1, {4, 3, 8});
    EXPECT_THAT(x->VDiff(y, 1, 0), SameBits(13.0));
    auto shorter = table(1, 1, {4});
    EXPECT_THAT(x->VDiff(shorter, 1, 0), SameBits(9.0 + 36.0)) << "this table's rows drive, the other reads -1.0";
    auto missing = table(2, 1, {M, 3});
    EXPECT_THAT(x->VDiff(missing, 1, 0), SameBits(infinity)) << "a missing cell is a number here";
}

// ---- one row --------------------------------------------------------------------------------------------------------

TEST(TransVSProd, RowsWithoutWeights)
{
    auto x = table(2, 3, {0, 1, 0, M, 0, 3});
    auto y = table(1, 3, {5, 6, 7});
    double w[] = {10, 10};
    x->weighting(w);
    EXPECT_THAT(x->transVSProd(1, y, 0), SameBits(26.0));
    auto missing = table(1, 3, {M, 6, 7});
    EXPECT_THAT(x->transVSProd(1, missing, 0), SameBits(21.0));
    auto narrow = table(1, 2, {5, 6});
    EXPECT_THAT(x->transVSProd(1, narrow, 0), SameBits(-1.0));
}

TEST(LineSqrSum, RowInRange)
{
    auto t = table(2, 3, {0, 1, 0, M, 0, 3});
    EXPECT_THAT(t->lineSqrSum(1), SameBits(10.0));
    EXPECT_THAT(t->lineSqrSum(2), SameBits(-1.0));
    EXPECT_THAT(t->lineSqrSum(-1), SameBits(-1.0));
}

TEST(SProd, MultipliesMissingCellsToo)
{
    auto t = table(2, 2, {1, M, 2, 4});
    t->SProd(1, 0.5);
    EXPECT_THAT(cellsOf(t), SameBits({1, M * 0.5, 2, 2}));
    t->SProd(2, 10.0);
    EXPECT_THAT(cellsOf(t), SameBits({1, M * 0.5, 20, 2})) << "a row beyond the last slides into the next column";
}

TEST(WeightingRows, ScalesCellsAndLeavesTheWeights)
{
    auto t = table(3, 2, {1, M, 3, 4, 5, 6});
    double w[] = {2, 1, 7};
    t->weighting(w, 2);
    EXPECT_THAT(cellsOf(t), SameBits({2, M, 3, 8, 5, 6}));
    EXPECT_EQ(t->weights, nullptr);
    double half[] = {1, 0.5};
    t->weighting(half, 2);
    EXPECT_THAT(t->X[1], SameBits(M * 0.5));
    t->weighting(half, 0);
    t->weighting(half, -1);
    EXPECT_THAT(t->X[4], SameBits(2.5));
}

// ---- whole tables ---------------------------------------------------------------------------------------------------

TEST(MDiff, SubtractsWithEachStride)
{
    auto x = table(2, 2, {10, 20, 30, M});
    auto y = table(3, 3, {1, 2, 3, 4, 5, 6, 7, 8, 9});
    EXPECT_THAT(x->MDiff(y), SameBits(0.0));
    EXPECT_THAT(cellsOf(x), SameBits({9, 18, 26, M - 5.0}));
    EXPECT_THAT(y->MDiff(x), SameBits(-1.0));
    EXPECT_THAT(cellsOf(y), SameBits({1, 2, 3, 4, 5, 6, 7, 8, 9}));
    auto wide = table(1, 3, {1, 2, 3});
    EXPECT_THAT(wide->MDiff(x), SameBits(-1.0));
    auto tall = table(3, 1, {1, 2, 3});
    EXPECT_THAT(tall->MDiff(x), SameBits(-1.0));
}

TEST(MDiff, MissingCellsAreNumbers)
{
    auto x = table(1, 2, {M, 1});
    auto y = table(1, 2, {M, M});
    x->MDiff(y);
    EXPECT_THAT(cellsOf(x), SameBits({0, 1.0 - M}));
}

TEST(MatProd, IsTheProduct)
{
    auto a = table(2, 3, {1, 2, 3, 4, 5, 6});
    auto b = table(3, 2, {1, 0, 2, 0, 1, 1});
    auto c = table(2, 2, {9, 9, 9, 9});
    EXPECT_THAT(c->matProd(a, b), SameBits(0.0));
    EXPECT_THAT(cellsOf(c), SameBits({11, 14, 8, 10}));
}

TEST(MatProd, WrongShapesLeaveTheCells)
{
    auto a = table(2, 3, {1, 2, 3, 4, 5, 6});
    auto b = table(3, 2, {1, 0, 2, 0, 1, 1});
    auto c = table(2, 2, {9, 9, 9, 9});
    auto tall = table(3, 2, {9, 9, 9, 9, 9, 9});
    auto wide = table(2, 3, {9, 9, 9, 9, 9, 9});
    EXPECT_THAT(c->matProd(a, c), SameBits(-1.0));
    EXPECT_THAT(tall->matProd(a, b), SameBits(-1.0));
    EXPECT_THAT(wide->matProd(a, b), SameBits(-1.0));
    for (const Cells& cells : {cellsOf(c), cellsOf(tall), cellsOf(wide)})
        for (const double cell : cells)
            EXPECT_THAT(cell, SameBits(9.0));
}

TEST(MatProd, NothingToSumIsZero)
{
    auto a = table(2, 0, {});
    auto b = table(0, 1, {});
    auto c = table(2, 1, {9, 9});
    EXPECT_THAT(c->matProd(a, b), SameBits(0.0));
    EXPECT_THAT(cellsOf(c), SameBits({0, 0}));
}

TEST(TransMatProd, IsTheProductWithTheTranspose)
{
    auto a = table(3, 2, {1, 3, 5, 2, 4, 6});
    auto b = table(3, 1, {1, 2, 1});
    auto c = table(2, 1, {9, 9});
    EXPECT_THAT(c->transMatProd(a, b), SameBits(0.0));
    EXPECT_THAT(cellsOf(c), SameBits({12, 16}));
    auto other = table(2, 1, {1, 1});
    EXPECT_THAT(c->transMatProd(a, other), SameBits(-1.0));
    EXPECT_THAT(b->transMatProd(a, b), SameBits(-1.0));
    auto wide = table(2, 2, {9, 9, 9, 9});
    EXPECT_THAT(wide->transMatProd(a, b), SameBits(-1.0));
    EXPECT_THAT(cellsOf(wide), SameBits({9, 9, 9, 9}));
}

TEST(MatProd, EqualsThePlainLoopBitForBit)
{
    RandomData data(77);
    SCOPED_TRACE(data);
    const int rows = 7;
    const int inner = 19;
    const int cols = 5;
    auto a = table(rows, inner, data.normals(rows * inner));
    auto trans = table(inner, rows, Cells(rows * inner));
    a->transposeTo(trans);
    auto b = table(inner, cols, data.normals(inner * cols));
    auto c = table(rows, cols, Cells(rows * cols));
    auto d = table(rows, cols, Cells(rows * cols));
    c->matProd(a, b);
    d->transMatProd(trans, b);
    for (int i = 1; i <= rows; ++i)
        for (int j = 1; j <= cols; ++j) {
            double sum = 0.0;
            for (int k = 1; k <= inner; ++k)
                sum += a->vbget(i, k) * b->vbget(k, j);
            EXPECT_THAT(c->vbget(i, j), SameBits(sum));
            EXPECT_THAT(d->vbget(i, j), SameBits(sum));
        }
}

TEST(MatProd, CellsOutOfRangeReadAsMinusOne)
{
    auto a = table(1, 2, {3, 100});
    a->nElems = 1;
    auto b = table(2, 1, {1, 10});
    auto c = table(1, 1, {9});
    EXPECT_THAT(c->matProd(a, b), SameBits(0.0));
    EXPECT_THAT(c->X[0], SameBits(3.0 - 10.0));
    auto tall = table(2, 1, {3, 100});
    tall->nElems = 1;
    EXPECT_THAT(c->transMatProd(tall, b), SameBits(0.0));
    EXPECT_THAT(c->X[0], SameBits(3.0 - 10.0));
}

TEST(VecProd, OuterProductOfTwoColumns)
{
    auto a = table(2, 2, {9, 9, 1, 2});
    auto b = table(3, 1, {3, 4, 5});
    auto c = table(2, 3, {9, 9, 9, 9, 9, 9});
    EXPECT_THAT(c->vecProd(a, 1, b, 0), SameBits(0.0));
    EXPECT_THAT(cellsOf(c), SameBits({3, 6, 4, 8, 5, 10}));
    EXPECT_THAT(c->vecProd(b, 0, a, 0), SameBits(-1.0));
    EXPECT_THAT(cellsOf(c), SameBits({3, 6, 4, 8, 5, 10}));
    auto shorter = table(1, 1, {3});
    EXPECT_THAT(c->vecProd(a, 1, shorter, 0), SameBits(0.0)) << "the second factor's rows are not tested";
    EXPECT_THAT(cellsOf(c), SameBits({3, 6, -1, -2, -1, -2}));
}

TEST(Trans1vecProd, AddsOneScatterTerm)
{
    auto a = table(2, 2, {1, 5, 2, 8}); // row 1 is (5, 8)
    auto b = table(2, 2, {4, 0, 6, 0}); // row 0 is (4, 6)
    auto v = table(2, 1, {7, 3});
    auto c = table(2, 2, {100, 200, 300, 400});
    EXPECT_THAT(c->trans1vecProd(a, 1, v, b, 0), SameBits(0.0));
    EXPECT_THAT(cellsOf(c), SameBits({103, 206, 306, 412}));
    auto wrong = table(3, 2, {1, 2, 3, 4, 5, 6});
    EXPECT_THAT(wrong->trans1vecProd(a, 1, v, b, 0), SameBits(-1.0));
    EXPECT_THAT(cellsOf(wrong), SameBits({1, 2, 3, 4, 5, 6}));
}

TEST(Trans1vecProd, FactorGoesFirst)
{
    auto a = table(1, 1, {1e200});
    auto b = table(1, 1, {0});
    auto v = table(1, 1, {1e-200});
    auto c = table(1, 1, {0});
    c->trans1vecProd(a, 0, v, b, 0);
    EXPECT_THAT(c->X[0], SameBits(1e-200 * 1e200 * 1e200));
    EXPECT_TRUE(std::isfinite(c->X[0]));
}

TEST(MatVecProd, ProductWithOneColumn)
{
    auto a = table(2, 2, {1, 2, 3, 4});
    auto b = table(2, 2, {9, 9, 10, 1});
    auto c = table(2, 2, {7, 7, 7, 7});
    EXPECT_THAT(c->matVecProd(a, b, 1, 0), SameBits(0.0));
    EXPECT_THAT(cellsOf(c), SameBits({13, 24, 7, 7}));
    auto b3 = table(3, 1, {1, 1, 1});
    EXPECT_THAT(c->matVecProd(a, b3, 0, 0), SameBits(-1.0));
    auto c3 = table(3, 2, {7, 7, 7, 7, 7, 7});
    EXPECT_THAT(c3->matVecProd(a, b, 0, 0), SameBits(-1.0));
    EXPECT_THAT(cellsOf(c3), SameBits({7, 7, 7, 7, 7, 7}));
}

TEST(MatVecProd, SumsRunToTheResultsColumns)
{
    auto a = table(2, 2, {1, 2, 3, 4});
    auto b = table(2, 1, {10, 1});
    auto narrow = table(2, 1, {7, 7});
    EXPECT_THAT(narrow->matVecProd(a, b, 0, 0), SameBits(0.0));
    EXPECT_THAT(cellsOf(narrow), SameBits({10, 20}));
    auto wide = table(2, 3, {7, 7, 7, 7, 7, 7});
    EXPECT_THAT(wide->matVecProd(a, b, 0, 2), SameBits(0.0));
    EXPECT_THAT(cellsOf(wide), SameBits({7, 7, 7, 7, 13.0 + 1.0, 24.0 + 1.0})) << "beyond, both factors read -1.0";
}

TEST(OneMinus, IdentityMinusTheTable)
{
    auto identity = table(2, 2, {1, 0, 0, 1});
    identity->oneMinus();
    for (const double cell : cellsOf(identity))
        EXPECT_THAT(cell, SameBits(0.0));
    auto t = table(2, 3, {0.25, 2, 3, M, 5, -6});
    t->oneMinus();
    EXPECT_THAT(cellsOf(t), SameBits({0.75, -2, -3, 1.0 - M, -5, 6}));
}

// ---- deflation and prediction ---------------------------------------------------------------------------------------

TEST(SubtractResidual, MissingCellsStay)
{
    auto x = table(3, 3, {10, 20, M, 40, 50, 60, 70, 80, 90});
    auto t = table(3, 2, {0, 0, 0, 1, M, 3});
    auto p = table(3, 2, {0, 0, 0, 2, 4, M});
    x->subtractResidual(t, 1, p);
    EXPECT_THAT(cellsOf(x), SameBits({8, 20, M, 36, 50, 48, 70, 80, 90}));
}

TEST(PredictLine, SumsTermsWithoutMissingFactors)
{
    auto x = table(2, 2, {0, 5, 0, 7});
    auto t = table(2, 3, {0, 2, 0, 3, 0, M});
    auto p = table(2, 3, {1, 10, M, 100, 1, 1});
    // k = 0: 2*1*5 + 2*10*7; k = 1: 3*M left out, 3*100*7; k = 2: the score is missing.
    EXPECT_THAT(x->predictLine(t, p, 1, 3, 1), SameBits(10.0 + 140.0 + 2100.0));
    EXPECT_THAT(x->predictLine(t, p, 1, 1, 1), SameBits(150.0));
    EXPECT_THAT(x->predictLine(t, p, 1, 0, 1), SameBits(0.0));
    EXPECT_THAT(x->predictLine(t, p, 1, -1, 1), SameBits(0.0));
    x->vbset(2, 1, M);
    EXPECT_THAT(x->predictLine(t, p, 1, 1, 1), SameBits(140.0));
}

TEST(PredictLine, ProductsGoFromLeftToRight)
{
    auto x = table(1, 1, {1e200});
    auto t = table(1, 1, {1e-200});
    auto p = table(1, 1, {1e200});
    EXPECT_THAT(x->predictLine(t, p, 0, 1, 0), SameBits(1e-200 * 1e200 * 1e200));
    auto large = table(1, 1, {1e-200});
    auto score = table(1, 1, {1e200});
    EXPECT_THAT(large->predictLine(score, p, 0, 1, 0), SameBits(infinity));
}

} // namespace
