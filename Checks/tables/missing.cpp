// Missing cells of tables.
#include "tables/case.h"

#include <algorithm>

namespace vecmat::digest {

std::span<const TableCall> missingCalls()
{
    static const TableCall calls[] = {
        {"V_NbMissing(matrix*, int)", [](Case& c) { c.gives(V_NbMissing(c.table("x", c.n, 1), c.n)); }},
        {"V_NbMissing(Smatrix*, int)", [](Case& c) { c.gives(V_NbMissing(c.strings("x", c.n, 1), c.n)); }},
        {"M_NbMissing(matrix*, int, int, int*)",
         [](Case& c) { M_NbMissing(c.table("a", c.n, c.p), c.n, c.p, c.intArray("counts", c.p)); }},
        {"M_NbMissing(Smatrix*, int, int, int*)",
         [](Case& c) { M_NbMissing(c.strings("a", c.n, c.p), c.n, c.p, c.intArray("counts", c.p)); }},
        {"M_NbMissing(matrix**, int, int)", [](Case& c) { c.gives(M_NbMissing(c.columns("a", c.n, c.p), c.n, c.p)); }},
        {"M_NbMissing2(matrix*, int, int)", [](Case& c) { c.gives(M_NbMissing2(c.table("a", c.n, c.p), c.n, c.p)); }},
        {"M_NbMissing2(matrix**, int, int)",
         [](Case& c) { c.gives(M_NbMissing2(c.columns("a", c.n, c.p), c.n, c.p)); }},
        {"M_NbMissing2(Smatrix*, int, int)",
         [](Case& c) { c.gives(M_NbMissing2(c.strings("a", c.n, c.p), c.n, c.p)); }},
        {"M_NbMissingPerRow",
         [](Case& c) { M_NbMissingPerRow(c.table("a", c.n, c.p), c.n, c.p, c.intArray("counts", c.n)); }},
        {"M_NbMissingSPV_T", [](Case& c) { c.gives(M_NbMissingSPV_T(c.triangle("a", c.n), c.n, 0)); }},
        {"M_GetMissing",
         [](Case& c) { M_GetMissing(c.table("a", c.n, c.p), c.n, c.p, c.mask("filter", c.n), c.mask("out", c.n)); }},
        {"M_GetMissingSPV",
         [](Case& c) {
             M_GetMissingSPV(c.columns("a", c.n, c.p), c.n, c.p, c.mask("filter", c.n), c.mask("out", c.n));
         }},
        {"M_IdentifyMissingInMatSPV",
         [](Case& c) { M_IdentifyMissingInMatSPV(c.columns("a", c.n, c.p), c.n, c.p, c.outInts("out", c.n, c.p)); }},
        {"M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T",
         [](Case& c) { c.gives(M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(c.triangle("a", c.n), c.n)); }},
        {"M_ReplaceMissingByValSPV_T",
         [](Case& c) { M_ReplaceMissingByValSPV_T(c.triangle("a", c.n), c.n, c.n, c.number("value")); }},
        {"M_ReplaceMissingByStr",
         [](Case& c) { M_ReplaceMissingByStr(c.strings("a", c.n, c.p), c.n, c.p, c.text("value")); }},
        {"ReplaceMissingObsLabels",
         [](Case& c) {
             ReplaceMissingObsLabels(c.outStrings("labels", c.n, 1), c.n, c.mask("mask", c.n), c.text("prefix"));
         }},
        {"RemoveRowsWithMissing(matrix*&, int, int, short*)",
         [](Case& c) { RemoveRowsWithMissing(c.table("a", c.n, c.p), c.n, c.p, c.mask("mask", c.n)); }},
        {"RemoveRowsWithMissing(Smatrix*&, int, int, short*)",
         [](Case& c) { RemoveRowsWithMissing(c.strings("a", c.n, c.p), c.n, c.p, c.mask("mask", c.n)); }},
        {"EstimateRowsWithMissingMean",
         [](Case& c) {
             EstimateRowsWithMissingMean(c.table("statX", c.q, c.p), c.q, c.table("X", c.n, c.p), c.n, c.p,
                                         c.mask("mask", c.n), c.table("weights", c.q, 1, weights));
         }},
        {"EstimateRowsWithMissingMeanSPV",
         [](Case& c) {
             EstimateRowsWithMissingMeanSPV(c.columns("X", c.n, c.p), c.n, c.p, c.mask("mask", c.n),
                                            c.table("weights", c.n, 1, weights));
         }},
        {"EstimateRowsWithMissingMode",
         [](Case& c) {
             EstimateRowsWithMissingMode(c.strings("statS", c.q, c.p), c.q, c.strings("S", c.n, c.p), c.n, c.p,
                                         c.table("weights", c.q, 1, weights));
         }},
        {"EstimateRowsWithMissingNN",
         [](Case& c) {
             EstimateRowsWithMissingNN(c.table("statX", c.q + 3, c.p), c.q + 3, c.table("X", c.n, c.p), c.n, c.p,
                                       c.mask("mask", c.n), c.table("statY", c.q + 3, 2), c.table("Y", c.n, 2), 2,
                                       c.strings("statS", c.q + 3, 1), c.strings("S", c.n, 1), 1,
                                       c.table("weights", c.q + 3, 1, weights));
         }},
        {"EstimateRowsWithMissingNNStr",
         [](Case& c) {
             EstimateRowsWithMissingNNStr(c.strings("statX", c.q + 3, c.p), c.q + 3, c.strings("X", c.n, c.p), c.n, c.p,
                                          c.mask("mask", c.n), c.table("statY", c.q + 3, 2), c.table("Y", c.n, 2), 2,
                                          c.strings("statS", c.q + 3, 1), c.strings("S", c.n, 1), 1,
                                          c.table("weights", c.q + 3, 1, weights));
         }},
        {"EstimateRowsWithMissingNNSPV",
         [](Case& c) {
             EstimateRowsWithMissingNNSPV(c.columns("X", c.n, c.p), c.n, c.p, c.mask("mask", c.n),
                                          c.table("statY", c.n, 2), c.table("Y", c.n, 2), 2, c.strings("statS", c.n, 1),
                                          c.strings("S", c.n, 1), 1, c.table("weights", c.n, 1, weights));
         }},
        {"EstimateRowsWithMissingNNSPV2",
         [](Case& c) {
             EstimateRowsWithMissingNNSPV2(c.columns("X", c.n, c.p), c.n, c.p, c.mask("mask", c.n),
                                           c.columns("statY", c.n, 2), c.columns("Y", c.n, 2), 2,
                                           c.strings("statS", c.n, 1), c.strings("S", c.n, 1), 1,
                                           c.table("weights", c.n, 1, weights));
         }},
        {"M_InsertMissing",
         [](Case& c) {
             M_InsertMissing(c.table("data", c.n, c.p), c.n, c.p, c.mask("mask", c.n + c.q), c.q,
                             c.out("out", c.n + c.q, c.p));
         }},
    };
    return calls;
}

} // namespace vecmat::digest
