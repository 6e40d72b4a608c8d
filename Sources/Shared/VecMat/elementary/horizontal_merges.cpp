#include "horizontal_merges.h"

#include "../access/block_copy.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_texts.h"
#include "detail/borrowed_moves.h"

#include <algorithm>

using vecmat::copyCells;
using vecmat::prepareResult;
using vecmat::sumOfCounts;
using vecmat::window;
using vecmat::zeroBased;

namespace {

template <class Left, class Right, class Table>
void mergeSideBySide(Left left, int r1, int c1, Right right, int r2, int c2, Table*& out)
{
    prepareResult(out, std::max(r1, r2), sumOfCounts(c1, c2));
    copyCells(left, window(out, 0, 0), r1, c1);
    copyCells(right, window(out, 0, c1), r2, c2);
}

template <class Source, class Table>
void mergeTables(Source* a, int r1, int c1, Source* b, int r2, int c2, Table*& out)
{
    mergeSideBySide(window(a, 0, 0), r1, c1, window(b, 0, 0), r2, c2, out);
}

/// A caller's vector as a table, for the duration of a call.
matrix asTable(double* v, int n)
{
    return matrix(n, 1, v, true);
}

/// The vector and one column of the table, counted from 0.
void mergeVectorAndColumn(matrix* v, int n, matrix* t, int r, int col, matrix*& out)
{
    mergeSideBySide(window(v, 0, 0), n, 1, window(t, 0, col), r, 1, out);
}

} // namespace

void HMergeVectors(double* a, int nA, double* b, int nB, matrix*& out)
{
    matrix left = asTable(a, nA);
    matrix right = asTable(b, nB);
    mergeTables(&left, nA, 1, &right, nB, 1, out);
}

void HMergeTableVect(matrix* t, int r, int c, double* v, int n, matrix*& out)
{
    matrix vector = asTable(v, n);
    mergeTables(t, r, c, &vector, n, 1, out);
}

void HMergeTableVect2(matrix* t, int c, double* v, int n)
{
    matrix vector = asTable(v, n);
    copyCells(window(&vector, 0, 0), window(t, 0, c), n, 1);
}

void HMergeVectTable(double* v, int n, matrix* t, int r, int c, matrix*& out)
{
    matrix vector = asTable(v, n);
    HMergeVectTable(&vector, n, t, r, c, out);
}

void HMergeVectTable(matrix* v, int n, matrix* t, int r, int c, matrix*& out)
{
    mergeTables(v, n, 1, t, r, c, out);
}

void HMergeVectCol(double* v, int n, matrix* t, int r, int col, matrix*& out)
{
    matrix vector = asTable(v, n);
    mergeVectorAndColumn(&vector, n, t, r, zeroBased(col), out);
}

void HMergeVectCol(matrix* v, int n, matrix* t, int r, int col, matrix*& out)
{
    mergeVectorAndColumn(v, n, t, r, col, out); // from 0 already, unlike in the form above
}

void HMergeTables(matrix* a, int r1, int c1, matrix* b, int r2, int c2, matrix*& out)
{
    mergeTables(a, r1, c1, b, r2, c2, out);
}

void HMergeTables(matrix* a, int r1, int c1, matrix* b, int r2, int c2, matrixInt*& out)
{
    mergeTables(a, r1, c1, b, r2, c2, out);
}

void HMergeTables(matrixInt* a, int r1, int c1, matrixInt* b, int r2, int c2, matrixInt*& out)
{
    mergeTables(a, r1, c1, b, r2, c2, out);
}

void HMergeTables(Smatrix* a, int r1, int c1, Smatrix* b, int r2, int c2, Smatrix*& out)
{
    mergeTables(a, r1, c1, b, r2, c2, out);
}

void HMergeTables(matrix** a, int /*r1*/, int c1, matrix* b, int r2, int c2)
{
    copyCells(window(b, 0, 0), window(a, 0, c1), r2, c2);
}

void HMergeTables(matrix** a, int /*r1*/, int c1, matrix** b, int r2, int c2)
{
    copyCells(window(b, 0, 0), window(a, 0, c1), r2, c2);
}

void vecmat::HMergeTables(BorrowedTexts* a, int r1, int c1, BorrowedTexts* b, int r2, int c2, BorrowedTexts*& out)
{
    mergeTables(a, r1, c1, b, r2, c2, out);
}
