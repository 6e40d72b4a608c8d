// The flat forms of the sorts: what is copied back, what stays, and counts of 0.
#include "sorting/sort.h"

#include "sorting/sort_reference.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/strings.h"

#include <gtest/gtest.h>

using namespace vecmat::test;

namespace {

using Texts = std::vector<std::wstring>;

TEST(VBSortQVector, sortsTheRange)
{
    Guarded<double> x({5, 3, M, 4, 1});
    EXPECT_EQ(VB_SortQVectorDbl(x, 5, 2, 5, 0), 0);
    EXPECT_THAT(x.values(), SameBits({5, M, 1, 3, 4}));
    EXPECT_EQ(VB_SortQVectorDbl(x, 5, 1, 5, -1), 0);
    EXPECT_THAT(x.values(), SameBits({5, 4, 3, 1, M}));
    Guarded<int> k({5, 3, -2, 4, 1});
    EXPECT_EQ(VB_SortQVectorLng(k, 5, 2, 5, 0), 0);
    EXPECT_EQ(k.values(), (std::vector<int>{5, -2, 1, 3, 4}));
}

TEST(VBSortQVector, ofStringsIsDescendingForAnyOptionButZero)
{
    for (const short descending : {short{0}, short{1}, short{-1}}) {
        BstrArray x({L"b", L"c", L"", L"a", L"0"});
        EXPECT_EQ(VB_SortQVectorStr(x, 5, 1, 4, descending), 0);
        EXPECT_EQ(x.texts(),
                  descending == 0 ? (Texts{L"", L"a", L"b", L"c", L"0"}) : (Texts{L"c", L"b", L"a", L"", L"0"}));
        EXPECT_EQ(x.countNew(), 5u);
    }
}

TEST(VBSortQVector, ofNumbersIsDescendingOnlyForMinusOne)
{
    Guarded<double> x({2, 1, 3});
    VB_SortQVectorDbl(x, 3, 1, 3, 1);
    EXPECT_THAT(x.values(), SameBits({1, 2, 3}));
    Guarded<int> k({2, 1, 3});
    VB_SortQVectorLng(k, 3, 1, 3, 1);
    EXPECT_EQ(k.values(), (std::vector<int>{1, 2, 3}));
}

TEST(VBSortQVector, oneElementStaysAndNoneIsNoWork)
{
    Guarded<double> x({7});
    VB_SortQVectorDbl(x, 1, 1, 1, 0);
    VB_SortQVectorDbl(x, 0, 1, 0, 0);
    EXPECT_TRUE(x.untouched());
    Guarded<int> k({7});
    VB_SortQVectorLng(k, 1, 1, 1, -1);
    VB_SortQVectorLng(k, 0, 1, 0, -1);
    EXPECT_TRUE(k.untouched());
    BstrArray texts({L"x"});
    VB_SortQVectorStr(texts, 0, 1, 0, 0);
    EXPECT_EQ(texts.countNew(), 0u);
    VB_SortQVectorStr(texts, 1, 1, 1, 0);
    EXPECT_EQ(texts.texts(), (Texts{L"x"}));
}

TEST(VBSortQMatrixCol, sortsRowsByAColumn)
{
    Guarded<double> table({2, 1, 2, 1, 2, 3});
    EXPECT_EQ(VB_SortQMatrixCol(table, 3, 2, 1, 1, 3, -1), 0);
    EXPECT_THAT(table.values(), SameBits({2, 2, 1, 1, 3, 2}));
    BstrArray texts({L"x", L"y", L"z", L"b", L"", L"a"});
    EXPECT_EQ(VB_SortQMatrixColStr(texts, 3, 2, 2, 1, 3, 0), 0);
    EXPECT_EQ(texts.texts(), (Texts{L"y", L"z", L"x", L"", L"a", L"b"}));
}

// Rows (1, 2), (1, 1), (0, 3), each in its column.
TEST(VBSortMatrixSeqQ, theFlagChoosesTheMajorKey)
{
    Guarded<double> down({1, 1, 0, 2, 1, 3});
    EXPECT_EQ(VB_SortMatrixSeqQDbl(down, 3, 2, -1), 0);
    EXPECT_THAT(down.values(), SameBits({0, 1, 1, 3, 1, 2}));
    Guarded<double> up({1, 1, 0, 2, 1, 3});
    EXPECT_EQ(VB_SortMatrixSeqQDbl(up, 3, 2, 0), 0);
    EXPECT_THAT(up.values(), SameBits({1, 1, 0, 1, 2, 3}));
    Guarded<int> ints({1, 1, 0, 2, 1, 3});
    EXPECT_EQ(VB_SortMatrixSeqQLng(ints, 3, 2, -1), 0);
    EXPECT_EQ(ints.values(), (std::vector<int>{0, 1, 1, 3, 1, 2}));
}

TEST(VBSortMatrixSeqQP1toP2, sortsTheCallersArrayBySomeColumns)
{
    Guarded<double> table({9, 8, 7, 1, 1, 0, 2, 1, 3});
    EXPECT_EQ(VB_SortMatrixSeqQP1toP2Dbl(table, 3, 3, 2, 3, -1), 0);
    EXPECT_THAT(table.values(), SameBits({7, 8, 9, 0, 1, 1, 3, 1, 2}));
    Guarded<int> ints({9, 8, 7, 1, 1, 0, 2, 1, 3});
    EXPECT_EQ(VB_SortMatrixSeqQP1toP2Lng(ints, 3, 3, 2, 3, 0), 0);
    EXPECT_EQ(ints.values(), (std::vector<int>{8, 9, 7, 1, 1, 0, 1, 2, 3}));
}

TEST(VBSortQ, rearrangesDataAndCompanionAndWritesTheKeysOnRequest)
{
    for (const short writeKeys : {short{0}, short{1}, short{-1}}) {
        const bool written = writeKeys == -1;
        Guarded<double> data({1, 2, 3, 4, 5, 6});
        Guarded<double> key({3, M, 2});
        Guarded<double> companion({7, 8, 9});
        EXPECT_EQ(VB_SortQDbl(data, 3, 2, 1, 3, key, companion, 1, 0, writeKeys), 0);
        EXPECT_THAT(data.values(), SameBits({2, 3, 1, 5, 6, 4}));
        EXPECT_THAT(companion.values(), SameBits({8, 9, 7}));
        EXPECT_THAT(key.values(), written ? SameBits({M, 2, 3}) : SameBits({3, M, 2}));

        Guarded<double> byInts({1, 2, 3});
        Guarded<int> intKey({3, 1, 2});
        Guarded<double> companionOfInts({7, 8, 9});
        EXPECT_EQ(VB_SortQDbl2(byInts, 3, 1, 1, 3, intKey, companionOfInts, 1, -1, writeKeys), 0);
        EXPECT_THAT(byInts.values(), SameBits({1, 3, 2}));
        EXPECT_THAT(companionOfInts.values(), SameBits({7, 9, 8}));
        EXPECT_EQ(intKey.values(), (written ? std::vector<int>{3, 2, 1} : std::vector<int>{3, 1, 2}));

        Guarded<int> ints({1, 2, 3});
        Guarded<int> keyOfInts({3, 1, 2});
        Guarded<int> intCompanion({7, 8, 9});
        EXPECT_EQ(VB_SortQLng(ints, 3, 1, 1, 3, keyOfInts, intCompanion, 1, 0, writeKeys), 0);
        EXPECT_EQ(ints.values(), (std::vector<int>{2, 3, 1}));
        EXPECT_EQ(intCompanion.values(), (std::vector<int>{8, 9, 7}));
        EXPECT_EQ(keyOfInts.values(), (written ? std::vector<int>{1, 2, 3} : std::vector<int>{3, 1, 2}));

        BstrArray texts({L"x", L"y", L"z"});
        Guarded<double> keyOfTexts({3, 1, 2});
        Guarded<double> companionOfTexts({7, 8, 9});
        EXPECT_EQ(VB_SortQStr(texts, 3, 1, 1, 3, keyOfTexts, companionOfTexts, 1, 0, writeKeys), 0);
        EXPECT_EQ(texts.texts(), (Texts{L"y", L"z", L"x"}));
        EXPECT_THAT(companionOfTexts.values(), SameBits({8, 9, 7}));
        EXPECT_THAT(keyOfTexts.values(), written ? SameBits({1, 2, 3}) : SameBits({3, 1, 2}));
    }
}

TEST(VBSortQ, onlyMinusOneIsDescending)
{
    Guarded<double> data({1, 2});
    Guarded<double> key({2, 1});
    Guarded<double> companion({7, 8});
    VB_SortQDbl(data, 2, 1, 1, 2, key, companion, 1, 1, 0);
    EXPECT_THAT(data.values(), SameBits({2, 1}));
    VB_SortQDbl(data, 2, 1, 1, 2, key, companion, 1, -1, 0);
    EXPECT_THAT(data.values(), SameBits({2, 1}));
    EXPECT_THAT(companion.values(), SameBits({8, 7}));
}

TEST(VBSortQ, rowsOutsideTheRangeStay)
{
    Guarded<double> data({1, 2, 3, 4});
    Guarded<double> key({9, 3, 2, 0});
    Guarded<double> companion({5, 6, 7, 8});
    VB_SortQDbl(data, 4, 1, 2, 3, key, companion, 1, 0, -1);
    EXPECT_THAT(data.values(), SameBits({1, 3, 2, 4}));
    EXPECT_THAT(key.values(), SameBits({9, 2, 3, 0}));
    EXPECT_THAT(companion.values(), SameBits({5, 7, 6, 8}));
}

TEST(VBSortQ, noColumnsCountAsOneInDataAndCompanion)
{
    Guarded<double> data({1, 2});
    Guarded<double> key({2, 1});
    Guarded<double> companion({7, 8});
    VB_SortQDbl(data, 2, 0, 1, 2, key, companion, 0, 0, 0);
    EXPECT_THAT(data.values(), SameBits({2, 1}));
    EXPECT_THAT(companion.values(), SameBits({8, 7}));

    Guarded<double> byInts({1, 2});
    Guarded<int> intKey({2, 1});
    Guarded<double> companionOfInts({7, 8});
    VB_SortQDbl2(byInts, 2, 0, 1, 2, intKey, companionOfInts, 0, 0, 0);
    EXPECT_THAT(byInts.values(), SameBits({2, 1}));
    EXPECT_THAT(companionOfInts.values(), SameBits({8, 7}));

    Guarded<int> ints({1, 2});
    Guarded<int> intCompanion({7, 8});
    VB_SortQLng(ints, 2, 0, 1, 2, intKey, intCompanion, 0, 0, 0);
    EXPECT_EQ(ints.values(), (std::vector<int>{2, 1}));
    EXPECT_EQ(intCompanion.values(), (std::vector<int>{8, 7}));

    Guarded<short> flags({0, -1});
    Guarded<double> companionOfFlags({7, 8});
    VB_SortQBool(flags, 2, 0, 1, 2, key, companionOfFlags, 0, 0, 0);
    EXPECT_EQ(flags.values(), (std::vector<short>{-1, 0}));
    EXPECT_THAT(companionOfFlags.values(), SameBits({8, 7}));

    BstrArray texts({L"x", L"y"});
    Guarded<double> companionOfTexts({7, 8});
    VB_SortQStr(texts, 2, 0, 1, 2, key, companionOfTexts, 0, 0, 0);
    EXPECT_EQ(texts.texts(), (Texts{L"y", L"x"}));
    EXPECT_THAT(companionOfTexts.values(), SameBits({8, 7}));

    ArrayOfColumns numbers = numberColumns(2, 1, {1, 2});
    Guarded<double> companionOfNumbers({7, 8});
    VB_SortQDblSPV(numbers, 2, 0, 1, 2, key, companionOfNumbers, 0, 0, 0);
    EXPECT_THAT(numbers.numbers(), SameBits({2, 1}));
    EXPECT_THAT(companionOfNumbers.values(), SameBits({8, 7}));

    ArrayOfColumns strings = vecmat::test::stringColumns(2, 1, {L"x", L"y"});
    Guarded<double> companionOfStrings({7, 8});
    VB_SortQStrSPV(strings, 2, 0, 1, 2, key, companionOfStrings, 0, 0, 0);
    EXPECT_EQ(strings.strings(0), (Texts{L"y", L"x"}));
    EXPECT_THAT(companionOfStrings.values(), SameBits({8, 7}));
    EXPECT_TRUE(key.untouched());
}

TEST(VBSortQBool, trueComesBackAsMinusOneAlsoOutsideTheRange)
{
    Guarded<short> data({1, 2, 0, -1});
    Guarded<double> key({0, 3, 2, 1});
    Guarded<double> companion({1, 2, 3, 4});
    EXPECT_EQ(VB_SortQBool(data, 4, 1, 2, 4, key, companion, 1, 0, -1), 0);
    EXPECT_EQ(data.values(), (std::vector<short>{-1, -1, 0, -1}));
    EXPECT_THAT(key.values(), SameBits({0, 1, 2, 3}));
    EXPECT_THAT(companion.values(), SameBits({1, 4, 3, 2}));
}

TEST(VBSortQSPV, givesWhatTheFlatFormGives)
{
    const int n = 60;
    const int cols = 3;
    RandomData random(77);
    SCOPED_TRACE(random);
    const std::vector<double> keys = tiedKeys(random, 60);
    const std::vector<double> cells = countedCells(180);
    const Texts texts = countedTexts(180);
    const std::vector<double> companionCells = countedCells(120);
    for (const SortCase& sort : sortCases(n)) {
        Guarded<double> flat(cells);
        Guarded<double> flatKey(keys);
        Guarded<double> flatCompanion(companionCells);
        VB_SortQDbl(flat, n, cols, sort.first, sort.last, flatKey, flatCompanion, 2, sort.descending, -1);
        EXPECT_THAT(flat.values(), SameBits(withRows(cells, sortedSources(keys, sort))));

        ArrayOfColumns columns = numberColumns(n, cols, cells);
        Guarded<double> key(keys);
        Guarded<double> companion(companionCells);
        EXPECT_EQ(VB_SortQDblSPV(columns, n, cols, sort.first, sort.last, key, companion, 2, sort.descending, -1), 0);
        EXPECT_THAT(columns.numbers(), SameBits(flat.values()));
        EXPECT_THAT(key.values(), SameBits(flatKey.values()));
        EXPECT_THAT(companion.values(), SameBits(flatCompanion.values()));

        BstrArray flatTexts(texts);
        Guarded<double> keyOfTexts(keys);
        Guarded<double> companionOfTexts(companionCells);
        VB_SortQStr(flatTexts, n, cols, sort.first, sort.last, keyOfTexts, companionOfTexts, 2, sort.descending, -1);
        EXPECT_EQ(flatTexts.texts(), withRows(texts, sortedSources(keys, sort)));
        EXPECT_THAT(keyOfTexts.values(), SameBits(flatKey.values()));

        ArrayOfColumns strings = vecmat::test::stringColumns(n, cols, texts);
        Guarded<double> keyOfStrings(keys);
        Guarded<double> companionOfStrings(companionCells);
        EXPECT_EQ(VB_SortQStrSPV(strings, n, cols, sort.first, sort.last, keyOfStrings, companionOfStrings, 2,
                                 sort.descending, 0),
                  0);
        Texts all;
        for (std::size_t j = 0; j < 3; ++j)
            for (const std::wstring& text : strings.strings(j))
                all.push_back(text);
        EXPECT_EQ(all, flatTexts.texts());
        EXPECT_TRUE(keyOfStrings.untouched());
        EXPECT_THAT(companionOfStrings.values(), SameBits(flatCompanion.values()));
    }
}

TEST(VBSortQByColDbl, movesColumnsAndTakesNoRowsAsOne)
{
    Guarded<double> data({1, 2, 3, 4, 5, 6});
    Guarded<double> key({3, 1, 2});
    Guarded<double> companion({7, 8, 9});
    EXPECT_EQ(VB_SortQByColDbl(data, 2, 3, 1, 3, key, companion, 1, 0, -1), 0);
    EXPECT_THAT(data.values(), SameBits({3, 4, 5, 6, 1, 2}));
    EXPECT_THAT(key.values(), SameBits({1, 2, 3}));
    EXPECT_THAT(companion.values(), SameBits({8, 9, 7}));

    Guarded<double> row({1, 2, 3});
    Guarded<double> keyOfRow({3, 1, 2});
    Guarded<double> companionRow({7, 8, 9});
    EXPECT_EQ(VB_SortQByColDbl(row, 0, 3, 1, 3, keyOfRow, companionRow, 0, -1, 1), 0);
    EXPECT_THAT(row.values(), SameBits({1, 3, 2}));
    EXPECT_THAT(companionRow.values(), SameBits({7, 9, 8}));
    EXPECT_TRUE(keyOfRow.untouched());
}

// ---- by an indicator ------------------------------------------------------------------------------------------------

TEST(VBSortDataBy01, groupsKeepTheirOrderAndTheKeysStayAsTheyWere)
{
    Guarded<double> data({1, 2, 3, 4, 5, 6, 7, 8});
    Guarded<double> key({1, 0, 1, 0});
    EXPECT_EQ(VB_SortDataBy01(data, 4, 2, key), 0);
    EXPECT_THAT(data.values(), SameBits({2, 4, 1, 3, 6, 8, 5, 7}));
    Guarded<short> flags({5, 0, 0, -1});
    EXPECT_EQ(VB_SortDataBy01Bool(flags, 4, 1, key), 0);
    EXPECT_EQ(flags.values(), (std::vector<short>{0, -1, -1, 0}));
    ArrayOfColumns columns = numberColumns(4, 2, {1, 2, 3, 4, 5, 6, 7, 8});
    EXPECT_EQ(VB_SortDataBy01SPV(columns, 4, 2, key), 0);
    EXPECT_THAT(columns.numbers(), SameBits(data.values()));
    EXPECT_TRUE(key.untouched());
}

TEST(VBSortDataBy01, noColumnsCountAsOne)
{
    Guarded<double> key({1, 0});
    Guarded<double> data({1, 2});
    VB_SortDataBy01(data, 2, 0, key);
    EXPECT_THAT(data.values(), SameBits({2, 1}));
    Guarded<short> flags({0, -1});
    VB_SortDataBy01Bool(flags, 2, 0, key);
    EXPECT_EQ(flags.values(), (std::vector<short>{-1, 0}));
    ArrayOfColumns columns = numberColumns(2, 1, {1, 2});
    VB_SortDataBy01SPV(columns, 2, 0, key);
    EXPECT_THAT(columns.numbers(), SameBits({2, 1}));
}

TEST(VBSortDataBy01, oneRowStaysAndNoRowIsNoWork)
{
    Guarded<double> data({5});
    Guarded<double> key({1});
    VB_SortDataBy01(data, 1, 1, key);
    VB_SortDataBy01(data, 0, 1, key);
    EXPECT_TRUE(data.untouched());
}

/// A caller's references to strings of its own.
struct References
{
    std::vector<CallersText> texts;
    std::vector<wchar_t*> slots;

    explicit References(const Texts& contents)
    {
        for (const std::wstring& content : contents)
            texts.emplace_back(content);
        slots.assign(texts.begin(), texts.end());
    }
};

TEST(VBSortDataBy01Str, movesReferencesAndCopiesNoString)
{
    const References given({L"a", L"b", L"c", L"d", L"", L"f"});
    std::vector<wchar_t*> slots = given.slots;
    slots[3] = nullptr;
    Guarded<wchar_t*> data(slots);
    Guarded<double> key({1, 0, M});
    EXPECT_EQ(VB_SortDataBy01Str(data, 3, 2, key), 0);
    EXPECT_EQ(data.values(), (std::vector<wchar_t*>{slots[2], slots[1], slots[0], slots[5], slots[4], nullptr}));
    EXPECT_TRUE(key.untouched());
    VB_SortDataBy01Str(data, 3, 0, key);
    EXPECT_EQ(data.values(), (std::vector<wchar_t*>{slots[0], slots[1], slots[2], slots[5], slots[4], nullptr}));
}

TEST(VBSortDataBy01Str, groupsKeepTheirOrder)
{
    RandomData random(5);
    SCOPED_TRACE(random);
    const std::vector<double> keys = tiedKeys(random, 200);
    const References given(countedTexts(400));
    Guarded<wchar_t*> data(given.slots);
    Guarded<double> key(keys);
    VB_SortDataBy01Str(data, 200, 2, key);
    EXPECT_EQ(data.values(), withRows(given.slots, sortedSources(keys, {1, 200, 0})));
    EXPECT_TRUE(key.untouched());
}

TEST(VBSortDataBy01Str, oneRowStaysAndNoRowIsNoWork)
{
    const References given({L"x"});
    Guarded<wchar_t*> data(given.slots);
    Guarded<double> key({1});
    VB_SortDataBy01Str(data, 1, 1, key);
    VB_SortDataBy01Str(data, 0, 1, key);
    EXPECT_TRUE(data.untouched());
}

TEST(SortDataBy01, writesTheSortedKeysAndStringsWithoutColumnsAreOneColumn)
{
    auto data = stringColumn({L"x", L"y", L"z"});
    auto key = column({1, 0, 1});
    SortDataBy01(data.reference(), 3, 0, key.reference());
    EXPECT_EQ(cellsOf(data), (Texts{L"y", L"x", L"z"}));
    EXPECT_THAT(cellsOf(key), SameBits({0, 1, 1}));
}

} // namespace
