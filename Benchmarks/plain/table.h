// Cells of a column-major table by row and column, from 0.
#pragma once

#include <cstddef>

namespace vecmat::bench::plain {

template <class Value>
struct Table
{
    Value* cells;
    std::ptrdiff_t rows;

    Value& operator()(int i, int j) const { return cells[i + rows * j]; }
};

template <class Value>
Table(Value*, int) -> Table<Value>;

} // namespace vecmat::bench::plain
