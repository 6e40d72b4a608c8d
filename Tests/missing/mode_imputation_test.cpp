#include "missing/mode_imputation.h"

#include "support/guarded.h"
#include "support/random_data.h"
#include "support/strings.h"
#include "support/tables.h"

#include <gmock/gmock.h>

namespace vecmat::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

using Flags = Guarded<short>;
using Texts = std::vector<std::wstring>;

/// The function with statistics from the data itself, and its flat forms, which get a mask of clear flags.
Texts filledByModes(int rows, int cols, const Texts& texts, const std::vector<double>& weights)
{
    auto S = stringTable(rows, cols, texts);
    EstimateRowsWithMissingMode(S, rows, S, rows, cols, column(weights));
    Texts result = cellsOf(S);
    Guarded<double> w(weights);
    Flags mask(std::vector<short>(static_cast<std::size_t>(rows), 0));
    BstrArray flat(texts);
    VB_EstimateRowsWithMissingMode(flat, rows, cols, mask, w);
    EXPECT_EQ(flat.countNew(), texts.size());
    EXPECT_EQ(flat.texts(), result);
    BstrArray statistics(texts);
    BstrArray target(texts);
    VB_EstimateRowsWithMissingModePred(statistics, rows, target, rows, cols, mask, w);
    EXPECT_EQ(target.texts(), result);
    EXPECT_EQ(statistics.countNew(), 0u);
    EXPECT_TRUE(w.untouched() && mask.untouched());
    return result;
}

TEST(ModeImputation, FillsEveryEmptyCellWithTheModeOfItsColumn)
{
    EXPECT_THAT(filledByModes(5, 2, {L"b", L"a", L"", L"b", L"", /**/ L"", L"x", L"y", L"y", L""}, {1, 1, 1, 1, 1}),
                ElementsAre(L"b", L"a", L"b", L"b", L"b", L"y", L"x", L"y", L"y", L"y"));
}

TEST(ModeImputation, MaskIsNotRead)
{
    for (const short flag : {short(0), short(-1), short(1)}) {
        BstrArray S({L"a", L"", L""});
        Guarded<double> weights = {1, 1, 1};
        Flags mask = {flag, flag, 0};
        VB_EstimateRowsWithMissingMode(S, 3, 1, mask, weights);
        EXPECT_THAT(S.takeTexts(), ElementsAre(L"a", L"a", L"a"));
        VB_EstimateRowsWithMissingModePred(S, 3, S, 3, 1, nullptr, weights);
        EXPECT_THAT(S.takeTexts(), ElementsAre(L"a", L"a", L"a"));
    }
}

TEST(ModeImputation, ModesAreWeightedAndTiesGoToTheFirstMet)
{
    EXPECT_THAT(filledByModes(4, 1, {L"b", L"a", L"a", L""}, {3, 1, 1, 9}), ElementsAre(L"b", L"a", L"a", L"b"));
    EXPECT_THAT(filledByModes(4, 1, {L"b", L"a", L"a", L""}, {1, 1, 1, 9}), ElementsAre(L"b", L"a", L"a", L"a"));
    EXPECT_THAT(filledByModes(3, 1, {L"b", L"a", L""}, {1, 1, 1}), ElementsAre(L"b", L"a", L"b"));
    // A category of weight 0 is one, and a row of weight 0 is filled.
    EXPECT_THAT(filledByModes(2, 1, {L"b", L""}, {0, 0}), ElementsAre(L"b", L"b"));
}

TEST(ModeImputation, TieDoesNotGoByTheOrderOfTheTexts)
{
    EXPECT_THAT(filledByModes(3, 1, {L"10", L"9", L""}, {1, 1, 1}), ElementsAre(L"10", L"9", L"10"));
}

TEST(ModeImputation, ColumnWithoutACategoryTakesTheTextThatFollowsInStorage)
{
    EXPECT_THAT(filledByModes(2, 2, {L"", L"", L"next", L"x"}, {1, 1}), ElementsAre(L"next", L"next", L"next", L"x"));
    // The last one has none to take, and stays empty; an empty first cell of the next column is no better.
    EXPECT_THAT(filledByModes(2, 2, {L"a", L"a", L"", L""}, {1, 1}), ElementsAre(L"a", L"a", L"", L""));
    EXPECT_THAT(filledByModes(2, 2, {L"", L"", L"", L"x"}, {1, 1}), ElementsAre(L"", L"", L"x", L"x"));
}

TEST(ModeImputation, ModesAreFoundBeforeACellIsFilled)
{
    // Were column 1 filled first, nothing would change; were the modes found as cells are filled, "a" would gain
    // weight.
    EXPECT_THAT(filledByModes(5, 1, {L"a", L"", L"", L"b", L"b"}, {1, 5, 5, 1, 1}),
                ElementsAre(L"a", L"b", L"b", L"b", L"b"));
}

TEST(ModeImputation, StatisticsOfAnotherTable)
{
    auto S = stringsByRows({{L"", L"q"}, {L"z", L""}, {L"", L""}});
    const Smatrix* const before = S.get();
    const Texts statistics = {L"a", L"b", L"b", L"", /**/ L"", L"u", L"v", L""}; // 4 by 2
    const Texts expected = {L"b", L"z", L"b", L"q", L"u", L"u"};
    EstimateRowsWithMissingMode(stringTable(4, 2, statistics), 4, S, 3, 2, column({1, 1, 1, 1}));
    EXPECT_EQ(S.get(), before);
    EXPECT_EQ(cellsOf(S), expected);

    BstrArray flatStatistics(statistics);
    BstrArray flat({L"", L"z", L"", L"q", L"", L""});
    flat.setNull(2);
    Guarded<double> weights = {1, 1, 1, 1};
    VB_EstimateRowsWithMissingModePred(flatStatistics, 4, flat, 3, 2, nullptr, weights);
    EXPECT_EQ(flat.texts(), expected);
    EXPECT_EQ(flat.countNew(), 6u);
    EXPECT_EQ(flatStatistics.countNew(), 0u);
}

TEST(ModeImputation, WorksOnTheCornerThatIsNamed)
{
    auto S = stringsByRows({{L"a", L"", L""}, {L"", L"b", L""}, {L"", L"", L""}});
    EstimateRowsWithMissingMode(S, 2, S, 2, 2, column({1, 1}));
    EXPECT_THAT(cellsOf(S), ElementsAre(L"a", L"a", L"", L"b", L"b", L"", L"", L"", L""));
    EstimateRowsWithMissingMode(S, 2, S, 0, 2, column({1, 1}));
    EstimateRowsWithMissingMode(S, 2, S, 2, 0, column({1, 1}));
    EXPECT_THAT(cellsOf(S), ElementsAre(L"a", L"a", L"", L"b", L"b", L"", L"", L"", L""));
}

TEST(ModeImputation, AgreesWithAPlainCount)
{
    RandomData data(501);
    SCOPED_TRACE(data);
    for (int trial = 0; trial < 40; ++trial) {
        const auto rows = static_cast<std::size_t>(data.integer(2, 12));
        const auto cols = static_cast<std::size_t>(data.integer(1, 3));
        const auto weights = data.weights(rows, 0.2);
        Texts texts;
        for (std::size_t k = 0; k < rows * cols; ++k)
            texts.push_back(k % rows > 0 && data.chance(0.4) ? L""
                                                             : std::wstring(1, wchar_t(L'a' + data.integer(0, 3))));
        Texts expected = texts;
        for (std::size_t j = 0; j < cols; ++j) {
            Texts seen;
            std::vector<double> total;
            for (std::size_t i = 0; i < rows; ++i) {
                const std::wstring& text = texts[i + rows * j];
                if (text.empty())
                    continue;
                std::size_t c = 0;
                while (c < seen.size() && seen[c] != text)
                    ++c;
                if (c == seen.size()) {
                    seen.push_back(text);
                    total.push_back(0.0);
                }
                total[c] += weights[i];
            }
            std::size_t best = 0;
            for (std::size_t c = 1; c < seen.size(); ++c)
                best = total[c] > total[best] ? c : best;
            for (std::size_t i = 0; i < rows; ++i)
                if (texts[i + rows * j].empty())
                    expected[i + rows * j] = seen[best];
        }
        EXPECT_EQ(filledByModes(static_cast<int>(rows), static_cast<int>(cols), texts, weights), expected);
    }
}

} // namespace
} // namespace vecmat::test
