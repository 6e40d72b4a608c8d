// Copies, merges and extracts of tables.
#include "tables/case.h"

#include <algorithm>

namespace vecmat::digest {

std::span<const TableCall> shapeCalls()
{
    static const TableCall calls[] = {
        {"SetVectorToValue", [](Case& c) { SetVectorToValue(c.table("v", c.n, 1), c.n, c.number("value")); }},
        {"InitVectorToFalse(matrix*&, int)", [](Case& c) { InitVectorToFalse(c.table("v", c.n, 1), c.n); }},
        {"InitVectorToFalse(short*, int)", [](Case& c) { InitVectorToFalse(c.mask("v", c.n), c.n); }},
        {"V_SetToValueStr", [](Case& c) { V_SetToValueStr(c.strings("v", c.n, 1), c.n, c.text("value")); }},
        {"V_Set1toN(matrix*&, int)", [](Case& c) { V_Set1toN(c.table("v", c.n, 1), c.n); }},
        {"V_Set1toN(matrixInt*&, int)", [](Case& c) { V_Set1toN(c.ints("v", c.n, 1), c.n); }},
        {"M_Transpose(matrix*&, int, int, matrix*&)",
         [](Case& c) { M_Transpose(c.table("src", c.n, c.p), c.n, c.p, c.out("dst", c.p, c.n)); }},
        {"M_Transpose(matrixInt*&, int, int, matrixInt*&)",
         [](Case& c) { M_Transpose(c.ints("src", c.n, c.p), c.n, c.p, c.outInts("dst", c.p, c.n)); }},
        {"M_Transpose(matrixInt*&, int, int, matrix*&)",
         [](Case& c) { M_Transpose(c.ints("src", c.n, c.p), c.n, c.p, c.out("dst", c.p, c.n)); }},
        {"M_Transpose(Smatrix*&, int, int, Smatrix*&)",
         [](Case& c) { M_Transpose(c.strings("src", c.n, c.p), c.n, c.p, c.outStrings("dst", c.p, c.n)); }},
        {"M_Transpose(matrix**, int, int, matrix*&)",
         [](Case& c) { M_Transpose(c.columns("src", c.n, c.p), c.n, c.p, c.out("dst", c.p, c.n)); }},
        {"M_Transpose(matrix*, int, int, matrix**)",
         [](Case& c) { M_Transpose(c.table("src", c.n, c.p), c.n, c.p, c.outColumns("dst", c.p, c.n)); }},
        {"M_TransposeSPV",
         [](Case& c) { M_TransposeSPV(c.columns("src", c.n, c.p), c.n, c.p, c.outColumns("dst", c.p, c.n)); }},
        {"M_Transpose2(matrix*&, int, int)", [](Case& c) { M_Transpose2(c.table("a", c.n, c.p), c.n, c.p); }},
        {"M_Transpose2(Smatrix*&, int, int)", [](Case& c) { M_Transpose2(c.strings("a", c.n, c.p), c.n, c.p); }},
        {"HMergeTableVect2",
         [](Case& c) { HMergeTableVect2(c.table("t", c.n, c.p + 1), c.p, c.array("v", c.n), c.n); }},
        {"HMergeVectTable(double*, int, matrix*, int, int, matrix*&)",
         [](Case& c) {
             HMergeVectTable(c.array("v", c.n), c.n, c.table("t", c.q, c.p), c.q, c.p,
                             c.out("out", std::max(c.n, c.q), c.p + 1));
         }},
        {"HMergeVectTable(matrix*, int, matrix*, int, int, matrix*&)",
         [](Case& c) {
             HMergeVectTable(c.table("v", c.n, 1), c.n, c.table("t", c.q, c.p), c.q, c.p,
                             c.out("out", std::max(c.n, c.q), c.p + 1));
         }},
        {"HMergeVectCol(double*, int, matrix*, int, int, matrix*&)",
         [](Case& c) {
             HMergeVectCol(c.array("v", c.n), c.n, c.table("t", c.q, c.p + 1), c.q, c.pick("col", 1, c.p),
                           c.out("out", std::max(c.n, c.q), 2));
         }},
        {"HMergeVectCol(matrix*, int, matrix*, int, int, matrix*&)",
         [](Case& c) {
             HMergeVectCol(c.table("v", c.n, 1), c.n, c.table("t", c.q, c.p + 1), c.q, c.pick("col", 1, c.p),
                           c.out("out", std::max(c.n, c.q), 2));
         }},
        {"HMergeTables(matrix*, int, int, matrix*, int, int, matrix*&)",
         [](Case& c) {
             HMergeTables(c.table("a", c.n, c.p), c.n, c.p, c.table("b", c.n, c.q), c.n, c.q,
                          c.out("out", c.n, c.p + c.q));
         }},
        {"HMergeTables(matrix*, int, int, matrix*, int, int, matrixInt*&)",
         [](Case& c) {
             HMergeTables(c.table("a", c.n, c.p), c.n, c.p, c.table("b", c.n, c.q), c.n, c.q,
                          c.outInts("out", c.n, c.p + c.q));
         }},
        {"HMergeTables(matrixInt*, int, int, matrixInt*, int, int, matrixInt*&)",
         [](Case& c) {
             HMergeTables(c.ints("a", c.n, c.p), c.n, c.p, c.ints("b", c.n, c.q), c.n, c.q,
                          c.outInts("out", c.n, c.p + c.q));
         }},
        {"HMergeTables(Smatrix*, int, int, Smatrix*, int, int, Smatrix*&)",
         [](Case& c) {
             HMergeTables(c.strings("a", c.n, c.p), c.n, c.p, c.strings("b", c.n, c.q), c.n, c.q,
                          c.outStrings("out", c.n, c.p + c.q));
         }},
        {"HMergeTables(matrix**, int, int, matrix*, int, int)",
         [](Case& c) { HMergeTables(c.columns("a", c.n, c.p + c.q), c.n, c.p, c.table("b", c.n, c.q), c.n, c.q); }},
        {"HMergeTables(matrix**, int, int, matrix**, int, int)",
         [](Case& c) { HMergeTables(c.columns("a", c.n, c.p + c.q), c.n, c.p, c.columns("b", c.n, c.q), c.n, c.q); }},
        {"VMergeVectors(matrix*, int, matrix*, int, matrix*&)",
         [](Case& c) {
             VMergeVectors(c.table("a", c.n, 1), c.n, c.table("b", c.q, 1), c.q, c.out("out", c.n + c.q, 1));
         }},
        {"VMergeVectors(Smatrix*, int, Smatrix*, int, Smatrix*&)",
         [](Case& c) {
             VMergeVectors(c.strings("a", c.n, 1), c.n, c.strings("b", c.q, 1), c.q, c.outStrings("out", c.n + c.q, 1));
         }},
        {"VMergeVectors2(matrix*, int, matrix*, int)",
         [](Case& c) { VMergeVectors2(c.table("a", c.n + c.q, 1), c.n, c.table("b", c.q, 1), c.q); }},
        {"VMergeVectors2(Smatrix*, int, Smatrix*, int)",
         [](Case& c) { VMergeVectors2(c.strings("a", c.n + c.q, 1), c.n, c.strings("b", c.q, 1), c.q); }},
        {"VMergeVectorsBool2",
         [](Case& c) { VMergeVectorsBool2(c.table("a", c.n + c.q, 1), c.n, c.table("b", c.q, 1), c.q); }},
        {"VMergeTables",
         [](Case& c) {
             VMergeTables(c.table("a", c.n, c.p), c.n, c.p, c.table("b", c.q, c.n), c.q, c.n,
                          c.out("out", c.n + c.q, std::max(c.p, c.n)));
         }},
        {"VMergeTablesSPV",
         [](Case& c) {
             VMergeTablesSPV(c.columns("a", c.n, c.p), c.n, c.p, c.table("b", c.q, c.n), c.q, c.n,
                             c.out("out", c.n + c.q, std::max(c.p, c.n)));
         }},
        {"CopyMatrixColToVectorSPV",
         [](Case& c) {
             CopyMatrixColToVectorSPV(c.columns("src", c.n, c.p), c.n, c.pick("col", 1, c.p), c.table("v", c.n, 1));
         }},
        {"CopyMatrixRowToMatrixRow",
         [](Case& c) {
             CopyMatrixRowToMatrixRow(c.table("src", c.n, c.p), c.p, c.pick("row", 0, c.n - 1), c.out("dst", c.q, c.p),
                                      c.q, c.pick("dstRow", 0, c.q - 1), c.option("prepare"));
         }},
        {"CopyCol",
         [](Case& c) {
             CopyCol(c.columns("src", c.n, c.p), c.p, c.pick("srcCol", 0, c.p - 1), c.pick("dstCol", 0, c.q - 1),
                     c.out("dst", c.n, c.q));
         }},
        {"M_Duplicate(matrix*, int, int, matrix*, int, int, int, int)",
         [](Case& c) {
             M_Duplicate(c.table("src", c.n + 3, c.p + 3), c.n, c.p, c.out("dst", c.n + 3, c.p + 3),
                         c.pick("dstRow", 1, 3), c.pick("dstCol", 1, 3), c.pick("srcRow", 1, 3),
                         c.pick("srcCol", 1, 3));
         }},
        {"M_Duplicate(matrixInt*, int, int, matrixInt*, int, int, int, int)",
         [](Case& c) {
             M_Duplicate(c.ints("src", c.n + 3, c.p + 3), c.n, c.p, c.outInts("dst", c.n + 3, c.p + 3),
                         c.pick("dstRow", 1, 3), c.pick("dstCol", 1, 3), c.pick("srcRow", 1, 3),
                         c.pick("srcCol", 1, 3));
         }},
        {"M_DuplicateSPV",
         [](Case& c) {
             M_DuplicateSPV(c.columns("src", c.n + 3, c.p + 3), c.n, c.p, c.out("dst", c.n + 3, c.p + 3),
                            c.pick("dstRow", 1, 3), c.pick("dstCol", 1, 3), c.pick("srcRow", 1, 3),
                            c.pick("srcCol", 1, 3));
         }},
        {"M_DuplicateSPV2",
         [](Case& c) {
             M_DuplicateSPV2(c.table("src", c.n + 3, c.p + 3), c.n, c.p, c.outColumns("dst", c.n + 3, c.p + 3),
                             c.pick("dstRow", 1, 3), c.pick("dstCol", 1, 3), c.pick("srcRow", 1, 3),
                             c.pick("srcCol", 1, 3));
         }},
        {"M_DuplicateSPV3",
         [](Case& c) {
             M_DuplicateSPV3(c.columns("src", c.n + 3, c.p + 3), c.n, c.p, c.outColumns("dst", c.n + 3, c.p + 3),
                             c.pick("dstRow", 1, 3), c.pick("dstCol", 1, 3), c.pick("srcRow", 1, 3),
                             c.pick("srcCol", 1, 3));
         }},
        {"M_DuplicateSPV2_T",
         [](Case& c) {
             M_DuplicateSPV2_T(c.table("src", c.n + 3, c.p + 3), c.n, c.p, c.outTriangle("dst", c.n + c.p + 3),
                               c.pick("dstRow", 1, 3), c.pick("dstCol", 1, 3), c.pick("srcRow", 1, 3),
                               c.pick("srcCol", 1, 3));
         }},
        {"M_DuplicateSPV3_T",
         [](Case& c) {
             M_DuplicateSPV3_T(c.triangle("src", c.n + c.p + 3), c.n, c.p, c.outTriangle("dst", c.n + c.p + 3),
                               c.pick("dstRow", 1, 3), c.pick("dstCol", 1, 3), c.pick("srcRow", 1, 3),
                               c.pick("srcCol", 1, 3));
         }},
        {"M_CopyBlock(matrix**, int, int, int, int, matrix*)",
         [](Case& c) {
             M_CopyBlock(c.columns("src", c.n, c.p), c.pick("r1", 1, (c.n + 1) / 2), c.pick("r2", (c.n + 1) / 2, c.n),
                         c.pick("c1", 1, (c.p + 1) / 2), c.pick("c2", (c.p + 1) / 2, c.p), c.out("dst", c.n, c.p));
         }},
        {"M_CopyBlock(matrix*, int, int, int, int, matrix**)",
         [](Case& c) {
             M_CopyBlock(c.table("src", c.n, c.p), c.pick("r1", 1, (c.n + 1) / 2), c.pick("r2", (c.n + 1) / 2, c.n),
                         c.pick("c1", 1, (c.p + 1) / 2), c.pick("c2", (c.p + 1) / 2, c.p),
                         c.outColumns("dst", c.n, c.p));
         }},
        {"M_CopyBlock(matrix**, int, int, int, int, matrix**)",
         [](Case& c) {
             M_CopyBlock(c.columns("src", c.n, c.p), c.pick("r1", 1, (c.n + 1) / 2), c.pick("r2", (c.n + 1) / 2, c.n),
                         c.pick("c1", 1, (c.p + 1) / 2), c.pick("c2", (c.p + 1) / 2, c.p),
                         c.outColumns("dst", c.n, c.p));
         }},
        {"M_CopyBlock(Smatrix**, int, int, int, int, Smatrix*&)",
         [](Case& c) {
             M_CopyBlock(c.stringColumns("src", c.n, c.p), c.pick("r1", 1, (c.n + 1) / 2),
                         c.pick("r2", (c.n + 1) / 2, c.n), c.pick("c1", 1, (c.p + 1) / 2),
                         c.pick("c2", (c.p + 1) / 2, c.p), c.outStrings("dst", c.n, c.p));
         }},
        {"M_CopyBlockSPV_T",
         [](Case& c) {
             M_CopyBlockSPV_T(c.triangle("src", c.n + c.p), c.pick("r1", 1, (c.n + 1) / 2),
                              c.pick("r2", (c.n + 1) / 2, c.n), c.pick("c1", 1, (c.p + 1) / 2),
                              c.pick("c2", (c.p + 1) / 2, c.p), c.outColumns("dst", c.n, c.p));
         }},
        {"M_CopyBlockSPV2_T",
         [](Case& c) {
             M_CopyBlockSPV2_T(c.triangle("src", c.n + c.p), c.pick("r1", 1, (c.n + 1) / 2),
                               c.pick("r2", (c.n + 1) / 2, c.n), c.pick("r1", 1, (c.n + 1) / 2),
                               c.pick("r2", (c.n + 1) / 2, c.n), c.outTriangle("dst", c.n + c.p));
         }},
        {"M_CopyPasteBlock",
         [](Case& c) {
             M_CopyPasteBlock(c.table("src", c.n, c.p), c.pick("r1", 1, (c.n + 1) / 2),
                              c.pick("r2", (c.n + 1) / 2, c.n), c.pick("c1", 1, (c.p + 1) / 2),
                              c.pick("c2", (c.p + 1) / 2, c.p), c.out("dst", c.n + 2, c.p + 2), c.pick("row", 1, 3),
                              c.pick("col", 1, 3));
         }},
        {"M_CopyPasteBlockSPV",
         [](Case& c) {
             M_CopyPasteBlockSPV(c.columns("src", c.n, c.p), c.pick("r1", 1, (c.n + 1) / 2),
                                 c.pick("r2", (c.n + 1) / 2, c.n), c.pick("c1", 1, (c.p + 1) / 2),
                                 c.pick("c2", (c.p + 1) / 2, c.p), c.out("dst", c.n + 2, c.p + 2), c.pick("row", 1, 3),
                                 c.pick("col", 1, 3));
         }},
        {"M_CopyPasteBlockStr",
         [](Case& c) {
             M_CopyPasteBlockStr(c.strings("src", c.n, c.p), c.pick("r1", 1, (c.n + 1) / 2),
                                 c.pick("r2", (c.n + 1) / 2, c.n), c.pick("c1", 1, (c.p + 1) / 2),
                                 c.pick("c2", (c.p + 1) / 2, c.p), c.outStrings("dst", c.n + 2, c.p + 2),
                                 c.pick("row", 1, 3), c.pick("col", 1, 3));
         }},
        {"M_PasteBlock(matrix*, int, int, matrix*, int, int)",
         [](Case& c) {
             M_PasteBlock(c.table("src", c.n, c.p), c.n, c.p, c.out("dst", c.n + 2, c.p + 2), c.pick("row", 1, 3),
                          c.pick("col", 1, 3));
         }},
        {"M_PasteBlock(matrixInt*, int, int, matrixInt*, int, int)",
         [](Case& c) {
             M_PasteBlock(c.ints("src", c.n, c.p), c.n, c.p, c.outInts("dst", c.n + 2, c.p + 2), c.pick("row", 1, 3),
                          c.pick("col", 1, 3));
         }},
        {"M_CopyToBigger",
         [](Case& c) { M_CopyToBigger(c.table("src", c.n, c.p), c.n, c.p, c.out("dst", c.n + 2, c.p + 1)); }},
        {"V_Duplicate(matrix*, int, int, int, matrix*, int, int)",
         [](Case& c) {
             V_Duplicate(c.table("src", c.n, c.p), c.pick("row", 1, (c.n + 1) / 2), 1, c.n / 2, c.out("dst", c.n, c.p),
                         c.pick("dstRow", 1, (c.n + 1) / 2), 1);
         }},
        {"V_Duplicate(matrixInt*, int, int, int, matrix*, int, int)",
         [](Case& c) {
             V_Duplicate(c.ints("src", c.n, c.p), c.pick("row", 1, (c.n + 1) / 2), 1, c.n / 2, c.out("dst", c.n, c.p),
                         c.pick("dstRow", 1, (c.n + 1) / 2), 1);
         }},
        {"V_Duplicate(matrixInt*, int, int, int, matrixInt*, int, int)",
         [](Case& c) {
             V_Duplicate(c.ints("src", c.n, c.p), c.pick("row", 1, (c.n + 1) / 2), 1, c.n / 2,
                         c.outInts("dst", c.n, c.p), c.pick("dstRow", 1, (c.n + 1) / 2), 1);
         }},
        {"M_ExtractMatToMat",
         [](Case& c) {
             M_ExtractMatToMat(c.table("src", c.n, c.p), c.p, c.pick("from", 1, (c.n + 1) / 2),
                               c.pick("to", (c.n + 1) / 2, c.n), c.out("out", c.n, c.p));
         }},
        {"M_ExtractMatToMatSPV",
         [](Case& c) {
             M_ExtractMatToMatSPV(c.columns("src", c.n, c.p), c.p, c.pick("from", 1, (c.n + 1) / 2),
                                  c.pick("to", (c.n + 1) / 2, c.n), c.out("out", c.n, c.p));
         }},
        {"M_MoveRow",
         [](Case& c) { M_MoveRow(c.table("a", c.n, c.p), c.p, c.pick("r1", 1, c.n), c.pick("r2", 1, c.n)); }},
        {"M_RemoveRows2(matrix*&, int, int, int, int)",
         [](Case& c) {
             M_RemoveRows2(c.table("a", c.n + 1, c.p), c.n + 1, c.p, c.pick("from", 2, 2 + c.n / 2),
                           c.pick("to", 2 + c.n / 2, c.n + 1));
         }},
        {"M_RemoveRows2(Smatrix*&, int, int, int, int)",
         [](Case& c) {
             M_RemoveRows2(c.strings("a", c.n + 1, c.p), c.n + 1, c.p, c.pick("from", 2, 2 + c.n / 2),
                           c.pick("to", 2 + c.n / 2, c.n + 1));
         }},
        {"M_RemoveRowsInList(matrix*, int, int, matrixInt*, matrix*)",
         [](Case& c) {
             c.gives(M_RemoveRowsInList(c.table("a", c.n, c.p), c.n, c.p, c.ints("flags", c.n, 1, whole(0, 1)),
                                        c.out("out", c.n, c.p)));
         }},
        {"M_RemoveRowsInList(matrix*, int, int, matrix*, matrix*)",
         [](Case& c) {
             c.gives(M_RemoveRowsInList(c.table("a", c.n, c.p), c.n, c.p, c.table("flags", c.n, 1, whole(0, 1)),
                                        c.out("out", c.n, c.p)));
         }},
        {"M_RemoveColsInList(matrix*, int, int, matrixInt*, matrix*)",
         [](Case& c) {
             c.gives(M_RemoveColsInList(c.table("a", c.n, c.p), c.n, c.p, c.ints("flags", c.p, 1, whole(0, 1)),
                                        c.out("out", c.n, c.p)));
         }},
        {"M_RemoveColsInList(matrix*, int, int, matrix*, matrix*)",
         [](Case& c) {
             c.gives(M_RemoveColsInList(c.table("a", c.n, c.p), c.n, c.p, c.table("flags", c.p, 1, whole(0, 1)),
                                        c.out("out", c.n, c.p)));
         }},
        {"V_Reverse", [](Case& c) { V_Reverse(c.table("x", c.n, 1), c.n, c.out("out", c.n, 1)); }},
        {"M_DuplicateStrSPV",
         [](Case& c) {
             M_DuplicateStrSPV(c.stringColumns("src", c.n, c.p), c.n, c.p, c.stringColumns("dst", c.n, c.p));
         }},
    };
    return calls;
}

} // namespace vecmat::digest
