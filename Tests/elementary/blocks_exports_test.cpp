// The flat forms over blocks: what they open, what they keep, and which function each of them is.
#include "elementary/blocks.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"

using namespace vecmat::test;

namespace {

using Texts = std::vector<std::wstring>;

TEST(VBMCopyBlock, WritesTheRangeAsATableOfItsOwn)
{
    Guarded<double> src{1, 2, 3, 4, M, 6, 7, 8, 9};
    Guarded<double> dst(4, 0.0);
    VB_M_CopyBlock(src, 3, 3, 2, 3, 1, 2, dst);
    EXPECT_THAT(dst.values(), SameBits({2, 3, M, 6}));
    EXPECT_TRUE(src.untouched());
}

TEST(VBMCopyBlock, BeyondTheSourceReadsMinusOneAndAnEmptyRangeWritesNothing)
{
    Guarded<double> src{1, 2, 3, 4};
    Guarded<double> dst(6, 0.0);
    VB_M_CopyBlock(src, 2, 2, 1, 2, 1, 3, dst);
    EXPECT_THAT(dst.values(), SameBits({1, 2, 3, 4, -1, -1}));
    Guarded<double> none({});
    VB_M_CopyBlock(src, 2, 2, 2, 1, 1, 2, none);
}

TEST(VBMCopyBlock, MayShrinkATableInPlace)
{
    Guarded<double> a{1, 2, 3, 4, 5, 6, 7, 8, 9};
    VB_M_CopyBlock(a, 3, 3, 1, 2, 2, 3, a);
    EXPECT_THAT(a.values(), SameBits({4, 5, 7, 8, 5, 6, 7, 8, 9}));
}

TEST(VBMCopyBlockStr, StoresNewStrings)
{
    BstrArray src({L"a", L"b", L"c", L"d"});
    BstrArray dst(std::size_t{4});
    VB_M_CopyBlockStr(src, 2, 2, 2, 3, 1, 2, dst);
    EXPECT_EQ(dst.texts(), (Texts{L"b", L"c", L"d", L""}));
    EXPECT_EQ(dst.countNew(), 4u);
    EXPECT_EQ(src.countNew(), 0u);
}

TEST(VBMCopyBlockSPV, AllFormsGiveWhatThePlainOneGives)
{
    RandomData data(2411);
    SCOPED_TRACE(data);
    for (int round = 0; round < 100; ++round) {
        const int n = 5;
        Guarded<double> src(data.withSpecials(data.uniforms(25), 0.2));
        const int r1 = data.integer(1, n);
        const int r2 = data.integer(r1, n);
        const int c1 = data.integer(1, n);
        const int c2 = data.integer(c1, n);
        const int rows = r2 - r1 + 1;
        const int cols = c2 - c1 + 1;
        const auto size = static_cast<std::size_t>(rows * cols);
        Guarded<double> plain(size, 0.0);
        VB_M_CopyBlock(src, n, n, r1, r2, c1, c2, plain);

        ArrayOfColumns columns = numberColumns(n, n, src.values());
        Guarded<double> spv(size, 0.0);
        VB_M_CopyBlockSPV(columns, r1, r2, c1, c2, spv);
        ASSERT_THAT(spv.values(), SameBits(plain.values()));

        ArrayOfColumns spv2 = numberColumns(rows, cols, std::vector<double>(size, 0.0));
        Cpp_M_CopyBlockSPV2(columns, r1, r2, c1, c2, spv2);
        ASSERT_THAT(spv2.numbers(), SameBits(plain.values()));

        if (rows == cols) {
            ArrayOfColumns triangular = numberTriangle(cols, std::vector<double>(size, 0.0));
            Cpp_M_CopyBlockSPV2_T(columns, r1, r2, c1, c2, triangular);
            const ArrayOfColumns lower = numberTriangle(cols, plain.values());
            ASSERT_THAT(triangular.numbers(), SameBits(lower.numbers()));
        }
        EXPECT_TRUE(columns.untouched());
    }
}

TEST(CppMCopyBlockSPV2T, OpensATriangleOfAsManyColumnsAsTheBlockHas)
{
    ArrayOfColumns src = numberColumns(3, 2, {1, 2, 3, 4, 5, 6});
    ArrayOfColumns dst(std::vector<std::vector<double>>{{0, 0}, {0}}); // three rows, but an order of two
    Cpp_M_CopyBlockSPV2_T(src, 1, 3, 1, 2, dst);
    EXPECT_THAT(dst.numbers(), SameBits({1, 2, 5}));
}

TEST(VBMCopyBlockSPV, NumbersBelowOneReadMinusOne)
{
    ArrayOfColumns src = numberColumns(1, 1, {5});
    Guarded<double> dst(4, 0.0);
    VB_M_CopyBlockSPV(src, 0, 1, 0, 1, dst);
    EXPECT_THAT(dst.values(), SameBits({-1, -1, -1, 5}));
}

// The storages show which function an export calls: SPV2 goes between arrays of columns, SPV3 from a flat array.
TEST(CppMDuplicateDblSPV, WholeTablesInEveryStorage)
{
    const std::vector<double> cells{1, 2, M, 4, 5, 6};
    Guarded<double> flat(cells);
    ArrayOfColumns columns = numberColumns(3, 2, cells);

    Guarded<double> spv(6, 0.0);
    Cpp_M_DuplicateDblSPV(columns, 3, 2, spv);
    EXPECT_THAT(spv.values(), SameBits(cells));

    ArrayOfColumns spv2 = numberColumns(3, 2, std::vector<double>(6, 0.0));
    Cpp_M_DuplicateDblSPV2(columns, 3, 2, spv2);
    EXPECT_THAT(spv2.numbers(), SameBits(cells));

    ArrayOfColumns spv3 = numberColumns(3, 2, std::vector<double>(6, 0.0));
    Cpp_M_DuplicateDblSPV3(flat, 3, 2, spv3);
    EXPECT_THAT(spv3.numbers(), SameBits(cells));
    EXPECT_TRUE(flat.untouched());
    EXPECT_TRUE(columns.untouched());
}

TEST(CppMDuplicateDblSPV, ASmallerSizeLeavesTheOtherCells)
{
    ArrayOfColumns src = numberColumns(3, 3, {1, 2, 3, 4, 5, 6, 7, 8, 9});
    ArrayOfColumns dst = numberColumns(3, 3, std::vector<double>(9, 0.0));
    Cpp_M_DuplicateDblSPV2(src, 2, 1, dst);
    EXPECT_THAT(dst.numbers(), SameBits({1, 2, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(CppMDuplicateDblSPV2T, KeepsTheLowerTriangle)
{
    ArrayOfColumns src = numberColumns(3, 3, {1, 2, 3, 40, 5, 6, 70, 80, 9});
    ArrayOfColumns dst = numberTriangle(3, std::vector<double>(9, 0.0));
    Cpp_M_DuplicateDblSPV2_T(src, 3, 3, dst);
    EXPECT_THAT(dst.numbers(), SameBits({1, 2, 3, 5, 6, 9}));
    // With fewer rows than columns the cells above the diagonal are all that reach the end of the first columns.
    ArrayOfColumns oblong = numberTriangle(3, std::vector<double>(9, 0.0));
    Cpp_M_DuplicateDblSPV2_T(src, 1, 3, oblong);
    EXPECT_THAT(oblong.numbers(), SameBits({1, 40, 70, 0, 0, 0}));
}

TEST(VBMDuplicateStrSPV, StoresNewStringsInEveryColumn)
{
    ArrayOfColumns src = stringColumns(2, 2, {L"a", L"", L"\x4e2d", L"d"});
    ArrayOfColumns dst = stringColumns(2, 2, {L"1", L"2", L"3", L"4"});
    VB_M_DuplicateStrSPV(src, 2, 2, dst);
    EXPECT_EQ(dst.strings(0), (Texts{L"a", L""}));
    EXPECT_EQ(dst.strings(1), (Texts{L"\x4e2d", L"d"}));
    EXPECT_EQ(dst.stringArray(0).countNew(), 2u);
    EXPECT_EQ(src.stringArray(0).countNew(), 0u);
}

TEST(CppMCopyPasteBlock, KeepsTheCellsOutsideTheBlock)
{
    Guarded<double> src{1, 2, 3, 4};
    Guarded<double> dst(9, 7.0);
    Cpp_M_CopyPasteBlock(src, 2, 2, 1, 2, 2, 2, dst, 3, 3, 2, 3);
    EXPECT_THAT(dst.values(), SameBits({7, 7, 7, 7, 7, 7, 7, 3, 4}));
    Cpp_M_CopyPasteBlock(src, 2, 2, 1, 2, 1, 2, dst, 3, 3, 3, 3); // what leaves the target is dropped
    EXPECT_THAT(dst.values(), SameBits({7, 7, 7, 7, 7, 7, 7, 3, 1}));
    EXPECT_TRUE(src.untouched());
}

TEST(CppMCopyPasteBlock, WithinOneArrayReadsTheSourceFirst)
{
    Guarded<double> a{1, 2, 3, 4};
    Cpp_M_CopyPasteBlock(a, 4, 1, 1, 3, 1, 1, a, 4, 1, 2, 1);
    EXPECT_THAT(a.values(), SameBits({1, 1, 2, 3}));
    Guarded<double> b{1, 2, 3, 4};
    VB_M_PasteBlock(b, 3, 1, b, 4, 1, 2, 1);
    EXPECT_THAT(b.values(), SameBits({1, 1, 2, 3}));
}

TEST(CppMCopyPasteBlockSPV, IsThePlainOneFromColumns)
{
    const std::vector<double> cells{1, 2, 3, 4, 5, 6, 7, 8, 9};
    Guarded<double> flat(cells);
    ArrayOfColumns columns = numberColumns(3, 3, cells);
    Guarded<double> plain(12, 7.0);
    Guarded<double> twin(12, 7.0);
    Cpp_M_CopyPasteBlock(flat, 3, 3, 2, 3, 1, 3, plain, 4, 3, 3, 1);
    Cpp_M_CopyPasteBlockSPV(columns, 2, 3, 1, 3, twin, 4, 3, 3, 1);
    EXPECT_THAT(plain.values(), SameBits({7, 7, 2, 3, 7, 7, 5, 6, 7, 7, 8, 9}));
    EXPECT_THAT(twin.values(), SameBits(plain.values()));
}

TEST(CppMCopyPasteBlockStr, StoresEveryElementAnew)
{
    BstrArray src({L"a", L"b", L"c", L"d"});
    BstrArray dst({L"1", L"2", L"3", L"4"});
    dst.setNull(3);
    Cpp_M_CopyPasteBlockStr(src, 2, 2, 2, 2, 1, 2, dst, 2, 2, 1, 1);
    EXPECT_EQ(dst.texts(), (Texts{L"b", L"2", L"d", L""}));
    EXPECT_EQ(dst.countNew(), 4u);
}

TEST(VBMPasteBlock, PutsTheWholeSourceAtThePlace)
{
    Guarded<double> src{1, M, 3, 4};
    Guarded<double> dst(9, 7.0);
    VB_M_PasteBlock(src, 2, 2, dst, 3, 3, 2, 2);
    EXPECT_THAT(dst.values(), SameBits({7, 7, 7, 7, 1, M, 7, 3, 4}));
    Guarded<int> ints{1, 2, 3, 4};
    Guarded<int> target(9, 7);
    VB_M_PasteBlockLng(ints, 2, 2, target, 3, 3, 2, 2);
    EXPECT_EQ(target.values(), (std::vector<int>{7, 7, 7, 7, 1, 2, 7, 3, 4}));
    VB_M_PasteBlockLng(ints, 2, 2, target, 3, 3, 0, 1); // row 0 of column 1 is nowhere, that of column 2 is (3, 1)
    EXPECT_EQ(target.values(), (std::vector<int>{2, 7, 3, 4, 1, 2, 7, 3, 4}));
}

TEST(VBMCopyToBigger, KeepsTheCellsBesideAndBelow)
{
    Guarded<double> src{1, 2, 3, 4};
    Guarded<double> dst(9, 7.0);
    VB_M_CopyToBigger(src, 2, 2, dst, 3, 3);
    EXPECT_THAT(dst.values(), SameBits({1, 2, 7, 3, 4, 7, 7, 7, 7}));
}

} // namespace
