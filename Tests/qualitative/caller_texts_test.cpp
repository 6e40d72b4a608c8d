// The flat forms read a caller's texts where they lie. Over random texts they give what the functions over a table of
// the same texts give.
#include "VecMat.h"

#include "support/bits.h"
#include "support/random_data.h"
#include "support/strings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace vecmat::test {
namespace {

using Strings = std::vector<std::wstring>;

constexpr int rounds = 150;

/// Few different texts, some of them empty, with lone surrogates, pairs and NULs inside; numbers among them.
std::wstring drawnText(RandomData& data)
{
    static const Strings texts = {L"",
                                  L"a",
                                  L"b",
                                  L"ab",
                                  std::wstring(L"a\0b", 3),
                                  std::wstring(L"\0", 1),
                                  {0xD83D},
                                  {0xDE00},
                                  {0x1F600},
                                  {0xFFFF, L'z'},
                                  L"10",
                                  L"9",
                                  L"a long text that ends in 1",
                                  L"a long text that ends in 2"};
    return texts[static_cast<std::size_t>(data.integer(0, static_cast<int>(texts.size()) - 1))];
}

Strings drawnTexts(RandomData& data, int n)
{
    Strings texts;
    for (int k = 0; k < n; ++k)
        texts.push_back(drawnText(data));
    return texts;
}

std::size_t count(int n)
{
    return static_cast<std::size_t>(n);
}

/// A caller's table, and the same as a table of the library's.
struct Input
{
    RandomData data;
    int rows, cols;
    BstrArray texts;
    Smatrix table;
    std::vector<double> weights;
    matrix weightTable;

    explicit Input(std::uint64_t seed)
        : data(seed), rows(data.integer(1, 60)), cols(data.integer(1, 3)), texts(drawnTexts(data, rows * cols)),
          table(rows, cols, withNulls(texts, data), 0, 0), weights(data.weights(count(rows), 0.1)),
          weightTable(rows, 1, weights.data(), true)
    {
    }
    static wchar_t** withNulls(BstrArray& texts, RandomData& data)
    {
        for (std::size_t k = 0; k < texts.size(); ++k)
            if (data.chance(0.1))
                texts.setNull(k);
        return texts;
    }
};

/// Up to `places` categories for each variable.
struct Categories
{
    int places;
    std::vector<int> counts;
    BstrArray texts;
    Smatrix table;
    matrixInt countTable;

    Categories(Input& in)
        : places(in.data.integer(1, 12)), counts(in.data.integers(count(in.cols), 1, places)),
          texts(drawnTexts(in.data, in.cols * places)), table(in.cols, places, texts, 0, 0),
          countTable(in.cols, 1, counts.data(), true)
    {
    }
};

Strings cellsOf(const Smatrix* table)
{
    return {table->X, table->X + table->nElems};
}
std::vector<double> cellsOf(const matrix* table)
{
    return {table->X, table->X + table->nElems};
}

/// As a BSTR holds them: up to the first NUL.
Strings upToNul(Strings texts)
{
    for (std::wstring& text : texts)
        text = text.c_str();
    return texts;
}

template <class Table>
struct Result
{
    Table* table = nullptr;
    ~Result() { delete table; }
};

TEST(CallersTexts, InfoQuali)
{
    for (std::uint64_t seed = 1; seed <= rounds; ++seed) {
        Input in(seed);
        SCOPED_TRACE(in.data);
        const auto sorted = static_cast<short>(seed % 2);
        Result<Smatrix> modes, categories;
        Result<matrix> modeWeights, sums;
        Result<matrixInt> counts;
        int total = 0;
        M_InfoQuali(&in.table, in.rows, in.cols, modes.table, modeWeights.table, counts.table, categories.table,
                    sums.table, &in.weightTable, &total, sorted);

        BstrArray flatModes(count(in.cols)), flatCategories(count(in.cols * in.rows));
        std::vector<double> flatModeWeights(count(in.cols)), flatSums(count(in.cols * in.rows));
        std::vector<int> flatCounts(count(in.cols));
        int flatTotal = 0;
        VB_M_InfoQuali(in.texts, in.rows, in.cols, flatModes, flatModeWeights.data(), &flatTotal, flatCounts.data(),
                       flatCategories, flatSums.data(), 0, in.weights.data(), sorted);
        EXPECT_EQ(flatTotal, total);
        EXPECT_EQ(flatCounts, std::vector<int>(counts.table->X, counts.table->X + in.cols));
        EXPECT_EQ(flatModes.texts(), upToNul(cellsOf(modes.table)));
        EXPECT_EQ(flatCategories.texts(), upToNul(cellsOf(categories.table)));
        EXPECT_THAT(flatModeWeights, SameBits(cellsOf(modeWeights.table)));
        EXPECT_THAT(flatSums, SameBits(cellsOf(sums.table)));
    }
}

TEST(CallersTexts, InfoQualiOfGivenCounts)
{
    for (std::uint64_t seed = 1; seed <= rounds; ++seed) {
        Input in(seed);
        SCOPED_TRACE(in.data);
        Categories known(in);
        const int places = known.places;
        Result<Smatrix> modes, categories;
        Result<matrix> modeWeights, sums;
        int total = 0;
        M_InfoQuali2(&in.table, in.rows, in.cols, places, &known.countTable, modes.table, modeWeights.table,
                     categories.table, sums.table, &in.weightTable, &total, 1);

        BstrArray flatModes(count(in.cols)), flatCategories(count(in.cols * places));
        std::vector<double> flatModeWeights(count(in.cols)), flatSums(count(in.cols * places));
        int flatTotal = 0;
        VB_M_InfoQuali2(in.texts, in.rows, in.cols, places, known.counts.data(), flatModes, flatModeWeights.data(),
                        &flatTotal, flatCategories, flatSums.data(), 0, in.weights.data(), 1);
        EXPECT_EQ(flatTotal, total);
        EXPECT_EQ(flatModes.texts(), upToNul(cellsOf(modes.table)));
        EXPECT_EQ(flatCategories.texts(), upToNul(cellsOf(categories.table)));
        EXPECT_THAT(flatModeWeights, SameBits(cellsOf(modeWeights.table)));
        EXPECT_THAT(flatSums, SameBits(cellsOf(sums.table)));
    }
}

TEST(CallersTexts, InfoQualiValid)
{
    for (std::uint64_t seed = 1; seed <= rounds; ++seed) {
        Input in(seed);
        SCOPED_TRACE(in.data);
        Categories known(in);
        Result<matrix> sums;
        short invalid = 7, flatInvalid = 7;
        M_InfoQualiValid(&in.table, in.rows, in.cols, known.places, &known.countTable, &known.table, sums.table,
                         &invalid, &in.weightTable);
        std::vector<double> flatSums(count(in.cols * known.places));
        VB_M_InfoQualiValid(in.texts, in.rows, in.cols, known.places, 0, known.counts.data(), known.texts,
                            flatSums.data(), &flatInvalid, 0, in.weights.data());
        EXPECT_EQ(flatInvalid, invalid);
        EXPECT_THAT(flatSums, SameBits(cellsOf(sums.table)));
    }
}

TEST(CallersTexts, CountsOfDistinct)
{
    for (std::uint64_t seed = 1; seed <= rounds; ++seed) {
        Input in(seed);
        SCOPED_TRACE(in.data);
        std::vector<int> counts(count(in.cols)), flatCounts(count(in.cols));
        matrixInt countTable(in.cols, 1, counts.data(), true);
        EXPECT_EQ(Cpp_GetMaxCat(in.texts, in.rows, in.cols, flatCounts.data()),
                  GetMaxCat(&in.table, in.rows, in.cols, &countTable));
        EXPECT_EQ(flatCounts, counts);
        EXPECT_EQ(Cpp_V_NbDistinctStr(in.texts, in.rows), V_NbDistinct(&in.table, in.rows));
        EXPECT_EQ(takenText(VB_V_Mode(in.texts, in.rows, 0, in.weights.data())),
                  std::wstring(V_Mode(&in.table, in.rows, &in.weightTable).c_str()));
    }
}

TEST(CallersTexts, BuildDisjunctiveTable)
{
    for (std::uint64_t seed = 1; seed <= rounds; ++seed) {
        Input in(seed);
        SCOPED_TRACE(in.data);
        Categories known(in);
        int width = 0;
        for (const int places : known.counts)
            width += places;
        std::vector<double> frequencies = in.data.uniforms(count(in.cols * known.places), 0.1, 1.0);
        matrix frequencyTable(in.cols, known.places, frequencies.data(), true);
        const int coding = in.data.integer(0, 4);
        const int baseline = in.data.integer(0, 2);
        Result<matrix> out;
        BuildDisjunctiveTable(&in.table, in.rows, in.cols, width, &known.countTable, &known.table, &frequencyTable,
                              out.table, coding, baseline);
        std::vector<double> flat(count(in.rows * width));
        VB_BuildDisjunctiveTable(in.texts, in.rows, in.cols, width, known.counts.data(), known.texts,
                                 frequencies.data(), known.places, flat.data(), coding, baseline);
        EXPECT_THAT(flat, SameBits(cellsOf(out.table)));
    }
}

TEST(CallersTexts, Recoding)
{
    for (std::uint64_t seed = 1; seed <= rounds; ++seed) {
        Input in(seed);
        SCOPED_TRACE(in.data);
        Categories known(in);
        const int widest = *std::max_element(known.counts.begin(), known.counts.end());
        Smatrix categories(in.cols, widest, known.texts, 0, 0);
        std::vector<double> before = in.data.uniforms(count(in.rows * in.cols));
        std::vector<double> expected = before, flat = before;
        auto out = std::make_unique<matrix>(in.rows, in.cols, expected.data(), true);
        matrix* result = out.get();
        M_ReplaceCatByCodes(&in.table, in.rows, in.cols, known.counts.data(), &categories, result);
        VB_M_ReplaceCatByCodes(in.texts, in.rows, in.cols, known.counts.data(), known.texts, flat.data());
        EXPECT_THAT(flat, SameBits(expected));

        std::vector<short> mask = in.data.mask(count(in.rows), 0.2);
        M_ReplaceStrByCodes(&in.table, in.rows, in.cols, known.counts.data(), &categories, mask.data(), 5, result);
        VB_M_ReplaceStrByCodes(in.texts, in.rows, in.cols, known.counts.data(), known.texts, mask.data(), 5,
                               flat.data());
        EXPECT_THAT(flat, SameBits(expected));
    }
}

TEST(CallersTexts, OneText)
{
    for (std::uint64_t seed = 1; seed <= rounds; ++seed) {
        Input in(seed);
        SCOPED_TRACE(in.data);
        const std::wstring value = drawnText(in.data).c_str();
        EXPECT_THAT(VB_V_FreqStr(in.texts, in.rows, in.weights.data(), value.c_str()),
                    SameBits(V_FreqStr(&in.table, in.rows, &in.weightTable, value)));
        matrix expected(in.rows, 1, 7.0);
        V_RecodeToBinary(&in.table, in.rows, value, &expected);
        std::vector<double> flat(count(in.rows), 7.0);
        Cpp_V_RecodeToBinary(in.texts, in.rows, value.c_str(), 0, flat.data());
        EXPECT_THAT(flat, SameBits(cellsOf(&expected)));
    }
}

TEST(CallersTexts, EmptyOnes)
{
    for (std::uint64_t seed = 1; seed <= rounds; ++seed) {
        Input in(seed);
        SCOPED_TRACE(in.data);
        std::vector<int> counts(count(in.cols)), flatCounts(count(in.cols));
        M_NbMissing(&in.table, in.rows, in.cols, counts.data());
        VB_M_NbMissingStr(in.texts, in.rows, in.cols, flatCounts.data());
        EXPECT_EQ(flatCounts, counts);
        EXPECT_EQ(VB_M_NbMissing2Str(in.texts, in.rows, in.cols), M_NbMissing2(&in.table, in.rows, in.cols));
        EXPECT_EQ(VB_V_NbMissingStr(in.texts, in.rows), V_NbMissing(&in.table, in.rows));

        std::vector<short> filter = in.data.mask(count(in.rows), 0.7);
        std::vector<short> expected(count(in.rows), 3), flat = expected;
        V_GetMissingStr(&in.table, in.rows, filter.data(), expected.data());
        VB_V_GetMissingStr(in.texts, in.rows, filter.data(), flat.data());
        EXPECT_EQ(flat, expected);
    }
}

} // namespace
} // namespace vecmat::test
