// Values that are checked because they would address memory, or because only a few have a meaning.
#include "call.h"

#include <algorithm>

namespace vecmat::r {

namespace {

template <class Cell>
void checkRange(const Call& call, const Parameter& parameter, const Cell* cells, std::int64_t count)
{
    const std::int64_t low = parameter.domain.low(call.values());
    const std::int64_t high = parameter.domain.high(call.values());
    for (std::int64_t i = 0; i < count; ++i) {
        const auto cell = static_cast<double>(cells[i]);
        if (!(cell >= static_cast<double>(low) && cell <= static_cast<double>(high)))
            call.fail(parameter, "element %lld is %.15g, expected %s (%lld to %lld)", static_cast<long long>(i + 1),
                      cell, parameter.domain.told, static_cast<long long>(low), static_cast<long long>(high));
    }
}

} // namespace

void checkNumber(const Call& call, const Parameter& parameter, std::int64_t value)
{
    const Domain& domain = parameter.domain;
    if (domain.kind == DomainKind::options &&
        std::find(domain.options, domain.options + domain.optionCount, value) == domain.options + domain.optionCount)
        call.fail(parameter, "got %lld, expected %s", static_cast<long long>(value), domain.told);
    if (domain.kind != DomainKind::range)
        return;
    const std::int64_t low = domain.low(call.values());
    const std::int64_t high = domain.high(call.values());
    if (value < low || value > high)
        call.fail(parameter, "got %lld, expected %s (%lld to %lld)", static_cast<long long>(value), domain.told,
                  static_cast<long long>(low), static_cast<long long>(high));
}

void checkCells(const Call& call, const Parameter& parameter, const void* cells, std::int64_t count)
{
    switch (parameter.kind) {
    case Kind::doubles:
        return checkRange(call, parameter, static_cast<const double*>(cells), count);
    case Kind::ints:
        return checkRange(call, parameter, static_cast<const int*>(cells), count);
    case Kind::flags:
        return checkRange(call, parameter, static_cast<const short*>(cells), count);
    default:
        return;
    }
}

} // namespace vecmat::r
