#include "randomisation/kronecker_product.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <cstddef>
#include <utility>

namespace vecmat::test {
namespace {

TEST(KroneckerTensorProduct, OfARowAndAColumn)
{
    auto c = filled(2, 2, 9.0);
    KroneckerTensorProduct(byRows({{1, 2}}), 1, 2, byRows({{3}, {4}}), 2, 1, c);
    EXPECT_THAT(cellsOf(c), SameBits({3, 4, 6, 8})); // rows (3, 6) and (4, 8)
}

TEST(KroneckerTensorProduct, PutsACopyOfBInEachBlockOfA)
{
    auto c = filled(4, 4, 9.0);
    KroneckerTensorProduct(byRows({{1, 2}, {3, 4}}), 2, 2, byRows({{0, 5}, {6, 7}}), 2, 2, c);
    EXPECT_THAT(cellsOf(c),
                SameBits(cellsOf(byRows({{0, 5, 0, 10}, {6, 7, 12, 14}, {0, 15, 0, 20}, {18, 21, 24, 28}}))));
}

TEST(KroneckerTensorProduct, DoesNothingWhereTheShapeDiffers)
{
    const auto a = byRows({{1, 2}});
    const auto b = byRows({{3}, {4}});
    for (const auto& [rows, cols] : {std::pair{3, 2}, {2, 3}, {1, 4}, {4, 1}, {1, 2}, {2, 1}, {3, 3}}) {
        auto c = filled(rows, cols, 9.0);
        KroneckerTensorProduct(a, 1, 2, b, 2, 1, c);
        EXPECT_THAT(cellsOf(c), testing::Each(9.0)) << rows << " by " << cols;
    }
}

TEST(KroneckerTensorProduct, DoesNotTakeAProductThatWrapsForTheShape)
{
    // 65536 times 65536 is 0 in 32 bits.
    auto c = filled(1, 0, 9.0);
    auto a = filled(1, 1, 1.0);
    KroneckerTensorProduct(a, 1, 65536, a, 1, 65536, c);
    EXPECT_EQ(c->nElems, 0u);
}

TEST(KroneckerTensorProduct, MultipliesMissingCellsAndReadsOutsideAsMinusOne)
{
    auto c = filled(1, 2, 9.0);
    KroneckerTensorProduct(byRows({{M, 0}}), 1, 2, byRows({{1}}), 1, 1, c);
    EXPECT_THAT(cellsOf(c), SameBits({M, 0}));
    KroneckerTensorProduct(byRows({{5}}), 1, 2, byRows({{3}}), 1, 1, c);
    EXPECT_THAT(cellsOf(c), SameBits({15, -3}));
}

TEST(KroneckerTensorProduct, TakesTheCornersOfLargerTables)
{
    auto c = filled(2, 1, 9.0);
    KroneckerTensorProduct(byRows({{2, 3}, {4, 5}}), 2, 1, byRows({{7, 0}, {0, 0}}), 1, 1, c);
    EXPECT_THAT(cellsOf(c), SameBits({14, 28}));
}

TEST(KroneckerTensorProduct, OfNothingIsNothing)
{
    auto c = filled(0, 0, 9.0);
    KroneckerTensorProduct(filled(0, 0, 1.0), 0, 0, byRows({{3}}), 1, 1, c);
    EXPECT_EQ(c->nElems, 0u);
}

TEST(KroneckerTensorProduct, OverArraysWritesInPlace)
{
    RandomData data(11);
    SCOPED_TRACE(data);
    Guarded<double> a(data.uniforms(2 * 3));
    Guarded<double> b(data.uniforms(4 * 2));
    Guarded<double> c(8 * 6, 9.0);
    Cpp_KroneckerTensorProduct(a, 2, 3, b, 4, 2, c, 8, 6);
    EXPECT_TRUE(a.untouched() && b.untouched());
    for (std::size_t j = 0; j < 6; ++j)
        for (std::size_t i = 0; i < 8; ++i)
            ASSERT_THAT(c.values()[i + 8 * j],
                        SameBits(a.values()[i / 4 + 2 * (j / 2)] * b.values()[i % 4 + 4 * (j % 2)]));
    Guarded<double> other(6 * 8, 9.0);
    Cpp_KroneckerTensorProduct(a, 2, 3, b, 4, 2, other, 6, 8);
    EXPECT_TRUE(other.untouched());
}

} // namespace
} // namespace vecmat::test
