// The search of nearest-neighbour imputation over three blocks of columns. Internal to the library; the exported
// functions document what is computed.
#pragma once

#include "../../access/overlap.h"
#include "../../base/detail/masks.h"
#include "../../base/detail/memory_ranges.h"
#include "../../base/missing_value.h"
#include "distance_bounds.h"
#include "numbered_texts.h"

#include <cstddef>
#include <optional>
#include <string>

namespace vecmat {

// ---- how the three searches differ ----------------------------------------------------------------------------------

/// The row that a search skips besides the flagged ones.
enum class PassedOver { targetRow, rowNumberedAsColumn };

/// Whether a candidate needs a term of its own to win, or a term added before it is enough.
enum class TermNeeded { fromThisCandidate, fromAnyBefore };

/// Which missing cells of a block reject a candidate while column number j is being filled.
enum class Rejection {
    notCompared,       ///< the block is ignored
    anyButNumberJ,     ///< a cell of any column except number j, whether or not j belongs to this block
    anyColumnOrOwnCell ///< a cell of any column and, if there are columns, the cell that would be copied
};

struct SearchRules
{
    PassedOver passedOver;
    TermNeeded termNeeded;
    Rejection primary;
    Rejection second;
    Rejection strings;
};

inline constexpr SearchRules primarySearch = {PassedOver::targetRow, TermNeeded::fromThisCandidate,
                                              /* primary */ Rejection::anyButNumberJ,
                                              /* second  */ Rejection::anyColumnOrOwnCell,
                                              /* strings */ Rejection::anyColumnOrOwnCell};

inline constexpr SearchRules secondSearch = {PassedOver::rowNumberedAsColumn, TermNeeded::fromAnyBefore,
                                             /* primary */ Rejection::notCompared,
                                             /* second  */ Rejection::anyButNumberJ,
                                             /* strings */ Rejection::anyColumnOrOwnCell};

// The exemption in the second block goes by a number that is meaningless there. It is part of the results.
inline constexpr SearchRules stringSearch = {PassedOver::rowNumberedAsColumn, TermNeeded::fromAnyBefore,
                                             /* primary */ Rejection::notCompared,
                                             /* second  */ Rejection::anyButNumberJ,
                                             /* strings */ Rejection::anyColumnOrOwnCell};

// ---- blocks ---------------------------------------------------------------------------------------------------------

/// The distance of the current candidate, and whether a term has been added.
struct Distance
{
    double sum = 0.0;
    bool anyTerm = false;

    void add(double term)
    {
        sum += term;
        anyTerm = true;
    }
};

/// A block of numbers, with the mean and the variance of each column.
template <class Cells>
struct NumericBlock
{
    static constexpr bool hasNumbers = true;

    Cells cells;
    int cols;
    const double* means;
    const double* variances;

    bool lacks(int i, int j) const { return isMissingOrBelow(cells.get(i, j)); }
    void copy(int from, int to, int j) const { cells.set(to, j, cells.get(from, j)); }
    void fillWithoutNeighbour(int i, int j) const { cells.set(i, j, means[j]); }

    bool hasTerm(int target, int k) const { return variances[k] > 0.0 && !lacks(target, k); }
    void addTerm(int target, int candidate, int k, Distance& distance) const
    {
        if (!hasTerm(target, k))
            return;
        const double d = cells.get(target, k) - cells.get(candidate, k);
        distance.add(d * d / variances[k]);
    }
};

/// A block of strings, or of their numbers, with the most frequent category of each column.
template <class Cells>
struct StringBlock
{
    static constexpr bool hasNumbers = false;

    Cells cells;
    int cols;
    const typename Cells::Value* modes;

    static constexpr double mismatch = 1.0;

    static bool isEmpty(const std::wstring& text) { return text.empty(); }
    static bool isEmpty(int number) { return number == TextNumbers::empty; }

    bool lacks(int i, int j) const { return isEmpty(cells.get(i, j)); }
    void copy(int from, int to, int j) const { cells.set(to, j, cells.get(from, j)); }
    void fillWithoutNeighbour(int i, int j) const { cells.set(i, j, modes[j]); }

    void addTerm(int target, int candidate, int k, Distance& distance) const
    {
        if (!lacks(target, k) && cells.get(target, k) != cells.get(candidate, k))
            distance.add(mismatch);
    }
};

// ---- the search -----------------------------------------------------------------------------------------------------

template <class Primary, class Second, class Strings>
class NeighbourImputation
{
public:
    NeighbourImputation(Primary primary, Second second, Strings strings, int rows, Mask mask)
        : primary_(primary), second_(second), strings_(strings), rows_(rows), mask_(mask)
    {
    }

    void run()
    {
        for (int t = 0; t < rows_; ++t) {
            if (mask_.keeps(t))
                continue;
            fillRow<primarySearch>(primary_, t);
            fillRow<secondSearch>(second_, t);
            fillRow<stringSearch>(strings_, t);
        }
    }

private:
    static constexpr int none = -1;
    /// With fewer rows than this the copy costs more than visiting them.
    static constexpr int fewestRowsToBound = 50;

    template <const SearchRules& rules, class Own>
    void fillRow(const Own& own, int t)
    {
        for (int j = 0; j < own.cols; ++j) {
            if (!own.lacks(t, j))
                continue;
            const int neighbour = nearest<rules>(own, t, j);
            if (neighbour != none)
                own.copy(neighbour, t, j);
            else
                own.fillWithoutNeighbour(t, j);
        }
    }

    struct Nearest
    {
        int row = none;
        double distance = positiveTwin;
    };

    template <const SearchRules& rules, class Own>
    int nearest(const Own& own, int t, int j)
    {
        Nearest best;
        if (boundDistances<rules>(t))
            visitNear<rules>(own, t, j, best);
        else
            for (int c = 0; c < rows_; ++c)
                visit<rules>(own, t, j, c, best);
        return best.row;
    }

    template <const SearchRules& rules, class Own>
    void visit(const Own& own, int t, int j, int c, Nearest& best)
    {
        const int passedOver = rules.passedOver == PassedOver::targetRow ? t : j;
        // Before the row is skipped: what the last row leaves here is what the other searches find.
        if (rules.termNeeded == TermNeeded::fromThisCandidate)
            distance_.anyTerm = false;
        if (c == passedOver || !mask_.keeps(c))
            return;
        distance_.sum = 0.0;
        if (compare<rules.primary>(primary_, own, t, c, j) && compare<rules.second>(second_, own, t, c, j) &&
            compare<rules.strings>(strings_, own, t, c, j) && distance_.sum < best.distance && distance_.anyTerm)
            best = {c, distance_.sum};
    }

    /// Visits the unflagged rows except those too far away. Skipping these changes nothing: before a row has won none
    /// is too far, and once one has won a term has been added; and if each row has its own flag, the last row's is the
    /// one that remains.
    template <const SearchRules& rules, class Own>
    void visitNear(const Own& own, int t, int j, Nearest& best)
    {
        std::size_t k = 0;
        while ((k = bounds_->nextWithin(best.distance, k)) < bounds_->rowCount())
            visit<rules>(own, t, j, bounds_->row(k++), best);
        if (rules.termNeeded == TermNeeded::fromThisCandidate)
            visit<rules>(own, t, j, rows_ - 1, best);
    }

    /// Bounds the distances of all rows that may be neighbours of row t; false if there are no bounds.
    template <const SearchRules& rules>
    bool boundDistances(int t)
    {
        prepareBounds();
        if (!bounds_)
            return false;
        bounds_->clearTerms();
        if (rules.primary != Rejection::notCompared)
            addTerms(primary_, 0, t);
        addTerms(second_, numberColumns(primary_), t);
        bounds_->compute();
        return true;
    }

    template <class Block>
    void addTerms(const Block& block, int firstColumn, int t)
    {
        if constexpr (Block::hasNumbers)
            for (int k = 0; k < block.cols; ++k)
                if (block.hasTerm(t, k))
                    bounds_->addTerm(firstColumn + k, block.cells.get(t, k));
    }

    template <class Block>
    static int numberColumns(const Block& block)
    {
        return Block::hasNumbers ? block.cols : 0;
    }

    /// The first search visits every row: for it alone the copy would not pay off.
    void prepareBounds()
    {
        if (boundsState_ == Bounds::settled)
            return;
        const int columns = numberColumns(primary_) + numberColumns(second_);
        if (boundsState_ == Bounds::notRequested) {
            const bool pays = columns > 0 && rows_ >= fewestRowsToBound && rowsAreApart();
            boundsState_ = pays ? Bounds::withNextSearch : Bounds::settled;
            return;
        }
        boundsState_ = Bounds::settled;
        bounds_.emplace(rows_, mask_, columns);
        copyForBounds(primary_);
        copyForBounds(second_);
        if (!*bounds_)
            bounds_.reset();
    }

    template <class Block>
    void copyForBounds(const Block& block)
    {
        if constexpr (Block::hasNumbers)
            if (*bounds_)
                bounds_->copy(block);
    }

    /// Does no row share a cell with another? Only then do the copied rows stay unchanged while others are filled.
    bool rowsAreApart() const
    {
        MemoryRanges memory;
        return addColumns(primary_, memory) && addColumns(second_, memory) && memory.areApart();
    }

    template <class Block>
    bool addColumns(const Block& block, MemoryRanges& memory) const
    {
        if constexpr (!Block::hasNumbers)
            return true;
        else if constexpr (requires { block.cells.folds(0, 0); }) {
            addTo(memory, storageOf(block.cells, rows_, block.cols));
            return !block.cells.folds(rows_, block.cols);
        } else
            return false;
    }

    /// Adds the terms of one block up to the column that rejects the candidate; returns whether none does.
    template <Rejection rule, class Block, class Own>
    bool compare(const Block& block, const Own& own, int t, int c, int j)
    {
        if (rule == Rejection::notCompared)
            return true;
        // Needed for each column, but the answer is known at the first.
        if (rule == Rejection::anyColumnOrOwnCell && block.cols > 0 && own.lacks(c, j))
            return false;
        for (int k = 0; k < block.cols; ++k) {
            const bool exempt = rule == Rejection::anyButNumberJ && k == j;
            if (!exempt && block.lacks(c, k))
                return false;
            block.addTerm(t, c, k, distance_);
        }
        return true;
    }

    Primary primary_;
    Second second_;
    Strings strings_;
    int rows_;
    Mask mask_;
    Distance distance_; // its flag lasts for the whole call

    enum class Bounds { notRequested, withNextSearch, settled };

    Bounds boundsState_ = Bounds::notRequested;
    std::optional<DistanceBounds> bounds_; // none if every row has to be visited
};

} // namespace vecmat
