// Symmetric tables packed by the rows of their lower triangle: cell (i, j) and cell (j, i), from 0, are the same one.
#pragma once

#include "../base/missing_value.h"
#include "../matrix.h"
#include "cells.h"

#include <algorithm>

namespace vecmat {

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

/// A packed table as a result. Its positions are the ints of the callers, which wrap beyond order 65535.
class PackedResult
{
public:
    explicit PackedResult(matrix* table) : cells_(linear(table)) {}

    double get(int i, int j) const { return cells_.get(position(i, j)); }
    void set(int i, int j, double value) const { cells_.set(position(i, j), value); }

private:
    static int position(int i, int j) { return static_cast<int>(static_cast<unsigned>(packedPosition(i, j))); }

    VectorCells<matrix> cells_;
};

} // namespace vecmat
