#include "elementary/packed_storage.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

namespace {

using Pair = std::pair<int, int>;

Pair elementOf(int k)
{
    int i = -99;
    int j = -99;
    GetIJForSymMat(k, i, j);
    return {i, j};
}

int positionOf(int i, int j)
{
    int k = -99;
    GetKForVectFromIJSymMat(i, j, k);
    return k;
}

TEST(GetIJForSymMat, InvertsThePackedPosition)
{
    EXPECT_EQ(elementOf(1), (Pair{1, 1}));
    EXPECT_EQ(elementOf(4), (Pair{3, 1}));
    int k = 0;
    for (int i = 1; i <= 300; ++i)
        for (int j = 1; j <= i; ++j) {
            ++k;
            EXPECT_EQ(elementOf(k), (Pair{i, j})) << k;
            EXPECT_EQ(positionOf(i, j), k);
            EXPECT_EQ(positionOf(j, i), k);
        }
}

TEST(GetIJForSymMat, LargePositions)
{
    EXPECT_EQ(elementOf(134225919), (Pair{16384, 16383}));
    EXPECT_EQ(elementOf(134225920), (Pair{16385, 0})) << "the last cell of row 16384: the rule is at its end";
    EXPECT_EQ(elementOf(134225921), (Pair{16385, 1}));
    EXPECT_EQ(elementOf(134209536), (Pair{16383, 16383}));
    // i(i-1) no longer fits an int, but its half does.
    EXPECT_EQ(elementOf(2147450881), (Pair{65536, 1}));
    EXPECT_EQ(positionOf(1, 65536), 2147450881);
    EXPECT_EQ(positionOf(65535, 65535), 2147450880);
}

TEST(GetIJForSymMat, PositionsOutsideTheTriangleAreHarmless)
{
    EXPECT_EQ(elementOf(0), (Pair{0, 0}));
    EXPECT_EQ(elementOf(-5).first, std::numeric_limits<int>::min());
}

TEST(GetKForVectFromIJSymMat, EitherOrder)
{
    EXPECT_EQ(positionOf(1, 3), 4);
    EXPECT_EQ(positionOf(3, 1), 4);
    EXPECT_EQ(positionOf(2, 2), 3);
}

TEST(GetPositionInMatNNm1o2, StrictUpperTriangleByRows)
{
    for (const auto form : {V_GetPositionInMatNNm1o2, VB_V_GetPositionInMatNNm1o2}) {
        const auto at = [form](int k, int n) {
            Pair p{-7, -8};
            form(k, n, &p.first, &p.second);
            return p;
        };
        EXPECT_EQ(at(1, 3), (Pair{1, 2}));
        EXPECT_EQ(at(2, 3), (Pair{1, 3}));
        EXPECT_EQ(at(3, 3), (Pair{2, 3}));
        EXPECT_EQ(at(4, 3), (Pair{-7, -8})) << "beyond the last cell nothing is written";
        EXPECT_EQ(at(1, 1), (Pair{-7, -8}));
        EXPECT_EQ(at(0, 0), (Pair{-7, -8}));
        EXPECT_EQ(at(1, -4), (Pair{-7, -8}));
        EXPECT_EQ(at(0, 3), (Pair{1, 1})) << "below the first cell the rule goes on";
        EXPECT_EQ(at(2147483647, 65537), (Pair{65281, 65408}));
        EXPECT_EQ(at(2147483647, 2147483647), (Pair{2, 3})) << "the cells of two rows outgrow an int";
        int k = 0;
        for (int i = 1; i < 40; ++i)
            for (int j = i + 1; j <= 40; ++j)
                EXPECT_EQ(at(++k, 40), (Pair{i, j}));
    }
}

TEST(GetPositionInMatNN, TableByRows)
{
    const auto at = [](int k, int n) {
        Pair p{-7, -8};
        VB_V_GetPositionInMatNN(k, n, &p.first, &p.second);
        return p;
    };
    EXPECT_EQ(at(1, 3), (Pair{1, 1}));
    EXPECT_EQ(at(3, 3), (Pair{1, 3}));
    EXPECT_EQ(at(4, 3), (Pair{2, 1}));
    EXPECT_EQ(at(6, 3), (Pair{2, 3}));
    EXPECT_EQ(at(5, 1), (Pair{5, 1}));
    EXPECT_EQ(at(2, 5), (Pair{1, 2}));
    EXPECT_EQ(at(5, 0), (Pair{-7, -8})) << "a table without columns has no position";
    EXPECT_EQ(at(0, 3), (Pair{0, 3}));
}

} // namespace
