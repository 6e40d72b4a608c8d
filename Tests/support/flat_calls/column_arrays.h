// A caller's array of columns: an array of arrays as OLE Automation has it, in the memory of a call.
#pragma once

#include "support/flat_calls/bstrs.h"
#include "support/flat_calls/memory.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vecmat::flat {

/// Goes wherever `SAFEARRAY**` is expected. Each column has numbers or strings; the other pointer is null. What the
/// library only reads, the descriptors, is read-only.
class ColumnArray
{
public:
    ColumnArray(const std::vector<std::vector<double>>& columns, Placement placement, const std::string& label);
    ColumnArray(const std::vector<std::vector<Text>>& columns, Placement placement, const std::string& label);

    void* data() const { return frame_.data(); }
    void forbidWriting();

    const std::vector<Block>& numbers() const { return numbers_; }
    const std::vector<Bstrs>& strings() const { return strings_; }

    /// Hands every block to `visit`.
    template <class Visit>
    void forEachBlock(Visit visit) const
    {
        for (const Block* block : {&frame_, &elements_, &inner_})
            visit(*block);
        for (const Block& block : numbers_)
            visit(block);
        for (const Bstrs& column : strings_) {
            visit(column.pointers());
            visit(column.characters());
        }
    }

private:
    ColumnArray(std::size_t count, Placement placement, const std::string& label);
    void describe(std::size_t column, void* cells, std::size_t count, bool strings);
    void close();

    Block frame_;    // the address that is passed on, and the outer descriptor
    Block elements_; // two pointers for each column
    Block inner_;    // a descriptor for each column
    std::vector<Block> numbers_;
    std::vector<Bstrs> strings_;
};

} // namespace vecmat::flat
