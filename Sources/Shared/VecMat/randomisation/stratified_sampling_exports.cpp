#include "stratified_sampling.h"

#include "../frame/detail/borrowed_handles.h"
#include "../frame/detail/borrowed_texts.h"
#include "../frame/detail/handles.h"
#include "detail/callers_seeds.h"
#include "detail/sampling_call.h"
#include "detail/text_samples.h"

using namespace vecmat;

void Cpp_M_SamplingRandomStratifiedByStr(wchar_t** S, int N, int p, int n, wchar_t** Z, double* rowIds, double* outIds,
                                         double* strata, double* quota, double* sizes, int nStrata, int* seed,
                                         short seedFlag, int* seedOut)
{
    const TableHandle labels = copiedOrEmpty(rowIds, N);
    withSeeds(seed, seedOut, [&](int& start, int& next) {
        const BorrowedHandle rows = borrowedCopyOrEmpty(S, N, p); // a copy: the design sorts the population
        sampleFrom(rows, p, Z, n, outIds, n,
                   [&](BorrowedTexts* population, BorrowedTexts* sample, matrix* sampleLabels) {
                       drawByStrata(population, N, p, n, sample, labels, sampleLabels, copiedOrEmpty(strata, N),
                                    copiedOrEmpty(quota, nStrata), copiedOrEmpty(sizes, nStrata), nStrata, &start,
                                    seedFlag, &next);
                   });
    });
    handBack(labels, rowIds);
}

void VB_M_SamplingRandomStratifiedByStrSPV(SAFEARRAY** S, int N, int p, int n, SAFEARRAY** Z, double* rowIds,
                                           double* outIds, double* strata, double* quota, double* sizes, int nStrata,
                                           int* seed, short seedFlag, int* seedOut)
{
    const TableHandle labels = copiedOrEmpty(rowIds, N);
    withSeeds(seed, seedOut, [&](int& start, int& next) {
        sampleInto(S, N, p, Z, n, outIds, n,
                   [&](BorrowedTexts** population, BorrowedTexts** sample, matrix* sampleLabels) {
                       drawByStrata(population, N, p, n, sample, labels, sampleLabels, copiedOrEmpty(strata, N),
                                    copiedOrEmpty(quota, nStrata), copiedOrEmpty(sizes, nStrata), nStrata, &start,
                                    seedFlag, &next);
                   });
    });
    handBack(labels, rowIds);
}
