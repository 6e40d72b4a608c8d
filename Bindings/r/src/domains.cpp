// What is said of values that do not lie where they may.
#include "call.h"

#include "calls/domains.h"

namespace vecmat::r {

void checkNumber(const Call& call, const Parameter& parameter, std::int64_t value)
{
    const Domain& domain = parameter.domain;
    if (!isOption(domain, value))
        call.fail(parameter, "got %lld, expected %s", static_cast<long long>(value), domain.told);
    if (domain.kind != DomainKind::range)
        return;
    const Bounds bounds(domain, call.values());
    if (!bounds.hold(static_cast<double>(value)))
        call.fail(parameter, "got %lld, expected %s (%lld to %lld)", static_cast<long long>(value), domain.told,
                  static_cast<long long>(bounds.low), static_cast<long long>(bounds.high));
}

// Elements are counted from 1, as R does.
void checkCells(const Call& call, const Parameter& parameter, const void* cells, std::int64_t count)
{
    const Bounds bounds(parameter.domain, call.values());
    const std::int64_t place = firstOutside(bounds, parameter.kind, cells, count);
    if (place < count)
        call.fail(parameter, "element %lld is %.15g, expected %s (%lld to %lld)", static_cast<long long>(place + 1),
                  cellAt(parameter.kind, cells, place), parameter.domain.told, static_cast<long long>(bounds.low),
                  static_cast<long long>(bounds.high));
}

} // namespace vecmat::r
