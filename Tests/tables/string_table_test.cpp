// The table of strings.
#include "CompanionRuntime/CompanionRuntime.h"
#include "Smatrix.h"
#include "support/failing_new.h"
#include "support/strings.h"
#include "tables/table_parts.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <vector>

namespace vecmat::test {
namespace {

using testing::Each;
using testing::ElementsAre;

constexpr int lowestInt = std::numeric_limits<int>::min();

// Too long for a string's own storage, so that each has a block of its own.
const std::wstring longText = L"a text that does not fit into the string itself";

TEST(StringTableFields, AreAPlainClassInTheSettledOrder)
{
    static_assert(std::is_standard_layout_v<Smatrix> && !std::is_polymorphic_v<Smatrix>);
    static_assert(std::is_same_v<decltype(Smatrix::nElems), std::uint32_t>);
    static_assert(std::is_same_v<decltype(Smatrix::nRows), std::int32_t>);
    static_assert(std::is_same_v<decltype(Smatrix::nCols), std::int32_t>);
    static_assert(std::is_same_v<decltype(Smatrix::X), std::wstring*>);
    static_assert(sizeof(wchar_t) == 4);
    static_assert(offsetof(Smatrix, nElems) == 0 && offsetof(Smatrix, nRows) == 4 && offsetof(Smatrix, nCols) == 8 &&
                  offsetof(Smatrix, X) > 8);
}

// ---- constructors ---------------------------------------------------------------------------------------------------

TEST(StringTableConstructor, MakesEmptyCells)
{
    const Smatrix t(2, 3);
    expectShape(&t, 2, 3);
    EXPECT_THAT(cellsOf(&t), Each(L""));
}

TEST(StringTableConstructor, ConvertsTheCallersStrings)
{
    BstrArray callers({L"a", L"\u00e9\u4e2d", L"\U0001F427", longText});
    {
        Smatrix t(2, 2, callers, 0, 0);
        expectShape(&t, 2, 2);
        EXPECT_THAT(cellsOf(&t), ElementsAre(L"a", L"\u00e9\u4e2d", L"\U0001F427", longText));
        t.vbset(1, 1, L"b");
    }
    EXPECT_EQ(callers.text(0), L"a");
    EXPECT_EQ(callers.countNew(), 0u);
}

TEST(StringTableConstructor, ReadsOnlyTheSource)
{
    BstrArray callers({L"a", L"b"}); // no third place may be read
    const Smatrix t(2, 2, callers, 1, 2);
    expectShape(&t, 2, 2);
    EXPECT_THAT(cellsOf(&t), ElementsAre(L"a", L"b", L"", L""));
}

TEST(StringTableConstructor, ZeroSourceCountsMeanTheTablesOwn)
{
    BstrArray callers({L"a", L"b", L"c", L"d"});
    const Smatrix oneCol(2, 2, callers, 0, 1);
    EXPECT_THAT(cellsOf(&oneCol), ElementsAre(L"a", L"b", L"", L""));
    const Smatrix oneRow(2, 2, callers, 1, 0);
    EXPECT_THAT(cellsOf(&oneRow), ElementsAre(L"a", L"b", L"", L""));
    const Smatrix larger(1, 2, callers, 2, 2);
    EXPECT_THAT(cellsOf(&larger), ElementsAre(L"a", L"b"));
}

TEST(StringTableConstructor, NullAndZeroLengthAreEmpty)
{
    BstrArray callers({L"a", L"", L"c"});
    callers.setNull(0);
    const Smatrix t(3, 1, callers, 0, 0);
    EXPECT_THAT(cellsOf(&t), ElementsAre(L"", L"", L"c"));
}

TEST(StringTableConstructor, TextEndsAtItsNul)
{
    BstrArray callers({std::wstring(L"ab\0cd", 5)});
    const Smatrix t(1, 1, callers, 0, 0);
    EXPECT_THAT(cellsOf(&t), ElementsAre(L"ab"));
}

TEST(StringTableConstructor, CopyHasItsOwnStrings)
{
    auto source = stringsByRows({{L"a", longText}});
    Smatrix copy(*source.get());
    expectShape(&copy, 1, 2);
    copy.vbset(1, 2, L"other");
    EXPECT_THAT(cellsOf(source), ElementsAre(L"a", longText));
    EXPECT_THAT(cellsOf(&copy), ElementsAre(L"a", L"other"));
}

TEST(StringTableDestructor, ReleasesEveryString)
{
    const long before = allocationState().live;
    {
        Smatrix t(2, 1);
        t.vbset(1, 1, longText);
        t.vbset(2, 1, longText);
        EXPECT_EQ(allocationState().live, before + 3);
    }
    EXPECT_EQ(allocationState().live, before);
}

// ---- access ---------------------------------------------------------------------------------------------------------

TEST(StringTableAccess, ByPosition)
{
    auto t = stringsByRows({{L"a", L"c"}, {L"b", L"d"}});
    EXPECT_EQ(t->getElement(0), L"a");
    EXPECT_EQ(t->getElement(3), L"d");
    EXPECT_EQ(t->getElement(4), L"");
    EXPECT_EQ(t->getElement(0xffffffffu), L"");
    EXPECT_EQ(t->vbget(1u), L"a");
    EXPECT_EQ(t->vbget(4u), L"d");
    EXPECT_EQ(t->vbget(0u), L"");
    EXPECT_EQ(t->vbget(5u), L"");
}

TEST(StringTableAccess, ByRowAndColumnChecksTheLinearIndexAlone)
{
    auto t = stringsByRows({{L"a", L"c"}, {L"b", L"d"}});
    EXPECT_EQ(t->vbget(2, 1), L"b");
    EXPECT_EQ(t->vbget(3, 1), L"c");
    EXPECT_EQ(t->vbget(0, 2), L"b");
    for (const auto& [i, j] : std::vector<std::pair<int, int>>{{1, 3}, {5, 1}, {0, 1}, {1, 0}, {lowestInt, 1}}) {
        EXPECT_EQ(t->vbget(i, j), L"") << i << ", " << j;
        t->vbset(i, j, L"x");
    }
    EXPECT_THAT(cellsOf(t), ElementsAre(L"a", L"b", L"c", L"d"));
    t->vbset(3, 1, longText);
    EXPECT_THAT(cellsOf(t), ElementsAre(L"a", L"b", longText, L"d"));
}

TEST(StringTableAccess, ReadsGiveCopies)
{
    auto t = stringsByRows({{longText}});
    std::wstring read = t->vbget(1, 1);
    read += L"!";
    read = t->getElement(0);
    read += L"!";
    read = t->vbget(1u);
    read += L"!";
    EXPECT_THAT(cellsOf(t), ElementsAre(longText));
}

TEST(StringTableAccess, TableWithoutCellsReadsEmpty)
{
    Smatrix noRows(0, 2);
    Smatrix negative(-1, 2);
    for (Smatrix* t : {&noRows, &negative}) {
        EXPECT_EQ(t->nElems, 0u);
        EXPECT_NE(t->X, nullptr);
        t->vbset(1, 1, L"x");
        EXPECT_EQ(t->vbget(1, 1), L"");
        EXPECT_EQ(t->vbget(1u), L"");
        EXPECT_EQ(t->getElement(0), L"");
    }
}

// ---- preparing results ----------------------------------------------------------------------------------------------

TEST(StringTableMatCheck, ExactShapeIsKeptWithItsStrings)
{
    auto t = stringsByRows({{L"a", L"b"}});
    const Smatrix* const kept = t.get();
    Smatrix::matCheck(t.reference(), 1, 2);
    EXPECT_EQ(t.get(), kept);
    EXPECT_THAT(cellsOf(t), ElementsAre(L"a", L"b"));
}

TEST(StringTableMatCheck, AnyOtherShapeIsReplacedAndNotDeleted)
{
    for (const auto& [rows, cols] : std::vector<std::pair<int, int>>{{1, 2}, {2, 1}, {3, 2}, {2, 3}, {4, 1}}) {
        auto old = stringsByRows({{L"a", L"b"}, {L"c", longText}}); // larger tables are not kept either
        Smatrix* t = old;
        Smatrix::matCheck(t, rows, cols);
        const Owned<Smatrix> made(t);
        ASSERT_NE(t, old.get());
        expectShape(t, rows, cols);
        EXPECT_THAT(cellsOf(t), Each(L""));
        EXPECT_THAT(cellsOf(old), ElementsAre(L"a", L"c", L"b", longText));
    }
}

TEST(StringTableMatCheck, NullAndTheUnsetPatternAreReplaced)
{
    Owned<Smatrix> t;
    Smatrix::matCheck(t.reference(), 2, 1);
    expectShape(t, 2, 1);
    // Nothing is deleted here, so that even a pattern of unset memory gives way to a table.
    auto* unset = reinterpret_cast<Smatrix*>(std::uintptr_t{0xcccccccc});
    Smatrix::matCheck(unset, 1, 3);
    const Owned<Smatrix> made(unset);
    expectShape(unset, 1, 3);
}

// ---- copies ---------------------------------------------------------------------------------------------------------

TEST(StringTableCopy, SetsTheShapeOfATableAndKeepsItsBlock)
{
    auto t = stringsByRows({{L"a", longText}});
    auto out = stringColumn({L"1", L"2", L"3"});
    const std::wstring* const block = out->X;
    t->copyMatTo(out.get());
    expectShape(out, 1, 2);
    EXPECT_EQ(out->X, block);
    EXPECT_THAT(cellsOf(out), ElementsAre(L"a", longText));
    EXPECT_EQ(out->X[2], L"3");
    t->copyMatTo(t.get());
    EXPECT_THAT(cellsOf(t), ElementsAre(L"a", longText));
}

TEST(StringTableCopy, StoresANewStringForEachCell)
{
    auto t = stringsByRows({{L"\U0001F427", L""}, {longText, L"d"}});
    BstrArray out({L"own", L"own", L"own", L"own", L"own"});
    t->copyMatTo(out.get());
    EXPECT_EQ(out.countNew(), 4u) << "what stood there is not released: the array frees it at its end";
    EXPECT_NE(out.get()[2], nullptr) << "an empty cell is a string too";
    EXPECT_THAT(out.takeTexts(), ElementsAre(L"\U0001F427", longText, L"", L"d", L"own"));
}

TEST(StringTableCopy, ComesBackAsItWentIn)
{
    const std::vector<std::wstring> texts = {L"", L"\u00fc", L"\U0010FFFF", longText};
    BstrArray in(texts);
    Smatrix t(4, 1, in, 0, 0);
    BstrArray out(std::size_t{4});
    t.copyMatTo(out.get());
    EXPECT_EQ(out.takeTexts(), texts);
}

} // namespace
} // namespace vecmat::test
