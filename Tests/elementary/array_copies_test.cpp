#include "elementary/array_copies.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/strings.h"
#include "support/tables.h"

#include <climits>
#include <limits>

using namespace vecmat::test;

namespace {

using Texts = std::vector<std::wstring>;

TEST(VBVDuplicate, CopiesTheFirstElements)
{
    Guarded<double> doubles{1, M, -0.0};
    Guarded<double> toDoubles(3, 7.0);
    VB_V_DuplicateDbl(doubles, 2, toDoubles);
    VB_V_DuplicateDbl(doubles, -1, toDoubles);
    EXPECT_THAT(toDoubles.values(), SameBits({1, M, 7}));

    Guarded<int> ints{1, INT_MIN, 3};
    Guarded<int> toInts(3, 7);
    VB_V_DuplicateLng(ints, 2, toInts);
    VB_V_DuplicateLng(ints, 0, toInts);
    EXPECT_EQ(toInts.values(), (std::vector<int>{1, INT_MIN, 7}));

    Guarded<short> flags{-1, 5, 0};
    Guarded<short> toFlags(3, short{7});
    Cpp_V_DuplicateBool(flags, 2, toFlags);
    Cpp_V_DuplicateBool(flags, -1, toFlags);
    EXPECT_EQ(toFlags.values(), (std::vector<short>{-1, 5, 7})); // as it is, not made -1
}

TEST(VBVDuplicate, TruncatesTowardsZeroOrWidens)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Guarded<double> doubles{2.9, -2.9, M, nan, 2147483648.0, -2147483648.9, 5};
    Guarded<int> ints(7, 7);
    VB_V_DuplicateDblToLng(doubles, 6, ints);
    VB_V_DuplicateDblToLng(doubles, -1, ints);
    EXPECT_EQ(ints.values(), (std::vector<int>{2, -2, INT_MIN, INT_MIN, INT_MIN, INT_MIN, 7}));

    Guarded<double> widened(3, 7.0);
    VB_V_DuplicateLngToDbl(ints, 2, widened);
    VB_V_DuplicateLngToDbl(ints, 0, widened);
    EXPECT_THAT(widened.values(), SameBits({2, -2, 7}));
}

TEST(VBMDuplicate, CopiesEveryCell)
{
    Guarded<double> doubles{1, M, 3, 4};
    Guarded<double> toDoubles(5, 7.0);
    VB_M_DuplicateDbl(doubles, 2, 2, toDoubles);
    VB_M_DuplicateDbl(doubles, 0, 2, toDoubles);
    EXPECT_THAT(toDoubles.values(), SameBits({1, M, 3, 4, 7}));
    Guarded<int> ints{1, 2, 3, 4};
    Guarded<int> toInts(5, 7);
    VB_M_DuplicateLng(ints, 2, 2, toInts);
    EXPECT_EQ(toInts.values(), (std::vector<int>{1, 2, 3, 4, 7}));
}

TEST(VBVDuplicateStr, StoresNewStrings)
{
    BstrArray src({L"a", L"", L"c"});
    src.setNull(0);
    BstrArray dst({L"1", L"2", L"3"});
    VB_V_DuplicateStr(src, 2, dst);
    EXPECT_EQ(dst.texts(), (Texts{L"", L"", L"3"}));
    EXPECT_EQ(dst.countNew(), 2u);
    BstrArray table({L"a", L"b", L"c", L"d"});
    BstrArray copy(std::size_t{4});
    VB_M_DuplicateStr(table, 2, 2, copy);
    EXPECT_EQ(copy.texts(), (Texts{L"a", L"b", L"c", L"d"}));
    EXPECT_EQ(copy.countNew(), 4u);
    EXPECT_EQ(table.countNew(), 0u);
    VB_V_DuplicateStr(table, 0, table);
    EXPECT_EQ(table.countNew(), 0u);
}

TEST(VBMCopyResize, RowsBeyondTheSourceRunIntoTheNextColumn)
{
    Guarded<double> src{1, 2, 3, M};
    Guarded<double> dst(6, 0.0);
    VB_M_CopyResize(src, 2, 2, dst, 3, 2);
    EXPECT_THAT(dst.values(), SameBits({1, 2, 3, 3, M, -1}));
    EXPECT_TRUE(src.untouched());
}

TEST(VBMCopyResize, ASmallerTableIsTheTopLeft)
{
    Guarded<double> src{1, 2, 3, 4, 5, 6, 7, 8, 9};
    Guarded<double> dst(4, 0.0);
    VB_M_CopyResize(src, 3, 3, dst, 2, 2);
    EXPECT_THAT(dst.values(), SameBits({1, 2, 4, 5}));
    VB_M_CopyResize(src, 3, 3, src, 2, 3); // over its own array
    EXPECT_THAT(src.values(), SameBits({1, 2, 4, 5, 7, 8, 7, 8, 9}));
}

TEST(VBMCopyResize, NoColumnsMeanOneOnBothSides)
{
    Guarded<double> src{1, 2};
    Guarded<double> dst(3, 0.0);
    VB_M_CopyResize(src, 2, 0, dst, 3, 5);
    EXPECT_THAT(dst.values(), SameBits({1, 2, -1}));
}

TEST(VBMCopyResizeStr, PadsWithEmptyStrings)
{
    BstrArray src({L"a", L"b", L"c", L"d"});
    BstrArray dst(std::size_t{6});
    VB_M_CopyResizeStr(src, 2, 2, dst, 3, 2);
    EXPECT_EQ(dst.texts(), (Texts{L"a", L"b", L"c", L"c", L"d", L""}));
    EXPECT_EQ(dst.countNew(), 6u);
    BstrArray vector(std::size_t{5});
    VB_M_CopyResizeStr(src, 4, 0, vector, 5, 9);
    EXPECT_EQ(vector.texts(), (Texts{L"a", L"b", L"c", L"d", L""}));
}

TEST(VReverse, TurnsTheFirstCellsRound)
{
    auto out = column({9, 9, 9, 9});
    V_Reverse(column({1, M, 3, 4}), 3, out);
    EXPECT_THAT(cellsOf(out), SameBits({3, M, 1, 9}));
    V_Reverse(column({1, 2}), 3, out); // the cell that is not there comes first
    EXPECT_THAT(cellsOf(out), SameBits({-1, 2, 1, 9}));
    auto shorter = column({9, 9});
    V_Reverse(column({1, 2, 3}), 3, shorter);
    EXPECT_THAT(cellsOf(shorter), SameBits({3, 2}));
    V_Reverse(column({1, 2, 3}), 0, shorter);
    V_Reverse(column({1, 2, 3}), -2, shorter);
    EXPECT_THAT(cellsOf(shorter), SameBits({3, 2}));
}

TEST(VBVReverseDbl, MayWorkInPlace)
{
    Guarded<double> x{1, 2, 3, 4};
    Guarded<double> out(4, 7.0);
    VB_V_ReverseDbl(x, 3, out);
    EXPECT_THAT(out.values(), SameBits({3, 2, 1, 7}));
    EXPECT_TRUE(x.untouched());
    VB_V_ReverseDbl(x, 4, x);
    EXPECT_THAT(x.values(), SameBits({4, 3, 2, 1}));
    VB_V_ReverseDbl(x, 0, x);
    EXPECT_THAT(x.values(), SameBits({4, 3, 2, 1}));
}

// Two places off from a reversal: it starts at element n + 1 and never reads the first two.
TEST(VReverseBool, StartsAtElementNPlusOne)
{
    Guarded<short> x{10, 11, 12, 13, 14};
    Guarded<short> out(4, short{7});
    VB_V_ReverseBool(x, 3, out);
    EXPECT_EQ(out.values(), (std::vector<short>{14, 13, 12, 7}));
    V_ReverseBool(x, 2, out);
    EXPECT_EQ(out.values(), (std::vector<short>{13, 12, 12, 7}));
    V_ReverseBool(x, 0, out);
    V_ReverseBool(x, -1, out);
    EXPECT_EQ(out.values(), (std::vector<short>{13, 12, 12, 7}));
    EXPECT_TRUE(x.untouched());
}

} // namespace
