// Dimensions at the lowest ints, from which nothing or just 1 can be taken away: each flat function with every mixture
// of them and of small ones. A negative dimension has no cells, so there is nothing to do. The sanitizers see what
// overflows on the way there, and what is read or written beyond the arrays; a call that takes one for many cells runs
// out of memory, and fails.
#include "arguments/all_calls.h"

#include "support/flat_calls/snapshots.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace vecmat::test {

namespace {

using flat::Arguments;
using flat::Call;
using flat::Plan;
using flat::Style;

constexpr int lowest = std::numeric_limits<int>::min();

/// Mixture k of 7, whose bits tell which kinds of dimensions are low; the seed draws the options.
Plan planOf(int k, std::uint64_t seed)
{
    const int low = seed % 2 == 0 ? lowest : lowest + 1;
    return {.size = {(k & 1) != 0 ? low : 3, (k & 2) != 0 ? low : 3, (k & 4) != 0 ? low : 3},
            .seed = seed,
            .style = seed < 4 ? Style::plain : Style::gaps};
}

/// Nothing where the arrays that these dimensions ask for are too large: two negative ones have a positive product.
std::optional<Arguments> argumentsFor(const Call& call, const Plan& plan)
{
    try {
        return std::optional<Arguments>(std::in_place, call, plan);
    } catch (const std::length_error&) {
        return {};
    }
}

class LowestDimensions : public EveryCall
{
};

TEST_P(LowestDimensions, AreNoCells)
{
    const Call& call = GetParam();
    for (int k = 1; k < 8; ++k)
        for (const std::uint64_t seed : {1, 2, 3, 4}) {
            const Plan plan = planOf(k, seed);
            SCOPED_TRACE(flat::textOf(plan));
            std::optional<Arguments> arguments = argumentsFor(call, plan);
            if (!arguments)
                continue;
            const std::vector<flat::Cells> before = flat::snapshotOf(*arguments);
            arguments->invoke();
            for (std::size_t a = 0; a < call.arguments.size(); ++a)
                if (call.arguments[a].role == flat::Role::in) {
                    EXPECT_TRUE(flat::cellsOf(*arguments, a) == before[a]) << call.arguments[a].name;
                }
        }
}

INSTANTIATE_TEST_SUITE_P(Flat, LowestDimensions, everyCall(), nameOf);

} // namespace
} // namespace vecmat::test
