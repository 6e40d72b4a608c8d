#include "elementary/transposition.h"

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

/// The source is a reference in the function, for all that it does not change.
template <class Source, class Target>
void transpose(Owned<Source> src, int rows, int cols, Owned<Target>& dst)
{
    M_Transpose(src.reference(), rows, cols, dst.reference());
}

/// The plain loop over a source read by the checked access.
std::vector<double> transposedByTheCell(const Owned<matrix>& src, int rows, int cols)
{
    std::vector<double> result;
    for (int i = 1; i <= rows; ++i)
        for (int j = 1; j <= cols; ++j)
            result.push_back(src->vbget(i, j));
    return result;
}

TEST(MTranspose, MakesTheTransposeOfTheGivenCorner)
{
    Owned<matrix> out;
    transpose(byRows({{1, 2, 3}, {4, M, 6}}), 2, 3, out);
    EXPECT_EQ(out->nRows, 3);
    EXPECT_EQ(out->nCols, 2);
    EXPECT_THAT(cellsOf(out), SameBits({1, 2, 3, 4, M, 6}));
    Owned<matrix> corner;
    transpose(byRows({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}), 2, 2, corner);
    EXPECT_THAT(cellsOf(corner), SameBits({1, 2, 4, 5}));
}

TEST(MTranspose, BeyondTheSourceReadsMinusOne)
{
    Owned<matrix> out;
    transpose(byRows({{1, 2}, {3, 4}}), 2, 3, out);
    EXPECT_THAT(cellsOf(out), SameBits({1, 2, -1, 3, 4, -1}));
    Owned<matrix> sliding;
    transpose(byRows({{1, 2}, {3, 4}}), 3, 2, sliding); // (3, 1) is (1, 2)
    EXPECT_THAT(cellsOf(sliding), SameBits({1, 2, 3, 4, 2, -1}));
}

TEST(MTranspose, ALargerTargetKeepsItsStrideAndOnlyItsHeadIsCleared)
{
    auto out = filled(3, 3, 7.0);
    matrix* const before = out.get();
    transpose(byRows({{1, 2}, {3, 4}}), 2, 2, out);
    EXPECT_EQ(out.get(), before);
    EXPECT_EQ(out->nRows, 3);
    EXPECT_THAT(cellsOf(out), SameBits({1, 2, 0, 3, 4, 7, 7, 7, 7}));
}

TEST(MTranspose, AllTableFormsAreThePlainLoop)
{
    RandomData data(2420);
    SCOPED_TRACE(data);
    for (const auto& [rows, cols] : {std::pair{1, 1}, {1, 40}, {33, 65}, {70, 32}, {5, 3}}) {
        const auto n = static_cast<std::size_t>(rows * cols);
        const auto src = table(rows, cols, data.withSpecials(data.uniforms(n), 0.2));
        const auto expected = transposedByTheCell(src, rows, cols);
        Owned<matrix> plain;
        transpose(table(rows, cols, cellsOf(src)), rows, cols, plain);
        EXPECT_THAT(cellsOf(plain), SameBits(expected));

        TableColumns columns(rows, cols, cellsOf(src));
        Owned<matrix> fromColumns;
        M_Transpose(columns.get(), rows, cols, fromColumns.reference());
        EXPECT_THAT(cellsOf(fromColumns), SameBits(expected));

        TableColumns toColumns(cols, rows, std::vector<double>(n, 7.0));
        M_Transpose(src.get(), rows, cols, toColumns.get());
        EXPECT_THAT(toColumns.cells(), SameBits(expected));

        TableColumns between(cols, rows, std::vector<double>(n, 7.0));
        M_TransposeSPV(columns, rows, cols, between);
        EXPECT_THAT(between.cells(), SameBits(expected));

        auto inPlace = table(rows, cols, cellsOf(src));
        M_Transpose2(inPlace.reference(), rows, cols);
        EXPECT_THAT(cellsOf(inPlace), SameBits(expected));
    }
}

TEST(MTranspose, ColumnsOfTheWrongLengthFollowTheChecks)
{
    TableColumns src(std::vector<std::vector<double>>{{1, 2}, {3}});
    TableColumns dst(std::vector<std::vector<double>>{{0, 0}, {0}, {0, 0, 0}});
    M_TransposeSPV(src, 3, 2, dst);
    EXPECT_THAT(dst.column(0), SameBits({1, 3}));
    EXPECT_THAT(dst.column(1), SameBits({2}));
    EXPECT_THAT(dst.column(2), SameBits({-1, -1, 0}));
}

TEST(MTranspose, OfIntsStaysIntsOrWidens)
{
    auto src = intsByRows({{1, 2, 3}, {4, INT_MIN, 6}});
    Owned<matrixInt> ints;
    M_Transpose(src.reference(), 3, 3, ints.reference()); // row 3 runs over, then ends
    EXPECT_EQ(cellsOf(ints), (std::vector<int>{1, 2, 3, 4, INT_MIN, 6, 2, 3, -1}));
    Owned<matrix> doubles;
    M_Transpose(src.reference(), 2, 4, doubles.reference());
    EXPECT_THAT(cellsOf(doubles), SameBits({1, 2, 3, -1, 4, -2147483648.0, 6, -1}));
    auto larger = intTable(3, 3, std::vector<int>(9, 7));
    transpose(intsByRows({{1, 2}, {3, 4}}), 2, 2, larger);
    EXPECT_EQ(cellsOf(larger), (std::vector<int>{1, 2, 0, 3, 4, 7, 7, 7, 7}));
}

TEST(MTranspose, OfStringsNeedsTheExactShape)
{
    auto src = stringsByRows({{L"a", L"b"}, {L"c", L""}});
    auto exact = stringTable(2, 2, Texts(4, L"-"));
    Smatrix* const before = exact.get();
    M_Transpose(src.reference(), 2, 2, exact.reference());
    EXPECT_EQ(exact.get(), before);
    EXPECT_EQ(cellsOf(exact), (Texts{L"a", L"b", L"c", L""}));
    auto larger = stringTable(3, 3, Texts(9, L"-"));
    Smatrix* const replaced = larger.get();
    M_Transpose(src.reference(), 2, 2, larger.reference());
    EXPECT_NE(larger.get(), replaced); // and the old one is left to its owner
    EXPECT_EQ(cellsOf(larger), (Texts{L"a", L"b", L"c", L""}));
    EXPECT_EQ(cellsOf<Smatrix>(replaced), Texts(9, L"-"));
}

TEST(MTranspose2, ChangesTheShapeAndKeepsTheBlock)
{
    auto a = byRows({{1, 2, 3}, {4, 5, 6}});
    double* const block = a->X;
    M_Transpose2(a.reference(), 2, 3);
    EXPECT_EQ(a->nRows, 3);
    EXPECT_EQ(a->nCols, 2);
    EXPECT_EQ(a->nElems, 6u);
    EXPECT_EQ(a->X, block);
    EXPECT_THAT(cellsOf(a), SameBits({1, 2, 3, 4, 5, 6}));

    auto strings = stringsByRows({{L"a", L"b", L"c"}, {L"d", L"e", L"f"}});
    std::wstring* const texts = strings->X;
    M_Transpose2(strings.reference(), 2, 3);
    EXPECT_EQ(strings->nRows, 3);
    EXPECT_EQ(strings->nCols, 2);
    EXPECT_EQ(strings->X, texts);
    EXPECT_EQ(cellsOf(strings), (Texts{L"a", L"b", L"c", L"d", L"e", L"f"}));
}

TEST(MTranspose2, OfACornerShrinksTheTable)
{
    auto a = byRows({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}});
    M_Transpose2(a.reference(), 2, 1);
    EXPECT_EQ(a->nRows, 1);
    EXPECT_EQ(a->nCols, 2);
    EXPECT_THAT(cellsOf(a), SameBits({1, 4}));
}

TEST(VBMTranspose, LeavesTheSourceOrReplacesIt)
{
    Guarded<double> a{1, 2, 3, M, 5, 6};
    Guarded<double> out(6, 0.0);
    VB_M_Transpose(a, 3, 2, out);
    EXPECT_THAT(out.values(), SameBits({1, M, 2, 5, 3, 6}));
    EXPECT_TRUE(a.untouched());
    VB_M_Transpose2(a, 3, 2);
    EXPECT_THAT(a.values(), SameBits(out.values()));
    VB_M_Transpose(a, 2, 3, a);
    EXPECT_TRUE(a.untouched());

    Guarded<int> ints{1, 2, 3, 4, 5, 6};
    Guarded<int> toInts(6, 0);
    VB_M_TransposeLng(ints, 3, 2, toInts);
    EXPECT_EQ(toInts.values(), (std::vector<int>{1, 4, 2, 5, 3, 6}));
    EXPECT_TRUE(ints.untouched());
    VB_M_Transpose2Lng(ints, 3, 2);
    EXPECT_EQ(ints.values(), toInts.values());
}

TEST(VBMTransposeStr, StoresNewStrings)
{
    BstrArray a({L"a", L"b", L"c", L"d", L"", L"f"});
    BstrArray out(std::size_t{6});
    VB_M_TransposeStr(a, 3, 2, out);
    EXPECT_EQ(out.texts(), (Texts{L"a", L"d", L"b", L"", L"c", L"f"}));
    EXPECT_EQ(a.countNew(), 0u);
    VB_M_Transpose2Str(a, 3, 2);
    EXPECT_EQ(a.texts(), out.texts());
    EXPECT_EQ(a.countNew(), 6u);
}

TEST(VBMTransposeSPV, OpensEachArrayInItsOwnRole)
{
    ArrayOfColumns a = numberColumns(3, 2, {1, 2, 3, 4, 5, 6});
    ArrayOfColumns out = numberColumns(2, 3, std::vector<double>(6, 0.0));
    VB_M_TransposeSPV(a, 3, 2, out);
    EXPECT_THAT(out.numbers(), SameBits({1, 4, 2, 5, 3, 6}));
    EXPECT_TRUE(a.untouched());
}

} // namespace
