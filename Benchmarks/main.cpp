// Times the library against plain loops and peers. Besides the options of Google Benchmark:
//
//     --only=REGEX      the workloads whose name matches
//     --quick           each workload at its last size only, with fewer repetitions
//     --beside=REGEX    the library, and of the other contenders those of such a name; its bits are compared with the
//                       plain loop's all the same
//     --export=DIR      time nothing; write the data of each workload at its last size, and the library's result
//
// A benchmark is named workload/contender/size. Its counter "best" is the shortest run, in seconds of processor time:
// "min" is the aggregate to read. "deviation" is the distance of the result from the library's.
#include "contest.h"
#include "judged.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <iostream>
#include <limits>
#include <optional>
#include <regex>
#include <string_view>

namespace vecmat::bench {

namespace {

struct Options
{
    std::regex only{""};
    bool quick = false;
    std::regex beside{""};
    bool someContenders = false;

    bool takes(const Contender& contender, std::size_t number) const
    {
        return number == 0 || std::regex_search(contender.name, beside);
    }
    std::string exportTo;
};

/// Takes this program's options out of the arguments.
Options taken(int& argc, char** argv)
{
    Options options;
    const auto valueOf = [](std::string_view argument, std::string_view name) -> std::optional<std::string> {
        if (argument.starts_with(name))
            return std::string(argument.substr(name.size()));
        return std::nullopt;
    };
    int kept = 1;
    for (int k = 1; k < argc; ++k) {
        const std::string_view argument = argv[k];
        if (const auto only = valueOf(argument, "--only="))
            options.only = *only;
        else if (const auto directory = valueOf(argument, "--export="))
            options.exportTo = *directory;
        else if (argument == "--quick")
            options.quick = true;
        else if (const auto beside = valueOf(argument, "--beside=")) {
            options.beside = *beside;
            options.someContenders = true;
        } else
            argv[kept++] = argv[k];
    }
    argc = kept;
    return options;
}

/// The stage of the current benchmark. They come workload by workload, so only one is kept at a time.
const Judged& judgedStage(const Entry& entry, int size, const Options& options)
{
    static std::optional<Judged> current;
    static const Entry* currentEntry = nullptr;
    static int currentSize = 0;
    if (currentEntry != &entry || currentSize != size) {
        current.reset();
        current.emplace(entry, size, [&options](const Contender& contender, std::size_t number) {
            return options.takes(contender, number);
        });
        currentEntry = &entry;
        currentSize = size;
    }
    return *current;
}

// ---- timing ---------------------------------------------------------------------------------------------------------

double timeEachRun(benchmark::State& state, const Contest& contest, const Contender& contender)
{
    double best = std::numeric_limits<double>::infinity();
    for ([[maybe_unused]] auto _ : state) {
        contest.restore();
        const double start = secondsOfThread();
        contender.run();
        const double seconds = secondsOfThread() - start;
        state.SetIterationTime(seconds);
        best = std::min(best, seconds);
    }
    return best;
}

double timeManyCalls(benchmark::State& state, const Contender& contender)
{
    constexpr int calls = 1000;
    double best = std::numeric_limits<double>::infinity();
    for ([[maybe_unused]] auto _ : state) {
        const double start = secondsOfThread();
        for (int call = 0; call < calls; ++call)
            contender.run();
        const double seconds = secondsOfThread() - start;
        state.SetIterationTime(seconds);
        best = std::min(best, seconds / calls);
    }
    return best;
}

void measure(benchmark::State& state, const Entry& entry, std::size_t number, int size, const Options& options)
{
    const Judged& judged = judgedStage(entry, size, options);
    const Judged::Verdict& verdict = judged.verdict(number);
    const Contender& contender = judged.contest().contenders()[number];
    if (!verdict.error.empty()) {
        state.SkipWithError(verdict.error.c_str());
        return;
    }
    const double best = entry.timing == Timing::eachRun ? timeEachRun(state, judged.contest(), contender)
                                                        : timeManyCalls(state, contender);
    state.counters["best"] = best;
    state.counters["deviation"] = verdict.deviation;
    state.counters["tolerance"] = contender.tolerance;
}

double leastOf(const std::vector<double>& values)
{
    return *std::min_element(values.begin(), values.end());
}

void registerBenchmarks(const Suite& suite, const Options& options)
{
    for (const Entry& entry : suite.entries()) {
        if (!std::regex_search(entry.name, options.only))
            continue;
        for (std::size_t k = options.quick ? entry.sizes.size() - 1 : 0; k < entry.sizes.size(); ++k) {
            const int size = entry.sizes[k];
            const auto stage = entry.stage(size); // for the contenders' names; the data are made again later
            const auto& contenders = stage->contest().contenders();
            for (std::size_t number = 0; number < contenders.size(); ++number) {
                if (!options.takes(contenders[number], number))
                    continue;
                const std::string name = entry.name + "/" + contenders[number].name + "/" + std::to_string(size);
                benchmark::RegisterBenchmark(name.c_str(),
                                             [&entry, &options, number, size](benchmark::State& state) {
                                                 measure(state, entry, number, size, options);
                                             })
                    ->UseManualTime()
                    ->Unit(benchmark::kMillisecond)
                    ->MinTime(options.quick || entry.brief ? 0.02 : 0.1)
                    ->Repetitions(options.quick ? 2 : 5)
                    ->ComputeStatistics("min", leastOf)
                    ->ReportAggregatesOnly(true);
            }
        }
    }
}

} // namespace

} // namespace vecmat::bench

int main(int argc, char** argv)
{
    using namespace vecmat::bench;
    const Options options = taken(argc, argv);
    Suite suite = allWorkloads();
    if (!options.someContenders && options.exportTo.empty())
        addTextForms(suite);

    if (!options.exportTo.empty()) {
        for (const Entry& entry : suite.entries())
            if (std::regex_search(entry.name, options.only))
                entry.stage(entry.sizes.back())
                    ->contest()
                    .write(options.exportTo + "/" + entry.name, entry.sizes.back());
        return 0;
    }
    registerBenchmarks(suite, options);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
