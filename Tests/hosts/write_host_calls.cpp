// Writes down, one JSON line each, calls of every flat function that takes or gives strings or arrays of columns: what
// went in and what came out in this build, for another host to repeat.
#include "support/flat_calls/arguments.h"
#include "support/flat_calls/calls.h"
#include "support/flat_calls/plans.h"
#include "support/flat_calls/snapshots.h"

#include <algorithm>
#include <cstdint>
#include <iostream>

namespace {

using namespace vecmat::flat;

bool isForHosts(const Call& call)
{
    const auto ofHost = [](Type type) {
        return type == Type::strings || type == Type::columns || type == Type::text || type == Type::bstr;
    };
    return ofHost(call.returns) ||
           std::any_of(call.arguments.begin(), call.arguments.end(), [&](const Argument& a) { return ofHost(a.type); });
}

} // namespace

int main()
{
    const Size sizes[] = {{0, 0, 0}, {1, 1, 1}, {3, 3, 3}, {7, 7, 3}, {5, 5, 7}, {9, 9, 9, true}};
    std::uint64_t seed = 1;
    for (const Call& call : allCalls()) {
        if (!isForHosts(call))
            continue;
        for (const Size& size : sizes)
            for (const Style style : {Style::plain, Style::gaps, Style::ties}) {
                Arguments arguments(call, {.size = size, .seed = seed++, .style = style});
                const auto before = snapshotOf(arguments);
                const Result result = arguments.invoke();
                writeCall(std::cout, arguments, before, result);
            }
    }
    return std::cout.flush() ? 0 : 1;
}
