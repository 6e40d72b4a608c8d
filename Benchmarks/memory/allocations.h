// What the process has allocated: this program's malloc stands before that of the C library, for the libraries that it
// loads, too. What a library maps by itself, as OpenBLAS does its buffers, is not seen.
#pragma once

#include <cstddef>

namespace vecmat::bench {

/// Starts anew: the peak is what is allocated now.
void resetPeak();

/// The most bytes allocated at once since then, beyond what was allocated then.
std::size_t bytesAtPeak();

} // namespace vecmat::bench
