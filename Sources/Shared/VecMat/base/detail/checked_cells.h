// Checked reads and writes of a table's cells, by linear position.
#pragma once

#include "../missing_value.h"

#include <string>
#include <utility>

class matrix;
class matrixInt;
class Smatrix;

namespace vecmat {

/// What a checked read outside a table of strings refers to. A constant, initialised before any call: a function-local
/// static would need a guard, and with it an atomic operation, in every such read.
inline const std::wstring emptyText;

/// The cell type of a table, and the value of a checked read outside it.
template <class Table>
struct CellOf;

template <>
struct CellOf<matrix>
{
    using Value = double;
    using Read = double;
    static double outside() { return outOfRangeValue; }
};

template <>
struct CellOf<matrixInt>
{
    using Value = int;
    using Read = int;
    static int outside() { return -1; }
};

template <>
struct CellOf<Smatrix>
{
    using Value = std::wstring;
    using Read = const std::wstring&;
    static const std::wstring& outside() { return emptyText; }
};

template <class Table>
typename CellOf<Table>::Read readAt(const Table& table, unsigned k)
{
    if (k < table.nElems)
        return table.X[k];
    return CellOf<Table>::outside();
}

template <class Table, class Value>
void writeAt(Table& table, unsigned k, Value&& value)
{
    if (k < table.nElems)
        table.X[k] = std::forward<Value>(value);
}

} // namespace vecmat
