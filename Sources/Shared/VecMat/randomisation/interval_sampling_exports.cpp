#include "interval_sampling.h"

#include "../elementary/detail/texts.h"
#include "detail/sampling_call.h"
#include "detail/text_samples.h"

using namespace vecmat;

void VB_M_SamplingSystematicRdStart(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed,
                                    short seedFlag, int* seedOut)
{
    drawInto(takeFromRandomStart, S, N, p, n, Z, ids, N, seed, seedFlag, seedOut);
}

void VB_M_SamplingSystematicRdStartSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids, int* seed,
                                       short seedFlag, int* seedOut)
{
    drawInto(M_SamplingSystematicRdStartSPV, S, N, p, n, Z, ids, N, seed, seedFlag, seedOut);
}

void VB_M_SamplingSystematicCentered(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids)
{
    sampleInto(S, N, p, Z, n, ids, N, [&](const CallerTexts& population, Smatrix* sample, matrix* rows) {
        takeFromMiddle(population, N, p, n, sample, rows);
    });
}

void VB_M_SamplingSystematicCenteredSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids)
{
    sampleInto(S, N, p, Z, n, ids, N, [&](Smatrix** population, Smatrix** sample, matrix* rows) {
        M_SamplingSystematicCenteredSPV(population, N, p, n, sample, rows);
    });
}

void VB_M_SamplingRandomStratified(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed,
                                   short seedFlag, int* seedOut)
{
    drawInto(drawOnePerInterval, S, N, p, n, Z, ids, N, seed, seedFlag, seedOut);
}

void VB_M_SamplingRandomStratifiedSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids, int* seed,
                                      short seedFlag, int* seedOut)
{
    drawInto(M_SamplingRandomStratifiedSPV, S, N, p, n, Z, ids, N, seed, seedFlag, seedOut);
}
