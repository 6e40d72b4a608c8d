// Access to cells: one algorithm, written over an accessor, works for every storage.
//
// An accessor comes in two kinds with the same members. The checked kind follows the rules of the tables: out of range
// a read gives -1.0 (-1, an empty string) and a write is dropped. The plain kind reads memory directly; it is used
// only if the whole block that a loop visits lies inside its tables, and then both give the same result:
//
//     onBlocks([&](auto x, auto y) { ... x.get(i, j) ... y.set(i, j, v) ... }, block(cells(a), rows, cols),
//     block(linear(v), n));
//
// Whether a loop may run in another order depends on where its cells lie. A plain accessor reports this for a block at
// the top left: `folds(rows, cols)`, whether two places of the block can be the same cell, and
// `visitStorage(rows, cols, visit)`, which calls visit(first, last) for each memory range that the block occupies.
//
// Numbers are 0-based. Accessors are small and are passed by value; they own nothing.
#pragma once

#include "../Smatrix.h"
#include "../base/detail/checked_cells.h"
#include "../base/detail/numbers.h"
#include "../matrix.h"
#include "../matrixInt.h"

#include <cstddef>
#include <cstdlib>
#include <string>
#include <type_traits>
#include <utility>

namespace vecmat {

// ---- one table, by row and column -----------------------------------------------------------------------------------

/// Plain cells of a table: column-major with the table's own stride.
template <class Table>
class PlainCells
{
public:
    using Value = typename CellOf<Table>::Value;
    using Read = typename CellOf<Table>::Read;

    PlainCells(Value* first, int stride) : first_(first), stride_(stride) {}

    Value* column(int j) const { return first_ + stride_ * j; }
    Read get(int i, int j) const { return column(j)[i]; }
    template <class V>
    void set(int i, int j, V&& value) const
    {
        column(j)[i] = std::forward<V>(value);
    }

    bool folds(int rows, int cols) const { return cols > 1 && rows > stride_; }
    template <class Visit>
    void visitStorage(int rows, int cols, Visit visit) const
    {
        if (rows > 0 && cols > 0)
            visit(first_, column(cols - 1) + rows);
    }

private:
    Value* first_;
    std::ptrdiff_t stride_;
};

/// Checked cells of a table.
template <class Table>
class TableCells
{
public:
    using Value = typename CellOf<Table>::Value;
    using Read = typename CellOf<Table>::Read;

    explicit TableCells(Table* table) : table_(table) {}

    Read get(int i, int j) const { return readAt(*table_, linearIndex(i, j, table_->nRows)); }
    template <class V>
    void set(int i, int j, V&& value) const
    {
        writeAt(*table_, linearIndex(i, j, table_->nRows), std::forward<V>(value));
    }

    /// Does every cell of the block at the top left lie in range? Rows may run over into the next column.
    bool covers(int rows, int cols) const
    {
        if (rows < 1 || cols < 1)
            return true;
        // NOLINTNEXTLINE(clang-analyzer-core.NullDereference): a table may be null only if there is no cell to visit
        const long long last = (cols - 1LL) * table_->nRows + rows;
        return table_->nRows >= 0 && last <= static_cast<long long>(table_->nElems);
    }
    /// The table may be null if no cell is visited.
    PlainCells<Table> plain() const
    {
        return table_ != nullptr ? PlainCells<Table>(table_->X, table_->nRows) : PlainCells<Table>(nullptr, 0);
    }

private:
    Table* table_;
};

// ---- one table, in linear order -------------------------------------------------------------------------------------

/// Plain cells of a vector.
template <class Table>
class PlainVector
{
public:
    using Value = typename CellOf<Table>::Value;
    using Read = typename CellOf<Table>::Read;

    explicit PlainVector(Value* first) : first_(first) {}

    Value* data() const { return first_; }
    Read get(int i) const { return first_[i]; }
    template <class V>
    void set(int i, V&& value) const
    {
        first_[i] = std::forward<V>(value);
    }

    template <class Visit>
    void visitStorage(int n, Visit visit) const
    {
        if (n > 0)
            visit(first_, first_ + n);
    }

private:
    Value* first_;
};

/// Checked cells of a vector: a table read in linear order, whatever its shape.
template <class Table>
class VectorCells
{
public:
    using Value = typename CellOf<Table>::Value;
    using Read = typename CellOf<Table>::Read;

    explicit VectorCells(Table* table) : table_(table) {}

    Read get(int i) const { return readAt(*table_, static_cast<unsigned>(i)); }
    template <class V>
    void set(int i, V&& value) const
    {
        writeAt(*table_, static_cast<unsigned>(i), std::forward<V>(value));
    }

    bool covers(int n) const { return n < 1 || static_cast<unsigned>(n) <= table_->nElems; }
    /// The table may be null if no cell is visited.
    PlainVector<Table> plain() const { return PlainVector<Table>(table_ != nullptr ? table_->X : nullptr); }

private:
    Table* table_;
};

// ---- an array of columns --------------------------------------------------------------------------------------------

/// Plain cells of an array of column tables.
template <class Table>
class PlainColumns
{
public:
    using Value = typename CellOf<Table>::Value;
    using Read = typename CellOf<Table>::Read;

    explicit PlainColumns(Table** columns) : columns_(columns) {}

    Value* column(int j) const { return columns_[j]->X; }
    Read get(int i, int j) const { return column(j)[i]; }
    template <class V>
    void set(int i, int j, V&& value) const
    {
        column(j)[i] = std::forward<V>(value);
    }

    bool folds(int /*rows*/, int /*cols*/) const { return false; }
    template <class Visit>
    void visitStorage(int rows, int cols, Visit visit) const
    {
        if (rows > 0)
            for (int j = 0; j < cols; ++j)
                visit(column(j), column(j) + rows);
    }

private:
    Table** columns_;
};

/// Checked cells of an array of column tables. The check is that of the single table: a row never runs into the next
/// column. A negative column number is out of range; the caller vouches for the number of columns, and a null column
/// must not be reached.
template <class Table>
class ColumnCells
{
public:
    using Value = typename CellOf<Table>::Value;
    using Read = typename CellOf<Table>::Read;

    explicit ColumnCells(Table** columns) : columns_(columns) {}

    Read get(int i, int j) const
    {
        return j < 0 ? CellOf<Table>::outside() : readAt(*columns_[j], static_cast<unsigned>(i));
    }
    template <class V>
    void set(int i, int j, V&& value) const
    {
        if (j >= 0)
            writeAt(*columns_[j], static_cast<unsigned>(i), std::forward<V>(value));
    }

    bool covers(int rows, int cols) const
    {
        if (rows < 1)
            return true;
        for (int j = 0; j < cols; ++j)
            if (columns_[j] == nullptr || columns_[j]->nElems < static_cast<unsigned>(rows))
                return false;
        return true;
    }
    PlainColumns<Table> plain() const { return PlainColumns<Table>(columns_); }

private:
    Table** columns_;
};

// ---- a triangle of columns ------------------------------------------------------------------------------------------

/// Plain cells of a symmetric table held as its lower triangle: cells (i, j) and (j, i) are the same.
template <class Table>
class PlainTriangle
{
public:
    using Value = typename CellOf<Table>::Value;
    using Read = typename CellOf<Table>::Read;

    explicit PlainTriangle(Table** columns) : columns_(columns) {}

    Read get(int i, int j) const { return i < j ? columns_[i]->X[j - i] : columns_[j]->X[i - j]; }
    template <class V>
    void set(int i, int j, V&& value) const
    {
        (i < j ? columns_[i]->X[j - i] : columns_[j]->X[i - j]) = std::forward<V>(value);
    }

    bool folds(int rows, int cols) const { return rows > 1 && cols > 1; }
    template <class Visit>
    void visitStorage(int rows, int cols, Visit visit) const
    {
        const int shorter = rows < cols ? rows : cols;
        const int longer = rows < cols ? cols : rows;
        for (int k = 0; k < shorter; ++k)
            visit(columns_[k]->X, columns_[k]->X + (longer - k));
    }

private:
    Table** columns_;
};

/// Checked cells of such a triangle: cell (i, j) is cell |i - j| of column min(i, j), which is out of range if
/// negative.
template <class Table>
class TriangleCells
{
public:
    using Value = typename CellOf<Table>::Value;
    using Read = typename CellOf<Table>::Read;

    explicit TriangleCells(Table** columns) : columns_(columns) {}

    Read get(int i, int j) const
    {
        const int column = i < j ? i : j;
        return column < 0 ? CellOf<Table>::outside() : readAt(*columns_[column], distance(i, j));
    }
    template <class V>
    void set(int i, int j, V&& value) const
    {
        const int column = i < j ? i : j;
        if (column >= 0)
            writeAt(*columns_[column], distance(i, j), std::forward<V>(value));
    }

    bool covers(int rows, int cols) const
    {
        const int shorter = rows < cols ? rows : cols;
        const int longer = rows < cols ? cols : rows;
        for (int k = 0; k < shorter; ++k)
            if (columns_[k] == nullptr || columns_[k]->nElems < static_cast<unsigned>(longer - k))
                return false;
        return true;
    }
    PlainTriangle<Table> plain() const { return PlainTriangle<Table>(columns_); }

private:
    static unsigned distance(int i, int j)
    {
        const unsigned difference = static_cast<unsigned>(i) - static_cast<unsigned>(j);
        return i < j ? 0u - difference : difference;
    }

    Table** columns_;
};

// ---- names for the storages -----------------------------------------------------------------------------------------

template <class Table>
TableCells<Table> cells(Table* table)
{
    return TableCells<Table>(table);
}

template <class Table>
ColumnCells<Table> cells(Table** columns)
{
    return ColumnCells<Table>(columns);
}

template <class Table>
TriangleCells<Table> triangle(Table** columns)
{
    return TriangleCells<Table>(columns);
}

template <class Table>
VectorCells<Table> linear(Table* table)
{
    return VectorCells<Table>(table);
}

// ---- one check before the loop --------------------------------------------------------------------------------------

/// Cells together with the part of them that a loop will visit.
template <class Checked>
struct Block
{
    Checked checked;
    bool inside;
};

template <class Checked>
Block<Checked> block(Checked cells, int rows, int cols)
{
    return {cells, cells.covers(rows, cols)};
}

template <class Checked>
Block<Checked> block(Checked vector, int n)
{
    return {vector, vector.covers(n)};
}

/// Runs `plainBody` on plain accessors if every block lies inside its tables, otherwise `checkedBody` on the checked
/// ones: for bodies that need to know where the cells lie.
template <class PlainBody, class CheckedBody, class... Checked>
decltype(auto) onBlocksOrElse(PlainBody&& plainBody, CheckedBody&& checkedBody, Block<Checked>... blocks)
{
    if ((blocks.inside && ...))
        return plainBody(blocks.checked.plain()...);
    return checkedBody(blocks.checked...);
}

/// Runs `body` on plain accessors if every block lies inside its tables, otherwise on the checked ones.
template <class Body, class... Checked>
decltype(auto) onBlocks(Body&& body, Block<Checked>... blocks)
{
    return onBlocksOrElse(body, body, blocks...);
}

} // namespace vecmat
