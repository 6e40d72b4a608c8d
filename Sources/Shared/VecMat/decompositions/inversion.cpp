#include "inversion.h"

#include "../access/cells.h"
#include "../base/missing_value.h"
#include "detail/crout.h"
#include "detail/crout_panels.h"
#include "detail/triangular_inverse.h"
#include "detail/unit_solutions.h"

#include <cmath>
#include <memory>
#include <vector>

using namespace vecmat;

namespace {

// ---- the square table -----------------------------------------------------------------------------------------------

constexpr double ordinaryThreshold = 1e-08;

/// Only the sign of the tolerance counts.
SmallPivotRefused ruleFor(double tol)
{
    return {tol <= 0.0 ? negligible : ordinaryThreshold};
}

/// `workspace` holds a copy of the table.
template <class Checked>
int invert(Block<Checked> workspace, int n, matrix* out, double tol)
{
    RowExchanges exchanges;
    const CroutOutcome outcome =
        onBlocks([&](auto a) { return factorCrout(a, n, ruleFor(tol), exchanges); }, workspace);
    if (outcome != CroutOutcome::factored)
        return -1;
    onBlocks([&](auto factors, auto inverse) { solveForUnitVectors(factors, exchanges.partner, n, inverse); },
             workspace, block(cells(out), n, n));
    return 0;
}

/// Private copies of column tables. A column beyond the array counts as one without cells: all of its cells are out of
/// range.
class ColumnCopies
{
public:
    ColumnCopies(matrix** columns, int count, int n)
    {
        for (int j = 0; j < n; ++j) {
            const bool there = j < count && columns[j] != nullptr;
            tables_.push_back(there ? std::make_unique<matrix>(*columns[j]) : std::make_unique<matrix>(0, 1, 0.0));
            pointers_.push_back(tables_.back().get());
        }
    }

    matrix** pointers() { return pointers_.data(); }

private:
    std::vector<std::unique_ptr<matrix>> tables_;
    std::vector<matrix*> pointers_;
};

// ---- the triangular table -------------------------------------------------------------------------------------------

/// Computes the diagonal of the inverse; false at the first cell that is too small.
template <class Cells, class Out>
bool invertDiagonal(Cells a, Out out, int n, double tol)
{
    for (int i = 0; i < n; ++i) {
        if (std::fabs(a.get(i, i)) < tol)
            return false;
        out.set(i, i, 1.0 / a.get(i, i));
    }
    return true;
}

} // namespace

int matrix::inverse1(matrix* out, short& status, double tol)
{
    matrix workspace(*this);
    if (invert(squareBlock(&workspace, nRows), nRows, out, tol) == 0)
        return 0;
    status = -1;
    return -1;
}

int Inverse1SPV(matrix** a, matrix* out, int n, int count, int /*ignored*/, double tol)
{
    ColumnCopies workspace(a, count, n);
    return invert(squareBlock(workspace.pointers(), n), n, out, tol);
}

int M_InverseTriang(matrix* a, int n, short lower, matrix*& out, double tol)
{
    const Triangle triangle = lower != 0 ? Triangle::lower : Triangle::upper;
    return onBlocks(
        [=](auto x, auto y) {
            if (!invertDiagonal(x, y, n, tol))
                return -1;
            if (!invertSideBySide(x, y, n, triangle))
                invertCellByCell(x, y, n, triangle);
            return 0;
        },
        block(cells(a), n, n), block(cells(out), n, n));
}
