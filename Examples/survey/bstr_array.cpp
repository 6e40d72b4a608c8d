#include "bstr_array.h"

#include <CompanionRuntime/CompanionRuntime.h>

#include <string_view>

namespace survey {

namespace {

// A byte that is no character is held as the one with this number and the byte added: halves of surrogate pairs, which
// UTF-8 doesn't have and the library leaves as they are.
constexpr unsigned long escape = 0xDC00;

unsigned long byteAt(std::string_view text, std::size_t place)
{
    return static_cast<unsigned char>(text[place]);
}

/// Bytes of the character that begins with this byte; 0 where none does.
std::size_t lengthOf(unsigned long lead)
{
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead < 0xE0)
        return 2;
    if (lead >= 0xE0 && lead < 0xF0)
        return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

/// Removes a character from the beginning of a text, or a byte where there is none.
wchar_t takeCharacter(std::string_view& text)
{
    constexpr unsigned long least[] = {0, 1, 0x80, 0x800, 0x10000}; // by the number of bytes: more would be too long
    constexpr unsigned long leadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    const unsigned long lead = byteAt(text, 0);
    const std::size_t length = lengthOf(lead);
    unsigned long code = lead & leadBits[length];
    bool valid = length > 0 && length <= text.size();
    for (std::size_t i = 1; valid && i < length; ++i) {
        valid = (byteAt(text, i) & 0xC0U) == 0x80;
        code = code << 6U | (byteAt(text, i) & 0x3FU);
    }
    const bool isSurrogate = code >= 0xD800 && code < 0xE000;
    valid = valid && code >= least[length] && code <= 0x10FFFF && !isSurrogate;
    text.remove_prefix(valid ? length : 1);
    return static_cast<wchar_t>(valid ? code : escape + lead);
}

void append(std::string& text, unsigned long code)
{
    const auto put = [&](unsigned long byte) { text += static_cast<char>(byte); };
    const auto putSix = [&](unsigned shift) { put(0x80U | ((code >> shift) & 0x3FU)); };
    if (code >= escape && code < escape + 0x100) {
        put(code - escape);
    } else if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0U | code >> 6U);
        putSix(0);
    } else if (code < 0x10000) {
        put(0xE0U | code >> 12U);
        putSix(6);
        putSix(0);
    } else {
        put(0xF0U | code >> 18U);
        putSix(12);
        putSix(6);
        putSix(0);
    }
}

wchar_t* newBstr(std::string_view text)
{
    std::wstring characters;
    while (!text.empty())
        characters += takeCharacter(text);
    return SysAllocString2(characters.c_str());
}

} // namespace

BstrArray::BstrArray(const std::vector<std::string>& texts) : BstrArray(texts.size())
{
    for (std::size_t i = 0; i < texts.size(); ++i)
        present_[i] = given_[i] = newBstr(texts[i]);
}

BstrArray::BstrArray(const std::vector<const std::string*>& texts) : BstrArray(texts.size())
{
    for (std::size_t i = 0; i < texts.size(); ++i)
        present_[i] = given_[i] = newBstr(*texts[i]);
}

BstrArray::~BstrArray()
{
    for (std::size_t i = 0; i < given_.size(); ++i) {
        if (present_[i] != given_[i])
            SysFreeString2(present_[i]);
        SysFreeString2(given_[i]);
    }
}

std::string BstrArray::text(std::size_t place) const
{
    std::string text;
    if (present_[place] != nullptr)
        for (const wchar_t character : std::wstring(CW162W32(present_[place])))
            append(text, static_cast<unsigned long>(character));
    return text;
}

BstrArray textsOf(const std::vector<const Column*>& columns)
{
    return textsOf(columns, RowRange{0, columns.empty() ? 0 : static_cast<int>(columns.front()->texts.size())});
}

BstrArray textsOf(const std::vector<const Column*>& columns, RowRange range)
{
    std::vector<const std::string*> texts;
    for (const Column* column : columns)
        for (int i = 0; i < range.count; ++i)
            texts.push_back(&column->texts[static_cast<std::size_t>(range.first + i)]);
    return BstrArray(texts);
}

BstrArray textsOf(const std::vector<const Column*>& columns, const std::vector<int>& rows)
{
    std::vector<const std::string*> texts;
    for (const Column* column : columns)
        for (const int row : rows)
            texts.push_back(&column->texts[static_cast<std::size_t>(row)]);
    return BstrArray(texts);
}

} // namespace survey
