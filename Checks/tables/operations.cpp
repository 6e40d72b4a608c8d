// What a table of doubles computes by itself.
#include "tables/case.h"

#include <algorithm>
#include <array>

namespace vecmat::digest {

namespace {

matrix* self(Case& c)
{
    return c.table("this", c.n, c.p);
}

/// A table with weights.
matrix* weighted(Case& c, const char* name = "this", int rows = 0)
{
    matrix* const table = c.table(name, rows > 0 ? rows : c.n, c.p);
    table->weighting(c.table("w", table->nRows, 1, weights));
    return table;
}

int column(Case& c, const char* name = "col")
{
    return c.pick(name, 0, c.p - 1);
}

void zeroLines(Case& c)
{
    std::array<bool, 80> cols{}, rows{}, diagonal{};
    c.table("this", c.n, c.p, whole(0, c.pick("most", 0, 1)))
        ->calcStrucInfo(c.n, c.p, cols.data(), rows.data(), diagonal.data(), 0, 0);
    for (std::size_t k = 0; k < static_cast<std::size_t>(std::max(c.n, c.p)); ++k) {
        c.gives(cols[k]);
        c.gives(rows[k]);
        c.gives(diagonal[k]);
    }
}

} // namespace

std::span<const TableCall> operationCalls()
{
    static const TableCall calls[] = {
        {"matrix::calcDescStat(short)", [](Case& c) { weighted(c)->calcDescStat(c.option("mode")); }},
        {"matrix::getDescMu(int, short)",
         [](Case& c) { c.gives(weighted(c)->getDescMu(column(c), c.option("mode"))); }},
        {"matrix::getDescSigma(int, short)",
         [](Case& c) { c.gives(weighted(c)->getDescSigma(column(c), c.option("mode"))); }},
        {"matrix::Normalize()", [](Case& c) { c.gives(weighted(c)->Normalize()); }},
        {"matrix::Center()", [](Case& c) { c.gives(weighted(c)->Center()); }},
        {"matrix::getNorMu(int)",
         [](Case& c) {
             weighted(c)->Normalize();
             c.gives(self(c)->getNorMu(column(c)));
         }},
        {"matrix::getNorSigma(int)",
         [](Case& c) {
             weighted(c)->Normalize();
             c.gives(self(c)->getNorSigma(column(c)));
         }},
        {"matrix::calcMu(int)",
         [](Case& c) {
             self(c)->InitnCol();
             c.gives(self(c)->calcMu(column(c)));
         }},
        {"matrix::Normalize(int)", [](Case& c) { c.gives(self(c)->Normalize(column(c))); }},
        {"matrix::VInnerProd(int)", [](Case& c) { c.gives(self(c)->VInnerProd(column(c))); }},
        {"matrix::VInnerProd(int, bool, int, matrix*)",
         [](Case& c) {
             c.gives(self(c)->VInnerProd(column(c), true, c.pick("other", 0, c.q - 1), c.table("m", c.q, c.n)));
             c.gives(self(c)->VInnerProd(column(c), false, c.pick("other", 0, c.q - 1), c.table("t", c.n, c.q)));
         }},
        {"matrix::VInnerProdWeighted(int, bool, int, matrix*)",
         [](Case& c) {
             c.gives(
                 weighted(c)->VInnerProdWeighted(column(c), true, c.pick("other", 0, c.q - 1), c.table("m", c.q, c.n)));
             c.gives(
                 self(c)->VInnerProdWeighted(column(c), false, c.pick("other", 0, c.q - 1), c.table("t", c.n, c.q)));
         }},
        {"matrix::VSProd(int, matrix*, int)",
         [](Case& c) { c.gives(weighted(c)->VSProd(column(c), c.table("m", c.n, c.q), c.pick("mCol", 0, c.q - 1))); }},
        {"matrix::transVSProd(int, matrix*, int)",
         [](Case& c) {
             c.gives(
                 self(c)->transVSProd(c.pick("row", 0, c.n - 1), c.table("m", c.q, c.p), c.pick("mRow", 0, c.q - 1)));
         }},
        {"matrix::lineSqrSum(int)", [](Case& c) { c.gives(self(c)->lineSqrSum(c.pick("row", 0, c.n - 1))); }},
        {"matrix::VDiff(matrix*, int, int)",
         [](Case& c) { c.gives(self(c)->VDiff(c.table("m", c.n, c.q), column(c), c.pick("mCol", 0, c.q - 1))); }},
        {"matrix::SProd(int, double)", [](Case& c) { self(c)->SProd(c.pick("row", 0, c.n - 1), c.number("f")); }},
        {"matrix::weighting(double*, int)",
         [](Case& c) { self(c)->weighting(c.array("w", c.n, weights), c.pick("n", 0, c.n)); }},
        {"matrix::MDiff(matrix*)", [](Case& c) { c.gives(self(c)->MDiff(c.table("m", c.n + 1, c.p))); }},
        {"matrix::matProd(matrix*, matrix*)",
         [](Case& c) { c.gives(self(c)->matProd(c.table("a", c.n, c.q), c.table("b", c.q, c.p))); }},
        {"matrix::transMatProd(matrix*, matrix*)",
         [](Case& c) { c.gives(self(c)->transMatProd(c.table("a", c.q, c.n), c.table("b", c.q, c.p))); }},
        {"matrix::vecProd(matrix*, int, matrix*, int)",
         [](Case& c) {
             c.gives(self(c)->vecProd(c.table("a", c.n, c.q), c.pick("col", 0, c.q - 1), c.table("b", c.p, c.q),
                                      c.pick("bCol", 0, c.q - 1)));
         }},
        {"matrix::trans1vecProd(matrix*, int, matrix*, matrix*, int)",
         [](Case& c) {
             c.gives(c.table("this", c.p, c.p)
                         ->trans1vecProd(c.table("a", c.n, c.p), c.pick("row", 0, c.n - 1), c.table("v", c.n, 1),
                                         c.table("b", c.q, c.p), c.pick("bRow", 0, c.q - 1)));
         }},
        {"matrix::matVecProd(matrix*, matrix*, int, int)",
         [](Case& c) {
             c.gives(self(c)->matVecProd(c.table("a", c.n, c.p), c.table("b", c.p, c.q), c.pick("col", 0, c.q - 1),
                                         column(c, "dst")));
         }},
        {"matrix::oneMinus()", [](Case& c) { self(c)->oneMinus(); }},
        {"matrix::subtractResidual(matrix*, int, matrix*)",
         [](Case& c) {
             self(c)->subtractResidual(c.table("t", c.n, c.q), c.pick("k", 0, c.q - 1), c.table("p", c.p, c.q));
         }},
        {"matrix::predictLine(matrix*, matrix*, int, int, int)",
         [](Case& c) {
             c.gives(self(c)->predictLine(c.table("t", c.n, c.q), c.table("p", c.p, c.q), c.pick("row", 0, c.n - 1),
                                          c.q, c.pick("tRow", 0, c.n - 1)));
         }},
        {"matrix::GaussProd(matrix*, int, matrix*)",
         [](Case& c) {
             self(c)->GaussProd(c.table("x", c.p, c.q), c.pick("col", 0, c.q - 1), c.out("out", c.n, c.q));
         }},
        {"matrix::transGaussProd(matrix*, int, matrix*)",
         [](Case& c) {
             self(c)->transGaussProd(c.table("x", c.n, c.q), c.pick("col", 0, c.q - 1), c.out("out", c.p, c.q));
         }},
        {"matrix::GaussProdWeighted(matrix*, int, matrix*)",
         [](Case& c) {
             weighted(c)->GaussProdWeighted(c.table("x", c.p, c.q), c.pick("col", 0, c.q - 1), c.out("out", c.n, c.q));
         }},
        {"matrix::transGaussProdWeighted(matrix*, int, matrix*)",
         [](Case& c) { weighted(c)->transGaussProdWeighted(weighted(c, "x"), column(c), c.out("out", c.p, c.p)); }},
        {"matrix::calcStrucInfo(int, int, bool*, bool*, bool*, int, int)", [](Case& c) { zeroLines(c); }},
        {"matrix::inverse1(matrix*, short&, double)",
         [](Case& c) {
             short& status = c.short1("status", 0);
             c.gives(c.table("this", c.n, c.n, definite)->inverse1(c.out("out", c.n, c.n), status, 0.0));
         }},
    };
    return calls;
}

} // namespace vecmat::digest
