// Whether the memory of several blocks can be worked on in another order than told.
#pragma once

#include <functional>

namespace vecmat {

/// `visitAll(visit)` calls visit(first, last) for each stretch of memory. Do they all stand apart?
template <class VisitAll>
bool standApart(VisitAll visitAll)
{
    const std::less<const void*> before;
    bool apart = true;
    int count = 0;
    visitAll([&](const void* first, const void* last) {
        int other = 0;
        visitAll([&](const void* from, const void* to) {
            if (other < count && before(first, to) && before(from, last))
                apart = false;
            ++other;
        });
        ++count;
    });
    return apart;
}

} // namespace vecmat
