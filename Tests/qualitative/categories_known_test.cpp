// Tables weighed against known categories, counts of different texts, and labels used twice.
#include "qualitative/summary_tables.h"

#include "support/guarded.h"

#include <set>

namespace vecmat::test {

namespace {

// ---- M_InfoQualiValid -----------------------------------------------------------------------------------------------

struct Weighed
{
    Doubles catWeights;
    short invalid;
};

Weighed weighed(Smatrix* data, int nRows, int nCols, int maxCats, const Ints& counts, Smatrix* categories,
                matrix* weights)
{
    Owned<matrix> sums;
    short invalid = 77;
    M_InfoQualiValid(data, nRows, nCols, maxCats, intColumn(counts), categories, sums, &invalid, weights);
    EXPECT_EQ(sums->nRows, nCols);
    EXPECT_EQ(sums->nCols, maxCats);
    return {cellsOf(sums), invalid};
}

TEST(InfoQualiValid, WeighsKnownCategories)
{
    const auto categories = stringsByRows({{L"a", L"b"}, {L"x", L""}});
    const auto data = stringsByColumns({{L"b", L"a", L"b"}, {L"x", L"", L"x"}});
    const Weighed result = weighed(data, 3, 2, 2, {2, 1}, categories, column({1, 2, 4}));
    EXPECT_EQ(result.invalid, 0);
    EXPECT_THAT(result.catWeights, SameBits({2, 5, 5, 0}));
}

TEST(InfoQualiValid, StopsAtTheFirstUnknownCategory)
{
    const auto categories = stringsByRows({{L"a"}, {L"x"}});
    const auto data = stringsByColumns({{L"a", L"?", L"a"}, {L"x", L"x", L"x"}});
    const Weighed result = weighed(data, 3, 2, 1, {1, 1}, categories, column({1, 2, 4}));
    EXPECT_EQ(result.invalid, -1);
    EXPECT_THAT(result.catWeights, SameBits({1, 0})) << "what was summed up stays, and nothing follows";
}

TEST(InfoQualiValid, GoesColumnByColumn)
{
    const auto categories = stringsByRows({{L"a"}, {L"x"}});
    const auto data = stringsByColumns({{L"a", L"a"}, {L"x", L"?"}});
    const Weighed result = weighed(data, 2, 2, 1, {1, 1}, categories, column({1, 2}));
    EXPECT_EQ(result.invalid, -1);
    EXPECT_THAT(result.catWeights, SameBits({3, 1}));
}

TEST(InfoQualiValid, EmptyCellsAreSkippedAlsoWhereAnEmptyCategoryIsKnown)
{
    const auto categories = stringsByRows({{L"a", L""}});
    const Weighed result = weighed(stringColumn({L"", L"a", L""}), 3, 1, 2, {2}, categories, column({1, 2, 4}));
    EXPECT_EQ(result.invalid, 0);
    EXPECT_THAT(result.catWeights, SameBits({2, 0}));
}

TEST(InfoQualiValid, OnlyTheCountedPlacesAreKnown)
{
    const auto categories = stringsByRows({{L"a", L"b"}});
    EXPECT_EQ(weighed(stringColumn({L"b"}), 1, 1, 2, {1}, categories, column({1})).invalid, -1);
    EXPECT_EQ(weighed(stringColumn({L"b"}), 1, 1, 2, {2}, categories, column({1})).invalid, 0);
    EXPECT_EQ(weighed(stringColumn({L"b"}), 1, 1, 2, {1000000000}, categories, column({1})).invalid, 0);
    EXPECT_EQ(weighed(stringColumn({L"a"}), 1, 1, 2, {0}, categories, column({1})).invalid, -1);
    EXPECT_EQ(weighed(stringColumn({L""}), 1, 1, 2, {0}, categories, column({1})).invalid, 0);
}

TEST(InfoQualiValid, RepeatedCategoryIsFoundAtItsLastPlace)
{
    const auto categories = stringsByRows({{L"a", L"b", L"a"}});
    EXPECT_THAT(weighed(stringColumn({L"a", L"b"}), 2, 1, 3, {3}, categories, column({1, 2})).catWeights,
                SameBits({0, 2, 1}));
    EXPECT_THAT(weighed(stringColumn({L"a", L"b"}), 2, 1, 3, {2}, categories, column({1, 2})).catWeights,
                SameBits({1, 2, 0}));
}

TEST(InfoQualiValid, KeepsALargerTableAndClearsItsHead)
{
    Owned<matrix> sums = filled(2, 3, 77);
    short invalid = 77;
    M_InfoQualiValid(stringColumn({L"b"}), 1, 1, 2, intColumn({2}), stringsByRows({{L"a", L"b"}}), sums, &invalid,
                     column({4}));
    // The two cells cleared are those of column 1, so that place 2 adds to what stood there.
    EXPECT_THAT(cellsOf(sums), SameBits({0, 0, 81, 77, 77, 77}));
}

TEST(InfoQualiValid, WeightsOfPlacesBeyondTheResultAreDropped)
{
    const auto categories = stringsByRows({{L"a", L"b"}});
    const Weighed result = weighed(stringColumn({L"b", L"a"}), 2, 1, 1, {2}, categories, column({1, 2}));
    EXPECT_EQ(result.invalid, 0) << "known anyway";
    EXPECT_THAT(result.catWeights, SameBits({2}));
}

TEST(InfoQualiValid, NothingToWeigh)
{
    const auto categories = stringsByRows({{L"a"}});
    const Weighed noRows = weighed(stringColumn({L"?"}), 0, 1, 1, {1}, categories, column({1}));
    EXPECT_EQ(noRows.invalid, 0);
    EXPECT_THAT(noRows.catWeights, SameBits({0}));
    EXPECT_EQ(weighed(stringColumn({L"?"}), 1, 0, 1, {1}, categories, column({1})).invalid, 0);
}

/// The walk: from the last counted place down to the first.
Weighed plainWeighed(Smatrix* data, int nRows, int nCols, int maxCats, matrixInt* counts, Smatrix* categories,
                     matrix* weights)
{
    matrix sums(nCols, maxCats, 0.0);
    for (int j = 1; j <= nCols; ++j)
        for (int i = 1; i <= nRows; ++i) {
            const std::wstring text = data->vbget(i, j);
            if (text.empty())
                continue;
            int c = counts->vbget(j, 1);
            while (c >= 1 && categories->vbget(j, c) != text)
                --c;
            if (c < 1)
                return {cellsOf(&sums), -1};
            sums.vbset(j, c, sums.vbget(j, c) + weights->vbget(i, 1));
        }
    return {cellsOf(&sums), 0};
}

TEST(InfoQualiValid, IsThePlainWalkOverRandomTables)
{
    int invalids = 0;
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const int rows = data.integer(1, 8);
        const int cols = data.integer(1, 3);
        const int maxCats = data.integer(1, 30);
        const auto variables = static_cast<std::size_t>(cols);
        const Texts pool{L"", L"a", L"b", L"c", L"A"};
        const auto draw = [&](std::size_t count, int last) {
            Texts texts(count);
            for (std::wstring& text : texts)
                text = pool[static_cast<std::size_t>(data.integer(0, last))];
            return texts;
        };
        const Texts cells = draw(static_cast<std::size_t>(rows) * variables, 3);
        const Texts known = draw(variables * static_cast<std::size_t>(maxCats), 4);
        const Ints counts = data.integers(variables, maxCats / 2, maxCats);
        const Doubles w = randomWeights(data, static_cast<std::size_t>(rows));
        const Weighed expected = plainWeighed(stringTable(rows, cols, cells), rows, cols, maxCats, intColumn(counts),
                                              stringTable(cols, maxCats, known), column(w));
        const Weighed actual = weighed(stringTable(rows, cols, cells), rows, cols, maxCats, counts,
                                       stringTable(cols, maxCats, known), column(w));
        invalids += expected.invalid != 0;
        EXPECT_EQ(actual.invalid, expected.invalid);
        EXPECT_THAT(actual.catWeights, SameBits(expected.catWeights));

        BstrArray flat(cells);
        BstrArray flatKnown(known);
        Guarded<int> flatCounts(counts);
        Guarded<double> flatWeights(w);
        Guarded<double> sums(data.leftovers(variables * static_cast<std::size_t>(maxCats)));
        short invalid = 77;
        VB_M_InfoQualiValid(flat, rows, cols, maxCats, 99, flatCounts, flatKnown, sums, &invalid, -99, flatWeights);
        EXPECT_EQ(invalid, expected.invalid);
        EXPECT_THAT(sums.values(), SameBits(expected.catWeights));
        EXPECT_TRUE(flatCounts.untouched() && flatWeights.untouched());
        EXPECT_EQ(flat.countNew() + flatKnown.countNew(), 0u);
    }
    EXPECT_GT(invalids, 30);
    EXPECT_LT(invalids, 270);
}

// ---- GetMaxCat ------------------------------------------------------------------------------------------------------

TEST(GetMaxCat, CountsTheEmptyStringAsAValue)
{
    auto counts = intColumn({77});
    EXPECT_EQ(GetMaxCat(stringColumn({L"a", L"", L"a"}), 3, 1, counts), 2);
    EXPECT_EQ(cellsOf(counts), Ints{2});
}

TEST(GetMaxCat, EachColumnAndTheLargest)
{
    const auto data = stringsByColumns({{L"a", L"b", L"c"}, {L"a", L"a", L"A"}, {L"", L"", L""}});
    auto counts = intColumn({77, 77, 77, 77});
    EXPECT_EQ(GetMaxCat(data, 3, 3, counts), 3);
    EXPECT_EQ(cellsOf(counts), (Ints{3, 2, 1, 77}));
    EXPECT_EQ(GetMaxCat(data, 2, 2, counts), 2) << "a corner";
    EXPECT_EQ(cellsOf(counts), (Ints{2, 1, 1, 77}));
    EXPECT_EQ(GetMaxCat(data, 4, 3, counts), 3)
        << "the row after the last reads on into the next column: a, then the empty text";
    EXPECT_EQ(cellsOf(counts), (Ints{3, 3, 1, 77}));
}

TEST(GetMaxCat, NoColumnsAndNoRows)
{
    auto counts = intColumn({77});
    EXPECT_EQ(GetMaxCat(stringColumn({L"a"}), 1, 0, counts), 0);
    EXPECT_EQ(GetMaxCat(stringColumn({L"a"}), 1, -1, counts), 0);
    EXPECT_EQ(cellsOf(counts), Ints{77});
    EXPECT_EQ(GetMaxCat(stringColumn({L"a"}), 0, 1, counts), 0);
    EXPECT_EQ(cellsOf(counts), Ints{0});
}

TEST(GetMaxCat, CountsThatDoNotFitAreDropped)
{
    auto counts = intColumn({77});
    EXPECT_EQ(GetMaxCat(stringsByColumns({{L"a", L"a"}, {L"a", L"b"}}), 2, 2, counts), 2);
    EXPECT_EQ(cellsOf(counts), Ints{1});
}

TEST(GetMaxCat, IsAnOrderedSetOverRandomTables)
{
    for (std::uint64_t seed = 1; seed <= 100; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const int rows = data.integer(1, 15);
        const int cols = data.integer(1, 4);
        const Texts cells = randomTable(data, rows, cols);
        Ints expected;
        for (int j = 0; j < cols; ++j) {
            const auto start = cells.begin() + rows * j;
            expected.push_back(static_cast<int>(std::set<std::wstring>(start, start + rows).size()));
        }
        BstrArray flat(cells);
        Guarded<int> counts(data.intLeftovers(static_cast<std::size_t>(cols)));
        EXPECT_EQ(Cpp_GetMaxCat(flat, rows, cols, counts), *std::max_element(expected.begin(), expected.end()));
        EXPECT_EQ(counts.values(), expected);
        EXPECT_EQ(flat.countNew(), 0u);
    }
}

// ---- Cpp_CheckUniqueCatByVar ----------------------------------------------------------------------------------------

int repeats(int nRows, int nCols, const Texts& labels, const Ints& counts)
{
    BstrArray table(labels);
    Guarded<int> flatCounts(counts);
    const int answer = Cpp_CheckUniqueCatByVar(table, nRows, nCols, flatCounts);
    EXPECT_TRUE(flatCounts.untouched());
    EXPECT_EQ(table.countNew(), 0u);
    return answer;
}

TEST(CheckUniqueCatByVar, FindsALabelAtALaterPlace)
{
    // Rows (a, b) and (c, a).
    EXPECT_EQ(repeats(2, 2, {L"a", L"c", L"b", L"a"}, {2, 2}), 1);
    // Rows (c, a) and (a, b): the pair is found from the second row to the first.
    EXPECT_EQ(repeats(2, 2, {L"c", L"a", L"a", L"b"}, {2, 2}), 1);
    // One row (a, a).
    EXPECT_EQ(repeats(1, 2, {L"a", L"a"}, {2}), 1);
    EXPECT_EQ(repeats(2, 2, {L"a", L"c", L"b", L"d"}, {2, 2}), 0);
}

TEST(CheckUniqueCatByVar, TheSamePlaceInTwoRowsIsNotDetected)
{
    EXPECT_EQ(repeats(2, 2, {L"a", L"a", L"b", L"c"}, {2, 2}), 0);
    EXPECT_EQ(repeats(3, 2, {L"x", L"y", L"z", L"b", L"b", L"b"}, {2, 2, 2}), 0);
}

TEST(CheckUniqueCatByVar, OnlyTheCountedPlacesAreCompared)
{
    EXPECT_EQ(repeats(2, 2, {L"a", L"c", L"b", L"a"}, {2, 1}), 0);
    EXPECT_EQ(repeats(2, 2, {L"a", L"c", L"b", L"a"}, {0, 2}), 0);
    EXPECT_EQ(repeats(2, 2, {L"a", L"c", L"b", L"a"}, {-5, 2}), 0);
    EXPECT_EQ(repeats(2, 2, {L"a", L"c", L"b", L"a"}, {1, 2}), 1);
}

TEST(CheckUniqueCatByVar, EmptyLabelsAreEqualToo)
{
    EXPECT_EQ(repeats(1, 2, {L"", L""}, {2}), 1);
    EXPECT_EQ(repeats(1, 2, {L"a", L""}, {3}), 1) << "the place beyond the table is empty";
    EXPECT_EQ(repeats(1, 2, {L"a", L"b"}, {3}), 0);
    EXPECT_EQ(repeats(1, 2, {L"a", L"b"}, {2000000000}), 1) << "two places beyond";
}

TEST(CheckUniqueCatByVar, NoRows)
{
    EXPECT_EQ(Cpp_CheckUniqueCatByVar(nullptr, 0, 0, nullptr), 0);
}

int plainRepeats(Smatrix* table, int nRows, const Ints& counts)
{
    for (int i = 1; i <= nRows; ++i)
        for (int m = 1; m <= nRows; ++m)
            for (int c = 1; c <= counts[static_cast<std::size_t>(i - 1)]; ++c)
                for (int d = c + 1; d <= counts[static_cast<std::size_t>(m - 1)]; ++d)
                    if (table->vbget(i, c) == table->vbget(m, d))
                        return 1;
    return 0;
}

TEST(CheckUniqueCatByVar, IsTheWalkOverAllPairs)
{
    int found = 0;
    for (std::uint64_t seed = 1; seed <= 600; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const int rows = data.integer(1, 4);
        const int cols = data.integer(1, 4);
        Texts labels(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols));
        for (std::wstring& label : labels)
            label = std::to_wstring(data.integer(1, 40));
        const Ints counts = data.integers(static_cast<std::size_t>(rows), 0, cols + (data.chance(0.2) ? 2 : 0));
        const int expected = plainRepeats(stringTable(rows, cols, labels), rows, counts);
        found += expected;
        EXPECT_EQ(repeats(rows, cols, labels, counts), expected);
    }
    EXPECT_GT(found, 50);
    EXPECT_LT(found, 550);
}

} // namespace

} // namespace vecmat::test
