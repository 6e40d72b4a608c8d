#include "vector_products.h"

#include "../access/prepared_result.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/handles.h"

#include <cstddef>

using namespace vecmat;

double VB_V_ProductTrV1V2(double* a, int n, double* b)
{
    return V_ProductTrV1V2(viewed(a, n, 1), n, viewed(b, n, 1));
}

void VB_V_ProductV1V2(double* a, int n, double* b, double* out)
{
    V_ProductV1V2(viewed(a, n, 1), n, viewed(b, n, 1), viewed(out, n, 1));
}

void VB_V_ProductV1V22(double* a, int n, double* b)
{
    V_ProductV1V22(viewed(a, n, 1), n, viewed(b, n, 1));
}

void VB_V_ProductV1TrV2(double* a, int n, double* b, double* out)
{
    V_ProductV1TrV2(viewed(a, n, 1), n, viewed(b, n, 1), viewed(out, n, n));
}

void VB_V_ProductHorizV1V2(double* a, int n, double* b, int m, double* out)
{
    std::size_t next = 0;
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < m; ++j)
            out[next++] = a[i] * b[j];
}

void VB_V_ProductHorizV1V22(double* a, int* n, double* b, int m)
{
    V_ProductHorizV1V22(viewed(a, wrappingProduct(*n, m), 1), n, viewed(b, m, 1), m);
}

double VB_V_Product1toNDbl(double* x, int n)
{
    return V_Product1toN(viewed(x, n, 1), n);
}

int VB_V_Product1toNLng(int* x, int n)
{
    return truncated(V_Product1toN(viewed(x, n, 1), n));
}

short VB_V_V1GreaterThanMatCols(double* v, int n, double* a, int cols)
{
    return V_V1GreaterThanMatCols(viewed(v, n, 1), n, viewed(a, n, cols), cols);
}

short VB_V_V1inferiorV2(double* a, int n, double* b)
{
    return V_V1inferiorV2(viewed(a, n, 1), n, viewed(b, n, 1));
}
