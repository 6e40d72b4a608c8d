// dump_calls PLANS: writes calls of every flat function, with their arguments before and after, a line of JSON for each.
#include "support/flat_calls/snapshots.h"

#include <cstdlib>
#include <iostream>

namespace {

using vecmat::flat::Plan;
using vecmat::flat::Size;
using vecmat::flat::Style;

constexpr Size sizes[] = {{7, 7, 3}, {5, 4, 6, true}, {70, 70, 5}, {1, 1, 1}, {0, 0, 0}, {12, 12, 12}};

Plan planOf(int number)
{
    const Style style = static_cast<Style>(number % 5);
    return {.size = sizes[number % 6], .seed = static_cast<std::uint64_t>(number + 1), .style = style};
}

} // namespace

int main(int count, char** words)
{
    const int plans = count > 1 ? std::atoi(words[1]) : 30;
    for (const vecmat::flat::Call& call : vecmat::flat::allCalls())
        for (int number = 0; number < plans; ++number) {
            vecmat::flat::Arguments arguments(call, planOf(number));
            const auto before = vecmat::flat::snapshotOf(arguments);
            const vecmat::flat::Result result = arguments.invoke();
            vecmat::flat::writeCall(std::cout, arguments, before, result);
        }
}
