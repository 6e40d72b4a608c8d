#include "sums_and_norms.h"

#include "../access/adaptors.h"
#include "../access/cells.h"
#include "../access/cellwise.h"
#include "../access/product.h"
#include "../base/missing_value.h"
#include "detail/sum_of_cells.h"

#include <algorithm>

using namespace vecmat;

namespace {

/// out(line) = sum of the present cells of each line, where a line is a column of `lines`.
template <class Lines>
void sumLines(Lines lines, int length, int count, matrix* out)
{
    onBlocks(
        [length, count](auto x, auto result) {
            for (int line = 0; line < count; ++line) {
                double sum = 0.0;
                bool present = false;
                for (int k = 0; k < length; ++k)
                    if (!isMissing(x.get(k, line))) {
                        sum += x.get(k, line);
                        present = true;
                    }
                result.set(line, present ? sum : missingValue);
            }
        },
        block(lines, length, count), block(linear(out), count));
}

/// out(i) = the product of row i with itself.
template <MissingFactor missing, class Rows>
void squareRows(Rows rowsOf, int rows, int cols, matrix* out)
{
    onBlocks(
        [rows, cols](auto x, auto result) {
            for (int i = 0; i < rows; ++i)
                result.set(i, sumOfProducts<missing>(x, i, transposed(x), i, cols));
        },
        block(rowsOf, rows, cols), block(linear(out), rows));
}

} // namespace

double M_Trace(matrix* a, int n)
{
    return onBlocks(
        [n](auto x) {
            double sum = 0.0;
            for (int i = 0; i < n; ++i)
                sum += x.get(i);
            return sum;
        },
        block(diagonal(cells(a)), n));
}

double M_FrobeniusNorm(matrix* a, int rows, int cols, matrix* b)
{
    // Only the diagonal of the product is computed.
    return onBlocks(
        [rows, cols](auto trA, auto y) {
            double trace = 0.0;
            for (int j = 0; j < cols; ++j)
                trace += sumOfProducts(trA, j, y, j, rows);
            return trace;
        },
        block(transposed(cells(a)), cols, rows), block(cells(b), rows, cols));
}

double M_Sum2(matrix* a, int rows, int cols)
{
    return onBlocks(
        [rows, cols](auto x) {
            double sum = 0.0;
            for (int i = 0; i < rows; ++i)
                for (int j = 0; j < cols; ++j)
                    if (!isMissing(x.get(i, j)))
                        sum += x.get(i, j);
            return sum;
        },
        block(cells(a), rows, cols));
}

void M_SumByCols(matrix* a, int rows, int cols, matrix* out)
{
    sumLines(cells(a), rows, cols, out);
}

void M_SumByRows(matrix* a, int rows, int cols, matrix* out)
{
    sumLines(transposed(cells(a)), cols, rows, out);
}

double vecmat::sumOfColumnSums(matrix* a, int rows, int cols)
{
    matrix columnSums(std::max({rows, cols, 0}), 1, 0.0);
    M_SumByCols(a, rows, cols, &columnSums);
    double sum = 0.0;
    for (int j = 0; j < rows; ++j) {
        if (isMissing(columnSums.X[j]))
            return missingValue;
        sum += columnSums.X[j];
    }
    return sum;
}

void M_SquaredRows(matrix* a, int rows, int cols, matrix*& out)
{
    squareRows<MissingFactor::makesResultMissing>(cells(a), rows, cols, out);
}

void M_SquaredRowsSPV(matrix** a, int rows, int cols, matrix*& out)
{
    squareRows<MissingFactor::makesResultMissing>(cells(a), rows, cols, out);
}

void M_SquaredColumns(matrix* a, int rows, int cols, matrix*& out)
{
    squareRows<MissingFactor::multiplied>(transposed(cells(a)), cols, rows, out);
}
