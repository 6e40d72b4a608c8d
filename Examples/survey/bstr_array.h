// Texts as the library's flat forms take them and give them: arrays of BSTRs.
#pragma once

#include "flat_call.h"
#include "table.h"

#include <cstddef>
#include <string>
#include <vector>

namespace survey {

/// Texts in UTF-8 as BSTRs. Bytes that aren't UTF-8, or are 0, stand as a character of their own each, so that every
/// text comes back as it was.
///
/// The library makes new BSTRs in place of those of a result and leaves freeing both to the caller. The array does so
/// when it goes, as long as one call at most has written into it.
class BstrArray
{
public:
    explicit BstrArray(const std::vector<std::string>& texts);
    explicit BstrArray(const std::vector<const std::string*>& texts);
    /// Room for the texts of a result.
    explicit BstrArray(std::size_t size) : given_(size, nullptr), present_(size, nullptr) {}
    BstrArray(const BstrArray&) = delete;
    BstrArray& operator=(const BstrArray&) = delete;
    BstrArray(BstrArray&&) noexcept = default;
    BstrArray& operator=(BstrArray&&) = delete;
    ~BstrArray();

    wchar_t** data() { return present_.data(); }
    std::string text(std::size_t place) const;

private:
    std::vector<wchar_t*> given_;
    std::vector<wchar_t*> present_; // where a call has written, another one
};

/// The texts of some columns, column after column.
BstrArray textsOf(const std::vector<const Column*>& columns);
/// Those of some of the rows.
BstrArray textsOf(const std::vector<const Column*>& columns, RowRange range);
BstrArray textsOf(const std::vector<const Column*>& columns, const std::vector<int>& rows);

} // namespace survey
