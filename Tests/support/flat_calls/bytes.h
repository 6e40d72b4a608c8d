// Bytes that someone hands over to be read as numbers, first to last: a fuzzer's input.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace vecmat::flat {

class Bytes
{
public:
    explicit Bytes(std::span<const unsigned char> bytes) : bytes_(bytes) {}

    bool empty() const { return bytes_.empty(); }
    std::span<const unsigned char> rest() const { return bytes_; }
    /// The number of the next `count` bytes, 8 at most; what is missing at the end is 0.
    std::uint64_t take(std::size_t count)
    {
        std::uint64_t number = 0;
        for (std::size_t k = 0; k < count && !bytes_.empty(); ++k) {
            number |= std::uint64_t{bytes_.front()} << (8 * k);
            bytes_ = bytes_.subspan(1);
        }
        return number;
    }

private:
    std::span<const unsigned char> bytes_;
};

} // namespace vecmat::flat
