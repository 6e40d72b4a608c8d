// Do the arrays of a call share memory?
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

namespace vecmat {

/// Stretches of memory, collected to see whether a write to one can be seen in another.
class Stretches
{
public:
    template <class Number>
    void add(const Number* first, std::size_t count)
    {
        if (first != nullptr)
            addRange(first, first + count);
    }
    void addRange(const void* first, const void* last)
    {
        if (first == last)
            return;
        if (fewCount_ < few_.size())
            few_[fewCount_++] = {first, last};
        else
            others_.emplace_back(first, last);
    }

    /// Does each byte belong to one of them only?
    bool areApart()
    {
        if (others_.empty())
            return fewAreApart();
        others_.insert(others_.end(), few_.begin(), few_.end());
        std::sort(others_.begin(), others_.end(),
                  [](const Range& left, const Range& right) { return before(left.first, right.first); });
        return std::adjacent_find(others_.begin(), others_.end(), share) == others_.end();
    }

private:
    using Range = std::pair<const void*, const void*>;

    static bool before(const void* left, const void* right) { return std::less<const void*>()(left, right); }
    static bool share(const Range& left, const Range& right)
    {
        return before(left.first, right.second) && before(right.first, left.second);
    }

    bool fewAreApart() const
    {
        for (std::size_t j = 1; j < fewCount_; ++j)
            for (std::size_t k = 0; k < j; ++k)
                if (share(few_[j], few_[k]))
                    return false;
        return true;
    }

    std::array<Range, 6> few_; // these need no call for memory
    std::size_t fewCount_ = 0;
    std::vector<Range> others_;
};

} // namespace vecmat
