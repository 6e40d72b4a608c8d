// Categories in tables.
#include "tables/case.h"

#include <algorithm>

namespace vecmat::digest {

std::span<const TableCall> qualitativeCalls()
{
    static const TableCall calls[] = {
        {"M_InfoQuali",
         [](Case& c) {
             M_InfoQuali(c.strings("table", c.n, c.p), c.n, c.p, c.outStrings("modes", c.p, 1),
                         c.out("modeWeights", c.p, 1), c.ints("nCats", c.p, 1), c.outStrings("categories", c.p, c.n),
                         c.out("catWeights", c.p, c.n), c.table("weights", c.n, 1, weights), &c.whole1("total", 0),
                         c.option("sortCats"));
         }},
        {"M_InfoQuali2",
         [](Case& c) {
             M_InfoQuali2(c.strings("table", c.n, c.p), c.n, c.p, c.q, c.ints("nCats", c.p, 1, whole(1, 1)),
                          c.outStrings("modes", c.p, 1), c.out("modeWeights", c.p, 1),
                          c.outStrings("categories", c.p, c.q), c.out("catWeights", c.p, c.q),
                          c.table("weights", c.n, 1, weights), &c.whole1("total", 0), c.option("sortCats"));
         }},
        {"M_InfoQualiValid",
         [](Case& c) {
             M_InfoQualiValid(c.strings("table", c.n, c.p), c.n, c.p, c.q, c.ints("nCats", c.p, 1, whole(1, 1)),
                              c.outStrings("categories", c.p, c.q), c.out("catWeights", c.p, c.q),
                              &c.short1("invalid", 0), c.table("weights", c.n, 1, weights));
         }},
        {"M_MeanStDevVarOneInMat",
         [](Case& c) {
             M_MeanStDevVarOneInMat(c.table("table", c.n, c.p), c.n, c.pick("col", 1, c.p), &c.number1("mean", 0.0),
                                    &c.number1("stdDev", 0.0), &c.number1("variance", 0.0),
                                    c.table("weights", c.n, 1, weights), c.option("sampleVariance"),
                                    c.option("countDivisor"));
         }},
        {"V_Freq(matrix*, int, matrix*, double, double)",
         [](Case& c) {
             c.gives(
                 V_Freq(c.table("x", c.n, 1), c.n, c.table("weights", c.n, 1, weights), c.pick("value", -9, 9), 0.5));
         }},
        {"V_Freq(matrixInt*, int, matrix*, double, double)",
         [](Case& c) {
             c.gives(
                 V_Freq(c.ints("x", c.n, 1), c.n, c.table("weights", c.n, 1, weights), c.pick("value", -9, 9), 0.5));
         }},
        {"V_FreqStr",
         [](Case& c) {
             c.gives(V_FreqStr(c.strings("x", c.n, 1), c.n, c.table("weights", c.n, 1, weights), c.text("value")));
         }},
        {"V_Mode", [](Case& c) { c.gives(V_Mode(c.strings("x", c.n, 1), c.n, c.table("weights", c.n, 1, weights))); }},
        {"V_ModeCat", [](Case& c) { c.gives(V_ModeCat(c.table("x", c.n, 1, whole(-1, c.n)), c.n)); }},
        {"BuildDisjunctiveTable",
         [](Case& c) {
             BuildDisjunctiveTable(c.strings("table", c.n, c.p), c.n, c.p, 2 * c.p,
                                   c.ints("nCats", c.p, 1, whole(2, 2)), c.outStrings("categories", c.p, 2),
                                   c.table("freq", c.p, 2, whole(1, 9)), c.out("out", c.n, 2 * c.p),
                                   c.pick("coding", 0, 3), c.pick("keepBaseline", 0, 2));
         }},
        {"V_RecodeToBinary",
         [](Case& c) { V_RecodeToBinary(c.strings("x", c.n, 1), c.n, c.text("value"), c.out("out", c.n, 1)); }},
        {"M_IsIndicatorSPV",
         [](Case& c) { c.gives(M_IsIndicatorSPV(c.columns("x", c.n, c.p, whole(0, 1)), c.n, c.p)); }},
        {"V_NbDistinct(matrix*, int)", [](Case& c) { c.gives(V_NbDistinct(c.table("x", c.n, 1), c.n)); }},
        {"V_NbDistinct(matrixInt*, int)", [](Case& c) { c.gives(V_NbDistinct(c.ints("x", c.n, 1), c.n)); }},
        {"V_NbDistinct(Smatrix*, int)", [](Case& c) { c.gives(V_NbDistinct(c.strings("x", c.n, 1), c.n)); }},
        {"M_MergeStringsByRow",
         [](Case& c) {
             M_MergeStringsByRow(c.strings("table", c.n, c.p), c.n, c.p, c.text("separator"),
                                 c.outStrings("out", c.n, 1));
         }},
    };
    return calls;
}

} // namespace vecmat::digest
