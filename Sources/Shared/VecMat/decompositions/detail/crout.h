// Crout's method: P a = L U with implicit scaled pivoting (ludcmp of Press, Flannery, Teukolsky, Vetterling: Numerical
// Recipes, 1st edition), over accessors, so that every storage has the same arithmetic. L, whose unit diagonal is not
// stored, and U overwrite a.
//
// Two users share it: the exported factorisation and the inverse. Their treatment of a pivot differs and is their rule,
// `ZeroPivotReplaced` or `SmallPivotRefused`; everything else is common to both.
#pragma once

#include "../../access/cells.h"
#include "../../base/detail/numbers.h"
#include "../../elementary/detail/line_exchanges.h"

#include <cmath>
#include <vector>

namespace vecmat {

enum class CroutOutcome { factored, zeroRow, noPivot, smallPivot };

inline constexpr int noRow = -1;

/// The rule of the factorisation: a pivot of exactly 0 is replaced by a tiny one, so that a singular table is still
/// factored. A first column whose cells are all NaN ends it.
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

/// The rule of the inverse: a pivot whose magnitude does not exceed the threshold ends it. A first column whose cells
/// are all NaN takes its pivot from row 1.
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
    std::vector<int> partner; ///< the row exchanged with row j at step j, for the steps taken
    double parity = 1.0;      ///< 1.0 for an even number of exchanges, -1.0 for an odd one
};

/// A square block for the method. If the rows of a table run over into the next column, two cells of the block coincide
/// and the order of all writes is observable: such a block also gets the checked accessor.
inline Block<TableCells<matrix>> squareBlock(matrix* a, int n)
{
    return {cells(a), n < 1 || (n <= a->nRows && cells(a).covers(n, n))};
}

/// A row of an array of columns never runs over.
inline Block<ColumnCells<matrix>> squareBlock(matrix** a, int n)
{
    return block(cells(a), n, n);
}

/// State carried from column to column.
struct CroutState
{
    std::vector<double> scales; ///< for each row, as permuted, the reciprocal of its largest magnitude
    int pivotRow;               ///< a column without a comparable candidate keeps the row of the one before
};

/// The reciprocal of the largest magnitude of each row, ignoring NaNs; false if a row is all zeros.
template <class Cells>
bool scaleRows(Cells a, int n, std::vector<double>& scales)
{
    scales.assign(countOf(n), 0.0);
    double* const largest = scales.data();
    for (int j = 0; j < n; ++j)
        for (int i = 0; i < n; ++i) {
            const double magnitude = std::fabs(a.get(i, j));
            largest[i] = magnitude > largest[i] ? magnitude : largest[i];
        }
    for (double& scale : scales) {
        if (scale == 0.0)
            return false;
        scale = 1.0 / scale;
    }
    return true;
}

/// Subtracts columns `first` to j - 1 from column j in rows `first` to `end` - 1: cell i loses a(i, k) a(k, j) for each
/// k below i and j, in the order of k.
template <class Cells>
void reduceColumn(Cells a, int first, int j, int end)
{
    for (int i = first; i < end; ++i) {
        double reduced = a.get(i, j);
        for (int k = first; k < i && k < j; ++k)
            reduced -= a.get(i, k) * a.get(k, j);
        a.set(i, j, reduced);
    }
}

/// Of equal candidates the last wins. The pivot row is unchanged if no candidate compares.
template <class Cells>
void searchPivot(Cells a, int j, int n, CroutState& state)
{
    const double* const scales = state.scales.data();
    int row = state.pivotRow;
    double largest = 0.0;
    for (int i = j; i < n; ++i) {
        const double candidate = scales[i] * std::fabs(a.get(i, j));
        if (candidate >= largest) {
            largest = candidate;
            row = i;
        }
    }
    state.pivotRow = row;
}

/// Moves the pivot row to row j with `exchange` and divides the cells below the pivot; false if the rule rejects it.
template <class Cells, class PivotRule, class Exchange>
bool settlePivot(Cells a, int j, int n, PivotRule rule, CroutState& state, RowExchanges& exchanges, Exchange exchange)
{
    if (state.pivotRow != j) {
        exchange(j, state.pivotRow);
        exchanges.parity = -exchanges.parity;
        state.scales[countOf(state.pivotRow)] = state.scales[countOf(j)];
    }
    exchanges.partner.push_back(state.pivotRow);
    if (!rule.accepts(a, j))
        return false;
    if (j != n - 1) {
        const double reciprocal = 1.0 / a.get(j, j);
        for (int i = j + 1; i < n; ++i)
            a.set(i, j, a.get(i, j) * reciprocal);
    }
    return true;
}

template <class Cells, class PivotRule>
CroutOutcome factorColumnByColumn(Cells a, int n, PivotRule rule, CroutState& state, RowExchanges& exchanges)
{
    for (int j = 0; j < n; ++j) {
        reduceColumn(a, 0, j, n);
        searchPivot(a, j, n, state);
        if (state.pivotRow == noRow)
            return CroutOutcome::noPivot;
        if (!settlePivot(a, j, n, rule, state, exchanges,
                         [a, n](int row, int other) { exchangeRows(a, row, other, n); }))
            return CroutOutcome::smallPivot;
    }
    return CroutOutcome::factored;
}

} // namespace vecmat
