// Products through the inverse of a table.
#include "decompositions/inverse_products.h"

#include "decompositions/inversion.h"
#include "elementary/matrix_products.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <vector>

namespace vecmat::test {
namespace {

struct Factors
{
    Owned<matrix> a;
    Owned<matrix> b;
};

Factors factors(RandomData& data, int rows, int cols, int order)
{
    const auto cells = [&](int r, int c) { return data.normals(static_cast<std::size_t>(r) * std::size_t(c)); };
    return {table(rows, cols, cells(rows, cols)), table(order, order, cells(order, order))};
}

Owned<matrix> inverseOf(matrix* b)
{
    Owned<matrix> inverse = filled(b->nRows, b->nRows, 0.0);
    short status = 0;
    EXPECT_EQ(b->inverse1(inverse, status, 1.0), 0);
    return inverse;
}

TEST(MProductTrAinvBA, MultipliesTheTransposeByTheInverseFirst)
{
    RandomData data(731);
    SCOPED_TRACE(data);
    const Factors f = factors(data, 4, 3, 4);
    Owned<matrix> left;
    Owned<matrix> expected;
    M_ProductTrAB(f.a, 4, 3, inverseOf(f.b), 4, left);
    M_ProductAB(left, 3, 4, f.a, 3, expected);
    Owned<matrix> out;
    M_ProductTrAinvBA(f.a, 4, 3, f.b, out);
    EXPECT_THAT(cellsOf(out), SameBits(cellsOf(expected)));
    EXPECT_EQ(out->nRows, 3);

    // The other way round the bits differ.
    Owned<matrix> right;
    Owned<matrix> other;
    M_ProductAB(inverseOf(f.b), 4, 4, f.a, 3, right);
    M_ProductTrAB(f.a, 4, 3, right, 3, other);
    EXPECT_THAT(cellsOf(out), testing::Not(SameBits(cellsOf(other))));
}

TEST(MProductTrVinvBV, IsAQuadraticForm)
{
    EXPECT_THAT(M_ProductTrVinvBV(column({2, 3}), 2, byRows({{4, 0}, {0, 8}})), SameBits(1.0 + 9.0 / 8.0));
    RandomData data(732);
    SCOPED_TRACE(data);
    const Factors f = factors(data, 5, 1, 5);
    EXPECT_THAT(M_ProductTrVinvBV(f.a, 5, f.b), SameBits(M_ProductTrVBV(f.a, 5, inverseOf(f.b))));
}

TEST(MProductAinvBTrA, MultipliesByTheInverseFirst)
{
    RandomData data(733);
    SCOPED_TRACE(data);
    const Factors f = factors(data, 3, 4, 4);
    Owned<matrix> left;
    Owned<matrix> expected;
    M_ProductAB(f.a, 3, 4, inverseOf(f.b), 4, left);
    M_ProductATrB(left, 3, 4, f.a, 3, expected);
    Owned<matrix> out;
    M_ProductAinvBTrA(f.a, 3, 4, f.b, out);
    EXPECT_THAT(cellsOf(out), SameBits(cellsOf(expected)));

    TableColumns columns(3, 3, std::vector<double>(9, 77.0));
    M_ProductAinvBTrASPV(f.a, 3, 4, f.b, columns);
    EXPECT_THAT(columns.cells(), SameBits(cellsOf(expected)));
}

TEST(InverseProducts, GoOnWithZerosWhereThereIsNoInverse)
{
    const Owned<matrix> singular = byRows({{1, 2}, {2, 4}});
    const Owned<matrix> a = byRows({{1, 2}, {3, 4}});
    Owned<matrix> out = filled(2, 2, 77.0);
    M_ProductTrAinvBA(a, 2, 2, singular, out);
    EXPECT_THAT(cellsOf(out), SameBits({0, 0, 0, 0}));
    Owned<matrix> other = filled(2, 2, 77.0);
    M_ProductAinvBTrA(a, 2, 2, singular, other);
    EXPECT_THAT(cellsOf(other), SameBits({0, 0, 0, 0}));
    TableColumns columns(2, 2, {77, 77, 77, 77});
    M_ProductAinvBTrASPV(a, 2, 2, singular, columns);
    EXPECT_THAT(columns.cells(), SameBits({0, 0, 0, 0}));
    EXPECT_THAT(M_ProductTrVinvBV(column({1, 1}), 2, singular), SameBits(0.0));
}

TEST(InverseProducts, AllHaveTheLargeThreshold)
{
    const Owned<matrix> small = column({1e-8});
    const Owned<matrix> one = column({1.0});
    Owned<matrix> out;
    M_ProductTrAinvBA(one, 1, 1, small, out);
    EXPECT_THAT(out->X[0], SameBits(0.0));
    M_ProductAinvBTrA(one, 1, 1, small, out);
    EXPECT_THAT(out->X[0], SameBits(0.0));
    EXPECT_THAT(M_ProductTrVinvBV(one, 1, small), SameBits(0.0));
    EXPECT_THAT(M_ProductTrVinvBV(one, 1, column({2e-8})), SameBits(1.0 / 2e-8));
}

TEST(InverseProducts, TakeTheInverseOfAllOfB)
{
    // The corner of the inverse, not the inverse of the corner.
    const Owned<matrix> b = byRows({{2, 1}, {1, 1}});
    EXPECT_THAT(M_ProductTrVinvBV(column({1.0}), 1, b), SameBits(1.0));
    // Beyond the order of b the inverse is 0.0.
    EXPECT_THAT(M_ProductTrVinvBV(column({1, 1, 5}), 3, byRows({{2, 0}, {0, 4}})), SameBits(0.75));
}

TEST(InverseProducts, HaveFlatForms)
{
    Guarded<double> a{1, 2}; // one column of two, or one row
    Guarded<double> b{2, 0, 0, 4};
    Guarded<double> scalar(1, 77.0);
    VB_M_ProductTrAinvBA(a, 2, 1, b, scalar);
    EXPECT_THAT(scalar.values(), SameBits({1.5}));
    VB_M_ProductAinvBTrA(a, 1, 2, b, scalar);
    EXPECT_THAT(scalar.values(), SameBits({1.5}));
    EXPECT_THAT(VB_M_ProductTrVinvBV(a, 2, b), SameBits(1.5));
    Guarded<double> square(4, 77.0);
    Guarded<double> one{4};
    VB_M_ProductAinvBTrA(a, 2, 1, one, square);
    EXPECT_THAT(square.values(), SameBits({0.25, 0.5, 0.5, 1}));
    EXPECT_TRUE(a.untouched());
    EXPECT_TRUE(b.untouched());
}

} // namespace
} // namespace vecmat::test
