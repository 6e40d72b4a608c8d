// Look-ups among many categories against the linear searches that they replace.
#include "qualitative/disjunctive_tables.h"
#include "qualitative/distinct.h"
#include "qualitative/modes.h"
#include "qualitative/summary_tables.h"

#include <cmath>
#include <limits>

namespace vecmat::test {

namespace {

/// Rows of one to three columns, each of up to 300 categories with common beginnings, a share of the cells empty.
struct ManyCategories
{
    explicit ManyCategories(RandomData& data)
        : rows(data.integer(1, 900)), cols(data.integer(1, 3)),
          weights(data.withSpecials(data.weights(static_cast<std::size_t>(rows), 0.1), 0.05))
    {
        const double emptyShare = data.chance(0.5) ? 0.1 : 0.0;
        for (int j = 0; j < cols; ++j) {
            const int most = data.chance(0.3) ? 3 : 300;
            for (int i = 0; i < rows; ++i)
                texts.push_back(data.chance(emptyShare) ? L"" : L"level " + std::to_wstring(data.integer(1, most)));
        }
    }

    int rows;
    int cols;
    Texts texts;
    Doubles weights;
};

template <class Check>
void forManyCategories(Check check)
{
    for (std::uint64_t seed = 1; seed <= 25; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        check(data, ManyCategories(data));
        if (::testing::Test::HasFailure())
            return;
    }
}

TEST(ManyCategories, SummariesAreThePlainWalk)
{
    forManyCategories([](RandomData& data, const ManyCategories& in) {
        const auto strings = stringTable(in.rows, in.cols, in.texts);
        const auto weights = column(in.weights);
        SummaryTables expected;
        SummaryTables actual;
        plainSummary(strings, in.rows, in.cols, in.rows, nullptr, expected, weights, 0);
        M_InfoQuali(strings, in.rows, in.cols, actual.modes, actual.modeWeights, actual.nCats, actual.categories,
                    actual.catWeights, weights, &actual.total, 0);
        EXPECT_EQ(actual.total, expected.total);
        EXPECT_EQ(cellsOf(actual.modes), cellsOf(expected.modes));
        EXPECT_EQ(cellsOf(actual.nCats), cellsOf(expected.nCats));
        EXPECT_EQ(cellsOf(actual.categories), cellsOf(expected.categories));
        EXPECT_THAT(cellsOf(actual.catWeights), SameBits(cellsOf(expected.catWeights)));

        // Fewer places than categories: those beyond are met anew each time.
        const int maxCats = data.integer(1, 40);
        const auto counts = intColumn(data.integers(static_cast<std::size_t>(in.cols), 1, maxCats));
        SummaryTables fewExpected;
        SummaryTables few;
        plainSummary(strings, in.rows, in.cols, maxCats, counts, fewExpected, weights, 0);
        M_InfoQuali2(strings, in.rows, in.cols, maxCats, counts, few.modes, few.modeWeights, few.categories,
                     few.catWeights, weights, &few.total, 0);
        EXPECT_EQ(cellsOf(few.modes), cellsOf(fewExpected.modes));
        EXPECT_EQ(cellsOf(few.categories), cellsOf(fewExpected.categories));
        EXPECT_THAT(cellsOf(few.catWeights), SameBits(cellsOf(fewExpected.catWeights)));
    });
}

TEST(ManyCategories, CountsAndModesAreThePlainWalk)
{
    forManyCategories([](RandomData&, const ManyCategories& in) {
        Texts distinct;
        Doubles sums;
        for (int i = 0; i < in.rows; ++i) {
            const std::wstring& text = in.texts[static_cast<std::size_t>(i)];
            std::size_t k = 0;
            while (k < distinct.size() && distinct[k] != text)
                ++k;
            if (k == distinct.size()) {
                distinct.push_back(text);
                sums.push_back(in.weights[static_cast<std::size_t>(i)]);
            } else {
                sums[k] += in.weights[static_cast<std::size_t>(i)];
            }
        }
        const auto strings = stringTable(in.rows, in.cols, in.texts);
        const auto counts = intColumn(Ints(static_cast<std::size_t>(in.cols), -7));
        GetMaxCat(strings, in.rows, in.cols, counts);
        const int found = static_cast<int>(distinct.size());
        EXPECT_EQ(counts->X[0], found);
        EXPECT_EQ(V_NbDistinct(strings, in.rows), found);

        std::wstring mode;
        double largest = 0.0;
        bool any = false;
        for (std::size_t k = 0; k < distinct.size(); ++k)
            if (!distinct[k].empty() && (!any || sums[k] > largest)) {
                any = true;
                mode = distinct[k];
                largest = sums[k];
            }
        EXPECT_EQ(V_Mode(strings, in.rows, column(in.weights)), mode);
    });
}

TEST(ManyCategories, DisjunctiveTablesAreThePlainWalk)
{
    forManyCategories([](RandomData& data, const ManyCategories& in) {
        const int rows = std::min(in.rows, 120);
        const int coding = data.integer(0, 4);
        const int keepBaseline = data.integer(0, 3);
        const int maxCats = data.integer(1, 60);
        const Ints counts = data.integers(static_cast<std::size_t>(in.cols), 0, maxCats);
        Texts categories;
        for (int k = 0; k < in.cols * maxCats; ++k) // some of them more than once, some empty
            categories.push_back(data.chance(0.05) ? L"" : L"level " + std::to_wstring(data.integer(1, 80)));
        const Doubles freq = data.withSpecials(data.uniforms(categories.size(), 0.1, 5.0), 0.05);
        int total = 0;
        for (const int count : counts)
            total += count;

        const auto strings = stringTable(in.rows, in.cols, in.texts);
        const auto known = stringTable(in.cols, maxCats, categories);
        const auto f = table(in.cols, maxCats, freq);
        Owned<matrix> expected = filled(rows, total, 0.0);
        int offset = 0;
        for (int j = 1; j <= in.cols; ++j) {
            const int count = counts[static_cast<std::size_t>(j) - 1];
            for (int i = 1; i <= rows; ++i)
                for (int c = 1; c <= count; ++c) {
                    const std::wstring cell = strings->vbget(i, j);
                    const bool shown = c > 1 || coding == 0 || keepBaseline == 2 || (keepBaseline == 1 && j == 1);
                    if (cell.empty())
                        expected->vbset(i, offset + c, M);
                    else if (cell == known->vbget(j, c)) {
                        if (shown)
                            expected->vbset(i, offset + c, 1.0);
                    } else if (c > 1 && cell == known->vbget(j, 1)) {
                        if (coding == 2)
                            expected->vbset(i, offset + c, -1.0);
                        else if (coding == 3)
                            expected->vbset(i, offset + c, -f->vbget(j, c) / f->vbget(j, 1));
                    }
                }
            offset += count;
        }
        Owned<matrix> out;
        BuildDisjunctiveTable(strings, rows, in.cols, total, intColumn(counts), known, f, out, coding, keepBaseline);
        EXPECT_THAT(cellsOf(out), SameBits(cellsOf(expected)));
    });
}

} // namespace

} // namespace vecmat::test
