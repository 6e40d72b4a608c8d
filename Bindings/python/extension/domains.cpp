// What is said of values that do not lie where they may.
#include "call.h"

#include "calls/domains.h"

namespace vecmat::python {

void checkNumber(const Call& call, const Parameter& parameter, std::int64_t value)
{
    const Domain& domain = parameter.domain;
    if (!isOption(domain, value))
        call.fail(PyExc_ValueError, parameter, "got %lld, expected %s", static_cast<long long>(value), domain.told);
    if (domain.kind != DomainKind::range)
        return;
    const Bounds bounds(domain, call.values());
    if (!bounds.hold(static_cast<double>(value)))
        call.fail(PyExc_ValueError, parameter, "got %lld, expected %s (%lld to %lld)", static_cast<long long>(value),
                  domain.told, static_cast<long long>(bounds.low), static_cast<long long>(bounds.high));
}

void checkCells(const Call& call, const Parameter& parameter, const void* cells, std::int64_t count)
{
    const Bounds bounds(parameter.domain, call.values());
    const std::int64_t place = firstOutside(bounds, parameter.kind, cells, count);
    if (place == count)
        return;
    char text[40];
    PyOS_snprintf(text, sizeof text, "%.17g", cellAt(parameter.kind, cells, place));
    call.fail(PyExc_ValueError, parameter, "cell %lld is %s, expected %s (%lld to %lld)", static_cast<long long>(place),
              text, parameter.domain.told, static_cast<long long>(bounds.low), static_cast<long long>(bounds.high));
}

} // namespace vecmat::python
