#include "column_products.h"

#include "../access/prepared_result.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/handles.h"

using namespace vecmat;

void VB_M_ProductByElement(double* a, int rows, int cols, double* b, double* out)
{
    M_ProductByElement(viewed(a, rows, cols), rows, cols, viewed(b, rows, cols), viewed(out, rows, cols).reference());
}

void VB_M_ProductHorizAB(double* a, int rows, int cols, double* b, int colsB, double* out)
{
    M_ProductHorizAB(viewed(a, rows, cols), rows, cols, viewed(b, rows, colsB), colsB,
                     viewed(out, rows, wrappingProduct(cols, colsB)).reference());
}

void VB_M_ProductHorizAB2(double* a, int rows, int* cols, double* b, int colsB)
{
    M_ProductHorizAB2(viewed(a, rows, wrappingProduct(*cols, colsB)), rows, cols, viewed(b, rows, colsB), colsB);
}

void VB_M_ProductDesignAB2(double* a, int rows, int* cols, double* b, int colsB, int mode, double* w, double* out)
{
    const int total = wrappingProduct(*cols, colsB);
    M_ProductDesignAB2(viewed(a, rows, total), rows, cols, viewed(b, rows, colsB), colsB, mode, viewed(w, rows, 1),
                       viewed(out, total, 1).reference());
}
