// The table of doubles: reading it out, moving rows and columns, preparing results, weights.
#include "matrix.h"
#include "matrixInt.h"
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/guarded.h"
#include "tables/table_parts.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

using testing::ElementsAre;

constexpr int lowestInt = std::numeric_limits<int>::min();
const double notANumber = std::numeric_limits<double>::quiet_NaN();
const double infinity = std::numeric_limits<double>::infinity();

std::vector<double> weightsOf(const matrix* t)
{
    return std::vector<double>(t->weights, t->weights + t->nRows);
}

// ---- reading the table ----------------------------------------------------------------------------------------------

TEST(MatrixCopy, WritesEveryCellToAnArray)
{
    auto t = table(2, 2, {1, M, -0.0, notANumber});
    Guarded<double> out(4, 9.0);
    t->copyMatTo(out);
    EXPECT_THAT(out.values(), SameBits({1, M, -0.0, notANumber}));
    Guarded<double> again(4, 9.0);
    int rows = 0;
    int cols = 0;
    table(4, 1, {1, 2, 3, 4})->copyMatTo(again, &rows, &cols);
    EXPECT_EQ(rows, 4);
    EXPECT_EQ(cols, 1);
    EXPECT_THAT(again.values(), SameBits({1, 2, 3, 4}));
}

TEST(MatrixCopy, BooleansAreMinusOneForAnythingButZero)
{
    Guarded<short> out(7, short{5});
    column({0.5, M, 0.0, -0.0, notANumber, -1.0, 1.0})->copyMatTo(out);
    EXPECT_THAT(out.values(), ElementsAre(-1, -1, 0, 0, -1, -1, -1));
}

TEST(MatrixCopy, SetsTheShapeOfATableAndKeepsItsBlock)
{
    auto t = byRows({{1, 2, 3}, {4, M, 6}});
    matrix larger(4, 2, 9.0);
    larger.InitWeights();
    const double* const block = larger.X;
    t->copyMatTo(&larger);
    expectShape(&larger, 2, 3);
    EXPECT_EQ(larger.X, block);
    EXPECT_THAT(cellsOf(&larger), SameBits({1, 4, 2, M, 3, 6}));
    EXPECT_THAT(std::vector<double>(larger.X + 6, larger.X + 8), SameBits({9, 9}));
    EXPECT_THAT(std::vector<double>(larger.weights, larger.weights + 4), SameBits({1, 1, 1, 1}));
}

TEST(MatrixCopy, TruncatesTowardsATableOfInts)
{
    auto t = table(3, 3, {2.9, -2.9, M, notANumber, infinity, 2147483647.5, 2147483648.0, -2147483648.5, -0.5});
    matrixInt ints(12, 1, 7);
    t->copyMatTo(&ints);
    EXPECT_EQ(ints.nRows, 3);
    EXPECT_EQ(ints.nCols, 3);
    EXPECT_EQ(ints.nElems, 9u);
    EXPECT_THAT(cellsOf(&ints),
                ElementsAre(2, -2, lowestInt, lowestInt, lowestInt, 2147483647, lowestInt, lowestInt, 0));
}

TEST(MatrixCopy, VectorizesIntoOneColumn)
{
    auto t = byRows({{1, 2}, {3, M}});
    matrix out(3, 3, 9.0);
    t->vectorizeTo(&out);
    expectShape(&out, 4, 1);
    EXPECT_THAT(cellsOf(&out), SameBits({1, 3, 2, M}));
}

TEST(MatrixCopy, CondensesIntoTheShapeOfTheTarget)
{
    auto t = column({1, M, 3, 4});
    matrix out(2, 3, 9.0);
    t->condenseTo(&out);
    expectShape(&out, 2, 3);
    EXPECT_THAT(cellsOf(&out), SameBits({1, M, 3, 4, -1, -1}));
    matrix small(1, 2, 9.0);
    t->condenseTo(&small);
    expectShape(&small, 1, 2);
    EXPECT_THAT(cellsOf(&small), SameBits({1, M}));
}

TEST(MatrixCopy, Transposes)
{
    auto t = byRows({{1, 2, 3}, {4, M, 6}});
    matrix out(7, 1, 9.0);
    t->transposeTo(&out);
    expectShape(&out, 3, 2);
    EXPECT_THAT(cellsOf(&out), SameBits({1, 2, 3, 4, M, 6}));
    EXPECT_THAT(out.X[6], SameBits(9));
}

TEST(MatrixCopy, TableWithoutCellsWritesNothing)
{
    matrix none(0, 3, 0.0);
    none.copyMatTo(static_cast<double*>(nullptr));
    none.copyMatTo(static_cast<short*>(nullptr));
    matrix out(2, 1, 5.0);
    none.transposeTo(&out);
    EXPECT_EQ(out.nRows, 3);
    EXPECT_EQ(out.nCols, 0);
    EXPECT_EQ(out.nElems, 0u);
    EXPECT_THAT(out.X[0], SameBits(5));
}

// ---- rows and columns -----------------------------------------------------------------------------------------------

TEST(MatrixCopyCol, CopiesAColumnCountedFromZero)
{
    auto source = byRows({{1, 2}, {3, M}});
    auto t = filled(2, 3, 9);
    t->copyCol(source, 1, 2);
    EXPECT_THAT(cellsOf(t), SameBits({9, 9, 9, 9, 2, M}));
}

TEST(MatrixCopyCol, LongerSourceSpillsIntoTheNextColumn)
{
    auto source = column({1, 2, 3});
    auto t = filled(2, 2, 9);
    t->copyCol(source, 0, 0);
    EXPECT_THAT(cellsOf(t), SameBits({1, 2, 3, 9}));
    auto last = filled(2, 2, 9);
    last->copyCol(source, 0, 1);
    EXPECT_THAT(cellsOf(last), SameBits({9, 9, 1, 2}));
}

TEST(MatrixCopyCol, ShorterSourceLeavesTheRest)
{
    auto t = filled(3, 1, 9);
    t->copyCol(column({1, 2}), 0, 0);
    EXPECT_THAT(cellsOf(t), SameBits({1, 2, 9}));
}

TEST(MatrixCopyCol, NumberOutOfRangeDoesNothing)
{
    auto source = byRows({{1, 2}, {3, 4}});
    auto ints = intsByRows({{1, 2}, {3, 4}});
    auto t = filled(2, 2, 9);
    for (const auto& [from, to] : std::vector<std::pair<int, int>>{{-1, 0}, {0, -1}, {2, 0}, {0, 2}, {lowestInt, 0}}) {
        t->copyCol(source, from, to);
        t->copyCol(ints, from, to);
    }
    t->copyCol(filled(0, 2, 0), 0, 0);
    t->copyCol(Owned<matrixInt>(new matrixInt(0, 2, 0)), 0, 0);
    EXPECT_THAT(cellsOf(t), SameBits({9, 9, 9, 9}));
}

TEST(MatrixCopyCol, ReadsAreChecked)
{
    auto source = byRows({{1, 2}, {3, 4}});
    source->nElems = 3;
    auto t = filled(2, 1, 9);
    t->copyCol(source, 1, 0);
    EXPECT_THAT(cellsOf(t), SameBits({2, -1}));
}

TEST(MatrixCopyCol, IntsAreConverted)
{
    auto source = intsByRows({{1, lowestInt}, {3, -4}, {5, 6}});
    auto t = filled(2, 2, 9);
    t->copyCol(source, 1, 0); // one row more than the table: spills
    EXPECT_THAT(cellsOf(t), SameBits({-2147483648.0, -4, 6, 9}));
    source->nElems = 4;
    t->copyCol(source, 1, 0);
    EXPECT_THAT(cellsOf(t), SameBits({-2147483648.0, -1, -1, 9}));
}

TEST(MatrixCopyLine, CopiesARowWithEachStride)
{
    auto source = byRows({{1, 2}, {3, M}, {5, 6}});
    auto t = filled(2, 3, 9);
    t->copyLine(source, 1, 0);
    EXPECT_THAT(cellsOf(t), SameBits({3, 9, M, 9, 9, 9}));
}

TEST(MatrixCopyLine, WiderSourceIsCutOffAtTheEnd)
{
    auto t = filled(2, 2, 9);
    t->copyLine(byRows({{1, 2, 3}}), 0, 1);
    EXPECT_THAT(cellsOf(t), SameBits({9, 1, 9, 2}));
}

TEST(MatrixCopyLine, NumberOutOfRangeDoesNothing)
{
    auto source = byRows({{1, 2}, {3, 4}});
    auto t = filled(2, 2, 9);
    for (const auto& [from, to] : std::vector<std::pair<int, int>>{{-1, 0}, {0, -1}, {2, 0}, {0, 2}}) {
        t->copyLine(source, from, to);
        t->transferLineFrom(source, from, to);
    }
    t->copyLine(filled(2, 0, 0), 0, 0);
    t->transferLineFrom(filled(2, 0, 0), 0, 0);
    EXPECT_THAT(cellsOf(t), SameBits({9, 9, 9, 9}));
    EXPECT_THAT(cellsOf(source), SameBits({1, 3, 2, 4}));
}

TEST(MatrixTransferLine, ExchangesTwoRows)
{
    auto source = byRows({{1, 2}, {3, M}, {5, 6}});
    auto t = byRows({{10, 20, 30}, {40, 50, 60}});
    t->transferLineFrom(source, 1, 0);
    EXPECT_THAT(cellsOf(t), SameBits({3, 40, M, 50, 30, 60}));
    EXPECT_THAT(cellsOf(source), SameBits({1, 10, 5, 2, 20, 6}));
}

TEST(MatrixTransferLine, OfOneTableSwapsItsRows)
{
    auto t = byRows({{1, 2}, {3, 4}, {5, 6}});
    t->transferLineFrom(t, 0, 2);
    EXPECT_THAT(cellsOf(t), SameBits({5, 3, 1, 6, 4, 2}));
    t->transferLineFrom(t, 1, 1);
    EXPECT_THAT(cellsOf(t), SameBits({5, 3, 1, 6, 4, 2}));
}

TEST(MatrixTransferLine, NarrowerTableGivesMinusOne)
{
    auto source = byRows({{1, 2, 3}});
    auto t = byRows({{10, 20}});
    t->transferLineFrom(source, 0, 0);
    EXPECT_THAT(cellsOf(t), SameBits({1, 2}));
    EXPECT_THAT(cellsOf(source), SameBits({10, 20, -1}));
}

// ---- preparing results ----------------------------------------------------------------------------------------------

TEST(MatrixMatCheck, LargerTableKeepsItsShapeAndHasItsHeadFilled)
{
    auto t = filled(5, 5, 7);
    const matrix* const kept = t.get();
    t->InitWeights();
    matrix::matCheck(t.reference(), 3, 2, 0.0);
    EXPECT_EQ(t.get(), kept);
    expectShape(t, 5, 5);
    std::vector<double> expected(25, 7.0);
    std::fill_n(expected.begin(), 6, 0.0); // linear: a column of five and one cell of the next
    EXPECT_THAT(cellsOf(t), SameBits(expected));
    EXPECT_NE(t->weights, nullptr);
}

TEST(MatrixMatCheck, ExactTableIsFilled)
{
    auto t = filled(2, 2, 7);
    const matrix* const kept = t.get();
    matrix::matCheck(t.reference(), 2, 2, M);
    EXPECT_EQ(t.get(), kept);
    EXPECT_THAT(cellsOf(t), SameBits({M, M, M, M}));
}

TEST(MatrixMatCheck, NullTableIsMade)
{
    Owned<matrix> t;
    matrix::matCheck(t.reference(), 2, 3, 4.5);
    expectShape(t, 2, 3);
    EXPECT_EQ(t->ownsX, 1);
    EXPECT_THAT(cellsOf(t), SameBits({4.5, 4.5, 4.5, 4.5, 4.5, 4.5}));
}

TEST(MatrixMatCheck, TooSmallTableIsReplacedAndReleased)
{
    for (const auto& [rows, cols] : std::vector<std::pair<int, int>>{{3, 2}, {2, 3}, {1, 5}}) {
        auto t = filled(2, 2, 7);
        t->InitWeights();
        const long before = allocationState().live;
        matrix::matCheck(t.reference(), rows, cols, 1.0);
        expectShape(t, rows, cols);
        EXPECT_EQ(t->weights, nullptr);
        EXPECT_EQ(allocationState().live, before - 1) << "the old table, its cells and weights went, two blocks came";
    }
}

TEST(MatrixMatCheck, ViewOfTheRightSizeIsWrittenThrough)
{
    Guarded<double> callers = {1, 2, 3, 4, 5};
    Owned<matrix> view(new matrix(2, 2, callers, true));
    matrix::matCheck(view.reference(), 2, 2, 0.0);
    view->vbset(2, 2, 6.0);
    EXPECT_THAT(callers.values(), SameBits({0, 0, 0, 6, 5}));
}

TEST(MatrixMatCheck, ViewThatIsTooSmallIsDropped)
{
    Guarded<double> callers = {1, 2};
    Owned<matrix> view(new matrix(2, 1, callers, true));
    matrix::matCheck(view.reference(), 3, 1, 0.0);
    EXPECT_NE(view->X, callers.data());
    EXPECT_TRUE(callers.untouched());
}

TEST(MatrixMatCheck, NothingRequestedLeavesTheCells)
{
    auto t = filled(2, 2, 7);
    matrix::matCheck(t.reference(), 0, 2, 0.0);
    matrix::matCheck(t.reference(), -1, 2, 0.0);
    EXPECT_THAT(cellsOf(t), SameBits({7, 7, 7, 7}));
}

// A pattern of unset memory is not read as a table, but it is not null either: there is something to destroy.
TEST(MatrixMatCheckDeathTest, UnsetPatternIsDestroyed)
{
    EXPECT_DEATH(
        {
            matrix* unset = reinterpret_cast<matrix*>(std::uintptr_t{0xcccccccc});
            matrix::matCheck(unset, 1, 1, 0.0);
        },
        "");
}

// ---- weights --------------------------------------------------------------------------------------------------------

TEST(MatrixWeights, StartAsOnesOnce)
{
    auto t = filled(3, 2, 0);
    t->InitWeights();
    EXPECT_THAT(weightsOf(t), SameBits({1, 1, 1}));
    t->weights[1] = 5;
    t->InitWeights();
    EXPECT_THAT(weightsOf(t), SameBits({1, 5, 1}));
}

TEST(MatrixWeights, CountsStartAsTheRowsOnce)
{
    auto t = filled(3, 2, 0);
    t->InitWeightcorr();
    t->InitnCol();
    EXPECT_THAT(std::vector<double>(t->weightcorr, t->weightcorr + 2), SameBits({2, 2}));
    EXPECT_THAT(std::vector<int>(t->nCol, t->nCol + 2), ElementsAre(3, 3));
    t->weightcorr[0] = 7;
    t->nCol[0] = 8;
    t->InitWeightcorr();
    t->InitnCol();
    EXPECT_THAT(std::vector<double>(t->weightcorr, t->weightcorr + 2), SameBits({7, 2}));
    EXPECT_THAT(std::vector<int>(t->nCol, t->nCol + 2), ElementsAre(8, 3));
    auto noRows = filled(0, 1, 0);
    noRows->InitWeightcorr();
    EXPECT_THAT(noRows->weightcorr[0], SameBits(-1));
}

TEST(MatrixWeights, AreTakenFromAnArray)
{
    auto t = filled(3, 2, 0);
    Guarded<double> w = {2, M, 0};
    t->weighting(w);
    EXPECT_THAT(weightsOf(t), SameBits({2, M, 0}));
    EXPECT_TRUE(w.untouched());
    Guarded<double> others = {4, 5, 6};
    t->weighting(others);
    EXPECT_THAT(weightsOf(t), SameBits({4, 5, 6}));
}

TEST(MatrixWeights, AreTakenFromATableInLinearOrder)
{
    auto t = filled(4, 1, 0);
    t->weighting(byRows({{1, 2}, {3, M}}));
    EXPECT_THAT(weightsOf(t), SameBits({1, 3, 2, M}));
    t->weighting(column({8, 9}));
    EXPECT_THAT(weightsOf(t), SameBits({8, 9, -1, -1}));
}

} // namespace
} // namespace vecmat::test
