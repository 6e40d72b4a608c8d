// The flat forms that sort a caller's texts, fill empty ones and number labels, against the same over a table of strings:
// random texts, with null pointers, NULs, lone surrogates and pairs, at sizes on both sides of where the sorts change
// their way.
#include "decompositions/correlation_order.h"
#include "elementary/filling.h"
#include "missing/mode_imputation.h"
#include "missing/nearest_neighbour.h"
#include "missing/observation_labels.h"
#include "missing/replacement.h"
#include "qualitative/labels.h"
#include "sorting/sort.h"

#include "support/bits.h"
#include "support/callers_texts.h"
#include "support/constants.h"
#include "support/random_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace vecmat::test {
namespace {

using Cells = std::vector<double>;
using Texts = std::vector<std::wstring>;

constexpr int fewestForDigits = 300;

struct Case
{
    int rows;
    int cols;
    BstrArray bstrs;

    Case(int r, int c, const Texts& texts) : rows(r), cols(c), bstrs(texts) {}
    Case(RandomData& data, int r, int c) : Case(r, c, Caller::drawn(data, r * c))
    {
        for (std::size_t k = 0; k < bstrs.size(); ++k)
            if (data.chance(0.1))
                bstrs.setNull(k);
    }
    explicit Case(RandomData& data) : Case(data, drawnRows(data), data.integer(1, 3)) {}
    std::unique_ptr<Smatrix> table() { return std::make_unique<Smatrix>(rows, cols, bstrs, 0, 0); }

private:
    static int drawnRows(RandomData& data)
    {
        return data.chance(0.6) ? data.integer(1, 8) : fewestForDigits + data.integer(-20, 90);
    }
};

/// Calls body(data, texts) for many of them.
template <class Body>
void forRandomTexts(Body body)
{
    for (std::uint64_t seed = 1; seed <= 100; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        Case texts(data);
        body(data, texts);
    }
}

/// Any of the three ways in which callers ask for a direction.
short drawnDirection(RandomData& data)
{
    return static_cast<short>(data.integer(-1, 1));
}

/// The whole, a part, or places beyond the table.
struct Range
{
    int first;
    int last;

    Range(RandomData& data, int n)
        : first(data.integer(0, 1) != 0 ? 1 : data.integer(-1, n)),
          last(data.integer(0, 1) != 0 ? n : data.integer(first - 2, n + 3))
    {
    }
};

TEST(TextsWhereTheyLie, AreSorted)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows * texts.cols;
        for (int k = 0; k < 4; ++k) {
            const Range range(data, n);
            const short descending = drawnDirection(data);
            expectInPlace(
                texts, [&](auto x) { VB_SortQVectorStr(x, n, range.first, range.last, descending); },
                [&](Smatrix* x) { SortQVector(x, range.first, range.last, descending); });
        }
    });
}

TEST(TextsWhereTheyLie, AreSortedByOneOfTheirColumns)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows;
        for (int k = 0; k < 4; ++k) {
            const Range range(data, n);
            const short descending = drawnDirection(data);
            const int col = data.integer(0, texts.cols + 1);
            expectInPlace(
                texts,
                [&](auto x) { VB_SortQMatrixColStr(x, n, texts.cols, col, range.first, range.last, descending); },
                [&](Smatrix*& x) { SortQMatrixCol(x, n, texts.cols, col, range.first, range.last, descending); });
        }
    });
}

/// The order is that of the characters' numbers: a pair is one character beyond all others, a lone half is itself.
TEST(TextsWhereTheyLie, SortByTheNumbersOfTheirCharacters)
{
    const Texts ascending = {
        L"",      L"a",     L"ab",     L"b",      {0xD83D},          {0xD83D, L'a'},    {0xDE00},
        {0xE000}, {0xFFFF}, {0x10000}, {0x1F600}, {0x1F600, 0xD83D}, {0x1F600, 0xFFFF}, {0x10FFFF}};
    const Texts starts = {L"", L"category ", {0x1F600, 0x1F600}};
    for (const std::wstring& start : starts)
        for (const int copies : {1, 40}) {
            Texts sorted, shuffled;
            for (const std::wstring& text : ascending)
                sorted.insert(sorted.end(), static_cast<std::size_t>(copies), text.empty() ? text : start + text);
            for (std::size_t k = 0; k < sorted.size(); ++k)
                shuffled.push_back(sorted[k * 11 % sorted.size()]); // 11 divides neither size
            BstrArray texts(shuffled);
            const int n = static_cast<int>(sorted.size());
            VB_SortQVectorStr(texts, n, 1, n, 0);
            EXPECT_EQ(texts.texts(), sorted);
        }
}

/// Of two kinds, so that not all begin alike.
TEST(TextsWhereTheyLie, SortWhereLongBeginningsAreAlike)
{
    constexpr std::size_t longBeginning = 500000;
    Texts sorted;
    for (const wchar_t first : {L'a', L'b'})
        for (int k = 0; k < 10; ++k) // more than are simply compared
            sorted.push_back(std::wstring(longBeginning, first) + std::to_wstring(k));
    Texts shuffled;
    for (std::size_t k = 0; k < sorted.size(); ++k)
        shuffled.push_back(sorted[k * 11 % sorted.size()]);
    BstrArray texts(shuffled);
    const int n = static_cast<int>(sorted.size());
    VB_SortQVectorStr(texts, n, 1, n, 0);
    EXPECT_TRUE(texts.texts() == sorted); // without a print of all of them
}

/// What all others begin with must not be passed over for its sake.
TEST(TextsWhereTheyLie, SortOneThatDiffersBeforeTheOthersDo)
{
    Texts alike;
    for (wchar_t letter = L'z'; letter > L'k'; --letter)
        alike.push_back(std::wstring(L"the same start, ") + letter);
    for (const wchar_t* other : {L"the", L"the sAme start, zz", L"the sbme start, a"})
        for (std::size_t place = 0; place <= alike.size(); ++place) {
            Texts expected = alike;
            expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(place), other);
            BstrArray texts(expected);
            const int n = static_cast<int>(expected.size());
            VB_SortQVectorStr(texts, n, 1, n, 0);
            std::sort(expected.begin(), expected.end());
            EXPECT_EQ(texts.texts(), expected);
        }
}

TEST(TextsWhereTheyLie, FollowAnOrderOfCorrelations)
{
    forRandomTexts([](RandomData& data, Case& drawn) {
        const int n = std::min(drawn.rows, 20);
        const auto count = static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
        Case labels(data, n, 1);
        const int mode = data.integer(1, 3);
        Cells flatR = data.withMissing(data.uniforms(count, -1.0, 1.0), 0.05);
        Cells flatSecond = data.uniforms(count);
        std::vector<int> flatThird = data.integers(count, -9, 9);
        matrix R(n, n, flatR.data(), false);
        matrix second(n, n, flatSecond.data(), false);
        matrixInt third(n, n, flatThird.data(), false);
        expectInPlace(
            labels,
            [&](auto x) { Cpp_ReOrderCorrelations(flatR.data(), n, mode, x, flatSecond.data(), flatThird.data()); },
            [&](Smatrix* x) { ReOrderCorrelations(&R, n, mode, x, &second, &third); });
        EXPECT_THAT(flatR, SameBits(Cells(R.X, R.X + R.nElems)));
        EXPECT_THAT(flatSecond, SameBits(Cells(second.X, second.X + second.nElems)));
        EXPECT_EQ(flatThird, std::vector<int>(third.X, third.X + third.nElems));
    });
}

TEST(TextsWhereTheyLie, TakeOthersWhereTheyAreEmpty)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows;
        const int p = texts.cols;
        const std::wstring value = data.integer(0, 3) == 0 ? L"" : L"other";
        expectInPlace(
            texts, [&](auto x) { VB_M_ReplaceMissingByStr(x, n, p, value.c_str()); },
            [&](Smatrix* x) { M_ReplaceMissingByStr(x, n, p, value); });
        expectInPlace(
            texts, [&](auto x) { VB_V_SetToValueStr(x, n * p, value.c_str()); },
            [&](Smatrix* x) { V_SetToValueStr(x, n * p, value); });

        Cells weights = data.weights(static_cast<std::size_t>(n), 0.2);
        matrix weightTable(n, 1, weights.data(), false);
        expectInPlace(
            texts, [&](auto x) { VB_EstimateRowsWithMissingMode(x, n, p, nullptr, weights.data()); },
            [&](Smatrix*& x) { EstimateRowsWithMissingMode(x, n, x, n, p, &weightTable); });

        Case others(data, data.integer(1, n), p);
        const auto statistics = others.table();
        expectInPlace(
            texts,
            [&](auto x) {
                VB_EstimateRowsWithMissingModePred(others.bstrs, others.rows, x, n, p, nullptr, weights.data());
            },
            [&](Smatrix*& x) { EstimateRowsWithMissingMode(statistics.get(), others.rows, x, n, p, &weightTable); });
    });
}

TEST(TextsWhereTheyLie, AreCopiedFromTheNearestRow)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows;
        const int p = texts.cols;
        const auto rows = static_cast<std::size_t>(n);
        Cells weights = data.weights(rows, 0.2);
        matrix weightTable(n, 1, weights.data(), false);
        std::vector<short> mask = data.mask(rows, 0.5);
        const Cells numbers = data.withMissing(data.wholes(rows, 0, 4), 0.2);
        for (const int width : {0, 1}) { // without strings in the other block, and with
            Cells flatX = numbers;
            Cells flatY = numbers;
            matrix X(n, 1, flatX.data(), false);
            matrix Y(n, 1, flatY.data(), false);
            matrix* x = &X;
            matrix* y = &Y;
            expectInPlace(
                texts,
                [&](auto S) {
                    VB_EstimateRowsWithMissingNN(flatX.data(), n, width, mask.data(), flatY.data(), 1, S, p,
                                                 weights.data());
                },
                [&](Smatrix*& S) {
                    EstimateRowsWithMissingNN(x, n, x, n, width, mask.data(), y, y, 1, S, S, p, &weightTable);
                });
            EXPECT_THAT(flatX, SameBits(Cells(X.X, X.X + n)));
            EXPECT_THAT(flatY, SameBits(Cells(Y.X, Y.X + n)));

            Case strings(data, n, 2);
            const auto otherTable = strings.table();
            Smatrix* other = otherTable.get();
            expectInPlace(
                texts,
                [&](auto P) {
                    VB_EstimateRowsWithMissingNNStr(P, n, p, mask.data(), flatY.data(), 1, strings.bstrs, 2 * width,
                                                    weights.data());
                },
                [&](Smatrix*& P) {
                    EstimateRowsWithMissingNNStr(P, n, P, n, p, mask.data(), y, y, 1, other, other, 2 * width,
                                                 &weightTable);
                });
            EXPECT_THAT(flatY, SameBits(Cells(Y.X, Y.X + n)));
            if (width > 0) {
                EXPECT_EQ(strings.bstrs.texts(), Texts(other->X, other->X + other->nElems));
            }
        }
    });
}

TEST(TextsWhereTheyLie, AreLabels)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows * texts.cols;
        expectInPlace(
            texts, [&](auto x) { VB_V_ReplaceDoubles(x, n); }, [&](Smatrix* x) { V_ReplaceDoubles(x, n); });

        const std::wstring separator(1, data.integer(0, 1) != 0 ? wchar_t{0xDE00} : L'-');
        const CallersText callersSeparator(separator);
        const auto table = texts.table();
        Smatrix joined(texts.rows, 1);
        M_MergeStringsByRow(table.get(), texts.rows, texts.cols, separator, &joined);
        BstrArray out(joined.nElems);
        Cpp_M_MergeStringsByRow(texts.bstrs, texts.rows, texts.cols, callersSeparator.get(), out);
        BstrArray expected(joined.nElems);
        joined.copyMatTo(expected.get());
        EXPECT_EQ(out.texts(), expected.texts());
    });
}

/// Labels that end in numbers, so that new ones meet them.
TEST(TextsWhereTheyLie, AreLabelsThatNewOnesMeet)
{
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const int n = data.integer(1, 80);
        Texts labels;
        for (int i = 0; i < n; ++i)
            labels.push_back((data.chance(0.8) ? L"a" : L"b\x1F600") +
                             (data.chance(0.5) ? std::wstring() : std::to_wstring(data.integer(1, 30))));
        Case texts(n, 1, labels);
        expectInPlace(
            texts, [&](auto x) { VB_V_ReplaceDoubles(x, n); }, [&](Smatrix* x) { V_ReplaceDoubles(x, n); });

        const std::vector<short> mask = data.mask(labels.size(), 0.4);
        std::vector<short> flatMask = mask;
        std::vector<short> tableMask = mask;
        expectInPlace(
            texts, [&](auto x) { VB_ReplaceMissingObsLabels(x, n, flatMask.data(), L"a"); },
            [&](Smatrix*& x) { ReplaceMissingObsLabels(x, n, tableMask.data(), L"a"); });
        EXPECT_EQ(flatMask, tableMask);
    }
}

} // namespace
} // namespace vecmat::test
