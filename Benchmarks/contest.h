// A workload and its contenders: the library, the plain loop and the peers, all over the same data.
//
// A workload is a class that makes its data for one size and enters its contenders:
//
//     struct Quantile
//     {
//         explicit Quantile(int n) : x(RandomData(1).normals(n)), result(1) {}
//         void enter(Contest& contest)
//         {
//             contest.outputs({&result});
//             contest.ours([this] { result[0] = VB_V_Quantile(x.data(), lengthOf(x), 0.3); });
//             contest.plain([this] { result[0] = plain::quantile(x.data(), lengthOf(x), 0.3); });
//             contest.peer("GSL", 1e-12, [this] { ... });
//         }
//     };
//     ...
//     suite.add<Quantile>("quantile", {10'000, 100'000, 1'000'000});
//
// Before anything is timed, all contenders run once: the plain loop's result must be bit-identical to the library's, a
// peer's must agree within its tolerance. A contender that fails this is reported as an error and not timed.
#pragma once

#include "support/constants.h"
#include "support/random_data.h"

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace vecmat::bench {

using test::M;
using test::RandomData;

using Cells = std::vector<double>;
using Texts = std::vector<std::wstring>;
using Action = std::function<void()>;
using Result = std::function<Cells()>;

/// The number of elements, in the library's type.
template <class Container>
int lengthOf(const Container& container)
{
    return static_cast<int>(container.size());
}
inline std::size_t count(int n)
{
    return static_cast<std::size_t>(n);
}
inline std::size_t count(int rows, int cols)
{
    return count(rows) * count(cols);
}

struct Contender
{
    std::string name;
    Action run;
    Result result;    // after a run; if empty, all outputs
    double tolerance; // largest deviation, in units of the largest number in the library's result
};

/// Whether OpenBLAS, LAPACK and GSL are there for the processor that the program is built for.
#ifdef VECMAT_HEADER_PEERS_ONLY
inline constexpr bool hasCompiledPeers = false;
#else
inline constexpr bool hasCompiledPeers = true;
#endif

/// For a peer whose rules give a different result.
inline constexpr double incomparable = -1.0;
/// The tolerance of contenders that must be bit-identical to the library.
inline constexpr double sameBits = 0.0;

class Contest
{
public:
    /// Called before every run, untimed: restores what a run overwrites.
    void reset(Action action) { reset_ = std::move(action); }
    /// The result of a run, unless the contender specifies another.
    void outputs(std::initializer_list<Cells*> cells) { outputs_ = cells; }

    void ours(Action run, Result result = {}) { add("ours", sameBits, run, result); }
    void plain(Action run, Result result = {}) { add("plain", sameBits, run, result); }
    /// The library again, through another of its functions.
    void oursToo(const std::string& name, Action run, Result result = {}) { add(name, sameBits, run, result); }
    void peer(const std::string& name, double tolerance, Action run, Result result = {})
    {
        add(name, tolerance, run, result);
    }
    /// A peer out of a library that is linked. Where there is none, the peer stays out, and nothing refers to its library.
    template <class Run>
    void compiledPeer(const std::string& name, double tolerance, Run run, Result result = {})
    {
        if constexpr (hasCompiledPeers)
            add(name, tolerance, run, result);
    }

    /// Data for contenders outside this program.
    void share(const std::string& name, const Cells& cells) { sharedCells_.emplace_back(name, &cells); }
    void share(const std::string& name, const Texts& texts) { sharedTexts_.emplace_back(name, &texts); }

    const std::vector<Contender>& contenders() const { return contenders_; }
    void restore() const
    {
        if (reset_)
            reset_();
    }

    /// The size of the shared data and of the outputs; texts as their callers have them, with 16-bit characters behind a
    /// length of four bytes.
    std::size_t operandBytes() const;

    /// The result of one run, in outputs cleared of earlier results.
    Cells resultOf(const Contender& contender) const;

    /// Writes the shared data, the library's result and the size: numbers as doubles, strings one per line.
    void write(const std::string& directory, int size) const;

private:
    void add(const std::string& name, double tolerance, const Action& run, const Result& result)
    {
        contenders_.push_back({name, run, result, tolerance});
    }

    Action reset_;
    std::vector<Cells*> outputs_;
    std::vector<Contender> contenders_;
    std::vector<std::pair<std::string, const Cells*>> sharedCells_;
    std::vector<std::pair<std::string, const Texts*>> sharedTexts_;
};

/// A contest with its contenders' data.
class Stage
{
public:
    template <class Workload, class... Arguments>
    static std::unique_ptr<Stage> of(int size, const Arguments&... arguments)
    {
        auto stage = std::make_unique<Stage>();
        auto workload = std::make_shared<Workload>(size, arguments...);
        workload->enter(stage->contest_);
        stage->workload_ = workload;
        return stage;
    }

    const Contest& contest() const { return contest_; }

private:
    Contest contest_;
    std::shared_ptr<void> workload_;
};

/// How a workload is timed: run by run with a reset before each, or in a loop if a call is too short to time.
enum class Timing { eachRun, manyCalls };

struct Entry
{
    std::string name;
    std::vector<int> sizes; // the last is the one that counts
    Timing timing;
    std::function<std::unique_ptr<Stage>(int)> stage;
    std::vector<int> largeSizes = {}; // on demand, the library alone
    bool brief = false;               // one of so many that each is timed for less long

    void alsoAt(std::vector<int> large) { largeSizes = std::move(large); }
};

class Suite
{
public:
    template <class Workload>
    Entry& add(const std::string& name, std::vector<int> sizes, Timing timing = Timing::eachRun)
    {
        return entries_.emplace_back(
            Entry{name, std::move(sizes), timing, [](int size) { return Stage::of<Workload>(size); }});
    }
    /// One of many of a kind.
    Entry& add(const std::string& name, std::vector<int> sizes, std::function<std::unique_ptr<Stage>(int)> stage)
    {
        return entries_.emplace_back(Entry{name, std::move(sizes), Timing::eachRun, std::move(stage)});
    }
    const std::vector<Entry>& entries() const { return entries_; }

private:
    std::vector<Entry> entries_;
};

/// This thread's processor time: other load on the machine does not count.
double secondsOfThread();

Suite allWorkloads();
/// Beside them: each flat form that takes strings. They are timed on this machine with its own instructions only.
void addTextForms(Suite& suite);

// One function per source.
void addSorting(Suite& suite);
void addProducts(Suite& suite);
void addMoments(Suite& suite);
void addQuantiles(Suite& suite);
void addCovariance(Suite& suite);
void addEigenvalues(Suite& suite);
void addSingularValues(Suite& suite);
void addFactorisations(Suite& suite);
void addLeastSquares(Suite& suite);
void addGrouping(Suite& suite);
void addCategories(Suite& suite);
void addMissing(Suite& suite);
void addSampling(Suite& suite);
void addStrings(Suite& suite);
void addCallersTexts(Suite& suite);
void addSmallInputs(Suite& suite);
void addMathematics(Suite& suite);

} // namespace vecmat::bench
