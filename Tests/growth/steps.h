// The count of what the library has done: see count_steps.cpp.
#pragma once

#include <cstdint>

namespace vecmat::growth {

void addSteps(std::uint64_t count);

} // namespace vecmat::growth
