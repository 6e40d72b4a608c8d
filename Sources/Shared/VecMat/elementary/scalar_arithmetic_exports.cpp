#include "scalar_arithmetic.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

void VB_M_ScalarsA(double* a, int rows, int cols, double s, double* out)
{
    M_ScalarsA(viewed(a, rows, cols), rows, cols, s, viewed(out, rows, cols).reference());
}

void VB_M_ScalarsA2(double* a, int rows, int cols, double s)
{
    M_ScalarsA2(viewed(a, rows, cols).reference(), rows, cols, s);
}

void VB_M_ScalarsTrA(double* a, int rows, int cols, double s, double* out)
{
    M_ScalarsTrA(viewed(a, rows, cols), rows, cols, s, viewed(out, cols, rows).reference());
}

void VB_M_Sums1As2B(double* a, int rows, int cols, double* b, double s1, double s2, double* out)
{
    M_Sums1As2B(viewed(a, rows, cols), rows, cols, viewed(b, rows, cols), s1, s2, viewed(out, rows, cols).reference());
}

void VB_M_APlusVal(double* a, int rows, int cols, double v, double* out)
{
    M_APlusVal(viewed(a, rows, cols), rows, cols, v, viewed(out, rows, cols).reference());
}

void VB_M_APlusVal2(double* a, int rows, int cols, double v)
{
    M_APlusVal2(viewed(a, rows, cols), rows, cols, v);
}

void Cpp_SumMat(double* a, double* b, int rows, int cols, double* out)
{
    SumMat(viewed(a, rows, cols), viewed(b, rows, cols), rows, cols, viewed(out, rows, cols));
}
