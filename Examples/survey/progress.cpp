#include "progress.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace survey {

namespace {

using namespace std::chrono_literals;

std::string bar(double share)
{
    constexpr int width = 30;
    const int done = static_cast<int>(share * width);
    return '[' + std::string(static_cast<std::size_t>(done), '#') +
           std::string(static_cast<std::size_t>(width - done), '.') + ']';
}

} // namespace

void tell(const Progress& progress, const std::string& what, double share)
{
    if (progress)
        progress(what, share);
}

ProgressDisplay::ProgressDisplay(std::ostream& out, bool isTerminal, Clock clock)
    : out_(out), isTerminal_(isTerminal), clock_(std::move(clock)), last_(clock_())
{
}

void ProgressDisplay::show(const std::string& what, double share)
{
    const auto now = clock_();
    if (now - last_ < (isTerminal_ ? 100ms : 5000ms))
        return;
    last_ = now;
    share = std::clamp(share, 0.0, 1.0);
    const std::string percent = std::to_string(static_cast<int>(100.0 * share)) + " %";
    if (isTerminal_)
        out_ << "\r\033[K" << bar(share) << ' ' << what << ", " << percent << std::flush;
    else
        out_ << "survey: " << what << ", " << percent << std::endl;
    isShown_ = isTerminal_;
}

void ProgressDisplay::clear()
{
    if (isShown_)
        out_ << "\r\033[K" << std::flush;
    isShown_ = false;
}

} // namespace survey
