// A workload's data and its contenders, each with the verdict on its result.
#pragma once

#include "contest.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vecmat::bench {

class Judged
{
public:
    struct Verdict
    {
        double deviation = 0.0;
        std::string error; // empty if the result is what it should be
    };
    using Choice = std::function<bool(const Contender&, std::size_t)>;

    /// Runs the chosen contenders once. Those that must have the library's bits always run.
    Judged(const Entry& entry, int size, const Choice& chosen);

    const Contest& contest() const { return stage_->contest(); }
    const Verdict& verdict(std::size_t contender) const { return verdicts_[contender]; }

private:
    Verdict judged(const Contender& contender, const Cells& expected) const;

    std::unique_ptr<Stage> stage_;
    std::vector<Verdict> verdicts_;
};

} // namespace vecmat::bench
