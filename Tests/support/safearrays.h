// A caller's array of arrays: an outer array whose elements are a column of numbers and a column of strings.
#pragma once

#include "support/guarded.h"
#include "support/strings.h"
#include "support/tables.h"

#include "frame/super_matrices.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace vecmat::test {

/// Goes wherever `SAFEARRAY**` is expected. The columns keep guard cells around their numbers; strings that the library
/// has stored are freed with the array.
///
///     ArrayOfColumns a = numberColumns(2, 2, {1, 2, 3, 4});
///     VB_M_TransposeSPV(a, 2, 2, out);
///     EXPECT_THAT(a.numbers(0), SameBits({1, 2}));
class ArrayOfColumns
{
public:
    /// `count` columns that hold nothing yet: both pointers of each are null.
    explicit ArrayOfColumns(std::size_t count) : columns_(count), elements_(count), outer_(descriptor())
    {
        outer_.cbElements = sizeof(SAFEARRAYColumn);
        outer_.pvData = elements_.data();
        outer_.rgsabound[0].cElements = static_cast<std::uint32_t>(count);
    }
    explicit ArrayOfColumns(const std::vector<std::vector<double>>& columns) : ArrayOfColumns(columns.size())
    {
        for (std::size_t j = 0; j < columns.size(); ++j)
            setNumbers(j, columns[j]);
    }
    explicit ArrayOfColumns(const std::vector<std::vector<std::wstring>>& columns) : ArrayOfColumns(columns.size())
    {
        for (std::size_t j = 0; j < columns.size(); ++j)
            setStrings(j, columns[j]);
    }
    ArrayOfColumns(const ArrayOfColumns&) = delete;
    ArrayOfColumns& operator=(const ArrayOfColumns&) = delete;

    void setNumbers(std::size_t j, const std::vector<double>& cells)
    {
        Column& column = columns_.at(j);
        Guarded<double>& stored = column.numbers.emplace(cells);
        column.numbersArray = inner(stored.data(), cells.size(), sizeof(double));
        elements_[j].numbers = &column.numbersArray;
    }
    void setStrings(std::size_t j, const std::vector<std::wstring>& cells)
    {
        Column& column = columns_.at(j);
        BstrArray& stored = column.strings.emplace(cells);
        column.stringsArray = inner(stored.get(), cells.size(), sizeof(void*));
        elements_[j].strings = &column.stringsArray;
    }

    operator SAFEARRAY**() { return get(); }
    SAFEARRAY** get() { return &address_; }
    std::size_t count() const { return columns_.size(); }

    /// The caller's cells as they are now.
    std::vector<double> numbers(std::size_t j) const { return columns_.at(j).numbers.value().values(); }
    std::vector<std::wstring> strings(std::size_t j) const { return columns_.at(j).strings.value().texts(); }
    BstrArray& stringArray(std::size_t j) { return columns_.at(j).strings.value(); }

    /// All numbers, column after column.
    std::vector<double> numbers() const
    {
        std::vector<double> all;
        for (std::size_t j = 0; j < count(); ++j) {
            const std::vector<double> one = numbers(j);
            all.insert(all.end(), one.begin(), one.end());
        }
        return all;
    }

    /// Whether every number has the bits it was given.
    bool untouched() const
    {
        return std::all_of(columns_.begin(), columns_.end(),
                           [](const Column& column) { return !column.numbers || column.numbers->untouched(); });
    }

private:
    struct Column
    {
        std::optional<Guarded<double>> numbers;
        std::optional<BstrArray> strings;
        SAFEARRAY numbersArray = descriptor();
        SAFEARRAY stringsArray = descriptor();
    };

    // Only pvData is for the library to read: the other fields hold what would show if it relied on them.
    static SAFEARRAY descriptor()
    {
        SAFEARRAY array{};
        array.cDims = 1;
        array.cLocks = 7;
        array.rgsabound[0].lLbound = -3;
        return array;
    }
    static SAFEARRAY inner(void* data, std::size_t count, std::size_t bytes)
    {
        SAFEARRAY array = descriptor();
        array.cbElements = static_cast<std::uint32_t>(bytes);
        array.pvData = data;
        array.rgsabound[0].cElements = static_cast<std::uint32_t>(count);
        return array;
    }

    std::deque<Column> columns_;
    std::vector<SAFEARRAYColumn> elements_;
    SAFEARRAY outer_;
    SAFEARRAY* address_ = &outer_;
};

/// A full table, given column after column.
inline ArrayOfColumns numberColumns(int rows, int cols, const std::vector<double>& cells)
{
    return ArrayOfColumns(columnsOf(rows, cols, cells));
}
inline ArrayOfColumns stringColumns(int rows, int cols, const std::vector<std::wstring>& cells)
{
    return ArrayOfColumns(columnsOf(rows, cols, cells));
}

/// The triangle of a square table given in full: column k has `order` - k cells.
inline ArrayOfColumns numberTriangle(int order, const std::vector<double>& cells)
{
    return ArrayOfColumns(triangleOf(order, cells));
}

} // namespace vecmat::test
