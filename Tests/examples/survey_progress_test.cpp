// How the survey tells how far it has come.
#include "progress.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace survey;
using namespace std::chrono_literals;

namespace {

struct Display
{
    std::chrono::steady_clock::time_point now{};
    std::ostringstream out;
    ProgressDisplay display;

    explicit Display(bool isTerminal) : display(out, isTerminal, [this] { return now; }) {}
};

} // namespace

TEST(Progress, IsALineNowAndThenWhereThereIsNoTerminal)
{
    Display d(false);
    d.display.show("reading", 0.1);
    EXPECT_EQ(d.out.str(), "");
    d.now += 5s;
    d.display.show("reading", 0.25);
    d.now += 1s;
    d.display.show("reading", 0.5);
    d.display.clear();
    EXPECT_EQ(d.out.str(), "survey: reading, 25 %\n");
}

TEST(Progress, IsABarOnATerminalUntilItIsCleared)
{
    Display d(true);
    d.now += 1s;
    d.display.show("reading", 0.5);
    EXPECT_EQ(d.out.str(), "\r\033[K[###############...............] reading, 50 %");
    d.display.clear();
    d.display.clear();
    EXPECT_EQ(d.out.str(), "\r\033[K[###############...............] reading, 50 %\r\033[K");
}
