#include "cholesky.h"

#include "../frame/cells.h"
#include "../frame/companions.h"
#include "../frame/handles.h"
#include "../frame/missing_value.h"
#include "line_exchanges.h"
#include "retained_block.h"

#include <utility>
#include <vector>

using namespace vecmat;

namespace {

/// When a pivot fails.
enum class PivotTest { belowTolerance, belowZero };

template <PivotTest test>
bool failsAsPivot(double x)
{
    if constexpr (test == PivotTest::belowTolerance)
        return x < zeroTolerance;
    else
        return x < 0.0;
}

/// Column i of L; false where it cannot be had. `reduced` is scratch.
template <PivotTest test, class Cells, class Factor>
bool factorColumn(Cells a, Factor l, int i, int n, std::vector<double>& reduced)
{
    const auto cell = [&reduced](int j) -> double& { return reduced[countOf(j)]; };
    for (int j = i; j < n; ++j)
        cell(j) = a.get(i, j);
    // From the last column done back to the first, for each cell on its own.
    for (int k = i - 1; k >= 0; --k) {
        const double factor = l.get(i, k);
        for (int j = i; j < n; ++j)
            cell(j) -= factor * l.get(j, k);
    }
    if (failsAsPivot<test>(cell(i)))
        return false;
    const double pivot = sqr(cell(i));
    l.set(i, i, pivot);
    if (i + 1 < n && pivot == 0.0)
        return false;
    for (int j = i + 1; j < n; ++j)
        l.set(j, i, cell(j) / pivot);
    return true;
}

/// `l` holds the block.
template <PivotTest test>
int factorInOrder(matrix* a, int n, matrix* l)
{
    return onBlocks(
        [n](auto x, auto y) {
            std::vector<double> reduced(countOf(n));
            for (int i = 0; i < n; ++i)
                if (!factorColumn<test>(x, y, i, n, reduced))
                    return -1;
            return 0;
        },
        block(cells(a), n, n), block(cells(l), n, n));
}

// ---- with a search for the pivot ------------------------------------------------------------------------------------

/// The first of the largest of score(first) to score(n - 1).
template <class Score>
int largestFrom(int first, int n, Score score)
{
    int best = first;
    double largest = score(first);
    for (int r = first + 1; r < n; ++r)
        if (const double next = score(r); next > largest) {
            largest = next;
            best = r;
        }
    return best;
}

template <class Cells, class Factor>
int choosePivot(Cells w, Factor l, int i, int n)
{
    if (i == 0)
        return largestFrom(0, n, [w](int r) { return w.get(r, r); });
    const double divisor = l.get(i - 1, i - 1);
    return largestFrom(i, n, [=](int r) {
        const double above = w.get(i - 1, r);
        return w.get(r, r) - above * above / divisor;
    });
}

template <class Cells, class Factor, class Permutation>
int factorWithSearch(Cells w, Factor l, Permutation perm, int n)
{
    std::vector<double> reduced(countOf(n));
    for (int i = 0; i < n; ++i) {
        const int pivot = i < n - 1 ? choosePivot(w, l, i, n) : i;
        if (pivot != i) {
            exchangeColumns(w, i, pivot, n);
            exchangeRows(w, i, pivot, n);
            if (i > 0)
                exchangeRows(l, i, pivot, n);
            const auto kept = perm.get(i);
            perm.set(i, perm.get(pivot));
            perm.set(pivot, kept);
        }
        if (!factorColumn<PivotTest::belowTolerance>(w, l, i, n, reduced))
            return -1;
    }
    return 0;
}

template <class Permutation>
int factorPermuted(matrix* a, int n, matrix* l, Permutation* perm, short keep)
{
    const VectorCells<Permutation> order = linear(perm);
    for (int i = 0; i < n; ++i)
        order.set(i, i + 1);
    // A table that is too small cannot be replaced for the caller, who goes on holding it.
    const bool large = l != nullptr && l->nRows >= n && l->nCols >= n;
    const TableHandle substitute(large ? nullptr : new matrix(n, n, 0.0));
    if (large)
        matrix::matCheck(l, n, n, 0.0);
    else
        l = substitute;
    matrix workspace(*a);
    const int status = onBlocks([=](auto w, auto factor) { return factorWithSearch(w, factor, order, n); },
                                block(cells(&workspace), n, n), block(cells(l), n, n));
    if (keep == -1)
        workspace.copyMatTo(a);
    return status;
}

// ---- of a retained block --------------------------------------------------------------------------------------------

template <class Mask>
int factorRetained(matrix* a, int n, Mask* mask, matrix* l)
{
    const Retained retained = retainedBy(mask, n);
    TableHandle factor = fresh(retained.order, retained.order);
    if (factorInOrder<PivotTest::belowZero>(compressed(a, retained), retained.order, factor) != 0)
        return -1;
    expand(factor, retained, n, l);
    return 0;
}

} // namespace

int M_CholDecomp(matrix* a, int n, matrix*& l)
{
    matrix::matCheck(l, n, n, 0.0);
    return factorInOrder<PivotTest::belowTolerance>(a, n, l);
}

int M_CholDecompPrinc(matrix* a, int n, matrix* l, matrix* perm, short keep)
{
    return factorPermuted(a, n, l, perm, keep);
}

int M_CholDecompPrinc(matrix* a, int n, matrix* l, matrixInt* perm, short keep)
{
    return factorPermuted(a, n, l, perm, keep);
}

int M_CholDecompCleaned(matrix* a, int n, matrix* mask, matrix* l)
{
    return factorRetained(a, n, mask, l);
}

int M_CholDecompCleaned(matrix* a, int n, matrixInt* mask, matrix* l)
{
    return factorRetained(a, n, mask, l);
}
