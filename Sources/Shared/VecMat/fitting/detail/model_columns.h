// The explanatory columns of a linear model, wherever they are stored. Internal to the library.
#pragma once

#include "../../access/adaptors.h"
#include "../../access/cells.h"
#include "../../base/detail/local_array.h"
#include "../../base/detail/numbers.h"
#include "../../frame/detail/handles.h"
#include "../../matrix.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace vecmat {

/// One column of a table.
struct ModelColumn
{
    matrix* table;
    int number; ///< from 0

    /// Its cells, as the only column of an accessor.
    auto cells() const { return shifted(vecmat::cells(table), 0, number); }
};

using ModelColumns = std::vector<ModelColumn>;

/// Columns that lie inside their tables, as the columns of one table.
class PlainModelCells
{
public:
    /// None if one of them does not have n rows.
    static std::optional<PlainModelCells> of(const ModelColumns& columns, int n);

    const double* column(int j) const { return columns_[countOf(j)]; }
    /// For the passes over columns. Must not outlive this object.
    struct Cells
    {
        const double* const* columns;
        const double* column(int j) const { return columns[j]; }
        double get(int i, int j) const { return columns[j][i]; }
    };
    Cells cells() const { return {columns_.data()}; }

private:
    explicit PlainModelCells(std::size_t count) : columns_(count) {}

    LocalArray<const double*> columns_;
};

/// The first `count` columns of a table.
ModelColumns columnsOf(matrix* table, int count);

/// The columns to make of the caller's p: powers up to `degree`, and with `interactions` -1 the pairwise products,
/// unless `degree` is 1. A `degree` below 1 gives no powers.
struct ModelShape
{
    int p;
    int degree;
    short interactions;

    /// Degree 1: the caller's columns as they are, whatever `interactions` is.
    bool isLinear() const { return degree == 1; }
    int columns() const;

    /// What callers reserve for coefficients. Unlike the model, this includes room for the products even at degree 1.
    int reserved() const;

private:
    int products() const;
};

/// The columns of a model that is not linear: for each power in turn all columns, then the products of columns a and b,
/// a below b, ordered by a. Powers come from repeated multiplication. A missing cell is multiplied like any number.
TableHandle widened(matrix* X, int n, const ModelShape& shape);

} // namespace vecmat
