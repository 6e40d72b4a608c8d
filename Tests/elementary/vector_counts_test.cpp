#include "elementary/vector_counts.h"

#include "support/guarded.h"
#include "support/special_values.h"
#include "support/tables.h"

using namespace vecmat::test;

namespace {

TEST(VNbTrue, CountsOnlyMinusOne)
{
    Guarded<short> x({-1, 0, 1, -2, -1, 255});
    EXPECT_EQ(V_NbTrue(x, 6), 2);
    EXPECT_EQ(VB_V_NbTrue(x, 6), 2);
    EXPECT_EQ(V_NbTrue(x, 1), 1);
    EXPECT_TRUE(x.untouched());
}

TEST(VNbTrue, NothingToVisit)
{
    Guarded<short> x({-1});
    for (int n : {0, -1, lowestInt}) {
        EXPECT_EQ(V_NbTrue(x, n), 0);
        EXPECT_EQ(VB_V_NbTrue(x, n), 0);
    }
}

TEST(VNbTrueFromTo, CountsARange)
{
    Guarded<short> x({-1, -1, 0, 1, -1});
    EXPECT_EQ(V_NbTrueFromTo(x, 2, 5), 2);
    EXPECT_EQ(V_NbTrueFromTo(x, 1, 5), 3);
    EXPECT_EQ(V_NbTrueFromTo(x, 5, 5), 1);
    EXPECT_EQ(V_NbTrueFromTo(x, 3, 2), 0);
    EXPECT_EQ(V_NbTrueFromTo(x, 1, 0), 0);
    EXPECT_EQ(VB_V_NbTrueFromTo(x, 5, 2, 5), 2);
    EXPECT_EQ(VB_V_NbTrueFromTo(x, 0, 1, 5), 3) << "the count is not used";
    EXPECT_EQ(VB_V_NbTrueFromTo(x, 5, 3, 2), 0);
}

TEST(VNbTrueFromTo, RangeFromBelowOneStartsAtTheFirstElement)
{
    Guarded<short> x({-1, -1});
    EXPECT_EQ(V_NbTrueFromTo(x, 0, 1), 1);
    EXPECT_EQ(VB_V_NbTrueFromTo(x, 2, lowestInt, 2), 2);
}

TEST(VFindLng, LooksAtTheFirstCells)
{
    auto x = intsByColumns({{4, 5}, {6, 7}});
    EXPECT_EQ(V_FindLng(x, 4, 6), -1);
    EXPECT_EQ(V_FindLng(x, 2, 6), 0);
    EXPECT_EQ(V_FindLng(x, 4, 8), 0);
    EXPECT_EQ(V_FindLng(x, 0, 4), 0);
    EXPECT_EQ(V_FindLng(x, -1, 4), 0);
}

TEST(VFindLng, CellsBeyondTheTableAreMinusOne)
{
    EXPECT_EQ(V_FindLng(intColumn({4, 5}), 2, -1), 0);
    EXPECT_EQ(V_FindLng(intColumn({4, 5}), 3, -1), -1);
    EXPECT_EQ(V_FindLng(intColumn({4, 5}), 3, 5), -1);
}

TEST(CppVFindLng, LooksAtTheCallersArray)
{
    Guarded<int> x({4, 5, -1});
    EXPECT_EQ(Cpp_V_FindLng(x, 3, 5), -1);
    EXPECT_EQ(Cpp_V_FindLng(x, 3, -1), -1);
    EXPECT_EQ(Cpp_V_FindLng(x, 2, -1), 0);
    EXPECT_EQ(Cpp_V_FindLng(x, 3, 6), 0);
    EXPECT_EQ(Cpp_V_FindLng(x, 0, 4), 0);
    EXPECT_EQ(Cpp_V_FindLng(nullptr, 0, 4), 0);
    EXPECT_TRUE(x.untouched());
}

} // namespace
