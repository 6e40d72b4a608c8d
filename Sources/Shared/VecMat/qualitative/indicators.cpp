#include "indicators.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../elementary/predicates.h"
#include "../elementary/vector_sums.h"

using namespace vecmat;

short V_Is01(matrix* x, int n)
{
    return onBlocks(
        [n](auto cell) {
            for (int i = 0; i < n; ++i)
                if (!(cell.get(i) == 0.0 || cell.get(i) == 1.0))
                    return booleanOf(false);
            return booleanOf(true);
        },
        block(linear(x), n));
}

short V_IsWeights(matrix* x, int n)
{
    return booleanOf(V_Sum2(x, n) > 0.0 && V_IsPositive(x, n, 0) != 0);
}

short V_IsCWeights(matrix* x, int n)
{
    return booleanOf(V_IsWeights(x, n) != 0 && M_IsLong(x, n, 1) != 0);
}

short V_IsIndicator(matrix* x, int n)
{
    return booleanOf(V_Sum2(x, n) > 0.0 && V_Is01(x, n) != 0);
}

short M_IsIndicatorSPV(matrix** x, int nRows, int nCols)
{
    double sum = 0.0;
    for (int j = 0; j < nCols; ++j) {
        if (V_Is01(x[j], nRows) == 0)
            return booleanOf(false);
        sum += V_Sum2(x[j], nRows);
    }
    return booleanOf(sum > 0.0);
}
