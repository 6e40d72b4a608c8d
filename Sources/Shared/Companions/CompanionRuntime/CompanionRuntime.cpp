#include "CompanionRuntime.h"

#include "../utf16.h"

#include <cstdint>
#include <cwchar>
#include <new>

namespace {

using LengthPrefix = std::uint32_t;

constexpr char32_t replacementCharacter = 0xFFFD;

void appendCharacter(char32_t character, std::u16string& text)
{
    if (character > 0x10FFFF)
        character = replacementCharacter;
    if (character > 0xFFFF) {
        text.push_back(static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10)));
        text.push_back(static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF)));
    } else {
        text.push_back(static_cast<char16_t>(character));
    }
}

std::u16string toUtf16(const wchar_t* text)
{
    std::u16string converted;
    for (; *text != L'\0'; ++text)
        appendCharacter(static_cast<char32_t>(*text), converted);
    return converted;
}

} // namespace

const wchar_t* CW162W32(const void* bstr)
{
    thread_local std::wstring text;
    text.clear();
    companions::appendUtf16(bstr, text);
    return text.c_str(); // NOLINT(clang-analyzer-cplusplus.InnerPointer): valid until the next call, as told
}

wchar_t* SysAllocString2(const wchar_t* text)
{
    if (text == nullptr)
        return nullptr;
    const std::u16string converted = toUtf16(text);
    const LengthPrefix length = static_cast<LengthPrefix>(converted.size() * sizeof(char16_t));
    char* const block = static_cast<char*>(::operator new(sizeof length + length + sizeof(char16_t)));
    std::memcpy(block, &length, sizeof length);
    std::memcpy(block + sizeof length, converted.c_str(), length + sizeof(char16_t));
    return reinterpret_cast<wchar_t*>(block + sizeof length);
}

void SysFreeString2(wchar_t* bstr)
{
    if (bstr != nullptr)
        ::operator delete(reinterpret_cast<char*>(bstr) - sizeof(LengthPrefix));
}
