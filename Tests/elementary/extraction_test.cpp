#include "elementary/extraction.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/strings.h"
#include "support/tables.h"

#include <climits>

using namespace vecmat::test;

namespace {

using Texts = std::vector<std::wstring>;

// ---- ranges ---------------------------------------------------------------------------------------------------------

TEST(MExtractMatToMat, TakesARangeOfRows)
{
    const auto src = byRows({{1, 2}, {3, M}, {5, 6}});
    auto out = filled(3, 3, 7.0);
    M_ExtractMatToMat(src, 2, 2, 3, out);
    EXPECT_THAT(cellsOf(out), SameBits(cellsOf(byRows({{3, M, 7}, {5, 6, 7}, {7, 7, 7}}))));
    M_ExtractMatToMat(src, 1, 3, 2, out); // an empty range
    M_ExtractMatToMat(src, 1, INT_MAX, INT_MIN, out);
    EXPECT_THAT(cellsOf(out), SameBits(cellsOf(byRows({{3, M, 7}, {5, 6, 7}, {7, 7, 7}}))));
    M_ExtractMatToMat(src, 3, 0, 0, out); // row 0: before the block, then the ends of the columns
    EXPECT_THAT(cornerOf(out, 1, 3), SameBits({-1, 5, 6}));
}

TEST(MExtractMatToMatSPV, IsThePlainOneFromColumns)
{
    RandomData data(2450);
    SCOPED_TRACE(data);
    for (int round = 0; round < 100; ++round) {
        const int rows = data.integer(1, 6);
        const int cols = data.integer(1, 4);
        const int from = data.integer(1, rows);
        const int to = data.integer(from, rows);
        const auto cells = data.withSpecials(data.uniforms(static_cast<std::size_t>(rows * cols)), 0.3);
        auto plain = filled(6, 4, 7.0);
        auto twin = filled(6, 4, 7.0);
        M_ExtractMatToMat(table(rows, cols, cells), cols, from, to, plain);
        M_ExtractMatToMatSPV(TableColumns(rows, cols, cells), cols, from, to, twin);
        ASSERT_THAT(cellsOf(twin), SameBits(cellsOf(plain)));

        Guarded<double> flat(cells);
        const auto size = static_cast<std::size_t>((to - from + 1) * cols);
        Guarded<double> out(size, 7.0);
        VB_M_ExtractMatToMatDbl(flat, rows, cols, from, to, out);
        ASSERT_THAT(out.values(), SameBits(cornerOf(plain, to - from + 1, cols)));
        ArrayOfColumns columns = numberColumns(rows, cols, cells);
        Guarded<double> outTwin(size, 7.0);
        VB_M_ExtractMatToMatDblSPV(columns, cols, from, to, outTwin);
        ASSERT_THAT(outTwin.values(), SameBits(out.values()));
    }
}

TEST(MExtractMatToMatSPV, RowsOutsideAColumnReadMinusOne)
{
    auto out = filled(2, 2, 7.0);
    M_ExtractMatToMatSPV(TableColumns(2, 2, {1, 2, 3, 4}), 2, 2, 3, out);
    EXPECT_THAT(cellsOf(out), SameBits({2, -1, 4, -1}));
}

TEST(MExtractMatToMatByColDbl, TakesARangeOfColumnsAndPreparesTheResult)
{
    const auto src = byRows({{1, 2, 3}, {4, 5, M}});
    Owned<matrix> out;
    M_ExtractMatToMatByColDbl(src, 2, 2, 3, out);
    EXPECT_EQ(out->nRows, 2);
    EXPECT_THAT(cellsOf(out), SameBits({2, 5, 3, M}));
    auto kept = filled(3, 3, 7.0);
    M_ExtractMatToMatByColDbl(src, 1, 1, 2, kept);
    EXPECT_THAT(cellsOf(kept), SameBits({1, 0, 7, 2, 7, 7, 7, 7, 7}));
    Owned<matrix> beyond;
    M_ExtractMatToMatByColDbl(src, 2, 3, 4, beyond);
    EXPECT_THAT(cellsOf(beyond), SameBits({3, M, -1, -1}));
}

TEST(VBMExtractMatToMatDbl, NoColumnsMeanOne)
{
    Guarded<double> src{1, 2, 3};
    Guarded<double> out(3, 7.0);
    VB_M_ExtractMatToMatDbl(src, 3, 0, 2, 3, out);
    EXPECT_THAT(out.values(), SameBits({2, 3, 7}));
    ArrayOfColumns columns = numberColumns(3, 1, {1, 2, 3});
    VB_M_ExtractMatToMatDblSPV(columns, 0, 1, 2, out);
    EXPECT_THAT(out.values(), SameBits({1, 2, 7}));
    VB_M_ExtractMatToMatDbl(src, 3, 0, 3, 4, out); // beyond the source
    EXPECT_THAT(out.values(), SameBits({3, -1, 7}));
    VB_M_ExtractMatToMatDbl(src, 3, 1, 3, 2, out);
    EXPECT_THAT(out.values(), SameBits({3, -1, 7}));
}

TEST(VBMExtractMatToMatByColDbl, OpensTheSourceUpToTheLastColumn)
{
    Guarded<double> src{1, 2, 3, M};
    Guarded<double> out(2, 7.0);
    VB_M_ExtractMatToMatByColDbl(src, 2, 2, 2, out);
    EXPECT_THAT(out.values(), SameBits({3, M}));
    VB_M_ExtractMatToMatByColDbl(src, 2, 1, 2, src); // over its own array
    EXPECT_TRUE(src.untouched());
}

TEST(VBMExtractMatToMatStr, TakesARangeOfRowsInBothForms)
{
    BstrArray src({L"a", L"b", L"c", L"d", L"", L"f"});
    BstrArray out(std::size_t{4});
    VB_M_ExtractMatToMatStr(src, 3, 2, 2, 3, out);
    EXPECT_EQ(out.countNew(), 4u);
    EXPECT_EQ(out.takeTexts(), (Texts{L"b", L"c", L"", L"f"}));
    VB_M_ExtractMatToMatStr(src, 6, 0, 3, 4, out);
    EXPECT_EQ(out.takeTexts(), (Texts{L"c", L"d", L"", L""}));
    VB_M_ExtractMatToMatStr(src, 3, 2, 3, 4, out); // row 4 is the first of the next column, then nothing
    EXPECT_EQ(out.takeTexts(), (Texts{L"c", L"d", L"f", L""}));

    ArrayOfColumns columns = stringColumns(3, 2, {L"a", L"b", L"c", L"d", L"", L"f"});
    VB_M_ExtractMatToMatStrSPV(columns, 2, 2, 3, out);
    EXPECT_EQ(out.takeTexts(), (Texts{L"b", L"c", L"", L"f"}));
    VB_M_ExtractMatToMatStrSPV(columns, 0, 2, 3, out);
    EXPECT_EQ(out.countNew(), 2u);
    EXPECT_EQ(out.takeTexts(), (Texts{L"b", L"c", L"", L""}));
}

// ---- patterns -------------------------------------------------------------------------------------------------------

struct Pattern
{
    Texts texts;
    std::vector<double> positions;
};

/// The pattern over one column of n cells named by their positions, with room for `nOut`.
Pattern patternOf(int n, int nOut, int keep, int skip, int start)
{
    Texts cells;
    for (int k = 1; k <= n; ++k)
        cells.push_back(std::to_wstring(k));
    StringColumns src(n, 1, cells);
    StringColumns dst(nOut, 1, Texts(static_cast<std::size_t>(nOut), L"-"));
    auto positions = filled(nOut, 1, 0.0);
    M_ExtractMatNeverySKSPV(src, n, 1, nOut, keep, skip, start, dst, positions);
    return {dst.column(0), cellsOf(positions)};
}

TEST(MExtractMatNeverySKSPV, TakesRunsOfCellsAndJumps)
{
    const Pattern p = patternOf(9, 6, 2, 3, 1);
    EXPECT_EQ(p.texts, (Texts{L"1", L"2", L"6", L"7", L"-", L"-"}));
    EXPECT_THAT(p.positions, SameBits({1, 2, 6, 7, 0, 0}));
    EXPECT_THAT(patternOf(9, 4, 1, 1, 2).positions, SameBits({2, 4, 6, 8}));
}

TEST(MExtractMatNeverySKSPV, ARunEndsAtTheLastCell)
{
    const Pattern p = patternOf(7, 6, 3, 1, 3);
    EXPECT_EQ(p.texts, (Texts{L"3", L"4", L"5", L"7", L"-", L"-"}));
    EXPECT_THAT(p.positions, SameBits({3, 4, 5, 7, 0, 0}));
}

TEST(MExtractMatNeverySKSPV, WithoutASkipOneMoreRunOfEmptyStringsFollows)
{
    const Pattern p = patternOf(4, 7, 2, 0, 1);
    EXPECT_EQ(p.texts, (Texts{L"1", L"2", L"3", L"4", L"", L"", L"-"}));
    EXPECT_THAT(p.positions, SameBits({1, 2, 3, 4, 5, 6, 0}));
    // What does not fit is dropped.
    EXPECT_EQ(patternOf(4, 4, 2, 0, 1).texts, (Texts{L"1", L"2", L"3", L"4"}));
}

TEST(MExtractMatNeverySKSPV, AStartAfterTheColumnTakesOneEmptyRun)
{
    const Pattern p = patternOf(3, 4, 2, 1, 5);
    EXPECT_EQ(p.texts, (Texts{L"", L"", L"-", L"-"}));
    EXPECT_THAT(p.positions, SameBits({5, 6, 0, 0}));
}

TEST(MExtractMatNeverySKSPV, AStartBelowOneReadsEmptyStrings)
{
    const Pattern p = patternOf(3, 4, 2, 1, 0);
    EXPECT_EQ(p.texts, (Texts{L"", L"1", L"3", L"-"}));
    EXPECT_THAT(p.positions, SameBits({0, 1, 3, 0}));
}

TEST(MExtractMatNeverySKSPV, WithNothingToKeepOnlyTheLastCellEndsARun)
{
    EXPECT_THAT(patternOf(4, 5, 0, 1, 2).positions, SameBits({2, 3, 4, 0, 0}));
    EXPECT_THAT(patternOf(4, 5, -3, 2, 1).positions, SameBits({1, 2, 3, 4, 0}));
}

TEST(MExtractMatNeverySKSPV, EndsWhereThePatternWouldNot)
{
    EXPECT_THAT(patternOf(4, 6, 0, 0, 2).positions, SameBits({2, 3, 4, 0, 0, 0}));
    EXPECT_THAT(patternOf(4, 3, 0, 1, 6).positions, SameBits({0, 0, 0}));
    EXPECT_THAT(patternOf(4, 6, 2, -2, 1).positions, SameBits({1, 2, 0, 0, 0, 0}));
    EXPECT_THAT(patternOf(4, 8, 2, -1, 1).positions, SameBits({1, 2, 2, 3, 3, 4, 4, 0}));
    EXPECT_THAT(patternOf(4, 3, 1, INT_MIN, INT_MAX).positions, SameBits({2147483647.0, 0, 0}));
}

TEST(MExtractMatNeverySKSPV, EveryColumnFollowsThePattern)
{
    StringColumns src(3, 2, {L"a", L"b", L"c", L"d", L"e", L"f"});
    StringColumns dst(2, 2, Texts(4, L"-"));
    auto positions = filled(2, 1, 0.0);
    M_ExtractMatNeverySKSPV(src, 3, 2, 99, 1, 1, 1, dst, positions); // the room is not taken from nOut
    EXPECT_EQ(dst.cells(), (Texts{L"a", L"c", L"d", L"f"}));
    EXPECT_THAT(cellsOf(positions), SameBits({1, 3}));
}

TEST(CppMExtractMatNeverySKSPV, SizesTheResultsByNOut)
{
    ArrayOfColumns src = stringColumns(5, 2, {L"a", L"b", L"c", L"d", L"e", L"f", L"g", L"h", L"", L"j"});
    ArrayOfColumns dst = stringColumns(3, 2, Texts(6, L"-"));
    Guarded<double> positions(3, 7.0);
    Cpp_M_ExtractMatNeverySKSPV(src, 5, 2, 2, 1, 2, 1, dst, positions);
    EXPECT_EQ(dst.strings(0), (Texts{L"a", L"d", L"-"}));
    EXPECT_EQ(dst.strings(1), (Texts{L"f", L"", L"-"}));
    EXPECT_EQ(dst.stringArray(0).countNew(), 2u);
    EXPECT_THAT(positions.values(), SameBits({1, 4, 7}));
}

TEST(CppMExtractMatNeverySKSPV, KeepsTheStringsItDoesNotReach)
{
    ArrayOfColumns src = stringColumns(2, 1, {L"a", L"b"});
    ArrayOfColumns dst = stringColumns(3, 1, {L"1", L"2", L"3"});
    Guarded<double> positions(3, 7.0);
    Cpp_M_ExtractMatNeverySKSPV(src, 2, 1, 3, 1, 5, 2, dst, positions);
    EXPECT_EQ(dst.strings(0), (Texts{L"b", L"2", L"3"}));
    EXPECT_EQ(dst.stringArray(0).countNew(), 3u);
    EXPECT_THAT(positions.values(), SameBits({2, 7, 7}));
}

} // namespace
