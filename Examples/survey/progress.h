// Telling how far a long run has come.
#pragma once

#include <chrono>
#include <functional>
#include <iosfwd>
#include <string>

namespace survey {

/// Told by whoever takes long: what is being done, and which share of it is done.
using Progress = std::function<void(const std::string& what, double share)>;

void tell(const Progress& progress, const std::string& what, double share);

/// Shows progress: on a terminal as a bar on a line of its own, which `clear` removes; elsewhere as a line now and then.
class ProgressDisplay
{
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    ProgressDisplay(std::ostream& out, bool isTerminal, Clock clock = std::chrono::steady_clock::now);

    void show(const std::string& what, double share);
    void clear();

private:
    std::ostream& out_;
    bool isTerminal_;
    Clock clock_;
    std::chrono::steady_clock::time_point last_;
    bool isShown_ = false;
};

} // namespace survey
