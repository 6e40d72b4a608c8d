// The call frame: how an exported flat form wraps the caller's arrays, and how results go back.
//
//     viewed    the caller's array itself, read or written in place
//     View      the same without a call for memory, where calls on few numbers count
//     copied    a private copy; the caller's array is never written unless the result is handed back
//     fresh     a new table for a result that is then handed back
//     columns   an array of arrays, each column a view (numbers) or a copy (strings)
//
// A handle deletes its table when the call ends, on every path, also one that the computing function put in its place.
// A null array is handed on as a null table. Handing a result back is an explicit statement, so that nothing is written
// to the caller while an exception passes.
#pragma once

#include "../Smatrix.h"
#include "../matrix.h"
#include "../matrixInt.h"
#include "super_matrices.h"

#include <type_traits>
#include <utility>

namespace vecmat {

/// Owns one table for the length of a call.
template <class Table>
class Handle
{
public:
    Handle() = default;
    explicit Handle(Table* table) : table_(table), opened_(table) {}
    Handle(Handle&& other) noexcept
        : table_(std::exchange(other.table_, nullptr)), opened_(std::exchange(other.opened_, nullptr))
    {
    }
    Handle& operator=(Handle&&) = delete;
    ~Handle()
    {
        // A numeric table that was replaced is gone already; a string table that was replaced is left to its owner.
        if constexpr (std::is_same_v<Table, Smatrix>)
            if (opened_ != table_)
                delete opened_;
        delete table_;
    }

    operator Table*() const { return table_; }
    Table* operator->() const { return table_; }

    /// For a result argument: the callee may put another table in place of this one.
    Table*& reference() { return table_; }

private:
    Table* table_ = nullptr;
    Table* opened_ = nullptr;
};

using TableHandle = Handle<matrix>;
using IntTableHandle = Handle<matrixInt>;
using StringTableHandle = Handle<Smatrix>;

// ---- wrap -----------------------------------------------------------------------------------------------------------

inline TableHandle viewed(double* x, int rows, int cols)
{
    return TableHandle(x != nullptr ? new matrix(rows, cols, x, true) : nullptr);
}

inline IntTableHandle viewed(int* x, int rows, int cols)
{
    return IntTableHandle(x != nullptr ? new matrixInt(rows, cols, x, true) : nullptr);
}

inline TableHandle copied(double* x, int rows, int cols)
{
    return TableHandle(x != nullptr ? new matrix(rows, cols, x, false) : nullptr);
}

/// Opens the table at its final size over an array of `srcRows` by `srcCols` (0: as the table), copied in linear order.
inline TableHandle copied(double* x, int rows, int cols, int srcRows, int srcCols)
{
    return TableHandle(x != nullptr ? new matrix(rows, cols, x, srcRows, srcCols) : nullptr);
}

inline IntTableHandle copied(int* x, int rows, int cols)
{
    return IntTableHandle(x != nullptr ? new matrixInt(rows, cols, x, false) : nullptr);
}

/// A Boolean array: true becomes -1.0, false 0.0.
inline TableHandle copied(short* x, int rows, int cols)
{
    return TableHandle(x != nullptr ? new matrix(rows, cols, x) : nullptr);
}

inline StringTableHandle copied(wchar_t** x, int rows, int cols, int srcRows = 0, int srcCols = 0)
{
    return StringTableHandle(x != nullptr ? new Smatrix(rows, cols, x, srcRows, srcCols) : nullptr);
}

inline TableHandle fresh(int rows, int cols)
{
    return TableHandle(new matrix(rows, cols, 0.0));
}

inline IntTableHandle freshInt(int rows, int cols)
{
    return IntTableHandle(new matrixInt(rows, cols, 0));
}

inline StringTableHandle freshStrings(int rows, int cols)
{
    return StringTableHandle(new Smatrix(rows, cols));
}

/// The caller's array itself as a table that lives on the stack. For a callee that keeps the table: one that prepares
/// it with `matCheck` does so at the dimensions given, which it has.
template <class Table>
class View
{
public:
    template <class Element>
    View(Element* x, int rows, int cols) : table_(rows, cols, x, true), pointer_(x != nullptr ? &table_ : nullptr)
    {
    }
    /// Of a null array the callee may have made a table.
    ~View()
    {
        if (pointer_ != &table_)
            delete pointer_;
    }
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    operator Table*() { return pointer_; }
    Table*& reference() { return pointer_; }

private:
    Table table_;
    Table* pointer_;
};

View(double*, int, int)->View<matrix>;
View(int*, int, int)->View<matrixInt>;

// ---- hand back ------------------------------------------------------------------------------------------------------

/// Writes every cell of the table to the caller's array; nothing where either is null.
template <class Table, class Element>
void handBack(const Handle<Table>& table, Element* out)
{
    if (table != nullptr && out != nullptr)
        table->copyMatTo(out);
}

// ---- arrays of arrays -----------------------------------------------------------------------------------------------

/// Owns the tables over a caller's array of arrays for the length of a call.
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
        if (tables_ == nullptr)
            return;
        if constexpr (std::is_same_v<Table, Smatrix>)
            DeleteSAFEARRAYStr(tables_, nCols_);
        else
            DeleteSAFEARRAY(tables_, nCols_);
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

/// String columns: copies, which `SaveSAFEARRAY` hands back.
inline ColumnsHandle<Smatrix> stringColumns(SAFEARRAY** x, int nCols, int nRows)
{
    return {x != nullptr ? LoadSAFEARRAYStr(x, nCols, nRows, 1) : nullptr, nCols};
}

} // namespace vecmat
