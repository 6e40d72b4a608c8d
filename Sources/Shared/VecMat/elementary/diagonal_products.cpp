#include "diagonal_products.h"

#include "../access/adaptors.h"
#include "../access/cells.h"
#include "../access/cellwise.h"
#include "../access/prepared_result.h"
#include "../access/tiled_product.h"

#include <functional>

using namespace vecmat;

void M_ProductADTrA(matrix* a, int rows, int cols, matrix* d, matrix*& out)
{
    const auto replaced = prepare(out, rows, rows);
    multiplySymmetric(timesDiagonal(cells(a), diagonal(cells(d))), transposed(cells(a)), rows, cols, cells(out));
}

void M_ProductTrADA(matrix* a, int rows, int cols, matrix* d, matrix*& out)
{
    const auto replaced = prepare(out, cols, cols);
    multiplySymmetric(timesDiagonal(transposed(cells(a)), diagonal(cells(d))), cells(a), cols, rows, cells(out));
}

void M_ProductADiag(matrix* a, int rows, int cols, matrix* d, matrix*& out)
{
    const auto replaced = prepare(out, rows, cols);
    mapCells(rows, cols, cells(out), std::identity(), timesDiagonal(cells(a), diagonal(cells(d))));
}

void M_ProductTrADiag(matrix* a, int rows, int cols, matrix* d, matrix*& out)
{
    const auto replaced = prepare(out, cols, rows);
    mapCells(cols, rows, cells(out), std::identity(), timesDiagonal(transposed(cells(a)), diagonal(cells(d))));
}

void M_ProductDiagVA(matrix* v, int rows, matrix* a, int cols, matrix* out)
{
    mapCells(rows, cols, cells(out), productUnlessMissing, inEachColumn(linear(v)), cells(a));
}

void M_ProductDiagVASPV(matrix* v, int rows, matrix** a, int cols, matrix** out)
{
    mapCells(rows, cols, cells(out), productUnlessMissing, inEachColumn(linear(v)), cells(a));
}

void M_ProductADiagV(matrix* a, int rows, int cols, matrix* v, matrix*& out)
{
    mapCells(rows, cols, cells(out), std::identity(), timesDiagonal(cells(a), linear(v)));
}

void M_ProductADiagVSPV(matrix** a, int rows, int cols, matrix* v, matrix** out)
{
    mapCells(rows, cols, cells(out), std::identity(), timesDiagonal(cells(a), linear(v)));
}

void M_ProductDiagV1ADiagV2(matrix* va, int rows, matrix* a, int cols, matrix* vb, matrix*& out)
{
    matrix vaA(rows, cols, 0.0);
    M_ProductDiagVA(va, rows, a, cols, &vaA);
    M_ProductADiagV(&vaA, rows, cols, vb, out);
}

void M_ProductDiagV1ADiagV2SPV(matrix* va, int rows, matrix** a, int cols, matrix* vb, matrix** out)
{
    matrix vaA(rows, cols, 0.0);
    mapCells(rows, cols, cells(&vaA), productUnlessMissing, inEachColumn(linear(va)), cells(a));
    mapCells(rows, cols, cells(out), std::identity(), timesDiagonal(cells(&vaA), linear(vb)));
}

void M_ProductADiagVTrA(matrix* a, int rows, int cols, matrix* v, matrix* out)
{
    multiplySymmetric(timesDiagonal(cells(a), linear(v)), transposed(cells(a)), rows, cols, cells(out));
}

void M_ProductTrADiagVA(matrix* a, int rows, int cols, matrix* v, matrix* out)
{
    multiplySymmetric(timesDiagonal(transposed(cells(a)), linear(v)), cells(a), cols, rows, cells(out));
}

void M_ProductADiagVTrB(matrix* a, int rows, int cols, matrix* v, matrix* b, int rowsB, matrix* out)
{
    multiply(timesDiagonal(cells(a), linear(v)), transposed(cells(b)), {rows, cols, rowsB}, cells(out));
}

void M_ProductADiagVB(matrix* a, int rows, int cols, matrix* v, matrix* b, int colsB, matrix* out)
{
    multiply(timesDiagonal(cells(a), linear(v)), cells(b), {rows, cols, colsB}, cells(out));
}

void M_ProductTrADiagV(matrix* a, int rows, int cols, matrix* v, matrix* out)
{
    onBlocks(
        [rows, cols](auto product, auto result) {
            for (int c = 0; c < cols; ++c)
                for (int k = c; k < rows; ++k)
                    result.set(c, k, product.get(c, k));
        },
        block(timesDiagonal(transposed(cells(a)), linear(v)), cols, rows), block(cells(out), cols, rows));
}
