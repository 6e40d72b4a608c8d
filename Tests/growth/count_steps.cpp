// count_steps: how many steps each flat function takes as its input grows, a line for each size:
//
//     function, what grows, style of the data, its size, cells of all arguments, steps
//
// A step is a basic block of the library that runs, or a word that the C library copies, clears or compares for it: the same
// on every machine and under any load, where a clock is not. See tools/lib/growth.py, which judges the lines.
#include "growth/steps.h"
#include "support/flat_calls/arguments.h"

#include <array>
#include <cstdint>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string_view>

namespace {

std::uint64_t steps = 0;

} // namespace

void vecmat::growth::addSteps(std::uint64_t count)
{
    steps += count;
}

// The compiler calls this at each basic block of the library.
extern "C" void __sanitizer_cov_trace_pc() // NOLINT: not a name of ours
{
    ++steps;
}

namespace vecmat::flat {
namespace {

/// What grows, and the plan of a size.
struct Growth
{
    std::string_view name;
    Plan (*planOf)(int size);
};

constexpr int fixed = 6; // of what doesn't grow

constexpr std::array<Growth, 5> growths{{
    {"count",
     [](int size) {
         return Plan{.size = {size, fixed, fixed}};
     }},
    {"rows",
     [](int size) {
         return Plan{.size = {fixed, size, fixed}};
     }},
    {"columns",
     [](int size) {
         return Plan{.size = {fixed, fixed, size}};
     }},
    {"all",
     [](int size) {
         return Plan{.size = {size, size, size}};
     }},
    {"texts",
     [](int size) {
         return Plan{.size = {fixed, fixed, fixed}, .textRepeats = size};
     }},
}};

constexpr std::array<Style, 3> styles{Style::plain, Style::gaps, Style::ties};
constexpr std::array<std::string_view, 3> styleNames{"plain", "gaps", "ties"};

/// The largest of the three sizes: as large as this many cells allow, so that what small inputs take otherwise is over.
constexpr std::uint64_t mostCells = 12'000;
constexpr int largest = 1024;
constexpr int smallest = 32;

std::uint64_t cellsOf(const Arguments& arguments)
{
    std::uint64_t cells = 0;
    for (std::size_t k = 0; k < arguments.call().arguments.size(); ++k)
        if (arguments.call().arguments[k].shape.layout != Layout::value) {
            const Extent extent = arguments.extent(k);
            cells += static_cast<std::uint64_t>(extent.rows) * static_cast<std::uint64_t>(extent.cols);
        }
    return cells;
}

struct Count
{
    std::uint64_t cells = 0;
    std::uint64_t steps = 0;
};

/// The sum over a few seeds, which draw the options; nothing where the arguments would be too large.
std::optional<Count> countOf(const Call& call, Plan plan)
{
    Count count;
    for (plan.seed = 1; plan.seed <= 3; ++plan.seed)
        try {
            Arguments arguments(call, plan);
            count.cells += cellsOf(arguments);
            const std::uint64_t before = steps;
            arguments.invoke();
            count.steps += steps - before;
        } catch (const std::length_error&) {
            return {};
        }
    return count;
}

/// The largest size for a call.
int sizeFor(const Call& call, const Growth& growth)
{
    for (int size = largest; size > smallest; size /= 2)
        try {
            if (cellsOf(Arguments(call, growth.planOf(size))) <= mostCells)
                return size;
        } catch (const std::length_error&) { // too large by far
        }
    return smallest;
}

void print(const Call& call, const Growth& growth)
{
    const int size = sizeFor(call, growth);
    for (const Style style : styles)
        for (const int each : {size / 4, size / 2, size}) {
            Plan plan = growth.planOf(each);
            plan.style = style;
            if (const std::optional<Count> count = countOf(call, plan))
                std::cout << call.name << '\t' << growth.name << '\t' << styleNames[static_cast<std::size_t>(style)]
                          << '\t' << each << '\t' << count->cells << '\t' << count->steps << '\n';
        }
}

} // namespace
} // namespace vecmat::flat

int main(int count, char** words)
{
    using namespace vecmat::flat;
    const std::string_view only = count > 1 ? words[1] : "";
    for (const Call& call : allCalls())
        if (only.empty() || only == call.name)
            for (const Growth& growth : growths)
                print(call, growth);
    return 0;
}
