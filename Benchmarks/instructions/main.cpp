// Runs each contender between marks, for an emulator that counts the instructions (counter.cpp).
//
//     vecmat_instructions [--only=REGEX]
//
// Writes a line of CSV for each run: its number, workload, contender, size, and what is wrong with the result. Each workload
// runs at its middle size. Every contender has run once before, when its result was judged, so that what is done only once
// is not counted. Two runs come first: nothing, whose price is that of the frame, and a loop of known length.
#include "../judged.h"
#include "marks.h"

#include <unistd.h>

#include <cstdio>
#include <regex>
#include <string_view>

namespace vecmat::bench {

namespace {

void mark(Mark which, int run)
{
    syscall(markCall, static_cast<long>(which), static_cast<long>(run));
}

class Runs
{
public:
    void count(const std::string& workload, const std::string& contender, int size, const Action& action,
               const std::string& error = {})
    {
        mark(Mark::start, number_);
        action();
        mark(Mark::end, number_);
        std::printf("%d,%s,\"%s\",%d,%s\n", number_, workload.c_str(), contender.c_str(), size, error.c_str());
        std::fflush(stdout);
        ++number_;
    }

private:
    int number_ = 0;
};

/// 2001 instructions.
void knownLoop()
{
    asm volatile("mov x9, #1000\n"
                 "0: subs x9, x9, #1\n"
                 "b.ne 0b"
                 :
                 :
                 : "x9", "cc");
}

int middleSize(const Entry& entry)
{
    return entry.sizes[entry.sizes.size() / 2];
}

} // namespace

} // namespace vecmat::bench

int main(int argc, char** argv)
{
    using namespace vecmat::bench;
    std::regex only{""};
    for (int k = 1; k < argc; ++k) {
        const std::string_view argument = argv[k];
        if (!argument.starts_with("--only="))
            return 2;
        only = std::string(argument.substr(7));
    }
    std::printf("run,workload,contender,size,error\n");
    Runs runs;
    runs.count("frame", "ours", 0, [] {});
    runs.count("known-loop", "ours", 0, [] { knownLoop(); });
    const Suite suite = allWorkloads();
    for (const Entry& entry : suite.entries()) {
        if (!std::regex_search(entry.name, only))
            continue;
        const int size = middleSize(entry);
        const Judged judged(entry, size, [](const Contender&, std::size_t) { return true; });
        const auto& contenders = judged.contest().contenders();
        for (std::size_t k = 0; k < contenders.size(); ++k) {
            judged.contest().restore();
            runs.count(entry.name, contenders[k].name, size, contenders[k].run, judged.verdict(k).error);
        }
    }
    return 0;
}
