#include "symmetry.h"

#include "../access/adaptors.h"
#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"

#include <algorithm>

using vecmat::block;
using vecmat::booleanOf;
using vecmat::cells;
using vecmat::isMissing;
using vecmat::missingValue;
using vecmat::onBlocks;

namespace {

// ---- symmetric ------------------------------------------------------------------------------------------------------

template <class Checked>
short isSymmetric(Checked table, int n)
{
    return onBlocks(
        [n](auto x) {
            for (int i = 0; i < n; ++i)
                for (int j = i + 1; j < n; ++j)
                    if (x.get(i, j) != x.get(j, i))
                        return booleanOf(false);
            return booleanOf(true);
        },
        block(table, n, n));
}

/// One value for both cells of a pair. std::min and std::max give the first if a NaN leaves them unordered.
using Merge = double (*)(double upper, double lower);

double larger(double upper, double lower)
{
    return std::max(upper, lower);
}

double smallerPresent(double upper, double lower)
{
    const double smaller = std::min(upper, lower);
    return smaller > missingValue ? smaller : larger(upper, lower);
}

/// Half of the smaller cell if both are present: required, although their mean seems the obvious choice.
double halfOfTheSmaller(double upper, double lower)
{
    const double smaller = std::min(upper, lower);
    return smaller > missingValue ? smaller * 0.5 : larger(upper, lower);
}

Merge mergeOf(int mode)
{
    switch (mode) {
    case 0:
        return smallerPresent;
    case 1:
        return larger;
    case 2:
        return halfOfTheSmaller;
    default:
        return nullptr;
    }
}

template <class Checked>
void symmetrize(Checked table, int n, Merge merge)
{
    if (merge == nullptr)
        return;
    onBlocks(
        [n, merge](auto x) {
            for (int i = 0; i < n; ++i)
                for (int j = i + 1; j < n; ++j) {
                    const double upper = x.get(i, j);
                    const double lower = x.get(j, i);
                    if (upper == lower)
                        continue;
                    const double merged = merge(upper, lower);
                    x.set(i, j, merged);
                    x.set(j, i, merged);
                }
        },
        block(table, n, n));
}

// ---- triangular -----------------------------------------------------------------------------------------------------

template <class Cells>
bool lowerIsEmpty(Cells x, int n)
{
    for (int j = 0; j < n; ++j)
        for (int i = j + 1; i < n; ++i)
            if (const double cell = x.get(i, j); cell != 0.0 && !isMissing(cell))
                return false;
    return true;
}

template <class Cells>
void copyLowerToUpper(Cells x, int n)
{
    for (int j = 0; j < n; ++j)
        for (int i = j + 1; i < n; ++i)
            x.set(j, i, x.get(i, j));
}

constexpr int notTriangular = 0;
constexpr int lowerTriangular = 1;
constexpr int upperTriangular = 2;

template <class Checked>
int triangularKind(Checked table, int n, short fill)
{
    return onBlocks(
        [n, fill](auto x) {
            // Upper comes first: a diagonal table is both.
            if (lowerIsEmpty(x, n)) {
                if (fill == -1)
                    copyLowerToUpper(transposed(x), n);
                return upperTriangular;
            }
            // The lower part of the transpose is the upper part.
            if (lowerIsEmpty(transposed(x), n)) {
                if (fill == -1)
                    copyLowerToUpper(x, n);
                return lowerTriangular;
            }
            return notTriangular;
        },
        block(table, n, n));
}

// ---- proximities ----------------------------------------------------------------------------------------------------

constexpr int neither = 0;
constexpr int similarities = 1;
constexpr int dissimilarities = 2;

/// Which diagonal cell a cell is compared with.
enum class Diagonal { ofRow, ofColumn };

/// True if no present cell is on the wrong side of its diagonal cell, as decided by `wrong(cell, diagonal)`.
template <Diagonal diagonal, class Cells, class Wrong>
bool noneIsWrong(Cells x, int rows, int cols, Wrong wrong)
{
    for (int j = 0; j < cols; ++j)
        for (int i = 0; i < rows; ++i) {
            const int k = diagonal == Diagonal::ofRow ? i : j;
            if (const double cell = x.get(i, j); wrong(cell, x.get(k, k)) && cell > missingValue)
                return false;
        }
    return true;
}

/// Unlike in M_IsDiagConstant the first cell is compared too, so with a NaN there the diagonal is not constant.
template <class Cells>
bool diagonalIsConstant(Cells x, int n)
{
    for (int k = 0; k < n; ++k)
        if (x.get(k, k) != x.get(0, 0))
            return false;
    return true;
}

template <Diagonal diagonal, class Checked>
int proximityKind(Checked table, int rows, int cols, int kind)
{
    // Such a kind requests neither test: the table, which may be null, is not read.
    const bool withoutTheSecondTest = (kind & ~2) != 0;
    if (kind >= 2 && withoutTheSecondTest)
        return dissimilarities;
    return onBlocks(
        [=](auto x) {
            if (kind < 2) {
                if (noneIsWrong<diagonal>(x, rows, cols, [](double cell, double own) { return cell > own; }))
                    return similarities;
                if (kind == 1)
                    return neither;
            }
            if (withoutTheSecondTest)
                return dissimilarities;
            const bool far = noneIsWrong<diagonal>(x, rows, cols, [](double cell, double own) { return cell < own; });
            return far && diagonalIsConstant(x, cols) ? dissimilarities : neither;
        },
        // The diagonal runs to the last column, even beyond the rows.
        block(table, std::max(rows, cols), cols));
}

} // namespace

short M_IsSymmetric(matrix* a, int n)
{
    return isSymmetric(cells(a), n);
}

short M_IsSymmetricSPV(matrix** a, int n)
{
    return isSymmetric(cells(a), n);
}

void M_Symmetrize(matrix*& a, int n, int mode)
{
    symmetrize(cells(a), n, mergeOf(mode));
}

void M_SymmetrizeSPV(matrix** a, int n, int mode)
{
    symmetrize(cells(a), n, mergeOf(mode));
}

int M_IsTriangular(matrix*& a, int n, short fill)
{
    return triangularKind(cells(a), n, fill);
}

int M_IsTriangularSPV(matrix** a, int n, short fill)
{
    return triangularKind(cells(a), n, fill);
}

int M_CheckIfSimOrDissim(matrix* a, int n, int kind)
{
    return proximityKind<Diagonal::ofRow>(cells(a), n, n, kind);
}

int M_CheckIfSimOrDissimSPV(matrix** a, int rows, int cols, int kind)
{
    return proximityKind<Diagonal::ofColumn>(cells(a), rows, cols, kind);
}

void M_TransformSimToDissim(matrix*& a, int n)
{
    onBlocks(
        [n](auto x) {
            for (int i = 0; i < n; ++i) {
                for (int j = i + 1; j < n; ++j) {
                    const double similarity = x.get(i, j);
                    if (isMissing(similarity))
                        continue;
                    const double dissimilarity = x.get(i, i) - similarity;
                    x.set(i, j, dissimilarity);
                    x.set(j, i, dissimilarity);
                }
                x.set(i, i, 0.0);
            }
        },
        block(cells(a), n, n));
}
