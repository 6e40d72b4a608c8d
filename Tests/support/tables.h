// Tables for a test: made from lists, owned, read back.
#pragma once

#include "Smatrix.h"
#include "matrix.h"
#include "matrixInt.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace vecmat::test {

/// What a cell of a table holds.
template <class Table>
using Cell = std::remove_pointer_t<decltype(Table::X)>;

/// Owns a table, also one that a function puts in its place, and converts to whatever kind of table is expected:
///
///     Owned<matrix> out;               // null, for a function that makes its result
///     M_ProductAB(byRows({{1, 2}, {3, 4}}), 2, 2, column({1, 2}), 1, out);
template <class Table>
class Owned
{
public:
    Owned() = default;
    explicit Owned(Table* table) : table_(table), opened_(table) {}
    Owned(Owned&& other) noexcept
        : table_(std::exchange(other.table_, nullptr)), opened_(std::exchange(other.opened_, nullptr))
    {
    }
    Owned& operator=(Owned&&) = delete;
    ~Owned()
    {
        // Numeric tables that are replaced are deleted by the one who does it; string tables are not.
        if (std::is_same_v<Table, Smatrix> && opened_ != table_)
            delete opened_;
        delete table_;
    }

    operator Table*&() & { return table_; }
    operator Table*() const& { return table_; }
    operator Table*() && { return table_; }
    Table*& reference() { return table_; }
    Table* get() const { return table_; }
    Table* operator->() const { return table_; }

private:
    Table* table_ = nullptr;
    Table* opened_ = nullptr; // the table at the start
};

namespace detail {

template <class Table>
Table* newTable(int rows, int cols)
{
    if constexpr (std::is_same_v<Table, Smatrix>)
        return new Smatrix(rows, cols);
    else
        return new Table(rows, cols, 0);
}

template <class T>
using Lists = std::initializer_list<std::initializer_list<T>>;

template <class T>
std::size_t innerLength(Lists<T> lists)
{
    const std::size_t length = lists.size() == 0 ? 0 : lists.begin()->size();
    for (const auto& list : lists)
        if (list.size() != length)
            throw std::invalid_argument("the rows or columns of a table differ in length");
    return length;
}

} // namespace detail

/// A table from its cells in linear order, column after column.
template <class Table>
Owned<Table> tableOf(int rows, int cols, const std::vector<Cell<Table>>& cells)
{
    Owned<Table> table(detail::newTable<Table>(rows, cols));
    if (cells.size() != table->nElems)
        throw std::invalid_argument("a table needs a value for each cell");
    std::copy(cells.begin(), cells.end(), table->X);
    return table;
}

template <class Table>
Owned<Table> tableByColumns(detail::Lists<Cell<Table>> columns)
{
    std::vector<Cell<Table>> cells;
    for (const auto& list : columns)
        cells.insert(cells.end(), list);
    return tableOf<Table>(static_cast<int>(detail::innerLength(columns)), static_cast<int>(columns.size()), cells);
}

template <class Table>
Owned<Table> tableByRows(detail::Lists<Cell<Table>> rows)
{
    const std::size_t cols = detail::innerLength(rows);
    std::vector<Cell<Table>> cells(rows.size() * cols);
    std::size_t i = 0;
    for (const auto& row : rows) {
        std::size_t j = 0;
        for (const auto& cell : row)
            cells[i + rows.size() * j++] = cell;
        ++i;
    }
    return tableOf<Table>(static_cast<int>(rows.size()), static_cast<int>(cols), cells);
}

inline Owned<matrix> byRows(detail::Lists<double> rows)
{
    return tableByRows<matrix>(rows);
}
inline Owned<matrix> byColumns(detail::Lists<double> columns)
{
    return tableByColumns<matrix>(columns);
}
inline Owned<matrix> column(const std::vector<double>& cells)
{
    return tableOf<matrix>(static_cast<int>(cells.size()), 1, cells);
}
inline Owned<matrix> table(int rows, int cols, const std::vector<double>& cells)
{
    return tableOf<matrix>(rows, cols, cells);
}
inline Owned<matrix> filled(int rows, int cols, double value)
{
    return Owned<matrix>(new matrix(rows, cols, value));
}

inline Owned<matrixInt> intsByRows(detail::Lists<int> rows)
{
    return tableByRows<matrixInt>(rows);
}
inline Owned<matrixInt> intsByColumns(detail::Lists<int> columns)
{
    return tableByColumns<matrixInt>(columns);
}
inline Owned<matrixInt> intColumn(const std::vector<int>& cells)
{
    return tableOf<matrixInt>(static_cast<int>(cells.size()), 1, cells);
}
inline Owned<matrixInt> intTable(int rows, int cols, const std::vector<int>& cells)
{
    return tableOf<matrixInt>(rows, cols, cells);
}

inline Owned<Smatrix> stringsByRows(detail::Lists<std::wstring> rows)
{
    return tableByRows<Smatrix>(rows);
}
inline Owned<Smatrix> stringsByColumns(detail::Lists<std::wstring> columns)
{
    return tableByColumns<Smatrix>(columns);
}
inline Owned<Smatrix> stringColumn(const std::vector<std::wstring>& cells)
{
    return tableOf<Smatrix>(static_cast<int>(cells.size()), 1, cells);
}
inline Owned<Smatrix> stringTable(int rows, int cols, const std::vector<std::wstring>& cells)
{
    return tableOf<Smatrix>(rows, cols, cells);
}

/// All cells of a table in linear order.
template <class Table>
std::vector<Cell<Table>> cellsOf(const Table* table)
{
    return std::vector<Cell<Table>>(table->X, table->X + table->nElems);
}
template <class Table>
std::vector<Cell<Table>> cellsOf(const Owned<Table>& table)
{
    return cellsOf(static_cast<const Table*>(table.get()));
}

/// The top left corner of a table, column after column. It must lie inside.
template <class Table>
std::vector<Cell<Table>> cornerOf(const Table* table, int rows, int cols)
{
    if (rows > table->nRows || cols > table->nCols)
        throw std::out_of_range("the corner is larger than the table");
    std::vector<Cell<Table>> cells;
    for (int j = 0; j < cols; ++j) {
        const auto* const start = table->X + static_cast<std::size_t>(table->nRows) * static_cast<std::size_t>(j);
        cells.insert(cells.end(), start, start + rows);
    }
    return cells;
}
template <class Table>
std::vector<Cell<Table>> cornerOf(const Owned<Table>& table, int rows, int cols)
{
    return cornerOf(static_cast<const Table*>(table.get()), rows, cols);
}

/// The columns of a table given column after column.
template <class T>
std::vector<std::vector<T>> columnsOf(int rows, int cols, const std::vector<T>& cells)
{
    if (cells.size() != static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols))
        throw std::invalid_argument("a table needs a value for each cell");
    std::vector<std::vector<T>> columns;
    for (auto next = cells.begin(); columns.size() < static_cast<std::size_t>(cols); next += rows)
        columns.emplace_back(next, next + rows);
    return columns;
}

/// The lower triangle of a square table given in full, column after column: entry k holds rows k to the last.
template <class T>
std::vector<std::vector<T>> triangleOf(int order, const std::vector<T>& cells)
{
    const auto n = static_cast<std::ptrdiff_t>(order);
    if (static_cast<std::ptrdiff_t>(cells.size()) != n * n)
        throw std::invalid_argument("a triangle is taken from a square table");
    std::vector<std::vector<T>> columns;
    for (std::ptrdiff_t k = 0; k < n; ++k)
        columns.emplace_back(cells.begin() + n * k + k, cells.begin() + n * (k + 1));
    return columns;
}

/// The array of column tables that a super-matrix is; passes wherever `matrix**` (`Smatrix**`) is expected. It owns the
/// tables, also those that a function puts in their place.
template <class Table>
class Columns
{
public:
    /// `cols` columns of `rows` cells, given column after column.
    Columns(int rows, int cols, const std::vector<Cell<Table>>& cells) : Columns(columnsOf(rows, cols, cells)) {}

    /// Columns of any lengths.
    explicit Columns(const std::vector<std::vector<Cell<Table>>>& columns)
    {
        for (const auto& cells : columns)
            add(cells);
    }

    Columns(Columns&&) noexcept = default;
    Columns& operator=(Columns&&) = delete;

    ~Columns()
    {
        for (std::size_t j = 0; j < pointers_.size(); ++j)
            opened_[j].reference() = pointers_[j];
    }

    operator Table**() { return pointers_.data(); }
    Table** get() { return pointers_.data(); }
    int count() const { return static_cast<int>(pointers_.size()); }

    std::vector<Cell<Table>> column(int j) const { return cellsOf<Table>(pointers_.at(static_cast<std::size_t>(j))); }

    /// All columns, one after the other.
    std::vector<Cell<Table>> cells() const
    {
        std::vector<Cell<Table>> all;
        for (int j = 0; j < count(); ++j) {
            const auto one = column(j);
            all.insert(all.end(), one.begin(), one.end());
        }
        return all;
    }

private:
    void add(const std::vector<Cell<Table>>& cells)
    {
        opened_.push_back(tableOf<Table>(static_cast<int>(cells.size()), 1, cells));
        pointers_.push_back(opened_.back().get());
    }

    std::vector<Owned<Table>> opened_;
    std::vector<Table*> pointers_;
};

using TableColumns = Columns<matrix>;
using StringColumns = Columns<Smatrix>;

/// The triangular super-matrix of a square table given in full.
inline TableColumns triangle(int order, const std::vector<double>& cells)
{
    return TableColumns(triangleOf(order, cells));
}

} // namespace vecmat::test
