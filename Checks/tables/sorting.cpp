// Sorts and ranks of tables.
#include "tables/case.h"

#include <algorithm>

namespace vecmat::digest {

std::span<const TableCall> sortingCalls()
{
    static const TableCall calls[] = {
        {"SortApply(matrix*, int, int, matrix*, matrix*&)",
         [](Case& c) {
             SortApply(c.table("source", c.n, c.p), c.n, c.p, c.table("order", c.n, 1, permuted),
                       c.out("out", c.n, c.p));
         }},
        {"SortApply(matrixInt*, int, int, matrix*, matrix*&)",
         [](Case& c) {
             SortApply(c.ints("source", c.n, c.p), c.n, c.p, c.table("order", c.n, 1, permuted),
                       c.out("out", c.n, c.p));
         }},
        {"SortApply(matrix*, int, int, matrix*, matrixInt*&)",
         [](Case& c) {
             SortApply(c.table("source", c.n, c.p), c.n, c.p, c.table("order", c.n, 1, permuted),
                       c.outInts("out", c.n, c.p));
         }},
        {"SortApply(matrixInt*, int, int, matrix*, matrixInt*&)",
         [](Case& c) {
             SortApply(c.ints("source", c.n, c.p), c.n, c.p, c.table("order", c.n, 1, permuted),
                       c.outInts("out", c.n, c.p));
         }},
        {"SortApply2(matrix*, int, int, matrix*)",
         [](Case& c) { SortApply2(c.table("table", c.n, c.p), c.n, c.p, c.table("order", c.n, 1, permuted)); }},
        {"SortApply2(matrixInt*, int, int, matrix*)",
         [](Case& c) { SortApply2(c.ints("table", c.n, c.p), c.n, c.p, c.table("order", c.n, 1, permuted)); }},
        {"V_GetRanks(matrix*, int, matrix*&)",
         [](Case& c) { V_GetRanks(c.table("x", c.n, 1), c.n, c.out("ranks", c.n, 1)); }},
        {"V_GetRanks(matrix*, int, matrixInt*&)",
         [](Case& c) { V_GetRanks(c.table("x", c.n, 1), c.n, c.outInts("ranks", c.n, 1)); }},
        {"V_GetRanksTies",
         [](Case& c) {
             V_GetRanksTies(c.table("x", c.n, 1), c.n, c.table("weights", c.n, 1, weights), c.out("ranks", c.n, 1),
                            &c.whole1("nTies", 0), c.out("tieSizes", c.n, 1));
         }},
        {"V_GetRanksTiesInt",
         [](Case& c) {
             V_GetRanksTiesInt(c.table("x", c.n, 1), c.n, c.table("weights", c.n, 1, weights), c.out("ranks", c.n, 1),
                               &c.whole1("nTies", 0), c.out("tieSizes", c.n, 1));
         }},
        {"M_GetRanksTies",
         [](Case& c) {
             M_GetRanksTies(c.table("table", c.n, c.p), c.n, c.pick("col", 1, c.p), c.table("weights", c.n, 1, weights),
                            c.out("out", c.n, c.p), &c.whole1("nTies", 0), c.out("tieSizes", c.n, 1));
         }},
        {"SortQ(matrix*&, int, int, int, int, matrix*&, matrix*&, int, short, short)",
         [](Case& c) {
             c.gives(SortQ(c.table("data", c.n, c.p), c.n, c.p, c.pick("first", 1, (c.n + 1) / 3 + 1), c.n,
                           c.table("key", c.n, 1), c.table("companion", c.n, c.q), c.q, c.option("descending"),
                           c.option("writeKeys")));
         }},
        {"SortQ(matrixInt*&, int, int, int, int, matrixInt*&, matrixInt*&, int, short, short)",
         [](Case& c) {
             c.gives(SortQ(c.ints("data", c.n, c.p), c.n, c.p, c.pick("first", 1, (c.n + 1) / 3 + 1), c.n,
                           c.ints("key", c.n, 1), c.ints("companion", c.n, c.q), c.q, c.option("descending"),
                           c.option("writeKeys")));
         }},
        {"SortQ(matrix*&, int, int, int, int, matrixInt*&, matrix*&, int, short, short)",
         [](Case& c) {
             c.gives(SortQ(c.table("data", c.n, c.p), c.n, c.p, c.pick("first", 1, (c.n + 1) / 3 + 1), c.n,
                           c.ints("key", c.n, 1), c.table("companion", c.n, c.q), c.q, c.option("descending"),
                           c.option("writeKeys")));
         }},
        {"SortQ(matrixInt*&, int, int, int, int, matrix*&, matrix*&, int, short, short)",
         [](Case& c) {
             c.gives(SortQ(c.ints("data", c.n, c.p), c.n, c.p, c.pick("first", 1, (c.n + 1) / 3 + 1), c.n,
                           c.table("key", c.n, 1), c.table("companion", c.n, c.q), c.q, c.option("descending"),
                           c.option("writeKeys")));
         }},
        {"SortQ(matrix**, int, int, int, int, matrix*&, matrix*&, int, short, short)",
         [](Case& c) {
             c.gives(SortQ(c.columns("data", c.n, c.p), c.n, c.p, c.pick("first", 1, (c.n + 1) / 3 + 1), c.n,
                           c.table("key", c.n, 1), c.table("companion", c.n, c.q), c.q, c.option("descending"),
                           c.option("writeKeys")));
         }},
        {"SortQ(Smatrix*&, int, int, int, int, matrix*&, matrix*&, int, short, short)",
         [](Case& c) {
             c.gives(SortQ(c.strings("data", c.n, c.p), c.n, c.p, c.pick("first", 1, (c.n + 1) / 3 + 1), c.n,
                           c.table("key", c.n, 1), c.table("companion", c.n, c.q), c.q, c.option("descending"),
                           c.option("writeKeys")));
         }},
        {"SortQ(Smatrix**, int, int, int, int, matrix*&, matrix*&, int, short, short)",
         [](Case& c) {
             c.gives(SortQ(c.stringColumns("data", c.n, c.p), c.n, c.p, c.pick("first", 1, (c.n + 1) / 3 + 1), c.n,
                           c.table("key", c.n, 1), c.table("companion", c.n, c.q), c.q, c.option("descending"),
                           c.option("writeKeys")));
         }},
        {"SortQByCol",
         [](Case& c) {
             c.gives(SortQByCol(c.table("data", c.n, c.p), c.n, c.p, c.pick("first", 1, (c.p + 1) / 3 + 1), c.p,
                                c.table("key", c.p, 1), c.table("companion", c.q, c.p), c.q, c.option("descending"),
                                c.option("writeKeys")));
         }},
        {"SortQMatrixCol(matrix*&, int, int, int, int, int, short)",
         [](Case& c) {
             c.gives(SortQMatrixCol(c.table("table", c.n, c.p), c.n, c.p, c.pick("col", 1, c.p),
                                    c.pick("first", 1, (c.n + 1) / 3 + 1), c.n, c.option("descending")));
         }},
        {"SortQMatrixCol(matrixInt*&, int, int, int, int, int, short)",
         [](Case& c) {
             c.gives(SortQMatrixCol(c.ints("table", c.n, c.p), c.n, c.p, c.pick("col", 1, c.p),
                                    c.pick("first", 1, (c.n + 1) / 3 + 1), c.n, c.option("descending")));
         }},
        {"SortQMatrixCol(Smatrix*&, int, int, int, int, int, short)",
         [](Case& c) {
             c.gives(SortQMatrixCol(c.strings("table", c.n, c.p), c.n, c.p, c.pick("col", 1, c.p),
                                    c.pick("first", 1, (c.n + 1) / 3 + 1), c.n, c.option("descending")));
         }},
        {"SortQVector(double*&, int, int, int, short)",
         [](Case& c) {
             double* x = c.array("x", c.n);
             c.gives(SortQVector(x, c.n, c.pick("first", 1, (c.n + 1) / 3 + 1), c.n, c.option("descending")));
         }},
        {"SortQVector(int*&, int, int, int, short)",
         [](Case& c) {
             int* x = c.intArray("x", c.n);
             c.gives(SortQVector(x, c.n, c.pick("first", 1, (c.n + 1) / 3 + 1), c.n, c.option("descending")));
         }},
        {"SortQVector(matrix*&, int, int, int, short)",
         [](Case& c) {
             c.gives(SortQVector(c.table("x", c.n, 1), c.n, c.pick("first", 1, (c.n + 1) / 3 + 1), c.n,
                                 c.option("descending")));
         }},
        {"SortQVector(matrixInt*&, int, int, int, short)",
         [](Case& c) {
             c.gives(SortQVector(c.ints("x", c.n, 1), c.n, c.pick("first", 1, (c.n + 1) / 3 + 1), c.n,
                                 c.option("descending")));
         }},
        {"SortQVector(Smatrix*, int, int, short)",
         [](Case& c) {
             c.gives(SortQVector(c.strings("x", c.n, 1), c.pick("first", 1, (c.n + 1) / 3 + 1), c.n,
                                 c.option("descending")));
         }},
        {"SortMatrixSeqQ(matrix*&, int, int, short)",
         [](Case& c) { c.gives(SortMatrixSeqQ(c.table("table", c.n, c.p), c.n, c.p, c.option("lastToFirst"))); }},
        {"SortMatrixSeqQ(matrixInt*&, int, int, short)",
         [](Case& c) { c.gives(SortMatrixSeqQ(c.ints("table", c.n, c.p), c.n, c.p, c.option("lastToFirst"))); }},
        {"SortMatrixSeqQP1toP2(matrix*, int, int, int, int, short)",
         [](Case& c) {
             c.gives(SortMatrixSeqQP1toP2(c.table("table", c.n, c.p), c.n, c.p, c.pick("firstCol", 1, (c.p + 1) / 2),
                                          c.p, c.option("lastToFirst")));
         }},
        {"SortMatrixSeqQP1toP2(matrixInt*, int, int, int, int, short)",
         [](Case& c) {
             c.gives(SortMatrixSeqQP1toP2(c.ints("table", c.n, c.p), c.n, c.p, c.pick("firstCol", 1, (c.p + 1) / 2),
                                          c.p, c.option("lastToFirst")));
         }},
        {"SortDataBy01(matrix*&, int, int, matrix*&)",
         [](Case& c) {
             c.gives(SortDataBy01(c.table("data", c.n, c.p), c.n, c.p, c.table("key", c.n, 1, whole(0, 1))));
         }},
        {"SortDataBy01(matrix**, int, int, matrix*&)",
         [](Case& c) {
             c.gives(SortDataBy01(c.columns("data", c.n, c.p), c.n, c.p, c.table("key", c.n, 1, whole(0, 1))));
         }},
        {"SortDataBy01(Smatrix*&, int, int, matrix*&)",
         [](Case& c) {
             c.gives(SortDataBy01(c.strings("data", c.n, c.p), c.n, c.p, c.table("key", c.n, 1, whole(0, 1))));
         }},
        {"M_CopyBlock(matrix*, int, int, int, int, matrix*&)",
         [](Case& c) {
             c.gives(M_CopyBlock(c.table("src", c.n, c.p), c.pick("r1", 1, (c.n + 1) / 2),
                                 c.pick("r2", (c.n + 1) / 2, c.n), c.pick("c1", 1, (c.p + 1) / 2),
                                 c.pick("c2", (c.p + 1) / 2, c.p), c.out("dst", c.n, c.p)));
         }},
        {"M_CopyBlock(matrixInt*, int, int, int, int, matrixInt*&)",
         [](Case& c) {
             c.gives(M_CopyBlock(c.ints("src", c.n, c.p), c.pick("r1", 1, (c.n + 1) / 2),
                                 c.pick("r2", (c.n + 1) / 2, c.n), c.pick("c1", 1, (c.p + 1) / 2),
                                 c.pick("c2", (c.p + 1) / 2, c.p), c.outInts("dst", c.n, c.p)));
         }},
        {"M_CopyBlock(Smatrix*, int, int, int, int, Smatrix*&)",
         [](Case& c) {
             c.gives(M_CopyBlock(c.strings("src", c.n, c.p), c.pick("r1", 1, (c.n + 1) / 2),
                                 c.pick("r2", (c.n + 1) / 2, c.n), c.pick("c1", 1, (c.p + 1) / 2),
                                 c.pick("c2", (c.p + 1) / 2, c.p), c.outStrings("dst", c.n, c.p)));
         }},
    };
    return calls;
}

} // namespace vecmat::digest
