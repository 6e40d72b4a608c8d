#include "correlation_order.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../descriptive/moments.h"
#include "../elementary/extremes.h"
#include "../elementary/transposition.h"
#include "../frame/detail/borrowed_texts.h"
#include "../frame/detail/handles.h"
#include "../missing/missing_counts.h"
#include "../sorting/copy_block.h"
#include "../sorting/detail/borrowed_rows.h"
#include "../sorting/sort.h"
#include "../sorting/sort_apply.h"
#include "detail/borrowed_labels.h"
#include "eigen.h"

#include <memory>
#include <vector>

using namespace vecmat;

namespace {

enum ScoreMode { largestCell = 1, variance = 2, firstEigenvector = 3 };

/// The scores of modes 1 and 2: always those of the current first row of the table, whatever the variable.
class FirstRowScore
{
public:
    FirstRowScore(matrix* R, int n) : R_(R), n_(n), row_(n, 1, 0.0), units_(n, 1, 1.0), mask_(countOf(n), 0) {}

    double largest() { return V_Max(copyOfRow(), n_, mask_.data()); }
    double varianceOfRow() { return V_Var(copyOfRow(), n_, mask_.data(), &units_, -1, -1); }

private:
    matrix* copyOfRow()
    {
        for (int j = 0; j < n_; ++j)
            row_.X[j] = cells(R_).get(0, j);
        return &row_;
    }

    matrix* R_;
    int n_;
    matrix row_;
    matrix units_;
    std::vector<short> mask_;
};

/// The eigenvectors in mode 3, in columns by descending eigenvalue; null if they are not needed or unavailable.
TableHandle eigenvectors(matrix* R, int n, int mode)
{
    TableHandle values, vectors;
    if (mode == firstEigenvector && M_NbMissing2(R, n, n) == 0)
        M_Eigen(R, values.reference(), vectors.reference(), n, -1);
    return vectors;
}

/// Scores of all variables; sets the diagonal to 1.0. A variable's diagonal cell is missing only while its own score is
/// computed, and so counts in the scores of later variables.
TableHandle scores(matrix* R, int n, int mode)
{
    const TableHandle vectors = eigenvectors(R, n, mode);
    TableHandle score = fresh(n, 1);
    FirstRowScore firstRow(R, n);
    for (int i = 0; i < n; ++i) {
        cells(R).set(i, i, missingValue);
        if (mode == largestCell)
            score->X[i] = firstRow.largest();
        else if (mode == variance)
            score->X[i] = firstRow.varianceOfRow();
        else if (vectors != nullptr)
            score->X[i] = linear<matrix>(vectors).get(i);
        cells(R).set(i, i, 1.0);
    }
    return score;
}

TableHandle descendingOrder(TableHandle score, int n)
{
    TableHandle order = fresh(n, 1);
    for (int i = 0; i < n; ++i)
        order->X[i] = i + 1.0;
    TableHandle companion = fresh(n, 1);
    SortQ(order.reference(), n, 1, 1, n, score.reference(), companion.reference(), 0, -1, 0);
    return order;
}

/// Reorders the rows, transposes, reorders the rows again: a table that is not symmetric comes out transposed.
template <class Table>
void reorderBothAxes(Table* table, int n, matrix* order)
{
    Handle<Table> rows, turned, result;
    SortApply(table, n, n, order, rows.reference());
    M_Transpose(rows.reference(), n, n, turned.reference());
    SortApply(turned, n, n, order, result.reference());
    M_CopyBlock(result, 1, n, 1, n, table);
}

template <class Texts>
void reorderLabels(Texts* labels, int n, matrix* order)
{
    const TextHandle<Texts> result(new Texts(n, 1));
    SortApplyStr(labels, n, 1, order, result);
    M_CopyBlock(result, 1, n, 1, 1, labels);
}

template <class Texts>
int reorder(matrix* R, int n, int mode, Texts* labels, matrix* second, matrixInt* third)
{
    const TableHandle order = descendingOrder(scores(R, n, mode), n);
    reorderLabels(labels, n, order);
    reorderBothAxes(R, n, order);
    reorderBothAxes(second, n, order);
    reorderBothAxes(third, n, order);
    return 0;
}

} // namespace

int ReOrderCorrelations(matrix* R, int n, int mode, Smatrix* labels, matrix* second, matrixInt* third)
{
    return reorder(R, n, mode, labels, second, third);
}

int vecmat::ReOrderCorrelations(matrix* R, int n, int mode, BorrowedTexts* labels, matrix* second, matrixInt* third)
{
    return reorder(R, n, mode, labels, second, third);
}
