#include "sampling_with_repeats.h"

#include "../base/detail/numbers.h"
#include "../elementary/vector_sums.h"
#include "../frame/detail/borrowed_texts.h"
#include "../frame/detail/handles.h"
#include "detail/sampling_call.h"
#include "detail/text_samples.h"

using namespace vecmat;

namespace {

int sampleSize(matrix* counts, int N)
{
    return truncated(V_Sum2(counts, N));
}

} // namespace

void VB_M_SamplingWithReplacement(wchar_t** S, int N, int p, int n, wchar_t** Z, double* ids, int* seed, short seedFlag,
                                  int* seedOut)
{
    drawInto(drawWithReplacement<BorrowedTexts*>, S, N, p, n, Z, ids, n, seed, seedFlag, seedOut);
}

void VB_M_SamplingWithReplacementSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* ids, int* seed,
                                     short seedFlag, int* seedOut)
{
    drawInto(drawWithReplacement<BorrowedTexts**>, S, N, p, n, Z, ids, n, seed, seedFlag, seedOut);
}

void VB_M_SampleUserDefined(wchar_t** S, int N, int p, wchar_t** Z, double* freq, double* ids)
{
    const TableHandle counts = copiedOrEmpty(freq, N);
    const int n = sampleSize(counts, N);
    sampleInto(S, N, p, Z, n, ids, n, [&](BorrowedTexts* population, BorrowedTexts* sample, matrix* rows) {
        takeByCounts(population, N, p, sample, counts, rows);
    });
}

void VB_M_SampleUserDefinedSPV(SAFEARRAY** S, int N, int p, SAFEARRAY** Z, double* freq, double* ids)
{
    const TableHandle counts = copiedOrEmpty(freq, N);
    const int n = sampleSize(counts, N);
    sampleInto(S, N, p, Z, n, ids, n, [&](BorrowedTexts** population, BorrowedTexts** sample, matrix* rows) {
        takeByCounts(population, N, p, sample, counts, rows);
    });
}
