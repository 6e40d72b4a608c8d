#include "column_extremes.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

namespace {

/// Runs one of the forms of `M_MinMax` and writes back both results.
template <class MinMax, class Source>
void minMaxByColumn(MinMax minMax, const Source& a, int rows, int cols, double* min, double* max, short* mask,
                    short mode)
{
    const TableHandle smallest = fresh(cols, 1);
    const TableHandle largest = fresh(cols, 1);
    minMax(a, rows, cols, smallest, largest, mask, mode);
    handBack(smallest, min);
    handBack(largest, max);
}

} // namespace

void VB_M_Max(double* a, int rows, int cols, double* out)
{
    const TableHandle result = fresh(cols, 1);
    M_Max(copied(a, rows, cols), rows, cols, result);
    handBack(result, out);
}

void VB_M_Min(double* a, int rows, int cols, double* out)
{
    const TableHandle result = fresh(cols, 1);
    M_Min(copied(a, rows, cols), rows, cols, result);
    handBack(result, out);
}

double Cpp_M_MinAll(double* a, int rows, int cols)
{
    return M_MinAll(copied(a, rows, cols), rows, cols);
}

void Cpp_M_MaxPosByRow(double* a, int rows, int cols, int* out)
{
    const IntTableHandle result = freshInt(rows, 1);
    M_MaxPosByRow(copied(a, rows, cols), rows, cols, result);
    handBack(result, out);
}

void VB_M_MinMax(double* a, int rows, int cols, double* min, double* max, short* mask, short mode)
{
    minMaxByColumn(M_MinMax, copied(a, rows, cols), rows, cols, min, max, mask, mode);
}

void VB_M_MinMaxSPV(SAFEARRAY** a, int rows, int cols, double* min, double* max, short* mask, short mode)
{
    minMaxByColumn(M_MinMaxSPV, columns(a, cols, rows), rows, cols, min, max, mask, mode);
}

void VB_M_MinMaxSPV_T(SAFEARRAY** a, int rows, int cols, double* min, double* max, short* mask, short mode)
{
    const ColumnsHandle<matrix> triangle(LoadSAFEARRAY(a, cols, rows, 0), cols);
    minMaxByColumn(M_MinMaxSPV_T, triangle, rows, cols, min, max, mask, mode);
}
