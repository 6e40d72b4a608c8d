// A caller's text where it lies, compared and hashed by its 16-bit characters. Internal to the library.
#pragma once

#include "../../base/detail/companions.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace vecmat {

/// Characters as bytes: they come from another language, whose type for them may differ.
template <class Unsigned>
Unsigned charactersAt(const char* place)
{
    Unsigned characters;
    std::memcpy(&characters, place, sizeof characters);
    return characters;
}

/// In bytes.
constexpr std::uint32_t oneCharacter = sizeof(std::uint16_t);
constexpr std::uint32_t fourCharacters = sizeof(std::uint64_t);

/// A caller's BSTR. It ends at its first NUL; a null pointer is the empty text.
class Bstr
{
public:
    explicit Bstr(const void* bstr = nullptr) : first_(static_cast<const char*>(bstr)) {}

    const char* data() const { return first_; }
    /// As it stands in an array of the caller's.
    wchar_t* cell() const
    {
        return reinterpret_cast<wchar_t*>(const_cast<char*>(first_)); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    }
    bool empty() const { return first_ == nullptr || charactersAt<std::uint16_t>(first_) == 0; }
    /// The length that stands before the text, in bytes. The text may end earlier, at a NUL.
    std::uint32_t length() const { return charactersAt<std::uint32_t>(first_ - sizeof(std::uint32_t)); }

private:
    const char* first_;
};

/// The text in wide characters, by the companion; valid up to the next such call.
inline std::wstring_view wideText(Bstr bstr)
{
    return bstr.empty() ? std::wstring_view() : std::wstring_view(CW162W32(bstr.data()));
}

/// A caller's text with its hash.
class CallerText
{
public:
    /// The characters, whose number is known.
    class Characters
    {
    public:
        Characters() = default;
        Characters(Bstr bstr, std::uint32_t bytes) : bstr_(bstr), bytes_(bytes) {}

        Bstr bstr() const { return bstr_; }
        const char* data() const { return bstr_.data(); }
        bool empty() const { return bytes_ == 0; }
        /// In bytes.
        std::uint32_t size() const { return bytes_; }

        friend bool operator==(const Characters& a, const Characters& b)
        {
            if (a.bytes_ != b.bytes_)
                return false;
            return a.bytes_ < fourCharacters ? a.agrees<std::uint16_t>(b) : a.agrees<std::uint64_t>(b);
        }

    private:
        /// Step by step; the last step may overlap the one before.
        template <class Step>
        bool agrees(const Characters& other) const
        {
            const auto differs = [&](std::uint32_t k) {
                return charactersAt<Step>(data() + k) != charactersAt<Step>(other.data() + k);
            };
            for (std::uint32_t k = 0; k + sizeof(Step) < bytes_; k += sizeof(Step))
                if (differs(k))
                    return false;
            return bytes_ == 0 || !differs(bytes_ - static_cast<std::uint32_t>(sizeof(Step)));
        }

        Bstr bstr_;
        std::uint32_t bytes_ = 0;
    };

    CallerText() = default;
    CallerText(Bstr bstr) // NOLINT(google-explicit-constructor): as a view becomes a HashedText
        : bstr_(bstr)
    {
        if (bstr.empty())
            return;
        // The length before the text says how far it may be read at once; a NUL inside ends it all the same.
        bytes_ = bstr.length();
        const bool endsThere = bytes_ % oneCharacter == 0 && charactersAt<std::uint16_t>(bstr.data() + bytes_) == 0;
        if (!endsThere || !hashed()) {
            bytes_ = 0;
            while (charactersAt<std::uint16_t>(bstr.data() + bytes_) != 0)
                bytes_ += oneCharacter;
            hashed();
        }
    }

    Characters text() const { return {bstr_, bytes_}; }
    std::uint32_t hash() const { return hash_; }

private:
    /// Sets the hash. Returns whether there is no NUL among the characters.
    ///
    /// They are read four at a time, in two lanes side by side, the last of each lane together with some that may have
    /// been read before. A product carries each step to the upper bits and a shift brings these down again.
    bool hashed()
    {
        constexpr std::uint64_t factor = 0x9E3779B97F4A7C15; // 2^64 divided by the golden ratio
        const char* const text = bstr_.data();
        std::uint64_t left = bytes_;
        std::uint64_t right = factor;
        std::uint64_t nuls = 0;
        const auto take = [&](std::uint64_t characters, std::uint64_t& lane) {
            nuls |= nulsIn(characters);
            lane = (lane ^ characters) * factor;
            lane ^= lane >> 32;
        };
        const auto takeBoth = [&](std::uint32_t k, std::uint32_t l) {
            take(charactersAt<std::uint64_t>(text + k), left);
            take(charactersAt<std::uint64_t>(text + l), right);
        };
        if (bytes_ < fourCharacters) {
            std::uint64_t all = ~std::uint64_t{0}; // no NUL where there is no character
            for (std::uint32_t k = 0; k < bytes_; k += oneCharacter)
                all = all << 16 | charactersAt<std::uint16_t>(text + k);
            take(all, left);
        } else {
            std::uint32_t k = 0;
            for (; k + 2 * fourCharacters < bytes_; k += 2 * fourCharacters)
                takeBoth(k, k + fourCharacters);
            takeBoth(bytes_ < 2 * fourCharacters ? 0 : bytes_ - 2 * fourCharacters, bytes_ - fourCharacters);
        }
        hash_ = static_cast<std::uint32_t>((left ^ right >> 7) * factor >> 32);
        return nuls == 0;
    }

    /// Not 0 if one of four characters is. Subtracting 1 borrows into the top bit of a 0, and of no other lowest one.
    static std::uint64_t nulsIn(std::uint64_t characters)
    {
        return (characters - 0x0001000100010001) & ~characters & 0x8000800080008000;
    }

    Bstr bstr_;
    std::uint32_t bytes_ = 0;
    std::uint32_t hash_ = 0;
};

inline std::wstring_view wideText(const CallerText::Characters& text)
{
    return wideText(text.bstr());
}
inline std::wstring_view wideText(std::wstring_view text)
{
    return text;
}

} // namespace vecmat
