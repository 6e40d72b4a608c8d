#include "stratified_sampling.h"

#include "../frame/detail/handles.h"
#include "detail/callers_seeds.h"
#include "detail/sampling_call.h"

using namespace vecmat;

void Cpp_M_SamplingRandomStratifiedByStr(wchar_t** S, int N, int p, int n, wchar_t** Z, double* rowIds, double* outIds,
                                         double* strata, double* quota, double* sizes, int nStrata, int* seed,
                                         short seedFlag, int* seedOut)
{
    const TableHandle labels = copiedOrEmpty(rowIds, N);
    withSeeds(seed, seedOut, [&](int& start, int& next) {
        const StringTableHandle rows = copiedOrEmpty(S, N, p); // a table: the design sorts the population
        sampleFrom(rows, p, Z, n, outIds, n, [&](Smatrix* population, Smatrix* sample, matrix* sampleLabels) {
            M_SamplingRandomStratifiedByStr(population, N, p, n, sample, labels, sampleLabels, copiedOrEmpty(strata, N),
                                            copiedOrEmpty(quota, nStrata), copiedOrEmpty(sizes, nStrata), nStrata,
                                            &start, seedFlag, &next);
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
        sampleInto(S, N, p, Z, n, outIds, n, [&](Smatrix** population, Smatrix** sample, matrix* sampleLabels) {
            M_SamplingRandomStratifiedByStrSPV(population, N, p, n, sample, labels, sampleLabels,
                                               copiedOrEmpty(strata, N), copiedOrEmpty(quota, nStrata),
                                               copiedOrEmpty(sizes, nStrata), nStrata, &start, seedFlag, &next);
        });
    });
    handBack(labels, rowIds);
}
