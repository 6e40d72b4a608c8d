#include "rescaling.h"

#include "../frame/detail/handles.h"
#include "detail/masked_columns.h"

using namespace vecmat;

void VB_M_Normalize(double* X, int n, int p, double* norms, short* mask, double* w)
{
    TableHandle lengths = fresh(p, 1);
    M_Normalize(viewed(X, n, p).reference(), n, p, lengths.reference(), mask, viewed(w, n, 1));
    handBack(lengths, norms);
}

void VB_M_NormalizeMatrix(double* X, int n, int p, double* Y, int nY, double* V, int nV)
{
    M_NormalizeMatrix(viewed(X, n, p).reference(), n, p, viewed(Y, nY, p).reference(), nY, viewed(V, nV, p).reference(),
                      nV);
}

void VB_V_Rescale(double* v, int n, double low, double high, short* mask, double* out)
{
    V_Rescale(viewed(v, n, 1), n, low, high, mask, viewed(out, n, 1));
}

void VB_V_Rescale2(double* x, int n, double low, double high, short* mask)
{
    // Each cell is read before it is written, and the extremes are found first.
    VB_V_Rescale(x, n, low, high, mask, x);
}

void VB_M_RescaleByVect(double* X, int n, int p, double low, double high, short* a, double* Z)
{
    transformMaskedColumns(X, n, p, a, Z,
                           [=](double* column, short* mask) { VB_V_Rescale2(column, n, low, high, mask); });
}

void VB_M_RescaleByVect2(double* X, int n, int p, double low, double high, short* a)
{
    VB_M_RescaleByVect(X, n, p, low, high, a, X);
}
