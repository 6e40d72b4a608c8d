#include "lu.h"

#include "detail/crout.h"
#include "detail/crout_panels.h"
#include "detail/lu_factors.h"

#include <algorithm>

using namespace vecmat;

namespace {

short statusOf(CroutOutcome outcome)
{
    switch (outcome) {
    case CroutOutcome::zeroRow:
        return -1;
    case CroutOutcome::noPivot:
        return 1;
    default:
        return 0;
    }
}

} // namespace

short vecmat::factorInPlace(matrix* a, int n, RowExchanges& exchanges)
{
    return statusOf(
        onBlocks([&](auto x) { return factorCrout(x, n, ZeroPivotReplaced(), exchanges); }, squareBlock(a, n)));
}

void M_LUDecomp(matrix*& a, int n, matrixInt*& index, double* d, short* status)
{
    matrixInt::matCheck(index, n, 1, 0.0);
    RowExchanges exchanges;
    *status = factorInPlace(a, n, exchanges);
    *d = exchanges.parity;
    std::transform(exchanges.partner.begin(), exchanges.partner.end(), index->X, [](int row) { return row + 1; });
}
