// The transpose of a table, read and written through an accessor of `access/cells.h`.
#pragma once

#include <utility>

namespace vecmat {

/// Cell (i, j) is cell (j, i) of the wrapped accessor.
template <class Cells>
class Transposed
{
public:
    using Value = typename Cells::Value;

    explicit Transposed(Cells cells) : cells_(cells) {}

    decltype(auto) get(int i, int j) const { return cells_.get(j, i); }
    template <class V>
    void set(int i, int j, V&& value) const
    {
        cells_.set(j, i, std::forward<V>(value));
    }

    bool covers(int rows, int cols) const { return cells_.covers(cols, rows); }
    auto plain() const { return Transposed<decltype(cells_.plain())>(cells_.plain()); }

    bool folds(int rows, int cols) const { return cells_.folds(cols, rows); }
    template <class Visit>
    void visitStorage(int rows, int cols, Visit visit) const
    {
        cells_.visitStorage(cols, rows, visit);
    }

private:
    Cells cells_;
};

template <class Cells>
Transposed<Cells> transposed(Cells cells)
{
    return Transposed<Cells>(cells);
}

} // namespace vecmat
