#include "column_products.h"

#include "../access/cells.h"
#include "../access/cellwise.h"
#include "../access/prepared_result.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"

#include <functional>

using namespace vecmat;

namespace {

/// The new column, from 0, for column i of the first and column j of the second table.
int pairedColumn(int i, int j, int colsB)
{
    return wrappingSum(wrappingProduct(i, colsB), j);
}

// The counts are multiplied without an overflow check, so these loops stay with checked access.
template <class Function>
void mapColumnPairs(matrix* a, int rows, int cols, matrix* b, int colsB, matrix* out, Function f)
{
    for (int i = 0; i < cols; ++i)
        for (int j = 0; j < colsB; ++j)
            for (int r = 0; r < rows; ++r)
                cells(out).set(r, pairedColumn(i, j, colsB), f(cells(a).get(r, i), cells(b).get(r, j)));
}

/// A cell of the design except in the first column. `leading`: the column comes from the first column of a factor.
double interactionCode(double x, double y, bool leading)
{
    const double product = x * y;
    if (product > negligible)
        return x > negligible ? 1.0 : -1.0;
    if (product < -negligible && leading)
        return -1.0;
    return 0.0;
}

void codeInteraction(matrix* a, int rows, int cols, matrix* b, int colsB)
{
    matrix coded(rows, cols, 0.0);
    mapCells(rows, cols, cells(&coded), std::identity(), cells(a));
    for (int i = 0; i < cols; ++i)
        for (int j = 0; j < colsB; ++j)
            for (int r = 0; r < rows; ++r) {
                const double x = cells(&coded).get(r, i);
                const double y = cells(b).get(r, j);
                const double cell = i == 0 && j == 0 ? x * y : interactionCode(x, y, i == 0 || j == 0);
                cells(a).set(r, pairedColumn(i, j, colsB), cell);
            }
}

/// Sums of the weights of the rows in which a design column holds 1 and -1.
struct LevelWeights
{
    double positive = 0.0;
    double negative = 0.0;
};

LevelWeights levelWeights(matrix* a, int rows, int col, matrix* w)
{
    LevelWeights sums;
    for (int r = 0; r < rows; ++r) {
        const double cell = cells(a).get(r, col);
        if (cell > negligible)
            sums.positive += linear(w).get(r);
        else if (cell < -negligible)
            sums.negative += linear(w).get(r);
    }
    return sums;
}

void balanceColumn(matrix* a, int rows, int col, LevelWeights sums)
{
    for (int r = 0; r < rows; ++r)
        if (cells(a).get(r, col) < -negligible)
            cells(a).set(r, col, -sums.positive / sums.negative);
}

} // namespace

void M_ProductByElement(matrix* a, int rows, int cols, matrix* b, matrix*& out)
{
    mapCells(rows, cols, cells(out), std::multiplies<double>(), cells(a), cells(b));
}

void M_ProductHorizAB(matrix* a, int rows, int cols, matrix* b, int colsB, matrix*& out)
{
    mapColumnPairs(a, rows, cols, b, colsB, out, std::multiplies<double>());
}

void M_ProductHorizAB2(matrix* a, int rows, int* cols, matrix* b, int colsB)
{
    const int total = wrappingProduct(*cols, colsB);
    matrix products(rows, total, 0.0);
    mapColumnPairs(a, rows, *cols, b, colsB, &products, productUnlessMissing);
    mapCells(rows, total, cells(a), std::identity(), cells(&products));
    *cols = total;
}

void M_ProductDesignAB2(matrix* a, int rows, int* cols, matrix* b, int colsB, int mode, matrix* w, matrix*& out)
{
    constexpr int balanced = 3;
    codeInteraction(a, rows, *cols, b, colsB);
    *cols = wrappingProduct(*cols, colsB);
    for (int c = 0; c < *cols; ++c) {
        const LevelWeights sums = levelWeights(a, rows, c, w);
        if (mode == balanced && sums.negative > negligible)
            balanceColumn(a, rows, c, sums);
        linear(out).set(c, sums.positive);
    }
}
