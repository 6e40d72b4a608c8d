// Sums, products and tests of tables.
#include "tables/case.h"

#include <algorithm>

namespace vecmat::digest {

std::span<const TableCall> elementaryCalls()
{
    static const TableCall calls[] = {
        {"M_IsConstant", [](Case& c) { c.gives(M_IsConstant(c.table("a", c.n, c.n), c.n, c.option("mode"))); }},
        {"M_EachColIsConstant(matrix**, int, int)",
         [](Case& c) { c.gives(M_EachColIsConstant(c.columns("a", c.n, c.p), c.n, c.p)); }},
        {"M_EachColIsConstant(matrix*, int, int)",
         [](Case& c) { c.gives(M_EachColIsConstant(c.table("a", c.n, c.p), c.n, c.p)); }},
        {"M_ProductABSPV",
         [](Case& c) {
             c.gives(M_ProductABSPV(c.columns("a", c.n, c.p), c.n, c.p, c.table("b", c.p, c.q), c.q,
                                    c.out("out", c.n, c.q)));
         }},
        {"M_ProductABSPV2",
         [](Case& c) {
             c.gives(M_ProductABSPV2(c.columns("a", c.n, c.p), c.n, c.p, c.columns("b", c.p, c.q), c.q,
                                     c.outColumns("out", c.n, c.q)));
         }},
        {"M_ProductABMissingSPV",
         [](Case& c) {
             c.gives(M_ProductABMissingSPV(c.columns("a", c.n, c.p), c.n, c.p, c.table("b", c.p, c.q), c.q,
                                           c.out("out", c.n, c.q)));
         }},
        {"M_ProductABMissingSPV2",
         [](Case& c) {
             c.gives(M_ProductABMissingSPV2(c.table("a", c.n, c.p), c.n, c.p, c.table("b", c.p, c.q), c.q,
                                            c.outColumns("out", c.n, c.q)));
         }},
        {"M_ProductABMissingSPV3",
         [](Case& c) {
             c.gives(M_ProductABMissingSPV3(c.columns("a", c.n, c.p), c.n, c.p, c.table("b", c.p, c.q), c.q,
                                            c.outColumns("out", c.n, c.q)));
         }},
        {"M_ProductATrBSPV",
         [](Case& c) {
             M_ProductATrBSPV(c.table("a", c.n, c.p), c.n, c.p, c.table("b", c.q, c.p), c.q,
                              c.outColumns("out", c.n, c.q));
         }},
        {"M_ProductTrAA(matrix*, int, int, matrix*&)",
         [](Case& c) { M_ProductTrAA(c.table("a", c.n, c.p), c.n, c.p, c.out("out", c.p, c.p)); }},
        {"M_ProductTrAA(matrix*, int, int, matrixInt*&)",
         [](Case& c) { M_ProductTrAA(c.table("a", c.n, c.p), c.n, c.p, c.outInts("out", c.p, c.p)); }},
        {"M_ProductTrAA(matrixInt*, int, int, matrixInt*&)",
         [](Case& c) { M_ProductTrAA(c.ints("a", c.n, c.p), c.n, c.p, c.outInts("out", c.p, c.p)); }},
        {"M_ProductTrAA(matrixInt*, int, int, matrix*&)",
         [](Case& c) { M_ProductTrAA(c.ints("a", c.n, c.p), c.n, c.p, c.out("out", c.p, c.p)); }},
        {"M_ProductATrA(matrix*, int, int, matrix*&)",
         [](Case& c) { M_ProductATrA(c.table("a", c.n, c.p), c.n, c.p, c.out("out", c.n, c.n)); }},
        {"M_ProductATrA(matrixInt*, int, int, matrix*&)",
         [](Case& c) { M_ProductATrA(c.ints("a", c.n, c.p), c.n, c.p, c.out("out", c.n, c.n)); }},
        {"M_ProductDiagVASPV",
         [](Case& c) {
             M_ProductDiagVASPV(c.table("v", c.n, 1), c.n, c.columns("a", c.n, c.p), c.p,
                                c.outColumns("out", c.n, c.p));
         }},
        {"M_ProductADiagVSPV",
         [](Case& c) {
             M_ProductADiagVSPV(c.columns("a", c.n, c.p), c.n, c.p, c.table("v", c.p, 1),
                                c.outColumns("out", c.n, c.p));
         }},
        {"M_ProductDiagV1ADiagV2SPV",
         [](Case& c) {
             M_ProductDiagV1ADiagV2SPV(c.table("va", c.n, 1), c.n, c.columns("a", c.n, c.p), c.p, c.table("vb", c.p, 1),
                                       c.outColumns("out", c.n, c.p));
         }},
        {"MV_ProductAsymBsym",
         [](Case& c) {
             MV_ProductAsymBsym(c.table("a", c.n * (c.n + 1) / 2, 1), c.n * (c.n + 1) / 2,
                                c.table("b", c.n * (c.n + 1) / 2, 1), c.out("out", c.n * (c.n + 1) / 2, 1));
         }},
        {"V_ProductWTrV1V2",
         [](Case& c) {
             c.gives(V_ProductWTrV1V2(c.table("a", c.n, 1), c.n, c.table("b", c.n, 1), c.table("w", c.n, 1, weights)));
         }},
        {"V_Product1toN(matrix*, int)", [](Case& c) { c.gives(V_Product1toN(c.table("x", c.n, 1), c.n)); }},
        {"V_Product1toN(matrixInt*, int)", [](Case& c) { c.gives(V_Product1toN(c.ints("x", c.n, 1), c.n)); }},
        {"M_Sums1As2BSPV",
         [](Case& c) {
             M_Sums1As2BSPV(c.columns("a", c.n, c.p), c.n, c.p, c.table("b", c.n, c.p), c.number("s1"), c.number("s2"),
                            c.out("out", c.n, c.p));
         }},
        {"M_Sums1As2BSPV_T",
         [](Case& c) {
             M_Sums1As2BSPV_T(c.triangle("a", c.n), c.n, c.n, c.table("b", c.n, c.n), c.number("s1"), c.number("s2"),
                              c.out("out", c.n, c.n));
         }},
        {"M_APlusVal(matrix*, int, int, double, matrix*&)",
         [](Case& c) { M_APlusVal(c.table("a", c.n, c.p), c.n, c.p, c.number("v"), c.out("out", c.n, c.p)); }},
        {"M_APlusVal(matrix*, int, int, double, matrixInt*&)",
         [](Case& c) { M_APlusVal(c.table("a", c.n, c.p), c.n, c.p, c.number("v"), c.outInts("out", c.n, c.p)); }},
        {"M_APlusVal(matrixInt*, int, int, double, matrix*&)",
         [](Case& c) { M_APlusVal(c.ints("a", c.n, c.p), c.n, c.p, c.number("v"), c.out("out", c.n, c.p)); }},
        {"M_APlusVal(matrixInt*, int, int, double, matrixInt*&)",
         [](Case& c) { M_APlusVal(c.ints("a", c.n, c.p), c.n, c.p, c.number("v"), c.outInts("out", c.n, c.p)); }},
        {"M_APlusVal2(matrix*, int, int, double)",
         [](Case& c) { M_APlusVal2(c.table("a", c.n, c.p), c.n, c.p, c.number("v")); }},
        {"M_APlusVal2(matrixInt*, int, int, double)",
         [](Case& c) { M_APlusVal2(c.ints("a", c.n, c.p), c.n, c.p, c.number("v")); }},
        {"M_Sum2", [](Case& c) { c.gives(M_Sum2(c.table("a", c.n, c.p), c.n, c.p)); }},
        {"M_SquaredRowsSPV",
         [](Case& c) { M_SquaredRowsSPV(c.columns("a", c.n, c.p), c.n, c.p, c.out("out", c.n, c.p)); }},
        {"M_EuclidDist2",
         [](Case& c) {
             M_EuclidDist2(c.table("a", c.n, c.p), c.n, c.p, c.out("out", std::max(c.n, c.p), std::max(c.n, c.p)),
                           c.table("w", std::max(c.n, c.p), 1, weights), c.option("betweenRows"), c.n);
         }},
        {"M_Gauss",
         [](Case& c) {
             c.gives(M_Gauss(c.table("a", c.n, c.n), c.n, c.p, c.table("b", c.n, c.p), c.pick("noSwap", 0, 1) == 1,
                             c.pick("noPivot", 0, 1) == 1));
         }},
        {"M_BlockProductBckA(matrix**, int, matrix*, matrix*, int, matrix*)",
         [](Case& c) {
             M_BlockProductBckA(c.blocks("blocks", {c.p, 1, c.q}), 3, c.column("sizes", {c.p, 1, c.q}),
                                c.table("a", c.p + c.q + 1, c.n), c.n, c.out("out", c.p + c.q + 1, c.n));
         }},
        {"M_BlockProductBckA(matrix**, int, matrixInt*, matrix*, int, matrix*)",
         [](Case& c) {
             M_BlockProductBckA(c.blocks("blocks", {c.p, 1, c.q}), 3, c.intColumn("sizes", {c.p, 1, c.q}),
                                c.table("a", c.p + c.q + 1, c.n), c.n, c.out("out", c.p + c.q + 1, c.n));
         }},
        {"M_BlockProductABck(matrix*, int, matrix**, int, matrix*, matrix*)",
         [](Case& c) {
             M_BlockProductABck(c.table("a", c.n, c.p + c.q + 1), c.n, c.blocks("blocks", {c.p, 1, c.q}), 3,
                                c.column("sizes", {c.p, 1, c.q}), c.out("out", c.n, c.p + c.q + 1));
         }},
        {"M_BlockProductABck(matrix*, int, matrix**, int, matrixInt*, matrix*)",
         [](Case& c) {
             M_BlockProductABck(c.table("a", c.n, c.p + c.q + 1), c.n, c.blocks("blocks", {c.p, 1, c.q}), 3,
                                c.intColumn("sizes", {c.p, 1, c.q}), c.out("out", c.n, c.p + c.q + 1));
         }},
        {"M_BlockProductATrBck(matrix*, int, matrix**, int, matrix*, matrix*)",
         [](Case& c) {
             M_BlockProductATrBck(c.table("a", c.n, c.p + c.q + 1), c.n, c.blocks("blocks", {c.p, 1, c.q}), 3,
                                  c.column("sizes", {c.p, 1, c.q}), c.out("out", c.n, c.p + c.q + 1));
         }},
        {"M_BlockProductATrBck(matrix*, int, matrix**, int, matrixInt*, matrix*)",
         [](Case& c) {
             M_BlockProductATrBck(c.table("a", c.n, c.p + c.q + 1), c.n, c.blocks("blocks", {c.p, 1, c.q}), 3,
                                  c.intColumn("sizes", {c.p, 1, c.q}), c.out("out", c.n, c.p + c.q + 1));
         }},
        {"M_BlockProductBckVect(matrix**, int, matrix*, matrix*, matrix*)",
         [](Case& c) {
             M_BlockProductBckVect(c.blocks("blocks", {c.p, 1, c.q}), 3, c.column("sizes", {c.p, 1, c.q}),
                                   c.table("v", c.p + c.q + 1, 1), c.out("out", c.p + c.q + 1, 1));
         }},
        {"M_BlockProductBckVect(matrix**, int, matrixInt*, matrix*, matrix*)",
         [](Case& c) {
             M_BlockProductBckVect(c.blocks("blocks", {c.p, 1, c.q}), 3, c.intColumn("sizes", {c.p, 1, c.q}),
                                   c.table("v", c.p + c.q + 1, 1), c.out("out", c.p + c.q + 1, 1));
         }},
        {"V_Sum2(matrix*, int)", [](Case& c) { c.gives(V_Sum2(c.table("x", c.n, 1), c.n)); }},
        {"V_Sum2(matrixInt*, int)", [](Case& c) { c.gives(V_Sum2(c.ints("x", c.n, 1), c.n)); }},
        {"V_Sum2(int*, int)", [](Case& c) { c.gives(V_Sum2(c.intArray("x", c.n + 1), c.n)); }},
        {"V_Sq", [](Case& c) { c.gives(V_Sq(c.table("x", c.n, 1), c.n)); }},
        {"V_Min(matrix*, int, short*)",
         [](Case& c) { c.gives(V_Min(c.table("x", c.n, 1), c.n, c.mask("mask", c.n))); }},
        {"V_Min(matrixInt*, int, short*)",
         [](Case& c) { c.gives(V_Min(c.ints("x", c.n, 1), c.n, c.mask("mask", c.n))); }},
        {"V_Max(matrix*, int, short*)",
         [](Case& c) { c.gives(V_Max(c.table("x", c.n, 1), c.n, c.mask("mask", c.n))); }},
        {"V_Max(matrixInt*, int, short*)",
         [](Case& c) { c.gives(V_Max(c.ints("x", c.n, 1), c.n, c.mask("mask", c.n))); }},
        {"V_MinMax(matrix*, int, double*, double*, short*)",
         [](Case& c) {
             V_MinMax(c.table("x", c.n, 1), c.n, &c.number1("min", 0.0), &c.number1("max", 0.0), c.mask("mask", c.n));
         }},
        {"V_MinMax(matrixInt*, int, double*, double*, short*)",
         [](Case& c) {
             V_MinMax(c.ints("x", c.n, 1), c.n, &c.number1("min", 0.0), &c.number1("max", 0.0), c.mask("mask", c.n));
         }},
        {"V_Min2(matrix*, int)", [](Case& c) { c.gives(V_Min2(c.table("x", c.n, 1), c.n)); }},
        {"V_Min2(matrixInt*, int)", [](Case& c) { c.gives(V_Min2(c.ints("x", c.n, 1), c.n)); }},
        {"V_Max2(matrix*, int)", [](Case& c) { c.gives(V_Max2(c.table("x", c.n, 1), c.n)); }},
        {"V_Max2(matrixInt*, int)", [](Case& c) { c.gives(V_Max2(c.ints("x", c.n, 1), c.n)); }},
        {"V_MaxAndMaxPos(matrix*, int, int*)",
         [](Case& c) { c.gives(V_MaxAndMaxPos(c.table("x", c.n, 1), c.n, &c.whole1("pos", 0))); }},
        {"V_MaxAndMaxPos(matrixInt*, int, int*)",
         [](Case& c) { c.gives(V_MaxAndMaxPos(c.ints("x", c.n, 1), c.n, &c.whole1("pos", 0))); }},
        {"V_NbIf(matrix*, int, double)", [](Case& c) { c.gives(V_NbIf(c.table("x", c.n, 1), c.n, c.number("val"))); }},
        {"V_NbIf(matrixInt*, int, double)",
         [](Case& c) { c.gives(V_NbIf(c.ints("x", c.n, 1), c.n, c.number("val"))); }},
        {"V_SumIf(matrix*, int, matrix*, double)",
         [](Case& c) {
             c.gives(V_SumIf(c.table("x", c.n, 1), c.n, c.table("key", c.n, 1, whole(-1, 1)), c.pick("val", -1, 1)));
         }},
        {"V_SumIf(matrix*, int, matrixInt*, double)",
         [](Case& c) {
             c.gives(V_SumIf(c.table("x", c.n, 1), c.n, c.ints("key", c.n, 1, whole(-1, 1)), c.pick("val", -1, 1)));
         }},
        {"V_MaxIf(matrix*, int, matrix*, double)",
         [](Case& c) {
             c.gives(V_MaxIf(c.table("x", c.n, 1), c.n, c.table("key", c.n, 1, whole(-1, 1)), c.pick("val", -1, 1)));
         }},
        {"V_MaxIf(matrix*, int, matrixInt*, double)",
         [](Case& c) {
             c.gives(V_MaxIf(c.table("x", c.n, 1), c.n, c.ints("key", c.n, 1, whole(-1, 1)), c.pick("val", -1, 1)));
         }},
        {"V_MinIf(matrix*, int, matrix*, double)",
         [](Case& c) {
             c.gives(V_MinIf(c.table("x", c.n, 1), c.n, c.table("key", c.n, 1, whole(-1, 1)), c.pick("val", -1, 1)));
         }},
        {"V_MinIf(matrix*, int, matrixInt*, double)",
         [](Case& c) {
             c.gives(V_MinIf(c.table("x", c.n, 1), c.n, c.ints("key", c.n, 1, whole(-1, 1)), c.pick("val", -1, 1)));
         }},
    };
    return calls;
}

} // namespace vecmat::digest
