#include "eigen.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int VB_M_Eigen(double* a, double* values, double* vectors, int n, short sort)
{
    TableHandle foundValues;
    TableHandle foundVectors;
    const int status = M_Eigen(copied(a, n, n), foundValues.reference(), foundVectors.reference(), n, sort);
    handBack(foundValues, values);
    handBack(foundVectors, vectors);
    return status;
}

double Cpp_M_Norm2(double* a, int rows, int cols)
{
    if (rows != cols)
        return 0.0;
    return getNorm2(viewed(a, rows, cols));
}
