// Exclusion masks, as passed in by the caller: one 16-bit entry for each row or cell.
#pragma once

#include "../missing_value.h"
#include "numbers.h"

namespace vecmat {

/// Reads an exclusion mask: 0 keeps, any other value drops (not only the -1 of a Boolean). Without an array everything
/// is kept.
class Mask
{
public:
    constexpr explicit Mask(const short* entries) : entries_(entries) {}

    constexpr bool keeps(int i) const { return entries_ == nullptr || entries_[i] == 0; }

private:
    const short* entries_;
};

/// The entry of a row in a mask of missing cells: set if the row is already excluded, by a flag of exactly -1, or its
/// cell is missing (order test).
constexpr short maskOfMissing(short flag, double cell)
{
    return booleanOf(flag == -1 || isMissingOrBelow(cell));
}

} // namespace vecmat
