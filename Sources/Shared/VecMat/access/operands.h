// How an operand of a product is read. The name of each product shows the form of its operands in the formula; the
// adaptors here express the same over the accessors of `access/cells.h`, so that the formula of a name, here
// a diag(v) b', is its code:
//
//     multiply(timesDiagonal(cells(a), linear(v)), transposed(cells(b)), {rows, cols, rowsB}, cells(out));
//
// An adaptor has the members of an accessor: `get`, `set` where it can be a result, and on the checked kind `covers`
// and `plain`. Numbers are 0-based. A vector is passed as a table of one column, `cells(v)`, wherever a table is
// expected.
#pragma once

#include "../base/detail/numbers.h"
#include "cells.h"
#include "transposed.h"

#include <algorithm>
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

    auto get(int i, int j) const { return cells_.get(moved(i, row0_), moved(j, col0_)); }
    template <class V>
    void set(int i, int j, V&& value) const
    {
        cells_.set(moved(i, row0_), moved(j, col0_), std::forward<V>(value));
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

private:
    static int moved(int i, int by) { return static_cast<int>(static_cast<unsigned>(i) + static_cast<unsigned>(by)); }

    Cells cells_;
    int row0_;
    int col0_;
};

template <class Cells>
Shifted<Cells> shifted(Cells cells, int row0, int col0)
{
    return Shifted<Cells>(cells, row0, col0);
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

// ---- packed tables --------------------------------------------------------------------------------------------------

/// Position, from 0, of cell (i, j), from 0 and in either order, of a symmetric table packed by the rows of its lower
/// triangle.
constexpr unsigned long long packedPosition(int i, int j)
{
    const auto row = static_cast<unsigned long long>(std::max(i, j));
    const auto col = static_cast<unsigned long long>(std::min(i, j));
    return row * (row + 1) / 2 + col;
}

class PlainPacked
{
public:
    explicit PlainPacked(const double* first) : first_(first) {}

    double get(int i, int j) const { return first_[packedPosition(i, j)]; }

    template <class Visit>
    void visitStorage(int rows, int cols, Visit visit) const
    {
        if (const int order = std::max(rows, cols); order > 0)
            visit(first_, first_ + packedPosition(order - 1, order - 1) + 1);
    }

private:
    const double* first_;
};

/// Sym: a symmetric table in packed form.
class PackedCells
{
public:
    explicit PackedCells(const matrix* packed) : packed_(packed) {}

    double get(int i, int j) const
    {
        const unsigned long long k = packedPosition(i, j);
        return k < packed_->nElems ? packed_->X[k] : outOfRangeValue;
    }

    bool covers(int rows, int cols) const
    {
        const int order = std::max(rows, cols);
        return order < 1 || packedPosition(order - 1, order - 1) < packed_->nElems;
    }
    /// The table may be null if no cell is visited.
    PlainPacked plain() const { return PlainPacked(packed_ != nullptr ? packed_->X : nullptr); }

private:
    const matrix* packed_;
};

inline PackedCells packed(const matrix* table)
{
    return PackedCells(table);
}

} // namespace vecmat
