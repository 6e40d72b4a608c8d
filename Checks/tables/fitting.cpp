// Fits to tables.
#include "tables/case.h"

#include <algorithm>

namespace vecmat::digest {

namespace {

/// The group of each variable: the first half, and the others.
std::vector<int> twoGroups(const Case& c)
{
    std::vector<int> groups(static_cast<std::size_t>(c.p), 1);
    std::fill(groups.begin() + c.p / 2, groups.end(), 2);
    return groups;
}

} // namespace

std::span<const TableCall> fittingCalls()
{
    static const TableCall calls[] = {
        {"BiplotTransData(matrix*, matrix*, matrix*, int, int, int, int, matrix*, double, double, matrix*&, matrix*&)",
         [](Case& c) {
             BiplotTransData(c.table("rows", c.n, c.q), c.table("sup", c.p, c.q), c.table("cols", c.p, c.q), c.n, c.p,
                             c.p, c.q, c.table("eigen", c.q, 1, whole(0, 9)), c.n, c.pick("alpha", 0, 4) / 4.0,
                             c.out("obs", c.n + c.p, c.q), c.out("var", c.p, c.q));
         }},
        {"BiplotTransData(matrix**, matrix*, matrix**, int, int, int, int, matrix*, double, double, matrix*&, "
         "matrix*&)",
         [](Case& c) {
             BiplotTransData(c.columns("rows", c.n, c.q), c.table("sup", c.p, c.q), c.columns("cols", c.p, c.q), c.n,
                             c.p, c.p, c.q, c.table("eigen", c.q, 1, whole(0, 9)), c.n, c.pick("alpha", 0, 4) / 4.0,
                             c.out("obs", c.n + c.p, c.q), c.out("var", c.p, c.q));
         }},
        {"cComputeCosines", [](Case& c) { cComputeCosines(c.table("a", c.n, c.q), c.n, c.q, c.out("out", c.n, c.q)); }},
        {"cComputeCosinesSPV",
         [](Case& c) { cComputeCosinesSPV(c.columns("a", c.n, c.q), c.n, c.q, c.out("out", c.n, c.q)); }},
        {"M_BoldCosines",
         [](Case& c) { M_BoldCosines(c.ints("best", c.n, 1, whole(1, c.p)), c.n, c.ints("flags", c.n, c.p)); }},
        {"OLSBasic",
         [](Case& c) {
             OLSBasic(c.n, c.p, c.table("X", c.n, c.p), c.table("y", c.n, 1), c.table("w", c.n, 1, weights),
                      c.pick("degree", 1, 3), c.option("interactions"), c.option("noIntercept"), 1e-10,
                      c.out("beta", 3 * c.p + c.p * c.p + 1, 1), c.out("fitted", c.n, 1));
         }},
        {"OLSBasic2",
         [](Case& c) {
             OLSBasic2(c.n, c.p, c.table("X", c.n, c.p), c.table("y", c.n, 1), c.table("w", c.n, 1, weights),
                       c.pick("degree", 1, 3), c.option("interactions"), c.option("noIntercept"), 1e-10,
                       c.out("beta", 3 * c.p + c.p * c.p + 1, 1), c.out("se", 3 * c.p + c.p * c.p + 1, 1),
                       c.out("fitted", c.n, 1));
         }},
        {"OLSBasic3",
         [](Case& c) {
             OLSBasic3(c.n, c.p, c.table("X", c.n, c.p), c.table("y", c.n, 1), c.table("w", c.n, 1, weights),
                       c.pick("degree", 1, 3), c.option("interactions"), c.option("noIntercept"), 1e-10,
                       c.out("beta", 3 * c.p + c.p * c.p + 1, 1), c.out("se", 3 * c.p + c.p * c.p + 1, 1),
                       c.out("fitted", c.n, 1), c.out("swept", 3 * c.p + c.p * c.p + 2, 3 * c.p + c.p * c.p + 2),
                       c.out("mean", 3 * c.p + c.p * c.p + 2, 1), c.out("sd", 3 * c.p + c.p * c.p + 2, 1));
         }},
        {"OLSBasic2Lg",
         [](Case& c) {
             OLSBasic2Lg(c.n, c.p, c.table("X1", c.n, c.p), 0, c.table("X2", c.n, 1), 1, c.table("X3", c.n, 1), c.q,
                         c.table("X4", c.n, c.q), 2, c.table("X5", c.n, 2), c.table("y", c.n, 1),
                         c.table("w", c.n, 1, weights), 1, c.option("noIntercept"), 1e-10,
                         c.out("beta", c.p + c.q + 4, 1), c.out("se", c.p + c.q + 4, 1), c.out("fitted", c.n, 1));
         }},
        {"OLSCheckIfIn",
         [](Case& c) { c.gives(OLSCheckIfIn(c.table("a", c.n * (c.n + 1) / 2, 1), c.n, c.pick("k", 1, c.n), 0.0)); }},
        {"CheckTolerance(matrix*, int, int, matrix*, matrix*, double, short, short, short, short, matrix*, matrix*, "
         "matrix*)",
         [](Case& c) {
             CheckTolerance(c.table("corr", c.p, c.p, definite), c.p, 2, c.table("selected", 2, 1, whole(0, 1)),
                            c.column("group", twoGroups(c)), 1e-3, c.option("pairCheck"), c.option("keepGoing"),
                            c.option("fromLast"), c.option("otherGroupsOnly"), c.out("status", c.p, 1),
                            c.out("tolerance", c.p, 1), c.out("vif", c.p, 1));
         }},
        {"CheckTolerance(matrix*, int, int, matrixInt*, matrixInt*, double, short, short, short, short, matrixInt*, "
         "matrix*, matrix*)",
         [](Case& c) {
             CheckTolerance(c.table("corr", c.p, c.p, definite), c.p, 2, c.ints("selected", 2, 1, whole(0, 1)),
                            c.intColumn("group", twoGroups(c)), 1e-3, c.option("pairCheck"), c.option("keepGoing"),
                            c.option("fromLast"), c.option("otherGroupsOnly"), c.outInts("status", c.p, 1),
                            c.out("tolerance", c.p, 1), c.out("vif", c.p, 1));
         }},
        {"cNewtonRaphson(matrix*&, int, matrixInt*, matrix*, matrix*, double, matrix*&, matrix*&, short, double)",
         [](Case& c) {
             c.gives(cNewtonRaphson(c.table("x", c.n, 1), c.n, c.ints("constraints", c.n, 1, whole(0, 1)),
                                    c.table("g", c.n, 1), c.table("H", c.n, c.n, definite), 0.5, c.out("se", c.n, 1),
                                    c.out("Hinv", c.n, c.n), c.option("limitStep"), 1.0));
         }},
        {"cNewtonRaphson(matrix*&, int, matrix*, matrix*, matrix*, double, matrix*&, matrix*&, short, double)",
         [](Case& c) {
             c.gives(cNewtonRaphson(c.table("x", c.n, 1), c.n, c.table("constraints", c.n, 1, whole(0, 1)),
                                    c.table("g", c.n, 1), c.table("H", c.n, c.n, definite), 0.5, c.out("se", c.n, 1),
                                    c.out("Hinv", c.n, c.n), c.option("limitStep"), 1.0));
         }},
    };
    return calls;
}

} // namespace vecmat::digest
