#include "packed_products.h"

#include "../access/packed_cells.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

namespace {

View<matrix> viewedPacked(double* s, int n)
{
    return viewed(s, n > 0 ? static_cast<int>(packedPosition(n - 1, n - 1) + 1) : 0, 1);
}

} // namespace

void VB_M_ProductASymV(double* s, int n, double* v, double* out)
{
    M_ProductASymV(viewedPacked(s, n), n, viewed(v, n, 1), viewed(out, n, 1));
}

void VB_M_ProductVASym(double* v, int n, double* s, double* out)
{
    M_ProductVASym(viewed(v, n, 1), n, viewedPacked(s, n), viewed(out, n, 1));
}

void Cpp_MV_ProductAsymBsym(double* a, int len, int, double* out)
{
    MV_ProductAsymBsym(viewed(a, len, 1), len, viewed(a, len, 1), viewed(out, len, 1));
}
