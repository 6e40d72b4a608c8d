// Categories into codes.
#include "qualitative/recoding.h"

#include "qualitative/summary_tables.h"

namespace vecmat::test {

namespace {

using Shorts = std::vector<short>;

const Texts words{L"b", L"?", L"a", L"", L"y", L"x", L"a", L"x"}; // four rows, two columns
const Ints twoEach{2, 2};

Owned<Smatrix> knownWords()
{
    return stringsByRows({{L"a", L"b"}, {L"x", L"y"}});
}

Doubles placesOf(const Texts& cells, int rows, int cols, Ints counts, Smatrix* categories)
{
    Owned<matrix> out = filled(rows, cols, 77);
    M_ReplaceCatByCodes(stringTable(rows, cols, cells), rows, cols, counts.data(), categories, out);
    return cellsOf(out);
}

Doubles codesOf(const Texts& cells, int rows, int cols, Ints counts, Smatrix* categories, Shorts mask, int firstCode)
{
    Owned<matrix> out = filled(rows, cols, 77);
    M_ReplaceStrByCodes(stringTable(rows, cols, cells), rows, cols, counts.data(), categories, mask.data(), firstCode,
                        out);
    return cellsOf(out);
}

TEST(ReplaceCatByCodes, PlacesFromOne)
{
    EXPECT_THAT(placesOf(words, 4, 2, twoEach, knownWords()), SameBits({2, 77, 1, 77, 2, 1, 77, 1}))
        << "a value that matches nothing is unchanged";
}

TEST(ReplaceStrByCodes, PlacesFromZeroPlusTheFirstCode)
{
    const Shorts keepAll(4, 0);
    EXPECT_THAT(codesOf(words, 4, 2, twoEach, knownWords(), keepAll, 0), SameBits({1, M, 0, M, 1, 0, M, 0}))
        << "what matches nothing is missing, unlike above";
    EXPECT_THAT(codesOf(words, 4, 2, twoEach, knownWords(), keepAll, 1), SameBits({2, M, 1, M, 2, 1, M, 1}));
    EXPECT_THAT(codesOf(words, 4, 2, twoEach, knownWords(), keepAll, -5), SameBits({-4, M, -5, M, -4, -5, M, -5}));
}

TEST(ReplaceStrByCodes, AnyFlagButZeroMakesTheRowMissing)
{
    for (short flag : Shorts{-1, 1, 2})
        EXPECT_THAT(codesOf(words, 4, 2, twoEach, knownWords(), {flag, 0, 0, flag}, 1),
                    SameBits({M, M, 1, M, M, 1, M, M}))
            << flag;
    Owned<matrix> out = filled(1, 1, 77);
    Ints counts{1};
    M_ReplaceStrByCodes(stringColumn({L"a"}), 1, 1, counts.data(), stringColumn({L"a"}), nullptr, 7, out);
    EXPECT_THAT(cellsOf(out), SameBits({7})) << "no mask keeps every row";
}

TEST(ReplaceCodes, FirstMatchCounts)
{
    const auto categories = stringsByRows({{L"b", L"a", L"b", L"a"}});
    EXPECT_THAT(placesOf({L"a", L"b"}, 2, 1, {4}, categories), SameBits({2, 1}));
    EXPECT_THAT(codesOf({L"a", L"b"}, 2, 1, {4}, categories, {0, 0}, 1), SameBits({2, 1}));
}

TEST(ReplaceCodes, OnlyTheCountedPlacesAreSearched)
{
    const auto categories = stringsByRows({{L"a", L"b"}});
    EXPECT_THAT(placesOf({L"a", L"b"}, 2, 1, {1}, categories), SameBits({1, 77}));
    EXPECT_THAT(placesOf({L"a", L"b"}, 2, 1, {0}, categories), SameBits({77, 77}));
    EXPECT_THAT(placesOf({L"a", L"b"}, 2, 1, {-2}, categories), SameBits({77, 77}));
    EXPECT_THAT(codesOf({L"a", L"b"}, 2, 1, {1}, categories, {0, 0}, 1), SameBits({1, M}));
    EXPECT_THAT(codesOf({L"a", L"b"}, 2, 1, {0}, categories, {0, 0}, 1), SameBits({M, M}));
}

TEST(ReplaceCodes, EmptyCellMatchesAnEmptyCategory)
{
    const auto categories = stringsByRows({{L"a", L"", L"b"}});
    EXPECT_THAT(placesOf({L"", L"b"}, 2, 1, {3}, categories), SameBits({2, 3}));
    EXPECT_THAT(codesOf({L"", L"b"}, 2, 1, {3}, categories, {0, 0}, 0), SameBits({1, 2}));
    EXPECT_THAT(placesOf({L"", L"a"}, 2, 1, {1000000000}, stringsByRows({{L"a", L"b"}})), SameBits({3, 1}))
        << "the place beyond the table is empty";
}

TEST(ReplaceCodes, CornerOfLargerTables)
{
    Owned<matrix> out = filled(3, 2, 77);
    Ints counts{2};
    M_ReplaceCatByCodes(stringTable(4, 2, words), 1, 1, counts.data(), knownWords(), out);
    EXPECT_THAT(cellsOf(out), SameBits({2, 77, 77, 77, 77, 77}));
    Shorts mask{0};
    Owned<matrix> codes = filled(3, 2, 77);
    M_ReplaceStrByCodes(stringTable(4, 2, words), 1, 1, counts.data(), knownWords(), mask.data(), 1, codes);
    EXPECT_THAT(cellsOf(codes), SameBits({2, 77, 77, 77, 77, 77})) << "nothing is prepared or cleared";
}

TEST(ReplaceCodes, RowsBeyondTheTableAreEmpty)
{
    Owned<matrix> out = filled(3, 1, 77);
    Ints counts{1};
    M_ReplaceCatByCodes(stringColumn({L"a"}), 3, 1, counts.data(), stringColumn({L"a"}), out);
    EXPECT_THAT(cellsOf(out), SameBits({1, 77, 77}));
}

TEST(ReplaceCodes, ManyCategories)
{
    // Too many for a walk from the first place for every cell.
    const int n = 100000;
    Texts cells;
    for (int i = 0; i < n; ++i)
        cells.push_back(std::to_wstring(n - i));
    Ints counts{n};
    auto categories = stringTable(1, n, cells);
    Owned<matrix> out = filled(n, 1, 77);
    M_ReplaceCatByCodes(stringColumn(cells), n, 1, counts.data(), categories, out);
    for (int i = 1; i <= n; ++i)
        ASSERT_EQ(out->vbget(i, 1), i);
}

TEST(ReplaceCodes, AreTheWalksOverRandomTables)
{
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const int rows = data.integer(1, 10);
        const int cols = data.integer(1, 4);
        const auto variables = static_cast<std::size_t>(cols);
        const auto all = static_cast<std::size_t>(rows) * variables;
        const Ints counts = data.integers(variables, 0, 5);
        const int maxCats = *std::max_element(counts.begin(), counts.end());
        const Texts pool{L"", L"a", L"b", L"c", L"d"};
        const auto draw = [&](std::size_t count) {
            Texts texts(count);
            for (std::wstring& text : texts)
                text = pool[static_cast<std::size_t>(data.integer(0, 4))];
            return texts;
        };
        const Texts cells = draw(all);
        const Texts known = draw(variables * static_cast<std::size_t>(maxCats));
        const Doubles old = data.leftovers(all);
        const int firstCode = data.integer(-2, 3);
        Shorts mask = data.mask(static_cast<std::size_t>(rows), 0.3);
        if (data.chance(0.3))
            mask[0] = 1;

        auto strings = stringTable(rows, cols, cells);
        auto categories = stringTable(cols, maxCats, known);
        Doubles places = old;
        Doubles codes;
        for (int j = 1; j <= cols; ++j)
            for (int i = 1; i <= rows; ++i) {
                double code = M;
                for (int c = 1; c <= counts[static_cast<std::size_t>(j - 1)]; ++c)
                    if (strings->vbget(i, j) == categories->vbget(j, c)) {
                        places[codes.size()] = c;
                        code = c - 1 + firstCode;
                        break;
                    }
                codes.push_back(mask[static_cast<std::size_t>(i - 1)] != 0 ? M : code);
            }

        Ints nCats = counts;
        Owned<matrix> out = table(rows, cols, old);
        M_ReplaceCatByCodes(strings, rows, cols, nCats.data(), categories, out);
        EXPECT_THAT(cellsOf(out), SameBits(places));
        M_ReplaceStrByCodes(strings, rows, cols, nCats.data(), categories, mask.data(), firstCode, out);
        EXPECT_THAT(cellsOf(out), SameBits(codes));

        BstrArray flat(cells);
        BstrArray flatKnown(known);
        Guarded<int> flatCounts(counts);
        Guarded<short> flatMask(mask);
        Guarded<double> flatPlaces(old);
        Guarded<double> flatCodes(old);
        VB_M_ReplaceCatByCodes(flat, rows, cols, flatCounts, flatKnown, flatPlaces);
        VB_M_ReplaceStrByCodes(flat, rows, cols, flatCounts, flatKnown, flatMask, firstCode, flatCodes);
        EXPECT_THAT(flatPlaces.values(), SameBits(places)) << "the caller's content stays where nothing matches";
        EXPECT_THAT(flatCodes.values(), SameBits(codes));
        EXPECT_TRUE(flatCounts.untouched() && flatMask.untouched());
        EXPECT_EQ(flat.countNew() + flatKnown.countNew(), 0u);
    }
}

TEST(ReplaceCodes, NoColumns)
{
    VB_M_ReplaceCatByCodes(nullptr, 3, 0, nullptr, nullptr, nullptr);
    VB_M_ReplaceStrByCodes(nullptr, 3, 0, nullptr, nullptr, nullptr, 1, nullptr);
}

} // namespace

} // namespace vecmat::test
