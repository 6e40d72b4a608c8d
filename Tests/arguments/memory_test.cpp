// No flat function touches memory outside of what arguments.tsv tells, nor writes to an array that is only read: each is
// called on arrays whose last byte lies before an unreadable page, and on arrays whose first byte lies behind one.
#include "arguments/all_calls.h"
#include "arguments/child.h"

#include "support/flat_calls/arguments.h"

#include <gtest/gtest.h>

namespace vecmat::test {

namespace {

using flat::Arguments;
using flat::Call;
using flat::Placement;
using flat::Plan;

void callOnce(const Call& call, const Plan& plan, Placement placement)
{
    Arguments arguments(call, plan, placement);
    const Watched watched(arguments);
    arguments.invoke();
}

std::string callAll(const Call& call, const std::vector<Plan>& plans, Placement placement)
{
    return inChild([&] {
        for (const Plan& plan : plans)
            callOnce(call, plan, placement);
        return std::string();
    });
}

/// Each size by turns of data and once more with positions and codes that leave their range.
std::vector<Plan> plansForMemory()
{
    std::vector<Plan> plans = plansByTurns(smallSizes(), 1);
    for (const Plan& plan : plansByTurns(smallSizes(), 104))
        plans.push_back(plan);
    for (const Plan& plan : plansByTurns(largeSizes(), 200))
        plans.push_back(plan);
    const std::size_t within = plans.size();
    for (std::size_t k = 0; k < within; ++k) {
        Plan plan = plans[k];
        plan.seed += 1000;
        plan.outside = true;
        plans.push_back(plan);
    }
    return plans;
}

} // namespace

class Memory : public EveryCall
{
};

TEST_P(Memory, BeyondTheEndOfNoArrayIsTouched)
{
    EXPECT_EQ(callAll(GetParam(), plansForMemory(), Placement::beforeGuard), "");
}

TEST_P(Memory, BeforeTheStartOfNoArrayIsTouched)
{
    EXPECT_EQ(callAll(GetParam(), plansForMemory(), Placement::behindGuard), "");
}

TEST_P(Memory, NullIsTakenWhereItMayStand)
{
    const Call& call = GetParam();
    for (std::size_t k = 0; k < call.arguments.size(); ++k) {
        if (call.arguments[k].mayBeNull == nullptr)
            continue;
        std::vector<Plan> plans = plansByTurns(smallSizes(), 3001);
        for (Plan& plan : plans)
            plan.null = k;
        EXPECT_EQ(callAll(call, plans, Placement::beforeGuard), "") << "null for " << call.arguments[k].name;
    }
}

INSTANTIATE_TEST_SUITE_P(Flat, Memory, everyCall(), nameOf);

} // namespace vecmat::test
