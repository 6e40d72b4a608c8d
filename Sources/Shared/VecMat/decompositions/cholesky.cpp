#include "cholesky.h"

#include "../access/cells.h"
#include "../base/detail/companions.h"
#include "../base/detail/numbers.h"
#include "../base/detail/scratch.h"
#include "../elementary/detail/line_exchanges.h"
#include "../frame/detail/handles.h"
#include "../kernels/substitution_kernels.h"
#include "detail/cholesky_strips.h"
#include "detail/retained_block.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

using namespace vecmat;

namespace {

/// Computes column i of L; false if its pivot fails. The products of its first `terms` columns have yet to be
/// subtracted from row i of `a`, in each cell from the last column back to the first.
template <PivotTest test, class Cells, class Factor>
bool factorColumn(Cells a, Factor l, int i, int terms, int n)
{
    double pivot = 0.0;
    for (int j = i; j < n; ++j) {
        double reduced = a.get(i, j);
        for (int k = terms - 1; k >= 0; --k)
            reduced -= l.get(i, k) * l.get(j, k);
        if (j == i) {
            if (failsAsPivot<test>(reduced))
                return false;
            pivot = squareRoot(reduced);
            l.set(i, i, pivot);
        } else {
            if (pivot == 0.0)
                return false;
            l.set(j, i, reduced / pivot);
        }
    }
    return true;
}

template <PivotTest test, class Cells, class Factor>
int factorCellByCell(Cells a, Factor l, int n)
{
    for (int i = 0; i < n; ++i)
        if (!factorColumn<test>(a, l, i, i, n))
            return -1;
    return 0;
}

/// `l` holds the block.
template <PivotTest test>
int factorInOrder(matrix* a, int n, matrix* l)
{
    return onBlocksOrElse(
        [n](auto x, auto y) {
            const auto byStrips = n < leastStripOrder ? std::nullopt : factorByStrips<test>(x, y, n);
            return byStrips ? *byStrips : factorCellByCell<test>(x, y, n);
        },
        [n](auto x, auto y) { return factorCellByCell<test>(x, y, n); }, block(cells(a), n, n), block(cells(l), n, n));
}

// ---- with pivoting --------------------------------------------------------------------------------------------------

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

/// A row of the table with all terms subtracted.
struct ReducedRow
{
    const double* cells;
    double get(int /*i*/, int j) const { return cells[j]; }
};

/// Columns of L for tables that don't overlap, many cells side by side if there is memory for a row of them.
class ColumnFactor
{
public:
    /// The last cells of a row may spill over, in L into the next column: there is one as long as a kernel has no more
    /// results than a column has cells.
    explicit ColumnFactor(int n) : n_(n), reduced_(n < kernels_.width ? 0 : countOf(n) + countOf(kernels_.width)) {}

    template <class Cells, class Factor>
    bool operator()(Cells a, Factor l, int i) const
    {
        if constexpr (requires { l.column(0); })
            if (i > 0 && n_ >= kernels_.width && reduced_) {
                const double* const last = l.column(i - 1);
                const std::ptrdiff_t back = l.column(0) - l.column(1);
                for (int j = i; j < n_; ++j)
                    reduced_.data()[j] = a.get(i, j);
                for (int j = i; j < n_; j += kernels_.width)
                    kernels_.subtract(i, {last + i, back}, {last + j, back}, reduced_.data() + j);
                return factorColumn<PivotTest::belowTolerance>(ReducedRow{reduced_.data()}, l, i, 0, n_);
            }
        return factorColumn<PivotTest::belowTolerance>(a, l, i, i, n_);
    }

private:
    const SubstitutionKernels& kernels_ = substitutionKernels();
    int n_;
    Scratch reduced_;
};

template <class Cells, class Factor, class Permutation>
int factorWithSearch(Cells w, Factor l, Permutation perm, int n)
{
    const ColumnFactor factorNext(n);
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
        if (!factorNext(w, l, i))
            return -1;
    }
    return 0;
}

template <class Permutation>
int factorPermuted(matrix* a, int n, matrix* l, Permutation* perm, short keep)
{
    // A table that is too small cannot be replaced for the caller, who still holds it.
    const bool large = l != nullptr && l->nRows >= n && l->nCols >= n;
    const TableHandle substitute = large ? TableHandle() : fresh(n, n);
    matrix workspace(*a);
    const VectorCells<Permutation> order = linear(perm);
    for (int i = 0; i < n; ++i)
        order.set(i, i + 1);
    if (large)
        matrix::matCheck(l, n, n, 0.0);
    else
        l = substitute;
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
