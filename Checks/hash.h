// The hash behind a digest.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>

namespace vecmat::digest {

/// 64-bit FNV-1a over numbers, each byte after byte from the lowest: the order of bytes in memory doesn't count. One NaN
/// is as good as another; the two zeros differ.
class Hash
{
public:
    void addBits(std::uint64_t bits, int bytes)
    {
        for (int i = 0; i < bytes; ++i, bits /= 256)
            value_ = (value_ ^ bits % 256) * 0x100000001B3u;
    }
    void add(double x)
    {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &x, sizeof(bits));
        addBits(std::isnan(x) ? 0x7FF8000000000000u : bits, 8);
    }
    void add(int x) { addBits(static_cast<std::uint32_t>(x), 4); }
    void add(short x) { addBits(static_cast<std::uint16_t>(x), 2); }
    void add(bool x) { addBits(x ? 1 : 0, 1); }
    void add(const std::wstring& text)
    {
        addBits(text.size(), 4);
        for (const wchar_t character : text)
            addBits(static_cast<std::uint32_t>(character), 4);
    }

    std::uint64_t value() const { return value_; }

private:
    std::uint64_t value_ = 0xCBF29CE484222325u;
};

} // namespace vecmat::digest
