#include "qualitative/labels.h"

#include "CompanionRuntime/CompanionRuntime.h"
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/random_data.h"
#include "support/strings.h"
#include "support/tables.h"

namespace vecmat::test {
namespace {

using Texts = std::vector<std::wstring>;

const std::wstring longText(5000, L'x');

Texts madeUnique(const Texts& labels)
{
    const int n = static_cast<int>(labels.size());
    const auto table = stringColumn(labels);
    V_ReplaceDoubles(table, n);
    BstrArray flat(labels);
    VB_V_ReplaceDoubles(flat, n);
    EXPECT_EQ(flat.countNew(), labels.size()) << "every place gets a new string";
    EXPECT_EQ(flat.texts(), cellsOf(table));
    return cellsOf(table);
}

TEST(ReplaceDoubles, TheFirstStaysAndTheOthersAreCounted)
{
    EXPECT_EQ(madeUnique({L"a", L"a", L"a"}), (Texts{L"a", L"a2", L"a3"}));
    EXPECT_EQ(madeUnique({L"a", L"b", L"a", L"b", L"a"}), (Texts{L"a", L"b", L"a2", L"b2", L"a3"}));
    EXPECT_EQ(madeUnique({L"a", L"A", L"b"}), (Texts{L"a", L"A", L"b"})) << "nothing to do";
    EXPECT_EQ(madeUnique(Texts(12, L"a")).back(), L"a12");
}

TEST(ReplaceDoubles, NumbersOfLaterLabelsArePassedOver)
{
    EXPECT_EQ(madeUnique({L"a", L"a", L"a2"}), (Texts{L"a", L"a3", L"a2"}));
    EXPECT_EQ(madeUnique({L"a", L"a", L"a", L"a2", L"a3"}), (Texts{L"a", L"a4", L"a5", L"a2", L"a3"}));
    EXPECT_EQ(madeUnique({L"a", L"a", L"a2", L"a"}), (Texts{L"a", L"a3", L"a2", L"a4"}))
        << "2 is still skipped, although a 2 lies above it by then";
}

TEST(ReplaceDoubles, EarlierLabelsAreNotConsulted)
{
    EXPECT_EQ(madeUnique({L"a2", L"a", L"a"}), (Texts{L"a2", L"a", L"a2"})) << "a repeat again, and it stays";
    EXPECT_EQ(madeUnique({L"a", L"a2", L"a"}), (Texts{L"a", L"a2", L"a22"})) << "found when its turn comes";
}

TEST(ReplaceDoubles, EmptyAndNumericLabels)
{
    EXPECT_EQ(madeUnique({L"", L"", L""}), (Texts{L"", L"2", L"3"}));
    EXPECT_EQ(madeUnique({L"1", L"1"}), (Texts{L"1", L"12"}));
    EXPECT_EQ(madeUnique({L"50%s", L"50%s", L"%i", L"%i"}), (Texts{L"50%s", L"50%s2", L"%i", L"%i2"}));
    EXPECT_EQ(madeUnique({L"\u00e9\u4e00", L"\u00e9\u4e00"}), (Texts{L"\u00e9\u4e00", L"\u00e9\u4e002"}));
}

TEST(ReplaceDoubles, LabelsOfAnyLength)
{
    EXPECT_EQ(madeUnique({longText, longText}), (Texts{longText, longText + L"2"}));
}

TEST(ReplaceDoubles, OneLabelOrNone)
{
    EXPECT_EQ(madeUnique({}), Texts());
    EXPECT_EQ(madeUnique({L"a"}), Texts{L"a"});
    const auto table = stringColumn({L"a", L"a"});
    for (const int n : {1, 0, -5})
        V_ReplaceDoubles(table, n);
    EXPECT_EQ(cellsOf(table), (Texts{L"a", L"a"}));
    BstrArray flat(Texts{L"a"});
    flat.setNull(0);
    VB_V_ReplaceDoubles(flat, 1);
    EXPECT_EQ(flat.text(0), L"") << "a null becomes an empty string";
}

TEST(ReplaceDoubles, OnlyTheFirstCells)
{
    const auto table = stringsByColumns({{L"a", L"a"}, {L"a", L"a2"}});
    V_ReplaceDoubles(table, 3);
    EXPECT_EQ(cellsOf(table), (Texts{L"a", L"a2", L"a3", L"a2"})) << "in linear order; the fourth is not read";
    const auto shorter = stringColumn({L"", L"b"});
    V_ReplaceDoubles(shorter, 4);
    EXPECT_EQ(cellsOf(shorter), (Texts{L"", L"b"})) << "the empty strings beyond are repeats that are not written";
}

/// Label by label, each against all that follow.
Texts numberedByTheWalk(Texts labels)
{
    for (std::size_t i = 0; i < labels.size(); ++i) {
        int counter = 1;
        for (std::size_t j = i + 1; j < labels.size(); ++j) {
            if (labels[j] != labels[i])
                continue;
            std::wstring text;
            bool taken = true;
            while (taken) {
                ++counter;
                text = labels[j] + std::to_wstring(counter);
                taken = false;
                for (std::size_t k = j + 1; k < labels.size(); ++k)
                    taken = taken || labels[k] == text;
            }
            labels[j] = text;
        }
    }
    return labels;
}

TEST(ReplaceDoubles, IsThePlainWalk)
{
    for (std::uint64_t seed = 1; seed <= 1000; ++seed) {
        RandomData random(seed);
        SCOPED_TRACE(random);
        Texts labels;
        for (int n = random.integer(0, 12); n > 0; --n)
            labels.push_back(std::wstring(1, random.chance(0.7) ? L'a' : L'b') +
                             (random.chance(0.5) ? L"" : std::to_wstring(random.integer(2, 4))));
        EXPECT_EQ(madeUnique(labels), numberedByTheWalk(labels));
    }
}

TEST(ReplaceDoubles, OfManyLabelsIsThePlainWalk)
{
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        Texts labels(static_cast<std::size_t>(data.integer(0, 90)));
        for (std::wstring& label : labels) {
            label = data.chance(0.2) ? L"" : std::wstring(1, data.chance(0.6) ? L'a' : L'b');
            for (int digits = data.integer(0, 3); digits > 0; --digits)
                label += static_cast<wchar_t>(L'1' + data.integer(1, 2));
        }
        ASSERT_EQ(madeUnique(labels), numberedByTheWalk(labels));
    }
}

// ---- joined rows ----------------------------------------------------------------------------------------------------

Texts joined(int rows, int cols, const Texts& cells, const std::wstring& separator)
{
    const auto table = stringTable(rows, cols, cells);
    const auto out = stringColumn(Texts(static_cast<std::size_t>(rows), L"old"));
    M_MergeStringsByRow(table, rows, cols, separator, out);
    EXPECT_EQ(cellsOf(table), cells);
    BstrArray flat(cells);
    BstrArray flatOut(Texts(static_cast<std::size_t>(rows), L"old"));
    Cpp_M_MergeStringsByRow(flat, rows, cols, CallersText(separator).get(), flatOut);
    EXPECT_EQ(flat.countNew(), 0u);
    EXPECT_EQ(flatOut.countNew(), static_cast<std::size_t>(rows));
    EXPECT_EQ(flatOut.texts(), cellsOf(out));
    return cellsOf(out);
}

TEST(MergeStringsByRow, CellsWithTheSeparatorBetween)
{
    EXPECT_EQ(joined(2, 3, {L"a", L"d", L"b", L"e", L"c", L"f"}, L"-"), (Texts{L"a-b-c", L"d-e-f"}));
    EXPECT_EQ(joined(1, 2, {L"a", L"b"}, L", "), Texts{L"a, b"});
    EXPECT_EQ(joined(1, 2, {L"a", L"b"}, L""), Texts{L"ab"});
    EXPECT_EQ(joined(2, 1, {L"a", L"b"}, L"-"), (Texts{L"a", L"b"})) << "one column has nothing between";
}

TEST(MergeStringsByRow, EmptyCellsAreNotSkipped)
{
    EXPECT_EQ(joined(1, 2, {L"a", L""}, L"-"), Texts{L"a-"});
    EXPECT_EQ(joined(1, 3, {L"", L"", L""}, L"-"), Texts{L"--"});
    EXPECT_EQ(joined(1, 3, {L"a", L"", L"c"}, L"-"), Texts{L"a--c"});
}

TEST(MergeStringsByRow, NoRowsOrNoColumns)
{
    EXPECT_EQ(joined(0, 2, {}, L"-"), Texts());
    EXPECT_EQ(joined(2, 0, {}, L"-"), (Texts{L"", L""}));
}

TEST(MergeStringsByRow, NoArraysWhereThereAreNoCells)
{
    VB_V_ReplaceDoubles(nullptr, 0);
    Cpp_M_MergeStringsByRow(nullptr, 0, 2, CallersText(L"-").get(), nullptr);
    BstrArray out(1);
    Cpp_M_MergeStringsByRow(nullptr, 1, 0, CallersText(L"-").get(), out);
    EXPECT_EQ(out.countNew(), 1u);
}

TEST(MergeStringsByRow, TablesOfOtherSizes)
{
    const auto table = stringsByColumns({{L"a", L"b", L"c"}, {L"d", L"e", L"f"}});
    const auto out = stringColumn({L"old", L"old", L"old"});
    M_MergeStringsByRow(table, 2, 2, L"-", out);
    EXPECT_EQ(cellsOf(out), (Texts{L"a-d", L"b-e", L"old"}));
    M_MergeStringsByRow(table, 1, 4, L"-", out);
    EXPECT_EQ(out->X[0], L"a-d--") << "cells beyond the table are empty";
    const auto shorter = stringColumn({L"old"});
    M_MergeStringsByRow(table, 3, 1, L"-", shorter);
    EXPECT_EQ(cellsOf(shorter), Texts{L"a"});
}

TEST(MergeStringsByRow, LongTextsAndASeparatorWithoutCharacters)
{
    EXPECT_EQ(joined(1, 2, {longText, longText}, longText), Texts{longText + longText + longText});
}

/// A caller's places for strings: frees what the library has put into them, and allocates nothing.
struct Places
{
    wchar_t* const before;
    wchar_t* cells[2] = {before, before};
    ~Places()
    {
        for (wchar_t* text : cells)
            if (text != before)
                SysFreeString2(text);
    }
};

TEST(LabelsFailure, PassesOutAndLeavesNothingBehind)
{
    BstrArray table({longText, longText, L"b", longText});
    const CallersText separator(longText);
    EXPECT_GT(forEachFailingAllocation([&] {
                  Places out{nullptr};
                  Cpp_M_MergeStringsByRow(table, 2, 2, separator.get(), out.cells);
              }),
              0);
    EXPECT_EQ(table.countNew(), 0u);
    const CallersText label(longText);
    EXPECT_GT(forEachFailingAllocation([&] {
                  Places labels{label.get()};
                  VB_V_ReplaceDoubles(labels.cells, 2);
              }),
              0);
}

} // namespace
} // namespace vecmat::test
