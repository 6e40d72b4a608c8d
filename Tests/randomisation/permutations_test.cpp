#include "randomisation/permutations.h"

#include "randomisation/scripted_draws.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/strings.h"
#include "support/tables.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace vecmat::test {
namespace {

using testing::ElementsAre;
using Cells = std::vector<double>;
using Ints = std::vector<int>;
using Texts = std::vector<std::wstring>;

/// They send items 1 to 5 to places 3, 1, 5, 2, 4: the order of the items is 2, 4, 1, 5, 3.
const Cells fiveKeys = {0.4, 0.1, 0.9, 0.2, 0.6};

// ---- permutations: all of them, by the same keys --------------------------------------------------------------------

struct Permuted
{
    Cells items;
    std::vector<Series> series;
};

/// Permutes 1 to n by these keys in every way that there is, and checks that all agree.
Permuted permutedInEveryWay(const Cells& keys)
{
    const auto n = static_cast<int>(keys.size());
    Ints numbers(keys.size());
    std::iota(numbers.begin(), numbers.end(), 1);
    const Cells items(numbers.begin(), numbers.end());
    Texts texts;
    for (const int number : numbers)
        texts.push_back(std::to_wstring(number));

    script.begin(keys);
    SeedArguments first;
    auto dealt = column(Cells(keys.size(), M));
    Random1toN(n, dealt, first.seed, first.flag, first.out);
    const Permuted result{cellsOf(dealt), script.series()};
    const Ints asInts(result.items.begin(), result.items.end());
    Texts asTexts;
    for (const int number : asInts)
        asTexts.push_back(std::to_wstring(number));

    const auto agrees = [&](auto permute) {
        script.begin(keys);
        SeedArguments s;
        permute(s);
        s.expectOneSeries(n);
    };
    agrees([&](SeedArguments& s) {
        auto out = intColumn(Ints(keys.size(), -9));
        Random1toN(n, out, s.seed, s.flag, s.out);
        EXPECT_EQ(cellsOf(out), asInts);
    });
    agrees([&](SeedArguments& s) {
        Guarded<double> out(keys.size(), M);
        Cpp_Random1toNDbl(n, out, &s.seed, s.flag, &s.out);
        EXPECT_THAT(out.values(), SameBits(result.items));
    });
    agrees([&](SeedArguments& s) {
        Guarded<int> out(keys.size(), -9);
        Cpp_Random1toNLng(n, out, &s.seed, s.flag, &s.out);
        EXPECT_EQ(out.values(), asInts);
    });
    agrees([&](SeedArguments& s) {
        auto v = column(items);
        V_Shuffle(v, n, s.seed, s.flag, s.out);
        EXPECT_THAT(cellsOf(v), SameBits(result.items));
    });
    agrees([&](SeedArguments& s) {
        auto v = intColumn(numbers);
        V_Shuffle(v, n, s.seed, s.flag, s.out);
        EXPECT_EQ(cellsOf(v), asInts);
    });
    agrees([&](SeedArguments& s) {
        Guarded<double> v(items);
        Cpp_V_Shuffle(v, n, &s.seed, s.flag, &s.out);
        EXPECT_THAT(v.values(), SameBits(result.items));
    });
    agrees([&](SeedArguments& s) {
        Guarded<int> v(numbers);
        Cpp_V_ShuffleLng(v, n, &s.seed, s.flag, &s.out);
        EXPECT_EQ(v.values(), asInts);
    });
    agrees([&](SeedArguments& s) {
        auto X = column(items);
        auto Z = column(Cells(keys.size(), M));
        M_Shuffle(X, n, 1, Z, s.seed, s.flag, s.out);
        EXPECT_THAT(cellsOf(Z), SameBits(result.items));
        EXPECT_THAT(cellsOf(X), SameBits(items));
    });
    agrees([&](SeedArguments& s) {
        auto X = column(items);
        M_Shuffle2(X, n, 1, s.seed, s.flag, s.out);
        EXPECT_THAT(cellsOf(X), SameBits(result.items));
    });
    agrees([&](SeedArguments& s) {
        Guarded<double> X(items);
        Guarded<double> Z(keys.size(), M);
        Cpp_M_ShuffleDbl(X, n, 1, Z, &s.seed, s.flag, &s.out);
        EXPECT_THAT(Z.values(), SameBits(result.items));
        EXPECT_TRUE(X.untouched());
    });
    agrees([&](SeedArguments& s) {
        Guarded<double> X(items);
        Cpp_M_ShuffleDbl2(X, n, 1, &s.seed, s.flag, &s.out);
        EXPECT_THAT(X.values(), SameBits(result.items));
    });
    agrees([&](SeedArguments& s) {
        auto X = stringColumn(texts);
        auto Z = stringColumn(Texts(keys.size(), L"old"));
        M_Shuffle(X, n, 1, Z, s.seed, s.flag, s.out);
        EXPECT_EQ(cellsOf(Z), asTexts);
        EXPECT_EQ(cellsOf(X), texts);
    });
    agrees([&](SeedArguments& s) {
        auto X = stringColumn(texts);
        M_Shuffle2(X, n, 1, s.seed, s.flag, s.out);
        EXPECT_EQ(cellsOf(X), asTexts);
    });
    agrees([&](SeedArguments& s) {
        BstrArray X(texts);
        BstrArray Z(keys.size());
        Cpp_M_ShuffleStr(X, n, 1, Z, &s.seed, s.flag, &s.out);
        EXPECT_EQ(Z.texts(), asTexts);
        EXPECT_EQ(X.countNew(), 0u);
        EXPECT_EQ(X.texts(), texts);
    });
    agrees([&](SeedArguments& s) {
        BstrArray X(texts);
        Cpp_M_ShuffleStr2(X, n, 1, &s.seed, s.flag, &s.out);
        EXPECT_EQ(X.texts(), asTexts);
        EXPECT_EQ(X.countNew(), X.size());
    });
    return result;
}

TEST(Permutations, FiveKeys)
{
    const Permuted result = permutedInEveryWay(fiveKeys);
    EXPECT_THAT(result.items, SameBits({2.0, 4.0, 1.0, 5.0, 3.0}));
    EXPECT_THAT(result.series, ElementsAre(Series{77, -1, 5, 1005}));
}

TEST(Permutations, EqualKeysKeepTheOrder)
{
    EXPECT_THAT(permutedInEveryWay({0.5, 0.5, 0.25, 0.5, 0.25, 0.0}).items, SameBits({6.0, 3.0, 5.0, 1.0, 2.0, 4.0}));
}

TEST(Permutations, OneItemDrawsOnceAndStays)
{
    const Permuted result = permutedInEveryWay({0.99});
    EXPECT_THAT(result.items, SameBits({1.0}));
    EXPECT_THAT(result.series, ElementsAre(Series{77, -1, 1, 1001}));
}

TEST(Permutations, NoItemsRunTheSeriesOnly)
{
    const Permuted result = permutedInEveryWay({});
    EXPECT_TRUE(result.items.empty());
    EXPECT_THAT(result.series, ElementsAre(Series{77, -1, 0, 1000}));
}

TEST(Permutations, NegativeCountsRunTheSeriesOnly)
{
    const auto inSeries = [](auto permute) {
        script.begin({});
        SeedArguments s;
        permute(s);
        s.expectOneSeries(0);
    };
    auto v = column({3, 4});
    auto ints = intColumn({3, 4});
    auto texts = stringColumn({L"c", L"d"});
    auto Z = column({0, 0});
    auto textsZ = stringColumn({L"x", L"y"});
    inSeries([&](SeedArguments& s) { V_Shuffle(v, -1, s.seed, s.flag, s.out); });
    inSeries([&](SeedArguments& s) { V_Shuffle(ints, -1, s.seed, s.flag, s.out); });
    inSeries([&](SeedArguments& s) { Random1toN(-1, v, s.seed, s.flag, s.out); });
    inSeries([&](SeedArguments& s) { Random1toN(-1, ints, s.seed, s.flag, s.out); });
    inSeries([&](SeedArguments& s) { M_Shuffle2(v, -1, 1, s.seed, s.flag, s.out); });
    inSeries([&](SeedArguments& s) { M_Shuffle2(texts, -1, 1, s.seed, s.flag, s.out); });
    inSeries([&](SeedArguments& s) { M_Shuffle(v, -1, 1, Z, s.seed, s.flag, s.out); });
    inSeries([&](SeedArguments& s) { M_Shuffle(texts, -1, 1, textsZ, s.seed, s.flag, s.out); });
    EXPECT_THAT(cellsOf(v), SameBits({3.0, 4.0}));
    EXPECT_THAT(cellsOf(ints), ElementsAre(3, 4));
    EXPECT_THAT(cellsOf(texts), ElementsAre(L"c", L"d"));
    EXPECT_THAT(cellsOf(Z), SameBits({3.0, 4.0})); // the copy of all of X comes first
    EXPECT_THAT(cellsOf(textsZ), ElementsAre(L"x", L"y"));
}

TEST(Permutations, AreSortsByTheKeys)
{
    RandomData data(20260701);
    SCOPED_TRACE(data);
    for (int repeat = 0; repeat < 20; ++repeat) {
        const auto n = static_cast<std::size_t>(data.integer(2, 40));
        Cells keys = data.uniforms(n);
        for (double& key : keys)
            key = std::floor(key * 16.0) / 16.0; // ties
        Cells expected(n);
        std::iota(expected.begin(), expected.end(), 1.0);
        std::stable_sort(expected.begin(), expected.end(), [&](double a, double b) {
            return keys[static_cast<std::size_t>(a) - 1] < keys[static_cast<std::size_t>(b) - 1];
        });
        EXPECT_THAT(permutedInEveryWay(keys).items, SameBits(expected));
    }
}

// ---- permutations of rows -------------------------------------------------------------------------------------------

const Cells threeColumns = {11, 21, 31, 41, 51, /**/ 12, M, 32, 42, 52, /**/ 13, 23, 33, -0.0, 53};
const Cells threeColumnsPermuted = {21, 41, 11, 51, 31, /**/ M, 42, 12, 52, 32, /**/ 23, -0.0, 13, 53, 33};

TEST(RowPermutations, RowsStayWhole)
{
    script.begin(fiveKeys); // five draws for all three columns
    SeedArguments s;
    auto X = table(5, 3, threeColumns);
    M_Shuffle2(X, 5, 3, s.seed, s.flag, s.out);
    EXPECT_THAT(cellsOf(X), SameBits(threeColumnsPermuted));
    s.expectOneSeries(5);

    script.begin(fiveKeys);
    SeedArguments flat;
    Guarded<double> x(threeColumns);
    Cpp_M_ShuffleDbl2(x, 5, 3, &flat.seed, flat.flag, &flat.out);
    EXPECT_THAT(x.values(), SameBits(threeColumnsPermuted));
    flat.expectOneSeries(5);

    script.begin(fiveKeys);
    SeedArguments copy;
    Guarded<double> source(threeColumns);
    Guarded<double> target(threeColumns.size(), 9.0);
    Cpp_M_ShuffleDbl(source, 5, 3, target, &copy.seed, copy.flag, &copy.out);
    EXPECT_THAT(target.values(), SameBits(threeColumnsPermuted));
    EXPECT_TRUE(source.untouched());
    copy.expectOneSeries(5);
}

TEST(RowPermutations, RowsOfStringsStayWhole)
{
    const Texts before = {L"a1", L"b1", L"", L"a2", L"b2", L"c2"};
    const Texts after = {L"b1", L"", L"a1", L"b2", L"c2", L"a2"};
    const Cells keys = {0.9, 0.1, 0.2};

    script.begin(keys);
    SeedArguments s;
    auto X = stringTable(3, 2, before);
    auto Z = stringTable(3, 2, Texts(6, L"old"));
    M_Shuffle(X, 3, 2, Z, s.seed, s.flag, s.out);
    EXPECT_EQ(cellsOf(Z), after);
    EXPECT_EQ(cellsOf(X), before);
    s.expectOneSeries(3);

    script.begin(keys);
    M_Shuffle2(X, 3, 2, s.seed, s.flag, s.out);
    EXPECT_EQ(cellsOf(X), after);

    script.begin(keys);
    BstrArray x(before);
    x.setNull(2);
    BstrArray z(6);
    Cpp_M_ShuffleStr(x, 3, 2, z, &s.seed, s.flag, &s.out);
    EXPECT_EQ(z.texts(), after);
    EXPECT_EQ(z.countNew(), 6u); // the empty text, too
    EXPECT_EQ(x.countNew(), 0u);

    script.begin(keys);
    Cpp_M_ShuffleStr2(x, 3, 2, &s.seed, s.flag, &s.out);
    EXPECT_EQ(x.texts(), after);
    EXPECT_EQ(x.countNew(), 6u);
}

TEST(RowPermutations, CornerOfALargerTable)
{
    const Cells before = {1, 2, 3, 4, /**/ 5, 6, 7, 8, /**/ 9, 10, 11, 12};
    const Cells after = {2, 3, 1, 4, /**/ 6, 7, 5, 8, /**/ 9, 10, 11, 12};
    const Cells keys = {0.9, 0.1, 0.2};
    SeedArguments s;

    script.begin(keys);
    auto X = table(4, 3, before);
    M_Shuffle2(X, 3, 2, s.seed, s.flag, s.out);
    EXPECT_THAT(cellsOf(X), SameBits(after));

    // The copy is of the whole table, which lends its dimensions too.
    script.begin(keys);
    auto whole = table(4, 3, before);
    auto Z = filled(7, 2, 9.0);
    M_Shuffle(whole, 3, 2, Z, s.seed, s.flag, s.out);
    EXPECT_EQ(Z->nRows, 4);
    EXPECT_EQ(Z->nCols, 3);
    EXPECT_THAT(cellsOf(Z), SameBits(after));
}

TEST(RowPermutations, CornerOfALargerTableOfStrings)
{
    // Only the block is copied, and Z keeps its dimensions.
    const Cells keys = {0.9, 0.1};
    SeedArguments s;
    script.begin(keys);
    auto X = stringTable(3, 2, {L"a", L"b", L"c", L"d", L"e", L"f"});
    auto Z = stringTable(3, 2, Texts(6, L"old"));
    M_Shuffle(X, 2, 1, Z, s.seed, s.flag, s.out);
    EXPECT_THAT(cellsOf(Z), ElementsAre(L"b", L"a", L"old", L"old", L"old", L"old"));
    script.begin(keys);
    M_Shuffle2(X, 2, 2, s.seed, s.flag, s.out);
    EXPECT_THAT(cellsOf(X), ElementsAre(L"b", L"a", L"c", L"e", L"d", L"f"));
}

TEST(RowPermutations, NoColumnsMeanOneForStringsOnly)
{
    const Cells keys = {0.9, 0.1};
    SeedArguments s;
    script.begin(keys);
    auto X = byColumns({{1, 2}, {3, 4}});
    M_Shuffle2(X, 2, 0, s.seed, s.flag, s.out);
    EXPECT_THAT(cellsOf(X), SameBits({1.0, 2.0, 3.0, 4.0}));
    script.begin(keys);
    auto texts = stringsByColumns({{L"a", L"b"}, {L"c", L"d"}});
    M_Shuffle2(texts, 2, 0, s.seed, s.flag, s.out);
    EXPECT_THAT(cellsOf(texts), ElementsAre(L"b", L"a", L"c", L"d"));
    script.begin(keys);
    BstrArray flat({L"a", L"b"}); // a table without columns has no strings to move
    Cpp_M_ShuffleStr2(flat, 2, 0, &s.seed, s.flag, &s.out);
    EXPECT_EQ(script.series().size(), 1u);
    EXPECT_EQ(flat.countNew(), 0u);
}

TEST(RowPermutations, ElementsBeyondTheVectorReadMinusOne)
{
    SeedArguments s;
    script.begin({0.9, 0.1, 0.5});
    auto v = column({1, 2});
    V_Shuffle(v, 3, s.seed, s.flag, s.out);
    EXPECT_THAT(cellsOf(v), SameBits({2.0, -1.0}));
    script.begin({0.9, 0.1, 0.5});
    auto ints = intColumn({0, 0});
    Random1toN(3, ints, s.seed, s.flag, s.out); // 3 has no place of its own, so that it is not there to move
    EXPECT_THAT(cellsOf(ints), ElementsAre(2, -1));
}

} // namespace
} // namespace vecmat::test
