#include "missing_arithmetic.h"

#include "../access/cells.h"
#include "../access/prepared_result.h"
#include "../access/product.h"
#include "../access/tiled_product.h"
#include "../base/missing_value.h"

using vecmat::block;
using vecmat::cells;
using vecmat::isMissing;
using vecmat::linear;
using vecmat::MissingFactor;
using vecmat::missingValue;
using vecmat::onBlocks;

double V_MinIgnoreMissing(matrix* x, int n)
{
    return onBlocks(
        [n](auto cell) {
            double smallest = missingValue; // none found yet: no cell that counts has this value
            for (int i = 0; i < n; ++i) {
                const double value = cell.get(i);
                if (!isMissing(value) && (isMissing(smallest) || value < smallest))
                    smallest = value;
            }
            return smallest;
        },
        block(linear(x), n));
}

double V_SumIfNotMissing(matrix* x, int n, matrix* y)
{
    return onBlocks(
        [n](auto value, auto companion) {
            double sum = 0.0;
            bool any = false;
            for (int i = 0; i < n; ++i)
                if (!isMissing(value.get(i)) && !isMissing(companion.get(i))) {
                    sum += value.get(i);
                    any = true;
                }
            return any ? sum : missingValue;
        },
        block(linear(x), n), block(linear(y), n));
}

int M_ProductABMissing(matrix* a, int nRows, int nInner, matrix* b, int nCols, matrix*& c)
{
    const auto replaced = vecmat::prepare(c, nRows, nCols);
    vecmat::multiply<MissingFactor::makesResultMissing>(cells(a), cells(b), {nRows, nInner, nCols}, cells(c));
    return 0;
}
