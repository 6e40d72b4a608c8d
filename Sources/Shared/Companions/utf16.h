// Conversion from 16-bit to wide characters, shared by the companions that read a BSTR. Not installed.
#pragma once

#include <cstddef>
#include <cstring>
#include <string>

namespace companions {

/// Whether a wide character can hold a whole code point. If not, a wide text is UTF-16, like a BSTR.
constexpr bool wideHoldsCodePoints = sizeof(wchar_t) == sizeof(char32_t);
static_assert(wideHoldsCodePoints || sizeof(wchar_t) == sizeof(char16_t));

inline bool isHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

inline bool isLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Reads bytes, not units: the text comes from another language, whose type for a unit may differ.
inline char16_t unitAt(const void* text, std::size_t position)
{
    char16_t unit;
    std::memcpy(&unit, static_cast<const char*>(text) + position * sizeof unit, sizeof unit);
    return unit;
}

inline std::size_t lengthOf(const void* text)
{
    std::size_t length = 0;
    while (unitAt(text, length) != 0)
        ++length;
    return length;
}

/// Converts `length` units to at most as many wide characters, and returns the place after the last. A surrogate pair
/// becomes one character, if one can hold it; an unpaired surrogate is kept, so that no text is lost in a round trip.
inline wchar_t* widen(const void* text, std::size_t length, wchar_t* to)
{
    if constexpr (!wideHoldsCodePoints) {
        std::memcpy(to, text, length * sizeof(char16_t));
        return to + length;
    }
    for (std::size_t position = 0; position < length; ++position) {
        const char16_t unit = unitAt(text, position);
        // A high surrogate is followed at least by the NUL, so the next unit may be read.
        const char16_t next = isHighSurrogate(unit) ? unitAt(text, position + 1) : char16_t(0);
        if (isLowSurrogate(next)) {
            *to++ = static_cast<wchar_t>(0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00));
            ++position;
        } else {
            *to++ = static_cast<wchar_t>(unit);
        }
    }
    return to;
}

/// Appends the text up to its NUL to `wide`. A null pointer means the empty text.
inline void appendUtf16(const void* text, std::wstring& wide)
{
    if (text == nullptr)
        return;
    const std::size_t length = lengthOf(text);
    const std::size_t before = wide.size();
    wide.resize(before + length);
    const wchar_t* const end = widen(text, length, wide.data() + before);
    wide.resize(static_cast<std::size_t>(end - wide.data()));
}

} // namespace companions
