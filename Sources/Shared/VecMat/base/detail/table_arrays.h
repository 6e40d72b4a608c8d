// Common to the table classes: the arrays beside the cells, which receivers of a result can be read, and how one is
// replaced.
#pragma once

#include "../missing_value.h"
#include "numbers.h"

#include <algorithm>
#include <cstdint>

namespace vecmat {

/// A pattern that debug builds of the callers leave in an unset pointer; such a receiver is never read.
inline bool isUnset(const void* table)
{
    return reinterpret_cast<std::uintptr_t>(table) == 0xcccccccc;
}

template <class Number>
Number* copyOf(const Number* src, unsigned n)
{
    return std::copy_n(src, n, new Number[n]) - n;
}

/// A new array of n numbers: the first of the `known` ones, then `filler`.
template <class Number>
Number* resizedCopyOf(const Number* src, unsigned known, unsigned n, Number filler)
{
    Number* const copy = new Number[n];
    std::fill(std::copy_n(src, std::min(known, n), copy), copy + n, filler);
    return copy;
}

/// Gives a table under construction copies of the arrays that a copy takes over from `src`, a table with as many
/// columns. Weights beyond those of `src` read like cells outside a table.
template <class Table>
void copyArrays(const Table& src, Table& table)
{
    const unsigned columns = countOf(table.nCols);
    if (src.weightcorr != nullptr)
        table.weightcorr = copyOf(src.weightcorr, columns);
    if (src.nCol != nullptr)
        table.nCol = copyOf(src.nCol, columns);
    if (src.weights != nullptr)
        table.weights = resizedCopyOf(src.weights, countOf(src.nRows), countOf(table.nRows), outOfRangeValue);
    if (src.normalized == 1) {
        table.norMu = copyOf(src.norMu, columns);
        table.norSigma = copyOf(src.norSigma, columns);
        table.normalized = 1;
    }
}

/// Frees the arrays owned by a table.
template <class Table>
void deleteArrays(Table& table)
{
    if (table.ownsX == 1)
        delete[] table.X;
    delete[] table.weights;
    delete[] table.nCol;
    delete[] table.weightcorr;
    delete[] table.descMu;
    delete[] table.descSigma;
    delete[] table.norMu;
    delete[] table.norSigma;
}

/// Destroys a table that another one replaces, unless it belongs to the frame of a call and is destroyed there.
template <class Table>
void release(Table* table)
{
    if (table != nullptr && table->inFrame == 0)
        delete table; // NOLINT(clang-analyzer-cplusplus.NewDelete): the unset pattern can still get here
}

} // namespace vecmat
