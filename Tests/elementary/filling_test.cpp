#include "elementary/filling.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/strings.h"
#include "support/tables.h"

using namespace vecmat::test;

namespace {

TEST(SetVectorToValue, MakesOrFillsTheVector)
{
    Owned<matrix> v;
    SetVectorToValue(v, 3, M);
    EXPECT_EQ(v->nRows, 3);
    EXPECT_EQ(v->nCols, 1);
    EXPECT_THAT(cellsOf(v), SameBits({M, M, M}));
    SetVectorToValue(v, 2, -0.0); // large enough: kept, and only its head is filled
    EXPECT_THAT(cellsOf(v), SameBits({-0.0, -0.0, M}));
    SetVectorToValue(v, 0, 5.0);
    SetVectorToValue(v, -1, 5.0);
    EXPECT_THAT(cellsOf(v), SameBits({-0.0, -0.0, M}));
    SetVectorToValue(v, 4, 1.0);
    EXPECT_THAT(cellsOf(v), SameBits({1, 1, 1, 1}));
}

TEST(InitVectorToFalse, ClearsTablesAndArrays)
{
    auto v = filled(2, 2, 7.0);
    InitVectorToFalse(v.reference(), 2);
    EXPECT_THAT(cellsOf(v), SameBits({0, 0, 7, 7}));
    Owned<matrix> made;
    InitVectorToFalse(made.reference(), 2);
    EXPECT_THAT(cellsOf(made), SameBits({0, 0}));

    Guarded<short> flags{-1, -1, -1};
    InitVectorToFalse(flags.data(), 2);
    EXPECT_EQ(flags.values(), (std::vector<short>{0, 0, -1}));
}

TEST(VBInitVector, TrueIsMinusOne)
{
    Guarded<short> flags{5, 5, 5};
    VB_InitVectorToTrue(flags, 2);
    EXPECT_EQ(flags.values(), (std::vector<short>{-1, -1, 5}));
    VB_InitVectorToFalse(flags, 1);
    EXPECT_EQ(flags.values(), (std::vector<short>{0, -1, 5}));
    VB_InitVectorToTrue(flags, 0);
    VB_InitVectorToFalse(flags, -3);
    InitVectorToFalse(flags.data(), -3);
    EXPECT_EQ(flags.values(), (std::vector<short>{0, -1, 5}));
}

TEST(VBVSetToValue, FillsTheFirstElements)
{
    Guarded<double> doubles{1, 2, 3};
    VB_V_SetToValue(doubles, 2, M);
    VB_V_SetToValue(doubles, -1, 9);
    EXPECT_THAT(doubles.values(), SameBits({M, M, 3}));
    Guarded<int> ints{1, 2, 3};
    VB_V_SetToValueLng(ints, 2, -7);
    VB_V_SetToValueLng(ints, 0, 9);
    EXPECT_EQ(ints.values(), (std::vector<int>{-7, -7, 3}));
}

TEST(VSetToValueStr, SetsAsManyCellsAsThereAre)
{
    auto v = stringColumn({L"a", L"b", L"c"});
    V_SetToValueStr(v, 2, L"x");
    EXPECT_EQ(cellsOf(v), (std::vector<std::wstring>{L"x", L"x", L"c"}));
    V_SetToValueStr(v, -1, L"y");
    EXPECT_EQ(cellsOf(v), (std::vector<std::wstring>{L"x", L"x", L"c"}));
    V_SetToValueStr(v, 9, L"");
    EXPECT_EQ(cellsOf(v), (std::vector<std::wstring>{L"", L"", L""}));
}

TEST(VBVSetToValueStr, TakesOneStringOf32BitCharacters)
{
    BstrArray v({L"a", L"b", L"c"});
    VB_V_SetToValueStr(v, 2, L"\x1F600x");
    EXPECT_EQ(v.texts(), (std::vector<std::wstring>{L"\x1F600x", L"\x1F600x", L"c"}));
    EXPECT_EQ(v.countNew(), 2u);
}

TEST(VSet1toN, CountsFromOne)
{
    Owned<matrix> made;
    V_Set1toN(made.reference(), 3);
    EXPECT_THAT(cellsOf(made), SameBits({1, 2, 3}));
    auto kept = filled(3, 2, 7.0);
    V_Set1toN(kept.reference(), 2);
    EXPECT_THAT(cellsOf(kept), SameBits({1, 2, 7, 7, 7, 7}));
    V_Set1toN(kept.reference(), 0);
    EXPECT_THAT(cellsOf(kept), SameBits({1, 2, 7, 7, 7, 7}));

    Owned<matrixInt> ints;
    V_Set1toN(ints.reference(), 3);
    EXPECT_EQ(cellsOf(ints), (std::vector<int>{1, 2, 3}));
    V_Set1toN(ints.reference(), 4); // too few rows: replaced
    EXPECT_EQ(cellsOf(ints), (std::vector<int>{1, 2, 3, 4}));

    Guarded<double> doubles{0, 0, 9};
    VB_V_Set1toNDbl(doubles, 2);
    VB_V_Set1toNDbl(doubles, -1);
    EXPECT_THAT(doubles.values(), SameBits({1, 2, 9}));
    Guarded<int> longs{0, 0, 9};
    VB_V_Set1toNLng(longs, 2);
    VB_V_Set1toNLng(longs, 0);
    EXPECT_EQ(longs.values(), (std::vector<int>{1, 2, 9}));
}

} // namespace
