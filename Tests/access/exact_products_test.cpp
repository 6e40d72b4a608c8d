// Products whose single products are exact are summed by fused steps: the bits are those of the plain sums, also of data
// that only just allow that, and of those that only just don't, where a fused sum would be another number.
#include "elementary/matrix_products.h"

#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

using namespace vecmat::test;

namespace {

using Cells = std::vector<double>;

struct Shape
{
    int rows, inner, cols;
};

// Around the edges of the tiles of all instruction sets, and of a block of the inner index.
constexpr std::array shapes = {Shape{4, 125, 4},   Shape{23, 24, 25}, Shape{24, 255, 8}, Shape{25, 256, 9},
                               Shape{49, 257, 17}, Shape{7, 513, 31}, Shape{12, 40, 5},  Shape{13, 41, 4}};

std::size_t count(int rows, int cols)
{
    return std::size_t(rows) * std::size_t(cols);
}

template <class Add>
Cells product(const Cells& a, const Cells& b, Shape shape, Add add)
{
    Cells sums;
    for (int j = 0; j < shape.cols; ++j)
        for (int i = 0; i < shape.rows; ++i) {
            double sum = 0.0;
            for (int k = 0; k < shape.inner; ++k)
                sum = add(sum, a[count(shape.rows, k) + std::size_t(i)], b[count(shape.inner, j) + std::size_t(k)]);
            sums.push_back(sum);
        }
    return sums;
}

Cells plain(const Cells& a, const Cells& b, Shape shape)
{
    return product(a, b, shape, [](double sum, double x, double y) { return sum + x * y; });
}

Cells fused(const Cells& a, const Cells& b, Shape shape)
{
    return product(a, b, shape, [](double sum, double x, double y) { return std::fma(x, y, sum); });
}

Cells ofLibrary(Cells a, Cells b, Shape shape)
{
    Cells out(count(shape.rows, shape.cols));
    VB_M_ProductAB(a.data(), shape.rows, shape.inner, b.data(), shape.cols, out.data());
    return out;
}

void expectPlain(const Cells& a, const Cells& b, Shape shape)
{
    EXPECT_THAT(ofLibrary(a, b, shape), SameBitsAsAll(plain(a, b, shape)));
}

/// The library's sums are the plain ones where fused ones are others.
void expectPlainAndNotFused(const Cells& a, const Cells& b, Shape shape)
{
    expectPlain(a, b, shape);
    EXPECT_THAT(fused(a, b, shape), testing::Not(SameBitsAsAll(plain(a, b, shape))));
}

template <class Left, class Right>
void forShapes(Left left, Right right)
{
    for (const Shape shape : shapes) {
        RandomData data(std::uint64_t(shape.inner));
        SCOPED_TRACE(data);
        expectPlain(left(data, count(shape.rows, shape.inner)), right(data, count(shape.inner, shape.cols)), shape);
    }
}

Cells wholes(RandomData& data, std::size_t n)
{
    return data.wholes(n, -1000, 1000);
}
Cells dummies(RandomData& data, std::size_t n)
{
    return data.wholes(n, 0, 1);
}
Cells singles(RandomData& data, std::size_t n)
{
    Cells cells = data.normals(n);
    for (double& cell : cells)
        cell = double(float(cell));
    return cells;
}
Cells halves(RandomData& data, std::size_t n) // as of ranks with ties
{
    Cells cells = data.wholes(n, 1, 100000);
    for (double& cell : cells)
        cell *= 0.5;
    return cells;
}
Cells doubles(RandomData& data, std::size_t n)
{
    return data.normals(n);
}

/// Odd numbers of this many bits, of both signs.
Cells ofBits(RandomData& data, std::size_t n, int bits)
{
    Cells cells = data.uniforms(n, std::ldexp(1.0, bits - 1), std::ldexp(1.0, bits));
    for (double& cell : cells)
        cell = (2.0 * std::floor(cell * 0.5) + 1.0) * (data.chance(0.5) ? 1.0 : -1.0);
    cells.front() = std::ldexp(1.0, bits) - 1.0;
    return cells;
}

} // namespace

TEST(ExactProducts, OfWholeNumbersDummiesRanksAndSinglePrecision)
{
    for (const auto left : {wholes, dummies, singles, halves, doubles})
        for (const auto right : {wholes, dummies, singles, halves, doubles})
            forShapes(left, right);
}

TEST(ExactProducts, OfAnyNumbersWithPowersOfTwo)
{
    const auto powers = [](RandomData& data, std::size_t n) {
        Cells cells = data.wholes(n, -30, 30);
        for (double& cell : cells)
            cell = std::ldexp(data.chance(0.5) ? -1.0 : 1.0, int(cell));
        return cells;
    };
    forShapes(doubles, powers);
    forShapes(powers, doubles);
}

TEST(ExactProducts, OfFactorsOf53And54BitsTogether)
{
    for (const Shape shape : shapes)
        for (const int a : {2, 10, 26, 27, 51}) {
            RandomData data(std::uint64_t(100 * shape.inner + a));
            SCOPED_TRACE(data);
            const Cells left = ofBits(data, count(shape.rows, shape.inner), a);
            expectPlain(left, ofBits(data, count(shape.inner, shape.cols), 53 - a), shape);
            // At least one product of the largest has 54 bits, and enough of the others.
            expectPlainAndNotFused(left, ofBits(data, count(shape.inner, shape.cols), 54 - a), shape);
        }
}

TEST(ExactProducts, ThatOverflow)
{
    const Shape shape{24, 64, 8};
    RandomData data(1);
    Cells left(count(shape.rows, shape.inner), 0.0), right(count(shape.inner, shape.cols), 1.0);
    left[0] = -std::ldexp(1.0, 1023);
    left[count(shape.rows, 1)] = std::ldexp(1.0, 1000);
    right[1] = std::ldexp(1.0, 24);
    expectPlainAndNotFused(left, right, shape);
}

// In the middle between two of the least doubles a product is rounded to the even one, and a fused sum to an even sum.
TEST(ExactProducts, BelowTheNormalNumbers)
{
    const Shape shape{24, 64, 8};
    RandomData data(2);
    Cells left = ofBits(data, count(shape.rows, shape.inner), 12), right(count(shape.inner, shape.cols));
    for (double& cell : left)
        cell = std::ldexp(cell, -545);
    for (double& cell : right)
        cell = std::ldexp(data.chance(0.5) ? -1.0 : 1.0, -530);
    std::for_each_n(left.begin(), shape.rows, [](double& cell) { cell *= 2.0; }); // the sums start odd
    expectPlainAndNotFused(left, right, shape);
}

TEST(ExactProducts, AtTheEndsOfTheMagnitudesThatAreTaken)
{
    for (const Shape shape : shapes)
        for (const int exponent : {-401, -400, -399, 386, 388, 389, 400}) {
            RandomData data(std::uint64_t(shape.inner));
            Cells left = ofBits(data, count(shape.rows, shape.inner), 12);
            Cells right = ofBits(data, count(shape.inner, shape.cols), 12);
            for (double& cell : left)
                cell = std::ldexp(cell, exponent);
            for (double& cell : right)
                cell = std::ldexp(cell, data.chance(0.5) ? exponent : -exponent);
            SCOPED_TRACE(exponent);
            expectPlain(left, right, shape);
        }
}

TEST(ExactProducts, WithOneCellAmongThemThatIsNone)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const Shape shape : shapes)
        for (const double odd : {M, -M, infinity, -infinity, std::nan(""), 0.1, -0.0, 5e-324})
            for (const bool atEnd : {false, true}) {
                RandomData data(std::uint64_t(shape.inner));
                SCOPED_TRACE(odd);
                Cells left = wholes(data, count(shape.rows, shape.inner));
                Cells right = wholes(data, count(shape.inner, shape.cols));
                expectPlain(left, right, shape);
                (atEnd ? left.back() : left.front()) = odd;
                expectPlain(left, right, shape);
                (atEnd ? right.back() : right.front()) = odd;
                expectPlain(left, right, shape);
            }
}

// Each block of the inner index is looked at by itself.
TEST(ExactProducts, InOneBlockAndNotInTheNext)
{
    const Shape shape{30, 600, 20};
    for (const int block : {0, 1, 2}) {
        RandomData data(5);
        Cells left = wholes(data, count(shape.rows, shape.inner));
        Cells right = wholes(data, count(shape.inner, shape.cols));
        for (int k = 256 * block; k < std::min(256 * (block + 1), shape.inner); ++k) {
            for (int i = 0; i < shape.rows; ++i)
                left[count(shape.rows, k) + std::size_t(i)] = data.uniform(500.0, 1000.0);
            for (int j = 0; j < shape.cols; ++j)
                right[count(shape.inner, j) + std::size_t(k)] = data.uniform(500.0, 1000.0);
        }
        SCOPED_TRACE(block);
        expectPlainAndNotFused(left, right, shape);
    }
}

TEST(ExactProducts, OfATableAndItself)
{
    const int rows = 300, cols = 26;
    RandomData data(6);
    for (const auto draw : {wholes, dummies, singles, halves}) {
        Cells a = draw(data, count(rows, cols)), out(count(cols, cols));
        VB_M_ProductTrAA(a.data(), rows, cols, out.data());
        Cells transposed(a.size());
        for (int i = 0; i < rows; ++i)
            for (int j = 0; j < cols; ++j)
                transposed[count(cols, i) + std::size_t(j)] = a[count(rows, j) + std::size_t(i)];
        EXPECT_THAT(out, SameBitsAsAll(plain(transposed, a, {cols, rows, cols})));
    }
}
