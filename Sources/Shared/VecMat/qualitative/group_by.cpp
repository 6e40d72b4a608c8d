#include "group_by.h"

#include "../access/cells.h"
#include "../access/overlap.h"
#include "../base/detail/numbers.h"
#include "../base/detail/scratch.h"
#include "../descriptive/means.h"
#include "../descriptive/quantiles.h"
#include "../elementary/extremes.h"
#include "../elementary/vector_sums.h"
#include "../sorting/copy_block.h"
#include "../sorting/detail/digit_passes.h"
#include "../sorting/detail/key_order.h"
#include "../sorting/sort.h"
#include "../sorting/sort_apply.h"
#include "detail/groups_in_place.h"
#include "modes.h"

#include <vector>

using namespace vecmat;

namespace {

enum Aggregate { sum, mean, median, firstRow, rowAfter, minimum, maximum, range };

/// The rows `first` to `end` - 1 of the sorted table, from 0.
struct Group
{
    int first;
    int end;

    int size() const { return end - first; }
};

double rangeOf(matrix* values, int n)
{
    const double largest = V_Max2(values, n);
    return largest > missingValue ? largest - V_Min2(values, n) : missingValue;
}

/// Sum, mean and median without weights.
struct Unweighted
{
    double sum(matrix* values, int n) const { return V_Sum2(values, n); }
    double mean(matrix* values, int n) const { return V_Mean2(values, n); }
    double median(matrix* values, int n) const { return V_Quantile(values, n, 0.5); }
};

/// The same with weights that start at the first one for every group.
struct WeightedByPosition
{
    matrix* weights;

    double sum(matrix* values, int n) const { return V_Sum(values, n, nullptr, weights); }
    double mean(matrix* values, int n) const { return V_Mean(values, n, nullptr, weights); }
    double median(matrix* values, int n) const { return V_QuantileW(values, n, weights, 0.5); }
};

/// Copies `data` to `out` with its rows sorted, each column read once, in the order of the keys. Returns false, having
/// done nothing, if that takes a merge, if a cell lies beyond its table, or if the two share memory.
bool sortedOnTheWay(matrix* data, int nRows, int nCols, int keyCol, matrix* out)
{
    const auto from = cells(data);
    const auto to = cells(out);
    if (nRows < 1 || keyCol < 0 || keyCol >= nCols || !from.covers(nRows, nCols) || !to.covers(nRows, nCols) ||
        to.plain().folds(nRows, nCols) ||
        !areApart(storageOf(from.plain(), nRows, nCols), storageOf(to.plain(), nRows, nCols)))
        return false;
    const Scratch spare(countOf(nRows));
    const RowOrder order = stableOrder(from.plain().column(keyCol), countOf(nRows), Direction::ascending, spare.data());
    if (!order)
        return false;
    for (int j = 0; j < nCols; ++j) {
        const double* const column = from.plain().column(j);
        double* const sorted = to.plain().column(j);
        for (unsigned i = 0; i < countOf(nRows); ++i)
            sorted[i] = column[order[i]];
    }
    return true;
}

/// Copies `data` to `out` and sorts its rows, along with those of a companion of `nCompanionCols` columns.
void sortRows(matrix* data, int nRows, int nCols, int keyCol, matrix*& out, matrix* companion, int nCompanionCols)
{
    matrix keys(nRows, 1, 0.0);
    for (int i = 0; i < nRows; ++i)
        keys.X[i] = cells(data).get(i, zeroBased(keyCol));
    M_CopyBlock(data, 1, nRows, 1, nCols, out);
    matrix* key = &keys;
    SortQ(out, nRows, nCols, 1, nRows, key, companion, nCompanionCols, 0, 0);
}

/// Writes the groups of a sorted table to its first rows. A result never goes below the first row of its group, which
/// is read before it is written, so that one table is both input and output.
template <class Aggregates>
class Grouping
{
public:
    Grouping(matrix* table, int nRows, int nCols, matrixInt* colTypes, int aggregate, Aggregates aggregates)
        : cells_(cells(table)), inside_(cells(table).covers(nRows, nCols)), nRows_(nRows), nCols_(nCols),
          colTypes_(colTypes), code_(aggregate), aggregates_(aggregates)
    {
    }

    int run(int keyCol)
    {
        int groups = 0;
        for (Group group{0, 0}; group.first < nRows_; group.first = group.end, ++groups) {
            const double key = cells_.get(group.first, keyCol);
            group.end = group.first + 1;
            while (group.end < nRows_ && cells_.get(group.end, keyCol) == key)
                ++group.end;
            cells_.set(groups, keyCol, key);
            for (int j = 0; j < nCols_; ++j)
                if (j != keyCol)
                    aggregate(group, j, groups);
        }
        return groups;
    }

private:
    void aggregate(Group group, int j, int target)
    {
        const bool qualitative = linear(colTypes_).get(j) != 0; // -1 beyond the table
        if (!qualitative && (code_ < Aggregate::sum || code_ > Aggregate::range))
            return;
        matrix values(group.size(), 1, valuesOf(group, j), true);
        cells_.set(target, j, qualitative ? V_ModeCat(&values, group.size()) : quantity(&values, group, j));
    }

    /// The cells of a group, contiguous: in place, or copied if some lie beyond the table.
    double* valuesOf(Group group, int j)
    {
        if (inside_)
            return cells_.plain().column(j) + group.first;
        values_.clear();
        for (int i = group.first; i < group.end; ++i)
            values_.push_back(cells_.get(i, j));
        return values_.data();
    }

    double quantity(matrix* values, Group group, int j) const
    {
        switch (code_) {
        case Aggregate::sum:
            return aggregates_.sum(values, group.size());
        case Aggregate::mean:
            return aggregates_.mean(values, group.size());
        case Aggregate::median:
            return aggregates_.median(values, group.size());
        case Aggregate::firstRow:
            return cells_.get(group.first, j);
        case Aggregate::rowAfter:
            return cells_.get(group.end, j); // after the last row it continues in the next column
        case Aggregate::minimum:
            return V_Min2(values, group.size());
        case Aggregate::maximum:
            return V_Max2(values, group.size());
        default:
            return rangeOf(values, group.size());
        }
    }

    TableCells<matrix> cells_;
    bool inside_;
    int nRows_;
    int nCols_;
    matrixInt* colTypes_;
    int code_;
    Aggregates aggregates_;
    std::vector<double> values_; // of the current column and group
};

} // namespace

bool vecmat::groupInPlace(matrix* data, int nRows, int nCols, matrixInt* colTypes, int keyCol, int aggregate,
                          int* nGroups, matrix* out)
{
    if (nRows < 1)
        return false;
    // A median or a mode may fail for want of memory, once the rows are written.
    for (int j = 0; j < nCols; ++j)
        if (j != zeroBased(keyCol) && linear(colTypes).get(j) != 0)
            return false;
    if (aggregate == Aggregate::median || !sortedOnTheWay(data, nRows, nCols, zeroBased(keyCol), out))
        return false;
    *nGroups = Grouping(out, nRows, nCols, colTypes, aggregate, Unweighted{}).run(zeroBased(keyCol));
    return true;
}

void M_GroupBy(matrix* data, int nRows, int nCols, matrixInt* colTypes, int keyCol, int aggregate, int* nGroups,
               matrix*& out)
{
    if (!sortedOnTheWay(data, nRows, nCols, zeroBased(keyCol), out))
        sortRows(data, nRows, nCols, keyCol, out, nullptr, 0);
    *nGroups = Grouping(out, nRows, nCols, colTypes, aggregate, Unweighted{}).run(zeroBased(keyCol));
}

void M_GroupByW(matrix* data, int nRows, int nCols, matrixInt* colTypes, int keyCol, int aggregate, int* nGroups,
                matrix*& out, matrix* weights)
{
    matrix order(nRows, 1, 0.0); // where each row came from, counted from 1
    for (int i = 0; i < nRows; ++i)
        order.X[i] = i + 1.0;
    sortRows(data, nRows, nCols, keyCol, out, &order, 1);
    SortApply2(weights, nRows, 1, &order);
    *nGroups = Grouping(out, nRows, nCols, colTypes, aggregate, WeightedByPosition{weights}).run(zeroBased(keyCol));
}
