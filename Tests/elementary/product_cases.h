// Random cases for the tests of the products: tables that are as large as the dimensions passed, larger or smaller,
// with special values among their cells, and the plain loops that their results are compared with.
#pragma once

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include "base/detail/numbers.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace vecmat::test {

class Cases
{
public:
    explicit Cases(std::uint64_t seed) : data(seed), specialShare_(data.integer(0, 2) * 0.12) {}

    RandomData data;

    /// A dimension to pass: mostly 0 to 6, at times -1.
    int count() { return data.chance(0.03) ? -1 : data.integer(0, 6); }

    std::vector<double> numbers(std::size_t n) { return data.withSpecials(data.normals(n), specialShare_); }

    /// An operand of just the shape passed.
    Owned<matrix> exact(int rows, int cols) { return table(rows, cols, numbers(elementCount(rows, cols))); }
    Owned<matrixInt> exactInts(int rows, int cols)
    {
        return intTable(rows, cols, data.integers(elementCount(rows, cols), -50000, 50000));
    }

    /// An operand of a shape near the one passed.
    Owned<matrix> operand(int rows, int cols) { return exact(near(rows), near(cols)); }
    Owned<matrixInt> intOperand(int rows, int cols) { return exactInts(near(rows), near(cols)); }

    /// A result with leftovers in it, of just the shape passed, of one near it, or, to be prepared, none at all.
    Owned<matrix> exactResult(int rows, int cols)
    {
        return table(rows, cols, data.leftovers(elementCount(rows, cols)));
    }
    Owned<matrix> existing(int rows, int cols) { return exactResult(near(rows), near(cols)); }
    Owned<matrix> toPrepare(int rows, int cols) { return data.chance(0.25) ? Owned<matrix>() : existing(rows, cols); }
    Owned<matrixInt> intsToPrepare(int rows, int cols)
    {
        const int r = near(rows), c = near(cols);
        return data.chance(0.25) ? Owned<matrixInt>() : intTable(r, c, data.intLeftovers(elementCount(r, c)));
    }

    /// The same as arrays of columns, which are as many as passed but may differ in length.
    Columns<matrix> columnOperand(int rows, int cols)
    {
        const int r = near(rows), c = std::max(cols, 0);
        return Columns<matrix>(r, c, numbers(elementCount(r, c)));
    }
    Columns<matrix> columnResult(int rows, int cols)
    {
        const int r = near(rows), c = std::max(cols, 0);
        return Columns<matrix>(r, c, data.leftovers(elementCount(r, c)));
    }

private:
    int near(int n) { return std::max(0, data.chance(0.5) ? n : n + data.integer(-2, 2)); }

    double specialShare_;
};

/// Runs `body` on random cases until one fails.
template <class Body>
void forCases(int count, Body body)
{
    for (int seed = 1; seed <= count && !testing::Test::HasFailure(); ++seed) {
        Cases cases(static_cast<std::uint64_t>(seed));
        SCOPED_TRACE(cases.data);
        body(cases);
    }
}

template <class Table>
Owned<Table> copyOf(const Owned<Table>& source)
{
    return source.get() == nullptr ? Owned<Table>() : tableOf<Table>(source->nRows, source->nCols, cellsOf(source));
}

inline Columns<matrix> copyOf(const Columns<matrix>& source)
{
    const int rows = source.count() > 0 ? static_cast<int>(source.column(0).size()) : 0;
    return Columns<matrix>(rows, source.count(), source.cells());
}

/// The columns of a table as an array of columns.
inline Columns<matrix> columnsOf(const Owned<matrix>& source)
{
    return Columns<matrix>(source->nRows, source->nCols, cellsOf(source));
}

/// Checked cells, 1-based, of a table and of an array of columns.
inline double at(matrix* a, int i, int j)
{
    return a->vbget(i, j);
}
inline double at(matrixInt* a, int i, int j)
{
    return a->vbget(i, j);
}
inline double at(matrix** a, int i, int j)
{
    return a[j - 1]->vbget(i, 1);
}
inline void put(matrix* a, int i, int j, double value)
{
    a->vbset(i, j, value);
}
inline void put(matrixInt* a, int i, int j, double value)
{
    a->vbset(i, j, value > -2147483649.0 && value < 2147483648.0 ? static_cast<int>(value) : -2147483647 - 1);
}
inline void put(matrix** a, int i, int j, double value)
{
    a[j - 1]->vbset(i, 1, value);
}

/// The storages of an operand and of a result, for tests of several forms of one function.
struct TableStorage
{
    static constexpr const char* name = "in tables";
    static Owned<matrix> operand(Cases& c, int rows, int cols) { return c.operand(rows, cols); }
    static Owned<matrix> existing(Cases& c, int rows, int cols) { return c.existing(rows, cols); }
};
struct ColumnStorage
{
    static constexpr const char* name = "in columns";
    static Columns<matrix> operand(Cases& c, int rows, int cols) { return c.columnOperand(rows, cols); }
    static Columns<matrix> existing(Cases& c, int rows, int cols) { return c.columnResult(rows, cols); }
};

/// The sum of term(1) to term(n), in this order, from +0.0 on.
template <class Term>
double sumOf(int n, Term term)
{
    double sum = 0.0;
    for (int k = 1; k <= n; ++k)
        sum += term(k);
    return sum;
}

/// Cell (i, j) becomes f(i, j), row by row.
template <class Table, class Function>
void fillByRows(Table* out, int rows, int cols, Function f)
{
    for (int i = 1; i <= rows; ++i)
        for (int j = 1; j <= cols; ++j)
            put(out, i, j, f(i, j));
}

/// The lower triangle, row by row, each value stored at its mirror place too.
template <class Table, class Function>
void fillMirrored(Table* out, int order, Function f)
{
    for (int i = 1; i <= order; ++i)
        for (int j = 1; j <= i; ++j) {
            const double value = f(i, j);
            put(out, i, j, value);
            put(out, j, i, value);
        }
}

inline void expectSame(const Owned<matrix>& actual, const Owned<matrix>& expected)
{
    EXPECT_EQ(actual->nRows, expected->nRows);
    EXPECT_EQ(actual->nCols, expected->nCols);
    EXPECT_THAT(cellsOf(actual), SameBits(cellsOf(expected)));
}
inline void expectSame(const Owned<matrixInt>& actual, const Owned<matrixInt>& expected)
{
    EXPECT_EQ(actual->nRows, expected->nRows);
    EXPECT_EQ(actual->nCols, expected->nCols);
    EXPECT_EQ(cellsOf(actual), cellsOf(expected));
}
inline void expectSame(const Columns<matrix>& actual, const Columns<matrix>& expected)
{
    EXPECT_THAT(actual.cells(), SameBits(expected.cells()));
}

/// A caller's array with the cells of a table, and whether it holds those of another one after a call.
inline Guarded<double> flat(const Owned<matrix>& table)
{
    return Guarded<double>(cellsOf(table));
}
inline void expectFlat(const Guarded<double>& actual, const Owned<matrix>& expected)
{
    EXPECT_THAT(actual.values(), SameBits(cellsOf(expected)));
}

template <class... Arrays>
void expectUntouched(const Arrays&... arrays)
{
    EXPECT_TRUE((arrays.untouched() && ...)) << "an operand has changed";
}

} // namespace vecmat::test
