// A call that throws leaves the caller's arrays as they were. Every flat function is called with one of its allocations
// failing, whichever it is; each time it throws, all of its arrays are compared with what they held.
#include "arguments/all_calls.h"

#include "support/failing_new.h"
#include "support/flat_calls/snapshots.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace vecmat::test {

namespace {

using flat::Arguments;
using flat::Call;
using flat::Cells;
using flat::Plan;

/// A few cells, which lie in the call frame itself; more than fit there; tall and wide. Each with plain data, and with
/// gaps and options, positions and seeds that leave their range.
std::vector<Plan> plansForFailures()
{
    std::vector<Plan> plans;
    for (const flat::Size& size :
         {flat::Size{7, 7, 3}, flat::Size{34, 34, 5}, flat::Size{12, 7, 40}, flat::Size{130, 130, 2}})
        for (const bool hostile : {false, true})
            plans.push_back({.size = size,
                             .seed = 401 + plans.size(),
                             .style = hostile ? flat::Style::gaps : flat::Style::plain,
                             .outside = hostile});
    return plans;
}

/// The first argument that a call has changed, and thrown; nothing where there is none.
std::string changedBy(const Call& call, const Plan& plan, long failing)
{
    Arguments arguments(call, plan);
    const std::vector<Cells> before = flat::snapshotOf(arguments);
    if (runWithFailure([&] { arguments.invoke(); }, failing) == Ending::ranThrough)
        return "";
    const std::vector<Cells> after = flat::snapshotOf(arguments);
    for (std::size_t k = 0; k < before.size(); ++k)
        if (!(before[k] == after[k]))
            return std::string(call.arguments[k].name) + " when allocation " + std::to_string(failing) + " failed in " +
                   arguments.text();
    return "";
}

/// The number of allocations of a call that meets no failure.
long allocationsOf(const Call& call, const Plan& plan)
{
    Arguments arguments(call, plan);
    AllocationState& state = allocationState();
    constexpr long many = std::numeric_limits<long>::max();
    state.countdown = many;
    arguments.invoke();
    return many - std::exchange(state.countdown, 0);
}

/// Which of `count` allocations fail: each of a few, otherwise the first, the last, where results go out, and some
/// between. None of a great many: the call iterates over senseless numbers, and shows the same in its other plans.
std::vector<long> failuresAmong(long count)
{
    constexpr long ends = 12;
    constexpr long between = 8;
    constexpr long most = 4000;
    std::vector<long> failing;
    const long step = std::max(1L, (count - 2 * ends) / between);
    for (long n = 1; n <= count && count <= most; n += n < ends || n >= count - ends ? 1 : step)
        failing.push_back(n);
    return failing;
}

/// The first trace that a failure leaves; nothing where none does.
std::string firstTrace(const Call& call, const std::vector<Plan>& plans)
{
    for (const Plan& plan : plans)
        for (const long failing : failuresAmong(allocationsOf(call, plan)))
            if (const std::string changed = changedBy(call, plan, failing); !changed.empty())
                return changed;
    return "";
}

} // namespace

class FailuresLeaveNoTrace : public EveryCall
{
};

TEST_P(FailuresLeaveNoTrace, WhicheverAllocationFails)
{
    const Call& call = GetParam();
    EXPECT_EQ(firstTrace(call, plansForFailures()), "");
}

INSTANTIATE_TEST_SUITE_P(Flat, FailuresLeaveNoTrace, everyCall(), nameOf);

} // namespace vecmat::test
