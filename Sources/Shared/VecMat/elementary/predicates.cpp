#include "predicates.h"

#include "../access/adaptors.h"
#include "../access/cells.h"
#include "../base/detail/companions.h"
#include "../base/detail/masks.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "detail/constancy.h"

using vecmat::block;
using vecmat::booleanOf;
using vecmat::cells;
using vecmat::ColumnOf;
using vecmat::countOf;
using vecmat::equalsFirst;
using vecmat::firstPresent;
using vecmat::isMissing;
using vecmat::linear;
using vecmat::Mask;
using vecmat::onBlocks;
using vecmat::presentCellsAgree;

namespace {

/// `holds(cell, row)` for every cell of a block; false at the first that fails.
template <class Checked, class Holds>
bool everyCell(Checked checked, int rows, int cols, Holds holds)
{
    return onBlocks(
        [&](auto x) {
            for (int j = 0; j < cols; ++j)
                for (int i = 0; i < rows; ++i)
                    if (!holds(x.get(i, j), i))
                        return false;
            return true;
        },
        block(checked, rows, cols));
}

/// `holds(cell)` for the first `n` cells of a table in linear order.
template <class Holds>
bool everyCell(matrix* table, int n, Holds holds)
{
    return onBlocks(
        [&](auto x) {
            for (int i = 0; i < n; ++i)
                if (!holds(x.get(i)))
                    return false;
            return true;
        },
        block(linear(table), n));
}

/// Are `cols` columns from `first` on (0-based) constant? A single column never is, and is not read.
template <class Checked>
bool eachColumnIsConstant(Checked x, int rows, int first, int cols)
{
    if (cols == 1)
        return false;
    for (int c = 0; c < cols; ++c)
        if (!equalsFirst(ColumnOf(x, first + c), 0, rows))
            return false;
    return true;
}

/// Between two numbers; a NaN is not.
struct Interval
{
    double low;
    double high;
    bool open;
    bool missingPasses;

    bool operator()(double x, int /*row*/ = 0) const
    {
        if (missingPasses && isMissing(x))
            return true;
        return open ? x > low && x < high : x >= low && x <= high;
    }
};

} // namespace

// ---- constant -------------------------------------------------------------------------------------------------------

short V_IsConstant(matrix* x, int n, short mode)
{
    return booleanOf(mode == -1 ? presentCellsAgree(linear(x), n) : equalsFirst(linear(x), 0, n));
}

short V_IsConstantBool(short* x, int n)
{
    for (unsigned i = 1; i < countOf(n); ++i)
        if (x[i] != x[0])
            return booleanOf(false);
    return booleanOf(true);
}

short M_IsConstant(matrix* a, int n, short mode)
{
    if (n < 1)
        return booleanOf(true);
    if (mode != -1) {
        const double first = cells(a).get(0, 0);
        return booleanOf(everyCell(cells(a), n, n, [first](double x, int) { return x == first; }));
    }
    const int reference = firstPresent(linear(a), n);
    if (reference >= n)
        return booleanOf(true);
    const double value = linear(a).get(reference);
    return booleanOf(everyCell(cells(a), n, n, [value](double x, int) { return isMissing(x) || x == value; }));
}

short M_EachColIsConstant(matrix** a, int rows, int cols)
{
    return booleanOf(eachColumnIsConstant(cells(a), rows, 0, cols));
}

short M_EachColIsConstant(matrix* a, int rows, int cols)
{
    return booleanOf(eachColumnIsConstant(cells(a), rows, -1, cols));
}

short M_IsDiagConstant(matrix* a, int n)
{
    const auto x = cells(a);
    for (int k = 1; k < n; ++k)
        if (x.get(k, k) != x.get(0, 0))
            return booleanOf(false);
    return booleanOf(true);
}

// ---- sign and range -------------------------------------------------------------------------------------------------

short V_IsPositive(matrix* x, int n, short strict)
{
    const bool zeroFails = strict != 0; // the table form requires exactly -1
    return booleanOf(everyCell(
        x, n, [zeroFails](double cell) { return isMissing(cell) || !(zeroFails ? cell <= 0.0 : cell < 0.0); }));
}

short M_IsPositive(matrix* a, int rows, int cols, short* mask, short strict)
{
    const bool zeroFails = strict == -1;
    return booleanOf(everyCell(cells(a), rows, cols, [zeroFails, included = Mask(mask)](double cell, int row) {
        return !(zeroFails ? cell <= 0.0 : cell < 0.0) || !included.keeps(row);
    }));
}

short M_IsIn01(matrix* a, int rows, int cols)
{
    return booleanOf(everyCell(cells(a), rows, cols, Interval{0.0, 1.0, false, false}));
}

short M_IsLong(matrix* a, int rows, int cols)
{
    return booleanOf(everyCell(cells(a), rows, cols, [](double cell, int) { return IsLong(cell) != 0; }));
}

short V_IsInInterval(matrix* x, int n, double lo, double hi, short open, short skipMissing)
{
    return booleanOf(everyCell(x, n, Interval{lo, hi, open == -1, skipMissing == -1}));
}

short M_IsInIntervalSPV(matrix** a, int rows, int cols, double lo, double hi, short open, short skipMissing)
{
    return booleanOf(everyCell(cells(a), rows, cols, Interval{lo, hi, open == -1, skipMissing == -1}));
}
