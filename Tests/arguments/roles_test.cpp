// What arguments.tsv tells of roles is so: an array that is only read stays as it was; a result depends on nothing that
// stood in it; of its cells all are written, or those that are not keep what they held.
#include "arguments/all_calls.h"

#include "support/flat_calls/snapshots.h"

#include <gtest/gtest.h>

#include <cstring>

namespace vecmat::test {

namespace {

using flat::Argument;
using flat::Arguments;
using flat::Call;
using flat::Cells;
using flat::Plan;
using flat::Role;

/// One call: what the arguments held before and after it, and what it returned.
struct Outcome
{
    std::vector<Cells> before;
    std::vector<Cells> after;
    flat::Result result;
    std::string text;
};

Outcome outcomeOf(const Call& call, const Plan& plan)
{
    Arguments arguments(call, plan);
    Outcome outcome{flat::snapshotOf(arguments), {}, {}, arguments.text()};
    outcome.result = arguments.invoke();
    outcome.after = flat::snapshotOf(arguments);
    return outcome;
}

bool sameResult(const Call& call, const flat::Result& a, const flat::Result& b)
{
    switch (call.returns) {
    case flat::Type::number:
        return std::memcmp(&a.slot.number, &b.slot.number, sizeof(double)) == 0;
    case flat::Type::integer:
        return a.slot.integer == b.slot.integer;
    case flat::Type::flag:
        return a.slot.flag == b.slot.flag;
    default:
        return a.text == b.text;
    }
}

bool staysAsItWas(Role role)
{
    return role == Role::in || role == Role::scratch;
}

std::vector<Plan> plansForRoles()
{
    std::vector<Plan> plans = plansOver(smallSizes(), 2, 1);
    for (const flat::Size& size : {flat::Size{17, 17, 5}, flat::Size{12, 5, 12}})
        plans.push_back({.size = size, .seed = 5001});
    return plans;
}

/// What two calls that differ only in what stood in result `k` show of it.
struct Prefills
{
    const Outcome& one;
    const Outcome& other;
    std::size_t k;

    bool keeps(std::size_t cell) const
    {
        return one.after[k].sameAt(one.before[k], cell) && other.after[k].sameAt(other.before[k], cell);
    }
    bool tells(std::size_t cell) const { return !one.before[k].sameAt(other.before[k], cell); }
    bool isWritten(std::size_t cell) const { return one.after[k].sameAt(other.after[k], cell); }
};

} // namespace

class Roles : public EveryCall
{
};

TEST_P(Roles, WhatIsOnlyReadStays)
{
    const Call& call = GetParam();
    for (const Plan& plan : plansForRoles()) {
        const Outcome outcome = outcomeOf(call, plan);
        for (std::size_t k = 0; k < call.arguments.size(); ++k)
            ASSERT_TRUE(!staysAsItWas(call.arguments[k].role) || outcome.before[k] == outcome.after[k])
                << call.arguments[k].name << " has changed in " << outcome.text;
    }
}

TEST_P(Roles, AResultIsWrittenOrKept)
{
    const Call& call = GetParam();
    for (std::size_t k = 0; k < call.arguments.size(); ++k) {
        const Argument& argument = call.arguments[k];
        if (argument.role != Role::out)
            continue;
        bool keptOne = false;
        for (Plan plan : plansForRoles()) {
            const Outcome one = outcomeOf(call, plan);
            plan.altered = k;
            const Outcome other = outcomeOf(call, plan);
            const Prefills prefills{one, other, k};
            for (std::size_t cell = 0; cell < one.after[k].size(); ++cell) {
                if (!prefills.tells(cell))
                    continue;
                const bool kept = prefills.keeps(cell);
                keptOne = keptOne || kept;
                ASSERT_TRUE(prefills.isWritten(cell) || (argument.unwritten != "all" && kept))
                    << "cell " << cell << " of " << argument.name << (kept ? " is not written" : " depends on itself")
                    << " in " << one.text;
            }
            EXPECT_TRUE(sameResult(call, one.result, other.result)) << argument.name << " matters in " << one.text;
            for (std::size_t m = 0; m < call.arguments.size(); ++m)
                EXPECT_TRUE(m == k || one.after[m] == other.after[m])
                    << argument.name << " matters for " << call.arguments[m].name << " in " << one.text;
        }
        EXPECT_TRUE(keptOne || argument.unwritten == "all") << "all of " << argument.name << " is always written";
    }
}

TEST_P(Roles, WhatIsChangedInPlaceDoesChange)
{
    const Call& call = GetParam();
    std::vector<bool> changed(call.arguments.size(), false);
    for (Plan plan : plansForRoles()) {
        plan.outside = true; // a seed changes where it is not the start of the series
        const Outcome outcome = outcomeOf(call, plan);
        for (std::size_t k = 0; k < call.arguments.size(); ++k)
            changed[k] = changed[k] || !(outcome.before[k] == outcome.after[k]);
    }
    for (std::size_t k = 0; k < call.arguments.size(); ++k)
        EXPECT_TRUE(changed[k] || call.arguments[k].role != Role::inout) << call.arguments[k].name;
}

INSTANTIATE_TEST_SUITE_P(Flat, Roles, everyCall(), nameOf);

} // namespace vecmat::test
