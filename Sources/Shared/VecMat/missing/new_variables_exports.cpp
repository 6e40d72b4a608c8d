#include "new_variables.h"

#include "../frame/detail/handles.h"

using vecmat::viewed;

void VB_ComputeNewVar(double* Q, int nRows, int nCols, double* C, double* variances, double* covariances)
{
    ComputeNewVar(viewed(Q, nRows, nCols), nRows, nCols, viewed(C, nCols, nCols), viewed(variances, nRows, 1),
                  viewed(covariances, nRows, nRows).reference());
}
