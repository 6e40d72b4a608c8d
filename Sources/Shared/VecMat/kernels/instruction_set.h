// Which of the machine's instruction sets the kernels use.
//
// A kernel is written once, in a source named <name>.kernel.cpp that contains nothing but loops over plain arrays. The
// build compiles it once for each instruction set, in a namespace of that name, and the header of the kernel picks the
// functions that fit the machine at the time of the call. Wider instructions process more results side by side; the
// order of operations inside one result is the same, and so are its bits.
#pragma once

namespace vecmat {

/// In ascending order. The baseline is common to every processor of the platform: SSE2 on x86, Advanced SIMD on 64-bit
/// Arm. `avx2` requires fused multiply-add, too; `avx512` requires the foundation together with its double and quad word,
/// byte and word, and vector length parts.
enum class InstructionSet { baseline, avx2, avx512 };

/// The widest set that the machine has, determined when the library is loaded. A library built to compare the sets on
/// one machine, with VECMAT_NARROWER_INSTRUCTIONS, can be limited by the environment variable VECMAT_INSTRUCTIONS,
/// "baseline" or "avx2"; any other depends on the machine alone.
InstructionSet instructionSet();

#if defined(__x86_64__) || defined(__i386__)
inline constexpr bool platformHasWiderSets = true;
#else
inline constexpr bool platformHasWiderSets = false;
#endif

/// The kernels of one kind for the machine. Outside x86 there are only those of the baseline: the other names are never
/// used.
template <const auto& baseline, const auto& avx2, const auto& avx512>
decltype(baseline) forThisMachine()
{
    if constexpr (platformHasWiderSets) {
        if (instructionSet() == InstructionSet::avx512)
            return avx512;
        if (instructionSet() == InstructionSet::avx2)
            return avx2;
    }
    return baseline;
}

} // namespace vecmat
