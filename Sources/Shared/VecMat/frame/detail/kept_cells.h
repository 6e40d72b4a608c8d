// For a call that works in the caller's memory and can still fail afterwards: what it has changed is put back.
#pragma once

#include "../../base/detail/mathematics/bits.h"
#include "../../base/detail/numbers.h"
#include "../../matrix.h"

#include <cstddef>
#include <vector>

namespace vecmat {

/// Keeps a copy of cells, and puts back those that have changed when it is destroyed, unless it was told that the call
/// has succeeded.
class KeptCells
{
public:
    KeptCells() = default;
    KeptCells(const KeptCells&) = delete;
    KeptCells& operator=(const KeptCells&) = delete;
    ~KeptCells()
    {
        for (const Piece& piece : pieces_)
            for (std::size_t k = 0; k < piece.copy.size(); ++k)
                if (mathematics::bitsOf(piece.cells[k]) != mathematics::bitsOf(piece.copy[k]))
                    piece.cells[k] = piece.copy[k];
    }

    void keep(double* cells, int rows, int cols)
    {
        if (cells != nullptr)
            pieces_.push_back({cells, std::vector<double>(cells, cells + elementCount(rows, cols))});
    }
    /// The cells of each column that is there.
    void keep(matrix* const* columns, int count)
    {
        for (int j = 0; columns != nullptr && j < count; ++j)
            if (columns[j] != nullptr)
                pieces_.push_back(
                    {columns[j]->X, std::vector<double>(columns[j]->X, columns[j]->X + columns[j]->nElems)});
    }

    void callHasSucceeded() noexcept { pieces_.clear(); }

private:
    struct Piece
    {
        double* cells;
        std::vector<double> copy;
    };

    std::vector<Piece> pieces_;
};

} // namespace vecmat
