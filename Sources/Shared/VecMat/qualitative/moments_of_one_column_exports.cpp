#include "moments_of_one_column.h"

#include "../frame/detail/handles.h"

using vecmat::viewed;

void VB_M_MeanStDevVarOneInMat(double* table, int nRows, int col, double* mean, double* stdDev, double* variance,
                               int /*ignored*/, double* weights, short sampleVariance, short countDivisor)
{
    M_MeanStDevVarOneInMat(viewed(table, nRows, col), nRows, col, mean, stdDev, variance, viewed(weights, nRows, 1),
                           sampleVariance, countDivisor);
}
