#include "gauss.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "detail/line_exchanges.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

using namespace vecmat;

namespace {

constexpr int singular = -2;

enum class Pivoting {
    full,       ///< the largest cell, moved to the diagonal by exchanging rows
    stayInRows, ///< the column of the largest cell, but no rows are exchanged
    onDiagonal  ///< each diagonal cell in turn
};

struct Cell
{
    int row;
    int col;
};

/// The largest cell of the rows and columns not yet used for a pivot.
template <class Cells>
std::optional<Cell> largestFreeCell(Cells a, int n, const std::vector<bool>& used)
{
    std::optional<Cell> found;
    double largest = 0.0;
    for (int i = 0; i < n; ++i) {
        if (used[i])
            continue;
        for (int j = 0; j < n; ++j) {
            if (used[j])
                continue;
            const double magnitude = std::abs(a.get(i, j));
            if (magnitude - largest > zeroTolerance) {
                largest = magnitude;
                found = Cell{i, j};
            }
        }
    }
    return found;
}

template <class Cells>
void scaleRow(Cells a, int row, int cols, double factor)
{
    for (int j = 0; j < cols; ++j)
        a.set(row, j, a.get(row, j) * factor);
}

template <class Cells>
void subtractRow(Cells a, int row, int pivotRow, int cols, double multiple)
{
    for (int j = 0; j < cols; ++j)
        a.set(row, j, a.get(row, j) - a.get(pivotRow, j) * multiple);
}

/// Clears column `p` by the diagonal cell (p, p), and replaces it by a column of the inverse.
template <class Left, class Right>
void eliminate(Left a, Right b, int n, int m, int p)
{
    const double reciprocal = 1.0 / a.get(p, p);
    a.set(p, p, 1.0);
    scaleRow(a, p, n, reciprocal);
    scaleRow(b, p, m, reciprocal);
    for (int i = 0; i < n; ++i) {
        if (i == p)
            continue;
        const double multiple = a.get(i, p);
        a.set(i, p, 0.0);
        subtractRow(a, i, p, n, multiple);
        subtractRow(b, i, p, m, multiple);
    }
}

template <class Left, class Right>
int gaussJordan(Left a, Right b, int n, int m, Pivoting pivoting)
{
    std::vector<bool> used(countOf(n));
    std::vector<Cell> exchanges;
    for (int step = 0; step < n; ++step) {
        const std::optional<Cell> pivot =
            pivoting == Pivoting::onDiagonal ? Cell{step, step} : largestFreeCell(a, n, used);
        if (!pivot)
            return singular;
        used[pivot->col] = true;
        if (pivoting == Pivoting::full && pivot->row != pivot->col) {
            exchangeRows(a, pivot->row, pivot->col, n);
            exchangeRows(b, pivot->row, pivot->col, m);
            exchanges.push_back(*pivot);
        }
        if (a.get(pivot->col, pivot->col) == 0.0)
            return singular;
        eliminate(a, b, n, m, pivot->col);
    }
    std::reverse(exchanges.begin(), exchanges.end());
    for (const Cell& exchange : exchanges)
        exchangeColumns(a, exchange.row, exchange.col, n);
    return 0;
}

} // namespace

int M_Gauss(matrix* a, int n, int m, matrix* b, bool noSwap, bool noPivot)
{
    const Pivoting pivoting = noPivot ? Pivoting::onDiagonal : noSwap ? Pivoting::stayInRows : Pivoting::full;
    return onBlocks([=](auto left, auto right) { return gaussJordan(left, right, n, m, pivoting); },
                    block(cells(a), n, n), block(cells(b), n, m));
}
