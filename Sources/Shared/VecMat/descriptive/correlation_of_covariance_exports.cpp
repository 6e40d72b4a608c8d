#include "correlation_of_covariance.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int VB_M_CorrMatFromCovMat(double* S, int p, double* R)
{
    return M_CorrMatFromCovMat(viewed(S, p, p), p, viewed(R, p, p), 0);
}

int Cpp_M_CorrMatFromCovMatSPV2_T(SAFEARRAY** C, int p)
{
    return M_CorrMatFromCovMatSPV2_T(triangleColumns(C, p), p);
}
