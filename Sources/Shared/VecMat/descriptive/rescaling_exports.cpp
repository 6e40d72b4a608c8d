#include "../frame/handles.h"
#include "../frame/numbers.h"
#include "../missing/missing_masks.h"
#include "rescaling.h"

#include <algorithm>
#include <cstddef>
#include <vector>

using namespace vecmat;

void VB_M_Normalize(double* X, int n, int p, double* norms, short* mask, double* w)
{
    TableHandle table = viewed(X, n, p);
    TableHandle lengths = fresh(p, 1);
    M_Normalize(table.reference(), n, p, lengths.reference(), mask, viewed(w, n, 1));
    handBack(lengths, norms);
}

void VB_M_NormalizeMatrix(double* X, int n, int p, double* Y, int nY, double* V, int nV)
{
    TableHandle table = viewed(X, n, p);
    TableHandle first = viewed(Y, nY, p);
    TableHandle second = viewed(V, nV, p);
    M_NormalizeMatrix(table.reference(), n, p, first.reference(), nY, second.reference(), nV);
}

void VB_V_Rescale(double* v, int n, double low, double high, short* mask, double* out)
{
    V_Rescale(viewed(v, n, 1), n, low, high, mask, viewed(out, n, 1));
}

void VB_V_Rescale2(double* x, int n, double low, double high, short* mask)
{
    // Each cell is read before it is written, and the extremes before all of them.
    VB_V_Rescale(x, n, low, high, mask, x);
}

void VB_M_RescaleByVect(double* X, int n, int p, double low, double high, short* a, double* Z)
{
    const std::size_t rows = countOf(n);
    std::vector<short> mask(rows);
    std::vector<double> column(rows);
    for (std::size_t j = 0; j < countOf(p); ++j) {
        std::copy_n(X + rows * j, rows, column.begin());
        VB_V_GetMissingDbl(column.data(), n, a, mask.data());
        VB_V_Rescale2(column.data(), n, low, high, mask.data());
        std::copy_n(column.begin(), rows, Z + rows * j);
    }
}

void VB_M_RescaleByVect2(double* X, int n, int p, double low, double high, short* a)
{
    VB_M_RescaleByVect(X, n, p, low, high, a, X);
}
