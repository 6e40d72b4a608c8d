#include "matrix_products.h"

#include "../access/adaptors.h"
#include "../access/cells.h"
#include "../access/prepared_result.h"
#include "../access/product.h"
#include "../access/structured_product.h"
#include "../access/tiled_product.h"

using namespace vecmat;

namespace {

/// a' a.
template <class Table, class Result>
void productTrAA(Table* a, int rows, int cols, Result*& out)
{
    const auto replaced = prepare(out, cols, cols);
    multiplySymmetric(transposed(cells(a)), cells(a), cols, rows, cells(out));
}

/// a a'.
template <class Table>
void productATrA(Table* a, int rows, int cols, matrix*& out)
{
    const auto replaced = prepare(out, rows, rows);
    multiplySymmetric(cells(a), transposed(cells(a)), rows, cols, cells(out));
}

/// left right in a new table: the first link of a chain.
template <class Left, class Right>
matrix product(Left left, Right right, const ProductShape& shape)
{
    matrix result(shape.rows, shape.cols, 0.0);
    multiply(left, right, shape, cells(&result));
    return result;
}

} // namespace

int M_ProductAB(matrix* a, int rows, int cols, matrix* b, int colsB, matrix*& out)
{
    const auto replaced = prepare(out, rows, colsB);
    multiply(cells(a), cells(b), {rows, cols, colsB}, cells(out));
    return 0;
}

int M_ProductABSPV(matrix** a, int rows, int cols, matrix* b, int colsB, matrix*& out)
{
    const auto replaced = prepare(out, rows, colsB);
    multiply(cells(a), cells(b), {rows, cols, colsB}, cells(out));
    return 0;
}

int M_ProductABSPV2(matrix** a, int rows, int cols, matrix** b, int colsB, matrix** out)
{
    multiply(cells(a), cells(b), {rows, cols, colsB}, cells(out));
    return 0;
}

int M_ProductABMissingSPV(matrix** a, int rows, int cols, matrix* b, int colsB, matrix*& out)
{
    const auto replaced = prepare(out, rows, colsB);
    multiply<MissingFactor::makesResultMissing>(cells(a), cells(b), {rows, cols, colsB}, cells(out));
    return 0;
}

int M_ProductABMissingSPV2(matrix* a, int rows, int cols, matrix* b, int colsB, matrix** out)
{
    multiply<MissingFactor::makesResultMissing>(cells(a), cells(b), {rows, cols, colsB}, cells(out));
    return 0;
}

int M_ProductABMissingSPV3(matrix** a, int rows, int cols, matrix* b, int colsB, matrix** out)
{
    multiply<MissingFactor::makesResultMissing>(cells(a), cells(b), {rows, cols, colsB}, cells(out));
    return 0;
}

void M_ProductTrAB(matrix* a, int rows, int cols, matrix* b, int colsB, matrix*& out)
{
    const auto replaced = prepare(out, cols, colsB);
    multiply(transposed(cells(a)), cells(b), {cols, rows, colsB}, cells(out));
}

void M_ProductATrB(matrix* a, int rows, int cols, matrix* b, int rowsB, matrix*& out)
{
    const auto replaced = prepare(out, rows, rowsB);
    multiply(cells(a), transposed(cells(b)), {rows, cols, rowsB}, cells(out));
}

void M_ProductATrBSPV(matrix* a, int rows, int cols, matrix* b, int rowsB, matrix** out)
{
    multiply(cells(a), transposed(cells(b)), {rows, cols, rowsB}, cells(out));
}

void M_ProductTrAA(matrix* a, int rows, int cols, matrix*& out)
{
    productTrAA(a, rows, cols, out);
}

void M_ProductTrAA(matrix* a, int rows, int cols, matrixInt*& out)
{
    productTrAA(a, rows, cols, out);
}

void M_ProductTrAA(matrixInt* a, int rows, int cols, matrixInt*& out)
{
    productTrAA(a, rows, cols, out);
}

void M_ProductTrAA(matrixInt* a, int rows, int cols, matrix*& out)
{
    productTrAA(a, rows, cols, out);
}

void M_ProductATrA(matrix* a, int rows, int cols, matrix*& out)
{
    productATrA(a, rows, cols, out);
}

void M_ProductATrA(matrixInt* a, int rows, int cols, matrix*& out)
{
    productATrA(a, rows, cols, out);
}

int M_ProductBV(matrix* b, int rows, int cols, matrix* v, matrix*& out)
{
    multiply(cells(b), cells(v), {rows, cols, 1}, cells(out));
    return 0;
}

void M_ProductVB(matrix* v, int rows, matrix* b, int cols, matrix*& out)
{
    const auto replaced = prepare(out, cols, 1);
    multiply(transposed(cells(v)), cells(b), {1, rows, cols}, transposed(cells(out)));
}

void M_ProductTrBV(matrix* b, int rows, int cols, matrix* v, matrix* out)
{
    multiply(transposed(cells(b)), cells(v), {cols, rows, 1}, cells(out));
}

void M_ProductVTrB(matrix* v, int n, matrix* b, int m, matrix* out)
{
    multiply(transposed(cells(v)), transposed(cells(b)), {1, n, m}, transposed(cells(out)));
}

void M_ProductABTrA(matrix* a, int rows, int cols, matrix* b, matrix* out)
{
    matrix ab = product(cells(a), cells(b), {rows, cols, cols});
    multiply(cells(&ab), transposed(cells(a)), {rows, cols, rows}, cells(out));
}

void M_ProductTrABA(matrix* a, int rows, int cols, matrix* b, matrix* out)
{
    matrix trAB = product(transposed(cells(a)), cells(b), {cols, rows, rows});
    multiply(cells(&trAB), cells(a), {cols, rows, cols}, cells(out));
}

double M_ProductTrVBV(matrix* v, int n, matrix* b)
{
    return M_ProductTrV1BV2(v, n, b, v);
}

double M_ProductTrV1BV2(matrix* va, int n, matrix* b, matrix* vb)
{
    matrix trVB = product(transposed(cells(va)), cells(b), {1, n, n});
    return scalarProduct(cells(&trVB), cells(vb), n);
}

void M_ProductTrABC(matrix* a, int rows, int cols, matrix* b, int colsB, matrix* c, int colsC, matrix* out)
{
    matrix trAB = product(transposed(cells(a)), cells(b), {cols, rows, colsB});
    multiply(cells(&trAB), cells(c), {cols, colsB, colsC}, cells(out));
}

void M_ProductATrBC(matrix* a, int rows, int cols, matrix* b, int rowsB, matrix* c, int colsC, matrix* out)
{
    matrix aTrB = product(cells(a), transposed(cells(b)), {rows, cols, rowsB});
    multiply(cells(&aTrB), cells(c), {rows, rowsB, colsC}, cells(out));
}

void M_ProductTrABV(matrix* a, int rows, int cols, matrix* b, int colsB, matrix* v, matrix* out)
{
    M_ProductTrABC(a, rows, cols, b, colsB, v, 1, out);
}

void M_ProductABC(matrix* a, int rows, int cols, matrix* b, int colsB, matrix* c, int colsC, matrix* out)
{
    matrix ab(rows, colsB, 0.0);
    multiplyByStructure(cells(a), structureOf(a, rows, cols), cells(b), structureOf(b, cols, colsB),
                        {rows, cols, colsB}, cells(&ab));
    multiplyByStructure(cells(&ab), structureOf(&ab, rows, colsB), cells(c), structureOf(c, colsB, colsC),
                        {rows, colsB, colsC}, cells(out));
}
