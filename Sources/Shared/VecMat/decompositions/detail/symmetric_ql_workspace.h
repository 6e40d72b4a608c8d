// The reduction and iteration of `symmetric_ql.h` with many results side by side: the same sums in the same order, and
// the same bits.
#pragma once

#include "../../access/cells.h"
#include "../../kernels/column_kernels.h"
#include "column_workspace.h"
#include "delayed_rotations.h"
#include "symmetric_ql.h"

#include <algorithm>
#include <cstddef>

namespace vecmat {

/// Works on a full symmetric copy of the lower triangle, so that a sum along a row and on down a column becomes one
/// along a column. The vectors are formed in the same place. `a` is a table of n by n cells with whole columns in their
/// own memory; it is read first and written last, and holds the scaled Householder vectors in between.
template <class Cells>
class SymmetricWorkspace
{
public:
    SymmetricWorkspace(Cells a, int n)
        : a_(a), n_(n), table_(n, n), vectors_(n, vectorCount), rotations_(table_.column(0), table_.stride(), n, n)
    {
    }

    bool hasMemory() const { return table_ && vectors_ && rotations_.hasMemory(); }

    /// Like `eigenInPlace`.
    bool run(PlainVector<matrix> d, PlainVector<matrix> e)
    {
        load();
        reduce(d.data(), e.data());
        for (int first = 0; first < n_; first += 2 * kernels_.lanes)
            formVectors(first, std::min(first + 2 * kernels_.lanes, n_));
        const bool converged = qlIteration(d, e, n_, [this](int i, double c, double s) {
            rotations_.add({c, s, i + 1, i});
        });
        rotations_.carryOut();
        for (int j = 0; j < n_; ++j)
            std::copy_n(table_.column(j), n_, a_.column(j));
        return converged;
    }

private:
    enum : int { zeros, pending, product, lengths, vectorCount };

    double* column(int j) const { return table_.column(j); }

    void load()
    {
        // In squares, so that the columns written stay in the cache.
        constexpr int side = 16;
        for (int firstCol = 0; firstCol < n_; firstCol += side)
            for (int firstRow = firstCol; firstRow < n_; firstRow += side)
                for (int j = firstCol; j < std::min(firstCol + side, n_); ++j)
                    for (int i = std::max(firstRow, j); i < std::min(firstRow + side, n_); ++i)
                        column(j)[i] = column(i)[j] = a_.column(j)[i];
    }

    /// A row's reflection updates the block before it, a(j, k) = a(j, k) - (x(j) y(k) + y(j) x(k)). The update waits
    /// until the next row's Householder vector is known: one pass over the block then updates it and multiplies it by
    /// that vector. Only the next row itself doesn't wait.
    void reduce(double* d, double* e)
    {
        const double* x = nullptr;
        double* const y = vectors_.column(pending);
        for (int i = n_ - 1; i >= 1; --i) {
            double* const row = column(i);
            if (x != nullptr)
                for (int k = 0; k <= i; ++k)
                    row[k] = row[k] - (x[i] * y[k] + y[i] * x[k]);
            d[i] = row[i];
            double& h = vectors_.column(lengths)[i];
            const bool reflected = makeReflection(PlainVector<matrix>(row), i, e[i], h);
            if (x != nullptr)
                multiply(i, x, y, row);
            else if (reflected)
                multiply(i, vectors_.column(zeros), vectors_.column(zeros), row);
            x = reflected ? row : nullptr;
            if (reflected)
                prepareUpdate(i, row, h);
        }
        d[0] = column(0)[0];
        e[0] = 0.0;
    }

    void multiply(int count, const double* x, const double* y, const double* by)
    {
        kernels_.updateAndMultiply(count, column(0), table_.stride(), x, y, by, vectors_.column(product));
    }

    void prepareUpdate(int count, const double* row, double h)
    {
        const double* const sums = vectors_.column(product);
        double* const scaled = a_.column(count);
        double* const y = vectors_.column(pending);
        double f = 0.0;
        for (int j = 0; j < count; ++j) {
            scaled[j] = row[j] / h;
            y[j] = sums[j] / h;
            f += y[j] * row[j];
        }
        const double hh = f / (h + h);
        for (int j = 0; j < count; ++j)
            y[j] = y[j] - hh * row[j];
    }

    /// Forms columns first to last - 1 of the orthogonal table, which all reflections of later rows update. They are
    /// applied to a few columns at a time, while these stay in the cache.
    void formVectors(int first, int last)
    {
        double g[ColumnKernels::mostColumns];
        for (int i = first; i < n_; ++i) {
            const int count = std::min(i, last) - first;
            if (vectors_.column(lengths)[i] != 0.0) {
                kernels_.innerProducts(i, column(i), count, column(first), table_.stride(), g);
                for (int c = 0; c < count; ++c)
                    kernels_.addMultiple(i, -g[c], a_.column(i), column(first + c));
            }
            for (int c = 0; c < count; ++c)
                column(first + c)[i] = 0.0;
            if (i < last) {
                std::fill_n(column(i), i, 0.0);
                column(i)[i] = 1.0;
            }
        }
    }

    const ColumnKernels& kernels_ = columnKernels();
    Cells a_;
    int n_;
    ColumnWorkspace table_;
    ColumnWorkspace vectors_;
    DelayedRotations rotations_;
};

} // namespace vecmat
