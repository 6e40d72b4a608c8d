// Texts on their way to the caller's array.
#pragma once

#include "companions.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace vecmat {

/// New BSTRs and the places of the caller's where they belong. A text that cannot be made leaves all places as they are:
/// add all texts of a call first, then store them, which never fails.
class OutgoingTexts
{
public:
    OutgoingTexts() = default;
    OutgoingTexts(const OutgoingTexts&) = delete;
    OutgoingTexts& operator=(const OutgoingTexts&) = delete;
    /// Releases what has not been stored.
    ~OutgoingTexts()
    {
        for (wchar_t* const text : texts_)
            discardText(text);
    }

    void add(const std::wstring& text, wchar_t** place) { add(&text, 1, place); }
    /// One text after the other: strings of the library's, or BSTRs of a caller's, where null is the empty text.
    template <class Text>
    void add(const Text* texts, std::size_t count, wchar_t** places)
    {
        if (const std::size_t needed = texts_.size() + count; needed > texts_.capacity())
            texts_.reserve(std::max(needed, 2 * texts_.capacity()));
        if (runs_.empty() || runs_.back().places + runs_.back().count != places)
            runs_.push_back({places, 0});
        runs_.back().count += count;
        for (std::size_t k = 0; k < count; ++k) {
            if (count - k > textsAhead)
                expect(texts[k + textsAhead]);
            texts_.push_back(newText(texts[k]));
        }
    }

    void store() noexcept
    {
        auto text = texts_.cbegin();
        for (const Run& run : runs_) {
            std::copy_n(text, run.count, run.places);
            text += static_cast<std::ptrdiff_t>(run.count);
        }
        texts_.clear();
        runs_.clear();
    }

private:
    /// A caller's texts, selected or moved, may be anywhere in memory: they are prefetched some texts ahead.
    static constexpr std::size_t textsAhead = 16;
    static void expect(const std::wstring& /*text*/) {}
    static void expect(const wchar_t* bstr) { __builtin_prefetch(bstr); }

    static wchar_t* newText(const std::wstring& text) { return SysAllocString2(text.c_str()); }
    static wchar_t* newText(const wchar_t* bstr) { return SysAllocString2(bstr != nullptr ? CW162W32(bstr) : L""); }

    /// Texts for places in a row.
    struct Run
    {
        wchar_t** places;
        std::size_t count;
    };

    std::vector<wchar_t*> texts_;
    std::vector<Run> runs_;
};

} // namespace vecmat
