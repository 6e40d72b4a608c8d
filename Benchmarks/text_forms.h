// The flat forms that take strings, each against the same over tables of strings: made of the caller's texts first, and
// handed back as new texts where the form changes or returns some.
#pragma once

#include "contest.h"
#include "texts.h"

#include "calls/column_descriptor.h"

#include "frame/super_matrices.h"
#include "matrix.h"
#include "matrixInt.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <unordered_set>
#include <utility>
#include <vector>

namespace vecmat::bench {

/// What the forms work on: a table of texts, one in fifty of them empty, and whatever else a call may need. All that a
/// call has changed is put back before the next.
struct TextData
{
    static constexpr int cols = 4;
    static constexpr int categories = 1000;
    static constexpr int strata = 5;

    int rows;
    int cells;
    Texts texts;
    BstrArray callers;
    std::vector<wchar_t*> x, out; // the caller's array, and one for a result
    Cells drawn, numbers;         // two columns, one in twenty cells missing
    Cells key, order, ids, weights, frequencies, counted;
    std::vector<short> mask, flags, allFlags;
    std::vector<int> counts;
    BstrArray names; // each category once, and once for each column
    BstrArray namesByColumn;
    Cells answer;
    int seed = 0;
    int seedOut = 0;

    TextData(int n, bool allDiffer);
    TextData(const TextData&) = delete;
    TextData& operator=(const TextData&) = delete;
    ~TextData() { restore(); }

    void restore();
    /// All that a call may have changed, each text as a number.
    Cells changed() const;

private:
    std::unordered_set<const wchar_t*> own_;
};

/// A table over a vector.
inline matrix tableOver(Cells& cells)
{
    return {lengthOf(cells), 1, cells.data(), true};
}

/// The caller's array of string columns, over one table of texts.
class StringColumns
{
public:
    StringColumns(wchar_t** texts, int rows, int cols) : elements_(count(cols)), inner_(count(cols))
    {
        for (int j = 0; j < cols; ++j) {
            inner_[count(j)] =
                binding::columnDescriptor(texts + static_cast<std::ptrdiff_t>(rows) * j, count(rows), sizeof(wchar_t*));
            elements_[count(j)] = {nullptr, &inner_[count(j)]};
        }
        outer_ = binding::columnDescriptor(elements_.data(), count(cols), sizeof(SAFEARRAYColumn));
    }
    StringColumns(const StringColumns&) = delete;
    StringColumns& operator=(const StringColumns&) = delete;

    operator SAFEARRAY**() { return &address_; }

private:
    std::vector<SAFEARRAYColumn> elements_;
    std::vector<SAFEARRAY> inner_;
    SAFEARRAY outer_;
    SAFEARRAY* address_ = &outer_;
};

struct TextForm
{
    const char* name;
    std::function<void(TextData&)> flat;
    std::function<void(TextData&)> overTable;
    int rows = 25'000;
    bool allDiffer = false; ///< the texts, instead of being drawn from the categories
};

// ---- the way over a table -------------------------------------------------------------------------------------------

/// A table that a function may replace by another; it leaves the deleting to its caller then.
class OwnTable
{
public:
    OwnTable(int rows, int cols) : opened_(std::make_unique<Smatrix>(rows, cols)), table(opened_.get()) {}
    OwnTable(int rows, int cols, wchar_t** texts)
        : opened_(std::make_unique<Smatrix>(rows, cols, texts, 0, 0)), table(opened_.get())
    {
    }
    OwnTable(const OwnTable&) = delete;
    OwnTable& operator=(const OwnTable&) = delete;
    ~OwnTable()
    {
        if (table != opened_.get())
            delete table;
    }

private:
    std::unique_ptr<Smatrix> opened_;

public:
    Smatrix* table;
};

/// function(table): its texts go back to the array.
template <class Function>
void changeTable(TextData& data, int rows, int cols, Function function)
{
    OwnTable x(rows, cols, data.x.data());
    function(x.table);
    x.table->copyMatTo(data.x.data());
}

/// function(table, result): the texts of a result of this shape.
template <class Function>
void fillTable(TextData& data, int rows, int cols, Function function)
{
    OwnTable x(data.rows, data.cols, data.x.data());
    OwnTable result(rows, cols);
    function(x.table, result.table);
    result.table->copyMatTo(data.out.data());
}

/// function(table), which only reads.
template <class Function>
auto askTable(TextData& data, int rows, int cols, Function function)
{
    OwnTable x(rows, cols, data.x.data());
    return function(x.table);
}

/// Tables over string columns.
class OwnColumns
{
public:
    OwnColumns(wchar_t** texts, int rows, int cols)
        : array_(texts, rows, cols), cols_(cols), tables(LoadSAFEARRAYStr(array_, cols, rows, 1))
    {
    }
    OwnColumns(const OwnColumns&) = delete;
    OwnColumns& operator=(const OwnColumns&) = delete;
    ~OwnColumns() { DeleteSAFEARRAYStr(tables, cols_); }
    void save() { SaveSAFEARRAY(tables, cols_, 0, array_); }

private:
    StringColumns array_;
    int cols_;

public:
    Smatrix** tables;
};

std::unique_ptr<Stage> stageOf(const TextForm& form, int rows);

std::vector<TextForm> formsThatMove();
std::vector<TextForm> formsThatSort();
std::vector<TextForm> formsThatCompare();
std::vector<TextForm> formsThatFill();
std::vector<TextForm> formsThatSample();

} // namespace vecmat::bench
