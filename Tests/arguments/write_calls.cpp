// write_calls [FIRST [LAST]]: calls every flat function and writes each call as a line of JSON (see
// support/flat_calls/snapshots.h), once for each seed from FIRST to LAST (1 to 3). A binding that is handed the same
// arguments has to come to the same results.
#include "support/flat_calls/snapshots.h"

#include <cstdlib>
#include <iostream>
#include <iterator>
#include <sstream>

namespace {

using namespace vecmat::flat;

/// Square and not, more rows than a kernel takes at once, a single cell and none.
constexpr Size sizes[] = {{7, 7, 3}, {5, 4, 6, true}, {70, 70, 5}, {1, 1, 1}, {0, 0, 0}, {12, 12, 12}};

/// Sizes and styles follow from the seed, which is 1 or more.
Plan planOf(std::uint64_t seed)
{
    return {.size = sizes[(seed - 1) % std::size(sizes)], .seed = seed, .style = static_cast<Style>((seed - 1) % 5)};
}

std::string written(const Call& call, const Plan& plan)
{
    Arguments arguments(call, plan);
    const std::vector<Cells> before = snapshotOf(arguments);
    const Result result = arguments.invoke();
    std::ostringstream line;
    writeCall(line, arguments, before, result);
    return line.str();
}

} // namespace

int main(int count, char** words)
{
    const std::uint64_t first = count > 1 ? std::strtoull(words[1], nullptr, 10) : 1;
    const std::uint64_t last = count > 2 ? std::strtoull(words[2], nullptr, 10) : first + 2;
    for (std::uint64_t seed = first; seed <= last; ++seed)
        for (const Call& call : allCalls())
            std::cout << written(call, planOf(seed));
    return std::cout.good() ? EXIT_SUCCESS : EXIT_FAILURE;
}
