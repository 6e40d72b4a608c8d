// The forms over arrays of string columns that only select and move a caller's texts, against those over one array.
#include "elementary/array_copies.h"
#include "elementary/blocks.h"
#include "elementary/extraction.h"
#include "randomisation/interval_sampling.h"
#include "randomisation/sampling_with_repeats.h"
#include "sorting/sort.h"

#include "support/bits.h"
#include "support/callers_texts.h"
#include "support/random_data.h"
#include "support/safearrays.h"

#include <gtest/gtest.h>

#include <vector>

namespace vecmat::test {
namespace {

constexpr short fromSeed = -1;
constexpr int start = 5;

using Cells = std::vector<double>;
using Texts = std::vector<std::wstring>;

/// Texts in one array, and the same in columns.
struct Case
{
    int rows;
    int cols;
    BstrArray whole;
    ArrayOfColumns columns;

    Case(RandomData& data, int r, int c)
        : rows(r), cols(c), whole(Caller::drawn(data, r * c)), columns(static_cast<std::size_t>(c))
    {
        const Texts texts = whole.texts();
        for (int j = 0; j < c; ++j)
            columns.setStrings(static_cast<std::size_t>(j), Texts(texts.begin() + j * r, texts.begin() + (j + 1) * r));
    }
};

Texts textsOf(ArrayOfColumns& columns)
{
    Texts all;
    for (std::size_t j = 0; j < columns.count(); ++j) {
        EXPECT_EQ(columns.stringArray(j).countNew(), columns.stringArray(j).size());
        const Texts one = columns.strings(j);
        all.insert(all.end(), one.begin(), one.end());
    }
    return all;
}

/// Columns of empty texts for a result.
ArrayOfColumns& emptied(ArrayOfColumns& columns, int rows)
{
    for (std::size_t j = 0; j < columns.count(); ++j)
        columns.setStrings(j, Texts(static_cast<std::size_t>(rows)));
    return columns;
}

/// The intervals that one row each is drawn from.
int intervals(int rows, int wanted)
{
    const int step = (rows - 1) / (wanted - 1);
    const int length = rows - (wanted - 1) * step;
    return (rows - (length + 1) / 2) / step + 1;
}

template <class Body>
void forRandomTexts(Body body)
{
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        Case texts(data, data.integer(0, 1) != 0 ? data.integer(2, 12) : data.integer(60, 300), data.integer(1, 4));
        body(data, texts);
    }
}

TEST(BorrowedColumns, AreSorted)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows;
        Cells keys = data.wholes(static_cast<std::size_t>(n), -3, 9);
        Cells sameKeys = keys;
        Cells carried = keys, sameCarried = keys;
        VB_SortQStr(texts.whole, n, texts.cols, 1, n, keys.data(), carried.data(), 1, 0, -1);
        VB_SortQStrSPV(texts.columns, n, texts.cols, 1, n, sameKeys.data(), sameCarried.data(), 1, 0, -1);
        EXPECT_EQ(textsOf(texts.columns), texts.whole.texts());
        EXPECT_THAT(sameKeys, SameBits(keys));
        EXPECT_THAT(sameCarried, SameBits(carried));
    });
}

TEST(BorrowedColumns, AreCopiedAndExtracted)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows;
        const int p = texts.cols;
        ArrayOfColumns copy(static_cast<std::size_t>(p));
        VB_M_DuplicateStrSPV(texts.columns, n, p, emptied(copy, n));
        BstrArray wholeCopy(texts.whole.size());
        VB_M_DuplicateStr(texts.whole, n, p, wholeCopy);
        EXPECT_EQ(textsOf(copy), wholeCopy.texts());
        const int from = data.integer(1, n);
        const int to = data.integer(from, n);
        const auto size = static_cast<std::size_t>((to - from + 1) * p);
        BstrArray some(size), same(size);
        VB_M_ExtractMatToMatStr(texts.whole, n, p, from, to, some);
        VB_M_ExtractMatToMatStrSPV(texts.columns, p, from, to, same);
        EXPECT_EQ(same.texts(), some.texts());
    });
}

TEST(BorrowedColumns, MayBeNone)
{
    RandomData data(1);
    Case texts(data, 3, 2);
    VB_M_DuplicateStrSPV(nullptr, 3, 0, texts.columns);
    Texts kept = texts.columns.strings(0);
    const Texts more = texts.columns.strings(1);
    kept.insert(kept.end(), more.begin(), more.end());
    EXPECT_EQ(kept, texts.whole.texts());
}

TEST(BorrowedColumns, AreDrawn)
{
    forRandomTexts([](RandomData& data, Case& texts) {
        const int n = texts.rows;
        const int p = texts.cols;
        const int drawn = data.integer(2, n);
        const auto expectSample = [&](const char* name, auto whole, auto columns) {
            SCOPED_TRACE(name);
            Cells ids(static_cast<std::size_t>(n)), sameIds(ids);
            BstrArray sample(static_cast<std::size_t>(drawn * p));
            ArrayOfColumns sampleColumns(static_cast<std::size_t>(p));
            int seed = start, next = 0, same = start, sameNext = 0;
            whole(texts.whole, n, p, drawn, sample, ids.data(), &seed, fromSeed, &next);
            columns(texts.columns, n, p, drawn, emptied(sampleColumns, drawn), sameIds.data(), &same, fromSeed,
                    &sameNext);
            EXPECT_EQ(textsOf(sampleColumns), sample.texts());
            EXPECT_THAT(sameIds, SameBits(ids));
            EXPECT_EQ(sameNext, next);
        };
        expectSample("VB_M_SamplingWithReplacement", VB_M_SamplingWithReplacement, VB_M_SamplingWithReplacementSPV);
        expectSample("VB_M_SamplingSystematicRdStart", VB_M_SamplingSystematicRdStart,
                     VB_M_SamplingSystematicRdStartSPV);
        // A row beyond the sample lies in the next column of one array, and nowhere in columns.
        if (intervals(n, drawn) <= drawn)
            expectSample("VB_M_SamplingRandomStratified", VB_M_SamplingRandomStratified,
                         VB_M_SamplingRandomStratifiedSPV);
    });
}

} // namespace
} // namespace vecmat::test
