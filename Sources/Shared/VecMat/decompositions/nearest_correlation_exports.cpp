#include "nearest_correlation.h"

#include "../frame/detail/handles.h"
#include "../frame/detail/kept_cells.h"

using namespace vecmat;

namespace {

/// The running result is in the caller's columns, which get back what they held if a pass fails.
template <class Computing>
int onCallersColumns(Computing computing, ColumnsHandle<matrix> a, int n)
{
    KeptCells kept;
    kept.keep(a, n);
    const int status = computing(a, n);
    kept.callHasSucceeded();
    return status;
}

} // namespace

int Cpp_M_CorrMatFromSymMat(double* a, int n)
{
    const TableHandle running = copied(a, n, n);
    const int status = M_CorrMatFromSymMat(running, n);
    handBack(running, a);
    return status;
}

int Cpp_M_CorrMatFromSymMatSPV(SAFEARRAY** a, int n)
{
    return onCallersColumns(M_CorrMatFromSymMatSPV, columns(a, n, n), n);
}

int Cpp_M_CorrMatFromSymMatSPV_T(SAFEARRAY** a, int n)
{
    return onCallersColumns(M_CorrMatFromSymMatSPV_T, triangleColumns(a, n), n);
}

double Cpp_M_RowSumNorm(double* a, int rows, int cols)
{
    return M_RowSumNorm(viewed(a, rows, cols), rows, cols);
}
