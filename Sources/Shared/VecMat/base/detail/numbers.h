// Conversions and products of dimensions with defined results for every input.
#pragma once

#include <limits>

namespace vecmat {

/// Truncation towards zero. A NaN or a value outside the range of int gives the lowest int, as on the processor.
constexpr int truncated(double x)
{
    return x > -2147483649.0 && x < 2147483648.0 ? static_cast<int>(x) : std::numeric_limits<int>::min();
}

/// Number of cells of a rows by cols table: a 32-bit product that wraps without a check. A negative dimension gives no
/// cells, so that no table claims cells that were never allocated.
constexpr unsigned elementCount(int rows, int cols)
{
    return rows < 0 || cols < 0 ? 0u : static_cast<unsigned>(rows) * static_cast<unsigned>(cols);
}

/// A count that drives an allocation or a copy: 0 if negative.
constexpr unsigned countOf(int n)
{
    return n < 0 ? 0u : static_cast<unsigned>(n);
}

/// Position in the block of the cell (i, j), both from 0. Wraps, so that a negative position fails every bound check.
constexpr unsigned linearIndex(int i, int j, int nRows)
{
    return static_cast<unsigned>(i) + static_cast<unsigned>(j) * static_cast<unsigned>(nRows);
}

/// The sum of two positions. Wraps likewise.
constexpr int wrappingSum(int a, int b)
{
    return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}

/// A product of numbers of columns. Wraps: a nonsensical number then fails the table's bound check.
constexpr int wrappingProduct(int a, int b)
{
    return static_cast<int>(static_cast<unsigned>(a) * static_cast<unsigned>(b));
}

/// A number of rows or columns; the lowest int, which has no cells, if it doesn't fit.
constexpr int countWithin(long long count)
{
    constexpr int lowest = std::numeric_limits<int>::min();
    return count >= lowest && count <= std::numeric_limits<int>::max() ? static_cast<int>(count) : lowest;
}

constexpr int sumOfCounts(int a, int b)
{
    return countWithin(static_cast<long long>(a) + b);
}

constexpr int differenceOfCounts(int a, int b)
{
    return countWithin(static_cast<long long>(a) - b);
}

/// How many numbers the range contains, both ends included; 0 if it ends before it starts.
constexpr int countFromTo(int from, int to)
{
    return to < from ? 0 : static_cast<int>(static_cast<unsigned>(to) - static_cast<unsigned>(from) + 1u);
}

/// The callers' Boolean: -1 for true, 0 for false, never 1.
constexpr short booleanOf(bool answer)
{
    return answer ? -1 : 0;
}

/// The number, from 0, of a row or column that the caller counts from 1. Wraps likewise.
constexpr int zeroBased(int number)
{
    return static_cast<int>(static_cast<unsigned>(number) - 1u);
}

} // namespace vecmat
