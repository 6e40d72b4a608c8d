#include "randomisation/sampling_with_repeats.h"

#include "randomisation/sampled_forms.h"
#include "support/random_data.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace vecmat::test {
namespace {

using testing::ElementsAre;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// ---- with replacement -----------------------------------------------------------------------------------------------

constexpr Forms withReplacement{M_SamplingWithReplacement, M_SamplingWithReplacementSPV, VB_M_SamplingWithReplacement,
                                VB_M_SamplingWithReplacementSPV};

TEST(SamplingWithReplacement, ComesInTheOrderOfThePopulation)
{
    const Population S = population(5, 2);
    const Sample sample = drawn(withReplacement, S, 3, {M, M, M}, {0.9, 0.1, 0.5});
    EXPECT_THAT(sample.ids, SameBits({1.0, 3.0, 5.0}));
    EXPECT_EQ(sample.cells, rowsOf(S, {1, 3, 5}));
}

TEST(SamplingWithReplacement, RepeatsAreAdjacent)
{
    const Population S = population(4, 3);
    const Sample sample = drawn(withReplacement, S, 6, Cells(6, 0.0), {0.8, 0.3, 0.99, 0.3, 0.0, 0.75});
    EXPECT_THAT(sample.ids, SameBits({1.0, 2.0, 2.0, 4.0, 4.0, 4.0}));
    EXPECT_EQ(sample.cells, rowsOf(S, {1, 2, 2, 4, 4, 4}));
}

TEST(SamplingWithReplacement, FlagReachesTheGenerator)
{
    for (const short flag : {short{0}, short{1}, short{-1}, short{7}})
        EXPECT_THAT(drawn(withReplacement, population(2, 1), 1, {M}, {0.5}, flag).ids, SameBits({2.0}));
}

TEST(SamplingWithReplacement, OneOfOne)
{
    const Population S = population(1, 2);
    EXPECT_EQ(drawn(withReplacement, S, 1, {M}, {0.999}).cells, S.cells);
}

TEST(SamplingWithReplacement, NothingToDrawRunsTheSeriesOnly)
{
    EXPECT_TRUE(drawn(withReplacement, population(3, 2), 0, {}, {}).ids.empty());
    // Also where the tables have rows, which then stay.
    for (const int n : {0, -1, std::numeric_limits<int>::min()}) {
        const auto S = stringColumn({L"x", L"y"});
        const auto Z = stringColumn({L"q", L"p"});
        const auto ids = column({2, 1});
        script.begin({});
        SeedArguments s;
        M_SamplingWithReplacement(S, 2, 1, n, Z, ids, &s.seed, s.flag, &s.out);
        s.expectOneSeries(0);
        EXPECT_THAT(cellsOf(Z), ElementsAre(L"q", L"p"));
        EXPECT_THAT(cellsOf(ids), SameBits({2.0, 1.0}));
    }
}

TEST(SamplingWithReplacement, EmptyPopulationGivesEmptyRows)
{
    const Sample sample = drawn(withReplacement, population(0, 2), 2, {M, M}, {0.9, 0.1});
    EXPECT_THAT(sample.ids, SameBits({1.0, 1.0}));
    EXPECT_THAT(sample.cells, ElementsAre(L"", L"", L"", L""));
}

TEST(SamplingWithReplacement, NoColumns)
{
    EXPECT_THAT(drawn(withReplacement, population(5, 0), 3, {M, M, M}, {0.9, 0.1, 0.5}).ids, SameBits({1.0, 3.0, 5.0}));
}

TEST(SamplingWithReplacement, WorksOnTheCornerNamed)
{
    const auto S = stringsByRows({{L"a1", L"b1"}, {L"a2", L"b2"}, {L"a3", L"b3"}});
    const auto Z = stringsByRows({{L"-", L"k"}, {L"-", L"l"}, {L"m", L"n"}});
    const auto ids = column({M, M, 9.0});
    script.begin({0.9, 0.1});
    SeedArguments s;
    M_SamplingWithReplacement(S, 2, 1, 2, Z, ids, &s.seed, s.flag, &s.out);
    s.expectOneSeries(2);
    EXPECT_THAT(cellsOf(Z), ElementsAre(L"a1", L"a2", L"m", L"k", L"l", L"n")); // the sort leaves the second column
    EXPECT_THAT(cellsOf(ids), SameBits({1.0, 2.0, 9.0}));
}

TEST(SamplingWithReplacement, RowAfterTheLast)
{
    // 1.0 is more than a generator may give: the row is the next column's in a table, and outside in an array.
    const BothStorages sample = drawnInBothStorages(withReplacement, population(2, 2), 1, {M}, {1.0});
    EXPECT_THAT(sample.table.cells, ElementsAre(L"b1", L""));
    EXPECT_THAT(sample.columns.cells, ElementsAre(L"", L""));
    EXPECT_THAT(sample.table.ids, SameBits({3.0}));
    EXPECT_THAT(sample.columns.ids, SameBits({3.0}));
}

TEST(SamplingWithReplacement, GoesOnFromItsOwnOutput)
{
    const auto S = stringColumn({L"x", L"y"});
    const auto Z = stringColumn({L"", L""});
    const auto ids = column({0, 0});
    script.begin({0.1, 0.2, 0.3, 0.4});
    int seed = 5;
    M_SamplingWithReplacement(S, 2, 1, 2, Z, ids, &seed, -1, &seed);
    M_SamplingWithReplacement(S, 2, 1, 2, Z, ids, &seed, -1, &seed);
    EXPECT_THAT(script.series(), ElementsAre(Series{5, -1, 2, 1002}, Series{1002, -1, 2, 2002}));
}

TEST(SamplingWithReplacement, AgreesWithAPlainSecondForm)
{
    RandomData data(20240611);
    SCOPED_TRACE(data);
    for (int round = 0; round < 60; ++round) {
        const Population S = population(data.integer(1, 12), data.integer(0, 3));
        const int n = data.integer(0, 20);
        const Cells draws = data.uniforms(static_cast<std::size_t>(n));
        std::vector<int> rows;
        for (const double draw : draws)
            rows.push_back(static_cast<int>(std::floor(draw * S.N)) + 1);
        std::sort(rows.begin(), rows.end());
        const Sample sample = drawn(withReplacement, S, n, data.leftovers(static_cast<std::size_t>(n)), draws);
        expectSame(sample, {rowsOf(S, rows), Cells(rows.begin(), rows.end())});
    }
}

// ---- by counts ------------------------------------------------------------------------------------------------------

constexpr Forms byCounts{M_SampleUserDefined, M_SampleUserDefinedSPV, VB_M_SampleUserDefined,
                         VB_M_SampleUserDefinedSPV};

/// `freq` reaches the flat forms as an array of the caller's, which they leave unchanged.
BothStorages countedInBothStorages(const Population& S, const Cells& freq, int n)
{
    script.begin({});
    const auto call = [&](auto sample, auto from, auto to, auto rows) {
        if constexpr (std::is_same_v<decltype(rows), double*>) {
            Guarded<double> counts(freq);
            sample(from, S.N, S.p, to, counts.data(), rows);
            EXPECT_TRUE(counts.untouched());
        } else {
            const auto counts = column(freq);
            sample(from, S.N, S.p, to, counts, rows);
            EXPECT_THAT(cellsOf(counts), SameBits(freq));
        }
    };
    const BothStorages result = inBothStorages(byCounts, S, n, Cells(static_cast<std::size_t>(n), M), call);
    EXPECT_TRUE(script.series().empty()); // no generator
    return result;
}

Sample counted(const Population& S, const Cells& freq, int n)
{
    return agreed(countedInBothStorages(S, freq, n));
}

TEST(SampleUserDefined, CopiesEachRowAsOftenAsItsCountSays)
{
    const Population S = population(3, 2);
    const Sample sample = counted(S, {2, 0, 1}, 3);
    EXPECT_THAT(sample.ids, SameBits({1.0, 1.0, 3.0}));
    EXPECT_EQ(sample.cells, rowsOf(S, {1, 1, 3}));
}

TEST(SampleUserDefined, CountsAreTruncatedOneByOne)
{
    // The sum, 3.8, is truncated once: the sample has three rows, of which two are copies.
    const Population S = population(3, 1);
    const Sample sample = counted(S, {1.9, 0.9, 1.0}, 3);
    EXPECT_THAT(sample.ids, SameBits({1.0, 3.0, M}));
    EXPECT_THAT(sample.cells, ElementsAre(L"a1", L"a3", before));
}

TEST(SampleUserDefined, MissingCountMakesNoCopy)
{
    const Population S = population(4, 1);
    expectSame(counted(S, {M, 1, M, 2}, 3), {rowsOf(S, {2, 4, 4}), {2.0, 4.0, 4.0}});
}

TEST(SampleUserDefined, NegativeCountsMakeTheSampleShorter)
{
    // Three copies for one row: in a table the second and the third are written where column b of row 1 and nothing is.
    const BothStorages sample = countedInBothStorages(population(2, 2), {3, -2}, 1);
    EXPECT_THAT(sample.table.cells, ElementsAre(L"a1", L"a1"));
    EXPECT_THAT(sample.columns.cells, ElementsAre(L"a1", L"b1"));
    EXPECT_THAT(sample.table.ids, SameBits({1.0}));
    EXPECT_THAT(sample.columns.ids, SameBits({1.0}));
}

TEST(SampleUserDefined, SumBelowOneGivesNoSample)
{
    for (const Cells& freq : {Cells{0, 0}, Cells{-1, -3}, Cells{0.4, 0.5}, Cells{M, M}, Cells{1, -9},
                              Cells{1, notANumber}, Cells{infinity, 1}, Cells{1, -infinity}})
        EXPECT_TRUE(counted(population(2, 2), freq, 0).ids.empty());
}

TEST(SampleUserDefined, CountsThatAreNotValid)
{
    const auto S = stringColumn({L"1", L"2", L"3", L"4", L"5", L"6"});
    const auto Z = stringColumn({L"p", L"q", L"r"});
    const auto ids = column({M, M, M});
    M_SampleUserDefined(S, 6, 1, Z, column({infinity, notANumber, -infinity, 3e9, M, 1}), ids);
    EXPECT_THAT(cellsOf(Z), ElementsAre(L"6", L"q", L"r"));
    EXPECT_THAT(cellsOf(ids), SameBits({6.0, M, M}));
    // Counts beyond their table read as -1.0.
    M_SampleUserDefined(S, 6, 1, Z, column({0, 2}), ids);
    EXPECT_THAT(cellsOf(Z), ElementsAre(L"2", L"2", L"r"));
    EXPECT_THAT(cellsOf(ids), SameBits({2.0, 2.0, M}));
}

TEST(SampleUserDefined, NoRows)
{
    EXPECT_TRUE(counted(population(0, 2), {}, 0).ids.empty());
    const auto Z = stringColumn({L"p"});
    const auto ids = column({M});
    M_SampleUserDefined(stringColumn({L"1"}), -4, 1, Z, column({1}), ids);
    EXPECT_THAT(cellsOf(Z), ElementsAre(L"p"));
    EXPECT_THAT(cellsOf(ids), SameBits({M}));
}

TEST(SampleUserDefined, NoRowsAndNoArrays)
{
    VB_M_SampleUserDefined(nullptr, 0, 1, nullptr, nullptr, nullptr);
    Guarded<double> ids(2, 7.0);
    VB_M_SampleUserDefined(nullptr, 0, 1, nullptr, nullptr, ids);
    EXPECT_TRUE(ids.untouched());
}

TEST(SampleUserDefined, NoColumns)
{
    EXPECT_THAT(counted(population(3, 0), {2, 0, 1}, 3).ids, SameBits({1.0, 1.0, 3.0}));
}

TEST(SampleUserDefined, WorksOnTheCornerNamed)
{
    const auto S = stringsByRows({{L"a1", L"b1"}, {L"a2", L"b2"}, {L"a3", L"b3"}});
    const auto Z = stringsByRows({{L"j", L"k"}, {L"l", L"m"}, {L"n", L"o"}});
    const auto ids = column({M, M, M});
    M_SampleUserDefined(S, 2, 1, Z, column({0, 2, 1}), ids);
    EXPECT_THAT(cellsOf(Z), ElementsAre(L"a2", L"a2", L"n", L"k", L"m", L"o"));
    EXPECT_THAT(cellsOf(ids), SameBits({2.0, 2.0, M}));
}

TEST(SampleUserDefined, AgreesWithAPlainSecondForm)
{
    RandomData data(20240612);
    SCOPED_TRACE(data);
    for (int round = 0; round < 40; ++round) {
        const Population S = population(data.integer(1, 10), data.integer(0, 3));
        const Cells freq = data.wholes(static_cast<std::size_t>(S.N), 0, 3);
        std::vector<int> rows;
        for (int i = 1; i <= S.N; ++i)
            rows.insert(rows.end(), static_cast<std::size_t>(freq[static_cast<std::size_t>(i) - 1]), i);
        expectSame(counted(S, freq, static_cast<int>(rows.size())), {rowsOf(S, rows), Cells(rows.begin(), rows.end())});
    }
}

} // namespace
} // namespace vecmat::test
