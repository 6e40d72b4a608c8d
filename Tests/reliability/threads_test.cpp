// All flat functions from four threads at once, each with arrays of its own: the results are those of one thread. Under
// the thread sanitizer (tools/test threads) nothing they share is written without order.
#include "arguments/all_calls.h"

#include "support/flat_calls/arguments.h"
#include "support/flat_calls/snapshots.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace vecmat::test {

namespace {

using flat::Arguments;
using flat::Call;
using flat::Plan;

constexpr int threadCount = 4;

/// They ask about the process, in which other threads are at work.
bool asksAboutTheProcess(const Call& call)
{
    return call.name == "Cpp_GetStatusMemory" || call.name == "GetStatusMemory";
}

std::vector<Plan> plansForThreads()
{
    return {{.size = {7, 7, 3}, .seed = 601},
            {.size = {9, 5, 6}, .seed = 602, .style = flat::Style::gaps},
            {.size = {40, 40, 5}, .seed = 603, .style = flat::Style::ties}};
}

/// A digest of each call with each plan, in the order of the table; `first` says which call comes first.
std::vector<std::uint64_t> digestsOfAll(std::size_t first)
{
    const auto calls = flat::allCalls();
    const std::vector<Plan> plans = plansForThreads();
    std::vector<std::uint64_t> digests(calls.size() * plans.size(), 0);
    for (std::size_t k = 0; k < digests.size(); ++k) {
        const std::size_t place = (first + k) % digests.size();
        const Call& call = calls[place / plans.size()];
        if (asksAboutTheProcess(call))
            continue;
        Arguments arguments(call, plans[place % plans.size()]);
        const flat::Result result = arguments.invoke();
        digests[place] = flat::digestOf(arguments, result);
    }
    return digests;
}

std::string namesWhereDifferent(const std::vector<std::uint64_t>& one, const std::vector<std::uint64_t>& other)
{
    const std::size_t plans = plansForThreads().size();
    std::string names;
    for (std::size_t k = 0; k < one.size(); ++k)
        if (one[k] != other[k])
            names += std::string(flat::allCalls()[k / plans].name) + " ";
    return names;
}

/// What each of the threads computes; thread k begins with the call `starts[k]`.
std::array<std::vector<std::uint64_t>, threadCount> digestsOfThreads(const std::array<std::size_t, threadCount>& starts)
{
    std::array<std::vector<std::uint64_t>, threadCount> digests;
    std::array<std::thread, threadCount> threads;
    for (std::size_t k = 0; k < threadCount; ++k)
        threads[k] = std::thread([&, k] { digests[k] = digestsOfAll(starts[k]); });
    for (std::thread& thread : threads)
        thread.join();
    return digests;
}

} // namespace

TEST(Threads, TheSameCallsAtTheSameTime)
{
    // Whatever is set up by a first call is set up by all four together.
    const auto digests = digestsOfThreads({0, 0, 0, 0});
    const std::vector<std::uint64_t> alone = digestsOfAll(0);
    for (const auto& each : digests)
        EXPECT_EQ(namesWhereDifferent(alone, each), "");
}

TEST(Threads, DifferentCallsAtTheSameTime)
{
    const std::size_t all = flat::allCalls().size() * plansForThreads().size();
    const auto digests = digestsOfThreads({0, all / 4, all / 2, all / 4 * 3});
    const std::vector<std::uint64_t> alone = digestsOfAll(0);
    for (const auto& each : digests)
        EXPECT_EQ(namesWhereDifferent(alone, each), "");
}

} // namespace vecmat::test
