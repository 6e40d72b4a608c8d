#include "instruction_set.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace vecmat {

namespace {

InstructionSet widestOfTheMachine()
{
#if defined(__x86_64__) || defined(__i386__)
    __builtin_cpu_init();
    if (!__builtin_cpu_supports("avx2") || !__builtin_cpu_supports("fma"))
        return InstructionSet::baseline;
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bw") &&
        __builtin_cpu_supports("avx512vl"))
        return InstructionSet::avx512;
    return InstructionSet::avx2;
#else
    return InstructionSet::baseline;
#endif
}

#ifdef VECMAT_NARROWER_INSTRUCTIONS
InstructionSet widestAllowed()
{
    const char* setting = std::getenv("VECMAT_INSTRUCTIONS"); // NOLINT(concurrency-mt-unsafe): read while loading
    const std::string_view name = setting != nullptr ? setting : "";
    if (name == "baseline")
        return InstructionSet::baseline;
    if (name == "avx2")
        return InstructionSet::avx2;
    return InstructionSet::avx512;
}
#else
InstructionSet widestAllowed()
{
    return InstructionSet::avx512;
}
#endif

const InstructionSet chosen = std::min(widestOfTheMachine(), widestAllowed());

} // namespace

InstructionSet instructionSet()
{
    return chosen;
}

} // namespace vecmat
