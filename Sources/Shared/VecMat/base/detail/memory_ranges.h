// Do the arrays of a call overlap?
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <new>
#include <vector>

namespace vecmat {

/// The bytes from `first` up to, but not including, `last`.
struct MemoryRange
{
    const void* first;
    const void* last;

    bool isEmpty() const { return first == last; }
    bool overlaps(const MemoryRange& other) const
    {
        const std::less<const void*> before;
        return before(first, other.last) && before(other.first, last);
    }
};

template <class Element>
MemoryRange memoryOf(const Element* array, std::size_t count)
{
    return {array, array != nullptr ? array + count : nullptr};
}

/// Does each byte belong to only one of a few ranges?
inline bool fewAreApart(const MemoryRange* ranges, std::size_t count)
{
    for (std::size_t j = 1; j < count; ++j)
        for (std::size_t k = 0; k < j; ++k)
            if (!ranges[j].isEmpty() && !ranges[k].isEmpty() && ranges[j].overlaps(ranges[k]))
                return false;
    return true;
}

/// Ranges collected to find out whether a write to one is visible in another.
class MemoryRanges
{
public:
    void add(const MemoryRange& range)
    {
        if (range.isEmpty() || !isComplete_)
            return;
        if (fewCount_ < few_.size())
            few_[fewCount_++] = range;
        else
            addOther(range);
    }

    /// Does each byte belong to only one of them? False if allocation fails: the caller then takes the path that needs
    /// no memory, with the same result.
    bool areApart()
    {
        if (!isComplete_)
            return false;
        if (others_.empty())
            return fewAreApart(few_.data(), fewCount_);
        try {
            others_.insert(others_.end(), few_.begin(), few_.begin() + fewCount_);
        } catch (const std::bad_alloc&) {
            return false;
        }
        fewCount_ = 0;
        std::sort(others_.begin(), others_.end(), [](const MemoryRange& left, const MemoryRange& right) {
            return std::less<const void*>()(left.first, right.first);
        });
        return std::adjacent_find(others_.begin(), others_.end(),
                                  [](const MemoryRange& left, const MemoryRange& right) {
                                      return left.overlaps(right);
                                  }) == others_.end();
    }

private:
    void addOther(const MemoryRange& range)
    {
        try {
            others_.push_back(range);
        } catch (const std::bad_alloc&) {
            isComplete_ = false;
        }
    }

    std::array<MemoryRange, 6> few_; // these need no allocation
    std::size_t fewCount_ = 0;
    std::vector<MemoryRange> others_;
    bool isComplete_ = true;
};

} // namespace vecmat
