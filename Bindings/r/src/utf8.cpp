#include "utf8.h"

namespace vecmat::r {

namespace {

constexpr char32_t replacement = 0xFFFD;

bool isHigh(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool isLow(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

// How many bytes a character has by its first one; 0 where none begins with it.
int lengthOf(unsigned char first)
{
    return first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF5 ? 4 : 0;
}

// Reads a character and moves on behind it.
char32_t next(std::string_view text, std::size_t& place)
{
    const auto first = static_cast<unsigned char>(text[place]);
    const auto length = static_cast<std::size_t>(lengthOf(first));
    if (length == 0 || place + length > text.size()) {
        ++place;
        return replacement;
    }
    char32_t character = length == 1 ? first : first & (0x7Fu >> length);
    for (std::size_t k = 1; k < length; ++k) {
        const auto unit = static_cast<unsigned char>(text[place + k]);
        if ((unit & 0xC0u) != 0x80u) {
            ++place;
            return replacement;
        }
        character = (character << 6) | (unit & 0x3Fu);
    }
    place += length;
    constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    return character < least[length] || isSurrogate || character > 0x10FFFF ? replacement : character;
}

template <class Text>
void append(Text& text, char32_t character)
{
    using Unit = typename Text::value_type;
    if (sizeof(Unit) == sizeof(char16_t) && character > 0xFFFF) {
        text += static_cast<Unit>(0xD800 + ((character - 0x10000) >> 10));
        text += static_cast<Unit>(0xDC00 + ((character - 0x10000) & 0x3FF));
    } else {
        text += static_cast<Unit>(character);
    }
}

void append(std::string& text, char32_t character)
{
    if (character < 0x80) {
        text += static_cast<char>(character);
        return;
    }
    const int more = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    constexpr unsigned char heads[] = {0, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(heads[more] | (character >> (6 * more)));
    for (int k = more - 1; k >= 0; --k)
        text += static_cast<char>(0x80 | ((character >> (6 * k)) & 0x3F));
}

template <class Text>
Text converted(std::string_view text)
{
    Text result;
    result.reserve(text.size());
    for (std::size_t place = 0; place < text.size();)
        append(result, next(text, place));
    return result;
}

} // namespace

std::u16string toUtf16(std::string_view text)
{
    return converted<std::u16string>(text);
}

std::wstring toWide(std::string_view text)
{
    return converted<std::wstring>(text);
}

std::string toUtf8(std::u16string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t place = 0; place < text.size(); ++place) {
        const char16_t unit = text[place];
        if (isHigh(unit) && place + 1 < text.size() && isLow(text[place + 1])) {
            const char32_t high = unit - 0xD800u;
            append(result, 0x10000 + (high << 10) + (text[++place] - 0xDC00u));
        } else {
            append(result, isHigh(unit) || isLow(unit) ? replacement : char32_t(unit));
        }
    }
    return result;
}

} // namespace vecmat::r
