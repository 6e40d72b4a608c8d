// The summaries against plain walks over random tables, with result tables that held something before.
#include "qualitative/summary_tables.h"

#include <algorithm>

namespace vecmat::test {

namespace {

constexpr int rounds = 400;

std::size_t product(int rows, int cols)
{
    return static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
}

Owned<Smatrix> oldTexts(RandomData& data, int rows, int cols)
{
    return data.chance(0.3) ? Owned<Smatrix>() : stringTable(rows, cols, textLeftovers(data, product(rows, cols)));
}
Owned<matrix> oldNumbers(RandomData& data, int rows, int cols)
{
    return data.chance(0.3) ? Owned<matrix>() : table(rows, cols, data.leftovers(product(rows, cols)));
}

/// Result tables as a caller may hand them in: null, of the right shape, or of another, with leftovers in them.
SummaryTables resultTables(std::uint64_t seed, int nCols, int places)
{
    RandomData data(seed);
    const auto more = [&data](int n) { return n + data.integer(0, 2); };
    return SummaryTables{.modes = oldTexts(data, std::max(1, nCols + data.integer(-1, 1)), 1),
                         .modeWeights = oldNumbers(data, more(nCols), 1),
                         .nCats = data.chance(0.3) ? Owned<matrixInt>()
                                                   : intColumn(data.intLeftovers(product(more(nCols), 1))),
                         .categories = oldTexts(data, nCols, places + data.integer(0, 1)),
                         .catWeights = oldNumbers(data, more(nCols), more(places))};
}

void expectSame(const SummaryTables& actual, const SummaryTables& expected, bool withCounts)
{
    EXPECT_EQ(actual.total, expected.total);
    EXPECT_EQ(cellsOf(actual.modes), cellsOf(expected.modes));
    EXPECT_THAT(cellsOf(actual.modeWeights), SameBits(cellsOf(expected.modeWeights)));
    EXPECT_EQ(cellsOf(actual.categories), cellsOf(expected.categories));
    EXPECT_THAT(cellsOf(actual.catWeights), SameBits(cellsOf(expected.catWeights)));
    if (withCounts) {
        EXPECT_EQ(cellsOf(actual.nCats), cellsOf(expected.nCats));
    }
}

struct Input
{
    int rows;
    int cols;
    int nRows; // as passed: smaller, equal or larger
    Texts texts;
    Doubles weights;
    short sortCats;

    explicit Input(RandomData& data)
        : rows(data.integer(1, 12)), cols(data.integer(1, 4)),
          nRows(data.chance(0.7) ? rows : std::max(0, rows + data.integer(-2, 2))),
          texts(randomTable(data, rows, cols)),
          weights(randomWeights(data, static_cast<std::size_t>(nRows + data.integer(0, 2)))),
          sortCats(static_cast<short>(data.integer(-1, 1)))
    {
    }
};

TEST(InfoQualiRandom, IsThePlainWalk)
{
    for (std::uint64_t seed = 1; seed <= rounds; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const Input in(data);
        const auto strings = stringTable(in.rows, in.cols, in.texts);
        const auto weights = column(in.weights);
        SummaryTables expected = resultTables(seed, in.cols, in.nRows);
        SummaryTables actual = resultTables(seed, in.cols, in.nRows);
        plainSummary(strings, in.nRows, in.cols, in.nRows, nullptr, expected, weights, in.sortCats);
        M_InfoQuali(strings, in.nRows, in.cols, actual.modes, actual.modeWeights, actual.nCats, actual.categories,
                    actual.catWeights, weights, &actual.total, in.sortCats);
        expectSame(actual, expected, true);
        if (::testing::Test::HasFailure())
            return;
    }
}

TEST(InfoQualiRandom, WithGivenCountsIsThePlainWalk)
{
    for (std::uint64_t seed = 1; seed <= rounds; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const Input in(data);
        const int maxCats = data.integer(0, in.rows + 1);
        // Also counts below and above those found, and above those that are kept.
        const auto counts = intColumn(data.integers(static_cast<std::size_t>(in.cols), -1, maxCats + 2));
        const auto strings = stringTable(in.rows, in.cols, in.texts);
        const auto weights = column(in.weights);
        SummaryTables expected = resultTables(seed, in.cols, maxCats);
        SummaryTables actual = resultTables(seed, in.cols, maxCats);
        plainSummary(strings, in.nRows, in.cols, maxCats, counts, expected, weights, in.sortCats);
        M_InfoQuali2(strings, in.nRows, in.cols, maxCats, counts, actual.modes, actual.modeWeights, actual.categories,
                     actual.catWeights, weights, &actual.total, in.sortCats);
        expectSame(actual, expected, false);
        if (::testing::Test::HasFailure())
            return;
    }
}

TEST(InfoQualiRandom, FlatFormsAreTheFunctionsOverFreshTables)
{
    for (std::uint64_t seed = 1; seed <= rounds / 2; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        Input in(data);
        in.weights.resize(static_cast<std::size_t>(in.rows), 1.0);
        const auto variables = static_cast<std::size_t>(in.cols);
        const auto strings = stringTable(in.rows, in.cols, in.texts);
        const auto weights = column(in.weights);
        BstrArray flat(in.texts);
        Guarded<double> flatWeights(in.weights);

        const auto run = [&](int places, const Ints* given) {
            SummaryTables expected;
            const auto counts = intColumn(given != nullptr ? *given : Ints{});
            plainSummary(strings, in.rows, in.cols, places, given != nullptr ? counts.get() : nullptr, expected,
                         weights, in.sortCats);
            const std::size_t all = variables * static_cast<std::size_t>(places);
            BstrArray modes(textLeftovers(data, variables));
            Guarded<double> modeWeights(data.leftovers(variables));
            Guarded<int> nCats(given != nullptr ? *given : data.intLeftovers(variables));
            BstrArray categories(textLeftovers(data, all));
            Guarded<double> catWeights(data.leftovers(all));
            int total = data.integer(-99, 99);
            if (given != nullptr)
                VB_M_InfoQuali2(flat, in.rows, in.cols, places, nCats, modes, modeWeights, &total, categories,
                                catWeights, 0, flatWeights, in.sortCats);
            else
                VB_M_InfoQuali(flat, in.rows, in.cols, modes, modeWeights, &total, nCats, categories, catWeights, 0,
                               flatWeights, in.sortCats);
            EXPECT_EQ(total, expected.total);
            EXPECT_EQ(modes.takeTexts(), cellsOf(expected.modes));
            EXPECT_THAT(modeWeights.values(), SameBits(cellsOf(expected.modeWeights)));
            EXPECT_EQ(nCats.values(), given != nullptr ? *given : cellsOf(expected.nCats));
            EXPECT_EQ(categories.takeTexts(), cellsOf(expected.categories));
            EXPECT_THAT(catWeights.values(), SameBits(cellsOf(expected.catWeights)));
        };
        run(in.rows, nullptr);
        const int maxCats = data.integer(1, in.rows);
        const Ints given = data.integers(variables, 0, maxCats);
        run(maxCats, &given);
        EXPECT_TRUE(flatWeights.untouched());
        if (::testing::Test::HasFailure())
            return;
    }
}

} // namespace

} // namespace vecmat::test
