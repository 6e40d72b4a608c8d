// Each function over arrays, called as arguments.tsv tells, with arguments that follow from a seed.
#include "digests.h"
#include "hash.h"

#include "support/flat_calls/arguments.h"
#include "support/flat_calls/scalars.h"
#include "support/flat_calls/snapshots.h"

#include <algorithm>
#include <string_view>

namespace vecmat::digest {

namespace {

using flat::Call;
using flat::Domain;
using flat::Plan;
using flat::Size;
using flat::Style;

/// No cells, a few, unequal sides and senseless numbers.
constexpr Size smallSizes[] = {{0, 0, 0}, {1, 1, 1},       {2, 2, 2},       {3, 3, 3},    {7, 7, 7},  {7, 7, 3},
                               {3, 3, 7}, {6, 6, 6, true}, {9, 9, 9, true}, {-1, -1, -1}, {4, -2, 3}, {4, 3, -2}};

/// Around the widths of vectors and panels, and the sizes at which another algorithm takes over; tall and wide.
constexpr Size largeSizes[] = {{8, 8, 8},   {15, 15, 4}, {16, 16, 16}, {17, 17, 17},
                               {33, 33, 5}, {5, 5, 33},  {51, 65, 13}, {70, 131, 3}};

/// Many rows, at which sorts, selections and strips take other ways. Square tables would take too long there.
constexpr Size tallSizes[] = {{517, 517, 19}, {1100, 1100, 2}};
constexpr long long mostCells = 10'000;

std::vector<Plan> plansFor(const Call& call)
{
    // A seed flag outside of its range asks for a seed that nobody knows.
    const bool drawsSeeds = std::any_of(call.arguments.begin(), call.arguments.end(),
                                        [](const flat::Argument& one) { return one.domain == Domain::seedFlag; });
    std::vector<Plan> plans;
    std::uint64_t seed = 1;
    for (const Size& size : smallSizes)
        for (const Style style :
             {Style::plain, Style::gaps, Style::ties, Style::constant, Style::special, Style::digits})
            plans.push_back({.size = size, .seed = ++seed, .style = style, .outside = !drawsSeeds && seed % 3 == 0});
    for (const Size& size : largeSizes)
        for (const Style style : {Style::digits, Style::gaps, Style::special})
            plans.push_back({.size = size, .seed = ++seed, .style = style});
    for (const Size& size : tallSizes)
        for (const Style style : {Style::digits, Style::gaps})
            plans.push_back({.size = size, .seed = ++seed, .style = style});
    return plans;
}

/// Whether no array has too many cells. Where their number depends on cells of another array, nobody knows beforehand.
bool isModerate(const Call& call, const Plan& plan)
{
    const auto& all = call.arguments;
    if (std::any_of(all.begin(), all.end(), [](const flat::Argument& argument) { return argument.sizes; }))
        return false;
    std::vector<flat::Slot> slots(all.size());
    flat::drawScalars(call, plan, slots);
    for (const flat::Argument& argument : all) {
        if (argument.shape.layout == flat::Layout::value)
            continue;
        const flat::Extent extent = argument.shape.extent(slots.data());
        if (extent.rows * extent.cols > mostCells)
            return false;
    }
    return true;
}

void addCall(Hash& hash, const Call& call, const Plan& plan)
{
    if (plan.size.rows >= tallSizes[0].rows && !isModerate(call, plan))
        return;
    flat::Arguments arguments(call, plan);
    const flat::Result result = arguments.invoke();
    hash.addBits(flat::digestOf(arguments, result), 8);
}

std::uint64_t digestOf(const Call& call)
{
    Hash hash;
    for (const Plan& plan : plansFor(call))
        addCall(hash, call, plan);
    return hash.value();
}

/// What depends on the machine, and on nothing else.
bool isOfTheMachine(std::string_view name)
{
    return name == "GetStatusMemory" || name == "Cpp_GetStatusMemory";
}

} // namespace

std::vector<Subject> flatSubjects()
{
    std::vector<Subject> subjects;
    for (const Call& call : flat::allCalls())
        if (!isOfTheMachine(call.name))
            subjects.push_back({std::string(call.name), [&call] { return digestOf(call); }});
    return subjects;
}

} // namespace vecmat::digest
