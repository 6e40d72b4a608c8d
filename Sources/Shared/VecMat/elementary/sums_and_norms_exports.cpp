#include "sums_and_norms.h"

#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../frame/detail/handles.h"

#include <algorithm>
#include <vector>

using namespace vecmat;

double VB_M_Trace(double* a, int n)
{
    return M_Trace(viewed(a, n, n), n);
}

double VB_M_FrobeniusNorm(double* a, int rows, int cols, double* b)
{
    return M_FrobeniusNorm(viewed(a, rows, cols), rows, cols, viewed(b, rows, cols));
}

void VB_M_SumByCols(double* a, int rows, int cols, double* out)
{
    M_SumByCols(viewed(a, rows, cols), rows, cols, viewed(out, cols, 1));
}

void VB_M_SumByRows(double* a, int rows, int cols, double* out)
{
    M_SumByRows(viewed(a, rows, cols), rows, cols, viewed(out, rows, 1));
}

void VB_M_SquaredRows(double* a, int rows, int cols, double* out)
{
    auto result = viewed(out, rows, 1);
    M_SquaredRows(viewed(a, rows, cols), rows, cols, result.reference());
}

void VB_M_SquaredColumns(double* a, int rows, int cols, double* out)
{
    auto result = viewed(out, cols, 1);
    M_SquaredColumns(viewed(a, rows, cols), rows, cols, result.reference());
}

double VB_M_SumOfElem(double* a, int rows, int cols)
{
    std::vector<double> columnSums(countOf(std::max(rows, cols)), 0.0);
    VB_M_SumByCols(a, rows, cols, columnSums.data());
    double sum = 0.0;
    for (int i = 0; i < rows; ++i) {
        if (isMissing(columnSums[i]))
            return missingValue;
        sum += columnSums[i];
    }
    return sum;
}
