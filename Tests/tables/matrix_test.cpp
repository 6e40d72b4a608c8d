// The table of doubles: its fields, how it is made and released, and the checked access.
#include "matrix.h"
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/guarded.h"
#include "tables/table_parts.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <type_traits>
#include <vector>

namespace vecmat::test {
namespace {

using testing::ElementsAre;

constexpr int lowestInt = std::numeric_limits<int>::min();
constexpr int highestInt = std::numeric_limits<int>::max();

/// Nor weights, as all constructors but those that copy a table leave it.
void expectNoCaches(const matrix& t)
{
    expectNoMoments(t);
    EXPECT_EQ(t.weights, nullptr);
}

// ---- fields ---------------------------------------------------------------------------------------------------------

TEST(MatrixFields, AreAPlainClassInTheSettledOrder)
{
    static_assert(std::is_standard_layout_v<matrix> && !std::is_polymorphic_v<matrix>);
    static_assert(std::is_same_v<decltype(matrix::nElems), std::uint32_t>);
    static_assert(std::is_same_v<decltype(matrix::nRows), std::int32_t>);
    static_assert(std::is_same_v<decltype(matrix::nCols), std::int32_t>);
    static_assert(std::is_same_v<decltype(matrix::normalized), std::int32_t>);
    static_assert(std::is_same_v<decltype(matrix::descDone), std::int32_t>);
    static_assert(std::is_same_v<decltype(matrix::nCol), std::int32_t*>);
    static_assert(std::is_same_v<decltype(matrix::descMode), std::int16_t>);
    static_assert(sizeof(matrix::ownsX) == 1);
    const std::vector<std::size_t> offsets = {
        offsetof(matrix, X),          offsetof(matrix, norMu),      offsetof(matrix, norSigma),
        offsetof(matrix, descMu),     offsetof(matrix, descSigma),  offsetof(matrix, weights),
        offsetof(matrix, weightcorr), offsetof(matrix, nCol),       offsetof(matrix, nRows),
        offsetof(matrix, nCols),      offsetof(matrix, normalized), offsetof(matrix, descDone),
        offsetof(matrix, nElems),     offsetof(matrix, descMode),   offsetof(matrix, ownsX)};
    EXPECT_EQ(offsets.front(), 0u);
    EXPECT_TRUE(std::adjacent_find(offsets.begin(), offsets.end(), std::greater_equal<>()) == offsets.end());
}

TEST(MatrixFields, CountOfCellsIsAProductOf32BitsThatWraps)
{
    double cell = 5.0;
    EXPECT_EQ(matrix(65536, 65536, &cell, true).nElems, 0u);
    EXPECT_EQ(matrix(65537, 65536, &cell, true).nElems, 65536u);
    EXPECT_EQ(matrix(60000, 60000, &cell, true).nElems, 3600000000u);
}

TEST(MatrixFields, NegativeDimensionHasNoCells)
{
    const matrix t(-1, 3, 0.0);
    EXPECT_EQ(t.nRows, -1);
    EXPECT_EQ(t.nElems, 0u);
    EXPECT_EQ(matrix(-1, -2, 0.0).nElems, 0u);
    short flag = -1;
    matrix open(2, -1, &flag);
    EXPECT_EQ(open.nElems, 0u);
    open.InitWeights();
    EXPECT_THAT(listOf(open.weights, 2), SameBits({1, 1}));
}

// ---- constructors ---------------------------------------------------------------------------------------------------

TEST(MatrixConstructor, FillsWithAnIntOrADouble)
{
    const matrix ofInt(2, 3, 3);
    const matrix ofDouble(2, 3, M);
    for (const matrix* t : {&ofInt, &ofDouble}) {
        expectShape(t, 2, 3);
        EXPECT_EQ(t->ownsX, 1);
        expectNoCaches(*t);
        expectNoCounts(*t);
    }
    EXPECT_THAT(cellsOf(&ofInt), SameBits({3, 3, 3, 3, 3, 3}));
    EXPECT_THAT(cellsOf(&ofDouble), SameBits({M, M, M, M, M, M}));
}

TEST(MatrixConstructor, ViewReadsAndWritesTheCallersArray)
{
    Guarded<double> callers = {1, 2, M, 4};
    {
        matrix view(2, 2, callers, true);
        expectShape(&view, 2, 2);
        EXPECT_EQ(view.X, callers.data());
        EXPECT_EQ(view.ownsX, 0);
        expectNoCaches(view);
        expectNoCounts(view);
        callers[1] = 7;
        EXPECT_THAT(view.vbget(2, 1), SameBits(7));
        view.vbset(2, 2, 8);
        view.InitWeights(); // the table's own also in a view
    }
    EXPECT_THAT(callers.values(), SameBits({1, 7, M, 8}));
}

TEST(MatrixConstructor, CopyWithoutViewIsItsOwn)
{
    Guarded<double> callers = {1, 2, M, 4};
    matrix copy(2, 2, callers, false);
    EXPECT_EQ(copy.ownsX, 1);
    expectNoCaches(copy);
    expectNoCounts(copy);
    EXPECT_THAT(cellsOf(&copy), SameBits({1, 2, M, 4}));
    copy.vbset(1, 1, 9);
    EXPECT_TRUE(callers.untouched());
}

TEST(MatrixConstructor, ZeroSourceCountsMeanTheTablesOwn)
{
    Guarded<double> callers = {1, 2, M, 4, 5, 6};
    matrix t(3, 2, callers, 0, 0);
    expectShape(&t, 3, 2);
    EXPECT_EQ(t.ownsX, 1);
    expectNoCaches(t);
    EXPECT_THAT(cellsOf(&t), SameBits({1, 2, M, 4, 5, 6}));
    t.vbset(1, 1, 9);
    EXPECT_TRUE(callers.untouched());

    EXPECT_THAT(cellsOf(std::make_unique<matrix>(3, 2, callers.data(), 0, 1).get()), SameBits({1, 2, M, 0, 0, 0}));
    EXPECT_THAT(cellsOf(std::make_unique<matrix>(3, 2, callers.data(), 2, 0).get()), SameBits({1, 2, M, 4, 0, 0}));
}

TEST(MatrixConstructor, OneColumnOfThreeFillsTheFirstColumn)
{
    Guarded<double> callers = {1, 2, 3}; // three cells and no more may be read
    const matrix t(3, 2, callers, 3, 1);
    expectShape(&t, 3, 2);
    EXPECT_THAT(cellsOf(&t), SameBits({1, 2, 3, 0, 0, 0}));
}

TEST(MatrixConstructor, SmallerSourceIsNotRestrided)
{
    Guarded<double> callers = {11, 21, 12, 22};
    const matrix t(3, 2, callers, 2, 2);
    EXPECT_THAT(cellsOf(&t), SameBits({11, 21, 12, 22, 0, 0}));
}

TEST(MatrixConstructor, LargerSourceFillsNoMoreThanTheTable)
{
    Guarded<double> callers = {1, 2, 3, 4, 5, 6};
    const matrix t(2, 1, callers, 3, 2);
    EXPECT_THAT(cellsOf(&t), SameBits({1, 2}));
}

TEST(MatrixConstructor, BooleansBecomeNumbers)
{
    Guarded<short> callers = {-1, 0, 1, 5};
    const matrix t(2, 2, callers);
    expectShape(&t, 2, 2);
    EXPECT_EQ(t.ownsX, 1);
    expectNoCaches(t);
    EXPECT_THAT(cellsOf(&t), SameBits({-1, 0, 1, 5}));
    EXPECT_TRUE(callers.untouched());
}

TEST(MatrixConstructor, SizedAndBooleanFormsHaveTheirCounts)
{
    Guarded<double> numbers = {1, M, 3, 4};
    Guarded<short> flags = {-1, 0, 0, 0};
    matrix sized(2, 2, numbers, 0, 0);
    matrix boolean(2, 2, flags);
    for (matrix* t : {&sized, &boolean}) {
        int* const counts = t->nCol;
        double* const corrections = t->weightcorr;
        ASSERT_NE(counts, nullptr);
        ASSERT_NE(corrections, nullptr);
        t->InitnCol();
        t->InitWeightcorr();
        EXPECT_EQ(t->nCol, counts);
        EXPECT_EQ(t->weightcorr, corrections);
        EXPECT_THAT(std::vector<int>(counts, counts + 2), ElementsAre(0, 0));
        EXPECT_THAT(listOf(corrections, 2), SameBits({0, 0}));
    }
}

TEST(MatrixConstructor, OtherRowCountCopiesInLinearOrder)
{
    auto source = table(2, 2, {1, 2, 3, M});
    matrix taller(3, source);
    expectShape(&taller, 3, 2);
    EXPECT_EQ(taller.ownsX, 1);
    expectNoCaches(taller);
    expectNoCounts(taller);
    EXPECT_THAT(cellsOf(&taller), SameBits({1, 2, 3, M, -1, -1}));
    matrix shorter(1, source);
    expectShape(&shorter, 1, 2);
    EXPECT_THAT(cellsOf(&shorter), SameBits({1, 2}));
}

TEST(MatrixConstructor, CopyCarriesWeightsCountsAndTheMomentsOfNormalizing)
{
    const auto source = withEveryArray<matrix>();
    std::copy_n(std::vector<double>{1, 2, 3, M}.data(), 4, source->X);
    matrix copy(*source);
    EXPECT_THAT(cellsOf(&copy), SameBits({1, 2, 3, M}));
    EXPECT_THAT(listOf(copy.weights, 2), SameBits({50, M}));
    EXPECT_THAT(listOf(copy.weightcorr, 2), SameBits({60, 61}));
    EXPECT_THAT(std::vector<int>(copy.nCol, copy.nCol + 2), ElementsAre(70, 71));
    EXPECT_EQ(copy.normalized, 1);
    EXPECT_THAT(listOf(copy.norMu, 2), SameBits({10, 11}));
    EXPECT_THAT(listOf(copy.norSigma, 2), SameBits({20, 21}));
    for (const auto array : {&matrix::X, &matrix::weights, &matrix::weightcorr, &matrix::norMu, &matrix::norSigma})
        EXPECT_NE(copy.*array, (*source).*array) << "each table has its own";
    EXPECT_NE(copy.nCol, source->nCol);
    // The moments of calcDescStat never come along.
    EXPECT_EQ(copy.descMu, nullptr);
    EXPECT_EQ(copy.descSigma, nullptr);
    EXPECT_EQ(copy.descDone, 0);
    EXPECT_EQ(copy.descMode, 0);
}

TEST(MatrixConstructor, CopyOfATableThatIsNotNormalizedHasNoMoments)
{
    const auto source = withEveryArray<matrix>();
    source->normalized = 0;
    const matrix copy(*source);
    EXPECT_EQ(copy.normalized, 0);
    EXPECT_EQ(copy.norMu, nullptr);
    EXPECT_EQ(copy.norSigma, nullptr);
}

TEST(MatrixConstructor, OtherRowCountHasThatManyWeights)
{
    const auto source = withEveryArray<matrix>();
    const matrix taller(4, source.get());
    EXPECT_THAT(listOf(taller.weights, 4), SameBits({50, M, -1, -1}));
    EXPECT_THAT(listOf(taller.norSigma, 2), SameBits({20, 21}));
    EXPECT_THAT(std::vector<int>(taller.nCol, taller.nCol + 2), ElementsAre(70, 71));
    const matrix shorter(1, source.get());
    EXPECT_THAT(listOf(shorter.weights, 1), SameBits({50}));
}

TEST(MatrixConstructor, CopyOfAViewOwnsItsCells)
{
    Guarded<double> callers = {1, M};
    matrix view(2, 1, callers, true);
    {
        matrix copy(view);
        EXPECT_EQ(copy.ownsX, 1);
        EXPECT_NE(copy.X, callers.data());
        copy.vbset(1, 1, 9);
    }
    EXPECT_TRUE(callers.untouched());
    EXPECT_THAT(view.vbget(1, 1), SameBits(1));
}

// ---- release --------------------------------------------------------------------------------------------------------

TEST(MatrixDestructor, ReleasesEveryArrayItOwns)
{
    const long before = allocationState().live;
    withEveryArray<matrix>().reset();
    EXPECT_EQ(allocationState().live, before);
}

TEST(MatrixDestructor, LeavesTheCallersCellsAndReleasesTheRest)
{
    Guarded<double> callers = {1, 2};
    const long before = allocationState().live;
    {
        matrix view(2, 1, callers, true);
        view.InitWeights();
        view.InitnCol();
        view.InitWeightcorr();
        EXPECT_EQ(allocationState().live, before + 3);
    }
    EXPECT_EQ(allocationState().live, before);
    EXPECT_TRUE(callers.untouched());
}

TEST(MatrixDestructor, FollowsTheFlagAndSkipsNull)
{
    const std::unique_ptr<double[]> kept(new double[2]{1, 2});
    {
        matrix disowned(2, 1, kept.get(), true);
        disowned.ownsX = 2; // only 1 owns
    }
    EXPECT_THAT(listOf(kept.get(), 2), SameBits({1, 2}));
    matrix withoutCells(0, 1, 0.0);
    delete[] withoutCells.X;
    withoutCells.X = nullptr;
}

// ---- checked access -------------------------------------------------------------------------------------------------

TEST(MatrixAccess, CountsFromOne)
{
    auto t = byRows({{1, 2}, {3, 4}});
    EXPECT_THAT(t->vbget(1, 1), SameBits(1));
    EXPECT_THAT(t->vbget(1, 2), SameBits(2));
    EXPECT_THAT(t->vbget(2, 1), SameBits(3));
    t->vbset(2, 1, M);
    EXPECT_THAT(cellsOf(t), SameBits({1, M, 2, 4}));
    EXPECT_EQ(t->GetX(), t->X);
}

TEST(MatrixAccess, RowBeyondTheTableSlidesIntoTheNextColumn)
{
    auto t = byRows({{1, 2}, {3, 4}});
    EXPECT_THAT(t->vbget(3, 1), SameBits(2));
    EXPECT_THAT(t->vbget(4, 1), SameBits(4));
    EXPECT_THAT(t->vbget(0, 2), SameBits(3));
    EXPECT_THAT(t->vbget(-1, 2), SameBits(1));
    t->vbset(3, 1, 9);
    EXPECT_THAT(cellsOf(t), SameBits({1, 3, 9, 4}));
}

TEST(MatrixAccess, OutOfRangeReadsMinusOneAndDropsTheWrite)
{
    auto t = byRows({{1, 2}, {3, 4}});
    const std::vector<std::pair<int, int>> outside = {
        {1, 3}, {5, 1},  {3, 2},         {0, 1},          {1, 0},
        {2, 0}, {-7, 1}, {lowestInt, 1}, {1, highestInt}, {highestInt, lowestInt}};
    for (const auto& [i, j] : outside) {
        EXPECT_THAT(t->vbget(i, j), SameBits(-1)) << i << ", " << j;
        t->vbset(i, j, 9);
    }
    EXPECT_THAT(cellsOf(t), SameBits({1, 3, 2, 4}));
}

TEST(MatrixAccess, CheckIsAgainstTheCountOfCellsAlone)
{
    auto t = byRows({{1, 2}, {3, 4}});
    t->nElems = 3;
    EXPECT_THAT(t->vbget(1, 2), SameBits(2));
    EXPECT_THAT(t->vbget(2, 2), SameBits(-1));
    t->vbset(2, 2, 9);
    EXPECT_THAT(t->X[3], SameBits(4));
}

TEST(MatrixAccess, TableWithoutCellsReadsMinusOne)
{
    double cell = 5.0;
    short flag = -1;
    matrix noRows(0, 3, 7.0);
    matrix noCols(3, 0, 7);
    matrix copy(0, 2, &cell, false);
    matrix sized(0, 2, &cell, 0, 0);
    matrix boolean(2, 0, &flag);
    matrix same(noRows);
    for (matrix* t : {&noRows, &noCols, &copy, &sized, &boolean, &same}) {
        EXPECT_EQ(t->nElems, 0u);
        EXPECT_NE(t->X, nullptr);
        t->vbset(1, 1, 9);
        EXPECT_THAT(t->vbget(1, 1), SameBits(-1));
        EXPECT_THAT(t->vbget(0, 0), SameBits(-1));
    }
}

} // namespace
} // namespace vecmat::test
