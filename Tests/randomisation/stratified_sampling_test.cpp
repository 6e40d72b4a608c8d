#include "randomisation/stratified_sampling.h"

#include "randomisation/sampled_forms.h"
#include "support/random_data.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace vecmat::test {
namespace {

using testing::Each;
using testing::ElementsAre;

constexpr Forms byStratum{M_SamplingRandomStratifiedByStr, M_SamplingRandomStratifiedByStrSPV,
                          Cpp_M_SamplingRandomStratifiedByStr, VB_M_SamplingRandomStratifiedByStrSPV};

/// A population with its strata and what is wanted of them. Unless they are given, the labels of the rows are 10 times
/// their numbers.
struct Survey
{
    Population S;
    Cells strata;
    Cells sizes;
    Cells quota;
    int n;
    Cells rowIds = tens(S.N);

    static Cells tens(int n)
    {
        Cells labels;
        for (int i = 1; i <= n; ++i)
            labels.push_back(10.0 * i);
        return labels;
    }

    /// The numbers of the rows in the order of their strata.
    std::vector<int> order() const
    {
        std::vector<int> rows(static_cast<std::size_t>(S.N));
        std::iota(rows.begin(), rows.end(), 1);
        std::stable_sort(rows.begin(), rows.end(), [&](int a, int b) { return at(strata, a) < at(strata, b); });
        return rows;
    }
    static double at(const Cells& cells, int number) { return cells.at(static_cast<std::size_t>(number) - 1); }
    Cells ofRows(const Cells& cells, const std::vector<int>& rows) const
    {
        Cells taken;
        for (const int row : rows)
            taken.push_back(at(cells, row));
        return taken;
    }
    int nStrata() const { return static_cast<int>(sizes.size()); }
};

/// `seriesDraws`: how many numbers each stratum draws. Checks every form, the chain of the seeds, and what becomes of
/// the tables of the population.
BothStorages sampledInBothStorages(const Survey& survey, const Cells& draws, const std::vector<int>& seriesDraws,
                                   short flag = -1)
{
    const Population& S = survey.S;
    const std::vector<int> order = survey.order();
    const Cells sortedIds = survey.ofRows(survey.rowIds, order);
    const Cells sortedStrata = survey.ofRows(survey.strata, order);

    std::vector<Series> chain;
    for (const int count : seriesDraws) {
        const int number = static_cast<int>(chain.size()) + 1;
        chain.push_back(
            {chain.empty() ? 77 : chain.back().stored, chain.empty() ? flag : short{-1}, count, 1000 * number + count});
    }
    SeedArguments s;
    const auto start = [&] {
        script.begin(draws);
        s = {};
        s.flag = flag;
    };
    const auto expectChain = [&] {
        EXPECT_EQ(script.series(), chain);
        EXPECT_EQ(s.seed, flag == -1 || chain.empty() ? 77 : 5077);
        EXPECT_EQ(s.out, chain.empty() ? 77 : chain.back().stored);
    };
    const auto call = [&](auto sample, auto from, auto to, auto outIds) {
        start();
        if constexpr (std::is_same_v<decltype(outIds), double*>) {
            Guarded<double> rowIds(survey.rowIds);
            Guarded<double> strata(survey.strata);
            Guarded<double> quota(survey.quota);
            Guarded<double> sizes(survey.sizes);
            sample(from, S.N, S.p, survey.n, to, rowIds, outIds, strata, quota, sizes, survey.nStrata(), &s.seed,
                   s.flag, &s.out);
            EXPECT_THAT(rowIds.values(), SameBits(sortedIds));
            EXPECT_TRUE(strata.untouched() && quota.untouched() && sizes.untouched());
        } else {
            const auto rowIds = column(survey.rowIds);
            const auto strata = column(survey.strata);
            const auto quota = column(survey.quota);
            const auto sizes = table(1, survey.nStrata(), survey.sizes);
            sample(from, S.N, S.p, survey.n, to, rowIds, outIds, strata, quota, sizes, survey.nStrata(), &s.seed,
                   s.flag, &s.out);
            EXPECT_THAT(cellsOf(rowIds), SameBits(sortedIds));
            EXPECT_THAT(cellsOf(strata), SameBits(sortedStrata));
            EXPECT_THAT(cellsOf(quota), SameBits(survey.quota));
            EXPECT_THAT(cellsOf(sizes), SameBits(survey.sizes));
        }
        expectChain();
    };
    return inBothStorages(byStratum, S, rowsOf(S, order), survey.n, Cells(static_cast<std::size_t>(survey.n), M), call);
}

Sample sampled(const Survey& survey, const Cells& draws, const std::vector<int>& seriesDraws, short flag = -1)
{
    return agreed(sampledInBothStorages(survey, draws, seriesDraws, flag));
}

// ---- how many of each stratum ---------------------------------------------------------------------------------------

TEST(StratifiedSampling, LastStratumTakesWhatIsMissing)
{
    // 1.5 is rounded to 2; 2.5 would be 3, but 2 are missing.
    const Survey survey{population(7, 2), {1, 1, 1, 2, 2, 2, 2}, {3, 4}, {1.5, 2.5}, 4};
    const Sample sample = sampled(survey, {0.9, 0.1, 0.5, 0.4, 0.3, 0.2, 0.1}, {3, 4});
    EXPECT_THAT(sample.ids, SameBits({20.0, 30.0, 60.0, 70.0}));
    EXPECT_EQ(sample.cells, rowsOf(survey.S, {2, 3, 6, 7}));
}

TEST(StratifiedSampling, QuotasAreRoundedHalfUp)
{
    struct Rounding
    {
        double quota;
        int rows;
    };
    const double belowHalf = std::nextafter(0.5, 0.0);
    // Just below a half the sum with a half is 1.0 in doubles: it counts as a half.
    for (const auto& [quota, rows] :
         {Rounding{0.5, 1}, Rounding{1.5, 2}, Rounding{2.5, 3}, Rounding{2.4375, 2}, Rounding{0.25, 0},
          Rounding{3.0, 3}, Rounding{belowHalf, 1}, Rounding{-0.5, 0}, Rounding{0.0, 0}})
    {
        const Survey survey{population(5, 1), {1, 1, 1, 2, 2}, {3, 2}, {quota, 0}, rows};
        const Sample sample = sampled(survey, {0.1, 0.2, 0.3, 0.5, 0.6}, {3, 2});
        EXPECT_EQ(sample.ids.size(), static_cast<std::size_t>(rows));
        EXPECT_THAT(sample.ids, SameBits(Cells(survey.rowIds.begin(), survey.rowIds.begin() + rows))) << quota;
    }
}

TEST(StratifiedSampling, OneStratumIsTheLast)
{
    const Survey survey{population(3, 1), {5, 5, 5}, {3}, {1}, 2};
    EXPECT_THAT(sampled(survey, {0.5, 0.1, 0.3}, {3}).ids, SameBits({20.0, 30.0}));
}

TEST(StratifiedSampling, WholeStrata)
{
    const Survey survey{population(4, 2), {1, 1, 2, 2}, {2, 2}, {2, 2}, 4};
    const Sample sample = sampled(survey, {0.9, 0.1, 0.2, 0.1}, {2, 2});
    EXPECT_EQ(sample.cells, survey.S.cells);
    EXPECT_THAT(sample.ids, SameBits(survey.rowIds));
}

TEST(StratifiedSampling, StratumOfNothingStillDrawsItsKeys)
{
    const Survey survey{population(3, 1), {1, 1, 2}, {2, 1}, {0, 1}, 1};
    EXPECT_THAT(sampled(survey, {0.9, 0.1, 0.5}, {2, 1}).ids, SameBits({30.0}));
}

// ---- without replacement --------------------------------------------------------------------------------------------

TEST(StratifiedSampling, SmallestKeysInTheOrderOfTheLabels)
{
    // Rows 4, 1 and 3 have the smallest keys; their labels put them in the order 3, 4, 1.
    Survey survey{population(5, 2), {1, 1, 1, 1, 1}, {5}, {3}, 3};
    survey.rowIds = {9, 8, 5, 7, 6};
    const Sample sample = sampled(survey, {0.2, 0.8, 0.3, 0.1, 0.9}, {5});
    EXPECT_THAT(sample.ids, SameBits({5.0, 7.0, 9.0}));
    EXPECT_EQ(sample.cells, rowsOf(survey.S, {3, 4, 1}));
}

TEST(StratifiedSampling, EqualKeysTakeTheFirstRows)
{
    const Survey survey{population(4, 1), {1, 1, 1, 1}, {4}, {2}, 2};
    EXPECT_THAT(sampled(survey, {0.5, 0.5, 0.5, 0.5}, {4}).ids, SameBits({10.0, 20.0}));
}

TEST(StratifiedSampling, EqualLabelsKeepTheOrderOfTheKeys)
{
    Survey survey{population(3, 1), {1, 1, 1}, {3}, {3}, 3};
    survey.rowIds = {4, 4, 4};
    EXPECT_THAT(sampled(survey, {0.7, 0.9, 0.2}, {3}).cells, ElementsAre(L"a3", L"a1", L"a2"));
}

TEST(StratifiedSampling, RowsOfAStratumMayBeAnywhere)
{
    // Sorted by stratum: rows 2, 4, 6 and then 1, 3, 5, each in the order of the input.
    const Survey survey{population(6, 2), {2, 1, 2, 1, 2, 1}, {3, 3}, {1, 2}, 3};
    const Sample sample = sampled(survey, {0.6, 0.1, 0.2, 0.3, 0.2, 0.1}, {3, 3});
    EXPECT_THAT(sample.ids, SameBits({40.0, 30.0, 50.0}));
    EXPECT_EQ(sample.cells, rowsOf(survey.S, {4, 3, 5}));
}

TEST(StratifiedSampling, MissingStratumLabelsComeFirst)
{
    const Survey survey{population(4, 1), {7, M, 7, M}, {2, 2}, {1, 1}, 2};
    EXPECT_THAT(sampled(survey, {0.1, 0.2, 0.1, 0.2}, {2, 2}).ids, SameBits({20.0, 10.0}));
}

// ---- with replacement -----------------------------------------------------------------------------------------------

TEST(StratifiedSampling, QuotaAboveTheSizeGivesRepeats)
{
    const Survey survey{population(5, 2), {1, 1, 2, 2, 2}, {2, 3}, {4, 1}, 5};
    const Sample sample = sampled(survey, {0.6, 0.1, 0.7, 0.9, 0.3, 0.2, 0.1}, {4, 3});
    EXPECT_THAT(sample.ids, SameBits({10.0, 20.0, 20.0, 20.0, 50.0}));
    EXPECT_EQ(sample.cells, rowsOf(survey.S, {1, 2, 2, 2, 5}));
}

TEST(StratifiedSampling, QuotaAboveTheSizeByAFractionIsEnough)
{
    // Rounded, the quota is the size: with the size as quota the two rows would be taken once each.
    const Survey above{population(3, 1), {1, 1, 2}, {2, 1}, {2.25, 1}, 3};
    EXPECT_THAT(sampled(above, {0.9, 0.8, 0.5}, {2, 1}).ids, SameBits({20.0, 20.0, 30.0}));
    const Survey equal{population(3, 1), {1, 1, 2}, {2, 1}, {2.0, 1}, 3};
    EXPECT_THAT(sampled(equal, {0.9, 0.8, 0.5}, {2, 1}).ids, SameBits({10.0, 20.0, 30.0}));
}

TEST(StratifiedSampling, RoundedNumberAboveTheTruncatedSizeIsEnough)
{
    // The quota is not above the size, but 3 rows are wanted of 2.
    const Survey survey{population(3, 1), {1, 1, 2}, {2.5, 1}, {2.5, 1}, 4};
    EXPECT_THAT(sampled(survey, {0.9, 0.8, 0.1, 0.5}, {3, 1}).ids, SameBits({10.0, 20.0, 20.0, 30.0}));
}

TEST(StratifiedSampling, LastStratumMayHaveToRepeatWhateverItsQuota)
{
    const Survey more{population(3, 1), {1, 2, 2}, {1, 2}, {1, 1}, 4};
    EXPECT_THAT(sampled(more, {0.5, 0.9, 0.2, 0.3}, {1, 3}).ids, SameBits({10.0, 20.0, 20.0, 30.0}));
    // And its quota alone decides that it repeats, although only one row is missing.
    const Survey fewer{population(3, 1), {1, 2, 2}, {1, 2}, {1, 9}, 2};
    EXPECT_THAT(sampled(fewer, {0.5, 0.9}, {1, 1}).ids, SameBits({10.0, 30.0}));
}

TEST(StratifiedSampling, RepeatsComeInTheOrderOfTheBlock)
{
    // Not in the order of the labels, as without replacement.
    Survey survey{population(3, 2), {1, 1, 1}, {3}, {4}, 4};
    survey.rowIds = {9, 5, 7};
    const Sample sample = sampled(survey, {0.9, 0.5, 0.1, 0.4}, {4});
    EXPECT_THAT(sample.ids, SameBits({9.0, 5.0, 5.0, 7.0}));
    EXPECT_EQ(sample.cells, rowsOf(survey.S, {1, 2, 2, 3}));
}

TEST(StratifiedSampling, StratumWithoutRows)
{
    const Survey survey{population(2, 2), {2, 2}, {0, 2}, {2, 1}, 3};
    const Sample sample = sampled(survey, {0.9, 0.1, 0.4, 0.3}, {2, 2});
    EXPECT_THAT(sample.ids, SameBits({0.0, 0.0, 20.0}));
    EXPECT_THAT(sample.cells, ElementsAre(L"", L"", L"a2", L"", L"", L"b2"));
    // Nothing wanted of it, without and with replacement: its series has no draws.
    const Survey none{population(2, 1), {2, 2}, {0, 2}, {0, 1}, 1};
    EXPECT_THAT(sampled(none, {0.2, 0.1}, {0, 2}).ids, SameBits({20.0}));
    const Survey fraction{population(2, 1), {2, 2}, {0, 2}, {0.25, 1}, 1};
    EXPECT_THAT(sampled(fraction, {0.2, 0.1}, {0, 2}).ids, SameBits({20.0}));
}

// ---- the seed -------------------------------------------------------------------------------------------------------

TEST(StratifiedSampling, OnlyTheFirstStratumHasTheCallersFlag)
{
    const Survey survey{population(6, 1), {1, 1, 2, 2, 3, 3}, {2, 2, 2}, {1, 3, 1}, 5};
    for (const short flag : {short{0}, short{1}, short{-1}, short{-2}})
        EXPECT_THAT(sampled(survey, {0.2, 0.1, 0.9, 0.1, 0.8, 0.6, 0.3}, {2, 3, 2}, flag).ids,
                    SameBits({20.0, 30.0, 40.0, 40.0, 60.0}));
}

TEST(StratifiedSampling, SeedAndOutputMayBeOneVariable)
{
    script.begin({0.5, 0.5});
    int seed = 3;
    M_SamplingRandomStratifiedByStr(stringColumn({L"x", L"y"}), 2, 1, 2, stringColumn({L"", L""}), column({1, 2}),
                                    column({0, 0}), column({1, 2}), column({1, 1}), column({1, 1}), 2, &seed, 0, &seed);
    EXPECT_THAT(script.series(), ElementsAre(Series{3, 0, 1, 1001}, Series{1001, -1, 1, 2001}));
    EXPECT_EQ(seed, 2001);
}

TEST(StratifiedSampling, NoStrataSortOnly)
{
    const Survey survey{population(4, 2), {3, 1, 2, 1}, {}, {}, 2};
    const Sample sample = sampled(survey, {}, {});
    EXPECT_THAT(sample.cells, Each(before));
    EXPECT_THAT(sample.ids, SameBits({M, M}));
    sampled(survey, {}, {}, 0); // nothing asks for a seed

    const auto S = stringColumn({L"x", L"y"});
    const auto strata = column({2, 1});
    script.begin({});
    SeedArguments s;
    M_SamplingRandomStratifiedByStr(S, 2, 1, 1, stringColumn({L""}), column({1, 2}), column({0}), strata, column({1}),
                                    column({1}), -3, &s.seed, 0, &s.out);
    EXPECT_TRUE(script.series().empty());
    EXPECT_EQ(s.seed, 77);
    EXPECT_EQ(s.out, 77);
    EXPECT_THAT(cellsOf(S), ElementsAre(L"y", L"x"));
    EXPECT_THAT(cellsOf(strata), SameBits({1.0, 2.0}));
}

// ---- sizes that do not fit ------------------------------------------------------------------------------------------

TEST(StratifiedSampling, EmptyPopulation)
{
    EXPECT_TRUE(sampled({population(0, 2), {}, {0}, {0}, 0}, {}, {0}).ids.empty());
    const Sample sample = sampled({population(0, 2), {}, {0}, {1}, 1}, {0.5}, {1});
    EXPECT_THAT(sample.cells, ElementsAre(L"", L""));
    EXPECT_THAT(sample.ids, SameBits({0.0}));
}

TEST(StratifiedSampling, OneRow)
{
    const Survey survey{population(1, 2), {4}, {1}, {1}, 1};
    EXPECT_EQ(sampled(survey, {0.9}, {1}).cells, survey.S.cells);
}

TEST(StratifiedSampling, NoColumns)
{
    const Survey survey{population(3, 0), {2, 1, 1}, {2, 1}, {1, 2}, 3};
    EXPECT_THAT(sampled(survey, {0.9, 0.1, 0.3, 0.4}, {2, 2}).ids, SameBits({30.0, 10.0, 10.0}));
}

TEST(StratifiedSampling, StrataThatGiveMoreThanTheSample)
{
    // Three rows of the first for a sample of two; then one too many, so that of the second, which draws its keys, none
    // is taken. In a table the third row is first written over the next column's first cell.
    const Survey survey{population(5, 2), {1, 1, 1, 2, 2}, {3, 2}, {3, 1}, 2};
    const BothStorages sample = sampledInBothStorages(survey, {0.1, 0.2, 0.3, 0.4, 0.5}, {3, 2});
    EXPECT_EQ(sample.columns.cells, rowsOf(survey.S, {1, 2}));
    EXPECT_THAT(sample.table.cells, ElementsAre(L"a1", L"a2", L"a3", L"b2"));
    EXPECT_THAT(sample.columns.ids, SameBits({10.0, 20.0}));
    EXPECT_THAT(sample.table.ids, SameBits({10.0, 20.0}));
}

TEST(StratifiedSampling, SizesBeyondThePopulation)
{
    // The block of the second stratum is rows 2 to 4 of three: the fourth is the next column's first in a table, and
    // without a cell in an array. It has no label.
    const Survey survey{population(3, 2), {1, 2, 2}, {1, 3}, {1, 3}, 4};
    const BothStorages sample = sampledInBothStorages(survey, {0.5, 0.1, 0.2, 0.3}, {1, 3});
    EXPECT_THAT(sample.columns.ids, SameBits({10.0, -1.0, 20.0, 30.0}));
    EXPECT_THAT(sample.columns.cells, ElementsAre(L"a1", L"", L"a2", L"a3", L"b1", L"", L"b2", L"b3"));
    EXPECT_THAT(sample.table.ids, SameBits({10.0, -1.0, 20.0, 30.0}));
    EXPECT_THAT(sample.table.cells, ElementsAre(L"a1", L"b1", L"a2", L"a3", L"b1", L"", L"b2", L"b3"));
}

TEST(StratifiedSampling, SizesBelowThePopulation)
{
    // Each block begins where the one before ends, whatever the labels say.
    const Survey survey{population(5, 1), {1, 1, 1, 2, 2}, {2, 2}, {1, 1}, 2};
    EXPECT_THAT(sampled(survey, {0.9, 0.1, 0.1, 0.9}, {2, 2}).ids, SameBits({20.0, 30.0}));
}

TEST(StratifiedSampling, MissingTables)
{
    // Quotas and sizes beyond their tables read as -1.0. The second of three strata takes one row off the sample, which
    // the third makes up for from nothing, over the row of the first.
    const auto Z = stringColumn({L"p", L"q"});
    const auto outIds = column({M, M});
    script.begin({0.1, 0.5});
    SeedArguments s;
    M_SamplingRandomStratifiedByStr(stringColumn({L"x", L"y"}), 2, 1, 1, Z, column({1, 2}), outIds, column({1, 2}),
                                    column({1}), column({1}), 3, &s.seed, s.flag, &s.out);
    EXPECT_THAT(script.series(),
                ElementsAre(Series{77, -1, 1, 1001}, Series{1001, -1, 0, 2000}, Series{2000, -1, 1, 3001}));
    EXPECT_THAT(cellsOf(Z), ElementsAre(L"", L"q"));
    EXPECT_THAT(cellsOf(outIds), SameBits({-1.0, M}));
}

TEST(StratifiedSampling, QuotasThatAreNotValid)
{
    // None of them takes a row, nor does the last stratum then: its number is out of range, too.
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const Cells specials = {M, std::numeric_limits<double>::quiet_NaN(), -infinity};
    for (const double quota : specials) {
        const Survey survey{population(3, 1), {1, 1, 2}, {2, 1}, {quota, 1}, 2};
        const Sample sample = sampled(survey, {0.5, 0.6, 0.7}, {2, 1});
        EXPECT_THAT(sample.cells, Each(before));
        EXPECT_THAT(sample.ids, SameBits({M, M}));
    }
    for (const double quota : {infinity, 3e9}) { // above the size, so that no key is drawn for a row
        const Survey survey{population(3, 1), {1, 1, 2}, {2, 1}, {quota, 1}, 2};
        EXPECT_THAT(sampled(survey, {0.7}, {0, 1}).cells, Each(before));
    }
}

TEST(StratifiedSampling, SizesThatAreNotValid)
{
    // A stratum of so few rows that there are none has empty ones, whose labels are found nowhere.
    for (const double size : {M, std::numeric_limits<double>::quiet_NaN(), -4.0}) {
        const Survey survey{population(2, 1), {1, 1}, {size}, {1}, 1};
        const Sample sample = sampled(survey, {0.5}, {1});
        EXPECT_THAT(sample.cells, ElementsAre(L""));
        EXPECT_THAT(sample.ids, SameBits({-1.0}));
    }
}

TEST(StratifiedSampling, WorksOnTheCornerNamed)
{
    const auto S = stringsByRows({{L"a1", L"b1"}, {L"a2", L"b2"}, {L"a3", L"b3"}});
    const auto Z = stringsByRows({{L"p", L"q"}, {L"r", L"s"}});
    const auto outIds = column({M, M});
    script.begin({0.9, 0.2});
    SeedArguments s;
    M_SamplingRandomStratifiedByStr(S, 2, 1, 1, Z, column({1, 2, 3}), outIds, column({5, 4, 3}), column({1}),
                                    column({2}), 1, &s.seed, s.flag, &s.out);
    s.expectOneSeries(2);
    EXPECT_THAT(cellsOf(S), ElementsAre(L"a2", L"a1", L"a3", L"b1", L"b2", L"b3"));
    EXPECT_THAT(cellsOf(Z), ElementsAre(L"a1", L"r", L"q", L"s"));
    EXPECT_THAT(cellsOf(outIds), SameBits({1.0, M}));
}

// ---- against a plain second form ------------------------------------------------------------------------------------

/// A row of the population; 0 for none.
struct Row
{
    double label;
    double key;
    int number;
};

TEST(StratifiedSampling, AgreesWithAPlainSecondForm)
{
    RandomData data(20240613);
    SCOPED_TRACE(data);
    for (int round = 0; round < 150; ++round) {
        const int nStrata = data.integer(1, 5);
        Survey survey{population(data.integer(1, 25), data.integer(1, 3)), {}, {}, {}, 0};
        survey.strata = data.wholes(static_cast<std::size_t>(survey.S.N), 1, nStrata);
        survey.rowIds = data.wholes(static_cast<std::size_t>(survey.S.N), 1, 40);
        Cells draws;
        std::vector<int> seriesDraws;
        std::vector<int> rows;
        Cells labels;
        const std::vector<int> order = survey.order();
        std::size_t next = 0;
        for (int k = 1; k <= nStrata; ++k) {
            std::vector<Row> block;
            for (; next < order.size() && Survey::at(survey.strata, order[next]) == k; ++next)
                block.push_back({Survey::at(survey.rowIds, order[next]), 0.0, order[next]});
            const int size = static_cast<int>(block.size());
            survey.sizes.push_back(size);
            survey.quota.push_back(0.25 * data.integer(0, 4 * size + 2));
            int wanted = static_cast<int>(std::floor(survey.quota.back() + 0.5));
            if (k == nStrata) // any number, with its quota telling another
                wanted = data.integer(0, size + 2);
            const bool repeats = survey.quota.back() > size || wanted > size;
            if (size == 0)
                block.push_back({0.0, 0.0, 0});
            std::vector<Row> taken;
            if (repeats) {
                Cells keys = data.uniforms(static_cast<std::size_t>(wanted));
                draws.insert(draws.end(), keys.begin(), keys.end());
                std::sort(keys.begin(), keys.end()); // as the rows that they take
                for (const double key : keys)
                    taken.push_back(block[static_cast<std::size_t>(std::floor(key * size))]);
            } else {
                for (int i = 0; i < size; ++i) {
                    block[static_cast<std::size_t>(i)].key = 0.125 * data.integer(0, 7); // with ties
                    draws.push_back(block[static_cast<std::size_t>(i)].key);
                }
                std::stable_sort(block.begin(), block.end(), [](auto& a, auto& b) { return a.key < b.key; });
                taken.assign(block.begin(), block.begin() + wanted);
                std::stable_sort(taken.begin(), taken.end(), [](auto& a, auto& b) { return a.label < b.label; });
            }
            seriesDraws.push_back(repeats ? wanted : size);
            for (const Row& row : taken) {
                rows.push_back(row.number);
                labels.push_back(row.label);
            }
        }
        survey.n = static_cast<int>(rows.size());
        Texts cells;
        for (int j = 0; j < survey.S.p; ++j)
            for (const int row : rows)
                cells.push_back(row == 0 ? std::wstring()
                                         : survey.S.cells[static_cast<std::size_t>(survey.S.N * j + row - 1)]);
        expectSame(sampled(survey, draws, seriesDraws), {cells, labels});
    }
}

} // namespace
} // namespace vecmat::test
