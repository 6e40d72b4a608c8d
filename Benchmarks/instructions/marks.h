// How a program tells the counter where the part to be counted starts and ends: by a system call that no kernel has.
#pragma once

namespace vecmat::bench {

inline constexpr long markCall = 0x7ec0a7;

/// The first argument of the call; the second is the number of the run.
enum class Mark : long { start, end };

} // namespace vecmat::bench
