#include "elementary/packing.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/special_values.h"
#include "support/tables.h"

using namespace vecmat::test;

namespace {

TEST(MatToVect, StacksTheColumnsWithTheGivenRows)
{
    auto v = filled(5, 1, 7.0);
    MatToVect(byRows({{1, 2}, {M, 4}, {5, 6}}), 2, 2, v);
    EXPECT_THAT(cellsOf(v), SameBits({1, M, 2, 4, 7}));
    auto shorter = filled(3, 1, 7.0);
    MatToVect(byRows({{1, 2}, {3, 4}}), 2, 3, shorter);
    EXPECT_THAT(cellsOf(shorter), SameBits({1, 3, 2}));
    auto beyond = filled(6, 1, 7.0);
    MatToVect(byRows({{1, 2}, {3, 4}}), 3, 2, beyond); // (3, 1) is (1, 2)
    EXPECT_THAT(cellsOf(beyond), SameBits({1, 3, 2, 2, 4, -1}));
    MatToVect(byRows({{1}}), 0, 1, beyond);
    MatToVect(byRows({{1}}), -1, -1, beyond);
    EXPECT_THAT(cellsOf(beyond), SameBits({1, 3, 2, 2, 4, -1}));
}

TEST(VectToMat, FillsTheShortColumnsWithTheMissingValue)
{
    auto out = filled(2, 2, 7.0);
    VectToMat(column({1, 2, 3}), column({2, 1}), 2, 2, out);
    EXPECT_THAT(cellsOf(out), SameBits({1, 2, 3, M}));
}

TEST(VectToMat, CountsAreComparedAsTheyAre)
{
    auto out = filled(3, 3, 7.0);
    VectToMat(column({1, 2, 3, 4}), column({1.9, notANumber, 2.0}), 3, 3, out);
    EXPECT_THAT(cellsOf(out), SameBits({1, M, M, M, M, M, 2, 3, M}));
    VectToMat(column({1, 2, 3, 4}), column({M, 9}), 3, 3, out); // a count above the rows, a third that is not there
    EXPECT_THAT(cellsOf(out), SameBits({M, M, M, 1, 2, 3, M, M, M}));
}

TEST(VectToMat, AValueThatIsMissingIsTakenLikeAnyOther)
{
    auto out = filled(2, 2, 7.0);
    VectToMat(column({M, 2}), column({2, 2}), 2, 2, out);
    EXPECT_THAT(cellsOf(out), SameBits({M, 2, -1, -1})); // and past the end of the vector -1.0
}

TEST(VectToMat, KeepsTheStrideOfTheTarget)
{
    auto out = filled(3, 2, 7.0);
    VectToMat(column({1, 2, 3}), column({1, 2}), 2, 2, out);
    EXPECT_THAT(cellsOf(out), SameBits({1, M, 7, 2, 3, 7}));
    auto wider = filled(2, 3, 7.0);
    VectToMat(column({1, 2, 3}), column({1, 2}), 2, 2, wider);
    EXPECT_THAT(cellsOf(wider), SameBits({1, M, 2, 3, 7, 7}));
}

TEST(MCopySymMatToVector, PacksTheLowerTriangleByRows)
{
    auto v = filled(7, 1, 7.0);
    M_CopySymMatToVector(byRows({{11, 12, 13}, {21, 22, 23}, {31, 32, 33}}), 3, v);
    EXPECT_THAT(cellsOf(v), SameBits({11, 21, 22, 31, 32, 33, 7}));
    auto shorter = filled(4, 1, 7.0);
    M_CopySymMatToVector(byRows({{11, 12}, {21, M}}), 3, shorter); // (3, 1) is (1, 2), the rest does not fit
    EXPECT_THAT(cellsOf(shorter), SameBits({11, 21, M, 12}));
    M_CopySymMatToVector(byRows({{1}}), 0, shorter);
    M_CopySymMatToVector(byRows({{1}}), -2, shorter);
    EXPECT_THAT(cellsOf(shorter), SameBits({11, 21, M, 12}));
}

TEST(MCopyVectorToSymMat, WritesBothTriangles)
{
    auto a = filled(4, 4, 7.0);
    M_CopyVectorToSymMat(column({1, 2, M, 4, 5}), 3, a); // the sixth cell is not there
    EXPECT_THAT(cellsOf(a), SameBits(cellsOf(byRows({{1, 2, 4, 7}, {2, M, 5, 7}, {4, 5, -1, 7}, {7, 7, 7, 7}}))));
}

TEST(MCopyVectorToSymMat, IsTheReverse)
{
    RandomData data(2460);
    SCOPED_TRACE(data);
    for (int n = 0; n <= 12; ++n) {
        const auto packed = data.withSpecials(data.uniforms(static_cast<std::size_t>(n * (n + 1) / 2)), 0.2);
        auto a = filled(n, n, 7.0);
        M_CopyVectorToSymMat(column(packed), n, a);
        for (int i = 1; i <= n; ++i)
            for (int j = 1; j <= i; ++j) {
                const double expected = packed[static_cast<std::size_t>(i * (i - 1) / 2 + j - 1)];
                ASSERT_THAT(a->vbget(i, j), SameBits(expected));
                ASSERT_THAT(a->vbget(j, i), SameBits(expected));
            }
        auto v = filled(static_cast<int>(packed.size()), 1, 7.0);
        M_CopySymMatToVector(a, n, v);
        EXPECT_THAT(cellsOf(v), SameBits(packed));

        Guarded<double> flat(packed);
        Guarded<double> square(static_cast<std::size_t>(n * n), 7.0);
        Cpp_M_CopyVectorToSymMat(flat, n, square);
        EXPECT_THAT(square.values(), SameBits(cellsOf(a)));
        Guarded<double> back(packed.size(), 7.0);
        Cpp_M_CopySymMatToVector(square, n, back);
        EXPECT_THAT(back.values(), SameBits(packed));
    }
}

TEST(CppMatToVect, KeepsTheOrderOfTheCells)
{
    Guarded<double> a{1, M, 3, 4, 5, 6};
    Guarded<double> v(7, 7.0);
    Cpp_MatToVect(a, 3, 2, v);
    EXPECT_THAT(v.values(), SameBits({1, M, 3, 4, 5, 6, 7}));
}

TEST(CppVectToMat, ReadsNoMoreValuesThanTheCountsAskFor)
{
    Guarded<double> v{1, 2, 3};
    Guarded<double> counts{2, 0, 1};
    Guarded<double> out(6, 7.0);
    Cpp_VectToMat(v, counts, 2, 3, out);
    EXPECT_THAT(out.values(), SameBits({1, 2, M, M, 3, M}));
    EXPECT_TRUE(v.untouched() && counts.untouched());
}

TEST(CppMCopySymMatToVector, MayPackInPlace)
{
    Guarded<double> a{11, 21, 31, 12, 22, 32, 13, 23, 33};
    Cpp_M_CopySymMatToVector(a, 3, a);
    EXPECT_THAT(a.values(), SameBits({11, 21, 22, 31, 32, 33, 13, 23, 33}));
}

} // namespace
