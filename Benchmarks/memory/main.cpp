// Measures what each contender allocates beyond its operands, apart from the times, which counting would disturb.
//
//     vecmat_memory [--only=REGEX] [--large]
//
// Writes a line of CSV for each run: workload, contender, size, the bytes of the operands and of the results, the bytes at
// the peak beyond them, and the seconds of processor time. Each workload runs at its last size. With --large the library
// runs alone, at the sizes that a workload names for that, from which its growth is read.
#include "../contest.h"
#include "allocations.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <regex>
#include <string_view>

namespace vecmat::bench {

namespace {

void measure(const Entry& entry, int size, const Contest& contest, const Contender& contender)
{
    std::size_t bytes = 0;
    double seconds = std::numeric_limits<double>::infinity();
    // The first run may leave behind what the next ones find: the tables that a result lies in, a library's buffers.
    for (int run = 0; run < 2; ++run) {
        contest.restore();
        resetPeak();
        const double start = secondsOfThread();
        contender.run();
        seconds = std::min(seconds, secondsOfThread() - start);
        bytes = bytesAtPeak();
    }
    std::printf("%s,\"%s\",%d,%zu,%zu,%.9g\n", entry.name.c_str(), contender.name.c_str(), size, contest.operandBytes(),
                bytes, seconds);
    std::fflush(stdout);
}

void measureAll(const Entry& entry, int size, bool oursAlone)
{
    const auto stage = entry.stage(size);
    const Contest& contest = stage->contest();
    for (const Contender& contender : contest.contenders()) {
        measure(entry, size, contest, contender);
        if (oursAlone)
            return;
    }
}

} // namespace

} // namespace vecmat::bench

int main(int argc, char** argv)
{
    using namespace vecmat::bench;
    std::regex only{""};
    bool large = false;
    for (int k = 1; k < argc; ++k) {
        const std::string_view argument = argv[k];
        if (argument == "--large")
            large = true;
        else if (argument.starts_with("--only="))
            only = std::string(argument.substr(7));
        else
            return 2;
    }
    std::printf("workload,contender,size,operands,peak,seconds\n");
    const Suite suite = allWorkloads();
    for (const Entry& entry : suite.entries()) {
        if (!std::regex_search(entry.name, only))
            continue;
        if (!large)
            measureAll(entry, entry.sizes.back(), false);
        else
            for (const int size : entry.largeSizes)
                measureAll(entry, size, true);
    }
    return 0;
}
