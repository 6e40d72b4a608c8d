#include "contingency_tables.h"

#include "../frame/detail/handles.h"

using vecmat::viewed;

void Cpp_CheckForMarginalSums(double* T, int n, int p, double* R, int* rowsLeft, int* colsLeft, int* zeroRows,
                              int* zeroCols)
{
    const auto table = viewed(T, n, p);
    const auto result = viewed(R, n, p);
    const auto rowFlags = viewed(zeroRows, n, 1);
    const auto columnFlags = viewed(zeroCols, p, 1);
    CheckForMarginalSums(*table, n, p, *result, *rowsLeft, *colsLeft, *rowFlags, *columnFlags);
}
