// Work that may crash, in a process of its own that says where.
#pragma once

#include "support/flat_calls/arguments.h"

#include <functional>
#include <string>

namespace vecmat::test {

/// What is being called: a touched guard page, or another crash, is reported with it.
class Watched
{
public:
    explicit Watched(const flat::Arguments& arguments);
    ~Watched();
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;
};

/// Runs `work` in a child process. The empty text if it ends and returns an empty text itself; otherwise what it
/// returned, or how it ended and in which call: "VB_V_Sum2Dbl: read beyond the end of x, at byte 56 of 56, in ...".
std::string inChild(const std::function<std::string()>& work);

} // namespace vecmat::test
