#include "elementary/horizontal_merges.h"

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

// ---- vectors --------------------------------------------------------------------------------------------------------

TEST(HMergeVectors, PutsTwoColumnsSideBySide)
{
    Guarded<double> a{1, M};
    Guarded<double> b{3, 4, 5};
    Owned<matrix> out;
    HMergeVectors(a, 2, b, 3, out);
    EXPECT_EQ(out->nRows, 3);
    EXPECT_EQ(out->nCols, 2);
    EXPECT_THAT(cellsOf(out), SameBits({1, M, 0, 3, 4, 5}));
}

TEST(HMergeVectors, TheSecondColumnStartsAtTheStrideOfAKeptTable)
{
    Guarded<double> a{1, 2};
    Guarded<double> b{3};
    auto out = filled(4, 3, 7.0);
    HMergeVectors(a, 2, b, 1, out);
    EXPECT_EQ(out->nRows, 4);
    EXPECT_THAT(cellsOf(out), SameBits({1, 2, 0, 0, 3, 7, 7, 7, 7, 7, 7, 7})); // four cells cleared, not two columns
}

TEST(HMergeVectors, AVectorMayBeEmpty)
{
    Guarded<double> b{3};
    Owned<matrix> out;
    HMergeVectors(nullptr, 0, b, 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({0, 3}));
    Owned<matrix> none;
    HMergeVectors(nullptr, 0, nullptr, -1, none);
    EXPECT_EQ(none->nElems, 0u);
}

TEST(HMergeTableVect, PutsTheVectorLast)
{
    Guarded<double> v{7, 8, 9};
    Owned<matrix> out;
    HMergeTableVect(byRows({{1, 2}, {3, 4}}), 2, 2, v, 3, out);
    EXPECT_THAT(cellsOf(out), SameBits(cellsOf(byRows({{1, 2, 7}, {3, 4, 8}, {0, 0, 9}}))));
    Owned<matrix> corner;
    HMergeTableVect(byRows({{1, 2}, {3, 4}}), 2, 1, v, 1, corner); // a corner of the table
    EXPECT_THAT(cellsOf(corner), SameBits({1, 3, 7, 0}));
}

TEST(HMergeTableVect2, WritesTheColumnCountedFromZero)
{
    Guarded<double> v{7, 8};
    auto t = byRows({{1, 2, 3}, {4, 5, 6}});
    HMergeTableVect2(t, 1, v, 2);
    EXPECT_THAT(cellsOf(t), SameBits({1, 4, 7, 8, 3, 6}));
    Guarded<double> longer{10, 11, 12};
    HMergeTableVect2(t, 0, longer, 3); // runs into the next column
    EXPECT_THAT(cellsOf(t), SameBits({10, 11, 12, 8, 3, 6}));
    HMergeTableVect2(t, 2, longer, 3); // and ends with the table
    HMergeTableVect2(t, 3, longer, 3);
    EXPECT_THAT(cellsOf(t), SameBits({10, 11, 12, 8, 10, 11}));
    HMergeTableVect2(t, -1, longer, 3);
    EXPECT_THAT(cellsOf(t), SameBits({12, 11, 12, 8, 10, 11}));
}

TEST(HMergeVectTable, PutsTheVectorFirstInBothForms)
{
    Guarded<double> v{7, 8, 9};
    Owned<matrix> fromArray;
    HMergeVectTable(v.data(), 3, byRows({{1, 2}, {3, 4}}), 2, 2, fromArray.reference());
    EXPECT_THAT(cellsOf(fromArray), SameBits(cellsOf(byRows({{7, 1, 2}, {8, 3, 4}, {9, 0, 0}}))));
    Owned<matrix> fromTable;
    HMergeVectTable(column({7, 8, 9}), 3, byRows({{1, 2}, {3, 4}}), 2, 2, fromTable.reference());
    EXPECT_THAT(cellsOf(fromTable), SameBits(cellsOf(fromArray)));
    Owned<matrix> beyond;
    HMergeVectTable(column({7}), 2, column({1}), 1, 2, beyond.reference());
    EXPECT_THAT(cellsOf(beyond), SameBits({7, -1, 1, 0, -1, 0}));
}

TEST(HMergeVectCol, TheTwoFormsCountTheColumnDifferently)
{
    Guarded<double> v{7, 8, 9};
    const auto t = byRows({{1, 2}, {3, 4}});
    Owned<matrix> fromArray;
    HMergeVectCol(v.data(), 3, t, 2, 1, fromArray.reference());
    EXPECT_THAT(cellsOf(fromArray), SameBits({7, 8, 9, 1, 3, 0}));
    Owned<matrix> fromTable;
    HMergeVectCol(column({7, 8, 9}), 3, t, 2, 0, fromTable.reference());
    EXPECT_THAT(cellsOf(fromTable), SameBits(cellsOf(fromArray)));
    HMergeVectCol(column({7, 8, 9}), 3, t, 2, 1, fromTable.reference());
    EXPECT_THAT(cellsOf(fromTable), SameBits({7, 8, 9, 2, 4, 0}));
    HMergeVectCol(v.data(), 3, t, 2, 3, fromArray.reference()); // column 3 does not exist
    EXPECT_THAT(cellsOf(fromArray), SameBits({7, 8, 9, -1, -1, 0}));
}

// ---- tables ---------------------------------------------------------------------------------------------------------

TEST(HMergeTables, LeavesZerosBelowTheShorterTable)
{
    Owned<matrix> out;
    HMergeTables(byRows({{1, 2}, {3, M}}), 2, 2, column({5, 6, 7}), 3, 1, out.reference());
    EXPECT_EQ(out->nRows, 3);
    EXPECT_THAT(cellsOf(out), SameBits({1, 3, 0, 2, M, 0, 5, 6, 7}));
}

TEST(HMergeTables, ASmallerOrLargerSourceGivesItsCornerOrMinusOne)
{
    Owned<matrix> out;
    HMergeTables(byRows({{1, 2}, {3, 4}}), 1, 1, column({5}), 2, 2, out.reference());
    EXPECT_THAT(cellsOf(out), SameBits({1, 0, 5, -1, -1, -1}));
}

TEST(HMergeTables, TruncatesTowardsInts)
{
    Owned<matrixInt> out;
    HMergeTables(column({1.9, -1.9}), 2, 1, column({M, 1e10}), 3, 1, out.reference());
    EXPECT_EQ(cellsOf(out), (std::vector<int>{1, -1, 0, INT_MIN, INT_MIN, -1}));
    auto kept = intTable(3, 3, std::vector<int>(9, 7));
    HMergeTables(column({1.9, -1.9}), 2, 1, column({3}), 1, 1, kept.reference());
    EXPECT_EQ(cellsOf(kept), (std::vector<int>{1, -1, 0, 3, 7, 7, 7, 7, 7}));
}

TEST(HMergeTables, OfIntsAndOfStrings)
{
    Owned<matrixInt> ints;
    HMergeTables(intsByRows({{1, 2}}), 1, 2, intColumn({5, 6}), 3, 1, ints.reference());
    EXPECT_EQ(cellsOf(ints), (std::vector<int>{1, 0, 0, 2, 0, 0, 5, 6, -1}));

    Owned<Smatrix> strings;
    HMergeTables(stringColumn({L"a", L"b"}), 2, 1, stringColumn({L"c"}), 3, 1, strings.reference());
    EXPECT_EQ(strings->nRows, 3);
    EXPECT_EQ(cellsOf(strings), (Texts{L"a", L"b", L"", L"c", L"", L""}));
    auto exact = stringTable(2, 2, Texts(4, L"-"));
    HMergeTables(stringColumn({L"a"}), 1, 1, stringColumn({L"c", L"d"}), 2, 1, exact.reference());
    EXPECT_EQ(cellsOf(exact), (Texts{L"a", L"-", L"c", L"d"})); // nothing is cleared in a table of the exact shape
}

TEST(HMergeTables, IntoAnArrayOfColumnsLeavesTheFirstColumns)
{
    TableColumns a(2, 4, {1, 2, 3, 4, 9, 9, 9, 9});
    HMergeTables(a.get(), 2, 2, byRows({{5, 6}, {7, M}, {0, 0}}).get(), 3, 1);
    EXPECT_THAT(a.cells(), SameBits({1, 2, 3, 4, 5, 7, 9, 9})); // one column, and its third row is dropped
    TableColumns b(1, 2, {10, 11});
    HMergeTables(a.get(), 2, 2, b.get(), 1, 2);
    EXPECT_THAT(a.cells(), SameBits({1, 2, 3, 4, 10, 7, 11, 9})); // below row 1 the cells stay
    HMergeTables(a.get(), 2, 2, b.get(), 2, 1);
    EXPECT_THAT(a.cells(), SameBits({1, 2, 3, 4, 10, -1, 11, 9}));
}

TEST(HMergeTables, TheFormsOverColumnsGiveThePlainResult)
{
    RandomData data(2430);
    SCOPED_TRACE(data);
    for (int round = 0; round < 50; ++round) {
        const int rows = data.integer(1, 6);
        const int c1 = data.integer(0, 4);
        const int c2 = data.integer(0, 4);
        const auto left = data.uniforms(static_cast<std::size_t>(rows * c1));
        const auto right = data.withSpecials(data.uniforms(static_cast<std::size_t>(rows * c2)), 0.3);
        Owned<matrix> plain;
        HMergeTables(table(rows, c1, left), rows, c1, table(rows, c2, right), rows, c2, plain.reference());
        auto wide = left;
        wide.resize(static_cast<std::size_t>(rows * (c1 + c2)), 7.0);
        TableColumns first(rows, c1 + c2, wide);
        HMergeTables(first.get(), rows, c1, table(rows, c2, right).get(), rows, c2);
        EXPECT_THAT(first.cells(), SameBits(cellsOf(plain)));
        TableColumns second(rows, c1 + c2, wide);
        TableColumns b(rows, c2, right);
        HMergeTables(second.get(), rows, c1, b.get(), rows, c2);
        EXPECT_THAT(second.cells(), SameBits(cellsOf(plain)));
    }
}

// ---- flat forms -----------------------------------------------------------------------------------------------------

TEST(VBHMerge, VectorsAndTables)
{
    Guarded<double> a{1, 2};
    Guarded<double> v{7, 8, 9};
    Guarded<double> t{1, 2, M, 4};
    Guarded<double> two(6, 5.0);
    VB_HMergeVectors(a, 2, v, 3, two);
    EXPECT_THAT(two.values(), SameBits({1, 2, 0, 7, 8, 9}));
    Guarded<double> three(9, 5.0);
    VB_HMergeTableVect(t, 2, 2, v, 3, three);
    EXPECT_THAT(three.values(), SameBits({1, 2, 0, M, 4, 0, 7, 8, 9}));
    VB_HMergeVectTable(v, 3, t, 2, 2, three);
    EXPECT_THAT(three.values(), SameBits({7, 8, 9, 1, 2, 0, M, 4, 0}));
    VB_HMergeVectColDbl(v, 3, t, 2, 2, two);
    EXPECT_THAT(two.values(), SameBits({7, 8, 9, M, 4, 0})); // the second column: it counts from 1
    VB_HMergeTablesDbl(t, 2, 2, v, 3, 1, three);
    EXPECT_THAT(three.values(), SameBits({1, 2, 0, M, 4, 0, 7, 8, 9}));
    EXPECT_TRUE(a.untouched() && v.untouched() && t.untouched());
}

TEST(VBHMerge, AnEmptySideMayBeNull)
{
    Guarded<double> a{1, 2};
    Guarded<double> out(2, 5.0);
    VB_HMergeTablesDbl(a, 2, 1, nullptr, 0, 0, out);
    EXPECT_THAT(out.values(), SameBits({1, 2}));
    VB_HMergeTablesDbl(nullptr, 0, 0, a, 2, 1, out);
    EXPECT_THAT(out.values(), SameBits({1, 2}));
}

TEST(VBHMergeTableVect2, WithEqualRowsItAppendsTheColumn)
{
    Guarded<double> t{1, 2, 3, 4, 9, 9};
    Guarded<double> v{7, 8};
    VB_HMergeTableVect2(t, 2, 2, v, 2);
    EXPECT_THAT(t.values(), SameBits({1, 2, 3, 4, 7, 8}));
    VB_HMergeTableVect2(t, 2, 2, v, 1); // a shorter vector leaves 0.0, not what stood there
    EXPECT_THAT(t.values(), SameBits({1, 2, 3, 4, 7, 0}));
}

TEST(VBHMergeTableVect2, ALongerVectorDoesNotMoveTheColumns)
{
    Guarded<double> t{1, 2, 3, 4, 9, 9, 9, 9, 9};
    Guarded<double> v{7, 8, 6};
    VB_HMergeTableVect2(t, 2, 2, v, 3);
    EXPECT_THAT(t.values(), SameBits({1, 2, 3, 4, 0, 0, 7, 8, 6})); // column 2 starts with the 4
}

TEST(VBHMergeTables2, TheFirstArrayTakesTheResult)
{
    Guarded<double> a{1, 2, 3, 4, 9, 9};
    Guarded<double> b{5, M};
    VB_HMergeTablesDbl2(a, 2, 2, b, 2, 1);
    EXPECT_THAT(a.values(), SameBits({1, 2, 3, 4, 5, M}));
    Guarded<double> grown{1, 2, 3, 4, 9, 9, 9, 9, 9};
    Guarded<double> longer{5, 6, 7};
    VB_HMergeTablesDbl2(grown, 2, 2, longer, 3, 1);
    EXPECT_THAT(grown.values(), SameBits({1, 2, 0, 3, 4, 0, 5, 6, 7}));
    Guarded<double> shorter{1, 2, 9, 9};
    VB_HMergeTablesDbl2(shorter, 2, 1, longer, 1, 1);
    EXPECT_THAT(shorter.values(), SameBits({1, 2, 5, 0}));

    Guarded<int> ints{1, 2, 9, 9, 9, 9};
    Guarded<int> more{5, INT_MIN, 7};
    VB_HMergeTablesLng2(ints, 2, 1, more, 3, 1);
    EXPECT_EQ(ints.values(), (std::vector<int>{1, 2, 0, 5, INT_MIN, 7}));
}

TEST(VBHMergeTablesBool, EveryEntryComesBackAsMinusOneOrZero)
{
    Guarded<short> a{-1, 5};
    Guarded<short> b{0, 1, -1};
    Guarded<short> out(6, short{9});
    VB_HMergeTablesBool(a, 2, 1, b, 3, 1, out);
    EXPECT_EQ(out.values(), (std::vector<short>{-1, -1, 0, 0, -1, -1}));
    EXPECT_TRUE(a.untouched() && b.untouched());
    Guarded<short> grown{-1, 5, 9, 9, 9, 9};
    VB_HMergeTablesBool2(grown, 2, 1, b, 3, 1);
    EXPECT_EQ(grown.values(), out.values());
}

TEST(VBHMergeTablesStr, StoresNewStrings)
{
    BstrArray a({L"a", L"b"});
    BstrArray b({L"c", L"", L"e"});
    BstrArray out(std::size_t{6});
    VB_HMergeTablesStr(a, 2, 1, b, 3, 1, out);
    EXPECT_EQ(out.texts(), (Texts{L"a", L"b", L"", L"c", L"", L"e"}));
    EXPECT_EQ(out.countNew(), 6u);
    BstrArray grown({L"a", L"b", L"-", L"-", L"-", L"-"});
    VB_HMergeTablesStr2(grown, 2, 1, b, 3, 1);
    EXPECT_EQ(grown.texts(), out.texts());
    EXPECT_EQ(b.countNew(), 0u);
}

TEST(VBHMergeTablesDbl2SPV, OpensTheRowsOfTheFirstTable)
{
    ArrayOfColumns a = numberColumns(2, 3, {1, 2, 9, 9, 9, 9});
    Guarded<double> b{3, 4, 5, 6, 7, 8};
    VB_HMergeTablesDbl2SPV(a, 2, 1, b, 3, 2);
    EXPECT_THAT(a.numbers(), SameBits({1, 2, 3, 4, 6, 7})); // row 3 is dropped
    ArrayOfColumns c = numberColumns(1, 2, {10, 11});
    VB_HMergeTablesDbl2SPV2(a, 2, 1, c, 1, 2);
    EXPECT_THAT(a.numbers(), SameBits({1, 2, 10, 4, 11, 7}));
    EXPECT_TRUE(c.untouched() && b.untouched());
}

} // namespace
