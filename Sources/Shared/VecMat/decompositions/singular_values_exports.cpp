#include "singular_values.h"

#include "../frame/detail/handles.h"

#include <algorithm>

using namespace vecmat;

namespace {

/// One column if the left vectors are not requested, also for a negative job.
int leftColumns(int n, int p, int job)
{
    const int tens = job % 100 / 10;
    if (tens < 1)
        return 1;
    return tens == 1 ? n : std::min(n, p);
}

int rightColumns(int p, int job)
{
    return job % 10 == 0 ? 1 : p;
}

} // namespace

int VB_M_SVDecomp(double* x, int n, int p, double* s, double* u, int ldu, double* v, int ldv, int job, int* info)
{
    M_SVDecomp(viewed(x, n, p), n, p, viewed(s, std::min(n + 1, p), 1), viewed(u, ldu, leftColumns(n, p, job)),
               viewed(v, ldv, rightColumns(p, job)), job, info);
    return 0;
}

int VB_M_SVDecompSPV(SAFEARRAY** x, int n, int p, double* s, SAFEARRAY** u, int ldu, SAFEARRAY** v, int ldv, int job,
                     int* info)
{
    M_SVDecompSPV(columns(x, p, n), n, p, viewed(s, std::min(n + 1, p), 1), columns(u, leftColumns(n, p, job), ldu),
                  columns(v, rightColumns(p, job), ldv), job, info);
    return 0;
}

int VB_M_Rank(double* a, int n, int p)
{
    return M_Rank(copied(a, n, p), n, p);
}
