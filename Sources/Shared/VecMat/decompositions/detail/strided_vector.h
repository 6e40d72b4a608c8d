// A sequence of cells at a fixed step inside one table, and the level-1 operations over such sequences, in the manner
// of the BLAS (Lawson, Hanson, Kincaid, Krogh, ACM Transactions on Mathematical Software 5, 1979). Sums and updates go
// in element order.
#pragma once

#include "../../access/cells.h"
#include "../../base/detail/checked_cells.h"
#include "../../base/detail/companions.h"
#include "../../base/detail/numbers.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <type_traits>

namespace vecmat {

/// A sequence wholly inside its table.
class PlainStridedVector
{
public:
    PlainStridedVector(double* first, int step) : first_(first), step_(step) {}

    double get(int k) const { return first_[k * step_]; }
    void set(int k, double value) const { first_[k * step_] = value; }

private:
    double* first_;
    std::ptrdiff_t step_;
};

/// A sequence with the checks of the tables: past the end of a column it continues in the next one; outside the table a
/// read gives -1.0 and a write is dropped. Without a table everything is outside.
class StridedVector
{
public:
    /// Element 0 is at the linear position `start`.
    StridedVector(matrix* table, unsigned start, int step) : table_(table), start_(start), step_(step) {}

    double get(int k) const { return table_ != nullptr ? readAt(*table_, position(k)) : outOfRangeValue; }
    void set(int k, double value) const
    {
        if (table_ != nullptr)
            writeAt(*table_, position(k), value);
    }

    bool covers(int count) const
    {
        if (count < 1)
            return true;
        const long long last = static_cast<long long>(start_) + (count - 1LL) * step_;
        return table_ != nullptr && start_ < table_->nElems && last >= 0 &&
               last < static_cast<long long>(table_->nElems);
    }
    PlainStridedVector plain() const
    {
        return {table_ != nullptr && start_ < table_->nElems ? table_->X + start_ : nullptr, step_};
    }

private:
    unsigned position(int k) const { return start_ + static_cast<unsigned>(k) * static_cast<unsigned>(step_); }

    matrix* table_;
    unsigned start_;
    int step_;
};

/// Where `count` elements begin, relative to the element that names them: a negative increment walks towards it.
constexpr unsigned startOffset(int count, int increment)
{
    return increment < 0 ? (1u - static_cast<unsigned>(count)) * static_cast<unsigned>(increment) : 0u;
}

/// A table accessed by columns; rows and columns from 1.
class TableStore
{
public:
    explicit TableStore(matrix* table) : table_(table) {}

    double get(int row, int col) const { return table_->vbget(row, col); }
    void set(int row, int col, double value) const { table_->vbset(row, col, value); }
    StridedVector from(int row, int col, int count, int increment = 1) const
    {
        return {table_,
                linearIndex(row, col, table_->nRows) - 1u - static_cast<unsigned>(table_->nRows) +
                    startOffset(count, increment),
                increment};
    }

private:
    matrix* table_;
};

/// An array of column tables: an access stays inside its table, and columns before the first or after the last are
/// outside. Without a count the caller vouches for the last one.
class ColumnStore
{
public:
    explicit ColumnStore(matrix** columns, int count = std::numeric_limits<int>::max())
        : columns_(columns), count_(count)
    {
    }

    double get(int row, int col) const { return from(row, col, 1).get(0); }
    void set(int row, int col, double value) const { from(row, col, 1).set(0, value); }
    StridedVector from(int row, int col, int count, int increment = 1) const
    {
        return {col < 1 || col > count_ ? nullptr : columns_[col - 1],
                static_cast<unsigned>(row) - 1u + startOffset(count, increment), increment};
    }

private:
    matrix** columns_;
    int count_;
};

/// Runs `body` on plain sequences if all of them lie inside their tables, otherwise on checked ones.
template <class Body, class... Vectors>
decltype(auto) onRuns(Body body, int count, Vectors... vectors)
{
    if constexpr ((std::is_same_v<Vectors, PlainStridedVector> && ...))
        return body(vectors...);
    else
        return onBlocks(body, block(vectors, count)...);
}

/// Euclidean norm by a running scale and sum of squares, which avoids intermediate overflow and underflow.
template <class Run>
double norm(int count, Run vector)
{
    if (count < 1)
        return 0.0;
    if (count == 1)
        return std::fabs(vector.get(0));
    return onRuns(
        [count](auto x) {
            double scale = 0.0;
            double ssq = 1.0;
            for (int k = 0; k < count; ++k) {
                const double element = x.get(k);
                if (element == 0.0)
                    continue;
                const double size = std::fabs(element);
                if (size > scale) {
                    const double ratio = scale / size;
                    ssq = 1.0 + ssq * (ratio * ratio);
                    scale = size;
                } else {
                    const double ratio = size / scale;
                    ssq = ssq + ratio * ratio;
                }
            }
            return scale * squareRoot(ssq);
        },
        count, vector);
}

/// x = a x.
template <class Run>
void multiply(int count, double a, Run vector)
{
    onRuns(
        [=](auto x) {
            for (int k = 0; k < count; ++k)
                x.set(k, a * x.get(k));
        },
        count, vector);
}

/// Inner product.
inline double innerProduct(int count, StridedVector left, StridedVector right)
{
    return onRuns(
        [count](auto x, auto y) {
            double sum = 0.0;
            for (int k = 0; k < count; ++k)
                sum += x.get(k) * y.get(k);
            return sum;
        },
        count, left, right);
}

/// y = y + a x; does nothing if a is exactly 0.
inline void addMultiple(int count, double a, StridedVector source, StridedVector target)
{
    if (a == 0.0)
        return;
    onRuns(
        [=](auto x, auto y) {
            for (int k = 0; k < count; ++k)
                y.set(k, y.get(k) + a * x.get(k));
        },
        count, source, target);
}

/// Plane rotation: x' = c x + s y, y' = c y - s x.
inline void rotate(int count, StridedVector left, StridedVector right, double c, double s)
{
    onRuns(
        [=](auto x, auto y) {
            for (int k = 0; k < count; ++k) {
                const double rotated = c * x.get(k) + s * y.get(k);
                y.set(k, c * y.get(k) - s * x.get(k));
                x.set(k, rotated);
            }
        },
        count, left, right);
}

inline void exchange(int count, StridedVector left, StridedVector right)
{
    onRuns(
        [=](auto x, auto y) {
            for (int k = 0; k < count; ++k) {
                const double kept = x.get(k);
                x.set(k, y.get(k));
                y.set(k, kept);
            }
        },
        count, left, right);
}

/// A Givens rotation that takes (a, b) to (r, 0): a becomes r, b the number z from which the rotation can be rebuilt.
struct Rotation
{
    double c;
    double s;
};
inline Rotation makeRotation(double& a, double& b)
{
    const double sizeA = std::fabs(a);
    const double sizeB = std::fabs(b);
    const double roe = sizeA > sizeB ? a : b;
    const double scale = sizeA + sizeB;
    if (scale == 0.0) {
        a = 0.0;
        b = 0.0;
        return {1.0, 0.0};
    }
    const double ratioA = a / scale;
    const double ratioB = b / scale;
    const double r = scale * squareRoot(ratioA * ratioA + ratioB * ratioB) * FSign(1.0, roe);
    const Rotation rotation{a / r, b / r};
    double z = sizeA > sizeB ? rotation.s : 1.0;
    if (sizeB >= sizeA && rotation.c != 0.0)
        z = 1.0 / rotation.c;
    a = r;
    b = z;
    return rotation;
}

} // namespace vecmat
