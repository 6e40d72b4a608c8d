// The singular value decomposition in a workspace, with many results side by side: the same sums in the same order as
// over the tables, and the same bits.
#pragma once

#include "../../base/detail/numbers.h"
#include "../../base/detail/scratch.h"
#include "../../kernels/column_kernels.h"
#include "column_workspace.h"
#include "delayed_rotations.h"
#include "strided_vector.h"
#include "svd_iteration.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>

namespace vecmat {

/// The columns of a workspace as a store; rows and columns from 1. `coefficients` is scratch memory of two doubles per
/// column.
class WorkspaceStore
{
public:
    WorkspaceStore(const ColumnWorkspace& workspace, double* coefficients)
        : first_(workspace.column(0)), stride_(workspace.stride()), coefficients_(coefficients)
    {
    }

    double* at(int row, int col) const { return first_ + (col - 1) * stride_ + (row - 1); }
    std::ptrdiff_t stride() const { return stride_; }
    double* coefficients() const { return coefficients_; }

    double get(int row, int col) const { return *at(row, col); }
    void set(int row, int col, double value) const { *at(row, col) = value; }
    PlainStridedVector from(int row, int col, int /*count*/) const { return {at(row, col), 1}; }

private:
    double* first_;
    std::ptrdiff_t stride_;
    double* coefficients_;
};

/// A few columns at a time pass through the cache once, for their inner products and the updates these lead to.
template <class Then>
void reflectColumns(WorkspaceStore store, int l, int first, int last, int row, int count, Then then)
{
    const ColumnKernels& kernels = columnKernels();
    const double* const reflection = store.at(row, l);
    const double pivot = *reflection;
    double sums[ColumnKernels::mostColumns];
    for (int group = first; group <= last; group += 2 * kernels.lanes) {
        const int columns = std::min(2 * kernels.lanes, last - group + 1);
        kernels.innerProducts(count, reflection, columns, store.at(row, group), store.stride(), sums);
        for (int c = 0; c < columns; ++c)
            if (const double factor = -sums[c] / pivot; factor != 0.0)
                kernels.addMultiple(count, factor, reflection, store.at(row, group + c));
    }
    for (int j = first; j <= last; ++j)
        then(j);
}

inline void reflectRows(WorkspaceStore store, int first, int last, int count, TableStore e, TableStore /*work*/)
{
    const int columns = last - first + 1;
    double* const weights = store.coefficients();
    double* const factors = weights + columns;
    for (int c = 0; c < columns; ++c) {
        weights[c] = e.get(first + c, 1);
        factors[c] = -weights[c] / e.get(first, 1);
    }
    columnKernels().reflectRows(count, columns, weights, factors, store.at(first, first), store.stride());
}

/// Singular vectors with delayed rotations. Signs and places change last: a column in its final place is not rotated
/// again.
class DelayedVectors
{
public:
    DelayedVectors(int rows, int cols, double* coefficients)
        : rows_(rows), cols_(cols), workspace_(rows, cols),
          rotations_(workspace_.column(0), workspace_.stride(), rows, cols),
          sources_(new (std::nothrow) Source[countOf(cols)]), coefficients_(coefficients)
    {
        if (sources_ != nullptr)
            for (int j = 0; j < cols; ++j)
                sources_[j] = {j, false};
    }

    bool hasMemory() const { return workspace_ && rotations_.hasMemory() && sources_ != nullptr; }

    WorkspaceStore columns() const { return {workspace_, coefficients_}; }

    void rotate(int k, int other, Rotation rotation)
    {
        if (k > cols_ || other > cols_)
            leftTheTable_ = true;
        else
            rotations_.add({rotation.c, rotation.s, k - 1, other - 1});
    }
    void negate(int k) { sources_[k - 1].negated = !sources_[k - 1].negated; }
    void exchangeWithNext(int k) { std::swap(sources_[k - 1], sources_[k]); }

    /// Was a column requested that doesn't exist? The results are then unusable.
    bool leftTheTable() const { return leftTheTable_; }

    template <class Cells>
    void writeTo(Cells cells)
    {
        rotations_.carryOut();
        for (int j = 0; j < cols_; ++j) {
            const double* const from = workspace_.column(sources_[j].column);
            double* const to = cells.column(j);
            if (sources_[j].negated)
                std::transform(from, from + rows_, to, [](double x) { return -1.0 * x; });
            else
                std::copy_n(from, rows_, to);
        }
    }

private:
    struct Source
    {
        int column;
        bool negated;
    };

    int rows_;
    int cols_;
    ColumnWorkspace workspace_;
    DelayedRotations rotations_;
    std::unique_ptr<Source[]> sources_;
    double* coefficients_;
    bool leftTheTable_ = false;
};

/// Decomposes the table of n by p cells without changing it. Results have whole columns in their own memory. Returns
/// false, with `s` in any state and nothing else written, if allocation fails or a left vector beyond the last is
/// requested.
template <class From, class Left, class Right>
bool decomposeInWorkspace(From x, int n, int p, matrix* s, Left u, Right v, SingularVectors wanted, int& info)
{
    const Scratch coefficients(2 * std::size_t{countOf(p)});
    const ColumnWorkspace table(n, p);
    DelayedVectors left(n, wanted.left ? wanted.leftColumns : 0, coefficients.data());
    DelayedVectors right(p, wanted.right ? p : 0, coefficients.data());
    if (!coefficients || !table || !left.hasMemory() || !right.hasMemory())
        return false;
    for (int j = 0; j < p; ++j)
        std::copy_n(x.column(j), n, table.column(j));
    const int found =
        SvdIteration<WorkspaceStore, DelayedVectors>({table, coefficients.data()}, n, p, s, left, right, wanted).run();
    if (left.leftTheTable())
        return false;
    info = found;
    left.writeTo(u);
    right.writeTo(v);
    return true;
}

} // namespace vecmat
