// Which vector instructions a kernel may use. Each kernel computes the same bits with all of them.
#pragma once

namespace kest {

/// What every processor has that the library runs on, and what some have besides.
enum class InstructionSet { Baseline, Avx2 };

/// The widest one of this processor. (Compilers of this family do not align 32-byte variables on the stack of 64-bit
/// Windows.)
inline InstructionSet BestInstructionSet() {
#if defined(__GNUC__) && !defined(_WIN64)
    static const bool hasAvx2 = __builtin_cpu_supports("avx2") != 0;
    return hasAvx2 ? InstructionSet::Avx2 : InstructionSet::Baseline;
#else
    return InstructionSet::Baseline;
#endif
}

// KEST_INLINED makes a loop part of each function that calls it, and so compiled for that function's instructions;
// KEST_AVX2 lets a function use AVX2. Fused multiply-add stays off in both.
#if defined(__GNUC__)
#define KEST_INLINED __attribute__((always_inline)) inline
#define KEST_AVX2 __attribute__((target("avx2")))
#else
#define KEST_INLINED inline
#define KEST_AVX2
#endif

}  // namespace kest
