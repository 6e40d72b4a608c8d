#include "predicates.h"

#include "../access/adaptors.h"
#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../frame/detail/handles.h"
#include "detail/constancy.h"

using vecmat::booleanOf;
using vecmat::cells;
using vecmat::ColumnOf;
using vecmat::columns;
using vecmat::countOf;
using vecmat::differenceOfCounts;
using vecmat::equalsFirst;
using vecmat::firstPresent;
using vecmat::isMissing;
using vecmat::PlainVector;
using vecmat::presentCellsAgree;
using vecmat::viewed;

namespace {

/// Are the present cells after the first present one, before row `end`, equal to it? The last row alone is never a
/// constant column, whatever `end` is.
template <class Vector>
bool columnIsConstant(Vector x, int rows, int end)
{
    const int reference = firstPresent(x, rows);
    if (reference >= rows)
        return true;
    if (reference == rows - 1)
        return false;
    const double value = x.get(reference);
    for (int i = reference + 1; i < end; ++i)
        if (const double cell = x.get(i); !isMissing(cell) && cell != value)
            return false;
    return true;
}

template <class Cells>
int firstConstantColumn(Cells x, int rows, int cols, int end)
{
    for (int j = 0; j < cols; ++j)
        if (columnIsConstant(ColumnOf(x, j), rows, end))
            return j + 1;
    return 0;
}

} // namespace

// ---- constant -------------------------------------------------------------------------------------------------------

short VB_V_IsConstant(double* x, int n, short mode)
{
    const PlainVector<matrix> elements(x);
    return booleanOf(mode == -1 ? presentCellsAgree(elements, n) : equalsFirst(elements, 1, n));
}

short VB_V_IsConstantLng(int* x, int n, short /*mode*/)
{
    for (unsigned i = 1; i < countOf(n); ++i)
        if (x[i] != x[0])
            return booleanOf(false);
    return booleanOf(true);
}

short VB_V_IsConstantBool(short* x, int n)
{
    return V_IsConstantBool(x, n);
}

int VB_M_IsColConstant(double* a, int rows, int cols)
{
    return firstConstantColumn(cells<matrix>(viewed(a, rows, cols)), rows, cols, rows);
}

int VB_M_IsColConstantSPV(SAFEARRAY** a, int rows, int cols)
{
    // The scan ends one row early, deliberately.
    return firstConstantColumn(cells<matrix>(columns(a, cols, rows)), rows, cols, differenceOfCounts(rows, 1));
}

short VB_M_IsDiagConstant(double* a, int n)
{
    return M_IsDiagConstant(viewed(a, n, n), n);
}

// ---- sign and range -------------------------------------------------------------------------------------------------

short VB_V_IsPositive(double* x, int n, short strict)
{
    return V_IsPositive(viewed(x, n, 1), n, strict);
}

short VB_M_IsPositive(double* a, int rows, int cols, short* mask, short strict)
{
    return M_IsPositive(viewed(a, rows, cols), rows, cols, mask, strict);
}

short VB_M_IsIn01(double* a, int rows, int cols)
{
    return M_IsIn01(viewed(a, rows, cols), rows, cols);
}

short VB_M_IsLong(double* a, int rows, int cols)
{
    return M_IsLong(viewed(a, rows, cols), rows, cols);
}

short VB_V_IsInInterval(double* x, int n, double lo, double hi, short open, short skipMissing)
{
    return V_IsInInterval(viewed(x, n, 1), n, lo, hi, open, skipMissing);
}

short VB_M_IsInIntervalSPV(SAFEARRAY** a, int rows, int cols, double lo, double hi, short open, short skipMissing)
{
    return M_IsInIntervalSPV(columns(a, cols, rows), rows, cols, lo, hi, open, skipMissing);
}
