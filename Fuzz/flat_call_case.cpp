#include "flat_call_case.h"

#include "support/flat_calls/arguments.h"
#include "support/flat_calls/snapshots.h"

#include <new>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

namespace vecmat::fuzz {

namespace {

using flat::Arguments;
using flat::Bytes;
using flat::Call;
using flat::Plan;
using flat::Role;
using flat::Steps;
using flat::Style;

// A cell costs its time twice over, in a comparison as well; a pass of a square decomposition costs n^3.
constexpr long long mostCells = 20'000;

const Arguments* running = nullptr;

/// Mostly a few; now and then around the widths of vectors and panels.
int drawSize(Steps& steps)
{
    constexpr int wide[] = {16, 17, 31, 32, 33, 34, 40, 65};
    const int size = static_cast<int>(steps.below(32));
    return size < 8 ? size : size < 24 ? size - 9 : wide[size - 24];
}

Plan drawPlan(const Call& call, Steps& steps)
{
    Plan plan;
    plan.seed = steps.below(0x10000);
    const std::uint64_t options = steps.below(0x100);
    plan.style = (options & 3) != 0 ? Style::any : static_cast<Style>((options >> 2) % 6);
    plan.outside = (options & 0x20) != 0;
    plan.size = {drawSize(steps), drawSize(steps), drawSize(steps), (options & 0x40) != 0};
    if ((options & 0x80) != 0 && !call.arguments.empty())
        plan.null = steps.below(call.arguments.size());
    plan.mostCells = mostCells;
    return plan;
}

/// One array in two places, now and then: the argument that loses its own.
std::optional<std::size_t> shareAnArray(Arguments& arguments, Steps& steps)
{
    const std::size_t count = arguments.call().arguments.size();
    if (count < 2 || !steps.onceIn(4))
        return {};
    const std::size_t one = steps.below(count);
    const std::size_t other = steps.below(count);
    // Of two texts for one place the second would stay, and the first be nobody's.
    const auto isWrittenText = [&](const flat::Argument& each) {
        return each.type == flat::Type::strings && each.role != Role::in;
    };
    if (isWrittenText(arguments.call().arguments[one]) && isWrittenText(arguments.call().arguments[other]))
        return {};
    return arguments.shareArray(one, other) ? std::optional(one) : std::nullopt;
}

void expectUnchanged(const Arguments& arguments, const std::vector<flat::Cells>& before)
{
    const auto described = arguments.call().arguments;
    for (std::size_t k = 0; k < described.size(); ++k)
        if ((described[k].role == Role::in || described[k].role == Role::scratch) &&
            !(flat::cellsOf(arguments, k) == before[k]))
            throw std::logic_error(std::string(described[k].name) + " has changed");
}

} // namespace

Outcome runFlatCall(const Call& call, std::span<const unsigned char> input)
{
    Bytes bytes(input);
    Steps steps(1, &bytes);
    Plan plan = drawPlan(call, steps);
    const std::uint64_t sharing = steps.below(0x10000);
    plan.bytes = &bytes;
    std::optional<Arguments> arguments;
    try {
        arguments.emplace(call, plan);
    } catch (const std::length_error&) {
        return Outcome::tooLarge;
    }
    Steps ofSharing(sharing);
    const bool shares = shareAnArray(*arguments, ofSharing).has_value();
    const std::vector<flat::Cells> before = flat::snapshotOf(*arguments);
    running = &*arguments;
    try {
        arguments->invoke();
    } catch (const std::bad_alloc&) {
        running = nullptr;
        return Outcome::tooLarge; // a result of nonsensical dimensions
    }
    if (!shares)
        expectUnchanged(*arguments, before);
    running = nullptr;
    return Outcome::called;
}

std::string runningCall()
{
    return running != nullptr ? running->text() : "";
}

} // namespace vecmat::fuzz
