// What a set of pairwise comparisons shows about the items in two sorted places.
#pragma once

#include "../../matrix.h"
#include "../../matrixInt.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace vecmat {

/// Finds the row of a table of pairs that holds the items of two places. The table is read once, so that a look-up need
/// not search it.
class PairRows
{
public:
    /// `pairs` has the item numbers of a pair in columns `colA` and `colB`, 1-based; `perm` the items of n places.
    PairRows(matrix* pairs, int colA, int colB, matrix* perm, int n);

    /// The first row, from 0, whose smaller and larger item are those of the places s and t, from 0; -1 if there is
    /// none.
    int rowOf(int s, int t) const
    {
        return rows_[slot(numberAtPlace_[std::size_t(s)], numberAtPlace_[std::size_t(t)])];
    }

    /// Does a look-up of two different places always find a row?
    bool complete() const { return complete_; }

private:
    /// Position in the packed triangle of two items, the diagonal included: places may share an item.
    static std::size_t slot(std::size_t a, std::size_t b) { return a < b ? b * (b + 1) / 2 + a : a * (a + 1) / 2 + b; }
    std::optional<std::size_t> numberOf(double item) const;

    std::vector<int> items_;                 // each once, ascending
    std::vector<std::size_t> numberAtPlace_; // its number among the items
    std::vector<int> rows_;                  // by slot
    bool complete_;
};

/// The differences of the items in two places, from 0. A pair in no row takes the outcome of the previous look-up, so
/// the order of calls is part of the result unless the pairs are complete.
class PairDifferences
{
public:
    PairDifferences(matrix* pairs, int colA, int colB, matrix* perm, int n, matrixInt* diff)
        : rows_(pairs, colA, colB, perm, n), pairs_(pairs), diff_(diff)
    {
    }

    bool complete() const { return rows_.complete(); }

    /// 0 or a positive number, whatever the sign of the difference.
    long long magnitude(int s, int t);
    /// With its sign.
    long long signedValue(int s, int t);
    /// The magnitude, but 0 if the row is not marked as counting for the forward run.
    long long magnitudeInForwardRun(int s, int t);

private:
    template <class ValueOfRow>
    long long lookUp(int s, int t, ValueOfRow valueOfRow);
    long long magnitudeOfRow(int row) const;

    PairRows rows_;
    matrix* pairs_;
    matrixInt* diff_;
    long long last_ = 0;
};

} // namespace vecmat
