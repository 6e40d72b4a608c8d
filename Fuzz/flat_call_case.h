// One call of a flat function, read from bytes: what the fuzzer tries, and what a test tries again later.
#pragma once

#include "support/flat_calls/calls.h"

#include <cstdint>
#include <span>
#include <string>

namespace vecmat::fuzz {

enum class Outcome {
    called,
    tooLarge, // the bytes ask for more memory than a case may have, or than there is
};

/// Makes the call that the bytes tell: sizes, options, a null pointer where it may stand, one array in two places, and
/// cells, texts and numbers of any kind, all within what the contract calls safe. What the bytes don't tell follows from
/// a seed. Throws std::logic_error where an array that is only read, or is to be brought back, has changed; whatever the
/// library throws passes out, but for memory that is not there.
Outcome runFlatCall(const flat::Call& call, std::span<const unsigned char> bytes);

/// The call that runs now, for a report; empty where none does.
std::string runningCall();

} // namespace vecmat::fuzz
