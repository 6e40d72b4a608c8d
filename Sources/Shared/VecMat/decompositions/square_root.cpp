#include "square_root.h"

#include "../base/detail/companions.h"
#include "../base/missing_value.h"
#include "../elementary/matrix_products.h"
#include "../frame/detail/handles.h"
#include "eigen.h"

#include <algorithm>

using namespace vecmat;

int M_SquareRoot(matrix* a, int n, matrix*& out)
{
    TableHandle values;
    TableHandle vectors;
    M_Eigen(a, values.reference(), vectors.reference(), n, -1);
    if (values == nullptr || vectors == nullptr)
        return -1;
    TableHandle scales;
    M_ProductTrAA(vectors, n, n, scales.reference());
    for (int i = 1; i <= n; ++i) {
        const double squaredLength = scales->vbget(i, i);
        if (!(squaredLength > 0.0))
            return -2;
        const double value = values->vbget(i, 1);
        if (!(value > -zeroTolerance))
            return -1;
        scales->vbset(i, i, 1.0 / squareRoot(squaredLength) * squareRoot(std::max(0.0, value)));
    }
    M_ProductATrB(scales, n, n, vectors, n, out);
    return 0;
}
