#include "support/strings.h"

#include "CompanionRuntime/CompanionRuntime.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

// The codec is written anew here: a mistake in the one of the companion would otherwise confirm itself.
namespace vecmat::test {

namespace {

constexpr std::size_t prefixBytes = 4;

std::vector<std::uint16_t> encoded(const std::wstring& text)
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
    return units;
}

std::wstring decoded(const std::vector<std::uint16_t>& units)
{
    std::wstring text;
    for (const std::uint32_t unit : units) {
        const auto before = text.empty() ? 0u : static_cast<std::uint32_t>(text.back());
        if (unit / 0x400 == 0xDC00 / 0x400 && before / 0x400 == 0xD800 / 0x400)
            text.back() = static_cast<wchar_t>((before - 0xD7C0) * 0x400 + unit % 0x400);
        else
            text.push_back(static_cast<wchar_t>(unit));
    }
    return text;
}

} // namespace

std::wstring textOf(const void* bstr)
{
    if (bstr == nullptr)
        return {};
    const auto* const bytes = static_cast<const unsigned char*>(bstr);
    std::uint32_t length = 0;
    std::memcpy(&length, bytes - prefixBytes, prefixBytes);
    EXPECT_EQ(length % 2, 0u) << "the length of a BSTR is an even number of bytes";
    std::vector<std::uint16_t> units(length / 2 + 1);
    std::memcpy(units.data(), bytes, units.size() * 2);
    EXPECT_EQ(units.back(), 0) << "a BSTR ends in a NUL";
    units.pop_back();
    return decoded(units);
}

std::wstring takenText(wchar_t* bstr)
{
    const std::wstring text = textOf(bstr);
    SysFreeString2(bstr);
    return text;
}

CallersText::CallersText(const std::wstring& text)
{
    const std::vector<std::uint16_t> units = encoded(text);
    const auto length = static_cast<std::uint32_t>(units.size() * 2);
    block_ = std::make_unique<unsigned char[]>(prefixBytes + length + 2);
    std::memcpy(block_.get(), &length, prefixBytes);
    if (length > 0)
        std::memcpy(block_.get() + prefixBytes, units.data(), length);
}

wchar_t* CallersText::get() const
{
    return reinterpret_cast<wchar_t*>(block_.get() + prefixBytes);
}

BstrArray::BstrArray(const std::vector<std::wstring>& texts)
{
    for (const std::wstring& text : texts)
        own_.push_back(storage_.emplace_back(text).get());
    cells_ = own_;
}

BstrArray::~BstrArray()
{
    takeTexts();
}

std::vector<std::wstring> BstrArray::texts() const
{
    std::vector<std::wstring> all;
    for (const wchar_t* cell : cells_)
        all.push_back(textOf(cell));
    return all;
}

bool BstrArray::isNew(std::size_t position) const
{
    return cells_.at(position) != nullptr && cells_.at(position) != own_.at(position);
}

std::size_t BstrArray::countNew() const
{
    std::size_t count = 0;
    for (std::size_t k = 0; k < size(); ++k)
        count += isNew(k) ? 1 : 0;
    return count;
}

std::vector<std::wstring> BstrArray::takeTexts()
{
    const std::vector<std::wstring> taken = texts();
    for (std::size_t k = 0; k < size(); ++k)
        if (isNew(k))
            SysFreeString2(cells_[k]);
    cells_ = own_;
    return taken;
}

} // namespace vecmat::test
