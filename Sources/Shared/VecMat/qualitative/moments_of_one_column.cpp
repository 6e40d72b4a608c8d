#include "moments_of_one_column.h"

#include "../access/cells.h"
#include "../base/detail/companions.h"
#include "../base/detail/numbers.h"
#include "../base/detail/running_moments.h"

using namespace vecmat;

void M_MeanStDevVarOneInMat(matrix* table, int nRows, int col, double* mean, double* stdDev, double* variance,
                            matrix* weights, short sampleVariance, short countDivisor)
{
    const int j = zeroBased(col);
    // A block starts at the first column: an earlier column is left to checked reads.
    const Block<TableCells<matrix>> column{cells(table), col > 0 && cells(table).covers(nRows, col)};
    const auto moments = onBlocks(
        [=](auto x, auto weight) {
            RunningVariance<update::Weighted, ZeroWeight::counted> running;
            for (int i = 0; i < nRows; ++i)
                if (isPresent<MissingTest::order>(x.get(i, j)))
                    running.add(x.get(i, j), weight.get(i));
            return running;
        },
        column, block(linear(weights), nRows));
    *mean = moments.mean;
    *variance = untestedVariance(moments, sampleVariance, countDivisor);
    *stdDev = squareRoot(*variance);
}
