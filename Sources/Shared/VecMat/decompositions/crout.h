// Crout's method: P a = L U with implicit scaled pivoting (ludcmp of Press, Flannery, Teukolsky, Vetterling: Numerical
// Recipes, 1st edition), over accessors, so that every storage has the same arithmetic. L, with a unit diagonal that is
// not stored, and U take the place of a.
//
// Two users share it: the factorisation that is handed out, and the inverse. What they do differently at a pivot is
// their rule, `ZeroPivotReplaced` or `SmallPivotRefused`; everything else is common to both.
#pragma once

#include "../frame/cells.h"
#include "line_exchanges.h"

#include <cmath>
#include <vector>

namespace vecmat {

enum class CroutOutcome { factored, zeroRow, noPivot, smallPivot };

inline constexpr int noRow = -1;

/// The rule of the factorisation: a pivot of exactly 0 gives way to a tiny one, so that a singular table is factored
/// all the same. A first column without a cell that compares, NaN throughout, ends it.
struct ZeroPivotReplaced
{
    static constexpr double tinyPivot = 1e-20;
    static constexpr int pivotRowBeforeAny = noRow;

    template <class Cells>
    bool accepts(Cells a, int j) const
    {
        if (a.get(j, j) == 0.0)
            a.set(j, j, tinyPivot);
        return true;
    }
};

/// The rule of the inverse: a pivot up to the threshold, in absolute terms, ends it. A first column without a cell that
/// compares takes its pivot from row 1.
struct SmallPivotRefused
{
    static constexpr int pivotRowBeforeAny = 0;
    double threshold;

    template <class Cells>
    bool accepts(Cells a, int j) const
    {
        return !(std::fabs(a.get(j, j)) <= threshold);
    }
};

/// The permutation P, as the exchanges that make it.
struct RowExchanges
{
    std::vector<int> partner; ///< the row that was exchanged with row j at step j, for the steps taken
    double parity = 1.0;      ///< 1.0 for an even number of exchanges, -1.0 for an odd one
};

/// A square block for the method. Where the rows of a table run over into its next column, two cells of the block are
/// one and the order of all writes shows: such a block, too, is left to the checked accessor.
inline Block<TableCells<matrix>> squareBlock(matrix* a, int n)
{
    return {cells(a), n < 1 || (n <= a->nRows && cells(a).covers(n, n))};
}

/// A row of an array of columns never runs over.
inline Block<ColumnCells<matrix>> squareBlock(matrix** a, int n)
{
    return block(cells(a), n, n);
}

/// The reciprocal of the largest magnitude of each row, NaN passed over; false where a row has nothing but zeros.
template <class Cells>
bool reciprocalRowScales(Cells a, int n, std::vector<double>& scales)
{
    for (int i = 0; i < n; ++i) {
        double largest = 0.0;
        for (int j = 0; j < n; ++j)
            if (const double magnitude = std::fabs(a.get(i, j)); magnitude > largest)
                largest = magnitude;
        if (largest == 0.0)
            return false;
        scales.push_back(1.0 / largest);
    }
    return true;
}

/// Takes the columns before j off column j: cell i loses a(i, k) a(k, j) for each k below i and j, in the order of k.
template <class Cells>
void reduceColumn(Cells a, int j, int n)
{
    if constexpr (requires { a.column(0); }) {
        // The same terms in the same order for each cell, down the contiguous columns instead of along the rows.
        double* const target = a.column(j);
        for (int k = 0; k < j; ++k) {
            const double* const source = a.column(k);
            const double factor = target[k];
            for (int i = k + 1; i < n; ++i)
                target[i] -= source[i] * factor;
        }
    } else {
        for (int i = 0; i < n; ++i) {
            double reduced = a.get(i, j);
            for (int k = 0; k < i && k < j; ++k)
                reduced -= a.get(i, k) * a.get(k, j);
            a.set(i, j, reduced);
        }
    }
}

/// Of equal candidates the last wins. `pivotRow` stays where no candidate compares.
template <class Cells>
void searchPivot(Cells a, int j, int n, const std::vector<double>& scales, int& pivotRow)
{
    double largest = 0.0;
    for (int i = j; i < n; ++i) {
        const double candidate = scales[countOf(i)] * std::fabs(a.get(i, j));
        if (candidate >= largest) {
            largest = candidate;
            pivotRow = i;
        }
    }
}

/// Factors the block of order n in place.
template <class Cells, class PivotRule>
CroutOutcome factorCrout(Cells a, int n, PivotRule rule, RowExchanges& exchanges)
{
    std::vector<double> scales;
    if (!reciprocalRowScales(a, n, scales))
        return CroutOutcome::zeroRow;
    // Carried from column to column: a later column without a candidate that compares keeps the row of the one before.
    int pivotRow = PivotRule::pivotRowBeforeAny;
    for (int j = 0; j < n; ++j) {
        reduceColumn(a, j, n);
        searchPivot(a, j, n, scales, pivotRow);
        if (pivotRow == noRow)
            return CroutOutcome::noPivot;
        if (pivotRow != j) {
            exchangeRows(a, j, pivotRow, n);
            exchanges.parity = -exchanges.parity;
            scales[countOf(pivotRow)] = scales[countOf(j)];
        }
        exchanges.partner.push_back(pivotRow);
        if (!rule.accepts(a, j))
            return CroutOutcome::smallPivot;
        if (j != n - 1) {
            const double reciprocal = 1.0 / a.get(j, j);
            for (int i = j + 1; i < n; ++i)
                a.set(i, j, a.get(i, j) * reciprocal);
        }
    }
    return CroutOutcome::factored;
}

} // namespace vecmat
