#include "eigen.h"

#include "../access/cells.h"
#include "../access/overlap.h"
#include "../base/detail/companions.h"
#include "../base/detail/local_array.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../elementary/matrix_products.h"
#include "../elementary/scalar_arithmetic.h"
#include "../elementary/vector_products.h"
#include "../elementary/vector_sums.h"
#include "../frame/detail/handles.h"
#include "../sorting/detail/digit_passes.h"
#include "../sorting/detail/stable_order.h"
#include "detail/symmetric_ql.h"
#include "detail/symmetric_ql_workspace.h"

#include <algorithm>

using namespace vecmat;

namespace {

/// Column by column, to stop at the first missing cell.
template <class Cells>
bool hasMissing(Cells cells, int n)
{
    return onBlocks(
        [n](auto a) {
            for (int j = 0; j < n; ++j)
                for (int i = 0; i < n; ++i)
                    if (isMissing(a.get(i, j)))
                        return true;
            return false;
        },
        block(cells, n, n));
}

/// Copies column `placeOf(j)` of one table into column j of the other.
template <class From, class To, class PlaceOf>
void copyColumns(From from, To to, int n, PlaceOf placeOf)
{
    onBlocks(
        [n, placeOf](auto source, auto target) {
            for (int j = 0; j < n; ++j)
                for (int i = 0; i < n; ++i)
                    target.set(i, j, source.get(i, placeOf(j)));
        },
        block(from, n, n), block(to, n, n));
}

template <class From, class To>
void copySquare(From from, To to, int n)
{
    copyColumns(from, to, n, [](int j) { return j; });
}

/// Sorts the eigenvalues in descending order, ties in the order found, and the columns of `vectors` with them.
template <class Cells>
void sortDescending(matrix* values, Cells vectors, int n)
{
    // Allocate everything before moving values, so that values and vectors still match if memory runs out.
    const TableHandle table = fresh(n, n + 1); // the vectors as found, and their places
    const auto found = cells<matrix>(table);
    copySquare(vectors, found, n);
    const auto keys = linear(values);
    placeInStableOrder(
        {1, n}, Direction::descending,
        [&](int place) {
            return pairToSort{place, keys.get(place - 1)};
        },
        [&](int place, const pairToSort& next) {
            keys.set(place - 1, next.key);
            found.set(place - 1, n, next.position - 1);
        });
    copyColumns(found, vectors, n, [&](int j) { return truncated(found.get(j, n)); });
}

/// Below this order setting up a workspace costs more than it saves.
constexpr int smallestInWorkspace = 20;

/// Like `eigenInPlace`, in a workspace where that pays and the order of operations is not observable.
template <class Cells>
bool eigenOfPlainCells(Cells a, PlainVector<matrix> d, PlainVector<matrix> e, int n)
{
    if (n >= smallestInWorkspace && !a.folds(n, n) && areApart(storageOf(a, n, n), storageOf(d, n))) {
        SymmetricWorkspace<Cells> workspace(a, n);
        if (workspace.hasMemory())
            return workspace.run(d, e);
    }
    return eigenInPlace(a, d, e, n);
}

/// Common to all forms once `vectors` holds the input. The scratch memory is allocated before any result is prepared.
template <class Cells>
int decompose(Cells vectors, matrix*& values, LocalArray<double>& offDiagonal, int n, short sort)
{
    const PlainVector<matrix> e(offDiagonal.data());
    const bool converged = onBlocksOrElse([&](auto a, auto d) { return eigenOfPlainCells(a, d, e, n); },
                                          [&](auto a, auto d) { return eigenInPlace(a, d, e, n); },
                                          block(vectors, n, n), block(linear(values), n));
    if (!converged)
        return -1;
    if (sort == -1)
        sortDescending(values, vectors, n);
    return 0;
}

} // namespace

int M_Eigen(matrix* a, matrix*& values, matrix*& vectors, int n, short sort)
{
    try {
        if (hasMissing(cells(a), n))
            return -1;
        LocalArray<double> offDiagonal(countOf(n), 0.0);
        matrix::matCheck(values, n, 1, 0.0);
        matrix::matCheck(vectors, n, n, 0.0);
        copySquare(cells(a), cells(vectors), n);
        return decompose(cells(vectors), values, offDiagonal, n, sort);
    } catch (...) {
        return -1;
    }
}

int M_EigenSPV(matrix** a, matrix*& values, matrix** vectors, int n, short sort)
{
    try {
        if (hasMissing(cells(a), n))
            return -1;
        LocalArray<double> offDiagonal(countOf(n), 0.0);
        matrix::matCheck(values, n, 1, 0.0);
        copySquare(cells(a), cells(vectors), n);
        return decompose(cells(vectors), values, offDiagonal, n, sort);
    } catch (...) {
        return -1;
    }
}

int M_EigenDestroySPV(matrix** a, matrix*& values, int n, short sort)
{
    try {
        if (hasMissing(cells(a), n))
            return -1;
        LocalArray<double> offDiagonal(countOf(n), 0.0);
        matrix::matCheck(values, n, 1, 0.0);
        return decompose(cells(a), values, offDiagonal, n, sort);
    } catch (...) {
        return -1;
    }
}

// The one form without a handler: exceptions pass to the caller.
int M_EigenSPV_T(matrix** a, matrix*& values, matrix** vectors, int n, short sort)
{
    if (hasMissing(triangle(a), n))
        return -1;
    LocalArray<double> offDiagonal(countOf(n), 0.0);
    matrix::matCheck(values, n, 1, 0.0);
    copySquare(triangle(a), cells(vectors), n);
    return decompose(cells(vectors), values, offDiagonal, n, sort);
}

int M_VonMises(matrix* a, matrix*& v, int n)
{
    constexpr int limit = 1000;
    TableHandle product = fresh(n, 1);
    TableHandle scaled = fresh(n, 1, 1.0);
    matrix::matCheck(v, n, 1, 1.0);
    for (int turn = 0; turn < limit; ++turn) {
        M_ProductBV(a, n, n, v, product.reference());
        const double rayleigh = V_ProductTrV1V2(v, n, product);
        M_ScalarsA(v, n, 1, rayleigh, scaled.reference());
        M_ScalarsA(product, n, 1, 1.0 / rayleigh, v);
        const double error = squareRoot(V_DiffSq(product, n, scaled)) / squareRoot(V_Sq(scaled, n));
        if (error <= convergenceTolerance || error != error)
            break;
    }
    return 0;
}

double getNorm2(matrix* a)
{
    if (a->nCols < 2) {
        double sum = 0.0;
        for (unsigned i = 0; i < std::min(countOf(a->nRows), a->nElems); ++i)
            sum += a->X[i] * a->X[i];
        return squareRoot(sum);
    }
    TableHandle transposed = fresh(a->nCols, a->nRows);
    a->transposeTo(transposed);
    TableHandle square;
    M_ProductAB(a, a->nRows, a->nCols, transposed, a->nRows, square.reference());
    TableHandle values;
    TableHandle vectors;
    M_Eigen(square, values.reference(), vectors.reference(), a->nRows, -1);
    return values != nullptr ? squareRoot(values->vbget(1, 1)) : missingValue;
}
