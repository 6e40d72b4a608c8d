#include "interval_sampling.h"

#include "../frame/detail/borrowed_texts.h"
#include "detail/sampling_call.h"
#include "detail/text_samples.h"

using namespace vecmat;

void VB_M_SamplingSystematicRdStart(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed,
                                    short seedFlag, int* seedOut)
{
    drawInto(takeFromRandomStart<BorrowedTexts*>, S, N, p, n, Z, ids, N, seed, seedFlag, seedOut);
}

void VB_M_SamplingSystematicRdStartSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids, int* seed,
                                       short seedFlag, int* seedOut)
{
    drawInto(takeFromRandomStart<BorrowedTexts**>, S, N, p, n, Z, ids, N, seed, seedFlag, seedOut);
}

void VB_M_SamplingSystematicCentered(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids)
{
    sampleInto(S, N, p, Z, n, ids, N, [&](BorrowedTexts* population, BorrowedTexts* sample, matrix* rows) {
        takeFromMiddle(population, N, p, n, sample, rows);
    });
}

void VB_M_SamplingSystematicCenteredSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids)
{
    sampleInto(S, N, p, Z, n, ids, N, [&](BorrowedTexts** population, BorrowedTexts** sample, matrix* rows) {
        takeFromMiddle(population, N, p, n, sample, rows);
    });
}

void VB_M_SamplingRandomStratified(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed,
                                   short seedFlag, int* seedOut)
{
    drawInto(drawOnePerInterval<BorrowedTexts*>, S, N, p, n, Z, ids, N, seed, seedFlag, seedOut);
}

void VB_M_SamplingRandomStratifiedSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids, int* seed,
                                      short seedFlag, int* seedOut)
{
    drawInto(drawOnePerInterval<BorrowedTexts**>, S, N, p, n, Z, ids, N, seed, seedFlag, seedOut);
}
