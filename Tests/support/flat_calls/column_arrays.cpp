#include "support/flat_calls/column_arrays.h"

#include "VecMat.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace vecmat::flat {

namespace {

struct Frame
{
    SAFEARRAY* address;
    SAFEARRAY outer;
};

// Only pvData is for the library to read: the other fields hold what would show if it relied on them.
SAFEARRAY descriptor(void* data, std::size_t count, std::size_t bytes)
{
    SAFEARRAY array{};
    array.cDims = 1;
    array.cLocks = 7;
    array.cbElements = static_cast<std::uint32_t>(bytes);
    array.pvData = data;
    array.rgsabound[0].cElements = static_cast<std::uint32_t>(count);
    array.rgsabound[0].lLbound = -3;
    return array;
}

std::string ofColumn(const std::string& label, std::size_t column)
{
    return label + " column " + std::to_string(column + 1);
}

} // namespace

ColumnArray::ColumnArray(std::size_t count, Placement placement, const std::string& label)
    : frame_(sizeof(Frame), placement, label + " (address)"),
      elements_(count * sizeof(SAFEARRAYColumn), placement, label + " (array of columns)"),
      inner_(count * sizeof(SAFEARRAY), placement, label + " (descriptors of columns)")
{
    Frame& frame = *frame_.as<Frame>();
    frame.outer = descriptor(elements_.data(), count, sizeof(SAFEARRAYColumn));
    frame.address = &frame.outer;
}

ColumnArray::ColumnArray(const std::vector<std::vector<double>>& columns, Placement placement, const std::string& label)
    : ColumnArray(columns.size(), placement, label)
{
    for (std::size_t j = 0; j < columns.size(); ++j) {
        Block& block = numbers_.emplace_back(columns[j].size() * sizeof(double), placement, ofColumn(label, j));
        std::copy(columns[j].begin(), columns[j].end(), block.as<double>());
        describe(j, block.data(), columns[j].size(), false);
    }
    close();
}

ColumnArray::ColumnArray(const std::vector<std::vector<Text>>& columns, Placement placement, const std::string& label)
    : ColumnArray(columns.size(), placement, label)
{
    for (std::size_t j = 0; j < columns.size(); ++j) {
        const Bstrs& column = strings_.emplace_back(columns[j], placement, ofColumn(label, j));
        describe(j, column.data(), columns[j].size(), true);
    }
    close();
}

void ColumnArray::describe(std::size_t column, void* cells, std::size_t count, bool strings)
{
    SAFEARRAY& array = inner_.as<SAFEARRAY>()[column];
    array = descriptor(cells, count, strings ? sizeof(void*) : sizeof(double));
    SAFEARRAYColumn& element = elements_.as<SAFEARRAYColumn>()[column];
    (strings ? element.strings : element.numbers) = &array;
}

void ColumnArray::close()
{
    frame_.forbidWriting();
    elements_.forbidWriting();
    inner_.forbidWriting();
}

void ColumnArray::forbidWriting()
{
    for (Block& block : numbers_)
        block.forbidWriting();
    for (Bstrs& column : strings_)
        column.forbidWriting();
}

} // namespace vecmat::flat
