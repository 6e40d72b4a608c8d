#include "packing.h"

#include "../base/detail/numbers.h"
#include "../frame/detail/handles.h"

using namespace vecmat;

namespace {

/// Number of rows of a one-column table with rows by cols cells.
int stackedLength(int rows, int cols)
{
    return static_cast<int>(vecmat::elementCount(rows, cols));
}

/// n(n+1)/2; the even factor is halved before multiplying.
int packedLength(int n)
{
    return n % 2 == 0 ? stackedLength(n / 2, n + 1) : stackedLength(n, n / 2 + 1);
}

} // namespace

void Cpp_MatToVect(double* a, int rows, int cols, double* v)
{
    MatToVect(viewed(a, rows, cols), rows, cols, viewed(v, stackedLength(rows, cols), 1));
}

void Cpp_VectToMat(double* v, double* counts, int rows, int cols, double* out)
{
    const TableHandle result = fresh(rows, cols);
    // Reads at most one value per cell, and none beyond the counts.
    VectToMat(viewed(v, stackedLength(rows, cols), 1), viewed(counts, cols, 1), rows, cols, result);
    handBack(result, out);
}

void Cpp_M_CopySymMatToVector(double* a, int n, double* v)
{
    const TableHandle result = fresh(packedLength(n), 1);
    M_CopySymMatToVector(viewed(a, n, n), n, result);
    handBack(result, v);
}

void Cpp_M_CopyVectorToSymMat(double* v, int n, double* a)
{
    const TableHandle result = fresh(n, n);
    M_CopyVectorToSymMat(viewed(v, packedLength(n), 1), n, result);
    handBack(result, a);
}
