// Do the arrays of a call share memory?
#pragma once

#include <algorithm>
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
        if (first != last)
            ranges_.emplace_back(first, last);
    }

    /// Does each byte belong to one of them only?
    bool areApart()
    {
        const std::less<const void*> before;
        std::sort(ranges_.begin(), ranges_.end(),
                  [&](const Range& left, const Range& right) { return before(left.first, right.first); });
        return std::adjacent_find(ranges_.begin(), ranges_.end(), [&](const Range& left, const Range& right) {
                   return before(right.first, left.second);
               }) == ranges_.end();
    }

private:
    using Range = std::pair<const void*, const void*>;

    std::vector<Range> ranges_;
};

} // namespace vecmat
