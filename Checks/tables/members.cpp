// Making, reading and copying tables.
#include "tables/case.h"

#include <memory>

namespace vecmat::digest {

namespace {

template <class Table>
void takesNew(Case& c, Table* table)
{
    const std::unique_ptr<Table> owner(table);
    c.takes(table);
}

/// A table with weights and the moments of its columns.
matrix*& weighted(Case& c, const char* name)
{
    matrix*& table = c.table(name, c.n, c.p);
    table->weighting(c.array("w", c.n, weights));
    table->calcDescStat(-1);
    return table;
}

} // namespace

std::span<const TableCall> memberCalls()
{
    static const TableCall calls[] = {
        {"matrix::matrix(int, int, int)", [](Case& c) { takesNew(c, new matrix(c.n, c.p, c.pick("value", -9, 9))); }},
        {"matrix::matrix(int, int, double)", [](Case& c) { takesNew(c, new matrix(c.n, c.p, c.number("value"))); }},
        {"matrix::matrix(int, int, double*, bool)",
         [](Case& c) {
             takesNew(c, new matrix(c.n, c.p, c.array("src", c.n * c.p), false));
             takesNew(c, new matrix(c.n, c.p, c.array("src", c.n * c.p), true));
         }},
        {"matrix::matrix(int, int, double*, int, int)",
         [](Case& c) { takesNew(c, new matrix(c.n, c.p, c.array("src", c.n * c.p), c.n, c.p / 2)); }},
        {"matrix::matrix(int, int, short*)",
         [](Case& c) { takesNew(c, new matrix(c.n, c.p, c.mask("src", c.n * c.p))); }},
        {"matrix::matrix(int, matrix*)", [](Case& c) { takesNew(c, new matrix(c.n + c.q, weighted(c, "src"))); }},
        {"matrix::matrix(matrix&)", [](Case& c) { takesNew(c, new matrix(*weighted(c, "src"))); }},
        {"matrix::vbget(int, int)",
         [](Case& c) { c.gives(c.table("this", c.n, c.p)->vbget(c.pick("i", 0, c.n + 1), c.pick("j", 0, c.p + 1))); }},
        {"matrix::vbset(int, int, double)",
         [](Case& c) {
             c.table("this", c.n, c.p)->vbset(c.pick("i", 0, c.n + 1), c.pick("j", 0, c.p + 1), c.number("v"));
         }},
        {"matrix::GetX()", [](Case& c) { c.gives(*c.table("this", c.n, c.p)->GetX()); }},
        {"matrix::copyMatTo(double*)",
         [](Case& c) { c.table("this", c.n, c.p)->copyMatTo(c.array("dst", c.n * c.p, zeros)); }},
        {"matrix::copyMatTo(double*, int*, int*)",
         [](Case& c) {
             c.table("this", c.n, c.p)
                 ->copyMatTo(c.array("dst", c.n * c.p, zeros), &c.whole1("rows", 0), &c.whole1("cols", 0));
         }},
        {"matrix::copyMatTo(short*)", [](Case& c) { c.table("this", c.n, c.p)->copyMatTo(c.mask("dst", c.n * c.p)); }},
        {"matrix::copyMatTo(matrix*)",
         [](Case& c) { c.table("this", c.n, c.p)->copyMatTo(c.out("dst", c.n * c.p, 1)); }},
        {"matrix::copyMatTo(matrixInt*)",
         [](Case& c) { c.table("this", c.n, c.p)->copyMatTo(c.outInts("dst", c.n * c.p, 1)); }},
        {"matrix::vectorizeTo(matrix*)",
         [](Case& c) { c.table("this", c.n, c.p)->vectorizeTo(c.out("dst", c.n, c.p)); }},
        {"matrix::condenseTo(matrix*)",
         [](Case& c) { c.table("this", c.n, c.p)->condenseTo(c.out("dst", c.p + 1, c.n)); }},
        {"matrix::transposeTo(matrix*)",
         [](Case& c) { c.table("this", c.n, c.p)->transposeTo(c.out("dst", c.n, c.p)); }},
        {"matrix::copyCol(matrix*, int, int)",
         [](Case& c) {
             c.table("this", c.n, c.p)
                 ->copyCol(c.table("src", c.n, c.q), c.pick("from", 0, c.q - 1), c.pick("to", 0, c.p - 1));
         }},
        {"matrix::copyCol(matrixInt*, int, int)",
         [](Case& c) {
             c.table("this", c.n, c.p)
                 ->copyCol(c.ints("src", c.n, c.q), c.pick("from", 0, c.q - 1), c.pick("to", 0, c.p - 1));
         }},
        {"matrix::copyLine(matrix*, int, int)",
         [](Case& c) {
             c.table("this", c.n, c.p)
                 ->copyLine(c.table("src", c.q, c.p), c.pick("from", 0, c.q - 1), c.pick("to", 0, c.n - 1));
         }},
        {"matrix::transferLineFrom(matrix*, int, int)",
         [](Case& c) {
             c.table("this", c.n, c.p)
                 ->transferLineFrom(c.table("src", c.q, c.p), c.pick("from", 0, c.q - 1), c.pick("to", 0, c.n - 1));
         }},
        {"matrix::matCheck(matrix*&, int, int, double)",
         [](Case& c) { matrix::matCheck(c.table("ref", c.n, c.p), c.p, c.n, c.number("value")); }},
        {"matrix::InitWeights()", [](Case& c) { c.table("this", c.n, c.p)->InitWeights(); }},
        {"matrix::InitWeightcorr()", [](Case& c) { c.table("this", c.n, c.p)->InitWeightcorr(); }},
        {"matrix::InitnCol()", [](Case& c) { c.table("this", c.n, c.p)->InitnCol(); }},
        {"matrix::weighting(double*)",
         [](Case& c) { c.table("this", c.n, c.p)->weighting(c.array("w", c.n, weights)); }},
        {"matrix::weighting(matrix*)",
         [](Case& c) { c.table("this", c.n, c.p)->weighting(c.table("w", (c.n + 1) / 2, 1, weights)); }},
        {"matrixInt::matrixInt(int, int, int)",
         [](Case& c) { takesNew(c, new matrixInt(c.n, c.p, c.pick("value", -9, 9))); }},
        {"matrixInt::matrixInt(int, int, int*, bool)",
         [](Case& c) {
             takesNew(c, new matrixInt(c.n, c.p, c.intArray("src", c.n * c.p), false));
             takesNew(c, new matrixInt(c.n, c.p, c.intArray("src", c.n * c.p), true));
         }},
        {"matrixInt::matrixInt(int, matrixInt*)",
         [](Case& c) { takesNew(c, new matrixInt(c.n + c.q, c.ints("src", c.n, c.p))); }},
        {"matrixInt::vbget(int, int)",
         [](Case& c) { c.gives(c.ints("this", c.n, c.p)->vbget(c.pick("i", 0, c.n + 1), c.pick("j", 0, c.p + 1))); }},
        {"matrixInt::vbset(int, int, int)",
         [](Case& c) { c.ints("this", c.n, c.p)->vbset(c.pick("i", 0, c.n + 1), c.pick("j", 0, c.p + 1), 7); }},
        {"matrixInt::copyMatTo(int*)",
         [](Case& c) { c.ints("this", c.n, c.p)->copyMatTo(c.intArray("dst", c.n * c.p, zeros)); }},
        {"matrixInt::copyMatTo(matrixInt*)",
         [](Case& c) { c.ints("this", c.n, c.p)->copyMatTo(c.outInts("dst", c.n * c.p, 1)); }},
        {"matrixInt::matCheck(matrixInt*&, int, int, double)",
         [](Case& c) { matrixInt::matCheck(c.ints("ref", c.n, c.p), c.p, c.n, c.pick("value", -20, 20) / 8.0); }},
        {"Smatrix::Smatrix(int, int)", [](Case& c) { takesNew(c, new Smatrix(c.n, c.p)); }},
        {"Smatrix::Smatrix(int, int, wchar_t**, int, int)",
         [](Case& c) { takesNew(c, new Smatrix(c.n, c.p, c.bstrs("src", c.n * c.p), c.n, c.p)); }},
        {"Smatrix::Smatrix(Smatrix&)", [](Case& c) { takesNew(c, new Smatrix(*c.strings("src", c.n, c.p))); }},
        {"Smatrix::matCheck(Smatrix*&, int, int)",
         [](Case& c) { Smatrix::matCheck(c.strings("ref", c.n, c.p), c.p, c.n); }},
        {"Smatrix::copyMatTo(Smatrix*)",
         [](Case& c) { c.strings("this", c.n, c.p)->copyMatTo(c.outStrings("dst", c.n * c.p, 1)); }},
        {"Smatrix::copyMatTo(wchar_t**)",
         [](Case& c) { c.strings("this", c.n, c.p)->copyMatTo(c.noBstrs("dst", c.n * c.p)); }},
    };
    return calls;
}

} // namespace vecmat::digest
