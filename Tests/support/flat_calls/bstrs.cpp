#include "support/flat_calls/bstrs.h"

#include "CompanionRuntime/CompanionRuntime.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

namespace vecmat::flat {

namespace {

constexpr std::size_t prefixBytes = 4;

/// Each text begins where a 32-bit length may stand.
std::size_t roundedUp(std::size_t bytes)
{
    return (bytes + 3) / 4 * 4;
}

std::size_t bytesOf(const std::vector<Text>& texts)
{
    std::size_t bytes = 0;
    for (const Text& text : texts)
        if (text)
            bytes += roundedUp(bstrBytes(*text).size());
    return bytes;
}

} // namespace

Text textOf(const wchar_t* bstr)
{
    if (bstr == nullptr)
        return std::nullopt;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(bstr);
    std::uint32_t length = 0;
    std::memcpy(&length, bytes - prefixBytes, prefixBytes);
    std::wstring text;
    for (std::size_t k = 0; k < length / 2; ++k) {
        std::uint16_t unit = 0;
        std::memcpy(&unit, bytes + 2 * k, 2);
        text.push_back(static_cast<wchar_t>(unit)); // surrogates stay two
    }
    return text;
}

std::vector<unsigned char> bstrBytes(const std::wstring& text)
{
    std::vector<std::uint16_t> units;
    for (const wchar_t character : text) {
        const auto code = static_cast<std::uint32_t>(character);
        if (code >= 0x10000) {
            units.push_back(static_cast<std::uint16_t>(0xD7C0 + code / 0x400));
            units.push_back(static_cast<std::uint16_t>(0xDC00 + code % 0x400));
        } else {
            units.push_back(static_cast<std::uint16_t>(code));
        }
    }
    const auto length = static_cast<std::uint32_t>(units.size() * 2);
    std::vector<unsigned char> bytes(prefixBytes + length + 2, 0);
    std::memcpy(bytes.data(), &length, prefixBytes);
    if (length > 0)
        std::memcpy(bytes.data() + prefixBytes, units.data(), length);
    return bytes;
}

Bstrs::Bstrs(const std::vector<Text>& texts, Placement placement, const std::string& label)
    : count_(texts.size()), pointers_(texts.size() * sizeof(wchar_t*), placement, label),
      characters_(bytesOf(texts), placement, label + " (characters)")
{
    unsigned char* next = characters_.as<unsigned char>();
    for (std::size_t k = 0; k < count_; ++k) {
        if (!texts[k])
            continue;
        const std::vector<unsigned char> bytes = bstrBytes(*texts[k]);
        std::memcpy(next, bytes.data(), bytes.size());
        data()[k] = reinterpret_cast<wchar_t*>(next + prefixBytes);
        next += roundedUp(bytes.size());
    }
    characters_.forbidWriting();
}

Bstrs& Bstrs::operator=(Bstrs&& other) noexcept
{
    std::swap(count_, other.count_);
    pointers_ = std::move(other.pointers_);
    characters_ = std::move(other.characters_);
    return *this;
}

Bstrs::~Bstrs()
{
    if (pointers_.data() == nullptr)
        return; // moved from
    const auto* const first = characters_.as<unsigned char>();
    for (std::size_t k = 0; k < count_; ++k) {
        const auto* const byte = reinterpret_cast<const unsigned char*>(data()[k]);
        if (byte != nullptr && (byte < first || byte > first + characters_.size()))
            SysFreeString2(data()[k]);
    }
}

std::vector<Text> Bstrs::texts() const
{
    std::vector<Text> all;
    all.reserve(count_);
    for (std::size_t k = 0; k < count_; ++k)
        all.push_back(textOf(data()[k]));
    return all;
}

} // namespace vecmat::flat
