#include "cell_functions.h"

#include "../access/cellwise.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/handles.h"

using namespace vecmat;

void VB_M_Square(double* a, int rows, int cols)
{
    squareCells(a, elementCount(rows, cols));
}

double Cpp_M_SquareRootAij(double* a, int rows, int cols, double* out)
{
    return M_SquareRootAij(viewed(a, rows, cols), rows, cols, viewed(out, rows, cols));
}

double Cpp_M_SquareRootAij2(double* a, int rows, int cols)
{
    return M_SquareRootAij2(viewed(a, rows, cols), rows, cols);
}

void VB_M_LogMatrix(double* a, int rows, int cols, short* mask)
{
    M_LogMatrix(viewed(a, rows, cols).reference(), rows, cols, mask);
}

void VB_M_Log10Matrix(double* a, int rows, int cols)
{
    M_Log10Matrix(viewed(a, rows, cols), rows, cols);
}
