#include "elementary/packed_products.h"

#include "elementary/product_cases.h"

#include <cmath>

using namespace vecmat::test;

namespace {

/// Element (i, j), 1-based, of a packed table by checked access.
double packedAt(matrix* s, int i, int j)
{
    return s->vbget(j <= i ? i * (i - 1) / 2 + j : j * (j - 1) / 2 + i, 1);
}

int packedLength(int n)
{
    return n > 0 ? n * (n + 1) / 2 : 0;
}

TEST(ProductASymV, FollowsThePlainLoopOnEitherSide)
{
    forCases(500, [](Cases& c) {
        const int n = c.count();
        const auto s = c.operand(packedLength(n), 1), v = c.operand(n, 1);
        auto right = c.existing(n, 1), expectedRight = copyOf(right);
        auto left = c.existing(n, 1), expectedLeft = copyOf(left);
        M_ProductASymV(s.get(), n, v.get(), right.get());
        M_ProductVASym(v.get(), n, s.get(), left.get());
        fillByRows(expectedRight.get(), n, 1, [&](int i, int) {
            return sumOf(n, [&](int k) { return packedAt(s.get(), i, k) * at(v.get(), k, 1); });
        });
        fillByRows(expectedLeft.get(), n, 1, [&](int j, int) {
            return sumOf(n, [&](int k) { return at(v.get(), k, 1) * packedAt(s.get(), k, j); });
        });
        expectSame(right, expectedRight);
        expectSame(left, expectedLeft);
    });
}

TEST(ProductASymV, ReadsTheLowerTriangleByRows)
{
    auto out = filled(3, 1, 7.0);
    M_ProductASymV(column({1, 2, 3, 4, 5, 6}), 3, column({1, 10, 100}), out.get());
    EXPECT_THAT(cellsOf(out), SameBits({421.0, 532.0, 654.0}));
}

TEST(ProductAsymBsym, FollowsThePlainLoop)
{
    forCases(500, [](Cases& c) {
        const int len = c.data.chance(0.5) ? packedLength(c.count()) : c.data.integer(-1, 25);
        const auto a = c.operand(len, 1), b = c.operand(len, 1);
        auto out = c.existing(len, 1), expected = copyOf(out);
        MV_ProductAsymBsym(a.get(), len, b.get(), out.get());
        const int order = len < 0 ? 0 : static_cast<int>(std::floor(std::sqrt(2.0 * len)));
        for (int k = 1; k <= len; ++k) {
            const int i = static_cast<int>(std::floor(std::sqrt(2.0 * k + 0.25) + 0.5 - 1e-12));
            const int j = k - i * (i - 1) / 2;
            expected->vbset(k, 1,
                            sumOf(order, [&](int m) { return packedAt(a.get(), i, m) * packedAt(b.get(), j, m); }));
        }
        expectSame(out, expected);
    });
}

TEST(ProductAsymBsym, PackedIdentityIsItsOwnProduct)
{
    auto out = filled(3, 1, 7.0);
    MV_ProductAsymBsym(column({1, 0, 1}), 3, column({1, 0, 1}), out.get());
    EXPECT_THAT(cellsOf(out), SameBits({1.0, 0.0, 1.0}));
}

TEST(ProductAsymBsym, GivesTheLowerTriangleOfTheProductThatIsNotSymmetric)
{
    // (1 2; 2 3) times (5 7; 7 11) is (19 29; 31 47).
    auto out = filled(3, 1, 7.0);
    MV_ProductAsymBsym(column({1, 2, 3}), 3, column({5, 7, 11}), out.get());
    EXPECT_THAT(cellsOf(out), SameBits({19.0, 31.0, 47.0}));
}

TEST(ProductAsymBsym, OrderIsTheFloorOfTheRoot)
{
    // Four cells give order 2, and the fourth is (3, 1): the sum runs over two terms, and the first factor of the last
    // is read at (3, 2), outside.
    auto out = filled(4, 1, 7.0);
    MV_ProductAsymBsym(column({1, 2, 3, 4}), 4, column({5, 7, 11, 13}), out.get());
    EXPECT_THAT(cellsOf(out), SameBits({19.0, 31.0, 47.0, 4.0 * 5.0 + -1.0 * 7.0}));
}

TEST(PackedProductExports, WithoutRowsNeedNoArrays)
{
    Guarded<double> out(2, 7.0);
    VB_M_ProductASymV(nullptr, 0, nullptr, out);
    VB_M_ProductVASym(nullptr, 0, nullptr, out);
    EXPECT_TRUE(out.untouched());
}

TEST(PackedProductExports, WriteTheBitsOfTheirFunctions)
{
    forCases(150, [](Cases& c) {
        const int n = c.count(), len = packedLength(n);
        const auto s = c.exact(len, 1), v = c.exact(n, 1);
        auto right = c.exactResult(n, 1), left = c.exactResult(n, 1), product = c.exactResult(len, 1);
        auto flatS = flat(s), flatV = flat(v), flatRight = flat(right), flatLeft = flat(left),
             flatProduct = flat(product);
        M_ProductASymV(s.get(), n, v.get(), right.get());
        VB_M_ProductASymV(flatS, n, flatV, flatRight);
        expectFlat(flatRight, right);
        M_ProductVASym(v.get(), n, s.get(), left.get());
        VB_M_ProductVASym(flatV, n, flatS, flatLeft);
        expectFlat(flatLeft, left);
        MV_ProductAsymBsym(s.get(), len, s.get(), product.get()); // the table by itself
        Cpp_MV_ProductAsymBsym(flatS, len, -12345, flatProduct);
        expectFlat(flatProduct, product);
        expectUntouched(flatS, flatV);
    });
}

} // namespace
