// Moments and covariances of tables.
#include "tables/case.h"

#include <algorithm>

namespace vecmat::digest {

std::span<const TableCall> descriptiveCalls()
{
    static const TableCall calls[] = {
        {"M_CovCorr",
         [](Case& c) {
             c.gives(M_CovCorr(c.table("X", c.n, c.p), c.n, c.p, c.out("C", c.p, c.p), c.option("corr"),
                               c.mask("mask", c.n), c.table("w", c.n, 1, weights), c.option("sample"),
                               c.option("freqWeights"), c.option("zeroForMissing")));
         }},
        {"M_CovCorr3",
         [](Case& c) {
             c.gives(M_CovCorr3(c.columns("X", c.p, c.n), c.n, c.p, c.out("C", c.p, c.p), c.option("corr"),
                                c.mask("mask", c.n), c.table("w", c.n, 1, weights), c.option("sample"),
                                c.option("freqWeights"), c.option("zeroForMissing")));
         }},
        {"M_CovCorr3SPV",
         [](Case& c) {
             c.gives(M_CovCorr3SPV(c.columns("X", c.n, c.p), c.n, c.p, c.out("C", c.p, c.p), c.option("corr"),
                                   c.mask("mask", c.n), c.table("w", c.n, 1, weights), c.option("sample"),
                                   c.option("freqWeights"), c.option("zeroForMissing")));
         }},
        {"M_CovCorrSPV",
         [](Case& c) {
             c.gives(M_CovCorrSPV(c.table("X", c.n, c.p), c.n, c.p, c.outTriangle("C", c.p), c.option("corr"),
                                  c.mask("mask", c.n), c.table("w", c.n, 1, weights), c.option("sample"),
                                  c.option("freqWeights"), c.option("zeroForMissing")));
         }},
        {"M_CovCorrSPV_T",
         [](Case& c) {
             c.gives(M_CovCorrSPV_T(c.columns("X", c.p, c.n), c.n, c.p, c.outTriangle("C", c.p), c.option("corr"),
                                    c.mask("mask", c.n), c.table("w", c.n, 1, weights), c.option("sample"),
                                    c.option("freqWeights"), c.option("zeroForMissing")));
         }},
        {"M_CovCorrAndMeanStDevVar",
         [](Case& c) {
             c.gives(M_CovCorrAndMeanStDevVar(c.table("X", c.n, c.p), c.n, c.p, c.out("C", c.p, c.p),
                                              c.out("mean", c.p, 1), c.out("stdev", c.p, 1), c.out("var", c.p, 1),
                                              c.option("corr"), c.mask("mask", c.n), c.table("w", c.n, 1, weights),
                                              c.option("sample"), c.option("freqWeights"), c.option("center"),
                                              c.option("reduce"), c.option("zeroForMissing")));
         }},
        {"M_CovCorrVAndMeanStDevVar",
         [](Case& c) {
             c.gives(M_CovCorrVAndMeanStDevVar(c.table("X", c.n, c.p), c.n, c.p, c.out("C", c.p, c.p),
                                               c.out("mean", c.p, 1), c.out("stdev", c.p, 1), c.out("var", c.p, 1),
                                               c.option("corr"), c.mask("mask", c.n), c.table("w", c.n, 1, weights),
                                               c.option("sample"), c.option("freqWeights"), c.option("center"),
                                               c.option("reduce"), c.option("zeroForMissing")));
         }},
        {"M_CorrMatMat",
         [](Case& c) {
             c.gives(M_CorrMatMat(c.table("X", c.n, c.p), c.n, c.p, c.table("Y", c.n, c.q), c.q, c.out("C", c.p, c.q),
                                  c.mask("mask", c.n), c.table("w", c.n, 1, weights), c.option("corr"),
                                  c.option("square"), c.option("sample"), c.option("freqWeights"),
                                  c.option("zeroForMissing")));
         }},
        {"M_CorrMatMatSPV",
         [](Case& c) {
             c.gives(M_CorrMatMatSPV(c.columns("X", c.n, c.p), c.n, c.p, c.table("Y", c.n, c.q), c.q,
                                     c.out("C", c.p, c.q), c.mask("mask", c.n), c.table("w", c.n, 1, weights),
                                     c.option("corr"), c.option("square"), c.option("sample"), c.option("freqWeights"),
                                     c.option("zeroForMissing")));
         }},
        {"CorrelPearson",
         [](Case& c) {
             c.gives(CorrelPearson(c.table("x", c.n, 1), c.table("y", c.n, 1), c.n, c.mask("mask", c.n),
                                   c.table("w", c.n, 1, weights), c.option("sample"), c.option("freqWeights"),
                                   c.option("zeroForMissing")));
         }},
        {"M_CorrMatFromCovMat",
         [](Case& c) {
             c.gives(M_CorrMatFromCovMat(c.table("S", c.p, c.p, definite), c.p, c.out("R", c.p, c.p),
                                         c.option("zeroForMissing")));
         }},
        {"M_Inertie_W(matrix*, int, int, matrix*, int, matrix*, matrix*, matrix*&)",
         [](Case& c) {
             c.gives(M_Inertie_W(c.table("X", c.n, c.p), c.n, c.p, c.table("w", c.n, 1, weights),
                                 c.pick("group", -1, 1), c.table("g", c.n, 1, whole(0, 2)), c.table("centres", 3, c.p),
                                 c.out("T", c.p, c.p)));
         }},
        {"M_Inertie_W(matrix*, int, int, matrix*, int, matrixInt*, matrix*, matrix*&)",
         [](Case& c) {
             c.gives(M_Inertie_W(c.table("X", c.n, c.p), c.n, c.p, c.table("w", c.n, 1, weights),
                                 c.pick("group", -1, 1), c.ints("g", c.n, 1, whole(0, 2)), c.table("centres", 3, c.p),
                                 c.out("T", c.p, c.p)));
         }},
        {"M_Inertie_WSPV",
         [](Case& c) {
             c.gives(M_Inertie_WSPV(c.columns("X", c.n, c.p), c.n, c.p, c.table("w", c.n, 1, weights),
                                    c.pick("group", -1, 1), c.ints("g", c.n, 1, whole(0, 2)),
                                    c.table("centres", 3, c.p), c.out("T", c.p, c.p)));
         }},
        {"GetSSE",
         [](Case& c) {
             c.gives(GetSSE(c.table("v", c.n, 1), c.n, c.table("w", c.n, 1, weights), &c.number1("mean", 0.0)));
         }},
        {"M_Mean",
         [](Case& c) {
             c.gives(M_Mean(c.table("X", c.n, c.p), c.n, c.p, c.out("mean", c.p, 1), c.table("w", c.n, 1, weights)));
         }},
        {"M_MeanSPV",
         [](Case& c) {
             c.gives(
                 M_MeanSPV(c.columns("X", c.n, c.p), c.n, c.p, c.out("mean", c.p, 1), c.table("w", c.n, 1, weights)));
         }},
        {"M_ColSum2", [](Case& c) { c.gives(M_ColSum2(c.table("X", c.n, c.p), c.n, c.pick("col", 1, c.p))); }},
        {"M_MeanStDevSPV",
         [](Case& c) {
             c.gives(M_MeanStDevSPV(c.columns("X", c.n, c.p), c.n, c.p, c.out("mean", c.p, 1), c.out("stdev", c.p, 1),
                                    c.mask("mask", c.n), c.table("w", c.n, 1, weights), c.option("sample"),
                                    c.option("freqWeights"), c.option("ignoreMask")));
         }},
        {"M_MeanStDevVarSPV",
         [](Case& c) {
             c.gives(M_MeanStDevVarSPV(c.columns("X", c.n, c.p), c.n, c.p, c.out("mean", c.p, 1),
                                       c.out("stdev", c.p, 1), c.out("var", c.p, 1), c.mask("mask", c.n),
                                       c.table("w", c.n, 1, weights), c.option("sample"), c.option("freqWeights")));
         }},
        {"M_QuantileMW",
         [](Case& c) {
             c.gives(M_QuantileMW(c.table("m", c.n, c.p), c.n, c.pick("col", 1, c.p), c.mask("mask", c.n),
                                  c.table("w", c.n, 1, weights), c.pick("p", 0, 8) / 8.0));
         }},
        {"M_CenterW2SPV",
         [](Case& c) { M_CenterW2SPV(c.columns("X", c.n, c.p), c.n, c.p, c.table("w", c.n, 1, weights)); }},
        {"M_StandardizeW3SPV",
         [](Case& c) {
             M_StandardizeW3SPV(c.columns("X", c.n, c.p), c.n, c.p, c.table("w", c.n, 1, weights),
                                c.out("mean", c.p, 1), c.out("stdev", c.p, 1), c.option("sample"),
                                c.option("freqWeights"));
         }},
        {"M_CorrMatFromCovMatSPV2_T",
         [](Case& c) { c.gives(M_CorrMatFromCovMatSPV2_T(c.triangle("C", c.p, definite), c.p)); }},
    };
    return calls;
}

} // namespace vecmat::digest
