#include "elementary/columns_and_rows.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/strings.h"
#include "support/tables.h"

using namespace vecmat::test;

namespace {

using Texts = std::vector<std::wstring>;

TEST(CopyMatrixColToMatrixCol, CopiesBetweenColumnsCountedFromOne)
{
    const auto src = byRows({{1, 2}, {M, 4}, {5, 6}});
    auto dst = filled(3, 2, 7.0);
    CopyMatrixColToMatrixCol(src, 2, 1, dst, 2, 0);
    EXPECT_THAT(cellsOf(dst), SameBits({7, 7, 7, 1, M, 7}));
    CopyMatrixColToMatrixCol(src, 3, 3, dst, 1, 0); // there is no column 3
    EXPECT_THAT(cellsOf(dst), SameBits({-1, -1, -1, 1, M, 7}));
    CopyMatrixColToMatrixCol(src, 4, 2, dst, 2, 0);
    EXPECT_THAT(cellsOf(dst), SameBits({-1, -1, -1, 2, 4, 6}));
    CopyMatrixColToMatrixCol(src, 3, 1, dst, 0, 0); // column 0 of the target lies before its block
    EXPECT_THAT(cellsOf(dst), SameBits({-1, -1, -1, 2, 4, 6}));
}

TEST(CopyMatrixColToMatrixCol, AnyNonZeroOptionPreparesTheTarget)
{
    const auto src = byRows({{1, 2}, {3, 4}});
    Owned<matrix> made;
    CopyMatrixColToMatrixCol(src, 2, 2, made, 3, -1);
    EXPECT_EQ(made->nCols, 3);
    EXPECT_THAT(cellsOf(made), SameBits({0, 0, 0, 0, 2, 4}));
    auto kept = filled(3, 2, 7.0);
    CopyMatrixColToMatrixCol(src, 2, 1, kept, 2, 1); // 1 prepares too; the first 4 cells are cleared
    EXPECT_THAT(cellsOf(kept), SameBits({0, 0, 0, 1, 3, 7}));
}

TEST(CopyMatrixColToMatrixCol, ALongColumnRunsIntoTheNext)
{
    auto dst = filled(2, 2, 7.0);
    CopyMatrixColToMatrixCol(column({1, 2, 3}), 3, 1, dst, 1, 0);
    EXPECT_THAT(cellsOf(dst), SameBits({1, 2, 3, 7}));
}

TEST(CopyMatrixColToVector, PreparesTheVector)
{
    const auto src = byRows({{1, 2}, {3, M}});
    Owned<matrix> v;
    CopyMatrixColToVector(src, 2, 2, v);
    EXPECT_EQ(v->nRows, 2);
    EXPECT_EQ(v->nCols, 1);
    EXPECT_THAT(cellsOf(v), SameBits({2, M}));
    CopyMatrixColToVector(src, 3, 2, v);
    EXPECT_THAT(cellsOf(v), SameBits({2, M, -1}));
    CopyMatrixColToVector(src, 1, 1, v);
    EXPECT_THAT(cellsOf(v), SameBits({1, M, -1}));
}

TEST(CopyMatrixColToVectorSPV, IsThePlainOneFromColumns)
{
    const std::vector<double> cells{1, 2, 3, M, 5, 6};
    for (int col = 1; col <= 2; ++col) {
        Owned<matrix> plain;
        Owned<matrix> twin;
        CopyMatrixColToVector(table(3, 2, cells), 3, col, plain);
        CopyMatrixColToVectorSPV(TableColumns(3, 2, cells), 3, col, twin);
        EXPECT_THAT(cellsOf(twin), SameBits(cellsOf(plain)));
    }
    Owned<matrix> beyond;
    CopyMatrixColToVectorSPV(TableColumns(2, 2, {1, 2, 3, 4}), 3, 1, beyond);
    EXPECT_THAT(cellsOf(beyond), SameBits({1, 2, -1})); // never the next column
}

TEST(CopyMatrixRowToMatrixRow, CountsFromZeroAndKeepsTheStrides)
{
    const auto src = byRows({{1, 2, 3}, {4, 5, M}});
    auto dst = filled(3, 3, 7.0);
    CopyMatrixRowToMatrixRow(src, 3, 1, dst, 3, 0, 0);
    EXPECT_THAT(cellsOf(dst), SameBits(cellsOf(byRows({{4, 5, M}, {7, 7, 7}, {7, 7, 7}}))));
    CopyMatrixRowToMatrixRow(src, 4, 0, dst, 3, 2, 0); // a fourth column is in neither table
    EXPECT_THAT(cellsOf(dst), SameBits(cellsOf(byRows({{4, 5, M}, {7, 7, 7}, {1, 2, 3}}))));
    CopyMatrixRowToMatrixRow(src, 3, 2, dst, 3, 1, 0); // row 2 of the source runs into its next column
    EXPECT_THAT(cellsOf(dst), SameBits(cellsOf(byRows({{4, 5, M}, {2, 3, -1}, {1, 2, 3}}))));
}

TEST(CopyMatrixRowToMatrixRow, PreparesOnRequest)
{
    Owned<matrix> made;
    CopyMatrixRowToMatrixRow(byRows({{1, 2}, {3, 4}}), 2, 0, made, 3, 2, 1);
    EXPECT_EQ(made->nRows, 3);
    EXPECT_THAT(cellsOf(made), SameBits({0, 0, 1, 0, 0, 2}));
    CopyMatrixRowToMatrixRow(byRows({{1, 2}, {3, 4}}), 2, 1, made, 2, 0, -1); // kept: the first 4 cells are cleared
    EXPECT_THAT(cellsOf(made), SameBits({3, 0, 0, 4, 0, 2}));
}

TEST(CopyMatrixColToOneColMatStr, FillsTheHeadOfTheColumn)
{
    auto out = stringColumn({L"-", L"-", L"-", L"-"});
    CopyMatrixColToOneColMatStr(stringsByRows({{L"a", L"b"}, {L"c", L"d"}}), 3, 2, out);
    EXPECT_EQ(cellsOf(out), (Texts{L"b", L"d", L"", L"-"}));
}

TEST(CopyCol, CopiesAllCellsOfTheTable)
{
    TableColumns src(std::vector<std::vector<double>>{{1, 2}, {3, M, 5}});
    auto dst = filled(2, 2, 7.0);
    CopyCol(src, 2, 0, 1, dst);
    EXPECT_THAT(cellsOf(dst), SameBits({7, 7, 1, 2}));
    CopyCol(src, 2, 1, 0, dst); // the third cell runs into column 1
    EXPECT_THAT(cellsOf(dst), SameBits({3, M, 5, 2}));
    CopyCol(src, 2, 1, 1, dst); // and is dropped past the last
    EXPECT_THAT(cellsOf(dst), SameBits({3, M, 3, M}));
}

TEST(CopyCol, DoesNothingForANumberOutOfRange)
{
    TableColumns src(2, 2, {1, 2, 3, 4});
    auto dst = filled(2, 2, 7.0);
    CopyCol(src, 2, -1, 0, dst);
    CopyCol(src, 2, 0, -1, dst);
    CopyCol(src, 2, 2, 0, dst);
    CopyCol(src, 1, 1, 0, dst); // the second table is not among the first
    CopyCol(src, 2, 0, 2, dst);
    EXPECT_THAT(cellsOf(dst), SameBits({7, 7, 7, 7}));
}

TEST(Extractij, TakesTwoColumns)
{
    const auto a = byRows({{1, 2, 3}, {4, M, 6}});
    auto out = filled(3, 2, 7.0);
    Extractij(a, 2, 3, 2, out);
    EXPECT_THAT(cellsOf(out), SameBits({3, 6, 7, 2, M, 7}));
    Extractij(a, 2, 1, 4, out);
    EXPECT_THAT(cellsOf(out), SameBits({1, 4, 7, -1, -1, 7}));
    auto shorter = filled(2, 2, 7.0);
    Extractij(byColumns({{1, 2, 3}, {4, 5, 6}}), 3, 1, 2, shorter); // (3, 1) lies on (1, 2), and is written later
    EXPECT_THAT(cellsOf(shorter), SameBits({1, 2, 3, 5}));
}

// ---- flat forms -----------------------------------------------------------------------------------------------------

TEST(VBCopyMatrixColToMatrixCol, KeepsOrClearsTheOtherColumns)
{
    Guarded<double> src{1, 2, 3, M};
    Guarded<double> dst(6, 7.0);
    VB_CopyMatrixColToMatrixCol(src, 2, 2, dst, 3, 0);
    EXPECT_THAT(dst.values(), SameBits({7, 7, 7, 7, 3, M}));
    VB_CopyMatrixColToMatrixCol(src, 2, 1, dst, 2, 1);
    EXPECT_THAT(dst.values(), SameBits({0, 0, 1, 2, 3, M}));
    EXPECT_TRUE(src.untouched());
    VB_CopyMatrixColToMatrixCol(dst, 2, 3, dst, 1, 0); // between columns of one array
    EXPECT_THAT(dst.values(), SameBits({3, M, 1, 2, 3, M}));
}

TEST(VBCopyMatrixColToVector, ReadsNoFurtherThanTheColumn)
{
    Guarded<double> src{1, 2, 3, M}; // the array ends with column 2
    Guarded<double> v(3, 7.0);
    VB_CopyMatrixColToVector(src, 2, 2, v);
    EXPECT_THAT(v.values(), SameBits({3, M, 7}));
    VB_CopyMatrixColToVector(src, 2, 0, v);
    EXPECT_THAT(v.values(), SameBits({-1, -1, 7}));
}

TEST(VBCopyMatrixRowToMatrixRow, CountsFromOneUnlikeItsFunction)
{
    Guarded<double> src{1, 2, 3, 4, 5, 6};
    Guarded<double> dst(4, 7.0);
    VB_CopyMatrixRowToMatrixRow(src, 3, 2, 3, dst, 2, 1, 0);
    EXPECT_THAT(dst.values(), SameBits({3, 7, 6, 7}));
    VB_CopyMatrixRowToMatrixRow(src, 3, 2, 1, dst, 2, 2, -1);
    EXPECT_THAT(dst.values(), SameBits({0, 1, 0, 4}));
    VB_CopyMatrixRowToMatrixRow(src, 3, 2, 0, dst, 2, 1, 0); // row 0: before the block, then the end of column 1
    EXPECT_THAT(dst.values(), SameBits({-1, 1, 3, 4}));
}

TEST(VBCopyMatrixColToOneColMatStr, StoresNewStrings)
{
    BstrArray src({L"a", L"b", L"c", L""});
    BstrArray out({L"1", L"2"});
    VB_CopyMatrixColToOneColMatStr(src, 2, 2, out);
    EXPECT_EQ(out.texts(), (Texts{L"c", L""}));
    EXPECT_EQ(out.countNew(), 2u);
    EXPECT_EQ(src.countNew(), 0u);
}

TEST(CppExtractij, OpensAsManyColumnsAsTheLargerNumber)
{
    Guarded<double> a{1, 2, 3, M, 5, 6};
    Guarded<double> out(4, 7.0);
    Cpp_Extractij(a, 2, 3, 1, out);
    EXPECT_THAT(out.values(), SameBits({5, 6, 1, 2}));
    Cpp_Extractij(a, 2, 1, 2, out);
    EXPECT_THAT(out.values(), SameBits({1, 2, 3, M}));
    EXPECT_TRUE(a.untouched());
}

} // namespace
