#include "distances.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

void VB_M_EuclidDist2(double* a, int rows, int cols, double* out, double* w, short betweenRows)
{
    const int points = betweenRows == -1 ? rows : cols;
    const int coordinates = betweenRows == -1 ? cols : rows;
    M_EuclidDist2(viewed(a, rows, cols), rows, cols, viewed(out, points, points), viewed(w, coordinates, 1),
                  betweenRows, rows);
}

void Cpp_M_EuclidDistToVector(double* a, int rows, int cols, double* v, short byRow, double* out)
{
    const int points = byRow == -1 ? rows : cols;
    const int coordinates = byRow == -1 ? cols : rows;
    M_EuclidDistToVector(viewed(a, rows, cols), rows, cols, viewed(v, coordinates, 1), byRow, viewed(out, points, 1));
}
