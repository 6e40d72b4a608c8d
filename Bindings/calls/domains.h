// Values that are checked because they would address memory, or because only a few have a meaning.
#pragma once

#include "description.h"

#include <algorithm>
#include <cstdint>

namespace vecmat::binding {

inline bool isOption(const Domain& domain, std::int64_t value)
{
    const int* const end = domain.options + domain.optionCount;
    return domain.kind != DomainKind::options || std::find(domain.options, end, value) != end;
}

// From where to where the values of a range lie in a call.
struct Bounds
{
    std::int64_t low;
    std::int64_t high;

    Bounds(const Domain& domain, const Value* values) : low(domain.low(values)), high(domain.high(values)) {}
    // Not of a NaN.
    bool hold(double value) const { return value >= static_cast<double>(low) && value <= static_cast<double>(high); }
};

// A cell, as a double.
inline double cellAt(Kind kind, const void* cells, std::int64_t place)
{
    switch (kind) {
    case Kind::doubles:
        return static_cast<const double*>(cells)[place];
    case Kind::ints:
        return static_cast<const int*>(cells)[place];
    default:
        return static_cast<const short*>(cells)[place];
    }
}

// The first cell that the bounds do not hold, `count` where they hold all.
inline std::int64_t firstOutside(const Bounds& bounds, Kind kind, const void* cells, std::int64_t count)
{
    std::int64_t place = 0;
    while (place < count && bounds.hold(cellAt(kind, cells, place)))
        ++place;
    return place;
}

// The number of an option for a Boolean: true is -1 where -1 is among the options, as for the library's other callers.
inline int numberOfTrue(const Domain& domain)
{
    return domain.kind == DomainKind::options && domain.options[0] == -1 ? -1 : 1;
}

} // namespace vecmat::binding
