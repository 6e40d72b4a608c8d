// Products of a table and a vector give the bits of the plain sums: at sizes around the edges of what is summed side by
// side, with special values among the cells, and where the result lies over an operand.
#include "elementary/matrix_products.h"

#include "elementary/product_cases.h"

#include <array>
#include <climits>

using namespace vecmat::test;

namespace {

constexpr int caseCount = 80;

// The lanes of all instruction sets, twice as many, and the sums that are formed together, with their neighbours.
constexpr std::array sizes = {1, 2, 3, 5, 7, 8, 9, 15, 16, 17, 23, 24, 25, 33, 100, 1023, 1024, 1025};

int size(Cases& c)
{
    return sizes[static_cast<std::size_t>(c.data.integer(0, sizes.size() - 1))];
}

/// result(i) = sum over k of cell(i, k) factor(k).
template <class CellAt>
std::vector<double> plainSums(int results, int terms, CellAt cellAt, const double* factors)
{
    std::vector<double> sums;
    for (int i = 0; i < results; ++i) {
        double sum = 0.0;
        for (int k = 0; k < terms; ++k)
            sum += cellAt(i, k) * factors[k];
        sums.push_back(sum);
    }
    return sums;
}

auto rowsOf(const Owned<matrix>& a)
{
    return [x = a->X, stride = std::size_t(a->nRows)](int i, int k) {
        return x[std::size_t(i) + stride * std::size_t(k)];
    };
}

auto columnsOfTable(const Owned<matrix>& a)
{
    return [row = rowsOf(a)](int j, int k) { return row(k, j); };
}

} // namespace

TEST(VectorProduct, OfATableAndAVector)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = size(c), cols = size(c);
        const auto b = c.exact(rows, cols), v = c.exact(cols, 1);
        auto out = c.exactResult(rows, 1);
        M_ProductBV(b.get(), rows, cols, v.get(), out);
        EXPECT_THAT(cellsOf(out), SameBitsAsAll(plainSums(rows, cols, rowsOf(b), v->X)));
    });
}

TEST(VectorProduct, OfAVectorAndATable)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = size(c), cols = size(c);
        const auto b = c.exact(rows, cols), v = c.exact(rows, 1);
        auto out = c.exactResult(cols, 1);
        M_ProductVB(v.get(), rows, b.get(), cols, out);
        EXPECT_THAT(cellsOf(out), SameBitsAsAll(plainSums(cols, rows, columnsOfTable(b), v->X)));
    });
}

TEST(VectorProduct, OfTransposedTables)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = size(c), cols = size(c);
        const auto b = c.exact(rows, cols), along = c.exact(rows, 1), across = c.exact(cols, 1);
        auto first = c.exactResult(cols, 1);
        M_ProductTrBV(b.get(), rows, cols, along.get(), first.get());
        EXPECT_THAT(cellsOf(first), SameBitsAsAll(plainSums(cols, rows, columnsOfTable(b), along->X)));
        auto second = c.exactResult(rows, 1);
        M_ProductVTrB(across.get(), cols, b.get(), rows, second.get());
        EXPECT_THAT(cellsOf(second), SameBitsAsAll(plainSums(rows, cols, rowsOf(b), across->X)));
    });
}

TEST(VectorProduct, OfColumnsAndATableOfOne)
{
    forCases(caseCount, [](Cases& c) {
        const int rows = size(c), cols = size(c);
        const auto a = c.exact(rows, cols), b = c.exact(cols, 1);
        auto columns = columnsOf(a);
        auto out = c.exactResult(rows, 1);
        M_ProductABSPV(columns, rows, cols, b.get(), 1, out);
        EXPECT_THAT(cellsOf(out), SameBitsAsAll(plainSums(rows, cols, rowsOf(a), b->X)));
    });
}

// Each result is stored before the next is summed, and is then read again: the vector is the first column of the table.
TEST(VectorProduct, WhoseResultLiesOverTheTable)
{
    const int n = 20;
    RandomData data(1);
    std::vector<double> b = data.normals(std::size_t(n * n)), v = data.normals(n);
    std::vector<double> expected = b;
    for (int i = 0; i < n; ++i) {
        double sum = 0.0;
        for (int k = 0; k < n; ++k)
            sum += expected[std::size_t(k + n * i)] * v[std::size_t(k)];
        expected[std::size_t(10 + i)] = sum;
    }
    matrix table(n, n, b.data(), true), vector(n, 1, v.data(), true), out(n, 1, b.data() + 10, true);
    M_ProductTrBV(&table, n, n, &vector, &out);
    EXPECT_THAT(b, SameBitsAsAll(expected));
}

TEST(VectorProduct, WhoseResultIsTheVector)
{
    const int n = 20;
    RandomData data(2);
    std::vector<double> b = data.normals(std::size_t(n * n)), v = data.normals(n);
    std::vector<double> expected = v;
    for (int i = 0; i < n; ++i) {
        double sum = 0.0;
        for (int k = 0; k < n; ++k)
            sum += b[std::size_t(i + n * k)] * expected[std::size_t(k)];
        expected[std::size_t(i)] = sum;
    }
    matrix table(n, n, b.data(), true), vector(n, 1, v.data(), true);
    matrix* out = &vector;
    M_ProductBV(&table, n, n, &vector, out);
    EXPECT_THAT(v, SameBitsAsAll(expected));
}

TEST(VectorProduct, WithoutTerms)
{
    const int n = 20;
    std::vector<double> none, out(n, 5.0);
    for (const int terms : {0, -1, INT_MIN}) {
        out.assign(n, 5.0);
        VB_M_ProductVB(none.data(), terms, none.data(), n, out.data());
        EXPECT_THAT(out, SameBitsAsAll(std::vector<double>(n, 0.0))) << terms;
        out.assign(n, 5.0);
        VB_M_ProductBV(none.data(), n, terms, none.data(), out.data());
        EXPECT_THAT(out, SameBitsAsAll(std::vector<double>(n, 0.0))) << terms;
    }
}
