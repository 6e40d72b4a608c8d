// One file for the survey, read from bytes: what the fuzzer tries, and what a test tries again later.
#pragma once

#include <span>

namespace survey::fuzz {

/// Reads a table: the first two bytes tell the options (the encoding, what stands between fields, which columns), the
/// others are the file. An InputError is an answer like a table. Throws std::logic_error where the table is none: columns
/// of unequal length, a number that is not finite, a weight that is not above 0. Whatever else is thrown passes out.
void readCase(std::span<const unsigned char> bytes);

} // namespace survey::fuzz
