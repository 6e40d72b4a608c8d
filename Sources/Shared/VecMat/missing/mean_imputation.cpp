#include "mean_imputation.h"

#include "../access/cells.h"
#include "../base/detail/masks.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../descriptive/means.h"
#include "../frame/detail/handles.h"

#include <vector>

using vecmat::block;
using vecmat::cells;
using vecmat::isMissingOrBelow;
using vecmat::linear;
using vecmat::Mask;
using vecmat::onBlocks;
using vecmat::TableHandle;

namespace {

/// Writes mean(j) to the marked rows of column j.
template <class Storage, class Mean>
void fill(Storage storage, int rows, int cols, Mask mask, Mean mean)
{
    onBlocks(
        [=](auto x) {
            for (int j = 0; j < cols; ++j)
                for (int i = 0; i < rows; ++i)
                    if (!mask.keeps(i) && isMissingOrBelow(x.get(i, j)))
                        x.set(i, j, mean(j));
        },
        block(storage, rows, cols));
}

auto cellsOf(const TableHandle& means)
{
    return [column = linear<matrix>(means)](int j) { return column.get(j); };
}

double meanOfAllRows(matrix* x, int n, matrix* weights)
{
    std::vector<short> noneMasked(vecmat::countOf(n), 0);
    return V_Mean(x, n, noneMasked.data(), weights);
}

} // namespace

void EstimateRowsWithMissingMean(matrix* statX, int nStat, matrix*& X, int nRows, int nCols, short* mask,
                                 matrix* weights)
{
    if (nCols < 1) {
        const double mean = meanOfAllRows(statX, nStat, weights);
        fill(cells(X), nRows, 1, Mask(mask), [mean](int) { return mean; });
        return;
    }
    TableHandle means;
    M_Mean(statX, nStat, nCols, means.reference(), weights);
    fill(cells(X), nRows, nCols, Mask(mask), cellsOf(means));
}

void EstimateRowsWithMissingMeanSPV(matrix** X, int nRows, int nCols, short* mask, matrix* weights)
{
    TableHandle means;
    M_MeanSPV(X, nRows, nCols, means.reference(), weights);
    fill(cells(X), nRows, nCols, Mask(mask), cellsOf(means));
}
