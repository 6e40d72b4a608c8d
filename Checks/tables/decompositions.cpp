// Decompositions and inverses of tables.
#include "tables/case.h"

#include <algorithm>

namespace vecmat::digest {

std::span<const TableCall> decompositionCalls()
{
    static const TableCall calls[] = {
        {"M_EigenSPV",
         [](Case& c) {
             c.gives(M_EigenSPV(c.columns("a", c.n, c.n, definite), c.out("values", c.n, 1),
                                c.outColumns("vectors", c.n, c.n), c.n, c.option("sort")));
         }},
        {"M_EigenDestroySPV",
         [](Case& c) {
             c.gives(
                 M_EigenDestroySPV(c.columns("a", c.n, c.n, definite), c.out("values", c.n, 1), c.n, c.option("sort")));
         }},
        {"M_EigenSPV_T",
         [](Case& c) {
             c.gives(M_EigenSPV_T(c.triangle("a", c.n, definite), c.out("values", c.n, 1),
                                  c.outColumns("vectors", c.n, c.n), c.n, c.option("sort")));
         }},
        {"M_VonMises",
         [](Case& c) { c.gives(M_VonMises(c.table("a", c.n, c.n, definite), c.table("v", c.n, 1), c.n)); }},
        {"FilterOnSumOfSquares",
         [](Case& c) {
             FilterOnSumOfSquares(c.table("m", c.n, c.p), c.n, c.pick("colA", 1, c.p), c.pick("colB", 1, c.p),
                                  c.number("threshold"), c.array("flags", c.n));
         }},
        {"getNorm2", [](Case& c) { c.gives(getNorm2(c.table("a", c.n, c.p, whole(-9, 9)))); }},
        {"M_Determinant",
         [](Case& c) {
             c.gives(M_Determinant(c.table("a", c.n, c.n, definite), c.n, &c.short1("status", 0),
                                   c.option("logOnOverflow")));
         }},
        {"M_CholDecompPrinc(matrix*, int, matrix*, matrix*, short)",
         [](Case& c) {
             c.gives(M_CholDecompPrinc(c.table("a", c.n, c.n, definite), c.n, c.out("l", c.n, c.n),
                                       c.table("perm", c.n, 1), c.option("keep")));
         }},
        {"M_CholDecompPrinc(matrix*, int, matrix*, matrixInt*, short)",
         [](Case& c) {
             c.gives(M_CholDecompPrinc(c.table("a", c.n, c.n, definite), c.n, c.out("l", c.n, c.n),
                                       c.ints("perm", c.n, 1), c.option("keep")));
         }},
        {"M_CholDecompCleaned(matrix*, int, matrix*, matrix*)",
         [](Case& c) {
             c.gives(M_CholDecompCleaned(c.table("a", c.n, c.n, definite), c.n, c.table("mask", c.n, 1, whole(0, 1)),
                                         c.out("l", c.n, c.n)));
         }},
        {"M_CholDecompCleaned(matrix*, int, matrixInt*, matrix*)",
         [](Case& c) {
             c.gives(M_CholDecompCleaned(c.table("a", c.n, c.n, definite), c.n, c.ints("mask", c.n, 1, whole(0, 1)),
                                         c.out("l", c.n, c.n)));
         }},
        {"M_InvGeneralizedSPV",
         [](Case& c) {
             c.gives(M_InvGeneralizedSPV(c.columns("a", c.n, c.n, definite), c.n, c.out("out", c.n, c.n), 1e-10,
                                         &c.whole1("rank", 0)));
         }},
        {"G2SweepStep",
         [](Case& c) { G2SweepStep(c.table("a", c.n, c.n, definite), c.n, c.pick("k", 1, c.n), 1e-10); }},
        {"cCleanConstraintsAndInvert(int, matrix*, matrix*, matrix*&)",
         [](Case& c) {
             c.gives(cCleanConstraintsAndInvert(c.n, c.table("constraints", c.n, 1, whole(0, 1)),
                                                c.table("a", c.n, c.n, definite), c.out("out", c.n, c.n)));
         }},
        {"cCleanConstraintsAndInvert(int, matrixInt*, matrix*, matrix*&)",
         [](Case& c) {
             c.gives(cCleanConstraintsAndInvert(c.n, c.ints("constraints", c.n, 1, whole(0, 1)),
                                                c.table("a", c.n, c.n, definite), c.out("out", c.n, c.n)));
         }},
        {"cCleanConstraintsAndInvertTriang(int, matrix*, matrix*, short, matrix*&)",
         [](Case& c) {
             c.gives(cCleanConstraintsAndInvertTriang(c.n, c.table("constraints", c.n, 1, whole(0, 1)),
                                                      c.table("a", c.n, c.n, lower), c.option("lower"),
                                                      c.out("out", c.n, c.n)));
         }},
        {"cCleanConstraintsAndInvertTriang(int, matrixInt*, matrix*, short, matrix*&)",
         [](Case& c) {
             c.gives(cCleanConstraintsAndInvertTriang(c.n, c.ints("constraints", c.n, 1, whole(0, 1)),
                                                      c.table("a", c.n, c.n, lower), c.option("lower"),
                                                      c.out("out", c.n, c.n)));
         }},
        {"M_DeterminantCleaned(matrix*, int, matrix*, short*)",
         [](Case& c) {
             c.gives(M_DeterminantCleaned(c.table("a", c.n, c.n, definite), c.n,
                                          c.table("constraints", c.n, 1, whole(0, 1)), &c.short1("status", 0)));
         }},
        {"M_DeterminantCleaned(matrix*, int, matrixInt*, short*)",
         [](Case& c) {
             c.gives(M_DeterminantCleaned(c.table("a", c.n, c.n, definite), c.n,
                                          c.ints("constraints", c.n, 1, whole(0, 1)), &c.short1("status", 0)));
         }},
        {"Inverse1SPV",
         [](Case& c) {
             c.gives(Inverse1SPV(c.columns("a", c.n, c.n, definite), c.out("out", c.n, c.n), c.n, c.n, 0, 0.0));
         }},
        {"M_ProductAinvBTrASPV",
         [](Case& c) {
             M_ProductAinvBTrASPV(c.table("a", c.n, c.p), c.n, c.p, c.table("b", c.p, c.p, definite),
                                  c.outColumns("out", c.n, c.n));
         }},
        {"M_SProject",
         [](Case& c) {
             M_SProject(c.table("a", c.n, c.n, definite), c.n, c.table("w", c.n, c.n, definite),
                        c.out("out", c.n, c.n));
         }},
        {"M_UProject", [](Case& c) { M_UProject(c.table("a", c.n, c.n, definite), c.n, c.out("out", c.n, c.n)); }},
        {"M_UProjectSPV",
         [](Case& c) { M_UProjectSPV(c.table("a", c.n, c.n, definite), c.n, c.outColumns("out", c.n, c.n)); }},
        {"M_UProjectSPV_T",
         [](Case& c) { M_UProjectSPV_T(c.table("a", c.n, c.n, definite), c.n, c.outTriangle("out", c.n)); }},
        {"M_RowSumNormSPV", [](Case& c) { c.gives(M_RowSumNormSPV(c.columns("a", c.n, c.p), c.n, c.p)); }},
        {"M_RowSumNormSPV_T", [](Case& c) { c.gives(M_RowSumNormSPV_T(c.triangle("a", c.n), c.n, c.n)); }},
        {"M_SVDecomp",
         [](Case& c) {
             M_SVDecomp(c.table("x", c.n, c.p, whole(-9, 9)), c.n, c.p, c.out("s", std::max(c.n, c.p) + 1, 1),
                        c.out("u", c.n, std::max(c.n, c.p)), c.table("v", c.p, c.p), c.pick("job", 0, 1) * 11 + 10,
                        &c.whole1("info", 0));
         }},
        {"M_SVDecompSPV",
         [](Case& c) {
             M_SVDecompSPV(c.columns("x", c.n, c.p, whole(-9, 9)), c.n, c.p, c.out("s", std::max(c.n, c.p) + 1, 1),
                           c.outColumns("u", c.n, std::max(c.n, c.p)), c.columns("v", c.p, c.p),
                           c.pick("job", 0, 1) * 11 + 10, &c.whole1("info", 0));
         }},
        {"DNRM2",
         [](Case& c) { c.gives(DNRM2(c.n, c.table("x", c.n, c.p, whole(-9, 9)), 1, 1, c.pick("col", 1, c.p))); }},
        {"dscal", [](Case& c) { dscal(c.n, c.number("factor"), c.table("x", c.n, c.p), 1, 1, c.pick("col", 1, c.p)); }},
        {"ddot",
         [](Case& c) {
             c.gives(ddot(c.n, c.table("x", c.n, c.p, whole(-9, 9)), 1, c.table("y", c.n, c.q, whole(-9, 9)), 1, 1,
                          c.pick("colx", 1, c.p), 1, c.pick("coly", 1, c.q)));
         }},
        {"daxpy",
         [](Case& c) {
             daxpy(c.n, c.pick("factor", -3, 3) / 4.0, c.table("x", c.n, c.p, whole(-9, 9)), 1,
                   c.table("y", c.n, c.q, whole(-9, 9)), 1, 1, c.pick("colx", 1, c.p), 1, c.pick("coly", 1, c.q));
         }},
        {"drot",
         [](Case& c) {
             drot(c.n, c.table("x", c.n, c.p, whole(-9, 9)), 1, c.table("y", c.n, c.q, whole(-9, 9)), 1, 0.6, 0.8,
                  c.pick("colx", 1, c.p), c.pick("coly", 1, c.q));
         }},
        {"M_SwapVectors",
         [](Case& c) {
             M_SwapVectors(c.n, c.table("x", c.n, c.p, whole(-9, 9)), 1, c.table("y", c.n, c.q, whole(-9, 9)), 1,
                           c.pick("colx", 1, c.p), c.pick("coly", 1, c.q));
         }},
        {"DNRM2SPV",
         [](Case& c) { c.gives(DNRM2SPV(c.n, c.columns("x", c.n, c.p, whole(-9, 9)), 1, 1, c.pick("col", 1, c.p))); }},
        {"dscalSPV",
         [](Case& c) { dscalSPV(c.n, c.number("factor"), c.columns("x", c.n, c.p), 1, 1, c.pick("col", 1, c.p)); }},
        {"ddotSPV",
         [](Case& c) {
             c.gives(ddotSPV(c.n, c.columns("x", c.n, c.p, whole(-9, 9)), 1, c.columns("y", c.n, c.q, whole(-9, 9)), 1,
                             1, c.pick("colx", 1, c.p), 1, c.pick("coly", 1, c.q)));
         }},
        {"daxpySPV",
         [](Case& c) {
             daxpySPV(c.n, c.pick("factor", -3, 3) / 4.0, c.columns("x", c.n, c.p, whole(-9, 9)), 1,
                      c.columns("y", c.n, c.q, whole(-9, 9)), 1, 1, c.pick("colx", 1, c.p), 1, c.pick("coly", 1, c.q));
         }},
        {"drotSPV",
         [](Case& c) {
             drotSPV(c.n, c.columns("x", c.n, c.p, whole(-9, 9)), 1, c.columns("y", c.n, c.q, whole(-9, 9)), 1, 0.6,
                     0.8, c.pick("colx", 1, c.p), c.pick("coly", 1, c.q));
         }},
        {"M_SwapVectorsSPV",
         [](Case& c) {
             M_SwapVectorsSPV(c.n, c.columns("x", c.n, c.p, whole(-9, 9)), 1, c.columns("y", c.n, c.q, whole(-9, 9)), 1,
                              c.pick("colx", 1, c.p), c.pick("coly", 1, c.q));
         }},
        {"M_CorrMatFromSymMatSPV",
         [](Case& c) { c.gives(M_CorrMatFromSymMatSPV(c.columns("a", c.n, c.n, definite), c.n)); }},
        {"M_CorrMatFromSymMatSPV_T",
         [](Case& c) { c.gives(M_CorrMatFromSymMatSPV_T(c.triangle("a", c.n, definite), c.n)); }},
    };
    return calls;
}

} // namespace vecmat::digest
