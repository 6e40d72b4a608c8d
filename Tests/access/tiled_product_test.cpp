// Products that are large enough for tiles give the bits of the plain sums: at sizes around the edges of a tile and of
// a block of the inner index, with special values among the cells, and where the result lies over an operand.
#include "elementary/diagonal_products.h"
#include "elementary/matrix_products.h"
#include "missing/missing_arithmetic.h"

#include "elementary/product_cases.h"

#include "support/failing_new.h"

#include <array>

using namespace vecmat::test;

namespace {

constexpr int caseCount = 60;

// The edges of the tiles: multiples of 4, 8, 12 and 24, and their neighbours.
constexpr std::array edges = {1, 3, 4, 5, 7, 8, 9, 11, 12, 13, 15, 16, 17, 23, 24, 25, 31, 47, 48, 49};
// Around one, two and three blocks.
constexpr std::array innerSizes = {255, 256, 257, 511, 513, 769};

int lines(Cases& c)
{
    return edges[static_cast<std::size_t>(c.data.integer(0, edges.size() - 1))];
}

int terms(Cases& c)
{
    return c.data.chance(0.2) ? innerSizes[static_cast<std::size_t>(c.data.integer(0, innerSizes.size() - 1))]
                              : lines(c);
}

template <class Left, class Right>
std::vector<double> plainProduct(int rows, int inner, int cols, Left left, Right right)
{
    std::vector<double> cells;
    for (int j = 0; j < cols; ++j)
        for (int i = 0; i < rows; ++i) {
            double sum = 0.0;
            for (int k = 0; k < inner; ++k)
                sum += left(i, k) * right(k, j);
            cells.push_back(sum);
        }
    return cells;
}

auto reader(const Owned<matrix>& a)
{
    return [x = a->X, stride = std::size_t(a->nRows)](int i, int j) {
        return x[std::size_t(i) + stride * std::size_t(j)];
    };
}

template <class Read>
auto transpose(Read read)
{
    return [read](int i, int j) { return read(j, i); };
}

TEST(TiledProduct, OfTwoTables)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = lines(c), inner = terms(c), cols = lines(c);
        const auto a = c.exact(rows, inner), b = c.exact(inner, cols);
        auto out = c.exactResult(rows, cols);
        M_ProductAB(a.get(), rows, inner, b.get(), cols, out);
        EXPECT_THAT(cellsOf(out), SameBitsAsAll(plainProduct(rows, inner, cols, reader(a), reader(b))));
    });
}

TEST(TiledProduct, OfAPartOfLargerTables)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = lines(c), inner = lines(c), cols = lines(c);
        const auto a = c.exact(rows + 3, inner + 1), b = c.exact(inner + 2, cols + 1);
        auto out = c.exactResult(rows + 1, cols + 2);
        auto expected = copyOf(out);
        M_ProductAB(a.get(), rows, inner, b.get(), cols, out);
        matrix::matCheck(expected, rows, cols, 0.0);
        const auto block = plainProduct(rows, inner, cols, reader(a), reader(b));
        for (int j = 0; j < cols; ++j)
            for (int i = 0; i < rows; ++i)
                expected->vbset(i + 1, j + 1, block[std::size_t(i) + std::size_t(j) * std::size_t(rows)]);
        EXPECT_THAT(cellsOf(out), SameBitsAsAll(cellsOf(expected)));
    });
}

TEST(TiledProduct, OfColumns)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = lines(c), inner = terms(c), cols = lines(c);
        const auto a = c.exact(rows, inner), b = c.exact(inner, cols);
        auto columnsA = columnsOf(a), columnsB = columnsOf(b);
        Columns<matrix> out(rows, cols, c.data.leftovers(std::size_t(rows) * std::size_t(cols)));
        M_ProductABSPV2(columnsA, rows, inner, columnsB, cols, out);
        EXPECT_THAT(out.cells(), SameBitsAsAll(plainProduct(rows, inner, cols, reader(a), reader(b))));
    });
}

TEST(TiledProduct, WithATransposedFactor)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = lines(c), inner = terms(c), cols = lines(c);
        const auto a = c.exact(inner, rows), b = c.exact(inner, cols), bTransposed = c.exact(cols, inner);
        auto out = c.exactResult(rows, cols);
        M_ProductTrAB(a.get(), inner, rows, b.get(), cols, out);
        EXPECT_THAT(cellsOf(out), SameBitsAsAll(plainProduct(rows, inner, cols, transpose(reader(a)), reader(b))));
        const auto left = c.exact(rows, inner);
        auto second = c.exactResult(rows, cols);
        M_ProductATrB(left.get(), rows, inner, bTransposed.get(), cols, second);
        EXPECT_THAT(cellsOf(second),
                    SameBitsAsAll(plainProduct(rows, inner, cols, reader(left), transpose(reader(bTransposed)))));
    });
}

TEST(TiledProduct, OfATableAndItselfMirrorsTheLowerTriangle)
{
    forCases(caseCount, [](Cases& c) {
        const int n = lines(c), inner = terms(c);
        const auto a = c.exact(inner, n);
        auto out = c.exactResult(n, n);
        M_ProductTrAA(a.get(), inner, n, out);
        auto expected = plainProduct(n, inner, n, transpose(reader(a)), reader(a));
        for (int j = 0; j < n; ++j)
            for (int i = j + 1; i < n; ++i)
                expected[std::size_t(j) + std::size_t(i) * std::size_t(n)] =
                    expected[std::size_t(i) + std::size_t(j) * std::size_t(n)];
        EXPECT_THAT(cellsOf(out), SameBitsAsAll(expected));
    });
}

TEST(TiledProduct, WithADiagonalMultipliesItIntoTheLeftFactorFirst)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = lines(c), inner = terms(c), cols = lines(c);
        const auto a = c.exact(rows, inner), b = c.exact(inner, cols), v = c.exact(inner, 1);
        auto out = c.exactResult(rows, cols);
        M_ProductADiagVB(a.get(), rows, inner, v.get(), b.get(), cols, out);
        const auto scaled = [read = reader(a), weights = v->X](int i, int k) { return read(i, k) * weights[k]; };
        EXPECT_THAT(cellsOf(out), SameBitsAsAll(plainProduct(rows, inner, cols, scaled, reader(b))));
    });
}

TEST(TiledProduct, TruncatesForATableOfInts)
{
    forCases(caseCount, [](Cases& c) {
        const int n = lines(c), inner = terms(c);
        const auto a = c.exact(inner, n);
        Owned<matrixInt> out;
        M_ProductTrAA(a.get(), inner, n, out);
        const auto sums = plainProduct(n, inner, n, transpose(reader(a)), reader(a));
        for (int j = 0; j < n; ++j)
            for (int i = j; i < n; ++i) {
                const double sum = sums[std::size_t(i) + std::size_t(j) * std::size_t(n)];
                const int stored = sum > -2147483649.0 && sum < 2147483648.0 ? static_cast<int>(sum) : -2147483647 - 1;
                ASSERT_EQ(out->vbget(i + 1, j + 1), stored) << i << ' ' << j;
                ASSERT_EQ(out->vbget(j + 1, i + 1), stored) << i << ' ' << j;
            }
    });
}

TEST(TiledProduct, MissingFactorsMakeWholeRowsAndColumnsMissing)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = lines(c), inner = terms(c), cols = lines(c);
        const double share = 1.0 / inner / c.data.integer(1, 4);
        const auto a = table(rows, inner, c.data.withMissing(c.numbers(std::size_t(rows) * std::size_t(inner)), share));
        const auto b = table(inner, cols, c.data.withMissing(c.numbers(std::size_t(inner) * std::size_t(cols)), share));
        auto out = c.exactResult(rows, cols);
        M_ProductABMissing(a.get(), rows, inner, b.get(), cols, out);
        std::vector<double> expected;
        for (int j = 0; j < cols; ++j)
            for (int i = 0; i < rows; ++i) {
                double sum = 0.0;
                for (int k = 0; k < inner; ++k) {
                    const double x = reader(a)(i, k), y = reader(b)(k, j);
                    if (x == M || y == M) {
                        sum = M;
                        break;
                    }
                    sum += x * y;
                }
                expected.push_back(sum);
            }
        EXPECT_THAT(cellsOf(out), SameBitsAsAll(expected));
    });
}

// The caller gets what the plain loops over rows and columns leave where the result is an operand as well: results
// already written are read again.
TEST(TiledProduct, IntoAnOperandShowsTheOrderOfTheResults)
{
    forCases(caseCount, [](Cases& c) {
        const int n = c.data.integer(16, 30);
        const auto start = c.exact(n, n);
        auto a = columnsOf(start), b = columnsOf(c.exact(n, n)), expected = columnsOf(start);
        M_ProductABSPV2(a, n, n, b, n, a);
        fillByRows(expected.get(), n, n, [&](int i, int j) {
            return sumOf(n, [&](int k) { return at(expected.get(), i, k) * at(b.get(), k, j); });
        });
        EXPECT_THAT(a.cells(), SameBitsAsAll(expected.cells()));
    });
}

TEST(TiledProduct, IntoAnArrayThatBeginsInsideAnOperandDoesToo)
{
    const int n = 20;
    RandomData data(5);
    const std::vector<double> start = data.normals(n * n + 7);
    std::vector<double> memory = start, expected = start;
    std::vector<double> b = data.normals(n * n);
    std::fill_n(expected.begin() + 7, n * n, 0.0); // the result is emptied first
    VB_M_ProductAB(memory.data(), n, n, b.data(), n, memory.data() + 7);
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
            double sum = 0.0;
            for (int k = 0; k < n; ++k)
                sum += expected[std::size_t(i + k * n)] * b[std::size_t(k + j * n)];
            expected[std::size_t(7 + i + j * n)] = sum;
        }
    EXPECT_THAT(memory, SameBitsAsAll(expected));
}

TEST(TiledProduct, WithoutMemoryForTilesIsThePlainSum)
{
    const int n = 24;
    RandomData data(6);
    const auto a = table(n, n, data.normals(n * n)), b = table(n, n, data.normals(n * n));
    const auto expected = plainProduct(n, n, n, reader(a), reader(b));
    auto out = table(n, n, data.leftovers(n * n));
    int finished = 0;
    const int failures = expectFallbackAtEachFailure(
        [&] {
            std::fill_n(out->X, n * n, 0.5);
            M_ProductAB(a.get(), n, n, b.get(), n, out);
        },
        [&] {
            ++finished;
            EXPECT_TRUE(std::equal(expected.begin(), expected.end(), out->X));
        });
    EXPECT_EQ(finished, failures + 2) << "every call ends, the two without a failure included";
}

} // namespace
