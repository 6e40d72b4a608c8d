#include "randomisation/interval_sampling.h"

#include "randomisation/sampled_forms.h"
#include "support/random_data.h"

#include <cmath>
#include <limits>

namespace vecmat::test {
namespace {

using testing::Each;
using testing::ElementsAre;

constexpr Forms fromRandomStart{M_SamplingSystematicRdStart, M_SamplingSystematicRdStartSPV,
                                VB_M_SamplingSystematicRdStart, VB_M_SamplingSystematicRdStartSPV};
constexpr Forms fromMiddle{M_SamplingSystematicCentered, M_SamplingSystematicCenteredSPV,
                           VB_M_SamplingSystematicCentered, VB_M_SamplingSystematicCenteredSPV};
constexpr Forms eachInterval{M_SamplingRandomStratified, M_SamplingRandomStratifiedSPV, VB_M_SamplingRandomStratified,
                             VB_M_SamplingRandomStratifiedSPV};

constexpr int most = std::numeric_limits<int>::max();
constexpr int least = std::numeric_limits<int>::min();

/// 100 more than its number for each row.
Cells labels(int N)
{
    Cells ids;
    for (int i = 1; i <= N; ++i)
        ids.push_back(100.0 + i);
    return ids;
}

Sample centred(const Population& S, int n, const Cells& ids)
{
    script.begin({});
    const Sample sample = agreed(inBothStorages(
        fromMiddle, S, n, ids, [&](auto take, auto from, auto to, auto rows) { take(from, S.N, S.p, n, to, rows); }));
    EXPECT_TRUE(script.series().empty()); // no draw and no seed
    return sample;
}

/// What a systematic sample of just these rows leaves in `ids`.
Cells keptLabels(const Cells& ids, const std::vector<int>& rows)
{
    Cells kept(ids.size(), static_cast<double>(ids.size()) + 1.0);
    for (const int row : rows)
        kept.at(static_cast<std::size_t>(row) - 1) = ids.at(static_cast<std::size_t>(row) - 1);
    return kept;
}

void expectRows(const Sample& sample, const Population& S, const Cells& ids, const std::vector<int>& rows)
{
    expectSame(sample, {rowsOf(S, rows), keptLabels(ids, rows)});
}

// ---- systematic, centred --------------------------------------------------------------------------------------------

TEST(CentredSampling, StartsInTheMiddleOfTheMargin)
{
    const Population S = population(10, 2);
    const Sample sample = centred(S, 3, labels(10)); // step 4, margin 2, from row 1
    EXPECT_EQ(sample.cells, rowsOf(S, {1, 5, 9}));
    EXPECT_THAT(sample.ids, SameBits({101.0, 11.0, 11.0, 11.0, 105.0, 11.0, 11.0, 11.0, 109.0, 11.0}));
}

TEST(CentredSampling, RowsBeforeTheStartAreNotTaken)
{
    // Step 2, margin 3, from row 2.
    const Population S = population(9, 1);
    const Cells ids = labels(9);
    expectRows(centred(S, 4, ids), S, ids, {2, 4, 6, 8});
}

TEST(CentredSampling, EvenMarginStartsBelowTheMiddle)
{
    // Step 1, margin 4: half of five is 2. Rows 9 and 10 are one step on each, but the sample is full.
    const Population S = population(10, 3);
    const Cells ids = labels(10);
    expectRows(centred(S, 7, ids), S, ids, {2, 3, 4, 5, 6, 7, 8});
}

TEST(CentredSampling, LabelsOfRowsTakenStayWhateverTheyAre)
{
    const Population S = population(4, 1);
    const Cells ids = {M, std::numeric_limits<double>::quiet_NaN(), -0.0, 0.5};
    expectRows(centred(S, 4, ids), S, ids, {1, 2, 3, 4});
    expectRows(centred(S, 2, ids), S, ids, {1, 4});
}

TEST(CentredSampling, OneRowIsTheMiddleOne)
{
    for (const auto& [N, row] : {std::pair(1, 1), std::pair(2, 1), std::pair(3, 2), std::pair(8, 4), std::pair(9, 5)}) {
        const Population S = population(N, 2);
        expectRows(centred(S, 1, labels(N)), S, labels(N), {row});
    }
}

TEST(CentredSampling, NoRow)
{
    EXPECT_THAT(centred(population(4, 2), 0, labels(4)).ids, Each(SameBits(5.0)));
    for (const int n : {-1, -10, least}) {
        const auto ids = column(labels(5));
        const auto Z = stringColumn({L"p"});
        M_SamplingSystematicCentered(stringColumn({L"a", L"b", L"c", L"d", L"e"}), 5, 1, n, Z, ids);
        EXPECT_THAT(cellsOf(ids), Each(SameBits(6.0)));
        EXPECT_THAT(cellsOf(Z), ElementsAre(L"p"));
    }
}

TEST(CentredSampling, MoreThanThePopulationTakesOne)
{
    const Population S = population(3, 1);
    const Sample sample = centred(S, 5, labels(3));
    EXPECT_THAT(sample.cells, ElementsAre(L"a2", before, before, before, before));
    EXPECT_THAT(sample.ids, SameBits({4.0, 102.0, 4.0}));
}

TEST(CentredSampling, EmptyPopulation)
{
    EXPECT_THAT(centred(population(0, 2), 2, {}).cells, Each(before));
    for (const int N : {-1, -7, least}) {
        const auto ids = column({M, M});
        const auto Z = stringColumn({L"p"});
        M_SamplingSystematicCentered(stringColumn({L"a", L"b"}), N, 1, 2, Z, ids);
        EXPECT_THAT(cellsOf(Z), ElementsAre(L"p"));
    }
}

TEST(CentredSampling, NoColumns)
{
    EXPECT_THAT(centred(population(3, 0), 2, labels(3)).ids, SameBits({101.0, 4.0, 103.0}));
}

TEST(CentredSampling, WorksOnTheCornerNamed)
{
    const auto S = stringsByRows({{L"a1", L"b1"}, {L"a2", L"b2"}, {L"a3", L"b3"}, {L"a4", L"b4"}});
    const auto Z = stringsByRows({{L"p", L"q"}, {L"r", L"s"}, {L"t", L"u"}});
    const auto ids = column(labels(4));
    M_SamplingSystematicCentered(S, 3, 1, 2, Z, ids);
    EXPECT_THAT(cellsOf(Z), ElementsAre(L"a1", L"a3", L"t", L"q", L"s", L"u"));
    EXPECT_THAT(cellsOf(ids), SameBits({101.0, 4.0, 103.0, 104.0}));
}

TEST(CentredSampling, FewerLabelsThanRows)
{
    const auto Z = stringColumn({L"", L""});
    const auto ids = column(labels(2));
    M_SamplingSystematicCentered(stringColumn({L"a", L"b", L"c", L"d"}), 4, 1, 2, Z, ids);
    EXPECT_THAT(cellsOf(Z), ElementsAre(L"a", L"d"));
    EXPECT_THAT(cellsOf(ids), SameBits({101.0, 5.0}));
}

// ---- systematic, from a random start --------------------------------------------------------------------------------

TEST(RandomStartSampling, StartsWithinTheMargin)
{
    const Population S = population(10, 2);
    const Sample sample = drawn(fromRandomStart, S, 3, labels(10), {0.7}); // one of rows 1 and 2: the second
    EXPECT_EQ(sample.cells, rowsOf(S, {2, 6, 10}));
    EXPECT_THAT(sample.ids, SameBits({11.0, 102.0, 11.0, 11.0, 11.0, 106.0, 11.0, 11.0, 11.0, 110.0}));
    expectRows(drawn(fromRandomStart, S, 3, labels(10), {0.49}), S, labels(10), {1, 5, 9});
}

TEST(RandomStartSampling, StopsWhenTheSampleIsFull)
{
    const Population S = population(10, 3);
    const Cells ids = labels(10); // step 1, margin 4
    expectRows(drawn(fromRandomStart, S, 7, ids, {0.0}), S, ids, {1, 2, 3, 4, 5, 6, 7});
    expectRows(drawn(fromRandomStart, S, 7, ids, {0.5}), S, ids, {3, 4, 5, 6, 7, 8, 9});
    expectRows(drawn(fromRandomStart, S, 7, ids, {std::nextafter(1.0, 0.0)}), S, ids, {4, 5, 6, 7, 8, 9, 10});
}

TEST(RandomStartSampling, OneSeriesOfOneDrawWhateverTheFlag)
{
    const Population S = population(2, 1);
    for (const short flag : {short{0}, short{1}, short{-1}, short{9}})
        expectRows(drawn(fromRandomStart, S, 2, labels(2), {0.9}, flag), S, labels(2), {1, 2});
}

TEST(RandomStartSampling, SeriesClosesBeforeTheRows)
{
    const auto S = stringColumn({L"a", L"b", L"c"});
    const auto Z = stringColumn({L"", L""});
    const auto ids = column({7, 8, 9});
    script.begin({0.5});
    script.watch(&ids->X[1]);
    SeedArguments s;
    M_SamplingSystematicRdStart(S, 3, 1, 2, Z, ids, &s.seed, s.flag, &s.out);
    EXPECT_THAT(script.seenAtClose(), SameBits(8.0));
    EXPECT_THAT(cellsOf(ids), SameBits({7.0, 4.0, 9.0}));
}

TEST(RandomStartSampling, OneRowIsAnyOfThePopulation)
{
    const Population S = population(5, 2);
    for (const auto& [draw, row] : {std::pair(0.0, 1), std::pair(0.5, 3), std::pair(0.79, 4), std::pair(0.8, 5)})
        expectRows(drawn(fromRandomStart, S, 1, labels(5), {draw}), S, labels(5), {row});
    const Population one = population(1, 1);
    expectRows(drawn(fromRandomStart, one, 1, labels(1), {0.9}), one, labels(1), {1});
}

TEST(RandomStartSampling, NoRowStillDraws)
{
    EXPECT_THAT(drawn(fromRandomStart, population(4, 2), 0, labels(4), {0.9}).ids, Each(SameBits(5.0)));
    EXPECT_THAT(drawn(fromRandomStart, population(0, 2), 2, {}, {0.9}).cells, Each(before));
    for (const int n : {-1, -10, least}) {
        const auto ids = column(labels(5));
        script.begin({0.9});
        SeedArguments s;
        M_SamplingSystematicRdStart(stringColumn({L"a"}), 5, 1, n, stringColumn({L"p"}), ids, &s.seed, s.flag, &s.out);
        s.expectOneSeries(1);
        EXPECT_THAT(cellsOf(ids), Each(SameBits(6.0)));
    }
}

TEST(RandomStartSampling, MoreThanThePopulationTakesOne)
{
    const Sample sample = drawn(fromRandomStart, population(3, 1), 5, labels(3), {0.9});
    EXPECT_THAT(sample.cells, ElementsAre(L"a3", before, before, before, before));
    EXPECT_THAT(sample.ids, SameBits({4.0, 4.0, 103.0}));
}

TEST(SystematicSampling, AgreesWithAPlainSecondForm)
{
    RandomData data(20240614);
    SCOPED_TRACE(data);
    for (int round = 0; round < 80; ++round) {
        const Population S = population(data.integer(2, 30), data.integer(0, 3));
        const int n = data.integer(2, S.N);
        const Cells ids = data.leftovers(static_cast<std::size_t>(S.N));
        const int step = (S.N - 1) / (n - 1);
        const int margin = S.N - (n - 1) * step;
        const double draw = data.uniform();
        const auto rowsFrom = [&](int start) {
            std::vector<int> rows;
            for (int i = 0; i < n; ++i)
                rows.push_back(start + i * step);
            return rows;
        };
        expectRows(drawn(fromRandomStart, S, n, ids, {draw}), S, ids, rowsFrom(1 + static_cast<int>(draw * margin)));
        expectRows(centred(S, n, ids), S, ids, rowsFrom((margin + 1) / 2));
    }
}

// ---- one random row for each interval -------------------------------------------------------------------------------

TEST(IntervalSampling, OneRowOfEachSpan)
{
    // Step 4, margin 2: a row of 1 and 2, one of 5 and 6, one of 9 and 10.
    const Population S = population(10, 2);
    const Sample sample = drawn(eachInterval, S, 3, labels(10), {0.5, 0.49, 0.9});
    EXPECT_EQ(sample.cells, rowsOf(S, {2, 5, 10}));
    EXPECT_THAT(sample.ids, SameBits({102.0, 105.0, 110.0, 11.0, 11.0, 11.0, 11.0, 11.0, 11.0, 11.0}));
}

TEST(IntervalSampling, SpansOverlap)
{
    // Step 2, margin 3, from row 2: a row of 1 to 3, one of 3 to 5, one of 5 to 7, one of 7 to 9.
    const Population S = population(9, 2);
    const Sample sample = drawn(eachInterval, S, 4, labels(9), {0.9, 0.1, 0.9, 0.2});
    EXPECT_EQ(sample.cells, rowsOf(S, {3, 3, 7, 7}));
    EXPECT_THAT(sample.ids, SameBits({103.0, 103.0, 107.0, 107.0, 10.0, 10.0, 10.0, 10.0, 10.0}));
}

TEST(IntervalSampling, SpansGoOnToTheEndOfThePopulation)
{
    // Step 1, margin 4, from row 2: nine spans for a sample of seven. All nine labels are there; the rows after the
    // sample are the next column's in a table.
    const Population S = population(10, 2);
    const BothStorages sample = drawnInBothStorages(eachInterval, S, 7, labels(10), Cells(9, 0.0));
    const Cells ids = {101, 102, 103, 104, 105, 106, 107, 108, 109, 11};
    EXPECT_THAT(sample.table.ids, SameBits(ids));
    EXPECT_THAT(sample.columns.ids, SameBits(ids));
    EXPECT_EQ(sample.columns.cells, rowsOf(S, {1, 2, 3, 4, 5, 6, 7}));
    EXPECT_THAT(sample.table.cells, ElementsAre(L"a1", L"a2", L"a3", L"a4", L"a5", L"a6", L"a7", L"a8", L"a9", L"b3",
                                                L"b4", L"b5", L"b6", L"b7"));
}

TEST(IntervalSampling, LastSpansReachBeyondThePopulation)
{
    // The last of each span: rows 4 to 12 of ten. What is not there has the label -1.0.
    const BothStorages sample =
        drawnInBothStorages(eachInterval, population(10, 1), 7, labels(10), Cells(9, std::nextafter(1.0, 0.0)));
    const Cells ids = {104, 105, 106, 107, 108, 109, 110, -1, -1, 11};
    EXPECT_THAT(sample.table.ids, SameBits(ids));
    EXPECT_THAT(sample.columns.ids, SameBits(ids));
    const Texts rows = {L"a4", L"a5", L"a6", L"a7", L"a8", L"a9", L"a10"};
    EXPECT_EQ(sample.table.cells, rows);
    EXPECT_EQ(sample.columns.cells, rows);
}

TEST(IntervalSampling, LabelsAreReadBeforeAnyIsReplaced)
{
    // Row 1 is the second taken, after a label has been found for it.
    const Population S = population(4, 1);
    const Cells ids = {7, M, -0.0, 0.5};
    EXPECT_THAT(drawn(eachInterval, S, 2, ids, {0.2, 0.3}).ids, SameBits({7.0, 0.5, 5.0, 5.0}));
}

TEST(IntervalSampling, SeriesClosesBeforeTheLabelsAreReplaced)
{
    const auto Z = stringColumn({L"", L""});
    const auto ids = column({7, 8, 9});
    script.begin({0.5, 0.5});
    script.watch(&ids->X[1]);
    SeedArguments s;
    M_SamplingRandomStratified(stringColumn({L"a", L"b", L"c"}), 3, 1, 2, Z, ids, &s.seed, s.flag, &s.out);
    s.expectOneSeries(2);
    EXPECT_THAT(script.seenAtClose(), SameBits(8.0));
    EXPECT_THAT(cellsOf(ids), SameBits({7.0, 9.0, 4.0}));
}

TEST(IntervalSampling, OneSeriesWhateverTheFlag)
{
    const Population S = population(3, 1);
    for (const short flag : {short{0}, short{1}, short{-1}, short{9}})
        EXPECT_EQ(drawn(eachInterval, S, 2, labels(3), {0.9, 0.1}, flag).cells, rowsOf(S, {1, 3}));
}

TEST(IntervalSampling, StartAfterThePopulationDrawsNothing)
{
    EXPECT_THAT(drawn(eachInterval, population(0, 2), 2, {}, {}).cells, Each(before));
    for (const int N : {0, -1, -7, least}) { // no cell of ids is one of the population
        const auto Z = stringColumn({L"p"});
        const auto ids = column({7});
        script.begin({});
        SeedArguments s;
        M_SamplingRandomStratified(stringColumn({L"a"}), N, 1, 2, Z, ids, &s.seed, s.flag, &s.out);
        s.expectOneSeries(0);
        EXPECT_THAT(cellsOf(Z), ElementsAre(L"p"));
        EXPECT_THAT(cellsOf(ids), SameBits({7.0}));
    }
}

TEST(IntervalSampling, WalkWithoutAStepEndsWithTheSample)
{
    const Population S = population(4, 2);
    const Sample one = drawn(eachInterval, S, 1, labels(4), {0.6});
    expectSame(one, {rowsOf(S, {3}), {103.0, 5.0, 5.0, 5.0}});
    // More than the population: each row is any of it, and the labels are those that have a cell.
    const Sample more = drawn(eachInterval, S, 6, labels(4), {0.6, 0.0, 0.99, 0.3, 0.6, 0.1});
    expectSame(more, {rowsOf(S, {3, 1, 4, 2, 3, 1}), {103.0, 101.0, 104.0, 102.0}});
    EXPECT_THAT(drawn(eachInterval, S, 0, labels(4), {}).ids, Each(SameBits(5.0)));
    for (const int n : {-1, -10, least}) {
        const auto ids = column(labels(5));
        script.begin({});
        SeedArguments s;
        M_SamplingRandomStratified(stringColumn({L"a"}), 5, 1, n, stringColumn({L"p"}), ids, &s.seed, s.flag, &s.out);
        s.expectOneSeries(0);
        EXPECT_THAT(cellsOf(ids), Each(SameBits(6.0)));
    }
}

TEST(IntervalSampling, WorksOnTheCornerNamed)
{
    const auto Z = stringsByRows({{L"p", L"q"}, {L"r", L"s"}, {L"t", L"u"}});
    const auto ids = column(labels(4));
    script.begin({0.1, 0.1});
    SeedArguments s;
    M_SamplingRandomStratified(stringsByRows({{L"a1", L"b1"}, {L"a2", L"b2"}, {L"a3", L"b3"}, {L"a4", L"b4"}}), 3, 1, 2,
                               Z, ids, &s.seed, s.flag, &s.out);
    EXPECT_THAT(cellsOf(Z), ElementsAre(L"a1", L"a3", L"t", L"q", L"s", L"u"));
    EXPECT_THAT(cellsOf(ids), SameBits({101.0, 103.0, 4.0, 104.0}));
    EXPECT_EQ(ids->nRows, 4);
}

/// A contiguous table of strings, or column by column, with the checks of its storage; numbers from 1.
struct PlainRows
{
    int rows;
    int cols;
    bool slides;
    Texts cells;

    std::wstring* at(int i, int j)
    {
        const int k = i - 1 + (j - 1) * rows;
        const bool inside = slides ? k < rows * cols : i <= rows;
        return inside ? &cells.at(static_cast<std::size_t>(k)) : nullptr;
    }
};

/// Step by step, for 2 <= n <= N.
Sample plainIntervals(const Population& S, int n, const Cells& ids, const Cells& draws, bool slides)
{
    PlainRows from{S.N, S.p, slides, S.cells};
    PlainRows to{n, S.p, slides, Texts(static_cast<std::size_t>(n * S.p), before)};
    const int step = (S.N - 1) / (n - 1);
    const int margin = S.N - (n - 1) * step;
    const int start = (margin + 1) / 2;
    Sample sample{{}, Cells(ids.size(), S.N + 1.0)};
    int c = 0;
    for (int r = start; r <= S.N; r += step) {
        const int q = r - start + 1 + static_cast<int>(draws.at(static_cast<std::size_t>(c)) * margin);
        sample.ids.at(static_cast<std::size_t>(c++)) = q <= S.N ? ids.at(static_cast<std::size_t>(q) - 1) : -1.0;
        for (int j = 1; j <= S.p; ++j)
            if (std::wstring* const cell = to.at(c, j))
                *cell = from.at(q, j) != nullptr ? *from.at(q, j) : L"";
    }
    sample.cells = to.cells;
    return sample;
}

TEST(IntervalSampling, AgreesWithAPlainSecondForm)
{
    RandomData data(20240615);
    SCOPED_TRACE(data);
    for (int round = 0; round < 120; ++round) {
        const Population S = population(data.integer(2, 30), data.integer(0, 3));
        const int n = data.integer(2, S.N);
        const Cells ids = data.leftovers(static_cast<std::size_t>(S.N));
        const int step = (S.N - 1) / (n - 1);
        const int start = (S.N - (n - 1) * step + 1) / 2;
        const Cells draws = data.uniforms(static_cast<std::size_t>((S.N - start) / step + 1));
        const BothStorages sample = drawnInBothStorages(eachInterval, S, n, ids, draws);
        expectSame(sample.table, plainIntervals(S, n, ids, draws, true));
        expectSame(sample.columns, plainIntervals(S, n, ids, draws, false));
    }
}

TEST(SystematicSampling, DimensionsAtTheEndsOfTheRangeAreSafe)
{
    const auto S = stringColumn({L"a", L"b", L"c"});
    for (const auto& [N, n] : {std::pair(3, most), std::pair(1, most), std::pair(0, most), std::pair(least, most),
                               std::pair(least, 3), std::pair(least, least), std::pair(3, least)})
    {
        const auto Z = stringColumn({L"p", L"q"});
        const auto ids = column(labels(3));
        script.begin({0.5});
        SeedArguments s;
        M_SamplingSystematicRdStart(S, N, 1, n, Z, ids, &s.seed, s.flag, &s.out);
        s.expectOneSeries(1);
        M_SamplingSystematicCentered(S, N, 1, n, Z, ids);
        // With a population one row is taken for a sample of any size but none.
        EXPECT_EQ(Z->X[0] != L"p", N >= 1 && n >= 1);
        EXPECT_EQ(Z->X[1], L"q");
    }
}

} // namespace
} // namespace vecmat::test
