// Adaptors over the accessors of `access/cells.h`. An adaptor has the members of an accessor: `get`, `set` where it can be
// a result, and on the checked kind `covers` and `plain`. Numbers are 0-based.
//
// The formula of a product, here a diag(v) b', is its code:
//
//     multiply(timesDiagonal(cells(a), linear(v)), transposed(cells(b)), {rows, cols, rowsB}, cells(out));
//
// A vector is passed as a table of one column, `cells(v)`, wherever a table is expected.
#pragma once

#include "../base/detail/numbers.h"

#include <limits>
#include <utility>

namespace vecmat {

// ---- tables ---------------------------------------------------------------------------------------------------------

/// The part of a table that starts at cell (row0, col0). A start before the table is out of range like one after it.
template <class Cells>
class Shifted
{
public:
    using Value = typename Cells::Value;

    Shifted(Cells cells, int row0, int col0) : cells_(cells), row0_(row0), col0_(col0) {}

    decltype(auto) get(int i, int j) const { return cells_.get(wrappingSum(row0_, i), wrappingSum(col0_, j)); }
    template <class V>
    void set(int i, int j, V&& value) const
    {
        cells_.set(wrappingSum(row0_, i), wrappingSum(col0_, j), std::forward<V>(value));
    }
    auto column(int j) const requires requires(const Cells& cells) { cells.column(0); }
    {
        return cells_.column(col0_ + j) + row0_;
    }

    bool covers(int rows, int cols) const
    {
        constexpr int largest = std::numeric_limits<int>::max();
        if (rows < 1 || cols < 1)
            return true;
        return row0_ >= 0 && col0_ >= 0 && rows <= largest - row0_ && cols <= largest - col0_ &&
               cells_.covers(row0_ + rows, col0_ + cols);
    }
    auto plain() const { return Shifted<decltype(cells_.plain())>(cells_.plain(), row0_, col0_); }

    bool folds(int rows, int cols) const { return cells_.folds(row0_ + rows, col0_ + cols); }
    template <class Visit>
    void visitStorage(int rows, int cols, Visit visit) const
    {
        if (rows > 0 && cols > 0)
            cells_.visitStorage(row0_ + rows, col0_ + cols, visit);
    }

    int row() const { return row0_; }
    int col() const { return col0_; }

private:
    Cells cells_;
    int row0_;
    int col0_;
};

template <class Cells>
Shifted<Cells> shifted(Cells cells, int row0, int col0)
{
    return Shifted<Cells>(cells, row0, col0);
}

/// Cell (i, j) is cell (j, i) of the wrapped accessor.
template <class Cells>
class Transposed
{
public:
    using Value = typename Cells::Value;

    explicit Transposed(Cells cells) : cells_(cells) {}

    decltype(auto) get(int i, int j) const { return cells_.get(j, i); }
    template <class V>
    void set(int i, int j, V&& value) const
    {
        cells_.set(j, i, std::forward<V>(value));
    }
    const Cells& base() const { return cells_; }

    bool covers(int rows, int cols) const { return cells_.covers(cols, rows); }
    auto plain() const { return Transposed<decltype(cells_.plain())>(cells_.plain()); }

    bool folds(int rows, int cols) const { return cells_.folds(cols, rows); }
    template <class Visit>
    void visitStorage(int rows, int cols, Visit visit) const
    {
        cells_.visitStorage(cols, rows, visit);
    }

private:
    Cells cells_;
};

template <class Cells>
Transposed<Cells> transposed(Cells cells)
{
    return Transposed<Cells>(cells);
}
template <class Cells>
Cells transposed(Transposed<Cells> cells)
{
    return cells.base();
}

// ---- vectors in tables ----------------------------------------------------------------------------------------------

/// One column of an accessor by row and column, as a vector.
template <class Cells>
class ColumnOf
{
public:
    ColumnOf(Cells cells, int column) : cells_(cells), column_(column) {}

    double get(int i) const { return cells_.get(i, column_); }

private:
    Cells cells_;
    int column_;
};

/// A vector repeated in every column of a table: cell (i, j) is v(i).
template <class Vector>
class InEachColumn
{
public:
    using Value = double;

    explicit InEachColumn(Vector vector) : vector_(vector) {}

    double get(int i, int) const { return vector_.get(i); }

    bool covers(int rows, int) const { return vector_.covers(rows); }
    auto plain() const { return InEachColumn<decltype(vector_.plain())>(vector_.plain()); }

    template <class Visit>
    void visitStorage(int rows, int /*cols*/, Visit visit) const
    {
        vector_.visitStorage(rows, visit);
    }

private:
    Vector vector_;
};

template <class Vector>
InEachColumn<Vector> inEachColumn(Vector vector)
{
    return InEachColumn<Vector>(vector);
}

// ---- diagonals ------------------------------------------------------------------------------------------------------

/// D, Diag: a square table of which only the diagonal is read, as a vector.
template <class Cells>
class Diagonal
{
public:
    explicit Diagonal(Cells cells) : cells_(cells) {}

    double get(int k) const { return cells_.get(k, k); }

    bool covers(int n) const { return cells_.covers(n, n); }
    auto plain() const { return Diagonal<decltype(cells_.plain())>(cells_.plain()); }

    template <class Visit>
    void visitStorage(int n, Visit visit) const
    {
        cells_.visitStorage(n, n, visit);
    }

private:
    Cells cells_;
};

template <class Cells>
Diagonal<Cells> diagonal(Cells cells)
{
    return Diagonal<Cells>(cells);
}

/// A diag(v): cell (i, k) is a(i, k) v(k).
template <class Cells, class Vector>
class TimesDiagonal
{
public:
    using Value = double;

    TimesDiagonal(Cells cells, Vector vector) : cells_(cells), vector_(vector) {}

    double get(int i, int k) const { return cells_.get(i, k) * vector_.get(k); }

    bool covers(int rows, int cols) const { return cells_.covers(rows, cols) && vector_.covers(cols); }
    auto plain() const
    {
        return TimesDiagonal<decltype(cells_.plain()), decltype(vector_.plain())>(cells_.plain(), vector_.plain());
    }

    template <class Visit>
    void visitStorage(int rows, int cols, Visit visit) const
    {
        cells_.visitStorage(rows, cols, visit);
        vector_.visitStorage(cols, visit);
    }

private:
    Cells cells_;
    Vector vector_;
};

template <class Cells, class Vector>
TimesDiagonal<Cells, Vector> timesDiagonal(Cells cells, Vector vector)
{
    return TimesDiagonal<Cells, Vector>(cells, vector);
}

} // namespace vecmat
