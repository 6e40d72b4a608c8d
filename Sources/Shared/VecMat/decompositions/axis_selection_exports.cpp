#include "axis_selection.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

void VB_FilterEigen(double* eig, int n, short drop, double floor, double cumPercent, int maxCount, double minValue,
                    int* kept, int* selected, double* percent)
{
    TableHandle values = copied(eig, n, 1);
    TableHandle shares = copied(percent, n, 1);
    FilterEigen(values.reference(), n, drop, floor, cumPercent, maxCount, minValue, *kept, *selected,
                shares.reference());
    handBack(values, eig);
    handBack(shares, percent);
}

void Cpp_FilterOnSumOfSquares(double* data, int rows, int cols, int colA, int colB, double threshold, double* flags)
{
    FilterOnSumOfSquares(viewed(data, rows, cols), rows, colA, colB, threshold, flags);
}
