// The letters of a whole table of comparisons, and the flat form.
#include "CompanionRuntime/CompanionRuntime.h"
#include "randomisation/letter_groups.h"
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/guarded.h"
#include "support/strings.h"
#include "support/tables.h"

#include <cstddef>
#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace vecmat::test {
namespace {

using testing::Each;
using testing::ElementsAre;

/// The results of a call with the items' means in the first column of X.
struct Compared
{
    Owned<matrix> x;
    Owned<matrixInt> order;
    Owned<Smatrix> labels;
    int nGroups = -5;

    Compared(Owned<matrix> table, int col, const Owned<matrixInt>& comp, short keepOrder)
        : x(std::move(table)), order(new matrixInt(x->nRows, 1, 77)), labels(new Smatrix(x->nRows, x->nRows))
    {
        GetCompMatrices(x, x->nRows, col, comp, keepOrder, order, labels, &nGroups);
    }

    /// The letters of each row of labels, its empty cells left out.
    std::vector<std::wstring> letters() const
    {
        std::vector<std::wstring> all;
        for (int i = 1; i <= labels->nRows; ++i) {
            std::wstring line;
            for (int g = 1; g <= labels->nCols; ++g)
                line += labels->vbget(i, g);
            all.push_back(line);
        }
        return all;
    }
};

// In the order of their means, items 2, 3, 1: only 2 and 1 differ, so that 3 shares a letter with both.
const std::initializer_list<std::initializer_list<int>> onlyTwoAndOne = {{9, 9, 9}, {1, 9, 9}, {0, 0, 9}};

TEST(GetCompMatrices, SortsTheTableTheOrderAndTheLabels)
{
    const Compared c(column({30, 10, 20}), 0, intsByRows(onlyTwoAndOne), 0);
    EXPECT_THAT(cellsOf(c.x), SameBits({10, 20, 30}));
    EXPECT_THAT(cellsOf(c.order), ElementsAre(2, 3, 1));
    EXPECT_EQ(c.nGroups, 2);
    EXPECT_THAT(c.letters(), ElementsAre(L"A", L"AB", L"B"));
    EXPECT_EQ(c.labels->vbget(1, 1), L"A");
    EXPECT_EQ(c.labels->vbget(3, 2), L"B");
}

TEST(GetCompMatrices, KeepsTheOrderAndPutsTheLabelsBack)
{
    for (const short keepOrder : {short{-1}, short{1}}) {
        const Compared c(column({30, 10, 20}), 0, intsByRows(onlyTwoAndOne), keepOrder);
        EXPECT_THAT(cellsOf(c.x), SameBits({30, 10, 20}));
        EXPECT_THAT(cellsOf(c.order), ElementsAre(1, 2, 3));
        EXPECT_EQ(c.nGroups, 2);
        EXPECT_THAT(c.letters(), ElementsAre(L"B", L"A", L"AB"));
        EXPECT_EQ(c.labels->vbget(1, 2), L"B") << "every column is put back";
        EXPECT_EQ(c.labels->vbget(1, 1), L"");
    }
}

TEST(GetCompMatrices, ReadsTheCellsBelowTheDiagonalByRows)
{
    // One pair differs in each round; its two items are the first and the last of a run, or contradict one.
    struct Round
    {
        int row, col;
        std::vector<std::wstring> letters;
    };
    const Round rounds[] = {
        {2, 1, {L"A", L"B", L"B", L"B"}},   {3, 1, {L"A", L"AB", L"B", L"B"}}, {3, 2, {L"A", L"A", L"A", L"A"}},
        {4, 1, {L"A", L"AB", L"AB", L"B"}}, {4, 2, {L"A", L"A", L"A", L"A"}},  {4, 3, {L"A", L"A", L"A", L"A"}},
    };
    for (const auto& [row, col, letters] : rounds) {
        const Owned<matrixInt> comp(new matrixInt(4, 4, 0));
        comp->vbset(row, col, -3);
        EXPECT_EQ(Compared(column({1, 2, 3, 4}), 0, comp, 0).letters(), letters) << row << ", " << col;
        const Owned<matrixInt> above(new matrixInt(4, 4, 0));
        above->vbset(col, row, 1);
        EXPECT_THAT(Compared(column({1, 2, 3, 4}), 0, above, 0).letters(), Each(L"A"));
    }
}

TEST(GetCompMatrices, TakesTheMeansFromAColumnAndSortsTheColumnsUpToIt)
{
    const Compared sorted(byColumns({{1, 2, 3}, {30, 10, 20}, {7, 8, 9}}), 2, intsByRows(onlyTwoAndOne), 0);
    EXPECT_THAT(cellsOf(sorted.x), SameBits({2, 3, 1, 10, 20, 30, 7, 8, 9}));
    EXPECT_THAT(cellsOf(sorted.order), ElementsAre(2, 3, 1));
    EXPECT_THAT(sorted.letters(), ElementsAre(L"A", L"AB", L"B"));

    const Compared byFirst(byColumns({{30, 10, 20}, {1, 2, 3}}), 1, intsByRows(onlyTwoAndOne), 0);
    EXPECT_THAT(cellsOf(byFirst.x), SameBits({10, 20, 30, 1, 2, 3}));
    const Compared byNone(byColumns({{30, 10, 20}, {1, 2, 3}}), 0, intsByRows(onlyTwoAndOne), 0);
    EXPECT_THAT(cellsOf(byNone.x), SameBits({10, 20, 30, 1, 2, 3}));
}

TEST(GetCompMatrices, ClearsTheSquareOfLabelsAndLeavesTheRest)
{
    auto x = column({2, 1});
    auto order = intColumn({0, 0, 55});
    auto labels = stringTable(3, 4, std::vector<std::wstring>(12, L"old"));
    int nGroups = 0;
    GetCompMatrices(x, 2, 0, intsByRows({{0, 0}, {0, 0}}), 0, order, labels, &nGroups);
    EXPECT_THAT(cellsOf(labels),
                ElementsAre(L"A", L"A", L"old", L"", L"", L"old", L"old", L"old", L"old", L"old", L"old", L"old"));
    EXPECT_THAT(cellsOf(order), ElementsAre(2, 1, 55));
}

TEST(GetCompMatrices, PutsAllColumnsOfTheLabelsBack)
{
    auto x = column({2, 1});
    auto order = intColumn({0, 0});
    auto labels = stringTable(2, 3, {L"", L"", L"", L"", L"first", L"second"});
    int nGroups = 0;
    GetCompMatrices(x, 2, 0, intsByRows({{0, 0}, {1, 0}}), -1, order, labels, &nGroups);
    EXPECT_THAT(cellsOf(labels), ElementsAre(L"", L"A", L"B", L"", L"second", L"first"));
}

TEST(GetCompMatrices, MissingMeansHaveNoLetters)
{
    const auto comp = intsByRows({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}});
    const Compared kept(column({5, M, 6}), 0, comp, -1);
    EXPECT_THAT(kept.letters(), ElementsAre(L"A", L"", L"A"));
    EXPECT_EQ(kept.nGroups, 1);
    const Compared sorted(column({5, M, 6}), 0, comp, 0);
    EXPECT_THAT(cellsOf(sorted.x), SameBits({M, 5, 6}));
    EXPECT_THAT(sorted.letters(), ElementsAre(L"", L"A", L"A"));
}

TEST(GetCompMatrices, OfOneItemAndOfNone)
{
    const Compared one(column({5}), 0, intColumn({0}), 0);
    EXPECT_EQ(one.nGroups, 1);
    EXPECT_THAT(cellsOf(one.order), ElementsAre(1));
    EXPECT_THAT(one.letters(), ElementsAre(L"A"));

    for (const int n : {0, -3}) {
        auto x = column({5});
        auto order = intColumn({77});
        auto labels = stringColumn({L"old"});
        int nGroups = -5;
        GetCompMatrices(x, n, 0, intColumn({0}), 0, order, labels, &nGroups);
        EXPECT_THAT(cellsOf(x), SameBits({5}));
        EXPECT_THAT(cellsOf(order), ElementsAre(77));
        EXPECT_THAT(cellsOf(labels), ElementsAre(L"old"));
        EXPECT_EQ(nGroups, -5);
    }
}

TEST(GetCompMatrices, ReadsOutsideAsMinusOneAndWritesNothingThere)
{
    // Three items over tables of two: the third mean is -1, and it differs from the others by -1.
    auto x = column({2, 1});
    auto order = intColumn({0, 0});
    auto labels = stringTable(2, 2, std::vector<std::wstring>(4, L"old"));
    int nGroups = 0;
    GetCompMatrices(x, 3, 0, intsByRows({{0, 0}, {0, 0}}), 0, order, labels, &nGroups);
    EXPECT_THAT(cellsOf(x), SameBits({-1, 1}));
    EXPECT_EQ(order->vbget(1, 1), -1) << "the third number was dropped";
}

// ---- flat form ------------------------------------------------------------------------------------------------------

constexpr std::size_t labelColumns = 256;

TEST(CppGetCompMatrices, SortsTheCallersArrays)
{
    Guarded<double> x = {1, 2, 3, 30, 10, 20};
    Guarded<int> comp = {9, 1, 0, 9, 9, 0, 9, 9, 9};
    Guarded<int> order = {77, 77, 77};
    BstrArray labels(std::vector<std::wstring>(3 * labelColumns, L"old"));
    int nGroups = -5;
    Cpp_GetCompMatrices(x, 3, 2, comp, 0, order, labels, &nGroups);
    EXPECT_THAT(x.values(), SameBits({2, 3, 1, 10, 20, 30}));
    EXPECT_THAT(order.values(), ElementsAre(2, 3, 1));
    EXPECT_TRUE(comp.untouched());
    EXPECT_EQ(nGroups, 2);
    EXPECT_EQ(labels.countNew(), 3 * labelColumns);
    const std::vector<std::wstring> texts = labels.takeTexts();
    EXPECT_THAT(std::vector<std::wstring>(texts.begin(), texts.begin() + 9),
                ElementsAre(L"A", L"A", L"", L"", L"B", L"B", L"", L"", L""));
    EXPECT_THAT(std::vector<std::wstring>(texts.begin() + 9, texts.end()), Each(L"old"));
}

TEST(CppGetCompMatrices, KeepsTheCallersOrder)
{
    Guarded<double> x = {30, 10, 20};
    Guarded<int> comp = {9, 1, 0, 9, 9, 0, 9, 9, 9};
    Guarded<int> order = {77, 77, 77};
    BstrArray labels(3 * labelColumns); // null pointers are empty cells
    int nGroups = -5;
    Cpp_GetCompMatrices(x, 3, 0, comp, -1, order, labels, &nGroups);
    EXPECT_TRUE(x.untouched());
    EXPECT_THAT(order.values(), ElementsAre(1, 2, 3));
    const std::vector<std::wstring> texts = labels.takeTexts();
    EXPECT_THAT(std::vector<std::wstring>(texts.begin(), texts.begin() + 6),
                ElementsAre(L"", L"A", L"A", L"B", L"", L"B"));
}

TEST(CppGetCompMatrices, HasTwoHundredAndFiftySixColumnsOfLabelsForMoreItems)
{
    const std::size_t n = 258;
    std::vector<double> means;
    for (std::size_t i = 0; i < n; ++i)
        means.push_back(static_cast<double>(i));
    Guarded<double> x(means);
    Guarded<int> comp(n * n, 1);
    Guarded<int> order(n, 0);
    BstrArray labels(n * labelColumns);
    int nGroups = -5;
    Cpp_GetCompMatrices(x, static_cast<int>(n), 0, comp, 0, order, labels, &nGroups);
    EXPECT_EQ(nGroups, 257);
    const std::vector<std::wstring> texts = labels.takeTexts();
    EXPECT_EQ(texts[255 + 255 * n], L"IV");
    for (std::size_t g = 0; g < labelColumns; ++g)
        ASSERT_EQ(texts[256 + g * n], L"");
}

TEST(CppGetCompMatrices, OfNoItemsTouchesNothing)
{
    Guarded<double> x(0, 0.0);
    Guarded<int> none(0, 0);
    BstrArray labels(std::size_t{0});
    int nGroups = -5;
    Cpp_GetCompMatrices(x, 0, 0, none, 0, none, labels, &nGroups);
    EXPECT_EQ(nGroups, -5);
}

/// Places for the labels of two items that allocate nothing and free what the library has stored.
struct LabelPlaces
{
    wchar_t* cells[2 * labelColumns] = {};
    ~LabelPlaces()
    {
        for (wchar_t* text : cells)
            SysFreeString2(text);
    }
};

TEST(CppGetCompMatrices, LeavesTheNumbersWhereAStringCannotBeMade)
{
    double x[2] = {0, 0};
    int order[2] = {0, 0};
    int comp[4] = {0, 1, 0, 0};
    bool finished = false;
    bool touchedTooEarly = false;
    const int failures = forEachFailingAllocation([&] {
        LabelPlaces labels;
        int nGroups = 0;
        x[0] = 20;
        x[1] = 10;
        order[0] = order[1] = 77;
        finished = false;
        try {
            Cpp_GetCompMatrices(x, 2, 0, comp, 0, order, labels.cells, &nGroups);
            finished = true;
        } catch (...) {
            touchedTooEarly = touchedTooEarly || x[0] != 20 || order[0] != 77;
            throw;
        }
    });
    EXPECT_GT(failures, static_cast<int>(2 * labelColumns)); // a BSTR for each label, and the tables
    EXPECT_TRUE(finished);
    EXPECT_FALSE(touchedTooEarly);
    EXPECT_THAT(x, SameBits({10, 20}));
    EXPECT_THAT(order, ElementsAre(2, 1));
}

} // namespace
} // namespace vecmat::test
