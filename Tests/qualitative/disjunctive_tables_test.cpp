#include "qualitative/disjunctive_tables.h"

#include "qualitative/summary_tables.h"

#include <algorithm>

namespace vecmat::test {

namespace {

/// The coded table, row by row, of one variable with the categories a, b, c and frequencies 2, 3, 5.
Doubles coded(const std::wstring& text, int coding, int keepBaseline)
{
    Owned<matrix> out;
    BuildDisjunctiveTable(stringColumn({text}), 1, 1, 3, intColumn({3}), stringsByRows({{L"a", L"b", L"c"}}),
                          byRows({{2, 3, 5}}), out, coding, keepBaseline);
    return cellsOf(out);
}

TEST(BuildDisjunctiveTable, Codings)
{
    EXPECT_THAT(coded(L"a", 0, 0), SameBits({1, 0, 0}));
    EXPECT_THAT(coded(L"a", 1, 0), SameBits({0, 0, 0}));
    EXPECT_THAT(coded(L"a", 2, 0), SameBits({0, -1, -1}));
    EXPECT_THAT(coded(L"a", 3, 0), SameBits({0, -3.0 / 2.0, -5.0 / 2.0}));
    for (int coding : {0, 1, 2, 3}) {
        EXPECT_THAT(coded(L"b", coding, 0), SameBits({0, 1, 0})) << coding;
        EXPECT_THAT(coded(L"c", coding, 0), SameBits({0, 0, 1})) << coding;
    }
}

TEST(BuildDisjunctiveTable, BaselineKept)
{
    EXPECT_THAT(coded(L"a", 2, 2), SameBits({1, -1, -1}));
    EXPECT_THAT(coded(L"a", 1, 2), SameBits({1, 0, 0}));
    EXPECT_THAT(coded(L"a", 3, 2), SameBits({1, -1.5, -2.5}));
    EXPECT_THAT(coded(L"a", 2, 1), SameBits({1, -1, -1})) << "the first variable";
    EXPECT_THAT(coded(L"a", 2, -1), SameBits({0, -1, -1})) << "only 1 and 2 keep it";
    EXPECT_THAT(coded(L"a", 0, 0), SameBits({1, 0, 0})) << "and without contrasts it is always there";
    EXPECT_THAT(coded(L"b", 2, 2), SameBits({0, 1, 0}));
}

TEST(BuildDisjunctiveTable, BaselineKeptInTheFirstVariableOnly)
{
    const auto data = stringsByRows({{L"a", L"x"}});
    const auto categories = stringsByRows({{L"a", L"b"}, {L"x", L"y"}});
    Owned<matrix> out;
    BuildDisjunctiveTable(data, 1, 2, 4, intColumn({2, 2}), categories, nullptr, out, 2, 1);
    EXPECT_THAT(cellsOf(out), SameBits({1, -1, 0, -1}));
    BuildDisjunctiveTable(data, 1, 2, 4, intColumn({2, 2}), categories, nullptr, out, 2, 2);
    EXPECT_THAT(cellsOf(out), SameBits({1, -1, 1, -1}));
    BuildDisjunctiveTable(data, 1, 2, 4, intColumn({2, 2}), categories, nullptr, out, 2, 0);
    EXPECT_THAT(cellsOf(out), SameBits({0, -1, 0, -1}));
    BuildDisjunctiveTable(data, 1, 2, 4, intColumn({2, 2}), categories, nullptr, out, 0, 0);
    EXPECT_THAT(cellsOf(out), SameBits({1, 0, 1, 0}));
}

TEST(BuildDisjunctiveTable, EmptyCellsAreMissingInEveryCoding)
{
    for (int coding : {0, 1, 2, 3, 4})
        for (int keep : {0, 1, 2})
            EXPECT_THAT(coded(L"", coding, keep), SameBits({M, M, M}));
    Owned<matrix> out;
    BuildDisjunctiveTable(stringsByRows({{L"", L"x"}, {L"a", L""}}), 2, 2, 3, intColumn({2, 1}),
                          stringsByRows({{L"a", L""}, {L"x", L""}}), nullptr, out, 0, 0);
    EXPECT_THAT(cellsOf(out), SameBits({M, 1, M, 0, 1, M})) << "also where an empty category is listed";
}

TEST(BuildDisjunctiveTable, UnknownTextsLeaveZeros)
{
    for (int coding : {0, 1, 2, 3})
        EXPECT_THAT(coded(L"?", coding, 2), SameBits({0, 0, 0}));
}

TEST(BuildDisjunctiveTable, OtherCodingsHaveNoContrasts)
{
    EXPECT_THAT(coded(L"a", 4, 0), SameBits({0, 0, 0}));
    EXPECT_THAT(coded(L"a", -1, 2), SameBits({1, 0, 0}));
    EXPECT_THAT(coded(L"b", 4, 0), SameBits({0, 1, 0}));
}

TEST(BuildDisjunctiveTable, FrequencyCodingSumsToZero)
{
    const Texts cells{L"a", L"b", L"b", L"c", L"a", L"c", L"c", L"c"};
    auto data = stringColumn(cells);
    const SummaryTables summary = summaryOf(data, 8, 1, unitWeights(8));
    Owned<matrix> out;
    BuildDisjunctiveTable(data, 8, 1, 3, summary.nCats, summary.categories, summary.catWeights, out, 3, 0);
    for (int j = 1; j <= 3; ++j) {
        double sum = 0.0;
        for (int i = 1; i <= 8; ++i)
            sum += out->vbget(i, j);
        EXPECT_THAT(sum, SameBits(0.0)) << j;
    }
}

TEST(BuildDisjunctiveTable, CategoryListedTwice)
{
    const auto build = [](const std::wstring& text, int coding, int keepBaseline) {
        Owned<matrix> out;
        BuildDisjunctiveTable(stringColumn({text}), 1, 1, 4, intColumn({4}), stringsByRows({{L"a", L"b", L"a", L"b"}}),
                              nullptr, out, coding, keepBaseline);
        return cellsOf(out);
    };
    EXPECT_THAT(build(L"b", 0, 0), SameBits({0, 1, 0, 1}));
    EXPECT_THAT(build(L"a", 0, 0), SameBits({1, 0, 1, 0}));
    EXPECT_THAT(build(L"a", 2, 0), SameBits({0, -1, 1, -1})) << "equality comes before the contrast";
    EXPECT_THAT(build(L"a", 2, 2), SameBits({1, -1, 1, -1}));
}

TEST(BuildDisjunctiveTable, KeepsALargerTableAndClearsItsHead)
{
    Owned<matrix> out = filled(2, 4, 77);
    BuildDisjunctiveTable(stringColumn({L"a"}), 1, 1, 3, intColumn({3}), stringsByRows({{L"a", L"b", L"c"}}), nullptr,
                          out, 0, 0);
    // Three cells of the block are cleared; then row 1 of the stride 2 takes 1, 0, 0.
    EXPECT_THAT(cellsOf(out), SameBits({1, 0, 0, 77, 0, 77, 77, 77}));
    out.reference()->vbset(1, 3, 77);
    BuildDisjunctiveTable(stringColumn({L"b"}), 1, 1, 3, intColumn({3}), stringsByRows({{L"a", L"b", L"c"}}), nullptr,
                          out, 0, 0);
    EXPECT_THAT(cellsOf(out), SameBits({0, 0, 1, 77, 77, 77, 77, 77})) << "what matches nothing is not written";
}

TEST(BuildDisjunctiveTable, ColumnsBeyondTheResultAreDropped)
{
    Owned<matrix> out;
    BuildDisjunctiveTable(stringsByRows({{L"c", L"x"}, {L"", L"y"}}), 2, 2, 2, intColumn({2000000000, 2}),
                          stringsByRows({{L"a", L"c"}, {L"x", L"y"}}), nullptr, out, 0, 0);
    EXPECT_THAT(cellsOf(out), SameBits({0, M, 1, M}));
}

TEST(BuildDisjunctiveTable, NothingToCode)
{
    Owned<matrix> out;
    BuildDisjunctiveTable(stringColumn({L"a"}), 0, 1, 2, intColumn({2}), stringsByRows({{L"a", L"b"}}), nullptr, out, 0,
                          0);
    EXPECT_EQ(out->nElems, 0u);
    BuildDisjunctiveTable(stringColumn({L"a"}), 1, 0, 2, intColumn({2}), stringsByRows({{L"a", L"b"}}), nullptr, out, 0,
                          0);
    EXPECT_THAT(cellsOf(out), SameBits({0, 0}));
}

/// The plain search over every place of every cell.
void plainBuild(Smatrix* data, int nRows, int nCols, int totalCats, matrixInt* nCats, Smatrix* categories, matrix* freq,
                matrix*& out, int coding, int keepBaseline)
{
    matrix::matCheck(out, nRows, totalCats, 0.0);
    int offset = 0;
    for (int j = 1; j <= nCols; ++j) {
        for (int i = 1; i <= nRows; ++i)
            for (int c = 1; c <= nCats->vbget(j, 1); ++c) {
                const std::wstring text = data->vbget(i, j);
                const bool allowed = c > 1 || coding == 0 || keepBaseline == 2 || (keepBaseline == 1 && j == 1);
                if (text.empty())
                    out->vbset(i, offset + c, M);
                else if (text == categories->vbget(j, c) && allowed)
                    out->vbset(i, offset + c, 1.0);
                else if (text == categories->vbget(j, 1) && c > 1) {
                    if (coding == 0 || coding == 1)
                        out->vbset(i, offset + c, 0.0);
                    if (coding == 2)
                        out->vbset(i, offset + c, -1.0);
                    if (coding == 3)
                        out->vbset(i, offset + c, -freq->vbget(j, c) / freq->vbget(j, 1));
                }
            }
        offset += nCats->vbget(j, 1);
    }
}

TEST(BuildDisjunctiveTable, IsTheWalkOverRandomTables)
{
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const int rows = data.integer(1, 8);
        const int cols = data.integer(1, 4);
        const int maxCats = data.integer(1, 5);
        const auto variables = static_cast<std::size_t>(cols);
        const auto places = variables * static_cast<std::size_t>(maxCats);
        const Texts pool{L"", L"a", L"b", L"c", L"d", L"e"};
        const auto draw = [&](std::size_t count) {
            Texts texts(count);
            for (std::wstring& text : texts)
                text = pool[static_cast<std::size_t>(data.integer(0, 5))];
            return texts;
        };
        const Texts cells = draw(static_cast<std::size_t>(rows) * variables);
        const Texts known = draw(places);
        const Ints counts = data.integers(variables, 0, maxCats + (data.chance(0.1) ? 1 : 0));
        const Doubles freq = data.wholes(places, 0, 3);
        int totalCats = 0;
        for (const int count : counts)
            totalCats += count;
        totalCats = std::max(0, totalCats + (data.chance(0.2) ? data.integer(-2, 2) : 0));
        const int coding = data.integer(-1, 4);
        const int keepBaseline = data.integer(-1, 3);
        const int outRows = rows + data.integer(0, 2);
        const int outCols = totalCats + data.integer(0, 2);
        const Doubles old = data.leftovers(static_cast<std::size_t>(outRows) * static_cast<std::size_t>(outCols));

        Owned<matrix> expected = table(outRows, outCols, old);
        Owned<matrix> actual = table(outRows, outCols, old);
        const auto strings = stringTable(rows, cols, cells);
        const auto categories = stringTable(cols, maxCats, known);
        const auto nCats = intColumn(counts);
        const auto frequencies = table(cols, maxCats, freq);
        plainBuild(strings, rows, cols, totalCats, nCats, categories, frequencies, expected, coding, keepBaseline);
        BuildDisjunctiveTable(strings, rows, cols, totalCats, nCats, categories,
                              coding == 3 ? frequencies.get() : nullptr, actual, coding, keepBaseline);
        EXPECT_THAT(cellsOf(actual), SameBits(cellsOf(expected)));

        Owned<matrix> made;
        plainBuild(strings, rows, cols, totalCats, nCats, categories, frequencies, made, coding, keepBaseline);
        BstrArray flat(cells);
        BstrArray flatKnown(known);
        Guarded<int> flatCounts(counts);
        Guarded<double> flatFreq(freq);
        Guarded<double> out(data.leftovers(static_cast<std::size_t>(rows) * static_cast<std::size_t>(totalCats)));
        VB_BuildDisjunctiveTable(flat, rows, cols, totalCats, flatCounts, flatKnown, flatFreq, maxCats, out, coding,
                                 keepBaseline);
        EXPECT_THAT(out.values(), SameBits(cellsOf(made)));
        EXPECT_TRUE(flatCounts.untouched() && flatFreq.untouched());
        EXPECT_EQ(flat.countNew() + flatKnown.countNew(), 0u);
        if (::testing::Test::HasFailure())
            return;
    }
}

} // namespace

} // namespace vecmat::test
