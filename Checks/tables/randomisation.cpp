// Draws from tables.
#include "tables/case.h"

#include <algorithm>

namespace vecmat::digest {

namespace {

/// A row for each pair of items.
matrix*& allPairs(Case& c)
{
    matrix*& pairs = c.table("pairs", c.n * (c.n - 1) / 2, 2, zeros);
    int row = 0;
    for (int i = 1; i < c.n; ++i)
        for (int j = i + 1; j <= c.n; ++j) {
            pairs->vbset(++row, 1, i);
            pairs->vbset(row, 2, j);
        }
    return pairs;
}

} // namespace

std::span<const TableCall> randomisationCalls()
{
    static const TableCall calls[] = {
        {"KroneckerTensorProduct",
         [](Case& c) {
             KroneckerTensorProduct(c.table("A", c.n, c.p), c.n, c.p, c.table("B", c.p, c.q), c.p, c.q,
                                    c.out("C", c.n * c.p, c.p * c.q));
         }},
        {"M_GenerateRandom01(matrix*&, int, int, int*, short, int*)",
         [](Case& c) {
             M_GenerateRandom01(c.table("t", c.n, c.p), c.n, c.p, &c.whole1("seed", 77), -1, &c.whole1("seedOut", 0));
         }},
        {"M_GenerateRandom01(matrixInt*&, int, int, int*, short, int*)",
         [](Case& c) {
             M_GenerateRandom01(c.ints("t", c.n, c.p), c.n, c.p, &c.whole1("seed", 77), -1, &c.whole1("seedOut", 0));
         }},
        {"Random1toN(int, matrixInt*, int&, short, int&)",
         [](Case& c) { Random1toN(c.n, c.outInts("out", c.n, 1), c.whole1("seed", 77), -1, c.whole1("seedOut", 0)); }},
        {"Random1toN(int, matrix*, int&, short, int&)",
         [](Case& c) { Random1toN(c.n, c.out("out", c.n, 1), c.whole1("seed", 77), -1, c.whole1("seedOut", 0)); }},
        {"V_Shuffle(matrix*, int, int&, short, int&)",
         [](Case& c) { V_Shuffle(c.table("v", c.n, 1), c.n, c.whole1("seed", 77), -1, c.whole1("seedOut", 0)); }},
        {"V_Shuffle(matrixInt*, int, int&, short, int&)",
         [](Case& c) { V_Shuffle(c.ints("v", c.n, 1), c.n, c.whole1("seed", 77), -1, c.whole1("seedOut", 0)); }},
        {"M_Shuffle(matrix*, int, int, matrix*, int&, short, int&)",
         [](Case& c) {
             M_Shuffle(c.table("X", c.n, c.p), c.n, c.p, c.out("Z", c.n, c.p), c.whole1("seed", 77), -1,
                       c.whole1("seedOut", 0));
         }},
        {"M_Shuffle(Smatrix*, int, int, Smatrix*, int&, short, int&)",
         [](Case& c) {
             M_Shuffle(c.strings("X", c.n, c.p), c.n, c.p, c.outStrings("Z", c.n, c.p), c.whole1("seed", 77), -1,
                       c.whole1("seedOut", 0));
         }},
        {"M_Shuffle2(matrix*, int, int, int&, short, int&)",
         [](Case& c) {
             M_Shuffle2(c.table("X", c.n, c.p), c.n, c.p, c.whole1("seed", 77), -1, c.whole1("seedOut", 0));
         }},
        {"M_Shuffle2(Smatrix*, int, int, int&, short, int&)",
         [](Case& c) {
             M_Shuffle2(c.strings("X", c.n, c.p), c.n, c.p, c.whole1("seed", 77), -1, c.whole1("seedOut", 0));
         }},
        {"CheckForMarginalSums",
         [](Case& c) {
             CheckForMarginalSums(*c.table("T", c.n, c.p, whole(-1, 1)), c.n, c.p, *c.out("R", c.n, c.p),
                                  c.whole1("rowsLeft", 0), c.whole1("colsLeft", 0), *c.ints("zeroRows", c.n, 1),
                                  *c.ints("zeroCols", c.p, 1));
         }},
        {"BuildGroupingForDiffs",
         [](Case& c) {
             c.gives(BuildGroupingForDiffs(
                 c.table("means", c.n, 2), 2, allPairs(c), c.n, c.ints("diff", c.n * (c.n - 1) / 2, 1, whole(0, 1)),
                 c.outStrings("labels", c.n, 256), &c.whole1("nGroups", 0), c.table("perm", c.n, 1, permuted), 1, 2,
                 &c.short1("sorted", 0), c.option("descending")));
         }},
    };
    return calls;
}

} // namespace vecmat::digest
