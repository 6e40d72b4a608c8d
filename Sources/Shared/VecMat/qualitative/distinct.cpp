#include "distinct.h"

#include "../access/cells.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/handles.h"
#include "../frame/detail/text_table.h"
#include "../sorting/copy_block.h"
#include "../sorting/sort.h"
#include "detail/text_calls.h"

#include <algorithm>
#include <vector>

using namespace vecmat;

namespace {

/// The columns after the keys, from 0, in a table of `keys` key columns.
struct Layout
{
    int keys;

    int count() const { return keys; }
    int sourceIdentifier() const { return keys; }
    int identifier() const { return keys + 1; }
    int kept() const { return keys + 2; }
    int all() const { return keys + 3; }
};

class Deduplication
{
public:
    Deduplication(matrix* table, int nCols) : rows_(cells(table)), columns_{nCols} {}

    /// Moves the first of each group of equal rows up, and puts the others below them. Returns how many were kept.
    int separate(int nRows)
    {
        int kept = 0;
        for (int i = 0; i < nRows; ++i) {
            const double identifier = rows_.get(i, columns_.sourceIdentifier());
            // The last row kept has the keys of the group, which a repeated row shares.
            if (kept > 0 && sameKeys(kept - 1, i)) {
                setAside(i, identifier);
                const double count = rows_.get(kept - 1, columns_.count());
                rows_.set(kept - 1, columns_.count(), count + 1.0);
                continue;
            }
            for (int j = 0; j < columns_.keys; ++j)
                rows_.set(kept, j, rows_.get(i, j));
            finish(kept, 1.0, identifier, 1.0);
            ++kept;
        }
        appendRepeated(kept);
        return kept;
    }

private:
    bool sameKeys(int a, int b) const
    {
        for (int j = 0; j < columns_.keys; ++j)
            if (!(rows_.get(a, j) == rows_.get(b, j)))
                return false;
        return true;
    }

    void setAside(int row, double identifier)
    {
        for (int j = 0; j < columns_.keys; ++j)
            repeated_.push_back(rows_.get(row, j));
        repeated_.push_back(identifier);
    }

    void appendRepeated(int row)
    {
        for (auto next = repeated_.begin(); next != repeated_.end(); ++row) {
            for (int j = 0; j < columns_.keys; ++j)
                rows_.set(row, j, *next++);
            finish(row, 0.0, *next++, 0.0);
        }
    }

    void finish(int row, double count, double identifier, double kept)
    {
        rows_.set(row, columns_.count(), count);
        rows_.set(row, columns_.identifier(), identifier);
        rows_.set(row, columns_.kept(), kept);
    }

    TableCells<matrix> rows_;
    Layout columns_;
    std::vector<double> repeated_; // row by row: the keys, the identifier
};

void sortVector(matrix* x, int n)
{
    SortQVector(x, n, 1, n, 0);
}
void sortVector(matrixInt* x, int n)
{
    SortQVector(x, n, 1, n, 0);
}

template <class Table>
Handle<Table> sortedCopy(Table* x, int n, Handle<Table> copy)
{
    for (int i = 0; i < n; ++i)
        linear<Table>(copy).set(i, linear(x).get(i));
    sortVector(static_cast<Table*>(copy), n);
    return copy;
}

/// After a sort, a value that differs from the previous one is greater; a NaN is greater than nothing and adds nothing.
template <class Table>
int countAscents(Table* x, int n, Handle<Table> empty)
{
    if (n < 2)
        return 1;
    const Handle<Table> values = sortedCopy(x, n, std::move(empty));
    int count = 1;
    for (int i = 1; i < n; ++i)
        if (values->X[i - 1] < values->X[i])
            ++count;
    return count;
}

} // namespace

void M_Dedupe(matrix* data, int nRows, int nCols, int* nKept, matrix*& out)
{
    const Layout columns{nCols};
    M_CopyBlock(data, 1, nRows, 1, nCols + 1, out);
    SortMatrixSeqQP1toP2(out, nRows, nCols + 1, 1, nCols, -1);
    *nKept = Deduplication(out, nCols).separate(nRows);
    SortQMatrixCol(out, nRows, columns.all(), columns.identifier() + 1, 1, nRows, 0);
    SortQMatrixCol(out, nRows, columns.all(), columns.kept() + 1, 1, nRows, -1);
}

void V_ExtractDistinct(matrix* x, int n, matrix* distinct, int* count)
{
    const TableHandle sorted = sortedCopy(x, n, fresh(n, 1));
    const auto value = linear<matrix>(sorted);
    const auto store = linear(distinct);
    if (distinct != nullptr) // an empty vector may come without a table
        store.set(0, value.get(0));
    int found = 1;
    if (n >= 2) {
        const double tolerance = std::min(negligible, value.get(n - 1) - value.get(0));
        for (int i = 1; i < n; ++i)
            if (value.get(i) - value.get(i - 1) > tolerance)
                store.set(found++, value.get(i));
    }
    *count = found;
}

int V_NbDistinct(matrix* x, int n)
{
    return countAscents(x, n, fresh(n, 1));
}

int V_NbDistinct(matrixInt* x, int n)
{
    return countAscents(x, n, freshInt(n, 1));
}

template <class Texts>
int vecmat::nbDistinct(const Texts& x, int n)
{
    return n < 2 ? 1 : countDistinct<typename Texts::Text>(n, columnOf(x, 0));
}

template int vecmat::nbDistinct(const CallerTexts&, int);

int V_NbDistinct(Smatrix* x, int n)
{
    return nbDistinct(TableTexts(x), n);
}
