// Texts on their way to the caller's array.
#pragma once

#include "companions.h"

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
        for (const Parcel& parcel : parcels_)
            discardText(parcel.text);
    }

    void reserve(std::size_t count) { parcels_.reserve(parcels_.size() + count); }

    void add(const std::wstring& text, wchar_t** place)
    {
        parcels_.push_back({place, nullptr});
        parcels_.back().text = SysAllocString2(text.c_str());
    }
    /// One text after the other.
    void add(const std::wstring* texts, std::size_t count, wchar_t** places)
    {
        reserve(count);
        for (std::size_t k = 0; k < count; ++k)
            add(texts[k], places + k);
    }

    void store() noexcept
    {
        for (const Parcel& parcel : parcels_)
            *parcel.place = parcel.text;
        parcels_.clear();
    }

private:
    struct Parcel
    {
        wchar_t** place;
        wchar_t* text;
    };

    std::vector<Parcel> parcels_;
};

} // namespace vecmat
