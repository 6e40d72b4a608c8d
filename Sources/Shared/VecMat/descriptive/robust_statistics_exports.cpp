#include "robust_statistics.h"

#include "../frame/detail/handles.h"

using vecmat::copied;
using vecmat::handBack;
using vecmat::TableHandle;

double Cpp_V_MedianAbsDev(double* v, int n, double centre, short* mask, double* w)
{
    return V_MedianAbsDev(copied(v, n, 1), n, centre, mask, copied(w, n, 1));
}

double Cpp_V_MeanAbsDev(double* v, int n, double centre, short* mask, double* w)
{
    return V_MeanAbsDev(copied(v, n, 1), n, centre, mask, copied(w, n, 1));
}

double Cpp_V_MedianAbsDev2(double* v, int n, double* centre)
{
    return V_MedianAbsDev2(copied(v, n, 1), n, centre);
}

void Cpp_V_MeanStdev2(double* v, int n, short sample, double* mean, double* stdev)
{
    V_MeanStdev2(copied(v, n, 1), n, sample, mean, stdev);
}

void Cpp_V_Winsorize2(double* v, int n, double pLow, double pHigh)
{
    TableHandle clipped = copied(v, n, 1);
    V_Winsorize2(clipped, n, pLow, pHigh);
    handBack(clipped, v);
}

void Cpp_V_ZScores(double* v, int n, int kind, double* mean, double* stdev, double* out)
{
    TableHandle scores = copied(out, n, 1);
    V_ZScores(copied(v, n, 1), n, kind, mean, stdev, scores);
    handBack(scores, out);
}
