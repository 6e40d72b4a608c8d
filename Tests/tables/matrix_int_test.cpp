// The table of ints, and where it differs from its twin.
#include "matrix.h"
#include "matrixInt.h"
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

TEST(IntTableFields, AreAPlainClassInTheSettledOrder)
{
    static_assert(std::is_standard_layout_v<matrixInt> && !std::is_polymorphic_v<matrixInt>);
    static_assert(std::is_same_v<decltype(matrixInt::X), std::int32_t*>);
    static_assert(std::is_same_v<decltype(matrixInt::nElems), std::uint32_t>);
    static_assert(std::is_same_v<decltype(matrixInt::normalized), std::int32_t>);
    static_assert(std::is_same_v<decltype(matrixInt::descMode), std::int16_t>);
    static_assert(sizeof(matrixInt::ownsX) == 1);
    const std::vector<std::size_t> offsets = {
        offsetof(matrixInt, norMu),     offsetof(matrixInt, norSigma), offsetof(matrixInt, descMu),
        offsetof(matrixInt, descSigma), offsetof(matrixInt, weights),  offsetof(matrixInt, weightcorr),
        offsetof(matrixInt, nRows),     offsetof(matrixInt, nCols),    offsetof(matrixInt, normalized),
        offsetof(matrixInt, descDone),  offsetof(matrixInt, nElems),   offsetof(matrixInt, X),
        offsetof(matrixInt, nCol),      offsetof(matrixInt, ownsX),    offsetof(matrixInt, descMode)};
    EXPECT_EQ(offsets.front(), 0u);
    EXPECT_TRUE(std::adjacent_find(offsets.begin(), offsets.end(), std::greater_equal<>()) == offsets.end());
}

// ---- constructors ---------------------------------------------------------------------------------------------------

TEST(IntTableConstructor, FillsWithAValue)
{
    const matrixInt t(2, 3, lowestInt);
    expectShape(&t, 2, 3);
    EXPECT_EQ(t.ownsX, 1);
    expectNoMoments(t);
    EXPECT_EQ(t.weights, nullptr);
    expectNoCounts(t);
    EXPECT_THAT(cellsOf(&t), testing::Each(lowestInt));
}

TEST(IntTableConstructor, ViewReadsAndWritesTheCallersArray)
{
    Guarded<int> callers = {1, 2, 3, 4};
    {
        matrixInt view(2, 2, callers, true);
        expectShape(&view, 2, 2);
        EXPECT_EQ(view.X, callers.data());
        EXPECT_EQ(view.ownsX, 0);
        view.vbset(2, 2, 9);
    }
    EXPECT_THAT(callers.values(), ElementsAre(1, 2, 3, 9));
}

TEST(IntTableConstructor, CopyWithoutViewIsItsOwn)
{
    Guarded<int> callers = {1, 2, 3, 4};
    matrixInt copy(2, 2, callers, false);
    EXPECT_EQ(copy.ownsX, 1);
    EXPECT_THAT(cellsOf(&copy), ElementsAre(1, 2, 3, 4));
    copy.vbset(1, 1, 9);
    EXPECT_TRUE(callers.untouched());
}

TEST(IntTableConstructor, BothFormsOverAnArrayFillTheCountsUnlikeTheTwin)
{
    Guarded<int> callers = {1, 2, 3, 4, 5, 6};
    const matrixInt view(3, 2, callers, true);
    const matrixInt copy(3, 2, callers, false);
    for (const matrixInt* t : {&view, &copy}) {
        ASSERT_NE(t->nCol, nullptr);
        ASSERT_NE(t->weightcorr, nullptr);
        EXPECT_THAT(std::vector<int>(t->nCol, t->nCol + 2), ElementsAre(3, 3));
        EXPECT_THAT(listOf(t->weightcorr, 2), SameBits({2, 2}));
        EXPECT_EQ(t->weights, nullptr);
        expectNoMoments(*t);
    }
    Guarded<double> numbers = {1, 2};
    const matrix twin(2, 1, numbers, true);
    EXPECT_EQ(twin.nCol, nullptr);
    EXPECT_EQ(twin.weightcorr, nullptr);
}

TEST(IntTableConstructor, MoreRowsThanTheSourceAreMinusOne)
{
    auto source = intColumn({7, 8});
    const matrixInt t(3, source);
    expectShape(&t, 3, 1);
    EXPECT_THAT(cellsOf(&t), ElementsAre(7, 8, -1));
    EXPECT_EQ(t.ownsX, 1);
    EXPECT_EQ(t.weights, nullptr);
    expectNoCounts(t);
    expectNoMoments(t);
}

TEST(IntTableConstructor, OtherRowCountCopiesInLinearOrder)
{
    auto source = intsByRows({{1, 3}, {2, 4}});
    EXPECT_THAT(cellsOf(std::make_unique<matrixInt>(3, source).get()), ElementsAre(1, 2, 3, 4, -1, -1));
    EXPECT_THAT(cellsOf(std::make_unique<matrixInt>(1, source).get()), ElementsAre(1, 2));
}

TEST(IntTableConstructor, CopyCarriesWeightsCountsAndTheSlotsOfNormalizing)
{
    const auto source = withEveryArray<matrixInt>();
    const matrixInt copy(3, source.get());
    EXPECT_THAT(listOf(copy.weights, 3), SameBits({50, M, -1}));
    EXPECT_THAT(listOf(copy.weightcorr, 2), SameBits({60, 61}));
    EXPECT_THAT(std::vector<int>(copy.nCol, copy.nCol + 2), ElementsAre(70, 71));
    EXPECT_EQ(copy.normalized, 1);
    EXPECT_THAT(listOf(copy.norMu, 2), SameBits({10, 11}));
    EXPECT_THAT(listOf(copy.norSigma, 2), SameBits({20, 21}));
    EXPECT_EQ(copy.descMu, nullptr);
    EXPECT_EQ(copy.descSigma, nullptr);
    EXPECT_EQ(copy.descDone, 0);
    EXPECT_EQ(copy.descMode, 0);
    source->normalized = 0;
    const matrixInt plain(2, source.get());
    EXPECT_EQ(plain.normalized, 0);
    EXPECT_EQ(plain.norMu, nullptr);
    EXPECT_EQ(plain.norSigma, nullptr);
}

TEST(IntTableDestructor, ReleasesWhatTheTableOwns)
{
    Guarded<int> callers = {1, 2};
    const long before = allocationState().live;
    withEveryArray<matrixInt>().reset();
    std::make_unique<matrixInt>(2, 1, callers, true).reset();
    std::make_unique<matrixInt>(2, 1, callers, false).reset();
    EXPECT_EQ(allocationState().live, before);
    EXPECT_TRUE(callers.untouched());
}

// ---- access ---------------------------------------------------------------------------------------------------------

TEST(IntTableAccess, ChecksTheLinearIndexAlone)
{
    auto t = intsByRows({{1, 2}, {3, 4}});
    EXPECT_EQ(t->vbget(2, 1), 3);
    EXPECT_EQ(t->vbget(3, 1), 2);
    EXPECT_EQ(t->vbget(0, 2), 3);
    const std::vector<std::pair<int, int>> outside = {{1, 3}, {5, 1}, {0, 1}, {1, 0}, {lowestInt, 1}, {1, highestInt}};
    for (const auto& [i, j] : outside) {
        EXPECT_EQ(t->vbget(i, j), -1) << i << ", " << j;
        t->vbset(i, j, 9);
    }
    EXPECT_THAT(cellsOf(t), ElementsAre(1, 3, 2, 4));
    t->vbset(3, 1, 9);
    EXPECT_THAT(cellsOf(t), ElementsAre(1, 3, 9, 4));
}

TEST(IntTableAccess, TableWithoutCellsReadsMinusOne)
{
    matrixInt noRows(0, 2, 7);
    int cell = 5;
    matrixInt copy(2, 0, &cell, false);
    matrixInt negative(-1, 2, 7);
    for (matrixInt* t : {&noRows, &copy, &negative}) {
        EXPECT_EQ(t->nElems, 0u);
        EXPECT_NE(t->X, nullptr);
        t->vbset(1, 1, 9);
        EXPECT_EQ(t->vbget(1, 1), -1);
    }
}

TEST(IntTableCopy, WritesEveryCell)
{
    auto t = intsByRows({{1, lowestInt, 3}, {4, 5, 6}});
    Guarded<int> out(6, 9);
    t->copyMatTo(out);
    EXPECT_THAT(out.values(), ElementsAre(1, 4, lowestInt, 5, 3, 6));
    matrixInt larger(4, 2, 9);
    const int* const block = larger.X;
    t->copyMatTo(&larger);
    expectShape(&larger, 2, 3);
    EXPECT_EQ(larger.X, block);
    EXPECT_THAT(cellsOf(&larger), ElementsAre(1, 4, lowestInt, 5, 3, 6));
    EXPECT_THAT(std::vector<int>(larger.X + 6, larger.X + 8), ElementsAre(9, 9));
}

// ---- preparing results ----------------------------------------------------------------------------------------------

TEST(IntTableMatCheck, TruncatesItsValue)
{
    Owned<matrixInt> t;
    matrixInt::matCheck(t.reference(), 1, 2, 2.9);
    EXPECT_THAT(cellsOf(t), ElementsAre(2, 2));
    const matrixInt* const kept = t.get();
    matrixInt::matCheck(t.reference(), 1, 1, -2.9);
    EXPECT_EQ(t.get(), kept);
    EXPECT_THAT(cellsOf(t), ElementsAre(-2, 2));
    matrixInt::matCheck(t.reference(), 1, 2, M);
    EXPECT_THAT(cellsOf(t), ElementsAre(lowestInt, lowestInt));
}

TEST(IntTableMatCheck, LargerTableKeepsItsShapeAndHasItsHeadFilled)
{
    auto t = intTable(3, 2, {7, 7, 7, 7, 7, 7});
    const matrixInt* const kept = t.get();
    matrixInt::matCheck(t.reference(), 2, 2, 0.0);
    EXPECT_EQ(t.get(), kept);
    expectShape(t, 3, 2);
    EXPECT_THAT(cellsOf(t), ElementsAre(0, 0, 0, 0, 7, 7));
}

TEST(IntTableMatCheck, TooSmallTableIsReplacedAndReleased)
{
    for (const auto& [rows, cols] : std::vector<std::pair<int, int>>{{3, 2}, {2, 3}}) {
        auto t = intTable(2, 2, {7, 7, 7, 7});
        const long before = allocationState().live;
        matrixInt::matCheck(t.reference(), rows, cols, 1.0);
        expectShape(t, rows, cols);
        EXPECT_THAT(cellsOf(t), testing::Each(1));
        EXPECT_EQ(allocationState().live, before);
    }
}

TEST(IntTableMatCheck, ViewOfTheRightSizeIsWrittenThrough)
{
    Guarded<int> callers = {1, 2, 3};
    Owned<matrixInt> view(new matrixInt(2, 1, callers, true));
    matrixInt::matCheck(view.reference(), 2, 1, 0.0);
    EXPECT_THAT(callers.values(), ElementsAre(0, 0, 3));
    matrixInt::matCheck(view.reference(), 3, 1, 8.0); // too small now: what comes is the table's own
    EXPECT_THAT(callers.values(), ElementsAre(0, 0, 3));
}

} // namespace
} // namespace vecmat::test
