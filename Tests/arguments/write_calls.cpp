// write_calls [FIRST [LAST]]: calls every flat function with small arguments and writes each call as a line of JSON (see
// support/flat_calls/snapshots.h), once for each seed from FIRST to LAST (1 to 3). A binding that is handed the same
// arguments has to come to the same results.
#include "support/flat_calls/snapshots.h"

#include <cstdlib>
#include <iostream>
#include <sstream>

namespace {

using namespace vecmat::flat;

/// Sizes and styles follow from the seed; every third plan has dimensions of its own.
Plan planOf(std::uint64_t seed)
{
    const int size = static_cast<int>(2 + seed % 6);
    return {.size = {size, size + 1, size - 1, seed % 3 == 0}, .seed = seed, .style = static_cast<Style>(seed % 5)};
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
