#include "vertical_merges.h"

#include "../access/block_copy.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_texts.h"
#include "detail/borrowed_moves.h"

#include <algorithm>

using vecmat::copyCells;
using vecmat::prepareResult;
using vecmat::sumOfCounts;
using vecmat::window;

namespace {

template <class Top, class Bottom, class Table>
void stack(Top* a, int r1, int c1, Bottom* b, int r2, int c2, Table*& out)
{
    prepareResult(out, sumOfCounts(r1, r2), std::max(c1, c2));
    copyCells(window(a, 0, 0), window(out, 0, 0), r1, c1);
    copyCells(window(b, 0, 0), window(out, r1, 0), r2, c2);
}

template <class Table>
void append(Table* a, int nA, Table* b, int nB)
{
    copyCells(window(b, 0, 0), window(a, nA, 0), nB, 1);
}

} // namespace

void VMergeVectors(matrix* a, int nA, matrix* b, int nB, matrix*& out)
{
    stack(a, nA, 1, b, nB, 1, out);
}

void VMergeVectors(Smatrix* a, int nA, Smatrix* b, int nB, Smatrix*& out)
{
    stack(a, nA, 1, b, nB, 1, out);
}

void VMergeVectors2(matrix* a, int nA, matrix* b, int nB)
{
    append(a, nA, b, nB);
}

void VMergeVectors2(Smatrix* a, int nA, Smatrix* b, int nB)
{
    append(a, nA, b, nB);
}

void VMergeVectorsBool2(matrix* a, int nA, matrix* b, int nB)
{
    append(a, nA, b, nB);
}

void VMergeTables(matrix* a, int r1, int c1, matrix* b, int r2, int c2, matrix*& out)
{
    stack(a, r1, c1, b, r2, c2, out);
}

void VMergeTablesSPV(matrix** a, int r1, int c1, matrix* b, int r2, int c2, matrix*& out)
{
    stack(a, r1, c1, b, r2, c2, out);
}

void vecmat::VMergeVectors(BorrowedTexts* a, int nA, BorrowedTexts* b, int nB, BorrowedTexts*& out)
{
    stack(a, nA, 1, b, nB, 1, out);
}

void vecmat::VMergeVectors2(BorrowedTexts* a, int nA, BorrowedTexts* b, int nB)
{
    append(a, nA, b, nB);
}
