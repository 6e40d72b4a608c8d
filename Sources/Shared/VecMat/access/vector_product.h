// Products of a table and a vector, many results side by side. Each result is the same sum in the same order as in
// `product.h`, which is still used for a few cells and wherever the order of the results is observable.
#pragma once

#include "../base/detail/numbers.h"
#include "../base/detail/scratch.h"
#include "../kernels/column_kernels.h"
#include "adaptors.h"
#include "cells.h"
#include "overlap.h"
#include "product.h"

#include <algorithm>
#include <cstddef>
#include <type_traits>

namespace vecmat::detail {

/// Fewer results than this, as many as any machine's vectors hold, are summed one by one.
inline constexpr int fewestSideBySide = ColumnKernels::mostLanes;

/// Results whose terms with the same k lie next to each other, in `termsAt(k)`: a product by columns.
template <class TermsAt, class FactorAt, class Store>
void sumSideBySide(int results, int inner, TermsAt termsAt, FactorAt factorAt, Store store)
{
    constexpr int together = 1024; // sums that stay in the nearest cache
    constexpr int columns = ColumnKernels::columnsTogether;
    const ColumnKernels& kernels = columnKernels();
    double sums[together];
    for (int first = 0; first < results; first += std::min(together, results - first)) {
        const int count = std::min(together, results - first);
        std::fill_n(sums, count, 0.0);
        int k = 0;
        for (; inner - k >= columns; k += columns) {
            double factors[columns];
            const double* terms[columns];
            for (int c = 0; c < columns; ++c) {
                factors[c] = factorAt(k + c);
                terms[c] = termsAt(k + c) + first;
            }
            kernels.addMultiples(count, factors, terms, sums);
        }
        for (; k < inner; ++k)
            kernels.addMultiple(count, factorAt(k), termsAt(k) + first, sums);
        for (int i = 0; i < count; ++i)
            store(first + i, sums[i]);
    }
}

/// Results whose terms lie one behind the other, those of the next result `stride` further on. The last ones are summed
/// once more, with some before them, where they don't fill the lanes.
template <class Store>
void sumInColumns(int results, int inner, const double* first, std::ptrdiff_t stride, const double* factors,
                  Store store)
{
    const ColumnKernels& kernels = columnKernels();
    double sums[ColumnKernels::mostColumns];
    for (int done = 0; done < results;) {
        const int start = std::min(done, results - kernels.lanes);
        const int columns = results - start >= 2 * kernels.lanes ? 2 * kernels.lanes : kernels.lanes;
        kernels.innerProducts(inner, factors, columns, first + start * stride, stride, sums);
        for (int c = 0; c < columns; ++c)
            store(start + c, sums[c]);
        done = start + columns;
    }
}

/// Do the cells of a column lie next to each other?
template <class Cells>
inline constexpr bool hasColumns =
    std::is_same_v<Cells, PlainCells<matrix>> || std::is_same_v<Cells, PlainColumns<matrix>>;
/// Do those of a row, all rows the same distance apart?
template <class Cells>
inline constexpr bool hasRows = std::is_same_v<Cells, Transposed<PlainCells<matrix>>>;

/// A table whose rows stand for the results, times a vector: `factorAt(k)` is its cell. False without memory.
template <class Table, class FactorAt, class Store>
bool multiplyTableByVector(const Table& table, int results, int inner, FactorAt factorAt, Store store)
{
    if constexpr (hasColumns<Table>) {
        sumSideBySide(
            results, inner, [&](int k) { return table.column(k); }, factorAt, store);
    } else {
        const Scratch factors(countOf(inner));
        if (!factors)
            return false;
        for (int k = 0; k < inner; ++k)
            factors.data()[k] = factorAt(k);
        const double* first = table.base().column(0);
        sumInColumns(results, inner, first, table.base().column(1) - first, factors.data(), store);
    }
    return true;
}

/// Is there one operand that is a vector, and are there enough results? Inlined, like `tilesPay`.
inline bool isByVector(const ProductShape& shape)
{
    const auto& [rows, inner, cols] = shape;
    return (rows == 1 || cols == 1) && (rows >= fewestSideBySide || cols >= fewestSideBySide);
}

/// Runs a product by a vector if the order of the results is not observable. Returns false, having done nothing,
/// otherwise.
template <class Left, class Right, class Out>
bool multiplyByVector(const Left& left, const Right& right, const ProductShape& shape, const Out& out)
{
    const auto& [rows, inner, cols] = shape;
    if (out.folds(rows, cols) || overlap(storageOf(out, rows, cols), storageOf(left, rows, inner)) ||
        overlap(storageOf(out, rows, cols), storageOf(right, inner, cols)))
        return false;
    if constexpr (hasColumns<Left> || hasRows<Left>) {
        if (cols == 1)
            return multiplyTableByVector(
                left, rows, inner, [&](int k) { return right.get(k, 0); },
                [&](int i, double sum) { storeNumber(out, i, 0, sum); });
    }
    if constexpr (std::is_same_v<Right, PlainCells<matrix>> || hasRows<Right>) {
        if (rows == 1)
            return multiplyTableByVector(
                transposed(right), cols, inner, [&](int k) { return left.get(0, k); },
                [&](int j, double sum) { storeNumber(out, 0, j, sum); });
    }
    return false;
}

} // namespace vecmat::detail
