#include "biplots.h"

#include "../frame/detail/handles.h"

#include <algorithm>

using namespace vecmat;

void VB_BiplotTransData(double* rows, double* sup, double* cols, int nA, int nB, int m, int k, double* eigen,
                        double factor, double alpha, double* obs, double* var)
{
    TableHandle observations = fresh(std::max(nA, 0) + std::max(nB, 0), k);
    TableHandle variables = fresh(m, k);
    BiplotTransData(viewed(rows, nA, k), nB > 0 ? viewed(sup, nB, k) : TableHandle(), viewed(cols, m, k), nA, nB, m, k,
                    viewed(eigen, k, 1), factor, alpha, observations.reference(), variables.reference());
    handBack(observations, obs);
    handBack(variables, var);
}

void VB_BiplotTransDataSPV(SAFEARRAY** rows, double* sup, SAFEARRAY** cols, int nA, int nB, int m, int storedAxes,
                           int k, double* eigen, double factor, double alpha, double* obs, double* var)
{
    TableHandle observations = fresh(std::max(nA, 0) + std::max(nB, 0), k);
    TableHandle variables = fresh(m, k);
    BiplotTransData(columns(rows, storedAxes, nA), nB > 0 ? copied(sup, nB, storedAxes) : TableHandle(),
                    columns(cols, storedAxes, m), nA, nB, m, k, viewed(eigen, k, 1), factor, alpha,
                    observations.reference(), variables.reference());
    handBack(observations, obs);
    handBack(variables, var);
}

void ComputeCosines(double* a, int n, int k, double* out)
{
    cComputeCosines(viewed(a, n, k), n, k, viewed(out, n, k).reference());
}

void Cpp_M_BoldCosines(int* best, int n, int* flags, int cols)
{
    M_BoldCosines(viewed(best, n, 1), n, viewed(flags, n, cols));
}

void Cpp_M_GetMaxDistToOrigin(double* a, int n, int k, double* maxDistance, int* row)
{
    M_GetMaxDistToOrigin(viewed(a, n, k), n, k, maxDistance, row);
}
