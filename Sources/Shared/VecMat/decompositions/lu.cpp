#include "lu.h"

#include "crout.h"

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

void M_LUDecomp(matrix*& a, int n, matrixInt*& index, double* d, short* status)
{
    matrixInt::matCheck(index, n, 1, 0.0);
    *status = 0;
    *d = 1.0;
    RowExchanges exchanges;
    *status = statusOf(
        onBlocks([&](auto x) { return factorCrout(x, n, ZeroPivotReplaced(), exchanges); }, squareBlock(a, n)));
    *d = exchanges.parity;
    std::transform(exchanges.partner.begin(), exchanges.partner.end(), index->X, [](int row) { return row + 1; });
}
