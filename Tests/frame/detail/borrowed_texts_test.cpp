// The flat forms that only select and move a caller's texts, against the same over a table of strings: random texts, with
// null pointers, NULs, lone surrogates and pairs, at sizes on both sides of where the sorts change their way.
#include "elementary/array_copies.h"
#include "elementary/blocks.h"
#include "elementary/columns_and_rows.h"
#include "elementary/extraction.h"
#include "elementary/horizontal_merges.h"
#include "elementary/removal.h"
#include "elementary/transposition.h"
#include "elementary/vertical_merges.h"
#include "missing/complete_rows.h"
#include "randomisation/interval_sampling.h"
#include "randomisation/permutations.h"
#include "randomisation/sampling_with_repeats.h"
#include "randomisation/stratified_sampling.h"
#include "sorting/copy_block.h"
#include "sorting/sort.h"
#include "sorting/sort_apply.h"

#include "support/bits.h"
#include "support/callers_texts.h"
#include "support/random_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <vector>

namespace vecmat::test {
namespace {

constexpr short fromSeed = -1;
constexpr int start = 5;

using Cells = std::vector<double>;
using Texts = std::vector<std::wstring>;

struct Case : Caller
{
    explicit Case(RandomData& data)
        : Caller(data, data.integer(0, 1) != 0 ? data.integer(1, 12) : data.integer(60, 300), data.integer(1, 4))
    {
    }
    std::size_t count() const { return static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols); }
    std::unique_ptr<Smatrix> table() { return std::make_unique<Smatrix>(rows, cols, bstrs, 0, 0); }
};

/// Calls body(data, texts) for many of them.
template <class Body>
void forRandomTexts(Body body)
{
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        Case texts(data);
        body(data, texts);
    }
}

/// `flat(array, out)` against `overTable(table, result)`, a table of `rows` by `cols`.
template <class Flat, class OverTable>
void expectResult(Case& texts, int rows, int cols, Flat flat, OverTable overTable)
{
    const auto table = texts.table();
    Smatrix result(rows, cols);
    Smatrix* expected = &result;
    overTable(table.get(), expected);
    BstrArray out(result.nElems);
    flat(texts.bstrs.get(), out.get());
    expectTexts(out, result);
}

/// Keys with many ties, and now and then a NaN, with which rows are merged.
Cells drawnKeys(RandomData& data, int n)
{
    Cells keys = data.wholes(static_cast<std::size_t>(n), -3, 9);
    if (data.integer(0, 3) == 0)
        keys[static_cast<std::size_t>(data.integer(0, n - 1))] = std::numeric_limits<double>::quiet_NaN();
    return keys;
}

TEST(BorrowedTexts, AreCopiedAndTransposed)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows;
        const int p = texts.cols;
        const int first = data.integer(1, n);
        const int last = data.integer(first, n);
        expectResult(
            texts, n, p, [&](auto x, auto out) { VB_M_DuplicateStr(x, n, p, out); },
            [](Smatrix* x, Smatrix* out) { x->copyMatTo(out); });
        expectResult(
            texts, last - first + 1, p, [&](auto x, auto out) { VB_M_CopyBlockStr(x, n, p, first, last, 1, p, out); },
            [&](Smatrix* x, Smatrix*& out) { M_CopyBlock(x, first, last, 1, p, out); });
        expectResult(
            texts, p, n, [&](auto x, auto out) { VB_M_TransposeStr(x, n, p, out); },
            [&](Smatrix* x, Smatrix*& out) { M_Transpose(x, n, p, out); });
        expectInPlace(
            texts, [&](auto x) { VB_M_Transpose2Str(x, n, p); }, [&](Smatrix*& x) { M_Transpose2(x, n, p); });
        expectInPlace(
            texts, [&](auto x) { Cpp_M_RemoveRowsStr2(x, n, p, first, last); },
            [&](Smatrix*& x) { M_RemoveRows2(x, n, p, first, last); });
        expectResult(
            texts, n, 1, [&](auto x, auto out) { VB_CopyMatrixColToOneColMatStr(x, n, p, out); },
            [&](Smatrix* x, Smatrix* out) { CopyMatrixColToOneColMatStr(x, n, p, out); });
        expectResult(
            texts, n, 2 * p, [&](auto x, auto out) { VB_HMergeTablesStr(x, n, p, x, n, p, out); },
            [&](Smatrix* x, Smatrix*& out) { HMergeTables(x, n, p, x, n, p, out); });
        expectResult(
            texts, n + last, 1, [&](auto x, auto out) { VB_VMergeVectorsStr(x, n, x, last, out); },
            [&](Smatrix* x, Smatrix*& out) { VMergeVectors(x, n, x, last, out); });
    });
}

TEST(BorrowedTexts, AreMovedByOrdersAndKeys)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows;
        const int p = texts.cols;
        Cells order = data.wholes(static_cast<std::size_t>(n), -1, n + 2);
        matrix orderTable(n, 1, order.data(), true);
        const auto apply = [&](Smatrix* x, Smatrix* out) { SortApplyStr(x, n, p, &orderTable, out); };
        expectResult(
            texts, n, p, [&](auto x, auto out) { VB_SortApplyStr(x, n, p, order.data(), out); }, apply);

        const Cells keys = drawnKeys(data, n);
        const auto descending = static_cast<short>(-data.integer(0, 1));
        Cells flatKeys = keys;
        Cells tableKeys = keys;
        Cells flatNumbers(keys.size());
        std::iota(flatNumbers.begin(), flatNumbers.end(), 1.0);
        Cells tableNumbers = flatNumbers;
        matrix keyTable(n, 1, tableKeys.data(), true);
        matrix numberTable(n, 1, tableNumbers.data(), true);
        matrix* key = &keyTable;
        matrix* numbers = &numberTable;
        expectInPlace(
            texts, [&](auto x) { VB_SortQStr(x, n, p, 1, n, flatKeys.data(), flatNumbers.data(), 1, descending, -1); },
            [&](Smatrix*& x) { SortQ(x, n, p, 1, n, key, numbers, 1, descending, -1); });
        EXPECT_THAT(flatKeys, SameBits(tableKeys));
        EXPECT_THAT(flatNumbers, SameBits(tableNumbers));
    });
}

TEST(BorrowedTexts, AreMovedInPlace)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows;
        const int p = texts.cols;
        const int first = data.integer(1, n);
        Cells order = data.uniforms(static_cast<std::size_t>(n), -1.0, n + 2.0);
        matrix orderTable(n, 1, order.data(), true);
        expectInPlace(
            texts, [&](auto x) { VB_SortApply2Str(x, n, p, order.data()); },
            [&](Smatrix*& x) {
                Smatrix source(*x);
                SortApplyStr(&source, n, p, &orderTable, x);
            });
        int seed = start;
        int next = 0;
        expectInPlace(
            texts, [&](auto x) { Cpp_M_ShuffleStr2(x, n, p, &seed, fromSeed, &next); },
            [&](Smatrix*& x) {
                int again = start;
                M_Shuffle2(x, n, p, again, fromSeed, next);
            });
        expectInPlace(
            texts, [&](auto x) { Cpp_M_CopyPasteBlockStr(x, n, p, first, n, 1, p, x, n, p, 1, 1); },
            [&](Smatrix*& x) {
                Smatrix source(*x);
                M_CopyPasteBlockStr(&source, first, n, 1, p, x, 1, 1);
            });
        expectResult(
            texts, n + 1, p + 1, [&](auto x, auto out) { VB_M_CopyResizeStr(x, n, p, out, n + 1, p + 1); },
            [&](Smatrix* x, Smatrix* out) { // the source's stride: the last row of a column is the first of the next
                for (int j = 0; j < p + 1; ++j)
                    for (int i = 0; i < n + 1; ++i)
                        if (const int k = i + j * n; k < n * p)
                            out->X[j * (n + 1) + i] = x->X[k];
            });
    });
}

TEST(BorrowedTexts, AreAppended)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows;
        const int last = data.integer(1, n);
        const Texts all = texts.bstrs.texts();
        Texts expected(all.begin(), all.begin() + n);
        expected.resize(static_cast<std::size_t>(n + last));
        BstrArray longer(expected);
        const auto table = texts.table();
        std::copy_n(table->X, n, expected.begin());
        std::copy_n(table->X, last, expected.begin() + n);
        VB_VMergeVectorsStr2(longer, n, texts.bstrs, last);
        EXPECT_EQ(longer.texts(), expected);
        EXPECT_EQ(longer.countNew(), longer.size());
    });
}

TEST(BorrowedTexts, AreTakenInIntervalsAndByCounts)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows;
        const int p = texts.cols;
        if (n < 2)
            return;
        const int drawn = data.integer(2, n);
        int next = 0;
        const auto expectSample = [&](int rows, auto flat, auto overTable) {
            Cells flatIds(static_cast<std::size_t>(n));
            matrix ids(n, 1, 0.0);
            expectResult(
                texts, rows, p, [&](auto x, auto out) { flat(x, out, flatIds.data()); },
                [&](Smatrix* x, Smatrix* out) { overTable(x, out, &ids); });
            EXPECT_THAT(flatIds, SameBits(Cells(ids.X, ids.X + n)));
        };
        const auto expectSeries = [&](auto flat, auto overTable) {
            int seed = start;
            int again = start;
            expectSample(
                drawn, [&](auto x, auto out, double* ids) { flat(x, n, p, drawn, out, ids, &seed, fromSeed, &next); },
                [&](Smatrix* x, Smatrix* out, matrix* ids) {
                    overTable(x, n, p, drawn, out, ids, &again, fromSeed, &next);
                });
        };
        expectSeries(VB_M_SamplingSystematicRdStart, M_SamplingSystematicRdStart);
        expectSeries(VB_M_SamplingRandomStratified, M_SamplingRandomStratified);
        expectSample(
            drawn, [&](auto x, auto out, double* ids) { VB_M_SamplingSystematicCentered(x, n, p, drawn, out, ids); },
            [&](Smatrix* x, Smatrix* out, matrix* ids) { M_SamplingSystematicCentered(x, n, p, drawn, out, ids); });
        Cells counts(static_cast<std::size_t>(n), 1.0); // n in all
        counts.front() = 0.0;
        counts.back() = 2.0;
        matrix countTable(n, 1, counts.data(), true);
        expectSample(
            n, [&](auto x, auto out, double* ids) { VB_M_SampleUserDefined(x, n, p, out, counts.data(), ids); },
            [&](Smatrix* x, Smatrix* out, matrix* ids) { M_SampleUserDefined(x, n, p, out, &countTable, ids); });
    });
}

TEST(BorrowedTexts, AreShuffledAndDrawn)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows;
        const int p = texts.cols;
        const int drawn = data.integer(1, 2 * n);
        int seed = start;
        int next = 0;
        const auto again = [&] { seed = start; };
        expectResult(
            texts, n, p,
            [&](auto x, auto out) {
                again();
                Cpp_M_ShuffleStr(x, n, p, out, &seed, fromSeed, &next);
            },
            [&](Smatrix* x, Smatrix* out) {
                again();
                M_Shuffle(x, n, p, out, seed, fromSeed, next);
            });
        Cells flatIds(static_cast<std::size_t>(drawn));
        matrix ids(drawn, 1, 0.0);
        expectResult(
            texts, drawn, p,
            [&](auto x, auto out) {
                again();
                VB_M_SamplingWithReplacement(x, n, p, drawn, out, flatIds.data(), &seed, fromSeed, &next);
            },
            [&](Smatrix* x, Smatrix* out) {
                again();
                M_SamplingWithReplacement(x, n, p, drawn, out, &ids, &seed, fromSeed, &next);
            });
        EXPECT_THAT(flatIds, SameBits(Cells(ids.X, ids.X + ids.nElems)));
    });
}

TEST(BorrowedTexts, AreDrawnByStrata)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows;
        const int p = texts.cols;
        constexpr int nStrata = 3;
        const Cells strata = data.wholes(static_cast<std::size_t>(n), 1, nStrata);
        Cells sizes;
        Cells quota;
        for (int k = 1; k <= nStrata; ++k) {
            sizes.push_back(static_cast<double>(std::count(strata.begin(), strata.end(), k)));
            quota.push_back(data.integer(0, 6)); // above the size now and then: with replacement
        }
        const int drawn = data.integer(1, 20);
        Cells labels(static_cast<std::size_t>(n));
        std::iota(labels.begin(), labels.end(), 100.0);
        Cells flatLabels = labels;
        Cells flatIds(static_cast<std::size_t>(drawn));
        matrix ids(drawn, 1, 0.0);
        int seed = start;
        int next = 0;
        expectResult(
            texts, drawn, p,
            [&](auto x, auto out) {
                Cells callers = strata;
                seed = start;
                Cpp_M_SamplingRandomStratifiedByStr(x, n, p, drawn, out, flatLabels.data(), flatIds.data(),
                                                    callers.data(), quota.data(), sizes.data(), nStrata, &seed,
                                                    fromSeed, &next);
            },
            [&](Smatrix* x, Smatrix* out) {
                Cells callers = strata;
                seed = start;
                matrix labelTable(n, 1, labels.data(), true);
                matrix strataTable(n, 1, callers.data(), true);
                matrix quotaTable(nStrata, 1, quota.data(), true);
                matrix sizeTable(nStrata, 1, sizes.data(), true);
                M_SamplingRandomStratifiedByStr(x, n, p, drawn, out, &labelTable, &ids, &strataTable, &quotaTable,
                                                &sizeTable, nStrata, &seed, fromSeed, &next);
            });
        EXPECT_THAT(flatLabels, SameBits(labels));
        EXPECT_THAT(flatIds, SameBits(Cells(ids.X, ids.X + ids.nElems)));
        EXPECT_EQ(texts.bstrs.countNew(), 0u); // the population stays as it was
    });
}

TEST(BorrowedTexts, WithoutTheIncompleteRows)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows;
        const int p = texts.cols;
        std::vector<short> mask(static_cast<std::size_t>(n));
        for (short& entry : mask)
            entry = static_cast<short>(-data.integer(0, 1));
        const auto table = texts.table();
        Smatrix* expected = table.get();
        RemoveRowsWithMissing(expected, n, p, mask.data());
        BstrArray out(texts.count());
        VB_RemoveRowsWithMissingStr(texts.bstrs, n, p, 0, mask.data(), out);
        expectTexts(texts.bstrs, *expected);
        expectTexts(out, *expected);
        texts.bstrs.takeTexts();
    });
}

} // namespace
} // namespace vecmat::test
