// The makers of arguments: equal plans give equal calls, guard pages are where they should be, and what a call has
// written is seen.
#include "arguments/child.h"

#include "support/flat_calls/snapshots.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace vecmat::test {

namespace {

using flat::Arguments;
using flat::Call;
using flat::findCall;
using flat::Placement;
using flat::Plan;
using testing::HasSubstr;

std::uint64_t digestBy(const Call& call, const Plan& plan, Placement placement)
{
    Arguments arguments(call, plan, placement);
    const flat::Result result = arguments.invoke();
    return flat::digestOf(arguments, result);
}

/// What comes of touching one byte of the first argument of VB_V_Sum2Dbl, seven doubles that are only read.
std::string touched(Placement placement, std::ptrdiff_t byte, bool write)
{
    return inChild([=] {
        Arguments arguments(*findCall("VB_V_Sum2Dbl"), {.size = {7, 7, 7}}, placement);
        const Watched watched(arguments);
        volatile unsigned char* const first = static_cast<unsigned char*>(arguments.slots()[0].pointer);
        const unsigned char held = first[byte];
        if (write)
            first[byte] = held;
        return std::string();
    });
}

} // namespace

TEST(FlatCalls, EqualPlansMakeEqualCallsInAnyMemory)
{
    for (const Call& call : flat::allCalls()) {
        if (call.name == "Cpp_GetStatusMemory" || call.name == "GetStatusMemory")
            continue; // they ask about the process
        const Plan plan{.size = {5, 5, 3}, .seed = 17, .style = flat::Style::gaps};
        const std::uint64_t digest = digestBy(call, plan, Placement::plain);
        EXPECT_EQ(digestBy(call, plan, Placement::plain), digest) << call.name;
        EXPECT_EQ(digestBy(call, plan, Placement::beforeGuard), digest) << call.name;
        EXPECT_EQ(digestBy(call, plan, Placement::behindGuard), digest) << call.name;
    }
}

TEST(FlatCalls, AnotherSeedMakesAnotherCall)
{
    const Call& call = *findCall("VB_M_ProductAB");
    EXPECT_NE(digestBy(call, {.size = {}, .seed = 1}, Placement::plain),
              digestBy(call, {.size = {}, .seed = 2}, Placement::plain));
}

TEST(FlatCalls, GuardPagesEndWhatTouchesThem)
{
    EXPECT_EQ(touched(Placement::beforeGuard, 55, false), "");
    EXPECT_THAT(touched(Placement::beforeGuard, 56, false), HasSubstr("VB_V_Sum2Dbl: beyond the end of x, at byte 56"));
    EXPECT_EQ(touched(Placement::behindGuard, 0, false), "");
    EXPECT_THAT(touched(Placement::behindGuard, -1, false), HasSubstr("before the start of x, at byte -1 of 56"));
}

TEST(FlatCalls, WhatIsOnlyReadCannotBeWritten)
{
    EXPECT_THAT(touched(Placement::beforeGuard, 0, true), HasSubstr("written, though only read: x"));
}

TEST(FlatCalls, ACallIsWrittenDownWithWhatItChanged)
{
    Arguments arguments(*findCall("VB_V_Set1toNLng"), {.size = {2, 2, 2}});
    auto* const v = static_cast<int*>(arguments.slots()[0].pointer);
    v[0] = 7;
    v[1] = -8;
    const std::vector<flat::Cells> before = flat::snapshotOf(arguments);
    const flat::Result result = arguments.invoke();
    std::ostringstream line;
    flat::writeCall(line, arguments, before, result);
    EXPECT_EQ(line.str(), "{\"call\": \"VB_V_Set1toNLng\", \"arguments\": [{\"name\": \"v\", \"before\": [7, -8], "
                          "\"after\": [1, 2]}, {\"name\": \"n\", \"value\": 2}], \"returns\": null}\n");
}

TEST(FlatCalls, StringsThatTheLibraryMadeAreSeen)
{
    Arguments arguments(*findCall("VB_V_SetToValueStr"), {.size = {2, 2, 2}, .seed = 3});
    const std::vector<flat::Cells> before = flat::snapshotOf(arguments);
    arguments.invoke();
    const flat::Cells after = flat::cellsOf(arguments, 0);
    EXPECT_FALSE(before[0] == after);
    EXPECT_EQ(after.texts.at(0), after.texts.at(1));
}

} // namespace vecmat::test
