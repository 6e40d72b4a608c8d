#include "missing/complete_rows.h"

#include "missing/special_numbers.h"
#include "support/random_data.h"
#include "support/strings.h"
#include "support/tables.h"

#include <limits>

namespace vecmat::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

constexpr int missingInt = std::numeric_limits<int>::min();

// ---- removal --------------------------------------------------------------------------------------------------------

TEST(RemoveRowsWithMissing, SurvivorsMoveUpAndTheRestStays)
{
    auto a = byRows({{1, 10}, {2, 20}, {3, 30}, {4, 40}});
    const matrix* const before = a.get();
    Flags mask = {0, -1, 1, 0}; // any value but 0 drops
    RemoveRowsWithMissing(a, 4, 2, mask);
    EXPECT_EQ(a.get(), before);
    EXPECT_THAT(cellsOf(a), SameBits({1.0, 4.0, 3.0, 4.0, 10.0, 40.0, 30.0, 40.0}));
    EXPECT_TRUE(mask.untouched());
}

TEST(RemoveRowsWithMissing, OneColumnLosesMissingCellsThatTheMaskDoesNotName)
{
    for (const int cols : {1, 0, -1}) {
        auto a = column({M, 1, -inf, belowMissing, notANumber, 2, 3});
        Flags mask = {0, 0, 0, 0, 0, -1, 0};
        RemoveRowsWithMissing(a, 7, cols, mask);
        EXPECT_THAT(cellsOf(a), SameBits({1.0, notANumber, 3.0, belowMissing, notANumber, 2.0, 3.0})) << cols;
    }
}

TEST(RemoveRowsWithMissing, TwoColumnsKeepARowOfMissingCells)
{
    auto a = byRows({{M, M}, {1, 2}});
    Flags mask = {0, 0};
    RemoveRowsWithMissing(a, 2, 2, mask);
    EXPECT_THAT(cellsOf(a), SameBits({M, 1.0, M, 2.0}));
}

TEST(RemoveRowsWithMissing, Strings)
{
    auto several = stringsByRows({{L"a", L"b"}, {L"", L""}, {L"c", L"d"}, {L"e", L"f"}});
    Flags mask = {2, 0, 0, 0};
    RemoveRowsWithMissing(several, 4, 2, mask);
    EXPECT_THAT(cellsOf(several), ElementsAre(L"", L"c", L"e", L"e", L"", L"d", L"f", L"f"));
    for (const int cols : {1, 0}) {
        auto one = stringColumn({L"a", L"", L" ", L"d"});
        Flags none = {0, 0, 0, -1};
        RemoveRowsWithMissing(one, 4, cols, none);
        EXPECT_THAT(cellsOf(one), ElementsAre(L"a", L" ", L" ", L"d")) << cols;
    }
}

TEST(RemoveRowsWithMissing, RemovesNothingOrEverything)
{
    auto a = byRows({{1, 2}, {3, 4}});
    Flags mask = {-1, -1};
    RemoveRowsWithMissing(a, 2, 2, mask);
    RemoveRowsWithMissing(a, 0, 2, mask);
    RemoveRowsWithMissing(a, -1, 2, mask);
    EXPECT_THAT(cellsOf(a), SameBits({1.0, 3.0, 2.0, 4.0}));
}

TEST(RemoveRowsWithMissing, WorksOnTheCornerThatIsNamed)
{
    auto a = byRows({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}});
    Flags mask = {-1, 0};
    RemoveRowsWithMissing(a, 2, 2, mask);
    EXPECT_THAT(cellsOf(a), SameBits({4.0, 4.0, 7.0, 5.0, 5.0, 8.0, 3.0, 6.0, 9.0}));
}

TEST(RemoveRowsWithMissing, RowsBeyondTheTable)
{
    // In a vector, a row past the end reads as -1.0 and is kept; as an empty string it is dropped.
    auto a = column({M, 2});
    Flags mask = {0, 0, 0};
    RemoveRowsWithMissing(a, 3, 1, mask);
    EXPECT_THAT(cellsOf(a), SameBits({2.0, -1.0}));
    auto texts = stringColumn({L"", L"b"});
    RemoveRowsWithMissing(texts, 3, 1, mask);
    EXPECT_THAT(cellsOf(texts), ElementsAre(L"b", L"b"));
    auto pair = stringsByRows({{L"a", L"b"}});
    Flags first = {-1, 0};
    RemoveRowsWithMissing(pair, 2, 2, first); // row 2 is (b, nothing)
    EXPECT_THAT(cellsOf(pair), ElementsAre(L"b", L""));
}

TEST(RemoveRowsWithMissing, FlatFormCompactsAndCopiesTheTop)
{
    Guarded<double> data = {1, 2, 3, 4, 10, 20, 30, 40};
    Flags mask = {0, -1, 0, 0};
    Guarded<double> out(RandomData(451).leftovers(6));
    VB_RemoveRowsWithMissing(data, 4, 2, 1, mask, out);
    EXPECT_THAT(data.values(), SameBits({1.0, 3.0, 4.0, 4.0, 10.0, 30.0, 40.0, 40.0}));
    EXPECT_THAT(out.values(), SameBits({1.0, 3.0, 4.0, 10.0, 30.0, 40.0}));
    EXPECT_TRUE(mask.untouched());
}

TEST(RemoveRowsWithMissing, FlatFormTakesNoColumnsForOne)
{
    for (const int cols : {0, 1}) {
        Guarded<double> data = {1, M, 3, M};
        Flags mask = {0, -1, 0, 0};
        Guarded<double> out(RandomData(452).leftovers(3));
        // The caller counts the one row of the mask; the fourth goes as well, and its place shows what stood there.
        VB_RemoveRowsWithMissing(data, 4, cols, 1, mask, out);
        EXPECT_THAT(data.values(), SameBits({1.0, 3.0, 3.0, M})) << cols;
        EXPECT_THAT(out.values(), SameBits({1.0, 3.0, 3.0})) << cols;
    }
}

TEST(RemoveRowsWithMissing, FlatFormOfStrings)
{
    BstrArray data({L"a", L"b", L"c", L"p", L"q", L"r"});
    Flags mask = {-1, 0, 0};
    BstrArray out(4);
    VB_RemoveRowsWithMissingStr(data, 3, 2, 1, mask, out);
    EXPECT_EQ(data.countNew(), 6u);
    EXPECT_THAT(data.takeTexts(), ElementsAre(L"b", L"c", L"c", L"q", L"r", L"r"));
    EXPECT_THAT(out.texts(), ElementsAre(L"b", L"c", L"q", L"r"));

    BstrArray one({L"", L"b", L"c"});
    Flags last = {0, 0, 3};
    BstrArray top(1);
    VB_RemoveRowsWithMissingStr(one, 3, 0, 2, last, top);
    EXPECT_THAT(one.texts(), ElementsAre(L"b", L"b", L"c"));
    EXPECT_THAT(top.texts(), ElementsAre(L"b"));
}

TEST(RemoveRowsWithMissing, FlatFormWithEverythingRemoved)
{
    Guarded<double> data = {1, 2};
    Flags mask = {-1, -1};
    Guarded<double> out = {7};
    VB_RemoveRowsWithMissing(data, 2, 1, 2, mask, out);
    EXPECT_TRUE(out.untouched());
    EXPECT_TRUE(data.untouched());
}

// ---- insertion ------------------------------------------------------------------------------------------------------

TEST(InsertMissing, MarkedRowsBecomeMissing)
{
    Flags mask = {-1, 0, 2, 0, 1}; // any value but 0 marks
    auto out = table(5, 2, RandomData(453).leftovers(10));
    M_InsertMissing(byRows({{1, 10}, {2, 20}}), 2, 2, mask, 3, out);
    EXPECT_THAT(cellsOf(out), SameBits({M, 1.0, M, 2.0, M, M, 10.0, M, 20.0, M}));
    EXPECT_TRUE(mask.untouched());

    auto ints = intTable(5, 2, RandomData(454).intLeftovers(10));
    M_InsertMissingLng(intsByRows({{1, 10}, {2, 20}}), 2, 2, mask, 3, ints);
    EXPECT_THAT(cellsOf(ints),
                ElementsAre(missingInt, 1, missingInt, 2, missingInt, missingInt, 10, missingInt, 20, missingInt));
}

TEST(InsertMissing, NothingToInsertCopies)
{
    Flags mask = {0, 0, 0};
    const std::vector<double> cells = {1, M, notANumber, 4, 5, -0.0};
    auto out = table(3, 2, RandomData(455).leftovers(6));
    M_InsertMissing(table(3, 2, cells), 3, 2, mask, 0, out);
    EXPECT_THAT(cellsOf(out), SameBits(cells));
    auto ints = intTable(3, 1, RandomData(456).intLeftovers(3));
    M_InsertMissingLng(intColumn({1, missingInt, 3}), 3, 1, mask, 0, ints);
    EXPECT_THAT(cellsOf(ints), ElementsAre(1, missingInt, 3));
}

TEST(InsertMissing, UndoesTheRemoval)
{
    RandomData data(457);
    SCOPED_TRACE(data);
    const auto flags = data.mask(12, 0.4);
    const auto marked = static_cast<int>(std::count(flags.begin(), flags.end(), -1));
    auto cells = data.withSpecials(data.normals(36), 0.3);
    auto compact = table(12, 3, cells);
    Flags mask(flags);
    RemoveRowsWithMissing(compact, 12, 3, mask);
    auto out = table(12, 3, data.leftovers(36));
    M_InsertMissing(compact, 12 - marked, 3, mask, marked, out);
    for (std::size_t k = 0; k < 36; ++k)
        if (flags[k % 12] != 0)
            cells[k] = M;
    EXPECT_THAT(cellsOf(out), SameBits(cells));
}

TEST(InsertMissing, KeepsStridesAndCellsThatAreNotNamed)
{
    auto out = table(4, 2, {70, 71, 72, 73, 74, 75, 76, 77});
    Flags mask = {0, -1, 0};
    M_InsertMissing(byRows({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}), 2, 1, mask, 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({1.0, M, 4.0, 73.0, 74.0, 75.0, 76.0, 77.0}));
    auto untouched = column({70});
    M_InsertMissing(column({1}), 0, 1, mask, 0, untouched);
    M_InsertMissing(column({1}), 1, 0, mask, 0, untouched);
    M_InsertMissing(column({1}), 1, 1, mask, -3, untouched);
    EXPECT_THAT(cellsOf(untouched), SameBits({70.0}));
}

TEST(InsertMissing, MaskWithTooFewMarksReadsOnPastTheData)
{
    Flags mask = {0, 0, 0};
    auto out = table(3, 2, RandomData(458).leftovers(6));
    M_InsertMissing(byRows({{1, 10}, {2, 20}}), 2, 2, mask, 1, out);
    // Row 3 of the data is row 1 of the next column, and after the last -1.0.
    EXPECT_THAT(cellsOf(out), SameBits({1.0, 2.0, 10.0, 10.0, 20.0, -1.0}));
    auto ints = intTable(3, 1, RandomData(459).intLeftovers(3));
    M_InsertMissingLng(intColumn({1, 2}), 2, 1, mask, 1, ints);
    EXPECT_THAT(cellsOf(ints), ElementsAre(1, 2, -1));
}

TEST(InsertMissing, TableThatIsTooSmallDropsRows)
{
    Flags mask = {0, -1, 0};
    auto out = column({70});
    M_InsertMissing(column({1, 2}), 2, 1, mask, 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({1.0}));
}

TEST(InsertMissing, FlatForms)
{
    Guarded<double> data = {1, 2, 10, 20};
    Flags mask = {0, 1, 0};
    Guarded<double> out(RandomData(460).leftovers(6));
    Cpp_M_InsertMissingDbl(data, 2, 2, mask, 1, out);
    EXPECT_THAT(out.values(), SameBits({1.0, M, 2.0, 10.0, M, 20.0}));
    Guarded<int> ints = {1, 2, 10, 20};
    Guarded<int> intOut(RandomData(461).intLeftovers(6));
    Cpp_M_InsertMissingLng(ints, 2, 2, mask, 1, intOut);
    EXPECT_THAT(intOut.values(), ElementsAre(1, missingInt, 2, 10, missingInt, 20));
    EXPECT_TRUE(data.untouched() && ints.untouched() && mask.untouched());
}

// ---- stacked without missing cells ----------------------------------------------------------------------------------

TEST(MatToVect, StacksColumnByColumn)
{
    auto counts = column({0, 0, 0, 0});
    double emptyCols = 0.0;
    auto out = table(12, 1, std::vector<double>(12, 77.0));
    MatToVect_NoMissing(byRows({{1, M, 5, M}, {M, M, -inf, notANumber}, {3, M, 7, belowMissing}}), 3, 4, counts,
                        &emptyCols, out);
    EXPECT_THAT(cellsOf(out),
                SameBits({1.0, 3.0, 5.0, -inf, 7.0, notANumber, belowMissing, 77.0, 77.0, 77.0, 77.0, 77.0}));
    EXPECT_THAT(cellsOf(counts), SameBits({2.0, 0.0, 3.0, 2.0}));
    EXPECT_EQ(emptyCols, 1.0);
}

TEST(MatToVect, AddsToWhatItIsGiven)
{
    // The second column is empty and yet does not count, since 5 stood there; the third has two cells and counts.
    auto counts = column({0.1, 5, -2});
    double emptyCols = 10.0;
    auto out = filled(9, 1, 77.0);
    MatToVect_NoMissing(byRows({{1, M, 3}, {1, M, 3}, {1, M, M}}), 3, 3, counts, &emptyCols, out);
    EXPECT_THAT(cellsOf(counts), SameBits({0.1 + 1.0 + 1.0 + 1.0, 5.0, 0.0}));
    EXPECT_EQ(emptyCols, 11.0);
}

TEST(MatToVect, GrowsByOneForEachCell)
{
    // In the large numbers a step of 1 is lost each time, and three steps at once would not be.
    auto counts = column({9007199254740992.0});
    double emptyCols = 0.0;
    auto out = filled(3, 1, 77.0);
    MatToVect_NoMissing(column({1, 2, 3}), 3, 1, counts, &emptyCols, out);
    EXPECT_THAT(cellsOf(counts), SameBits({9007199254740992.0}));
}

TEST(MatToVect, WithoutRowsEveryColumnIsEmpty)
{
    auto counts = column({0, 1, 0});
    double emptyCols = 0.0;
    auto out = column({77});
    MatToVect_NoMissing(byRows({{1, 2, 3}}), 0, 3, counts, &emptyCols, out);
    EXPECT_EQ(emptyCols, 2.0);
    MatToVect_NoMissing(byRows({{1, 2, 3}}), 1, 0, counts, &emptyCols, out);
    EXPECT_EQ(emptyCols, 2.0);
    EXPECT_THAT(cellsOf(out), SameBits({77.0}));
    EXPECT_THAT(cellsOf(counts), SameBits({0.0, 1.0, 0.0}));
}

TEST(MatToVect, CellsOutsideAreMinusOneAndResultsOutsideAreDropped)
{
    auto counts = column({0}); // the second column has no count: it reads as -1.0, which is not 0
    double emptyCols = 0.0;
    auto out = filled(3, 1, 77.0);
    MatToVect_NoMissing(column({4, M}), 2, 2, counts, &emptyCols, out);
    EXPECT_THAT(cellsOf(out), SameBits({4.0, -1.0, -1.0}));
    EXPECT_THAT(cellsOf(counts), SameBits({1.0}));
    EXPECT_EQ(emptyCols, 0.0);
    auto small = filled(1, 1, 77.0);
    MatToVect_NoMissing(column({4, 5}), 2, 1, counts, &emptyCols, small);
    EXPECT_THAT(cellsOf(small), SameBits({4.0}));
}

TEST(MatToVect, FlatFormKeepsTheCallersCounts)
{
    Guarded<double> data = {M, 1, M, M, 5, 6}; // 2 by 3
    Guarded<double> counts = {0, 0, 0};
    Guarded<double> emptyCols = {4.0};
    Guarded<double> out = {71, 72, 73, 74}; // the present cells and one more
    Cpp_MatToVect_NoMissing(data, 2, 3, counts, emptyCols, out);
    EXPECT_THAT(out.values(), SameBits({1.0, 5.0, 6.0, 74.0}));
    EXPECT_THAT(emptyCols.values(), SameBits({5.0}));
    EXPECT_TRUE(counts.untouched() && data.untouched());
    // The private count starts from the caller's.
    Guarded<double> started = {0, 1, 0};
    Cpp_MatToVect_NoMissing(data, 2, 3, started, emptyCols, out);
    EXPECT_THAT(emptyCols.values(), SameBits({5.0}));
}

} // namespace
} // namespace vecmat::test
