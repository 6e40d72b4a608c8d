#include "vector_sums.h"

#include "../base/missing_value.h"
#include "../frame/detail/handles.h"

#include <algorithm>

using vecmat::copied;
using vecmat::isMissing;

namespace {

/// Sum of the 1-based elements `from` to `to`.
template <class Sum, class Element>
Sum sumOfRange(const Element* x, int from, int to)
{
    Sum sum = 0;
    for (int i = std::max(from, 1) - 1; i < to; ++i)
        sum += static_cast<Sum>(x[i]);
    return sum;
}

} // namespace

double VB_V_Sum(double* x, int n, short* mask, double* w)
{
    return V_Sum(copied(x, n, 1), n, mask, copied(w, n, 1));
}

double VB_V_SumSq(double* x, int n)
{
    return V_SumSq(copied(x, n, 1), n);
}

double VB_V_SumSqW(double* x, int n, double* w)
{
    return V_SumSqW(copied(x, n, 1), n, copied(w, n, 1));
}

double VB_V_DiffSq(double* a, int n, double* b)
{
    return V_DiffSq(copied(a, n, 1), n, copied(b, n, 1));
}

double VB_V_DiffSqW(double* a, int n, double* b, double* w)
{
    return V_DiffSqW(copied(a, n, 1), n, copied(b, n, 1), copied(w, n, 1));
}

double Cpp_V_DiffSqStart(double* a, int n, double* b, int start)
{
    return V_DiffSqStart(copied(a, n, 1), n, copied(b, n, 1), start);
}

double VB_V_Sum2Dbl(double* x, int n)
{
    double sum = 0.0;
    for (int i = 0; i < n; ++i)
        if (!isMissing(x[i]))
            sum += x[i];
    return sum;
}

int VB_V_Sum2Lng(int* x, int n)
{
    return VB_V_SumFromToLng(x, n, 1, n);
}

double VB_V_SumFromTo(double* x, int /*n*/, int from, int to)
{
    return sumOfRange<double>(x, from, to);
}

int VB_V_SumFromToLng(int* x, int /*n*/, int from, int to)
{
    return static_cast<int>(sumOfRange<unsigned>(x, from, to));
}
