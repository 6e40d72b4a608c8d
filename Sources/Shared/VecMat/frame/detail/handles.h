// The call frame: how an exported flat form wraps the caller's arrays, and how results are written back.
//
//     viewed    the caller's array itself, read or written in place
//     copied    a private copy; the caller's array is written only if the result is written back
//     fresh     a new table for a result that is then written back
//     columns   an array of arrays, each column a view (numbers) or a copy (strings)
//
// The tables of a call are destroyed when it ends, on every path, including a replacement made by the computing
// function. Tables of numbers are on the stack, and so are the cells of small ones: a call on few numbers needs no
// allocation for its frame. A null array is passed on as a null table.
//
// A call that throws leaves the caller's arrays as they were. Writing a result back is an explicit statement, which only
// fails where it makes strings: a form with several results makes all of its texts first (addTexts), hands back the
// numbers, and then stores the texts. A form over views takes its memory before the first write; where that can't be,
// the cells are kept (kept_cells.h).
#pragma once

#include "../../Smatrix.h"
#include "../../base/detail/local_array.h"
#include "../../base/detail/numbers.h"
#include "../../matrix.h"
#include "../../matrixInt.h"
#include "../super_matrices.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace vecmat {

// ---- tables of numbers ----------------------------------------------------------------------------------------------

template <class Table>
using CellType = std::remove_pointer_t<decltype(Table::X)>;

/// A table on the stack, over cells that belong to another.
template <class Table>
union TableInPlace {
    TableInPlace(int rows, int cols, CellType<Table>* cells)
        : table(typename Table::Shape{rows, cols, elementCount(rows, cols)})
    {
        table.X = cells;
        table.ownsX = 0;
        table.inFrame = 1;
    }
    ~TableInPlace()
    {
        if (hasArrays())
            table.~Table();
    }
    TableInPlace(const TableInPlace&) = delete;
    TableInPlace& operator=(const TableInPlace&) = delete;

    Table table;

private:
    /// Has a callee given it weights or moments? That is rare, and tested for all arrays at once.
    bool hasArrays() const
    {
        const auto bits = [](const void* array) { return reinterpret_cast<std::uintptr_t>(array); };
        return (bits(table.weights) | bits(table.nCol) | bits(table.weightcorr) | bits(table.descMu) |
                bits(table.descSigma) | bits(table.norMu) | bits(table.norSigma)) != 0;
    }
};

/// Common to views and handles: converts to its table wherever one is expected.
template <class Table>
class FrameTable
{
public:
    operator Table*() const { return pointer_; }
    Table* operator->() const { return pointer_; }

    /// For a result argument: the callee may replace the table by another.
    Table*& reference() { return pointer_; }

    FrameTable(const FrameTable&) = delete;
    FrameTable& operator=(const FrameTable&) = delete;

protected:
    FrameTable(int rows, int cols, CellType<Table>* cells)
        : place_(rows, cols, cells), pointer_(cells != nullptr ? &place_.table : nullptr)
    {
    }
    ~FrameTable()
    {
        if (pointer_ != &place_.table)
            delete pointer_; // NOLINT(clang-analyzer-cplusplus.NewDelete): created by a callee
    }

    /// Whether the original table is still in use.
    bool isInPlace() const { return pointer_ == &place_.table; }
    /// Takes over the table that has replaced the other's own.
    void takeReplacement(FrameTable& other) { pointer_ = std::exchange(other.pointer_, nullptr); }

private:
    mutable TableInPlace<Table> place_; // constant is which table this is, not its contents
    Table* pointer_;
};

/// The caller's array itself.
template <class Table>
class View : public FrameTable<Table>
{
public:
    View(CellType<Table>* x, int rows, int cols) : FrameTable<Table>(rows, cols, x) {}
};

View(double*, int, int)->View<matrix>;
View(int*, int, int)->View<matrixInt>;

/// A table with its own cells, or none.
template <class Table>
class Handle : LocalArray<CellType<Table>>, public FrameTable<Table>
{
    using Cells = LocalArray<CellType<Table>>;

public:
    Handle() : Cells(0), FrameTable<Table>(0, 0, nullptr) {}
    Handle(int rows, int cols, CellType<Table> value) : Handle(rows, cols)
    {
        std::fill_n(Cells::data(), Cells::size(), value);
    }
    /// The first `given` cells are copied in linear order, the others are 0.
    template <class Number>
    Handle(int rows, int cols, const Number* src, unsigned given) : Handle(rows, cols)
    {
        const std::size_t count = std::min<std::size_t>(given, Cells::size());
        std::fill(std::copy_n(src, count, Cells::data()), Cells::data() + Cells::size(), 0);
    }
    /// Weights and moments that a callee gave the table are not moved.
    Handle(Handle&& other) noexcept
        : Cells(std::move(other)), FrameTable<Table>(other.rows(), other.cols(),
                                                     other.isInPlace() ? Cells::data() : nullptr)
    {
        if (!other.isInPlace()) // NOLINT(bugprone-use-after-move): only its cells have moved
            this->takeReplacement(other);
    }

private:
    Handle(int rows, int cols) : Cells(elementCount(rows, cols)), FrameTable<Table>(rows, cols, Cells::data()) {}
    int rows() const { return this->isInPlace() ? (*this)->nRows : 0; }
    int cols() const { return this->isInPlace() ? (*this)->nCols : 0; }
};

using TableHandle = Handle<matrix>;
using IntTableHandle = Handle<matrixInt>;

// ---- tables of strings ----------------------------------------------------------------------------------------------

/// Owns a table of strings, or of borrowed texts, for the duration of a call.
template <class Table>
class TextHandle
{
public:
    TextHandle() = default;
    explicit TextHandle(Table* table) : table_(table), opened_(table) {}
    TextHandle(TextHandle&& other) noexcept
        : table_(std::exchange(other.table_, nullptr)), opened_(std::exchange(other.opened_, nullptr))
    {
    }
    TextHandle& operator=(TextHandle&&) = delete;
    ~TextHandle()
    {
        if (opened_ != table_) // a table that was replaced is left to its owner
            delete opened_;
        delete table_;
    }

    operator Table*() const { return table_; }
    Table* operator->() const { return table_; }

    /// For a result argument: the callee may replace the table by another.
    Table*& reference() { return table_; }

private:
    Table* table_ = nullptr;
    Table* opened_ = nullptr;
};

using StringTableHandle = TextHandle<Smatrix>;

// ---- wrap -----------------------------------------------------------------------------------------------------------

inline View<matrix> viewed(double* x, int rows, int cols)
{
    return {x, rows, cols};
}

inline View<matrixInt> viewed(int* x, int rows, int cols)
{
    return {x, rows, cols};
}

/// Opens the table at its final size over an array of `srcRows` by `srcCols` (0: the table's own), copied in linear
/// order.
inline TableHandle copied(double* x, int rows, int cols, int srcRows = 0, int srcCols = 0)
{
    const unsigned given = elementCount(srcRows != 0 ? srcRows : rows, srcCols != 0 ? srcCols : cols);
    return x != nullptr ? TableHandle(rows, cols, x, given) : TableHandle();
}

inline IntTableHandle copied(int* x, int rows, int cols)
{
    return x != nullptr ? IntTableHandle(rows, cols, x, elementCount(rows, cols)) : IntTableHandle();
}

/// A Boolean array: true becomes -1.0, false 0.0.
inline TableHandle copied(short* x, int rows, int cols)
{
    return x != nullptr ? TableHandle(rows, cols, x, elementCount(rows, cols)) : TableHandle();
}

inline StringTableHandle copied(wchar_t** x, int rows, int cols, int srcRows = 0, int srcCols = 0)
{
    return StringTableHandle(x != nullptr ? new Smatrix(rows, cols, x, srcRows, srcCols) : nullptr);
}

inline TableHandle fresh(int rows, int cols, double value = 0.0)
{
    return {rows, cols, value};
}

inline IntTableHandle freshInt(int rows, int cols)
{
    return {rows, cols, 0};
}

inline StringTableHandle freshStrings(int rows, int cols)
{
    return StringTableHandle(new Smatrix(rows, cols));
}

// ---- write back -----------------------------------------------------------------------------------------------------

/// Writes every cell of the table to the caller's array; does nothing if either is null.
template <class Tables, class Element>
void handBack(const Tables& table, Element* out)
{
    if (table != nullptr && out != nullptr)
        table->copyMatTo(out);
}

// ---- arrays of arrays -----------------------------------------------------------------------------------------------

inline void deleteColumns(matrix** tables, int nCols)
{
    DeleteSAFEARRAY(tables, nCols);
}
inline void deleteColumns(Smatrix** tables, int nCols)
{
    DeleteSAFEARRAYStr(tables, nCols);
}

/// Owns the tables over a caller's array of arrays for the duration of a call.
template <class Table>
class ColumnsHandle
{
public:
    ColumnsHandle(Table** tables, int nCols) : tables_(tables), nCols_(nCols) {}
    ColumnsHandle(ColumnsHandle&& other) noexcept
        : tables_(std::exchange(other.tables_, nullptr)), nCols_(std::exchange(other.nCols_, 0))
    {
    }
    ColumnsHandle& operator=(ColumnsHandle&&) = delete;
    ~ColumnsHandle()
    {
        if (tables_ != nullptr)
            deleteColumns(tables_, nCols_);
    }

    operator Table**() const { return tables_; }

private:
    Table** tables_;
    int nCols_;
};

/// Columns of `nRows` cells, views of the caller's: a result is in them when the call ends.
inline ColumnsHandle<matrix> columns(SAFEARRAY** x, int nCols, int nRows)
{
    return {x != nullptr ? LoadSAFEARRAY(x, nCols, nRows, 1) : nullptr, nCols};
}

/// Columns of n, n - 1, ... cells: the lower triangle of a symmetric table of order n.
inline ColumnsHandle<matrix> triangleColumns(SAFEARRAY** x, int n)
{
    return {x != nullptr ? LoadSAFEARRAY(x, n, n, 0) : nullptr, n};
}

/// String columns: copies, which `SaveSAFEARRAY` writes back.
inline ColumnsHandle<Smatrix> stringColumns(SAFEARRAY** x, int nCols, int nRows)
{
    return {x != nullptr ? LoadSAFEARRAYStr(x, nCols, nRows, 1) : nullptr, nCols};
}

} // namespace vecmat
