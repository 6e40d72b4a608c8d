// Exclusion masks, as the caller hands them in: one 16-bit entry for each row or cell.
#pragma once

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

} // namespace vecmat
