#include "support/flat_calls/scalars.h"

#include "support/flat_calls/anything.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace vecmat::flat {

namespace {

constexpr double missing = -0x1.fffffffffffe2p+1023;

int dimension(Steps& steps, const Plan& plan, int size)
{
    if (plan.style == Style::any && steps.onceIn(16))
        return steps.onceIn(2) ? std::numeric_limits<int>::min() : -1;
    return plan.size.mixed && size > 0 ? steps.between(0, size) : size;
}

/// One that is told, or a stranger: 1 is not -1.
int option(Steps& steps, const Plan& plan, const Argument& argument)
{
    if (steps.onceIn(8))
        return plan.style == Style::any ? anyInteger(steps) : steps.between(-2, 2);
    return argument.options[steps.below(argument.options.size())];
}

double real(Steps& steps, const Plan& plan, Domain domain)
{
    if (plan.style == Style::any && steps.onceIn(4))
        return anyNumber(steps);
    constexpr double tolerances[] = {1e-12, 1e-8, 1e-6, 1e-3};
    constexpr double probabilities[] = {0.0, 0.125, 0.25, 0.5, 0.75, 1.0};
    if (domain == Domain::tolerance)
        return tolerances[steps.below(std::size(tolerances))];
    if (domain == Domain::probability)
        return probabilities[steps.below(std::size(probabilities))];
    return steps.onceIn(8) ? missing : steps.between(-32, 32) / 8.0;
}

int integer(Steps& steps, const Plan& plan, const Argument& argument)
{
    switch (argument.domain) {
    case Domain::count:
        return dimension(steps, plan, plan.size.count);
    case Domain::rows:
        return dimension(steps, plan, plan.size.rows);
    case Domain::columns:
        return dimension(steps, plan, plan.size.columns);
    case Domain::seedFlag: // any but -1 draws a seed that no one knows
        return plan.outside && steps.onceIn(3) ? 0 : -1;
    case Domain::option:
        return option(steps, plan, argument);
    default:
        return plan.style == Style::any ? anyInteger(steps) : steps.between(-9, 9);
    }
}

bool isRange(const Argument& argument)
{
    return argument.domain == Domain::position || argument.domain == Domain::within;
}

} // namespace

Strangers strangersIn(const Plan& plan, Domain domain)
{
    if (!plan.outside || domain == Domain::within)
        return Strangers::none;
    // What counts rows is drawn or copied as often as it tells.
    return plan.style == Style::any && domain != Domain::counts ? Strangers::any : Strangers::near;
}

int drawInRange(Steps& steps, Strangers strangersWanted, long long low, long long high)
{
    constexpr long long most = std::numeric_limits<int>::max();
    const int first = static_cast<int>(std::min(low, most));
    const int last = static_cast<int>(std::clamp(high, low, most));
    if (strangersWanted == Strangers::any && steps.onceIn(3))
        return strangerTo(steps, first, last);
    if (strangersWanted == Strangers::near && steps.onceIn(3)) {
        const int strangers[] = {
            0, -1, -7, first - 1, last < most ? last + 1 : last, last < most - 9 ? last + 9 : last};
        return strangers[steps.below(std::size(strangers))];
    }
    return steps.between(first, last);
}

void drawScalars(const Call& call, const Plan& plan, std::vector<Slot>& slots)
{
    // Rows from one to another are gone through one by one, however many there are.
    const bool isSpan = std::count_if(call.arguments.begin(), call.arguments.end(),
                                      [](const Argument& argument) { return argument.domain == Domain::position; }) > 1;
    // Positions come last: their ranges depend on the dimensions, and on positions further on.
    for (const bool ranges : {false, true})
        for (std::size_t k = call.arguments.size(); k-- > 0;) {
            const Argument& argument = call.arguments[k];
            if (argument.role != Role::value || isRange(argument) != ranges)
                continue;
            Steps steps(seedFor(plan.seed, argument.name), plan.bytes);
            const Strangers strangers = strangersIn(plan, argument.domain);
            if (argument.type == Type::number)
                slots[k].number = real(steps, plan, argument.domain);
            else if (argument.type == Type::flag)
                slots[k].flag = static_cast<short>(integer(steps, plan, argument));
            else if (ranges)
                slots[k].integer = drawInRange(steps, isSpan ? std::min(strangers, Strangers::near) : strangers,
                                               argument.low(slots.data()), argument.high(slots.data()));
            else
                slots[k].integer = integer(steps, plan, argument);
        }
}

} // namespace vecmat::flat
